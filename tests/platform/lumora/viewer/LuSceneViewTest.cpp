// SPDX-License-Identifier: MIT
#include "platform/lumora/viewer/LuSceneView.h"

#include "platform/lumora/events/LuKeyboardEvent.h"
#include "platform/lumora/nodes/LuCamera.h"
#include "platform/lumora/nodes/LuEventCallback.h"
#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuProperties.h"
#include "platform/lumora/nodes/LuShapes.h"
#include "platform/lumora/sensors/LuSensorQueue.h"
#include "tests/host/TestHost.h"
#include "tests/host/ToolkitTest.h"

#include <optional>

namespace {

void takeEvent(void*, LuEventCallback* node) { node->setHandled(); }

void grabEvents(void*, LuEventCallback* node) {
    node->grabEvents();
    node->setHandled();
}

/// A red cube with edges of 2 in the middle of a view of 100 by 100 pixels.
class LuSceneViewTest : public ToolkitTest {
protected:
    LuSceneViewTest() {
        m_material->diffuseColor.setValue(LvColor(1, 0, 0));
        m_scene->addChild(m_material.get());
        m_scene->addChild(new LuCube);
        m_view.emplace();
        m_view->setSize(100, 100);
        m_view->setScene(m_scene.get());
        m_view->viewAll();
    }
    ~LuSceneViewTest() override { m_view.reset(); }

    void listen(LuType type, LuEventCallbackFunction function) {
        auto* const callback = new LuEventCallback;
        callback->addEventCallback(type, function);
        m_scene->insertChild(callback, 0);
    }
    bool press(LuMouseButtonEvent::Button button) {
        return m_view->handleEvent(LuMouseButtonEvent(button, LuButtonEvent::DOWN, {50, 50}));
    }
    bool move(int x, int y) { return m_view->handleEvent(LuLocation2Event({x, y})); }
    LvVec3f getPosition() const { return m_view->getCamera()->position.getValue(); }

    Held<LuSeparator> m_scene;
    Held<LuMaterial> m_material;
    std::optional<LuSceneView> m_view;
};

TEST_F(LuSceneViewTest, newView_needsItsFirstPicture) { EXPECT_TRUE(m_view->needsRedraw()); }

TEST_F(LuSceneViewTest, drawn_needsNoOther) {
    EXPECT_TRUE(m_view->draw());
    EXPECT_FALSE(m_view->needsRedraw());
}

TEST_F(LuSceneViewTest, drawnTwice_needsNoOther) {
    m_view->draw();
    m_view->draw();
    EXPECT_FALSE(m_view->needsRedraw());
}

TEST_F(LuSceneViewTest, fieldInTheScene_needsRedraw) {
    m_view->draw();
    m_material->diffuseColor.setValue(LvColor(0, 1, 0));
    EXPECT_TRUE(m_view->needsRedraw());
}

TEST_F(LuSceneViewTest, childInTheScene_needsRedraw) {
    m_view->draw();
    m_scene->addChild(new LuCube);
    EXPECT_TRUE(m_view->needsRedraw());
}

TEST_F(LuSceneViewTest, movedCamera_needsRedraw) {
    m_view->draw();
    m_view->getCamera()->position.setValue({1, 2, 3});
    EXPECT_TRUE(m_view->needsRedraw());
}

TEST_F(LuSceneViewTest, settingsOfTheView_needRedrawWhenTheyDiffer) {
    m_view->draw();
    m_view->setSize(100, 100);
    EXPECT_FALSE(m_view->needsRedraw());
    m_view->setSize(101, 100);
    EXPECT_TRUE(m_view->needsRedraw());
    m_view->draw();
    m_view->setBackground(LvColor(1, 1, 1));
    EXPECT_TRUE(m_view->needsRedraw());
    m_view->draw();
    m_view->setHeadlight(0.5F);
    EXPECT_TRUE(m_view->needsRedraw());
}

TEST_F(LuSceneViewTest, oldScene_countsNoMore) {
    Held<LuSeparator> other;
    m_view->setScene(other.get());
    m_view->draw();
    m_material->diffuseColor.setValue(LvColor(0, 1, 0));
    EXPECT_FALSE(m_view->needsRedraw());
    EXPECT_EQ(m_scene->getRefCount(), 1);
}

TEST_F(LuSceneViewTest, sizeWithoutAnArea_isNotDrawn) {
    m_view->setSize(0, 100);
    EXPECT_FALSE(m_view->needsRedraw());
    EXPECT_TRUE(m_view->draw());
}

TEST_F(LuSceneViewTest, picture_showsTheSceneOnTheBackground) {
    m_view->setBackground(LvColor(0, 0, 1));
    const LuPicture picture = m_view->takePicture();
    ASSERT_EQ(picture.getWidth(), 100);
    ASSERT_EQ(picture.getHeight(), 100);
    EXPECT_GT(picture.at(50, 50).red, 200);
    EXPECT_LT(picture.at(50, 50).blue, 60);
    EXPECT_EQ(picture.at(1, 1), (LuPicture::Pixel{0, 0, 255, 255}));
}

TEST_F(LuSceneViewTest, pictureAfterAChange_showsTheChange) {
    m_view->takePicture();
    m_material->diffuseColor.setValue(LvColor(0, 1, 0));
    m_view->setSize(60, 40);
    const LuPicture picture = m_view->takePicture();
    ASSERT_EQ(picture.getWidth(), 60);
    EXPECT_GT(picture.at(30, 20).green, 200);
    EXPECT_LT(picture.at(30, 20).red, 60);
}

TEST_F(LuSceneViewTest, headlightOff_leavesTheAmbientLight) {
    m_view->setHeadlight(0);
    EXPECT_LT(m_view->takePicture().at(50, 50).red, 60);
}

TEST_F(LuSceneViewTest, noScene_showsTheBackground) {
    m_view->setScene(nullptr);
    m_view->setBackground(LvColor(0, 1, 0));
    EXPECT_EQ(m_view->takePicture().at(50, 50), (LuPicture::Pixel{0, 255, 0, 255}));
}

TEST_F(LuSceneViewTest, nearAndFar_followTheScene) {
    // The camera's own distances would cut the cube away.
    m_view->getCamera()->farDistance.setValue(m_view->getCamera()->nearDistance.getValue() + 0.01F);
    EXPECT_GT(m_view->takePicture().at(50, 50).red, 200);
}

TEST_F(LuSceneViewTest, depthNotFitted_leavesTheCameraAlone) {
    m_view->setDepthFitted(false);
    m_view->getCamera()->nearDistance.setValue(0.25F);
    m_view->draw();
    EXPECT_EQ(m_view->getCamera()->nearDistance.getValue(), 0.25F);
}

TEST_F(LuSceneViewTest, writtenPicture_isAFile) {
    EXPECT_TRUE(m_view->writePicture(getTestOutputFolder() + "/LuSceneViewTest.png"));
}

TEST_F(LuSceneViewTest, draw_firesTheSensorsThatWait) {
    int calls = 0;
    LuFieldSensor sensor([](void* data, LuSensor*) { ++*static_cast<int*>(data); }, &calls);
    sensor.attach(&m_material->transparency);
    m_material->transparency.setValue(0.5F);
    EXPECT_FALSE(LuSensorQueue::isEmpty());
    m_view->draw();
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(LuSensorQueue::isEmpty());
}

TEST_F(LuSceneViewTest, eventThatTheSceneTakes_doesNotMoveTheCamera) {
    listen(LuMouseButtonEvent::getClassTypeId(), &takeEvent);
    const LvVec3f before = getPosition();
    EXPECT_TRUE(press(LuMouseButtonEvent::WHEEL_UP));
    EXPECT_TRUE(press(LuMouseButtonEvent::BUTTON1));
    EXPECT_FALSE(move(80, 50));
    EXPECT_EQ(getPosition(), before);
}

TEST_F(LuSceneViewTest, eventThatNobodyTakes_movesTheCamera) {
    const LvVec3f before = getPosition();
    EXPECT_TRUE(press(LuMouseButtonEvent::BUTTON1));
    EXPECT_TRUE(move(80, 50));
    EXPECT_NE(getPosition(), before);
}

TEST_F(LuSceneViewTest, wheel_zooms) {
    const float before = getPosition().z;
    EXPECT_TRUE(press(LuMouseButtonEvent::WHEEL_UP));
    EXPECT_LT(getPosition().z, before);
}

TEST_F(LuSceneViewTest, home_viewsAll) {
    const LvVec3f before = getPosition();
    press(LuMouseButtonEvent::WHEEL_UP);
    EXPECT_TRUE(m_view->handleEvent(LuKeyboardEvent(LuKeyboardEvent::HOME)));
    EXPECT_NEAR(getPosition().z, before.z, 0.01F);
}

TEST_F(LuSceneViewTest, dragOfTheCamera_goesOnOverWhatTakesMotions) {
    press(LuMouseButtonEvent::BUTTON3);
    listen(LuLocation2Event::getClassTypeId(), &takeEvent);
    const LvVec3f before = getPosition();
    EXPECT_TRUE(move(80, 50));
    EXPECT_NE(getPosition(), before);
}

TEST_F(LuSceneViewTest, eventsThatAGrabberLeavesOver_doNotMoveTheCamera) {
    listen(LuMouseButtonEvent::getClassTypeId(), &grabEvents);
    press(LuMouseButtonEvent::BUTTON1);
    const LvVec3f before = getPosition();
    EXPECT_FALSE(m_view->handleEvent(LuKeyboardEvent(LuKeyboardEvent::HOME)));
    EXPECT_EQ(getPosition(), before);
}

TEST_F(LuSceneViewTest, anotherScene_freesTheGrabber) {
    listen(LuMouseButtonEvent::getClassTypeId(), &grabEvents);
    press(LuMouseButtonEvent::BUTTON1);
    ASSERT_NE(m_view->getEventAction().getGrabber(), nullptr);
    m_view->setScene(nullptr);
    EXPECT_EQ(m_view->getEventAction().getGrabber(), nullptr);
}

TEST_F(LuSceneViewTest, notNavigable_leavesTheCamera) {
    m_view->setNavigable(false);
    const LvVec3f before = getPosition();
    EXPECT_FALSE(press(LuMouseButtonEvent::WHEEL_UP));
    EXPECT_EQ(getPosition(), before);
}

TEST_F(LuSceneViewTest, pick_goesByTheViewsCamera) {
    static bool s_isHit;
    s_isHit = false;
    const auto note = [](void*, LuEventCallback* node) { s_isHit = node->getPickedPoint() != nullptr; };
    listen(LuMouseButtonEvent::getClassTypeId(), note);
    press(LuMouseButtonEvent::BUTTON1);
    EXPECT_TRUE(s_isHit);
    m_view->handleEvent(LuMouseButtonEvent(LuMouseButtonEvent::BUTTON1, LuButtonEvent::UP, {50, 50}));
    m_view->handleEvent(LuMouseButtonEvent(LuMouseButtonEvent::BUTTON1, LuButtonEvent::DOWN, {1, 1}));
    EXPECT_FALSE(s_isHit);
}

TEST_F(LuSceneViewTest, otherCamera_isSeenBy) {
    auto* const camera = new LuOrthographicCamera;
    m_view->setCamera(camera);
    EXPECT_EQ(m_view->getCamera(), camera);
    m_view->viewAll();
    EXPECT_GT(m_view->takePicture().at(50, 50).red, 200);
    press(LuMouseButtonEvent::WHEEL_UP);
    EXPECT_TRUE(m_view->needsRedraw());
}

TEST_F(LuSceneViewTest, noCamera_bringsAPerspectiveOne) {
    m_view->setCamera(new LuOrthographicCamera);
    m_view->setCamera(nullptr);
    EXPECT_TRUE(m_view->getCamera()->isOfType(LuPerspectiveCamera::getClassTypeId()));
}

TEST_F(LuSceneViewTest, sceneWithACamera_isSeenByThatOne) {
    auto* const camera = new LuOrthographicCamera;
    Held<LuSeparator> scene;
    scene->addChild(camera);
    scene->addChild(m_scene.get());
    LuCamera* const own = m_view->getCamera();
    m_view->setScene(scene.get());
    EXPECT_EQ(m_view->getCamera(), camera);
    m_view->setScene(m_scene.get());
    EXPECT_EQ(m_view->getCamera(), own);
}

TEST_F(LuSceneViewTest, sceneThatNobodyElseHolds_livesWithTheView) {
    m_view->setScene(new LuSeparator);
    EXPECT_EQ(m_view->getScene()->getTypeId(), LuSeparator::getClassTypeId());
    EXPECT_TRUE(m_view->draw());
}

} // namespace
