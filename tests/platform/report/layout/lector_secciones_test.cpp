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

} // namespace
} // namespace kestrane::report
