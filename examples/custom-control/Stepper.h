// SPDX-License-Identifier: MIT
#pragma once

#include "controls/LuLabelledControl.h"

class StepperAuditor;

/// A whole number between two buttons that take one from it and add one. A press brings an event to the
/// auditors; a change of `value` by the program brings none.
///
/// | field                  | windows                             | 3D                                   |
/// |------------------------|-------------------------------------|--------------------------------------|
/// | `value`                | the text of a "STATIC"              | a text                               |
/// | `minValue`, `maxValue` | where the buttons "-" and "+" stop  | the same                             |
/// | `label`                | a "STATIC" to the left              | a text to the left                   |
///
/// The parts `minus` and `plus` are the looks of the buttons in 3D, 20 by 20 units. A dialog file may bring
/// others.
class Stepper : public LuLabelledControl {
    LU_KIT_HEADER(Stepper)

    Stepper();

    LuSFInt32 value{0};
    LuSFInt32 minValue{0};
    LuSFInt32 maxValue{10};

    /// They stay the caller's.
    void addAuditor(StepperAuditor* auditor);
    void removeAuditor(StepperAuditor* auditor);

    /// What a press on one of the buttons does. Tells the auditors, unless the value is at its end.
    void step(int difference);

    void updateFromSensor(LuSensor* sensor) override;
    void eventNotify(unsigned int event, std::uint64_t value) override;
    LvVec2i32 getComponentInitSize() override;

    // Windows
    void buildWidget(HWND parent, LvVec2i32& size, LvVec2i32& position, int is2D) override;
    void destroyWidget() override;
    HWND getMinusWidget() const { return m_minusWidget; }
    HWND getPlusWidget() const { return m_plusWidget; }
    HWND getValueWidget() const { return m_valueWidget; }
    void changeEnable() override;
    void changeWidgetEnable(int enable) override;
    void changeLabel() override;
    void changeLabelVisibility() override;
    void changeEdgeStyle() override;

    // 3D
    void change3DLabelVisibility() override;

protected:
    ~Stepper() override;

    LuSFNode minusSep;
    LuSFNode minus;
    LuSFNode plusSep;
    LuSFNode plus;
    LuSFNode valueSep;
    LuSFNode valueProp;

private:
    LvString getValueText() const;

    void createWindows();
    void updateWindows();
    void enableWindows(bool isAllowed = true);
    static LRESULT CALLBACK buttonProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    void create3DStepper();
    void update3DStepper();
    void changeValue3D();
    static void finishCB3D(void* data, LuDragger* dragger);

    HWND m_minusWidget = nullptr;
    HWND m_plusWidget = nullptr;
    HWND m_valueWidget = nullptr;
    LuFieldSensor* m_valueSensor = nullptr;
    LuTranslation* m_minusTranslation = nullptr;
    LuTranslation* m_plusTranslation = nullptr;
    Text3D m_valueText;
};
