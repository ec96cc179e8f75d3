// SPDX-License-Identifier: MIT
#pragma once

#include "layout/LuDialogComponent.h"
#include "platform/lumora/events/LuKeyboardEvent.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

class LuPath;
class RandomPanel;

/// Something that a user or a program may do. The chance of each is its weight's part of all weights.
struct RandomAction {
    std::string name;
    int weight;
    std::function<void()> run;
};

/// A message of the mouse or the keyboard to a window.
struct RandomMessage {
    HWND window;
    UINT message;
    WPARAM wParam;
    int x;         ///< Where the mouse is, from the left edge of the window.
    bool isInside; ///< The mouse is on the window.
};

/// What is expected of one component: the state that its two renditions should show after all that has been
/// done so far. It is told what is going to happen, and compares afterwards.
///
/// A class for each type of component adds what users do with it and what shows of it. To have a further type
/// tested, derive a class, add a row to the table in RandomComponents.cpp, and use the type in the dialog of
/// RandomPanelTest.cpp.
class RandomComponent {
public:
    /// Holds the component, which may be taken out of its container for a while.
    RandomComponent(RandomPanel& panel, LuDialogComponent& component);
    virtual ~RandomComponent();
    RandomComponent(const RandomComponent&) = delete;
    RandomComponent& operator=(const RandomComponent&) = delete;

    LuDialogComponent& getComponent() const { return m_component; }
    std::string getName() const { return m_component.auditorID.getValue().str(); }

    /// What may be done with it. Those of this class change the fields that all components have, and press
    /// it.
    virtual void addActions(std::vector<RandomAction>& actions);

    /// A rendition has been built, from the fields as they are.
    virtual void windowsBuilt() { m_isEnabledInWindows = isEnableSet(); }
    virtual void sceneBuilt();

    /// A container says whether what is in it takes input.
    virtual void allowInWindows(bool isAllowed) { m_isEnabledInWindows = isAllowed && isEnableSet(); }
    virtual void allowInScene(bool isAllowed) { m_isEnabledInScene = isAllowed && isEnableSet(); }

    /// show3D has been called for it or for a container.
    virtual void shownInScene(bool isShown) { m_isShownInScene = isShown; }

    /// A build of the dialog has come by, once it is built itself.
    virtual void laidOut() {}

    /// Whether it takes a press in the scene that hits something below it. Then it is told of the press, with
    /// the way from the root to what was hit, of each move, after them, and of the release before it.
    virtual bool takesScenePress() const { return false; }
    virtual void scenePressed(const LuPath&) {}
    virtual void sceneMoved() {}
    virtual void sceneReleased() {}

    /// The release will not come: by then it was no longer in the scene.
    virtual void sceneGrabLost() {}

    /// A key has been pressed, which no drag has taken.
    virtual void sceneKey(LuKeyboardEvent::Key) {}

    /// Another component takes keys and drags in the scene, or none does.
    virtual void madeInactive() {}

    /// The window that the mouse and the keys operate; null for none.
    virtual HWND getOperatedWindow() const { return nullptr; }
    virtual bool isOperated(HWND window) const { return window && window == getOperatedWindow(); }

    /// A message is about to be sent to such a window, and has been.
    virtual void windowMessage(const RandomMessage&) {}
    virtual void windowMessageDone(const RandomMessage&) {}

    /// A window, which may be gone, has the focus or the mouse no more.
    virtual void focusLeft(HWND) {}
    virtual void captureLeft(HWND) {}

    /// Compares what shows with what is expected.
    virtual void check();

    void setContainer(RandomComponent* container) { m_container = container; }
    void setTakenOut(bool isTakenOut) { m_isTakenOut = isTakenOut; }
    bool isTakenOut() const { return m_isTakenOut; }

    /// Whether it hangs in the dialog, with all that it stands in.
    bool isInDialog() const { return !m_isTakenOut && (!m_container || m_container->isInDialog()); }
    bool isSceneBuilt() const { return m_isSceneBuilt; }

    bool takesInputInScene() const { return m_isEnabledInScene && m_isShownInScene; }

protected:
    bool isEnableSet() const { return m_component.enable.getValue(); }
    void checkWindowEnabled(HWND window) const;

    /// Whether a change of a field that all components have reaches the component.
    virtual bool seesCommonFields() const { return true; }
    virtual void enableChanged();
    virtual void labelChanged() {}
    virtual void alignmentChanged() {}

    RandomPanel& m_panel;
    LuDialogComponent& m_component;
    RandomComponent* m_container = nullptr;
    bool m_isTakenOut = false;
    bool m_isSceneBuilt = false; ///< Its geometry outlives a stay outside of the dialog; its windows don't.
    bool m_isEnabledInWindows = true;
    bool m_isEnabledInScene = true;
    bool m_isShownInScene = true;
};

/// What the texts of components are made of.
extern const char* const RANDOM_TEXTS[7];

/// The component's expectations, and below it those of what it holds. Null for a type that none are written
/// for.
std::unique_ptr<RandomComponent> makeRandomComponent(RandomPanel& panel, LuDialogComponent& component);
