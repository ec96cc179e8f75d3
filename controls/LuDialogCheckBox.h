// SPDX-License-Identifier: MIT
#pragma once

#include "controls/LuLabelledButton.h"

class LuDialogCheckBoxAuditor;

/// A control with two states. A click turns it over and brings an event to the auditors; a change of `state`
/// by the program brings none.
///
/// | field                   | windows                                       | 3D                                   |
/// |-------------------------|-----------------------------------------------|--------------------------------------|
/// | `state`                 | the check of a "BUTTON"                       | one of the skin's two marks          |
/// | `onString`, `offString` | its text in either state; with an empty `offString` always `onString` | the same     |
/// | `label`                 | a "STATIC" to its left                        | a text to its left                   |
/// | `labelVisibility`       | whether that shows and takes room             | the same                             |
/// | `labelAlignment`        | where it stands in the label column           | the same                             |
///
/// Both texts count for the size, which therefore is the same in both states. The auditors may set `state`:
/// while a click in the window is on its way to them, the renditions don't follow it.
class LuDialogCheckBox : public LuLabelledButton {
    LU_KIT_HEADER(LuDialogCheckBox)
    LU_SKIN_HEADER(DialogCheckBox)

    LuDialogCheckBox();

    LuSFBool state{false};
    LuSFString onString;
    LuSFString offString;

    /// For who shows the marks of this class's skin in a control of its own.
    static void loadSkinOnFirstUse() { s_skin.loadOnFirstUse(); }

    /// The component's own auditors, which hide it from those of the containers. They stay the caller's.
    void addAuditor(LuDialogCheckBoxAuditor* auditor);
    void removeAuditor(LuDialogCheckBoxAuditor* auditor);

    /// Tells the auditors of the state.
    void applyDlgCptAuditor();

    void updateFromSensor(LuSensor* sensor) override;
    void eventNotify(unsigned int event, std::uint64_t value) override;

    // Sizes
    LvVec2i32 getComponentInitSize() override;
    void getDefaultSize(LvVec2i32& size, LvVec2i32& minSize, LvVec2i32& maxSize) override;

    // Windows
    void buildWidget(HWND parent, LvVec2i32& size, LvVec2i32& position, int is2D) override;
    HWND getCheckBoxWidget() const { return m_buttonWidget; }
    void updateCheckBoxWidget() { placeButtonWindow(); }
    void changeEnable() override;
    void changeEdgeStyle() override;

    // 3D
    void change3DLabelVisibility() override;

    /// Shows the mark and the text of the state.
    virtual void change3DState();

    /// What the release of a press does: nothing when the press was on the label.
    virtual void draggerFinishCallback3D();

protected:
    ~LuDialogCheckBox() override;

    LuSFNode frame;
    LuSFNode stateSep;
    LuSFNode stateSwitch;
    LuSFNode stateOff;
    LuSFNode stateOn;
    LuSFNode onOffStringSep;
    LuSFNode onOffStringProp;

private:
    /// The text that belongs to the state.
    const LvString& getTextInForce() const;
    bool shows3D() const { return isBuilt3D() && canBeTraversed(); }

    void createCheckBoxWidget();
    void changeState();
    void changeOnOffString();
    void changeOnOffStrings();
    static LRESULT CALLBACK checkBoxProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    void create3DDialogCheckBox();
    void update3DCheckBox();
    void update3DLabel() { placeLabel3D(); }
    void change3DOnOffString();
    static void finishCB3D(void* data, LuDragger* dragger);

    LvVec2i32 m_onStringSize;
    LvVec2i32 m_offStringSize;
    LuFieldSensor* m_stateSensor = nullptr;
    LuFieldSensor* m_onStringSensor = nullptr;
    LuFieldSensor* m_offStringSensor = nullptr;
    Text3D m_onOffText;
    LuTranslation* m_stateTranslation = nullptr;
};
