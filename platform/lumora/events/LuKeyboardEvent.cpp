// SPDX-License-Identifier: MIT
#include "platform/lumora/events/LuKeyboardEvent.h"

#include <string_view>

namespace {

/// The keys whose character Shift changes, letters apart, and below each what it becomes.
constexpr std::string_view PLAIN = "`1234567890-=[]\\;',./";
constexpr std::string_view SHIFTED = "~!@#$%^&*()_+{}|:\"<>?";
static_assert(PLAIN.size() == SHIFTED.size());

/// Keypad keys from PAD_MULTIPLY on to PAD_DIVIDE; the one that some keyboards have in between types a comma.
constexpr std::string_view PAD_SIGNS = "*+,-./";

bool isKeyEvent(const LuEvent* event, LuKeyboardEvent::Key key, LuButtonEvent::State state) {
    if (!event || !event->isOfType(LuKeyboardEvent::getClassTypeId()))
        return false;
    const auto* keyEvent = static_cast<const LuKeyboardEvent*>(event);
    return keyEvent->getState() == state && (key == LuKeyboardEvent::ANY || key == keyEvent->getKey());
}

char shift(char character) {
    if (character >= 'a' && character <= 'z')
        return static_cast<char>(character - 'a' + 'A');
    const std::size_t place = PLAIN.find(character);
    return place == std::string_view::npos ? character : SHIFTED[place];
}

char32_t toCodePoint(char character) { return static_cast<unsigned char>(character); }

} // namespace

LuType LuKeyboardEvent::getClassTypeId() {
    static const LuType s_type =
        LuType::createType(LuButtonEvent::getClassTypeId(), "KeyboardEvent", nullptr, 0);
    return s_type;
}

char32_t LuKeyboardEvent::getPrintableCharacter() const {
    if (m_isCharacterKnown)
        return m_character;
    if (wasCtrlDown() || wasAltDown())
        return 0;
    if (m_key >= SPACE && m_key <= '~') {
        const char character = static_cast<char>(m_key);
        return toCodePoint(wasShiftDown() ? shift(character) : character);
    }
    if (m_key >= PAD_0 && m_key <= PAD_9)
        return toCodePoint(static_cast<char>('0' + (m_key - PAD_0)));
    if (m_key >= PAD_MULTIPLY && m_key <= PAD_DIVIDE)
        return toCodePoint(PAD_SIGNS[static_cast<std::size_t>(m_key - PAD_MULTIPLY)]);
    return 0;
}

bool LuKeyboardEvent::isKeyPressEvent(const LuEvent* event, Key key) { return isKeyEvent(event, key, DOWN); }

bool LuKeyboardEvent::isKeyReleaseEvent(const LuEvent* event, Key key) { return isKeyEvent(event, key, UP); }
