#include "platform/report/preview/forma_texto.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

constexpr auto Shalom = u"\u05E9\u05DC\u05D5\u05DD";

QFont letra()
{
    QFont nueva{u"DejaVu Sans"_s};
    nueva.setPixelSize(100);
    return nueva;
}

FormaTexto forma(const QString& texto)
{
    return FormaTexto{texto, letra()};
}

TEST(FormaTexto, LatinTextRunsFromTheLeft)
{
    const QFontMetricsF medidas{letra()};
    const auto franjas = forma(u"iiMM"_s).franjas(0, 2);
    ASSERT_EQ(franjas.size(), 1U);
    EXPECT_NEAR(franjas[0].first, 0, 1e-6);
    EXPECT_NEAR(franjas[0].second, medidas.horizontalAdvance(u"ii"_s) / medidas.horizontalAdvance(u"iiMM"_s), 0.01);
}

TEST(FormaTexto, TextFromRightToLeftRunsFromTheRight)
{
    const FormaTexto hebrea = forma(QString::fromUtf16(Shalom));
    const auto primera = hebrea.franjas(0, 1);
    const auto ultima = hebrea.franjas(3, 4);
    ASSERT_EQ(primera.size(), 1U);
    ASSERT_EQ(ultima.size(), 1U);
    EXPECT_NEAR(primera[0].second, 1, 0.01) << "what is read first stands at the right end";
    EXPECT_NEAR(ultima[0].first, 0, 1e-6);
    EXPECT_GT(primera[0].first, ultima[0].second);
    EXPECT_EQ(hebrea.franjas(0, 2).size(), 1U) << "neighbours touch";
}

TEST(FormaTexto, AllOfATextIsOneStretchWhicheverWayItIsRead)
{
    for (const QString& texto : {u"Corte"_s, QString::fromUtf16(Shalom), u"Corte "_s + QString::fromUtf16(Shalom) + u" 12"_s}) {
        const auto franjas = forma(texto).franjas(0, int(texto.size()));
        ASSERT_EQ(franjas.size(), 1U) << texto.toStdString();
        EXPECT_NEAR(franjas[0].first, 0, 1e-6);
        EXPECT_NEAR(franjas[0].second, 1, 0.01);
    }
}

TEST(FormaTexto, WhereTheReadingTurnsThereAreSeveralStretches)
{
    // "te " and the Hebrew word's first letter, which is at its right end: its last letters lie between.
    const auto franjas = forma(u"Corte "_s + QString::fromUtf16(Shalom)).franjas(3, 7);
    ASSERT_EQ(franjas.size(), 2U);
    EXPECT_NEAR(franjas[1].second, 1, 0.01);
}

TEST(FormaTexto, APointFindsThePlaceBetweenLetters)
{
    const FormaTexto latina = forma(u"MMMM"_s);
    EXPECT_EQ(latina.caracterEn(0.05), 0);
    EXPECT_EQ(latina.caracterEn(0.26), 1);
    EXPECT_EQ(latina.caracterEn(0.99), 4);
    EXPECT_EQ(latina.caracterEn(-3), 0);
    EXPECT_EQ(latina.caracterEn(3), 4);
    const FormaTexto hebrea = forma(QString::fromUtf16(Shalom));
    EXPECT_EQ(hebrea.caracterEn(0.99), 0);
    EXPECT_EQ(hebrea.caracterEn(0.01), 4);
}

TEST(FormaTexto, AnEmojiIsNotTakenApart)
{
    const FormaTexto forma{u"a\U0001F600b"_s, letra()};
    for (int paso = 0; paso <= 100; ++paso)
        EXPECT_NE(forma.caracterEn(paso / 100.), 2) << "between the halves of its code";
}

TEST(FormaTexto, NothingTakesNoRoom)
{
    EXPECT_TRUE(forma({}).franjas(0, 1).empty());
    EXPECT_EQ(forma({}).caracterEn(0.5), 0);
    EXPECT_TRUE(forma(u"abc"_s).franjas(2, 2).empty());
    EXPECT_TRUE(forma(u"abc"_s).franjas(3, 9).empty());
}

} // namespace
} // namespace kestrane::report
