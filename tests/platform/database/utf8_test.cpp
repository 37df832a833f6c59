#include "platform/database/utf8.h"

#include <QByteArray>

#include <gtest/gtest.h>

namespace kestrane::database {
namespace {

QByteArray utf8(QStringView texto)
{
    QByteArray destino(maximoUtf8(texto.size()), '\0');
    destino.truncate(aUtf8(texto, destino.data()));
    return destino;
}

TEST(Utf8, TextsOfAllLengthsOfCodeAreWritten)
{
    EXPECT_EQ(utf8(u""), "");
    EXPECT_EQ(utf8(u"Caja diaria 123"), "Caja diaria 123");
    EXPECT_EQ(utf8(u"abcdefgñ"), "abcdefg\xC3\xB1");
    EXPECT_EQ(utf8(u"12 €"), "12 \xE2\x82\xAC");
    EXPECT_EQ(utf8(u"a\U0001F600b"), "a\xF0\x9F\x98\x80"
                                     "b");
}

TEST(Utf8, HalfASurrogatePairBecomesTheReplacementCharacter)
{
    const char16_t alta[] = {u'a', 0xD83D, u'b', 0};
    const char16_t baja[] = {0xDE00, 0};
    EXPECT_EQ(utf8(alta), "a\xEF\xBF\xBD"
                          "b");
    EXPECT_EQ(utf8(baja), "\xEF\xBF\xBD");
}

TEST(Utf8, CodePointsAreReadForwardAndBackward)
{
    const QByteArray texto = "a\xC3\xB1\xE2\x82\xAC\xF0\x9F\x98\x80";
    const std::u32string esperado = U"añ€\U0001F600";
    std::u32string adelante;
    for (const char *i = texto.data(), *fin = i + texto.size(); i != fin;)
        adelante += siguienteUtf8(i, fin);
    EXPECT_EQ(adelante, esperado);
    std::u32string atras;
    for (const char* i = texto.data() + texto.size(); i != texto.data();)
        atras.insert(atras.begin(), anteriorUtf8(i, texto.data()));
    EXPECT_EQ(atras, esperado);
}

TEST(Utf8, BytesThatAreNoUtf8StandForThemselvesOneByOneBothWays)
{
    // A stray continuation, a cut sequence, an overlong slash, a surrogate.
    for (const QByteArray& texto :
         {QByteArray("\x80x"), QByteArray("a\xE2\x82"), QByteArray("\xC0\xAF"), QByteArray("\xED\xA0\x80")}) {
        std::u32string adelante;
        for (const char *i = texto.data(), *fin = i + texto.size(); i != fin;)
            adelante += siguienteUtf8(i, fin);
        EXPECT_EQ(static_cast<qsizetype>(adelante.size()), texto.size());
        std::u32string atras;
        for (const char* i = texto.data() + texto.size(); i != texto.data();)
            atras.insert(atras.begin(), anteriorUtf8(i, texto.data()));
        EXPECT_EQ(atras, adelante);
    }
}

TEST(Utf8, AWidthCountsCharactersBeyondTheBasicPlaneOnce)
{
    EXPECT_EQ(puntosDeCodigo(u"añ€"), 3);
    EXPECT_EQ(puntosDeCodigo(u"\U0001F600\U0001F600"), 2);
}

} // namespace
} // namespace kestrane::database
