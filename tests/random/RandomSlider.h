// SPDX-License-Identifier: MIT
#pragma once

#include "controls/LuDialogSlider.h"
#include "tests/random/RandomComponent.h"

/// What is expected of a slider, whatever kind of number it shows. What the number is, the derived class
/// knows.
///
/// Where the user brings the thumb or the cursor is checked roughly, by where the mouse is; all that follows
/// from the position is expected exactly.
class RandomSlider : public RandomComponent {
public:
    RandomSlider(RandomPanel& panel, LuDialogSlider& slider)
        : RandomComponent(panel, slider), m_slider(slider) {}

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

    // The number

    /// The number at the position, as it is written in the edit box or in the scene.
    virtual std::string printInBox() const = 0;
    virtual std::string printInScene() const = 0;

    /// The value follows the position, and is told when it is another one.
    virtual void takeNumber() = 0;

    /// The position follows what was entered. Whether the number is written over it.
    virtual bool takeEntry(const LvString& text) = 0;

    /// The entry in the scene is finished.
    virtual void enterInScene() = 0;

    /// Adds what a key types in the scene, if it has a place there.
    virtual void typeKey(LuKeyboardEvent::Key key, std::string& text) = 0;
    virtual void addNumberActions(std::vector<RandomAction>& actions) = 0;
    virtual const char* chooseFormat() = 0;

    // What becomes of a position
    void showValue();
    void showText(bool isInWindows);
    void moveThumb();
    void moveCursor();
    bool hasWindows() const { return m_slider.getEditWidget() != nullptr; }

    float m_position = 0;
    std::string m_sceneText;
    bool m_isLengthOld = false; ///< A move of the cursor has come before the change of the frame's length.
    bool m_isEditing = false;   ///< In the scene.

private:
    /// What a press in the scene that is under way holds.
    enum class Hold { NOTHING, CURSOR, CHECK };

    void addFieldActions(std::vector<RandomAction>& actions);
    void addUserActions(std::vector<RandomAction>& actions);

    /// The slider's own position, which it doesn't tell.
    float getActualPosition() const;

    // What the user does
    void dragThumb(int x);
    void sentToThumb(const RandomMessage& sent);
    void sentToBox(const RandomMessage& sent);
    void finishDrag();
    void enter(const LvString& text);
    void jumpTo(const LvVec3f& place);
    float getFrameLength() const;
    void turnCheck(bool isOn);

    void checkWindows();
    void checkScene();

    static constexpr float CURSOR_SIZE = 10;

    LuDialogSlider& m_slider;

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
    int m_checkSwitch = 0;
    float m_cursor = 0; ///< The way of the cursor from position 0.
    float m_cursorPosition = 0;
    bool m_isCursorMoved = false;     ///< By the action that is under way.
    bool m_isCursorMovedLast = false; ///< It is moved at the end of the action.
    float m_length = 0;               ///< Of the frame, after the action before.
    Hold m_hold = Hold::NOTHING;
    LvVec3f m_pressPlace;
    float m_pressCursor = 0;
    LvBox3f m_pressBox; ///< The frame at the press.
};
