// SPDX-License-Identifier: MIT
#include "apps/play/ScenePlayer.h"

#include "layout/LuTopLevelDialog.h"
#include "platform/lumora/actions/LuGetBoundingBoxAction.h"
#include "platform/lumora/actions/LuGetMatrixAction.h"
#include "platform/lumora/base/LuDebugError.h"
#include "platform/lumora/nodes/LuCamera.h"
#include "platform/lumora/sensors/LuSensor.h"

#include <chrono>
#include <cmath>
#include <thread>

namespace {

constexpr const char* WHERE = "ScenePlayer";

/// From the top of a panel to the middle of its title, in scene units.
constexpr float TITLE_MIDDLE = 12;

/// What a user calls a part, and its name in the geometry.
struct PartName {
    std::string_view user;
    const char* part;
};
constexpr PartName PART_NAMES[] = {
    {"minimise", "minSep"}, {"cursor", "cursorSep"}, {"check", "checkSep"}, {"value", "edtFrmSep"}};

/// The name of the part of the geometry that a user means.
const char* getPartName(const LuBaseKit& kit, const std::string& part) {
    const auto hasPart = [&](const char* name) { return kit.getNodekitCatalog()->getPartNumber(name) >= 0; };
    for (const PartName& name : PART_NAMES) {
        if (name.user == part)
            return name.part;
    }
    if (part.empty() && hasPart("cursorSep"))
        return "cursorSep";
    if (!part.empty() && part != "frame")
        return part.c_str();
    return hasPart("frameSep") ? "frameSep" : "geomSeparator";
}

} // namespace

ScenePlayer::ScenePlayer(LuNode* root, LuCamera* camera, const LvViewportRegion& region, Snapshot snapshot)
    : m_root(root), m_camera(camera), m_action(region), m_snapshot(std::move(snapshot)) {}

bool ScenePlayer::findPlace(LuBaseKit& kit, const std::string& part, LvVec3f& place) {
    // What has not been built yet is built by a traversal for the box.
    LuGetBoundingBoxAction boxAction(m_action.getViewportRegion());
    boxAction.apply(m_root);
    const LuPath kitPath = LuPath::find(m_root, &kit);
    const LuPath partPath = LuPath::find(&kit, kit.getPart(getPartName(kit, part), false));
    if (kitPath.getLength() == 0 || partPath.getLength() == 0)
        return false;
    boxAction.apply(partPath);
    const LvBox3f& box = boxAction.getBoundingBox();
    if (box.isEmpty())
        return false;
    LuGetMatrixAction matrixAction(m_action.getViewportRegion());
    matrixAction.apply(kitPath);
    m_toWorld = matrixAction.getMatrix();
    place = (box.min + box.max) * 0.5F;
    // The middle of a panel is covered by what stands on it.
    if (kit.isOfType(LuTopLevelDialog::getClassTypeId()) && part != "minimise")
        place.y = std::max(place.y, box.max.y - TITLE_MIDDLE);
    return true;
}

void ScenePlayer::pointAt(const LvVec3f& place) {
    m_place = place;
    const LvVec2i32 size = m_action.getViewportRegion().getSize();
    const LvVec3f seen = m_camera->getViewVolume(m_action.getViewportRegion().getAspectRatio())
                             .projectToScreen(m_toWorld.transformPoint(place));
    // What lies between two pixels is the same one's each time, whatever the rounding before.
    constexpr float SLACK = 0.01F;
    m_pixel.setValue(static_cast<int>(std::floor(seen.x * static_cast<float>(size.x) + SLACK)),
                     static_cast<int>(std::floor(seen.y * static_cast<float>(size.y) + SLACK)));
}

bool ScenePlayer::press(LuPanelix& component, const std::string& part) {
    LvVec3f place;
    if (!findPlace(component, part, place))
        return false;
    pointAt(place);
    send(LuMouseButtonEvent(LuMouseButtonEvent::BUTTON1, LuButtonEvent::DOWN, m_pixel));
    return true;
}

void ScenePlayer::moveBy(const LvVec2i32& offset) {
    pointAt(m_place + LvVec3f(static_cast<float>(offset.x), static_cast<float>(-offset.y), 0));
    send(LuLocation2Event(m_pixel));
}

void ScenePlayer::release() {
    send(LuMouseButtonEvent(LuMouseButtonEvent::BUTTON1, LuButtonEvent::UP, m_pixel));
}

void ScenePlayer::pressKey(LuKeyboardEvent::Key key) {
    for (const auto state : {LuButtonEvent::DOWN, LuButtonEvent::UP}) {
        LuKeyboardEvent event(key, state);
        event.setPosition(m_pixel);
        send(event);
    }
}

void ScenePlayer::type(const std::string& text) {
    for (std::size_t at = 0; at < text.size();) {
        const char32_t character = LuUtf8::next(text, at);
        for (const auto state : {LuButtonEvent::DOWN, LuButtonEvent::UP}) {
            LuKeyboardEvent event(LuKeyboardEvent::ANY, state);
            event.setPosition(m_pixel);
            event.setPrintableCharacter(character);
            send(event);
        }
    }
}

void ScenePlayer::resize(LuTopLevelDialog& dialog, const LvVec2i32& size) {
    // A panel has no corner to pull; this is what a program does.
    dialog.width.setValue(size.x);
    dialog.height.setValue(size.y);
    dialog.updateDialogBuild(0);
}

void ScenePlayer::wait(int milliseconds) {
    LuDelayQueueSensor::processQueue();
    if (milliseconds > 0)
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    LuDelayQueueSensor::processQueue();
}

bool ScenePlayer::takeSnapshot(const std::string& path) {
    if (m_snapshot)
        return m_snapshot(path);
    LuDebugError::post(WHERE, "No picture can be taken here: %s", path.c_str());
    return false;
}

void ScenePlayer::send(const LuEvent& event) {
    m_action.setEvent(&event);
    m_action.apply(m_root);
    m_action.setEvent(nullptr);
}
