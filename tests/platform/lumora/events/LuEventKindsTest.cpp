// SPDX-License-Identifier: MIT
// Who is visited for an event: nobody needlessly, and everybody whom it may be for.
#include "platform/lumora/events/LuEventKinds.h"

#include "platform/lumora/nodes/LuEventCallback.h"
#include "platform/lumora/sensors/LuSensor.h"
#include "tests/platform/lumora/events/ProbeDragger.h"

#include <string>

LU_KIT_SOURCE(ProbeDragger, LuDragger, "ProbeDragger")

ProbeDragger::ProbeDragger() {
    LuKitConstructor constructor(s_class, this, &initClass);
    auto* const cube = new LuCube;
    cube->width.setValue(20);
    cube->height.setValue(20);
    getGeometry()->addChild(cube);
}

namespace {

const LuType ANY = LuEvent::getClassTypeId();
const LuType KEY = LuKeyboardEvent::getClassTypeId();
const LuType BUTTON = LuButtonEvent::getClassTypeId();
const LuType MOTION = LuLocation2Event::getClassTypeId();

bool isFor(LuType listener, const LuEvent& event) {
    return !(LuEventKinds::ofListener(listener) & LuEventKinds::of(event)).isNone();
}

TEST(LuEventKindsTest, listener_hearsEventsOfItsTypeAndThoseDerived) {
    const LuKeyboardEvent key;
    const LuMouseButtonEvent button;
    const LuLocation2Event motion;
    const LuEvent plain;
    const LuButtonEvent anyButton;
    for (const LuEvent* event :
         {static_cast<const LuEvent*>(&key), static_cast<const LuEvent*>(&button),
          static_cast<const LuEvent*>(&motion), &plain, static_cast<const LuEvent*>(&anyButton)}) {
        for (const LuType listener : {ANY, KEY, BUTTON, MOTION, LuMouseButtonEvent::getClassTypeId()}) {
            if (event->isOfType(listener)) {
                EXPECT_TRUE(isFor(listener, *event)) << listener.getName().getString();
            }
        }
    }
    EXPECT_FALSE(isFor(KEY, motion));
    EXPECT_FALSE(isFor(KEY, button));
    EXPECT_FALSE(isFor(BUTTON, motion));
    EXPECT_FALSE(isFor(MOTION, plain));
}

TEST(LuEventKindsTest, press_isWhatDraggersArePressedBy) {
    const auto isPress = [](const LuEvent& event) {
        return !(LuEventKinds::of(event) & LuEventKinds::presses()).isNone();
    };
    EXPECT_TRUE(isPress(LuMouseButtonEvent(LuMouseButtonEvent::BUTTON1, LuButtonEvent::DOWN, {})));
    EXPECT_TRUE(isPress(LuTrackerButtonEvent(LuButtonEvent::DOWN, {})));
    EXPECT_FALSE(isPress(LuMouseButtonEvent(LuMouseButtonEvent::BUTTON1, LuButtonEvent::UP, {})));
    EXPECT_FALSE(isPress(LuMouseButtonEvent(LuMouseButtonEvent::BUTTON2, LuButtonEvent::DOWN, {})));
    EXPECT_FALSE(isPress(LuKeyboardEvent()));
    EXPECT_FALSE(isPress(LuLocation2Event()));
}

/// Overrides handleEvent and is registered as a class of its own, which is all that a program does.
class OwnHandler : public LuTranslation {
    LU_NODE_HEADER(OwnHandler)
    OwnHandler() { LuNodeConstructor constructor(s_class, this); }
    void handleEvent(LuHandleEventAction*) override { ++count; }
    int count = 0;
};
LU_NODE_SOURCE(OwnHandler, LuTranslation, "OwnHandler")

/// Doesn't even say that it is a class of its own.
class HiddenHandler : public LuEventCallback {
public:
    void handleEvent(LuHandleEventAction*) override { ++count; }
    int count = 0;
};

class EventPassingTest : public ProbeScene {
protected:
    /// A separator with a silent witness of who comes by.
    LuSeparator* addPart(LuGroup* below = nullptr) {
        auto* part = new LuSeparator;
        m_witness = new Witness(true);
        part->addChild(m_witness);
        (below ? below : m_root.get())->addChild(part);
        return part;
    }
    static LuEventCallback* addCallback(LuGroup* below, LuType type) {
        auto* node = new LuEventCallback;
        below->addChild(node);
        node->addEventCallback(type, &ignore);
        return node;
    }
    static void ignore(void*, LuEventCallback*) {}

    /// Visits of the last witness since the last call.
    int takeVisits() { return std::exchange(m_witness->count, 0); }

    Witness* m_witness = nullptr;
};

TEST_F(EventPassingTest, partWithoutListeners_isPassedOver) {
    addPart();
    move(0, 0);
    press(0, 0);
    pressKey(LuKeyboardEvent::A);
    EXPECT_EQ(takeVisits(), 0);
}

TEST_F(EventPassingTest, partWithAListener_isVisitedForItsKindOfEventsAlone) {
    addCallback(addPart(), KEY);
    move(0, 0);
    press(0, 0);
    EXPECT_EQ(takeVisits(), 0);
    pressKey(LuKeyboardEvent::A);
    EXPECT_EQ(takeVisits(), 1);
}

TEST_F(EventPassingTest, callbackThatComesOrGoesLater_isMinded) {
    LuEventCallback* const node = addCallback(addPart(addPart()), KEY);
    move(0, 0);
    EXPECT_EQ(takeVisits(), 0);
    node->addEventCallback(MOTION, &ignore);
    move(0, 0);
    EXPECT_EQ(takeVisits(), 1);
    node->removeEventCallback(MOTION, &ignore);
    move(0, 0);
    EXPECT_EQ(takeVisits(), 0);
    node->removeEventCallback(KEY, &ignore);
    pressKey(LuKeyboardEvent::A);
    EXPECT_EQ(takeVisits(), 0);
}

TEST_F(EventPassingTest, callbackThatComes_firesNoSensor) {
    LuEventCallback* const node = addCallback(addPart(), KEY);
    int fired = 0;
    LuNodeSensor sensor([](void* data, LuSensor*) { ++*static_cast<int*>(data); }, &fired);
    sensor.setPriority(0);
    sensor.attach(m_root.get());
    move(0, 0);
    node->addEventCallback(MOTION, &ignore);
    EXPECT_EQ(fired, 0);
    move(0, 0);
    EXPECT_EQ(takeVisits(), 1);
}

TEST_F(EventPassingTest, listenerThatComesOrGoes_isMinded) {
    LuSeparator* const part = addPart();
    move(0, 0);
    LuEventCallback* const node = addCallback(part, ANY);
    move(0, 0);
    EXPECT_EQ(takeVisits(), 1);
    part->removeChild(node);
    move(0, 0);
    EXPECT_EQ(takeVisits(), 0);
}

TEST_F(EventPassingTest, listenerInAHiddenPart_countsWhileItShows) {
    LuSeparator* const part = addPart();
    auto* choice = new LuSwitch;
    part->addChild(choice);
    addCallback(choice, ANY);
    move(0, 0);
    EXPECT_EQ(takeVisits(), 0);
    for (const int shown : {0, LuSwitch::SHOW_ALL}) {
        choice->whichChild.setValue(shown);
        move(0, 0);
        EXPECT_EQ(takeVisits(), 1);
        choice->whichChild.setValue(LuSwitch::SHOW_NONE);
        move(0, 0);
        EXPECT_EQ(takeVisits(), 0);
    }
}

TEST_F(EventPassingTest, classWithAHandlerOfItsOwn_hearsEverything) {
    OwnHandler::initClass();
    auto* own = new OwnHandler;
    auto* hidden = new HiddenHandler;
    addPart()->addChild(own);
    addPart()->addChild(hidden);
    move(0, 0);
    pressKey(LuKeyboardEvent::A);
    send(LuEvent());
    EXPECT_EQ(own->count, 3);
    EXPECT_EQ(hidden->count, 3);
}

TEST_F(EventPassingTest, stateOfAPassedPart_wouldNotHaveReachedOthers) {
    LuSeparator* const part = addPart();
    auto* moved = new LuTranslation;
    moved->translation.setValue({7, 8, 9});
    part->addChild(moved);
    auto* plain = new LuGroup;
    auto* reaching = new LuTranslation;
    reaching->translation.setValue({1, 2, 3});
    plain->addChild(reaching);
    m_root->addChild(plain);
    LuEventCallback* const node = addCallback(m_root.get(), ANY);
    LvVec3f place;
    node->addEventCallback(
        ANY,
        [](void* data, LuEventCallback* called) {
            *static_cast<LvVec3f*>(data) = called->getAction()->getState().model.getTranslation();
        },
        &place);
    move(0, 0);
    EXPECT_EQ(place, LvVec3f(1, 2, 3));
}

/// Places a dragger in a part of its own, which has a witness.
ProbeDragger* addDragger(LuSeparator* part, float x, std::string& heard) {
    auto* place = new LuTranslation;
    place->translation.setValue({x, 0, 0});
    auto* dragger = new ProbeDragger;
    dragger->addStartCallback([](void* data, LuDragger*) { *static_cast<std::string*>(data) += 'S'; },
                              &heard);
    part->addChild(place);
    part->addChild(dragger);
    return dragger;
}

TEST_F(EventPassingTest, partWithDraggers_isVisitedForPressesOnIt) {
    std::string heard;
    // The first one asks what is picked, and so is visited.
    addDragger(addPart(), -60, heard);
    addDragger(addPart(), 0, heard);
    Witness* const middle = m_witness;
    addDragger(addPart(), 60, heard);
    move(60, 0);
    press(30, 0);
    release(30, 0);
    EXPECT_EQ(middle->count + takeVisits(), 0);
    EXPECT_TRUE(press(60, 0));
    EXPECT_EQ(heard, "S");
    EXPECT_EQ(middle->count, 0);
    EXPECT_EQ(takeVisits(), 1);
}

TEST_F(EventPassingTest, grabberSetOnTheWay_isVisitedWhateverItListensTo) {
    std::string heard;
    addDragger(addPart(), -60, heard);
    LuEventCallback* const node = addCallback(m_root.get(), ANY);
    ProbeDragger* const dragger = addDragger(addPart(), 60, heard);
    node->addEventCallback(
        ANY,
        [](void* data, LuEventCallback* called) {
            called->getAction()->setGrabber(static_cast<LuNode*>(data));
        },
        dragger);
    // A dragger that isn't pressed gives the events back at once, as it does with all that it gets.
    EXPECT_TRUE(press(0, 0));
    EXPECT_EQ(takeVisits(), 1);
    EXPECT_FALSE(m_action.getGrabber());
}

} // namespace
