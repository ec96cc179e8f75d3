// SPDX-License-Identifier: MIT
#include "controls/LuDialogLabel.h"

#include <algorithm>

LU_KIT_SOURCE(LuDialogLabel, LuDialogComponent, "DialogLabel")

namespace {
constexpr int TEXT_ROOM = 4; ///< Pixels that the width has beside the text's.
}

LuDialogLabel::LuDialogLabel() {
    LuKitConstructor constructor(s_class, this, &initClass);
    constructor.part("labelSep", labelSep, "Separator", "geomSwitch", false);
    constructor.part("labelProp", labelProp, "Group", "labelSep", true);
}

LuDialogLabel::~LuDialogLabel() {
    if (m_ownsLabelWidget)
        destroyChild(m_labelWidget);
    m_labelWidget = nullptr;
}

void LuDialogLabel::updateFromSensor(LuSensor* sensor) { LuControl::updateFromSensor(sensor); }

LvVec2i32 LuDialogLabel::getComponentInitSize() {
    if (m_componentInitSize.x == -1) {
        const LvVec2i32 text = getLabelPixelSize(label.getValue(), nullptr);
        m_textSize = {luAddSize(text.x, std::int64_t{TEXT_ROOM} - m_labelSize.x), text.y};
        m_componentInitSize = m_textSize;
    }
    return m_componentInitSize;
}

void LuDialogLabel::getDefaultSize(LvVec2i32& size, LvVec2i32& minSize, LvVec2i32& maxSize) {
    LuControl::getDefaultSize(size, minSize, maxSize);
    m_componentSize = {std::max(m_componentSize.x, minSize.x), std::max(m_componentSize.y, minSize.y)};
    size = {m_componentSize.x, std::max(m_componentSize.y, m_textSize.y)};
}

void LuDialogLabel::buildWidget(HWND parent, LvVec2i32& size, LvVec2i32& position, int is2D) {
    LuControl::buildWidget(parent, size, position, is2D);
    if (is2D) {
        if (!existWidget(m_labelWidget))
            m_labelWidget = createChild(L"STATIC", getTextStyle(), label.getValue());
        updateLabelWidget();
    } else {
        if (!isBuilt3D())
            create3DDialogLabel();
        update3DLabel();
    }
}
