#include "platform/report/preview/plegado.h"

#include <gtest/gtest.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

std::vector<Trecho> busca(const QString& buscado, const QString& texto)
{
    return encuentra(pliega(buscado).texto, texto);
}

TEST(Plegado, CaseAndAccentsDoNotCount)
{
    EXPECT_EQ(pliega(u"ÁÉÍÓÚ Ñandú Çedilla"_s).texto, u"aeiou nandu cedilla"_s);
}

TEST(Plegado, EachCharacterKnowsWhereItCameFrom)
{
    EXPECT_EQ(pliega(u"aé"_s).origen, (std::vector<int>{0, 1, 2}));
    EXPECT_EQ(pliega(u"e\u0301x"_s).origen, (std::vector<int>{0, 2, 3}));
}

TEST(Plegado, FindsAllStretches)
{
    EXPECT_EQ(busca(u"an"_s, u"Banana"_s), (std::vector<Trecho>{{1, 3}, {3, 5}}));
    EXPECT_EQ(busca(u"JOSE"_s, u"María José"_s), (std::vector<Trecho>{{6, 10}}));
}

TEST(Plegado, AnAccentOfItsOwnBelongsToItsLetter)
{
    EXPECT_EQ(busca(u"cafe"_s, u"cafe\u0301 solo"_s), (std::vector<Trecho>{{0, 5}}));
}

TEST(Plegado, ALigatureIsFoundByItsParts)
{
    EXPECT_EQ(busca(u"fi"_s, u"o\uFB01cina"_s), (std::vector<Trecho>{{1, 2}}));
}

TEST(Plegado, EmojiAreFoundWhole)
{
    EXPECT_EQ(busca(u"😀"_s, u"a😀b"_s), (std::vector<Trecho>{{1, 3}}));
}

TEST(Plegado, NothingIsFoundNowhere)
{
    EXPECT_TRUE(busca({}, u"abc"_s).empty());
    EXPECT_TRUE(busca(u"\u0301"_s, u"abc"_s).empty());
    EXPECT_TRUE(busca(u"abc"_s, {}).empty());
}

TEST(Plegado, ATextOfTenThousandCharactersIsFoundInItself)
{
    const QString largo = u"ñ"_s.repeated(10000);
    EXPECT_EQ(busca(largo, largo), (std::vector<Trecho>{{0, 10000}}));
    EXPECT_TRUE(busca(largo, u"ñ"_s).empty());
}

} // namespace
} // namespace kestrane::report
