// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/actions/LuHandleEventAction.h"
#include "platform/lumora/events/LuKeyboardEvent.h"
#include "platform/lumora/kits/LuBaseKit.h"
#include "platform/lumora/nodes/LuCamera.h"
#include "tests/host/ToolkitTest.h"

/// A scene with a camera, and a user in front of it with a mouse and a keyboard.
///
/// Unless the camera is moved, a pixel of the viewport is a scene unit, the origin of the scene lies in the
/// viewport's middle, and the user looks along -z. Places are points of the scene; the user points at what is
/// seen there.
class SceneHost {
public:
    static constexpr int VIEWPORT = 800; ///< Width and height in pixels.

    /// Builds what is shown, as a viewer does before it draws. Null shows nothing yet.
    explicit SceneHost(LuNode* shown = nullptr);

    LuSeparator& getRoot() { return *m_root; }
    LuOrthographicCamera& getCamera() { return *m_camera; }

    /// Sees through another camera, which takes the place of the first.
    void useCamera(LuCamera* camera);

    /// Shows a further node, and builds it.
    void show(LuNode* node);

    /// The point of the scene that a box's middle has: of what hangs below a part of a kit, or of a node. The
    /// node has to be shown, and seen.
    LvVec3f getMiddle(LuBaseKit& kit, const char* part);
    LvVec3f getMiddle(LuNode* node);

    /// The mouse. Each gives whether the event was handled.
    bool press(const LvVec3f& place, LuMouseButtonEvent::Button button = LuMouseButtonEvent::BUTTON1);
    bool press(LuBaseKit& kit, const char* part) { return press(getMiddle(kit, part)); }
    bool moveTo(const LvVec3f& place);

    /// Moves on, in scene units; y points up.
    bool dragBy(float x, float y);
    bool release(LuMouseButtonEvent::Button button = LuMouseButtonEvent::BUTTON1);

    /// A press and its release.
    void click(const LvVec3f& place);
    void click(LuBaseKit& kit, const char* part) { click(getMiddle(kit, part)); }

    /// A controller that is held in the hand: its button, down or up, and its motion, with the line that it
    /// points along.
    bool trackerButton(LuButtonEvent::State state, const LvLine& ray);
    bool trackerMove(const LvLine& ray);

    /// A key of the keyboard, pressed and released. `character` is what it types, where that is not what an
    /// American keyboard gives.
    void key(LuKeyboardEvent::Key key, char32_t character = 0);

    /// Where a point is seen: pixels from the lower left corner.
    LvVec2i32 getPixel(const LvVec3f& place) const;

private:
    bool send(const LuEvent& event);

    Held<LuSeparator> m_root;
    Held<LuOrthographicCamera> m_camera;
    LuCamera* m_eye; ///< The camera in use.
    LvVec3f m_place; ///< Where the mouse is.
    LuHandleEventAction m_action;
};
