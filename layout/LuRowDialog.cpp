// SPDX-License-Identifier: MIT
#include "layout/LuRowDialog.h"

#include "layout/LuLabelColumn.h"

LU_KIT_SOURCE(LuRowDialog, LuDialogGroup, "RowDialog")

LuRowDialog::LuRowDialog() : LuStackDialog(1, rowSpacing) {
    LuKitConstructor constructor(s_class, this, &initClass);
    constructor.field("rowSpacing", rowSpacing);
    watchSpacing(rowSpacing);
}

void LuRowDialog::setChildrenLabelSize() {
    luSetCommonLabelSize(
        getNumChildren(), [this](int i) { return getChild(i); }, true);
}

void LuRowDialog::setChildrenComponentSize() {
    luSetCommonComponentSize(getNumChildren(), [this](int i) { return getChild(i); });
}
