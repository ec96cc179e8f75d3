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
    void fillFrom(const LuSizes& defaults) {
        const auto fill = [](LvVec2i32& values, const LvVec2i32& others) {
            values = {values.x == 0 ? others.x : values.x, values.y == 0 ? others.y : values.y};
        };
        fill(size, defaults.size);
        fill(minSize, defaults.minSize);
        fill(maxSize, defaults.maxSize);
    }

    /// Brings the size between its limits; on a conflict the maximum wins.
    void limit() {
        size.x = std::min(maxSize.x, std::max(size.x, minSize.x));
        size.y = std::min(maxSize.y, std::max(size.y, minSize.y));
    }

    /// The size becomes what is asked for; 0 asks for nothing, and a conflict goes to the minimum.
    void ask(const LvVec2i32& asked) {
        const auto get = [](int present, int wanted, int least, int most) {
            if (wanted == 0)
                return present;
            return wanted >= least ? std::min(wanted, most) : least;
        };
        size = {get(size.x, asked.x, minSize.x, maxSize.x), get(size.y, asked.y, minSize.y, maxSize.y)};
    }
};

/// The size fields of a component with their sensors, and what the user has set in them. It belongs to the
/// component, and ends before the fields do.
class LuSizeFields {
public:
    enum Field { WIDTH, HEIGHT, MIN_WIDTH, MIN_HEIGHT, MAX_WIDTH, MAX_HEIGHT };

    LuSizeFields(LuSFInt32& width, LuSFInt32& height, LuSFInt32& minWidth, LuSFInt32& minHeight,
                 LuSFInt32& maxWidth, LuSFInt32& maxHeight)
        : m_fields{&width, &height, &minWidth, &minHeight, &maxWidth, &maxHeight} {}
    ~LuSizeFields();
    LuSizeFields(const LuSizeFields&) = delete;
    LuSizeFields& operator=(const LuSizeFields&) = delete;

    LuSFInt32& getField(int field) const { return *m_fields[static_cast<std::size_t>(field)]; }

    /// The sensor of a field, null until the component makes it.
    LuFieldSensor*& getSensor(int field) { return m_sensors[static_cast<std::size_t>(field)]; }

    /// Whose sensor it is; -1 for none of these.
    int findField(const LuSensor* sensor) const;

    LuSizes getSizes() const;

    /// Writes the fields as the layout's own doing: their sensors stay silent, and the default flags are
    /// clear afterwards. A field that has the value already tells nobody.
    void write(const LuSizes& sizes);
    void write(int field, int value);

    /// Marks what the user has left open as default, so that computed sizes stay out of files. On a fixed
    /// axis the limits are marked whatever they are.
    void markOpen(bool isFixedX, bool isFixedY);

    /// What the user has set, 0 for what was left open.
    const LuSizes& getUserSizes() const { return m_user; }

    /// Takes what stands in fields for the user's: in all of them, in the size on an axis, in the limits.
    void takeAll() { m_user = getSizes(); }
    void takeSize(int axis) { m_user.size[axis] = getField(WIDTH + axis).getValue(); }
    void takeLimits();

private:
    void markIf(int field, bool isOpen);
    bool isUnlimited(int field) const { return getField(field).getValue() == LuSizes::UNLIMITED; }

    std::array<LuSFInt32*, 6> m_fields;
    std::array<LuFieldSensor*, 6> m_sensors{};
    LuSizes m_user;
};
