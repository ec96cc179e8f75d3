// SPDX-License-Identifier: MIT
#include "platform/lumora/io/LuInput.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

namespace {

enum CharacterKind : unsigned char { WORD, SPACE, DELIMITER, CONTROL };

constexpr std::array<CharacterKind, 256> makeKinds() {
    std::array<CharacterKind, 256> kinds{};
    for (int i = 0; i < 0x20; ++i)
        kinds[static_cast<std::size_t>(i)] = CONTROL;
    kinds[0x7F] = CONTROL;
    for (const char space : {' ', '\t', '\r', '\n', '\f', '\v'})
        kinds[static_cast<unsigned char>(space)] = SPACE;
    for (const char delimiter : {'{', '}', '[', ']', '"', ',', '#', '~'})
        kinds[static_cast<unsigned char>(delimiter)] = DELIMITER;
    return kinds;
}

constexpr std::array<CharacterKind, 256> s_kinds = makeKinds();

CharacterKind kindOf(char character) { return s_kinds[static_cast<unsigned char>(character)]; }

bool isAscii(std::string_view text) {
    return std::none_of(text.begin(), text.end(), [](char c) { return static_cast<signed char>(c) < 0; });
}

const char* endOfWord(const char* from, const char* end) {
    return std::find_if(from, end, [](char c) { return kindOf(c) != WORD; });
}

/// The shortest form that a message can show: long words are cut, bytes that are no text are hidden.
std::string quoted(std::string_view text) {
    std::string shown = "\"";
    shown += text.substr(0, std::min<std::size_t>(LuUtf8::validLength(text), 60));
    // The cut may have gone through a character.
    shown.resize(LuUtf8::validLength(shown));
    return shown + (shown.size() - 1 < text.size() ? "...\"" : "\"");
}

std::string_view withoutPlus(std::string_view word) {
    const bool hasPlus = word.size() > 1 && word[0] == '+' && word[1] != '-';
    return hasPlus ? word.substr(1) : word;
}

/// A number below the smallest that float holds is a zero, one above the greatest is a fault.
bool isTooSmall(std::string_view word) {
    double exact = 0;
    const std::from_chars_result result = std::from_chars(word.data(), word.data() + word.size(), exact);
    if (result.ec == std::errc())
        return std::abs(exact) < 1;
    return word.find("e-") != word.npos || word.find("E-") != word.npos || word.starts_with("0.") ||
           word.starts_with("-0.");
}

} // namespace

/// False at the end of the file.
bool LuInput::skipSpace() {
    while (m_current != m_end) {
        if (kindOf(*m_current) == SPACE) {
            ++m_current;
        } else if (*m_current == '#') {
            const void* lineEnd = std::memchr(m_current, '\n', static_cast<std::size_t>(m_end - m_current));
            m_current = lineEnd ? static_cast<const char*>(lineEnd) : m_end;
        } else {
            return true;
        }
    }
    return false;
}

bool LuInput::isAtEnd() { return m_isBinary ? m_current == m_end : !skipSpace(); }

char LuInput::peekCharacter() { return skipSpace() ? *m_current : '\0'; }

bool LuInput::readCharacter(char expected) {
    if (!skipSpace() || *m_current != expected)
        return false;
    m_tokenStart = m_current++;
    return true;
}

bool LuInput::expectCharacter(char expected, const char* purpose) {
    if (readCharacter(expected))
        return true;
    const std::string found = describeNext();
    return postError("found %s, expected \"%c\" %s", found.c_str(), expected, purpose);
}

std::string_view LuInput::readWord() {
    skipSpace();
    m_tokenStart = m_current;
    m_current = endOfWord(m_current, m_end);
    return {m_tokenStart, static_cast<std::size_t>(m_current - m_tokenStart)};
}

bool LuInput::readKeyword(std::string_view keyword) {
    if (readWord() == keyword)
        return true;
    putBackWord();
    return false;
}

bool LuInput::checkText(std::string_view text) {
    const std::size_t valid = isAscii(text) ? text.size() : LuUtf8::validLength(text);
    const std::size_t zero = text.substr(0, valid).find('\0');
    if (zero == text.npos && valid == text.size())
        return true;
    const std::size_t fault = std::min(zero, valid);
    m_tokenStart = text.data() + fault;
    return postError(zero == text.npos ? "found the byte 0x%02X, expected UTF-8"
                                       : "found the byte 0x%02X in a text",
                     static_cast<unsigned char>(text[fault]));
}

bool LuInput::readIdentifier(LvName& name, const char* purpose) {
    if (peekCharacter() == '"')
        return read(name);
    const std::string_view word = readWord();
    if (word.empty())
        return postError("found %s, expected a name %s", describeFound().c_str(), purpose);
    if (!checkText(word))
        return false;
    name = LvName(word);
    return true;
}

std::string LuInput::describeFound() const {
    if (m_tokenStart == m_end)
        return "the end of the file";
    if (kindOf(*m_tokenStart) == CONTROL || LuUtf8::validLength({m_tokenStart, 1}) == 0) {
        const char* wordEnd = endOfWord(m_tokenStart, m_end);
        const std::string_view word(m_tokenStart, static_cast<std::size_t>(wordEnd - m_tokenStart));
        if (LuUtf8::validLength(word) == 0) {
            char text[32];
            std::snprintf(text, sizeof text, "the byte 0x%02X", static_cast<unsigned char>(*m_tokenStart));
            return text;
        }
    }
    if (*m_tokenStart == '"')
        return "a text in quotes";
    if (kindOf(*m_tokenStart) == DELIMITER)
        return quoted({m_tokenStart, 1});
    const char* wordEnd = endOfWord(m_tokenStart, m_end);
    return quoted({m_tokenStart, static_cast<std::size_t>(wordEnd - m_tokenStart)});
}

std::string LuInput::describeNext() {
    if (m_hasFailed)
        return {};
    skipSpace();
    m_tokenStart = m_current;
    return describeFound();
}

bool LuInput::endValue() {
    if (m_hasFailed)
        return false;
    if (!m_isSingleValue || isAtEnd())
        return true;
    const std::string found = describeNext();
    return postError("found %s, expected the end of the value", found.c_str());
}

bool LuInput::readNumberWord(std::string_view& word, const char* expected) {
    word = readWord();
    return !word.empty() || postError("found %s, expected %s", describeFound().c_str(), expected);
}

bool LuInput::read(std::int32_t& value) {
    if (m_isBinary) {
        unsigned char bytes[4];
        if (!readBytes(bytes, sizeof bytes))
            return false;
        const std::uint32_t bits = static_cast<std::uint32_t>(bytes[0]) << 24 |
                                   static_cast<std::uint32_t>(bytes[1]) << 16 |
                                   static_cast<std::uint32_t>(bytes[2]) << 8 | bytes[3];
        value = static_cast<std::int32_t>(bits);
        return true;
    }
    std::string_view word;
    if (!readNumberWord(word, "a whole number"))
        return false;
    const std::string_view digits = withoutPlus(word);
    const char* const digitsEnd = digits.data() + digits.size();
    std::int32_t number = 0;
    const std::from_chars_result result = std::from_chars(digits.data(), digitsEnd, number);
    if (result.ptr != digitsEnd || result.ec == std::errc::invalid_argument)
        return postError("found %s, expected a whole number", quoted(word).c_str());
    if (result.ec == std::errc::result_out_of_range)
        return postError("the number %s is out of range: expected %d to %d", quoted(word).c_str(),
                         std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max());
    value = number;
    return true;
}

bool LuInput::read(float& value) {
    if (m_isBinary) {
        std::int32_t bits = 0;
        if (!read(bits))
            return false;
        std::memcpy(&value, &bits, sizeof value);
        return std::isfinite(value) || postError("found a number that is not finite");
    }
    std::string_view word;
    if (!readNumberWord(word, "a number"))
        return false;
    const std::string_view digits = withoutPlus(word);
    const char* const digitsEnd = digits.data() + digits.size();
    float number = 0;
    const std::from_chars_result result = std::from_chars(digits.data(), digitsEnd, number);
    if (result.ptr != digitsEnd || result.ec == std::errc::invalid_argument || !std::isfinite(number))
        return postError("found %s, expected a number", quoted(word).c_str());
    if (result.ec == std::errc::result_out_of_range) {
        if (!isTooSmall(digits))
            return postError("the number %s is out of range", quoted(word).c_str());
        number = 0;
    }
    value = number;
    return true;
}

bool LuInput::read(bool& value) {
    if (m_isBinary) {
        std::int32_t number = 0;
        if (!read(number))
            return false;
        value = number == 1;
        return number == 0 || number == 1 || postError("found %d, expected 0 or 1", number);
    }
    const std::string_view word = readWord();
    value = word == "TRUE" || word == "1";
    if (value || word == "FALSE" || word == "0")
        return true;
    return postError("found %s, expected TRUE or FALSE", describeFound().c_str());
}

bool LuInput::read(LvString& value) {
    if (!m_isBinary)
        return readQuoted(value);
    std::string_view text;
    if (!readBinaryText(text))
        return false;
    value = text;
    return true;
}

bool LuInput::read(LvName& value) {
    if (m_isBinary) {
        std::string_view text;
        if (!readBinaryText(text))
            return false;
        value = LvName(text);
        return true;
    }
    if (peekCharacter() != '"')
        return readIdentifier(value, "or a text in quotes");
    LvString text;
    if (!readQuoted(text))
        return false;
    value = LvName(text);
    return true;
}

bool LuInput::readQuoted(LvString& value) {
    if (!readCharacter('"')) {
        const std::string found = describeNext();
        return postError("found %s, expected a text in quotes", found.c_str());
    }
    const char* const open = m_tokenStart;
    bool hasEscape = false;
    for (; m_current != m_end && *m_current != '"'; ++m_current) {
        const bool isEscape =
            *m_current == '\\' && m_current + 1 != m_end && (m_current[1] == '"' || m_current[1] == '\\');
        hasEscape = hasEscape || isEscape;
        m_current += isEscape ? 1 : 0;
    }
    if (m_current == m_end)
        return postError("the text that begins here has no closing quote");
    const std::string_view raw(open + 1, static_cast<std::size_t>(m_current - open - 1));
    ++m_current;
    if (!checkText(raw))
        return false;
    return hasEscape ? unescape(raw, value) : (value = raw, true);
}

bool LuInput::unescape(std::string_view raw, LvString& value) {
    std::string text;
    text.reserve(raw.size());
    for (std::size_t i = 0; i < raw.size(); ++i) {
        const bool isEscape =
            raw[i] == '\\' && i + 1 < raw.size() && (raw[i + 1] == '"' || raw[i + 1] == '\\');
        text += raw[isEscape ? ++i : i];
    }
    value = std::move(text);
    return true;
}

bool LuInput::readBytes(void* bytes, std::size_t length) {
    m_tokenStart = m_current;
    if (static_cast<std::size_t>(m_end - m_current) < length)
        return postError("the file ends within a value");
    std::memcpy(bytes, m_current, length);
    m_current += length;
    return true;
}

bool LuInput::readBinaryText(std::string_view& text) {
    std::int32_t length = 0;
    if (!read(length))
        return false;
    const auto left = static_cast<std::size_t>(m_end - m_current);
    const std::size_t padded = (static_cast<std::size_t>(std::max(length, 0)) + 3) / 4 * 4;
    if (length < 0 || padded > left)
        return postError("found a text of %d bytes where %zu bytes are left", length, left);
    text = {m_current, static_cast<std::size_t>(length)};
    m_tokenStart = m_current;
    m_current += padded;
    return checkText(text);
}

bool LuInput::readCount(int& count, std::size_t bytesOfEach) {
    std::int32_t number = 0;
    if (!read(number))
        return false;
    const auto left = static_cast<std::size_t>(m_end - m_current);
    if (number < 0 || static_cast<std::size_t>(number) > left / bytesOfEach)
        return postError("found a count of %d where %zu bytes are left", number, left);
    count = number;
    return true;
}
