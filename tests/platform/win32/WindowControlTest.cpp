// SPDX-License-Identifier: MIT
#include "tests/platform/win32/WindowFixture.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

class WindowControl : public WindowFixture {
protected:
    void SetUp() override {
        WindowFixture::SetUp();
        m_top = createTop();
        m_parent = createChild("parent", m_top, {0, 0, 200, 200});
        m_button = createButton("button", m_parent);
        SetWindowLongPtrA(m_button, GWLP_ID, 12);
        ShowWindow(m_top, SW_SHOW);
        subclass(m_button);
        takeLog();
    }

    LRESULT getState() { return SendMessageA(m_button, BM_GETSTATE, 0, 0); }

    HWND m_top = nullptr, m_parent = nullptr, m_button = nullptr;
};

constexpr LRESULT held = 0x40; ///< While the mouse or the space key holds the button.

TEST_F(WindowControl, press_capturesTakesTheFocusAndPushes) {
    SendMessageA(m_button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_THAT(takeLog(), ElementsAre("button:LBUTTONDOWN", "top:KILLFOCUS(button)", "button:SETFOCUS(top)",
                                       "button:BM_SETSTATE(1)"));
    EXPECT_EQ(getState(), BST_FOCUS | BST_PUSHED | held);
    EXPECT_EQ(GetCapture(), m_button);
    ReleaseCapture();
}

TEST_F(WindowControl, releaseOverTheButton_clicks) {
    SendMessageA(m_button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    takeLog();
    SendMessageA(m_button, WM_LBUTTONUP, 0, MAKELPARAM(6, 6));
    EXPECT_THAT(takeLog(), ElementsAre("button:LBUTTONUP", "button:BM_SETSTATE(0)",
                                       "button:CAPTURECHANGED(none)", "parent:COMMAND(12,0,button)"));
    EXPECT_EQ(getState(), BST_FOCUS);
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(WindowControl, pressDraggedOff_doesNotClick) {
    SendMessageA(m_button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    SendMessageA(m_button, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(500, 5));
    EXPECT_EQ(getState(), BST_FOCUS | held);
    SendMessageA(m_button, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(6, 5));
    EXPECT_EQ(getState(), BST_FOCUS | BST_PUSHED | held);
    SendMessageA(m_button, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(6, 500));
    takeLog();
    SendMessageA(m_button, WM_LBUTTONUP, 0, MAKELPARAM(6, 500));
    EXPECT_THAT(takeLog(), ElementsAre("button:LBUTTONUP", "button:CAPTURECHANGED(none)"));
    EXPECT_EQ(getState(), BST_FOCUS);
}

TEST_F(WindowControl, spaceKey_clicks) {
    SetFocus(m_button);
    takeLog();
    SendMessageA(m_button, WM_KEYDOWN, VK_SPACE, 0);
    EXPECT_EQ(getState(), BST_FOCUS | BST_PUSHED | held);
    SendMessageA(m_button, WM_KEYUP, VK_SPACE, 0);
    EXPECT_THAT(takeLog(), ElementsAre("button:BM_SETSTATE(1)", "button:BM_SETSTATE(0)",
                                       "button:CAPTURECHANGED(none)", "parent:COMMAND(12,0,button)"));
}

TEST_F(WindowControl, otherKeys_doNothing) {
    SetFocus(m_button);
    takeLog();
    SendMessageA(m_button, WM_KEYDOWN, 'A', 0);
    SendMessageA(m_button, WM_KEYUP, 'A', 0);
    EXPECT_THAT(takeLog(), ElementsAre());
}

TEST_F(WindowControl, clickMessage_pressesAndReleases) {
    SendMessageA(m_button, BM_CLICK, 0, 0);
    EXPECT_THAT(takeLog(), ElementsAre("button:LBUTTONDOWN", "top:KILLFOCUS(button)", "button:SETFOCUS(top)",
                                       "button:BM_SETSTATE(1)", "button:LBUTTONUP", "button:BM_SETSTATE(0)",
                                       "button:CAPTURECHANGED(none)", "parent:COMMAND(12,0,button)"));
}

TEST_F(WindowControl, clickMessageToADisabledButton_pushesWithoutFocus) {
    EnableWindow(m_button, FALSE);
    takeLog();
    SendMessageA(m_button, BM_CLICK, 0, 0);
    EXPECT_EQ(GetFocus(), m_top);
    EXPECT_THAT(takeLog(), testing::Contains("parent:COMMAND(12,0,button)"));
}

TEST_F(WindowControl, setState_changesThePushAlone) {
    SendMessageA(m_button, BM_SETSTATE, 1, 0);
    EXPECT_EQ(getState(), BST_PUSHED);
    SendMessageA(m_button, BM_SETSTATE, 0, 0);
    EXPECT_EQ(getState(), 0);
    EXPECT_THAT(takeLog(), ElementsAre("button:BM_SETSTATE(1)", "button:BM_SETSTATE(0)"));
}

TEST_F(WindowControl, losingTheCapture_endsThePress) {
    SendMessageA(m_button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    SetCapture(m_parent);
    EXPECT_EQ(getState(), BST_FOCUS);
    takeLog();
    SendMessageA(m_button, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_THAT(takeLog(), ElementsAre("button:LBUTTONUP"));
    ReleaseCapture();
}

TEST_F(WindowControl, losingTheFocus_endsThePress) {
    SendMessageA(m_button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    SetFocus(m_top);
    EXPECT_EQ(getState(), 0);
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(WindowControl, autoCheckBox_turnsAtEachClick) {
    HWND box = createButton("box", m_parent, {0, 30, 80, 50}, WS_CHILD | WS_VISIBLE | BS_AUTOCHECKBOX);
    EXPECT_EQ(SendMessageA(box, BM_GETCHECK, 0, 0), BST_UNCHECKED);
    SendMessageA(box, BM_CLICK, 0, 0);
    EXPECT_EQ(SendMessageA(box, BM_GETCHECK, 0, 0), BST_CHECKED);
    SendMessageA(box, BM_CLICK, 0, 0);
    EXPECT_EQ(SendMessageA(box, BM_GETCHECK, 0, 0), BST_UNCHECKED);
    takeLog();
    SendMessageA(box, BM_SETCHECK, BST_CHECKED, 0);
    EXPECT_EQ(SendMessageA(box, BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_THAT(takeLog(), ElementsAre());
}

/// A parent with an automatic check box that writes its messages down.
class WindowCheckBox : public WindowControl {
protected:
    void SetUp() override {
        WindowControl::SetUp();
        m_box = createButton("box", m_parent, {0, 30, 80, 50},
                             WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_MULTILINE | BS_AUTOCHECKBOX);
        SetWindowLongPtrA(m_box, GWLP_ID, 13);
        subclass(m_box);
        takeLog();
    }

    LRESULT getCheck() { return SendMessageA(m_box, BM_GETCHECK, 0, 0); }

    HWND m_box = nullptr;
};

TEST_F(WindowCheckBox, click_checksBeforeItNotifies) {
    SendMessageA(m_box, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_EQ(getCheck(), BST_UNCHECKED);
    takeLog();
    SendMessageA(m_box, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_THAT(takeLog(), ElementsAre("box:LBUTTONUP", "box:BM_SETSTATE(0)", "box:BM_SETCHECK(1)",
                                       "box:CAPTURECHANGED(none)", "parent:COMMAND(13,0,box)"));
    EXPECT_EQ(getCheck(), BST_CHECKED);
    EXPECT_EQ(SendMessageA(m_box, BM_GETSTATE, 0, 0), BST_CHECKED | BST_FOCUS);
}

TEST_F(WindowCheckBox, pressDraggedOff_leavesTheCheck) {
    SendMessageA(m_box, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    SendMessageA(m_box, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(500, 5));
    takeLog();
    SendMessageA(m_box, WM_LBUTTONUP, 0, MAKELPARAM(500, 5));
    EXPECT_THAT(takeLog(), ElementsAre("box:LBUTTONUP", "box:CAPTURECHANGED(none)"));
    EXPECT_EQ(getCheck(), BST_UNCHECKED);
}

TEST_F(WindowCheckBox, spaceKey_turnsTheCheckWhenItGoesUp) {
    SetFocus(m_box);
    SendMessageA(m_box, WM_KEYDOWN, VK_SPACE, 0);
    EXPECT_EQ(getCheck(), BST_UNCHECKED);
    takeLog();
    SendMessageA(m_box, WM_KEYUP, VK_SPACE, 0);
    EXPECT_THAT(takeLog(), ElementsAre("box:BM_SETSTATE(0)", "box:BM_SETCHECK(1)", "box:CAPTURECHANGED(none)",
                                       "parent:COMMAND(13,0,box)"));
    EXPECT_EQ(getCheck(), BST_CHECKED);
}

TEST_F(WindowCheckBox, setCheck_notifiesNobodyAndKnowsTwoStates) {
    SendMessageA(m_box, BM_SETCHECK, BST_INDETERMINATE, 0);
    EXPECT_EQ(getCheck(), BST_CHECKED);
    SendMessageA(m_box, BM_SETCHECK, BST_UNCHECKED, 0);
    EXPECT_EQ(getCheck(), BST_UNCHECKED);
    EXPECT_THAT(takeLog(), ElementsAre("box:BM_SETCHECK(2)", "box:BM_SETCHECK(0)"));
}

TEST_F(WindowCheckBox, setCheck_leavesTheStyle) {
    const LONG_PTR style = GetWindowLongPtrA(m_box, GWL_STYLE);
    SendMessageA(m_box, BM_SETCHECK, BST_CHECKED, 0);
    SendMessageA(m_box, BM_SETCHECK, BST_UNCHECKED, 0);
    EXPECT_EQ(GetWindowLongPtrA(m_box, GWL_STYLE), style);
}

TEST_F(WindowCheckBox, dialogCode_isThatOfAButton) {
    EXPECT_EQ(SendMessageA(m_box, WM_GETDLGCODE, 0, 0), DLGC_BUTTON);
}

TEST_F(WindowControl, pushButton_keepsNoCheck) {
    SendMessageA(m_button, BM_SETCHECK, BST_CHECKED, 0);
    EXPECT_EQ(SendMessageA(m_button, BM_GETCHECK, 0, 0), BST_UNCHECKED);
}

TEST_F(WindowControl, autoRadioButtons_excludeEachOtherWithinTheirGroup) {
    const DWORD style = WS_CHILD | WS_VISIBLE | BS_AUTORADIOBUTTON;
    HWND one = createButton("one", m_parent, {0, 30, 80, 50}, style | WS_GROUP);
    HWND two = createButton("two", m_parent, {0, 50, 80, 70}, style);
    HWND other = createButton("other", m_parent, {0, 70, 80, 90}, style | WS_GROUP);
    SendMessageA(other, BM_SETCHECK, BST_CHECKED, 0);
    SendMessageA(one, BM_CLICK, 0, 0);
    SendMessageA(two, BM_CLICK, 0, 0);
    EXPECT_EQ(SendMessageA(one, BM_GETCHECK, 0, 0), BST_UNCHECKED);
    EXPECT_EQ(SendMessageA(two, BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_EQ(SendMessageA(other, BM_GETCHECK, 0, 0), BST_CHECKED);
}

TEST_F(WindowControl, dialogCodes_tellTheKind) {
    HWND label = create("label", WS_CHILD, m_parent, 0, {}, "STATIC");
    EXPECT_EQ(SendMessageA(m_button, WM_GETDLGCODE, 0, 0), DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON);
    EXPECT_EQ(SendMessageA(label, WM_GETDLGCODE, 0, 0), DLGC_STATIC);
}

TEST_F(WindowControl, font_isKeptByControlsAndNotByPlainWindows) {
    const auto font = reinterpret_cast<LPARAM>(GetStockObject(DEFAULT_GUI_FONT));
    HWND label = create("label", WS_CHILD, m_parent, 0, {}, "STATIC");
    for (HWND window : {m_button, label}) {
        SendMessageA(window, WM_SETFONT, static_cast<WPARAM>(font), 1);
        EXPECT_EQ(SendMessageA(window, WM_GETFONT, 0, 0), font);
    }
    SendMessageA(m_parent, WM_SETFONT, static_cast<WPARAM>(font), 1);
    EXPECT_EQ(SendMessageA(m_parent, WM_GETFONT, 0, 0), 0);
}

TEST_F(WindowControl, alignmentOfALabel_isItsStyle) {
    HWND label = create("label", 0x42000000 | SS_CENTER, m_parent, 0, {}, "STATIC");
    EXPECT_EQ(GetWindowLongA(label, GWL_STYLE), 0x42000001);
    SetWindowLongPtrA(label, GWL_STYLE, 0x42000000 | SS_RIGHT);
    EXPECT_EQ(GetWindowLongA(label, GWL_STYLE), 0x42000002);
}

TEST_F(WindowControl, wideText_comesThroughAControl) {
    const wchar_t text[] = {L'a', 0x3b1, 0x20ac, 0};
    HWND label = CreateWindowExW(0, L"STATIC", text, WS_CHILD, 0, 0, 0, 0, m_parent, nullptr,
                                 GetModuleHandleA(nullptr), nullptr);
    wchar_t wide[10] = L"";
    EXPECT_EQ(GetWindowTextW(label, wide, 10), 3);
    EXPECT_STREQ(wide, text);
    EXPECT_EQ(GetWindowTextLengthW(label), 3);
    char narrow[10] = "";
    EXPECT_EQ(GetWindowTextA(label, narrow, 10), 3);
    EXPECT_EQ(std::string(narrow).substr(2), "\x80");
    SetWindowTextW(label, L"other");
    EXPECT_EQ(GetWindowTextW(label, wide, 4), 3);
    EXPECT_STREQ(wide, L"oth");
}

TEST_F(WindowControl, wideText_isNarrowedForAnAnsiProcedure) {
    const wchar_t text[] = {0xe4, 0x20ac, 0};
    SetWindowTextW(m_parent, text);
    EXPECT_THAT(takeLog(), ElementsAre("parent:SETTEXT(\xe4\x80)"));
    wchar_t wide[10] = L"";
    EXPECT_EQ(GetWindowTextW(m_parent, wide, 10), 2);
    EXPECT_STREQ(wide, text);
}

TEST_F(WindowControl, textIsCutToTheBuffer) {
    SetWindowTextA(m_parent, "abcdef");
    char text[4] = "xyz";
    EXPECT_EQ(GetWindowTextA(m_parent, text, 4), 3);
    EXPECT_STREQ(text, "abc");
    EXPECT_EQ(GetWindowTextLengthA(m_parent), 6);
    SetWindowTextA(m_parent, "");
    EXPECT_EQ(GetWindowTextA(m_parent, text, 4), 0);
    EXPECT_STREQ(text, "");
}

TEST_F(WindowControl, titleOfAFrame_isItsText) {
    char text[10] = "";
    EXPECT_EQ(GetWindowTextA(m_top, text, 10), 3);
    EXPECT_STREQ(text, "top");
    EXPECT_EQ(FindWindowA(className, "top"), m_top);
    EXPECT_EQ(FindWindowA("PanelixNoSuchWindow", nullptr), nullptr);
}

} // namespace
