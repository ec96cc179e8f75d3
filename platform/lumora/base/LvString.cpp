// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LvString.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

constexpr char32_t REPLACEMENT = 0xFFFD;

bool isAscii(unsigned char byte) { return byte < 0x80; }

int sequenceLength(unsigned char lead) {
    if (isAscii(lead))
        return 1;
    if (lead >= 0xC2 && lead < 0xE0)
        return 2;
    if (lead >= 0xE0 && lead < 0xF0)
        return 3;
    if (lead >= 0xF0 && lead < 0xF5)
        return 4;
    return 0;
}

/// Decodes one sequence; false for anything but the shortest form of a valid character.
bool decode(std::string_view text, std::size_t position, char32_t& character, int& length) {
    const auto lead = static_cast<unsigned char>(text[position]);
    length = sequenceLength(lead);
    if (length == 0 || position + static_cast<std::size_t>(length) > text.size())
        return false;
    static constexpr unsigned char LEAD_MASK[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
    character = lead & LEAD_MASK[length];
    for (int i = 1; i < length; ++i) {
        const auto byte = static_cast<unsigned char>(text[position + static_cast<std::size_t>(i)]);
        if ((byte & 0xC0) != 0x80)
            return false;
        character = (character << 6) | (byte & 0x3F);
    }
    static constexpr char32_t SMALLEST[] = {0, 0, 0x80, 0x800, 0x10000};
    return character >= SMALLEST[length] && character <= 0x10FFFF &&
           (character < 0xD800 || character > 0xDFFF);
}

constexpr std::string_view SPACES = " \t\n\v\f\r";

/// The text from where a number may begin: behind white space and a plus sign.
std::string_view skipToNumber(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(SPACES), text.size()));
    const bool hasPlus = text.size() > 1 && text[0] == '+' && text[1] != '-';
    return hasPlus ? text.substr(1) : text;
}

/// What stands for a number that no float can hold.
float getExtreme(std::string_view word) {
    const bool isNegative = word.starts_with('-');
    double exact = 0;
    bool isSmall = false;
    if (std::from_chars(word.data(), word.data() + word.size(), exact).ec == std::errc()) {
        isSmall = std::abs(exact) < 1;
    } else {
        // No double can hold it either: then its look has to do.
        const std::size_t exponent = word.find_first_of("eE");
        const char first = word[isNegative ? 1 : 0];
        isSmall = exponent == word.npos ? first == '0' || first == '.' : word[exponent + 1] == '-';
    }
    const float extreme = isSmall ? 0 : std::numeric_limits<float>::infinity();
    return isNegative ? -extreme : extreme;
}

} // namespace

char32_t LuUtf8::nextOfSeveralBytes(std::string_view text, std::size_t& position) {
    char32_t character = 0;
    int length = 0;
    if (!decode(text, position, character, length)) {
        ++position;
        return REPLACEMENT;
    }
    position += static_cast<std::size_t>(length);
    return character;
}

void LuUtf8::append(std::string& text, char32_t character) {
    const auto put = [&text](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0 | (character >> 6));
        put(0x80 | (character & 0x3F));
    } else if (character < 0x10000) {
        put(0xE0 | (character >> 12));
        put(0x80 | ((character >> 6) & 0x3F));
        put(0x80 | (character & 0x3F));
    } else {
        put(0xF0 | (character >> 18));
        put(0x80 | ((character >> 12) & 0x3F));
        put(0x80 | ((character >> 6) & 0x3F));
        put(0x80 | (character & 0x3F));
    }
}

std::size_t LuUtf8::validLength(std::string_view text) {
    std::size_t position = 0;
    while (position < text.size()) {
        char32_t character = 0;
        int length = 0;
        if (!decode(text, position, character, length))
            return position;
        position += static_cast<std::size_t>(length);
    }
    return position;
}

LvString LvString::fromLatin1(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (const char byte : text)
        LuUtf8::append(result, static_cast<unsigned char>(byte));
    return result;
}

LvString LvString::fromWide(std::wstring_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        auto unit = static_cast<char32_t>(text[i]);
        if constexpr (sizeof(wchar_t) == 2) {
            const bool isHigh = unit >= 0xD800 && unit < 0xDC00;
            if (isHigh && i + 1 < text.size()) {
                const auto low = static_cast<char32_t>(text[i + 1]);
                if (low >= 0xDC00 && low < 0xE000) {
                    unit = 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
                    ++i;
                }
            }
        }
        const bool isValid = unit <= 0x10FFFF && (unit < 0xD800 || unit > 0xDFFF);
        LuUtf8::append(result, isValid ? unit : REPLACEMENT);
    }
    return result;
}

std::string LvString::toLatin1() const {
    if (std::all_of(m_text.begin(), m_text.end(), isAscii))
        return m_text;
    std::string result;
    result.reserve(m_text.size());
    for (std::size_t position = 0; position < m_text.size();) {
        const char32_t character = LuUtf8::next(m_text, position);
        result += character < 0x100 ? static_cast<char>(static_cast<unsigned char>(character)) : '?';
    }
    return result;
}

std::wstring LvString::toWide() const {
    std::wstring result;
    result.reserve(m_text.size());
    for (std::size_t position = 0; position < m_text.size();) {
        char32_t character = LuUtf8::next(m_text, position);
        if (sizeof(wchar_t) == 2 && character >= 0x10000) {
            character -= 0x10000;
            result += static_cast<wchar_t>(0xD800 + (character >> 10));
            character = 0xDC00 + (character & 0x3FF);
        }
        result += static_cast<wchar_t>(character);
    }
    return result;
}

int LvString::find(std::string_view part, int from) const {
    const std::size_t position = m_text.find(part, static_cast<std::size_t>(std::max(from, 0)));
    return position == std::string::npos ? npos : static_cast<int>(position);
}

LvString LvString::getSubString(int start, int end) const {
    const int length = getLength();
    const int first = std::clamp(start, 0, length);
    const int last = end < 0 ? length : std::clamp(end, first, length);
    return m_text.substr(static_cast<std::size_t>(first), static_cast<std::size_t>(last - first));
}

int LvString::toInt() const {
    const std::string_view word = skipToNumber(m_text);
    int number = 0;
    const std::errc error = std::from_chars(word.data(), word.data() + word.size(), number).ec;
    if (error != std::errc::result_out_of_range)
        return number;
    return word.starts_with('-') ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
}

float LvString::toFloat() const {
    const std::string_view word = skipToNumber(m_text);
    const char* const end = word.data() + word.size();
    float number = 0;
    const auto [rest, error] = std::from_chars(word.data(), end, number);
    if (error != std::errc::result_out_of_range)
        return number;
    return getExtreme(word.substr(0, static_cast<std::size_t>(rest - word.data())));
}
