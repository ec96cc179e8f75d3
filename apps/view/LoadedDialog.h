// SPDX-License-Identifier: MIT
#pragma once

#include "auditors/LuDialogAuditor.h"
#include "layout/LuTopLevelDialog.h"

#include <memory>
#include <string>
#include <vector>

/// A dialog from a file. A component that is no top-level dialog is put in one.
class LoadedDialog {
public:
    /// Takes over the reference to `component`. The auditor, which may be null, stays the caller's.
    LoadedDialog(LuPanelix* component, LuDialogAuditor* auditor);
    ~LoadedDialog();
    LoadedDialog(const LoadedDialog&) = delete;
    LoadedDialog& operator=(const LoadedDialog&) = delete;

    LuTopLevelDialog* get() { return m_dialog; }
    LuTopLevelDialog* operator->() { return m_dialog; }

    /// What the file gave.
    LuPanelix& component() { return *m_component; }
    bool isVisible() const { return IsWindowVisible(m_dialog->getBaseWidget()) != 0; }

private:
    LuPanelix* m_component;
    LuTopLevelDialog* m_dialog;
    LuDialogAuditor* m_auditor;
};

using LoadedDialogs = std::vector<std::unique_ptr<LoadedDialog>>;

/// Loads a dialog from each file: the one that `id`, if it is not empty, names at the top of the file or
/// within a dialog there. False when one could not be loaded, which has been reported.
bool loadDialogs(const std::vector<std::string>& files, const std::string& id, LuDialogAuditor* auditor,
                 LoadedDialogs& dialogs);
