// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// A text, UTF-8 within. Lengths and positions count bytes. A null pointer stands for the empty text.
class LvString {
public:
    /// What find returns when there is nothing to find.
    static constexpr int npos = -1;

    LvString() = default;
    LvString(const char* text) : m_text(text ? text : "") {}
    LvString(std::string_view text) : m_text(text) {}
    LvString(std::string text) : m_text(std::move(text)) {}

    /// Latin-1 (each byte one character) and wide text (UTF-16 or UTF-32, as wide as wchar_t is) to UTF-8.
    static LvString fromLatin1(std::string_view text);
    static LvString fromWide(std::wstring_view text);

    const char* getString() const { return m_text.c_str(); }
    const std::string& str() const { return m_text; }
    std::string_view view() const { return m_text; }
    int getLength() const { return static_cast<int>(m_text.size()); }
    bool isEmpty() const { return m_text.empty(); }

    /// Latin-1 bytes; a character outside Latin-1 becomes '?'. The Win32 operations whose names end in A take
    /// their texts so.
    std::string toLatin1() const;

    /// Wide text for the Win32 operations whose names end in W.
    std::wstring toWide() const;

    /// Byte position of the first occurrence of `part`, or npos.
    int find(std::string_view part, int from = 0) const;

    /// The bytes from `start` up to, not including, `end`; `end` -1 means to the end of the text. Positions
    /// outside the text are moved to its ends.
    LvString getSubString(int start, int end = -1) const;

    /// The number that the text begins with, behind white space; 0 where it begins with none. What no int can
    /// hold becomes the nearest that one can.
    int toInt() const;

    /// The same with fraction and exponent; the point is a "." in every locale. What is too great becomes
    /// infinite.
    float toFloat() const;

    char operator[](int index) const { return m_text[static_cast<std::size_t>(index)]; }

    LvString& operator+=(const LvString& other) {
        m_text += other.m_text;
        return *this;
    }
    LvString& operator+=(const char* text) {
        if (text)
            m_text += text;
        return *this;
    }
    LvString& operator+=(char character) {
        m_text += character;
        return *this;
    }
    friend LvString operator+(LvString left, const LvString& right) { return left += right; }
    friend LvString operator+(LvString left, const char* right) { return left += right; }
    friend LvString operator+(const char* left, const LvString& right) { return LvString(left) += right; }

    friend bool operator==(const LvString& left, const LvString& right) {
        return left.m_text == right.m_text;
    }
    friend bool operator==(const LvString& left, const char* right) {
        return left.m_text == std::string_view(right ? right : "");
    }

private:
    std::string m_text;
};

/// UTF-8 in steps of one character.
struct LuUtf8 {
    /// The character that starts at byte `position`, which moves behind it. Bytes that are no valid UTF-8
    /// give U+FFFD one at a time. `position` must lie within the text.
    static char32_t next(std::string_view text, std::size_t& position) {
        // Nearly all text is ASCII.
        const auto lead = static_cast<unsigned char>(text[position]);
        if (lead >= 0x80)
            return nextOfSeveralBytes(text, position);
        ++position;
        return lead;
    }

    /// Appends one character.
    static void append(std::string& text, char32_t character);

    /// Number of bytes up to the first that is not valid UTF-8; the text's length when all are.
    static std::size_t validLength(std::string_view text);

private:
    static char32_t nextOfSeveralBytes(std::string_view text, std::size_t& position);
};
