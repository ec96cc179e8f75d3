// SPDX-License-Identifier: MIT
#pragma once

#include "controls/LuLabelledControl.h"

/// A "BUTTON" with a label to its left; in 3D a frame with what stands on it. It keeps the window and the
/// frame. Like LuControl it is no type of its own.
class LuLabelledButton : public LuLabelledControl {
public:
    void destroyWidget() override;
    void updateLabelWidget();
    void changeLabel() override;
    void changeLabelVisibility() override;
    void changeWidgetEnable(int enable) override;

protected:
    LuLabelledButton() = default;
    ~LuLabelledButton() override { destroyChild(m_buttonWidget); }

    /// Adds the parts of the label, and `frameSep`, to the class's table.
    void addFrameParts(LuKitConstructor& constructor);

    /// The natural size of the content, less the label's column when that doesn't show.
    LvVec2i32 leaveOutHiddenLabel(LvVec2i32 size) const;

    void placeButtonWindow();

    /// Enables the windows, unless the component's own field says no.
    void enableWindows(bool isAllowed = true);

    /// Makes what stretches the frame, and what lifts the part `lifted` and all behind it onto the frame.
    void createFrame3D(const LuSFNode& lifted);

    /// Gives the frame a place and a size in scene units, and brings what stands on it along.
    void placeFrame3D(float x, const LvVec2i32& size);

    /// Brings what stands on the frame to the front of it, after another look of the frame.
    void liftToFrame3D() { undoTransformMatrix(frameSep.getValue(), m_frameTransform); }

    LuSFNode frameSep;

    HWND m_buttonWidget = nullptr;
    LuTranslation* m_frameTranslation = nullptr;
    LuScale* m_frameScale = nullptr;
    LuTransform* m_frameTransform = nullptr;
};
