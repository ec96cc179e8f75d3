// SPDX-License-Identifier: MIT
#include "controls/LuLabelledControl.h"

#include "core/LuTruncate.h"
#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuText3.h"
#include "platform/lumora/nodes/LuTransforms.h"

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

void LuLabelledControl::changeLabelWindowStyle() {
    if (existWidget(m_labelWidget))
        SetWindowLongPtrA(m_labelWidget, GWL_STYLE, static_cast<LONG_PTR>(getLabelStyle()));
}

void LuLabelledControl::createLabel3D() {
    m_labelTranslation = new LuTranslation;
    m_labelText3 = new LuText3;
    m_labelText3->parts = LuText3::FRONT;
    LuGroup* const group = getGroupPart("labelSwitch");
    group->insertChild(m_labelTranslation, 0);
    group->addChild(m_labelText3);
}

void LuLabelledControl::placeLabel3D() {
    if (!m_labelText3)
        return;
    const LvBox3f& box = measureLabel(labelProp.getValue(), m_labelText3);
    const int spare = luTruncate(m_labelSize.x - (box.max.x - box.min.x));
    double left = 3;
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
