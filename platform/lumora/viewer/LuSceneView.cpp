// SPDX-License-Identifier: MIT
#include "platform/lumora/viewer/LuSceneView.h"

#include "platform/lumora/actions/LuGetBoundingBoxAction.h"
#include "platform/lumora/actions/LuSearchAction.h"
#include "platform/lumora/events/LuEvent.h"
#include "platform/lumora/gl/LuOffscreenRenderer.h"
#include "platform/lumora/nodes/LuCamera.h"
#include "platform/lumora/nodes/LuGroup.h"

#include <utility>

namespace {

/// Puts `node` in the place of `held`, each held with a reference. Null is allowed.
template <class Node>
void hold(Node*& held, Node* node) {
    if (node)
        node->ref();
    Node* const before = std::exchange(held, node);
    if (before)
        before->unref();
}

bool hasArea(const LvViewportRegion& region) { return region.getSize().x > 0 && region.getSize().y > 0; }

/// What only the navigator gets while it drags.
bool isOfPointer(const LuEvent& event) {
    return event.isOfType(LuLocation2Event::getClassTypeId()) ||
           event.isOfType(LuMouseButtonEvent::getClassTypeId());
}

} // namespace

LuSceneView::LuSceneView() : LuSceneView(nullptr) {}

LuSceneView::LuSceneView(std::unique_ptr<LuGLContext> context)
    : m_root(new LuSeparator), m_camera(new LuPerspectiveCamera), m_eventAction(m_region) {
    m_root->ref();
    m_camera->ref();
    if (context)
        m_renderer = std::make_unique<LuOffscreenRenderer>(std::move(context));
    arrange();
}

LuSceneView::~LuSceneView() {
    m_eventAction.releaseGrabber();
    hold<LuNode>(m_scene, nullptr);
    hold<LuCamera>(m_sceneCamera, nullptr);
    hold<LuCamera>(m_camera, nullptr);
    m_root->unref();
}

void LuSceneView::setScene(LuNode* scene) {
    if (scene != m_scene)
        m_eventAction.releaseGrabber();
    hold(m_scene, scene);
    findSceneCamera();
    arrange();
}

void LuSceneView::setCamera(LuCamera* camera) {
    hold(m_camera, camera ? camera : static_cast<LuCamera*>(new LuPerspectiveCamera));
    findSceneCamera();
    arrange();
}

LuCamera* LuSceneView::getCamera() const { return m_sceneCamera ? m_sceneCamera : m_camera; }

void LuSceneView::findSceneCamera() {
    m_navigator.endDrag();
    LuSearchAction search;
    search.setType(LuCamera::getClassTypeId());
    if (m_scene)
        search.apply(m_scene);
    LuPath* const path = search.getPath();
    hold(m_sceneCamera, path ? static_cast<LuCamera*>(path->getTail()) : nullptr);
}

void LuSceneView::arrange() {
    // What is there stays there: a grabber, and what has been collected of the scene, go by the way to it.
    LuNode* const camera = m_sceneCamera ? nullptr : m_camera;
    while (m_root->getNumChildren() > 0 && m_root->getChild(0) != camera && m_root->getChild(0) != m_scene)
        m_root->removeChild(0);
    if (camera && m_root->getChild(0) != camera)
        m_root->insertChild(camera, 0);
    const int place = camera ? 1 : 0;
    while (m_root->getNumChildren() > place && m_root->getChild(place) != m_scene)
        m_root->removeChild(place);
    if (m_scene && m_root->getNumChildren() == place)
        m_root->addChild(m_scene);
}

void LuSceneView::viewAll(float margin) {
    if (m_scene)
        getCamera()->viewAll(m_scene, m_region, margin);
}

void LuSceneView::setSize(int width, int height) {
    const LvViewportRegion region(width, height);
    if (region == m_region)
        return;
    m_region = region;
    m_eventAction.setViewportRegion(region);
    m_hasChanged = true;
}

void LuSceneView::setBackground(const LvColor& color) {
    m_hasChanged |= !(color == m_background);
    m_background = color;
}

void LuSceneView::setHeadlight(float brightness) {
    m_hasChanged |= brightness != m_headlight;
    m_headlight = brightness;
}

void LuSceneView::setSamples(int samples) {
    m_hasChanged |= samples != m_samples;
    m_samples = samples;
}

void LuSceneView::setNavigable(bool isNavigable) {
    m_isNavigable = isNavigable;
    if (!isNavigable)
        m_navigator.endDrag();
}

bool LuSceneView::handleEvent(const LuEvent& event) {
    const bool isNavigatorsOwn = m_navigator.isDragging() && isOfPointer(event);
    if (!isNavigatorsOwn) {
        m_eventAction.setEvent(&event);
        m_eventAction.apply(m_root);
        const bool isHandled = m_eventAction.isHandled();
        m_eventAction.setEvent(nullptr);
        // Who has grabbed gets all; what it leaves over is nobody's.
        if (isHandled || m_eventAction.getGrabber())
            return isHandled;
    }
    return m_isNavigable && m_navigator.handleEvent(event, *getCamera(), m_scene, m_region);
}

std::uint64_t LuSceneView::getStamp() const { return m_root->getRenderCache().get(); }

bool LuSceneView::needsRedraw() const {
    return hasArea(m_region) && (m_hasChanged || getStamp() != m_drawnStamp);
}

bool LuSceneView::draw() {
    LuDelayQueueSensor::processQueue();
    if (!hasArea(m_region))
        return true;
    if (m_isDepthFitted && m_scene) {
        // It comes from a cache, or the drawing takes it from there.
        LuGetBoundingBoxAction action(m_region);
        action.apply(m_scene);
        LuNavigator::fitDepth(*getCamera(), action.getBoundingBox());
    }
    if (!m_renderer)
        m_renderer = std::make_unique<LuOffscreenRenderer>();
    m_renderer->setSize(m_region.getSize().x, m_region.getSize().y);
    m_renderer->setSamples(m_samples);
    m_renderer->setBackground(m_background);
    m_renderer->setHeadlight(m_headlight);
    const bool isDrawn = m_renderer->render(m_root);
    // Components build themselves when they are first drawn: that is part of the picture. A picture that
    // can't be drawn is not tried again and again.
    m_drawnStamp = getStamp();
    m_hasChanged = false;
    return isDrawn;
}

void LuSceneView::copyToWindow() {
    if (m_renderer)
        m_renderer->copyToWindow();
}

LuPicture LuSceneView::takePicture() {
    if (!m_renderer || needsRedraw())
        draw();
    return m_renderer ? m_renderer->readPicture() : LuPicture();
}

bool LuSceneView::writePicture(const std::string& path) { return takePicture().writePng(path); }
