// SPDX-License-Identifier: MIT
#include "platform/lumora/gl/wgl/LuWglContext.h"

#include "platform/lumora/base/LuDebugError.h"
#include "platform/lumora/gl/LuGLFunctions.h"

#include <GL/wglext.h>

#include <string>

namespace {

/// The functions of OpenGL 1.1 are the library's, all later ones the driver's.
LuGLFunctions::AnyFunction loadFunction(const char* name) {
    const auto function = reinterpret_cast<LuGLFunctions::AnyFunction>(wglGetProcAddress(name));
    // Some drivers answer with these small numbers instead of null.
    const auto number = reinterpret_cast<INT_PTR>(function);
    if (number < -1 || number > 3)
        return function;
    return reinterpret_cast<LuGLFunctions::AnyFunction>(
        GetProcAddress(GetModuleHandleA("opengl32.dll"), name));
}

} // namespace

bool LuWglContext::fail(const char* what) {
    LuDebugError::post("LuGLContext::create", "There is no OpenGL to draw with: %s (system error %lu).", what,
                       GetLastError());
    return false;
}

bool LuWglContext::setPixelFormat(DWORD flags) {
    m_device = GetDC(m_window);
    PIXELFORMATDESCRIPTOR format{};
    format.nSize = sizeof format;
    format.nVersion = 1;
    format.dwFlags = PFD_DRAW_TO_WINDOW | PFD_SUPPORT_OPENGL | flags;
    format.iPixelType = PFD_TYPE_RGBA;
    format.cColorBits = 24;
    const int number = ChoosePixelFormat(m_device, &format);
    if (number == 0 || !SetPixelFormat(m_device, number, &format))
        return fail("no pixel format fits");
    return true;
}

bool LuWglContext::replaceByCore(int major, int minor) {
    const auto createContext =
        reinterpret_cast<PFNWGLCREATECONTEXTATTRIBSARBPROC>(loadFunction("wglCreateContextAttribsARB"));
    if (!createContext)
        return fail("the driver makes old contexts only");
    const int attributes[] = {WGL_CONTEXT_MAJOR_VERSION_ARB,
                              major,
                              WGL_CONTEXT_MINOR_VERSION_ARB,
                              minor,
                              WGL_CONTEXT_PROFILE_MASK_ARB,
                              WGL_CONTEXT_CORE_PROFILE_BIT_ARB,
                              0};
    const HGLRC core = createContext(m_device, nullptr, attributes);
    if (!core) {
        const std::string what =
            "no core context of version " + std::to_string(major) + "." + std::to_string(minor);
        return fail(what.c_str());
    }
    wglMakeCurrent(nullptr, nullptr);
    wglDeleteContext(m_context);
    m_context = core;
    return true;
}

bool LuWglContext::createContext(HWND window, DWORD flags) {
    m_window = window;
    if (!m_window)
        return fail("no window can be made");
    if (!setPixelFormat(flags))
        return false;
    m_context = wglCreateContext(m_device);
    return m_context || fail("no context can be made");
}

bool LuWglContext::open(HWND window, DWORD flags, int major, int minor) {
    return createContext(window, flags) && makeCurrent() && replaceByCore(major, minor) && makeCurrent() &&
           m_functions->load(&loadFunction);
}

bool LuWglContext::openCompatible(HWND window) {
    return createContext(window, 0) && makeCurrent() && m_functions->load(&loadFunction);
}

HWND LuWglContext::createHiddenWindow() {
    return CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, GetModuleHandleA(nullptr),
                           nullptr);
}

LuWglContext::~LuWglContext() {
    if (m_context) {
        if (wglGetCurrentContext() == m_context)
            wglMakeCurrent(nullptr, nullptr);
        wglDeleteContext(m_context);
    }
    if (m_device)
        ReleaseDC(m_window, m_device);
    if (m_window)
        DestroyWindow(m_window);
}

bool LuWglContext::makeCurrent() {
    if (wglGetCurrentContext() == m_context || wglMakeCurrent(m_device, m_context))
        return true;
    return fail("the context can't be made current");
}

void LuWglContext::swapBuffers() { SwapBuffers(m_device); }

std::unique_ptr<LuGLContext> LuGLContext::create() { return createCore(); }

std::unique_ptr<LuGLContext> LuGLContext::createEs(int, int) {
    LuDebugError::post("LuGLContext::createEs", "OpenGL ES is had by EGL alone, and this is WGL.");
    return nullptr;
}

std::unique_ptr<LuGLContext> LuGLContext::createCore(int major, int minor) {
    // In a window that never shows. Pixels of such a window are nobody's business: what is drawn goes into
    // framebuffer objects.
    auto context = std::make_unique<LuWglContext>();
    if (!context->open(LuWglContext::createHiddenWindow(), 0, major, minor))
        return nullptr;
    return context;
}
