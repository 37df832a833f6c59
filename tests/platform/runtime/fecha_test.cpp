#include "platform/runtime/fecha.h"

#include "platform/runtime/soporte.h"

#include <QDate>

namespace kestrane {
namespace {

using prueba::dia;
using prueba::horaSola;

TEST(Fecha, DiasYHorasQueNoExisten)
{
    EXPECT_FALSE(Fecha::deCalendario(2023, 2, 29));
    EXPECT_FALSE(Fecha::deCalendario(1900, 2, 29));
    EXPECT_FALSE(Fecha::deCalendario(2100, 2, 29));
    EXPECT_FALSE(Fecha::deCalendario(2024, 2, 30));
    EXPECT_FALSE(Fecha::deCalendario(2024, 4, 31));
    EXPECT_FALSE(Fecha::deCalendario(2024, 1, 32));
    EXPECT_FALSE(Fecha::deCalendario(2024, 1, 0));
    EXPECT_FALSE(Fecha::deCalendario(2024, 0, 1));
    EXPECT_FALSE(Fecha::deCalendario(2024, 13, 1));
    EXPECT_FALSE(Fecha::deCalendario(99, 12, 31));
    EXPECT_FALSE(Fecha::deCalendario(10000, 1, 1));
    EXPECT_FALSE(Fecha::deCalendario(-2024, 1, 1));
    EXPECT_FALSE(Fecha::deCalendario(2024, 1, 1, 24, 0, 0));
    EXPECT_FALSE(Fecha::deCalendario(2024, 1, 1, 0, 60, 0));
    EXPECT_FALSE(Fecha::deCalendario(2024, 1, 1, 0, 0, 60));
    EXPECT_FALSE(Fecha::deCalendario(2024, 1, 1, -1, 0, 0));
    EXPECT_FALSE(Fecha::deCalendario(2024, 1, 1, 0, -1, 0));
    EXPECT_FALSE(Fecha::deCalendario(2024, 1, 1, 0, 0, -1));
}

TEST(Fecha, SoloLosBisiestosTienen29DeFebrero)
{
    EXPECT_TRUE(Fecha::deCalendario(2024, 2, 29));
    EXPECT_TRUE(Fecha::deCalendario(2000, 2, 29));
    EXPECT_EQ(dia(2024, 2, 28).masDias(1), dia(2024, 2, 29));
    EXPECT_EQ(dia(2023, 2, 28).masDias(1), dia(2023, 3, 1));
    EXPECT_EQ(dia(1900, 2, 28).masDias(1), dia(1900, 3, 1));
    EXPECT_EQ(dia(2000, 2, 29).masDias(1), dia(2000, 3, 1));
}

TEST(Fecha, LosDiasSeCuentanDesdeEl30DeDiciembreDe1899)
{
    EXPECT_EQ(Fecha{}, dia(1899, 12, 30));
    EXPECT_EQ(dia(1899, 12, 30).diaDeSerie(), 0);
    EXPECT_EQ(dia(1899, 12, 31).diaDeSerie(), 1);
    EXPECT_EQ(dia(1900, 1, 1).diaDeSerie(), 2);
    EXPECT_EQ(dia(1899, 12, 29).diaDeSerie(), -1);
    EXPECT_EQ(dia(1900, 3, 1).diaDeSerie(), 61);
    EXPECT_EQ(dia(1970, 1, 1).diaDeSerie(), 25569);
    EXPECT_EQ(dia(2000, 1, 1).diaDeSerie(), 36526);
    EXPECT_EQ(dia(2024, 3, 15).diaDeSerie(), 45366);
    EXPECT_EQ(dia(100, 1, 1).diaDeSerie(), -657434);
    EXPECT_EQ(dia(9999, 12, 31).diaDeSerie(), 2958465);
}

TEST(Fecha, CadaDiaDelCalendarioVuelveASerElMismo)
{
    for (qint32 serie = Fecha::PrimerDiaDeSerie; serie <= Fecha::UltimoDiaDeSerie; ++serie) {
        const auto [anio, mes, diaDelMes] = Fecha::deSerie(serie, 0).calendario();
        ASSERT_EQ(dia(anio, mes, diaDelMes).diaDeSerie(), serie);
    }
}

TEST(Fecha, ElCalendarioEsElGregorianoTambienAntesDe1582)
{
    const QDate cero{1899, 12, 30};
    for (qint32 serie = Fecha::PrimerDiaDeSerie; serie <= Fecha::UltimoDiaDeSerie; serie += 97) {
        const QDate esperado = cero.addDays(serie);
        ASSERT_EQ(Fecha::deSerie(serie, 0).calendario(), (Fecha::Calendario{esperado.year(), esperado.month(), esperado.day()}))
            << serie;
    }
}

TEST(Fecha, PartesDeUnDiaConHora)
{
    const Fecha fecha = dia(2024, 3, 5, 9, 5, 7);
    EXPECT_EQ(fecha.anio(), 2024);
    EXPECT_EQ(fecha.mes(), 3);
    EXPECT_EQ(fecha.dia(), 5);
    EXPECT_EQ(fecha.hora(), 9);
    EXPECT_EQ(fecha.minuto(), 5);
    EXPECT_EQ(fecha.segundo(), 7);
    EXPECT_EQ(fecha.segundoDelDia(), 32707);
    EXPECT_EQ(dia(2024, 3, 5, 23, 59, 59).segundoDelDia(), 86399);
}

TEST(Fecha, DiaCeroYMedianoche)
{
    EXPECT_TRUE(Fecha{}.esDiaCero());
    EXPECT_TRUE(Fecha{}.esMedianoche());
    EXPECT_TRUE(horaSola(9, 5, 0).esDiaCero());
    EXPECT_FALSE(horaSola(9, 5, 0).esMedianoche());
    EXPECT_FALSE(dia(2024, 3, 5).esDiaCero());
    EXPECT_EQ(dia(2024, 3, 5, 9, 5, 7).sinHora(), dia(2024, 3, 5));
}

TEST(Fecha, MasDiasConservaLaHora)
{
    EXPECT_EQ(dia(2024, 12, 31, 23, 0, 0).masDias(1), dia(2025, 1, 1, 23, 0, 0));
    EXPECT_EQ(dia(2024, 3, 1).masDias(-1), dia(2024, 2, 29));
    EXPECT_EQ(dia(2024, 3, 15).masDias(-365), dia(2023, 3, 16));
}

TEST(Fecha, SeOrdenaPorDiaYDespuesPorHora)
{
    EXPECT_LT(dia(1899, 12, 29, 23, 59, 59), Fecha{});
    EXPECT_LT(dia(2024, 3, 5, 23, 0, 0), dia(2024, 3, 6));
    EXPECT_LT(dia(2024, 3, 5, 9, 0, 0), dia(2024, 3, 5, 9, 0, 1));
    EXPECT_EQ(sizeof(Fecha), 8U);
}

} // namespace
} // namespace kestrane
