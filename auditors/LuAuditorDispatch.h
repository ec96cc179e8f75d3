// SPDX-License-Identifier: MIT
#pragma once

class LuDialogAuditor;
class LuPanelix;

/// The kinds of containers, by the components that they report.
enum class LuAuditorContainer {
    GROUP = 1,     ///< A LuDialogGroup: controls.
    MENU = 2,      ///< A LuMenuBar or LuMenuPopup: menu entries.
    TOP_LEVEL = 4, ///< A LuTopLevelDialog: both.
};

/// Brings the event of a component to an auditor of a container above it: calls the operation for each type
/// that the component is of, among those that the kind of container reports. The tests have a fixed order.
void luDispatchToAuditor(LuDialogAuditor& auditor, LuPanelix& component, LuAuditorContainer container);
