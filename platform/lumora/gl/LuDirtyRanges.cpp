// SPDX-License-Identifier: MIT
#include "platform/lumora/gl/LuDirtyRanges.h"

#include <algorithm>

namespace {

/// Sending some entries too many is cheaper than another call.
constexpr std::size_t JOINED_GAP = 32;

} // namespace

void LuDirtyRanges::markApart(std::size_t begin, std::size_t end) {
    if (!m_ranges.empty()) {
        Range& last = m_ranges.back();
        if (begin >= last.begin && begin <= last.end) {
            last.end = std::max(last.end, end);
            return;
        }
    }
    m_ranges.push_back({begin, end});
}

std::vector<LuDirtyRanges::Range> LuDirtyRanges::take(std::size_t size) {
    std::sort(m_ranges.begin(), m_ranges.end(),
              [](const Range& left, const Range& right) { return left.begin < right.begin; });
    std::vector<Range> joined;
    for (Range range : m_ranges) {
        range.end = std::min(range.end, size);
        if (range.begin >= range.end)
            continue;
        if (!joined.empty() && range.begin <= joined.back().end + JOINED_GAP)
            joined.back().end = std::max(joined.back().end, range.end);
        else
            joined.push_back(range);
    }
    m_ranges.clear();
    return joined;
}
