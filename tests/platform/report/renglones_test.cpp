#include "platform/report/renglones.h"

#include <gmock/gmock.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

/// All letters are as wide: 1233 of 2048 units.
const MedidaEstilo& fija()
{
    static const MedidaEstilo medida = [] {
        Estilo estilo;
        estilo.familia = u"DejaVu Sans Mono"_s;
        estilo.cuerpo = 10;
        return MedidaEstilo{estilo};
    }();
    return medida;
}

double letras(int cuantas)
{
    return cuantas * 1233 * 10 * 25.4 / 72 / 2048;
}

QStringList parte(const QString& texto, int ancho)
{
    QStringList renglones;
    for (const Renglon& renglon : parteEnRenglones(fija(), texto, letras(ancho)))
        renglones << renglon.texto;
    return renglones;
}

QString corta(const QString& texto, int ancho)
{
    return cortaRenglon(fija(), texto, letras(ancho)).texto;
}

TEST(Renglones, BreakBetweenWords)
{
    EXPECT_THAT(parte(u"uno dos tres"_s, 7), ElementsAre(u"uno dos"_s, u"tres"_s));
    EXPECT_THAT(parte(u"uno dos tres"_s, 6), ElementsAre(u"uno"_s, u"dos"_s, u"tres"_s));
    EXPECT_THAT(parte(u"uno dos tres"_s, 12), ElementsAre(u"uno dos tres"_s));
    EXPECT_THAT(parte(u"medio-dia"_s, 7), ElementsAre(u"medio-"_s, u"dia"_s));
}

TEST(Renglones, BreakLongWords)
{
    EXPECT_THAT(parte(u"abcdefgh ij"_s, 3), ElementsAre(u"abc"_s, u"def"_s, u"gh"_s, u"ij"_s));
    EXPECT_THAT(parte(u"abc"_s, 0), ElementsAre(u"a"_s, u"b"_s, u"c"_s));
}

TEST(Renglones, BreakWhereTheTextDoes)
{
    EXPECT_THAT(parte(u"uno\r\ndos\n\ntres\rx"_s, 20), ElementsAre(u"uno"_s, u"dos"_s, u""_s, u"tres"_s, u"x"_s));
    EXPECT_THAT(parte(u"a\tb"_s, 20), ElementsAre(u"a b"_s));
}

TEST(Renglones, OfAnEmptyTextThereAreNone)
{
    EXPECT_TRUE(parteEnRenglones(fija(), {}, 10).empty());
}

TEST(Renglones, WidthsAreThoseOfTheLines)
{
    const auto renglones = parteEnRenglones(fija(), u"uno dos tres"_s, letras(7));
    EXPECT_NEAR(renglones[0].ancho, letras(7), 1e-3);
    EXPECT_NEAR(renglones[1].ancho, letras(4), 1e-3);
}

TEST(Renglones, ShapedTextsLoseNothing)
{
    const QString arabe = u"مرحبا بالعالم هذا نص طويل"_s;
    const auto renglones = parteEnRenglones(fija(), arabe, letras(10));
    EXPECT_GT(renglones.size(), 1U);
    QString junto;
    for (const Renglon& renglon : renglones) {
        EXPECT_LE(renglon.ancho, letras(10) + 0.02);
        junto += renglon.texto;
    }
    EXPECT_EQ(junto.remove(u' '), QString{arabe}.remove(u' '));
}

TEST(Renglones, TenThousandCharacters)
{
    const auto renglones = parteEnRenglones(fija(), QString{10'000, u'x'}, letras(50));
    EXPECT_EQ(renglones.size(), 200U);
    EXPECT_FALSE(parteEnRenglones(fija(), QString{u"😀 "_s}.repeated(3'000), letras(50)).empty());
}

TEST(Renglones, TooWideTextsAreCutWithDots)
{
    EXPECT_EQ(corta(u"abcdef"_s, 6), u"abcdef"_s);
    EXPECT_EQ(corta(u"abcdefg"_s, 6), u"abcde…"_s);
    EXPECT_EQ(corta(u"abcdefg"_s, 0), u"…"_s);
    EXPECT_EQ(corta(u"a\nb"_s, 6), u"a b"_s);
    EXPECT_NEAR(cortaRenglon(fija(), u"abcdefg"_s, letras(6)).ancho, letras(6), 1e-3);
}

TEST(Renglones, ShapedTextsAreCutToo)
{
    const QString cortado = corta(QString{u"😀"_s}.repeated(50), 20);
    EXPECT_TRUE(cortado.endsWith(u'…'));
    EXPECT_LT(cortado.size(), 60);
    EXPECT_TRUE(corta(QString{u"שלום "_s}.repeated(5'000), 20).endsWith(u'…'));
}

} // namespace
} // namespace kestrane::report
