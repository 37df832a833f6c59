#include "platform/jet/formato_fecha.h"

#include <gtest/gtest.h>

namespace kestrane::jet {
namespace {

TEST(FormatoFechaTest, FollowsTheRegionalOrderAndMark)
{
    constexpr FormatoDeFecha formato{.anio = "Y", .mes = "M", .dia = "D", .hora = "H"};
    ConfiguracionRegional regional = ConfiguracionRegional::espania();
    EXPECT_EQ(formatoDeDia(formato, regional), "D/M/Y");
    regional.ordenFecha = ConfiguracionRegional::OrdenFecha::MesDiaAnio;
    EXPECT_EQ(formatoDeDia(formato, regional), "M/D/Y");
    regional.ordenFecha = ConfiguracionRegional::OrdenFecha::AnioMesDia;
    regional.marcaFecha = u'-';
    EXPECT_EQ(formatoDeDia(formato, regional), "Y-M-D");
}

} // namespace
} // namespace kestrane::jet
