#include "platform/database/espanol.h"

#include <QByteArray>
#include <QStringList>

#include <gtest/gtest.h>

namespace kestrane::database::espanol {
namespace {

using namespace Qt::StringLiterals;

int signo(int comparacion)
{
    return comparacion < 0 ? -1 : comparacion > 0 ? 1 : 0;
}

/// Both encodings must agree, and both directions.
int comparados(const QString& a, const QString& b)
{
    const QByteArray a8 = a.toUtf8();
    const QByteArray b8 = b.toUtf8();
    const int en8 = signo(compara(std::string_view{a8.data(), static_cast<size_t>(a8.size())},
                                  std::string_view{b8.data(), static_cast<size_t>(b8.size())}));
    EXPECT_EQ(en8, signo(compara(QStringView{a}, QStringView{b}))) << qPrintable(a) << " | " << qPrintable(b);
    EXPECT_EQ(en8, -signo(compara(QStringView{b}, QStringView{a}))) << qPrintable(a) << " | " << qPrintable(b);
    return en8;
}

TEST(Espanol, WhatDiffersOnlyInCaseIsEqual)
{
    for (const auto& [a, b] :
         {std::pair{u"Centro"_s, u"CENTRO"_s}, {u"ESPAÑA"_s, u"españa"_s}, {u"Ávila"_s, u"áVILA"_s}, {u""_s, u""_s}})
        EXPECT_EQ(comparados(a, b), 0) << qPrintable(a);
}

TEST(Espanol, AccentsTrailingBlanksAndTheTildeOfTheEneAreSignificant)
{
    for (const auto& [a, b] :
         {std::pair{u"a"_s, u"á"_s}, {u"a"_s, u"a "_s}, {u"ano"_s, u"año"_s}, {u"u"_s, u"ü"_s}, {u""_s, u" "_s}})
        EXPECT_EQ(comparados(a, b), -1) << qPrintable(a);
}

TEST(Espanol, AListIsInTheOrderOfASpanishDictionary)
{
    const QStringList orden{u""_s,     u" "_s,         u"-"_s,      u"12"_s,       u"2"_s,      u"a"_s,
                            u"Á"_s,    u"ab"_s,        u"áb"_s,     u"abc"_s,      u"Álvaro"_s, u"amor"_s,
                            u"ana"_s,  u"Ana María"_s, u"caña"_s,   u"cañada"_s,   u"caoba"_s,  u"carro"_s,
                            u"casa"_s, u"llama"_s,     u"luz"_s,    u"nube"_s,     u"nylon"_s,  u"ñandú"_s,
                            u"Ñoño"_s, u"oca"_s,       u"pingüe"_s, u"pingüino"_s, u"zapato"_s, u"Zoe"_s};
    for (qsizetype i = 0; i < orden.size(); ++i) {
        for (qsizetype j = 0; j < orden.size(); ++j)
            EXPECT_EQ(comparados(orden[i], orden[j]), i < j   ? -1
                                                      : i > j ? 1
                                                              : 0)
                << qPrintable(orden[i]) << " | " << qPrintable(orden[j]);
    }
}

TEST(Espanol, AnAccentDecidesOnlyWhenTheLettersDoNot)
{
    EXPECT_EQ(comparados(u"áb"_s, u"ac"_s), -1);
    EXPECT_EQ(comparados(u"ab"_s, u"áb"_s), -1);
    EXPECT_EQ(comparados(u"áa"_s, u"aá"_s), 1) << "the first accent decides";
}

TEST(Espanol, PunctuationStandsBeforeDigitsAndDigitsBeforeLetters)
{
    const QString orden = u"\t _-,;:!¡?¿.'\"«»()[]{}@*/\\&#%`´^¨°+±÷×<=>|~¢$£€0123456789abcdefghijklmnñopqrstuvwxyzþ"_s;
    for (qsizetype i = 1; i < orden.size(); ++i)
        EXPECT_EQ(comparados(orden.mid(i - 1, 1), orden.mid(i, 1)), -1) << i;
}

TEST(Espanol, HoweverAnAccentIsWrittenItIsTheSame)
{
    EXPECT_EQ(comparados(u"caf\u00E9"_s, u"cafe\u0301"_s), 0);
    EXPECT_EQ(comparados(u"a\u00F1o"_s, u"an\u0303o"_s), 0);
    EXPECT_EQ(comparados(u"an\u0303o"_s, u"anz"_s), 1) << "ñ is a letter, not an n with a mark";
}

TEST(Espanol, LigaturesStandBesideTheirLettersAndAreNotEqualToThem)
{
    EXPECT_EQ(comparados(u"Strasse"_s, u"Straße"_s), -1);
    EXPECT_EQ(comparados(u"Straße"_s, u"Strassf"_s), -1);
    EXPECT_EQ(comparados(u"aer"_s, u"ær"_s), -1);
    EXPECT_EQ(comparados(u"ær"_s, u"af"_s), -1);
}

TEST(Espanol, OtherAlphabetsFollowTheLatinOneAndIgnoreCaseToo)
{
    EXPECT_EQ(comparados(u"zzz"_s, u"α"_s), -1);
    EXPECT_EQ(comparados(u"Ω"_s, u"ω"_s), 0);
    EXPECT_EQ(comparados(u"Ж"_s, u"ж"_s), 0);
    EXPECT_EQ(comparados(u"\U0001F600"_s, u"0"_s), -1) << "symbols stand before digits";
}

TEST(Espanol, BytesThatAreNoUtf8CompareAndDiffer)
{
    EXPECT_EQ(compara(std::string_view{"a\xFF"}, std::string_view{"a\xFF"}), 0);
    EXPECT_NE(compara(std::string_view{"a\xFF"}, std::string_view{"a\xFE"}), 0);
}

} // namespace
} // namespace kestrane::database::espanol
