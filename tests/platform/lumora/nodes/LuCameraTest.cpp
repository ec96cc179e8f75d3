// SPDX-License-Identifier: MIT
#include "platform/lumora/nodes/LuCamera.h"

#include "platform/lumora/actions/LuAction.h"
#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuShapes.h"
#include "platform/lumora/nodes/LuTransforms.h"
#include "tests/host/ToolkitTest.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

using CameraTest = ToolkitTest;

/// Looks, and does nothing else.
class LookAction : public LuAction {
public:
    explicit LookAction(const LvViewportRegion& region) : m_region(region) {}
    const LvViewportRegion* getViewport() const override { return &m_region; }

protected:
    void visit(LuNode* node) override { node->doAction(this); }

private:
    LvViewportRegion m_region;
};

/// The box of the screen that the corners of a scene's box cover.
LvBox3f getSeen(const LvViewVolume& volume, const LvBox3f& box) {
    LvBox3f seen;
    for (int i = 0; i < 8; ++i)
        seen.extendBy(volume.projectToScreen(
            {i & 1 ? box.max.x : box.min.x, i & 2 ? box.max.y : box.min.y, i & 4 ? box.max.z : box.min.z}));
    return seen;
}

TEST_F(CameraTest, VolumeFollowsTheFields) {
    const Held<LuPerspectiveCamera> camera;
    camera->position.setValue({1, 2, 3});
    camera->heightAngle.setValue(std::numbers::pi_v<float> / 2);
    camera->nearDistance.setValue(2);
    camera->farDistance.setValue(8);
    camera->aspectRatio.setValue(3);
    const LvViewVolume volume = camera->getViewVolume();
    EXPECT_TRUE(volume.isPerspective());
    EXPECT_EQ(volume.getEye(), LvVec3f(1, 2, 3));
    EXPECT_NEAR(volume.getNearSize().x, 12, 1e-4);
    EXPECT_NEAR(volume.getNearSize().y, 4, 1e-4);
    EXPECT_EQ(volume.getFarDistance(), 8);
}

TEST_F(CameraTest, ViewportGivesTheAspectInATraversal) {
    const Held<LuGroup> root;
    auto* camera = new LuOrthographicCamera;
    camera->height.setValue(6);
    root->addChild(camera);
    LookAction action(LvViewportRegion(200, 100));
    action.apply(root.get());
    ASSERT_TRUE(action.getState().viewVolume.isSet());
    EXPECT_EQ(action.getState().viewVolume.get().getNearSize(), LvVec2f(12, 6));
}

TEST_F(CameraTest, SeparatorKeepsItsCameraToItself) {
    const Held<LuSeparator> root;
    root->addChild(new LuOrthographicCamera);
    LookAction action(LvViewportRegion(200, 100));
    action.apply(root.get());
    EXPECT_FALSE(action.getState().viewVolume.isSet());
}

TEST_F(CameraTest, CameraIsBackBehindASeparatorWithAnother) {
    const Held<LuGroup> root;
    auto* outer = new LuOrthographicCamera;
    outer->height.setValue(6);
    auto* separator = new LuSeparator;
    separator->addChild(new LuPerspectiveCamera);
    root->addChild(outer);
    root->addChild(separator);
    LookAction action(LvViewportRegion(200, 100));
    for (int i = 0; i < 2; ++i) {
        action.apply(root.get());
        ASSERT_TRUE(action.getState().viewVolume.isSet());
        EXPECT_EQ(action.getState().viewVolume.get().getNearSize(), LvVec2f(12, 6));
    }
}

/// Applies the action that has come to it to another scene.
class NestedNode : public LuGroup {
public:
    explicit NestedNode(LuNode* other) : m_other(other) {}
    void doAction(LuAction* action) override { action->apply(m_other); }

private:
    LuNode* m_other;
};

TEST_F(CameraTest, CameraIsBackBehindAWalkWithinTheWalk) {
    const Held<LuPerspectiveCamera> inner;
    const Held<LuGroup> root;
    auto* outer = new LuOrthographicCamera;
    outer->height.setValue(6);
    root->addChild(outer);
    root->addChild(new NestedNode(inner.get()));
    LookAction action(LvViewportRegion(200, 100));
    action.apply(root.get());
    ASSERT_TRUE(action.getState().viewVolume.isSet());
    EXPECT_EQ(action.getState().viewVolume.get().getNearSize(), LvVec2f(12, 6));
}

TEST_F(CameraTest, ViewAllFillsTheRegionWithTheScene) {
    const Held<LuSeparator> scene;
    auto* translation = new LuTranslation;
    translation->translation.setValue({30, -20, 5});
    auto* cube = new LuCube;
    cube->width.setValue(400);
    cube->height.setValue(100);
    scene->addChild(translation);
    scene->addChild(cube);
    const LvBox3f box({-170, -70, 4}, {230, 30, 6});
    const Held<LuPerspectiveCamera> perspective;
    const Held<LuOrthographicCamera> orthographic;
    for (LuCamera* camera :
         {static_cast<LuCamera*>(perspective.get()), static_cast<LuCamera*>(orthographic.get())}) {
        for (const LvViewportRegion& region : {LvViewportRegion(800, 100), LvViewportRegion(100, 300)}) {
            camera->viewAll(scene.get(), region);
            const LvBox3f seen = getSeen(camera->getViewVolume(region.getAspectRatio()), box);
            EXPECT_NEAR(seen.getCenter().x, 0.5, 1e-3);
            EXPECT_NEAR(seen.getCenter().y, 0.5, 1e-3);
            EXPECT_NEAR(std::max(seen.getSize().x, seen.getSize().y), 1, 1e-3);
            EXPECT_GT(seen.min.z, 0);
            EXPECT_LT(seen.max.z, 1);
        }
    }
}

TEST_F(CameraTest, ViewAllLeavesTheMarginFree) {
    const Held<LuCube> cube;
    const Held<LuOrthographicCamera> camera;
    camera->viewAll(cube.get(), LvViewportRegion(100, 100), 0.25F);
    EXPECT_NEAR(camera->height.getValue(), 4, 1e-4);
}

TEST_F(CameraTest, ViewAllKeepsTheDirection) {
    const Held<LuCube> cube;
    const Held<LuPerspectiveCamera> camera;
    camera->orientation.setValue(LvRotation(LvVec3f(0, 1, 0), std::numbers::pi_v<float> / 2));
    camera->viewAll(cube.get(), LvViewportRegion(100, 100));
    const LvVec3f& place = camera->position.getValue();
    EXPECT_GT(place.x, 1);
    EXPECT_NEAR(place.y, 0, 1e-4);
    EXPECT_NEAR(place.z, 0, 1e-4);
}

TEST_F(CameraTest, ViewAllOfNothingOrOfAPointStaysFinite) {
    const Held<LuSeparator> nothing;
    const Held<LuCube> point;
    point->width.setValue(0);
    point->height.setValue(0);
    point->depth.setValue(0);
    const Held<LuPerspectiveCamera> camera;
    const LvVec3f before = camera->position.getValue();
    camera->viewAll(nothing.get(), LvViewportRegion(100, 100));
    EXPECT_EQ(camera->position.getValue(), before);
    camera->viewAll(point.get(), LvViewportRegion(0, 0));
    EXPECT_GT(camera->position.getValue().z, 0);
    EXPECT_TRUE(std::isfinite(camera->farDistance.getValue()));
}

TEST_F(CameraTest, PointAtTurnsTheCameraWithYUp) {
    const Held<LuPerspectiveCamera> camera;
    camera->position.setValue({10, 0, 0});
    camera->pointAt({0, 0, 0});
    EXPECT_NEAR(camera->getViewVolume().getSightDirection().x, -1, 1e-5);
    EXPECT_NEAR(camera->getViewVolume().getUpDirection().y, 1, 1e-5);
    camera->position.setValue({0, 10, 0});
    camera->pointAt({0, 0, 0});
    EXPECT_NEAR(camera->getViewVolume().getSightDirection().y, -1, 1e-5);
    const LvRotation before = camera->orientation.getValue();
    camera->pointAt({0, 10, 0});
    EXPECT_EQ(camera->orientation.getValue(), before);
}

} // namespace
