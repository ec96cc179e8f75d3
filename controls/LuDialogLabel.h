// SPDX-License-Identifier: MIT
#pragma once

#include "controls/LuControl.h"

/// A fixed text, which takes no input and has no events.
///
/// | field            | windows                                      | 3D                                        |
/// |------------------|----------------------------------------------|-------------------------------------------|
/// | `label`          | the text of a "STATIC"                       | the lines of a text, wrapped at the width |
/// | `labelAlignment` | where the text stands in the whole component | the same                                  |
///
/// The text takes no place in the label column of the container. `labelVisibility` has no effect on it. In
/// 3D a text aligned RIGHT, which is the default, stands to the left of the right edge by its own width more:
/// its justification and its place both count the width.
class LuDialogLabel : public LuControl {
    LU_KIT_HEADER(LuDialogLabel)

    LuDialogLabel();

    void updateFromSensor(LuSensor* sensor) override;

    // Sizes. The natural width is 4 more than the text's, less the container's label column, and may be
    // negative.
    LvVec2i32 getComponentInitSize() override;
    LvVec2i32 getLabelInitSize() override { return {0, 0}; }
    void getDefaultSize(LvVec2i32& size, LvVec2i32& minSize, LvVec2i32& maxSize) override;

    // Windows
    void buildWidget(HWND parent, LvVec2i32& size, LvVec2i32& position, int is2D) override;
    void updateLabelWidget();
    void changeEnable() override;
    void changeLabel() override;
    void changeLabelAlignment() override;
    void changeWidgetEnable(int enable) override;
    void changeEdgeStyle() override;

    // 3D
    void change3DLabel() override;
    void change3DLabelAlignment() override;

protected:
    ~LuDialogLabel() override;

    LuSFNode labelSep;
    LuSFNode labelProp;

private:
    DWORD getTextStyle() const { return WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | getLabelAlignmentStyle(); }

    void create3DDialogLabel();
    void update3DLabel();

    bool m_ownsLabelWidget = true;
    LvVec2i32 m_textSize;
    LuText3* m_text3 = nullptr;
    LuTranslation* m_textTranslation = nullptr;
};
