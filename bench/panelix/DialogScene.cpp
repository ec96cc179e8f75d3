// SPDX-License-Identifier: MIT
#include "bench/panelix/DialogScene.h"

#include "platform/lumora/actions/LuPath.h"
#include "platform/lumora/events/LuEvent.h"
#include "platform/lumora/nodes/LuCamera.h"

#include <cmath>

namespace bench {

DialogScene::DialogScene(LuTopLevelDialog* dialog, int viewport)
    : m_dialog(dialog), m_viewport(viewport), m_action(LvViewportRegion(viewport, viewport)) {
    const auto extent = static_cast<float>(viewport);
    auto* const camera = new LuOrthographicCamera;
    camera->height = extent;
    camera->position = LvVec3f(extent * 0.5F, extent * -0.5F, 500);
    camera->nearDistance = 1;
    camera->farDistance = 1000;
    m_root->ref();
    m_root->addChild(camera);
    m_root->addChild(dialog);
    dialog->unref();
    settle();
}

DialogScene::~DialogScene() { m_root->unref(); }

LvVec2i32 DialogScene::findMiddle(LuNode* node) {
    LuGetBoundingBoxAction action;
    action.apply(LuPath::find(m_root, node));
    const LvVec3f middle = action.getBoundingBox().getCenter();
    return {static_cast<int>(std::lround(middle.x)), m_viewport + static_cast<int>(std::lround(middle.y))};
}

bool DialogScene::send(const LuEvent& event) {
    m_action.setEvent(&event);
    const bool isHandled = m_action.apply(m_root);
    m_action.setEvent(nullptr);
    return isHandled;
}

bool DialogScene::press(const LvVec2i32& pixel) {
    return send(LuMouseButtonEvent(LuMouseButtonEvent::BUTTON1, LuButtonEvent::DOWN, pixel));
}

bool DialogScene::release(const LvVec2i32& pixel) {
    return send(LuMouseButtonEvent(LuMouseButtonEvent::BUTTON1, LuButtonEvent::UP, pixel));
}

bool DialogScene::moveTo(const LvVec2i32& pixel) { return send(LuLocation2Event(pixel)); }

} // namespace bench
