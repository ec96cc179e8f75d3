// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LuDebugError.h"
#include "platform/lumora/gl/LuGLContext.h"
#include "platform/lumora/gl/LuGLFunctions.h"

#define EGL_NO_X11
#include <EGL/egl.h>
#include <EGL/eglext.h>

#include <cstring>
#include <string>

namespace {

/// A context that has neither a window nor a surface.
class LuEglContext : public LuGLContext {
public:
    ~LuEglContext() override;
    bool open(int major, int minor);
    bool makeCurrent() override;

private:
    static bool fail(const char* what);

    EGLDisplay m_display = EGL_NO_DISPLAY;
    EGLContext m_context = EGL_NO_CONTEXT;
};

bool hasExtension(const char* list, const char* name) { return list && std::strstr(list, name); }

/// The software renderer, or a graphics card without a display server.
EGLDisplay findDisplay() {
    const char* const extensions = eglQueryString(EGL_NO_DISPLAY, EGL_EXTENSIONS);
    const auto getPlatformDisplay =
        reinterpret_cast<PFNEGLGETPLATFORMDISPLAYEXTPROC>(eglGetProcAddress("eglGetPlatformDisplayEXT"));
    if (!getPlatformDisplay)
        return EGL_NO_DISPLAY;
    EGLDisplay display = EGL_NO_DISPLAY;
    if (hasExtension(extensions, "EGL_MESA_platform_surfaceless")) {
        void* const any = reinterpret_cast<void*>(EGL_DEFAULT_DISPLAY);
        display = getPlatformDisplay(EGL_PLATFORM_SURFACELESS_MESA, any, nullptr);
    }
    const auto queryDevices =
        reinterpret_cast<PFNEGLQUERYDEVICESEXTPROC>(eglGetProcAddress("eglQueryDevicesEXT"));
    EGLDeviceEXT device = nullptr;
    EGLint count = 0;
    if (display == EGL_NO_DISPLAY && queryDevices && queryDevices(1, &device, &count) && count > 0)
        display = getPlatformDisplay(EGL_PLATFORM_DEVICE_EXT, device, nullptr);
    return display;
}

LuGLFunctions::AnyFunction loadFunction(const char* name) { return eglGetProcAddress(name); }

bool LuEglContext::fail(const char* what) {
    LuDebugError::post("LuGLContext::create", "There is no OpenGL to draw with: %s (EGL error 0x%x).", what,
                       static_cast<unsigned>(eglGetError()));
    return false;
}

bool LuEglContext::open(int major, int minor) {
    m_display = findDisplay();
    EGLint eglMajor = 0;
    EGLint eglMinor = 0;
    if (m_display == EGL_NO_DISPLAY || !eglInitialize(m_display, &eglMajor, &eglMinor)) {
        m_display = EGL_NO_DISPLAY;
        return fail("the system gives no display without a window");
    }
    if (!eglBindAPI(EGL_OPENGL_API))
        return fail("the system has OpenGL ES only");
    const EGLint attributes[] = {EGL_CONTEXT_MAJOR_VERSION,
                                 major,
                                 EGL_CONTEXT_MINOR_VERSION,
                                 minor,
                                 EGL_CONTEXT_OPENGL_PROFILE_MASK,
                                 EGL_CONTEXT_OPENGL_CORE_PROFILE_BIT,
                                 EGL_NONE};
    m_context = eglCreateContext(m_display, EGL_NO_CONFIG_KHR, EGL_NO_CONTEXT, attributes);
    if (m_context == EGL_NO_CONTEXT) {
        const std::string what =
            "no core context of version " + std::to_string(major) + "." + std::to_string(minor);
        return fail(what.c_str());
    }
    return makeCurrent() && m_functions->load(&loadFunction);
}

LuEglContext::~LuEglContext() {
    if (m_context == EGL_NO_CONTEXT)
        return;
    if (eglGetCurrentContext() == m_context)
        eglMakeCurrent(m_display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
    // The display stays: it is the process's, and others may draw with it.
    eglDestroyContext(m_display, m_context);
}

bool LuEglContext::makeCurrent() {
    if (eglGetCurrentContext() == m_context)
        return true;
    if (eglMakeCurrent(m_display, EGL_NO_SURFACE, EGL_NO_SURFACE, m_context))
        return true;
    return fail("the context can't be made current");
}

} // namespace

std::unique_ptr<LuGLContext> LuGLContext::create(int major, int minor) {
    auto context = std::make_unique<LuEglContext>();
    if (!context->open(major, minor))
        return nullptr;
    return context;
}
