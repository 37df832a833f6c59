#include "instalacion/demo/nombres.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kestrane::demo::pruebas {
namespace {

TEST(ListasDeLaDemo, StoresEndLikeOthers)
{
    const auto nombres = nombresDeTienda();
    EXPECT_EQ(nombres.size(), 50U);
    const auto acaban = [&](QStringView fin) {
        return std::ranges::count_if(nombres, [&](QStringView uno) { return uno.endsWith(fin); });
    };
    EXPECT_EQ(acaban(u"Centro"), 2);
    EXPECT_EQ(acaban(u"Norte"), 3);
    EXPECT_EQ(nombres[0], u"Centro");
}

} // namespace
} // namespace kestrane::demo::pruebas
