// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvString.h"

#include <cstddef>
#include <functional>

/// An interned text: equal texts share one stored copy, so comparing two names compares their texts at the
/// cost of comparing two pointers. The copies live to the end of the process.
class LvName {
public:
    LvName() = default;
    LvName(const char* text) : LvName(std::string_view(text)) {}
    LvName(const LvString& text) : LvName(text.view()) {}
    LvName(const std::string& text) : LvName(std::string_view(text)) {}
    LvName(std::string_view text);

    /// The name of this text if it has been interned before, else the empty name. Adds nothing, so a hostile
    /// file's words don't fill the table.
    static LvName findExisting(std::string_view text);

    const char* getString() const { return m_text->c_str(); }
    std::string_view view() const { return *m_text; }
    int getLength() const { return static_cast<int>(m_text->size()); }
    bool isEmpty() const { return m_text->empty(); }

    friend bool operator==(LvName left, LvName right) { return left.m_text == right.m_text; }

private:
    friend struct std::hash<LvName>;

    explicit LvName(const std::string* stored) : m_text(stored) {}

    static const std::string s_empty;
    const std::string* m_text = &s_empty;
};

template <>
struct std::hash<LvName> {
    std::size_t operator()(LvName name) const { return std::hash<const void*>()(name.m_text); }
};
