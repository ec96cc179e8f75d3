// SPDX-License-Identifier: MIT
#include "platform/lumora/kits/LuNodekitCatalog.h"

#include <algorithm>

namespace {

/// Fields are aligned to pointers.
std::size_t getPlace(std::ptrdiff_t fieldOffset) {
    return static_cast<std::size_t>(fieldOffset) / alignof(void*);
}

} // namespace

LuNodekitCatalog::LuNodekitCatalog(LuType kitType) {
    LuNodekitPart kit;
    kit.name = "this";
    kit.type = kitType;
    kit.defaultType = kitType;
    kit.nullByDefault = false;
    append(kit);
}

void LuNodekitCatalog::append(const LuNodekitPart& part) {
    m_parts.push_back(part);
    m_names.push_back(part.name);
    const std::size_t place = getPlace(part.fieldOffset);
    if (place >= m_partsAtPlaces.size())
        m_partsAtPlaces.resize(place + 1, -1);
    m_partsAtPlaces[place] = static_cast<std::int16_t>(getNumEntries() - 1);
}

LuNodekitCatalog* LuNodekitCatalog::clone(LuType kitType) const {
    auto* copy = new LuNodekitCatalog(kitType);
    for (std::size_t i = 1; i < m_parts.size(); ++i)
        copy->append(m_parts[i]);
    copy->m_hasDefaultParts = m_hasDefaultParts;
    return copy;
}

bool LuNodekitCatalog::addEntry(const LuNodekitPart& part) {
    const bool isUsable = !part.type.isBad() && part.defaultType.isDerivedFrom(part.type);
    const bool hasSibling = part.rightSibling.isEmpty() || getPartNumber(part.rightSibling) >= 0;
    if (!isUsable || !hasSibling || getPartNumber(part.name) >= 0 || getPartNumber(part.parent) < 0)
        return false;
    LuNodekitPart numbered = part;
    numbered.parentNumber = getPartNumber(part.parent);
    numbered.rightSiblingNumber = getPartNumber(part.rightSibling);
    append(numbered);
    m_hasDefaultParts |= !part.nullByDefault;
    return true;
}

int LuNodekitCatalog::getPartNumber(LvName name) const {
    const auto found = std::find(m_names.begin(), m_names.end(), name);
    return found == m_names.end() ? -1 : static_cast<int>(found - m_names.begin());
}

int LuNodekitCatalog::getPartNumber(std::ptrdiff_t fieldOffset) const {
    const std::size_t place = getPlace(fieldOffset);
    return place < m_partsAtPlaces.size() ? m_partsAtPlaces[place] : -1;
}
