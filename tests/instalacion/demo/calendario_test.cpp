#include "instalacion/demo/calendario.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kestrane::demo::pruebas {
namespace {

Fecha dia(int anio, int mes, int diaDelMes)
{
    return *Fecha::deCalendario(anio, mes, diaDelMes);
}

TEST(CalendarioDeLaDemo, KnowsWeekdaysAndEaster)
{
    EXPECT_EQ(diaSemana(dia(2024, 6, 14)), 5);
    EXPECT_EQ(diaSemana(dia(1899, 12, 30)), 6);
    EXPECT_EQ(diaSemana(dia(2023, 1, 1)), 7);
    EXPECT_EQ(domingoDePascua(2023), dia(2023, 4, 9));
    EXPECT_EQ(domingoDePascua(2024), dia(2024, 3, 31));
    EXPECT_EQ(domingoDePascua(2025), dia(2025, 4, 20));
}

TEST(CalendarioDeLaDemo, ClosesOnSundaysHolidaysAndInAugust)
{
    const Parametros parametros;
    const Calendario calendario{parametros, sabor(TipoTienda::Peluqueria)};
    EXPECT_TRUE(calendario.abre(dia(2024, 5, 15), 0));
    EXPECT_FALSE(calendario.abre(dia(2024, 5, 12), 0));  // a Sunday
    EXPECT_FALSE(calendario.abre(dia(2023, 12, 25), 0)); // Christmas
    EXPECT_FALSE(calendario.abre(dia(2024, 3, 29), 0));  // Good Friday
    EXPECT_FALSE(calendario.abre(dia(2023, 8, 9), 0));
    EXPECT_TRUE(calendario.abre(dia(2023, 8, 9), 1)); // the other store takes its turn later
    EXPECT_FALSE(calendario.abre(dia(2023, 8, 21), 1));
    EXPECT_EQ(calendario.proximoAbierto(dia(2023, 12, 24), 0), dia(2023, 12, 26));
}

TEST(CalendarioDeLaDemo, TodayIsOpenEvenOnASunday)
{
    const Parametros parametros{.hoy = dia(2024, 6, 16)};
    const Calendario calendario{parametros, sabor(TipoTienda::Peluqueria)};
    EXPECT_TRUE(calendario.abre(dia(2024, 6, 16), 0));
    EXPECT_EQ(calendario.dias().back().fecha, dia(2024, 6, 16));
    Azar azar{1};
    EXPECT_EQ(calendario.horas(dia(2024, 6, 16), 9, azar).size(), 9U);
}

TEST(CalendarioDeLaDemo, AMonthIsThirtyOneDaysBehindAThinHistory)
{
    const Parametros parametros{.tamano = Tamano::Mes};
    const Calendario calendario{parametros, sabor(TipoTienda::Tpv)};
    const auto enteros =
        std::ranges::count_if(calendario.dias(), [](const DiaNegocio& uno) { return uno.detalle == Detalle::Entero; });
    EXPECT_EQ(enteros, 31);
    EXPECT_LT(calendario.dias().front().fecha, dia(2023, 6, 14));
    EXPECT_TRUE(std::ranges::is_sorted(calendario.dias(), {}, &DiaNegocio::fecha));
}

TEST(CalendarioDeLaDemo, HoursRiseWithinTheOpeningTimes)
{
    const Parametros parametros;
    const Calendario calendario{parametros, sabor(TipoTienda::Peluqueria)};
    Azar azar{5};
    const auto horas = calendario.horas(dia(2024, 6, 12), 500, azar);
    EXPECT_TRUE(std::ranges::is_sorted(horas));
    for (const int segundo : horas) {
        const int minuto = segundo / 60;
        const bool manana = 9 * 60 + 30 <= minuto && minuto < 14 * 60 + 6;
        const bool tarde = 16 * 60 + 30 <= minuto && minuto < 20 * 60 + 36;
        EXPECT_TRUE(manana || tarde) << minuto;
    }
}

} // namespace
} // namespace kestrane::demo::pruebas
