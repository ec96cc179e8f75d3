// SPDX-License-Identifier: MIT
#include "controls/LuDialogPushButton.h"

#include "auditors/LuDialogPushButtonAuditor.h"
#include "layout/LuTopLevelDialog.h"
#include "platform/lumora/nodes/LuProperties.h"
#include "tests/controls/ControlTest.h"

#include <cmath>
#include <limits>

namespace {

using Lines = std::vector<std::string>;

class PressCounter : public LuDialogPushButtonAuditor {
public:
    void dialogPushButton(LuDialogPushButton* button) override {
        ++m_count;
        m_last = button;
    }
    int m_count = 0;
    LuDialogPushButton* m_last = nullptr;
};

class LuDialogPushButtonTest : public ControlTest {
protected:
    Held<LuDialogPushButton> m_button;
    PressCounter m_presses;

    LuDialogPushButtonTest() { m_button->addAuditor(&m_presses); }

    HWND getNative() { return m_button->getButtonWidget(); }
    bool isNativePressed() { return (SendMessageA(getNative(), BM_GETSTATE, 0, 0) & BST_PUSHED) != 0; }
    int getShown3D() { return getSwitch(*m_button, "frameSwitch"); }
    LvVec3f getLabelPlace3D() {
        return getChildAs<LuTranslation>(*m_button, "labelSwitch", 0)->translation.getValue();
    }
    LuText3& getButtonText3() { return *getChildAs<LuText3>(*m_button, "buttonLabelSep", -1); }
    LvVec3f getButtonTextPlace3D() {
        return getChildAs<LuTranslation>(*m_button, "buttonLabelSep", 0)->translation.getValue();
    }
    float getLift3D() {
        return getBefore<LuTransform>(*m_button, "buttonLabelSep")->translation.getValue().z;
    }

    /// Builds the button as the child of a container with a label column of 50 pixels.
    void buildWithColumn(int is2D, LvVec2i32 size) {
        m_button->setParent(m_container.get());
        LvVec2i32 column(50, 10), position;
        m_button->setLabelSize(column);
        m_button->buildWidget(m_window, size, position, is2D);
    }

private:
    Held<LuDialogComponent> m_container;
};

TEST_F(LuDialogPushButtonTest, type_isADialogComponent) {
    EXPECT_EQ(m_button->getTypeId().getName(), LvName("DialogPushButton"));
    EXPECT_EQ(m_button->getTypeId().getParent(), LuDialogComponent::getClassTypeId());
}

// Sizes

TEST_F(LuDialogPushButtonTest, emptyButtonLabel_hasAnInitialSizeOf12) {
    EXPECT_EQ(m_button->getComponentInitSize(), LvVec2i32(12, 12));
}

TEST_F(LuDialogPushButtonTest, initialSize_is12MoreThanTheText) {
    m_button->buttonLabel = "Press me";
    const LvVec2i32 text = LuPanelix::getLabelPixelSize("Press me", nullptr);
    EXPECT_EQ(m_button->getComponentInitSize(), LvVec2i32(text.x + 12, text.y + 12));
}

TEST_F(LuDialogPushButtonTest, initialSize_isMeasuredOnce) {
    m_button->buttonLabel = "Press me";
    const LvVec2i32 before = m_button->getComponentInitSize();
    m_button->buttonLabel = "Press me again";
    EXPECT_EQ(m_button->getComponentInitSize(), before);
}

TEST_F(LuDialogPushButtonTest, invisibleLabel_takesTheColumnFromTheInitialWidth) {
    m_button->labelVisibility = false;
    LvVec2i32 column(5, 10);
    m_button->setLabelSize(column);
    EXPECT_EQ(m_button->getComponentInitSize(), LvVec2i32(7, 12));
}

TEST_F(LuDialogPushButtonTest, defaultSize_isTheComponentsWithTheLabelColumn) {
    LvVec2i32 column(50, 10), component(80, 5), size, minSize, maxSize;
    m_button->setLabelSize(column);
    m_button->setComponentSize(component);
    m_button->getComponentInitSize();
    m_button->getDefaultSize(size, minSize, maxSize);
    EXPECT_EQ(size, LvVec2i32(80 + 50 + 2, 12));
    EXPECT_EQ(minSize, LvVec2i32(25, 25));
    EXPECT_EQ(maxSize, LvVec2i32(2147483647, 2147483647));
    m_button->labelVisibility = false;
    m_button->getDefaultSize(size, minSize, maxSize);
    EXPECT_EQ(size.x, 80);
}

// Windows

TEST_F(LuDialogPushButtonTest, windows_areAButtonAndAStatic) {
    m_button->buttonLabel = "Press\\nme";
    m_button->label = "Here:";
    buildWindows(*m_button);
    EXPECT_EQ(getStyle(getNative()), 0x52012000u);
    EXPECT_EQ(getText(getNative()), "Press\nme");
    EXPECT_EQ(GetParent(getNative()), m_button->getWidget());
    EXPECT_EQ(getStyle(m_button->getLabelWidget()), 0x52000002u);
    EXPECT_EQ(getText(m_button->getLabelWidget()), "Here:");
    EXPECT_EQ(GetParent(m_button->getLabelWidget()), m_button->getWidget());
}

TEST_F(LuDialogPushButtonTest, visibleLabel_standsInItsColumn) {
    m_button->label = "Here:";
    buildWithColumn(1, {200, 40});
    const int text = LuPanelix::getLabelPixelSize("Here:", nullptr).y;
    EXPECT_EQ(getPlace(getNative()), Place(3 + 52, 3, 194 - 52, 34));
    EXPECT_EQ(getPlace(m_button->getLabelWidget()), Place(3, (40 - 3 - text) / 2 + 3, 50, text));
}

TEST_F(LuDialogPushButtonTest, invisibleLabel_leavesTheWholeWidthToTheButton) {
    m_button->label = "Here:";
    m_button->labelVisibility = false;
    buildWithColumn(1, {200, 40});
    EXPECT_EQ(getPlace(getNative()), Place(3, 3, 194, 34));
    EXPECT_FALSE(isShown(m_button->getLabelWidget()));
    m_button->labelVisibility = true;
    EXPECT_EQ(getPlace(getNative()), Place(3 + 52, 3, 194 - 52, 34));
    EXPECT_TRUE(isShown(m_button->getLabelWidget()));
}

TEST_F(LuDialogPushButtonTest, edgeStyle_movesButtonAndLabel) {
    m_button->label = "Here:";
    buildWithColumn(1, {200, 40});
    const int text = LuPanelix::getLabelPixelSize("Here:", nullptr).y;
    m_button->edgeStyle = LuDialogComponent::SHADOW_IN;
    EXPECT_EQ(getPlace(getNative()), Place(2 + 52, 2, 194 - 52, 34));
    EXPECT_EQ(getPlace(m_button->getLabelWidget()), Place(2, (40 - 3 - text) / 2 + 2, 50, text));
}

TEST_F(LuDialogPushButtonTest, alignment_isTheStyleOfTheLabel) {
    buildWindows(*m_button);
    m_button->labelAlignment = LuPanelix::CENTER;
    EXPECT_EQ(getStyle(m_button->getLabelWidget()), 0x52000001u);
    m_button->labelVisibility = false;
    m_button->enable = false;
    m_button->labelAlignment = LuPanelix::LEFT;
    EXPECT_EQ(getStyle(m_button->getLabelWidget()), 0x4a000000u);
}

TEST_F(LuDialogPushButtonTest, newTexts_areShown) {
    buildWindows(*m_button, {200, 60});
    m_button->buttonLabel = "Press\\nme";
    EXPECT_EQ(getText(getNative()), "Press\nme");
    m_button->label = "Here\\nor there";
    EXPECT_EQ(getText(m_button->getLabelWidget()), "Here\nor there");
    EXPECT_EQ(std::get<3>(getPlace(m_button->getLabelWidget())),
              LuPanelix::getLabelPixelSize("Here\\nor there", nullptr).y);
}

TEST_F(LuDialogPushButtonTest, enabling_reachesAllWindows) {
    m_button->enable = false;
    buildWindows(*m_button);
    EXPECT_FALSE(IsWindowEnabled(getNative()));
    EXPECT_FALSE(IsWindowEnabled(m_button->getLabelWidget()));
    m_button->enable = true;
    EXPECT_TRUE(IsWindowEnabled(getNative()));
    EXPECT_TRUE(IsWindowEnabled(m_button->getLabelWidget()));
    EXPECT_TRUE(IsWindowEnabled(m_button->getWidget()));
    m_button->changeWidgetEnable(0);
    EXPECT_FALSE(IsWindowEnabled(getNative()));
    EXPECT_FALSE(IsWindowEnabled(m_button->getLabelWidget()));
}

TEST_F(LuDialogPushButtonTest, windowsDestroyed_leaveNoHandles) {
    buildWindows(*m_button);
    const HWND native = getNative();
    const HWND label = m_button->getLabelWidget();
    m_button->destroyWidget();
    EXPECT_FALSE(IsWindow(native));
    EXPECT_FALSE(IsWindow(label));
    EXPECT_EQ(getNative(), nullptr);
    EXPECT_EQ(m_button->getLabelWidget(), nullptr);
    buildWindows(*m_button);
    EXPECT_TRUE(IsWindow(getNative()));
}

TEST_F(LuDialogPushButtonTest, lastReference_endsTheWindows) {
    HWND native = nullptr, label = nullptr;
    {
        const Held<LuDialogPushButton> button;
        buildWindows(*button);
        native = button->getButtonWidget();
        label = button->getLabelWidget();
        ASSERT_TRUE(IsWindow(native) && IsWindow(label));
    }
    EXPECT_FALSE(IsWindow(native));
    EXPECT_FALSE(IsWindow(label));
}

TEST_F(LuDialogPushButtonTest, noCarrierWindow_leavesTheButtonWithoutWindows) {
    expectMessage("LuDialogComponent Error", "CreateWindow failed");
    LvVec2i32 size, position;
    m_button->buildWidget(nullptr, size, position, 1);
    EXPECT_EQ(getNative(), nullptr);
    m_button->buttonLabel = "Press me";
    m_button->label = "Here:";
    m_button->labelAlignment = LuPanelix::LEFT;
    m_button->labelVisibility = false;
    m_button->changeButtonState(1);
    m_button->activateButton();
}

TEST_F(LuDialogPushButtonTest, clickByMessage_firesOnce) {
    buildWindows(*m_button);
    SendMessageA(getNative(), BM_CLICK, 0, 0);
    EXPECT_EQ(m_presses.m_count, 1);
    EXPECT_EQ(m_presses.m_last, m_button.get());
}

TEST_F(LuDialogPushButtonTest, noTopLevelDialogAbove_keysAndClicksAreHarmless) {
    buildWindows(*m_button);
    SendMessageA(getNative(), WM_KEYDOWN, VK_TAB, 0);
    SendMessageA(getNative(), WM_KEYUP, VK_SHIFT, 0);
    EXPECT_EQ(m_presses.m_count, 0);
    SendMessageA(getNative(), BM_CLICK, 0, 0);
    EXPECT_EQ(m_presses.m_count, 1);
}

TEST_F(LuDialogPushButtonTest, clickByMouse_firesOnRelease) {
    buildWindows(*m_button);
    SendMessageA(getNative(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(4, 4));
    EXPECT_EQ(m_presses.m_count, 0);
    SendMessageA(getNative(), WM_LBUTTONUP, 0, MAKELPARAM(4, 4));
    EXPECT_EQ(m_presses.m_count, 1);
}

TEST_F(LuDialogPushButtonTest, clickBySpaceBar_fires) {
    buildWindows(*m_button);
    SetFocus(getNative());
    SendMessageA(getNative(), WM_KEYDOWN, VK_SPACE, 0);
    SendMessageA(getNative(), WM_KEYUP, VK_SPACE, 0);
    EXPECT_EQ(m_presses.m_count, 1);
}

TEST_F(LuDialogPushButtonTest, postedClick_firesWhenMessagesAreProcessed) {
    buildWindows(*m_button);
    PostMessageA(getNative(), BM_CLICK, 0, 0);
    EXPECT_EQ(m_presses.m_count, 0);
    LuWin::processMessages();
    EXPECT_EQ(m_presses.m_count, 1);
}

TEST_F(LuDialogPushButtonTest, otherNotifications_areNoClicks) {
    buildWindows(*m_button);
    m_button->eventNotify(BN_SETFOCUS, 0);
    m_button->eventNotify(WM_HSCROLL, 0);
    EXPECT_EQ(m_presses.m_count, 0);
}

TEST_F(LuDialogPushButtonTest, twoButtons_keepTheirEventsApart) {
    const Held<LuDialogPushButton> other;
    PressCounter otherPresses;
    other->addAuditor(&otherPresses);
    buildWindows(*m_button);
    buildWindows(*other);
    SendMessageA(other->getButtonWidget(), BM_CLICK, 0, 0);
    EXPECT_EQ(m_presses.m_count, 0);
    EXPECT_EQ(otherPresses.m_count, 1);
}

// 3D

TEST_F(LuDialogPushButtonTest, parts_comeFromTheSkin3D) {
    build3D(*m_button);
    EXPECT_EQ(m_button->getPart("released", false), LuNode::getByName("DialogPushButtonReleased"));
    EXPECT_EQ(m_button->getPart("pressed", false), LuNode::getByName("DialogPushButtonPressed"));
    EXPECT_EQ(m_button->getPart("labelProp", false), LuNode::getByName("DialogTextProperties"));
    EXPECT_EQ(m_button->getPart("buttonLabelProp", false), LuNode::getByName("DialogTextProperties"));
    EXPECT_EQ(getPartAs(*m_button, "frameSwitch")->getChild(0), m_button->getPart("released", false));
    EXPECT_EQ(getPartAs(*m_button, "frameSwitch")->getChild(1), m_button->getPart("pressed", false));
    EXPECT_EQ(getShown3D(), 0);
    EXPECT_EQ(getSwitch(*m_button, "labelSwitch"), -3);
    EXPECT_TRUE(LuDialogPushButton::isSkinLoaded());
    EXPECT_FALSE(m_button->isBuilt2D());
}

TEST_F(LuDialogPushButtonTest, skinWithoutTextProperties_keepsTheOrderOfTheParts3D) {
    build3D(*m_button);
    const Held<LuDialogPushButton> other;
    LuNode* const properties = LuNode::getByName("DialogTextProperties");
    properties->setName("Hidden");
    build3D(*other);
    properties->setName("DialogTextProperties");
    LuGroup* const geometry = getPartAs(*other, "geomSwitch");
    const int label = geometry->findChild(other->getPart("labelSep", false));
    const int frame = geometry->findChild(other->getPart("frameSep", false));
    EXPECT_LT(label, frame);
    EXPECT_LT(frame, geometry->findChild(other->getPart("buttonLabelSep", false)));
}

TEST_F(LuDialogPushButtonTest, frame_fillsTheRoomBesideTheLabel3D) {
    buildWithColumn(0, {201, 40});
    // The middle of what lies right of 3 + 52, seen from the middle of the component.
    EXPECT_EQ(getBefore<LuTranslation>(*m_button, "frameSep")->translation.getValue(), LvVec3f(26, 0, 0));
    EXPECT_EQ(getChildAs<LuScale>(*m_button, "frameSep", 0)->scaleFactor.getValue(),
              LvVec3f(201 - 6 - 52, 34, 1));
}

TEST_F(LuDialogPushButtonTest, buttonText_isCentred3D) {
    m_button->buttonLabel = "Press\\nme";
    build3D(*m_button);
    EXPECT_EQ(getLines(getButtonText3()), Lines({"Press", "me"}));
    const LvBox3f box = measure(m_button->getPart("buttonLabelProp", false), &getButtonText3());
    EXPECT_EQ(getButtonTextPlace3D(),
              LvVec3f((box.max.x - box.min.x) * -0.5F, (box.max.y + box.min.y) * -0.5F, 0));
}

TEST_F(LuDialogPushButtonTest, newButtonText_isCentredByTheNextBuild3D) {
    m_button->buttonLabel = "Press me";
    build3D(*m_button);
    const LvVec3f before = getButtonTextPlace3D();
    m_button->buttonLabel = "Press me again";
    EXPECT_EQ(getLines(getButtonText3()), Lines({"Press me again"}));
    EXPECT_EQ(getButtonTextPlace3D(), before);
    LvVec2i32 size, position;
    m_button->buildWidget(nullptr, size, position, 0);
    EXPECT_LT(getButtonTextPlace3D().x, before.x);
}

TEST_F(LuDialogPushButtonTest, label_isPlacedByItsAlignment3D) {
    m_button->label = "Here:";
    m_button->labelAlignment = LuPanelix::LEFT;
    buildWithColumn(0, {201, 40});
    LuText3* const text = getChildAs<LuText3>(*m_button, "labelSwitch", -1);
    EXPECT_EQ(getLines(*text), Lines({"Here:"}));
    const LvBox3f box = measure(m_button->getPart("labelProp", false), text);
    const float y = (box.max.y + box.min.y) * -0.5F;
    const float spare = std::trunc(50 - (box.max.x - box.min.x));
    EXPECT_EQ(getLabelPlace3D(), LvVec3f(3 - 100.5F, y, 0));
    m_button->labelAlignment = LuPanelix::RIGHT;
    m_button->change3DLabelAlignment();
    EXPECT_EQ(getLabelPlace3D(), LvVec3f(spare + 3 - 100.5F, y, 0));
    m_button->labelAlignment = LuPanelix::CENTER;
    m_button->change3DLabelAlignment();
    EXPECT_EQ(getLabelPlace3D(), LvVec3f(3 + std::trunc(spare * 0.5F) - 100.5F, y, 0));
}

TEST_F(LuDialogPushButtonTest, noSensorGetsToTheBaseWhileTheButtonIsIn3D) {
    buildBoth(*m_button);
    m_button->enable = false;
    EXPECT_TRUE(IsWindowEnabled(getNative()));
    m_button->label = "Here:";
    EXPECT_EQ(getText(m_button->getLabelWidget()), "");
    m_button->buttonLabel = "Press me";
    EXPECT_EQ(getText(getNative()), "Press me");
}

TEST_F(LuDialogPushButtonTest, sensorsGetToTheBaseWhenThe3DRenditionIsNotTraversed) {
    buildBoth(*m_button);
    m_button->setCanBeTraversed(0);
    m_button->enable = false;
    EXPECT_FALSE(IsWindowEnabled(getNative()));
}

TEST_F(LuDialogPushButtonTest, press_sinksTheTextWithTheGeometry3D) {
    build3D(*m_button);
    EXPECT_EQ(getLift3D(), 2.0F);
    m_button->draggerStartCallback3D();
    EXPECT_EQ(getShown3D(), 1);
    EXPECT_EQ(getLift3D(), 1.0F);
    m_button->draggerFinishCallback3D();
    EXPECT_EQ(getShown3D(), 0);
    EXPECT_EQ(getLift3D(), 2.0F);
}

TEST_F(LuDialogPushButtonTest, lift_isWithoutTheScaleOfTheFrame3D) {
    build3D(*m_button);
    EXPECT_EQ(getBefore<LuTransform>(*m_button, "buttonLabelSep")->scaleFactor.getValue(), LvVec3f(1, 1, 1));
}

TEST_F(LuDialogPushButtonTest, press3D_firesOnRelease) {
    build3D(*m_button);
    m_button->draggerStartCallback3D();
    EXPECT_EQ(m_presses.m_count, 0);
    EXPECT_EQ(LuPanelix::get3DCurrentActive(), m_button.get());
    m_button->draggerFinishCallback3D();
    EXPECT_EQ(m_presses.m_count, 1);
    EXPECT_EQ(LuPanelix::get3DCurrentActive(), nullptr);
}

TEST_F(LuDialogPushButtonTest, press3D_showsInTheWindow) {
    buildBoth(*m_button);
    m_button->draggerStartCallback3D();
    EXPECT_TRUE(isNativePressed());
    m_button->draggerFinishCallback3D();
    EXPECT_FALSE(isNativePressed());
    EXPECT_EQ(m_presses.m_count, 1);
}

TEST_F(LuDialogPushButtonTest, pressInTheWindow_showsIn3D) {
    buildBoth(*m_button);
    SendMessageA(getNative(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(4, 4));
    EXPECT_EQ(getShown3D(), 1);
    SendMessageA(getNative(), WM_LBUTTONUP, 0, MAKELPARAM(4, 4));
    EXPECT_EQ(getShown3D(), 0);
}

TEST_F(LuDialogPushButtonTest, pressInTheWindowDraggedOff_staysPressed3D) {
    buildBoth(*m_button);
    SendMessageA(getNative(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(4, 4));
    SendMessageA(getNative(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(4000, 4000));
    SendMessageA(getNative(), WM_LBUTTONUP, 0, MAKELPARAM(4000, 4000));
    EXPECT_EQ(m_presses.m_count, 0);
    EXPECT_EQ(getShown3D(), 1);
    SendMessageA(getNative(), BM_CLICK, 0, 0);
    EXPECT_EQ(getShown3D(), 0);
}

TEST_F(LuDialogPushButtonTest, buttonThatIsPushedAlready_isNotActivated) {
    buildBoth(*m_button);
    m_button->changeButtonState(1);
    m_button->activateButton();
    EXPECT_EQ(getShown3D(), 0);
    m_button->changeButtonState(0);
    SetFocus(getNative());
    m_button->activateButton();
    EXPECT_EQ(getShown3D(), 1);
}

TEST_F(LuDialogPushButtonTest, pressedGeometry_isShownWhileReleased3D) {
    build3D(*m_button);
    const Held<LuSeparator> one, two;
    m_button->set3DPressedGeometry(one.get());
    m_button->set3DReleasedGeometry(two.get());
    LuGroup* const looks = getPartAs(*m_button, "frameSwitch");
    EXPECT_EQ(looks->getNumChildren(), 2);
    EXPECT_EQ(looks->getChild(0), one.get());
    EXPECT_EQ(looks->getChild(1), two.get());
}

TEST_F(LuDialogPushButtonTest, geometryGivenBeforeTheFirstBuild_isNotTaken3D) {
    const Held<LuSeparator> one, two;
    m_button->set3DPressedGeometry(one.get());
    m_button->set3DReleasedGeometry(two.get());
    build3D(*m_button);
    EXPECT_EQ(getPartAs(*m_button, "frameSwitch")->getChild(0), m_button->getPart("released", false));
    EXPECT_EQ(getPartAs(*m_button, "frameSwitch")->getChild(1), m_button->getPart("pressed", false));
}

TEST_F(LuDialogPushButtonTest, newSkin_keepsThePartsAndIsLoaded3D) {
    build3D(*m_button);
    LuNode* const look = m_button->getPart("pressed", false);
    LuDialogPushButton::setSkinLoaded(0);
    LuDialogPushButton::change3DSkin();
    EXPECT_TRUE(LuDialogPushButton::isSkinLoaded());
    EXPECT_EQ(m_button->getPart("pressed", false), look);
    EXPECT_EQ(static_cast<LuGroup*>(look)->getNumChildren(), 4);
    EXPECT_EQ(LuNode::getByName("DialogPushButtonPressed"), look);
}

TEST_F(LuDialogPushButtonTest, disabledButton_cannotBePicked3D) {
    build3D(*m_button);
    m_button->setCanBeTraversed(0);
    m_button->enable = false;
    m_button->setCanBeTraversed(1);
    m_button->change3DEnable();
    EXPECT_EQ(getChildAs<LuPickStyle>(*m_button, "geomSwitch", 1)->style.getValue(), LuPickStyle::UNPICKABLE);
}

TEST_F(LuDialogPushButtonTest, labelVisibility_isASwitch3D) {
    m_button->label = "Here:";
    buildWithColumn(0, {201, 40});
    m_button->labelVisibility = false;
    m_button->change3DLabelVisibility();
    EXPECT_EQ(getSwitch(*m_button, "labelSwitch"), -1);
    EXPECT_EQ(getChildAs<LuScale>(*m_button, "frameSep", 0)->scaleFactor.getValue(), LvVec3f(195, 34, 1));
}

TEST_F(LuDialogPushButtonTest, state3D_isAnyNumberButZero) {
    build3D(*m_button);
    m_button->change3DButtonState(-7);
    EXPECT_EQ(getShown3D(), 1);
    EXPECT_EQ(getLift3D(), 1.0F);
    m_button->change3DButtonState(0);
    EXPECT_EQ(getShown3D(), 0);
    EXPECT_EQ(getLift3D(), 2.0F);
    EXPECT_EQ(m_presses.m_count, 0);
}

TEST_F(LuDialogPushButtonTest, changesBeforeTheFirstBuild_doNothing) {
    m_button->change3DButtonLabel();
    m_button->change3DLabel();
    m_button->change3DLabelAlignment();
    m_button->change3DLabelVisibility();
    m_button->change3DButtonState(1);
    m_button->activateButton();
    m_button->updateButtonWidget();
    m_button->changeLabelAlignment();
    EXPECT_FALSE(m_button->isBuilt3D());
}

TEST_F(LuDialogPushButtonTest, extremeSizes_arePlacedWithoutOverflow) {
    m_button->label = "Here:";
    m_button->labelAlignment = LuPanelix::CENTER;
    m_button->minWidth = std::numeric_limits<int>::min();
    m_button->width = std::numeric_limits<int>::min();
    m_button->minHeight = std::numeric_limits<int>::min();
    m_button->height = std::numeric_limits<int>::min();
    LvVec2i32 column(std::numeric_limits<int>::max(), 0), size, minSize, maxSize;
    m_button->setLabelSize(column);
    m_button->setComponentSize(column);
    m_button->getDefaultSize(size, minSize, maxSize);
    EXPECT_EQ(size.x, std::numeric_limits<int>::max());
    buildBoth(*m_button);
    EXPECT_EQ(m_button->height.getValue(), std::numeric_limits<int>::min());
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

class LuDialogPushButtonInDialogTest : public LuDialogPushButtonTest {
protected:
    LuDialogPushButtonInDialogTest() : m_wasHeadless(LuDBImpl::m_isHeadless) {
        LuDBImpl::m_isHeadless = false;
        m_dialog->addChild(m_first.get());
        m_dialog->addChild(m_button.get());
        m_dialog->buildDialog(nullptr, 0);
    }
    ~LuDialogPushButtonInDialogTest() override { LuDBImpl::m_isHeadless = m_wasHeadless; }

    Held<LuDialogPushButton> m_first; ///< Another button, above it.
    Held<LuTopLevelDialog> m_dialog;
    bool m_wasHeadless;
};

TEST_F(LuDialogPushButtonInDialogTest, click_makesTheButtonTheFocusedWindow) {
    SendMessageA(m_first->getButtonWidget(), BM_CLICK, 0, 0);
    EXPECT_EQ(m_dialog->getCurrentFocusedWidget(), m_first->getButtonWidget());
    SendMessageA(getNative(), BM_CLICK, 0, 0);
    EXPECT_EQ(m_dialog->getCurrentFocusedWidget(), getNative());
}

TEST_F(LuDialogPushButtonInDialogTest, onlyTabAndShift_goToTheTopLevelDialog) {
    s_keyMessages.clear();
    const HWND top = m_dialog->getWidget();
    s_topProcedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(top, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&recordKeys)));
    SendMessageA(getNative(), WM_KEYDOWN, VK_SHIFT, 0);
    SendMessageA(getNative(), WM_KEYDOWN, VK_TAB, 0);
    SendMessageA(getNative(), WM_KEYUP, VK_TAB, 0);
    SendMessageA(getNative(), WM_KEYDOWN, VK_LEFT, 0);
    SendMessageA(getNative(), WM_KEYDOWN, VK_F1, 0);
    SetWindowLongPtrA(top, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(s_topProcedure));
    EXPECT_EQ(s_keyMessages, (std::vector<UINT>{WM_KEYDOWN, VK_SHIFT, WM_KEYDOWN, VK_TAB, WM_KEYUP, VK_TAB}));
}

} // namespace
