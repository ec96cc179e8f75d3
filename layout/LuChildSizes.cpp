// SPDX-License-Identifier: MIT
#include "layout/LuChildSizes.h"

namespace {

/// The sum of two largest sizes. One without a limit makes the sum one without; an addition that would pass
/// the largest number is left out.
std::int64_t addLargest(std::int64_t sum, int size) {
    if (size == LuSizes::UNLIMITED)
        return LuSizes::UNLIMITED;
    return sum + size > LuSizes::UNLIMITED ? sum : sum + size;
}

} // namespace

void LuChildSizes::setCount(int count) {
    if (count == getCount())
        return;
    m_sizes.assign(static_cast<std::size_t>(std::max(count, 0)), {});
    if (m_next >= getCount())
        m_next = 0;
}

void LuChildSizes::clear() {
    m_sizes = {};
    m_next = 0;
}

LuSizes LuChildSizes::getTotal(int axis, int margin, std::int64_t gap) const {
    const int cross = 1 - axis;
    std::int64_t sum = 0;
    std::int64_t minSum = 0;
    std::int64_t maxSum = 0;
    LvVec2i32 largest;
    int largestMax = 0;
    for (const LuSizes& child : m_sizes) {
        sum += child.size[axis];
        minSum += child.minSize[axis];
        maxSum = addLargest(maxSum, child.maxSize[axis]);
        largest.x = std::max(largest.x, child.size[cross]);
        largest.y = std::max(largest.y, child.minSize[cross]);
        largestMax = std::max(largestMax, child.maxSize[cross]);
    }
    if (m_sizes.empty()) {
        maxSum = LuSizes::UNLIMITED;
        largestMax = LuSizes::UNLIMITED;
    }
    const std::int64_t crossRoom = std::int64_t{margin} * 2;
    const std::int64_t mainRoom = crossRoom + gap;
    LuSizes total;
    total.size[axis] = luClampSize(sum + mainRoom);
    total.size[cross] = luClampSize(largest.x + crossRoom);
    total.minSize[axis] = luClampSize(minSum + mainRoom);
    total.minSize[cross] = luClampSize(largest.y + crossRoom);
    total.maxSize[axis] = luClampSize(maxSum + mainRoom);
    total.maxSize[cross] = luClampSize(largestMax + crossRoom);
    return total;
}

std::int64_t LuChildSizes::getCapacity(int index, int axis, int step) const {
    const LuSizes& child = (*this)[index];
    const std::int64_t size = child.size[axis];
    const std::int64_t next = size + step;
    if (next < child.minSize[axis] || next > child.maxSize[axis])
        return 0;
    return step > 0 ? child.maxSize[axis] - size : size - child.minSize[axis];
}

/// The largest number of whole rounds for which there are pixels, and one more for the last round.
std::int64_t LuChildSizes::findWholeRounds(int axis, std::int64_t pixels, int step) const {
    std::int64_t smallest = LuSizes::UNLIMITED;
    std::int64_t largest = 0;
    int numTakers = 0;
    for (int i = 0; i < getCount(); ++i) {
        const std::int64_t capacity = getCapacity(i, axis, step);
        if (capacity == 0)
            continue;
        smallest = std::min(smallest, capacity);
        largest = std::max(largest, capacity);
        ++numTakers;
    }
    if (numTakers == 0)
        return 0;
    // Mostly there is room for all that take any: then each takes the same.
    const std::int64_t equalRounds = (pixels - 1) / numTakers;
    if (smallest > equalRounds)
        return equalRounds;
    const auto getTaken = [this, axis, step](std::int64_t rounds) {
        std::int64_t taken = 0;
        for (int i = 0; i < getCount(); ++i)
            taken += std::min(getCapacity(i, axis, step), rounds);
        return taken;
    };
    std::int64_t rounds = std::min(equalRounds, largest);
    std::int64_t limit = std::min(largest, pixels);
    while (rounds < limit) {
        const std::int64_t middle = rounds + (limit - rounds + 1) / 2;
        if (getTaken(middle) < pixels)
            rounds = middle;
        else
            limit = middle - 1;
    }
    return rounds;
}

/// Takes the turns that surely go all the way round at once, with the outcome of taking them one by one. The
/// last round is left to the caller, since it may end at any child. `failures` becomes the number of children
/// that refused since the last that took a pixel.
std::int64_t LuChildSizes::takeWholeRounds(int axis, std::int64_t pixels, int step, int& failures) {
    const std::int64_t rounds = findWholeRounds(axis, pixels, step);
    if (rounds == 0)
        return pixels;
    int last = m_next;
    for (failures = -1; failures < 0 || getCapacity(last, axis, step) < rounds; ++failures)
        last = last == 0 ? getCount() - 1 : last - 1;
    for (int i = 0; i < getCount(); ++i) {
        const std::int64_t taken = std::min(getCapacity(i, axis, step), rounds);
        int& size = (*this)[i].size[axis];
        size = static_cast<int>(size + step * taken);
        pixels -= taken;
    }
    return pixels;
}

void LuChildSizes::distribute(int axis, std::int64_t difference) {
    const int count = getCount();
    const int step = difference > 0 ? 1 : -1;
    std::int64_t pixels = difference > 0 ? difference : -difference;
    int failures = 0;
    if (count > 0 && pixels > count)
        pixels = takeWholeRounds(axis, pixels, step, failures);
    while (pixels > 0 && failures < count) {
        const int index = m_next;
        ++failures;
        if (getCapacity(index, axis, step) > 0) {
            int& size = m_sizes[static_cast<std::size_t>(index)].size[axis];
            size += step;
            --pixels;
            failures = 0;
        }
        m_next = index + 1 < count ? index + 1 : 0;
    }
}
