// SPDX-License-Identifier: MIT
#pragma once

#include "controls/LuControl.h"

/// A thin line between the controls of a column or a row, 8 pixels thick. It takes no input and has no
/// events, and no fields of its own: the container says which way it runs.
///
/// | field       | windows                                                         | 3D   |
/// |-------------|-----------------------------------------------------------------|------|
/// | `edgeStyle` | the inset of the line; the carrier's frame is that of the build | none |
class LuDialogSeparator : public LuControl {
    LU_KIT_HEADER(LuDialogSeparator)
    LU_SKIN_HEADER(DialogSeparator)

    LuDialogSeparator();

    /// Non-zero for a horizontal line, 0 for a vertical one. For the next build and the next question for the
    /// size.
    void setOrientationHorz(int isHorizontal) { m_orientationHorz = isHorizontal; }

    /// The line runs across the direction in which the container adds up its children.
    void setStackAxis(int axis) override { setOrientationHorz(axis); }

    void updateFromSensor(LuSensor* sensor) override;
    void getDefaultSize(LvVec2i32& size, LvVec2i32& minSize, LvVec2i32& maxSize) override;

    // Windows
    void buildWidget(HWND parent, LvVec2i32& size, LvVec2i32& position, int is2D) override;
    void destroyWidget() override;
    HWND getSeparatorWidget() const { return m_separatorWidget; }
    void changeEdgeStyle() override;

protected:
    ~LuDialogSeparator() override;

    LuSFNode frameSep;
    LuSFNode frameSwitch;
    LuSFNode vFrame;
    LuSFNode hFrame;

private:
    void createSeparatorWidget();
    void updateSeparatorWidget();
    void create3DSeparator();
    void update3DSeparator();

    HWND m_separatorWidget = nullptr;
    int m_orientationHorz = 1;
    LuScale* m_frameScale = nullptr;
};
