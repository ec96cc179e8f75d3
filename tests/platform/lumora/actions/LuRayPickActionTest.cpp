// SPDX-License-Identifier: MIT
#include "platform/lumora/actions/LuRayPickAction.h"

#include "platform/lumora/kits/LuDragger.h"
#include "platform/lumora/kits/LuNodeKitDetail.h"
#include "platform/lumora/nodes/LuCamera.h"
#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuProperties.h"
#include "platform/lumora/nodes/LuShapes.h"
#include "platform/lumora/nodes/LuText3.h"
#include "platform/lumora/nodes/LuTransforms.h"
#include "tests/host/ToolkitTest.h"

#include <cmath>
#include <limits>
#include <random>

namespace {

void expectNear(const LvVec3f& actual, const LvVec3f& expected, float tolerance = 1e-4F) {
    for (int axis = 0; axis < 3; ++axis)
        EXPECT_NEAR(actual[axis], expected[axis], tolerance) << "axis " << axis;
}

/// Looks down along z from 100.
LvLine lookDown(float x, float y) { return LvLine::fromDirection({x, y, 100}, {0, 0, -1}); }

template <class Node>
Node* add(LuGroup* group, Node* node = new Node) {
    group->addChild(node);
    return node;
}

LuTranslation* move(LuGroup* group, const LvVec3f& by) {
    auto* translation = add<LuTranslation>(group);
    translation->translation.setValue(by);
    return translation;
}

/// Turned, stretched unevenly and moved.
LvMatrix getTwist() {
    LvMatrix matrix;
    matrix.setTransform({5, -3, 2}, LvRotation(LvVec3f(1, 2, -1), 0.8F), {3, 0.5F, 2},
                        LvRotation({0, 0, 1}, 0.3F));
    return matrix;
}

class RayPickTest : public ToolkitTest {
protected:
    LuPickedPoint* pick(const LvLine& line) {
        m_action.setRay(line);
        m_action.apply(m_root.get());
        return m_action.getPickedPoint();
    }
    LuPickedPoint* pick(float x, float y) { return pick(lookDown(x, y)); }

    /// Expects a hit, and gives its z; without a hit something that is no number.
    float pickZ(float x, float y) {
        const LuPickedPoint* point = pick(x, y);
        return point ? point->getPoint().z : std::numeric_limits<float>::quiet_NaN();
    }

    Held<LuSeparator> m_root;
    LuRayPickAction m_action;
};

TEST_F(RayPickTest, CubeIsMetOnTheFaceTowardsTheRay) {
    auto* cube = add<LuCube>(m_root.get());
    cube->depth.setValue(6);
    const LuPickedPoint* point = pick(0.25F, -0.5F);
    ASSERT_TRUE(point);
    expectNear(point->getPoint(), {0.25F, -0.5F, 3});
    expectNear(point->getNormal(), {0, 0, 1});
    EXPECT_NEAR(point->getDistance(), 97, 1e-9);
    EXPECT_FALSE(pick(1.01F, 0));
}

TEST_F(RayPickTest, FlatCubeIsMet) {
    add<LuCube>(m_root.get())->depth.setValue(0);
    EXPECT_EQ(pickZ(0.5F, 0.5F), 0);
    const LuPickedPoint* point = pick(LvLine::fromPoints({3, 0, 4}, {0.5F, 0, 0}));
    ASSERT_TRUE(point);
    expectNear(point->getPoint(), {0.5F, 0, 0});
}

TEST_F(RayPickTest, SphereIsMetOnItsSurface) {
    add<LuSphere>(m_root.get())->radius.setValue(5);
    const LuPickedPoint* point = pick(3, 0);
    ASSERT_TRUE(point);
    expectNear(point->getPoint(), {3, 0, 4});
    expectNear(point->getNormal(), {0.6F, 0, 0.8F});
    EXPECT_FALSE(pick(3.6F, 3.6F));
}

TEST_F(RayPickTest, ConeIsMetOnItsSideAndItsBottom) {
    auto* cone = add<LuCone>(m_root.get());
    cone->bottomRadius.setValue(2);
    cone->height.setValue(4);
    const LuPickedPoint* side = pick(0.5F, 0);
    ASSERT_TRUE(side);
    expectNear(side->getPoint(), {0.5F, 0, std::sqrt(0.75F)});
    EXPECT_GT(side->getNormal().y, 0);
    EXPECT_FALSE(pick(1.5F, 0.5F));
    const LuPickedPoint* bottom = pick(LvLine::fromDirection({1, -10, 1}, {0, 1, 0}));
    ASSERT_TRUE(bottom);
    expectNear(bottom->getPoint(), {1, -2, 1});
    expectNear(bottom->getNormal(), {0, -1, 0});
    const LuPickedPoint* tip = pick(LvLine::fromDirection({0, 10, 0}, {0, -1, 0}));
    ASSERT_TRUE(tip);
    expectNear(tip->getPoint(), {0, 2, 0});
}

TEST_F(RayPickTest, RayAlongTheSideOfAConeMeetsItOnce) {
    add<LuCone>(m_root.get());
    const LuPickedPoint* point = pick(LvLine::fromDirection({5, 1, 0}, {-1, 2, 0}));
    EXPECT_FALSE(point);
    point = pick(LvLine::fromDirection({0.9F, -11, 0}, {-1, 2, 0}));
    EXPECT_FALSE(point);
    point = pick(LvLine::fromDirection({2.5F, -4, 0}, {-1, 2, 0}));
    ASSERT_TRUE(point);
    expectNear(point->getPoint(), {1, -1, 0});
}

struct ShapeCase {
    const char* name;
    LuShape* (*make)();
    LvVec3f onSurface; ///< A point of the shape that can be seen from far in its direction.
};

template <class Shape>
LuShape* makeShape() {
    return new Shape;
}

class ShapePickTest : public RayPickTest, public testing::WithParamInterface<ShapeCase> {};

TEST_P(ShapePickTest, PointIsExactInASpaceThatIsTurnedAndStretchedUnevenly) {
    auto* transform = add<LuMatrixTransform>(m_root.get());
    transform->matrix.setValue(getTwist());
    LuShape* const shape = add(m_root.get(), GetParam().make());
    const LvVec3f target = getTwist().transformPoint(GetParam().onSurface);
    const LvVec3f from = getTwist().transformPoint(GetParam().onSurface * 20);
    const LuPickedPoint* point = pick(LvLine::fromPoints(from, target));
    ASSERT_TRUE(point);
    expectNear(point->getPoint(), target);
    expectNear(point->getObjectPoint(), GetParam().onSurface);
    EXPECT_NEAR(point->getNormal().length(), 1, 1e-5);
    EXPECT_GT(point->getNormal().dot(from - target), 0);
    EXPECT_NEAR(point->getDistance(), (target - from).length(), 1e-3);
    EXPECT_EQ(point->getPath()->getTail(), shape);
}

INSTANTIATE_TEST_SUITE_P(Shapes, ShapePickTest,
                         testing::Values(ShapeCase{"Cube", &makeShape<LuCube>, {0.3F, 1, 0.6F}},
                                         ShapeCase{"Sphere", &makeShape<LuSphere>, {0.48F, -0.6F, 0.64F}},
                                         ShapeCase{"ConeSide", &makeShape<LuCone>, {0.3F, 0, -0.4F}},
                                         ShapeCase{"ConeBottom", &makeShape<LuCone>, {0.3F, -1, -0.4F}}),
                         [](const auto& shapeCase) { return shapeCase.param.name; });

/// Points of a letter U, 3 wide and 3 high, whose inner space is 1 wide.
std::vector<LvVec3f> getU(float z = 0) {
    return {{0, 0, z}, {3, 0, z}, {3, 3, z}, {2, 3, z}, {2, 1, z}, {1, 1, z}, {1, 3, z}, {0, 3, z}};
}

TEST_F(RayPickTest, ConcaveFaceIsMetWhereItIs) {
    add<LuCoordinate3>(m_root.get())->point.setValues(getU());
    add<LuFaceSet>(m_root.get())->numVertices.setValue(-1);
    EXPECT_EQ(pickZ(0.5F, 2), 0);
    EXPECT_EQ(pickZ(2.5F, 2), 0);
    EXPECT_EQ(pickZ(1.5F, 0.5F), 0);
    EXPECT_FALSE(pick(1.5F, 2));
    const LuPickedPoint* fromBehind = pick(LvLine::fromDirection({0.5F, 0.5F, -9}, {0, 0, 1}));
    ASSERT_TRUE(fromBehind);
    expectNear(fromBehind->getNormal(), {0, 0, 1});
}

TEST_F(RayPickTest, IndexedFacesAreMetEachInItsPlane) {
    std::vector<LvVec3f> points = getU(1);
    const std::vector<LvVec3f> upper = getU(5);
    points.insert(points.end(), upper.begin(), upper.end());
    add<LuCoordinate3>(m_root.get())->point.setValues(points);
    add<LuIndexedFaceSet>(m_root.get())
        ->coordIndex.setValues({0, 1, 2, 3, 4, 5, 6, 7, -1, 8, 9, 13, -1, 99, 100, 101, -1});
    EXPECT_EQ(pickZ(1.5F, 0.5F), 5);
    EXPECT_EQ(pickZ(0.25F, 2.5F), 1);
    EXPECT_FALSE(pick(1.5F, 2));
}

TEST_F(RayPickTest, NoRaySlipsThroughBetweenTriangles) {
    add<LuCoordinate3>(m_root.get())
        ->point.setValues({{0, 0, 0}, {1, 0.1F, 0.2F}, {1.1F, 1.3F, 0.5F}, {0.1F, 0.9F, 0.3F}});
    add<LuIndexedFaceSet>(m_root.get())->coordIndex.setValues({0, 1, 2, -1, 0, 2, 3});
    for (int i = 1; i < 100; ++i) {
        const float share = static_cast<float>(i) / 100;
        EXPECT_TRUE(pick(1.1F * share, 1.3F * share)) << share;
    }
}

TEST_F(RayPickTest, TextIsMetOnTheBoxesOfItsLines) {
    add<LuFont>(m_root.get())->size.setValue(10);
    auto* text = add<LuText3>(m_root.get());
    text->string.setValues({"iiiiii", "o"});
    LuGetBoundingBoxAction measure;
    measure.apply(m_root.get());
    const LvBox3f box = measure.getBoundingBox();
    // Between the strokes of the first line, but behind the end of the second.
    EXPECT_EQ(pickZ(box.max.x - 0.3F, 3), 0);
    EXPECT_FALSE(pick(box.max.x - 0.3F, -8));
    EXPECT_EQ(pickZ(2, -8), 0);
    text->parts.setValue(LuText3::BACK);
    EXPECT_EQ(pickZ(2, -8), -1);
}

TEST_F(RayPickTest, NearestPointIsTheOneWhateverTheOrder) {
    for (const float z : {5.0F, 30.0F, -10.0F, 20.0F}) {
        auto* place = add<LuSeparator>(m_root.get());
        move(place, {0, 0, z});
        add<LuCube>(place);
    }
    EXPECT_EQ(pickZ(0, 0), 31);
    EXPECT_EQ(m_action.getPickedPointsListLength(), 1);
}

TEST_F(RayPickTest, AllPointsComeFromNearToFarAndUnsortedAsMet) {
    m_action.setPickAll(true);
    for (const float z : {5.0F, 30.0F, -10.0F, 20.0F}) {
        auto* place = add<LuSeparator>(m_root.get());
        move(place, {0, 0, z});
        add<LuCube>(place);
    }
    pick(0, 0);
    ASSERT_EQ(m_action.getPickedPointsListLength(), 4);
    const float sorted[] = {31, 21, 6, -9};
    const float unsorted[] = {6, 31, -9, 21};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(m_action.getPickedPoint(i)->getPoint().z, sorted[i]);
        EXPECT_EQ(m_action.getUnsortedPickedPoint(i)->getPoint().z, unsorted[i]);
    }
    EXPECT_FALSE(m_action.getPickedPoint(4));
    EXPECT_FALSE(m_action.getPickedPoint(-1));
    EXPECT_FALSE(m_action.getUnsortedPickedPoint(4));
}

TEST_F(RayPickTest, OfTwoAtOnePlaceTheFirstIsPicked) {
    LuCube* const first = add<LuCube>(m_root.get());
    add<LuCube>(m_root.get());
    ASSERT_TRUE(pick(0, 0));
    EXPECT_EQ(m_action.getPickedPoint()->getPath()->getTail(), first);
}

TEST_F(RayPickTest, NothingIsLeftOfTheApplyBefore) {
    add<LuCube>(m_root.get());
    EXPECT_TRUE(pick(0, 0));
    EXPECT_FALSE(pick(5, 0));
    EXPECT_EQ(m_action.getPickedPointsListLength(), 0);
}

TEST_F(RayPickTest, SwitchHidesWhatItDoesNotShow) {
    auto* choice = add<LuSwitch>(m_root.get());
    add<LuCube>(choice)->depth.setValue(10);
    add<LuCube>(choice);
    EXPECT_FALSE(pick(0, 0));
    choice->whichChild.setValue(1);
    EXPECT_EQ(pickZ(0, 0), 1);
    choice->whichChild.setValue(LuSwitch::SHOW_ALL);
    EXPECT_EQ(pickZ(0, 0), 5);
}

TEST_F(RayPickTest, PickStyleSaysHowShapesAreMet) {
    auto* style = add<LuPickStyle>(m_root.get());
    add<LuSphere>(m_root.get());
    EXPECT_FALSE(pick(0.9F, 0.9F));
    style->style.setValue(LuPickStyle::BOUNDING_BOX);
    EXPECT_EQ(pickZ(0.9F, 0.9F), 1);
    style->style.setValue(LuPickStyle::UNPICKABLE);
    EXPECT_FALSE(pick(0, 0));
}

TEST_F(RayPickTest, PickStyleEndsWithItsSeparator) {
    auto* inner = add<LuSeparator>(m_root.get());
    add<LuPickStyle>(inner)->style.setValue(LuPickStyle::UNPICKABLE);
    add<LuCube>(inner)->depth.setValue(20);
    add<LuCube>(m_root.get());
    EXPECT_EQ(pickZ(0, 0), 1);
}

TEST_F(RayPickTest, InnerPickStyleIsHeardBelowAnUnpickableOne) {
    add<LuPickStyle>(m_root.get())->style.setValue(LuPickStyle::UNPICKABLE);
    auto* inner = add<LuSeparator>(m_root.get());
    add<LuPickStyle>(inner);
    add<LuCube>(inner);
    EXPECT_EQ(pickZ(0, 0), 1);
}

TEST_F(RayPickTest, ClipPlaneCutsAwayTheSideBehindIt) {
    auto* inner = add<LuSeparator>(m_root.get());
    move(inner, {0, 0, 10});
    auto* plane = add<LuClipPlane>(inner);
    plane->plane.setValue(LvPlane({1, 0, 0}, 0.5F));
    add<LuCube>(inner);
    EXPECT_FALSE(pick(0.4F, 0));
    EXPECT_EQ(pickZ(0.6F, 0), 11);
    plane->plane.setValue(LvPlane({0, 0, -1}, 0.0F));
    // The face towards the ray is cut away; the one behind it shows.
    EXPECT_EQ(pickZ(0.4F, 0), 9);
    plane->plane.setValue(LvPlane({0, 0, 1}, 2.0F));
    EXPECT_FALSE(pick(0.4F, 0));
    plane->on.setValue(false);
    EXPECT_EQ(pickZ(0.4F, 0), 11);
}

TEST_F(RayPickTest, ClipPlaneEndsWithItsSeparatorAndLiesInItsSpace) {
    auto* inner = add<LuSeparator>(m_root.get());
    auto* transform = add<LuMatrixTransform>(inner);
    transform->matrix.setValue(getTwist());
    add<LuClipPlane>(inner)->plane.setValue(LvPlane({0, 1, 0}, 100.0F));
    add<LuCube>(inner)->depth.setValue(50);
    add<LuCube>(m_root.get());
    EXPECT_EQ(pickZ(0, 0), 1);
}

TEST_F(RayPickTest, SpaceWithoutExtentIsNotMet) {
    auto* scale = add<LuScale>(m_root.get());
    add<LuCube>(m_root.get());
    auto* sphereSpace = add<LuSeparator>(m_root.get());
    add<LuSphere>(sphereSpace);
    for (const LvVec3f& factor :
         {LvVec3f(1, 1, 0), LvVec3f(0, 0, 0), LvVec3f(1, std::numeric_limits<float>::quiet_NaN(), 1)}) {
        scale->scaleFactor.setValue(factor);
        EXPECT_FALSE(pick(0, 0));
    }
    scale->scaleFactor.setValue({1e-8F, 1e-8F, 1e-8F});
    const LuPickedPoint* point = pick(0, 0);
    ASSERT_TRUE(point);
    expectNear(point->getNormal(), {0, 0, 1});
}

TEST_F(RayPickTest, FromInsideTheFarSideIsMet) {
    add<LuSphere>(m_root.get())->radius.setValue(10);
    auto* cube = add<LuCube>(m_root.get());
    cube->width.setValue(8);
    const LuPickedPoint* point = pick(LvLine::fromDirection({0, 0, 0}, {1, 0, 0}));
    ASSERT_TRUE(point);
    expectNear(point->getPoint(), {4, 0, 0});
    expectNear(point->getNormal(), {1, 0, 0});
}

TEST_F(RayPickTest, OnlyThePartOfTheRayBetweenItsEndsCounts) {
    add<LuCube>(m_root.get());
    m_action.setRay(lookDown(0, 0), 0, 98);
    m_action.apply(m_root.get());
    EXPECT_FALSE(m_action.getPickedPoint());
    m_action.setRay(lookDown(0, 0), 99.5, 200);
    m_action.apply(m_root.get());
    ASSERT_TRUE(m_action.getPickedPoint());
    EXPECT_EQ(m_action.getPickedPoint()->getPoint().z, -1);
    EXPECT_FALSE(pick(LvLine::fromDirection({0, 0, -5}, {0, 0, -1})));
    EXPECT_FALSE(pick(LvLine::fromDirection({0, 0, 0}, {0, 0, 0})));
}

TEST_F(RayPickTest, PathLeadsFromTheRootToTheShape) {
    auto* group = add<LuGroup>(m_root.get());
    add<LuTranslation>(group);
    auto* inner = add<LuSeparator>(group);
    auto* cube = add<LuCube>(inner);
    const LuPath& path = *pick(0, 0)->getPath();
    ASSERT_EQ(path.getLength(), 4);
    EXPECT_EQ(path.getHead(), m_root.get());
    EXPECT_EQ(path.getNode(1), group);
    EXPECT_EQ(path.getNode(2), inner);
    EXPECT_EQ(path.getIndex(2), 1);
    EXPECT_EQ(path.getTail(), cube);
}

TEST_F(RayPickTest, PathTellsThePlacesOfASharedShapeApart) {
    auto* left = add<LuSeparator>(m_root.get());
    auto* right = add<LuSeparator>(m_root.get());
    auto* cube = new LuCube;
    move(left, {-5, 0, 0});
    move(right, {5, 0, 0});
    left->addChild(cube);
    right->addChild(cube);
    EXPECT_EQ(pick(-5, 0)->getPath()->getNode(1), left);
    EXPECT_EQ(pick(5, 0)->getPath()->getNode(1), right);
}

TEST_F(RayPickTest, PathLimitsThePickToWhatIsOnAndBelowIt) {
    move(m_root.get(), {2, 0, 0});
    auto* beside = add<LuSeparator>(m_root.get());
    add<LuCube>(beside)->depth.setValue(50);
    auto* inner = add<LuSeparator>(m_root.get());
    add<LuCube>(inner);
    LuPath path(m_root.get());
    path.append(inner, 2);
    m_action.setRay(lookDown(2, 0));
    m_action.apply(path);
    ASSERT_TRUE(m_action.getPickedPoint());
    EXPECT_EQ(m_action.getPickedPoint()->getPoint().z, 1);
}

TEST_F(RayPickTest, ChangesFarBelowAreSeen) {
    auto* outer = add<LuSeparator>(m_root.get());
    auto* inner = add<LuSeparator>(outer);
    auto* translation = move(inner, {0, 0, 0});
    add<LuCube>(inner);
    EXPECT_TRUE(pick(0, 0));
    EXPECT_FALSE(pick(10, 0));
    translation->translation.setValue({10, 0, 0});
    EXPECT_TRUE(pick(10, 0));
    EXPECT_FALSE(pick(0, 0));
}

TEST_F(RayPickTest, TextWithAnInheritedFontIsMetInItsSeparator) {
    auto* font = add<LuFont>(m_root.get());
    auto* inner = add<LuSeparator>(m_root.get());
    add<LuText3>(inner)->string.setValue(LvString("o"));
    font->size.setValue(100);
    EXPECT_EQ(pickZ(20, 20), 0);
    font->size.setValue(10);
    EXPECT_FALSE(pick(20, 20));
}

/// Counts how often a ray is held against it.
class CountedCube : public LuCube {
public:
    mutable int count = 0;

protected:
    void intersect(const LuTraversalState& state, const LuPickRay& ray, LuPickHit& hit) const override {
        ++count;
        LuCube::intersect(state, ray, hit);
    }
};

TEST_F(RayPickTest, WhatTheRayMissesIsNotLookedAt) {
    auto* row = add<LuSeparator>(m_root.get());
    move(row, {20, 0, 0});
    auto* cube = add<CountedCube>(row);
    add<LuCube>(m_root.get());
    EXPECT_TRUE(pick(0, 0));
    EXPECT_EQ(cube->count, 0);
    EXPECT_TRUE(pick(20, 0));
    EXPECT_EQ(cube->count, 1);
}

TEST_F(RayPickTest, WhatLiesBehindTheNearestIsNotLookedAt) {
    add<LuCube>(m_root.get());
    auto* behind = add<LuSeparator>(m_root.get());
    move(behind, {0, 0, -20});
    auto* cube = add<CountedCube>(behind);
    EXPECT_EQ(pickZ(0, 0), 1);
    EXPECT_EQ(cube->count, 0);
    m_action.setPickAll(true);
    pick(0, 0);
    EXPECT_EQ(cube->count, 1);
}

TEST_F(RayPickTest, WhatTheRayJustTouchesIsNotLeftOut) {
    // All numbers are exact: rays along the axes and between them, through corners, edges and faces. Without
    // a separator round the cube nothing is left out.
    const LvVec3f place(7, -3, 2);
    auto* part = add<LuSeparator>(m_root.get());
    move(part, place);
    add<LuCube>(part);
    const Held<LuGroup> alone;
    move(alone.get(), place);
    add<LuCube>(alone.get());
    int met = 0;
    std::mt19937 random(11);
    const auto draw = [&] {
        std::uniform_int_distribution<int> number(-1, 1);
        const int x = number(random), y = number(random), z = number(random);
        return LvVec3f(static_cast<float>(x), static_cast<float>(y), static_cast<float>(z));
    };
    for (int i = 0; i < 2000; ++i) {
        const LvVec3f target = place + draw();
        const LvLine line = LvLine::fromDirection(target - draw() * 16, draw());
        const bool isLeftOut = !pick(line);
        m_action.apply(alone.get());
        const bool isMet = m_action.getPickedPoint() != nullptr;
        ASSERT_EQ(isMet, !isLeftOut) << "ray " << i;
        met += isMet ? 1 : 0;
    }
    EXPECT_GT(met, 100);
}

class CameraPickTest : public RayPickTest {
protected:
    CameraPickTest() : m_picker(LvViewportRegion(200, 100)) {}
    LuPickedPoint* pickPixel(int x, int y) {
        m_picker.setPoint({x, y});
        m_picker.apply(m_root.get());
        return m_picker.getPickedPoint();
    }
    LuRayPickAction m_picker;
};

TEST_F(CameraPickTest, PixelIsSeenByTheCameraInTheScene) {
    auto* camera = add<LuOrthographicCamera>(m_root.get());
    camera->height.setValue(100);
    camera->position.setValue({100, 50, 20});
    camera->farDistance.setValue(50);
    auto* cube = add<LuCube>(m_root.get());
    cube->width.setValue(21);
    cube->height.setValue(21);
    const LuPickedPoint* point = pickPixel(10, 3);
    ASSERT_TRUE(point);
    expectNear(point->getPoint(), {10.5F, 3.5F, 1}, 1e-3F);
    EXPECT_FALSE(pickPixel(10, 11));
}

TEST_F(CameraPickTest, NearAndFarPlanesLimitThePick) {
    auto* camera = add<LuPerspectiveCamera>(m_root.get());
    camera->position.setValue({0, 0, 10});
    camera->nearDistance.setValue(2);
    camera->farDistance.setValue(8.5F);
    add<LuCube>(m_root.get())->depth.setValue(2);
    EXPECT_FALSE(pickPixel(100, 50));
    camera->farDistance.setValue(20);
    EXPECT_TRUE(pickPixel(100, 50));
    camera->nearDistance.setValue(10);
    ASSERT_TRUE(pickPixel(100, 50));
    EXPECT_NEAR(m_picker.getPickedPoint()->getPoint().z, -1, 1e-4);
}

TEST_F(CameraPickTest, NothingIsPickedWithoutACamera) {
    add<LuCube>(m_root.get());
    add<LuOrthographicCamera>(m_root.get());
    EXPECT_FALSE(pickPixel(100, 50));
    LvViewVolume volume = LvViewVolume::orthographic(2, 2, 1, 10);
    volume.setPose({0, 0, 5}, {});
    m_picker.setViewVolume(volume);
    EXPECT_TRUE(pickPixel(100, 50));
}

TEST_F(CameraPickTest, CameraOfASeparatorSeesOnlyWhatIsInIt) {
    auto* inner = add<LuSeparator>(m_root.get());
    auto* camera = add<LuOrthographicCamera>(inner);
    camera->position.setValue({0, 0, 5});
    add<LuSphere>(inner);
    add<LuCube>(m_root.get());
    const LuPickedPoint* point = pickPixel(100, 50);
    ASSERT_TRUE(point);
    EXPECT_TRUE(point->getPath()->getTail()->isOfType(LuSphere::getClassTypeId()));
}

/// A kit with one part that users know.
class PickedKit : public LuInteractionKit {
    LU_KIT_HEADER(PickedKit)
    PickedKit();
    LuSFNode knob;
};
LU_KIT_SOURCE(PickedKit, LuInteractionKit, "PickedKit")
PickedKit::PickedKit() {
    LuKitConstructor constructor(s_class, this, &initClass);
    constructor.part("knob", knob, "Group", "geomSeparator", true);
}

class KitPickTest : public RayPickTest {
protected:
    ~KitPickTest() override {
        m_root->removeAllChildren();
        EXPECT_FALSE(pick(0, 0)) << "the points of the last pick are let go";
        PickedKit::exitClass();
    }
};

TEST_F(KitPickTest, KitTellsWhichPublicPartWasPicked) {
    auto* kit = new PickedKit;
    m_root->addChild(kit);
    auto* knob = static_cast<LuGroup*>(kit->getPart("knob", true));
    add<LuCube>(knob);
    auto* rest = static_cast<LuGroup*>(kit->getPart("geomSeparator", true));
    move(rest, {10, 0, 0});
    add<LuCube>(rest);

    const LuPickedPoint* point = pick(0, 0);
    ASSERT_TRUE(point);
    const auto* detail = static_cast<const LuNodeKitDetail*>(point->getDetail(kit));
    ASSERT_TRUE(detail);
    EXPECT_TRUE(detail->isOfType(LuDetail::getClassTypeId()));
    EXPECT_EQ(detail->getNodeKit(), kit);
    EXPECT_EQ(detail->getPart(), knob);
    EXPECT_EQ(detail->getPartName(), LvName("knob"));
    EXPECT_FALSE(point->getDetail(knob));

    point = pick(10, 0);
    ASSERT_TRUE(point);
    detail = static_cast<const LuNodeKitDetail*>(point->getDetail(kit));
    ASSERT_TRUE(detail);
    EXPECT_FALSE(detail->getPart());
}

TEST_F(RayPickTest, DetailIsReplacedByALaterOne) {
    auto* cube = add<LuCube>(m_root.get());
    LuPickedPoint* point = pick(0, 0);
    ASSERT_TRUE(point);
    EXPECT_FALSE(point->getDetail());
    auto* detail = new LuNodeKitDetail;
    point->setDetail(new LuNodeKitDetail, cube);
    point->setDetail(detail, cube);
    EXPECT_EQ(point->getDetail(cube), detail);
    EXPECT_EQ(point->getDetail(), detail);
}

} // namespace
