// SPDX-License-Identifier: MIT
#include "tests/platform/win32/WindowFixture.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

class WindowFocus : public WindowFixture {
protected:
    void SetUp() override {
        WindowFixture::SetUp();
        m_top = createTop();
        m_a = createChild("a", m_top, {0, 0, 100, 100}, WS_EX_CONTROLPARENT);
        m_b = createChild("b", m_top, {0, 100, 100, 200}, WS_EX_CONTROLPARENT);
        m_a1 = createButton("a1", m_a);
        m_a2 = createButton("a2", m_a, {0, 30, 80, 54});
        m_b1 = createButton("b1", m_b);
        takeLog();
    }

    void showTop() {
        ShowWindow(m_top, SW_SHOW);
        SetFocus(m_top);
        takeLog();
    }

    HWND m_top = nullptr, m_a = nullptr, m_b = nullptr, m_a1 = nullptr, m_a2 = nullptr, m_b1 = nullptr;
};

TEST_F(WindowFocus, shownWindow_isActiveAndHasTheFocus) {
    ShowWindow(m_top, SW_SHOW);
    EXPECT_THAT(takeLog(), ElementsAre("top:SHOWWINDOW(1)", "top:POSCHANGING", "top:ACTIVATE(1)",
                                       "top:SETFOCUS(none)", "top:POSCHANGED"));
    EXPECT_EQ(nameOf(GetActiveWindow()), "top");
    EXPECT_EQ(nameOf(GetFocus()), "top");
}

TEST_F(WindowFocus, focus_leavesOneWindowAndComesToTheNext) {
    showTop();
    EXPECT_EQ(nameOf(SetFocus(m_a)), "top");
    EXPECT_THAT(takeLog(), ElementsAre("top:KILLFOCUS(a)", "a:SETFOCUS(top)"));
    EXPECT_EQ(nameOf(SetFocus(m_a)), "a");
    EXPECT_THAT(takeLog(), ElementsAre());
    EXPECT_EQ(nameOf(GetFocus()), "a");
}

TEST_F(WindowFocus, focusOfAHiddenWindow_activatesItsTopLevelWindow) {
    HWND other = create("other", WS_POPUP, nullptr, 0, {0, 0, 10, 10});
    ShowWindow(other, SW_SHOW);
    takeLog();
    SetFocus(m_a);
    EXPECT_EQ(nameOf(GetFocus()), "a");
    EXPECT_EQ(nameOf(GetActiveWindow()), "top");
}

TEST_F(WindowFocus, disabledWindowOrParent_getsNoFocus) {
    showTop();
    EnableWindow(m_a1, FALSE);
    EXPECT_EQ(SetFocus(m_a1), nullptr);
    EXPECT_EQ(nameOf(GetFocus()), "top");
    EnableWindow(m_a1, TRUE);
    EnableWindow(m_a, FALSE);
    EXPECT_EQ(SetFocus(m_a1), nullptr);
    EXPECT_EQ(nameOf(GetFocus()), "top");
}

TEST_F(WindowFocus, disablingTheFocusedWindow_takesTheFocusAway) {
    showTop();
    SetFocus(m_a);
    takeLog();
    EXPECT_FALSE(EnableWindow(m_a, FALSE));
    EXPECT_THAT(takeLog(), ElementsAre("a:CANCELMODE", "a:KILLFOCUS(none)", "a:ENABLE(0)"));
    EXPECT_EQ(GetFocus(), nullptr);
    EXPECT_TRUE(EnableWindow(m_a, TRUE));
    EXPECT_THAT(takeLog(), ElementsAre("a:ENABLE(1)"));
    EXPECT_FALSE(EnableWindow(m_a, TRUE));
    EXPECT_THAT(takeLog(), ElementsAre());
}

TEST_F(WindowFocus, enabling_concernsTheWindowAlone) {
    EnableWindow(m_a, FALSE);
    EXPECT_FALSE(IsWindowEnabled(m_a));
    EXPECT_TRUE(IsWindowEnabled(m_a1));
    EXPECT_TRUE(GetWindowLongA(m_a, GWL_STYLE) & static_cast<LONG>(WS_DISABLED));
}

TEST_F(WindowFocus, hidingTheFocusedChild_givesTheFocusToItsParent) {
    showTop();
    SetFocus(m_a1);
    ShowWindow(m_a1, SW_HIDE);
    EXPECT_EQ(nameOf(GetFocus()), "a");
}

TEST_F(WindowFocus, hidingTheParentOfTheFocusedChild_leavesTheFocus) {
    showTop();
    SetFocus(m_a1);
    ShowWindow(m_a, SW_HIDE);
    EXPECT_EQ(nameOf(GetFocus()), "a1");
}

TEST_F(WindowFocus, destroyingTheFocusedChild_givesTheFocusToItsParent) {
    showTop();
    SetFocus(m_a1);
    DestroyWindow(m_a1);
    EXPECT_EQ(nameOf(GetFocus()), "a");
}

TEST_F(WindowFocus, destroyingTheParentOfTheFocusedChild_endsTheFocus) {
    showTop();
    SetFocus(m_a1);
    DestroyWindow(m_a);
    EXPECT_EQ(GetFocus(), nullptr);
}

TEST_F(WindowFocus, hidingTheActiveWindow_takesActivationAndFocus) {
    showTop();
    SetFocus(m_a);
    takeLog();
    ShowWindow(m_top, SW_HIDE);
    EXPECT_THAT(takeLog(), ElementsAre("top:SHOWWINDOW(0)", "top:POSCHANGING", "top:POSCHANGED",
                                       "top:ACTIVATE(0)", "a:KILLFOCUS(none)"));
    EXPECT_EQ(GetActiveWindow(), nullptr);
    EXPECT_EQ(GetFocus(), nullptr);
}

TEST_F(WindowFocus, showingAndHidingAgain_tellsTheStateBefore) {
    EXPECT_FALSE(ShowWindow(m_top, SW_SHOWNA));
    EXPECT_TRUE(ShowWindow(m_top, SW_SHOWNA));
    EXPECT_TRUE(IsWindowVisible(m_a1));
    EXPECT_TRUE(ShowWindow(m_a, SW_HIDE));
    EXPECT_FALSE(ShowWindow(m_a, SW_HIDE));
    EXPECT_FALSE(IsWindowVisible(m_a1));
    takeLog();
    ShowWindow(m_a, SW_SHOW);
    EXPECT_THAT(takeLog(), ElementsAre("a:SHOWWINDOW(1)", "a:POSCHANGING", "a:POSCHANGED"));
}

TEST_F(WindowFocus, tab_goesThroughNestedControlParentsInOrder) {
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, nullptr, FALSE)), "a1") << "the dialog itself may be hidden";
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, m_a1, FALSE)), "a2");
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, m_a2, FALSE)), "b1");
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, m_b1, FALSE)), "a1");
}

TEST_F(WindowFocus, shiftTab_goesBack) {
    EXPECT_EQ(GetNextDlgTabItem(m_top, nullptr, TRUE), nullptr);
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, m_b1, TRUE)), "a2");
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, m_a2, TRUE)), "a1");
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, m_a1, TRUE)), "b1");
}

TEST_F(WindowFocus, tab_skipsHiddenAndDisabledWindows) {
    EnableWindow(m_a2, FALSE);
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, m_a1, FALSE)), "b1");
    EnableWindow(m_a2, TRUE);
    ShowWindow(m_a2, SW_HIDE);
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, m_a1, FALSE)), "b1");
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, m_a2, FALSE)), "b1") << "from a control that is hidden itself";
    ShowWindow(m_b, SW_HIDE);
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, m_a1, FALSE)), "a1");
    ShowWindow(m_b, SW_SHOW);
    EnableWindow(m_b, FALSE);
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, m_a1, FALSE)), "a1");
}

TEST_F(WindowFocus, tab_withinADisabledContainer) {
    EnableWindow(m_a, FALSE);
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, nullptr, FALSE)), "b1");
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, m_a1, FALSE)), "a2");
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, m_a1, TRUE)), "b1");
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, m_a2, FALSE)), "b1");
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, m_a2, TRUE)), "a1");
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, m_b1, FALSE)), "b1");
}

TEST_F(WindowFocus, tab_entersOnlyControlParentsAndTabStops) {
    HWND closed = createChild("closed", m_top);
    createButton("inside", closed);
    HWND plain = createButton("plain", m_top, {0, 0, 10, 10}, WS_CHILD | WS_VISIBLE);
    HWND last = createButton("last", m_top);
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, m_b1, FALSE)), "last");
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, plain, FALSE)), "last");
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, plain, TRUE)), "b1");
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, last, FALSE)), "a1");
}

TEST_F(WindowFocus, tab_fromAContainer_skipsWhatIsInIt) {
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, m_a, FALSE)), "b1");
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, m_a, TRUE)), "b1");
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, m_b, FALSE)), "a1");
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, m_b, TRUE)), "a2");
}

TEST_F(WindowFocus, tab_fromTheDialogOrFromElsewhere) {
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, m_top, FALSE)), "a1");
    EXPECT_EQ(GetNextDlgTabItem(m_top, m_top, TRUE), nullptr);
    HWND other = create("other", WS_POPUP);
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, other, FALSE)), "a1");
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, other, TRUE)), "b1");
    EXPECT_EQ(GetNextDlgTabItem(other, nullptr, FALSE), nullptr);
    HWND alone = createChild("alone", other);
    EXPECT_EQ(GetNextDlgTabItem(other, alone, FALSE), alone);
}

TEST_F(WindowFocus, tab_followsTheZOrder) {
    SetWindowPos(m_b, nullptr, 0, 0, 10, 10, SWP_DEFERERASE);
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, nullptr, FALSE)), "b1");
    EXPECT_EQ(nameOf(GetNextDlgTabItem(m_top, m_b1, FALSE)), "a1");
}

TEST_F(WindowFocus, capture_isTakenAndTold) {
    showTop();
    EXPECT_EQ(SetCapture(m_a), nullptr);
    EXPECT_EQ(nameOf(SetCapture(m_b)), "a");
    EXPECT_EQ(nameOf(GetCapture()), "b");
    ReleaseCapture();
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_THAT(takeLog(), ElementsAre("a:CAPTURECHANGED(b)", "b:CAPTURECHANGED(none)"));
}

TEST_F(WindowFocus, postedMessages_areHandledInOrderAndQuitComesLast) {
    PostQuitMessage(7);
    PostMessageA(m_a, WM_USER, 1, 0);
    PostMessageA(m_b, WM_USER, 2, 0);
    MSG message{};
    while (GetMessageA(&message, nullptr, 0, 0) > 0)
        DispatchMessageA(&message);
    EXPECT_THAT(takeLog(), ElementsAre("a:USER(1)", "b:USER(2)"));
    EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
    EXPECT_EQ(message.wParam, 7u);
}

TEST_F(WindowFocus, closeFromTheSystemMenu_destroysByDefault) {
    SendMessageA(m_top, WM_SYSCOMMAND, SC_CLOSE, 0);
    const std::vector<std::string> log = takeLog();
    ASSERT_GE(log.size(), 3u);
    EXPECT_EQ(log[0], "top:SYSCOMMAND");
    EXPECT_EQ(log[1], "top:CLOSE");
    EXPECT_FALSE(IsWindow(m_top));
}

TEST_F(WindowFocus, wheel_goesUpToTheParentByDefault) {
    SendMessageA(m_a, WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), 0);
    EXPECT_THAT(takeLog(), ElementsAre("a:MOUSEWHEEL", "top:MOUSEWHEEL"));
}

} // namespace
