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
