// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LuPicture.h"
#include "platform/lumora/gl/LuGLContext.h"
#include "platform/lumora/gl/LuGLDrawer.h"
#include "platform/lumora/gl/LuGLFramebuffer.h"
#include "platform/lumora/gl/LuGLRenderAction.h"

/// Makes pictures of scenes without a window.
///
/// It keeps what it has collected of the scene, which it holds with a reference: pictures of the same scene
/// that follow each other cost little besides their drawing.
class LuOffscreenRenderer {
public:
    /// With a context of its own, or the given one; null stands for a system without OpenGL.
    LuOffscreenRenderer() : LuOffscreenRenderer(LuGLContext::create()) {}
    explicit LuOffscreenRenderer(std::unique_ptr<LuGLContext> context);
    ~LuOffscreenRenderer();
    LuOffscreenRenderer(const LuOffscreenRenderer&) = delete;
    LuOffscreenRenderer& operator=(const LuOffscreenRenderer&) = delete;

    /// Pixels; 640 by 480 at the start.
    void setSize(int width, int height);

    /// Samples a pixel; 4 at the start.
    void setSamples(int samples) { m_samples = samples; }
    void setBackground(const LvColor& background) { m_background = background; }

    /// Brightness of the light from the eye; 1 at the start, 0 for none.
    void setHeadlight(float brightness) { m_headlight = brightness; }

    /// At the start the scene is seen by its first camera; one without a camera from the front, with the
    /// origin in the upper left corner.
    void lookByCamera() { m_look = BY_CAMERA; }

    /// From the front and in parallel, one unit of the scene for a pixel: the point (`left`, `top`) is seen
    /// in the picture's corner of that name. All of the scene's depth is seen.
    void lookFromFront(float left, float top);

    /// By the matrices of LuRenderView.
    void lookBy(const LvMatrix& view, const LvMatrix& projection);

    /// Draws the scene; null draws the background. False, with a message, where there is no OpenGL, or no
    /// picture of this size.
    bool render(LuNode* scene);

    /// What was drawn last; an empty picture when nothing was.
    LuPicture readPicture();

    /// Both.
    bool render(LuNode* scene, LuPicture& picture);

    /// Copies what was drawn last to the window of the context that was given, if that has one.
    void copyToWindow();

    /// What collects the scene, and what draws it; for figures. The drawer is null without OpenGL.
    LuGLRenderAction& getAction() { return m_action; }
    LuGLDrawer* getDrawer() { return m_drawer.get(); }

    /// Waits until all that was asked for is drawn.
    void finish();

private:
    enum Look { BY_CAMERA, FROM_FRONT, BY_MATRICES };

    LuRenderView makeView() const;

    std::unique_ptr<LuGLContext> m_context;
    LuGLRenderAction m_action;
    std::unique_ptr<LuGLDrawer> m_drawer;
    std::unique_ptr<LuGLFramebuffer> m_framebuffer;
    int m_width = 640, m_height = 480, m_samples = 4;
    LvColor m_background{0, 0, 0};
    float m_headlight = 1;
    Look m_look = BY_CAMERA;
    bool m_isDrawn = false;
    LvVec2f m_topLeft;
    LvMatrix m_view, m_projection;
};
