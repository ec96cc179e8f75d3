// SPDX-License-Identifier: MIT
#include "controls/LuDialogCheckBox.h"

#include "auditors/LuDialogCheckBoxAuditor.h"
#include "layout/LuTopLevelDialog.h"
#include "tests/controls/ControlTest.h"

#include <functional>
#include <limits>

namespace {

using Lines = std::vector<std::string>;

class CheckAuditor : public LuDialogCheckBoxAuditor {
public:
    void dialogCheckBox(LuDialogCheckBox* checkBox) override {
        ++m_count;
        m_state = checkBox->state.getValue();
        if (m_action)
            m_action();
    }
    int m_count = 0;
    bool m_state = false;
    std::function<void()> m_action;
};

/// What comes to a check box's window and shows, in its order.
Lines s_log;
WNDPROC s_watched = nullptr;

LRESULT CALLBACK watch(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SETTEXT)
        s_log.push_back("text " + std::string(reinterpret_cast<const char*>(lParam)));
    else if (message == BM_SETCHECK)
        s_log.push_back("check " + std::to_string(wParam));
    else if (message == WM_SETFOCUS)
        s_log.push_back("focus");
    return CallWindowProcA(s_watched, window, message, wParam, lParam);
}

class LuDialogCheckBoxTest : public ControlTest {
protected:
    LuDialogCheckBoxTest() { m_box->addAuditor(&m_auditor); }

    HWND getNative() { return m_box->getCheckBoxWidget(); }
    bool isChecked() { return SendMessageA(getNative(), BM_GETCHECK, 0, 0) == BST_CHECKED; }
    void click() { SendMessageA(getNative(), BM_CLICK, 0, 0); }
    int getShown3D() { return getSwitch(*m_box, "stateSwitch"); }
    LuText3& getText3() { return *getChildAs<LuText3>(*m_box, "onOffStringSep", -1); }
    LvVec3f getTranslation(const char* part) {
        return getChildAs<LuTranslation>(*m_box, part, 0)->translation.getValue();
    }
    void setTexts(const char* on, const char* off) {
        m_box->onString = on;
        m_box->offString = off;
    }

    /// From now on what the window gets, and each call of the auditor, is written down.
    void watchWindow() {
        s_log.clear();
        s_watched = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrA(getNative(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&watch)));
        m_auditor.m_action = [] { s_log.push_back("auditor"); };
    }

    /// Builds the check box as the child of a container with a label column of 50 pixels.
    void buildWithColumn(int is2D, LvVec2i32 size) {
        m_box->setParent(m_container.get());
        LvVec2i32 column(50, 10), position;
        m_box->setLabelSize(column);
        m_box->buildWidget(m_window, size, position, is2D);
    }

    Held<LuDialogCheckBox> m_box;
    CheckAuditor m_auditor;

private:
    Held<LuDialogComponent> m_container;
};

TEST_F(LuDialogCheckBoxTest, type_isADialogComponent) {
    EXPECT_EQ(m_box->getTypeId().getName(), LvName("DialogCheckBox"));
    EXPECT_EQ(m_box->getTypeId().getParent(), LuDialogComponent::getClassTypeId());
}

TEST_F(LuDialogCheckBoxTest, fields_areOffAndEmptyByDefault) {
    EXPECT_FALSE(m_box->state.getValue());
    EXPECT_EQ(m_box->onString.getValue(), "");
    EXPECT_EQ(m_box->offString.getValue(), "");
    EXPECT_TRUE(m_box->state.isDefault() && m_box->onString.isDefault() && m_box->offString.isDefault());
}

// Sizes

TEST_F(LuDialogCheckBoxTest, emptyTexts_leaveTheRoomOfTheMark) {
    EXPECT_EQ(m_box->getComponentInitSize(), LvVec2i32(26, 8));
}

TEST_F(LuDialogCheckBoxTest, initialSize_isThatOfTheLargerTextOnEachAxis) {
    setTexts("A wide text", "No\\ntwo");
    const LvVec2i32 wide = LuPanelix::getLabelPixelSize("A wide text", nullptr);
    const LvVec2i32 high = LuPanelix::getLabelPixelSize("No\\ntwo", nullptr);
    ASSERT_GT(wide.x, high.x);
    ASSERT_GT(high.y, wide.y);
    EXPECT_EQ(m_box->getComponentInitSize(), LvVec2i32(wide.x + 26, high.y + 8));
}

TEST_F(LuDialogCheckBoxTest, stateChange_leavesTheSize) {
    setTexts("A wide text", "No");
    buildWindows(*m_box);
    const Place before = getPlace(getNative());
    m_box->state = true;
    LvVec2i32 size, position;
    m_box->buildWidget(m_window, size, position, 1);
    EXPECT_EQ(getPlace(getNative()), before);
}

TEST_F(LuDialogCheckBoxTest, initialSize_isMeasuredOnce) {
    setTexts("On", "Off");
    const LvVec2i32 before = m_box->getComponentInitSize();
    setTexts("Quite another text", "Off");
    EXPECT_EQ(m_box->getComponentInitSize(), before);
    m_box->resetSize();
    EXPECT_GT(m_box->getComponentInitSize().x, before.x);
}

TEST_F(LuDialogCheckBoxTest, invisibleLabel_takesTheColumnFromTheInitialWidth) {
    m_box->labelVisibility = false;
    LvVec2i32 column(5, 10);
    m_box->setLabelSize(column);
    EXPECT_EQ(m_box->getComponentInitSize(), LvVec2i32(21, 8));
}

TEST_F(LuDialogCheckBoxTest, defaultSize_isTheComponentsWithTheLabelColumn) {
    LvVec2i32 column(50, 10), component(80, 5), size, minSize, maxSize;
    m_box->setLabelSize(column);
    m_box->setComponentSize(component);
    m_box->getDefaultSize(size, minSize, maxSize);
    EXPECT_EQ(size, LvVec2i32(80 + 50 + 2, 5));
    EXPECT_EQ(minSize, LvVec2i32(25, 25));
    EXPECT_EQ(maxSize, LvVec2i32(2147483647, 2147483647));
    m_box->labelVisibility = false;
    m_box->getDefaultSize(size, minSize, maxSize);
    EXPECT_EQ(size.x, 80);
}

TEST_F(LuDialogCheckBoxTest, defaultHeight_isAtLeastThatOfEitherText) {
    for (const bool isOnHigher : {true, false}) {
        const Held<LuDialogCheckBox> box;
        (isOnHigher ? box->onString : box->offString) = "One\\ntwo\\nthree";
        LvVec2i32 component(80, 5), size, minSize, maxSize;
        box->setComponentSize(component);
        box->getComponentInitSize();
        box->getDefaultSize(size, minSize, maxSize);
        EXPECT_EQ(size.y, LuPanelix::getLabelPixelSize("One\\ntwo\\nthree", nullptr).y + 8);
    }
}

// Windows

TEST_F(LuDialogCheckBoxTest, windows_areAnAutoCheckBoxAndAStatic) {
    setTexts("Yes", "No\\nway");
    m_box->label = "Here:";
    buildWindows(*m_box);
    EXPECT_EQ(getStyle(getNative()), 0x52012003u); // It has become visible.
    EXPECT_EQ(getText(getNative()), "No\nway");
    EXPECT_EQ(GetParent(getNative()), m_box->getWidget());
    EXPECT_EQ(getStyle(m_box->getLabelWidget()), 0x52000002u);
    EXPECT_EQ(getText(m_box->getLabelWidget()), "Here:");
    EXPECT_EQ(GetParent(m_box->getLabelWidget()), m_box->getWidget());
}

TEST_F(LuDialogCheckBoxTest, stateBeforeTheBuild_isShown) {
    setTexts("Yes", "No");
    m_box->state = true;
    buildWindows(*m_box);
    EXPECT_TRUE(isChecked());
    EXPECT_EQ(getText(getNative()), "Yes");
}

TEST_F(LuDialogCheckBoxTest, visibleLabel_standsInItsColumn) {
    m_box->label = "Here:";
    buildWithColumn(1, {200, 40});
    const int text = LuPanelix::getLabelPixelSize("Here:", nullptr).y;
    EXPECT_EQ(getPlace(getNative()), Place(3 + 52, 3, 194 - 52, 34));
    EXPECT_EQ(getPlace(m_box->getLabelWidget()), Place(3, (40 - 3 - text) / 2 + 3, 50, text));
}

TEST_F(LuDialogCheckBoxTest, invisibleLabel_leavesTheWholeWidthToTheBox) {
    m_box->label = "Here:";
    m_box->labelVisibility = false;
    buildWithColumn(1, {200, 40});
    EXPECT_EQ(getPlace(getNative()), Place(3, 3, 194, 34));
    EXPECT_FALSE(isShown(m_box->getLabelWidget()));
    m_box->labelVisibility = true;
    EXPECT_EQ(getPlace(getNative()), Place(3 + 52, 3, 194 - 52, 34));
    EXPECT_TRUE(isShown(m_box->getLabelWidget()));
}

TEST_F(LuDialogCheckBoxTest, edgeStyle_movesBoxAndLabel) {
    m_box->label = "Here:";
    buildWithColumn(1, {200, 40});
    const int text = LuPanelix::getLabelPixelSize("Here:", nullptr).y;
    m_box->edgeStyle = LuDialogComponent::SHADOW_IN;
    EXPECT_EQ(getPlace(getNative()), Place(2 + 52, 2, 194 - 52, 34));
    EXPECT_EQ(getPlace(m_box->getLabelWidget()), Place(2, (40 - 3 - text) / 2 + 2, 50, text));
    EXPECT_EQ(getExtendedStyle(m_box->getWidget()), 0x30000u);
}

TEST_F(LuDialogCheckBoxTest, alignment_isTheStyleOfTheLabel) {
    buildWindows(*m_box);
    m_box->labelAlignment = LuPanelix::CENTER;
    EXPECT_EQ(getStyle(m_box->getLabelWidget()), 0x52000001u);
    m_box->labelVisibility = false;
    m_box->enable = false;
    m_box->labelAlignment = LuPanelix::LEFT;
    EXPECT_EQ(getStyle(m_box->getLabelWidget()), 0x4a000000u);
}

TEST_F(LuDialogCheckBoxTest, newTexts_areShown) {
    buildWindows(*m_box, {200, 60});
    m_box->offString = "No\\nway";
    EXPECT_EQ(getText(getNative()), "No\nway");
    m_box->state = true;
    EXPECT_EQ(getText(getNative()), "");
    m_box->onString = "Yes";
    EXPECT_EQ(getText(getNative()), "Yes");
    m_box->label = "Here\\nor there";
    EXPECT_EQ(getText(m_box->getLabelWidget()), "Here\nor there");
    EXPECT_EQ(std::get<3>(getPlace(m_box->getLabelWidget())),
              LuPanelix::getLabelPixelSize("Here\\nor there", nullptr).y);
}

TEST_F(LuDialogCheckBoxTest, emptyOffString_showsOnStringInBothStates) {
    setTexts("The only text", "");
    buildWindows(*m_box);
    EXPECT_EQ(getText(getNative()), "The only text");
    m_box->state = true;
    EXPECT_EQ(getText(getNative()), "The only text");
    click();
    EXPECT_FALSE(m_box->state.getValue());
    EXPECT_EQ(getText(getNative()), "The only text");
}

TEST_F(LuDialogCheckBoxTest, enabling_reachesAllWindows) {
    m_box->enable = false;
    buildWindows(*m_box);
    EXPECT_FALSE(IsWindowEnabled(getNative()));
    EXPECT_FALSE(IsWindowEnabled(m_box->getLabelWidget()));
    m_box->enable = true;
    EXPECT_TRUE(IsWindowEnabled(getNative()));
    EXPECT_TRUE(IsWindowEnabled(m_box->getLabelWidget()));
    EXPECT_TRUE(IsWindowEnabled(m_box->getWidget()));
    m_box->changeWidgetEnable(0);
    EXPECT_FALSE(IsWindowEnabled(getNative()));
    EXPECT_FALSE(IsWindowEnabled(m_box->getLabelWidget()));
}

TEST_F(LuDialogCheckBoxTest, windowsDestroyed_leaveNoHandles) {
    buildWindows(*m_box);
    const HWND native = getNative();
    const HWND label = m_box->getLabelWidget();
    m_box->destroyWidget();
    EXPECT_FALSE(IsWindow(native));
    EXPECT_FALSE(IsWindow(label));
    EXPECT_EQ(getNative(), nullptr);
    EXPECT_EQ(m_box->getLabelWidget(), nullptr);
    m_box->state = true;
    buildWindows(*m_box);
    EXPECT_TRUE(isChecked());
}

TEST_F(LuDialogCheckBoxTest, lastReference_endsTheWindows) {
    HWND native = nullptr, label = nullptr;
    {
        const Held<LuDialogCheckBox> box;
        buildWindows(*box);
        native = box->getCheckBoxWidget();
        label = box->getLabelWidget();
        ASSERT_TRUE(IsWindow(native) && IsWindow(label));
    }
    EXPECT_FALSE(IsWindow(native));
    EXPECT_FALSE(IsWindow(label));
}

TEST_F(LuDialogCheckBoxTest, noCarrierWindow_leavesTheBoxWithoutWindows) {
    expectMessage("LuDialogComponent Error", "CreateWindow failed");
    LvVec2i32 size, position;
    m_box->buildWidget(nullptr, size, position, 1);
    EXPECT_EQ(getNative(), nullptr);
    m_box->state = true;
    m_box->onString = "Yes";
    m_box->label = "Here:";
    m_box->labelAlignment = LuPanelix::LEFT;
    m_box->labelVisibility = false;
    EXPECT_EQ(m_auditor.m_count, 0);
}

TEST_F(LuDialogCheckBoxTest, noTopLevelDialogAbove_keysAndClicksAreHarmless) {
    buildWindows(*m_box);
    SendMessageA(getNative(), WM_KEYDOWN, VK_TAB, 0);
    SendMessageA(getNative(), WM_KEYUP, VK_SHIFT, 0);
    EXPECT_EQ(m_auditor.m_count, 0);
    click();
    EXPECT_EQ(m_auditor.m_count, 1);
}

// Clicks in the window

TEST_F(LuDialogCheckBoxTest, click_turnsTheStateAndFires) {
    buildWindows(*m_box);
    click();
    EXPECT_TRUE(m_box->state.getValue());
    EXPECT_TRUE(isChecked());
    EXPECT_EQ(m_auditor.m_count, 1);
    EXPECT_TRUE(m_auditor.m_state);
    click();
    EXPECT_FALSE(m_box->state.getValue());
    EXPECT_FALSE(isChecked());
    EXPECT_EQ(m_auditor.m_count, 2);
    EXPECT_FALSE(m_auditor.m_state);
}

TEST_F(LuDialogCheckBoxTest, clickBySpaceBar_turnsTheState) {
    buildWindows(*m_box);
    SetFocus(getNative());
    SendMessageA(getNative(), WM_KEYDOWN, VK_SPACE, 0);
    EXPECT_EQ(m_auditor.m_count, 0);
    SendMessageA(getNative(), WM_KEYUP, VK_SPACE, 0);
    EXPECT_TRUE(m_box->state.getValue());
    EXPECT_EQ(m_auditor.m_count, 1);
}

TEST_F(LuDialogCheckBoxTest, otherNotifications_areNoClicks) {
    buildWindows(*m_box);
    m_box->eventNotify(BN_SETFOCUS, 0);
    m_box->eventNotify(WM_HSCROLL, 0);
    EXPECT_EQ(m_auditor.m_count, 0);
}

TEST_F(LuDialogCheckBoxTest, clickToOff_showsTheEmptyTextForAMomentThenTheTextInForce) {
    setTexts("Only", "");
    m_box->state = true;
    buildWindows(*m_box);
    watchWindow();
    click();
    EXPECT_EQ(s_log, Lines({"focus", "check 0", "text ", "check 0", "text Only", "auditor"}));
}

TEST_F(LuDialogCheckBoxTest, notification_takesTheFocusBetweenTheTwoTexts) {
    setTexts("Yes", "No");
    buildWindows(*m_box);
    SendMessageA(getNative(), BM_SETCHECK, BST_CHECKED, 0);
    watchWindow();
    SendMessageA(m_box->getWidget(), WM_COMMAND, MAKEWPARAM(0, BN_CLICKED),
                 reinterpret_cast<LPARAM>(getNative()));
    EXPECT_EQ(s_log, Lines({"text Yes", "focus", "check 1", "text Yes", "auditor"}));
    EXPECT_TRUE(m_box->state.getValue());
}

TEST_F(LuDialogCheckBoxTest, stateSetByTheAuditorOfAClick_isNotShown) {
    buildWindows(*m_box);
    m_auditor.m_action = [this] { m_box->state = false; };
    click();
    EXPECT_FALSE(m_box->state.getValue());
    EXPECT_TRUE(isChecked());
    m_auditor.m_action = nullptr;
    m_box->state = false;
    EXPECT_FALSE(isChecked());
}

TEST_F(LuDialogCheckBoxTest, clickWithinTheAuditorOfAClick_turnsTheStateBack) {
    setTexts("Yes", "No");
    buildWindows(*m_box);
    m_auditor.m_action = [this] {
        if (m_auditor.m_count == 1)
            click();
    };
    click();
    EXPECT_EQ(m_auditor.m_count, 2);
    EXPECT_FALSE(m_box->state.getValue());
    m_box->state = true;
    EXPECT_TRUE(isChecked());
    EXPECT_EQ(getText(getNative()), "Yes");
}

TEST_F(LuDialogCheckBoxTest, twoBoxes_keepTheirStatesApart) {
    const Held<LuDialogCheckBox> other;
    buildWindows(*m_box);
    buildWindows(*other);
    SendMessageA(other->getCheckBoxWidget(), BM_CLICK, 0, 0);
    EXPECT_TRUE(other->state.getValue());
    EXPECT_FALSE(m_box->state.getValue());
    EXPECT_EQ(m_auditor.m_count, 0);
}

// A state from the program

TEST_F(LuDialogCheckBoxTest, stateFromTheProgram_isShownWithoutAnAuditor) {
    setTexts("Yes", "No");
    buildBoth(*m_box);
    m_box->state = true;
    EXPECT_TRUE(isChecked());
    EXPECT_EQ(getText(getNative()), "Yes");
    EXPECT_EQ(getShown3D(), 1);
    EXPECT_EQ(getLines(getText3()), Lines({"Yes"}));
    EXPECT_EQ(m_auditor.m_count, 0);
}

TEST_F(LuDialogCheckBoxTest, stateFromTheProgram_setsCheckThenTextThenTextAgain) {
    setTexts("Yes", "No");
    buildBoth(*m_box);
    watchWindow();
    m_box->state = true;
    EXPECT_EQ(s_log, Lines({"check 1", "text Yes", "text Yes"}));
}

TEST_F(LuDialogCheckBoxTest, sameStateAgain_repeatsTheUpdatesWithoutVisibleChange) {
    setTexts("Yes", "No");
    buildBoth(*m_box);
    watchWindow();
    m_box->state = false;
    EXPECT_EQ(s_log, Lines({"check 0", "text No", "text No"}));
    EXPECT_FALSE(isChecked());
    EXPECT_EQ(getText(getNative()), "No");
    EXPECT_EQ(getShown3D(), 0);
    EXPECT_EQ(m_auditor.m_count, 0);
}

TEST_F(LuDialogCheckBoxTest, stateBesideA3DRenditionThatIsNotTraversed_changesTheWindowAlone) {
    buildBoth(*m_box);
    m_box->setCanBeTraversed(0);
    m_box->state = true;
    EXPECT_TRUE(isChecked());
    EXPECT_EQ(getShown3D(), 0);
}

TEST_F(LuDialogCheckBoxTest, clickInTheWindow_showsIn3D) {
    setTexts("Yes", "No");
    buildBoth(*m_box);
    click();
    EXPECT_EQ(getShown3D(), 1);
    EXPECT_EQ(getLines(getText3()), Lines({"Yes"}));
}

// 3D

TEST_F(LuDialogCheckBoxTest, parts_comeFromTheSkin3D) {
    build3D(*m_box);
    EXPECT_EQ(m_box->getPart("frame", false), LuNode::getByName("DialogCheckBoxFrame"));
    EXPECT_EQ(m_box->getPart("stateOff", false), LuNode::getByName("DialogCheckBoxStateOff"));
    EXPECT_EQ(m_box->getPart("stateOn", false), LuNode::getByName("DialogCheckBoxStateOn"));
    EXPECT_EQ(m_box->getPart("labelProp", false), LuNode::getByName("DialogTextProperties"));
    EXPECT_EQ(m_box->getPart("onOffStringProp", false), LuNode::getByName("DialogTextProperties"));
    EXPECT_EQ(getPartAs(*m_box, "stateSwitch")->getChild(0), m_box->getPart("stateOff", false));
    EXPECT_EQ(getPartAs(*m_box, "stateSwitch")->getChild(1), m_box->getPart("stateOn", false));
    EXPECT_EQ(getSwitch(*m_box, "labelSwitch"), -3);
    EXPECT_TRUE(LuDialogCheckBox::isSkinLoaded());
    EXPECT_FALSE(m_box->isBuilt2D());
}

TEST_F(LuDialogCheckBoxTest, newSkin_keepsThePartsAndIsLoaded3D) {
    build3D(*m_box);
    LuNode* const mark = m_box->getPart("stateOn", false);
    LuDialogCheckBox::setSkinLoaded(0);
    LuDialogCheckBox::change3DSkin();
    EXPECT_TRUE(LuDialogCheckBox::isSkinLoaded());
    EXPECT_EQ(m_box->getPart("stateOn", false), mark);
    EXPECT_EQ(static_cast<LuGroup*>(mark)->getNumChildren(), 3);
    EXPECT_EQ(LuNode::getByName("DialogCheckBoxStateOn"), mark);
}

TEST_F(LuDialogCheckBoxTest, stateBeforeTheBuild_isShown3D) {
    setTexts("Yes", "No");
    m_box->state = true;
    build3D(*m_box);
    EXPECT_EQ(getShown3D(), 1);
    EXPECT_EQ(getLines(getText3()), Lines({"Yes"}));
}

TEST_F(LuDialogCheckBoxTest, frame_fillsTheRoomBesideTheLabel3D) {
    buildWithColumn(0, {200, 40});
    // The middle of what lies right of 3 + 52 and left of 197, seen from the middle of the component.
    EXPECT_EQ(getBefore<LuTranslation>(*m_box, "frameSep")->translation.getValue(), LvVec3f(26, 0, 0));
    EXPECT_EQ(getChildAs<LuScale>(*m_box, "frameSep", 0)->scaleFactor.getValue(), LvVec3f(142, 34, 1));
    EXPECT_EQ(getBefore<LuTransform>(*m_box, "stateSep")->translation.getValue(), LvVec3f(0, 0, 1));
    EXPECT_EQ(getBefore<LuTransform>(*m_box, "stateSep")->scaleFactor.getValue(), LvVec3f(1, 1, 1));
}

TEST_F(LuDialogCheckBoxTest, oddWidth_keepsTheHalfUnit3D) {
    buildWithColumn(0, {201, 40});
    EXPECT_EQ(getBefore<LuTranslation>(*m_box, "frameSep")->translation.getValue(), LvVec3f(26, 0, 0));
    EXPECT_EQ(getTranslation("stateSep"), LvVec3f(10 - 71.5F, 0, 0));
}

TEST_F(LuDialogCheckBoxTest, mark_is14UnitsWide10FromTheLeftEdge3D) {
    buildWithColumn(0, {200, 40});
    EXPECT_EQ(getTranslation("stateSep"), LvVec3f(10 - 71, 0, 0));
    EXPECT_EQ(getChildAs<LuScale>(*m_box, "stateSep", 1)->scaleFactor.getValue(), LvVec3f(14, 14, 1));
    EXPECT_EQ(getPartAs(*m_box, "stateSep")->getChild(2), m_box->getPart("stateSwitch", false));
}

TEST_F(LuDialogCheckBoxTest, text_begins20UnitsFromTheLeftEdgeInTheMiddle3D) {
    m_box->onString = "Yes";
    buildWithColumn(0, {200, 40});
    const LvBox3f box = measure(m_box->getPart("onOffStringProp", false), &getText3());
    EXPECT_EQ(getTranslation("onOffStringSep"), LvVec3f(20 - 71, (box.max.y + box.min.y) * -0.5F, 0));
    EXPECT_EQ(getText3().parts.getValue(), LuText3::FRONT);
}

TEST_F(LuDialogCheckBoxTest, newText_isPlacedByTheNextBuild3D) {
    m_box->onString = "xxx";
    build3D(*m_box);
    const LvVec3f before = getTranslation("onOffStringSep");
    m_box->onString = "XXX";
    EXPECT_EQ(getLines(getText3()), Lines({"XXX"}));
    EXPECT_EQ(getTranslation("onOffStringSep"), before);
    LvVec2i32 size, position;
    m_box->buildWidget(nullptr, size, position, 0);
    EXPECT_LT(getTranslation("onOffStringSep").y, before.y);
}

TEST_F(LuDialogCheckBoxTest, emptyOffString_showsOnStringInBothStates3D) {
    setTexts("The only text", "");
    build3D(*m_box);
    EXPECT_EQ(getLines(getText3()), Lines({"The only text"}));
    m_box->state = true;
    EXPECT_EQ(getLines(getText3()), Lines({"The only text"}));
    m_box->offString = "Off";
    m_box->state = false;
    EXPECT_EQ(getLines(getText3()), Lines({"Off"}));
}

TEST_F(LuDialogCheckBoxTest, label_isPlacedByItsAlignment3D) {
    m_box->label = "Here:";
    m_box->labelAlignment = LuPanelix::LEFT;
    buildWithColumn(0, {201, 40});
    LuText3* const text = getChildAs<LuText3>(*m_box, "labelSwitch", -1);
    EXPECT_EQ(getLines(*text), Lines({"Here:"}));
    const LvBox3f box = measure(m_box->getPart("labelProp", false), text);
    const float y = (box.max.y + box.min.y) * -0.5F;
    const int spare = static_cast<int>(50 - (box.max.x - box.min.x));
    const auto center = static_cast<float>(spare / 2);
    EXPECT_EQ(getTranslation("labelSwitch"), LvVec3f(3 - 100.5F, y, 0));
    m_box->labelAlignment = LuPanelix::RIGHT;
    EXPECT_EQ(getTranslation("labelSwitch"), LvVec3f(static_cast<float>(spare) + 3 - 100.5F, y, 0));
    m_box->labelAlignment = LuPanelix::CENTER;
    EXPECT_EQ(getTranslation("labelSwitch"), LvVec3f(center + 3 - 100.5F, y, 0));
}

TEST_F(LuDialogCheckBoxTest, label_comesBeforeTheFrameAndItsPlace3D) {
    build3D(*m_box);
    LuGroup* const geometry = getPartAs(*m_box, "geomSwitch");
    EXPECT_LT(geometry->findChild(m_box->getPart("labelSep", false)),
              geometry->findChild(getBefore<LuTranslation>(*m_box, "frameSep")));
}

TEST_F(LuDialogCheckBoxTest, labelVisibility_isASwitchAndGivesTheFrameItsRoom3D) {
    m_box->label = "Here:";
    buildWithColumn(0, {200, 40});
    m_box->labelVisibility = false;
    EXPECT_EQ(getSwitch(*m_box, "labelSwitch"), -1);
    EXPECT_EQ(getChildAs<LuScale>(*m_box, "frameSep", 0)->scaleFactor.getValue(), LvVec3f(194, 34, 1));
    EXPECT_EQ(getBefore<LuTranslation>(*m_box, "frameSep")->translation.getValue(), LvVec3f(0, 0, 0));
    EXPECT_EQ(getTranslation("stateSep"), LvVec3f(10 - 97, 0, 0));
}

TEST_F(LuDialogCheckBoxTest, changesBeforeTheFirstBuild_doNothing) {
    m_box->state = true;
    m_box->change3DState();
    m_box->change3DLabel();
    m_box->change3DLabelAlignment();
    m_box->change3DLabelVisibility();
    m_box->updateCheckBoxWidget();
    m_box->changeLabelAlignment();
    EXPECT_FALSE(m_box->isBuilt3D());
    EXPECT_EQ(m_auditor.m_count, 0);
}

TEST_F(LuDialogCheckBoxTest, extremeSizes_arePlacedWithoutOverflow) {
    m_box->label = "Here:";
    m_box->minWidth = std::numeric_limits<int>::min();
    m_box->width = std::numeric_limits<int>::min();
    m_box->minHeight = std::numeric_limits<int>::min();
    m_box->height = std::numeric_limits<int>::min();
    LvVec2i32 column(std::numeric_limits<int>::max(), 0), size, minSize, maxSize;
    m_box->setLabelSize(column);
    m_box->setComponentSize(column);
    m_box->getDefaultSize(size, minSize, maxSize);
    EXPECT_EQ(size.x, std::numeric_limits<int>::max());
    buildBoth(*m_box);
    EXPECT_EQ(m_box->height.getValue(), std::numeric_limits<int>::min());
}

// Below a top-level dialog

class LuDialogCheckBoxInDialogTest : public LuDialogCheckBoxTest {
protected:
    LuDialogCheckBoxInDialogTest() : m_wasHeadless(LuDBImpl::m_isHeadless) {
        LuDBImpl::m_isHeadless = false;
        m_dialog->addChild(m_first.get());
        m_dialog->addChild(m_box.get());
        m_dialog->buildDialog(nullptr, 0);
    }
    ~LuDialogCheckBoxInDialogTest() override { LuDBImpl::m_isHeadless = m_wasHeadless; }

    Held<LuDialogCheckBox> m_first; ///< Another check box, above it.
    Held<LuTopLevelDialog> m_dialog;
    bool m_wasHeadless;
};

TEST_F(LuDialogCheckBoxInDialogTest, click_makesTheBoxTheFocusedWindow) {
    SendMessageA(m_first->getCheckBoxWidget(), BM_CLICK, 0, 0);
    EXPECT_EQ(m_dialog->getCurrentFocusedWidget(), m_first->getCheckBoxWidget());
    click();
    EXPECT_EQ(m_dialog->getCurrentFocusedWidget(), getNative());
}

Lines s_keys;
WNDPROC s_topProcedure = nullptr;

LRESULT CALLBACK recordKeys(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_KEYDOWN || message == WM_KEYUP) {
        s_keys.push_back((message == WM_KEYDOWN ? "down " : "up ") + std::to_string(wParam));
        return 0;
    }
    return CallWindowProcA(s_topProcedure, window, message, wParam, lParam);
}

TEST_F(LuDialogCheckBoxInDialogTest, onlyTabAndShift_goToTheTopLevelDialog) {
    s_keys.clear();
    const HWND top = m_dialog->getWidget();
    s_topProcedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(top, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&recordKeys)));
    SendMessageA(getNative(), WM_KEYDOWN, VK_SHIFT, 0);
    SendMessageA(getNative(), WM_KEYDOWN, VK_TAB, 0);
    SendMessageA(getNative(), WM_KEYUP, VK_TAB, 0);
    SendMessageA(getNative(), WM_KEYDOWN, VK_LEFT, 0);
    SendMessageA(getNative(), WM_KEYDOWN, VK_F1, 0);
    SetWindowLongPtrA(top, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(s_topProcedure));
    EXPECT_EQ(s_keys, Lines({"down 16", "down 9", "up 9"}));
}

} // namespace
