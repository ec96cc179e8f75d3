// SPDX-License-Identifier: MIT
#include "apps/view/LoadedDialog.h"

namespace {

LuTopLevelDialog* wrap(LuPanelix* component) {
    if (component->isOfType(LuTopLevelDialog::getClassTypeId()))
        return static_cast<LuTopLevelDialog*>(component);
    auto* dialog = new LuTopLevelDialog;
    dialog->label.setValue("panelix-view");
    if (component->isOfType(LuTopComponent::getClassTypeId()))
        dialog->addChild(static_cast<LuTopComponent*>(component));
    return dialog;
}

LuPanelix* findComponent(const std::string& file, const std::string& id) {
    if (id.empty())
        return LuPanelix::loadFromFile(file, "");
    if (LuPanelix* top = LuPanelix::loadFromFile(file, "")) {
        LuPanelix* found = nullptr;
        if (top->isOfType(LuTopLevelDialog::getClassTypeId()))
            found = static_cast<LuTopLevelDialog*>(top)->searchForAuditorId(id);
        if (found)
            found->ref();
        top->unref();
        if (found)
            return found;
    }
    return LuPanelix::loadFromFile(file, id);
}

} // namespace

LoadedDialog::LoadedDialog(LuPanelix* component, LuDialogAuditor* auditor)
    : m_component(component), m_dialog(wrap(component)), m_auditor(auditor) {
    m_dialog->ref();
    if (auditor)
        m_dialog->addAuditor(auditor);
}

LoadedDialog::~LoadedDialog() {
    if (m_auditor)
        m_dialog->removeAuditor(m_auditor);
    m_dialog->unref();
    m_component->unref();
}

bool loadDialogs(const std::vector<std::string>& files, const std::string& id, LuDialogAuditor* auditor,
                 LoadedDialogs& dialogs) {
    for (const std::string& file : files) {
        LuPanelix* const component = findComponent(file, id);
        if (!component)
            return false;
        dialogs.push_back(std::make_unique<LoadedDialog>(component, auditor));
    }
    return true;
}
