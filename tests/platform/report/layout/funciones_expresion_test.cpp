#include "platform/report/layout/funciones_expresion.h"

#include "platform/report/layout/soporte.h"

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::evalua;

TEST(FuncionesExpresion, SiNoTocaLoQueNoElige)
{
    EXPECT_EQ(evalua(u"si(b = 0; 0; a / b)"_s), Valor{2.5});
    EXPECT_EQ(evalua(u"si(1 = 1; 'bien'; a / 0)"_s), Valor{u"bien"_s});
    EXPECT_EQ(evalua(u"si(n; 1; 2)"_s), Valor{2.0});
}

TEST(FuncionesExpresion, NuloYVacio)
{
    EXPECT_EQ(evalua(u"nulo(n)"_s), Valor{true});
    EXPECT_EQ(evalua(u"nulo('')"_s), Valor{false});
    EXPECT_EQ(evalua(u"vacio(n)"_s), Valor{true});
    EXPECT_EQ(evalua(u"vacio('  ')"_s), Valor{true});
    EXPECT_EQ(evalua(u"vacio(0)"_s), Valor{false});
}

TEST(FuncionesExpresion, Textos)
{
    EXPECT_EQ(evalua(u"mayusculas('año')"_s), Valor{u"AÑO"_s});
    EXPECT_EQ(evalua(u"minusculas(t)"_s), Valor{u"ana"_s});
    EXPECT_EQ(evalua(u"recorta('  a b ')"_s), Valor{u"a b"_s});
    EXPECT_EQ(evalua(u"izquierda('Kestrane'; 3)"_s), Valor{u"Kes"_s});
    EXPECT_EQ(evalua(u"derecha('Kestrane'; 3)"_s), Valor{u"ane"_s});
    EXPECT_EQ(evalua(u"izquierda('ab'; 9)"_s), Valor{u"ab"_s});
    EXPECT_EQ(evalua(u"izquierda('ab'; -1)"_s), Valor{u""_s});
    EXPECT_EQ(evalua(u"longitud('año')"_s), Valor{qint32{3}});
    EXPECT_EQ(evalua(u"'it''s'"_s), Valor{u"it's"_s});
}

TEST(FuncionesExpresion, Numeros)
{
    EXPECT_EQ(evalua(u"redondea(2.675; 2)"_s), Valor{2.68});
    EXPECT_EQ(evalua(u"redondea(2.5)"_s), Valor{3.0});
    EXPECT_EQ(evalua(u"entero(7 / 2)"_s), Valor{3.0});
    EXPECT_EQ(evalua(u"entero(-0.5)"_s), Valor{-1.0});
}

TEST(FuncionesExpresion, Fechas)
{
    EXPECT_EQ(evalua(u"anio(f)"_s), Valor{qint32{2024}});
    EXPECT_EQ(evalua(u"mes(f)"_s), Valor{qint32{3}});
    EXPECT_EQ(evalua(u"dia('05/03/2024')"_s), Valor{qint32{5}});
}

TEST(FuncionesExpresion, Formato)
{
    EXPECT_EQ(evalua(u"formato(a * 123.45; 'moneda')"_s), Valor{u"1.234,50"_s});
    EXPECT_EQ(evalua(u"formato(a; 'moneda'; 3)"_s), Valor{u"10,000"_s});
    EXPECT_EQ(evalua(u"'Del ' & formato(f; 'fecha')"_s), Valor{u"Del 05/03/2024"_s});
    EXPECT_EQ(evalua(u"formato(n; 'moneda')"_s), Valor{u""_s});
}

TEST(FuncionesExpresion, DeNullNull)
{
    for (const QString& funcion : u"mayusculas minusculas recorta longitud redondea entero anio mes dia"_s.split(u' '))
        EXPECT_EQ(evalua(funcion + u"(n)"_s), Valor{}) << funcion.toStdString();
    EXPECT_EQ(evalua(u"izquierda(n; 2)"_s), Valor{});
}

TEST(FuncionesExpresion, LaTablaSeRecorrePorNombre)
{
    for (const FuncionExpresion& funcion : funciones())
        EXPECT_EQ(funcionDe(funcion.nombre.toString().toUpper()), &funcion);
    EXPECT_EQ(funcionDe(u"suma"), nullptr);
}

} // namespace
} // namespace kestrane::report
