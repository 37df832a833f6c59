#include "platform/jet/forma.h"

#include "platform/jet/limites.h"

#include "platform/runtime/soporte.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

/// The shape with its marks made visible: i, d, t, f between braces.
QString formaDe(const QString& texto)
{
    ExtractorDeForma extractor;
    if (!extractor.extrae(texto))
        return u"none"_s;
    QString visible;
    for (const QChar c : extractor.forma())
        visible += c.unicode() >= 1 && c.unicode() <= 4 ? u"{%1}"_s.arg(u"idtf"_s[c.unicode() - 1]) : QString(c);
    return visible;
}

TEST(ExtractorDeFormaTest, ATextWhoseLiteralsCannotBeReadHasNoShape)
{
    EXPECT_EQ(formaDe(u"a = 'x"_s), u"none"_s);
    EXPECT_EQ(formaDe(u"a = #03/15/2024"_s), u"none"_s);
    EXPECT_EQ(formaDe(u"a = #02/30/2024#"_s), u"none"_s);
    EXPECT_EQ(formaDe(u"a = 1e999"_s), u"none"_s);
    EXPECT_EQ(formaDe(u"[a"_s), u"none"_s);
    EXPECT_EQ(formaDe(QString(limites::LongitudTexto + 1, u'a')), u"none"_s);
}

TEST(ExtractorDeFormaTest, ATextCannotPretendToHaveLiterals)
{
    EXPECT_EQ(formaDe(u"a = \x01"_s), u"none"_s);
    EXPECT_EQ(formaDe(u"[\x03]"_s), u"none"_s);
    EXPECT_EQ(formaDe(u"a = '\x01'"_s), u"a = {t}"_s);
}

TEST(ExtractorDeFormaTest, EachLiteralLeavesTheMarkOfItsClass)
{
    EXPECT_EQ(formaDe(u"a = 5 and b = 5.5 and c = 'x' and d = #03/15/2024#"_s), u"a = {i} and b = {d} and c = {t} and d = {f}"_s);
    EXPECT_EQ(formaDe(u"codigo <> 2and tienda like '%'order by x"_s), u"codigo <> {i}and tienda like {t}order by x"_s);
    EXPECT_EQ(formaDe(u"numerico3 = --5.5"_s), u"numerico3 = --{d}"_s);
    EXPECT_EQ(formaDe(u"2147483647 2147483648"_s), u"{i} {d}"_s);
}

TEST(ExtractorDeFormaTest, DigitsOfNamesStay)
{
    EXPECT_EQ(formaDe(u"texto33=t1.numerico2"_s), u"texto33=t1.numerico2"_s);
    EXPECT_EQ(formaDe(u"[texto 33], [o'b]"_s), u"[texto 33], [o'b]"_s);
    EXPECT_EQ(formaDe(u"ñ5 = 5"_s), u"ñ5 = {i}"_s);
}

TEST(ExtractorDeFormaTest, PointsBeginNumbersOnlyWhereTheLexerSaysSo)
{
    EXPECT_EQ(formaDe(u"a>.5"_s), u"a>{d}"_s);
    EXPECT_EQ(formaDe(u"t.5 [t].5 1.2.3"_s), u"t.{i} [t].{i} {d}.{i}"_s);
}

TEST(ExtractorDeFormaTest, LiteralsComeInTheOrderOfTheText)
{
    ExtractorDeForma extractor;
    const QString texto = u"a = 'O''Donnell' or b = 12.5 or c = #03/15/2024 9:05:07# or d = 'llano' or e = 7"_s;
    ASSERT_TRUE(extractor.extrae(texto));
    const auto literales = extractor.literales();
    ASSERT_EQ(literales.size(), 5u);
    EXPECT_EQ(literales[0].texto, u"O'Donnell"_s);
    EXPECT_EQ(literales[1].numero, 12.5);
    EXPECT_EQ(literales[2].fecha, Fecha::deCalendario(2024, 3, 15, 9, 5, 7));
    EXPECT_EQ(literales[3].texto, u"llano"_s);
    EXPECT_EQ(literales[4].numero, 7);
}

TEST(ExtractorDeFormaTest, StatementsThatDifferOnlyInLiteralsHaveOneShapeAndOneHash)
{
    ExtractorDeForma uno;
    ExtractorDeForma otro;
    ASSERT_TRUE(uno.extrae(u"select * from t where a = 5 and b = 'x'"_s));
    ASSERT_TRUE(otro.extrae(u"select * from t where a = 123456 and b = 'O''Donnell'"_s));
    EXPECT_EQ(uno.forma(), otro.forma());
    EXPECT_EQ(uno.hash(), otro.hash());
    ASSERT_TRUE(otro.extrae(u"select * from t where a = 5.0 and b = 'x'"_s));
    EXPECT_NE(uno.forma(), otro.forma());
    EXPECT_NE(uno.hash(), otro.hash());
}

TEST(ExtractorDeFormaTest, HashesTellShapesOfAllLengthsApart)
{
    ExtractorDeForma extractor;
    std::vector<size_t> hashes;
    for (int largo = 0; largo < 200; ++largo) {
        ASSERT_TRUE(extractor.extrae(QString(largo, u'a')));
        hashes.push_back(extractor.hash());
    }
    std::ranges::sort(hashes);
    EXPECT_EQ(std::ranges::adjacent_find(hashes), hashes.end());
}

TEST(ExtractorDeFormaTest, AnEmptyTextHasAnEmptyShape)
{
    ExtractorDeForma extractor;
    ASSERT_TRUE(extractor.extrae({}));
    EXPECT_TRUE(extractor.forma().isEmpty());
    EXPECT_TRUE(extractor.literales().empty());
}

} // namespace
} // namespace kestrane::jet
