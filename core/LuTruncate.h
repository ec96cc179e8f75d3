// SPDX-License-Identifier: MIT
#pragma once

#include <limits>

/// Truncates to a whole number, towards zero. What no int can hold becomes the nearest that one can, and no
/// number at all becomes 0: sizes come from files, and boxes may be empty.
inline int luTruncate(double value) {
    constexpr double LOWEST = std::numeric_limits<int>::min();
    constexpr double HIGHEST = std::numeric_limits<int>::max();
    if (value != value)
        return 0;
    if (value <= LOWEST)
        return std::numeric_limits<int>::min();
    return value >= HIGHEST ? std::numeric_limits<int>::max() : static_cast<int>(value);
}
