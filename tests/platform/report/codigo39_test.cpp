#include "platform/report/codigo39.h"

#include <gtest/gtest.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

TEST(Codigo39, KnowsItsSigns)
{
    EXPECT_TRUE(esCodigo39(u"ABC-123 .$/+%"_s));
    EXPECT_TRUE(esCodigo39(u"abc"_s));
    EXPECT_FALSE(esCodigo39(u"AÑO"_s));
    EXPECT_FALSE(esCodigo39(u"A*B"_s));
    EXPECT_FALSE(esCodigo39(u""_s));
}

TEST(Codigo39, EachSignHasFiveBarsBetweenStartAndStop)
{
    // Two signs, start and stop: four times five bars.
    EXPECT_EQ(barrasCodigo39(u"A1"_s, {0, 0, 60, 10}).size(), 20U);
    EXPECT_EQ(barrasCodigo39(u"a1"_s, {0, 0, 60, 10}), barrasCodigo39(u"A1"_s, {0, 0, 60, 10}));
}

TEST(Codigo39, BarsStandInTheMiddleWithQuietZones)
{
    const QRectF caja{5, 7, 30, 10};
    const auto barras = barrasCodigo39(u"A1"_s, caja);
    const double izquierda = barras.front().left() - caja.left();
    EXPECT_NEAR(izquierda, caja.right() - barras.back().right(), 1e-9);
    EXPECT_GE(izquierda, 10 * barras.front().width() - 1e-9); // the first bar is a narrow one
    EXPECT_EQ(barras.front().top(), 7);
    EXPECT_EQ(barras.front().height(), 10);
}

TEST(Codigo39, OfWhatCannotBeWrittenThereAreNoBars)
{
    EXPECT_TRUE(barrasCodigo39(u"AÑO"_s, {0, 0, 60, 10}).empty());
    EXPECT_TRUE(barrasCodigo39(QString{500, u'A'}, {0, 0, 60, 10}).empty());
}

TEST(Codigo39, BarsTooNarrowToBeReadAreNotDrawn)
{
    // Start, a sign and stop have 13 modules each with the gap behind them; with the quiet zones 59.
    EXPECT_TRUE(barrasCodigo39(u"A"_s, {0, 0, 59 * 0.18, 10}).empty());
    EXPECT_FALSE(barrasCodigo39(u"A"_s, {0, 0, 59 * 0.20, 10}).empty());
}

TEST(Codigo39, TheFontsTextStandsBetweenTheMarks)
{
    EXPECT_EQ(textoCodigo39(u"ab1"_s), u"*AB1*"_s);
    EXPECT_NEAR(estiloCodigo39(25.4).cuerpo, 72, 1e-9);
}

} // namespace
} // namespace kestrane::report
