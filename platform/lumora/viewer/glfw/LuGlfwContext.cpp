// SPDX-License-Identifier: MIT
#include "platform/lumora/viewer/glfw/LuGlfwContext.h"

#include "platform/lumora/base/LuDebugError.h"
#include "platform/lumora/gl/LuGLFunctions.h"

#include <GLFW/glfw3.h>

#include <algorithm>

namespace {

int s_numContexts = 0;

bool fail(const char* what) {
    const char* reason = nullptr;
    glfwGetError(&reason);
    LuDebugError::post("LuViewer::create", "There can't be a window with a scene: %s%s%s%s.", what,
                       reason ? " (" : "", reason ? reason : "", reason ? ")" : "");
    return false;
}

GLFWwindow* createWindow(const LvString& title, int width, int height, int contextApi, bool isEs = false) {
    glfwDefaultWindowHints();
    glfwWindowHint(GLFW_VISIBLE, GLFW_FALSE);
    glfwWindowHint(GLFW_CONTEXT_CREATION_API, contextApi);
    glfwWindowHint(GLFW_CLIENT_API, isEs ? GLFW_OPENGL_ES_API : GLFW_OPENGL_API);
    glfwWindowHint(GLFW_CONTEXT_VERSION_MAJOR, 3);
    glfwWindowHint(GLFW_CONTEXT_VERSION_MINOR, isEs ? 0 : 3);
    glfwWindowHint(GLFW_OPENGL_PROFILE, isEs ? GLFW_OPENGL_ANY_PROFILE : GLFW_OPENGL_CORE_PROFILE);
    // The scene is drawn elsewhere, with depth and samples of its own.
    glfwWindowHint(GLFW_DEPTH_BITS, 0);
    glfwWindowHint(GLFW_STENCIL_BITS, 0);
    return glfwCreateWindow(std::max(width, 1), std::max(height, 1), title.getString(), nullptr, nullptr);
}

} // namespace

std::unique_ptr<LuGlfwContext> LuGlfwContext::create(const LvString& title, int width, int height) {
    std::unique_ptr<LuGlfwContext> context(new LuGlfwContext);
    ++s_numContexts;
    if (!context->open(title, width, height))
        return nullptr;
    return context;
}

bool LuGlfwContext::open(const LvString& title, int width, int height) {
    if (!glfwInit())
        return fail("there is no display");
    // As LuGLContext does: a thread can't change between contexts of EGL and of the X server.
    m_window = createWindow(title, width, height, GLFW_EGL_CONTEXT_API);
    if (!m_window)
        m_window = createWindow(title, width, height, GLFW_NATIVE_CONTEXT_API);
    if (!m_window)
        m_window = createWindow(title, width, height, GLFW_EGL_CONTEXT_API, true);
    if (!m_window)
        return fail("there is neither OpenGL 3.3 nor ES 3.0");
    if (!makeCurrent() || !m_functions->load(&glfwGetProcAddress))
        return false;
    // Not more pictures than the display shows.
    glfwSwapInterval(1);
    return true;
}

LuGlfwContext::~LuGlfwContext() {
    if (m_window)
        glfwDestroyWindow(m_window);
    if (--s_numContexts == 0)
        glfwTerminate();
}

bool LuGlfwContext::makeCurrent() {
    glfwMakeContextCurrent(m_window);
    return glfwGetCurrentContext() == m_window || fail("its OpenGL can't be used");
}
