// SPDX-License-Identifier: MIT
#include "platform/win32/memory/MemoryWindow.h"

#include <algorithm>

namespace {

constexpr int unlimited = 0x7ffffffe;

int getLength(const LuMemoryWindow& window) { return static_cast<int>(window.text.size()); }

bool isKeyHeld(int key) { return GetKeyState(key) < 0; }

int getSelectionStart(const LuMemoryEdit& edit) { return std::min(edit.anchor, edit.caret); }
int getSelectionEnd(const LuMemoryEdit& edit) { return std::max(edit.anchor, edit.caret); }

/// Selects from the anchor to the caret, -1 as the anchor takes the selection away.
void select(LuMemoryWindow& window, int anchor, int caret) {
    LuMemoryEdit& edit = window.edit;
    if (anchor == -1)
        anchor = caret = edit.caret;
    // Negative numbers count as large ones.
    const auto limit = [&window](int place) {
        return place < 0 ? getLength(window) : std::min(place, getLength(window));
    };
    edit.anchor = limit(anchor);
    edit.caret = limit(caret);
}

void notifyOfChange(LuMemoryWindow& window) {
    const HWND handle = getHandle(&window);
    notifyParent(window, EN_UPDATE);
    if (findMemoryWindow(handle))
        notifyParent(window, EN_CHANGE);
}

/// The user, or EM_REPLACESEL, puts a text in the place of the selection.
void replaceSelection(LuMemoryWindow& window, const std::wstring& text) {
    LuMemoryEdit& edit = window.edit;
    const int start = getSelectionStart(edit), length = getSelectionEnd(edit) - start;
    const int room = std::max(0, edit.limit - getLength(window) + length);
    const HWND handle = getHandle(&window);
    const std::wstring fitting = text.substr(0, static_cast<std::size_t>(room));
    if (fitting.size() < text.size())
        notifyParent(window, EN_MAXTEXT);
    if (!findMemoryWindow(handle))
        return;
    window.text.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(length), fitting);
    edit.anchor = edit.caret = start + static_cast<int>(fitting.size());
    notifyOfChange(window);
}

/// Deletes the selection; without one the character beside the caret, to its left or its right.
void erase(LuMemoryWindow& window, bool toTheLeft) {
    LuMemoryEdit& edit = window.edit;
    if (window.style & ES_READONLY)
        return;
    if (edit.anchor == edit.caret) {
        edit.caret = std::clamp(edit.caret + (toTheLeft ? -1 : 1), 0, getLength(window));
        if (edit.anchor == edit.caret)
            return;
    }
    replaceSelection(window, std::wstring());
}

void moveCaret(LuMemoryWindow& window, int caret) {
    caret = std::clamp(caret, 0, getLength(window));
    select(window, isKeyHeld(VK_SHIFT) ? window.edit.anchor : caret, caret);
}

void handleKey(LuMemoryWindow& window, WPARAM key) {
    switch (key) {
    case VK_LEFT:
        return moveCaret(window, window.edit.caret - 1);
    case VK_RIGHT:
        return moveCaret(window, window.edit.caret + 1);
    case VK_HOME:
        return moveCaret(window, 0);
    case VK_END:
        return moveCaret(window, getLength(window));
    case VK_DELETE:
        return erase(window, isKeyHeld(VK_SHIFT));
    default:
        return;
    }
}

void handleCharacter(LuMemoryWindow& window, WPARAM character) {
    constexpr WPARAM firstVisible = ' ', rubOut = 127;
    if (character == VK_BACK) {
        if (!isKeyHeld(VK_CONTROL))
            erase(window, true);
    } else if (character >= firstVisible && character != rubOut && !(window.style & ES_READONLY)) {
        const char ansi = static_cast<char>(character);
        replaceSelection(window, widenAnsi(&ansi, 1));
    }
}

/// The place between two characters that is nearest to x.
int findPlace(const LuMemoryWindow& window, int x) {
    const HDC dc = GetDC(getHandle(&window));
    if (window.font)
        SelectObject(dc, window.font);
    int place = 0;
    SIZE before{}, behind{};
    for (; place < getLength(window); ++place, before = behind) {
        GetTextExtentPoint32W(dc, window.text.c_str(), place + 1, &behind);
        if (x < (before.cx + behind.cx) / 2)
            break;
    }
    ReleaseDC(getHandle(&window), dc);
    return place;
}

LRESULT handleMouse(LuMemoryWindow& window, UINT message, LPARAM lParam) {
    const HWND handle = getHandle(&window);
    const int place = findPlace(window, static_cast<SHORT>(LOWORD(static_cast<DWORD_PTR>(lParam))));
    if (message == WM_LBUTTONDOWN) {
        SetCapture(handle);
        if (findMemoryWindow(handle))
            moveCaret(window, place);
        SetFocus(handle);
    } else if (GetCapture() == handle) {
        select(window, window.edit.anchor, place);
        if (message == WM_LBUTTONUP)
            ReleaseCapture();
    }
    return 0;
}

LRESULT setText(LuMemoryWindow& window, UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT answer = handleText(window, message, wParam, lParam);
    select(window, 0, 0);
    if (!(window.style & ES_MULTILINE))
        notifyOfChange(window);
    return answer;
}

LRESULT getSelection(const LuMemoryWindow& window, WPARAM wParam, LPARAM lParam) {
    const int start = getSelectionStart(window.edit), end = getSelectionEnd(window.edit);
    if (auto* const asked = reinterpret_cast<DWORD*>(wParam))
        *asked = static_cast<DWORD>(start);
    if (auto* const asked = reinterpret_cast<DWORD*>(lParam))
        *asked = static_cast<DWORD>(end);
    return MAKELONG(start, end);
}

/// The messages of "EDIT" alone.
LRESULT handleEditMessage(LuMemoryWindow& window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case EM_GETSEL:
        return getSelection(window, wParam, lParam);
    case EM_SETSEL:
        select(window, static_cast<int>(wParam), static_cast<int>(lParam));
        return 1;
    case EM_REPLACESEL:
        replaceSelection(window, lParam ? widenAnsi(reinterpret_cast<const char*>(lParam)) : std::wstring());
        return 1;
    case EM_LIMITTEXT:
        window.edit.limit = wParam ? static_cast<int>(std::min<WPARAM>(wParam, unlimited)) : unlimited;
        return 0;
    case EM_GETLIMITTEXT:
        return window.edit.limit;
    default: // EM_SETREADONLY
        window.style = wParam ? window.style | ES_READONLY : window.style & ~ES_READONLY;
        return 1;
    }
}

} // namespace

LRESULT editProcedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    LuMemoryWindow* window = findMemoryWindow(handle);
    if (!window)
        return 0;
    switch (message) {
    case WM_KEYDOWN:
        handleKey(*window, wParam);
        return 0;
    case WM_CHAR:
        handleCharacter(*window, wParam);
        return 0;
    case WM_LBUTTONDOWN:
    case WM_MOUSEMOVE:
    case WM_LBUTTONUP:
        return handleMouse(*window, message, lParam);
    case WM_SETFOCUS:
        notifyParent(*window, EN_SETFOCUS);
        return 0;
    case WM_KILLFOCUS:
        notifyParent(*window, EN_KILLFOCUS);
        return 0;
    case WM_CLEAR:
        if (window->edit.anchor != window->edit.caret)
            erase(*window, true);
        return 0;
    case WM_SETTEXT:
    case WM_SETTEXT | wideTextFlag:
        return setText(*window, message, wParam, lParam);
    case WM_GETDLGCODE:
        return DLGC_HASSETSEL | DLGC_WANTCHARS | DLGC_WANTARROWS;
    case WM_SETFONT:
        window->font = reinterpret_cast<HFONT>(wParam);
        return 0;
    case WM_GETFONT:
        return reinterpret_cast<LRESULT>(window->font);
    case EM_GETSEL:
    case EM_SETSEL:
    case EM_REPLACESEL:
    case EM_LIMITTEXT:
    case EM_GETLIMITTEXT:
    case EM_SETREADONLY:
        return handleEditMessage(*window, message, wParam, lParam);
    default:
        return DefWindowProcA(handle, message, wParam, lParam);
    }
}
