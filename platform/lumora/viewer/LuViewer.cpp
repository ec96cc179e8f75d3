// SPDX-License-Identifier: MIT
#include "platform/lumora/viewer/LuViewer.h"

#include "platform/lumora/gl/LuGLContext.h"
#include "platform/lumora/sensors/LuSensor.h"
#include "platform/lumora/sensors/LuSensorQueue.h"
#include "platform/lumora/win/LuWin.h"

#include <algorithm>
#include <vector>

namespace {

std::vector<LuViewer*>& getViewers() {
    static std::vector<LuViewer*> s_viewers;
    return s_viewers;
}

} // namespace

LuViewer::LuViewer(std::unique_ptr<LuGLContext> context) : m_view(std::move(context)) {
    getViewers().push_back(this);
}

LuViewer::~LuViewer() { std::erase(getViewers(), this); }

void LuViewer::show() {
    m_isOpen = true;
    m_isShown = true;
    setShown(true);
}

void LuViewer::hide() {
    m_isShown = false;
    setShown(false);
}

void LuViewer::close() {
    hide();
    m_isOpen = false;
}

void LuViewer::paint() {
    if (m_view.needsRedraw())
        m_view.draw();
    m_view.copyToWindow();
    swapBuffers();
}

bool LuViewer::isAnythingShown() {
    return std::any_of(getViewers().begin(), getViewers().end(),
                       [](auto* viewer) { return viewer->isShown(); }) ||
           areOtherWindowsShown();
}

double LuViewer::getPatience(double seconds) {
    for (LuViewer* viewer : getViewers()) {
        if (viewer->m_isShown && viewer->m_view.needsRedraw())
            return 0;
    }
    // Sensors that wait get their turn soon, but don't keep the processor busy by scheduling each other.
    constexpr double FRAME = 1.0 / 60;
    if (!LuSensorQueue::isEmpty())
        return seconds < 0 ? FRAME : std::min(seconds, FRAME);
    return seconds;
}

bool LuViewer::waitForEvents(double seconds) {
    if (!isAnythingShown())
        return false;
    waitForSystem(getPatience(seconds));
    if (!LuWin::processMessages())
        return false;
    bool isDrawn = false;
    // By number: sensors that fire before a picture may make viewers, or end them.
    for (std::size_t i = 0; i < getViewers().size(); ++i) {
        LuViewer* const viewer = getViewers()[i];
        if (!viewer->m_isShown || !viewer->m_view.needsRedraw())
            continue;
        viewer->paint();
        isDrawn = true;
    }
    if (!isDrawn)
        LuDelayQueueSensor::processQueue();
    return isAnythingShown();
}
