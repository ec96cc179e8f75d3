// SPDX-License-Identifier: MIT
#include "platform/win32/memory/MemoryWindow.h"

namespace {

// Bits of a button's state beside those that BM_GETSTATE is documented with.
constexpr UINT buttonHeld = 0x40; ///< The mouse or the space key went down on it.

constexpr UINT checkMask = 3;

DWORD getButtonType(const LuMemoryWindow& window) { return window.style & BS_TYPEMASK; }

/// The other radio buttons of a group lose their check: the group goes from a WS_GROUP to the next.
void uncheckGroup(LuMemoryWindow& window) {
    LuMemoryWindow* first = &window;
    while (!(first->style & WS_GROUP) && first->above)
        first = first->above;
    for (LuMemoryWindow* w = first; w && (w == first || !(w->style & WS_GROUP)); w = w->below)
        if (w != &window && w->windowClass == window.windowClass && getButtonType(*w) == BS_AUTORADIOBUTTON)
            sendMessage(*w, BM_SETCHECK, BST_UNCHECKED, 0);
}

/// The end of a press on a button: its check, if it has one, changes before it gives the capture back.
void click(LuMemoryWindow& window) {
    const UINT check = window.state & checkMask;
    const HWND handle = getHandle(&window);
    switch (getButtonType(window)) {
    case BS_AUTOCHECKBOX:
        sendMessage(window, BM_SETCHECK, check == BST_CHECKED ? BST_UNCHECKED : BST_CHECKED, 0);
        break;
    case BS_AUTO3STATE:
        sendMessage(window, BM_SETCHECK, check == BST_INDETERMINATE ? BST_UNCHECKED : check + 1, 0);
        break;
    case BS_AUTORADIOBUTTON:
        uncheckGroup(window);
        if (findMemoryWindow(handle))
            sendMessage(window, BM_SETCHECK, BST_CHECKED, 0);
        break;
    default:
        break;
    }
    ReleaseCapture();
    if (findMemoryWindow(handle))
        notifyParent(window, BN_CLICKED);
}

bool isInsideClient(const LuMemoryWindow& window, LPARAM lParam) {
    const int x = static_cast<SHORT>(LOWORD(static_cast<DWORD_PTR>(lParam)));
    const int y = static_cast<SHORT>(HIWORD(static_cast<DWORD_PTR>(lParam)));
    return x >= 0 && y >= 0 && x < window.client.right - window.client.left &&
           y < window.client.bottom - window.client.top;
}

void press(LuMemoryWindow& window, bool takesFocus) {
    const HWND handle = getHandle(&window);
    SetCapture(handle);
    if (takesFocus)
        SetFocus(handle);
    if (!findMemoryWindow(handle))
        return;
    window.state |= buttonHeld;
    sendMessage(window, BM_SETSTATE, TRUE, 0);
}

void release(LuMemoryWindow& window, bool isHit) {
    if (!(window.state & buttonHeld))
        return;
    window.state &= ~buttonHeld;
    if (!(window.state & BST_PUSHED)) {
        ReleaseCapture();
        return;
    }
    if (!sendAndCheck(window, BM_SETSTATE, FALSE, 0))
        return;
    if (isHit)
        click(window);
    else
        ReleaseCapture();
}

void cancelPress(LuMemoryWindow& window) {
    if (!(window.state & buttonHeld))
        return;
    window.state &= ~buttonHeld;
    if (window.state & BST_PUSHED)
        sendMessage(window, BM_SETSTATE, FALSE, 0);
}

LRESULT setCheck(LuMemoryWindow& window, WPARAM check) {
    const DWORD type = getButtonType(window);
    if (type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON || type == BS_GROUPBOX || type == BS_OWNERDRAW)
        return 0;
    const UINT largest = type == BS_3STATE || type == BS_AUTO3STATE ? BST_INDETERMINATE : BST_CHECKED;
    window.state = (window.state & ~checkMask) | (check > largest ? largest : static_cast<UINT>(check));
    // The tab key is to reach the checked button of a group, and only that one.
    if (type == BS_RADIOBUTTON || type == BS_AUTORADIOBUTTON)
        window.style = check ? window.style | WS_TABSTOP : window.style & ~WS_TABSTOP;
    return 0;
}

LRESULT getButtonDialogCode(const LuMemoryWindow& window) {
    switch (getButtonType(window)) {
    case BS_PUSHBUTTON:
        return DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON;
    case BS_DEFPUSHBUTTON:
        return DLGC_BUTTON | DLGC_DEFPUSHBUTTON;
    case BS_RADIOBUTTON:
    case BS_AUTORADIOBUTTON:
        return DLGC_BUTTON | DLGC_RADIOBUTTON;
    case BS_GROUPBOX:
        return DLGC_STATIC;
    default:
        return DLGC_BUTTON;
    }
}

LRESULT handleButtonInput(LuMemoryWindow& window, UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND handle = getHandle(&window);
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        press(window, true);
        return 0;
    case WM_LBUTTONUP:
        release(window, isInsideClient(window, lParam));
        return 0;
    case WM_MOUSEMOVE: {
        if (!(wParam & MK_LBUTTON) || GetCapture() != handle)
            return 0;
        const bool isOver = isInsideClient(window, lParam);
        if (isOver != ((window.state & BST_PUSHED) != 0))
            sendMessage(window, BM_SETSTATE, isOver, 0);
        return 0;
    }
    case WM_KEYDOWN:
        if (wParam == VK_SPACE)
            press(window, false);
        return 0;
    case WM_KEYUP:
        if (wParam == VK_SPACE)
            release(window, true);
        return 0;
    case BM_CLICK:
        if (sendAndCheck(window, WM_LBUTTONDOWN, 0, 0))
            sendMessage(window, WM_LBUTTONUP, 0, 0);
        return 0;
    default: // WM_CAPTURECHANGED
        cancelPress(window);
        return 0;
    }
}

} // namespace

void notifyParent(LuMemoryWindow& window, int code) {
    if (!isChildStyle(window.style))
        return;
    sendMessage(*window.parent, WM_COMMAND, MAKEWPARAM(static_cast<int>(window.id), code),
                reinterpret_cast<LPARAM>(getHandle(&window)));
}

LRESULT buttonProcedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    LuMemoryWindow* window = findMemoryWindow(handle);
    if (!window)
        return 0;
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_LBUTTONUP:
    case WM_MOUSEMOVE:
    case WM_KEYDOWN:
    case WM_KEYUP:
    case WM_CAPTURECHANGED:
    case BM_CLICK:
        return handleButtonInput(*window, message, wParam, lParam);
    case WM_SETFOCUS:
        window->state |= BST_FOCUS;
        if (window->style & BS_NOTIFY)
            notifyParent(*window, BN_SETFOCUS);
        return 0;
    case WM_KILLFOCUS:
        window->state &= ~UINT{BST_FOCUS};
        if ((window->state & buttonHeld) && GetCapture() == handle)
            ReleaseCapture();
        if (findMemoryWindow(handle) && (window->style & BS_NOTIFY))
            notifyParent(*window, BN_KILLFOCUS);
        return 0;
    case BM_GETSTATE:
        return static_cast<LRESULT>(window->state);
    case BM_SETSTATE:
        window->state = wParam ? window->state | BST_PUSHED : window->state & ~UINT{BST_PUSHED};
        return 0;
    case BM_GETCHECK:
        return static_cast<LRESULT>(window->state & checkMask);
    case BM_SETCHECK:
        return setCheck(*window, wParam);
    case BM_SETSTYLE:
        window->style = (window->style & ~BS_TYPEMASK) | (static_cast<DWORD>(wParam) & BS_TYPEMASK);
        return 0;
    case WM_GETDLGCODE:
        return getButtonDialogCode(*window);
    case WM_NCHITTEST:
        return getButtonType(*window) == BS_GROUPBOX ? HTTRANSPARENT : hitTest(*window, lParam);
    case WM_SETFONT:
        window->font = reinterpret_cast<HFONT>(wParam);
        return 0;
    case WM_GETFONT:
        return reinterpret_cast<LRESULT>(window->font);
    default:
        return handleByDefault(*window, message, wParam, lParam);
    }
}

LRESULT staticProcedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    constexpr DWORD notifies = 0x100; // SS_NOTIFY
    LuMemoryWindow* window = findMemoryWindow(handle);
    if (!window)
        return 0;
    switch (message) {
    case WM_NCHITTEST:
        return window->style & notifies ? HTCLIENT : HTTRANSPARENT;
    case WM_GETDLGCODE:
        return DLGC_STATIC;
    case WM_SETFONT:
        window->font = reinterpret_cast<HFONT>(wParam);
        return 0;
    case WM_GETFONT:
        return reinterpret_cast<LRESULT>(window->font);
    case STM_SETIMAGE: {
        const auto previous = reinterpret_cast<LRESULT>(window->image);
        window->image = reinterpret_cast<HGDIOBJ>(lParam);
        return previous;
    }
    case STM_GETIMAGE:
        return reinterpret_cast<LRESULT>(window->image);
    default:
        return handleByDefault(*window, message, wParam, lParam);
    }
}
