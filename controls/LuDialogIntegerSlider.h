// SPDX-License-Identifier: MIT
#pragma once

#include "controls/LuNumberSlider.h"

class LuDialogIntegerSliderAuditor;

/// A slider for a whole number from `min` to `max`.
///
/// | field        | meaning                                                                     |
/// |--------------|-----------------------------------------------------------------------------|
/// | `min`, `max` | the numbers at the left and the right end                                   |
/// | `value`      | the number; the position is rounded to the nearest                          |
/// | `format`     | prints an int: "%d" unless it is set; one that doesn't fit is reported, and "%d" taken |
///
/// The auditors hear of what the user does, never of what the program sets. A value that is set beyond a
/// limit stays. Where both limits are equal, the edit box shows another number than `value` on purpose.
class LuDialogIntegerSlider : public LuNumberSlider<std::int32_t> {
    LU_KIT_HEADER(LuDialogIntegerSlider)

    LuDialogIntegerSlider();

    /// The component's own auditors, which hide it from those of the containers. They stay the caller's.
    void addAuditor(LuDialogIntegerSliderAuditor* auditor);
    void removeAuditor(LuDialogIntegerSliderAuditor* auditor);
    void applyDlgCptAuditor() override;

protected:
    ~LuDialogIntegerSlider() override = default;

    std::int32_t getNumber() const override;
    std::int32_t getNumberInEdit() const override;
    std::int32_t getWidestNumber() const override;
    std::int32_t readNumber(const LvString& text, bool& rewrites) const override;
    bool addKey(const LuKeyboardEvent& event, LvString& text) const override;

private:
    float getHalfStep() const;
    std::int32_t getNumberAfter(float steps) const;
};
