// SPDX-License-Identifier: MIT
#pragma once

#include "apps/play/Player.h"
#include "platform/lumora/actions/LuHandleEventAction.h"

#include <functional>

class LuBaseKit;
class LuCamera;

/// Plays to panels in a scene, by the events of a mouse and a keyboard, which find their way by picks.
class ScenePlayer : public Player {
public:
    using Snapshot = std::function<bool(const std::string& path)>;

    /// The scene's root, which has the camera below it. Both must live as long as the player.
    ScenePlayer(LuNode* root, LuCamera* camera, const LvViewportRegion& region, Snapshot snapshot = {});

protected:
    const char* getPlaceName() const override { return "scene"; }
    bool press(LuPanelix& component, const std::string& part) override;
    void moveBy(const LvVec2i32& offset) override;
    void release() override;
    void pressKey(LuKeyboardEvent::Key key) override;
    void type(const std::string& text) override;
    void resize(LuTopLevelDialog& dialog, const LvVec2i32& size) override;
    void wait(int milliseconds) override;
    bool takeSnapshot(const std::string& path) override;

private:
    bool findPlace(LuBaseKit& kit, const std::string& part, LvVec3f& place);
    void pointAt(const LvVec3f& place);
    void send(const LuEvent& event);

    LuNode* m_root;
    LuCamera* m_camera;
    LuHandleEventAction m_action;
    Snapshot m_snapshot;
    LvMatrix m_toWorld; ///< From the space of the component that was pressed last.
    LvVec3f m_place;    ///< What the pointer is on, in that space.
    LvVec2i32 m_pixel;  ///< Where that is seen: pixels from the lower left corner.
};
