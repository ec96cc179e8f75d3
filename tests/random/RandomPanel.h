// SPDX-License-Identifier: MIT
#pragma once

#include "auditors/LuDialogAuditor.h"
#include "layout/LuTopLevelDialog.h"
#include "tests/host/SceneHost.h"
#include "tests/random/RandomComponent.h"
#include "tests/random/RandomSource.h"

#include <deque>

/// A dialog with which things are done at random, in windows and in a scene, and which is compared with what
/// is expected after each of them.
///
/// The same seed does the same things. There are a mouse in the windows, a keyboard, and a pointer in the
/// scene, which know nothing of each other; and a program that changes fields in the meantime.
class RandomPanel {
public:
    /// The dialog stays the caller's, and must live as long.
    RandomPanel(LuTopLevelDialog& dialog, std::uint32_t seed);
    ~RandomPanel();

    /// Builds a rendition; each once.
    void buildWindows();
    void buildScene();

    /// Does so many things; false at the first after which something isn't as expected. That fails the test,
    /// with the seed and the last actions in the message.
    bool run(int count);

    /// How many calls of auditors have been heard.
    int getCallCount() const { return m_callCount; }

    // For the components' expectations

    RandomSource& getRandom() { return m_random; }
    bool hasWindows() const { return m_hasWindows; }
    bool hasScene() const { return m_hasScene; }
    RandomComponent* add(LuDialogComponent& component);
    void expectCall(const std::string& call) { m_expectedCalls.push_back(call); }

    /// The dialog has been laid out anew.
    void rebuilt();

    /// The component that takes keys and drags in the scene.
    void setActive(LuPanelix* component);
    const LuPanelix* getActive() const { return m_active; }

    /// Presses the middle of what is below a node; nothing when that doesn't show.
    void pressInScene(LuNode* node);

    /// Presses a window somewhere, if the user can get at it.
    void pressWindow(HWND window);

    /// Sends a key to the window with the focus, if that is one of the dialog.
    void sendKey(UINT message, WPARAM key);

    /// Moves the pointer of the scene a bit.
    void moveInScene();

    /// Presses and releases a key where the pointer of the scene is.
    void keyInScene(LuKeyboardEvent::Key key);
    const LvVec3f& getPointer() const { return m_place; }

    /// The box that something below a node takes in the scene; empty when it doesn't show.
    LvBox3f getSceneBox(LuNode* node);

private:
    class Recorder;
    enum class Drag { NONE, FRAME, BUTTON, NOTHING };

    void addDialogActions();
    void addUserActions();
    void addAction(const char* name, int weight, std::function<void()> run) {
        m_actions.push_back({name, weight, std::move(run)});
    }
    void check();
    void checkDialog();
    void fail(int number, int count);

    // The pointer in the scene
    LuPath pick(const LvVec3f& place);
    void pressAt(const LvVec3f& place);
    void loseGrabber();
    void releaseInScene();
    void dialogPressed(const LuPath& path);
    void dialogReleased();
    RandomComponent* find(const LuNode* node) const;

    // The mouse and the keys in the windows
    void sendToWindow(HWND window, UINT message, WPARAM wParam, LPARAM lParam, bool isInside);
    void sendMouse(HWND window, UINT message, WPARAM buttons, bool isInside);
    void moveOnWindow();
    void releaseWindow();
    void followFocus();
    void followCapture();

    void showChildren(bool isShown);
    LvVec3f getCorner() const;

    LuTopLevelDialog& m_dialog;
    std::uint32_t m_seed;
    RandomSource m_random;
    SceneHost m_scene;
    bool m_hasWindows = false;
    bool m_hasScene = false;
    std::vector<std::unique_ptr<RandomComponent>> m_components;
    std::vector<RandomComponent*> m_children; ///< Those directly in the dialog.
    std::vector<RandomAction> m_actions;
    int m_weights = 0;
    std::deque<std::string> m_lastActions;

    std::unique_ptr<Recorder> m_recorder;
    std::vector<std::string> m_calls, m_expectedCalls;
    int m_callCount = 0;

    // What is expected of the dialog
    LuPanelix* m_active = nullptr;
    RandomComponent* m_grabber = nullptr; ///< The component with the pointer of the scene.
    Drag m_drag = Drag::NONE;             ///< What a press on the panel itself does.
    LvVec2i32 m_dragPixel;
    LvVec3f m_dragCorner;
    LvVec3f m_place; ///< Where the pointer of the scene is.
    bool m_isShownInScene = true;
    bool m_isMinimized = false;
    bool m_isEnabledInWindows = true; ///< Only a change of the field counts, not what it is at the build.
    std::string m_title3D;
    bool m_isMouseInside = false; ///< On the window that has captured it.
    HWND m_focus = nullptr;
    HWND m_capture = nullptr;
};
