#include "platform/report/layout/redondeo.h"

#include "platform/runtime/soporte.h"

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

TEST(Redondeo, MitadesSeAlejanDeCeroSegunLasCifrasVisibles)
{
    EXPECT_EQ(conDecimales(2.675, 2), u"2.68"_s);
    EXPECT_EQ(conDecimales(1.005, 2), u"1.01"_s);
    EXPECT_EQ(conDecimales(0.125, 2), u"0.13"_s);
    EXPECT_EQ(conDecimales(-2.5, 0), u"-3"_s);
    EXPECT_EQ(conDecimales(2.674999, 2), u"2.67"_s);
}

TEST(Redondeo, ElAcarreoLlegaHastaDelante)
{
    EXPECT_EQ(conDecimales(99.995, 2), u"100.00"_s);
    EXPECT_EQ(conDecimales(0.5, 0), u"1"_s);
    EXPECT_EQ(conDecimales(9.99, 1), u"10.0"_s);
}

TEST(Redondeo, LoQueQuedaEnCeroNoTieneSigno)
{
    EXPECT_EQ(conDecimales(-0.001, 2), u"0.00"_s);
    EXPECT_EQ(conDecimales(-0.0, 2), u"0.00"_s);
    EXPECT_EQ(conDecimales(0.004, 2), u"0.00"_s);
    EXPECT_EQ(conDecimales(0.05, 0), u"0"_s);
    EXPECT_EQ(conDecimales(0.05, 1), u"0.1"_s);
}

TEST(Redondeo, NumerosGrandesYEnteros)
{
    EXPECT_EQ(conDecimales(1234567.5, 2), u"1234567.50"_s);
    EXPECT_EQ(conDecimales(123456789012345.0, 0), u"123456789012345"_s);
    EXPECT_EQ(conDecimales(7, 3), u"7.000"_s);
    EXPECT_EQ(redondeado(2.675, 2), 2.68);
    EXPECT_EQ(redondeado(-2.5, 0), -3.0);
}

} // namespace
} // namespace kestrane::report
