#include "platform/report/layout/lector_tabla.h"

#include "platform/report/layout/soporte.h"

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::layoutDe;
using prueba::rechazoDe;

const QString DosColumnas =
    u"<columna titulo=\"Nombre\" valor=\"a\"/><columna titulo=\"Importe\" valor=\"b\" ancho=\"30\" formato=\"moneda\" total=\"suma\"/>"_s;

Valor valorDe(const Expresion& expresion, const prueba::AmbitoFijo& ambito = {})
{
    prueba::AmbitoFijo aqui = ambito;
    aqui.fila_ = {u"Ana"_s, 4.0};
    return ExpresionEnlazada{expresion, {u"a"_s, u"b"_s}}.valor(aqui, prueba::es());
}

template<class T>
std::vector<T> todos(const Banda& banda)
{
    std::vector<T> hallados;
    for (const Elemento& elemento : banda.elementos)
        if (const T* este = std::get_if<T>(&elemento))
            hallados.push_back(*este);
    return hallados;
}

TEST(LectorTabla, CabeceraFilaYTotal)
{
    const Layout layout =
        layoutDe(u"<cabecera-pagina><banda alto=\"9\"/></cabecera-pagina><pie-informe><banda alto=\"9\"/></pie-informe>"
                 "<tabla alto=\"6\">"_s +
                 DosColumnas + u"</tabla>"_s);
    ASSERT_EQ(layout.cabeceraPagina.size(), 2U);
    const auto titulos = todos<Texto>(layout.cabeceraPagina[1]);
    ASSERT_EQ(titulos.size(), 2U);
    EXPECT_EQ(valorDe(titulos[1].valor), Valor{u"Importe"_s});
    EXPECT_EQ(titulos[1].estilo.horizontal, Horizontal::Derecha);
    EXPECT_EQ(titulos[1].caja, QRectF(157, 0, 28, 6));

    ASSERT_EQ(layout.detalle.size(), 1U);
    EXPECT_EQ(layout.detalle[0].alto, 6);
    const auto celdas = todos<Texto>(layout.detalle[0]);
    EXPECT_EQ(valorDe(celdas[0].valor), Valor{u"Ana"_s});
    EXPECT_EQ(celdas[1].formato.formato, Formato::Moneda);

    ASSERT_EQ(layout.pieInforme.size(), 2U);
    const auto totales = todos<Texto>(layout.pieInforme[0]);
    ASSERT_EQ(totales.size(), 2U);
    EXPECT_EQ(valorDe(totales[0].valor), Valor{u"Total"_s});
    EXPECT_EQ(totales[0].caja, QRectF(1, 0, 154, 6));
    EXPECT_EQ(valorDe(totales[1].valor, prueba::conAgregados({99.0})), Valor{99.0});
    EXPECT_EQ(totales[1].formato.formato, Formato::Moneda);
}

TEST(LectorTabla, TotalesDeCadaGrupoConSuTitulo)
{
    const Layout layout = layoutDe(u"<grupo nombre=\"g\" por=\"a\" titulo=\"a\"><pie><banda alto=\"9\"/></pie></grupo><tabla>"_s +
                                   DosColumnas + u"</tabla>"_s);
    ASSERT_EQ(layout.grupos[0].pie.size(), 2U);
    EXPECT_EQ(layout.grupos[0].pie[1].alto, 9);
    EXPECT_EQ(valorDe(todos<Texto>(layout.grupos[0].pie[0])[0].valor), Valor{u"Total Ana"_s});
    ASSERT_EQ(layout.agregados.size(), 2U);
    EXPECT_EQ(layout.agregados[0].nivel, 1);
    EXPECT_EQ(layout.agregados[1].nivel, 0);
}

TEST(LectorTabla, SinTotales)
{
    EXPECT_TRUE(layoutDe(u"<tabla totales=\"no\">"_s + DosColumnas + u"</tabla>"_s).pieInforme.empty());
    EXPECT_TRUE(layoutDe(u"<tabla><columna titulo=\"A\" valor=\"a\"/></tabla>"_s).pieInforme.empty());
}

TEST(LectorTabla, LasFilasParesConSuFondo)
{
    const Layout layout = layoutDe(u"<estilo nombre=\"celda\"/><estilo nombre=\"celda-par\" fondo=\"#f0f0f0\"/><tabla>"_s +
                                   DosColumnas + u"</tabla>"_s);
    const auto marcos = todos<Marco>(layout.detalle[0]);
    ASSERT_EQ(marcos.size(), 1U);
    EXPECT_EQ(marcos[0].relleno, QColor(0xf0, 0xf0, 0xf0));
    EXPECT_EQ(marcos[0].caja, QRectF(0, 0, 186, 5));
    EXPECT_TRUE(marcos[0].hastaElFondo);
    EXPECT_EQ(valorDe(marcos[0].mostrar), Valor{false}); // Row 7.
    EXPECT_TRUE(todos<Texto>(layout.detalle[0])[0].variantes.empty());
    EXPECT_FALSE(todos<Texto>(layout.detalle[0])[0].estilo.fondo.isValid());
}

TEST(LectorTabla, ElFondoDeLaCabeceraVaDetrasDeTodaLaFila)
{
    const Layout layout = layoutDe(u"<estilo nombre=\"cabecera\" fondo=\"#e0e0e0\"/><tabla>"_s + DosColumnas + u"</tabla>"_s);
    const auto marcos = todos<Marco>(layout.cabeceraPagina[0]);
    ASSERT_EQ(marcos.size(), 1U);
    EXPECT_EQ(marcos[0].relleno, QColor(0xe0, 0xe0, 0xe0));
    EXPECT_EQ(marcos[0].grosor, 0);
    for (const Texto& titulo : todos<Texto>(layout.cabeceraPagina[0]))
        EXPECT_FALSE(titulo.estilo.fondo.isValid());
}

TEST(LectorTabla, LasVariantesDeUnaColumna)
{
    const Layout layout = layoutDe(
        u"<estilo nombre=\"rojo\" color=\"#ff0000\"/><estilo nombre=\"celda-par\" negrita=\"si\"/>"
        "<tabla><columna titulo=\"A\" valor=\"b\" formato=\"numero\"><si condicion=\"b &lt; 0\" estilo=\"rojo\"/></columna></tabla>"_s);
    const auto variantes = todos<Texto>(layout.detalle[0]).at(0).variantes;
    ASSERT_EQ(variantes.size(), 2U);
    EXPECT_EQ(variantes[0].estilo.color, QColor(255, 0, 0));
    EXPECT_EQ(variantes[0].estilo.horizontal, Horizontal::Derecha);
    EXPECT_TRUE(variantes[1].estilo.negrita);
}

TEST(LectorTabla, LasColumnasComoDatos)
{
    const Layout layout = layoutDe(u"<tabla>"_s + DosColumnas + u"</tabla>"_s);
    ASSERT_EQ(layout.columnas.size(), 2U);
    EXPECT_EQ(layout.columnas[0].titulo, u"Nombre"_s);
    EXPECT_EQ(layout.columnas[0].ancho, 156);
    EXPECT_FALSE(layout.columnas[0].conTotal);
    EXPECT_TRUE(layout.columnas[1].conTotal);
    EXPECT_EQ(layout.columnas[1].total, FuncionAgregado::Suma);
    EXPECT_EQ(layout.columnas[1].horizontal, Horizontal::Derecha);
}

TEST(LectorTabla, DatosSinTabla)
{
    const Layout layout = layoutDe(
        u"<datos><columna titulo=\"A\" valor=\"a\"/><columna titulo=\"N\" valor=\"b\" ancho=\"35\" total=\"cuenta\"/></datos>"
        "<tabla><columna titulo=\"X\" valor=\"a\"/></tabla>"_s);
    ASSERT_EQ(layout.columnas.size(), 2U);
    EXPECT_EQ(layout.columnas[0].ancho, 20);
    EXPECT_EQ(layout.columnas[1].ancho, 35);
    EXPECT_EQ(layout.columnas[1].total, FuncionAgregado::Cuenta);
    EXPECT_EQ(layout.cabeceraPagina.size(), 1U);
}

TEST(LectorTabla, UnaCuentaSeEscribeComoEntero)
{
    const Layout layout = layoutDe(u"<tabla><columna titulo=\"A\" valor=\"a\" formato=\"moneda\" total=\"cuenta\"/></tabla>"_s);
    const auto totales = todos<Texto>(layout.pieInforme[0]);
    ASSERT_EQ(totales.size(), 1U);
    EXPECT_EQ(totales[0].formato.formato, Formato::Entero);
}

TEST(LectorTabla, Rechazos)
{
    EXPECT_TRUE(
        rechazoDe(u"<pagina columnas=\"2\"/><tabla>"_s + DosColumnas + u"</tabla>"_s).contains(u"no puede haber una tabla"_s));
    EXPECT_TRUE(rechazoDe(u"<tabla/>"_s).contains(u"no tiene ninguna columna"_s));
    EXPECT_TRUE(rechazoDe(u"<tabla celda=\"otra\">"_s + DosColumnas + u"</tabla>"_s).contains(u"no hay ningún estilo «otra»"_s));
    EXPECT_TRUE(rechazoDe(u"<tabla><columna titulo=\"A\" valor=\"suma(a)\" total=\"suma\"/></tabla>"_s)
                    .contains(u"«suma» no puede estar aquí"_s));
}

} // namespace
} // namespace kestrane::report
