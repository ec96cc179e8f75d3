// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

struct LuGLFunctions;

/// An OpenGL context without a window of its own, for drawing into framebuffer objects. Its resources, and
/// those of who draws with it, belong to the thread in which it is current.
class LuGLContext {
public:
    /// A core context of OpenGL 3.3; where there is none to be had, one of ES 3.0. Null, with a message, when
    /// there is neither.
    static std::unique_ptr<LuGLContext> create();

    /// A core context of at least this version. Null, with a message, when there is none to be had.
    static std::unique_ptr<LuGLContext> createCore(int major = 3, int minor = 3);

    /// A context of OpenGL ES, at least of this version, by EGL. Null, with a message, when there is none to
    /// be had; on Windows there never is.
    static std::unique_ptr<LuGLContext> createEs(int major = 3, int minor = 0);

    LuGLContext(const LuGLContext&) = delete;
    LuGLContext& operator=(const LuGLContext&) = delete;
    virtual ~LuGLContext();

    /// False, with a message, when the system refuses.
    virtual bool makeCurrent() = 0;

    const LuGLFunctions& getFunctions() const { return *m_functions; }

protected:
    LuGLContext();

    std::unique_ptr<LuGLFunctions> m_functions;
};
