// SPDX-License-Identifier: MIT
#include "controls/LuDialogPushButton.h"

#include "auditors/LuDialogPushButtonAuditor.h"

#include <algorithm>

LU_KIT_SOURCE(LuDialogPushButton, LuDialogComponent, "DialogPushButton")

namespace {
constexpr int TEXT_ROOM = 12; ///< Pixels that the native button needs round its text, in each direction.
}

LuDialogPushButton::LuDialogPushButton() {
    LuKitConstructor constructor(s_class, this, &initClass);
    constructor.field("buttonLabel", buttonLabel);
    addFrameParts(constructor);
    constructor.part("frameSwitch", frameSwitch, "Switch", "frameSep", false);
    constructor.part("released", released, "Group", "frameSwitch", true);
    constructor.part("pressed", pressed, "Group", "frameSwitch", true);
    constructor.part("buttonLabelSep", buttonLabelSep, "Separator", "geomSwitch", false);
    constructor.part("buttonLabelProp", buttonLabelProp, "Group", "buttonLabelSep", true);
}

LuDialogPushButton::~LuDialogPushButton() { delete m_buttonLabelSensor; }

void LuDialogPushButton::addAuditor(LuDialogPushButtonAuditor* auditor) { LuPanelix::addAuditor(auditor); }

void LuDialogPushButton::removeAuditor(LuDialogPushButtonAuditor* auditor) {
    LuPanelix::removeAuditor(auditor);
}

void LuDialogPushButton::applyDlgCptAuditor() {
    fireAuditors<LuDialogPushButton>(&LuDialogPushButtonAuditor::dialogPushButton);
}

void LuDialogPushButton::updateFromSensor(LuSensor* sensor) {
    if (sensor == m_buttonLabelSensor && m_built2D)
        changeButtonLabel();
    // On purpose for every sensor: in a traversed 3D rendition none gets to the base.
    if (isBuilt3D() && canBeTraversed())
        change3DButtonLabel();
    else
        LuLabelledButton::updateFromSensor(sensor);
}

LvVec2i32 LuDialogPushButton::getComponentInitSize() {
    if (m_componentInitSize.x == -1) {
        m_buttonTextSize = getLabelPixelSize(buttonLabel.getValue(), this) + LvVec2i32(TEXT_ROOM, TEXT_ROOM);
        m_componentInitSize = leaveOutHiddenLabel(m_buttonTextSize);
    }
    return m_componentInitSize;
}

void LuDialogPushButton::getDefaultSize(LvVec2i32& size, LvVec2i32& minSize, LvVec2i32& maxSize) {
    LuLabelledButton::getDefaultSize(size, minSize, maxSize);
    size.y = std::max(size.y, m_buttonTextSize.y);
}

void LuDialogPushButton::buildWidget(HWND parent, LvVec2i32& size, LvVec2i32& position, int is2D) {
    LuLabelledButton::buildWidget(parent, size, position, is2D);
    if (is2D) {
        if (!existWidget(m_labelWidget))
            createLabelWindow();
        updateLabelWidget();
        if (!existWidget(m_buttonWidget))
            createButtonWidget();
        updateButtonWidget();
    } else {
        if (!isBuilt3D())
            create3DDialogPushButton();
        update3DButton();
        update3DLabel();
    }
    attachSensor(m_buttonLabelSensor, buttonLabel);
}
