// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvVec.h"
#include "platform/lumora/events/LuKeyboardEvent.h"

#include <string>
#include <string_view>
#include <vector>

/// One action of a user.
struct PlayStep {
    enum Action { PRESS, RELEASE, DRAG, KEY, TYPE, RESIZE, WAIT, SNAPSHOT };

    Action action = WAIT;
    int line = 0;
    std::string target; ///< PRESS and DRAG: "ID" or "ID.part". SNAPSHOT: a file.
    LvVec2i32 amount;   ///< DRAG and RESIZE: pixels, y down. WAIT: milliseconds in x.
    LuKeyboardEvent::Key key = LuKeyboardEvent::ANY; ///< KEY.
    std::string text;                                ///< TYPE, UTF-8.
};

/// Reads a play file's text. False when something is wrong: each fault is reported with `name`, line and
/// column, and the steps that are good are there.
bool readPlayScript(std::string_view text, const std::string& name, std::vector<PlayStep>& steps);

/// The same from a file.
bool loadPlayScript(const std::string& path, std::vector<PlayStep>& steps);
