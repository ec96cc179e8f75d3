// SPDX-License-Identifier: MIT
#pragma once

#include "auditors/LuAuditor.h"

class LuDialogIntegerSlider;

/// Listens to one component: an integer slider.
class LuDialogIntegerSliderAuditor : public LuAuditor {
    LU_AUDITOR_HEADER(LuDialogIntegerSliderAuditor)

    /// The user has moved the slider, or edited its number.
    virtual void dialogIntegerSlider(LuDialogIntegerSlider* slider) = 0;

protected:
    ~LuDialogIntegerSliderAuditor() override = default;
};
