// SPDX-License-Identifier: MIT
#include "apps/view/EventPrinter.h"
#include "apps/view/Screen.h"
#include "apps/view/SkinChoice.h"
#include "apps/view/Snapshot.h"
#include "apps/view/TreePrinter.h"
#include "layout/LuTopLevelDialog.h"
#include "platform/lumora/base/LuDebugError.h"
#include "platform/lumora/io/LuDB.h"
#include "platform/lumora/win/LuWin.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>
#include <memory>

namespace {

enum ExitStatus { GOOD = 0, FAULTY = 1, WRONG_USE = 2 };

struct Options {
    std::vector<std::string> files;
    std::string id;
    std::string skin;
    std::string tree;
    std::string snapshot;
    bool areEventsPrinted = false;
};

void addOptions(CLI::App& app, Options& options) {
    app.add_option("FILE", options.files, "Dialog files, text or binary")->required();
    app.add_option("--id", options.id, "Show the component with this auditorID")->type_name("ID");
    app.add_flag("--events", options.areEventsPrinted,
                 "Print a line for each auditor call: operation, auditorID, label, value");
    app.add_option("--tree", options.tree,
                   "Print the tree and end: type, auditorID, position, size; or all as json")
        ->expected(0, 1)
        ->default_str("text")
        ->check(CLI::IsMember({"text", "json"}))
        ->type_name("[json]");
    app.add_option("--snapshot", options.snapshot, "Write a picture of what shows and end")
        ->type_name("FILE.png");
    app.add_option(
           "--skin", options.skin,
           "The skin of the 3D rendition: a directory, or the name of one in the skins folders that the "
           "environment's PANELIX_SKINS_DIR and LUMORAHOME tell. The skin named default is there always")
        ->type_name("NAME");
}

/// A dialog on the screen. A component that is no top-level dialog is put in one.
class ShownDialog {
public:
    ShownDialog(LuPanelix* component, LuDialogAuditor* auditor) : m_component(component), m_auditor(auditor) {
        if (component->isOfType(LuTopLevelDialog::getClassTypeId()))
            m_dialog = static_cast<LuTopLevelDialog*>(component);
        else
            m_dialog = wrap(component);
        m_dialog->ref();
        if (auditor)
            m_dialog->addAuditor(auditor);
        m_dialog->buildDialog(nullptr, 0);
    }
    ShownDialog(const ShownDialog&) = delete;
    ShownDialog& operator=(const ShownDialog&) = delete;
    ~ShownDialog() {
        if (m_auditor)
            m_dialog->removeAuditor(m_auditor);
        m_dialog->unref();
        m_component->unref();
    }

    LuTopLevelDialog* operator->() { return m_dialog; }
    LuPanelix& component() { return *m_component; }
    bool isVisible() const { return IsWindowVisible(m_dialog->getBaseWidget()) != 0; }

private:
    static LuTopLevelDialog* wrap(LuPanelix* component) {
        auto* dialog = new LuTopLevelDialog;
        dialog->label.setValue("panelix-view");
        if (component->isOfType(LuTopComponent::getClassTypeId()))
            dialog->addChild(static_cast<LuTopComponent*>(component));
        return dialog;
    }

    LuPanelix* m_component;
    LuTopLevelDialog* m_dialog = nullptr;
    LuDialogAuditor* m_auditor;
};

using Dialogs = std::vector<std::unique_ptr<ShownDialog>>;

/// The component of a file that `id` names, at the top of the file or within a dialog there.
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

bool loadDialogs(const Options& options, LuDialogAuditor* auditor, Dialogs& dialogs) {
    for (const std::string& file : options.files) {
        LuPanelix* const component = findComponent(file, options.id);
        if (!component)
            return false;
        dialogs.push_back(std::make_unique<ShownDialog>(component, auditor));
        // Without a display there are no windows; the library has said so.
        if (!(*dialogs.back())->getBaseWidget())
            return false;
    }
    return true;
}

void printTrees(Dialogs& dialogs, bool isJson) {
    for (const auto& dialog : dialogs) {
        LuPanelix& component = dialog->component();
        std::fputs((isJson ? printTreeAsJson(component) : printTree(component)).c_str(), stdout);
    }
}

bool takeSnapshot(Dialogs& dialogs, const std::string& path) {
    std::vector<HWND> windows;
    for (const auto& dialog : dialogs) {
        (*dialog)->show();
        windows.push_back((*dialog)->getBaseWidget());
    }
    LuWin::processMessages();
    return writeSnapshot(windows, path);
}

/// Runs until the last dialog has been closed.
void runDialogs(Dialogs& dialogs) {
    for (const auto& dialog : dialogs)
        (*dialog)->show();
    const auto isAnyVisible = [&dialogs] {
        return std::any_of(dialogs.begin(), dialogs.end(),
                           [](const auto& dialog) { return dialog->isVisible(); });
    };
    while (isAnyVisible() && LuWin::waitForMessages()) {
    }
}

int run(const Options& options) {
    EventPrinter printer;
    Dialogs dialogs;
    if (const std::string complaint = takeSkin(options.skin); !complaint.empty()) {
        LuDebugError::post("panelix-view", "%s", complaint.c_str());
        return FAULTY;
    }
    if (!loadDialogs(options, options.areEventsPrinted ? &printer : nullptr, dialogs))
        return FAULTY;
    if (!options.tree.empty())
        printTrees(dialogs, options.tree == "json");
    else if (!options.snapshot.empty())
        return takeSnapshot(dialogs, options.snapshot) ? GOOD : FAULTY;
    else if (isScreenThere())
        runDialogs(dialogs);
    else
        return FAULTY;
    return GOOD;
}

} // namespace

int main(int argumentCount, char** arguments) {
    CLI::App app("Shows the dialogs of files as windows; ends when the last of them has been closed.\n"
                 "Exit status: 0 all went well, 1 a file, the skin, the screen or the picture is at fault, 2 "
                 "wrong use.");
    Options options;
    addOptions(app, options);
    // A path that begins with a slash is a file, not an option.
    app.allow_windows_style_options(false);
    try {
        app.parse(argumentCount, arguments);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? GOOD : WRONG_USE;
    }
    // The program is about windows, be they real or in memory.
    LuDBImpl::m_isHeadless = false;
    LuPanelix::init();
    const int status = run(options);
    LuPanelix::finish();
    return status;
}
