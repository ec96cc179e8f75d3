// SPDX-License-Identifier: MIT
#include "platform/lumora/viewer/LuNavigator.h"

#include "platform/lumora/base/LvBox3f.h"
#include "platform/lumora/events/LuKeyboardEvent.h"
#include "platform/lumora/nodes/LuCamera.h"
#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuShapes.h"
#include "tests/host/ToolkitTest.h"

#include <cmath>
#include <limits>
#include <numbers>

namespace {

constexpr float ROUNDING = 1e-4F;
constexpr auto LEFT = LuMouseButtonEvent::BUTTON1;
constexpr auto MIDDLE = LuMouseButtonEvent::BUTTON2;
constexpr auto RIGHT = LuMouseButtonEvent::BUTTON3;

/// The cameras stand 5 before the origin and look at it, in a viewport of 200 by 100 pixels.
class LuNavigatorTest : public ToolkitTest {
protected:
    LuNavigatorTest() {
        for (LuCamera* camera :
             {static_cast<LuCamera*>(m_perspective.get()), static_cast<LuCamera*>(m_orthographic.get())}) {
            camera->position.setValue({0, 0, 5});
            camera->focalDistance.setValue(5);
        }
        m_scene->addChild(new LuCube);
    }

    bool send(const LuEvent& event, LuCamera& camera) {
        return m_navigator.handleEvent(event, camera, m_scene.get(), m_region);
    }
    bool press(LuMouseButtonEvent::Button button, LvVec2i32 at, LuCamera& camera, bool isShiftDown = false) {
        LuMouseButtonEvent event(button, LuButtonEvent::DOWN, at);
        event.setShiftDown(isShiftDown);
        return send(event, camera);
    }
    bool move(LvVec2i32 to, LuCamera& camera) { return send(LuLocation2Event(to), camera); }
    bool release(LuMouseButtonEvent::Button button, LvVec2i32 at, LuCamera& camera) {
        return send(LuMouseButtonEvent(button, LuButtonEvent::UP, at), camera);
    }
    void drag(LuMouseButtonEvent::Button button, LvVec2i32 from, LvVec2i32 to, LuCamera& camera,
              bool isShiftDown = false) {
        press(button, from, camera, isShiftDown);
        move(to, camera);
        release(button, to, camera);
    }

    /// Where the point at the pixel's place on the plane through the origin is.
    LvVec3f getPointAt(LvVec2i32 pixel, const LuCamera& camera) {
        return camera.getViewVolume(2).getPlanePoint(5, m_region.getNormalizedPosition(pixel));
    }

    static void expectNear(const LvVec3f& expected, const LvVec3f& found) {
        EXPECT_NEAR(expected.x, found.x, ROUNDING);
        EXPECT_NEAR(expected.y, found.y, ROUNDING);
        EXPECT_NEAR(expected.z, found.z, ROUNDING);
    }

    LuNavigator m_navigator;
    LvViewportRegion m_region{200, 100};
    Held<LuPerspectiveCamera> m_perspective;
    Held<LuOrthographicCamera> m_orthographic;
    Held<LuSeparator> m_scene;
};

TEST_F(LuNavigatorTest, dragToTheRight_turnsTheSceneToTheRight) {
    // Half the height of the viewport is a quarter turn.
    drag(RIGHT, {100, 50}, {150, 50}, *m_perspective);
    expectNear({-5, 0, 0}, m_perspective->position.getValue());
    expectNear({1, 0, 0}, m_perspective->getViewVolume().getSightDirection());
}

TEST_F(LuNavigatorTest, dragUp_movesTheCameraDown) {
    drag(RIGHT, {100, 50}, {100, 75}, *m_perspective);
    const float side = 5 / std::sqrt(2.0F);
    expectNear({0, -side, side}, m_perspective->position.getValue());
}

TEST_F(LuNavigatorTest, leftButton_orbitsToo) {
    EXPECT_TRUE(press(LEFT, {100, 50}, *m_perspective));
    EXPECT_TRUE(move({150, 50}, *m_perspective));
    expectNear({-5, 0, 0}, m_perspective->position.getValue());
}

TEST_F(LuNavigatorTest, manySteps_endWhereOneDoes) {
    press(RIGHT, {0, 0}, *m_perspective);
    for (int x = 1; x <= 150; ++x)
        move({x, x / 10}, *m_perspective);
    release(RIGHT, {150, 15}, *m_perspective);
    drag(RIGHT, {0, 0}, {150, 15}, *m_orthographic);
    const LvVec3f& inSteps = m_perspective->position.getValue();
    EXPECT_NEAR(inSteps.length(), 5, 0.01F);
    EXPECT_NEAR(inSteps.y, m_orthographic->position.getValue().y, 0.01F);
}

TEST_F(LuNavigatorTest, dragBeyondThePole_stopsThere) {
    drag(RIGHT, {100, 0}, {100, 99}, *m_perspective);
    drag(RIGHT, {100, 0}, {100, 99}, *m_perspective);
    EXPECT_GT(m_perspective->getViewVolume().getSightDirection().y, 0.999F);
    EXPECT_GT(m_perspective->getViewVolume().getUpDirection().y, 0);
}

TEST_F(LuNavigatorTest, turnedAndBack_isWhereItWas) {
    drag(RIGHT, {20, 20}, {70, 45}, *m_perspective);
    drag(RIGHT, {70, 45}, {20, 20}, *m_perspective);
    expectNear({0, 0, 5}, m_perspective->position.getValue());
}

TEST_F(LuNavigatorTest, middleButton_keepsThePointUnderThePointer) {
    for (LuCamera* camera :
         {static_cast<LuCamera*>(m_perspective.get()), static_cast<LuCamera*>(m_orthographic.get())}) {
        const LvVec3f before = getPointAt({30, 20}, *camera);
        drag(MIDDLE, {30, 20}, {120, 70}, *camera);
        expectNear(before, getPointAt({120, 70}, *camera));
        EXPECT_NE(camera->position.getValue(), LvVec3f(0, 0, 5));
    }
}

TEST_F(LuNavigatorTest, rightButtonWithShift_pansAsTheMiddleOneDoes) {
    const LvVec3f before = getPointAt({30, 20}, *m_perspective);
    drag(RIGHT, {30, 20}, {120, 70}, *m_perspective, true);
    expectNear(before, getPointAt({120, 70}, *m_perspective));
    EXPECT_EQ(m_perspective->orientation.getValue(), LvRotation());
}

TEST_F(LuNavigatorTest, wheelUp_goesTowardsTheFocus) {
    EXPECT_TRUE(press(LuMouseButtonEvent::WHEEL_UP, {0, 0}, *m_perspective));
    const float distance = m_perspective->focalDistance.getValue();
    EXPECT_LT(distance, 5);
    expectNear({0, 0, distance}, m_perspective->position.getValue());
}

TEST_F(LuNavigatorTest, wheelUpAndDown_isWhereItWas) {
    press(LuMouseButtonEvent::WHEEL_UP, {0, 0}, *m_perspective);
    press(LuMouseButtonEvent::WHEEL_DOWN, {0, 0}, *m_perspective);
    expectNear({0, 0, 5}, m_perspective->position.getValue());
}

TEST_F(LuNavigatorTest, wheelWithOrthographicCamera_changesItsHeight) {
    press(LuMouseButtonEvent::WHEEL_UP, {0, 0}, *m_orthographic);
    EXPECT_LT(m_orthographic->height.getValue(), 2);
    expectNear({0, 0, 5}, m_orthographic->position.getValue());
}

TEST_F(LuNavigatorTest, endlessZoom_staysFinite) {
    for (int i = 0; i < 1000; ++i)
        press(LuMouseButtonEvent::WHEEL_DOWN, {0, 0}, *m_perspective);
    EXPECT_TRUE(std::isfinite(m_perspective->position.getValue().z));
    for (int i = 0; i < 2000; ++i)
        press(LuMouseButtonEvent::WHEEL_UP, {0, 0}, *m_perspective);
    EXPECT_GT(m_perspective->focalDistance.getValue(), 0);
}

TEST_F(LuNavigatorTest, home_showsTheWholeScene) {
    m_perspective->position.setValue({100, 3, 4});
    EXPECT_TRUE(send(LuKeyboardEvent(LuKeyboardEvent::HOME), *m_perspective));
    expectNear({0.5F, 0.5F, 0}, [this] {
        LvVec3f seen = m_perspective->getViewVolume(2).projectToScreen({0, 0, 0});
        seen.z = 0;
        return seen;
    }());
}

TEST_F(LuNavigatorTest, homeWithoutAScene_leavesTheCamera) {
    m_navigator.handleEvent(LuKeyboardEvent(LuKeyboardEvent::HOME), *m_perspective, nullptr, m_region);
    EXPECT_EQ(m_perspective->position.getValue(), LvVec3f(0, 0, 5));
}

TEST_F(LuNavigatorTest, otherEvents_areNotHandled) {
    EXPECT_FALSE(move({10, 10}, *m_perspective));
    EXPECT_FALSE(release(LEFT, {10, 10}, *m_perspective));
    EXPECT_FALSE(send(LuKeyboardEvent(LuKeyboardEvent::A), *m_perspective));
    EXPECT_FALSE(send(LuKeyboardEvent(LuKeyboardEvent::HOME, LuButtonEvent::UP), *m_perspective));
    EXPECT_EQ(m_perspective->position.getValue(), LvVec3f(0, 0, 5));
}

TEST_F(LuNavigatorTest, release_endsTheDrag) {
    press(RIGHT, {10, 10}, *m_perspective);
    EXPECT_TRUE(release(RIGHT, {10, 10}, *m_perspective));
    EXPECT_FALSE(m_navigator.isDragging());
    EXPECT_FALSE(move({90, 90}, *m_perspective));
}

TEST_F(LuNavigatorTest, releaseOfAnotherButton_doesNotEndTheDrag) {
    press(RIGHT, {10, 10}, *m_perspective);
    press(LEFT, {10, 10}, *m_perspective);
    release(LEFT, {10, 10}, *m_perspective);
    EXPECT_TRUE(m_navigator.isDragging());
}

/// A camera is finite when it was made so, or has been moved.
void expectFinite(const LuCamera& camera) {
    const LvVec3f& position = camera.position.getValue();
    const LvRotation& orientation = camera.orientation.getValue();
    EXPECT_TRUE(std::isfinite(position.x + position.y + position.z));
    EXPECT_TRUE(std::isfinite(orientation.x + orientation.y + orientation.z + orientation.w));
    EXPECT_TRUE(std::isfinite(camera.focalDistance.getValue()) && camera.focalDistance.getValue() > 0);
}

TEST_F(LuNavigatorTest, degenerateCameras_becomeFinite) {
    constexpr float NONE = std::numeric_limits<float>::quiet_NaN();
    constexpr float ENDLESS = std::numeric_limits<float>::infinity();
    for (LuCamera* camera :
         {static_cast<LuCamera*>(m_perspective.get()), static_cast<LuCamera*>(m_orthographic.get())}) {
        for (const float odd : {NONE, ENDLESS, -ENDLESS, 0.0F, -1.0F, 1e30F}) {
            camera->position.setValue({odd, odd, odd});
            camera->orientation.setValue(LvRotation(odd, 0, 0, 0));
            camera->focalDistance.setValue(odd);
            camera->nearDistance.setValue(odd);
            camera->farDistance.setValue(odd);
            m_perspective->heightAngle.setValue(odd);
            m_orthographic->height.setValue(odd);
            drag(RIGHT, {10, 10}, {40, 30}, *camera);
            drag(MIDDLE, {10, 10}, {40, 30}, *camera);
            press(LuMouseButtonEvent::WHEEL_UP, {0, 0}, *camera);
            SCOPED_TRACE(odd);
            expectFinite(*camera);
            EXPECT_TRUE(std::isfinite(m_orthographic->height.getValue()) || camera != m_orthographic.get());
        }
    }
}

TEST_F(LuNavigatorTest, oddArguments_changeNothing) {
    constexpr float NONE = std::numeric_limits<float>::quiet_NaN();
    LuNavigator::orbit(*m_perspective, NONE, 1);
    LuNavigator::pan(*m_perspective, 1, {NONE, 0}, {0, 0});
    for (const float factor : {NONE, 0.0F, -2.0F})
        LuNavigator::zoom(*m_perspective, factor);
    EXPECT_EQ(m_perspective->position.getValue(), LvVec3f(0, 0, 5));
    EXPECT_EQ(m_perspective->orientation.getValue(), LvRotation());
}

TEST_F(LuNavigatorTest, viewportWithoutASize_doesNoHarm) {
    m_region = LvViewportRegion(0, 0);
    drag(RIGHT, {10, 10}, {40, 30}, *m_perspective);
    drag(MIDDLE, {10, 10}, {40, 30}, *m_perspective);
    expectFinite(*m_perspective);
}

TEST_F(LuNavigatorTest, fitDepth_takesAllOfTheBoxIn) {
    LuNavigator::fitDepth(*m_perspective, {{-1, -1, -40}, {1, 1, 2}});
    EXPECT_LT(m_perspective->nearDistance.getValue(), 3);
    EXPECT_GT(m_perspective->nearDistance.getValue(), 0);
    EXPECT_GT(m_perspective->farDistance.getValue(), 45);
    EXPECT_LT(m_perspective->farDistance.getValue(), 60);
}

TEST_F(LuNavigatorTest, fitDepthFromWithinTheBox_leavesTheNearPlaneBeforeTheEye) {
    LuNavigator::fitDepth(*m_perspective, {{-9, -9, -9}, {9, 9, 9}});
    EXPECT_GT(m_perspective->nearDistance.getValue(), 0);
    EXPECT_GT(m_perspective->farDistance.getValue(), 14);
}

TEST_F(LuNavigatorTest, fitDepthOfAnOrthographicCamera_seesWhatLiesBehindItToo) {
    LuNavigator::fitDepth(*m_orthographic, {{-1, -1, -9}, {1, 1, 9}});
    EXPECT_LT(m_orthographic->nearDistance.getValue(), -4);
    EXPECT_GT(m_orthographic->farDistance.getValue(), 14);
}

TEST_F(LuNavigatorTest, fitDepthOfNothing_changesNothing) {
    LuNavigator::fitDepth(*m_perspective, LvBox3f());
    LuNavigator::fitDepth(*m_perspective, {{-1, -1, 10}, {1, 1, 20}});
    EXPECT_EQ(m_perspective->nearDistance.getValue(), 1);
    EXPECT_EQ(m_perspective->farDistance.getValue(), 10);
}

} // namespace
