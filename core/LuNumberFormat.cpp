// SPDX-License-Identifier: MIT
#include "core/LuNumberFormat.h"

#include "platform/lumora/base/LuDebugError.h"

#include <algorithm>
#include <clocale>
#include <cmath>
#include <cstdio>

namespace {

constexpr std::string_view FLAGS = "-+ #0";
constexpr std::string_view WHOLE_LETTERS = "diuoxX";
constexpr std::string_view REAL_LETTERS = "fFeEgGaA";

/// Room for the longest: the digits of the greatest double, and MAX_WIDTH behind the point.
constexpr std::size_t BUFFER_SIZE = 512;

/// How much of a bad format a message shows, in bytes.
constexpr std::size_t SHOWN_LENGTH = 60;

bool isDigit(char character) { return character >= '0' && character <= '9'; }

/// Reads digits; what is too great stays so.
int readNumber(std::string_view text, std::size_t& at) {
    int number = 0;
    for (; at < text.size() && isDigit(text[at]); ++at)
        number = std::min(number * 10 + (text[at] - '0'), LuNumberFormat::MAX_WIDTH + 1);
    return number;
}

} // namespace

void luReplaceDecimalPoint(std::string& digits, std::string_view point) {
    const std::size_t place = point.empty() ? digits.npos : digits.find(point);
    if (place != digits.npos)
        digits.replace(place, point.size(), ".");
}

LuNumberFormat::LuNumberFormat(Kind kind, const char* fallback)
    : m_kind(kind), m_fallback(fallback), m_text(fallback) {
    read(m_text.str(), m_conversion);
}

void LuNumberFormat::set(const LvString& text) {
    if (text == m_text)
        return;
    m_text = text;
    Conversion conversion;
    if (const char* const fault = read(text.str(), conversion)) {
        const std::string_view shown = text.view().substr(0, SHOWN_LENGTH);
        LuDebugError::post("LuNumberFormat",
                           "\"%s\" is no format for a %s number: %s. \"%s\" is used instead.",
                           std::string(shown.substr(0, LuUtf8::validLength(shown))).c_str(),
                           m_kind == WHOLE ? "whole" : "real", fault, m_fallback.getString());
        conversion = {};
        read(m_fallback.str(), conversion);
    }
    m_conversion = conversion;
}

/// Gives what is wrong, or null.
const char* LuNumberFormat::read(const std::string& text, Conversion& conversion) const {
    for (std::size_t at = 0; at < text.size();) {
        std::string& around = conversion.letter ? conversion.after : conversion.before;
        const char character = text[at++];
        if (character != '%') {
            around += character;
        } else if (at < text.size() && text[at] == '%') {
            around += text[at++];
        } else if (conversion.letter) {
            return "it has more than one conversion";
        } else if (const char* const fault = readConversion(text, at, conversion)) {
            return fault;
        }
    }
    return conversion.letter ? nullptr : "it has no conversion";
}

/// Reads what stands behind the "%".
const char* LuNumberFormat::readConversion(std::string_view text, std::size_t& at,
                                           Conversion& conversion) const {
    for (; at < text.size() && FLAGS.find(text[at]) != FLAGS.npos; ++at)
        conversion.flags += text[at];
    conversion.width = readNumber(text, at);
    if (at < text.size() && text[at] == '.')
        conversion.precision = readNumber(text, ++at);
    if (std::max(conversion.width, conversion.precision) > MAX_WIDTH)
        return "its width or its precision is too great";
    // A length that printf allows for a double, and that changes nothing.
    if (m_kind == REAL && at < text.size() && text[at] == 'l')
        ++at;
    const std::string_view letters = m_kind == WHOLE ? WHOLE_LETTERS : REAL_LETTERS;
    if (at == text.size() || letters.find(text[at]) == letters.npos)
        return "its conversion does not fit";
    conversion.letter = text[at++];
    return nullptr;
}

/// What is left to the system: all but the width.
std::string LuNumberFormat::getSpecification() const {
    std::string specification = "%";
    for (const char flag : {'+', ' ', '#'}) {
        if (m_conversion.flags.find(flag) != m_conversion.flags.npos)
            specification += flag;
    }
    if (m_conversion.precision >= 0)
        specification += '.' + std::to_string(m_conversion.precision);
    return specification + m_conversion.letter;
}

LvString LuNumberFormat::print(int number) const {
    char digits[BUFFER_SIZE];
    const std::string specification = getSpecification();
    if (m_conversion.letter == 'd' || m_conversion.letter == 'i')
        std::snprintf(digits, sizeof digits, specification.c_str(), number);
    else
        std::snprintf(digits, sizeof digits, specification.c_str(), static_cast<unsigned>(number));
    return pad(digits, m_conversion.precision < 0);
}

LvString LuNumberFormat::print(double number) const {
    char digits[BUFFER_SIZE];
    std::snprintf(digits, sizeof digits, getSpecification().c_str(), number);
    std::string text = digits;
    // The system writes the point of the process's locale.
    luReplaceDecimalPoint(text, std::localeconv()->decimal_point);
    return pad(text, std::isfinite(number));
}

/// Brings the digits to the width and puts the text about them. Zeros come between the sign and the digits.
LvString LuNumberFormat::pad(std::string digits, bool isZeroPadded) const {
    const auto width = static_cast<std::size_t>(m_conversion.width);
    const auto hasFlag = [&](char flag) { return m_conversion.flags.find(flag) != m_conversion.flags.npos; };
    if (digits.size() < width) {
        const std::size_t missing = width - digits.size();
        if (hasFlag('-')) {
            digits.append(missing, ' ');
        } else if (hasFlag('0') && isZeroPadded) {
            std::size_t first = digits.find_first_not_of("+- ");
            if (digits.compare(first, 2, "0x") == 0 || digits.compare(first, 2, "0X") == 0)
                first += 2;
            digits.insert(first, missing, '0');
        } else {
            digits.insert(0, missing, ' ');
        }
    }
    return m_conversion.before + digits + m_conversion.after;
}
