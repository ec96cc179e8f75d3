// SPDX-License-Identifier: MIT
#pragma once

#include "apps/play/Player.h"
#include "platform/win32/WindowSystem.h"

#include <functional>

/// Plays to windows, by the messages that a mouse and a keyboard make. The real pointer is not touched, so
/// what reads its place by itself sees nothing of it.
class WindowPlayer : public Player {
public:
    /// How a picture is taken; false when it can't be, which it reports.
    using Snapshot = std::function<bool(const std::string& path)>;

    explicit WindowPlayer(Snapshot snapshot = {}) : m_snapshot(std::move(snapshot)) {}

protected:
    const char* getPlaceName() const override { return "windows"; }
    bool press(LuPanelix& component, const std::string& part) override;
    void moveBy(const LvVec2i32& offset) override;
    void release() override;
    void pressKey(LuKeyboardEvent::Key key) override;
    void type(const std::string& text) override;
    void resize(LuTopLevelDialog& dialog, const LvVec2i32& size) override;
    void wait(int milliseconds) override;
    bool takeSnapshot(const std::string& path) override;

private:
    bool pressDialog(LuTopLevelDialog& dialog, const std::string& part);
    void sendMouse(UINT message, WPARAM buttons);

    Snapshot m_snapshot;
    HWND m_pressed = nullptr;   ///< The window that the mouse is pressed on.
    HWND m_frame = nullptr;     ///< The window that is held by its frame.
    HWND m_minimised = nullptr; ///< The window whose minimise button is held.
    LvVec2i32 m_place;          ///< The pointer, on the screen.
};
