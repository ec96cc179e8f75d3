// SPDX-License-Identifier: MIT
#include "platform/lumora/nodes/LuTriangulation.h"

#include <gtest/gtest.h>

namespace {

/// The area of triangles in the plane z = 0, negative where they run clockwise.
float getArea(const std::vector<LvVec3f>& corners) {
    float area = 0;
    for (std::size_t i = 0; i + 2 < corners.size(); i += 3)
        area += (corners[i + 1] - corners[i]).cross(corners[i + 2] - corners[i]).z * 0.5F;
    return area;
}

LuContour makeSquare(float halfSize) {
    return {{-halfSize, -halfSize, 0},
            {halfSize, -halfSize, 0},
            {halfSize, halfSize, 0},
            {-halfSize, halfSize, 0}};
}

std::vector<LvVec3f> triangulate(const LuContour& points) {
    std::vector<LvVec3f> corners;
    luTriangulatePolygon(points, corners);
    return corners;
}

TEST(LuTriangulationTest, square_givesTwoTrianglesInItsOrder) {
    const auto corners = triangulate(makeSquare(1));
    EXPECT_EQ(corners.size(), 6U);
    EXPECT_FLOAT_EQ(getArea(corners), 4);
}

TEST(LuTriangulationTest, concavePolygon_isFilledNoFurtherThanItReaches) {
    // An L of three unit squares.
    EXPECT_FLOAT_EQ(getArea(triangulate({{0, 0, 0}, {2, 0, 0}, {2, 1, 0}, {1, 1, 0}, {1, 2, 0}, {0, 2, 0}})),
                    3);
}

TEST(LuTriangulationTest, clockwisePolygon_givesClockwiseTriangles) {
    EXPECT_FLOAT_EQ(getArea(triangulate({{0, 0, 0}, {0, 1, 0}, {1, 1, 0}, {1, 0, 0}})), -1);
}

TEST(LuTriangulationTest, polygonThatCrossesItself_getsTheCrossingAsACorner) {
    // A five-pointed star, drawn in one stroke: the whole star is filled.
    const LuContour star{
        {0, 10, 0}, {-5.88F, -8.09F, 0}, {9.51F, 3.09F, 0}, {-9.51F, 3.09F, 0}, {5.88F, -8.09F, 0}};
    EXPECT_NEAR(getArea(triangulate(star)), 112.3F, 0.5F);
}

TEST(LuTriangulationTest, pointsWithoutAnArea_giveNothing) {
    EXPECT_TRUE(triangulate({}).empty());
    EXPECT_TRUE(triangulate({{0, 0, 0}, {1, 0, 0}}).empty());
    EXPECT_TRUE(triangulate({{0, 0, 0}, {1, 1, 1}, {2, 2, 2}, {3, 3, 3}}).empty());
    const float huge = std::numeric_limits<float>::max();
    EXPECT_TRUE(triangulate({{0, 0, 0}, {huge, 0, 0}, {0, huge, 0}}).empty());
}

TEST(LuTriangulationTest, contourTheOtherWayRound_isAHole) {
    LuContour hole = makeSquare(1);
    std::reverse(hole.begin(), hole.end());
    std::vector<LvVec3f> corners;
    luTriangulateContours({makeSquare(2), hole}, {0, 0, 1}, corners);
    EXPECT_FLOAT_EQ(getArea(corners), 12);
}

TEST(LuTriangulationTest, contourTheSameWayRound_isNoHole) {
    std::vector<LvVec3f> corners;
    luTriangulateContours({makeSquare(2), makeSquare(1)}, {0, 0, 1}, corners);
    EXPECT_FLOAT_EQ(getArea(corners), 16);
}

TEST(LuTriangulationTest, normal_isThatOfAnAnticlockwiseView) {
    EXPECT_EQ(luPolygonNormal(makeSquare(3)), LvVec3f(0, 0, 1));
    EXPECT_EQ(luPolygonNormal({{0, 0, 0}, {0, 1, 0}, {0, 1, 1}}), LvVec3f(1, 0, 0));
}

} // namespace
