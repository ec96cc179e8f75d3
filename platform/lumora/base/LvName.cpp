// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LvName.h"

#include <array>
#include <cstdint>
#include <unordered_set>

const std::string LvName::s_empty;

namespace {

struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
};

using NameTable = std::unordered_set<std::string, TextHash, std::equal_to<>>;

NameTable& getTable() {
    // Never destroyed: names in static objects are used until the last of them has gone.
    static NameTable& s_table = *new NameTable;
    return s_table;
}

/// What was interned last from about this place in memory. A literal is interned again and again from its
/// own.
struct Recent {
    const char* place = nullptr;
    const std::string* stored = nullptr;
};

Recent& getRecent(const char* place) {
    constexpr std::size_t COUNT = 256;
    static std::array<Recent, COUNT> s_recent;
    return s_recent[reinterpret_cast<std::uintptr_t>(place) * 0x9E3779B97F4A7C15 >> 56];
}

} // namespace

LvName::LvName(std::string_view text) {
    if (text.empty())
        return;
    Recent& recent = getRecent(text.data());
    // The place may hold another text by now.
    if (recent.place == text.data() && *recent.stored == text) {
        m_text = recent.stored;
        return;
    }
    NameTable& table = getTable();
    auto found = table.find(text);
    if (found == table.end())
        found = table.emplace(text).first;
    m_text = &*found;
    recent = {text.data(), m_text};
}

LvName LvName::findExisting(std::string_view text) {
    const NameTable& table = getTable();
    const auto found = table.find(text);
    return found == table.end() ? LvName() : LvName(&*found);
}
