// SPDX-License-Identifier: MIT
#include "tests/platform/win32/WindowFixture.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

class WindowLife : public WindowFixture {};

TEST_F(WindowLife, hiddenOverlappedWindow_hearsNothingOfItsSizeUntilItIsShown) {
    HWND top = create("top", WS_OVERLAPPEDWINDOW, nullptr, WS_EX_WINDOWEDGE, {10, 20, 310, 220});
    EXPECT_THAT(takeLog(),
                ElementsAre("top:GETMINMAXINFO", "top:NCCREATE", "top:NCCALCSIZE(0)", "top:CREATE"));
    ShowWindow(top, SW_SHOWNOACTIVATE);
    const std::vector<std::string> log = takeLog();
    ASSERT_GE(log.size(), 2u);
    EXPECT_EQ(log[log.size() - 2], "top:SIZE(292,173)");
    EXPECT_EQ(log.back(), "top:MOVE(14,43)");
    ShowWindow(top, SW_HIDE);
    takeLog();
    ShowWindow(top, SW_SHOWNOACTIVATE);
    EXPECT_THAT(takeLog(), ElementsAre("top:SHOWWINDOW(1)", "top:POSCHANGING", "top:POSCHANGED"));
}

TEST_F(WindowLife, popup_hearsOfItsSizeAtTheCreation) {
    create("top", WS_POPUP | WS_CAPTION, nullptr, 0, {10, 20, 110, 120});
    EXPECT_THAT(takeLog(), ElementsAre("top:NCCREATE", "top:NCCALCSIZE(0)", "top:CREATE", "top:SIZE(94,75)",
                                       "top:MOVE(13,42)"));
}

TEST_F(WindowLife, childOfAHiddenParent_isAnnouncedThenMarkedVisible) {
    HWND top = createTop();
    takeLog();
    HWND child = createChild("child", top, {5, 6, 105, 56});
    EXPECT_THAT(takeLog(),
                ElementsAre("child:NCCREATE", "child:NCCALCSIZE(0)", "child:CREATE", "child:SIZE(100,50)",
                            "child:MOVE(5,6)", "top:PARENTNOTIFY(1)", "child:SHOWWINDOW(1)"));
    EXPECT_TRUE(GetWindowLongA(child, GWL_STYLE) & static_cast<LONG>(WS_VISIBLE));
    EXPECT_FALSE(IsWindowVisible(child));
}

TEST_F(WindowLife, childOfAShownParent_isShown) {
    HWND top = createTop();
    ShowWindow(top, SW_SHOWNA);
    takeLog();
    HWND child = createChild("child", top, {5, 6, 105, 56});
    EXPECT_THAT(takeLog(), ElementsAre("child:NCCREATE", "child:NCCALCSIZE(0)", "child:CREATE",
                                       "child:SIZE(100,50)", "child:MOVE(5,6)", "top:PARENTNOTIFY(1)",
                                       "child:SHOWWINDOW(1)", "child:POSCHANGING", "child:POSCHANGED"));
    EXPECT_TRUE(IsWindowVisible(child));
}

TEST_F(WindowLife, destroyedTree_goesFromTheParentDownAndFromTheChildUp) {
    HWND top = createTop();
    HWND a = createChild("a", top);
    createChild("a1", a);
    HWND b = createChild("b", top);
    createChild("b1", b);
    takeLog();
    DestroyWindow(top);
    EXPECT_THAT(takeLog(),
                ElementsAre("top:DESTROY", "a:DESTROY", "a1:DESTROY", "b:DESTROY", "b1:DESTROY",
                            "a1:NCDESTROY", "a:NCDESTROY", "b1:NCDESTROY", "b:NCDESTROY", "top:NCDESTROY"));
    EXPECT_FALSE(IsWindow(top));
    EXPECT_FALSE(IsWindow(a));
}

TEST_F(WindowLife, destroyedChildOfAHiddenParent_tellsTheParentAndHidesFirst) {
    HWND top = createTop();
    HWND child = createChild("child", top);
    takeLog();
    EXPECT_TRUE(DestroyWindow(child));
    EXPECT_THAT(takeLog(), ElementsAre("top:PARENTNOTIFY(2)", "child:SHOWWINDOW(0)", "child:DESTROY",
                                       "child:NCDESTROY"));
    EXPECT_FALSE(IsWindow(child));
}

TEST_F(WindowLife, destroyedChildOfAShownParent_isHiddenFirst) {
    HWND top = createTop();
    HWND child = createChild("child", top);
    ShowWindow(top, SW_SHOWNA);
    takeLog();
    DestroyWindow(child);
    EXPECT_THAT(takeLog(), ElementsAre("top:PARENTNOTIFY(2)", "child:SHOWWINDOW(0)", "child:POSCHANGING",
                                       "child:POSCHANGED", "child:DESTROY", "child:NCDESTROY"));
}

TEST_F(WindowLife, ownedWindow_goesWithItsOwner) {
    HWND top = createTop();
    HWND owned = create("owned", WS_POPUP, top);
    EXPECT_EQ(GetParent(owned), top);
    EXPECT_EQ(GetWindow(owned, GW_OWNER), top);
    EXPECT_FALSE(IsChild(top, owned));
    DestroyWindow(top);
    EXPECT_FALSE(IsWindow(owned));
}

TEST_F(WindowLife, windowThatRefusesNcCreate_doesNotComeToBe) {
    m_answer = [](HWND, UINT message, WPARAM, LPARAM, bool& isAnswered) -> LRESULT {
        isAnswered = message == WM_NCCREATE;
        return 0;
    };
    EXPECT_EQ(create("top", WS_POPUP), nullptr);
    EXPECT_THAT(takeLog(), testing::Contains("top:NCCREATE"));
}

TEST_F(WindowLife, windowThatRefusesCreate_endsWithoutDestroy) {
    m_answer = [](HWND, UINT message, WPARAM, LPARAM, bool& isAnswered) -> LRESULT {
        isAnswered = message == WM_CREATE;
        return -1;
    };
    EXPECT_EQ(create("top", WS_POPUP), nullptr);
    EXPECT_THAT(takeLog(), ElementsAre("top:NCCREATE", "top:NCCALCSIZE(0)", "top:CREATE", "top:NCDESTROY"));
}

TEST_F(WindowLife, windowDestroyedInItsOwnMove_isGoneAndNothingCrashes) {
    HWND top = createTop();
    HWND child = createChild("child", top);
    m_answer = [](HWND window, UINT message, WPARAM, LPARAM, bool&) -> LRESULT {
        if (message == WM_MOVE)
            DestroyWindow(window);
        return 0;
    };
    SetWindowPos(child, nullptr, 10, 10, 50, 50, SWP_NOZORDER);
    EXPECT_FALSE(IsWindow(child));
    EXPECT_TRUE(IsWindow(top));
}

TEST_F(WindowLife, unknownClassOrParent_givesNoWindow) {
    SetLastError(0);
    EXPECT_EQ(create("x", WS_POPUP, nullptr, 0, {}, "NoSuchClass"), nullptr);
    EXPECT_NE(GetLastError(), static_cast<DWORD>(ERROR_SUCCESS));
    EXPECT_EQ(create("x", WS_CHILD), nullptr);
    HWND top = createTop();
    DestroyWindow(top);
    SetLastError(0);
    EXPECT_EQ(createChild("x", top), nullptr);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_WINDOW_HANDLE));
}

TEST_F(WindowLife, invalidHandles_failAndTellWhy) {
    HWND gone = createTop();
    DestroyWindow(gone);
    RECT rect{1, 2, 3, 4};
    EXPECT_FALSE(IsWindow(gone));
    EXPECT_FALSE(IsWindow(nullptr));
    SetLastError(0);
    EXPECT_FALSE(SetWindowPos(gone, nullptr, 0, 0, 1, 1, 0));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_WINDOW_HANDLE));
    EXPECT_FALSE(DestroyWindow(gone));
    EXPECT_FALSE(GetWindowRect(gone, &rect));
    EXPECT_FALSE(GetClientRect(gone, &rect));
    EXPECT_EQ(rect, (RECT{1, 2, 3, 4}));
    EXPECT_EQ(SendMessageA(gone, WM_USER, 1, 0), 0);
    EXPECT_FALSE(PostMessageA(gone, WM_USER, 1, 0));
    EXPECT_EQ(GetWindowLongPtrA(gone, GWL_STYLE), 0);
    EXPECT_EQ(SetWindowLongPtrA(gone, GWLP_USERDATA, 1), 0);
    EXPECT_EQ(GetParent(gone), nullptr);
    EXPECT_FALSE(ShowWindow(gone, SW_SHOW));
    EXPECT_FALSE(EnableWindow(gone, TRUE));
    EXPECT_EQ(SetFocus(gone), nullptr);
    EXPECT_FALSE(IsWindowVisible(gone));
    EXPECT_FALSE(IsWindowEnabled(gone));
    EXPECT_FALSE(SetWindowTextA(gone, "x"));
    EXPECT_EQ(GetNextDlgTabItem(gone, nullptr, FALSE), nullptr);
    EXPECT_FALSE(ScrollWindow(gone, 1, 1, nullptr, nullptr));
}

TEST_F(WindowLife, handleOfADestroyedWindow_isNotUsedAgainForTheNext) {
    HWND first = createTop();
    DestroyWindow(first);
    HWND second = createTop();
    EXPECT_NE(first, second);
    EXPECT_FALSE(IsWindow(first));
}

TEST_F(WindowLife, windowThatWasAskedForLast_isGoneOnceItIsDestroyed) {
    HWND child = createChild("child", createTop());
    EXPECT_TRUE(IsWindow(child));
    DestroyWindow(child);
    EXPECT_FALSE(IsWindow(child));
    EXPECT_FALSE(IsWindow(nullptr));
}

TEST_F(WindowLife, windowData_isKept) {
    HWND top = createTop();
    int object = 0;
    EXPECT_EQ(SetWindowLongPtrA(top, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&object)), 0);
    EXPECT_EQ(GetWindowLongPtrA(top, GWLP_USERDATA), reinterpret_cast<LONG_PTR>(&object));
    EXPECT_EQ(SetWindowLongPtrA(top, 8, 0x123456789), 0);
    EXPECT_EQ(GetWindowLongPtrA(top, 8), 0x123456789);
    EXPECT_EQ(GetWindowLongPtrA(top, 0), 0);
    EXPECT_EQ(SetWindowLongPtrA(top, 12, 1), 0);
    EXPECT_EQ(GetWindowLongPtrA(top, 12), 0);
}

TEST_F(WindowLife, subclassedWindow_passesOnToTheProcedureBefore) {
    HWND top = createTop();
    HWND button = createButton("button", top);
    subclass(button);
    SetWindowTextA(button, "new");
    EXPECT_THAT(takeLog(), testing::Contains("button:SETTEXT(new)"));
    char text[10] = "";
    EXPECT_EQ(GetWindowTextA(button, text, sizeof text), 3);
    EXPECT_STREQ(text, "new");
}

TEST_F(WindowLife, classes_areFoundWithoutRegardToCase) {
    WNDCLASSA description{};
    EXPECT_TRUE(GetClassInfoA(GetModuleHandleA(nullptr), "PANELIXCONTRACTWINDOW", &description));
    EXPECT_EQ(description.cbWndExtra, 16);
    EXPECT_FALSE(GetClassInfoA(GetModuleHandleA(nullptr), "PanelixNoSuchWindow", &description));
    EXPECT_TRUE(GetClassInfoA(GetModuleHandleA(nullptr), "button", &description));
    char name[40] = "";
    HWND top = createTop();
    EXPECT_EQ(GetClassNameA(top, name, sizeof name), 21);
    EXPECT_STREQ(name, className);
    EXPECT_EQ(GetClassNameA(createButton("b", top), name, sizeof name), 6);
    EXPECT_STREQ(name, "Button");
}

TEST_F(WindowLife, classIsRegisteredOnceAndGoesOnlyWithoutWindows) {
    WNDCLASSA description{};
    description.lpfnWndProc = DefWindowProcA;
    description.hInstance = GetModuleHandleA(nullptr);
    description.lpszClassName = "PanelixPassingWindow";
    EXPECT_NE(RegisterClassA(&description), 0);
    SetLastError(0);
    EXPECT_EQ(RegisterClassA(&description), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_CLASS_ALREADY_EXISTS));
    HWND window = create("w", WS_POPUP, nullptr, 0, {}, "PanelixPassingWindow");
    EXPECT_FALSE(UnregisterClassA("PanelixPassingWindow", GetModuleHandleA(nullptr)));
    DestroyWindow(window);
    EXPECT_TRUE(UnregisterClassA("PanelixPassingWindow", GetModuleHandleA(nullptr)));
    SetLastError(0);
    EXPECT_FALSE(UnregisterClassA("PanelixPassingWindow", GetModuleHandleA(nullptr)));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_CLASS_DOES_NOT_EXIST));
}

} // namespace
