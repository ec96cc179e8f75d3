// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LvGeometry.h"

#include <gtest/gtest.h>

namespace {

TEST(LvLine, twoPoints_giveTheDirectionFromTheFirst) {
    const LvLine line = LvLine::fromPoints({1, 2, 3}, {1, 2, 8});
    EXPECT_EQ(line.getPosition(), LvVec3f(1, 2, 3));
    EXPECT_EQ(line.getDirection(), LvVec3f(0, 0, 1));
}

TEST(LvLine, direction_isMadeOfLength1) {
    const LvVec3f direction = LvLine::fromDirection({}, {0, 3, 4}).getDirection();
    EXPECT_FLOAT_EQ(direction.y, 0.6F);
    EXPECT_FLOAT_EQ(direction.z, 0.8F);
}

TEST(LvLine, equalPoints_giveNoDirection) {
    const LvLine line = LvLine::fromPoints({1, 1, 1}, {1, 1, 1});
    EXPECT_EQ(line.getDirection(), LvVec3f());
    EXPECT_EQ(line.getClosestPoint({5, 5, 5}), LvVec3f(1, 1, 1));
}

TEST(LvLine, closestPoint_isTheFootOfThePerpendicular) {
    const LvLine line = LvLine::fromDirection({0, 1, 0}, {1, 0, 0});
    EXPECT_EQ(line.getClosestPoint({-3, 7, 9}), LvVec3f(-3, 1, 0));
}

TEST(LvLine, skewLines_haveOnePointEach) {
    const LvLine one = LvLine::fromDirection({5, 0, 0}, {1, 0, 0});
    const LvLine two = LvLine::fromDirection({2, 7, 3}, {0, -1, 0});
    LvVec3f onOne;
    LvVec3f onTwo;
    ASSERT_TRUE(one.getClosestPoints(two, onOne, onTwo));
    EXPECT_EQ(onOne, LvVec3f(2, 0, 0));
    EXPECT_EQ(onTwo, LvVec3f(2, 0, 3));
}

TEST(LvLine, parallelLines_haveNoClosestPoints) {
    LvVec3f onOne(9, 9, 9);
    LvVec3f onTwo(8, 8, 8);
    const LvLine one = LvLine::fromDirection({}, {1, 2, 3});
    EXPECT_FALSE(one.getClosestPoints(LvLine::fromDirection({0, 1, 0}, {-1, -2, -3}), onOne, onTwo));
    EXPECT_EQ(onOne, LvVec3f(9, 9, 9));
    EXPECT_EQ(onTwo, LvVec3f(8, 8, 8));
}

TEST(LvPlane, newPlane_isTheOneOfTheScreen) {
    EXPECT_EQ(LvPlane().getNormal(), LvVec3f(0, 0, 1));
    EXPECT_EQ(LvPlane().getDistanceFromOrigin(), 0);
}

TEST(LvPlane, normalAndPoint_giveTheDistance) {
    const LvPlane plane({0, 5, 0}, LvVec3f(7, 3, 9));
    EXPECT_EQ(plane, LvPlane({0, 1, 0}, 3.0F));
    EXPECT_EQ(plane.getDistance({0, 10, 0}), 7);
    EXPECT_EQ(plane.getDistance({0, 0, 0}), -3);
}

TEST(LvPlane, normalWithoutLength_standsForTheZAxis) {
    EXPECT_EQ(LvPlane(LvVec3f(), 2.0F).getNormal(), LvVec3f(0, 0, 1));
}

TEST(LvPlane, line_meetsThePlane) {
    LvVec3f point;
    ASSERT_TRUE(LvPlane({0, 0, 1}, 2.0F).intersect(LvLine::fromPoints({1, 1, 10}, {1, 1, 9}), point));
    EXPECT_EQ(point, LvVec3f(1, 1, 2));
}

TEST(LvPlane, planeBehindTheLinesPosition_isMetToo) {
    LvVec3f point;
    ASSERT_TRUE(LvPlane({0, 0, 1}, 20.0F).intersect(LvLine::fromPoints({0, 0, 10}, {0, 0, 9}), point));
    EXPECT_EQ(point, LvVec3f(0, 0, 20));
}

TEST(LvPlane, lineAlongThePlane_doesNotMeetIt) {
    LvVec3f point(9, 9, 9);
    EXPECT_FALSE(LvPlane({0, 0, 1}, 2.0F).intersect(LvLine::fromDirection({}, {1, 1, 0}), point));
    EXPECT_FALSE(LvPlane().intersect(LvLine::fromDirection({0, 0, 1}, {}), point));
    EXPECT_EQ(point, LvVec3f(9, 9, 9));
}

TEST(LvViewportRegion, newRegion_has100By100Pixels) {
    EXPECT_EQ(LvViewportRegion().getSize(), LvVec2i32(100, 100));
    EXPECT_EQ(LvViewportRegion().getAspectRatio(), 1);
}

TEST(LvViewportRegion, aspectRatio_isWidthByHeight) {
    EXPECT_EQ(LvViewportRegion(300, 200).getAspectRatio(), 1.5F);
    EXPECT_EQ(LvViewportRegion(300, 0).getAspectRatio(), 1);
    LvViewportRegion region;
    region.setSize({40, 20});
    EXPECT_EQ(region, LvViewportRegion(40, 20));
}

} // namespace
