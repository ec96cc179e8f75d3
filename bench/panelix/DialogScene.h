// SPDX-License-Identifier: MIT
#pragma once

#include "layout/LuTopLevelDialog.h"
#include "platform/lumora/actions/LuGetBoundingBoxAction.h"
#include "platform/lumora/actions/LuHandleEventAction.h"
#include "platform/lumora/nodes/LuGroup.h"

class LuEvent;

namespace bench {

/// A dialog in a scene that shows all of it, one unit a pixel, and takes events.
class DialogScene {
public:
    /// Takes over the caller's reference to the dialog. `viewport`: width and height in pixels.
    DialogScene(LuTopLevelDialog* dialog, int viewport);
    ~DialogScene();
    DialogScene(const DialogScene&) = delete;
    DialogScene& operator=(const DialogScene&) = delete;

    LuTopLevelDialog& getDialog() { return *m_dialog; }

    /// Finds all boxes anew, which builds what is not built yet.
    void settle() { m_box.apply(m_root); }

    /// The pixel in the middle of a node of the dialog, seen from the top left.
    LvVec2i32 findMiddle(LuNode* node);

    /// True when the event is handled.
    bool send(const LuEvent& event);
    bool press(const LvVec2i32& pixel);
    bool release(const LvVec2i32& pixel);
    bool moveTo(const LvVec2i32& pixel);

private:
    LuTopLevelDialog* m_dialog;
    int m_viewport;
    LuSeparator* m_root = new LuSeparator;
    LuHandleEventAction m_action;
    LuGetBoundingBoxAction m_box;
};

} // namespace bench
