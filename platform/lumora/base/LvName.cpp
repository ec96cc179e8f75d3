// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LvName.h"

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

} // namespace

LvName::LvName(std::string_view text) {
    if (text.empty())
        return;
    NameTable& table = getTable();
    auto found = table.find(text);
    if (found == table.end())
        found = table.emplace(text).first;
    m_text = &*found;
}

LvName LvName::findExisting(std::string_view text) {
    const NameTable& table = getTable();
    const auto found = table.find(text);
    return found == table.end() ? LvName() : LvName(&*found);
}
