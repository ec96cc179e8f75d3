// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvString.h"
#include "platform/lumora/viewer/LuSceneView.h"

/// A window that shows a scene and takes mouse and keyboard for it.
///
/// A whole program:
///
///     auto viewer = LuViewer::create("My scene", 800, 600);
///     if (!viewer)
///         return 1; // what was missing has been posted
///     viewer->getView().setScene(scene);
///     viewer->getView().viewAll();
///     viewer->show();
///     while (LuViewer::waitForEvents()) {}
///
/// Viewers are the program's; they end before LuDB::finish, and not within their own events. For the thread
/// of the user interface.
class LuViewer {
public:
    /// A window that does not show yet, whose content has this size in pixels. Null, with a message, where
    /// there is no display, or neither OpenGL 3.3 nor, on Linux, ES 3.0.
    static std::unique_ptr<LuViewer> create(const LvString& title, int width, int height);

    virtual ~LuViewer();
    LuViewer(const LuViewer&) = delete;
    LuViewer& operator=(const LuViewer&) = delete;

    /// One that the user has closed is open again.
    void show();
    void hide();
    bool isShown() const { return m_isShown; }

    /// False once the user has closed the window, which hides it.
    bool isOpen() const { return m_isOpen; }

    /// What the window shows. Its size follows the window's.
    LuSceneView& getView() { return m_view; }

    virtual void setTitle(const LvString& title) = 0;

    /// Waits until something happens to any viewer or, on Windows, to any window of the program; handles it,
    /// fires the sensors that wait, and draws the viewers in which something has changed. To be called until
    /// it returns false: when the program is told to end, or nothing is shown any more that the user could
    /// close. It returns when `seconds` have passed, too, unless they are below 0.
    static bool waitForEvents(double seconds = -1);

protected:
    explicit LuViewer(std::unique_ptr<LuGLContext> context);

    /// The user closes the window.
    void close();

    /// Puts a picture on the window, a new one where it is needed.
    void paint();

    virtual void setShown(bool isShown) = 0;
    virtual void swapBuffers() = 0;

private:
    // What the folder of the window system defines:

    /// Waits until there are events, or `seconds` have passed, if they aren't below 0; 0 doesn't wait.
    static void waitForSystem(double seconds);

    /// Whether the program shows windows that aren't viewers.
    static bool areOtherWindowsShown();

    static bool isAnythingShown();
    static double getPatience(double seconds);

    LuSceneView m_view;
    bool m_isShown = false;
    bool m_isOpen = true;
};
