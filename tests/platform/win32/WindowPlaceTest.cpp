// SPDX-License-Identifier: MIT
#include "tests/platform/win32/WindowFixture.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

class WindowPlace : public WindowFixture {};

TEST_F(WindowPlace, movedAndResizedChild_hearsOfTheMoveThenOfTheSize) {
    HWND child = createChild("child", createTop());
    takeLog();
    SetWindowPos(child, nullptr, 5, 6, 200, 100, SWP_DEFERERASE);
    EXPECT_THAT(takeLog(), ElementsAre("child:POSCHANGING", "child:NCCALCSIZE(1)", "child:CHILDACTIVATE",
                                       "child:POSCHANGED", "child:MOVE(5,6)", "child:SIZE(200,100)"));
}

TEST_F(WindowPlace, unchangedPlace_isOnlyAskedFor) {
    HWND child = createChild("child", createTop(), {5, 6, 105, 56});
    takeLog();
    SetWindowPos(child, nullptr, 5, 6, 100, 50, SWP_DEFERERASE);
    EXPECT_THAT(takeLog(), ElementsAre("child:POSCHANGING", "child:CHILDACTIVATE"));
}

TEST_F(WindowPlace, movedChild_isNotAskedForItsFrame) {
    HWND child = createChild("child", createTop(), {0, 0, 100, 50});
    takeLog();
    SetWindowPos(child, nullptr, 7, 8, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_THAT(takeLog(), ElementsAre("child:POSCHANGING", "child:POSCHANGED", "child:MOVE(7,8)"));
}

TEST_F(WindowPlace, resizedChild_hearsOnlyOfTheSize) {
    HWND child = createChild("child", createTop(), {3, 4, 100, 50});
    takeLog();
    SetWindowPos(child, nullptr, 0, 0, 60, 70, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_THAT(takeLog(), ElementsAre("child:POSCHANGING", "child:NCCALCSIZE(1)", "child:POSCHANGED",
                                       "child:SIZE(60,70)"));
}

TEST_F(WindowPlace, negativeSize_becomesZero) {
    HWND child = createChild("child", createTop(), {3, 4, 100, 50});
    SetWindowPos(child, nullptr, 0, 0, -20, -5, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(rectOf(child), (RECT{3, 4, 3, 4}));
}

TEST_F(WindowPlace, placeAndSizeFarOut_areHeldWithinSixteenBits) {
    HWND child = createChild("child", createTop(), {3, 4, 100, 50});
    SetWindowPos(child, nullptr, 2147483647, -2147483647 - 1, 40000, 10, SWP_NOZORDER);
    EXPECT_EQ(rectOf(child), (RECT{32767, -32768, 32767 + 32767, -32768 + 10}));
}

TEST_F(WindowPlace, childrenMoveWithTheirParentAndHearNothing) {
    HWND top = createTop();
    HWND parent = createChild("parent", top, {10, 20, 110, 120});
    HWND child = createChild("child", parent, {1, 2, 31, 42});
    takeLog();
    SetWindowPos(parent, nullptr, 50, 60, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_EQ(rectOf(child), (RECT{51, 62, 81, 102}));
    EXPECT_THAT(takeLog(), ElementsAre("parent:POSCHANGING", "parent:POSCHANGED", "parent:MOVE(50,60)"));
}

TEST_F(WindowPlace, placeWithoutNoZOrder_bringsTheWindowToTheTop) {
    HWND top = createTop();
    HWND a = createChild("a", top), b = createChild("b", top), c = createChild("c", top);
    EXPECT_EQ(GetWindow(top, GW_CHILD), a);
    EXPECT_EQ(GetWindow(a, GW_HWNDNEXT), b);
    EXPECT_EQ(GetWindow(a, GW_HWNDLAST), c);
    for (HWND window : {a, b, c})
        SetWindowPos(window, nullptr, 0, 0, 10, 10, SWP_DEFERERASE);
    EXPECT_EQ(GetWindow(top, GW_CHILD), c);
    EXPECT_EQ(GetWindow(c, GW_HWNDNEXT), b);
    EXPECT_EQ(GetWindow(b, GW_HWNDNEXT), a);
    EXPECT_EQ(GetWindow(a, GW_HWNDNEXT), nullptr);
    SetWindowPos(c, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE);
    EXPECT_EQ(GetWindow(a, GW_HWNDNEXT), c);
    SetWindowPos(b, a, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE);
    EXPECT_EQ(GetWindow(top, GW_CHILD), a);
    EXPECT_EQ(GetWindow(a, GW_HWNDNEXT), b);
    EXPECT_EQ(GetWindow(b, GW_HWNDPREV), a);
}

TEST_F(WindowPlace, clientPoints_areMappedThroughFramesAndParents) {
    HWND top = create("top", WS_POPUP | WS_CAPTION, nullptr, 0, {100, 200, 500, 500});
    HWND child = createChild("child", top, {10, 20, 110, 120}, WS_EX_STATICEDGE);
    POINT point{5, 6};
    ClientToScreen(child, &point);
    EXPECT_EQ(point.x, 100 + 3 + 10 + 1 + 5);
    EXPECT_EQ(point.y, 200 + 22 + 20 + 1 + 6);
    ScreenToClient(child, &point);
    EXPECT_EQ(point.x, 5);
    POINT corners[2] = {{0, 0}, {98, 98}};
    MapWindowPoints(child, top, corners, 2);
    EXPECT_EQ(corners[0].x, 11);
    EXPECT_EQ(corners[1].y, 119);
}

TEST_F(WindowPlace, frameChange_movesAndResizesTheClientArea) {
    HWND child = createChild("child", createTop(), {5, 6, 205, 106}, WS_EX_CONTROLPARENT);
    takeLog();
    SetWindowLongPtrA(child, GWL_EXSTYLE, WS_EX_CONTROLPARENT | WS_EX_STATICEDGE);
    EXPECT_THAT(takeLog(), ElementsAre("child:STYLECHANGING(-20)", "child:STYLECHANGED(-20)"));
    EXPECT_EQ(clientSizeOf(child), (SIZE{200, 100}));
    SetWindowPos(child, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_FRAMECHANGED);
    EXPECT_THAT(takeLog(), ElementsAre("child:POSCHANGING", "child:NCCALCSIZE(1)", "child:CHILDACTIVATE",
                                       "child:POSCHANGED", "child:MOVE(6,7)", "child:SIZE(198,98)"));
    EXPECT_EQ(clientSizeOf(child), (SIZE{198, 98}));
}

struct FrameCase {
    const char* name;
    DWORD style, exStyle;
    DWORD expectedExStyle;
    SIZE client; ///< Of a window of 200 x 100.
};

void PrintTo(const FrameCase& frame, std::ostream* out) { *out << frame.name; }

class WindowFrame : public WindowFixture, public testing::WithParamInterface<FrameCase> {};

TEST_P(WindowFrame, leavesThisClientArea) {
    const FrameCase& frame = GetParam();
    HWND parent = frame.style & WS_CHILD ? createTop() : nullptr;
    HWND window = create("w", frame.style, parent, frame.exStyle, {0, 0, 200, 100});
    EXPECT_EQ(static_cast<DWORD>(GetWindowLongA(window, GWL_EXSTYLE)), frame.expectedExStyle);
    EXPECT_EQ(clientSizeOf(window), frame.client);
}

INSTANTIATE_TEST_SUITE_P(
    All, WindowFrame,
    testing::Values(FrameCase{"resizable", 0x06CF0000, 0x100, 0x100, {192, 73}},
                    FrameCase{"fixed", 0x06C80000, 0x100, 0x100, {194, 75}},
                    FrameCase{"modal", 0x86C80000, 0x189, 0x189, {194, 78}},
                    FrameCase{"plainChild", WS_CHILD, 0x10000, 0x10000, {200, 100}},
                    FrameCase{"shadowIn", WS_CHILD, 0x30000, 0x30000, {198, 98}},
                    FrameCase{"shadowOut", WS_CHILD, 0x10001, 0x10101, {194, 94}},
                    FrameCase{"clientEdge", WS_CHILD, WS_EX_CLIENTEDGE, WS_EX_CLIENTEDGE, {196, 96}},
                    FrameCase{"border", WS_CHILD | WS_BORDER, 0, 0, {198, 98}},
                    FrameCase{"bothBars", WS_CHILD | WS_HSCROLL | WS_VSCROLL, 0, 0, {183, 83}},
                    FrameCase{"staticEdgeOfAnOverlapped", 0x06CF0000, WS_EX_STATICEDGE, 0x20100, {194, 75}},
                    FrameCase{"topmostChild", WS_CHILD, WS_EX_TOPMOST, 0, {200, 100}}),
    [](const auto& test) { return test.param.name; });

TEST_F(WindowPlace, frameLargerThanTheWindow_leavesAnEmptyClientArea) {
    HWND top = createTop();
    HWND child = createChild("child", top, {10, 10, 12, 12}, WS_EX_DLGMODALFRAME);
    EXPECT_EQ(clientSizeOf(child), (SIZE{0, 0}));
    EXPECT_EQ(rectOf(child), (RECT{10, 10, 12, 12}));
}

TEST_F(WindowPlace, scrollBars_takeRoomOnlyWhereTheyFit) {
    HWND top = createTop();
    for (const LONG extent : {0, 10, 16, 17, 18, 40}) {
        HWND child = createChild("child", top, {0, 0, extent, extent}, 0, WS_CHILD | WS_HSCROLL | WS_VSCROLL);
        const LONG rest = extent >= 17 ? extent - 17 : extent;
        const LONG restHeight = extent > 17 ? extent - 17 : extent;
        EXPECT_EQ(clientSizeOf(child), (SIZE{rest, restHeight})) << extent;
    }
}

TEST_F(WindowPlace, styleOfAShownWindow_isTakenAsGiven) {
    HWND top = create("top", 0x06CF0000, nullptr, 0x100, {0, 0, 300, 200});
    SetWindowLongPtrA(top, GWL_STYLE, 0x16C80000);
    EXPECT_EQ(static_cast<DWORD>(GetWindowLongA(top, GWL_STYLE)), 0x16C80000u);
    SetWindowPos(top, nullptr, 0, 0, 0, 0, 35 | SWP_NOACTIVATE);
    EXPECT_EQ(clientSizeOf(top), (SIZE{294, 175}));
    SetWindowLongPtrA(top, GWL_EXSTYLE, 264);
    EXPECT_EQ(static_cast<DWORD>(GetWindowLongA(top, GWL_EXSTYLE)), 256u);
    SetWindowPos(top, HWND_TOPMOST, 0, 0, 0, 0, 35 | SWP_NOACTIVATE);
    EXPECT_EQ(static_cast<DWORD>(GetWindowLongA(top, GWL_EXSTYLE)), 264u);
    SetWindowPos(top, HWND_NOTOPMOST, 0, 0, 0, 0, 35 | SWP_NOACTIVATE);
    EXPECT_EQ(static_cast<DWORD>(GetWindowLongA(top, GWL_EXSTYLE)), 256u);
}

TEST_F(WindowPlace, resizableWindow_isHeldWithinTheSystemsLimits) {
    HWND top = create("top", 0x06CF0000, nullptr, 0x100);
    EXPECT_EQ(rectOf(top), (RECT{0, 0, GetSystemMetrics(SM_CXMINTRACK), GetSystemMetrics(SM_CYMINTRACK)}));
    SetWindowPos(top, nullptr, 0, 0, 300, 200, 8198 | SWP_NOACTIVATE);
    EXPECT_EQ(rectOf(top), (RECT{0, 0, 300, 200}));
    SetWindowPos(top, nullptr, 0, 0, 20, 20, 8198 | SWP_NOACTIVATE);
    EXPECT_EQ(rectOf(top), (RECT{0, 0, GetSystemMetrics(SM_CXMINTRACK), GetSystemMetrics(SM_CYMINTRACK)}));
    SetWindowPos(top, nullptr, 0, 0, 9000, 9000, 8198 | SWP_NOACTIVATE);
    EXPECT_EQ(rectOf(top), (RECT{0, 0, GetSystemMetrics(SM_CXMAXTRACK), GetSystemMetrics(SM_CYMAXTRACK)}));
}

LRESULT limitTo200(HWND, UINT message, WPARAM, LPARAM lParam, bool& isAnswered) {
    if (message != WM_GETMINMAXINFO)
        return 0;
    auto& info = *reinterpret_cast<MINMAXINFO*>(lParam);
    info.ptMinTrackSize = {150, 120};
    info.ptMaxTrackSize = {200, 180};
    isAnswered = true;
    return 0;
}

TEST_F(WindowPlace, overlappedWindow_setsItsOwnLimits) {
    for (const DWORD style : {0x06CF0000u, 0x06C80000u}) {
        HWND top = create("top", style, nullptr, 0x100);
        m_answer = limitTo200;
        SetWindowPos(top, nullptr, 0, 0, 900, 900, 8198 | SWP_NOACTIVATE);
        EXPECT_EQ(rectOf(top), (RECT{0, 0, 200, 180}));
        SetWindowPos(top, nullptr, 0, 0, 10, 10, 8198 | SWP_NOACTIVATE);
        EXPECT_EQ(rectOf(top), (RECT{0, 0, 150, 120}));
        m_answer = nullptr;
    }
}

TEST_F(WindowPlace, popupWithoutAThickFrame_hasNoLimits) {
    HWND top = create("top", 0x86C80000, nullptr, 0x189);
    EXPECT_EQ(rectOf(top), (RECT{0, 0, 0, 0}));
    m_answer = limitTo200;
    takeLog();
    SetWindowPos(top, nullptr, 0, 0, 20, 20, 8198 | SWP_NOACTIVATE);
    EXPECT_EQ(rectOf(top), (RECT{0, 0, 20, 20}));
    EXPECT_THAT(takeLog(), testing::Not(testing::Contains("top:GETMINMAXINFO")));
}

struct TitleCase {
    const char* name;
    DWORD style, exStyle;
    RECT bar; ///< Of a window at (50, 60) - (350, 260).
    DWORD states[6];
};

void PrintTo(const TitleCase& title, std::ostream* out) { *out << title.name; }

class TitleBar : public WindowFixture, public testing::WithParamInterface<TitleCase> {};

TEST_P(TitleBar, isMeasured) {
    const TitleCase& title = GetParam();
    HWND window = create("w", title.style, nullptr, title.exStyle, {50, 60, 350, 260});
    TITLEBARINFO info{};
    info.cbSize = sizeof info;
    ASSERT_TRUE(GetTitleBarInfo(window, &info));
    EXPECT_EQ(info.rcTitleBar, title.bar);
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(info.rgstate[i], title.states[i]) << i;
}

constexpr DWORD hiddenButton = 0x8000;

INSTANTIATE_TEST_SUITE_P(
    All, TitleBar,
    testing::Values(TitleCase{"resizable",
                              0x06CF0000,
                              0x100,
                              {72, 64, 346, 83},
                              {0x100000, hiddenButton, 0, 0, hiddenButton, 0}},
                    TitleCase{"fixed",
                              0x06C80000,
                              0x100,
                              {71, 63, 347, 82},
                              {0x100000, hiddenButton, hiddenButton, hiddenButton, hiddenButton, 0}},
                    TitleCase{"modal",
                              0x86C80000,
                              0x189,
                              {53, 63, 347, 79},
                              {0x100000, hiddenButton, hiddenButton, hiddenButton, hiddenButton, 0}},
                    TitleCase{
                        "withoutMenu",
                        0x06C00000,
                        0x100,
                        {71, 63, 347, 82},
                        {0x100000, hiddenButton, hiddenButton, hiddenButton, hiddenButton, hiddenButton}}),
    [](const auto& test) { return test.param.name; });

TEST_F(WindowPlace, titleBarInfoWithoutItsSize_isRefused) {
    HWND window = createTop();
    TITLEBARINFO info{};
    EXPECT_FALSE(GetTitleBarInfo(window, &info));
}

TEST_F(WindowPlace, minimisedWindow_isASmallBarUntilItIsRestored) {
    static WPARAM s_kind;
    s_kind = SIZE_RESTORED;
    HWND window = create("frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, nullptr, 0, {40, 50, 440, 350});
    HWND child = createChild("child", window, {1, 2, 31, 42});
    m_answer = [](HWND, UINT message, WPARAM wParam, LPARAM lParam, bool& isAnswered) -> LRESULT {
        if (message == WM_SIZE)
            s_kind = wParam;
        isAnswered = message == WM_GETMINMAXINFO;
        if (isAnswered)
            reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {200, 100};
        return 0;
    };
    const SIZE before = clientSizeOf(window);
    for (int i = 0; i < 2; ++i) {
        SendMessageA(window, WM_SYSCOMMAND, SC_MINIMIZE, 0);
        const RECT bar = rectOf(window);
        EXPECT_EQ(bar.right - bar.left, 160);
        EXPECT_EQ(bar.bottom - bar.top, 24);
        EXPECT_EQ(clientSizeOf(window), (SIZE{0, 0}));
        EXPECT_EQ(s_kind, WPARAM{SIZE_MINIMIZED});
        EXPECT_TRUE(IsWindowVisible(child));
    }
    SendMessageA(window, WM_SYSCOMMAND, SC_RESTORE, 0);
    EXPECT_EQ(rectOf(window), (RECT{40, 50, 440, 350}));
    EXPECT_EQ(clientSizeOf(window), before);
    EXPECT_EQ(s_kind, WPARAM{SIZE_RESTORED});
}

TEST_F(WindowPlace, pointInNestedWindows_isFoundOnTheScreenAndInTheParent) {
    HWND top = createTop();
    HWND parent = createChild("parent", top, {10, 10, 210, 210});
    HWND child = createChild("child", parent, {10, 10, 60, 60});
    HWND label = create("label", WS_CHILD | WS_VISIBLE, parent, 0, {70, 10, 120, 60}, "STATIC");
    EXPECT_EQ(ChildWindowFromPoint(top, {30, 30}), parent);
    EXPECT_EQ(ChildWindowFromPoint(parent, {20, 20}), child);
    EXPECT_EQ(ChildWindowFromPoint(parent, {80, 20}), label);
    EXPECT_EQ(ChildWindowFromPoint(parent, {190, 190}), parent);
    EXPECT_EQ(ChildWindowFromPoint(parent, {300, 20}), nullptr);
    SetWindowPos(top, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_SHOWWINDOW | SWP_NOACTIVATE);
    EXPECT_EQ(nameOf(WindowFromPoint({25, 25})), "child");
    EXPECT_EQ(nameOf(WindowFromPoint({200, 200})), "parent");
    // A label lets the mouse through.
    EXPECT_EQ(nameOf(WindowFromPoint({90, 25})), "parent");
    ShowWindow(child, SW_HIDE);
    EXPECT_EQ(nameOf(WindowFromPoint({25, 25})), "parent");
    ShowWindow(child, SW_SHOW);
    EnableWindow(child, FALSE);
    EXPECT_EQ(nameOf(WindowFromPoint({25, 25})), "parent");
}

} // namespace
