// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvVec.h"
#include "platform/lumora/win/LuWinSlider.h"

#include <vector>

/// The toolkit's slider with a bar in one colour, in a ramp of colours or in bands of them.
class LuDialogCustomSlider : public LuWinSlider {
public:
    explicit LuDialogCustomSlider(HWND parent) : LuWinSlider(parent, "", 1, 0) {}
    ~LuDialogCustomSlider() override;

    /// Takes the colours of the bar, from its left end to its right one. With several of them `isShaded` says
    /// whether it is a smooth ramp or bands; with one it is left as it was.
    void setBarColors(const std::vector<LvColor>& colors, bool isShaded);

    /// A ramp that is not enabled is half as bright; a bar in one colour always looks the same.
    void setBarEnabled(bool isEnabled);

protected:
    void drawSlider() override;
    void drawMarks() override {}

private:
    void drawFlatBar();
    void drawRampBar();
    void setRampColor(const LvColor& color);

    std::vector<LvColor> m_barColors{LvColor(0.66F, 0.66F, 0.66F)};
    bool m_isShaded = false;
    bool m_isBarEnabled = true;
    void (LuDialogCustomSlider::*m_drawBar)() = &LuDialogCustomSlider::drawFlatBar;
};
