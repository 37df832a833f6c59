#include "platform/suite/windows/medida_recordada.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

TEST(MedidaRecordadaTest, ThereAndBackComesOutWhereItBegan)
{
    QObject dueno;
    const MedidaRecordada medida{dueno, "ancho"};
    EXPECT_EQ(medida.escalada(9, 1, 0.6), 5); // 5.4
    EXPECT_EQ(medida.escalada(5, 0.6, 1), 9);
}

TEST(MedidaRecordadaTest, RoundedValuesAreNotScaledOn)
{
    QObject dueno;
    const MedidaRecordada medida{dueno, "ancho"};
    EXPECT_EQ(medida.escalada(3, 1, 0.5), 2);   // 1.5
    EXPECT_EQ(medida.escalada(2, 0.5, 10), 30); // of the 3, not of the 2
}

TEST(MedidaRecordadaTest, AMeasureThatSomebodyElseChangedCountsAsItStands)
{
    QObject dueno;
    const MedidaRecordada medida{dueno, "ancho"};
    EXPECT_EQ(medida.escalada(10, 1, 2), 20);
    EXPECT_EQ(medida.escalada(50, 2, 4), 100);
    EXPECT_EQ(medida.escalada(100, 4, 1), 25);
}

TEST(MedidaRecordadaTest, WhatCameOfTheScalingIsNoChange)
{
    QObject dueno;
    const MedidaRecordada medida{dueno, "ancho"};
    EXPECT_EQ(medida.escalada(10, 1, 0.5), 5);
    medida.queda(8); // no room for less
    EXPECT_EQ(medida.escalada(8, 0.5, 1), 10);
}

TEST(MedidaRecordadaTest, EachMeasureOfAnObjectIsItsOwn)
{
    QObject dueno;
    const MedidaRecordada ancho{dueno, "ancho"};
    const MedidaRecordada alto{dueno, "alto"};
    EXPECT_EQ(ancho.escalada(10, 1, 2), 20);
    EXPECT_TRUE(ancho.seRecuerda());
    EXPECT_FALSE(alto.seRecuerda());
    EXPECT_EQ(alto.escalada(20, 1, 2), 40);
}

} // namespace
} // namespace kestrane
