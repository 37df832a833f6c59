#include "platform/controls/reparto_tarjetas.h"

#include <gtest/gtest.h>

#include <numeric>

namespace kestrane {
namespace {

constexpr MedidasReparto Medidas{.anchoColumna = 100, .separacion = 10, .estira = 1.5};

/// A card of `botones` buttons 50 high, and a title of 30.
Tarjeta tarjeta(int botones)
{
    return {botones, [botones](int, int columnas) { return 30 + (botones + columnas - 1) / columnas * 50; }};
}

std::vector<SitioTarjeta> reparte(std::initializer_list<int> botones, QSize lugar)
{
    std::vector<Tarjeta> tarjetas;
    for (const int cuantos : botones)
        tarjetas.push_back(tarjeta(cuantos));
    return reparteTarjetas(tarjetas, lugar, Medidas);
}

bool seTocan(const std::vector<SitioTarjeta>& sitios)
{
    for (size_t i = 0; i < sitios.size(); ++i) {
        for (size_t j = i + 1; j < sitios.size(); ++j) {
            if (sitios[i].caja.intersects(sitios[j].caja))
                return true;
        }
    }
    return false;
}

TEST(RepartoTarjetasTest, NoCardsNeedNoPlace)
{
    EXPECT_TRUE(reparte({}, {800, 600}).empty());
}

TEST(RepartoTarjetasTest, AnEmptyCardGetsNoPlaceAndTheOthersCloseUp)
{
    const auto sitios = reparte({0, 4}, {100, 230});
    EXPECT_EQ(sitios[0].columnas, 0);
    EXPECT_TRUE(sitios[0].caja.isEmpty());
    EXPECT_EQ(sitios[1].caja, QRect(0, 0, 100, 230));
}

TEST(RepartoTarjetasTest, WhereOneColumnFitsCardsStandOneBelowTheOther)
{
    const auto sitios = reparte({1, 2}, {150, 220}); // 80 + 10 + 130
    EXPECT_EQ(sitios[0].caja, QRect(0, 0, 150, 80));
    EXPECT_EQ(sitios[1].caja, QRect(0, 90, 150, 130));
}

TEST(RepartoTarjetasTest, TwoColumnsPartAWideEnoughPlace)
{
    const auto sitios = reparte({4, 4}, {310, 230});
    EXPECT_EQ(sitios[0].caja, QRect(0, 0, 150, 230));
    EXPECT_EQ(sitios[1].caja, QRect(160, 0, 150, 230));
}

TEST(RepartoTarjetasTest, ACardWithManyButtonsTakesTwoColumnsWhereOneWouldRunOverTheEdge)
{
    const auto sitios = reparte({12}, {210, 340});
    EXPECT_EQ(sitios[0].columnas, 2);
    EXPECT_EQ(sitios[0].caja.width(), 210);
}

TEST(RepartoTarjetasTest, CardsAreStretchedUntilNoGapShows)
{
    const auto sitios = reparte({4, 3}, {310, 230});
    EXPECT_EQ(sitios[0].caja.bottom(), sitios[1].caja.bottom());
}

TEST(RepartoTarjetasTest, StretchingHasItsMeasure)
{
    const auto sitios = reparte({2}, {100, 2000});
    EXPECT_EQ(sitios[0].caja.height(), 195); // one and a half times 130
}

TEST(RepartoTarjetasTest, WhatDoesNotFitStandsBelowTheEdge)
{
    const auto sitios = reparte({6, 6}, {100, 200});
    EXPECT_EQ(sitios[1].caja.top(), 340);
    EXPECT_EQ(sitios[1].caja.height(), 330);
}

TEST(RepartoTarjetasTest, CardsNeverOverlapNorLeaveTheWidthWhateverThePlace)
{
    for (int ancho = 90; ancho <= 2000; ancho += 95) {
        const auto sitios = reparte({5, 14, 0, 11, 7, 7, 9, 3, 2}, {ancho, 640});
        EXPECT_FALSE(seTocan(sitios)) << ancho;
        for (const SitioTarjeta& sitio : sitios)
            EXPECT_LE(sitio.caja.right(), ancho) << ancho;
    }
}

TEST(RepartoTarjetasTest, NoCardIsLowerThanItNeedsToBe)
{
    const std::vector<int> botones{5, 14, 11, 7, 7, 9, 3, 2};
    const auto sitios = reparte({5, 14, 11, 7, 7, 9, 3, 2}, {1000, 640});
    for (size_t i = 0; i < botones.size(); ++i)
        EXPECT_GE(sitios[i].caja.height(), tarjeta(botones[i]).alto(0, sitios[i].columnas)) << i;
}

} // namespace
} // namespace kestrane
