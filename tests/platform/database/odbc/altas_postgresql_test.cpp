#include "platform/database/odbc/altas_postgresql.h"

#include <gtest/gtest.h>

namespace kestrane::database::odbc {
namespace {

using namespace Qt::StringLiterals;
using jet::TipoColumna;

/// The array that holds these values, in UTF-8 and without the mark at its end.
std::string lista(TipoColumna tipo, const std::vector<Valor>& valores)
{
    AlmacenFilas filas{1};
    for (const Valor& valor : valores) {
        filas.empiezaFila();
        filas.ponValor(valor);
        filas.terminaFila();
    }
    BloqueBytes texto;
    while (filas.siguiente())
        anadeElemento(texto, filas.celda(0), tipo);
    return {texto.datos(), static_cast<size_t>(texto.tamano())};
}

TEST(AltasPostgreSqlElemento, NumbersAreWrittenToTheLastBit)
{
    EXPECT_EQ(lista(TipoColumna::Entero32, {Valor{-2147483647}, Valor{0}, Valor{}}), "{-2147483647,0,NULL");
    EXPECT_EQ(lista(TipoColumna::Entero16, {Valor{qint16{7}}}), "{7");
    EXPECT_EQ(lista(TipoColumna::SiNo, {Valor{true}, Valor{false}}), "{-1,0");
    EXPECT_EQ(lista(TipoColumna::Doble, {Valor{0.1}, Valor{-12.5}, Valor{1e300}, Valor{0.1 + 0.2}}),
              "{0.1,-12.5,1e+300,0.30000000000000004");
}

TEST(AltasPostgreSqlElemento, DatesHaveAllTheirDigits)
{
    EXPECT_EQ(
        lista(TipoColumna::FechaHora, {Valor{*Fecha::deCalendario(2024, 3, 5)}, Valor{*Fecha::deCalendario(1899, 12, 30, 9, 5, 1)},
                                       Valor{*Fecha::deCalendario(100, 1, 1)}}),
        "{\"2024-03-05 00:00:00\",\"1899-12-30 09:05:01\",\"0100-01-01 00:00:00\"");
}

TEST(AltasPostgreSqlElemento, TextsAreQuotedAndTheirMarksEscaped)
{
    EXPECT_EQ(lista(TipoColumna::Texto, {Valor{u""_s}, Valor{u"NULL"_s}, Valor{}, Valor{u"{a,b}"_s}}),
              "{\"\",\"NULL\",NULL,\"{a,b}\"");
    EXPECT_EQ(lista(TipoColumna::Texto, {Valor{u"d\"q\\b"_s}}), "{\"d\\\"q\\\\b\"");
    EXPECT_EQ(lista(TipoColumna::Memo, {Valor{u"ñ\n😀"_s}}), "{\"ñ\n😀\"");
}

} // namespace
} // namespace kestrane::database::odbc
