// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LvPList.h"

#include <algorithm>

int LvPList::find(const void* item) const {
    const auto found = std::find(m_items.begin(), m_items.end(), item);
    return found == m_items.end() ? -1 : static_cast<int>(found - m_items.begin());
}

void LvPList::remove(int index) {
    if (index >= 0 && index < getLength())
        m_items.erase(m_items.begin() + index);
}

void LvPList::insert(void* item, int index) {
    m_items.insert(m_items.begin() + std::clamp(index, 0, getLength()), item);
}

void LvPList::truncate(int length) {
    if (length < getLength())
        m_items.resize(static_cast<std::size_t>(std::max(length, 0)));
}

void*& LvPList::operator[](int index) {
    if (index < 0) {
        m_outside = nullptr;
        return m_outside;
    }
    if (index >= getLength())
        grow(index + 1);
    return m_items[static_cast<std::size_t>(index)];
}

void LvPList::grow(int length) { m_items.resize(static_cast<std::size_t>(length), nullptr); }
