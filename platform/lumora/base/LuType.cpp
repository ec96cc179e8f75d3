// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LuType.h"

#include <algorithm>
#include <cctype>
#include <limits>
#include <unordered_map>
#include <vector>

namespace {

struct TypeRecord {
    LvName name;
    LuType parent;
    LuType::CreateMethod create = nullptr;
    int data = 0;
    bool isRemoved = false;
    std::vector<LuType> chain; ///< From the root type down to this type.
};

struct TypeTable {
    std::vector<TypeRecord> records{TypeRecord{}};
    std::unordered_map<LvName, LuType> byName;
};

TypeTable& getTable() {
    // Never destroyed: static objects ask for types until the process ends.
    static TypeTable& s_table = *new TypeTable;
    return s_table;
}

std::string_view withoutPrefix(std::string_view name) {
    return name.substr(0, 2) == "Lu" ? name.substr(2) : name;
}

} // namespace

LuType LuType::createType(LuType parent, LvName name, CreateMethod create, int data) {
    TypeTable& table = getTable();
    if (const auto found = table.byName.find(name); found != table.byName.end())
        return found->second;
    // A class that is registered again after its end takes its old index back.
    auto record = std::find_if(table.records.begin() + 1, table.records.end(),
                               [name](const TypeRecord& r) { return r.isRemoved && r.name == name; });
    if (record == table.records.end()) {
        if (table.records.size() > std::numeric_limits<std::uint16_t>::max())
            return badType();
        record = table.records.insert(record, TypeRecord{});
    }
    const LuType type(static_cast<int>(record - table.records.begin()));
    *record = {name, parent, create, data, false, table.records[parent.m_index].chain};
    record->chain.push_back(type);
    table.byName[name] = type;
    return type;
}

bool LuType::removeType(LvName name) {
    TypeTable& table = getTable();
    const auto found = table.byName.find(name);
    if (found == table.byName.end())
        return false;
    table.records[found->second.m_index].isRemoved = true;
    table.byName.erase(found);
    return true;
}

LuType LuType::fromName(LvName name) {
    const TypeTable& table = getTable();
    if (const auto found = table.byName.find(name); found != table.byName.end())
        return found->second;
    const std::string_view shortName = withoutPrefix(name.view());
    if (shortName.size() == name.view().size())
        return badType();
    const auto found = table.byName.find(LvName::findExisting(shortName));
    return found == table.byName.end() ? badType() : found->second;
}

LvName LuType::findNearestName(std::string_view word, LuType base) {
    LuNearestName nearest(withoutPrefix(word));
    for (const auto& [name, type] : getTable().byName) {
        if (type.isDerivedFrom(base) && type.canCreateInstance())
            nearest.consider(name);
    }
    return nearest.get();
}

LvName LuType::getName() const { return getTable().records[m_index].name; }
LuType LuType::getParent() const { return getTable().records[m_index].parent; }
int LuType::getData() const { return getTable().records[m_index].data; }
bool LuType::canCreateInstance() const { return getTable().records[m_index].create != nullptr; }

bool LuType::isDerivedFrom(LuType base) const {
    if (m_index == base.m_index)
        return m_index != 0;
    const std::vector<TypeRecord>& records = getTable().records;
    const std::size_t depth = records[base.m_index].chain.size();
    const std::vector<LuType>& chain = records[m_index].chain;
    return depth != 0 && depth <= chain.size() && chain[depth - 1] == base;
}

LuTypedObject* LuType::createInstance() const {
    const CreateMethod create = getTable().records[m_index].create;
    return create ? create() : nullptr;
}

int luEditDistance(std::string_view left, std::string_view right) {
    const auto lower = [](char c) { return std::tolower(static_cast<unsigned char>(c)); };
    std::vector<int> beforeLast(right.size() + 1), last(right.size() + 1), row(right.size() + 1);
    for (std::size_t j = 0; j <= right.size(); ++j)
        last[j] = static_cast<int>(j);
    for (std::size_t i = 1; i <= left.size(); ++i) {
        row[0] = static_cast<int>(i);
        for (std::size_t j = 1; j <= right.size(); ++j) {
            const bool isSame = lower(left[i - 1]) == lower(right[j - 1]);
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (isSame ? 0 : 1)});
            const bool isSwap = i > 1 && j > 1 && lower(left[i - 1]) == lower(right[j - 2]) &&
                                lower(left[i - 2]) == lower(right[j - 1]);
            if (isSwap)
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
        }
        std::swap(beforeLast, last);
        std::swap(last, row);
    }
    return last[right.size()];
}

void LuNearestName::consider(LvName candidate) {
    // Far longer words are no mistyped names, and a hostile one would only cost time.
    if (m_word.size() > candidate.view().size() + 3)
        return;
    const int distance = luEditDistance(m_word, candidate.view());
    const int limit = std::max(1, static_cast<int>(m_word.size()) / 3);
    const bool isBetter = m_best.isEmpty() || distance < m_bestDistance ||
                          (distance == m_bestDistance && candidate.view() < m_best.view());
    if (distance <= limit && isBetter) {
        m_best = candidate;
        m_bestDistance = distance;
    }
}
