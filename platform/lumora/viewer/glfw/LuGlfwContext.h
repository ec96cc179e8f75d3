// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvString.h"
#include "platform/lumora/gl/LuGLContext.h"

struct GLFWwindow;

/// A window of GLFW and the OpenGL context in it; both end with the object. GLFW itself runs as long as there
/// is one.
class LuGlfwContext : public LuGLContext {
public:
    /// A window that doesn't show. Null, with a message, where there is no display, or no OpenGL.
    static std::unique_ptr<LuGlfwContext> create(const LvString& title, int width, int height);

    ~LuGlfwContext() override;
    bool makeCurrent() override;
    GLFWwindow* getWindow() const { return m_window; }

private:
    LuGlfwContext() = default;
    bool open(const LvString& title, int width, int height);

    GLFWwindow* m_window = nullptr;
};
