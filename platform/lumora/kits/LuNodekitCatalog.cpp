// SPDX-License-Identifier: MIT
#include "platform/lumora/kits/LuNodekitCatalog.h"

LuNodekitCatalog::LuNodekitCatalog(LuType kitType) {
    LuNodekitPart kit;
    kit.name = "this";
    kit.type = kitType;
    kit.defaultType = kitType;
    kit.nullByDefault = false;
    m_parts.push_back(kit);
}

LuNodekitCatalog* LuNodekitCatalog::clone(LuType kitType) const {
    auto* copy = new LuNodekitCatalog(kitType);
    copy->m_parts.insert(copy->m_parts.end(), m_parts.begin() + 1, m_parts.end());
    copy->m_hasDefaultParts = m_hasDefaultParts;
    return copy;
}

bool LuNodekitCatalog::addEntry(const LuNodekitPart& part) {
    const bool isUsable = !part.type.isBad() && part.defaultType.isDerivedFrom(part.type);
    const bool hasSibling = part.rightSibling.isEmpty() || getPartNumber(part.rightSibling) >= 0;
    if (!isUsable || !hasSibling || getPartNumber(part.name) >= 0 || getPartNumber(part.parent) < 0)
        return false;
    m_parts.push_back(part);
    m_hasDefaultParts |= !part.nullByDefault;
    return true;
}

int LuNodekitCatalog::getPartNumber(LvName name) const {
    for (int i = 0; i < getNumEntries(); ++i) {
        if (getName(i) == name)
            return i;
    }
    return -1;
}
