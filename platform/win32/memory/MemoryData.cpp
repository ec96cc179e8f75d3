// SPDX-License-Identifier: MIT
#include "platform/win32/memory/MemoryWindow.h"

#include <cstring>

namespace {

/// What lies behind an index of GetWindowLongPtrA, and how wide it is there.
LONG_PTR* findExtra(LuMemoryWindow& window, int index, std::size_t size) {
    if (index < 0 || static_cast<std::size_t>(index) + size > window.extra.size())
        return nullptr;
    return reinterpret_cast<LONG_PTR*>(window.extra.data() + index);
}

LONG_PTR readLong(HWND handle, int index, std::size_t size) {
    LuMemoryWindow* window = findMemoryWindowOrFail(handle);
    if (!window)
        return 0;
    switch (index) {
    case GWL_STYLE:
        return static_cast<LONG>(window->style);
    case GWL_EXSTYLE:
        return static_cast<LONG>(window->exStyle);
    case GWLP_USERDATA:
        return window->userData;
    case GWLP_WNDPROC:
        return reinterpret_cast<LONG_PTR>(window->procedure);
    case GWLP_ID:
        return window->id;
    case GWLP_HINSTANCE:
        return reinterpret_cast<LONG_PTR>(window->instance);
    case GWLP_HWNDPARENT:
        return reinterpret_cast<LONG_PTR>(GetParent(handle));
    default:
        break;
    }
    const LONG_PTR* extra = findExtra(*window, index, size);
    if (!extra) {
        SetLastError(ERROR_INVALID_INDEX);
        return 0;
    }
    LONG_PTR value = 0;
    std::memcpy(&value, extra, size);
    return size == sizeof(LONG) ? static_cast<LONG>(value) : value;
}

LONG_PTR writeStyle(LuMemoryWindow& window, int index, DWORD value) {
    const bool isStyle = index == GWL_STYLE;
    STYLESTRUCT change{isStyle ? window.style : window.exStyle, value};
    const DWORD previous = change.styleOld;
    const auto lParam = reinterpret_cast<LPARAM>(&change);
    const auto wParam = static_cast<WPARAM>(static_cast<LONG_PTR>(index));
    if (!sendAndCheck(window, WM_STYLECHANGING, wParam, lParam))
        return static_cast<LONG>(previous);
    if (isStyle) {
        if (window.parent == getMemoryDesktop().root)
            change.styleNew |= WS_CLIPSIBLINGS;
        window.style = change.styleNew;
    } else {
        // WS_EX_TOPMOST belongs to SetWindowPos.
        change.styleNew = (change.styleNew & ~WS_EX_TOPMOST) | (previous & WS_EX_TOPMOST);
        change.styleNew = fixExStyle(window.style, change.styleNew);
        window.exStyle = change.styleNew;
    }
    sendMessage(window, WM_STYLECHANGED, wParam, lParam);
    return static_cast<LONG>(previous);
}

LONG_PTR exchange(LONG_PTR& place, LONG_PTR value) {
    const LONG_PTR previous = place;
    place = value;
    return previous;
}

LONG_PTR writeLong(HWND handle, int index, LONG_PTR value, std::size_t size) {
    LuMemoryWindow* window = findMemoryWindowOrFail(handle);
    if (!window)
        return 0;
    switch (index) {
    case GWL_STYLE:
    case GWL_EXSTYLE:
        return writeStyle(*window, index, static_cast<DWORD>(value));
    case GWLP_USERDATA:
        return exchange(window->userData, value);
    case GWLP_ID:
        return exchange(window->id, value);
    case GWLP_WNDPROC: {
        const auto previous = reinterpret_cast<LONG_PTR>(window->procedure);
        if (value)
            window->procedure = reinterpret_cast<WNDPROC>(value);
        return previous;
    }
    default:
        break;
    }
    LONG_PTR* extra = findExtra(*window, index, size);
    if (!extra) {
        SetLastError(ERROR_INVALID_INDEX);
        return 0;
    }
    const LONG_PTR previous = readLong(handle, index, size);
    std::memcpy(extra, &value, size);
    return previous;
}

} // namespace

LONG_PTR GetWindowLongPtrA(HWND handle, int index) {
    // Every procedure begins by asking for these.
    if (index == GWLP_USERDATA) {
        const LuMemoryWindow* window = findMemoryWindowOrFail(handle);
        return window ? window->userData : 0;
    }
    return readLong(handle, index, sizeof(LONG_PTR));
}

LONG_PTR SetWindowLongPtrA(HWND window, int index, LONG_PTR value) {
    return writeLong(window, index, value, sizeof(LONG_PTR));
}

LONG GetWindowLongA(HWND window, int index) {
    return static_cast<LONG>(readLong(window, index, sizeof(LONG)));
}

LONG SetWindowLongA(HWND window, int index, LONG value) {
    return static_cast<LONG>(writeLong(window, index, value, sizeof(LONG)));
}
