// SPDX-License-Identifier: MIT
#pragma once

#include "layout/LuStackDialog.h"

/// A group whose children are columns: they stand side by side, from left to right, and share the height.
/// Each has a label column of its own. `columnSpacing` is the number of pixels between two children.
class LuColumnDialog : public LuStackDialog {
    LU_KIT_HEADER(LuColumnDialog)

    LuColumnDialog();

    LuSFInt32 columnSpacing{0};

    void setChildrenLabelSize() override;
    void setChildrenComponentSize() override;

protected:
    ~LuColumnDialog() override = default;
};
