// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/events/LuEvent.h"

/// A key went down or up.
class LuKeyboardEvent : public LuButtonEvent {
public:
    /// The numbers are those of the X Window System's key symbols: a key with a character has its ASCII code,
    /// a letter that of the small one, whatever Shift does; all others lie above 0xff00.
    enum Key {
        ANY = 0,
        SPACE = ' ',
        APOSTROPHE = '\'',
        COMMA = ',',
        MINUS = '-',
        PERIOD = '.',
        SLASH = '/',
        NUMBER_0 = '0',
        NUMBER_1,
        NUMBER_2,
        NUMBER_3,
        NUMBER_4,
        NUMBER_5,
        NUMBER_6,
        NUMBER_7,
        NUMBER_8,
        NUMBER_9,
        SEMICOLON = ';',
        EQUAL = '=',
        BRACKETLEFT = '[',
        BACKSLASH = '\\',
        BRACKETRIGHT = ']',
        GRAVE = '`',
        A = 'a',
        B,
        C,
        D,
        E,
        F,
        G,
        H,
        I,
        J,
        K,
        L,
        M,
        N,
        O,
        P,
        Q,
        R,
        S,
        T,
        U,
        V,
        W,
        X,
        Y,
        Z,

        BACKSPACE = 0xff08,
        TAB = 0xff09,
        RETURN = 0xff0d,
        PAUSE = 0xff13,
        SCROLL_LOCK = 0xff14,
        ESCAPE = 0xff1b,
        HOME = 0xff50,
        LEFT_ARROW = 0xff51,
        UP_ARROW = 0xff52,
        RIGHT_ARROW = 0xff53,
        DOWN_ARROW = 0xff54,
        PAGE_UP = 0xff55,
        PAGE_DOWN = 0xff56,
        END = 0xff57,
        PRINT = 0xff61,
        INSERT = 0xff63,
        MENU = 0xff67,
        NUM_LOCK = 0xff7f,

        /// The keypad with Num Lock off, and its keys that Num Lock does not change.
        PAD_ENTER = 0xff8d,
        PAD_HOME = 0xff95,
        PAD_LEFT = 0xff96,
        PAD_UP = 0xff97,
        PAD_RIGHT = 0xff98,
        PAD_DOWN = 0xff99,
        PAD_PAGE_UP = 0xff9a,
        PAD_PAGE_DOWN = 0xff9b,
        PAD_END = 0xff9c,
        PAD_BEGIN = 0xff9d,
        PAD_INSERT = 0xff9e,
        PAD_DELETE = 0xff9f,
        PAD_MULTIPLY = 0xffaa,
        PAD_ADD = 0xffab,
        PAD_SUBTRACT = 0xffad,
        PAD_DECIMAL = 0xffae,
        PAD_DIVIDE = 0xffaf,
        PAD_0 = 0xffb0,
        PAD_1,
        PAD_2,
        PAD_3,
        PAD_4,
        PAD_5,
        PAD_6,
        PAD_7,
        PAD_8,
        PAD_9,

        F1 = 0xffbe,
        F2,
        F3,
        F4,
        F5,
        F6,
        F7,
        F8,
        F9,
        F10,
        F11,
        F12,

        LEFT_SHIFT = 0xffe1,
        RIGHT_SHIFT = 0xffe2,
        LEFT_CONTROL = 0xffe3,
        RIGHT_CONTROL = 0xffe4,
        CAPS_LOCK = 0xffe5,
        LEFT_ALT = 0xffe9,
        RIGHT_ALT = 0xffea,
        DELETE_KEY = 0xffff ///< "DELETE" is a macro of a system's headers.
    };

    static LuType getClassTypeId();
    LuType getTypeId() const override { return getClassTypeId(); }

    LuKeyboardEvent() = default;
    explicit LuKeyboardEvent(Key key, State state = DOWN) : m_key(key) { setState(state); }

    Key getKey() const { return m_key; }
    void setKey(Key key) { m_key = key; }

    /// The character that the key types, as a Unicode code point; 0 for a key that types none. It is what
    /// setPrintableCharacter said. Without that it is guessed: what an American keyboard gives for the key
    /// and Shift, and nothing together with Ctrl or Alt.
    char32_t getPrintableCharacter() const;

    /// Set from what the window system makes of the key, with the user's keyboard layout.
    void setPrintableCharacter(char32_t character) {
        m_character = character;
        m_isCharacterKnown = true;
    }

    /// True when the event, which may be null and of any type, is a press or a release of the key.
    static bool isKeyPressEvent(const LuEvent* event, Key key);
    static bool isKeyReleaseEvent(const LuEvent* event, Key key);

private:
    Key m_key = ANY;
    char32_t m_character = 0;
    bool m_isCharacterKnown = false;
};
