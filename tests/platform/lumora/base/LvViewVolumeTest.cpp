// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LvViewVolume.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <numbers>

namespace {

constexpr float RIGHT_ANGLE = std::numbers::pi_v<float> / 2;

void expectNear(const LvVec3f& actual, const LvVec3f& expected, float tolerance = 1e-4F) {
    for (int axis = 0; axis < 3; ++axis)
        EXPECT_NEAR(actual[axis], expected[axis], tolerance) << "axis " << axis;
}

bool isFinite(const LvVec3f& v) { return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z); }

TEST(LvViewVolumeTest, PerspectiveLinesRunThroughTheEye) {
    LvViewVolume volume = LvViewVolume::perspective(RIGHT_ANGLE, 2, 1, 10);
    volume.setPose({5, 6, 7}, {});
    const LvLine line = volume.projectPointToLine({1, 0.5F});
    expectNear(line.getPosition(), {7, 6, 6});
    expectNear(line.getDirection(), LvVec3f(2, 0, -1) * (1 / std::sqrt(5.0F)));
    LvVec3f nearPoint, farPoint;
    volume.projectPointToLine({0.5F, 1}, nearPoint, farPoint);
    expectNear(nearPoint, {5, 7, 6});
    expectNear(farPoint, {5, 16, -3});
}

TEST(LvViewVolumeTest, OrthographicLinesAreParallel) {
    LvViewVolume volume = LvViewVolume::orthographic(4, 1.5F, 1, 10);
    volume.setPose({0, 0, 20}, {});
    const LvLine line = volume.projectPointToLine({0, 1});
    expectNear(line.getPosition(), {-3, 2, 19});
    expectNear(line.getDirection(), {0, 0, -1});
}

TEST(LvViewVolumeTest, OrientationTurnsTheLineOfSight) {
    LvViewVolume volume = LvViewVolume::orthographic(2, 1, 1, 10);
    volume.setPose({1, 2, 3}, LvRotation(LvVec3f(0, 1, 0), RIGHT_ANGLE));
    expectNear(volume.getSightDirection(), {-1, 0, 0});
    expectNear(volume.getUpDirection(), {0, 1, 0});
    expectNear(volume.projectPointToLine({1, 1}).getPosition(), {0, 3, 2});
}

struct Case {
    const char* name;
    LvViewVolume volume;
};

class ViewVolumeKindTest : public testing::TestWithParam<Case> {
protected:
    ViewVolumeKindTest() { m_volume.setPose({1, -2, 30}, LvRotation(LvVec3f(1, 2, 3), 0.7F)); }
    LvViewVolume m_volume = GetParam().volume;
};

TEST_P(ViewVolumeKindTest, ScreenPositionsComeBackFromPointsOfTheirLine) {
    for (const LvVec2f& position : {LvVec2f(0, 0), LvVec2f(0.25F, 0.75F), LvVec2f(1, 0.5F)}) {
        LvVec3f nearPoint, farPoint;
        m_volume.projectPointToLine(position, nearPoint, farPoint);
        expectNear(m_volume.projectToScreen(nearPoint), {position.x, position.y, 0});
        expectNear(m_volume.projectToScreen(farPoint), {position.x, position.y, 1});
        const LvVec3f middle = m_volume.getPlanePoint(4, position);
        EXPECT_NEAR(m_volume.projectToScreen(middle).x, position.x, 1e-4);
        EXPECT_NEAR(m_volume.getPlane(4).getDistance(middle), 0, 1e-4);
    }
}

TEST_P(ViewVolumeKindTest, MatricesSayTheSameAsTheScreenPositions) {
    const LvMatrix matrix = m_volume.getProjectionMatrix() * m_volume.getViewMatrix();
    const LvVec3f point = m_volume.getPlanePoint(3, {0.3F, 0.8F});
    const LvVec3f clip = matrix.transformPoint(point);
    expectNear((clip + LvVec3f(1, 1, 1)) * 0.5F, m_volume.projectToScreen(point));
}

TEST_P(ViewVolumeKindTest, WorldToScreenScaleIsTheShareOfTheHeight) {
    const LvVec3f center = m_volume.getPlanePoint(6, {0.5F, 0.5F});
    const LvVec3f higher = center + m_volume.getUpDirection() * m_volume.getWorldToScreenScale(center, 0.25F);
    EXPECT_NEAR(m_volume.projectToScreen(higher).y, 0.75, 1e-4);
}

INSTANTIATE_TEST_SUITE_P(Kinds, ViewVolumeKindTest,
                         testing::Values(Case{"Perspective", LvViewVolume::perspective(0.8F, 1.5F, 2, 50)},
                                         Case{"Orthographic", LvViewVolume::orthographic(8, 0.5F, 2, 50)}),
                         [](const auto& kind) { return kind.param.name; });

TEST(LvViewVolumeTest, NumbersThatMakeNoVolumeGiveFiniteLines) {
    constexpr float INF = std::numeric_limits<float>::infinity();
    constexpr float NONE = std::numeric_limits<float>::quiet_NaN();
    for (const float number : {0.0F, -1.0F, 4.0F, INF, -INF, NONE}) {
        for (LvViewVolume volume :
             {LvViewVolume::perspective(number, 1, 1, 10), LvViewVolume::perspective(1, number, 1, 10),
              LvViewVolume::perspective(1, 1, number, 10), LvViewVolume::perspective(1, 1, 1, number),
              LvViewVolume::orthographic(number, 1, 1, 10), LvViewVolume::orthographic(1, number, 1, 10),
              LvViewVolume::orthographic(1, 1, number, 10), LvViewVolume::orthographic(1, 1, 1, number)}) {
            volume.setPose({number, 0, 0}, {0, 0, number, 1});
            const LvLine line = volume.projectPointToLine({0.2F, 0.9F});
            EXPECT_TRUE(isFinite(line.getPosition())) << number;
            EXPECT_NEAR(line.getDirection().length(), 1, 1e-4) << number;
            EXPECT_TRUE(isFinite(volume.projectToScreen({1, 2, 3}))) << number;
        }
    }
}

TEST(LvViewVolumeTest, PointInTheEyesPlaneIsSeenNowhere) {
    const LvViewVolume volume = LvViewVolume::perspective(1, 1, 1, 10);
    expectNear(volume.projectToScreen({3, 0, 0}), {0.5F, 0.5F, 0});
}

} // namespace
