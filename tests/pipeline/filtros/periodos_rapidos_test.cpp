#include "pipeline/filtros/periodos_rapidos.h"

#include <gtest/gtest.h>

#include <map>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

Fecha dia(int anio, int mes, int dia)
{
    return *Fecha::deCalendario(anio, mes, dia);
}

Periodo periodo(const QString& leyenda, Fecha hoy)
{
    for (const PeriodoRapido& rapido : periodosRapidos()) {
        if (rapido.leyenda == leyenda)
            return rapido.en(hoy);
    }
    ADD_FAILURE() << leyenda.toStdString();
    return {};
}

TEST(PeriodosRapidosTest, TodayAndYesterdayAreOneDay)
{
    EXPECT_EQ(periodo(u"Hoy"_s, dia(2024, 3, 1)), (Periodo{dia(2024, 3, 1), dia(2024, 3, 1)}));
    EXPECT_EQ(periodo(u"Ayer"_s, dia(2024, 3, 1)), (Periodo{dia(2024, 2, 29), dia(2024, 2, 29)}));
}

TEST(PeriodosRapidosTest, ThisWeekBeginsOnMonday)
{
    EXPECT_EQ(periodo(u"Esta semana"_s, dia(2024, 3, 15)), (Periodo{dia(2024, 3, 11), dia(2024, 3, 15)})); // a Friday
    EXPECT_EQ(periodo(u"Esta semana"_s, dia(2024, 3, 11)), (Periodo{dia(2024, 3, 11), dia(2024, 3, 11)}));
    EXPECT_EQ(periodo(u"Esta semana"_s, dia(2024, 3, 17)), (Periodo{dia(2024, 3, 11), dia(2024, 3, 17)})); // a Sunday
}

TEST(PeriodosRapidosTest, ThisMonthAndThisYearEndToday)
{
    EXPECT_EQ(periodo(u"Este mes"_s, dia(2024, 3, 15)), (Periodo{dia(2024, 3, 1), dia(2024, 3, 15)}));
    EXPECT_EQ(periodo(u"Este año"_s, dia(2024, 3, 15)), (Periodo{dia(2024, 1, 1), dia(2024, 3, 15)}));
}

TEST(PeriodosRapidosTest, TheMonthBeforeIsWhole)
{
    EXPECT_EQ(periodo(u"Mes anterior"_s, dia(2024, 3, 31)), (Periodo{dia(2024, 2, 1), dia(2024, 2, 29)}));
    EXPECT_EQ(periodo(u"Mes anterior"_s, dia(2024, 1, 5)), (Periodo{dia(2023, 12, 1), dia(2023, 12, 31)}));
}

} // namespace
} // namespace kestrane
