// SPDX-License-Identifier: MIT
#include "platform/lumora/gl/LuGLFramebuffer.h"

#include "platform/lumora/base/LuDebugError.h"
#include "platform/lumora/gl/LuGLFunctions.h"

#include <algorithm>

void LuGLFramebuffer::clear() {
    for (unsigned* framebuffer : {&m_drawn, &m_resolved}) {
        m_gl.DeleteFramebuffers(1, framebuffer);
        *framebuffer = 0;
    }
    for (unsigned* renderbuffer : {&m_drawnColor, &m_drawnDepth, &m_resolvedColor}) {
        m_gl.DeleteRenderbuffers(1, renderbuffer);
        *renderbuffer = 0;
    }
    m_width = m_height = 0;
}

bool LuGLFramebuffer::makeTarget(unsigned& framebuffer, unsigned& color, int samples) {
    m_gl.GenRenderbuffers(1, &color);
    m_gl.BindRenderbuffer(GL_RENDERBUFFER, color);
    m_gl.RenderbufferStorageMultisample(GL_RENDERBUFFER, samples, GL_RGBA8, m_width, m_height);
    m_gl.GenFramebuffers(1, &framebuffer);
    m_gl.BindFramebuffer(GL_FRAMEBUFFER, framebuffer);
    m_gl.FramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, color);
    return m_gl.CheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
}

bool LuGLFramebuffer::setSize(int width, int height, int samples) {
    if (width == m_width && height == m_height && samples == m_asked)
        return true;
    clear();
    GLint sizeLimit = 0;
    GLint sampleLimit = 0;
    m_gl.GetIntegerv(GL_MAX_RENDERBUFFER_SIZE, &sizeLimit);
    m_gl.GetIntegerv(GL_MAX_SAMPLES, &sampleLimit);
    bool isMade = width > 0 && height > 0 && width <= sizeLimit && height <= sizeLimit;
    if (isMade) {
        m_width = width;
        m_height = height;
        m_asked = samples;
        m_samples = std::clamp(samples, 1, std::max(sampleLimit, 1));
        isMade = makeTarget(m_resolved, m_resolvedColor, 0) &&
                 makeTarget(m_drawn, m_drawnColor, m_samples > 1 ? m_samples : 0);
        m_gl.GenRenderbuffers(1, &m_drawnDepth);
        m_gl.BindRenderbuffer(GL_RENDERBUFFER, m_drawnDepth);
        m_gl.RenderbufferStorageMultisample(GL_RENDERBUFFER, m_samples > 1 ? m_samples : 0,
                                            GL_DEPTH_COMPONENT24, width, height);
        m_gl.FramebufferRenderbuffer(GL_FRAMEBUFFER, GL_DEPTH_ATTACHMENT, GL_RENDERBUFFER, m_drawnDepth);
        isMade = isMade && m_gl.CheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
    }
    if (!isMade) {
        clear();
        LuDebugError::post("LuGLFramebuffer::setSize", "There can't be a picture of %d by %d pixels.", width,
                           height);
    }
    return isMade;
}

void LuGLFramebuffer::begin(const LvColor& background) {
    m_gl.BindFramebuffer(GL_FRAMEBUFFER, m_drawn);
    m_gl.Viewport(0, 0, m_width, m_height);
    m_gl.ColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    m_gl.DepthMask(GL_TRUE);
    m_gl.ClearColor(background.x, background.y, background.z, 1);
    m_gl.Clear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}

void LuGLFramebuffer::resolve() {
    m_gl.BindFramebuffer(GL_READ_FRAMEBUFFER, m_drawn);
    m_gl.BindFramebuffer(GL_DRAW_FRAMEBUFFER, m_resolved);
    m_gl.BlitFramebuffer(0, 0, m_width, m_height, 0, 0, m_width, m_height, GL_COLOR_BUFFER_BIT, GL_NEAREST);
    m_gl.BindFramebuffer(GL_READ_FRAMEBUFFER, m_resolved);
}

void LuGLFramebuffer::copyToWindow() {
    // In two steps: samples are put together only between formats that are alike, and the window has its own.
    resolve();
    m_gl.BindFramebuffer(GL_DRAW_FRAMEBUFFER, 0);
    m_gl.BlitFramebuffer(0, 0, m_width, m_height, 0, 0, m_width, m_height, GL_COLOR_BUFFER_BIT, GL_NEAREST);
}

LuPicture LuGLFramebuffer::read() {
    resolve();
    LuPicture picture(m_width, m_height);
    m_gl.PixelStorei(GL_PACK_ALIGNMENT, 1);
    m_gl.ReadPixels(0, 0, m_width, m_height, GL_RGBA, GL_UNSIGNED_BYTE, picture.getPixels().data());
    // OpenGL's first row is the lowest.
    auto& pixels = picture.getPixels();
    const auto row = static_cast<std::ptrdiff_t>(m_width);
    for (std::ptrdiff_t y = 0; y < m_height / 2; ++y)
        std::swap_ranges(pixels.begin() + y * row, pixels.begin() + (y + 1) * row,
                         pixels.end() - (y + 1) * row);
    return picture;
}
