#include "platform/database/pesos_espanol.h"

#include <gtest/gtest.h>

namespace kestrane::database::espanol {
namespace {

TEST(PesosEspanol, WhatCountsForNothingHasNoWeights)
{
    EXPECT_EQ(pesosDe(0x00AD).cuantos, 0) << "the soft hyphen";
    EXPECT_EQ(pesosDe(U'\u0007').cuantos, 0);
}

TEST(PesosEspanol, AnAccentedLetterIsItsLetterAndAMark)
{
    const Pesos conTilde = pesosDe(U'é');
    ASSERT_EQ(conTilde.cuantos, 2);
    EXPECT_EQ(conTilde.peso[0], pesosDe(U'e').peso[0]);
    EXPECT_EQ(conTilde.peso[1], pesosDe(0x0301).peso[0]);
    EXPECT_EQ(conTilde.peso[1].letra, 0u);
}

TEST(PesosEspanol, TheEneIsALetterBetweenNAndO)
{
    ASSERT_EQ(pesosDe(U'ñ').cuantos, 1);
    EXPECT_LT(pesosDe(U'n').peso[0].letra, pesosDe(U'ñ').peso[0].letra);
    EXPECT_LT(pesosDe(U'ñ').peso[0].letra, pesosDe(U'o').peso[0].letra);
}

TEST(PesosEspanol, CaseHasNoWeight)
{
    for (const auto& [mayuscula, minuscula] : {std::pair{U'A', U'a'}, {U'Ñ', U'ñ'}, {U'É', U'é'}, {U'Ø', U'ø'}, {U'Ω', U'ω'}})
        EXPECT_EQ(pesosDe(mayuscula).peso, pesosDe(minuscula).peso);
}

TEST(PesosEspanol, ALigatureIsItsLettersButNotEqualToThem)
{
    const Pesos ligadura = pesosDe(U'æ');
    ASSERT_EQ(ligadura.cuantos, 2);
    EXPECT_EQ(ligadura.peso[0].letra, pesosDe(U'a').peso[0].letra);
    EXPECT_NE(ligadura.peso[0].acento, pesosDe(U'a').peso[0].acento);
    EXPECT_EQ(ligadura.peso[1], pesosDe(U'e').peso[0]);
}

TEST(PesosEspanol, SimpleWeightsAreInTheSameOrderAsTheWholeOnes)
{
    const auto& simples = pesosSimples();
    for (char32_t a = 0; a < LimiteSimples; ++a) {
        for (char32_t b = 0; b < LimiteSimples; ++b) {
            if (simples[a].letra == 0 || simples[b].letra == 0)
                continue;
            ASSERT_EQ(simples[a].letra < simples[b].letra, pesosDe(a).peso[0].letra < pesosDe(b).peso[0].letra)
                << static_cast<unsigned>(a) << ' ' << static_cast<unsigned>(b);
            ASSERT_EQ(simples[a].acento < simples[b].acento, pesosDe(a).peso[1].acento < pesosDe(b).peso[1].acento)
                << static_cast<unsigned>(a) << ' ' << static_cast<unsigned>(b);
        }
    }
}

TEST(PesosEspanol, WhatIsNotOneLetterIsNotSimple)
{
    for (const char32_t c : {U'\u0000', U'æ', U'ß', U'½', U'ŉ'})
        EXPECT_EQ(pesosSimples()[c].letra, 0) << static_cast<unsigned>(c);
    for (const char32_t c : {U' ', U'a', U'Á', U'ñ', U'ª', U'ø'})
        EXPECT_NE(pesosSimples()[c].letra, 0) << static_cast<unsigned>(c);
}

} // namespace
} // namespace kestrane::database::espanol
