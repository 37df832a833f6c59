#include "platform/database/sqlite/sqlite_fecha.h"

#include <gtest/gtest.h>

#include <string>

namespace kestrane::database::sqlite {
namespace {

std::string escrita(Fecha fecha)
{
    char texto[AnchoFecha];
    return {texto, static_cast<size_t>(escribeFecha(fecha, texto))};
}

TEST(SqliteFecha, TextsThatAreNoDateAreNotRead)
{
    for (const char* const texto : {"", "hoy", "2024-02-30", "2024-13-01", "2024-03", "2024-03-15 25:00", "2024-03-15x",
                                    "15-03-2024x", "9:60", "9", "24:00", "2024-03-15 9", "-5"})
        EXPECT_EQ(leeFecha(std::string_view{texto}), std::nullopt) << texto;
}

TEST(SqliteFecha, ADateHasOneSpelling)
{
    EXPECT_EQ(escrita(*Fecha::deCalendario(2024, 3, 5)), "2024-03-05");
    EXPECT_EQ(escrita(*Fecha::deCalendario(2024, 3, 5, 9, 5, 7)), "2024-03-05 09:05:07");
    EXPECT_EQ(escrita(Fecha::deSerie(0, 9 * 3600)), "1899-12-30 09:00:00");
    EXPECT_EQ(escrita(Fecha{}), "1899-12-30");
    EXPECT_EQ(escrita(*Fecha::deCalendario(100, 1, 1)), "0100-01-01");
}

TEST(SqliteFecha, OtherSpellingsAreRead)
{
    const Fecha dia = *Fecha::deCalendario(2024, 3, 5);
    const Fecha manana = *Fecha::deCalendario(2024, 3, 5, 9, 5);
    for (const char* const texto :
         {"2024-03-05", "2024-3-5", "2024/03/05", " 2024-03-05 ", "2024-03-05 00:00:00", "2024-03-05T00:00"})
        EXPECT_EQ(leeFecha(std::string_view{texto}), dia) << texto;
    for (const char* const texto : {"2024-03-05 09:05:00", "2024-03-05 9:05", "2024-03-05T09:05:00.000", "2024-03-05T09:05:00Z"})
        EXPECT_EQ(leeFecha(std::string_view{texto}), manana) << texto;
}

TEST(SqliteFecha, ATimeAloneStandsOnTheZeroDay)
{
    EXPECT_EQ(leeFecha(std::string_view{"9:05"}), Fecha::deSerie(0, 9 * 3600 + 5 * 60));
    EXPECT_EQ(leeFecha(std::string_view{"22:30:15"}), Fecha::deSerie(0, 22 * 3600 + 30 * 60 + 15));
    EXPECT_EQ(leeFecha(std::string_view{"1899-12-30 09:05:00"}), Fecha::deSerie(0, 9 * 3600 + 5 * 60));
}

TEST(SqliteFecha, ANumberIsDaysSinceTheZeroDay)
{
    EXPECT_EQ(leeFecha(45366.0), *Fecha::deCalendario(2024, 3, 15));
    EXPECT_EQ(leeFecha(45366.75), *Fecha::deCalendario(2024, 3, 15, 18));
    EXPECT_EQ(leeFecha(1e9), std::nullopt);
}

} // namespace
} // namespace kestrane::database::sqlite
