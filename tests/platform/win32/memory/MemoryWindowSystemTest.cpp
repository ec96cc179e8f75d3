// SPDX-License-Identifier: MIT
#include "platform/win32/memory/MemoryWindowSystem.h"

#include "tests/platform/win32/WindowFixture.h"

#include <chrono>

namespace {

class MemoryWindowSystem : public WindowFixture {
protected:
    // Tests that ran before in this process may have left windows that are kept to its end.
    MemoryWindowSystem() { LuMemoryWindowSystem::reset(); }
    void TearDown() override {
        WindowFixture::TearDown();
        LuMemoryWindowSystem::reset();
        EXPECT_EQ(LuMemoryWindowSystem::getNumWindows(), 0);
    }
};

TEST_F(MemoryWindowSystem, windows_areCounted) {
    HWND top = createTop();
    createChild("a", top);
    EXPECT_EQ(LuMemoryWindowSystem::getNumWindows(), 2);
    DestroyWindow(top);
    EXPECT_EQ(LuMemoryWindowSystem::getNumWindows(), 0);
}

TEST_F(MemoryWindowSystem, reset_destroysWhatIsLeft) {
    HWND top = createTop();
    createChild("a", top);
    create("owned", WS_POPUP, top);
    PostMessageA(top, WM_USER, 0, 0);
    LuMemoryWindowSystem::reset();
    EXPECT_FALSE(IsWindow(top));
    EXPECT_EQ(LuMemoryWindowSystem::getNumWindows(), 0);
    MSG message;
    EXPECT_FALSE(PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE));
}

TEST_F(MemoryWindowSystem, drawingObjects_areCounted) {
    const int before = LuMemoryWindowSystem::getNumDrawingObjects();
    HDC dc = GetDC(nullptr);
    HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    EXPECT_EQ(LuMemoryWindowSystem::getNumDrawingObjects(), before + 2);
    ReleaseDC(nullptr, dc);
    EXPECT_EQ(ReleaseDC(nullptr, dc), 0);
    EXPECT_TRUE(DeleteObject(brush));
    EXPECT_FALSE(DeleteObject(brush));
    EXPECT_EQ(LuMemoryWindowSystem::getNumDrawingObjects(), before);
    EXPECT_TRUE(DeleteObject(GetStockObject(DEFAULT_GUI_FONT)));
    EXPECT_NE(GetStockObject(DEFAULT_GUI_FONT), nullptr);
}

TEST_F(MemoryWindowSystem, failures_areInjected) {
    LuMemoryWindowSystem::failCreations(1);
    EXPECT_EQ(createTop(), nullptr);
    EXPECT_NE(createTop(), nullptr);
    WNDCLASSA description{};
    description.lpfnWndProc = DefWindowProcA;
    description.lpszClassName = "PanelixInjectedWindow";
    LuMemoryWindowSystem::failRegistrations(1);
    EXPECT_EQ(RegisterClassA(&description), 0);
    EXPECT_NE(RegisterClassA(&description), 0);
    EXPECT_TRUE(UnregisterClassA("PanelixInjectedWindow", nullptr));
}

TEST_F(MemoryWindowSystem, emptyLoop_ends) {
    MSG message{};
    EXPECT_EQ(GetMessageA(&message, nullptr, 0, 0), 0);
    EXPECT_EQ(message.message, WM_QUIT);
}

TEST_F(MemoryWindowSystem, translatedKey_becomesACharacter) {
    HWND top = createTop();
    MSG message{top, WM_KEYDOWN, 'A', 0, 0, {0, 0}};
    TranslateMessage(&message);
    ASSERT_TRUE(PeekMessageA(&message, nullptr, WM_CHAR, WM_CHAR, PM_REMOVE));
    EXPECT_EQ(message.wParam, static_cast<WPARAM>('a'));
    LuMemoryWindowSystem::setKeyDown(VK_SHIFT, true);
    EXPECT_LT(GetKeyState(VK_SHIFT), 0);
    message = {top, WM_KEYDOWN, 'A', 0, 0, {0, 0}};
    TranslateMessage(&message);
    ASSERT_TRUE(PeekMessageA(&message, nullptr, WM_CHAR, WM_CHAR, PM_REMOVE));
    EXPECT_EQ(message.wParam, static_cast<WPARAM>('A'));
}

TEST_F(MemoryWindowSystem, manyWindows_areMadePlacedAndDestroyedInLinearTime) {
    constexpr int numWindows = 10000;
    m_isLogging = false;
    HWND top = createTop();
    const auto start = std::chrono::steady_clock::now();
    std::vector<HWND> windows;
    for (int i = 0; i < numWindows; ++i)
        windows.push_back(CreateWindowExA(0, "STATIC", "", WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, top, nullptr,
                                          nullptr, nullptr));
    for (int i = 0; i < numWindows; ++i)
        SetWindowPos(windows[static_cast<std::size_t>(i)], nullptr, i, i, 10, 10, SWP_DEFERERASE);
    EXPECT_EQ(LuMemoryWindowSystem::getNumWindows(), numWindows + 1);
    DestroyWindow(top);
    EXPECT_EQ(LuMemoryWindowSystem::getNumWindows(), 0);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    // Quadratic work would take many times as long, even with sanitizers and on a busy machine.
    EXPECT_LT(taken.count(), 2.0);
}

} // namespace
