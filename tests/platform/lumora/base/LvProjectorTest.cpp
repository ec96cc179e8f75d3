// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LvProjector.h"

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

/// Looks at the plane z = 0 from 10 before it, and sees 20 by 20 units of it.
LvViewVolume getView() {
    LvViewVolume volume = LvViewVolume::perspective(RIGHT_ANGLE, 1, 1, 100);
    volume.setPose({0, 0, 10}, {});
    return volume;
}

/// A space that is stretched unevenly, turned and moved.
LvMatrix getSpace() {
    LvMatrix matrix;
    matrix.setTransform({3, 1, -2}, LvRotation(LvVec3f(1, 0, 0), 0.5F), {2, 5, 0.5F});
    return matrix;
}

LvLine getRay(const LvVec3f& through) { return LvLine::fromPoints({0, 0, 10}, through); }

TEST(LvPlaneProjectorTest, PointerMeetsThePlane) {
    LvPlaneProjector projector;
    projector.setViewVolume(getView());
    projector.setPlane(LvPlane({0, 0, 1}, 0.0F));
    expectNear(projector.project({0.75F, 0.5F}), {5, 0, 0});
    expectNear(projector.getVector({0.5F, 0.5F}, {0.5F, 1}), {0, 10, 0});
    expectNear(projector.getVector({0.5F, 0.5F}), {0, -10, 0});
}

TEST(LvPlaneProjectorTest, PlaneLiesInTheWorkingSpace) {
    LvPlaneProjector projector;
    projector.setPlane(LvPlane({0, 1, 2}, LvVec3f(1, 2, 3)));
    projector.setWorkingSpace(getSpace());
    const LvVec3f inPlane(3, 4, 2);
    expectNear(projector.intersect(getRay(getSpace().transformPoint(inPlane))), inPlane, 1e-3F);
}

TEST(LvPlaneProjectorTest, RayAlongThePlaneKeepsTheLastPoint) {
    LvPlaneProjector projector;
    projector.setPlane(LvPlane({0, 0, 1}, 4.0F));
    const LvLine along = LvLine::fromDirection({1, 2, 3}, {1, 0, 0});
    expectNear(projector.intersect(along), {0, 0, 4});
    projector.intersect(LvLine::fromDirection({7, 8, 9}, {0, 0, -1}));
    expectNear(projector.intersect(along), {7, 8, 4});
    LvVec3f untouched(1, 1, 1);
    EXPECT_FALSE(projector.tryIntersect(along, untouched));
    EXPECT_EQ(untouched, LvVec3f(1, 1, 1));
}

TEST(LvPlaneProjectorTest, PointerBeyondTheHorizonKeepsTheLastPoint) {
    LvPlaneProjector projector;
    projector.setViewVolume(getView());
    projector.setPlane(LvPlane({0, 1, 0}, -5.0F));
    const LvVec3f below = projector.project({0.5F, 0.25F});
    expectNear(below, {0, -5, 0});
    expectNear(projector.project({0.5F, 0.75F}), below);
}

TEST(LvPlaneProjectorTest, SpaceWithoutExtentKeepsTheLastPoint) {
    LvPlaneProjector projector;
    projector.setPlane(LvPlane({0, 0, 1}, 4.0F));
    for (const float scale : {0.0F, std::numeric_limits<float>::quiet_NaN(), 1e-44F}) {
        projector.setWorkingSpace(LvMatrix::scale({1, scale, 1}));
        expectNear(projector.intersect(getRay({0, 0, 0})), {0, 0, 4});
    }
}

TEST(LvLineProjectorTest, PointerGivesTheNearestPointOfTheLine) {
    LvLineProjector projector;
    projector.setViewVolume(getView());
    projector.setLine(LvLine::fromDirection({1, 2, 0}, {1, 0, 0}));
    expectNear(projector.project({0.75F, 0.6F}), {5, 2, 0});
}

TEST(LvLineProjectorTest, LineLiesInTheWorkingSpace) {
    LvLineProjector projector;
    projector.setLine(LvLine::fromDirection({1, 2, 3}, {2, -1, 0.5F}));
    projector.setWorkingSpace(getSpace());
    const LvVec3f onLine = LvVec3f(1, 2, 3) + LvVec3f(2, -1, 0.5F) * 3;
    expectNear(projector.intersect(getRay(getSpace().transformPoint(onLine))), onLine, 1e-3F);
}

TEST(LvLineProjectorTest, RayAlongTheLineKeepsTheLastPoint) {
    LvLineProjector projector;
    projector.setLine(LvLine::fromDirection({1, 2, 0}, {0, 0, 1}));
    expectNear(projector.intersect(LvLine::fromDirection({5, 5, 5}, {0, 0, -1})), {1, 2, 0});
    const LvVec3f last = projector.intersect(LvLine::fromDirection({5, 5, 5}, {1, 0, 0}));
    expectNear(last, {1, 2, 5});
    expectNear(projector.intersect(LvLine::fromDirection({0, 0, 0}, {0, 0, 1})), last);
}

TEST(LvLineProjectorTest, LineWithoutDirectionStaysAtItsPoint) {
    LvLineProjector projector;
    projector.setLine(LvLine::fromDirection({1, 2, 3}, {}));
    expectNear(projector.intersect(getRay({0, 0, 0})), {1, 2, 3});
}

TEST(LvLineProjectorTest, SpaceWithoutExtentAlongTheLineKeepsTheLastPoint) {
    LvLineProjector projector;
    projector.setLine(LvLine::fromDirection({1, 2, 3}, {1, 0, 0}));
    projector.setWorkingSpace(LvMatrix::scale({0, 1, 1}));
    expectNear(projector.intersect(getRay({4, 0, 0})), {1, 2, 3});
    projector.setWorkingSpace(LvMatrix::scale({1, 0, 1}));
    expectNear(projector.intersect(LvLine::fromDirection({4, 0, 0}, {0, 1, 0})), {4, 2, 3});
}

TEST(LvLineProjectorTest, LineThatPassesTheEyeIsNotMetBehindIt) {
    LvLineProjector projector;
    projector.setViewVolume(getView());
    projector.setLine(LvLine::fromDirection({1, 0, 0}, {0, 0, 1}));
    const LvVec3f before = projector.project({0.6F, 0.5F});
    EXPECT_LT(before.z, 10);
    expectNear(projector.project({0.4F, 0.5F}), before);
}

} // namespace
