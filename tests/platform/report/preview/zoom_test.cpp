#include "platform/report/preview/zoom.h"

#include <gtest/gtest.h>

namespace kestrane::report {
namespace {

TEST(Zoom, GoesUpAndDownTheUsualSteps)
{
    EXPECT_EQ(zoomSiguiente(100), 110);
    EXPECT_EQ(zoomSiguiente(87.3), 90);
    EXPECT_EQ(zoomAnterior(100), 90);
    EXPECT_EQ(zoomAnterior(87.3), 75);
}

TEST(Zoom, AStepThatIsNearlyReachedIsNotTakenAgain)
{
    EXPECT_EQ(zoomSiguiente(99.8), 110);
    EXPECT_EQ(zoomAnterior(100.2), 90);
}

TEST(Zoom, StaysWithinItsEnds)
{
    EXPECT_EQ(zoomSiguiente(500), 500);
    EXPECT_EQ(zoomAnterior(10), 10);
    EXPECT_EQ(zoomAcotado(3), 10);
    EXPECT_EQ(zoomAcotado(5000), 500);
    EXPECT_EQ(zoomAcotado(87.3), 87.3);
}

} // namespace
} // namespace kestrane::report
