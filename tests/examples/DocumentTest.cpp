// SPDX-License-Identifier: MIT
#include "tests/layout/DialogTest.h"

#include <fstream>
#include <string>

namespace {

/// The first dialog that a document shows; empty when it shows none.
std::string findDialog(const char* document) {
    std::ifstream in(document);
    std::string text;
    std::size_t indent = 0;
    for (std::string line; std::getline(in, line);) {
        const std::size_t start = line.find_first_not_of(' ');
        if (start == std::string::npos)
            continue;
        if (text.empty()) {
            if (line.compare(start, 16, "TopLevelDialog {") != 0)
                continue;
            indent = start;
        }
        text += line + "\n";
        if (start == indent && line[start] == '}')
            break;
    }
    return text;
}

/// The dialogs in the documents, read as a reader's own would be.
class DocumentTest : public DialogTest {};

TEST_F(DocumentTest, dialogOfTheReadme_isOneForTheFirstExample) {
    auto* const dialog = read<LuTopLevelDialog>(findDialog("README.md").c_str());
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->auditorID.getValue(), "dialog");
    EXPECT_NE(dialog->searchForAuditorId("yes"), nullptr);
}

TEST_F(DocumentTest, dialogOfTheFileFormat_isReadWithAllItHolds) {
    auto* const dialog = read<LuTopLevelDialog>(findDialog("docs/file-format.md").c_str());
    ASSERT_NE(dialog, nullptr);
    EXPECT_NE(dialog->searchForAuditorId("sound"), nullptr);
    EXPECT_NE(dialog->searchForAuditorId("ok"), nullptr);
}

} // namespace
