// SPDX-License-Identifier: MIT
#pragma once

#include "controls/LuLabelledControl.h"

#include <memory>

class LuDialogCustomSlider;
class LuEventCallback;
class LuKeyboardEvent;
class LuSensor;
class LvLineProjector;

/// What the integer slider and the real slider share: a position from 0 to 1 and all that moves it. What
/// concerns the number goes through operations that those two implement.
///
/// | field               | windows                                      | 3D                                    |
/// |---------------------|----------------------------------------------|---------------------------------------|
/// | `valueVisible`      | whether the "EDIT" with the number shows     | the same for the value box            |
/// | `format`            | printf format of the number, from the next update of the text on | the same          |
/// | `continuousTrigger` | the check of the "BUTTON"; see below         | the check mark                        |
/// | `toggleVisible`     | whether that shows                           | the same                              |
/// | `fixedLimits`       | a number beyond a limit: TRUE clamps it, FALSE moves the limit | the same            |
/// | `colors`, `shadedColors` | the bar: one colour, or a ramp, or bands | none                                 |
///
/// `continuousTrigger` TRUE lets the value and the auditors follow each motion; FALSE lets them wait for the
/// end of a drag. With windows only the user's own click changes when they follow: a change of the field by
/// the program shows in the check alone.
class LuDialogSlider : public LuLabelledControl {
    LU_KIT_HEADER(LuDialogSlider)
    LU_SKIN_HEADER(DialogSlider)

    LuDialogSlider();

    LuSFBool valueVisible{true};
    LuSFString format{"%3f"};
    LuSFBool continuousTrigger{false};
    LuSFBool toggleVisible{true};
    LuSFBool fixedLimits{false};
    LuMFColor colors{LvColor(0.66F, 0.66F, 0.66F)};
    LuSFBool shadedColors{true};

    /// The value of the slider's window, from 0 to 1; 0 while there is none.
    float getValue() const;

    void updateFromSensor(LuSensor* sensor) override;
    void eventNotify(unsigned int event, std::uint64_t value) override;

    // Sizes
    LvVec2i32 getComponentInitSize() override { return {150, 30}; }

    // What the number is to the derived classes

    /// Reads the number of the edit box, or with 0 that of the 3D text, and gives the position for it.
    virtual void setValueFromEdit(int) {}
    /// Takes a position.
    virtual void setValueFromSlider(float) {}
    /// Brings the position to the slider's window.
    virtual void changeSliderValue() {}
    /// Gives the value for the position, and calls the auditors when it is another one.
    virtual void setValue() {}
    /// Writes the number into the edit box.
    virtual void changeEditValue() {}
    /// The pixels that the numbers need in the edit box.
    virtual int computeEditZoneWidth() { return 0; }
    virtual void changeValueVisible();
    virtual void changeToggleVisible();
    virtual void changeContinuousTrigger();
    virtual void changeFormat() {}
    /// Writes the number into the 3D text; here: the text has to be measured anew.
    virtual void change3DEditValue();
    /// A key while the number is edited in 3D; null where the event isn't known.
    virtual void computeNewSliderEditValue(const LuKeyboardEvent*) {}
    virtual void finish3DEditing() {}

    // Ways of a value
    /// Enter in the edit box, or the loss of its focus.
    void changeSliderFromEdit();
    /// An arrow key goes down: moves the thumb, not yet the value.
    void changeSliderFromSlider(float delta);
    /// The thumb is dragged.
    void changeValueFromSlider(float position);
    /// The end of a drag, or of an arrow key.
    void changeValueAfterFinish(float position);

    // Windows
    void buildWidget(HWND parent, LvVec2i32& size, LvVec2i32& position, int is2D) override;
    void destroyWidget() override;
    HWND getSliderWidget() const { return m_sliderWidget; }
    HWND getToggleWidget() const { return m_toggleWidget; }
    HWND getEditWidget() const { return m_editWidget; }

    /// What is behind the slider's window; null while there is none.
    LuDialogCustomSlider* getCustomSlider() const { return m_customSlider.get(); }
    void updateSliderWidget();
    void updateToggleWidget();
    void updateEditWidget();
    void updateLabelWidget();
    void changeEnable() override;
    void changeLabel() override;
    void changeLabelVisibility() override;
    void changeWidgetEnable(int enable) override;
    void changeEdgeStyle() override;

    // 3D
    void change3DEnable() override;
    void change3DLabel() override;
    void change3DLabelAlignment() override;
    void change3DLabelVisibility() override;
    void change3DValueVisible();
    void change3DToggleVisible();
    void change3DContinuousTrigger();
    /// Brings the cursor to the position.
    void change3DSliderValue();
    void set3DInactive() override;

    /// What a press, a motion and a release on the slider's geometry do.
    void draggerStartCallback3D();
    void draggerMotionCallback3D();
    void draggerFinishCallback3D();

protected:
    ~LuDialogSlider() override;

    /// Whether the 3D rendition is there, and is the parent's to place.
    bool isShown3D() const { return isBuilt3D() && canBeTraversed(); }

    LvString getValueFromEdit() const;
    LvString get3DValueFromEdit() const;

    /// Takes account of a new width of the number's room.
    void updateWidget();

    /// Keys go to the number in 3D no more.
    void stopEditing3D();

    LuSFNode checkSep;
    LuSFNode checkSwtch;
    LuSFNode checkStateOff;
    LuSFNode checkStateOn;
    LuSFNode sliderSep;
    LuSFNode frameSep;
    LuSFNode frame;
    LuSFNode cursorSep;
    LuSFNode cursor;
    LuSFNode edtSwtch;
    LuSFNode edtFrmSep;
    LuSFNode edtFrmSwtch;
    LuSFNode valueFrame;
    LuSFNode editValueFrame;
    LuSFNode editTextSep;
    LuSFNode editTextProp;

    float m_normalizedValue = 0;
    int m_sliderWidth = 0;
    int m_editZoneWidth = 0;
    std::unique_ptr<LuDialogCustomSlider> m_customSlider;
    LuText3* m_valueText3 = nullptr;
    int m_editing3D = 0;

private:
    void showText();
    void showPosition();

    // Windows
    void buildWindows();
    void createToggleWidget();
    void createEditWidget();
    void createSliderWidget();
    static LRESULT CALLBACK toggleProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK editProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK sliderProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static void valueChangeCallback(void* data, float value);
    static void finishCallback(void* data, float value);

    /// After a click on the toggle: lets the end of a drag be told, or not, as `continuousTrigger` says.
    void changeFinishCallback();

    void changeBarColors();
    void enableWindows(bool isAllowed);
    void enableBar(bool isAllowed);
    int getLabelRoom() const;
    int getToggleRoom() const;

    // 3D
    /// Width and height of the cursor in scene units; a press brings its middle under the pointer.
    static constexpr float CURSOR_SIZE_3D = 10;

    void loadSkins3D();
    void create3DDialogSlider();
    void createFrame3D();
    void createValueBox3D();
    void update3DSlider();
    void updateValueBox3D();
    void update3DLabel() { placeLabel3D(); }
    void showCheck3D();
    void change3DCursor();
    /// The way of the cursor from position 0 to position 1 in scene units.
    float getTravel3D() const;
    void startDrag3D();
    void jumpToClick3D();
    void showNewValue3D();
    void toggleCheck3D();
    static void startCB3D(void* data, LuDragger* dragger);
    static void motionCB3D(void* data, LuDragger* dragger);
    static void finishCB3D(void* data, LuDragger* dragger);
    static void processKeyEvents(void* data, LuEventCallback* node);

    HWND m_sliderWidget = nullptr;
    HWND m_toggleWidget = nullptr;
    HWND m_editWidget = nullptr;
    LuFieldSensor* m_valueVisibleSensor = nullptr;
    LuFieldSensor* m_continuousTriggerSensor = nullptr;
    LuFieldSensor* m_toggleVisibleSensor = nullptr;
    LuFieldSensor* m_colorsSensor = nullptr;
    LuFieldSensor* m_shadedColorsSensor = nullptr;
    LuFieldSensor* m_formatSensor = nullptr;

    LuTranslation* m_checkTranslation = nullptr;
    LuTranslation* m_sliderTranslation = nullptr;
    LuTranslation* m_valueBoxTranslation = nullptr;
    LuTranslation* m_valueTextTranslation = nullptr;
    LuTranslation* m_cursorOffset = nullptr;
    LuTranslation* m_cursorTranslation = nullptr;
    LuScale* m_frameScale = nullptr;
    LuScale* m_valueFrameScale = nullptr;
    LuTransform* m_frameTransform = nullptr;
    LuTransform* m_valueFrameTransform = nullptr;
    LvBox3f m_valueTextBBox = getUnsetBox();
    std::unique_ptr<LvLineProjector> m_linearProjector;
    LvVec3f m_cursorStart;
    int m_sliderLength3D = 0;
};
