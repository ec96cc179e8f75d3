// SPDX-License-Identifier: MIT
#pragma once

#include "apps/play/PlayScript.h"

class LuPanelix;
class LuTopLevelDialog;

/// A user with a mouse and a keyboard. Each action gives false when it can't be done; that has been reported.
class Player {
public:
    virtual ~Player() = default;

    /// Plays the steps in their order; ends at the first that can't be done. The dialogs are those in which
    /// the steps' components are looked for.
    bool play(const std::vector<PlayStep>& steps, const std::vector<LuTopLevelDialog*>& dialogs);

protected:
    /// Where it is played: "windows", say, for messages.
    virtual const char* getPlaceName() const = 0;

    /// Presses the mouse on a component; `part` is empty for the place that the user operates. False, without
    /// a message, where there is no such place.
    virtual bool press(LuPanelix& component, const std::string& part) = 0;

    /// Moves the pressed mouse; pixels, y down.
    virtual void moveBy(const LvVec2i32& offset) = 0;
    virtual void release() = 0;
    virtual void pressKey(LuKeyboardEvent::Key key) = 0;
    virtual void type(const std::string& text) = 0;
    virtual void resize(LuTopLevelDialog& dialog, const LvVec2i32& size) = 0;

    /// Lets all happen that is under way, for at least the time.
    virtual void wait(int milliseconds) = 0;
    virtual bool takeSnapshot(const std::string& path) = 0;

private:
    bool perform(const PlayStep& step, const std::vector<LuTopLevelDialog*>& dialogs);
};
