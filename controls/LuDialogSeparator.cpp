// SPDX-License-Identifier: MIT
#include "controls/LuDialogSeparator.h"

LU_KIT_SOURCE(LuDialogSeparator, LuDialogComponent, "DialogSeparator")

namespace {
constexpr int THICKNESS = 8;
}

LuDialogSeparator::LuDialogSeparator() {
    LuKitConstructor constructor(s_class, this, &initClass);
    constructor.part("frameSep", frameSep, "Separator", "geomSwitch", false);
    constructor.part("frameSwitch", frameSwitch, "Switch", "frameSep", false);
    constructor.part("vFrame", vFrame, "Group", "frameSwitch", true);
    constructor.part("hFrame", hFrame, "Group", "frameSwitch", true);
}

LuDialogSeparator::~LuDialogSeparator() { destroyChild(m_separatorWidget); }

void LuDialogSeparator::updateFromSensor(LuSensor* sensor) { LuControl::updateFromSensor(sensor); }

void LuDialogSeparator::getDefaultSize(LvVec2i32& size, LvVec2i32& minSize, LvVec2i32& maxSize) {
    size = m_orientationHorz ? LvVec2i32(0, THICKNESS) : LvVec2i32(THICKNESS, 0);
    minSize = size;
    maxSize = m_orientationHorz ? LvVec2i32(LuSizes::UNLIMITED, THICKNESS)
                                : LvVec2i32(THICKNESS, LuSizes::UNLIMITED);
}

void LuDialogSeparator::buildWidget(HWND parent, LvVec2i32& size, LvVec2i32& position, int is2D) {
    LuControl::buildWidget(parent, size, position, is2D);
    if (is2D) {
        if (!existWidget(m_separatorWidget))
            createSeparatorWidget();
        updateSeparatorWidget();
    } else {
        if (!isBuilt3D())
            create3DSeparator();
        update3DSeparator();
    }
}
