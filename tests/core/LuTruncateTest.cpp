// SPDX-License-Identifier: MIT
#include "core/LuTruncate.h"

#include <gtest/gtest.h>

namespace {

constexpr int LOWEST = std::numeric_limits<int>::min();
constexpr int HIGHEST = std::numeric_limits<int>::max();

TEST(LuTruncateTest, fraction_isCutOffTowardsZero) {
    EXPECT_EQ(luTruncate(-1.9), -1);
    EXPECT_EQ(luTruncate(1.9), 1);
}

TEST(LuTruncateTest, numberThatNoIntHolds_becomesTheNearest) {
    EXPECT_EQ(luTruncate(1e30), HIGHEST);
    EXPECT_EQ(luTruncate(-1e30), LOWEST);
    EXPECT_EQ(luTruncate(2147483647.5), HIGHEST);
}

TEST(LuTruncateTest, notANumber_becomes0) {
    EXPECT_EQ(luTruncate(std::numeric_limits<double>::quiet_NaN()), 0);
}

} // namespace
