// SPDX-License-Identifier: MIT
#include "platform/lumora/viewer/win32/LuWin32Keys.h"

namespace {

using Key = LuKeyboardEvent::Key;

/// The key beside the keypad, and that on it, which has the same number.
struct Row {
    WPARAM number;
    Key extended;
    Key plain;
};

constexpr Row TWINS[] = {
    {VK_RETURN, Key::PAD_ENTER, Key::RETURN},
    {VK_CONTROL, Key::RIGHT_CONTROL, Key::LEFT_CONTROL},
    {VK_MENU, Key::RIGHT_ALT, Key::LEFT_ALT},
    {VK_HOME, Key::HOME, Key::PAD_HOME},
    {VK_END, Key::END, Key::PAD_END},
    {VK_PRIOR, Key::PAGE_UP, Key::PAD_PAGE_UP},
    {VK_NEXT, Key::PAGE_DOWN, Key::PAD_PAGE_DOWN},
    {VK_LEFT, Key::LEFT_ARROW, Key::PAD_LEFT},
    {VK_RIGHT, Key::RIGHT_ARROW, Key::PAD_RIGHT},
    {VK_UP, Key::UP_ARROW, Key::PAD_UP},
    {VK_DOWN, Key::DOWN_ARROW, Key::PAD_DOWN},
    {VK_INSERT, Key::INSERT, Key::PAD_INSERT},
    {VK_DELETE, Key::DELETE_KEY, Key::PAD_DELETE},
    {VK_CLEAR, Key::PAD_BEGIN, Key::PAD_BEGIN},
    {VK_MULTIPLY, Key::PAD_MULTIPLY, Key::PAD_MULTIPLY},
    {VK_ADD, Key::PAD_ADD, Key::PAD_ADD},
    {VK_SUBTRACT, Key::PAD_SUBTRACT, Key::PAD_SUBTRACT},
    {VK_DECIMAL, Key::PAD_DECIMAL, Key::PAD_DECIMAL},
    {VK_DIVIDE, Key::PAD_DIVIDE, Key::PAD_DIVIDE},
    {VK_ESCAPE, Key::ESCAPE, Key::ESCAPE},
    {VK_TAB, Key::TAB, Key::TAB},
    {VK_BACK, Key::BACKSPACE, Key::BACKSPACE},
    {VK_SPACE, Key::SPACE, Key::SPACE},
    {VK_CAPITAL, Key::CAPS_LOCK, Key::CAPS_LOCK},
    {VK_SCROLL, Key::SCROLL_LOCK, Key::SCROLL_LOCK},
    {VK_NUMLOCK, Key::NUM_LOCK, Key::NUM_LOCK},
    {VK_SNAPSHOT, Key::PRINT, Key::PRINT},
    {VK_PAUSE, Key::PAUSE, Key::PAUSE},
    {VK_APPS, Key::MENU, Key::MENU},
};

Key plus(Key first, WPARAM count) { return static_cast<Key>(first + static_cast<int>(count)); }

Key getShift(LPARAM state) {
    const UINT scanCode = static_cast<UINT>(state >> 16) & 0xff;
    return MapVirtualKeyA(scanCode, MAPVK_VSC_TO_VK_EX) == VK_RSHIFT ? Key::RIGHT_SHIFT : Key::LEFT_SHIFT;
}

} // namespace

LuKeyboardEvent::Key luGetWin32Key(WPARAM virtualKey, LPARAM state) {
    if (virtualKey >= 'A' && virtualKey <= 'Z')
        return plus(Key::A, virtualKey - 'A');
    if (virtualKey >= '0' && virtualKey <= '9')
        return plus(Key::NUMBER_0, virtualKey - '0');
    if (virtualKey >= VK_NUMPAD0 && virtualKey <= VK_NUMPAD9)
        return plus(Key::PAD_0, virtualKey - VK_NUMPAD0);
    if (virtualKey >= VK_F1 && virtualKey <= VK_F12)
        return plus(Key::F1, virtualKey - VK_F1);
    if (virtualKey == VK_SHIFT)
        return getShift(state);
    constexpr LPARAM EXTENDED = 1 << 24;
    for (const Row& row : TWINS) {
        if (row.number == virtualKey)
            return state & EXTENDED ? row.extended : row.plain;
    }
    const UINT character = MapVirtualKeyA(static_cast<UINT>(virtualKey), MAPVK_VK_TO_CHAR);
    return character > ' ' && character <= '~' ? static_cast<Key>(character) : Key::ANY;
}
