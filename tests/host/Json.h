// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// A JSON value, for tests of what programs print.
class Json {
public:
    enum class Kind { NOTHING, BOOLEAN, NUMBER, TEXT, LIST, OBJECT };

    /// Reads one value and nothing behind it but space. Strict, and an object's key may come only once: what
    /// is wrong leaves nothing.
    static std::optional<Json> parse(std::string_view text);

    Kind kind = Kind::NOTHING;
    bool boolean = false;
    double number = 0;
    std::string text;
    std::vector<Json> items;
    std::vector<std::pair<std::string, Json>> members; ///< In the order of the file.

    /// A member of an object, an item of a list; a value of the kind NOTHING where there is none. What comes
    /// out belongs to this value, so a temporary one gives nothing.
    const Json& operator[](std::string_view key) const&;
    const Json& operator[](std::size_t index) const&;
    const Json& operator[](int index) const& { return (*this)[static_cast<std::size_t>(index)]; }
    const Json& operator[](std::string_view key) const&& = delete;
    const Json& operator[](std::size_t index) const&& = delete;
    const Json& operator[](int index) const&& = delete;

    static const Json& getNothing();

    std::vector<std::string> getKeys() const;

    /// The numbers of a list.
    std::vector<double> getNumbers() const;
};
