// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

/// Which entries of an array have changed since they were last sent on.
class LuDirtyRanges {
public:
    struct Range {
        std::size_t begin;
        std::size_t end; ///< Behind the last entry.
    };

    void mark(std::size_t begin, std::size_t end);
    void markOne(std::size_t index) { mark(index, index + 1); }
    bool isEmpty() const { return m_ranges.empty(); }

    /// The ranges in order, near ones joined; none is left afterwards. Entries from `size` on are left out.
    std::vector<Range> take(std::size_t size);

private:
    std::vector<Range> m_ranges;
};
