// SPDX-License-Identifier: MIT
#pragma once

#include "layout/LuStackDialog.h"

/// A group whose children are rows: they stand one below the other, from the top, and share the width. Their
/// labels and controls are aligned in two common columns. `rowSpacing` is the number of pixels between two
/// children.
class LuRowDialog : public LuStackDialog {
    LU_KIT_HEADER(LuRowDialog)

    LuRowDialog();

    LuSFInt32 rowSpacing{0};

    void setChildrenLabelSize() override;
    void setChildrenComponentSize() override;

protected:
    ~LuRowDialog() override = default;
};
