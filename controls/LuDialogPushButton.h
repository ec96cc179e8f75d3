// SPDX-License-Identifier: MIT
#pragma once

#include "controls/LuLabelledButton.h"

class LuDialogPushButtonAuditor;

/// A push button. A press, the release of it, brings an event to the auditors.
///
/// | field             | windows                                   | 3D                                     |
/// |-------------------|-------------------------------------------|----------------------------------------|
/// | `buttonLabel`     | the text on the "BUTTON"                  | the text on the skin's geometry        |
/// | `label`           | a "STATIC" to its left                    | a text to its left                     |
/// | `labelVisibility` | whether that shows and takes room         | the same                               |
/// | `labelAlignment`  | where it stands in the label column       | the same                               |
///
/// Where both renditions exist, each shows the pressed look of the other. A new `buttonLabel` is not centred
/// in 3D before the next build.
class LuDialogPushButton : public LuLabelledButton {
    LU_KIT_HEADER(LuDialogPushButton)
    LU_SKIN_HEADER(DialogPushButton)

    LuDialogPushButton();

    LuSFString buttonLabel;

    /// The component's own auditors, which hide it from those of the containers. They stay the caller's.
    void addAuditor(LuDialogPushButtonAuditor* auditor);
    void removeAuditor(LuDialogPushButtonAuditor* auditor);

    /// Tells the auditors of a press.
    void applyDlgCptAuditor();

    void updateFromSensor(LuSensor* sensor) override;
    void eventNotify(unsigned int event, std::uint64_t value) override;

    // Sizes
    LvVec2i32 getComponentInitSize() override;
    void getDefaultSize(LvVec2i32& size, LvVec2i32& minSize, LvVec2i32& maxSize) override;

    // Windows
    void buildWidget(HWND parent, LvVec2i32& size, LvVec2i32& position, int is2D) override;
    HWND getButtonWidget() const { return m_buttonWidget; }
    void updateButtonWidget() { placeButtonWindow(); }
    void changeEnable() override;
    void changeEdgeStyle() override;
    void changeButtonLabel();

    /// Shows the native button pressed or released, without an event.
    void changeButtonState(int isPressed);

    // 3D
    void change3DLabelVisibility() override;
    void change3DButtonLabel();
    void change3DButtonState(int isPressed);

    /// Shows a press of the native button in 3D, unless the button is pressed already.
    void activateButton();

    /// What a press and its release on the button's geometry do.
    void draggerStartCallback3D();
    void draggerFinishCallback3D();

    /// Replace one of the two looks. As their names don't say, the node given to set3DPressedGeometry is
    /// shown while the button is released, and the other while it is pressed.
    void set3DPressedGeometry(LuNode* node);
    void set3DReleasedGeometry(LuNode* node);

protected:
    ~LuDialogPushButton() override;

    LuSFNode frameSwitch;
    LuSFNode released;
    LuSFNode pressed;
    LuSFNode buttonLabelSep;
    LuSFNode buttonLabelProp;

private:
    void createButtonWidget();
    static LRESULT CALLBACK buttonProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    void create3DDialogPushButton();
    void update3DButton();
    void update3DLabel() { placeLabel3D(); }
    bool isButtonPicked() const;
    static void startCB3D(void* data, LuDragger* dragger);
    static void finishCB3D(void* data, LuDragger* dragger);

    LvVec2i32 m_buttonTextSize;
    LuFieldSensor* m_buttonLabelSensor = nullptr;
    Text3D m_buttonText;
};
