// SPDX-License-Identifier: MIT
#include "tests/platform/win32/WindowFixture.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

class WindowScroll : public WindowFixture {
protected:
    void SetUp() override {
        WindowFixture::SetUp();
        m_window = createChild("w", createTop(), {0, 0, 200, 100});
        takeLog();
    }

    int set(UINT mask, int minimum, int maximum, UINT page, int position) {
        SCROLLINFO info{sizeof(SCROLLINFO), mask, minimum, maximum, page, position, 77};
        return SetScrollInfo(m_window, SB_VERT, &info, TRUE);
    }

    SCROLLINFO get() {
        SCROLLINFO info{sizeof(SCROLLINFO), SIF_ALL, -1, -1, 9999, -1, -1};
        m_isKnown = GetScrollInfo(m_window, SB_VERT, &info);
        return info;
    }

    bool hasBar() { return (GetWindowLongA(m_window, GWL_STYLE) & static_cast<LONG>(WS_VSCROLL)) != 0; }

    HWND m_window = nullptr;
    BOOL m_isKnown = FALSE;
};

TEST_F(WindowScroll, barThatWasNeverSet_isUnknown) {
    get();
    EXPECT_FALSE(m_isKnown);
}

TEST_F(WindowScroll, positionAlone_makesTheBarKnownWithTheFirstRange) {
    EXPECT_EQ(set(SIF_POS, 0, 0, 0, 50), 50);
    const SCROLLINFO info = get();
    EXPECT_TRUE(m_isKnown);
    EXPECT_EQ(info.nMin, 0);
    EXPECT_EQ(info.nMax, 100);
    EXPECT_EQ(info.nPos, 50);
    EXPECT_FALSE(hasBar());
}

struct ScrollCase {
    const char* name;
    UINT mask;
    int minimum, maximum;
    UINT page;
    int position;
    int expectedMinimum, expectedMaximum;
    UINT expectedPage;
    int expectedPosition;
    bool isShown;
};

void PrintTo(const ScrollCase& scroll, std::ostream* out) { *out << scroll.name; }

class ScrollValues : public WindowScroll, public testing::WithParamInterface<ScrollCase> {};

TEST_P(ScrollValues, areClamped) {
    const ScrollCase& scroll = GetParam();
    set(SIF_ALL, 0, 500, 100, 200);
    EXPECT_EQ(set(scroll.mask, scroll.minimum, scroll.maximum, scroll.page, scroll.position),
              scroll.expectedPosition);
    const SCROLLINFO info = get();
    EXPECT_EQ(info.nMin, scroll.expectedMinimum);
    EXPECT_EQ(info.nMax, scroll.expectedMaximum);
    EXPECT_EQ(info.nPage, scroll.expectedPage);
    EXPECT_EQ(info.nPos, scroll.expectedPosition);
    EXPECT_EQ(info.nTrackPos, scroll.expectedPosition);
    EXPECT_EQ(hasBar(), scroll.isShown);
}

INSTANTIATE_TEST_SUITE_P(
    All, ScrollValues,
    testing::Values(ScrollCase{"all", 23, 0, 300, 100, 30, 0, 300, 100, 30, true},
                    ScrollCase{"positionBeyondTheEnd", SIF_POS, 0, 0, 0, 450, 0, 500, 100, 401, true},
                    ScrollCase{"positionBeforeTheStart", SIF_POS, 0, 0, 0, -5, 0, 500, 100, 0, true},
                    ScrollCase{"smallerRange", SIF_RANGE, 0, 200, 0, 0, 0, 200, 100, 101, true},
                    ScrollCase{"pageBeyondTheRange", SIF_PAGE, 0, 0, 1000, 0, 0, 500, 501, 0, false},
                    ScrollCase{"pageOfTheRange", SIF_PAGE, 0, 0, 500, 0, 0, 500, 500, 1, true},
                    ScrollCase{"noPage", SIF_PAGE, 0, 0, 0, 0, 0, 500, 0, 200, true},
                    ScrollCase{"rangeTheWrongWayRound", SIF_RANGE, 10, 5, 0, 0, 0, 0, 1, 0, false},
                    ScrollCase{"neverHidden", 31 | SIF_DISABLENOSCROLL, 0, 10, 50, 0, 0, 10, 11, 0, true},
                    ScrollCase{"largest", 23, 0, 2147483646, 100, 2147483600, 0, 2147483646, 100, 2147483547,
                               true}),
    [](const auto& test) { return test.param.name; });

TEST_F(WindowScroll, barThatAppears_takesRoomFromTheClientArea) {
    set(SIF_ALL, 0, 500, 100, 0);
    EXPECT_THAT(takeLog(),
                ElementsAre("w:POSCHANGING", "w:NCCALCSIZE(1)", "w:POSCHANGED", "w:SIZE(183,100)"));
    EXPECT_EQ(clientSizeOf(m_window), (SIZE{183, 100}));
    EXPECT_TRUE(ShowScrollBar(m_window, SB_VERT, TRUE));
    EXPECT_THAT(takeLog(), ElementsAre());
    ShowScrollBar(m_window, SB_HORZ, TRUE);
    EXPECT_THAT(takeLog(), ElementsAre("w:POSCHANGING", "w:NCCALCSIZE(1)", "w:POSCHANGED", "w:SIZE(183,83)"));
    ShowScrollBar(m_window, SB_BOTH, FALSE);
    EXPECT_EQ(clientSizeOf(m_window), (SIZE{200, 100}));
    EXPECT_TRUE(get().nMax == 500);
}

TEST_F(WindowScroll, shorterFormWithoutTrackPosition_isTaken) {
    SCROLLINFO info{};
    info.cbSize = 10;
    info.fMask = SIF_POS;
    EXPECT_EQ(SetScrollInfo(m_window, SB_VERT, &info, TRUE), 0);
    EXPECT_FALSE(GetScrollInfo(m_window, SB_VERT, &info));
    info.cbSize = sizeof info - sizeof(int);
    info.nPos = 3;
    EXPECT_EQ(SetScrollInfo(m_window, SB_VERT, &info, TRUE), 3);
}

TEST_F(WindowScroll, scrolledWindow_movesAllItsChildren) {
    HWND a = createChild("a", m_window, {5, 6, 25, 26}), b = createChild("b", m_window, {50, 60, 60, 70});
    ShowWindow(GetParent(m_window), SW_SHOWNA);
    takeLog();
    EXPECT_TRUE(ScrollWindow(m_window, 3, -10, nullptr, nullptr));
    EXPECT_EQ(rectOf(a), (RECT{8, -4, 28, 16}));
    EXPECT_EQ(rectOf(b), (RECT{53, 50, 63, 60}));
    EXPECT_THAT(takeLog(), ElementsAre("a:POSCHANGING", "a:POSCHANGED", "a:MOVE(8,-4)", "b:POSCHANGING",
                                       "b:POSCHANGED", "b:MOVE(53,50)"));
}

TEST_F(WindowScroll, scrolledRectangle_movesNoChild) {
    HWND a = createChild("a", m_window, {5, 6, 25, 26});
    ShowWindow(GetParent(m_window), SW_SHOWNA);
    const RECT part{0, 0, 100, 100};
    EXPECT_TRUE(ScrollWindow(m_window, 0, -10, &part, nullptr));
    EXPECT_EQ(rectOf(a), (RECT{5, 6, 25, 26}));
}

TEST_F(WindowScroll, hiddenWindow_isNotScrolled) {
    HWND a = createChild("a", m_window, {5, 6, 25, 26});
    EXPECT_FALSE(ScrollWindow(m_window, 0, -10, nullptr, nullptr));
    EXPECT_EQ(rectOf(a), (RECT{5, 6, 25, 26}));
}

TEST_F(WindowScroll, olderFunctions_seeTheSameBar) {
    EXPECT_TRUE(SetScrollRange(m_window, SB_VERT, 0, 50, FALSE));
    EXPECT_EQ(SetScrollPos(m_window, SB_VERT, 20, FALSE), 0);
    EXPECT_EQ(GetScrollPos(m_window, SB_VERT), 20);
    int minimum = -1, maximum = -1;
    EXPECT_TRUE(GetScrollRange(m_window, SB_VERT, &minimum, &maximum));
    EXPECT_EQ(minimum, 0);
    EXPECT_EQ(maximum, 50);
    EXPECT_EQ(GetScrollPos(m_window, SB_HORZ), 0);
}

} // namespace
