// SPDX-License-Identifier: MIT
#include "apps/play/Player.h"

#include "layout/LuTopLevelDialog.h"
#include "platform/lumora/base/LuDebugError.h"

namespace {

constexpr const char* WHERE = "Player::play";

/// A drag comes in several motions, as from a hand.
constexpr int DRAG_STEPS = 4;

LuPanelix* findById(const std::string& id, const std::vector<LuTopLevelDialog*>& dialogs) {
    for (LuTopLevelDialog* dialog : dialogs) {
        if (dialog->auditorID.getValue() == id.c_str())
            return dialog;
        if (LuPanelix* const found = dialog->searchForAuditorId(id.c_str()))
            return found;
    }
    return nullptr;
}

/// The component of "ID" or "ID.part"; the ID itself may hold dots.
LuPanelix* findTarget(const PlayStep& step, const std::vector<LuTopLevelDialog*>& dialogs,
                      std::string& part) {
    part.clear();
    LuPanelix* found = findById(step.target, dialogs);
    const std::size_t dot = step.target.rfind('.');
    if (!found && dot != std::string::npos) {
        part = step.target.substr(dot + 1);
        found = findById(step.target.substr(0, dot), dialogs);
    }
    if (!found)
        LuDebugError::post(WHERE, "Line %d: there is no component with the auditorID \"%s\".", step.line,
                           step.target.c_str());
    return found;
}

} // namespace

bool Player::play(const std::vector<PlayStep>& steps, const std::vector<LuTopLevelDialog*>& dialogs) {
    for (const PlayStep& step : steps) {
        if (!perform(step, dialogs))
            return false;
    }
    return true;
}

bool Player::perform(const PlayStep& step, const std::vector<LuTopLevelDialog*>& dialogs) {
    std::string part;
    switch (step.action) {
    case PlayStep::PRESS:
    case PlayStep::DRAG: {
        LuPanelix* const component = findTarget(step, dialogs, part);
        if (!component)
            return false;
        if (!press(*component, part)) {
            LuDebugError::post(WHERE, "Line %d: there is nothing to press for \"%s\" in the %s.", step.line,
                               step.target.c_str(), getPlaceName());
            return false;
        }
        if (step.action == PlayStep::PRESS)
            return true;
        LvVec2i32 done;
        for (int i = 1; i <= DRAG_STEPS; ++i) {
            const LvVec2i32 place(step.amount.x * i / DRAG_STEPS, step.amount.y * i / DRAG_STEPS);
            moveBy(place - done);
            done = place;
        }
        release();
        return true;
    }
    case PlayStep::RELEASE:
        release();
        return true;
    case PlayStep::KEY:
        pressKey(step.key);
        return true;
    case PlayStep::TYPE:
        type(step.text);
        return true;
    case PlayStep::RESIZE:
        if (!dialogs.empty())
            resize(*dialogs[0], step.amount);
        return true;
    case PlayStep::WAIT:
        wait(step.amount.x);
        return true;
    case PlayStep::SNAPSHOT:
        wait(0);
        return takeSnapshot(step.target);
    }
    return true;
}
