// SPDX-License-Identifier: MIT
#include "apps/play/PlayKeys.h"

#include "platform/win32/WindowSystem.h"

#include <cctype>

namespace {

struct NamedKey {
    const char* name;
    LuKeyboardEvent::Key key;
    int virtualKey;
};

constexpr NamedKey KEYS[] = {
    {"Tab", LuKeyboardEvent::TAB, VK_TAB},
    {"Return", LuKeyboardEvent::RETURN, VK_RETURN},
    {"Escape", LuKeyboardEvent::ESCAPE, VK_ESCAPE},
    {"Space", LuKeyboardEvent::SPACE, VK_SPACE},
    {"Backspace", LuKeyboardEvent::BACKSPACE, VK_BACK},
    {"Delete", LuKeyboardEvent::DELETE_KEY, VK_DELETE},
    {"Insert", LuKeyboardEvent::INSERT, VK_INSERT},
    {"Home", LuKeyboardEvent::HOME, VK_HOME},
    {"End", LuKeyboardEvent::END, VK_END},
    {"PageUp", LuKeyboardEvent::PAGE_UP, VK_PRIOR},
    {"PageDown", LuKeyboardEvent::PAGE_DOWN, VK_NEXT},
    {"Left", LuKeyboardEvent::LEFT_ARROW, VK_LEFT},
    {"Right", LuKeyboardEvent::RIGHT_ARROW, VK_RIGHT},
    {"Up", LuKeyboardEvent::UP_ARROW, VK_UP},
    {"Down", LuKeyboardEvent::DOWN_ARROW, VK_DOWN},
};

bool isLetterOrDigit(char32_t character) {
    return (character >= 'a' && character <= 'z') || (character >= '0' && character <= '9');
}

} // namespace

LuKeyboardEvent::Key findPlayKey(std::string_view name) {
    for (const NamedKey& entry : KEYS) {
        if (name == entry.name)
            return entry.key;
    }
    if (name.size() == 1 && isLetterOrDigit(static_cast<unsigned char>(name[0])))
        return static_cast<LuKeyboardEvent::Key>(name[0]);
    return LuKeyboardEvent::ANY;
}

int getVirtualKey(LuKeyboardEvent::Key key) {
    for (const NamedKey& entry : KEYS) {
        if (key == entry.key)
            return entry.virtualKey;
    }
    // The codes of letters and digits are those of the capital letters and the digits.
    return isLetterOrDigit(static_cast<char32_t>(key)) ? std::toupper(key) : 0;
}
