// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/gl/LuGLContext.h"

#include <windows.h>

/// A context in a window, which ends with it.
class LuWglContext : public LuGLContext {
public:
    ~LuWglContext() override;

    /// Makes a core context of at least this version in a window, which becomes this object's even when that
    /// fails. `flags` are those of PIXELFORMATDESCRIPTOR, besides PFD_DRAW_TO_WINDOW and PFD_SUPPORT_OPENGL.
    /// False, with a message, when it can't be.
    bool open(HWND window, DWORD flags, int major, int minor);

    /// The same with an old context, which has the fixed-function operations too.
    bool openCompatible(HWND window);

    /// A window that never shows, for contexts that draw into framebuffers of their own; null on a failure.
    static HWND createHiddenWindow();

    bool makeCurrent() override;
    HWND getWindow() const { return m_window; }

    /// Shows what was drawn, where the pixel format has two buffers.
    void swapBuffers();

private:
    static bool fail(const char* what);
    bool setPixelFormat(DWORD flags);
    bool createContext(HWND window, DWORD flags);
    bool replaceByCore(int major, int minor);

    HWND m_window = nullptr;
    HDC m_device = nullptr;
    HGLRC m_context = nullptr;
};
