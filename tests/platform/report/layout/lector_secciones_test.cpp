#include "platform/report/layout/lector_secciones.h"

#include "platform/report/layout/soporte.h"

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

TEST(LeeSeccion, LasBandasEnSuOrden)
{
    const Layout layout = prueba::layoutDe(
        u"<detalle>\n<banda alto=\"6.5\" salto=\"si\" mostrar=\"a &gt; 1\"/>\n<banda alto=\"4\" al-pie=\"si\"/></detalle>"_s);
    ASSERT_EQ(layout.detalle.size(), 2U);
    EXPECT_EQ(layout.detalle[0].alto, 6.5);
    EXPECT_EQ(layout.detalle[0].linea, 3);
    EXPECT_TRUE(layout.detalle[0].saltoAntes);
    EXPECT_FALSE(layout.detalle[0].alPieDePagina);
    EXPECT_FALSE(layout.detalle[0].mostrar.vacia());
    EXPECT_TRUE(layout.detalle[1].alPieDePagina);
    EXPECT_TRUE(layout.detalle[1].mostrar.vacia());
}

TEST(LeeSeccion, SinSeccionNoHayBandas)
{
    EXPECT_TRUE(prueba::layoutDe({}).piePagina.empty());
}

TEST(LeeSeccion, UnaExpresionRotaDiceSuLinea)
{
    EXPECT_TRUE(prueba::rechazoDe(u"<detalle>\n<banda alto=\"1\" mostrar=\"a &gt;\"/></detalle>"_s)
                    .startsWith(u"K_x.rpt, línea 3: en «a >»"_s));
}

TEST(LectorSecciones, UnaBandaMasAltaQueLaPaginaSeRechaza)
{
    const QString pagina = u"<pagina papel=\"100x100\" margenes=\"5 10 5 10\"/><pie-pagina><banda alto=\"20\"/></pie-pagina>\n"_s;
    EXPECT_EQ(prueba::rechazoDe(pagina + u"<detalle><banda alto=\"60.5\"/></detalle>"_s),
              u"K_x.rpt, línea 3: la banda es más alta que el sitio que deja la página: caben 60 mm."_s);
    EXPECT_EQ(prueba::rechazoDe(pagina + u"<detalle><banda alto=\"60\"/></detalle>"_s), QString{});
    EXPECT_EQ(prueba::rechazoDe(u"<rollo ancho=\"80\"/><detalle><banda alto=\"600\"/></detalle>"_s), QString{});
}

/// Why a page with room for 60 mm of bands does not take `contenido`.
QString rechazoEnSesenta(const QString& contenido)
{
    return prueba::rechazoDe(
        u"<pagina papel=\"100x100\" margenes=\"5 10 5 10\"/><pie-pagina><banda alto=\"20\"/></pie-pagina>\n"_s + contenido);
}

TEST(LectorSecciones, LaCabeceraYLaFilaDeUnaTablaHanDeCaberJuntas)
{
    const QString columna = u"<columna titulo=\"A\" valor=\"a\"/></tabla>"_s;
    EXPECT_EQ(rechazoEnSesenta(u"<tabla alto=\"30\">"_s + columna), QString{});
    EXPECT_EQ(rechazoEnSesenta(u"<tabla alto=\"31\">"_s + columna),
              u"K_x.rpt, línea 3: las filas de la tabla son más altas que el sitio que deja la página: caben 29 mm."_s);
}

TEST(LectorSecciones, LasBandasTienenElSitioQueDejaLaCabeceraDeLaTabla)
{
    const QString tabla = u"<tabla alto=\"10\"><columna titulo=\"A\" valor=\"a\"/></tabla>\n"_s;
    EXPECT_EQ(rechazoEnSesenta(tabla + u"<detalle><banda alto=\"50\"/></detalle>"_s), QString{});
    EXPECT_EQ(rechazoEnSesenta(tabla + u"<detalle><banda alto=\"51\"/></detalle>"_s),
              u"K_x.rpt, línea 4: la banda es más alta que el sitio que deja la página: caben 50 mm."_s);
}

TEST(LectorSecciones, LasDeUnSubinformeHanDeCaberEnLaPagina)
{
    const QString sub = u"<pie-informe><banda alto=\"5\"><subinforme><consulta>select a from b</consulta>\n%1"
                        "</subinforme></banda></pie-informe>"_s;
    EXPECT_EQ(rechazoEnSesenta(sub.arg(u"<detalle><banda alto=\"60\"/></detalle>"_s)), QString{});
    EXPECT_EQ(rechazoEnSesenta(sub.arg(u"<detalle><banda alto=\"61\"/></detalle>"_s)),
              u"K_x.rpt, línea 4: la banda es más alta que el sitio que deja la página: caben 60 mm."_s);
    EXPECT_EQ(rechazoEnSesenta(sub.arg(u"<tabla alto=\"61\"><columna titulo=\"A\" valor=\"a\"/></tabla>"_s)),
              u"K_x.rpt, línea 4: las filas de la tabla son más altas que el sitio que deja la página: caben 60 mm."_s);
}

TEST(LectorSecciones, UnaBandaMasAltaQueElRolloSeRechaza)
{
    const QString rollo = u"<rollo ancho=\"80\" margenes=\"4 4 4 4\" largo-maximo=\"100\"/>"_s;
    EXPECT_EQ(prueba::rechazoDe(rollo + u"<detalle><banda alto=\"92\"/></detalle>"_s), QString{});
    EXPECT_EQ(prueba::rechazoDe(rollo + u"<detalle><banda alto=\"93\"/></detalle>"_s),
              u"K_x.rpt, línea 2: la banda es más alta que el sitio que deja la página: caben 92 mm."_s);
}

TEST(LectorSecciones, NoMasDeVeinteGrupos)
{
    QString grupos;
    for (int i = 1; i <= 20; ++i)
        grupos += u"<grupo nombre=\"g%1\" por=\"a\"/>"_s.arg(i);
    EXPECT_EQ(prueba::rechazoDe(grupos), QString{});
    EXPECT_TRUE(prueba::rechazoDe(grupos + u"<grupo nombre=\"otro\" por=\"a\"/>"_s).contains(u"se admiten 20"_s));
}

} // namespace
} // namespace kestrane::report
