// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LuPool.h"
#include "platform/lumora/base/LvString.h"

#include <vector>

/// A list of pointers. It owns nothing.
class LvPList : public LuPooled {
public:
    void append(void* item) { m_items.push_back(item); }

    /// Index of the first equal entry, or -1.
    int find(const void* item) const;

    /// Removes one entry; an index outside the list is ignored.
    void remove(int index);

    void insert(void* item, int index);

    /// Drops the entries from `length` on.
    void truncate(int length);

    int getLength() const { return static_cast<int>(m_items.size()); }

    /// The entry's slot. An index at or beyond the length grows the list with null entries; a negative one
    /// gives a slot that belongs to no entry.
    void*& operator[](int index);

private:
    void grow(int length);

    std::vector<void*> m_items;
    void* m_outside = nullptr;
};

/// A list of texts. It owns nothing.
class LvStringList {
public:
    void append(LvString* text) { m_items.append(text); }
    int getLength() const { return m_items.getLength(); }
    void truncate(int length) { m_items.truncate(length); }
    LvString* operator[](int index) { return static_cast<LvString*>(m_items[index]); }

private:
    LvPList m_items;
};
