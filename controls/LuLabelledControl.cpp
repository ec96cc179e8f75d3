// SPDX-License-Identifier: MIT
#include "controls/LuLabelledControl.h"

#include "core/LuTruncate.h"
#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuText3.h"
#include "platform/lumora/nodes/LuTransforms.h"

namespace {
constexpr int LEFT_ROOM = 3; ///< Scene units between the left edge of the component and its content.
}

LuLabelledControl::~LuLabelledControl() { destroyChild(m_labelWidget); }

void LuLabelledControl::addLabelParts(LuKitConstructor& constructor) {
    constructor.part("labelSep", labelSep, "Separator", "geomSwitch", false);
    constructor.part("labelSwitch", labelSwitch, "Switch", "labelSep", false);
    constructor.part("labelProp", labelProp, "Group", "labelSwitch", true);
}

void LuLabelledControl::createLabelWindow() {
    m_labelWidget = createChild(L"STATIC", getLabelStyle(), label.getValue());
    showLabelWindow();
}

void LuLabelledControl::placeLabelWindow(int room) {
    int y = 0, rowHeight = 0;
    getLabelRow(room, y, rowHeight);
    placeChild(m_labelWidget, {getEdgeInset(), y}, {m_labelSize.x, rowHeight});
}

void LuLabelledControl::getDefaultSize(LvVec2i32& size, LvVec2i32& minSize, LvVec2i32& maxSize) {
    LuControl::getDefaultSize(size, minSize, maxSize);
    size = m_componentSize;
    if (labelVisibility.getValue())
        size.x = luAddSize(size.x, std::int64_t{m_labelSize.x} + LABEL_GAP);
}

void LuLabelledControl::changeLabelAlignment() {
    if (existWidget(m_labelWidget))
        SetWindowLongPtrA(m_labelWidget, GWL_STYLE, static_cast<LONG_PTR>(getLabelStyle()));
    // The new style has lost what these two know.
    changeEnable();
    changeLabelVisibility();
}

void LuLabelledControl::createLabel3D() { createText3D(labelSwitch, m_labelTranslation, m_labelText3); }

void LuLabelledControl::change3DLabel() {
    if (m_labelText3)
        m_labelText3->string.setValue(label.getValue());
    LuControl::change3DLabel();
}

void LuLabelledControl::getRoom3D(int& left, int& room) const {
    LvVec2i32 size, offset;
    get3DComponentSize(size, offset);
    room = size.x;
    left = LEFT_ROOM;
    if (labelVisibility.getValue())
        left = luAddSize(m_labelSize.x, LEFT_ROOM + LABEL_GAP);
}

void LuLabelledControl::placeLabel3D() {
    if (!m_labelText3)
        return;
    const LvBox3f& box = measureLabel(labelProp.getValue(), m_labelText3);
    const int spare = luTruncate(m_labelSize.x - (box.max.x - box.min.x));
    double left = LEFT_ROOM;
    if (labelAlignment.getValue() == CENTER)
        left += spare / 2;
    else if (labelAlignment.getValue() == RIGHT)
        left += spare;
    m_labelTranslation->translation = getTextPlace(static_cast<float>(left - width.getValue() * 0.5), box);
}

void LuLabelledControl::showLabel3D() {
    setSwitchValue(labelSwitch.getValue(),
                   labelVisibility.getValue() ? LuSwitch::SHOW_ALL : LuSwitch::SHOW_NONE);
}
