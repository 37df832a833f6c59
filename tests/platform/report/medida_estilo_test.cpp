#include "platform/report/medida_estilo.h"

#include <gtest/gtest.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

// DejaVu Sans has 2048 units to the em: a digit is 1303 of them wide, "i" 569, a capital M 1767.
constexpr double Unidad = 10 * 25.4 / 72 / 2048;

Estilo deDiez()
{
    Estilo estilo;
    estilo.cuerpo = 10;
    return estilo;
}

TEST(MedidaEstilo, WidthsAreThoseOfTheFontWithoutHints)
{
    const MedidaEstilo medida{deDiez()};
    EXPECT_NEAR(medida.ancho(u"0"_s), 1303 * Unidad, 1e-4);
    EXPECT_NEAR(medida.ancho(u"10i"_s), (2 * 1303 + 569) * Unidad, 1e-4);
    EXPECT_NEAR(medida.avance(u'M'), 1767 * Unidad, 1e-4);
}

TEST(MedidaEstilo, SizesAreInProportion)
{
    Estilo grande = deDiez();
    grande.cuerpo = 25;
    EXPECT_NEAR(MedidaEstilo{grande}.ancho(u"Total"_s), 2.5 * MedidaEstilo{deDiez()}.ancho(u"Total"_s), 1e-4);
    EXPECT_NEAR(MedidaEstilo{grande}.altoRenglon(), 2.5 * MedidaEstilo{deDiez()}.altoRenglon(), 1e-9);
}

TEST(MedidaEstilo, BoldIsAnotherFont)
{
    Estilo negrita = deDiez();
    negrita.negrita = true;
    EXPECT_GT(MedidaEstilo{negrita}.ancho(u"Total"_s), MedidaEstilo{deDiez()}.ancho(u"Total"_s));
}

TEST(MedidaEstilo, SpanishTextsAreSimpleOthersAreShaped)
{
    const MedidaEstilo medida{deDiez()};
    EXPECT_TRUE(medida.sencillo(u"Peña & Gutiérrez, «1.234,50 €» – ¿sí? …"_s));
    EXPECT_FALSE(medida.sencillo(u"שלום"_s));
    EXPECT_FALSE(medida.sencillo(u"caja 😀"_s));
    EXPECT_FALSE(medida.sencillo(u"e\u0301"_s));
    EXPECT_FALSE(medida.sencillo(u"a\tb"_s));
    EXPECT_GT(medida.ancho(u"שלום"_s), 0);
}

TEST(MedidaEstilo, ALineHoldsAscentAndDescent)
{
    const MedidaEstilo medida{deDiez()};
    EXPECT_GT(medida.ascendente(), 0);
    EXPECT_LT(medida.ascendente(), medida.altoRenglon());
    EXPECT_NEAR(medida.altoRenglon(), 10 * 25.4 / 72 * 1.164, 0.02); // 0.928 above and 0.236 below the base line
}

} // namespace
} // namespace kestrane::report
