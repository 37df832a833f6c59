#include "run_context/array_panel.h"

#include "platform/runtime/soporte.h"

namespace kestrane {
namespace {

using prueba::numeroDeError;
using namespace Qt::StringLiterals;

TEST(ArrayPanel, UnallocatedItHasNeitherBoundsNorElements)
{
    ArrayPanel panel;
    EXPECT_FALSE(panel.reservado());
    EXPECT_EQ(numeroDeError([&] { return panel.limiteSuperior(); }), 9);
    EXPECT_EQ(numeroDeError([&] { return panel[0]; }), 9);
    EXPECT_EQ(numeroDeError([&] { return std::as_const(panel)[0]; }), 9);
}

TEST(ArrayPanel, PastItsBoundsItIsErrorNine)
{
    ArrayPanel panel;
    panel.reserva(2);
    EXPECT_EQ(numeroDeError([&] { return panel[-1]; }), 9);
    EXPECT_EQ(numeroDeError([&] { return panel[3]; }), 9);
    EXPECT_EQ(numeroDeError([&] { return std::as_const(panel)[3]; }), 9);
    EXPECT_EQ(numeroDeError([&] { return panel[2]; }), 0);
}

TEST(ArrayPanel, TheBoundsAreZeroToTheUpperOneAndBothCount)
{
    ArrayPanel panel;
    panel.reserva(0);
    EXPECT_TRUE(panel.reservado());
    EXPECT_EQ(panel.limiteSuperior(), 0);
    panel.reserva(4);
    EXPECT_EQ(panel.limiteSuperior(), 4);
}

TEST(ArrayPanel, ElementsAreBlankUntilTheyAreFilledAndBlankAgainWhenAllocatedAnew)
{
    ArrayPanel panel;
    panel.reserva(1);
    EXPECT_EQ(panel[1], ElementoPanel{});
    panel[1].Nombre = u"Centro"_s;
    EXPECT_EQ(std::as_const(panel)[1].Nombre, u"Centro"_s);
    panel.reserva(1);
    EXPECT_EQ(panel[1], ElementoPanel{});
}

} // namespace
} // namespace kestrane
