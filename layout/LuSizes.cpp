// SPDX-License-Identifier: MIT
#include "layout/LuSizes.h"

LuSizeFields::~LuSizeFields() {
    for (LuFieldSensor* sensor : m_sensors)
        delete sensor;
}

int LuSizeFields::findField(const LuSensor* sensor) const {
    const auto found = std::find(m_sensors.begin(), m_sensors.end(), sensor);
    return sensor && found != m_sensors.end() ? static_cast<int>(found - m_sensors.begin()) : -1;
}

LuSizes LuSizeFields::getSizes() const {
    return {{getField(WIDTH).getValue(), getField(HEIGHT).getValue()},
            {getField(MIN_WIDTH).getValue(), getField(MIN_HEIGHT).getValue()},
            {getField(MAX_WIDTH).getValue(), getField(MAX_HEIGHT).getValue()}};
}

void LuSizeFields::write(int index, int value) {
    LuSFInt32& field = getField(index);
    LuFieldSensor* const sensor = getSensor(index);
    // Most sizes stay as they are in most layouts, and telling the whole tree of it is what would cost.
    if (field.getValue() == value && field.isWatchedOnlyBy(sensor))
        field.setDefault(false);
    else
        field.setValueUnheardBy(sensor, value);
}

void LuSizeFields::write(const LuSizes& sizes) {
    write(WIDTH, sizes.size.x);
    write(HEIGHT, sizes.size.y);
    write(MIN_WIDTH, sizes.minSize.x);
    write(MIN_HEIGHT, sizes.minSize.y);
    write(MAX_WIDTH, sizes.maxSize.x);
    write(MAX_HEIGHT, sizes.maxSize.y);
}

void LuSizeFields::markIf(int field, bool isOpen) {
    if (isOpen)
        getField(field).setDefault(true);
}

void LuSizeFields::markOpen(bool isFixedX, bool isFixedY) {
    markIf(WIDTH, m_user.size.x == 0);
    markIf(HEIGHT, m_user.size.y == 0);
    markIf(MIN_WIDTH, m_user.minSize.x == 0 || isFixedX);
    markIf(MIN_HEIGHT, m_user.minSize.y == 0 || isFixedY);
    markIf(MAX_WIDTH, m_user.maxSize.x == 0 || isUnlimited(MAX_WIDTH) || isFixedX);
    markIf(MAX_HEIGHT, m_user.maxSize.y == 0 || isUnlimited(MAX_HEIGHT) || isFixedY);
}

void LuSizeFields::takeLimits() {
    const LuSizes sizes = getSizes();
    m_user.minSize = sizes.minSize;
    m_user.maxSize = sizes.maxSize;
}
