// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LuDebugError.h"
#include "platform/lumora/gl/LuGLContext.h"
#include "platform/lumora/gl/LuGLFunctions.h"

#define EGL_NO_X11
#include <EGL/egl.h>
#include <EGL/eglext.h>

#include <cstring>
#include <initializer_list>
#include <string>

namespace {

/// What a context is of.
struct Kind {
    EGLenum api;
    const char* name;
    int major, minor;
};

Kind makeCore(int major, int minor) { return {EGL_OPENGL_API, "core", major, minor}; }
Kind makeEs(int major, int minor) { return {EGL_OPENGL_ES_API, "ES", major, minor}; }

/// A context that has neither a window nor a surface.
class LuEglContext : public LuGLContext {
public:
    ~LuEglContext() override;

    /// Takes the first of these kinds that is to be had.
    bool open(std::initializer_list<Kind> kinds);
    bool makeCurrent() override;

private:
    static bool fail(const char* what);
    bool createContext(const Kind& kind);

    EGLDisplay m_display = EGL_NO_DISPLAY;
    EGLContext m_context = EGL_NO_CONTEXT;
};

bool hasExtension(const char* list, const char* name) { return list && std::strstr(list, name); }

/// Graphics cards that are asked for.
constexpr EGLint MAX_DEVICES = 16;

/// A display without a screen that can be used: the software renderer's, or a graphics card's.
EGLDisplay openDisplay() {
    const auto getPlatformDisplay =
        reinterpret_cast<PFNEGLGETPLATFORMDISPLAYEXTPROC>(eglGetProcAddress("eglGetPlatformDisplayEXT"));
    if (!getPlatformDisplay)
        return EGL_NO_DISPLAY;
    const auto open = [&](EGLenum platform, void* native) {
        EGLDisplay const display = getPlatformDisplay(platform, native, nullptr);
        return display != EGL_NO_DISPLAY && eglInitialize(display, nullptr, nullptr) ? display
                                                                                     : EGL_NO_DISPLAY;
    };
    EGLDisplay display = EGL_NO_DISPLAY;
    if (hasExtension(eglQueryString(EGL_NO_DISPLAY, EGL_EXTENSIONS), "EGL_MESA_platform_surfaceless"))
        display = open(EGL_PLATFORM_SURFACELESS_MESA, reinterpret_cast<void*>(EGL_DEFAULT_DISPLAY));
    const auto queryDevices =
        reinterpret_cast<PFNEGLQUERYDEVICESEXTPROC>(eglGetProcAddress("eglQueryDevicesEXT"));
    EGLDeviceEXT devices[MAX_DEVICES] = {};
    EGLint count = 0;
    if (display != EGL_NO_DISPLAY || !queryDevices || !queryDevices(MAX_DEVICES, devices, &count))
        return display;
    for (EGLint i = 0; i < count && display == EGL_NO_DISPLAY; ++i)
        display = open(EGL_PLATFORM_DEVICE_EXT, devices[i]);
    return display;
}

LuGLFunctions::AnyFunction loadFunction(const char* name) { return eglGetProcAddress(name); }

bool LuEglContext::fail(const char* what) {
    LuDebugError::post("LuGLContext::create", "There is no OpenGL to draw with: %s (EGL error 0x%x).", what,
                       static_cast<unsigned>(eglGetError()));
    return false;
}

bool LuEglContext::createContext(const Kind& kind) {
    if (!eglBindAPI(kind.api))
        return false;
    // ES has no profiles.
    const EGLint attributes[] = {EGL_CONTEXT_MAJOR_VERSION,
                                 kind.major,
                                 EGL_CONTEXT_MINOR_VERSION,
                                 kind.minor,
                                 kind.api == EGL_OPENGL_API ? EGL_CONTEXT_OPENGL_PROFILE_MASK : EGL_NONE,
                                 EGL_CONTEXT_OPENGL_CORE_PROFILE_BIT,
                                 EGL_NONE};
    m_context = eglCreateContext(m_display, EGL_NO_CONFIG_KHR, EGL_NO_CONTEXT, attributes);
    return m_context != EGL_NO_CONTEXT;
}

bool LuEglContext::open(std::initializer_list<Kind> kinds) {
    m_display = openDisplay();
    if (m_display == EGL_NO_DISPLAY)
        return fail("the system gives no display without a window");
    std::string wanted;
    for (const Kind& kind : kinds) {
        if (createContext(kind))
            return makeCurrent() && m_functions->load(&loadFunction);
        wanted += wanted.empty() ? "no " : ", no ";
        wanted += std::string(kind.name) + " context of version " + std::to_string(kind.major) + "." +
                  std::to_string(kind.minor);
    }
    return fail(wanted.c_str());
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

std::unique_ptr<LuGLContext> open(std::initializer_list<Kind> kinds) {
    auto context = std::make_unique<LuEglContext>();
    if (!context->open(kinds))
        return nullptr;
    return context;
}

} // namespace

std::unique_ptr<LuGLContext> LuGLContext::create() { return open({makeCore(3, 3), makeEs(3, 0)}); }

std::unique_ptr<LuGLContext> LuGLContext::createCore(int major, int minor) {
    return open({makeCore(major, minor)});
}

std::unique_ptr<LuGLContext> LuGLContext::createEs(int major, int minor) {
    return open({makeEs(major, minor)});
}
