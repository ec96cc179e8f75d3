// SPDX-License-Identifier: MIT
#include "platform/lumora/win/LuWinCanvas.h"

#include "platform/lumora/gl/LuGLFramebuffer.h"
#include "platform/lumora/gl/wgl/LuWglContext.h"
#include "platform/lumora/win/LuWinGL.h"

#include <GL/gl.h>

#include <cstdint>
#include <vector>

namespace {

/// Whose OpenGL context is current is the business of others, who draw with contexts of their own.
class CurrentContext {
public:
    CurrentContext() : m_device(wglGetCurrentDC()), m_context(wglGetCurrentContext()) {}
    void restore() const { wglMakeCurrent(m_device, m_context); }

private:
    HDC m_device;
    HGLRC m_context;
};

void showInDevice(HDC dc, const LuPicture& picture) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = picture.getWidth();
    // Rows from the top.
    info.bmiHeader.biHeight = -picture.getHeight();
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    std::vector<std::uint32_t> pixels;
    pixels.reserve(picture.getPixels().size());
    for (const LuPicture::Pixel& pixel : picture.getPixels())
        pixels.push_back(std::uint32_t{pixel.red} << 16 | std::uint32_t{pixel.green} << 8 | pixel.blue);
    const auto height = static_cast<UINT>(picture.getHeight());
    SetDIBitsToDevice(dc, 0, 0, static_cast<DWORD>(picture.getWidth()), height, 0, 0, 0, height,
                      pixels.data(), &info, DIB_RGB_COLORS);
}

class WglCanvas : public LuWinCanvas {
public:
    ~WglCanvas() override {
        const CurrentContext current;
        if (m_isOpen && m_context.makeCurrent())
            m_framebuffer.reset();
        current.restore();
    }

    bool open() {
        const CurrentContext current;
        m_isOpen = m_context.openCompatible(LuWglContext::createHiddenWindow());
        if (m_isOpen)
            m_framebuffer = std::make_unique<LuGLFramebuffer>(m_context.getFunctions());
        current.restore();
        return m_isOpen;
    }

    bool begin(int width, int height, COLORREF background) override {
        if (!m_isOpen)
            return false;
        m_previous = CurrentContext();
        // Pixels of a window that doesn't show are nobody's business, so it is a framebuffer of our own.
        m_isOpen = m_context.makeCurrent() && m_framebuffer->setSize(width, height, 1);
        if (!m_isOpen) {
            m_previous.restore();
            return false;
        }
        constexpr float FULL = 255;
        m_framebuffer->begin({static_cast<float>(GetRValue(background)) / FULL,
                              static_cast<float>(GetGValue(background)) / FULL,
                              static_cast<float>(GetBValue(background)) / FULL});
        glDisable(GL_DITHER);
        glMatrixMode(GL_MODELVIEW);
        glLoadIdentity();
        glMatrixMode(GL_PROJECTION);
        glLoadIdentity();
        glOrtho(0, width, height, 0, -1, 1);
        return true;
    }

    void end(HDC dc) override {
        showInDevice(dc, m_framebuffer->read());
        m_previous.restore();
    }

private:
    LuWglContext m_context;
    std::unique_ptr<LuGLFramebuffer> m_framebuffer;
    CurrentContext m_previous;
    bool m_isOpen = false;
};

} // namespace

std::shared_ptr<LuWinCanvas> LuWinCanvas::make() {
    auto canvas = std::make_shared<WglCanvas>();
    return canvas->open() ? canvas : nullptr;
}

const LuWinGL& LuWinCanvas::getSystemGL() {
    static constexpr LuWinGL OPERATIONS = {
        [](unsigned mode) { glBegin(mode); },
        [] { glEnd(); },
        [](float red, float green, float blue) { glColor3f(red, green, blue); },
        [](const float* color) { glColor3fv(color); },
        [](short x, short y) { glVertex2s(x, y); },
        [](short x1, short y1, short x2, short y2) { glRects(x1, y1, x2, y2); },
        [](unsigned mode) { glShadeModel(mode); },
        [](unsigned mask) { glPushAttrib(mask); },
        [] { glPopAttrib(); },
        [] { glFlush(); }};
    return OPERATIONS;
}
