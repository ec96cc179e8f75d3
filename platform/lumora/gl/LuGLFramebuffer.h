// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LuPicture.h"
#include "platform/lumora/base/LvVec.h"

struct LuGLFunctions;

/// A framebuffer of its own, with several samples a pixel and a depth. All operations, the end of the object
/// too, need the context to be current.
class LuGLFramebuffer {
public:
    /// `functions` stay the caller's and must live as long.
    explicit LuGLFramebuffer(const LuGLFunctions& functions) : m_gl(functions) {}
    ~LuGLFramebuffer() { clear(); }
    LuGLFramebuffer(const LuGLFramebuffer&) = delete;
    LuGLFramebuffer& operator=(const LuGLFramebuffer&) = delete;

    /// Sizes in pixels; as many samples as asked for, or as the driver has. False, with a message, when the
    /// driver can't have such a framebuffer.
    bool setSize(int width, int height, int samples);

    /// The samples that a pixel has.
    int getSamples() const { return m_samples; }

    /// What is drawn from now on goes here, on this background.
    void begin(const LvColor& background);

    /// The picture drawn, its samples put together.
    LuPicture read();

    /// Copies it to the lower left corner of the context's window.
    void copyToWindow();

private:
    void clear();
    void resolve();
    bool makeTarget(unsigned& framebuffer, unsigned& color, int samples);

    const LuGLFunctions& m_gl;
    unsigned m_drawn = 0, m_drawnColor = 0, m_drawnDepth = 0;
    unsigned m_resolved = 0, m_resolvedColor = 0;
    int m_width = 0, m_height = 0, m_samples = 0, m_asked = 0;
};
