// SPDX-License-Identifier: MIT
#pragma once

#include "controls/LuNumberSlider.h"

class LuDialogRealSliderAuditor;

/// A slider for a number from `min` to `max`.
///
/// | field        | meaning                                                                         |
/// |--------------|---------------------------------------------------------------------------------|
/// | `min`, `max` | the numbers at the left and the right end                                       |
/// | `value`      | the number                                                                      |
/// | `format`     | prints a double: "%.3f" unless it is set; one that doesn't fit is reported, and "%.3f" taken |
///
/// The auditors hear of what the user does, never of what the program sets. A value that is set beyond a
/// limit stays.
class LuDialogRealSlider : public LuNumberSlider<float> {
    LU_KIT_HEADER(LuDialogRealSlider)

    LuDialogRealSlider();

    /// The component's own auditors, which hide it from those of the containers. They stay the caller's.
    void addAuditor(LuDialogRealSliderAuditor* auditor);
    void removeAuditor(LuDialogRealSliderAuditor* auditor);
    void applyDlgCptAuditor() override;

protected:
    ~LuDialogRealSlider() override = default;

    float getNumber() const override;
    float getNumberInEdit() const override { return getNumber(); }
    float getWidestNumber() const override;
    float readNumber(const LvString& text, bool& rewrites) const override;
    bool addKey(const LuKeyboardEvent& event, LvString& text) const override;
};
