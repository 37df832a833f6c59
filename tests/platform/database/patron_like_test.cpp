#include "platform/database/patron_like.h"

#include <gtest/gtest.h>

namespace kestrane::database {
namespace {

TEST(PatronLike, WhatDoesNotMatch)
{
    for (const auto& [patron, texto] : {std::pair{"", "a"},
                                        {"a", ""},
                                        {"Centro", "Centro Sur"},
                                        {"Centro", "Gran Centro"},
                                        {"%Centro", "Centro Sur"},
                                        {"Ana%", "Mariana"},
                                        {"_", ""},
                                        {"_", "ab"},
                                        {"__", "ñ"},
                                        {"%España", "Espana"},
                                        {"a%b", "ab c"},
                                        {"%aab", "aaac"},
                                        {"a_c", "ac"}})
        EXPECT_FALSE(casaPatron(patron, texto)) << patron << " | " << texto;
}

TEST(PatronLike, PercentIsAnyRunAndUnderscoreOneCharacter)
{
    for (const auto& [patron, texto] : {std::pair{"", ""},
                                        {"%", ""},
                                        {"%", "x"},
                                        {"%%", ""},
                                        {"%Centro", "Gran Centro"},
                                        {"%Centro", "Centro"},
                                        {"Ana%", "Ana"},
                                        {"Ana%", "Ana María"},
                                        {"%an%", "Juana"},
                                        {"_", "ñ"},
                                        {"_", "\xF0\x9F\x98\x80"},
                                        {"a_c", "añc"},
                                        {"a%b%c", "a--b--b--c"},
                                        {"%aab", "aaaab"},
                                        {"a%", "a"},
                                        {"%_", "a"},
                                        {"_%", "a"},
                                        {"%a%a%", "aa"}})
        EXPECT_TRUE(casaPatron(patron, texto)) << patron << " | " << texto;
}

TEST(PatronLike, CaseIsIgnoredBeyondAsciiAndAccentsAreNot)
{
    EXPECT_TRUE(casaPatron("%España", "ESPAÑA"));
    EXPECT_TRUE(casaPatron("ÁVILA%", "Ávila centro"));
    EXPECT_TRUE(casaPatron("%ñ%", "AÑO"));
    EXPECT_FALSE(casaPatron("%Avila", "Ávila"));
    EXPECT_FALSE(casaPatron("ano%", "año"));
}

TEST(PatronLike, EverythingElseStandsForItself)
{
    for (const char* const texto : {"\\", "a\\b", "[a]", "*", "?", "#", "O'Donnell"})
        EXPECT_TRUE(casaPatron(texto, texto)) << texto;
    EXPECT_TRUE(casaPatron("a\\b%", "a\\bc"));
    EXPECT_FALSE(casaPatron("\\%", "%"));
    EXPECT_FALSE(casaPatron("[a-z]", "b"));
}

TEST(PatronLike, SomeLettersChangeTheirLengthWithTheirCase)
{
    EXPECT_TRUE(casaPatron("%\xE2\x84\xAA", "k")) << "the Kelvin sign is a k";
    EXPECT_TRUE(casaPatron("k", "\xE2\x84\xAA"));
}

} // namespace
} // namespace kestrane::database
