// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/actions/LuHandleEventAction.h"
#include "platform/lumora/events/LuKeyboardEvent.h"
#include "platform/lumora/nodes/LuCamera.h"
#include "platform/lumora/nodes/LuGroup.h"
#include "tests/host/ToolkitTest.h"

/// A scene that is seen from the front, in a viewport of 200 by 200 pixels. A pixel is a scene unit, and the
/// viewport's middle is the scene's origin.
class EventScene : public ToolkitTest {
protected:
    EventScene() {
        auto* camera = new LuOrthographicCamera;
        camera->height.setValue(200);
        camera->position.setValue({0, 0, 100});
        camera->farDistance.setValue(200);
        m_root->addChild(camera);
    }

    /// The pixel at a point of the scene.
    static LvVec2i32 at(int x, int y) { return {100 + x, 100 + y}; }

    /// True when some node has handled the event.
    bool send(const LuEvent& event) {
        m_action.setEvent(&event);
        return m_action.apply(m_root.get());
    }
    bool press(int x, int y) {
        return send(LuMouseButtonEvent(LuMouseButtonEvent::BUTTON1, LuButtonEvent::DOWN, at(x, y)));
    }
    bool move(int x, int y) { return send(LuLocation2Event(at(x, y))); }
    bool release(int x, int y) {
        return send(LuMouseButtonEvent(LuMouseButtonEvent::BUTTON1, LuButtonEvent::UP, at(x, y)));
    }
    bool pressKey(LuKeyboardEvent::Key key) { return send(LuKeyboardEvent(key)); }

    Held<LuSeparator> m_root;
    LuHandleEventAction m_action{LvViewportRegion(200, 200)};
};
