// SPDX-License-Identifier: MIT
#include "controls/LuNumericFilter.h"

#include <charconv>
#include <string>

namespace {

constexpr int BUFFER_SIZE = 60;
constexpr std::string_view WHITE_SPACE = " \t\n\v\f\r";

std::string getText(HWND window) {
    char buffer[BUFFER_SIZE] = "";
    GetWindowTextA(window, buffer, BUFFER_SIZE);
    return buffer;
}

void select(HWND window, int start, int end) {
    SendMessageA(window, EM_SETSEL, static_cast<WPARAM>(start), end);
}

/// Sets a text with its last character selected.
void setFilledText(HWND window, const std::string& text) {
    SetWindowTextA(window, text.c_str());
    const auto length = static_cast<int>(text.size());
    select(window, length - 1, length);
}

/// The end of the number that the text begins with; null when it begins with none.
const char* findNumberEnd(std::string_view text) {
    const bool hasSign = !text.empty() && (text[0] == '+' || text[0] == '-');
    if (hasSign)
        text.remove_prefix(1);
    // Only one sign is read here.
    if (text.empty() || text[0] == '-')
        return nullptr;
    const bool isHex = text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
    if (isHex)
        text.remove_prefix(2);
    float number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number,
                                              isHex ? std::chars_format::hex : std::chars_format::general);
    return error == std::errc::invalid_argument ? nullptr : end;
}

} // namespace

bool luIsNumber(std::string_view text) {
    const std::size_t start = text.find_first_not_of(WHITE_SPACE);
    if (start == std::string_view::npos)
        return false;
    text.remove_prefix(start);
    const char* const end = findNumberEnd(text);
    return end && text.find_first_not_of(WHITE_SPACE, static_cast<std::size_t>(end - text.data())) ==
                      std::string_view::npos;
}

void luFilterNumericEdit(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const std::string oldText = getText(window);
    DWORD start = 0, end = 0;
    SendMessageA(window, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    CallWindowProcA(procedure, window, message, wParam, lParam);
    const std::string newText = getText(window);
    if (newText.empty())
        return;
    if (newText == "-") {
        setFilledText(window, "-0");
        return;
    }
    const bool isOpenExponent = newText.back() == 'e' || newText.back() == 'E';
    if (isOpenExponent && luIsNumber(newText + "0")) {
        setFilledText(window, newText + "0");
        return;
    }
    const auto caret = static_cast<int>(start);
    if (!luIsNumber(newText)) {
        SetWindowTextA(window, oldText.c_str());
        select(window, caret, caret);
    }
    // A backspace goes over a character that it may not take away.
    if (wParam == VK_BACK && start == end)
        select(window, caret - 1, caret - 1);
}
