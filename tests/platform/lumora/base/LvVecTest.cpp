// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LvVec.h"

#include <gtest/gtest.h>

namespace {

constexpr int NO_LIMIT = 2147483647;
constexpr int LOWEST = -NO_LIMIT - 1;
constexpr float PI = 3.14159265F;

TEST(LvVec2i32, arithmetic_isByComponent) {
    LvVec2i32 size(3, 4);
    size += LvVec2i32(10, 20);
    EXPECT_EQ(size, LvVec2i32(13, 24));
    EXPECT_EQ(LvVec2i32(1, 2) + LvVec2i32(3, 5), LvVec2i32(4, 7));
    EXPECT_EQ(LvVec2i32(1, 2) - LvVec2i32(3, 5), LvVec2i32(-2, -3));
    EXPECT_NE(LvVec2i32(1, 2), LvVec2i32(2, 1));
    EXPECT_EQ(LvVec2i32(), LvVec2i32(0, 0));
}

TEST(LvVec2i32, products_areTruncated) {
    LvVec2i32 size(5, -5);
    size *= 0.5;
    EXPECT_EQ(size, LvVec2i32(2, -2));
    size *= 3;
    EXPECT_EQ(size, LvVec2i32(6, -6));
}

TEST(LvVec2i32, results_stopAtTheLimitsOfInt) {
    EXPECT_EQ(LvVec2i32(NO_LIMIT, LOWEST) + LvVec2i32(6, -6), LvVec2i32(NO_LIMIT, LOWEST));
    EXPECT_EQ(LvVec2i32(NO_LIMIT, LOWEST) - LvVec2i32(-1, 1), LvVec2i32(NO_LIMIT, LOWEST));
    LvVec2i32 size(NO_LIMIT, LOWEST);
    size *= 1.5;
    EXPECT_EQ(size, LvVec2i32(NO_LIMIT, LOWEST));
    size *= std::nan("");
    EXPECT_EQ(size, LvVec2i32(0, 0));
}

TEST(LvVec2i32, components_areReadAndSetByIndex) {
    LvVec2i32 size;
    size.setValue(7, 8);
    EXPECT_EQ(size[0], 7);
    size[1] = 9;
    EXPECT_EQ(size, LvVec2i32(7, 9));
}

TEST(LvVec2f, arithmetic_isByComponent) {
    LvVec2f point;
    point.setValue(1, 2);
    point[1] = 4;
    EXPECT_EQ(point + LvVec2f(1, 1), LvVec2f(2, 5));
    EXPECT_EQ(point - LvVec2f(1, 1), LvVec2f(0, 3));
}

TEST(LvVec3f, arithmetic_isByComponent) {
    LvVec3f point;
    point.setValue(1, 2, 3);
    EXPECT_EQ(point + LvVec3f(1, 1, 1), LvVec3f(2, 3, 4));
    EXPECT_EQ(point - LvVec3f(1, 1, 1), LvVec3f(0, 1, 2));
    EXPECT_EQ(point * 2, LvVec3f(2, 4, 6));
    EXPECT_EQ(-point, LvVec3f(-1, -2, -3));
    point[2] = 9;
    EXPECT_EQ(point, LvVec3f(1, 2, 9));
}

TEST(LvVec3f, products_areThoseOfVectors) {
    EXPECT_EQ(LvVec3f(1, 2, 3).dot({4, 5, 6}), 32);
    EXPECT_EQ(LvVec3f(1, 0, 0).cross({0, 1, 0}), LvVec3f(0, 0, 1));
    EXPECT_EQ(LvVec3f(2, 3, 6).length(), 7);
}

TEST(LvRotation, newRotation_turnsNothing) {
    EXPECT_EQ(LvRotation(), LvRotation(0, 0, 0, 1));
    LvVec3f axis;
    float angle = -1;
    LvRotation().getAxisAngle(axis, angle);
    EXPECT_EQ(angle, 0);
    EXPECT_EQ(axis.length(), 1);
}

TEST(LvRotation, axisWithoutLength_turnsNothing) { EXPECT_EQ(LvRotation(LvVec3f(), 1), LvRotation()); }

TEST(LvRotation, axisAndAngle_comeBack) {
    for (const float wanted : {1e-3F, 0.5F, 1.5F, 3.0F, PI}) {
        LvVec3f axis;
        float angle = 0;
        LvRotation({0, 3, 4}, wanted).getAxisAngle(axis, angle);
        EXPECT_NEAR(angle, wanted, 1e-5);
        EXPECT_NEAR(axis.x, 0, 1e-5);
        EXPECT_NEAR(axis.y, 0.6, 1e-5);
        EXPECT_NEAR(axis.z, 0.8, 1e-5);
    }
}

TEST(LvRotation, angleBeyondAHalfTurn_isTheShorterWay) {
    LvVec3f axis;
    float angle = 0;
    LvRotation({0, 0, 1}, 1.5F * PI).getAxisAngle(axis, angle);
    EXPECT_NEAR(angle, 0.5 * PI, 1e-5);
    EXPECT_NEAR(axis.z, -1, 1e-5);
}

} // namespace
