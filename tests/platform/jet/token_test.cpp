#include "platform/jet/token.h"

#include "platform/runtime/soporte.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

TEST(TokenTest, OnlyWholeWordsOfTheListAreKeywords)
{
    EXPECT_FALSE(palabraClave(u"selec"_s));
    EXPECT_FALSE(palabraClave(u"selects"_s));
    EXPECT_FALSE(palabraClave(u"ſelect"_s)); // folds to "select" beyond ASCII only
    EXPECT_FALSE(palabraClave(u"una_palabra_muy_larga"_s));
    EXPECT_FALSE(palabraClave(u""_s));
    EXPECT_EQ(palabraClave(u"Select"_s), ClaseToken::Select);
    EXPECT_EQ(palabraClave(u"DISTINCT"_s), ClaseToken::Distinct);
    EXPECT_EQ(palabraClave(u"by"_s), ClaseToken::By);
}

TEST(TokenTest, SignsAreReadByTheirLongestForm)
{
    int longitud = 0;
    EXPECT_FALSE(signo(u'!', u'=', longitud));
    EXPECT_EQ(signo(u'<', u'>', longitud), ClaseToken::Distinto);
    EXPECT_EQ(longitud, 2);
    EXPECT_EQ(signo(u'<', u' ', longitud), ClaseToken::Menor);
    EXPECT_EQ(longitud, 1);
    EXPECT_EQ(signo(u'=', u'>', longitud), ClaseToken::Igual);
}

TEST(TokenTest, MessagesNameTokensInSpanish)
{
    EXPECT_EQ(nombreDeToken(ClaseToken::Select), u"SELECT"_s);
    EXPECT_EQ(nombreDeToken(ClaseToken::Igual), u"\"=\""_s);
    EXPECT_EQ(nombreDeToken(ClaseToken::Nombre), u"un nombre"_s);
    EXPECT_EQ(nombreDeToken(ClaseToken::Fin), u"el final"_s);
}

} // namespace
} // namespace kestrane::jet
