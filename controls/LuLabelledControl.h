// SPDX-License-Identifier: MIT
#pragma once

#include "controls/LuControl.h"

class LuKitConstructor;

/// A control with its label to the left, in a column that is as wide as the container says. It keeps the
/// label in both renditions. Like LuControl it is no type of its own.
class LuLabelledControl : public LuControl {
public:
    /// The label's window, or null while there is none.
    HWND getLabelWidget() override { return existWidget(m_labelWidget) ? m_labelWidget : nullptr; }

    /// The size that the container gives, and the label's column beside it.
    void getDefaultSize(LvVec2i32& size, LvVec2i32& minSize, LvVec2i32& maxSize) override;
    void changeLabelAlignment() override;
    void change3DLabel() override;
    void change3DLabelAlignment() override { placeLabel3D(); }

protected:
    /// Pixels between the label and the control.
    static constexpr int LABEL_GAP = 2;

    LuLabelledControl() = default;
    ~LuLabelledControl() override;

    /// Adds the parts `labelSep`, `labelSwitch` and `labelProp` to the class's table.
    void addLabelParts(LuKitConstructor& constructor);

    /// The style of the label's window, which is hidden until it is shown.
    DWORD getLabelStyle() const { return WS_CHILD | WS_CLIPCHILDREN | getLabelAlignmentStyle(); }

    /// The steps of the window rendition. `room` is what the height loses before the label is put in its
    /// middle.
    void createLabelWindow();
    void placeLabelWindow(int room);
    void showLabelWindow() { showChild(m_labelWidget, labelVisibility.getValue()); }

    /// The steps of the 3D rendition.
    void createLabel3D();
    void placeLabel3D();
    void showLabel3D();

    /// Where the room beside the label begins in 3D, from the component's left edge, and how wide it is, in
    /// scene units.
    void getRoom3D(int& left, int& room) const;

    LuSFNode labelSep;
    LuSFNode labelSwitch;
    LuSFNode labelProp;

    LuText3* m_labelText3 = nullptr;
    LuTranslation* m_labelTranslation = nullptr;
};
