// SPDX-License-Identifier: MIT
#pragma once

/// The operations of OpenGL that the toolkit's windows are drawn with, those of fixed-function OpenGL: each
/// is what its name with "gl" in front says. They are for the time between LuWinCanvas::begin and end.
///
/// The window system in memory shows nothing, so there they do nothing.
struct LuWinGL {
    static constexpr unsigned QUAD_STRIP = 8, LIGHTING_BIT = 64, FLAT = 7424, SMOOTH = 7425;

    void (*begin)(unsigned mode);
    void (*end)();
    void (*color3f)(float red, float green, float blue);
    void (*color3fv)(const float* color);
    void (*vertex2s)(short x, short y);
    void (*rects)(short x1, short y1, short x2, short y2);
    void (*shadeModel)(unsigned mode);
    void (*pushAttrib)(unsigned mask);
    void (*popAttrib)();
    void (*flush)();

    static const LuWinGL& get();

    /// Takes the place of the operations, for tests that look at them; it stays the caller's. Null brings
    /// back the system's own.
    static void set(const LuWinGL* operations);
};
