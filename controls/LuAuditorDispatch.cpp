// SPDX-License-Identifier: MIT
#include "auditors/LuAuditorDispatch.h"

#include "auditors/LuDialogAuditor.h"
#include "controls/LuDialogCheckBox.h"
#include "controls/LuDialogIntegerSlider.h"
#include "controls/LuDialogPushButton.h"
#include "controls/LuDialogRealSlider.h"

namespace {

struct DispatchRow {
    LuType (*getType)();
    void (*call)(LuDialogAuditor& auditor, LuPanelix& component);
    unsigned containers;
};

template <class Component, void (LuDialogAuditor::*OPERATION)(Component*)>
constexpr DispatchRow row(unsigned containers) {
    return {&Component::getClassTypeId,
            [](LuDialogAuditor& auditor, LuPanelix& component) {
                (auditor.*OPERATION)(static_cast<Component*>(&component));
            },
            containers};
}

constexpr unsigned CONTROL =
    static_cast<unsigned>(LuAuditorContainer::GROUP) | static_cast<unsigned>(LuAuditorContainer::TOP_LEVEL);

/// In the order of the tests, which is not that of the auditor's operations.
constexpr DispatchRow s_rows[] = {
    row<LuDialogPushButton, &LuDialogAuditor::dialogPushButton>(CONTROL),
    row<LuDialogCheckBox, &LuDialogAuditor::dialogCheckBox>(CONTROL),
    row<LuDialogIntegerSlider, &LuDialogAuditor::dialogIntegerSlider>(CONTROL),
    row<LuDialogRealSlider, &LuDialogAuditor::dialogRealSlider>(CONTROL),
};

} // namespace

void luDispatchToAuditor(LuDialogAuditor& auditor, LuPanelix& component, LuAuditorContainer container) {
    // The auditor may end the component.
    const LuType type = component.getTypeId();
    for (const DispatchRow& row : s_rows)
        if ((row.containers & static_cast<unsigned>(container)) && type.isDerivedFrom(row.getType()))
            row.call(auditor, component);
}
