// SPDX-License-Identifier: MIT
#pragma once

#include "controls/LuDialogIntegerSlider.h"
#include "controls/LuDialogRealSlider.h"
#include "tests/random/RandomComponent.h"

/// What is expected of an integer or a real slider.
///
/// Where the user brings the thumb or the cursor is checked roughly, by where the mouse is; all that follows
/// from the position is expected exactly.
template <class Slider>
class RandomSlider : public RandomComponent {
public:
    using Number = std::remove_cvref_t<decltype(std::declval<Slider&>().value.getValue())>;

    RandomSlider(RandomPanel& panel, Slider& slider)
        : RandomComponent(panel, slider), m_slider(slider), m_min(slider.min.getValue()),
          m_max(slider.max.getValue()), m_value(slider.value.getValue()) {}

    void addActions(std::vector<RandomAction>& actions) override;
    void windowsBuilt() override;
    void sceneBuilt() override;
    void laidOut() override;

    bool takesScenePress() const override { return true; }
    void scenePressed(const LuPath& path) override;
    void sceneMoved() override;
    void sceneReleased() override;
    void sceneGrabLost() override { m_hold = Hold::NOTHING; }
    void sceneKey(LuKeyboardEvent::Key key) override;
    void madeInactive() override { m_isEditing = false; }

    bool isOperated(HWND window) const override;
    void windowMessage(const RandomMessage& sent) override;
    void windowMessageDone(const RandomMessage& sent) override;
    void focusLeft(HWND window) override;
    void captureLeft(HWND window) override;
    void check() override;

protected:
    void enableChanged() override;
    void labelChanged() override;

    /// The native label is made anew in its style, with the enabling of the field.
    void alignmentChanged() override { m_isEnabledInWindows = isEnableSet(); }

private:
    /// What a press in the scene that is under way holds.
    enum class Hold { NOTHING, CURSOR, CHECK };

    void addFieldActions(std::vector<RandomAction>& actions);
    void addUserActions(std::vector<RandomAction>& actions);

    // The number and its position
    Number chooseNumber();
    float getPositionOfValue() const;
    Number getNumber() const;
    Number getNumberInBox() const;
    std::string print(Number number) const;
    bool hasWindows() const { return m_slider.getEditWidget() != nullptr; }

    // Changes of the fields, by the program or by what the user enters
    void changeMin(Number min);
    void changeMax(Number max);
    void changeValue(Number value);
    bool limit(Number& number);
    bool stretchLimits(Number number);

    // What becomes of a position
    void showValue();
    void showText(bool isInWindows);
    void moveThumb();
    void moveCursor();
    void takeNumber();
    void turnCheck(bool isOn);

    // What the user does
    void dragThumb(int x);
    void finishDrag();
    void enter(const LvString& text);
    void enterInScene();
    bool takeEntry(const LvString& text);
    void jumpTo(const LvVec3f& place);
    float getFrameLength() const;
    void expectCall();

    void checkWindows();
    void checkScene();

    Slider& m_slider;
    Number m_min, m_max, m_value;
    float m_position = 0;
    bool m_isValueWatched = true; ///< A change of the value by a field reaches the slider.

    // In the windows
    HWND m_sliderWindow = nullptr;
    HWND m_editWindow = nullptr;
    std::string m_windowLabel;
    std::string m_boxText;
    float m_thumb = 0;
    int m_grip = 0;        ///< Pixels from the left edge of the thumb to the mouse.
    int m_finishCalls = 0; ///< How often the end of a drag is told.
    bool m_isChecked = false;
    bool m_isToggleShown = true;
    bool m_isToggling = false; ///< By the message that is being sent.

    // In the scene
    std::string m_sceneLabel;
    std::string m_sceneText;
    int m_checkSwitch = 0;
    float m_cursor = 0; ///< The way of the cursor from position 0.
    float m_cursorPosition = 0;
    bool m_isCursorMoved = false;     ///< By the action that is under way.
    float m_length = 0;               ///< Of the frame, after the action before.
    bool m_isLengthOld = false;       ///< A move of the cursor has come before the change of the length.
    bool m_isCursorMovedLast = false; ///< It is moved at the end of the action.
    bool m_isEditing = false;
    Hold m_hold = Hold::NOTHING;
    LvVec3f m_pressPlace;
    float m_pressCursor = 0;
    LvBox3f m_pressBox; ///< The frame at the press.
};

using RandomIntegerSlider = RandomSlider<LuDialogIntegerSlider>;
using RandomRealSlider = RandomSlider<LuDialogRealSlider>;

extern template class RandomSlider<LuDialogIntegerSlider>;
extern template class RandomSlider<LuDialogRealSlider>;
