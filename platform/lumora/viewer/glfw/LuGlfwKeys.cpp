// SPDX-License-Identifier: MIT
#include "platform/lumora/viewer/glfw/LuGlfwKeys.h"

#include <GLFW/glfw3.h>

namespace {

using Key = LuKeyboardEvent::Key;

struct Row {
    int number;
    Key key;
};

constexpr Row KEYS[] = {
    {GLFW_KEY_ESCAPE, Key::ESCAPE},
    {GLFW_KEY_ENTER, Key::RETURN},
    {GLFW_KEY_TAB, Key::TAB},
    {GLFW_KEY_BACKSPACE, Key::BACKSPACE},
    {GLFW_KEY_INSERT, Key::INSERT},
    {GLFW_KEY_DELETE, Key::DELETE_KEY},
    {GLFW_KEY_RIGHT, Key::RIGHT_ARROW},
    {GLFW_KEY_LEFT, Key::LEFT_ARROW},
    {GLFW_KEY_DOWN, Key::DOWN_ARROW},
    {GLFW_KEY_UP, Key::UP_ARROW},
    {GLFW_KEY_PAGE_UP, Key::PAGE_UP},
    {GLFW_KEY_PAGE_DOWN, Key::PAGE_DOWN},
    {GLFW_KEY_HOME, Key::HOME},
    {GLFW_KEY_END, Key::END},
    {GLFW_KEY_CAPS_LOCK, Key::CAPS_LOCK},
    {GLFW_KEY_SCROLL_LOCK, Key::SCROLL_LOCK},
    {GLFW_KEY_NUM_LOCK, Key::NUM_LOCK},
    {GLFW_KEY_PRINT_SCREEN, Key::PRINT},
    {GLFW_KEY_PAUSE, Key::PAUSE},
    {GLFW_KEY_MENU, Key::MENU},
    {GLFW_KEY_LEFT_SHIFT, Key::LEFT_SHIFT},
    {GLFW_KEY_RIGHT_SHIFT, Key::RIGHT_SHIFT},
    {GLFW_KEY_LEFT_CONTROL, Key::LEFT_CONTROL},
    {GLFW_KEY_RIGHT_CONTROL, Key::RIGHT_CONTROL},
    {GLFW_KEY_LEFT_ALT, Key::LEFT_ALT},
    {GLFW_KEY_RIGHT_ALT, Key::RIGHT_ALT},
    {GLFW_KEY_KP_DIVIDE, Key::PAD_DIVIDE},
    {GLFW_KEY_KP_MULTIPLY, Key::PAD_MULTIPLY},
    {GLFW_KEY_KP_SUBTRACT, Key::PAD_SUBTRACT},
    {GLFW_KEY_KP_ADD, Key::PAD_ADD},
    {GLFW_KEY_KP_ENTER, Key::PAD_ENTER},
};

/// GLFW_KEY_KP_0 to 9 and GLFW_KEY_KP_DECIMAL, with Num Lock off.
constexpr Key PAD_KEYS[] = {Key::PAD_INSERT, Key::PAD_END,     Key::PAD_DOWN,  Key::PAD_PAGE_DOWN,
                            Key::PAD_LEFT,   Key::PAD_BEGIN,   Key::PAD_RIGHT, Key::PAD_HOME,
                            Key::PAD_UP,     Key::PAD_PAGE_UP, Key::PAD_DELETE};
static_assert(GLFW_KEY_KP_DECIMAL == GLFW_KEY_KP_0 + 10);

Key plus(Key first, int count) { return static_cast<Key>(first + count); }

/// The character on the key, when it is an ASCII one.
Key getCharacterKey(int key, int scancode) {
    const char* const name = glfwGetKeyName(key, scancode);
    if (name && name[0] > ' ' && name[0] <= '~' && name[1] == '\0')
        return static_cast<Key>(name[0] >= 'A' && name[0] <= 'Z' ? name[0] - 'A' + 'a' : name[0]);
    // The numbers of such keys are the characters of an American keyboard, letters as large ones.
    if (key >= GLFW_KEY_A && key <= GLFW_KEY_Z)
        return plus(Key::A, key - GLFW_KEY_A);
    return key >= GLFW_KEY_SPACE && key <= GLFW_KEY_GRAVE_ACCENT ? static_cast<Key>(key) : Key::ANY;
}

} // namespace

LuKeyboardEvent::Key luGetGlfwKey(int key, int scancode, bool isNumLockOn) {
    if (key >= GLFW_KEY_KP_0 && key <= GLFW_KEY_KP_DECIMAL) {
        const int place = key - GLFW_KEY_KP_0;
        if (!isNumLockOn)
            return PAD_KEYS[place];
        return key == GLFW_KEY_KP_DECIMAL ? Key::PAD_DECIMAL : plus(Key::PAD_0, place);
    }
    if (key >= GLFW_KEY_F1 && key <= GLFW_KEY_F12)
        return plus(Key::F1, key - GLFW_KEY_F1);
    for (const Row& row : KEYS) {
        if (row.number == key)
            return row.key;
    }
    return key < GLFW_KEY_ESCAPE ? getCharacterKey(key, scancode) : Key::ANY;
}
