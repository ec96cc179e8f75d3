// SPDX-License-Identifier: MIT
#include "platform/lumora/kits/LuDragger.h"

#include "platform/lumora/nodes/LuEventCallback.h"
#include "platform/lumora/nodes/LuProperties.h"
#include "platform/lumora/nodes/LuShapes.h"
#include "platform/lumora/nodes/LuTransforms.h"
#include "tests/platform/lumora/events/EventScene.h"

#include <functional>
#include <string>

namespace {

void expectNear(const LvVec3f& actual, const LvVec3f& expected, float tolerance = 1e-3F) {
    for (int axis = 0; axis < 3; ++axis)
        EXPECT_NEAR(actual[axis], expected[axis], tolerance) << "axis " << axis;
}

/// A dragger with a cube of 20 by 20 units, 2 deep.
class TestDragger : public LuDragger {
    LU_KIT_HEADER(TestDragger)
    TestDragger();
    LuGroup* getGeometry() { return static_cast<LuGroup*>(getPart("geomSeparator", true)); }

    LuCube* cube = nullptr;
    static int s_count;

protected:
    ~TestDragger() override { --s_count; }
};

LU_KIT_SOURCE(TestDragger, LuDragger, "TestDragger")
int TestDragger::s_count = 0;

TestDragger::TestDragger() {
    LuKitConstructor constructor(s_class, this, &initClass);
    cube = new LuCube;
    cube->width.setValue(20);
    cube->height.setValue(20);
    getGeometry()->addChild(cube);
    ++s_count;
}

class DraggerTest : public EventScene {
protected:
    ~DraggerTest() override {
        EXPECT_TRUE(m_heardBy.empty()) << "all that was heard is looked at";
        m_root->removeAllChildren();
        EXPECT_EQ(TestDragger::s_count, 0);
        TestDragger::exitClass();
    }

    /// Adds a dragger below a group that moves it.
    TestDragger* add(const LvVec3f& place = {}, LuGroup* below = nullptr) {
        auto* group = new LuSeparator;
        auto* translation = new LuTranslation;
        translation->translation.setValue(place);
        group->addChild(translation);
        auto* dragger = new TestDragger;
        group->addChild(dragger);
        (below ? below : m_root.get())->addChild(group);
        return dragger;
    }

    /// Notes S, M and F for the dragger's start, motion and finish.
    TestDragger* listen(TestDragger* dragger) {
        dragger->addStartCallback([](void* data, LuDragger* d) { self(data).hear('S', d); }, this);
        dragger->addMotionCallback([](void* data, LuDragger* d) { self(data).hear('M', d); }, this);
        dragger->addFinishCallback([](void* data, LuDragger* d) { self(data).hear('F', d); }, this);
        return dragger;
    }

    /// What was heard since the last call; who heard it is in getHearers() until then.
    std::string takeHeard() {
        m_heardBy.clear();
        return std::exchange(m_heard, {});
    }
    const std::vector<LuDragger*>& getHearers() const { return m_heardBy; }

    std::function<void(LuDragger*)> m_react;

private:
    static DraggerTest& self(void* data) { return *static_cast<DraggerTest*>(data); }
    void hear(char what, LuDragger* dragger) {
        m_heard += what;
        m_heardBy.push_back(dragger);
        if (m_react)
            m_react(dragger);
    }
    std::string m_heard;
    std::vector<LuDragger*> m_heardBy;
};

TEST_F(DraggerTest, PressMotionAndReleaseCallBack) {
    TestDragger* const dragger = listen(add());
    EXPECT_TRUE(press(5, 5));
    EXPECT_TRUE(dragger->isActive());
    EXPECT_TRUE(move(6, 5));
    EXPECT_TRUE(move(90, 90));
    EXPECT_TRUE(release(90, 90));
    EXPECT_FALSE(dragger->isActive());
    EXPECT_EQ(takeHeard(), "SMMF");
    EXPECT_FALSE(m_action.getGrabber());
    EXPECT_FALSE(move(5, 5));
    EXPECT_EQ(takeHeard(), "");
}

TEST_F(DraggerTest, PressBesideTheGeometryDoesNothing) {
    listen(add());
    EXPECT_FALSE(press(30, 0));
    move(5, 5);
    release(5, 5);
    EXPECT_EQ(takeHeard(), "");
}

TEST_F(DraggerTest, OtherButtonsAndKeysDoNothing) {
    listen(add());
    EXPECT_FALSE(send(LuMouseButtonEvent(LuMouseButtonEvent::BUTTON2, LuButtonEvent::DOWN, at(0, 0))));
    EXPECT_FALSE(send(LuMouseButtonEvent(LuMouseButtonEvent::WHEEL_UP, LuButtonEvent::DOWN, at(0, 0))));
    EXPECT_FALSE(release(0, 0));
    EXPECT_FALSE(pressKey(LuKeyboardEvent::SPACE));
    EXPECT_EQ(takeHeard(), "");
    press(0, 0);
    EXPECT_TRUE(send(LuMouseButtonEvent(LuMouseButtonEvent::BUTTON2, LuButtonEvent::UP, at(0, 0))));
    EXPECT_EQ(takeHeard(), "S") << "another button does not end the drag";
    release(0, 0);
    EXPECT_EQ(takeHeard(), "F");
}

TEST_F(DraggerTest, DraggerWithoutCallbacksTakesNothing) {
    add();
    EXPECT_FALSE(press(0, 0));
    EXPECT_FALSE(m_action.getGrabber());
}

TEST_F(DraggerTest, OneKindOfCallbackIsEnough) {
    TestDragger* const dragger = add();
    int count = 0;
    dragger->addFinishCallback([](void* data, LuDragger*) { ++*static_cast<int*>(data); }, &count);
    EXPECT_TRUE(press(0, 0));
    EXPECT_EQ(count, 0);
    EXPECT_TRUE(release(0, 0));
    EXPECT_EQ(count, 1);
}

TEST_F(DraggerTest, PressGoesToTheDraggerWhoseGeometryIsPicked) {
    TestDragger* const left = listen(add({-50, 0, 0}));
    TestDragger* const right = listen(add({50, 0, 0}));
    press(-50, 0);
    EXPECT_EQ(getHearers(), std::vector<LuDragger*>{left});
    release(50, 0);
    takeHeard();
    press(50, 0);
    EXPECT_EQ(getHearers(), std::vector<LuDragger*>{right});
    takeHeard();
}

TEST_F(DraggerTest, InnermostDraggerTakesThePress) {
    TestDragger* const outer = listen(add());
    TestDragger* const inner = listen(add({30, 0, 0}, outer->getGeometry()));
    press(30, 0);
    EXPECT_EQ(getHearers(), std::vector<LuDragger*>{inner});
    release(30, 0);
    takeHeard();
    press(0, 0);
    EXPECT_EQ(getHearers(), std::vector<LuDragger*>{outer});
    takeHeard();
}

TEST_F(DraggerTest, OuterDraggerTakesThePressOnADeafInnerOne) {
    TestDragger* const outer = listen(add());
    add({30, 0, 0}, outer->getGeometry());
    press(30, 0);
    EXPECT_EQ(getHearers(), std::vector<LuDragger*>{outer});
    takeHeard();
}

TEST_F(DraggerTest, SharedDraggerIsPressedWhereItIsPicked) {
    TestDragger* const dragger = listen(add({-50, 0, 0}));
    auto* second = new LuSeparator;
    auto* translation = new LuTranslation;
    translation->translation.setValue({50, 0, 0});
    second->addChild(translation);
    second->addChild(dragger);
    m_root->addChild(second);
    m_react = [&](LuDragger* pressed) {
        EXPECT_TRUE(pressed->getPickPath()->containsNode(second));
        expectNear(pressed->getLocalToWorldMatrix().getTranslation(), {50, 0, 0});
    };
    press(50, 0);
    EXPECT_EQ(takeHeard(), "S");
}

TEST_F(DraggerTest, EarlierNodeThatHandlesThePressKeepsIt) {
    auto* callback = new LuEventCallback;
    callback->addEventCallback(LuMouseButtonEvent::getClassTypeId(),
                               [](void*, LuEventCallback* node) { node->setHandled(); });
    m_root->addChild(callback);
    listen(add());
    EXPECT_TRUE(press(0, 0));
    EXPECT_EQ(takeHeard(), "");
}

TEST_F(DraggerTest, UnpickableAndHiddenGeometryIsNotPressed) {
    TestDragger* const dragger = listen(add());
    auto* style = new LuPickStyle;
    style->style.setValue(LuPickStyle::UNPICKABLE);
    dragger->getGeometry()->insertChild(style, 0);
    EXPECT_FALSE(press(0, 0));
    EXPECT_EQ(takeHeard(), "");
}

TEST_F(DraggerTest, PickPathLeadsThroughTheDraggerToTheShape) {
    TestDragger* const dragger = listen(add());
    EXPECT_FALSE(dragger->getPickPath());
    int count = 0;
    m_react = [&](LuDragger* pressed) {
        ++count;
        const LuPath& path = *pressed->getPickPath();
        EXPECT_EQ(path.getHead(), m_root.get());
        EXPECT_TRUE(path.containsNode(dragger));
        EXPECT_TRUE(path.containsNode(dragger->getGeometry()));
        EXPECT_EQ(path.getTail(), dragger->cube);
        EXPECT_EQ(path.getIndex(1), 1);
    };
    press(0, 0);
    EXPECT_FALSE(dragger->getPickPath());
    move(50, 0);
    release(50, 0);
    EXPECT_EQ(count, 3);
    takeHeard();
}

TEST_F(DraggerTest, CallbacksSeeEventAndAction) {
    TestDragger* const dragger = listen(add());
    std::vector<LvVec2f> positions;
    m_react = [&](LuDragger* pressed) {
        EXPECT_EQ(pressed->getHandleEventAction(), &m_action);
        EXPECT_EQ(pressed->getEvent(), m_action.getEvent());
        EXPECT_TRUE(m_action.getState().viewVolume.isSet());
        positions.push_back(pressed->getNormalizedLocaterPosition());
    };
    press(0, 0);
    move(-101, 0);
    EXPECT_FALSE(dragger->getEvent());
    EXPECT_FALSE(dragger->getHandleEventAction());
    ASSERT_EQ(positions.size(), 2U);
    EXPECT_NEAR(positions[0].x, 100.5 / 200, 1e-6);
    EXPECT_NEAR(positions[1].x, -0.5 / 200, 1e-6);
    takeHeard();
}

TEST_F(DraggerTest, StartingPointsAreThoseOfThePress) {
    auto* space = new LuSeparator;
    auto* transform = new LuTransform;
    transform->translation.setValue({40, 10, 5});
    transform->scaleFactor.setValue({2, 0.5F, 1});
    space->addChild(transform);
    m_root->addChild(space);
    TestDragger* const dragger = listen(add({5, 0, 0}, space));
    EXPECT_EQ(dragger->getLocalStartingPoint(), LvVec3f());
    m_react = [&](LuDragger* pressed) {
        expectNear(pressed->getWorldStartingPoint(), {60.5F, 11.5F, 6});
        expectNear(pressed->getLocalStartingPoint(), {5.25F, 3, 1});
        expectNear(pressed->getLocalToWorldMatrix().transformPoint(pressed->getLocalStartingPoint()),
                   pressed->getWorldStartingPoint());
    };
    press(60, 11);
    move(0, 0);
    release(-50, 0);
    EXPECT_EQ(takeHeard(), "SMF");
}

TEST_F(DraggerTest, LocalToWorldMatrixIsThatOfTheParentsOfTheMoment) {
    auto* space = new LuSeparator;
    auto* translation = new LuTranslation;
    space->addChild(translation);
    m_root->addChild(space);
    TestDragger* const dragger = listen(add({}, space));
    press(0, 0);
    translation->translation.setValue({7, 0, 0});
    move(1, 0);
    expectNear(dragger->getLocalToWorldMatrix().getTranslation(), {7, 0, 0});
    takeHeard();
}

TEST_F(DraggerTest, TrackerDragsByItsRay) {
    listen(add());
    LvLine expected = LvLine::fromPoints({0, 0, 50}, {3, 0, 0});
    m_react = [&](LuDragger* pressed) { EXPECT_EQ(pressed->getTrackerRay(), expected); };
    EXPECT_TRUE(send(LuTrackerButtonEvent(LuButtonEvent::DOWN, expected)));
    expected = LvLine::fromPoints({0, 0, 50}, {60, 0, 0});
    EXPECT_TRUE(send(LuTrackerEvent(expected)));
    EXPECT_TRUE(send(LuTrackerButtonEvent(LuButtonEvent::UP, expected)));
    EXPECT_EQ(takeHeard(), "SMF");
    EXPECT_FALSE(send(LuTrackerButtonEvent(LuButtonEvent::DOWN, expected)));
}

TEST_F(DraggerTest, RayUnderThePointerStandsInForATrackers) {
    listen(add());
    m_react = [](LuDragger* pressed) {
        expectNear(pressed->getTrackerRay().getDirection(), {0, 0, -1});
        expectNear(pressed->getTrackerRay().getPosition(), {3.5F, 4.5F, 99});
    };
    press(3, 4);
    EXPECT_EQ(takeHeard(), "S");
}

TEST_F(DraggerTest, SecondPressDuringADragIsNone) {
    listen(add());
    press(0, 0);
    EXPECT_TRUE(press(0, 0));
    release(0, 0);
    EXPECT_EQ(takeHeard(), "SF");
}

TEST_F(DraggerTest, CallbackMayPressAndReleaseWithinAPress) {
    TestDragger* const dragger = listen(add());
    int depth = 0;
    m_react = [&](LuDragger*) {
        if (depth++ > 0)
            return;
        EXPECT_TRUE(press(0, 0));
        EXPECT_TRUE(move(1, 1));
        EXPECT_TRUE(release(1, 1));
        EXPECT_FALSE(move(2, 2));
        EXPECT_TRUE(m_action.isHandled());
        EXPECT_TRUE(LuMouseButtonEvent::isButtonPressEvent(m_action.getEvent(), LuMouseButtonEvent::BUTTON1));
        EXPECT_TRUE(dragger->getPickPath());
    };
    EXPECT_TRUE(press(0, 0));
    EXPECT_EQ(takeHeard(), "SMF");
    EXPECT_FALSE(dragger->isActive());
    EXPECT_FALSE(m_action.getGrabber());
}

TEST_F(DraggerTest, FinishCallbackMayPressAnotherDragger) {
    TestDragger* const left = listen(add({-50, 0, 0}));
    TestDragger* const right = listen(add({50, 0, 0}));
    press(-50, 0);
    m_react = [&](LuDragger* released) {
        if (released == left)
            press(50, 0);
    };
    release(-50, 0);
    EXPECT_EQ(m_action.getGrabber(), right);
    EXPECT_EQ(takeHeard(), "SFS");
}

class VanishingDraggerTest : public DraggerTest, public testing::WithParamInterface<std::string> {};

TEST_P(VanishingDraggerTest, CallbackMayEndTheDragger) {
    TestDragger* const dragger = listen(add());
    m_react = [&](LuDragger*) {
        if (takeHeard() == GetParam().substr(GetParam().size() - 1))
            m_root->removeChild(1);
    };
    press(0, 0);
    move(1, 1);
    move(2, 2);
    release(1, 1);
    EXPECT_EQ(TestDragger::s_count, 0);
    EXPECT_FALSE(m_action.getGrabber());
    EXPECT_FALSE(press(0, 0));
    EXPECT_EQ(takeHeard(), "");
    (void)dragger;
}

INSTANTIATE_TEST_SUITE_P(Kinds, VanishingDraggerTest, testing::Values("S", "M", "F"),
                         [](const auto& kind) { return "At" + kind.param; });

TEST_F(DraggerTest, DraggerThatEndsDuringADragHearsNoMore) {
    listen(add());
    press(0, 0);
    m_root->removeChild(1);
    EXPECT_EQ(TestDragger::s_count, 0) << "a drag does not keep its dragger";
    EXPECT_FALSE(move(0, 0));
    EXPECT_FALSE(release(0, 0));
    EXPECT_EQ(takeHeard(), "S");
}

TEST_F(DraggerTest, DraggerThatLeavesTheSceneDuringADragIsNoLongerPressed) {
    const Held<TestDragger> dragger(listen(add()));
    press(0, 0);
    m_root->removeChild(1);
    EXPECT_FALSE(move(0, 0));
    EXPECT_FALSE(dragger->isActive());
    EXPECT_FALSE(release(0, 0));
    EXPECT_EQ(takeHeard(), "S");
    m_root->addChild(dragger.get());
    press(0, 0);
    release(0, 0);
    EXPECT_EQ(takeHeard(), "SF");
}

TEST_F(DraggerTest, ShapeThatEndsDuringADragChangesNothing) {
    TestDragger* const dragger = listen(add());
    press(0, 0);
    dragger->getGeometry()->removeAllChildren();
    move(0, 0);
    release(0, 0);
    EXPECT_EQ(takeHeard(), "SMF");
}

TEST_F(DraggerTest, EndOfTheActionEndsTheDrag) {
    TestDragger* const dragger = listen(add());
    {
        LuHandleEventAction action(LvViewportRegion(200, 200));
        const LuMouseButtonEvent event(LuMouseButtonEvent::BUTTON1, LuButtonEvent::DOWN, at(0, 0));
        action.setEvent(&event);
        action.apply(m_root.get());
        EXPECT_TRUE(dragger->isActive());
    }
    EXPECT_FALSE(dragger->isActive());
    EXPECT_EQ(takeHeard(), "S");
}

TEST_F(DraggerTest, CallbackAddedInACallbackIsCalledFromTheNextEventOn) {
    TestDragger* const dragger = add();
    struct Count {
        int added = 0;
    } count;
    dragger->addStartCallback(
        [](void* data, LuDragger* pressed) {
            pressed->addStartCallback([](void* d, LuDragger*) { ++static_cast<Count*>(d)->added; }, data);
        },
        &count);
    press(0, 0);
    release(0, 0);
    EXPECT_EQ(count.added, 0);
    press(0, 0);
    release(0, 0);
    EXPECT_EQ(count.added, 1);
}

} // namespace
