#include "pipeline/filtros/utilidades.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using Utilidades::ComprobarFechas;

Fecha dia(int dia, int hora = 0)
{
    return *Fecha::deCalendario(2024, 3, dia, hora);
}

TEST(UtilidadesTest, APeriodOfOneDayPasses)
{
    EXPECT_EQ(ComprobarFechas(dia(15), dia(15)), QString{});
}

TEST(UtilidadesTest, ALaterEndPasses)
{
    EXPECT_EQ(ComprobarFechas(dia(15), dia(16)), QString{});
}

TEST(UtilidadesTest, AnEarlierEndIsTold)
{
    EXPECT_EQ(ComprobarFechas(dia(15), dia(14)), u"La fecha hasta seleccionada es anterior a la fecha desde."_s);
}

TEST(UtilidadesTest, TheTimeOfDayPlaysNoPart)
{
    EXPECT_EQ(ComprobarFechas(dia(15, 20), dia(15, 9)), QString{});
    EXPECT_NE(ComprobarFechas(dia(15, 0), dia(14, 23)), QString{});
}

} // namespace
} // namespace kestrane
