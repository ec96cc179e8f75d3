// SPDX-License-Identifier: MIT
#include "examples/custom-control/Stepper.h"

#include "examples/custom-control/StepperAuditor.h"

#include <algorithm>
#include <string>

LU_KIT_SOURCE(Stepper, LuDialogComponent, "Stepper")

namespace {
constexpr int BUTTONS_ROOM = 64; ///< Pixels for both buttons and the gaps beside the number.
constexpr int MIN_HEIGHT = 26;
} // namespace

Stepper::Stepper() {
    LuKitConstructor constructor(s_class, this, &initClass);
    constructor.field("value", value);
    constructor.field("minValue", minValue);
    constructor.field("maxValue", maxValue);
    addLabelParts(constructor);
    constructor.part("minusSep", minusSep, "Separator", "geomSwitch", false);
    constructor.part("minus", minus, "Group", "minusSep", true);
    constructor.part("plusSep", plusSep, "Separator", "geomSwitch", false);
    constructor.part("plus", plus, "Group", "plusSep", true);
    constructor.part("valueSep", valueSep, "Separator", "geomSwitch", false);
    constructor.part("valueProp", valueProp, "Group", "valueSep", true);
}

Stepper::~Stepper() {
    destroyChild(m_minusWidget);
    destroyChild(m_plusWidget);
    destroyChild(m_valueWidget);
    delete m_valueSensor;
}

void Stepper::addAuditor(StepperAuditor* auditor) { LuPanelix::addAuditor(auditor); }

void Stepper::removeAuditor(StepperAuditor* auditor) { LuPanelix::removeAuditor(auditor); }

void Stepper::step(int difference) {
    // An auditor may end the stepper.
    const LuKeepAlive alive(this);
    const int before = value.getValue();
    const std::int64_t wanted = std::int64_t{before} + difference;
    const std::int64_t least = minValue.getValue();
    const auto after = static_cast<int>(std::max(least, std::min<std::int64_t>(wanted, maxValue.getValue())));
    if (after == before)
        return;
    // The sensor brings it to both renditions.
    value = after;
    fireAuditors<Stepper>(&StepperAuditor::stepper);
}

LvString Stepper::getValueText() const { return std::to_string(value.getValue()); }

void Stepper::updateFromSensor(LuSensor* sensor) {
    if (sensor != m_valueSensor) {
        LuLabelledControl::updateFromSensor(sensor);
        return;
    }
    if (m_built2D)
        setChildText(m_valueWidget, getValueText());
    if (isBuilt3D() && canBeTraversed())
        changeValue3D();
}

LvVec2i32 Stepper::getComponentInitSize() {
    if (m_componentInitSize.x == -1) {
        const LvVec2i32 least = getLabelPixelSize(std::to_string(minValue.getValue()), nullptr);
        const LvVec2i32 most = getLabelPixelSize(std::to_string(maxValue.getValue()), nullptr);
        m_componentInitSize.setValue(std::max(least.x, most.x) + BUTTONS_ROOM, std::max(most.y, MIN_HEIGHT));
    }
    return m_componentInitSize;
}

void Stepper::buildWidget(HWND parent, LvVec2i32& size, LvVec2i32& position, int is2D) {
    LuLabelledControl::buildWidget(parent, size, position, is2D);
    if (is2D) {
        if (!existWidget(m_valueWidget))
            createWindows();
        updateWindows();
    } else {
        if (!isBuilt3D())
            create3DStepper();
        update3DStepper();
    }
    attachSensor(m_valueSensor, value);
}
