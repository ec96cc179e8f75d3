// SPDX-License-Identifier: MIT
#include "core/LuLoadedFiles.h"

#include "core/LuPanelix.h"
#include "platform/lumora/io/LuDB.h"
#include "platform/lumora/io/LuInput.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

struct LoadedFile {
    LvString fileName; ///< As loadFromFile got it.
    LuGroup* root;     ///< Holds the file's top-level nodes; one reference.

    /// The components that were read at the top: one of them is found here at its end, though it has been
    /// taken out of the group by then.
    std::vector<const LuNode*> components;
};

std::vector<LoadedFile>& getFiles() {
    static auto& s_files = *new std::vector<LoadedFile>;
    return s_files;
}

bool holds(const LoadedFile& file, const LuPanelix* component) {
    return std::find(file.components.begin(), file.components.end(), component) != file.components.end();
}

std::vector<const LuNode*> findComponents(const LuGroup& root) {
    std::vector<const LuNode*> components;
    for (int i = 0; i < root.getNumChildren(); ++i) {
        if (root.getChild(i)->isOfType(LuPanelix::getClassTypeId()))
            components.push_back(root.getChild(i));
    }
    return components;
}

} // namespace

LuGroup* LuLoadedFiles::load(const LvString& fileName) {
    std::vector<LoadedFile>& files = getFiles();
    const auto found = std::find_if(files.rbegin(), files.rend(), [&fileName](const LoadedFile& file) {
        return file.fileName == fileName;
    });
    if (found != files.rend())
        return found->root;
    LuInput input;
    if (!input.openFile(fileName, false, false))
        return nullptr;
    LuGroup* const root = LuDB::readAll(&input);
    input.closeFile();
    if (root) {
        root->ref();
        files.push_back({fileName, root, findComponents(*root)});
    }
    return root;
}

void LuLoadedFiles::forget(const LuPanelix* component) {
    std::vector<LoadedFile>& files = getFiles();
    const auto found = std::find_if(files.begin(), files.end(),
                                    [component](const LoadedFile& file) { return holds(file, component); });
    if (found == files.end())
        return;
    LuGroup* const root = found->root;
    files.erase(found);
    root->unref();
}

void LuLoadedFiles::clear() {
    // Ending a root ends components, which look for their own file: it must be off the list by then.
    std::vector<LoadedFile> files = std::exchange(getFiles(), {});
    for (const LoadedFile& file : files)
        file.root->unref();
}
