// SPDX-License-Identifier: MIT
#include "tests/host/Json.h"

#include <algorithm>
#include <charconv>

namespace {

constexpr int DEPTH_LIMIT = 200;

class JsonReader {
public:
    explicit JsonReader(std::string_view text) : m_rest(text) {}

    bool readAll(Json& json) {
        if (!readValue(json, 0))
            return false;
        skipSpace();
        return m_rest.empty();
    }

private:
    void skipSpace() {
        const std::size_t next = m_rest.find_first_not_of(" \t\r\n");
        m_rest.remove_prefix(std::min(next, m_rest.size()));
    }
    bool take(std::string_view expected) {
        if (!m_rest.starts_with(expected))
            return false;
        m_rest.remove_prefix(expected.size());
        return true;
    }
    bool takeAfterSpace(std::string_view expected) {
        skipSpace();
        return take(expected);
    }

    bool readValue(Json& json, int depth) {
        skipSpace();
        if (m_rest.empty() || depth > DEPTH_LIMIT)
            return false;
        switch (m_rest.front()) {
        case '{':
            json.kind = Json::Kind::OBJECT;
            return readSequence('}', [&] { return readMember(json, depth); });
        case '[':
            json.kind = Json::Kind::LIST;
            return readSequence(']', [&] { return readValue(json.items.emplace_back(), depth + 1); });
        case '"':
            json.kind = Json::Kind::TEXT;
            return readText(json.text);
        case 't':
        case 'f':
            json.kind = Json::Kind::BOOLEAN;
            json.boolean = m_rest.front() == 't';
            return take(json.boolean ? "true" : "false");
        default:
            json.kind = Json::Kind::NUMBER;
            return readNumber(json.number);
        }
    }

    template <class ReadItem>
    bool readSequence(char end, ReadItem readItem) {
        m_rest.remove_prefix(1);
        const std::string_view closing(&end, 1);
        if (takeAfterSpace(closing))
            return true;
        do {
            if (!readItem())
                return false;
        } while (takeAfterSpace(","));
        return take(closing);
    }

    bool readMember(Json& json, int depth) {
        std::string key;
        skipSpace();
        if (!readText(key) || json[key].kind != Json::Kind::NOTHING || !takeAfterSpace(":"))
            return false;
        return readValue(json.members.emplace_back(key, Json()).second, depth + 1);
    }

    bool readText(std::string& text) {
        if (!take("\""))
            return false;
        while (!m_rest.empty()) {
            const char character = m_rest.front();
            m_rest.remove_prefix(1);
            if (character == '"')
                return true;
            if (static_cast<unsigned char>(character) < 0x20)
                return false;
            if (character != '\\')
                text += character;
            else if (!readEscape(text))
                return false;
        }
        return false;
    }

    bool readEscape(std::string& text) {
        static constexpr std::string_view SHORT = "\"\\/bfnrt", MEANT = "\"\\/\b\f\n\r\t";
        if (take("u"))
            return readCode(text);
        const std::size_t which = m_rest.empty() ? std::string_view::npos : SHORT.find(m_rest.front());
        if (which == std::string_view::npos)
            return false;
        text += MEANT[which];
        m_rest.remove_prefix(1);
        return true;
    }

    /// Four digits of base 16. Of what is above ASCII our programs write the bytes.
    bool readCode(std::string& text) {
        unsigned code = 0;
        const std::string_view digits = m_rest.substr(0, 4);
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), code, 16);
        if (error != std::errc() || end != digits.data() + 4 || code > 0x7F)
            return false;
        text += static_cast<char>(code);
        m_rest.remove_prefix(4);
        return true;
    }

    bool readNumber(double& number) {
        const char* const end = m_rest.data() + m_rest.size();
        const auto [next, error] = std::from_chars(m_rest.data(), end, number);
        if (error != std::errc())
            return false;
        m_rest.remove_prefix(static_cast<std::size_t>(next - m_rest.data()));
        return true;
    }

    std::string_view m_rest;
};

} // namespace

std::optional<Json> Json::parse(std::string_view text) {
    Json json;
    if (!JsonReader(text).readAll(json))
        return std::nullopt;
    return json;
}

const Json& Json::getNothing() {
    static const Json s_nothing;
    return s_nothing;
}

const Json& Json::operator[](std::string_view key) const& {
    const auto place = std::find_if(members.begin(), members.end(),
                                    [key](const auto& member) { return member.first == key; });
    return place == members.end() ? getNothing() : place->second;
}

const Json& Json::operator[](std::size_t index) const& {
    return index < items.size() ? items[index] : getNothing();
}

std::vector<std::string> Json::getKeys() const {
    std::vector<std::string> keys;
    for (const auto& member : members)
        keys.push_back(member.first);
    return keys;
}

std::vector<double> Json::getNumbers() const {
    std::vector<double> numbers;
    for (const Json& item : items)
        numbers.push_back(item.number);
    return numbers;
}
