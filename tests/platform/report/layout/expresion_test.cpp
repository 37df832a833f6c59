#include "platform/report/layout/expresion.h"

#include "platform/report/layout/nodo_expresion.h"
#include "platform/report/layout/soporte.h"

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::evalua;

QString rechazo(const QString& texto)
{
    return prueba::descripcionDeError([&] { return evalua(texto); });
}

TEST(AnalizaExpresion, QueLigaMas)
{
    EXPECT_EQ(evalua(u"2 + 3 * 4"_s), Valor{14.0});
    EXPECT_EQ(evalua(u"(2 + 3) * 4"_s), Valor{20.0});
    EXPECT_EQ(evalua(u"10 - 4 - 3"_s), Valor{3.0});
    EXPECT_EQ(evalua(u"-2 * 3"_s), Valor{-6.0});
    EXPECT_EQ(evalua(u"2 - -3"_s), Valor{5.0});
    EXPECT_EQ(evalua(u"1 + 1 & '/' & 2"_s), Valor{u"2/2"_s});
    EXPECT_EQ(evalua(u"'a' & 'b' = 'ab'"_s), Valor{true});
    EXPECT_EQ(evalua(u"no 1 = 2"_s), Valor{true});
    EXPECT_EQ(evalua(u"1 = 1 o 1 = 1 y 1 = 2"_s), Valor{true});
    EXPECT_EQ(evalua(u"(1 = 1 o 1 = 1) y 1 = 2"_s), Valor{false});
}

TEST(AnalizaExpresion, LasPalabrasNoMiranMayusculas)
{
    EXPECT_EQ(evalua(u"A + B"_s), Valor{14.0});
    EXPECT_EQ(evalua(u"Si(1 = 1 Y NO 1 = 2; 'x'; 'z')"_s), Valor{u"x"_s});
}

TEST(AnalizaExpresion, ElTituloEsElDelInforme)
{
    EXPECT_EQ(evalua(u"mayusculas(titulo)"_s), Valor{u"SECCIONES"_s});
}

TEST(AnalizaExpresion, ErroresConFicheroLineaYLugar)
{
    EXPECT_EQ(rechazo(u"suma("_s), u"K_x.rpt, línea 12: en «suma(», carácter 6: se esperaba un valor y se acaba la expresión."_s);
    EXPECT_EQ(rechazo(u"a b"_s), u"K_x.rpt, línea 12: en «a b», carácter 3: se esperaba un operador o el final y hay «b»."_s);
    EXPECT_EQ(rechazo(u"(a"_s), u"K_x.rpt, línea 12: en «(a», carácter 3: se esperaba «)» y se acaba la expresión."_s);
    EXPECT_EQ(rechazo(u"a + y"_s), u"K_x.rpt, línea 12: en «a + y», carácter 5: se esperaba un valor y hay «y»."_s);
    EXPECT_EQ(rechazo(u"seno(a)"_s), u"K_x.rpt, línea 12: en «seno(a)», carácter 1: no hay ninguna función «seno»."_s);
    EXPECT_EQ(rechazo(u"si(a; b)"_s),
              u"K_x.rpt, línea 12: en «si(a; b)», carácter 1: los argumentos de «si» han de ser 3 y hay 2."_s);
    EXPECT_EQ(rechazo(u"a ? b"_s), u"K_x.rpt, línea 12: en «a ? b», carácter 3: no se entiende el signo «?»."_s);
    EXPECT_EQ(rechazo(u""_s), u"K_x.rpt, línea 12: en «», carácter 1: se esperaba un valor y se acaba la expresión."_s);
    EXPECT_EQ(rechazo(u"suma(a; mes)"_s),
              u"K_x.rpt, línea 12: en «suma(a; mes)», carácter 9: se esperaba «informe» (no hay grupos) y hay «mes»."_s);
}

TEST(AnalizaExpresion, ElFormatoHaDeExistir)
{
    EXPECT_TRUE(rechazo(u"formato(a; 'euros')"_s).contains(u"el nombre de un formato"_s));
    EXPECT_TRUE(rechazo(u"formato(a; t)"_s).contains(u"el nombre de un formato"_s));
}

TEST(AnalizaExpresion, LimitesDeHondoYDeLargo)
{
    EXPECT_EQ(evalua(QString(49, u'(') + u'1' + QString(49, u')')), Valor{1.0});
    EXPECT_TRUE(rechazo(QString(50, u'(') + u'1' + QString(50, u')')).contains(u"demasiados paréntesis"_s));
    EXPECT_TRUE(rechazo(QString(60, u'-') + u'1').contains(u"demasiados paréntesis"_s));
    EXPECT_EQ(evalua(u"1"_s + u"+1"_s.repeated(999)), Valor{1000.0});
    EXPECT_TRUE(rechazo(u"1"_s + u"+1"_s.repeated(1000)).contains(u"demasiado larga"_s));
}

class Agregados : public testing::Test
{
protected:
    void analiza(const QString& texto, int nivel = 0, AlcanceExpresion alcance = AlcanceExpresion::Todo)
    {
        ContextoAnalisis contexto{{u"seccion"_s, u"empleado"_s}, nivel, agregados, {}, alcance};
        (void)analizaExpresion(texto, {u"K_x.rpt"_s, 3}, contexto);
    }

    QString rechazoDe(const QString& texto, AlcanceExpresion alcance = AlcanceExpresion::Todo)
    {
        return prueba::descripcionDeError([&] {
            analiza(texto, 0, alcance);
            return 0;
        });
    }

    std::vector<Agregado> agregados;
};

TEST_F(Agregados, SinGrupoEsElDeLaSeccion)
{
    analiza(u"suma(precio)"_s, 2);
    analiza(u"cuenta()"_s, 0);
    ASSERT_EQ(agregados.size(), 2U);
    EXPECT_EQ(agregados[0].funcion, FuncionAgregado::Suma);
    EXPECT_EQ(agregados[0].nivel, 2);
    EXPECT_EQ(agregados[1].funcion, FuncionAgregado::Cuenta);
    EXPECT_EQ(agregados[1].nivel, 0);
    EXPECT_TRUE(agregados[1].de.vacia());
}

TEST_F(Agregados, ConGrupoOInforme)
{
    analiza(u"media(precio; Empleado) & maximo(precio; informe) & acumulado(precio; seccion)"_s, 1);
    ASSERT_EQ(agregados.size(), 3U);
    EXPECT_EQ(agregados[0].nivel, 2);
    EXPECT_EQ(agregados[1].nivel, 0);
    EXPECT_EQ(agregados[2].nivel, 1);
    EXPECT_EQ(agregados[2].funcion, FuncionAgregado::Acumulado);
}

TEST_F(Agregados, LosIgualesSeCuentanUnaVez)
{
    analiza(u"suma(precio * 2) / suma(PRECIO*2) + suma(precio * 3) + suma(precio * 2; seccion)"_s);
    EXPECT_EQ(agregados.size(), 3U);
}

TEST_F(Agregados, NiSumasDeSumasNiSumasEnClaves)
{
    EXPECT_TRUE(rechazoDe(u"suma(suma(precio))"_s).contains(u"«suma» no puede estar aquí"_s));
    EXPECT_TRUE(rechazoDe(u"suma(pagina)"_s).contains(u"«pagina» no puede estar aquí"_s));
    EXPECT_TRUE(rechazoDe(u"cuenta()"_s, AlcanceExpresion::SoloColumnas).contains(u"«cuenta» no puede estar aquí"_s));
    EXPECT_TRUE(rechazoDe(u"suma()"_s).contains(u"se esperaba un valor"_s));
    EXPECT_TRUE(rechazoDe(u"suma(precio; tienda)"_s).contains(u"«informe» o un grupo (seccion, empleado)"_s));
    EXPECT_TRUE(agregados.empty());
}

TEST_F(Agregados, HayUnLimite)
{
    for (int i = 0; i < 500; ++i)
        analiza(u"suma(precio + %1)"_s.arg(i));
    EXPECT_TRUE(rechazoDe(u"suma(otro)"_s).contains(u"demasiadas sumas"_s));
}

} // namespace
} // namespace kestrane::report
