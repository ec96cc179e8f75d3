// SPDX-License-Identifier: MIT
#include "controls/LuDialogSlider.h"

#include "controls/LuDialogCustomSlider.h"
#include "platform/lumora/base/LvProjector.h"

LU_KIT_SOURCE(LuDialogSlider, LuDialogComponent, "DialogSlider")

LuDialogSlider::LuDialogSlider() {
    LuKitConstructor constructor(s_class, this, &initClass);
    constructor.field("valueVisible", valueVisible);
    constructor.field("format", format);
    constructor.field("continuousTrigger", continuousTrigger);
    constructor.field("toggleVisible", toggleVisible);
    constructor.field("fixedLimits", fixedLimits);
    constructor.field("colors", colors);
    constructor.field("shadedColors", shadedColors);
    addLabelParts(constructor);
    constructor.part("checkSep", checkSep, "Separator", "geomSwitch", false);
    constructor.part("checkSwtch", checkSwtch, "Switch", "checkSep", false);
    constructor.part("checkStateOff", checkStateOff, "Group", "checkSwtch", true);
    constructor.part("checkStateOn", checkStateOn, "Group", "checkSwtch", true);
    constructor.part("sliderSep", sliderSep, "Separator", "geomSwitch", false);
    constructor.part("frameSep", frameSep, "Separator", "sliderSep", false);
    constructor.part("frame", frame, "Group", "frameSep", true);
    constructor.part("cursorSep", cursorSep, "Separator", "sliderSep", false);
    constructor.part("cursor", cursor, "Group", "cursorSep", true);
    constructor.part("edtSwtch", edtSwtch, "Switch", "geomSwitch", false);
    constructor.part("edtFrmSep", edtFrmSep, "Separator", "edtSwtch", false);
    constructor.part("edtFrmSwtch", edtFrmSwtch, "Switch", "edtFrmSep", false);
    constructor.part("valueFrame", valueFrame, "Group", "edtFrmSwtch", true);
    constructor.part("editValueFrame", editValueFrame, "Group", "edtFrmSwtch", true);
    constructor.part("editTextSep", editTextSep, "Separator", "edtSwtch", false);
    constructor.part("editTextProp", editTextProp, "Group", "editTextSep", true);
}

LuDialogSlider::~LuDialogSlider() {
    m_customSlider.reset();
    destroyChild(m_sliderWidget);
    destroyChild(m_toggleWidget);
    destroyChild(m_editWidget);
    for (LuFieldSensor* sensor : {m_valueVisibleSensor, m_continuousTriggerSensor, m_toggleVisibleSensor,
                                  m_colorsSensor, m_shadedColorsSensor, m_formatSensor})
        delete sensor;
}

float LuDialogSlider::getValue() const { return m_customSlider ? m_customSlider->getValue() : 0; }

void LuDialogSlider::updateFromSensor(LuSensor* sensor) {
    if (sensor == m_valueVisibleSensor) {
        if (m_built2D)
            changeValueVisible();
        if (isShown3D())
            change3DValueVisible();
    } else if (sensor == m_toggleVisibleSensor) {
        if (m_built2D)
            changeToggleVisible();
        if (isShown3D())
            change3DToggleVisible();
    } else if (sensor == m_colorsSensor || sensor == m_shadedColorsSensor) {
        changeBarColors();
    } else if (sensor == m_continuousTriggerSensor) {
        if (m_built2D)
            changeContinuousTrigger();
        if (isShown3D())
            change3DContinuousTrigger();
    } else if (sensor == m_formatSensor) {
        changeFormat();
    } else {
        LuLabelledControl::updateFromSensor(sensor);
    }
}

void LuDialogSlider::buildWidget(HWND parent, LvVec2i32& size, LvVec2i32& position, int is2D) {
    LuLabelledControl::buildWidget(parent, size, position, is2D);
    if (is2D) {
        buildWindows();
    } else {
        if (!isBuilt3D())
            create3DDialogSlider();
        update3DSlider();
        update3DLabel();
    }
    attachSensor(m_valueVisibleSensor, valueVisible);
    attachSensor(m_continuousTriggerSensor, continuousTrigger);
    attachSensor(m_toggleVisibleSensor, toggleVisible);
    attachSensor(m_colorsSensor, colors);
    attachSensor(m_shadedColorsSensor, shadedColors);
    attachSensor(m_formatSensor, format);
}

void LuDialogSlider::updateWidget() {
    m_editZoneWidth = computeEditZoneWidth();
    if (m_built2D) {
        updateSliderWidget();
        updateEditWidget();
    }
    if (isBuilt3D()) {
        m_valueTextBBox = getUnsetBox();
        update3DSlider();
    }
}

// Each of the ways below calls auditors, which may let go of the slider.

void LuDialogSlider::changeValueFromSlider(float position) {
    const LuKeepAlive alive(this);
    setValueFromSlider(position);
    if (continuousTrigger.getValue())
        setValue();
    showText();
    if (isBuilt3D())
        change3DCursor();
}

void LuDialogSlider::changeValueAfterFinish(float position) {
    const LuKeepAlive alive(this);
    setValueFromSlider(position);
    setValue();
    showText();
}

void LuDialogSlider::changeSliderFromSlider(float delta) {
    setValueFromSlider(delta + getValue());
    showPosition();
}

void LuDialogSlider::changeSliderFromEdit() {
    const LuKeepAlive alive(this);
    setValueFromEdit(1);
    showPosition();
    setValue();
}

/// Writes the number where it shows.
void LuDialogSlider::showText() {
    if (m_built2D)
        changeEditValue();
    if (isShown3D())
        change3DEditValue();
}

/// Brings thumb and cursor to the position.
void LuDialogSlider::showPosition() {
    if (m_built2D)
        changeSliderValue();
    if (isShown3D())
        change3DCursor();
}

void LuDialogSlider::eventNotify(unsigned int event, std::uint64_t) {
    if (event != BN_CLICKED || !existWidget(m_toggleWidget))
        return;
    const bool isOn = SendMessageA(m_toggleWidget, BM_GETCHECK, 0, 0) == BST_CHECKED;
    setWithoutSensor(continuousTrigger, isOn, m_continuousTriggerSensor);
    changeFinishCallback();
    if (isBuilt3D())
        setSwitchValue(checkSwtch.getValue(), isOn ? 1 : 0);
    setCurrentFocusedChild(m_toggleWidget);
}
