// SPDX-License-Identifier: MIT
#pragma once

#include "platform/win32/WindowSystem.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstddef>
#include <deque>
#include <string>
#include <vector>

// What the sources of the window system in memory share. Nobody else includes this header.

/// A registered class. It cannot go while windows point at it.
struct LuMemoryWindowClass {
    std::string name;
    WNDCLASSA description{};
    ATOM atom = 0;
    int numWindows = 0;
    bool isBuiltIn = false;
};

/// The state of one scroll bar.
struct LuMemoryScrollBar {
    int minimum = 0, maximum = 100, position = 0;
    UINT page = 0;
    bool isKnown = false; ///< Without a first SetScrollInfo there is nothing to get.
};

/// What an "EDIT" window has beside its text: places between two characters, and how many there may be.
struct LuMemoryEdit {
    int anchor = 0, caret = 0; ///< The selection lies between the two.
    int limit = 30000;
};

/// A window. Its rectangles are relative to the client area of its parent, so that moving a parent touches no
/// child. What each placement looks at stands in front, on two lines of the processor's cache.
struct alignas(64) LuMemoryWindow {
    HWND handle = nullptr; ///< The slot of the window, and how often it has been used.
    DWORD style = 0, exStyle = 0;
    RECT rect{}, client{};
    WNDPROC procedure = nullptr;
    LONG_PTR userData = 0, id = 0;
    LuMemoryWindow* parent = nullptr;
    LuMemoryWindow* owner = nullptr;
    LuMemoryWindow* firstChild = nullptr; ///< Topmost in z-order, and first in tab order.
    LuMemoryWindow* lastChild = nullptr;
    LuMemoryWindow* above = nullptr;
    LuMemoryWindow* below = nullptr;
    LuMemoryWindowClass* windowClass = nullptr;
    HINSTANCE instance = nullptr;
    HFONT font = nullptr; ///< For the built-in classes, which alone keep WM_SETFONT.
    std::wstring text;
    std::vector<std::byte> extra;
    std::array<LuMemoryScrollBar, 2> scrollBars;
    UINT state = 0;          ///< For the built-in classes: BM_GETSTATE.
    bool needsSize = false;  ///< An overlapped window hears of its size when it is first shown.
    bool isDying = false;    ///< WM_DESTROY has been sent.
    RECT normalRect{};       ///< Where it stands when it is no longer minimised.
    HGDIOBJ image = nullptr; ///< For the built-in classes: STM_SETIMAGE.
    LuMemoryEdit edit;
};

/// A private form of WM_SETTEXT, WM_GETTEXT and WM_GETTEXTLENGTH with wide text, for built-in procedures.
inline constexpr UINT wideTextFlag = 0x80000000;

/// Where the windows are. Windows never move, so pointers to them stay good. The generations stand apart:
/// whether a handle is valid is asked all the time, and mostly for windows that are not touched then.
struct LuMemorySlots {
    static constexpr std::uint32_t chunkBits = 10, chunkSize = 1u << chunkBits, maxChunks = 4096;
    static constexpr std::uint32_t firstHandle = 0x10000;

    LuMemoryWindow* chunks[maxChunks] = {};
    std::uint32_t* generations = nullptr; ///< Odd while the window of the slot lives.
    std::uint32_t numSlots = 0;

    /// The window found last, which lives, or none: one message asks for its window several times.
    HWND lastHandle = nullptr;
    LuMemoryWindow* last = nullptr;
};

inline constinit LuMemorySlots s_memorySlots;

/// Everything else that belongs to the session as a whole.
struct LuMemoryDesktop {
    std::vector<std::uint32_t> generations; ///< The storage behind the slots.
    std::vector<std::uint32_t> freeSlots;
    int numWindows = 0;
    LuMemoryWindow* root = nullptr; ///< The desktop window, parent of all top-level windows.
    LuMemoryWindow* focus = nullptr;
    LuMemoryWindow* active = nullptr;
    LuMemoryWindow* capture = nullptr;
    std::deque<MSG> posted;
    bool isQuitPosted = false;
    int quitCode = 0;
    std::array<bool, 256> keys{};
    DWORD lastError = 0;
    int failingRegistrations = 0, failingCreations = 0;
};

/// The session; it comes into being with the first call, also during static initialisation.
LuMemoryDesktop& getMemoryDesktop();

/// The window of a handle, or null. It stands at the beginning of every function and allocates nothing.
inline LuMemoryWindow* findMemoryWindow(HWND handle) {
    LuMemorySlots& slots = s_memorySlots;
    if (handle == slots.lastHandle)
        return slots.last;
    const auto value = reinterpret_cast<std::uint64_t>(handle);
    const auto index = static_cast<std::uint32_t>(value) - LuMemorySlots::firstHandle;
    const auto generation = static_cast<std::uint32_t>(value >> 32);
    if (index >= slots.numSlots || slots.generations[index] != generation || !(generation & 1))
        return nullptr;
    slots.lastHandle = handle;
    slots.last = slots.chunks[index >> LuMemorySlots::chunkBits] + (index & (LuMemorySlots::chunkSize - 1));
    return slots.last;
}

/// The same, and the last error tells when there is none.
inline LuMemoryWindow* findMemoryWindowOrFail(HWND handle) {
    LuMemoryWindow* window = findMemoryWindow(handle);
    if (!window)
        SetLastError(ERROR_INVALID_WINDOW_HANDLE);
    return window;
}

/// The handle of a window; null for null.
inline HWND getHandle(const LuMemoryWindow* window) { return window ? window->handle : nullptr; }

/// The sum of two coordinates; it never wraps.
inline int addPixels(int left, int right) {
    const std::int64_t sum = std::int64_t{left} + right;
    return static_cast<int>(std::clamp<std::int64_t>(sum, INT_MIN, INT_MAX));
}

/// The desktop window alone has no parent.
inline bool isDesktopWindow(const LuMemoryWindow& window) { return !window.parent; }

inline bool isChildStyle(DWORD style) { return (style & (WS_CHILD | WS_POPUP)) == WS_CHILD; }

// Slots and z-order (MemoryWindow.cpp).
LuMemoryWindow* allocateMemoryWindow();
void freeMemoryWindow(LuMemoryWindow& window);
void unlinkMemoryWindow(LuMemoryWindow& window);
/// Puts a window below `after` among the children of its parent; on top without `after`.
void linkMemoryWindow(LuMemoryWindow& window, LuMemoryWindow* after);
bool isInside(const LuMemoryWindow* window, const LuMemoryWindow* ancestor);
bool isShown(const LuMemoryWindow& window);
POINT getClientOrigin(const LuMemoryWindow& window);
LuMemoryWindow* getRootWindow(LuMemoryWindow* window);

// Classes (MemoryClasses.cpp).
LuMemoryWindowClass* findMemoryClass(LPCSTR name, HINSTANCE instance);

// Messages (MemoryMessages.cpp).
inline LRESULT sendMessage(LuMemoryWindow& window, UINT message, WPARAM wParam, LPARAM lParam) {
    return window.procedure(window.handle, message, wParam, lParam);
}

/// The same, for calls after which the window may be gone: returns whether it still lives. Its memory stays,
/// and a handle never comes back.
inline bool sendAndCheck(LuMemoryWindow& window, UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND handle = window.handle;
    window.procedure(handle, message, wParam, lParam);
    return window.handle == handle;
}

/// What DefWindowProcA does with a message.
LRESULT handleByDefault(LuMemoryWindow& window, UINT message, WPARAM wParam, LPARAM lParam);

// Frames (MemoryFrame.cpp).
/// Takes the frame of a window away from a rectangle.
void subtractFrame(const LuMemoryWindow& window, RECT& rect);
MINMAXINFO getMinMaxInfo(LuMemoryWindow& window);
bool hasSizeLimits(const LuMemoryWindow& window);
LRESULT hitTest(const LuMemoryWindow& window, LPARAM lParam);
DWORD fixExStyle(DWORD style, DWORD exStyle);

// Places (MemoryPlace.cpp).
/// Leaves in `position` what has really changed. False when the window has ended meanwhile.
bool placeWindow(LuMemoryWindow& window, WINDOWPOS& position);
/// Asks for the client rectangle with WM_NCCALCSIZE; `position` is null at the creation.
bool calculateClient(LuMemoryWindow& window, const RECT& rect, WINDOWPOS* position, RECT& client);
/// WM_SIZE and WM_MOVE from the present client rectangle.
void sendSize(LuMemoryWindow& window);
void sendMove(LuMemoryWindow& window);

// Activation and focus (MemoryFocus.cpp).
void activateWindow(LuMemoryWindow* window);
/// What stops pointing at a window that is hidden or destroyed.
void passActivationOn(LuMemoryWindow& window);
bool showWindow(LuMemoryWindow& window, bool show, UINT flags);

// Texts (MemoryText.cpp).
std::wstring widenAnsi(const char* text, int length = -1);
std::string narrowToAnsi(const std::wstring& text);
std::string toUtf8(const wchar_t* text, std::size_t length);
LRESULT handleText(LuMemoryWindow& window, UINT message, WPARAM wParam, LPARAM lParam);
bool isTextMessage(UINT message);

// Scrolling (MemoryScroll.cpp).
void drawScrollBars(LuMemoryWindow& window, DWORD style);

// Built-in classes (MemoryControls.cpp, MemoryEdit.cpp).
/// Sends the notification `code` of a control.
void notifyParent(LuMemoryWindow& window, int code);
LRESULT buttonProcedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT staticProcedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT editProcedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);
