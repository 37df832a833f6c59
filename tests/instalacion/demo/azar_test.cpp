#include "instalacion/demo/azar.h"

#include <gtest/gtest.h>

namespace kestrane::demo::pruebas {
namespace {

TEST(AzarDeLaDemo, FollowsThePublishedSequenceOfItsGenerator)
{
    Azar azar{0};
    EXPECT_EQ(azar.siguiente(), 0xE220A8397B1DCDAFULL);
    EXPECT_EQ(azar.siguiente(), 0x6E789E6AA1B965F4ULL);
    EXPECT_EQ(azar.siguiente(), 0x06C45D188009454FULL);
}

TEST(AzarDeLaDemo, DrawsWithinItsBounds)
{
    Azar azar{7};
    for (int i = 0; i < 1000; ++i) {
        const int tirada = azar.entre(-2, 3);
        EXPECT_TRUE(-2 <= tirada && tirada <= 3);
        const double real = azar.real();
        EXPECT_TRUE(0 <= real && real < 1);
    }
}

TEST(AzarDeLaDemo, AWheelNeverStopsWhereItHasNoWeight)
{
    const Ruleta ruleta{{0, 3, 0, 1, 0}};
    Azar azar{1};
    int tres = 0;
    for (int i = 0; i < 4000; ++i) {
        const int lugar = ruleta.gira(azar);
        ASSERT_TRUE(lugar == 1 || lugar == 3);
        tres += lugar == 3 ? 1 : 0;
    }
    EXPECT_NEAR(tres, 1000, 120);
    EXPECT_TRUE(Ruleta({0, 0}).vacia());
}

TEST(AzarDeLaDemo, ACadenceHappensAsOftenAsItSays)
{
    Cadencia nunca{0};
    nunca.fuerza();
    Cadencia diez{10};
    Azar azar{3};
    int veces = 0;
    for (int i = 0; i < 10000; ++i) {
        EXPECT_FALSE(nunca.toca(azar));
        veces += diez.toca(azar) ? 1 : 0;
    }
    EXPECT_NEAR(veces, 100, 6);
    diez.fuerza();
    EXPECT_TRUE(diez.toca(azar));
}

} // namespace
} // namespace kestrane::demo::pruebas
