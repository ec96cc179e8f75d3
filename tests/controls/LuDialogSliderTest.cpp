// SPDX-License-Identifier: MIT
#include "controls/LuDialogSlider.h"

#include "controls/LuDialogCustomSlider.h"
#include "layout/LuTopLevelDialog.h"
#include "platform/lumora/io/LuDB.h"
#include "tests/controls/ControlTest.h"
#include "tests/platform/lumora/win/GLRecorder.h"

#include <cmath>
#include <functional>
#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Log = std::vector<std::string>;

constexpr int EDIT_ROOM = 40;

/// A slider whose number is its position in hundredths. It writes down what is asked of it.
class HundredthSlider : public LuDialogSlider {
public:
    static int getHundredths(float position) { return static_cast<int>(std::lround(position * 100)); }

    void setValueFromEdit(int is2D) override {
        note("fromEdit " + std::to_string(is2D));
        m_normalizedValue = static_cast<float>(std::atoi(getValueFromEdit().getString())) / 100;
    }
    void setValueFromSlider(float position) override {
        note("fromSlider " + std::to_string(getHundredths(position)));
        m_normalizedValue = position;
    }
    void changeSliderValue() override {
        note("slider");
        if (m_customSlider)
            m_customSlider->setValue(m_normalizedValue, 1);
    }
    void setValue() override {
        note("value " + std::to_string(getHundredths(m_normalizedValue)));
        if (m_atValue)
            m_atValue();
    }
    void changeEditValue() override {
        note("edit");
        if (existWidget(getEditWidget()))
            SetWindowTextA(getEditWidget(), std::to_string(getHundredths(m_normalizedValue)).c_str());
    }
    void changeFormat() override { note("format"); }
    int computeEditZoneWidth() override { return m_editRoom; }
    using LuDialogSlider::updateWidget;

    HWND getLabel() const { return m_labelWidget; }
    Log takeLog() { return std::exchange(m_log, {}); }

    std::function<void()> m_atValue;
    int m_editRoom = EDIT_ROOM;

private:
    void note(const std::string& text) { m_log.push_back(text); }
    Log m_log;
};

class LuDialogSliderTest : public ControlTest {
protected:
    static constexpr int COLUMN = 50, WIDTH = 300, HEIGHT = 30;

    /// Builds the slider as the child of a container with a label column, 300 by 30 pixels.
    void build() {
        m_slider->setParent(m_container.get());
        LvVec2i32 column(COLUMN, 10), size(WIDTH, HEIGHT), position;
        m_slider->setLabelSize(column);
        m_slider->buildWidget(m_window, size, position, 1);
        m_slider->takeLog();
    }

    HWND getThumbWindow() const { return m_slider->getSliderWidget(); }
    HWND getToggle() const { return m_slider->getToggleWidget(); }
    HWND getEdit() const { return m_slider->getEditWidget(); }

    void sendMouse(UINT message, int x) const {
        SendMessageA(getThumbWindow(), message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, MAKELPARAM(x, 8));
    }
    /// Takes the thumb at its left end, where it stands, and moves it by so many pixels.
    void drag(std::initializer_list<int> motions) const {
        int x = 5;
        sendMouse(WM_LBUTTONDOWN, x);
        for (const int motion : motions)
            sendMouse(WM_MOUSEMOVE, x += motion);
        sendMouse(WM_LBUTTONUP, x);
    }
    /// Pixels from end to end of the thumb's way.
    int getTravel() const { return std::get<2>(getPlace(getThumbWindow())) - 10; }

    void sendKey(HWND window, UINT message, int key) const {
        SendMessageA(window, message, static_cast<WPARAM>(key), 0);
    }
    void type(const char* characters) const {
        for (; *characters; ++characters)
            SendMessageA(getEdit(), WM_CHAR, static_cast<unsigned char>(*characters), 0);
    }
    bool isChecked() const { return SendMessageA(getToggle(), BM_GETCHECK, 0, 0) == BST_CHECKED; }

    Held<HundredthSlider> m_slider;

private:
    Held<LuDialogComponent> m_container;
};

TEST_F(LuDialogSliderTest, type_isADialogComponent) {
    EXPECT_EQ(LuDialogSlider::getClassTypeId().getName(), LvName("DialogSlider"));
    EXPECT_EQ(LuDialogSlider::getClassTypeId().getParent(), LuDialogComponent::getClassTypeId());
}

TEST_F(LuDialogSliderTest, fields_haveTheirDefaults) {
    EXPECT_TRUE(m_slider->valueVisible.getValue());
    EXPECT_EQ(m_slider->format.getValue(), "%3f");
    EXPECT_FALSE(m_slider->continuousTrigger.getValue());
    EXPECT_TRUE(m_slider->toggleVisible.getValue());
    EXPECT_FALSE(m_slider->fixedLimits.getValue());
    EXPECT_EQ(m_slider->colors.getValues(), std::vector<LvColor>{LvColor(0.66F, 0.66F, 0.66F)});
    EXPECT_TRUE(m_slider->shadedColors.getValue());
}

// Sizes

TEST_F(LuDialogSliderTest, initialSize_is150By30) {
    EXPECT_EQ(m_slider->getComponentInitSize(), LvVec2i32(150, 30));
    m_slider->valueVisible = false;
    m_slider->label = "A long label of many words";
    EXPECT_EQ(m_slider->getComponentInitSize(), LvVec2i32(150, 30));
}

TEST_F(LuDialogSliderTest, defaultSize_isTheComponentsWithTheLabelColumn) {
    LvVec2i32 column(50, 10), component(80, 5), size, minSize, maxSize;
    m_slider->setLabelSize(column);
    m_slider->setComponentSize(component);
    m_slider->getDefaultSize(size, minSize, maxSize);
    EXPECT_EQ(size, LvVec2i32(80 + 50 + 2, 5));
    EXPECT_EQ(minSize, LvVec2i32(25, 25));
    m_slider->labelVisibility = false;
    m_slider->getDefaultSize(size, minSize, maxSize);
    EXPECT_EQ(size, LvVec2i32(80, 5));
}

// Windows

TEST_F(LuDialogSliderTest, windows_areAStaticAButtonAnEditAndASlider) {
    m_slider->label = "Speed:";
    build();
    EXPECT_EQ(getStyle(m_slider->getLabelWidget()), 0x52000002u);
    EXPECT_EQ(getText(m_slider->getLabelWidget()), "Speed:");
    EXPECT_EQ(getStyle(getToggle()), 0x52010003u);
    EXPECT_EQ(getText(getToggle()), "");
    EXPECT_EQ(getStyle(getEdit()), 0x52010080u);
    EXPECT_EQ(getExtendedStyle(getEdit()) & WS_EX_CLIENTEDGE, WS_EX_CLIENTEDGE);
    EXPECT_EQ(getStyle(getThumbWindow()) & WS_TABSTOP, WS_TABSTOP);
    for (const HWND window : {m_slider->getLabelWidget(), getToggle(), getEdit(), getThumbWindow()})
        EXPECT_EQ(GetParent(window), m_slider->getWidget());
}

TEST_F(LuDialogSliderTest, build_showsPositionAndNumber) {
    m_slider->setValueFromSlider(0.25F);
    build();
    EXPECT_EQ(m_slider->getValue(), 0.25F);
    EXPECT_EQ(getText(getEdit()), "25");
}

TEST_F(LuDialogSliderTest, valueWithoutAWindow_is0) { EXPECT_EQ(m_slider->getValue(), 0); }

TEST_F(LuDialogSliderTest, secondBuild_keepsTheWindows) {
    build();
    const HWND label = m_slider->getLabel(), toggle = getToggle(), edit = getEdit(), thumb = getThumbWindow();
    build();
    EXPECT_EQ(m_slider->getLabel(), label);
    EXPECT_EQ(getToggle(), toggle);
    EXPECT_EQ(getEdit(), edit);
    EXPECT_EQ(getThumbWindow(), thumb);
}

/// What the windows' places follow from.
struct Layout {
    bool hasLabel, hasToggle, hasValue;
    int edgeStyle;
};

std::ostream& operator<<(std::ostream& out, const Layout& layout) {
    return out << (layout.hasLabel ? "label " : "") << (layout.hasToggle ? "toggle " : "")
               << (layout.hasValue ? "value " : "") << "edge " << layout.edgeStyle;
}

std::vector<Layout> getLayouts() {
    std::vector<Layout> layouts;
    for (int i = 0; i < 24; ++i)
        layouts.push_back({(i & 1) != 0, (i & 2) != 0, (i & 4) != 0, i / 8});
    return layouts;
}

class LuDialogSliderLayoutTest : public LuDialogSliderTest {
protected:
    void expectPlaces(const Layout& layout) {
        constexpr int INSETS[] = {3, 2, 0};
        const int inset = INSETS[layout.edgeStyle];
        int x = inset, width = WIDTH - 6;
        const int textHeight = LuPanelix::getLabelPixelSize("Speed:", nullptr).y;
        EXPECT_EQ(getPlace(m_slider->getLabel()),
                  Place(inset, (HEIGHT - 6 - textHeight) / 2 + inset, COLUMN, textHeight));
        EXPECT_EQ(isShown(m_slider->getLabel()), layout.hasLabel);
        if (layout.hasLabel) {
            x += COLUMN + 2;
            width -= COLUMN + 2;
        }
        if (layout.hasToggle) {
            EXPECT_TRUE(isShown(getToggle()));
            EXPECT_EQ(getPlace(getToggle()), Place(x, inset, 16, HEIGHT - 6));
            x += 18;
            width -= 18;
        }
        EXPECT_EQ(isShown(getEdit()), layout.hasValue);
        if (layout.hasValue)
            width -= EDIT_ROOM + 2;
        EXPECT_EQ(getPlace(getThumbWindow()), Place(x, inset, width, HEIGHT - 6));
        // The edit box stands behind the slider, hidden as it may be, 2 pixels further than its inset says.
        EXPECT_EQ(getPlace(getEdit()), Place(x + width + 2, inset + 2, EDIT_ROOM, 20));
    }

    void setParts(const Layout& layout) {
        m_slider->labelVisibility = layout.hasLabel;
        m_slider->toggleVisible = layout.hasToggle;
        m_slider->valueVisible = layout.hasValue;
        m_slider->edgeStyle = layout.edgeStyle;
    }
};

TEST_F(LuDialogSliderLayoutTest, partsAtTheBuild_haveTheirPlaces) {
    for (const Layout& layout : getLayouts()) {
        SCOPED_TRACE(testing::PrintToString(layout));
        m_slider->destroyWidget();
        m_slider->label = "Speed:";
        setParts(layout);
        build();
        expectPlaces(layout);
    }
}

TEST_F(LuDialogSliderLayoutTest, partsChangedLater_haveTheirPlaces) {
    m_slider->label = "Speed:";
    build();
    const std::vector<Layout> layouts = getLayouts();
    for (std::size_t i = 0; i < layouts.size(); ++i) {
        // Far from one to the next, so that several things change at once.
        const Layout& layout = layouts[i * 7 % layouts.size()];
        SCOPED_TRACE(testing::PrintToString(layout));
        setParts(layout);
        m_slider->changeEdgeStyle();
        expectPlaces(layout);
    }
}

TEST_F(LuDialogSliderTest, invisibleValue_leavesItsPlaceToTheSlider) {
    build();
    const auto [x, y, width, height] = getPlace(getThumbWindow());
    m_slider->valueVisible = false;
    EXPECT_FALSE(IsWindowVisible(getEdit()));
    EXPECT_EQ(getPlace(getThumbWindow()), Place(x, y, width + EDIT_ROOM + 2, height));
}

TEST_F(LuDialogSliderTest, invisibleToggle_letsTheSliderStartAtTheInsetAndKeepsTheTrigger) {
    m_slider->labelVisibility = false;
    m_slider->continuousTrigger = true;
    build();
    m_slider->toggleVisible = false;
    EXPECT_FALSE(IsWindowVisible(getToggle()));
    EXPECT_EQ(std::get<0>(getPlace(getThumbWindow())), 3);
    EXPECT_TRUE(m_slider->continuousTrigger.getValue());
    drag({getTravel()});
    EXPECT_THAT(m_slider->takeLog(), ElementsAre("fromSlider 100", "value 100", "edit"));
}

TEST_F(LuDialogSliderTest, toggleInvisibleFromTheStart_hasNoHeight) {
    m_slider->toggleVisible = false;
    m_slider->continuousTrigger = true;
    build();
    EXPECT_EQ(getPlace(getToggle()), Place(0, 0, 16, 0));
    EXPECT_TRUE(m_slider->continuousTrigger.getValue());
    EXPECT_TRUE(isChecked());
}

TEST_F(LuDialogSliderTest, newRoomForTheNumber_isTakenFromTheSlider) {
    build();
    const int before = std::get<2>(getPlace(getThumbWindow()));
    m_slider->m_editRoom = EDIT_ROOM + 30;
    m_slider->updateWidget();
    EXPECT_EQ(std::get<2>(getPlace(getThumbWindow())), before - 30);
    EXPECT_EQ(std::get<2>(getPlace(getEdit())), EDIT_ROOM + 30);
}

TEST_F(LuDialogSliderTest, label_changesItsTextAlone) {
    build();
    const Place before = getPlace(m_slider->getLabel());
    m_slider->label = "Two\\nlines";
    EXPECT_EQ(getText(m_slider->getLabel()), "Two\nlines");
    EXPECT_EQ(getPlace(m_slider->getLabel()), before);
}

TEST_F(LuDialogSliderTest, labelAlignment_changesTheStyleAndKeepsTheRest) {
    m_slider->labelVisibility = false;
    m_slider->enable = false;
    build();
    m_slider->labelAlignment = LuPanelix::CENTER;
    EXPECT_EQ(getStyle(m_slider->getLabel()), 0x4a000001u);
    m_slider->labelVisibility = true;
    m_slider->enable = true;
    EXPECT_EQ(getStyle(m_slider->getLabel()), 0x52000001u);
}

TEST_F(LuDialogSliderTest, destroyedWidgets_areGoneAndCanBeBuiltAnew) {
    build();
    const HWND windows[] = {m_slider->getLabel(), getToggle(), getEdit(), getThumbWindow()};
    m_slider->destroyWidget();
    for (const HWND window : windows)
        EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(m_slider->getValue(), 0);
    EXPECT_EQ(m_slider->getLabelWidget(), nullptr);
    build();
    EXPECT_TRUE(IsWindow(getThumbWindow()));
}

// Enabling

TEST_F(LuDialogSliderTest, enable_isThatOfAllWindows) {
    build();
    for (const bool isEnabled : {false, true}) {
        m_slider->enable = isEnabled;
        for (const HWND window : {m_slider->getLabel(), getToggle(), getEdit(), getThumbWindow()})
            EXPECT_EQ(IsWindowEnabled(window) != 0, isEnabled);
    }
}

TEST_F(LuDialogSliderTest, containerThatIsDisabled_disablesAllWindows) {
    build();
    m_slider->changeWidgetEnable(0);
    EXPECT_TRUE(m_slider->enable.getValue());
    for (const HWND window : {m_slider->getLabel(), getToggle(), getEdit(), getThumbWindow()})
        EXPECT_FALSE(IsWindowEnabled(window));
    m_slider->enable = false;
    m_slider->changeWidgetEnable(1);
    EXPECT_FALSE(IsWindowEnabled(getThumbWindow()));
}

class LuDialogSliderBarTest : public LuDialogSliderTest {
protected:
    Log draw() {
        m_recorder.take();
        SendMessageA(getThumbWindow(), WM_PAINT, 0, 0);
        return m_recorder.take();
    }

private:
    GLRecorder m_recorder;
};

TEST_F(LuDialogSliderBarTest, colorsFromTheStart_areThoseOfTheBar) {
    m_slider->colors.setValue(LvColor(1, 0, 0));
    build();
    EXPECT_EQ(draw()[0], "color3fv 255 0 0");
}

TEST_F(LuDialogSliderBarTest, newColors_areThoseOfTheBar) {
    build();
    m_slider->colors.setValues({LvColor(1, 0, 0), LvColor(0, 0, 1)});
    EXPECT_EQ(draw()[1], "shadeModel 7425");
    m_slider->shadedColors = false;
    EXPECT_EQ(draw()[1], "shadeModel 7424");
    m_slider->colors.setValues({});
    EXPECT_THAT(draw(), testing::Not(testing::Contains("begin 8")));
}

TEST_F(LuDialogSliderBarTest, disabledRamp_isHalfAsBright) {
    m_slider->colors.setValues({LvColor(1, 0, 0), LvColor(0, 0, 1)});
    build();
    m_slider->enable = false;
    EXPECT_EQ(draw()[3], "color3f 128 0 0");
    m_slider->enable = true;
    EXPECT_EQ(draw()[3], "color3fv 255 0 0");
    m_slider->changeWidgetEnable(0);
    EXPECT_EQ(draw()[3], "color3f 128 0 0");
    m_slider->changeWidgetEnable(1);
    EXPECT_EQ(draw()[3], "color3fv 255 0 0");
}

TEST_F(LuDialogSliderBarTest, rampOfASliderBuiltDisabled_isBrightUntilItsEnablingChanges) {
    m_slider->colors.setValues({LvColor(1, 0, 0), LvColor(0, 0, 1)});
    m_slider->enable = false;
    build();
    EXPECT_EQ(draw()[3], "color3fv 255 0 0");
    m_slider->changeEnable();
    EXPECT_EQ(draw()[3], "color3f 128 0 0");
}

TEST_F(LuDialogSliderTest, colorsBeforeThereAreWindows_areKept) {
    build();
    m_slider->destroyWidget();
    m_slider->colors.setValue(LvColor(1, 0, 0));
    m_slider->shadedColors = false;
    build();
    EXPECT_EQ(m_slider->colors.getNum(), 1);
}

TEST_F(LuDialogSliderTest, format_takesEffectWithTheNextText) {
    build();
    m_slider->format = "%d";
    EXPECT_THAT(m_slider->takeLog(), ElementsAre("format"));
}

// The ways of a value

TEST_F(LuDialogSliderTest, drag_movesTheNumberAndGivesTheValueAtItsEnd) {
    build();
    const int half = getTravel() / 2;
    drag({half / 2, half - half / 2});
    const std::string quarter = "fromSlider " + std::to_string(std::lround(100.0 * (half / 2) / getTravel()));
    EXPECT_THAT(m_slider->takeLog(),
                ElementsAre(quarter, "edit", "fromSlider 50", "edit", "fromSlider 50", "value 50", "edit"));
    EXPECT_EQ(getText(getEdit()), "50");
}

TEST_F(LuDialogSliderTest, dragWithContinuousTrigger_givesTheValueAtEachMotion) {
    m_slider->continuousTrigger = true;
    build();
    drag({getTravel() / 2, 0});
    EXPECT_THAT(m_slider->takeLog(), ElementsAre("fromSlider 50", "value 50", "edit"));
}

TEST_F(LuDialogSliderTest, clickOnTheToggle_changesWhenTheValueFollows) {
    build();
    SendMessageA(getToggle(), BM_CLICK, 0, 0);
    EXPECT_TRUE(m_slider->continuousTrigger.getValue());
    EXPECT_THAT(m_slider->takeLog(), IsEmpty()) << "no value changes";
    drag({getTravel()});
    EXPECT_THAT(m_slider->takeLog(), ElementsAre("fromSlider 100", "value 100", "edit"));

    SendMessageA(getToggle(), BM_CLICK, 0, 0);
    EXPECT_FALSE(m_slider->continuousTrigger.getValue());
    sendMouse(WM_LBUTTONDOWN, getTravel() + 5);
    sendMouse(WM_LBUTTONUP, getTravel() + 5);
    EXPECT_THAT(m_slider->takeLog(), ElementsAre("fromSlider 100", "value 100", "edit"));
}

TEST_F(LuDialogSliderTest, continuousTriggerOfTheProgram_showsInTheCheckAndLeavesTheEndOfADrag) {
    build();
    m_slider->continuousTrigger = true;
    EXPECT_TRUE(isChecked());
    drag({getTravel()});
    EXPECT_THAT(m_slider->takeLog(),
                ElementsAre("fromSlider 100", "value 100", "edit", "fromSlider 100", "value 100", "edit"));
    m_slider->continuousTrigger = false;
    EXPECT_FALSE(isChecked());
}

TEST_F(LuDialogSliderTest, continuousTriggerTakenBackByTheProgram_leavesADragWithoutAnEnd) {
    m_slider->continuousTrigger = true;
    build();
    m_slider->continuousTrigger = false;
    drag({getTravel()});
    EXPECT_THAT(m_slider->takeLog(), ElementsAre("fromSlider 100", "edit"));
}

TEST_F(LuDialogSliderTest, otherNotifications_doNothing) {
    build();
    SendMessageA(getToggle(), BM_SETCHECK, BST_CHECKED, 0);
    m_slider->eventNotify(EN_CHANGE, 0);
    m_slider->eventNotify(BN_KILLFOCUS, 0);
    EXPECT_FALSE(m_slider->continuousTrigger.getValue());
}

TEST_F(LuDialogSliderTest, arrowKeyHeldDown_movesTheThumbAndGivesTheValueAtItsRelease) {
    build();
    for (int i = 0; i < 3; ++i)
        sendKey(getThumbWindow(), WM_KEYDOWN, VK_RIGHT);
    EXPECT_THAT(m_slider->takeLog(),
                ElementsAre("fromSlider 1", "slider", "fromSlider 2", "slider", "fromSlider 3", "slider"));
    EXPECT_EQ(getText(getEdit()), "0");
    sendKey(getThumbWindow(), WM_KEYUP, VK_RIGHT);
    EXPECT_THAT(m_slider->takeLog(), ElementsAre("fromSlider 3", "value 3", "edit"));
    EXPECT_EQ(getText(getEdit()), "3");
}

TEST_F(LuDialogSliderTest, arrowKeyWithContinuousTrigger_givesTheValueAtItsReleaseToo) {
    m_slider->continuousTrigger = true;
    m_slider->setValueFromSlider(0.5F);
    build();
    sendKey(getThumbWindow(), WM_KEYDOWN, VK_LEFT);
    EXPECT_THAT(m_slider->takeLog(), ElementsAre("fromSlider 49", "slider"));
    sendKey(getThumbWindow(), WM_KEYUP, VK_LEFT);
    EXPECT_THAT(m_slider->takeLog(), ElementsAre("fromSlider 49", "value 49", "edit"));
}

TEST_F(LuDialogSliderTest, arrowKeyAtTheEnd_goesBeyondUntilItsRelease) {
    m_slider->setValueFromSlider(1);
    build();
    sendKey(getThumbWindow(), WM_KEYDOWN, VK_RIGHT);
    EXPECT_THAT(m_slider->takeLog(), ElementsAre("fromSlider 101", "slider"));
    sendKey(getThumbWindow(), WM_KEYUP, VK_RIGHT);
    EXPECT_THAT(m_slider->takeLog(), ElementsAre("fromSlider 100", "value 100", "edit"));
}

TEST_F(LuDialogSliderTest, otherKeys_doNothing) {
    build();
    for (const int key : {VK_UP, VK_DOWN, VK_RETURN, VK_SPACE, VK_TAB, VK_SHIFT}) {
        sendKey(getThumbWindow(), WM_KEYDOWN, key);
        sendKey(getThumbWindow(), WM_KEYUP, key);
    }
    EXPECT_THAT(m_slider->takeLog(), IsEmpty());
}

TEST_F(LuDialogSliderTest, enterInTheEditBox_givesTheValue) {
    build();
    SendMessageA(getEdit(), EM_SETSEL, 0, -1);
    type("42");
    EXPECT_THAT(m_slider->takeLog(), IsEmpty());
    sendKey(getEdit(), WM_KEYDOWN, VK_RETURN);
    EXPECT_THAT(m_slider->takeLog(), IsEmpty()) << "the key alone is not yet the entry";
    type("\r");
    EXPECT_THAT(m_slider->takeLog(), ElementsAre("fromEdit 1", "slider", "value 42"));
    EXPECT_EQ(getText(getEdit()), "42");
    EXPECT_FLOAT_EQ(m_slider->getValue(), 0.42F);
}

TEST_F(LuDialogSliderTest, editBoxThatLosesTheFocus_givesTheValue) {
    build();
    SetFocus(getEdit());
    SetWindowTextA(getEdit(), "17");
    m_slider->takeLog();
    SetFocus(getToggle());
    EXPECT_THAT(m_slider->takeLog(), ElementsAre("fromEdit 1", "slider", "value 17"));
}

TEST_F(LuDialogSliderTest, editBox_holdsANumberWhateverIsTyped) {
    build();
    SendMessageA(getEdit(), EM_SETSEL, 0, -1);
    type("1x");
    EXPECT_EQ(getText(getEdit()), "1");
    type("e");
    EXPECT_EQ(getText(getEdit()), "1e0");
    type("2");
    EXPECT_EQ(getText(getEdit()), "1e2");
    SendMessageA(getEdit(), EM_SETSEL, 0, 0);
    sendKey(getEdit(), WM_KEYDOWN, VK_DELETE);
    EXPECT_EQ(getText(getEdit()), "1e2");
}

TEST_F(LuDialogSliderTest, pastedText_isReadWithTheEntry) {
    build();
    SendMessageA(getEdit(), EM_REPLACESEL, 0, reinterpret_cast<LPARAM>("33 of them, "));
    EXPECT_EQ(getText(getEdit()), "33 of them, 0");
    type("\r");
    EXPECT_THAT(m_slider->takeLog(), ElementsAre("fromEdit 1", "slider", "value 33"));
}

// Ends

TEST_F(LuDialogSliderTest, windowsDestroyedByAnAuditor_areGone) {
    const std::function<void()> ways[] = {
        [this] { drag({20}); },
        [this] { sendKey(getThumbWindow(), WM_KEYUP, VK_RIGHT); },
        [this] { type("\r"); },
    };
    for (const auto& way : ways) {
        build();
        m_slider->m_atValue = [this] { m_slider->destroyWidget(); };
        way();
        EXPECT_EQ(getThumbWindow(), nullptr);
        EXPECT_EQ(GetCapture(), nullptr);
        m_slider->m_atValue = nullptr;
    }
}

TEST_F(LuDialogSliderTest, sliderEndedByAnAuditor_isGone) {
    // The way is named by the window that it goes through.
    for (const int way : {0, 1, 2, 3}) {
        auto* const slider = new HundredthSlider;
        slider->ref();
        LvVec2i32 size(WIDTH, HEIGHT), position;
        slider->continuousTrigger = way == 3;
        slider->buildWidget(m_window, size, position, 1);
        const HWND thumb = slider->getSliderWidget(), edit = slider->getEditWidget();
        slider->m_atValue = [slider] {
            // Once: the end of a window with the focus gives the value again.
            std::exchange(slider->m_atValue, nullptr);
            slider->unref();
        };
        if (way == 1) {
            sendKey(thumb, WM_KEYUP, VK_RIGHT);
        } else if (way == 2) {
            SendMessageA(edit, WM_CHAR, VK_RETURN, 0);
        } else {
            SendMessageA(thumb, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 8));
            SendMessageA(thumb, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(40, 8));
            SendMessageA(thumb, WM_LBUTTONUP, 0, MAKELPARAM(40, 8));
        }
        EXPECT_FALSE(IsWindow(thumb)) << way;
        EXPECT_EQ(GetCapture(), nullptr);
    }
}

TEST_F(LuDialogSliderTest, carrierDestroyedDuringADrag_leavesTheComponent) {
    build();
    sendMouse(WM_LBUTTONDOWN, 5);
    sendMouse(WM_MOUSEMOVE, 30);
    DestroyWindow(m_slider->getWidget());
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_GE(m_slider->getValue(), 0);
    m_slider->changeSliderFromSlider(0.5F);
    m_slider->enable = false;
    m_slider->colors.setValue(LvColor(1, 0, 0));
    m_slider->toggleVisible = false;
    m_slider->valueVisible = false;
    m_slider->continuousTrigger = true;
}

// Below a top-level dialog

std::vector<UINT> s_keyMessages;
WNDPROC s_topProcedure = nullptr;

LRESULT CALLBACK recordKeys(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_KEYDOWN || message == WM_KEYUP) {
        s_keyMessages.push_back(message);
        s_keyMessages.push_back(static_cast<UINT>(wParam));
        return 0;
    }
    return CallWindowProcA(s_topProcedure, window, message, wParam, lParam);
}

class LuDialogSliderInDialogTest : public LuDialogSliderTest {
protected:
    LuDialogSliderInDialogTest() : m_wasHeadless(LuDBImpl::m_isHeadless) {
        LuDBImpl::m_isHeadless = false;
        m_dialog->addChild(m_slider.get());
        m_dialog->buildDialog(nullptr, 0);
        m_slider->takeLog();
    }
    ~LuDialogSliderInDialogTest() override { LuDBImpl::m_isHeadless = m_wasHeadless; }

    Held<LuTopLevelDialog> m_dialog;
    bool m_wasHeadless;
};

TEST_F(LuDialogSliderInDialogTest, pressedWindow_becomesTheFocusedOne) {
    for (const HWND window : {getEdit(), getThumbWindow()}) {
        SendMessageA(window, WM_MOUSEACTIVATE, 0, 0);
        EXPECT_EQ(m_dialog->getCurrentFocusedWidget(), window);
    }
    SendMessageA(getToggle(), BM_CLICK, 0, 0);
    EXPECT_EQ(m_dialog->getCurrentFocusedWidget(), getToggle());
}

TEST_F(LuDialogSliderInDialogTest, tabAndShift_goToTheTopLevelDialog) {
    const HWND top = m_dialog->getWidget();
    s_topProcedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(top, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&recordKeys)));
    for (const HWND window : {getToggle(), getEdit(), getThumbWindow()}) {
        s_keyMessages.clear();
        sendKey(window, WM_KEYDOWN, VK_SHIFT);
        sendKey(window, WM_KEYDOWN, VK_TAB);
        sendKey(window, WM_KEYUP, VK_TAB);
        sendKey(window, WM_KEYDOWN, VK_LEFT);
        sendKey(window, WM_KEYDOWN, VK_F1);
        const std::vector<UINT> shiftAndTab = {WM_KEYDOWN, VK_SHIFT, WM_KEYDOWN, VK_TAB};
        std::vector<UINT> expected = shiftAndTab;
        // The edit box keeps the release to itself.
        if (window != getEdit())
            expected.insert(expected.end(), {WM_KEYUP, VK_TAB});
        EXPECT_EQ(s_keyMessages, expected);
    }
    SetWindowLongPtrA(top, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(s_topProcedure));
}

} // namespace
