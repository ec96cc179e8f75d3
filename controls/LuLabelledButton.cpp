// SPDX-License-Identifier: MIT
#include "controls/LuLabelledButton.h"

#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuTransforms.h"

namespace {

/// What the height loses before the label is put in its middle: 3 less than for a plain label, so that it
/// stands level with the text on the button.
constexpr int LABEL_ROOM = 3;

} // namespace

void LuLabelledButton::addFrameParts(LuKitConstructor& constructor) {
    addLabelParts(constructor);
    constructor.part("frameSep", frameSep, "Separator", "geomSwitch", false);
}

LvVec2i32 LuLabelledButton::leaveOutHiddenLabel(LvVec2i32 size) const {
    if (!labelVisibility.getValue())
        size.x = luAddSize(size.x, -std::int64_t{m_labelSize.x});
    return size;
}

void LuLabelledButton::destroyWidget() {
    if (m_built2D) {
        destroyChild(m_buttonWidget);
        destroyChild(m_labelWidget);
    }
    LuLabelledControl::destroyWidget();
}

void LuLabelledButton::placeButtonWindow() {
    LvVec2i32 size, position;
    get2DComponentSize(size, position);
    placeChild(m_buttonWidget, position, size);
}

void LuLabelledButton::enableWindows(bool isAllowed) {
    enableChild(m_labelWidget, isAllowed);
    enableChild(m_buttonWidget, isAllowed);
}

void LuLabelledButton::updateLabelWidget() {
    placeLabelWindow(LABEL_ROOM);
    showLabelWindow();
}

void LuLabelledButton::changeLabel() {
    setChildText(m_labelWidget, label.getValue());
    updateLabelWidget();
}

void LuLabelledButton::changeLabelVisibility() {
    showLabelWindow();
    placeButtonWindow();
}

void LuLabelledButton::changeWidgetEnable(int isAllowed) {
    enableWindows(isAllowed);
    LuLabelledControl::changeWidgetEnable(isAllowed);
}

void LuLabelledButton::createFrame3D(const LuSFNode& lifted) {
    m_frameScale = new LuScale;
    getGroupPart(frameSep)->insertChild(m_frameScale, 0);
    m_frameTranslation = new LuTranslation;
    insertBeforePart(m_frameTranslation, frameSep, geomSwitch);
    m_frameTransform = new LuTransform;
    insertBeforePart(m_frameTransform, lifted, geomSwitch);
}

void LuLabelledButton::placeFrame3D(float x, const LvVec2i32& size) {
    m_frameTranslation->translation = LvVec3f(x, 0, 0);
    m_frameScale->scaleFactor = LvVec3f(static_cast<float>(size.x), static_cast<float>(size.y), 1);
    liftToFrame3D();
}
