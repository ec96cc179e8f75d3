// SPDX-License-Identifier: MIT
#include "platform/lumora/nodes/LuEventCallback.h"

#include "platform/lumora/actions/LuPickedPoint.h"
#include "platform/lumora/nodes/LuShapes.h"
#include "platform/lumora/nodes/LuTransforms.h"
#include "tests/platform/lumora/events/EventScene.h"

#include <functional>
#include <string>

namespace {

class EventCallbackTest : public EventScene {
protected:
    /// Adds a node that notes its letter for each event of the type.
    LuEventCallback* add(LuGroup* group, LuType type, char letter) {
        auto* node = new LuEventCallback;
        group->addChild(node);
        listen(node, type, letter);
        return node;
    }
    void listen(LuEventCallback* node, LuType type, char letter) {
        m_notes.push_back(std::make_unique<Note>(Note{this, letter}));
        node->addEventCallback(type, &note, m_notes.back().get());
    }
    std::string takeHeard() { return std::exchange(m_heard, {}); }

    struct Note {
        EventCallbackTest* test;
        char letter;
    };
    static void note(void* data, LuEventCallback* node) {
        const Note& note = *static_cast<Note*>(data);
        note.test->m_heard += note.letter;
        if (note.test->m_react)
            note.test->m_react(node);
    }

    std::vector<std::unique_ptr<Note>> m_notes;
    std::string m_heard;
    std::function<void(LuEventCallback*)> m_react;
};

const LuType KEY = LuKeyboardEvent::getClassTypeId();
const LuType ANY = LuEvent::getClassTypeId();

TEST_F(EventCallbackTest, HearsEventsOfItsTypeAndThoseDerived) {
    add(m_root.get(), KEY, 'k');
    add(m_root.get(), ANY, 'e');
    add(m_root.get(), LuButtonEvent::getClassTypeId(), 'b');
    pressKey(LuKeyboardEvent::A);
    EXPECT_EQ(takeHeard(), "keb");
    move(0, 0);
    EXPECT_EQ(takeHeard(), "e");
}

TEST_F(EventCallbackTest, FunctionsAreCalledInOrderUntilTheyAreRemoved) {
    auto* node = add(m_root.get(), KEY, 'a');
    listen(node, KEY, 'b');
    pressKey(LuKeyboardEvent::A);
    EXPECT_EQ(takeHeard(), "ab");
    node->removeEventCallback(KEY, &note, m_notes[0].get());
    node->removeEventCallback(ANY, &note, m_notes[1].get());
    pressKey(LuKeyboardEvent::A);
    EXPECT_EQ(takeHeard(), "b");
}

TEST_F(EventCallbackTest, TellsTheEventAndTheActionWhileItIsCalled) {
    auto* node = add(m_root.get(), KEY, 'a');
    m_react = [&](LuEventCallback* called) {
        EXPECT_EQ(called, node);
        EXPECT_EQ(called->getAction(), &m_action);
        EXPECT_TRUE(LuKeyboardEvent::isKeyPressEvent(called->getEvent(), LuKeyboardEvent::ESCAPE));
    };
    pressKey(LuKeyboardEvent::ESCAPE);
    EXPECT_EQ(takeHeard(), "a");
    EXPECT_FALSE(node->getAction());
    EXPECT_FALSE(node->getEvent());
    EXPECT_FALSE(node->getPickedPoint());
}

TEST_F(EventCallbackTest, HandledEventGoesNoFurtherThanTheNode) {
    auto* node = add(m_root.get(), KEY, 'a');
    listen(node, KEY, 'b');
    add(m_root.get(), KEY, 'c');
    m_react = [](LuEventCallback* called) { called->setHandled(); };
    EXPECT_TRUE(pressKey(LuKeyboardEvent::A));
    EXPECT_EQ(takeHeard(), "ab");
    m_react = nullptr;
    EXPECT_FALSE(pressKey(LuKeyboardEvent::A));
    EXPECT_EQ(takeHeard(), "abc");
}

TEST_F(EventCallbackTest, HiddenNodeHearsNothing) {
    auto* choice = new LuSwitch;
    m_root->addChild(choice);
    add(choice, KEY, 'a');
    pressKey(LuKeyboardEvent::A);
    EXPECT_EQ(takeHeard(), "");
    choice->whichChild.setValue(0);
    pressKey(LuKeyboardEvent::A);
    EXPECT_EQ(takeHeard(), "a");
}

TEST_F(EventCallbackTest, PickedPointIsWhatLiesUnderTheEvent) {
    add(m_root.get(), ANY, 'a');
    auto* cube = new LuCube;
    cube->width.setValue(20);
    cube->height.setValue(20);
    m_root->addChild(cube);
    const LuNode* picked = nullptr;
    m_react = [&](LuEventCallback* called) {
        const LuPickedPoint* point = called->getPickedPoint();
        EXPECT_EQ(called->getPickedPoint(), point);
        picked = point ? point->getPath()->getTail() : nullptr;
    };
    move(5, 5);
    EXPECT_EQ(picked, cube);
    move(50, 5);
    EXPECT_EQ(picked, nullptr);
    send(LuTrackerEvent(LvLine::fromPoints({0, 50, 0}, {0, 0, 0})));
    EXPECT_EQ(picked, cube);
    EXPECT_EQ(cube->getRefCount(), 1) << "paths are let go with the event";
    EXPECT_FALSE(m_action.getPickedPoint());
}

TEST_F(EventCallbackTest, PickRootLimitsWhatIsPicked) {
    add(m_root.get(), ANY, 'a');
    auto* inFront = new LuCube;
    auto* part = new LuSeparator;
    inFront->depth.setValue(50);
    m_root->addChild(inFront);
    m_root->addChild(part);
    auto* cube = new LuCube;
    part->addChild(cube);
    m_action.setPickRoot(part);
    const LuNode* picked = nullptr;
    m_react = [&](LuEventCallback* called) { picked = called->getPickedPoint()->getPath()->getTail(); };
    move(0, 0);
    EXPECT_EQ(picked, cube);
}

TEST_F(EventCallbackTest, GrabberAloneHearsUntilItReleases) {
    add(m_root.get(), ANY, 'a');
    auto* inner = new LuSeparator;
    m_root->addChild(inner);
    auto* grabber = add(inner, KEY, 'g');
    m_react = [&](LuEventCallback* called) {
        if (called == grabber)
            called->grabEvents();
    };
    pressKey(LuKeyboardEvent::A);
    EXPECT_EQ(takeHeard(), "ag");
    EXPECT_EQ(m_action.getGrabber(), grabber);
    pressKey(LuKeyboardEvent::A);
    move(3, 3);
    EXPECT_EQ(takeHeard(), "g");
    m_react = [](LuEventCallback* called) { called->releaseEvents(); };
    pressKey(LuKeyboardEvent::A);
    EXPECT_FALSE(m_action.getGrabber());
    pressKey(LuKeyboardEvent::A);
    EXPECT_EQ(takeHeard(), "gag");
}

TEST_F(EventCallbackTest, GrabberSeesItsPlaceInTheScene) {
    auto* inner = new LuSeparator;
    auto* translation = new LuTranslation;
    inner->addChild(translation);
    m_root->addChild(inner);
    auto* grabber = add(inner, ANY, 'g');
    m_react = [](LuEventCallback* called) { called->grabEvents(); };
    move(0, 0);
    translation->translation.setValue({7, 8, 9});
    m_react = [](LuEventCallback* called) {
        EXPECT_EQ(called->getAction()->getState().model.getTranslation(), LvVec3f(7, 8, 9));
        EXPECT_TRUE(called->getAction()->getState().viewVolume.isSet());
        EXPECT_EQ(called->getAction()->getCurrentPath().getTail(), called);
    };
    move(1, 1);
    EXPECT_EQ(takeHeard(), "gg");
    EXPECT_EQ(m_action.getGrabber(), grabber);
}

TEST_F(EventCallbackTest, GrabberThatEndsLosesTheEvents) {
    auto* inner = new LuSeparator;
    m_root->addChild(inner);
    add(inner, ANY, 'g');
    m_react = [](LuEventCallback* called) { called->grabEvents(); };
    move(0, 0);
    m_react = nullptr;
    m_root->removeChild(inner);
    EXPECT_FALSE(m_action.getGrabber());
    add(m_root.get(), ANY, 'a');
    move(0, 0);
    EXPECT_EQ(takeHeard(), "ga");
}

TEST_F(EventCallbackTest, GrabberThatLeavesTheSceneLosesTheEvents) {
    auto* inner = new LuSeparator;
    m_root->addChild(inner);
    const Held<LuEventCallback> grabber(add(inner, ANY, 'g'));
    m_react = [](LuEventCallback* called) { called->grabEvents(); };
    move(0, 0);
    m_react = nullptr;
    add(m_root.get(), ANY, 'a');
    m_root->insertChild(new LuGroup, 0);
    move(0, 0);
    EXPECT_EQ(takeHeard(), "gg") << "a node in front of it changes nothing";
    m_root->removeChild(inner);
    move(0, 0);
    EXPECT_EQ(takeHeard(), "a");
    EXPECT_FALSE(m_action.getGrabber());
}

TEST_F(EventCallbackTest, GrabberSetFromOutsideGetsTheEvents) {
    auto* node = add(m_root.get(), ANY, 'g');
    add(m_root.get(), ANY, 'a');
    m_action.setGrabber(node);
    move(0, 0);
    EXPECT_EQ(takeHeard(), "g");
    m_action.setGrabber(nullptr);
    move(0, 0);
    EXPECT_EQ(takeHeard(), "ga");
}

TEST_F(EventCallbackTest, FunctionMayTakeItsNodeOutOfTheScene) {
    auto* inner = new LuSeparator;
    m_root->addChild(inner);
    auto* node = add(inner, ANY, 'a');
    listen(node, ANY, 'b');
    add(m_root.get(), ANY, 'c');
    m_react = [&](LuEventCallback*) {
        m_react = nullptr;
        m_root->removeAllChildren();
    };
    move(0, 0);
    EXPECT_EQ(takeHeard(), "ab");
}

TEST_F(EventCallbackTest, EventWithinAnEventLeavesTheOuterOneAsItWas) {
    auto* inner = new LuSeparator;
    auto* translation = new LuTranslation;
    translation->translation.setValue({1, 2, 3});
    inner->addChild(translation);
    m_root->addChild(inner);
    add(inner, KEY, 'k');
    add(m_root.get(), LuLocation2Event::getClassTypeId(), 'm');
    add(m_root.get(), KEY, 'l');
    bool isFirst = true;
    m_react = [&](LuEventCallback* called) {
        if (!std::exchange(isFirst, false))
            return;
        move(0, 0);
        EXPECT_TRUE(LuKeyboardEvent::isKeyPressEvent(m_action.getEvent(), LuKeyboardEvent::A));
        EXPECT_EQ(m_action.getState().model.getTranslation(), LvVec3f(1, 2, 3));
        EXPECT_EQ(m_action.getCurrentPath().getTail(), called);
    };
    pressKey(LuKeyboardEvent::A);
    EXPECT_EQ(takeHeard(), "kml");
}

TEST_F(EventCallbackTest, NothingHappensWithoutAnEvent) {
    add(m_root.get(), ANY, 'a');
    m_action.apply(m_root.get());
    EXPECT_EQ(takeHeard(), "");
    EXPECT_FALSE(m_action.isHandled());
}

} // namespace
