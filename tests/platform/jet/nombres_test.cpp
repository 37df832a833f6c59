#include "platform/jet/nombres.h"

#include <gtest/gtest.h>

namespace kestrane::jet {
namespace {

using namespace Qt::StringLiterals;

/// The three ways of telling whether two names are one agree.
void expectIguales(const QString& a, const QString& b, bool iguales)
{
    EXPECT_EQ(mismoNombre(a, b), iguales) << qPrintable(a) << " " << qPrintable(b);
    EXPECT_EQ(nombrePlegado(a) == nombrePlegado(b), iguales) << qPrintable(a) << " " << qPrintable(b);
    EXPECT_TRUE(!iguales || hashDeNombre(a) == hashDeNombre(b)) << qPrintable(a) << " " << qPrintable(b);
}

TEST(NombresTest, CaseDoesNotMatterAndAccentsDo)
{
    expectIguales(u"UltimaVisita"_s, u"ultimavisita"_s, true);
    expectIguales(u"AÑO"_s, u"año"_s, true);
    expectIguales(u"TEXTO35"_s, u"texto35"_s, true);
    expectIguales(u"ano"_s, u"año"_s, false);
    expectIguales(u"texto1"_s, u"texto10"_s, false);
    expectIguales(u""_s, u""_s, true);
    expectIguales(u""_s, u"a"_s, false);
}

TEST(NombresTest, EachCharacterIsFoldedOnItsOwn)
{
    expectIguales(u"straße"_s, u"STRAẞE"_s, true);
    expectIguales(u"straße"_s, u"strasse"_s, false);
    expectIguales(u"\U00010400"_s, u"\U00010428"_s, true);
    expectIguales(u"a\U00010400"_s, u"a\U00010401"_s, false);
}

TEST(NombresTest, HalfACharacterIsItself)
{
    const QString mitad{QChar{0xD801}};
    expectIguales(mitad, mitad, true);
    expectIguales(mitad, QString{QChar{0xDC00}}, false);
    expectIguales(mitad + u'A', mitad + u'a', true);
}

TEST(NombresTest, TheKeyIsInSmallLetters)
{
    EXPECT_EQ(nombrePlegado(u"Cabecera_AÑO1"), u"cabecera_año1"_s);
}

} // namespace
} // namespace kestrane::jet
