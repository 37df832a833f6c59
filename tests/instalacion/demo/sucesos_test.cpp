#include "instalacion/demo/sucesos.h"

#include <gtest/gtest.h>

namespace kestrane::demo::pruebas {
namespace {

TEST(SucesosDeLaDemo, WhatATradeDoesNotKnowNeverHappens)
{
    Sucesos sucesos{Oficio::Salon};
    Azar azar{1};
    sucesos.fuerza(Suceso::Arreglo);
    sucesos.fuerza(Suceso::Albaran);
    for (int i = 0; i < 2000; ++i) {
        EXPECT_FALSE(sucesos.toca(Suceso::Arreglo, azar));
        EXPECT_FALSE(sucesos.toca(Suceso::Albaran, azar));
    }
}

TEST(SucesosDeLaDemo, WhatCouldNotHappenIsStillDue)
{
    Sucesos sucesos{Oficio::TallaColor};
    Azar azar{1};
    sucesos.fuerza(Suceso::Devolucion);
    ASSERT_TRUE(sucesos.toca(Suceso::Devolucion, azar));
    sucesos.aplaza(Suceso::Devolucion);
    EXPECT_TRUE(sucesos.toca(Suceso::Devolucion, azar));
}

} // namespace
} // namespace kestrane::demo::pruebas
