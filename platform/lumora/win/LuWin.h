// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvString.h"
#include "platform/win32/WindowSystem.h"

#include <string>

/// What an error dialog says. The texts live as long as the call that shows them.
struct LuErrorDialog {
    HWND parent = nullptr;         ///< The window that it belongs to, or null.
    const char* title = "";        ///< "LuTopLevelDialog Error"
    const char* text = "";         ///< "CreateWindow failed"
    const char* details = nullptr; ///< More, or null.
};

/// The toolkit's window helpers: the instance and the classes of its windows, error dialogs, the main loop.
///
/// Everything is for the thread of the user interface. Handles that are handed in stay the caller's.
class LuWin {
public:
    using ErrorDialogHandler = void (*)(const LuErrorDialog& dialog, void* data);
    using RegisterClassHandler = ATOM (*)(const WNDCLASSA& windowClass, void* data);
    /// Sees a message before its window does; returns whether the message was the handler's own.
    using MessageHandler = bool (*)(HWND window, UINT message, WPARAM wParam, LPARAM lParam, void* data);

    /// The module instance that all window classes of the library belong to: the module this code is in.
    static HINSTANCE getInstance();

    /// Whether the class `name` is registered. If so, `realName` is the name to give to CreateWindowExA, and
    /// `windowClass` describes it; if not, both stay as they are.
    static bool getClassInfo(HINSTANCE instance, const char* name, std::string& realName,
                             WNDCLASSA& windowClass);

    /// Registers a class; `realName` becomes the name to give to CreateWindowExA. 0 on failure, with nothing
    /// posted.
    static ATOM registerClass(const WNDCLASSA& windowClass, std::string& realName);

    /// Unregisters the classes that registerClass has registered. A class that still has windows stays.
    static void unregisterClasses();

    /// Replaces the registering inside registerClass, for hosts that register classes themselves and for
    /// tests of its failure. Null brings back the window system's own. `data` stays the caller's.
    static void setRegisterClassHandler(RegisterClassHandler handler, void* data);

    /// Says that something has failed. The message is posted through LuDebugError with `title` as its place.
    /// A handler gets the dialog as well. Without one, a message box is shown if setErrorDialogsShown allows
    /// it.
    static void createSimpleErrorDialog(HWND parent, const char* title, const char* text,
                                        const char* details);

    /// Whether createSimpleErrorDialog may stop the program with a message box. At the start it may not: a
    /// program without a user in front of it would hang. An interactive application turns it on. The window
    /// system in memory has no message boxes.
    static void setErrorDialogsShown(bool shown);

    /// Takes the place of the message box; null brings it back. `data` stays the caller's.
    static void setErrorDialogHandler(ErrorDialogHandler handler, void* data);

    /// Lets a window take input, or not. One that does so already is left alone: each telling costs a call of
    /// the system's server, and a dialog tells each of its controls several times.
    static void enableWindow(HWND window, bool isEnabled);

    /// Shows a window, in front and active; hides a window. An invalid handle does nothing.
    static void show(HWND window);
    static void hide(HWND window);

    /// Shows a message to the toolkit: every base window hands over all its messages. Returns whether it was
    /// the toolkit's own, that is, what the message handler says; false without one.
    static bool isLumoraMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static void setMessageHandler(MessageHandler handler, void* data);

    /// The main window of the application, the parent of dialogs of the toolkit; null until it is set.
    static HWND getTopLevelWidget();
    static void setTopLevelWidget(HWND window);

    /// Registers a keyboard accelerator for the main loop. It is translated for the window that the key goes
    /// to: the outermost window gets WM_COMMAND with the accelerator's command. One with the same key and
    /// modifiers takes the older one's place.
    static void addAccelerator(const ACCEL& accelerator);
    static void removeAccelerators();

    /// Runs the message loop until WM_QUIT; returns its exit code.
    static int mainLoop();
    /// Handles the messages that wait, and returns; false once WM_QUIT was among them.
    static bool processMessages();

    /// Waits for a message and handles it, and all that wait then; false once WM_QUIT was among them. For
    /// loops that end by a condition of their own. The window system in memory has nothing to wait for: there
    /// an empty queue counts as WM_QUIT.
    static bool waitForMessages();

    /// Sets the text of a window; all characters come through where the window's procedure is not an ANSI
    /// one.
    static void setWindowText(HWND window, const LvString& text);
    /// The text of a window.
    static LvString getWindowText(HWND window);
};
