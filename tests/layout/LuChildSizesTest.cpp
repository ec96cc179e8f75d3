// SPDX-License-Identifier: MIT
#include "layout/LuChildSizes.h"

#include <gtest/gtest.h>
#include <random>

namespace {

constexpr int UNLIMITED = LuSizes::UNLIMITED;

LuChildSizes makeRow(const std::vector<std::array<int, 3>>& children) {
    LuChildSizes sizes;
    sizes.setCount(static_cast<int>(children.size()));
    for (std::size_t i = 0; i < children.size(); ++i)
        sizes[static_cast<int>(i)] = {{children[i][0], 0}, {children[i][1], 0}, {children[i][2], 0}};
    return sizes;
}

std::vector<int> getWidths(const LuChildSizes& sizes) {
    std::vector<int> widths;
    for (int i = 0; i < sizes.getCount(); ++i)
        widths.push_back(sizes[i].size.x);
    return widths;
}

/// One pixel after the other, as the distribution is defined.
struct PixelByPixel {
    std::vector<std::array<int, 3>> children;
    std::size_t next = 0;

    void distribute(std::int64_t difference) {
        const int step = difference > 0 ? 1 : -1;
        std::size_t failures = 0;
        while (difference != 0 && failures < children.size()) {
            auto& [size, min, max] = children[next];
            ++failures;
            const std::int64_t value = std::int64_t{size} + step;
            if (value >= min && value <= max) {
                size = static_cast<int>(value);
                difference -= step;
                failures = 0;
            }
            next = next + 1 == children.size() ? 0 : next + 1;
        }
    }
};

TEST(LuChildSizes, roomForAll_isSharedEvenly) {
    LuChildSizes sizes = makeRow({{100, 0, 900}, {100, 0, 900}, {100, 0, 900}});
    sizes.distribute(0, 120);
    EXPECT_EQ(getWidths(sizes), (std::vector<int>{140, 140, 140}));
}

TEST(LuChildSizes, childThatIsFixed_leavesItsPartToTheOthers) {
    LuChildSizes sizes = makeRow({{100, 0, 900}, {100, 100, 100}, {100, 0, 900}});
    sizes.distribute(0, 120);
    EXPECT_EQ(getWidths(sizes), (std::vector<int>{160, 100, 160}));
}

TEST(LuChildSizes, allChildrenFixed_nothingIsHandedOut) {
    LuChildSizes sizes = makeRow({{100, 100, 100}, {50, 50, 50}});
    sizes.distribute(0, 1000);
    EXPECT_EQ(getWidths(sizes), (std::vector<int>{100, 50}));
}

TEST(LuChildSizes, tooLittleRoom_stopsAtTheMinima) {
    LuChildSizes sizes = makeRow({{100, 60, 900}, {100, 80, 900}});
    sizes.distribute(0, -1000);
    EXPECT_EQ(getWidths(sizes), (std::vector<int>{60, 80}));
}

TEST(LuChildSizes, onePixel_goesToTheChildWhoseTurnItIs) {
    LuChildSizes sizes = makeRow({{10, 0, 90}, {10, 0, 90}, {10, 0, 90}, {10, 0, 90}});
    sizes.distribute(0, 2);
    sizes.distribute(0, 1);
    EXPECT_EQ(getWidths(sizes), (std::vector<int>{11, 11, 11, 10}));
    sizes.distribute(0, 1);
    EXPECT_EQ(getWidths(sizes), (std::vector<int>{11, 11, 11, 11}));
}

TEST(LuChildSizes, hugeRoom_isHandedOutAtOnce) {
    LuChildSizes sizes = makeRow({{0, 0, UNLIMITED}, {0, 0, 7}});
    sizes.distribute(0, UNLIMITED);
    EXPECT_EQ(getWidths(sizes), (std::vector<int>{UNLIMITED - 7, 7}));
}

TEST(LuChildSizes, noChildren_nothingHappens) {
    LuChildSizes sizes;
    sizes.distribute(0, 100);
    sizes.distribute(1, -100);
    EXPECT_EQ(sizes.getCount(), 0);
}

TEST(LuChildSizes, anyDistribution_isThatOfOnePixelAfterTheOther) {
    std::mt19937 random(1);
    const auto number = [&random](int low, int high) {
        return std::uniform_int_distribution<int>(low, high)(random);
    };
    for (int round = 0; round < 500; ++round) {
        PixelByPixel expected;
        const int count = number(1, 8);
        for (int i = 0; i < count; ++i)
            expected.children.push_back({number(0, 60), number(0, 40), number(0, 90)});
        LuChildSizes sizes = makeRow(expected.children);
        for (int step = 0; step < 6; ++step) {
            const int difference = number(-200, 200);
            expected.distribute(difference);
            sizes.distribute(0, difference);
            std::vector<int> widths;
            for (const auto& child : expected.children)
                widths.push_back(child[0]);
            ASSERT_EQ(getWidths(sizes), widths) << "round " << round << ", step " << step;
        }
    }
}

TEST(LuChildSizes, largestSizes_saturateInTheSum) {
    LuChildSizes sizes = makeRow({{10, 5, UNLIMITED}, {10, 5, 30}});
    EXPECT_EQ(sizes.getTotal(0, 0, 0).maxSize.x, UNLIMITED);
    EXPECT_EQ(sizes.getTotal(0, 5, 7).maxSize.x, UNLIMITED);
}

TEST(LuChildSizes, additionPastTheLargestNumber_isLeftOut) {
    LuChildSizes sizes = makeRow({{10, 5, UNLIMITED - 10}, {10, 5, 30}});
    EXPECT_EQ(sizes.getTotal(0, 0, 0).maxSize.x, UNLIMITED - 10);
}

TEST(LuChildSizes, noChildren_needOnlyMarginAndHaveNoLimit) {
    const LuSizes total = LuChildSizes().getTotal(0, 5, -8);
    EXPECT_EQ(total.size, LvVec2i32(2, 10));
    EXPECT_EQ(total.minSize, LvVec2i32(2, 10));
    EXPECT_EQ(total.maxSize, LvVec2i32(UNLIMITED, UNLIMITED));
}

TEST(LuChildSizes, marginsAndGapsAtTheEndOfTheNumbers_saturate) {
    LuChildSizes sizes = makeRow({{UNLIMITED, UNLIMITED, UNLIMITED}, {UNLIMITED, UNLIMITED, UNLIMITED}});
    EXPECT_EQ(sizes.getTotal(0, UNLIMITED, std::int64_t{UNLIMITED} * 1000).size.x, UNLIMITED);
    EXPECT_EQ(sizes.getTotal(0, std::numeric_limits<int>::min(), -(std::int64_t{UNLIMITED} * 1000)).size.x,
              std::numeric_limits<int>::min());
}

} // namespace
