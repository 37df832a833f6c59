#include "platform/controls/fechas_de_ventana.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

TEST(FechasDeVentanaTest, ADayGoesToAWidgetAndComesBackWithoutItsTime)
{
    const Fecha tarde = *Fecha::deCalendario(2024, 2, 29, 18, 30);
    EXPECT_EQ(diaDe(tarde), QDate(2024, 2, 29));
    EXPECT_EQ(fechaDe(QDate{2024, 2, 29}), *Fecha::deCalendario(2024, 2, 29));
}

TEST(FechasDeVentanaTest, TheZeroDateIsADayLikeOthers)
{
    EXPECT_EQ(diaDe(Fecha{}), QDate(1899, 12, 30));
    EXPECT_EQ(fechaDe(QDate{1899, 12, 30}), Fecha{});
}

TEST(FechasDeVentanaTest, WhatIsNoDayIsTheZeroDate)
{
    EXPECT_EQ(fechaDe(QDate{}), Fecha{});
    EXPECT_EQ(fechaDe(QDate{12000, 1, 1}), Fecha{});
}

} // namespace
} // namespace kestrane
