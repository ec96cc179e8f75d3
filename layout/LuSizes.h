// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvVec.h"
#include "platform/lumora/fields/LuFields.h"
#include "platform/lumora/sensors/LuSensor.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>

/// The nearest size in pixels to a sum of sizes: sums never wrap.
inline int luClampSize(std::int64_t size) {
    constexpr std::int64_t LOWEST = std::numeric_limits<int>::min();
    constexpr std::int64_t HIGHEST = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(size, LOWEST, HIGHEST));
}

/// The sum of two sizes or positions, which never wraps.
inline int luAddSize(int left, std::int64_t right) { return luClampSize(left + right); }

/// A size in pixels with its limits, as the six size fields of a component hold them; 0 means open.
struct LuSizes {
    /// The largest size: no limit.
    static constexpr int UNLIMITED = std::numeric_limits<int>::max();

    LvVec2i32 size, minSize, maxSize;

    bool hasOpen() const {
        return size.x == 0 || size.y == 0 || minSize.x == 0 || minSize.y == 0 || maxSize.x == 0 ||
               maxSize.y == 0;
    }

    /// Takes the default for each value that is open.
    void fillFrom(const LuSizes& defaults);

    /// Brings the size between its limits; on a conflict the maximum wins.
    void limit();

    /// The size to take when `asked` is asked for; 0 asks for nothing, and a conflict goes to the minimum.
    int getAskedSize(int axis, int asked) const;
};

/// One size field with its sensor, which may be null.
struct LuSizeField {
    LuSFInt32& field;
    LuFieldSensor* sensor;
};

/// The size fields of a component: width, height, minWidth, minHeight, maxWidth, maxHeight.
using LuSizeFields = std::array<LuSizeField, 6>;

/// The values in the size fields of a component.
template <class Component>
LuSizes luGetSizes(const Component& component) {
    return {{component.width.getValue(), component.height.getValue()},
            {component.minWidth.getValue(), component.minHeight.getValue()},
            {component.maxWidth.getValue(), component.maxHeight.getValue()}};
}

/// Writes the fields as the layout's own doing: their sensors stay silent, and the default flags are clear
/// afterwards. A field that has the value already tells nobody.
void luWriteSizes(const LuSizeFields& fields, const LuSizes& sizes);

/// Marks what the user has left open as default, so that computed sizes stay out of files. `user` holds what
/// the user has set; on a fixed axis the limits are marked whatever they are.
void luMarkOpenSizes(const LuSizeFields& fields, const LuSizes& user, bool isFixedX, bool isFixedY);
