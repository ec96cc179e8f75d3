// SPDX-License-Identifier: MIT
#include "platform/lumora/gl/LuOffscreenRenderer.h"

#include "platform/lumora/base/LuDebugError.h"
#include "platform/lumora/gl/LuGLFunctions.h"
#include "platform/lumora/nodes/LuCamera.h"

LuOffscreenRenderer::LuOffscreenRenderer(std::unique_ptr<LuGLContext> context)
    : m_context(std::move(context)) {
    if (!m_context)
        return;
    m_drawer = std::make_unique<LuGLDrawer>(m_context->getFunctions());
    m_framebuffer = std::make_unique<LuGLFramebuffer>(m_context->getFunctions());
}

LuOffscreenRenderer::~LuOffscreenRenderer() {
    // What they give back is this context's.
    if (m_context)
        m_context->makeCurrent();
}

void LuOffscreenRenderer::setSize(int width, int height) {
    m_width = width;
    m_height = height;
}

void LuOffscreenRenderer::lookBy(const LvMatrix& view, const LvMatrix& projection) {
    m_look = BY_MATRICES;
    m_view = view;
    m_projection = projection;
}

void LuOffscreenRenderer::lookFromFront(float left, float top) {
    m_look = FROM_FRONT;
    m_topLeft = {left, top};
}

LuRenderView LuOffscreenRenderer::makeView() const {
    LuRenderView view;
    const LuCamera* const camera = m_action.getCamera();
    if (m_look == BY_MATRICES) {
        view.view = m_view;
        view.projection = m_projection;
    } else if (m_look == BY_CAMERA && camera) {
        const LvViewVolume volume =
            camera->getViewVolume(LvViewportRegion(m_width, m_height).getAspectRatio());
        view.view = volume.getViewMatrix();
        view.projection = volume.getProjectionMatrix();
    } else {
        const LvBox3f& box = m_action.getBoundingBox();
        const bool isEmpty = box.isEmpty();
        view = LuRenderView::makeFront(m_width, m_height, m_topLeft, isEmpty ? 0 : box.max.z,
                                       isEmpty ? 0 : box.min.z);
    }
    view.headlight = m_headlight;
    return view;
}

bool LuOffscreenRenderer::render(LuNode* scene) {
    m_isDrawn = false;
    if (!m_context) {
        LuDebugError::post("LuOffscreenRenderer::render", "There is no picture: this system has no OpenGL.");
        return false;
    }
    if (!m_context->makeCurrent() || !m_framebuffer->setSize(m_width, m_height, m_samples))
        return false;
    m_action.apply(scene);
    m_framebuffer->begin(m_background);
    m_isDrawn = m_drawer->draw(m_action.getDrawList(), makeView());
    return m_isDrawn;
}

LuPicture LuOffscreenRenderer::readPicture() {
    return m_isDrawn && m_context->makeCurrent() ? m_framebuffer->read() : LuPicture();
}

bool LuOffscreenRenderer::render(LuNode* scene, LuPicture& picture) {
    const bool isDrawn = render(scene);
    picture = readPicture();
    return isDrawn;
}

void LuOffscreenRenderer::copyToWindow() {
    if (m_isDrawn && m_context->makeCurrent())
        m_framebuffer->copyToWindow();
}

void LuOffscreenRenderer::finish() {
    if (m_context && m_context->makeCurrent())
        m_context->getFunctions().Finish();
}
