// SPDX-License-Identifier: MIT
#include "controls/LuDialogLabel.h"

void LuDialogLabel::updateLabelWidget() {
    LvVec2i32 position, size;
    getContentPlace(position, size);
    getLabelRow(EDGE_ROOM, position.y, size.y);
    placeChild(m_labelWidget, position, size);
}

void LuDialogLabel::changeEnable() {
    enableChild(m_labelWidget);
    LuControl::changeEnable();
}

void LuDialogLabel::changeWidgetEnable(int isAllowed) {
    enableChild(m_labelWidget, isAllowed);
    LuControl::changeWidgetEnable(isAllowed);
}

void LuDialogLabel::changeLabel() {
    setChildText(m_labelWidget, label.getValue());
    updateLabelWidget();
}

void LuDialogLabel::changeLabelAlignment() {
    if (!existWidget(m_labelWidget))
        return;
    SetWindowLongPtrA(m_labelWidget, GWL_STYLE, static_cast<LONG_PTR>(getTextStyle()));
    // Hiding and showing makes it paint anew.
    showChild(m_labelWidget, false);
    showChild(m_labelWidget, true);
}

void LuDialogLabel::changeEdgeStyle() {
    LuControl::changeEdgeStyle();
    updateLabelWidget();
}
