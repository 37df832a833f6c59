#include "platform/report/layout/error_layout.h"

#include "platform/report/layout/soporte.h"

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

int falla(const LugarLayout& lugar)
{
    fallaLayout(lugar, u"falta algo."_s);
}

TEST(FallaLayout, FicheroLineaYMotivo)
{
    EXPECT_EQ(prueba::numeroDeError([] { return falla({u"K_x.rpt"_s, 12}); }), 20001);
    EXPECT_EQ(prueba::descripcionDeError([] { return falla({u"K_x.rpt"_s, 12}); }), u"K_x.rpt, línea 12: falta algo."_s);
    EXPECT_EQ(prueba::descripcionDeError([] { return falla({u"K_x.rpt"_s, 0}); }), u"K_x.rpt: falta algo."_s);
}

TEST(Trozo, NoParteLetras)
{
    EXPECT_EQ(trozo(u"abcdef", 1, 3), u"bcd"_s);
    EXPECT_EQ(trozo(u"abc", 1, 9), u"bc"_s);
    EXPECT_EQ(trozo(u"a😀b", 0, 2), u"a😀"_s);
    EXPECT_EQ(trozo(u"a😀b", 2, 1), u"😀"_s);
}

} // namespace
} // namespace kestrane::report
