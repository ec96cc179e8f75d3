// SPDX-License-Identifier: MIT
#include "platform/fonts/LuOutlineBuilder.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

TEST(OutlineBuilder, curveThatBulges_isMeasuredByItsExtreme) {
    std::vector<LuOutlineContour> outline;
    LuOutlineBuilder builder(outline, 1);
    builder.moveTo({0, 0});
    builder.curveTo({1, 2}, {2, 0});
    builder.close();
    LuGlyphMetrics metrics;
    luMeasureOutline(outline, metrics);
    EXPECT_FALSE(metrics.isEmpty);
    EXPECT_EQ(metrics.minX, 0);
    EXPECT_EQ(metrics.maxX, 2);
    EXPECT_EQ(metrics.minY, 0);
    EXPECT_EQ(metrics.maxY, 1);
}

TEST(OutlineBuilder, openContour_isClosedByALine) {
    std::vector<LuOutlineContour> outline;
    LuOutlineBuilder builder(outline, 0.5);
    builder.moveTo({2, 0});
    builder.lineTo({4, 0});
    builder.lineTo({4, 6});
    builder.close();
    ASSERT_EQ(outline.size(), 1u);
    ASSERT_EQ(outline[0].segments.size(), 3u);
    EXPECT_EQ(outline[0].startX, 1);
    EXPECT_EQ(outline[0].segments[1].y, 3);
    EXPECT_FALSE(outline[0].segments[2].isCurve);
    EXPECT_EQ(outline[0].segments[2].x, 1);
    EXPECT_EQ(outline[0].segments[2].y, 0);
}

TEST(OutlineBuilder, contourWithoutArea_isDropped) {
    std::vector<LuOutlineContour> outline;
    LuOutlineBuilder builder(outline, 1);
    builder.moveTo({1, 1});
    builder.lineTo({1, 1});
    builder.moveTo({1, 1});
    builder.lineTo({2, 1});
    builder.close();
    EXPECT_TRUE(outline.empty());
    LuGlyphMetrics metrics;
    luMeasureOutline(outline, metrics);
    EXPECT_TRUE(metrics.isEmpty);
}

TEST(OutlineBuilder, cubicCircle_becomesQuadraticCurvesOnTheCircle) {
    // Four cubic curves that differ from a circle of half an em by less than 0.0002.
    const double k = 0.5 * 0.5522847498;
    std::vector<LuOutlineContour> outline;
    LuOutlineBuilder builder(outline, 1);
    builder.moveTo({0.5, 0});
    builder.cubicTo({0.5, k}, {k, 0.5}, {0, 0.5});
    builder.cubicTo({-k, 0.5}, {-0.5, k}, {-0.5, 0});
    builder.cubicTo({-0.5, -k}, {-k, -0.5}, {0, -0.5});
    builder.cubicTo({k, -0.5}, {0.5, -k}, {0.5, 0});
    builder.close();
    ASSERT_EQ(outline.size(), 1u);
    double x = 0.5, y = 0;
    for (const LuOutlineSegment& segment : outline[0].segments) {
        ASSERT_TRUE(segment.isCurve);
        for (int i = 0; i <= 8; ++i) {
            const double t = i / 8.0, u = 1 - t;
            const double curveX = u * u * x + 2 * u * t * segment.controlX + t * t * segment.x;
            const double curveY = u * u * y + 2 * u * t * segment.controlY + t * t * segment.y;
            EXPECT_NEAR(std::hypot(curveX, curveY), 0.5, 0.001);
        }
        x = segment.x;
        y = segment.y;
    }
    LuGlyphMetrics metrics;
    luMeasureOutline(outline, metrics);
    EXPECT_NEAR(metrics.minX, -0.5, 1e-6);
    EXPECT_NEAR(metrics.maxY, 0.5, 1e-6);
}

TEST(OutlineBuilder, cubicThatIsAQuadraticCurve_staysOneCurve) {
    std::vector<LuOutlineContour> outline;
    LuOutlineBuilder builder(outline, 1);
    builder.moveTo({0, 0});
    // The quadratic curve by (3, 3) to (6, 0), with its degree raised.
    builder.cubicTo({2, 2}, {4, 2}, {6, 0});
    builder.close();
    ASSERT_EQ(outline.size(), 1u);
    ASSERT_EQ(outline[0].segments.size(), 2u);
    EXPECT_NEAR(outline[0].segments[0].controlX, 3, 1e-6);
    EXPECT_NEAR(outline[0].segments[0].controlY, 3, 1e-6);
}

} // namespace
