// SPDX-License-Identifier: MIT
#include "layout/LuDialogGroup.h"

void LuDialogGroup::show3D(int show) {
    LuDialogComponent::show3D(show);
    for (int i = 0; i < getNumChildren(); ++i)
        getChild(i)->show3D(show);
}

void LuDialogGroup::change3DPosition() {
    if (!isBuilt3D())
        return;
    LvVec3f translation;
    apply3DTranslation(mainCptSeparator.getValue(), m_depth, translation);
    for (int i = 0; i < getNumChildren(); ++i) {
        getChild(i)->set3DParentTranslation(translation);
        getChild(i)->change3DPosition();
    }
}

void LuDialogGroup::change3DEnable() {
    LuDialogComponent::change3DEnable();
    change3DWidgetEnable(enable.getValue());
}

void LuDialogGroup::change3DWidgetEnable(int isEnabled) {
    for (int i = 0; i < getNumChildren(); ++i)
        getChild(i)->change3DWidgetEnable(isEnabled ? enable.getValue() : 0);
}

void LuDialogGroup::getBoundingBox(LuGetBoundingBoxAction* action) {
    buildFromTraversal();
    LuDragger::getBoundingBox(action);
}
