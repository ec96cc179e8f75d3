// SPDX-License-Identifier: MIT
#pragma once

#include "layout/LuSizes.h"

#include <vector>

/// The sizes that a container's children report, what they add up to, and how room is handed out to them.
/// The main axis is the one along which the children follow each other: 0 for x, 1 for y.
class LuChildSizes {
public:
    int getCount() const { return static_cast<int>(m_sizes.size()); }

    /// Makes the table anew when the number of children has changed.
    void setCount(int count);

    /// Forgets the table, and whose turn it is.
    void clear();

    /// The sizes of one child; the index must lie below the count.
    LuSizes& operator[](int index) { return m_sizes[static_cast<std::size_t>(index)]; }
    const LuSizes& operator[](int index) const { return m_sizes[static_cast<std::size_t>(index)]; }

    /// What a container needs for its children: the sums on the main axis, the largest on the other, with
    /// `margin` on all sides and `gap` as the sum of what stands between the children.
    LuSizes getTotal(int axis, int margin, std::int64_t gap) const;

    /// Hands `difference` pixels out on the main axis, or takes them back when it is negative, one by one in
    /// turn among the children whose limits allow it. The turn goes on where it ended the time before.
    /// Pixels that no child can take are left over.
    void distribute(int axis, std::int64_t difference);

private:
    std::int64_t getCapacity(int index, int axis, int step) const;
    std::int64_t findWholeRounds(int axis, std::int64_t pixels, int step) const;
    std::int64_t takeWholeRounds(int axis, std::int64_t pixels, int step, int& failures);

    std::vector<LuSizes> m_sizes;
    int m_next = 0;
};
