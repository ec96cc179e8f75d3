// SPDX-License-Identifier: MIT
#include "platform/lumora/events/LuKeyboardEvent.h"

#include <gtest/gtest.h>

namespace {

TEST(LuKeyboardEventTest, PressIsOfItsKeyAndOfAny) {
    const LuKeyboardEvent press(LuKeyboardEvent::RETURN);
    EXPECT_TRUE(LuKeyboardEvent::isKeyPressEvent(&press, LuKeyboardEvent::RETURN));
    EXPECT_TRUE(LuKeyboardEvent::isKeyPressEvent(&press, LuKeyboardEvent::ANY));
    EXPECT_FALSE(LuKeyboardEvent::isKeyPressEvent(&press, LuKeyboardEvent::TAB));
    EXPECT_FALSE(LuKeyboardEvent::isKeyReleaseEvent(&press, LuKeyboardEvent::RETURN));
    const LuKeyboardEvent release(LuKeyboardEvent::RETURN, LuButtonEvent::UP);
    EXPECT_TRUE(LuKeyboardEvent::isKeyReleaseEvent(&release, LuKeyboardEvent::RETURN));
    EXPECT_FALSE(LuKeyboardEvent::isKeyPressEvent(&release, LuKeyboardEvent::RETURN));
}

TEST(LuKeyboardEventTest, OtherEventsAreNoKeys) {
    const LuMouseButtonEvent button;
    EXPECT_FALSE(LuKeyboardEvent::isKeyPressEvent(&button, LuKeyboardEvent::ANY));
    EXPECT_FALSE(LuKeyboardEvent::isKeyPressEvent(nullptr, LuKeyboardEvent::ANY));
    const LuKeyboardEvent key(LuKeyboardEvent::A);
    EXPECT_FALSE(LuMouseButtonEvent::isButtonPressEvent(&key, LuMouseButtonEvent::ANY));
    EXPECT_FALSE(LuMouseButtonEvent::isButtonReleaseEvent(nullptr, LuMouseButtonEvent::ANY));
}

TEST(LuKeyboardEventTest, TypesFormATree) {
    const LuKeyboardEvent key;
    EXPECT_TRUE(key.isOfType(LuKeyboardEvent::getClassTypeId()));
    EXPECT_TRUE(key.isOfType(LuButtonEvent::getClassTypeId()));
    EXPECT_TRUE(key.isOfType(LuEvent::getClassTypeId()));
    EXPECT_FALSE(key.isOfType(LuMouseButtonEvent::getClassTypeId()));
    const LuTrackerButtonEvent trigger;
    EXPECT_TRUE(trigger.isOfType(LuButtonEvent::getClassTypeId()));
    EXPECT_FALSE(trigger.isOfType(LuTrackerEvent::getClassTypeId()));
}

TEST(LuKeyboardEventTest, KeysAreTheSymbolsOfTheWindowSystem) {
    EXPECT_EQ(LuKeyboardEvent::BACKSPACE, 65288);
    EXPECT_EQ(LuKeyboardEvent::RETURN, 65293);
    EXPECT_EQ(LuKeyboardEvent::PAD_HOME, 65429);
    EXPECT_EQ(LuKeyboardEvent::PAD_INSERT, 65438);
    EXPECT_EQ(LuKeyboardEvent::PAD_DELETE, 65439);
    EXPECT_EQ(LuKeyboardEvent::F12, 0xffc9);
    EXPECT_EQ(LuKeyboardEvent::Z, 'z');
}

struct Typed {
    const char* name;
    LuKeyboardEvent::Key key;
    bool isShifted;
    char32_t character;
};

class PrintableCharacterTest : public testing::TestWithParam<Typed> {};

TEST_P(PrintableCharacterTest, IsWhatTheKeyTypes) {
    LuKeyboardEvent event(GetParam().key);
    event.setShiftDown(GetParam().isShifted);
    EXPECT_EQ(event.getPrintableCharacter(), GetParam().character);
}

INSTANTIATE_TEST_SUITE_P(Keys, PrintableCharacterTest,
                         testing::Values(Typed{"Letter", LuKeyboardEvent::A, false, U'a'},
                                         Typed{"CapitalLetter", LuKeyboardEvent::A, true, U'A'},
                                         Typed{"Digit", LuKeyboardEvent::NUMBER_7, false, U'7'},
                                         Typed{"ShiftedDigit", LuKeyboardEvent::NUMBER_7, true, U'&'},
                                         Typed{"ShiftedSign", LuKeyboardEvent::SLASH, true, U'?'},
                                         Typed{"ShiftedSpace", LuKeyboardEvent::SPACE, true, U' '},
                                         Typed{"KeypadDigit", LuKeyboardEvent::PAD_4, true, U'4'},
                                         Typed{"KeypadPoint", LuKeyboardEvent::PAD_DECIMAL, false, U'.'},
                                         Typed{"KeypadArrow", LuKeyboardEvent::PAD_LEFT, false, 0},
                                         Typed{"Return", LuKeyboardEvent::RETURN, false, 0},
                                         Typed{"FunctionKey", LuKeyboardEvent::F1, false, 0},
                                         Typed{"NoKey", LuKeyboardEvent::ANY, false, 0}),
                         [](const auto& typed) { return typed.param.name; });

TEST(LuKeyboardEventTest, WindowSystemsCharacterComesFirst) {
    LuKeyboardEvent event(LuKeyboardEvent::A);
    event.setPrintableCharacter(U'\u00e4');
    EXPECT_EQ(event.getPrintableCharacter(), U'\u00e4');
    event.setPrintableCharacter(0);
    EXPECT_EQ(event.getPrintableCharacter(), 0U);
}

TEST(LuKeyboardEventTest, CtrlAndAltTypeNothing) {
    LuKeyboardEvent event(LuKeyboardEvent::C);
    event.setCtrlDown(true);
    EXPECT_EQ(event.getPrintableCharacter(), 0U);
    event.setCtrlDown(false);
    event.setAltDown(true);
    EXPECT_EQ(event.getPrintableCharacter(), 0U);
}

TEST(LuEventTest, NormalizedPositionIsTheMiddleOfThePixel) {
    const LvViewportRegion region(200, 50);
    EXPECT_EQ(LuLocation2Event({0, 0}).getNormalizedPosition(region), LvVec2f(0.0025F, 0.01F));
    EXPECT_EQ(LuLocation2Event({199, 49}).getNormalizedPosition(region), LvVec2f(0.9975F, 0.99F));
    EXPECT_GT(LuLocation2Event({200, 0}).getNormalizedPosition(region).x, 1);
    EXPECT_EQ(LuLocation2Event({5, 5}).getNormalizedPosition(LvViewportRegion(0, 0)), LvVec2f());
}

} // namespace
