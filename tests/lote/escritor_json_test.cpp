#include "lote/escritor_json.h"

#include <gtest/gtest.h>

#include <limits>

namespace kestrane::lote {
namespace {

using namespace Qt::StringLiterals;

std::string jsonDe(const Valor& valor)
{
    QByteArray destino;
    anadeValorJson(destino, valor);
    return destino.toStdString();
}

std::string jsonDeTexto(QStringView texto)
{
    return jsonDe(Valor{texto});
}

TEST(EscritorJson, NullAndFlags)
{
    EXPECT_EQ(jsonDe(Valor{}), "null");
    EXPECT_EQ(jsonDe(Valor{true}), "true");
    EXPECT_EQ(jsonDe(Valor{false}), "false");
}

TEST(EscritorJson, NumbersAreTheShortestTextThatReadsBackTheSame)
{
    EXPECT_EQ(jsonDe(Valor{qint16{-32768}}), "-32768");
    EXPECT_EQ(jsonDe(Valor{qint32{2147483647}}), "2147483647");
    EXPECT_EQ(jsonDe(Valor{12.5}), "12.5");
    EXPECT_EQ(jsonDe(Valor{0.1 + 0.2}), "0.30000000000000004");
    EXPECT_EQ(jsonDe(Valor{100.0}), "100");
    EXPECT_EQ(jsonDe(Valor{1e300}), "1e+300");
}

TEST(EscritorJson, WhatIsNoNumberIsNull)
{
    EXPECT_EQ(jsonDe(Valor{std::numeric_limits<double>::infinity()}), "null");
    EXPECT_EQ(jsonDe(Valor{std::numeric_limits<double>::quiet_NaN()}), "null");
}

TEST(EscritorJson, DatesCarryTheirTime)
{
    EXPECT_EQ(jsonDe(Valor{*Fecha::deCalendario(2024, 3, 5)}), R"("2024-03-05T00:00:00")");
    EXPECT_EQ(jsonDe(Valor{Fecha::deSerie(0, 9 * 3600 + 5 * 60 + 7)}), R"("1899-12-30T09:05:07")");
    EXPECT_EQ(jsonDe(Valor{*Fecha::deCalendario(100, 1, 1)}), R"("0100-01-01T00:00:00")");
}

TEST(EscritorJson, TextsKeepTheirLettersAndEscapeTheRest)
{
    EXPECT_EQ(jsonDeTexto(u"Peñíscola €"), "\"Peñíscola €\"");
    EXPECT_EQ(jsonDeTexto(u""), "\"\"");
    EXPECT_EQ(jsonDeTexto(u"a\"b\\c"), R"("a\"b\\c")");
    EXPECT_EQ(jsonDeTexto(u"a\r\n\tb"), R"("a\r\n\tb")");
    EXPECT_EQ(jsonDeTexto(u"\u0001\u001f"), R"("\u0001\u001f")");
}

} // namespace
} // namespace kestrane::lote
