// SPDX-License-Identifier: MIT
#include "controls/LuDialogSeparator.h"

#include "generated/LuEmbeddedSkins.h"
#include "platform/lumora/nodes/LuGroup.h"
#include "platform/lumora/nodes/LuTransforms.h"

const char* LuDialogSeparator::DialogSeparator = LuEmbeddedSkin_DialogSeparator;
LuSkin LuDialogSeparator::s_skin("DialogSeparator.lum", LuEmbeddedSkin_DialogSeparator,
                                 {"DialogSeparatorVertical", "DialogSeparatorHorizontal"});

void LuDialogSeparator::create3DSeparator() {
    loadFontProperties();
    s_skin.loadOnFirstUse();
    setPartAsDefault(vFrame, "DialogSeparatorVertical");
    setPartAsDefault(hFrame, "DialogSeparatorHorizontal");
    m_frameScale = new LuScale;
    getGroupPart(frameSep)->insertChild(m_frameScale, 0);
    setBuilt3D(1);
}

void LuDialogSeparator::update3DSeparator() {
    setSwitchValue(getGroupPart(frameSwitch), m_orientationHorz ? 1 : 0);
    m_frameScale->scaleFactor = getContentSize3D();
}
