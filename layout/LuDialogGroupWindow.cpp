// SPDX-License-Identifier: MIT
#include "layout/LuDialogGroup.h"

void LuDialogGroup::destroyWidget() {
    for (int i = 0; i < getNumChildren(); ++i)
        getChild(i)->destroyWidget();
    LuDialogComponent::destroyWidget();
}

void LuDialogGroup::setScrollProperties() {
    const int vertical = vScrollVisibility.getValue();
    const int horizontal = hScrollVisibility.getValue();
    m_scrollBars.setAlways(vertical, horizontal);
    // Geometry does not scroll: without a window there is no room that could be too small.
    if (!existWidget(m_widget))
        return;
    LuSizes needed;
    getDefaultSize(needed.size, needed.minSize, needed.maxSize);
    fixSizeWithBorder(needed.minSize, 1);
    const LvVec2i32 room = LuScrollBars::getWindowSize(m_widget);
    m_scrollBars.addNeeded(vertical, horizontal, needed.minSize, room);
    m_scrollBars.show(m_widget, needed.minSize, room, SCROLL_BAR_ROOM, false);
}
