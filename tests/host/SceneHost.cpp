// SPDX-License-Identifier: MIT
#include "tests/host/SceneHost.h"

#include "platform/lumora/actions/LuGetBoundingBoxAction.h"

#include <cmath>

namespace {

LvViewportRegion getRegion() { return {SceneHost::VIEWPORT, SceneHost::VIEWPORT}; }

} // namespace

SceneHost::SceneHost(LuNode* shown)
    : m_camera(new LuOrthographicCamera), m_eye(m_camera.get()), m_action(getRegion()) {
    m_camera->position.setValue({0, 0, 500});
    m_camera->height.setValue(VIEWPORT);
    m_camera->nearDistance.setValue(1);
    m_camera->farDistance.setValue(1000);
    m_root->addChild(m_camera.get());
    if (shown)
        show(shown);
}

void SceneHost::useCamera(LuCamera* camera) {
    m_root->replaceChild(m_eye, camera);
    m_eye = camera;
}

void SceneHost::show(LuNode* node) {
    m_root->addChild(node);
    LuGetBoundingBoxAction(getRegion()).apply(m_root.get());
}

LvVec3f SceneHost::getMiddle(LuBaseKit& kit, const char* part) { return getMiddle(kit.getPart(part, false)); }

LvVec3f SceneHost::getMiddle(LuNode* node) {
    const LuPath path = LuPath::find(m_root.get(), node);
    const bool isShown = path.getLength() > 0;
    EXPECT_TRUE(isShown) << "The node is not in the scene.";
    LuGetBoundingBoxAction action(getRegion());
    if (isShown)
        action.apply(path);
    EXPECT_FALSE(action.getBoundingBox().isEmpty()) << "The node does not show.";
    return (action.getBoundingBox().min + action.getBoundingBox().max) * 0.5F;
}

LvVec2i32 SceneHost::getPixel(const LvVec3f& place) const {
    const LvVec3f seen = m_eye->getViewVolume(1).projectToScreen(place);
    return {static_cast<int>(std::lround(seen.x * VIEWPORT)),
            static_cast<int>(std::lround(seen.y * VIEWPORT))};
}

bool SceneHost::press(const LvVec3f& place, LuMouseButtonEvent::Button button) {
    m_place = place;
    LuMouseButtonEvent event(button, LuButtonEvent::DOWN, getPixel(place));
    return send(event);
}

bool SceneHost::moveTo(const LvVec3f& place) {
    m_place = place;
    LuLocation2Event event(getPixel(place));
    return send(event);
}

bool SceneHost::dragBy(float x, float y) { return moveTo(m_place + LvVec3f(x, y, 0)); }

bool SceneHost::release(LuMouseButtonEvent::Button button) {
    LuMouseButtonEvent event(button, LuButtonEvent::UP, getPixel(m_place));
    return send(event);
}

void SceneHost::click(const LvVec3f& place) {
    press(place);
    release();
}

bool SceneHost::trackerButton(LuButtonEvent::State state, const LvLine& ray) {
    return send(LuTrackerButtonEvent(state, ray));
}

bool SceneHost::trackerMove(const LvLine& ray) { return send(LuTrackerEvent(ray)); }

void SceneHost::key(LuKeyboardEvent::Key key, char32_t character) {
    for (const auto state : {LuButtonEvent::DOWN, LuButtonEvent::UP}) {
        LuKeyboardEvent event(key, state);
        event.setPosition(getPixel(m_place));
        if (character)
            event.setPrintableCharacter(character);
        send(event);
    }
}

bool SceneHost::send(const LuEvent& event) {
    // An event may be sent while another is being handled.
    const LuEvent* const before = m_action.getEvent();
    m_action.setEvent(&event);
    m_action.apply(m_root.get());
    const bool isHandled = m_action.isHandled();
    m_action.setEvent(before);
    return isHandled;
}
