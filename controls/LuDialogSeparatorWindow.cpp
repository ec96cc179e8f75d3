// SPDX-License-Identifier: MIT
#include "controls/LuDialogSeparator.h"

#include "platform/lumora/win/LuWin.h"

void LuDialogSeparator::createSeparatorWidget() {
    m_separatorWidget = checkChild(CreateWindowExA(WS_EX_STATICEDGE, "STATIC", "",
                                                   WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN, 0, 0, 0, 0,
                                                   m_widget, nullptr, LuWin::getInstance(), nullptr));
    showChild(m_separatorWidget, true);
    enableChild(m_separatorWidget);
}

void LuDialogSeparator::updateSeparatorWidget() {
    LvVec2i32 position, size;
    getContentPlace(position, size);
    placeChild(m_separatorWidget, position, size);
}

// On purpose without the base: the carrier's frame stays as it is.
void LuDialogSeparator::changeEdgeStyle() { updateSeparatorWidget(); }

void LuDialogSeparator::destroyWidget() {
    if (m_built2D)
        destroyChild(m_separatorWidget);
    LuControl::destroyWidget();
}
