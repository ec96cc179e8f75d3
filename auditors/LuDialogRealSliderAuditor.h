// SPDX-License-Identifier: MIT
#pragma once

#include "auditors/LuAuditor.h"

class LuDialogRealSlider;

/// Listens to one component: a real slider.
class LuDialogRealSliderAuditor : public LuAuditor {
    LU_AUDITOR_HEADER(LuDialogRealSliderAuditor)

    /// The user has moved the slider, or edited its number.
    virtual void dialogRealSlider(LuDialogRealSlider* slider) = 0;

protected:
    ~LuDialogRealSliderAuditor() override = default;
};
