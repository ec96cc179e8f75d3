// SPDX-License-Identifier: MIT
#include "tests/platform/win32/WindowFixture.h"

#include <cstring>

namespace {

class WindowDrawing : public WindowFixture {
protected:
    static SIZE measure(HFONT font, const char* text) {
        SIZE size{-1, -1};
        HDC dc = GetDC(nullptr);
        HGDIOBJ previous = SelectObject(dc, font);
        EXPECT_TRUE(GetTextExtentPoint32A(dc, text, static_cast<int>(std::strlen(text)), &size));
        SelectObject(dc, previous);
        ReleaseDC(nullptr, dc);
        return size;
    }

    static HFONT makeFont(int height) {
        return CreateFontA(height, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                           CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH | FF_DONTCARE, "Tahoma");
    }
};

TEST_F(WindowDrawing, guiFont_isTahomaOfElevenPixels) {
    auto font = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
    EXPECT_EQ(measure(font, "Hello"), (SIZE{27, 13}));
    EXPECT_EQ(measure(font, ""), (SIZE{0, 0}));
    EXPECT_EQ(measure(font, "ab"), (SIZE{13, 13}));
    HFONT same = makeFont(-11);
    EXPECT_EQ(measure(same, "Hello"), (SIZE{27, 13}));
    DeleteObject(same);
}

TEST_F(WindowDrawing, height_isThatOfTheEmIfNegativeAndOfTheCellIfPositive) {
    HFONT cell = makeFont(20);
    EXPECT_EQ(measure(cell, "Hello"), (SIZE{38, 19}));
    HFONT em = makeFont(-16);
    EXPECT_EQ(measure(em, "Hello"), (SIZE{38, 19}));
    DeleteObject(cell);
    DeleteObject(em);
}

TEST_F(WindowDrawing, wideAndNarrowText_measureTheSame) {
    HWND window = createTop();
    HDC dc = GetWindowDC(window);
    SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
    SIZE narrow{}, wide{};
    EXPECT_TRUE(GetTextExtentPoint32A(dc,
                                      "Gr\xfc\xdf"
                                      "e",
                                      5, &narrow));
    const wchar_t text[] = {L'G', L'r', 0xfc, 0xdf, L'e', 0};
    EXPECT_TRUE(GetTextExtentPoint32W(dc, text, 5, &wide));
    EXPECT_EQ(narrow, wide);
    EXPECT_GT(narrow.cx, 20);
    EXPECT_EQ(ReleaseDC(window, dc), 1);
}

TEST_F(WindowDrawing, badArguments_fail) {
    HDC dc = GetDC(nullptr);
    SIZE size{};
    EXPECT_FALSE(GetTextExtentPoint32A(dc, "ab", -1, &size));
    ReleaseDC(nullptr, dc);
    EXPECT_FALSE(GetTextExtentPoint32A(nullptr, "ab", 2, &size));
    EXPECT_EQ(SelectObject(nullptr, GetStockObject(DEFAULT_GUI_FONT)), nullptr);
}

TEST_F(WindowDrawing, metricsOfTheGuiFont) {
    HDC dc = GetDC(nullptr);
    SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
    TEXTMETRICA metrics{};
    EXPECT_TRUE(GetTextMetricsA(dc, &metrics));
    EXPECT_EQ(metrics.tmHeight, 13);
    EXPECT_EQ(metrics.tmAscent, 11);
    EXPECT_EQ(metrics.tmDescent, 2);
    ReleaseDC(nullptr, dc);
}

TEST_F(WindowDrawing, systemValues) {
    EXPECT_EQ(GetSystemMetrics(SM_CXFRAME), 4);
    EXPECT_EQ(GetSystemMetrics(SM_CYFRAME), 4);
    EXPECT_EQ(GetSystemMetrics(SM_CYMENU), 19);
    EXPECT_EQ(GetSystemMetrics(SM_CXHSCROLL), 17);
    EXPECT_EQ(GetSystemMetrics(SM_CYCAPTION), 19);
    EXPECT_EQ(GetSystemMetrics(SM_CXMINTRACK), 112);
    EXPECT_EQ(GetSystemMetrics(SM_CYMINTRACK), 27);
    EXPECT_EQ(GetSysColor(COLOR_BTNFACE), 0xf5f5f5u);
    EXPECT_NE(GetSysColorBrush(COLOR_BTNFACE), nullptr);
    EXPECT_NE(LoadCursorA(nullptr, IDC_ARROW), nullptr);
    UINT lines = 0;
    EXPECT_TRUE(SystemParametersInfoA(SPI_GETWHEELSCROLLLINES, 0, &lines, 0));
    EXPECT_EQ(lines, 3u);
    OSVERSIONINFOA version{};
    version.dwOSVersionInfoSize = sizeof version;
    EXPECT_TRUE(GetVersionExA(&version));
    EXPECT_EQ(version.dwPlatformId, static_cast<DWORD>(VER_PLATFORM_WIN32_NT));
    EXPECT_GE(version.dwMajorVersion, 4u);
}

TEST_F(WindowDrawing, registeredMessages_areTheSameForTheSameName) {
    const UINT message = RegisterWindowMessageA("PanelixTestMessage");
    EXPECT_GE(message, 0xc000u);
    EXPECT_EQ(RegisterWindowMessageA("PanelixTestMessage"), message);
    EXPECT_NE(RegisterWindowMessageA("PanelixOtherMessage"), message);
}

TEST_F(WindowDrawing, windowWithoutMenu_hasNone) {
    HWND top = createTop();
    EXPECT_EQ(GetMenu(top), nullptr);
    MENUITEMINFOA info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_ID | MIIM_SUBMENU | MIIM_DATA;
    EXPECT_FALSE(GetMenuItemInfoA(nullptr, 1, FALSE, &info));
}

} // namespace
