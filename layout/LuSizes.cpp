// SPDX-License-Identifier: MIT
#include "layout/LuSizes.h"

namespace {

void fill(int& value, int defaultValue) {
    if (value == 0)
        value = defaultValue;
}

void writeField(const LuSizeField& entry, int value) {
    const int ownObservers = entry.sensor ? 1 : 0;
    // Most sizes stay as they are in most layouts, and telling the whole tree of it is what would cost.
    if (entry.field.getValue() == value && entry.field.getObservers().getLength() == ownObservers) {
        entry.field.setDefault(false);
        return;
    }
    if (entry.sensor)
        entry.sensor->setPaused(true);
    entry.field.setValue(value);
    if (entry.sensor)
        entry.sensor->setPaused(false);
}

void markIf(const LuSizeField& entry, bool isOpen) {
    if (isOpen)
        entry.field.setDefault(true);
}

bool isUnlimited(const LuSizeField& entry) { return entry.field.getValue() == LuSizes::UNLIMITED; }

} // namespace

void LuSizes::fillFrom(const LuSizes& defaults) {
    for (int axis = 0; axis < 2; ++axis) {
        fill(minSize[axis], defaults.minSize[axis]);
        fill(maxSize[axis], defaults.maxSize[axis]);
        fill(size[axis], defaults.size[axis]);
    }
}

void LuSizes::limit() {
    for (int axis = 0; axis < 2; ++axis)
        size[axis] = std::min(maxSize[axis], std::max(size[axis], minSize[axis]));
}

int LuSizes::getAskedSize(int axis, int asked) const {
    if (asked == 0)
        return size[axis];
    return asked >= minSize[axis] ? std::min(asked, maxSize[axis]) : minSize[axis];
}

void luWriteSizes(const LuSizeFields& fields, const LuSizes& sizes) {
    writeField(fields[0], sizes.size.x);
    writeField(fields[1], sizes.size.y);
    writeField(fields[2], sizes.minSize.x);
    writeField(fields[3], sizes.minSize.y);
    writeField(fields[4], sizes.maxSize.x);
    writeField(fields[5], sizes.maxSize.y);
}

void luMarkOpenSizes(const LuSizeFields& fields, const LuSizes& user, bool isFixedX, bool isFixedY) {
    markIf(fields[0], user.size.x == 0);
    markIf(fields[1], user.size.y == 0);
    markIf(fields[2], user.minSize.x == 0 || isFixedX);
    markIf(fields[3], user.minSize.y == 0 || isFixedY);
    markIf(fields[4], user.maxSize.x == 0 || isUnlimited(fields[4]) || isFixedX);
    markIf(fields[5], user.maxSize.y == 0 || isUnlimited(fields[5]) || isFixedY);
}
