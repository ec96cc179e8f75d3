// SPDX-License-Identifier: MIT
#include "layout/LuColumnDialog.h"

LU_KIT_SOURCE(LuColumnDialog, LuDialogGroup, "ColumnDialog")

LuColumnDialog::LuColumnDialog() : LuStackDialog(0, columnSpacing) {
    LuKitConstructor constructor(s_class, this, &initClass);
    constructor.field("columnSpacing", columnSpacing);
    watchSpacing(columnSpacing);
}

void LuColumnDialog::setChildrenLabelSize() {
    for (int i = 0; i < getNumChildren(); ++i) {
        LuDialogComponent* const child = getChild(i);
        LvVec2i32 size = child->labelVisibility.getValue() ? child->getLabelInitSize() : LvVec2i32();
        child->setLabelSize(size);
    }
}

void LuColumnDialog::setChildrenComponentSize() {
    for (int i = 0; i < getNumChildren(); ++i) {
        LuDialogComponent* const child = getChild(i);
        LvVec2i32 size = child->getComponentInitSize();
        if (child->labelVisibility.getValue())
            size.y = std::max(size.y, child->getLabelInitSize().y);
        child->setComponentSize(size);
    }
}
