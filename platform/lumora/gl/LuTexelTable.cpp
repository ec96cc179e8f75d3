// SPDX-License-Identifier: MIT
#include "platform/lumora/gl/LuTexelTable.h"

std::uint32_t LuTexelTable::add() {
    if (!m_free.empty()) {
        const std::uint32_t entry = m_free.back();
        m_free.pop_back();
        return entry;
    }
    m_texels.resize(m_texels.size() + m_texelsPerEntry);
    return static_cast<std::uint32_t>(m_texels.size() / m_texelsPerEntry - 1);
}

LuTexel* LuTexelTable::change(std::uint32_t entry) {
    const std::size_t begin = entry * m_texelsPerEntry;
    m_dirty.mark(begin, begin + m_texelsPerEntry);
    return &m_texels[begin];
}
