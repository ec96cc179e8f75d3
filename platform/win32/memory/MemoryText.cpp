// SPDX-License-Identifier: MIT
#include "platform/win32/memory/MemoryWindow.h"

#include <algorithm>
#include <cstring>

namespace {

/// Windows-1252 from 0x80 to 0x9f; the rest is Latin-1. The five gaps stand for themselves.
constexpr char16_t s_upperAnsi[32] = {0x20ac, 0x0081, 0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021,
                                      0x02c6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008d, 0x017d, 0x008f,
                                      0x0090, 0x2018, 0x2019, 0x201c, 0x201d, 0x2022, 0x2013, 0x2014,
                                      0x02dc, 0x2122, 0x0161, 0x203a, 0x0153, 0x009d, 0x017e, 0x0178};

wchar_t widen(unsigned char byte) {
    return byte >= 0x80 && byte < 0xa0 ? static_cast<wchar_t>(s_upperAnsi[byte - 0x80])
                                       : static_cast<wchar_t>(byte);
}

char narrow(wchar_t character) {
    const auto code = static_cast<std::uint32_t>(character);
    if (code < 0x80 || (code >= 0xa0 && code < 0x100))
        return static_cast<char>(code);
    const auto* found = std::find(std::begin(s_upperAnsi), std::end(s_upperAnsi), code);
    return found == std::end(s_upperAnsi) ? '?' : static_cast<char>(0x80 + (found - s_upperAnsi));
}

template <class Character>
LRESULT copyOut(std::basic_string_view<Character> text, WPARAM size, LPARAM lParam) {
    auto* buffer = reinterpret_cast<Character*>(lParam);
    if (!buffer || size == 0)
        return 0;
    const std::size_t length = std::min<std::size_t>(text.size(), size - 1);
    std::copy_n(text.begin(), length, buffer);
    buffer[length] = 0;
    return static_cast<LRESULT>(length);
}

} // namespace

std::wstring widenAnsi(const char* text, int length) {
    const std::size_t count = length < 0 ? std::strlen(text) : static_cast<std::size_t>(length);
    std::wstring wide(count, L'\0');
    std::transform(text, text + count, wide.begin(),
                   [](char byte) { return widen(static_cast<unsigned char>(byte)); });
    return wide;
}

std::string narrowToAnsi(const std::wstring& text) {
    std::string ansi(text.size(), '\0');
    std::transform(text.begin(), text.end(), ansi.begin(), narrow);
    return ansi;
}

bool isTextMessage(UINT message) {
    return message == WM_SETTEXT || message == WM_GETTEXT || message == WM_GETTEXTLENGTH;
}

LRESULT handleText(LuMemoryWindow& window, UINT message, WPARAM wParam, LPARAM lParam) {
    const bool isWide = (message & wideTextFlag) != 0;
    switch (message & ~wideTextFlag) {
    case WM_SETTEXT:
        if (!lParam)
            window.text.clear();
        else if (isWide)
            window.text = reinterpret_cast<const wchar_t*>(lParam);
        else
            window.text = widenAnsi(reinterpret_cast<const char*>(lParam));
        return TRUE;
    case WM_GETTEXT:
        return isWide ? copyOut<wchar_t>(window.text, wParam, lParam)
                      : copyOut<char>(narrowToAnsi(window.text), wParam, lParam);
    default:
        return static_cast<LRESULT>(window.text.size());
    }
}

BOOL SetWindowTextA(HWND window, LPCSTR text) {
    return findMemoryWindowOrFail(window) &&
           SendMessageA(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)) != 0;
}

BOOL SetWindowTextW(HWND window, LPCWSTR text) {
    return findMemoryWindowOrFail(window) &&
           SendMessageW(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)) != 0;
}

int GetWindowTextA(HWND window, LPSTR text, int size) {
    if (!text || size <= 0)
        return 0;
    text[0] = '\0';
    return static_cast<int>(
        SendMessageA(window, WM_GETTEXT, static_cast<WPARAM>(size), reinterpret_cast<LPARAM>(text)));
}

int GetWindowTextW(HWND window, LPWSTR text, int size) {
    if (!text || size <= 0)
        return 0;
    text[0] = L'\0';
    return static_cast<int>(
        SendMessageW(window, WM_GETTEXT, static_cast<WPARAM>(size), reinterpret_cast<LPARAM>(text)));
}

int GetWindowTextLengthA(HWND window) {
    return static_cast<int>(SendMessageA(window, WM_GETTEXTLENGTH, 0, 0));
}

int GetWindowTextLengthW(HWND window) {
    return static_cast<int>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0));
}
