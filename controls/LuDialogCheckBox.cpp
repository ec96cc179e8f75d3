// SPDX-License-Identifier: MIT
#include "controls/LuDialogCheckBox.h"

#include "auditors/LuDialogCheckBoxAuditor.h"

#include <algorithm>

LU_KIT_SOURCE(LuDialogCheckBox, LuDialogComponent, "DialogCheckBox")

namespace {

/// Pixels that the native check box needs beside and above its text, its mark included.
constexpr int TEXT_ROOM_X = 26, TEXT_ROOM_Y = 8;

LvVec2i32 addRoom(const LvVec2i32& size) {
    return {luAddSize(size.x, TEXT_ROOM_X), luAddSize(size.y, TEXT_ROOM_Y)};
}

} // namespace

LuDialogCheckBox::LuDialogCheckBox() {
    LuKitConstructor constructor(s_class, this, &initClass);
    constructor.field("state", state);
    constructor.field("onString", onString);
    constructor.field("offString", offString);
    addFrameParts(constructor);
    constructor.part("frame", frame, "Group", "frameSep", true);
    constructor.part("stateSep", stateSep, "Separator", "geomSwitch", false);
    constructor.part("stateSwitch", stateSwitch, "Switch", "stateSep", false);
    constructor.part("stateOff", stateOff, "Group", "stateSwitch", true);
    constructor.part("stateOn", stateOn, "Group", "stateSwitch", true);
    constructor.part("onOffStringSep", onOffStringSep, "Separator", "geomSwitch", false);
    constructor.part("onOffStringProp", onOffStringProp, "Group", "onOffStringSep", true);
}

LuDialogCheckBox::~LuDialogCheckBox() {
    delete m_stateSensor;
    delete m_onStringSensor;
    delete m_offStringSensor;
}

void LuDialogCheckBox::addAuditor(LuDialogCheckBoxAuditor* auditor) { LuPanelix::addAuditor(auditor); }

void LuDialogCheckBox::removeAuditor(LuDialogCheckBoxAuditor* auditor) { LuPanelix::removeAuditor(auditor); }

void LuDialogCheckBox::applyDlgCptAuditor() {
    fireAuditors<LuDialogCheckBox>(&LuDialogCheckBoxAuditor::dialogCheckBox);
}

const LvString& LuDialogCheckBox::getTextInForce() const {
    return state.getValue() || offString.getValue().isEmpty() ? onString.getValue() : offString.getValue();
}

void LuDialogCheckBox::changeOnOffStrings() {
    if (m_built2D)
        changeOnOffString();
    if (shows3D())
        change3DOnOffString();
}

void LuDialogCheckBox::updateFromSensor(LuSensor* sensor) {
    if (sensor && sensor == m_stateSensor) {
        if (m_built2D)
            changeState();
        if (shows3D())
            change3DState();
        changeOnOffStrings();
    } else if (sensor && (sensor == m_onStringSensor || sensor == m_offStringSensor)) {
        changeOnOffStrings();
    } else {
        LuLabelledButton::updateFromSensor(sensor);
    }
}

LvVec2i32 LuDialogCheckBox::getComponentInitSize() {
    if (m_componentInitSize.x == -1) {
        m_onStringSize = addRoom(getLabelPixelSize(onString.getValue(), nullptr));
        m_offStringSize = addRoom(getLabelPixelSize(offString.getValue(), nullptr));
        m_componentInitSize = leaveOutHiddenLabel(
            {std::max(m_onStringSize.x, m_offStringSize.x), std::max(m_onStringSize.y, m_offStringSize.y)});
    }
    return m_componentInitSize;
}

void LuDialogCheckBox::getDefaultSize(LvVec2i32& size, LvVec2i32& minSize, LvVec2i32& maxSize) {
    LuLabelledButton::getDefaultSize(size, minSize, maxSize);
    size.y = std::max({size.y, m_onStringSize.y, m_offStringSize.y});
}

void LuDialogCheckBox::buildWidget(HWND parent, LvVec2i32& size, LvVec2i32& position, int is2D) {
    LuLabelledButton::buildWidget(parent, size, position, is2D);
    if (is2D) {
        if (!existWidget(m_labelWidget))
            createLabelWindow();
        updateLabelWidget();
        if (!existWidget(m_buttonWidget))
            createCheckBoxWidget();
        updateCheckBoxWidget();
    } else {
        if (!isBuilt3D())
            create3DDialogCheckBox();
        update3DCheckBox();
        update3DLabel();
    }
    attachSensor(m_stateSensor, state);
    attachSensor(m_onStringSensor, onString);
    attachSensor(m_offStringSensor, offString);
}
