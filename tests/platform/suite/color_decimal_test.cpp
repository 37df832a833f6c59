#include "platform/suite/color_decimal.h"

#include <gtest/gtest.h>

using namespace kestrane;
using namespace Qt::StringLiterals;

TEST(ColorDecimalTest, WhiteIsTheGreatestNumber)
{
    EXPECT_EQ(decimalDeRgb(0xffffff), u"16777215"_s);
    EXPECT_EQ(rgbDeDecimal(u"16777215"), 0xffffffU);
}

TEST(ColorDecimalTest, RedStandsInTheLowestByteThenGreenThenBlue)
{
    EXPECT_EQ(rgbDeDecimal(u"255"), 0xff0000U);
    EXPECT_EQ(rgbDeDecimal(u"65280"), 0x00ff00U);
    EXPECT_EQ(rgbDeDecimal(u"16711680"), 0x0000ffU);
    EXPECT_EQ(decimalDeRgb(0x010203), u"197121"_s); // 1 + 2 * 256 + 3 * 65536
}

TEST(ColorDecimalTest, BlanksAroundTheNumberArePassedOver)
{
    EXPECT_EQ(rgbDeDecimal(u" 0 "), 0U);
}

TEST(ColorDecimalTest, WhatIsNoColourIsRefused)
{
    for (const QStringView texto : {u"", u"rojo", u"-1", u"16777216", u"12,5", u"99999999999999999999"})
        EXPECT_EQ(rgbDeDecimal(texto), std::nullopt) << texto.toString().toStdString();
}
