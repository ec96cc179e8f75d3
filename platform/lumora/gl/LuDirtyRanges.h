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

    void mark(std::size_t begin, std::size_t end) {
        // What is new is mostly behind what was new before.
        if (!m_ranges.empty() && m_ranges.back().end == begin)
            m_ranges.back().end = end;
        else
            markApart(begin, end);
    }
    void markOne(std::size_t index) { mark(index, index + 1); }
    bool isEmpty() const { return m_ranges.empty(); }

    /// The ranges in order, near ones joined; none is left afterwards. Entries from `size` on are left out.
    std::vector<Range> take(std::size_t size);

private:
    void markApart(std::size_t begin, std::size_t end);

    std::vector<Range> m_ranges;
};
