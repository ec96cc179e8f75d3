// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/events/LuKeyboardEvent.h"
#include "platform/lumora/gl/wgl/LuWglContext.h"
#include "platform/lumora/viewer/LuViewer.h"

#include <string>

/// A viewer in a top-level window of Win32.
class LuWin32Viewer : public LuViewer {
public:
    /// Null, with a message, when the system has no window or no OpenGL for it.
    static std::unique_ptr<LuViewer> create(const LvString& title, int width, int height);

    /// `owned` is that context.
    LuWin32Viewer(std::unique_ptr<LuGLContext> owned, LuWglContext& context);
    ~LuWin32Viewer() override;
    void setTitle(const LvString& title) override { SetWindowTextW(m_window, title.toWide().c_str()); }

protected:
    void setShown(bool isShown) override;
    void swapBuffers() override { m_context.swapBuffers(); }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static ATOM getClass();

    /// True when the message is done with.
    bool handleMessage(UINT message, WPARAM wParam, LPARAM lParam);
    bool handleMouse(UINT message, WPARAM wParam, LPARAM lParam);
    bool handleKey(UINT message, WPARAM wParam, LPARAM lParam);
    bool pressKey(LuKeyboardEvent::Key key);
    void sendCharacters();

    void setPointer(POINT client);
    bool send(LuEvent& event);
    void press(int button, bool isDown);
    void releaseAllButtons();
    void turnWheel(int delta);
    bool sendKey(LuKeyboardEvent event, char32_t character);
    char32_t takeCharacter();

    LuWglContext& m_context; ///< The view's.
    HWND m_window;
    LvVec2i32 m_pointer;
    unsigned m_pressedButtons = 0; ///< A bit for each that is down.
    int m_wheel = 0;               ///< What is left of clicks of a wheel that turns finely.
    std::wstring m_characters;     ///< Typed, and not sent yet.
};
