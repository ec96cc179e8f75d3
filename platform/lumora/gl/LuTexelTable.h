// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/gl/LuDirtyRanges.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <functional>
#include <string_view>
#include <unordered_map>
#include <vector>

/// Four numbers that a shader fetches at once.
struct LuTexel {
    float x = 0, y = 0, z = 0, w = 0;
};

/// Entries of some texels each, as they stand in a texture. Entries come and go; an index stays as long as
/// its entry does.
class LuTexelTable {
public:
    explicit LuTexelTable(std::size_t texelsPerEntry) : m_texelsPerEntry(texelsPerEntry) {}

    /// The index of a new entry, whose texels hold anything.
    std::uint32_t add();
    void remove(std::uint32_t entry) { m_free.push_back(entry); }

    /// The texels of an entry, to be written to.
    LuTexel* change(std::uint32_t entry);
    const LuTexel* get(std::uint32_t entry) const { return &m_texels[entry * m_texelsPerEntry]; }

    /// Entries in use.
    std::size_t getCount() const { return m_texels.size() / m_texelsPerEntry - m_free.size(); }

    const std::vector<LuTexel>& getTexels() const { return m_texels; }

    /// The texels that have changed since the last call.
    std::vector<LuDirtyRanges::Range> takeDirtyTexels() { return m_dirty.take(m_texels.size()); }
    bool isDirty() const { return !m_dirty.isEmpty(); }

private:
    std::size_t m_texelsPerEntry;
    std::vector<LuTexel> m_texels;
    std::vector<std::uint32_t> m_free;
    LuDirtyRanges m_dirty;
};

/// A table in which equal entries are one. Users are counted; an entry goes with its last user.
template <std::size_t TEXELS>
class LuSharedTexelTable {
public:
    using Entry = std::array<LuTexel, TEXELS>;

    /// The index of this entry, for one more user.
    std::uint32_t acquire(const Entry& entry) {
        for (const std::uint32_t index : m_recent) {
            if (index < m_users.size() && m_users[index] > 0 && isAt(index, entry)) {
                ++m_users[index];
                return index;
            }
        }
        const auto [place, isNew] = m_indices.try_emplace(Key{entry}, 0);
        if (isNew) {
            place->second = m_table.add();
            std::memcpy(m_table.change(place->second), entry.data(), sizeof entry);
            if (m_users.size() <= place->second)
                m_users.resize(place->second + 1);
        }
        m_recent[m_nextRecent++ % NUM_RECENT] = place->second;
        ++m_users[place->second];
        return place->second;
    }
    void retain(std::uint32_t index) { ++m_users[index]; }
    void release(std::uint32_t index) {
        if (--m_users[index] > 0)
            return;
        m_indices.erase(Key{get(index)});
        m_table.remove(index);
    }
    Entry get(std::uint32_t index) const {
        Entry entry;
        std::memcpy(entry.data(), m_table.get(index), sizeof entry);
        return entry;
    }
    LuTexelTable& getTable() { return m_table; }
    const LuTexelTable& getTable() const { return m_table; }

private:
    /// Compared by bits: a number that is none equals itself here.
    struct Key {
        Entry entry;
        std::string_view view() const { return {reinterpret_cast<const char*>(entry.data()), sizeof entry}; }
        friend bool operator==(const Key& left, const Key& right) { return left.view() == right.view(); }
    };
    struct Hash {
        std::size_t operator()(const Key& key) const { return std::hash<std::string_view>()(key.view()); }
    };

    bool isAt(std::uint32_t index, const Entry& entry) const {
        return std::memcmp(m_table.get(index), entry.data(), sizeof entry) == 0;
    }

    /// The few that the parts of a panel's controls take in turn are found without hashing.
    static constexpr std::size_t NUM_RECENT = 4;

    LuTexelTable m_table{TEXELS};
    std::unordered_map<Key, std::uint32_t, Hash> m_indices;
    std::vector<std::uint32_t> m_users;
    std::array<std::uint32_t, NUM_RECENT> m_recent{}; ///< May have gone meanwhile.
    std::size_t m_nextRecent = 0;
};
