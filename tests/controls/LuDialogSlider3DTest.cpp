// SPDX-License-Identifier: MIT
#include "auditors/LuDialogAuditor.h"
#include "controls/LuDialogIntegerSlider.h"
#include "controls/LuDialogPushButton.h"
#include "controls/LuDialogRealSlider.h"
#include "layout/LuRowDialog.h"
#include "layout/LuTopLevelDialog.h"
#include "platform/lumora/nodes/LuEventCallback.h"
#include "tests/controls/SliderTest.h"
#include "tests/host/SceneHost.h"

#include <limits>

namespace {

class DialogAuditor : public LuDialogAuditor {
public:
    void dialogIntegerSlider(LuDialogIntegerSlider* slider) override { hear(*slider); }
    void dialogRealSlider(LuDialogRealSlider* slider) override { hear(*slider); }

    int m_count = 0;
    std::function<void(LuDialogSlider&)> m_action;

private:
    void hear(LuDialogSlider& slider) {
        ++m_count;
        if (m_action)
            m_action(slider);
    }
};

/// Sliders in a panel in a scene, and a user in front of it.
class LuDialogSlider3DTest : public SliderTest<LuDialogIntegerSlider> {
protected:
    LuDialogSlider3DTest() {
        {
            const Held<LuDialogRealSlider> first;
            buildWindows(*first);
        }
        m_slider->max = 100;
        m_slider->value = 20;
        m_real->labelVisibility = false;
        m_dialog->width = 400;
        m_dialog->height = 200;
        m_dialog->addChild(m_slider.get());
        m_dialog->addChild(m_real.get());
        m_dialog->addChild(m_button.get());
        m_dialog->addAuditor(&m_events);
        m_scene.show(m_dialog.get());
    }
    ~LuDialogSlider3DTest() override { m_dialog->removeAuditor(&m_events); }

    /// A place on the frame, above the cursor's way; `x` is the distance from its left end.
    LvVec3f getFramePlace(float x) {
        const LvVec3f middle = m_scene.getMiddle(*m_slider, "frameSep");
        return {middle.x - m_slider->getFrameLength() / 2 + x, middle.y + 7, middle.z};
    }
    float getTravel() { return m_slider->getFrameLength() - 10; }
    float getTravelPart(float part) { return std::round(getTravel() * part); }

    template <class Slider>
    void edit(Slider& slider) {
        m_scene.click(slider, "edtFrmSep");
        EXPECT_EQ(slider.m_editing3D, 1);
    }
    /// Edits the number from nothing on.
    template <class Slider>
    void startOver(Slider& slider) {
        edit(slider);
        while (!slider.getText3D().empty())
            m_scene.key(LuKeyboardEvent::BACKSPACE);
    }
    void type(const char* text) {
        for (const char* at = text; *at; ++at)
            m_scene.key(static_cast<LuKeyboardEvent::Key>(*at));
    }
    void showInWindows() { buildWindows(*m_slider, {300, 30}); }

    Held<LuTopLevelDialog> m_dialog;
    Held<OpenSlider<LuDialogRealSlider>> m_real;
    Held<LuDialogPushButton> m_button;
    DialogAuditor m_events;
    SceneHost m_scene;
};

// The graph

TEST_F(LuDialogSlider3DTest, parts_standInOrder) {
    const auto getTypes = [&](const char* part) {
        std::string types;
        LuGroup* const group = getPartAs(*m_slider, part);
        for (int i = 0; i < group->getNumChildren(); ++i)
            types += std::string(group->getChild(i)->getTypeId().getName().getString()) + " ";
        return types;
    };
    EXPECT_EQ(getTypes("checkSep"), "Translation Scale Switch ");
    EXPECT_EQ(getTypes("sliderSep"), "Translation Separator Transform Separator ");
    EXPECT_EQ(getTypes("frameSep"), "Scale Group ");
    EXPECT_EQ(getTypes("cursorSep"), "Translation Translation Scale Group ");
    EXPECT_EQ(getTypes("edtSwtch"), "EventCallback Translation Separator Transform Separator ");
    EXPECT_EQ(getTypes("edtFrmSep"), "Scale Switch ");
    EXPECT_EQ(getTypes("editTextSep"), "Translation Group Text3 ");
    EXPECT_EQ(getTypes("labelSwitch"), "Translation Group Text3 ");
}

TEST_F(LuDialogSlider3DTest, geometry_comesFromTheSkins) {
    for (const auto& [part, name] : {std::pair("checkStateOff", "DialogCheckBoxStateOff"),
                                     {"checkStateOn", "DialogCheckBoxStateOn"},
                                     {"frame", "DialogSliderFrame"},
                                     {"cursor", "DialogSliderCursor"},
                                     {"valueFrame", "DialogEditTextFrame"},
                                     {"editValueFrame", "DialogEditTextEditingFrame"},
                                     {"editTextProp", "DialogTextProperties"},
                                     {"labelProp", "DialogTextProperties"}})
        EXPECT_EQ(m_slider->getPart(part, false), LuNode::getByName(name)) << part;
}

TEST_F(LuDialogSlider3DTest, newSkin_reachesAllThatASliderShows) {
    LuGroup* const frame = getPartAs(*m_slider, "valueFrame");
    LuPanelix::setSkin("data/Panelix/skins/default");
    EXPECT_EQ(LuNode::getByName("DialogEditTextFrame"), frame);
    EXPECT_EQ(LuNode::getByName("DialogSliderFrame"), getPartAs(*m_slider, "frame"));
    EXPECT_EQ(frame->getNumChildren(), 4);
}

TEST_F(LuDialogSlider3DTest, switches_followTheFields) {
    const auto build = [](bool isToggle, bool isContinuous, bool isValue) {
        const Held<OpenSlider<LuDialogIntegerSlider>> slider;
        slider->toggleVisible = isToggle;
        slider->continuousTrigger = isContinuous;
        slider->valueVisible = isValue;
        build3D(*slider);
        return std::tuple(getSwitch(*slider, "checkSwtch"), getSwitch(*slider, "edtSwtch"));
    };
    EXPECT_EQ(build(true, false, true), std::tuple(0, -3));
    EXPECT_EQ(build(true, true, true), std::tuple(1, -3));
    EXPECT_EQ(build(false, true, true), std::tuple(-1, -3));
    EXPECT_EQ(build(true, false, false), std::tuple(0, -1));
}

// The layout, for a slider of 300 by 30

class LuDialogSlider3DLayoutTest : public SliderTest<LuDialogIntegerSlider> {
protected:
    LvVec3f getTranslation(const char* part, int index) {
        return getChildAs<LuTranslation>(*m_slider, part, index)->translation.getValue();
    }
    float getFrameStart() { return getTranslation("sliderSep", 0).x - m_slider->getFrameLength() / 2; }
    float getRoom() { return static_cast<float>(m_slider->m_editZoneWidth); }
};

TEST_F(LuDialogSlider3DLayoutTest, partsStandSideBySide) {
    build3D(*m_slider);
    const float room = getRoom();
    EXPECT_EQ(room, static_cast<float>(LuPanelix::getLabelPixelSize("9", nullptr).x + 8));
    EXPECT_EQ(getTranslation("checkSep", 0), LvVec3f(-137, 0, 0));
    EXPECT_EQ(getChildAs<LuScale>(*m_slider, "checkSep", 1)->scaleFactor.getValue(), LvVec3f(14, 14, 1));
    const float length = 274 - room - 2;
    EXPECT_EQ(getChildAs<LuScale>(*m_slider, "frameSep", 0)->scaleFactor.getValue(), LvVec3f(length, 20, 1));
    EXPECT_EQ(getFrameStart(), -127);
    EXPECT_EQ(getTranslation("cursorSep", 1), LvVec3f(5 - length / 2, -5, 0));
    EXPECT_EQ(getChildAs<LuScale>(*m_slider, "cursorSep", 2)->scaleFactor.getValue(), LvVec3f(10, 10, 1));
    EXPECT_EQ(getTranslation("edtSwtch", 1), LvVec3f((294 - room) / 2, 0, 0));
    EXPECT_EQ(getChildAs<LuScale>(*m_slider, "edtFrmSep", 0)->scaleFactor.getValue(), LvVec3f(room, 20, 1));
}

TEST_F(LuDialogSlider3DLayoutTest, number_standsLeftInTheMiddleOfItsBox) {
    build3D(*m_slider);
    auto* const text = getChildAs<LuText3>(*m_slider, "editTextSep", -1);
    const LvBox3f box = measure(getPartAs(*m_slider, "editTextProp"), text);
    EXPECT_EQ(getTranslation("editTextSep", 0),
              LvVec3f(3 - getRoom() / 2, (box.max.y + box.min.y) * -0.5F, 0));
    EXPECT_EQ(text->parts.getValue(), LuText3::FRONT);
}

TEST_F(LuDialogSlider3DLayoutTest, hiddenToggleAndValue_leaveTheirRoomToTheFrame) {
    m_slider->toggleVisible = false;
    m_slider->valueVisible = false;
    build3D(*m_slider);
    EXPECT_EQ(getFrameStart(), -145);
    EXPECT_EQ(m_slider->getFrameLength(), 292);
}

TEST_F(LuDialogSlider3DLayoutTest, label_movesTheRest) {
    m_slider->label = "IIIII";
    m_slider->labelVisibility = true;
    build3D(*m_slider);
    const auto column = static_cast<float>(LuPanelix::getLabelPixelSize("IIIII", nullptr).x);
    EXPECT_EQ(getTranslation("checkSep", 0).x, -135 + column);
    EXPECT_EQ(getFrameStart(), -125 + column);
    EXPECT_EQ(m_slider->getFrameLength(), 272 - column - getRoom() - 2);
    EXPECT_EQ(getLines(*getChildAs<LuText3>(*m_slider, "labelSwitch", -1)),
              std::vector<std::string>{"IIIII"});
    m_slider->labelVisibility = false;
    EXPECT_EQ(getFrameStart(), -127);
    EXPECT_EQ(getSwitch(*m_slider, "labelSwitch"), -1);
}

TEST_F(LuDialogSlider3DLayoutTest, labelWithAnEscape_isShownConverted) {
    build3D(*m_slider);
    m_slider->label = "one\\ttwo";
    EXPECT_EQ(getLines(*getChildAs<LuText3>(*m_slider, "labelSwitch", -1)),
              std::vector<std::string>{"one\ttwo"});
}

TEST_F(LuDialogSlider3DLayoutTest, labelAlignment_placesTheLabelInItsColumn) {
    m_slider->label = "IIIII";
    m_slider->labelVisibility = true;
    build3D(*m_slider);
    LvVec2i32 column(100, 20);
    m_slider->setLabelSize(column);
    const auto getX = [&](LuPanelix::LabelAlignment alignment) {
        m_slider->labelAlignment = alignment;
        return getTranslation("labelSwitch", 0).x;
    };
    const LvBox3f box =
        measure(getPartAs(*m_slider, "labelProp"), getChildAs<LuText3>(*m_slider, "labelSwitch", -1));
    const int spare = static_cast<int>(100 - (box.max.x - box.min.x));
    EXPECT_EQ(getX(LuPanelix::LEFT), -147);
    EXPECT_EQ(getX(LuPanelix::CENTER), static_cast<float>(-147 + spare / 2));
    EXPECT_EQ(getX(LuPanelix::RIGHT), static_cast<float>(-147 + spare));
}

TEST_F(LuDialogSlider3DLayoutTest, hiddenValue_freesTheRoomAtOnce) {
    build3D(*m_slider);
    m_slider->valueVisible = false;
    EXPECT_EQ(m_slider->getFrameLength(), 274);
    EXPECT_EQ(getSwitch(*m_slider, "edtSwtch"), -1);
    m_slider->valueVisible = true;
    EXPECT_EQ(m_slider->getFrameLength(), 272 - getRoom());
    EXPECT_EQ(getSwitch(*m_slider, "edtSwtch"), -3);
}

TEST_F(LuDialogSlider3DLayoutTest, hiddenCheckMark_comesBackWithContinuousTrigger) {
    build3D(*m_slider);
    m_slider->toggleVisible = false;
    EXPECT_EQ(getSwitch(*m_slider, "checkSwtch"), -1);
    m_slider->continuousTrigger = true;
    EXPECT_EQ(getSwitch(*m_slider, "checkSwtch"), 1);
    m_slider->toggleVisible = false;
    EXPECT_EQ(getSwitch(*m_slider, "checkSwtch"), -1);
    m_slider->toggleVisible = true;
    EXPECT_EQ(getSwitch(*m_slider, "checkSwtch"), 1);
}

TEST_F(LuDialogSlider3DLayoutTest, newFrameLength_leavesTheCursorUntilTheNextPosition) {
    m_slider->value = 1;
    build3D(*m_slider);
    const float before = m_slider->getCursor();
    m_slider->valueVisible = false;
    EXPECT_EQ(m_slider->getCursor(), before);
    EXPECT_EQ(getTranslation("cursorSep", 1).x, 5 - 274 / 2);
    m_slider->change3DEnable();
    EXPECT_EQ(m_slider->getCursor(), 264);
}

TEST_F(LuDialogSlider3DLayoutTest, hostileSizes_areSafe) {
    m_slider->width = std::numeric_limits<int>::max();
    m_slider->minWidth = std::numeric_limits<int>::max();
    build3D(*m_slider);
    LvVec2i32 column(std::numeric_limits<int>::max(), 1);
    m_slider->labelVisibility = true;
    m_slider->setLabelSize(column);
    m_slider->toggleVisible = false;
    column.setValue(std::numeric_limits<int>::min(), 1);
    m_slider->setLabelSize(column);
    m_slider->toggleVisible = true;
    EXPECT_TRUE(std::isfinite(m_slider->getCursor()));
}

// Clicks on the frame

TEST_F(LuDialogSlider3DTest, pressOnTheFrame_bringsTheCursorThere) {
    const float half = getTravelPart(0.5F);
    EXPECT_TRUE(m_scene.press(getFramePlace(half + 5)));
    EXPECT_NEAR(m_slider->getCursor(), half, 1);
    EXPECT_NEAR(m_slider->value.getValue(), 50, 1);
    EXPECT_EQ(m_slider->getText3D(), m_slider->getValueText().str());
    EXPECT_EQ(m_events.m_count, 1);
    m_scene.release();
    EXPECT_EQ(m_events.m_count, 1);
}

TEST_F(LuDialogSlider3DTest, pressAtAnEndOfTheFrame_givesTheLimit) {
    m_scene.click(getFramePlace(m_slider->getFrameLength() - 2));
    EXPECT_EQ(m_slider->value.getValue(), 100);
    EXPECT_EQ(m_slider->getCursor(), getTravel());
    m_scene.click(getFramePlace(2));
    EXPECT_EQ(m_slider->value.getValue(), 0);
    EXPECT_EQ(m_slider->getCursor(), 0);
}

TEST_F(LuDialogSlider3DTest, pressOnTheFrame_isHeardWhateverTheTrigger) {
    m_slider->continuousTrigger = true;
    m_scene.click(getFramePlace(m_slider->getFrameLength() - 2));
    EXPECT_EQ(m_events.m_count, 1);
}

TEST_F(LuDialogSlider3DTest, pressOnTheFrameOfAScaledScene_bringsTheCursorThere) {
    auto* const scale = new LuScale;
    scale->scaleFactor = LvVec3f(0.5F, 0.5F, 0.5F);
    m_scene.getRoot().insertChild(scale, 1);
    const LvVec3f middle = m_scene.getMiddle(*m_slider, "frameSep");
    m_scene.click({middle.x, middle.y + 3, middle.z});
    EXPECT_NEAR(m_slider->getCursor(), getTravel() / 2, 2);
}

TEST_F(LuDialogSlider3DTest, dragThatBeganOnTheFrame_movesNothingMore) {
    m_scene.press(getFramePlace(getTravelPart(0.5F)));
    const float before = m_slider->getCursor();
    m_scene.dragBy(40, 0);
    EXPECT_EQ(m_slider->getCursor(), before);
    m_scene.release();
    EXPECT_EQ(m_events.m_count, 1);
}

// Drags of the cursor

TEST_F(LuDialogSlider3DTest, pressOnTheCursor_movesNothing) {
    const float before = m_slider->getCursor();
    m_scene.click(*m_slider, "cursorSep");
    EXPECT_EQ(m_slider->getCursor(), before);
    EXPECT_EQ(m_slider->value.getValue(), 20);
    EXPECT_EQ(m_events.m_count, 0);
}

TEST_F(LuDialogSlider3DTest, drag_takesTheCursorAndTheTextAlong) {
    const float before = m_slider->getCursor();
    m_scene.press(*m_slider, "cursorSep");
    m_scene.dragBy(50, 30);
    EXPECT_NEAR(m_slider->getCursor(), before + 50, 0.01F);
    EXPECT_EQ(m_slider->value.getValue(), 20);
    const auto expected = static_cast<int>((before + 50) / getTravel() * 100 + 0.5F);
    EXPECT_EQ(m_slider->getText3D(), std::to_string(expected));
    EXPECT_EQ(m_events.m_count, 0);
    m_scene.release();
    EXPECT_EQ(m_slider->value.getValue(), expected);
    EXPECT_EQ(m_events.m_count, 1);
}

TEST_F(LuDialogSlider3DTest, dragWithContinuousTrigger_isHeardAtEachNewValue) {
    m_slider->continuousTrigger = true;
    m_scene.press(*m_slider, "cursorSep");
    m_scene.dragBy(50, 0);
    EXPECT_EQ(m_events.m_count, 1);
    m_scene.dragBy(0, 10);
    EXPECT_EQ(m_events.m_count, 1);
    m_scene.dragBy(-50, 0);
    EXPECT_EQ(m_slider->value.getValue(), 20);
    EXPECT_EQ(m_events.m_count, 2);
    m_scene.release();
    EXPECT_EQ(m_events.m_count, 2);
}

TEST_F(LuDialogSlider3DTest, dragBeyondTheEnds_keepsTheLimit) {
    m_scene.press(*m_slider, "cursorSep");
    m_scene.dragBy(2000, 0);
    EXPECT_EQ(m_slider->getCursor(), getTravel());
    m_scene.dragBy(-4000, 0);
    EXPECT_EQ(m_slider->getCursor(), 0);
    m_scene.dragBy(6000, 300);
    m_scene.release();
    EXPECT_EQ(m_slider->value.getValue(), 100);
    EXPECT_EQ(m_slider->getText3D(), "100");
}

TEST_F(LuDialogSlider3DTest, dragByATracker_followsItsRay) {
    const auto getRay = [](const LvVec3f& place) {
        return LvLine::fromDirection({place.x, place.y, 100}, {0, 0, -1});
    };
    const LvVec3f place = m_scene.getMiddle(*m_slider, "cursorSep");
    const float before = m_slider->getCursor();
    EXPECT_TRUE(m_scene.trackerButton(LuButtonEvent::DOWN, getRay(place)));
    m_scene.trackerMove(getRay(place + LvVec3f(30, 5, 0)));
    EXPECT_NEAR(m_slider->getCursor(), before + 30, 0.01F);
    m_scene.trackerMove(LvLine::fromDirection({0, 0, 100}, {1, 0, 0}));
    EXPECT_NEAR(m_slider->getCursor(), before + 30, 0.01F);
    m_scene.trackerButton(LuButtonEvent::UP, getRay(place));
    EXPECT_EQ(m_events.m_count, 1);
}

TEST_F(LuDialogSlider3DTest, dragInPerspective_followsThePointer) {
    auto* const camera = new LuPerspectiveCamera;
    camera->position.setValue({0, 0, 500});
    camera->nearDistance.setValue(1);
    camera->farDistance.setValue(1000);
    m_scene.useCamera(camera);
    const float before = m_slider->getCursor();
    m_scene.press(*m_slider, "cursorSep");
    m_scene.dragBy(40, 0);
    m_scene.release();
    EXPECT_NEAR(m_slider->getCursor(), before + 40, 2);
}

TEST_F(LuDialogSlider3DTest, dragWithoutATravel_givesNoNumberAndLeavesTheSceneWhole) {
    const Held<OpenSlider<LuDialogRealSlider>> narrow;
    narrow->labelVisibility = false;
    narrow->valueVisible = false;
    narrow->minWidth = 1;
    narrow->width = 36;
    narrow->fixedWidth = true;
    narrow->height = 30;
    SceneHost scene(narrow.get());
    ASSERT_EQ(narrow->getFrameLength(), 10);
    scene.press(*narrow, "cursorSep");
    scene.dragBy(5, 0);
    EXPECT_TRUE(std::isnan(narrow->getPosition()));
    EXPECT_EQ(narrow->getCursor(), 0);
    scene.release();
    EXPECT_TRUE(std::isnan(narrow->value.getValue()));
    EXPECT_FALSE(traverse(narrow.get()).isEmpty());
    narrow->value = 0.5F;
    EXPECT_EQ(narrow->getText3D(), "0.500");
}

TEST_F(LuDialogSlider3DTest, dragOnANegativeTravel_endsAtTheUpperClamp) {
    const Held<OpenSlider<LuDialogRealSlider>> narrow;
    narrow->labelVisibility = false;
    narrow->valueVisible = false;
    narrow->minWidth = 1;
    narrow->width = 30;
    narrow->fixedWidth = true;
    narrow->height = 30;
    SceneHost scene(narrow.get());
    ASSERT_EQ(narrow->getFrameLength(), 4);
    scene.press(*narrow, "cursorSep");
    scene.dragBy(5, 0);
    EXPECT_EQ(narrow->getPosition(), 1);
    scene.release();
    EXPECT_EQ(narrow->value.getValue(), 1);
}

// Both renditions

TEST_F(LuDialogSlider3DTest, drag_showsInTheWindows) {
    showInWindows();
    m_scene.press(*m_slider, "cursorSep");
    m_scene.dragBy(50, 0);
    EXPECT_EQ(m_slider->getThumb(), m_slider->getPosition());
    EXPECT_EQ(m_slider->getBox(), m_slider->getText3D());
    EXPECT_NE(m_slider->getBox(), "20");
    m_scene.release();
    EXPECT_EQ(m_slider->getBox(), m_slider->getValueText().str());
}

TEST_F(LuDialogSlider3DTest, pressOnTheFrame_showsInTheWindows) {
    showInWindows();
    m_scene.click(getFramePlace(m_slider->getFrameLength() - 2));
    EXPECT_EQ(m_slider->getThumb(), 1);
    EXPECT_EQ(m_slider->getBox(), "100");
}

TEST_F(LuDialogSlider3DTest, entryInTheWindow_showsInTheScene) {
    showInWindows();
    m_slider->enter("75");
    EXPECT_FLOAT_EQ(m_slider->getCursor(), getTravel() * 0.75F);
    EXPECT_EQ(m_slider->getText3D(), "75");
}

// The check mark

TEST_F(LuDialogSlider3DTest, clickOnTheCheckMark_turnsContinuousTriggerOver) {
    m_scene.click(*m_slider, "checkSep");
    EXPECT_TRUE(m_slider->continuousTrigger.getValue());
    EXPECT_EQ(getSwitch(*m_slider, "checkSwtch"), 1);
    m_scene.click(*m_slider, "checkSep");
    EXPECT_FALSE(m_slider->continuousTrigger.getValue());
    EXPECT_EQ(getSwitch(*m_slider, "checkSwtch"), 0);
    EXPECT_EQ(m_events.m_count, 0);
}

TEST_F(LuDialogSlider3DTest, clickOnTheCheckMark_showsInTheWindowAndTakesTheEndOfTheDragAway) {
    showInWindows();
    m_scene.click(*m_slider, "checkSep");
    EXPECT_EQ(SendMessageA(m_slider->getToggleWidget(), BM_GETCHECK, 0, 0), BST_CHECKED);
    m_scene.click(*m_slider, "checkSep");
    EXPECT_EQ(SendMessageA(m_slider->getToggleWidget(), BM_GETCHECK, 0, 0), BST_UNCHECKED);
}

// The value box

TEST_F(LuDialogSlider3DTest, pressOnTheValueBox_startsTheEditAndLeavesTheValue) {
    m_scene.press(*m_slider, "edtFrmSep");
    EXPECT_EQ(m_slider->m_editing3D, 1);
    EXPECT_EQ(getSwitch(*m_slider, "edtFrmSwtch"), 1);
    m_scene.release();
    EXPECT_EQ(m_slider->m_editing3D, 1);
    EXPECT_EQ(m_slider->value.getValue(), 20);
    EXPECT_EQ(m_slider->getText3D(), "20");
    EXPECT_EQ(m_events.m_count, 0);
}

TEST_F(LuDialogSlider3DTest, keysWithoutAnEdit_changeNothing) {
    type("5");
    EXPECT_EQ(m_slider->getText3D(), "20");
    m_scene.click(getFramePlace(5));
    type("5");
    EXPECT_EQ(m_slider->getText3D(), m_slider->getValueText().str());
}

TEST_F(LuDialogSlider3DTest, typedDigits_areAppendedUntilReturnTakesThem) {
    edit(*m_slider);
    m_scene.key(LuKeyboardEvent::BACKSPACE);
    type("4");
    EXPECT_EQ(m_slider->getText3D(), "24");
    EXPECT_EQ(m_slider->value.getValue(), 20);
    EXPECT_EQ(m_events.m_count, 0);
    m_scene.key(LuKeyboardEvent::RETURN);
    EXPECT_EQ(m_slider->value.getValue(), 24);
    EXPECT_FLOAT_EQ(m_slider->getCursor(), getTravel() * 0.24F);
    EXPECT_EQ(m_slider->m_editing3D, 0);
    EXPECT_EQ(getSwitch(*m_slider, "edtFrmSwtch"), 0);
    EXPECT_EQ(m_events.m_count, 1);
}

TEST_F(LuDialogSlider3DTest, returnOnTheSameNumber_isHeardToo) {
    edit(*m_slider);
    m_scene.key(LuKeyboardEvent::RETURN);
    EXPECT_EQ(m_slider->value.getValue(), 20);
    EXPECT_EQ(m_events.m_count, 1);
}

TEST_F(LuDialogSlider3DTest, backspace_emptiesTheTextAndStopsThere) {
    edit(*m_slider);
    for (int i = 0; i < 4; ++i)
        m_scene.key(LuKeyboardEvent::BACKSPACE);
    EXPECT_EQ(m_slider->getText3D(), "");
    type("7");
    EXPECT_EQ(m_slider->getText3D(), "7");
}

TEST_F(LuDialogSlider3DTest, returnOnAnEmptyText_isZero) {
    startOver(*m_slider);
    m_scene.key(LuKeyboardEvent::RETURN);
    EXPECT_EQ(m_slider->value.getValue(), 0);
    EXPECT_EQ(m_slider->getText3D(), "0");
}

TEST_F(LuDialogSlider3DTest, integer_takesDigitsOnly) {
    startOver(*m_slider);
    type("-1.e,x 2");
    EXPECT_EQ(m_slider->getText3D(), "12");
    for (const auto key : {LuKeyboardEvent::ESCAPE, LuKeyboardEvent::TAB, LuKeyboardEvent::LEFT_ARROW,
                           LuKeyboardEvent::PAD_DELETE, LuKeyboardEvent::PAD_ENTER, LuKeyboardEvent::F1})
        m_scene.key(key);
    EXPECT_EQ(m_slider->getText3D(), "12");
    EXPECT_EQ(m_slider->m_editing3D, 1);
}

TEST_F(LuDialogSlider3DTest, keypad_typesItsDigits) {
    startOver(*m_slider);
    startOver(*m_real);
    edit(*m_slider);
    for (int key = 65429; key <= 65438; ++key)
        m_scene.key(static_cast<LuKeyboardEvent::Key>(key));
    EXPECT_EQ(m_slider->getText3D(), "7486293150");
    edit(*m_real);
    for (int key = 65429; key <= 65438; ++key)
        m_scene.key(static_cast<LuKeyboardEvent::Key>(key));
    EXPECT_EQ(m_real->getText3D(), "7486293150");
    m_scene.key(static_cast<LuKeyboardEvent::Key>(65439));
    m_scene.key(static_cast<LuKeyboardEvent::Key>(65436));
    EXPECT_EQ(m_real->getText3D(), "7486293150.1");
}

TEST_F(LuDialogSlider3DTest, real_takesWhatLeavesANumber) {
    startOver(*m_real);
    type("-");
    EXPECT_EQ(m_real->getText3D(), "");
    type("0.2.5x");
    EXPECT_EQ(m_real->getText3D(), "0.25");
    type("e");
    EXPECT_EQ(m_real->getText3D(), "0.25");
    m_scene.key(LuKeyboardEvent::RETURN);
    EXPECT_EQ(m_real->value.getValue(), 0.25F);
    EXPECT_EQ(m_real->getText3D(), "0.250");
    EXPECT_EQ(m_events.m_count, 1);
}

TEST_F(LuDialogSlider3DTest, typedNumberBeyondFixedLimits_isTheValueAndTheCursorStopsAtTheEnd) {
    m_slider->max = 10;
    m_slider->fixedLimits = true;
    startOver(*m_slider);
    type("15");
    m_scene.key(LuKeyboardEvent::RETURN);
    EXPECT_EQ(m_slider->value.getValue(), 15);
    EXPECT_EQ(m_slider->max.getValue(), 10);
    EXPECT_EQ(m_slider->getCursor(), getTravel());
    EXPECT_EQ(m_slider->getText3D(), "10");
}

TEST_F(LuDialogSlider3DTest, typedNumberBeyondFreeLimits_movesTheLimit) {
    startOver(*m_slider);
    type("150");
    m_scene.key(LuKeyboardEvent::RETURN);
    EXPECT_EQ(m_slider->value.getValue(), 150);
    EXPECT_EQ(m_slider->max.getValue(), 150);
    EXPECT_EQ(m_slider->getCursor(), getTravel());
    EXPECT_EQ(m_slider->getText3D(), "150");
}

TEST_F(LuDialogSlider3DTest, typedNumber_showsInTheWindows) {
    showInWindows();
    m_slider->fixedLimits = true;
    startOver(*m_slider);
    type("150");
    m_scene.key(LuKeyboardEvent::RETURN);
    EXPECT_EQ(m_slider->getThumb(), 1);
    EXPECT_EQ(m_slider->getBox(), "100");
}

TEST_F(LuDialogSlider3DTest, hiddenValueBox_takesNoKeys) {
    edit(*m_slider);
    m_slider->valueVisible = false;
    type("5");
    EXPECT_EQ(m_slider->getText3D(), "20");
}

TEST_F(LuDialogSlider3DTest, pressOnAnotherComponent_endsTheEdit) {
    edit(*m_slider);
    m_scene.click(*m_button, "frameSep");
    EXPECT_EQ(m_slider->m_editing3D, 0);
    EXPECT_EQ(getSwitch(*m_slider, "edtFrmSwtch"), 0);
    type("5");
    EXPECT_EQ(m_slider->getText3D(), "20");
}

TEST_F(LuDialogSlider3DTest, pressOnTheFrameOrTheCheckMark_leavesTheEdit) {
    edit(*m_slider);
    m_scene.click(*m_slider, "checkSep");
    m_scene.click(getFramePlace(20));
    EXPECT_EQ(m_slider->m_editing3D, 1);
    EXPECT_EQ(getSwitch(*m_slider, "edtFrmSwtch"), 1);
}

TEST_F(LuDialogSlider3DTest, dragOfTheCursor_endsTheEdit) {
    edit(*m_slider);
    m_scene.press(*m_slider, "cursorSep");
    EXPECT_EQ(m_slider->m_editing3D, 1);
    m_scene.dragBy(5, 0);
    EXPECT_EQ(m_slider->m_editing3D, 0);
    EXPECT_EQ(LuPanelix::get3DCurrentActive(), nullptr);
    m_scene.release();
}

TEST_F(LuDialogSlider3DTest, keyThatIsNotKnown_isLeftAlone) {
    edit(*m_slider);
    m_slider->computeNewSliderEditValue(nullptr);
    const LuKeyboardEvent up(LuKeyboardEvent::NUMBER_5, LuButtonEvent::UP);
    m_slider->computeNewSliderEditValue(&up);
    EXPECT_EQ(m_slider->getText3D(), "20");
}

TEST_F(LuDialogSlider3DTest, disabledSlider_takesNoPress) {
    const LvVec3f place = getFramePlace(100);
    m_slider->enable = false;
    m_scene.click(place);
    EXPECT_EQ(m_slider->value.getValue(), 20);
    EXPECT_EQ(m_events.m_count, 0);
}

// What the auditors may do

TEST_F(LuDialogSlider3DTest, sliderRemovedByItsAuditor_isSafe) {
    auto* const doomed = new LuDialogIntegerSlider;
    doomed->continuousTrigger = true;
    m_dialog->addChild(doomed);
    m_dialog->updateDialogBuild(0);
    m_events.m_action = [&](LuDialogSlider& slider) {
        m_events.m_action = nullptr;
        m_dialog->removeChild(&slider);
    };
    m_scene.press(*doomed, "cursorSep");
    m_scene.dragBy(500, 0);
    m_scene.release();
    EXPECT_EQ(m_events.m_count, 1);
}

TEST_F(LuDialogSlider3DTest, sliderRemovedAtReturn_isSafe) {
    auto* const doomed = new OpenSlider<LuDialogIntegerSlider>;
    m_dialog->addChild(doomed);
    m_dialog->updateDialogBuild(0);
    m_events.m_action = [&](LuDialogSlider& slider) { m_dialog->removeChild(&slider); };
    edit(*doomed);
    m_scene.key(LuKeyboardEvent::RETURN);
    EXPECT_EQ(m_events.m_count, 1);
    EXPECT_EQ(LuPanelix::get3DCurrentActive(), nullptr);
}

} // namespace
