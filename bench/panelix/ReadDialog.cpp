// SPDX-License-Identifier: MIT
#include "bench/panelix/ReadDialog.h"

#include "bench/Measure.h"
#include "controls/LuDialogPushButton.h"
#include "platform/lumora/io/LuDB.h"
#include "platform/lumora/io/LuInput.h"

namespace bench {

LuTopLevelDialog* readDialog(const std::string& text) {
    LuInput input;
    input.setBuffer(text.data(), text.size());
    LuSeparator* root = LuDB::readAll(&input);
    require(root != nullptr && root->getNumChildren() == 1, "the dialog's text can be read");
    root->ref();
    LuNode* first = root->getChild(0);
    require(first->isOfType(LuTopLevelDialog::getClassTypeId()), "the text holds a top-level dialog");
    first->ref();
    root->unref();
    return static_cast<LuTopLevelDialog*>(first);
}

LuDialogPushButton* findButton(LuTopLevelDialog& dialog, int number) {
    const std::string id = "button" + std::to_string(number);
    LuPanelix* found = dialog.searchForAuditorId(id.c_str());
    require(found != nullptr, "the push button is found by its id");
    return static_cast<LuDialogPushButton*>(found);
}

} // namespace bench
