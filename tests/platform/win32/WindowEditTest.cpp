// SPDX-License-Identifier: MIT
#include "tests/platform/win32/WindowFixture.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

using Selection = std::pair<int, int>;

class WindowEdit : public WindowFixture {
protected:
    void SetUp() override {
        WindowFixture::SetUp();
        m_top = createTop();
        m_parent = createChild("parent", m_top, {0, 0, 200, 200});
        m_edit = createEdit("edit", m_parent);
        SetWindowLongPtrA(m_edit, GWLP_ID, 7);
        ShowWindow(m_top, SW_SHOW);
        setText("");
        takeLog();
    }

    void setText(const char* text) { SetWindowTextA(m_edit, text); }
    std::string getText() {
        char buffer[100] = "";
        GetWindowTextA(m_edit, buffer, sizeof buffer);
        return buffer;
    }
    void select(int start, int end) { SendMessageA(m_edit, EM_SETSEL, static_cast<WPARAM>(start), end); }
    Selection getSelection() {
        DWORD start = 99, end = 99;
        SendMessageA(m_edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
        return {static_cast<int>(start), static_cast<int>(end)};
    }
    void type(const char* characters) {
        for (; *characters; ++characters)
            SendMessageA(m_edit, WM_CHAR, static_cast<unsigned char>(*characters), 1);
    }
    void press(int key) {
        SendMessageA(m_edit, WM_KEYDOWN, static_cast<WPARAM>(key), 1);
        SendMessageA(m_edit, WM_KEYUP, static_cast<WPARAM>(key), 1);
    }

    HWND m_top = nullptr, m_parent = nullptr, m_edit = nullptr;
};

TEST_F(WindowEdit, title_isTheTextWithTheCaretInFront) {
    EXPECT_EQ(getText(), "");
    m_edit = createEdit("named", m_parent);
    EXPECT_EQ(getText(), "named");
    EXPECT_EQ(getSelection(), Selection(0, 0));
}

TEST_F(WindowEdit, clientEdge_takesTwoPixelsOnEachSide) { EXPECT_EQ(clientSizeOf(m_edit), (SIZE{76, 16})); }

TEST_F(WindowEdit, setText_putsTheCaretInFrontAndNotifies) {
    type("123");
    takeLog();
    setText("45");
    EXPECT_EQ(getText(), "45");
    EXPECT_EQ(getSelection(), Selection(0, 0));
    EXPECT_THAT(takeLog(), ElementsAre("parent:COMMAND(7,1024,edit)", "parent:COMMAND(7,768,edit)"));
}

TEST_F(WindowEdit, character_isInsertedAtTheCaretAndNotifies) {
    setText("13");
    select(1, 1);
    takeLog();
    type("2");
    EXPECT_EQ(getText(), "123");
    EXPECT_EQ(getSelection(), Selection(2, 2));
    EXPECT_THAT(takeLog(), ElementsAre("parent:COMMAND(7,1024,edit)", "parent:COMMAND(7,768,edit)"));
}

TEST_F(WindowEdit, character_takesThePlaceOfTheSelection) {
    setText("1234");
    select(1, 3);
    type("x");
    EXPECT_EQ(getText(), "1x4");
    EXPECT_EQ(getSelection(), Selection(2, 2));
}

TEST_F(WindowEdit, controlCharacters_areNotInserted) {
    setText("12");
    type("\t\r\n\x1b");
    EXPECT_EQ(getText(), "12");
}

TEST_F(WindowEdit, selection_isLimitedToTheText) {
    setText("1234");
    select(1, 100);
    EXPECT_EQ(getSelection(), Selection(1, 4));
    select(0, -1);
    EXPECT_EQ(getSelection(), Selection(0, 4));
    select(2, 1);
    EXPECT_EQ(getSelection(), Selection(1, 2));
}

TEST_F(WindowEdit, selectionFromMinusOne_isTheCaretWhereItStands) {
    setText("1234");
    select(1, 3);
    select(-1, -1);
    EXPECT_EQ(getSelection(), Selection(3, 3));
    select(0, 0);
    select(-1, -1);
    EXPECT_EQ(getSelection(), Selection(0, 0));
}

TEST_F(WindowEdit, backspace_deletesToTheLeft) {
    setText("1234");
    select(2, 2);
    takeLog();
    type("\b");
    EXPECT_EQ(getText(), "134");
    EXPECT_EQ(getSelection(), Selection(1, 1));
    EXPECT_THAT(takeLog(), ElementsAre("parent:COMMAND(7,1024,edit)", "parent:COMMAND(7,768,edit)"));
    select(0, 2);
    type("\b");
    EXPECT_EQ(getText(), "4");
    EXPECT_EQ(getSelection(), Selection(0, 0));
}

TEST_F(WindowEdit, backspaceAtTheStart_changesNothing) {
    setText("12");
    type("\b");
    EXPECT_EQ(getText(), "12");
    EXPECT_EQ(getSelection(), Selection(0, 0));
}

TEST_F(WindowEdit, deleteKey_deletesToTheRight) {
    setText("1234");
    select(1, 1);
    press(VK_DELETE);
    EXPECT_EQ(getText(), "134");
    EXPECT_EQ(getSelection(), Selection(1, 1));
    select(1, 3);
    press(VK_DELETE);
    EXPECT_EQ(getText(), "1");
    press(VK_DELETE);
    EXPECT_EQ(getText(), "1");
}

TEST_F(WindowEdit, arrowsHomeAndEnd_moveTheCaret) {
    setText("1234");
    press(VK_RIGHT);
    press(VK_RIGHT);
    EXPECT_EQ(getSelection(), Selection(2, 2));
    press(VK_LEFT);
    EXPECT_EQ(getSelection(), Selection(1, 1));
    press(VK_END);
    EXPECT_EQ(getSelection(), Selection(4, 4));
    press(VK_RIGHT);
    EXPECT_EQ(getSelection(), Selection(4, 4));
    press(VK_HOME);
    press(VK_LEFT);
    EXPECT_EQ(getSelection(), Selection(0, 0));
    EXPECT_EQ(getText(), "1234");
}

TEST_F(WindowEdit, focus_isNotified) {
    SetFocus(m_edit);
    SetFocus(m_parent);
    const std::vector<std::string> log = takeLog();
    EXPECT_THAT(log, testing::Contains("parent:COMMAND(7,256,edit)"));
    EXPECT_THAT(log, testing::Contains("parent:COMMAND(7,512,edit)"));
}

TEST_F(WindowEdit, press_takesTheFocusAndPlacesTheCaret) {
    setText("1234");
    SendMessageA(m_edit, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(70, 8));
    EXPECT_EQ(GetFocus(), m_edit);
    EXPECT_EQ(GetCapture(), m_edit);
    EXPECT_EQ(getSelection(), Selection(4, 4));
    SendMessageA(m_edit, WM_LBUTTONUP, 0, MAKELPARAM(70, 8));
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(WindowEdit, pressAndMotion_select) {
    setText("1234");
    SendMessageA(m_edit, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(70, 8));
    SendMessageA(m_edit, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(0, 8));
    SendMessageA(m_edit, WM_LBUTTONUP, 0, MAKELPARAM(0, 8));
    EXPECT_EQ(getSelection(), Selection(0, 4));
}

TEST_F(WindowEdit, limit_holdsTypedTextAndNotSetText) {
    EXPECT_EQ(SendMessageA(m_edit, EM_GETLIMITTEXT, 0, 0), 30000);
    SendMessageA(m_edit, EM_LIMITTEXT, 3, 0);
    type("12345");
    EXPECT_EQ(getText(), "123");
    setText("123456");
    EXPECT_EQ(getText(), "123456");
    SendMessageA(m_edit, EM_LIMITTEXT, 0, 0);
    EXPECT_EQ(SendMessageA(m_edit, EM_GETLIMITTEXT, 0, 0), 0x7ffffffe);
}

TEST_F(WindowEdit, fullText_notifiesOfIt) {
    SendMessageA(m_edit, EM_LIMITTEXT, 1, 0);
    type("1");
    takeLog();
    type("2");
    EXPECT_THAT(takeLog(), testing::Contains("parent:COMMAND(7,1281,edit)"));
}

TEST_F(WindowEdit, replacedSelection_isAsTyped) {
    setText("1234");
    select(1, 3);
    SendMessageA(m_edit, EM_REPLACESEL, 0, reinterpret_cast<LPARAM>("xyz"));
    EXPECT_EQ(getText(), "1xyz4");
    EXPECT_EQ(getSelection(), Selection(4, 4));
}

TEST_F(WindowEdit, readOnlyText_staysAsItIs) {
    setText("12");
    SendMessageA(m_edit, EM_SETREADONLY, TRUE, 0);
    type("3\b");
    press(VK_DELETE);
    EXPECT_EQ(getText(), "12");
}

TEST_F(WindowEdit, clear_deletesTheSelectionAlone) {
    setText("123");
    SendMessageA(m_edit, WM_CLEAR, 0, 0);
    EXPECT_EQ(getText(), "123");
    select(0, 2);
    SendMessageA(m_edit, WM_CLEAR, 0, 0);
    EXPECT_EQ(getText(), "3");
}

TEST_F(WindowEdit, dialogCode_asksForCharactersAndArrows) {
    EXPECT_EQ(SendMessageA(m_edit, WM_GETDLGCODE, 0, 0), DLGC_HASSETSEL | DLGC_WANTCHARS | DLGC_WANTARROWS);
}

TEST_F(WindowEdit, windowDestroyedByItsNotification_isGone) {
    static HWND s_edit;
    s_edit = m_edit;
    m_answer = [](HWND, UINT message, WPARAM wParam, LPARAM, bool&) -> LRESULT {
        if (message == WM_COMMAND && HIWORD(wParam) == EN_UPDATE)
            DestroyWindow(s_edit);
        return 0;
    };
    type("1");
    m_answer = nullptr;
    EXPECT_FALSE(IsWindow(m_edit));
}

} // namespace
