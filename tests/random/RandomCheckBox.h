// SPDX-License-Identifier: MIT
#pragma once

#include "controls/LuDialogCheckBox.h"
#include "tests/random/RandomComponent.h"
#include "tests/random/RandomTexts.h"

/// What is expected of a check box.
class RandomCheckBox : public RandomComponent {
public:
    RandomCheckBox(RandomPanel& panel, LuDialogCheckBox& box)
        : RandomComponent(panel, box), m_box(box), m_state(box.state.getValue()) {}

    void addActions(std::vector<RandomAction>& actions) override;
    void windowsBuilt() override;
    void sceneBuilt() override;

    bool takesScenePress() const override { return true; }
    void scenePressed(const LuPath& path) override;
    void sceneReleased() override;
    void sceneGrabLost() override { m_isOperated = false; }

    HWND getOperatedWindow() const override { return m_box.getCheckBoxWidget(); }
    void windowMessage(const RandomMessage& message) override;
    void check() override;

protected:
    void labelChanged() override;

    /// The native label is made anew in its style, with the enabling of the field.
    void alignmentChanged() override { m_isEnabledInWindows = isEnableSet(); }

private:
    LvString getTextInForce() const;
    void takeSceneText();
    void turn();

    LuDialogCheckBox& m_box;
    bool m_state;
    std::string m_windowLabel;
    std::string m_sceneLabel;
    Lines m_sceneText;
    bool m_isOperated = false; ///< By a press in the scene that is under way.
};
