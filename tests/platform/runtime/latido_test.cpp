#include "platform/runtime/latido.h"

#include <gtest/gtest.h>

#include <atomic>
#include <semaphore>

namespace kestrane {
namespace {

using namespace std::chrono_literals;

TEST(LatidoTest, WhatIsToComeInALongTimeDoesNotHoldUpTheEnd)
{
    std::atomic<int> veces = 0;
    {
        const Latido latido{24h, [&] { ++veces; }};
    }
    EXPECT_EQ(veces, 0);
}

TEST(LatidoTest, ItBeatsAgainAndAgain)
{
    std::counting_semaphore<> latidos{0};
    const Latido latido{1ms, [&] { latidos.release(); }};
    EXPECT_TRUE(latidos.try_acquire_for(60s));
    EXPECT_TRUE(latidos.try_acquire_for(60s));
}

} // namespace
} // namespace kestrane
