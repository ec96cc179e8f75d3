// SPDX-License-Identifier: MIT
#include "layout/LuTopLevelDialog.h"

namespace {

// The keys and the wheel are those of the user, whatever dialog they go to.
int s_isShiftDown = 0;
int s_wheelDelta = 0;
int s_wheelTurned = 0;

/// Lines to scroll for each notch of the wheel, as the system is set.
UINT getWheelLines() {
    UINT lines = 3;
    OSVERSIONINFOA version{};
    version.dwOSVersionInfoSize = sizeof(version);
    if (!GetVersionExA(&version))
        return lines;
    const bool isNT = version.dwPlatformId == VER_PLATFORM_WIN32_NT;
    if (isNT && version.dwMajorVersion >= 4) {
        SystemParametersInfoA(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    } else if (isNT || (version.dwPlatformId == VER_PLATFORM_WIN32_WINDOWS && version.dwMajorVersion < 4)) {
        // Before the wheel was part of the system its driver told the number.
        const HWND mouse = FindWindowA("MouseZ", "Magellan MSWHEEL");
        const UINT message = mouse ? RegisterWindowMessageA("MSH_SCROLL_LINES_MSG") : 0;
        if (message)
            lines = static_cast<UINT>(SendMessageA(mouse, message, 0, 0));
    }
    return lines;
}

} // namespace

void LuTopLevelDialog::readWheelLines() {
    if (m_currentScrolled != m_topWidget)
        return;
    const UINT lines = getWheelLines();
    s_wheelDelta = lines ? static_cast<int>(static_cast<UINT>(WHEEL_DELTA) / lines) : 0;
}

void LuTopLevelDialog::handleResize(HWND window, WPARAM wParam) {
    RECT rect{};
    GetWindowRect(window, &rect);
    LuSizes sizes = m_sizes.getSizes();
    sizes.size.setValue(static_cast<int>(rect.right - rect.left), static_cast<int>(rect.bottom - rect.top));
    m_sizes.write(sizes);
    setDefaultState();
    setPosition({static_cast<int>(rect.left), static_cast<int>(rect.top)});
    if (wParam != SIZE_MINIMIZED)
        updateTopLevelWidget({});
}

void LuTopLevelDialog::handleWheel(WPARAM wParam) {
    if (m_currentScrolled != m_topWidget || s_wheelDelta == 0)
        return;
    s_wheelTurned += static_cast<SHORT>(HIWORD(wParam));
    for (; s_wheelTurned >= s_wheelDelta; s_wheelTurned -= s_wheelDelta)
        SendMessageA(m_topWidget, WM_VSCROLL, SB_LINEUP, 10);
    for (; s_wheelTurned <= -s_wheelDelta; s_wheelTurned += s_wheelDelta)
        SendMessageA(m_topWidget, WM_VSCROLL, SB_LINEDOWN, 10);
}

void LuTopLevelDialog::handleKey(UINT message, WPARAM wParam) {
    if (wParam == VK_SHIFT) {
        s_isShiftDown = message == WM_KEYDOWN ? 1 : 0;
    } else if (wParam == VK_TAB && message == WM_KEYDOWN) {
        m_currentFocused = GetNextDlgTabItem(m_topWidget, m_currentFocused, !s_isShiftDown);
        SetFocus(m_currentFocused);
    }
}

void LuTopLevelDialog::handleMenu(WPARAM wParam) {
    MENUITEMINFOA info{};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_DATA | MIIM_SUBMENU | MIIM_ID; // 38
    const HMENU menu = GetMenu(m_baseWidget);
    if (!GetMenuItemInfoA(menu, LOWORD(wParam), FALSE, &info) || info.hSubMenu || !info.dwItemData)
        return;
    reinterpret_cast<LuPanelix*>(info.dwItemData)->menuEvent(menu, LOWORD(wParam));
}

LRESULT LuTopLevelDialog::handleBaseMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE:
    case WM_SETTINGCHANGE:
        readWheelLines();
        break;
    case WM_MOVE:
        // Of the frame's window WM_SIZE tells; here the corner is that of the inner window's room.
        if (window == m_topWidget)
            setPosition({static_cast<SHORT>(LOWORD(lParam)) - 4, static_cast<SHORT>(HIWORD(lParam)) - 23});
        break;
    case WM_SIZE:
        handleResize(window, wParam);
        break;
    case WM_GETMINMAXINFO: {
        auto* const info = reinterpret_cast<MINMAXINFO*>(lParam);
        const int largestX = maxWidth.getValue() ? maxWidth.getValue() : LuSizes::UNLIMITED;
        const int largestY = maxHeight.getValue() ? maxHeight.getValue() : LuSizes::UNLIMITED;
        info->ptMinTrackSize = {minWidth.getValue(), minHeight.getValue()};
        info->ptMaxTrackSize = {largestX, largestY};
        break;
    }
    case WM_KEYDOWN:
    case WM_KEYUP:
        handleKey(message, wParam);
        break;
    case WM_COMMAND:
        handleMenu(wParam);
        return 0;
    case WM_SYSCOMMAND:
        if (wParam == SC_CLOSE)
            return destroyDialog();
        break;
    case WM_MOUSEWHEEL:
        handleWheel(wParam);
        break;
    default:
        break;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

LRESULT LuTopLevelDialog::handleInnerMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_SIZE:
        if (wParam != SIZE_MINIMIZED) {
            setScrollProperties();
            updateTopLevelWidgetScrollPosition();
            updateChildren();
        }
        break;
    case WM_KEYDOWN:
    case WM_KEYUP:
        SendMessageA(m_baseWidget, message, wParam, lParam);
        break;
    case WM_HSCROLL:
    case WM_VSCROLL:
        m_currentScrolled = window;
        LuScrollBars::scroll(window, message == WM_HSCROLL ? SB_HORZ : SB_VERT, wParam);
        return 0;
    default:
        break;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}
