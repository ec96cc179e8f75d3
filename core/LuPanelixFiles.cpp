// SPDX-License-Identifier: MIT
#include "core/LuLoadedFiles.h"
#include "core/LuPanelix.h"
#include "platform/lumora/base/LuDebugError.h"
#include "platform/lumora/io/LuDB.h"
#include "platform/lumora/io/LuInput.h"

#include <algorithm>

LuPanelix* LuPanelix::loadFromFile(LvString file, LvString auditorID) {
    const LuGroup* const root = LuLoadedFiles::load(file);
    if (!root)
        return nullptr;
    for (int i = 0; i < root->getNumChildren(); ++i) {
        LuNode* const child = root->getChild(i);
        if (!child->isOfType(getClassTypeId()))
            continue;
        auto* component = static_cast<LuPanelix*>(child);
        if (auditorID.isEmpty() || component->auditorID.getValue() == auditorID) {
            component->ref();
            return component;
        }
    }
    LvString message("Cannot find any Panelix component ");
    if (!auditorID.isEmpty())
        message += "with auditorID = \"" + auditorID + "\" ";
    message += "in Lumora file \"" + file + "\".";
    LuDebugError::post("LuPanelix::loadFromFile", "%s", message.getString());
    return nullptr;
}

void LuPanelix::destroyByRef(LuPanelix* component) { LuLoadedFiles::forget(component); }

LuGroup* LuPanelix::readFromFile(const LvString& file) {
    std::vector<LvString> directories;
    LvStringList& searched = LuInput::getDirectories();
    for (int i = 0; i < searched.getLength(); ++i)
        directories.push_back(*searched[i]);
    LuInput::clearDirectories();
    selectSkin();
    LuInput::addDirectoryFirst(s_skinsPath);
    LuGroup* root = nullptr;
    LuInput input;
    if (input.openFile(file, true, false)) {
        root = LuDB::readAll(&input);
        input.closeFile();
    }
    LuInput::clearDirectories();
    for (const LvString& directory : directories)
        LuInput::addDirectoryLast(directory);
    return root;
}

LvString LuPanelix::convertToCString(const LvString& text, const LuPanelix* component) {
    if (component && component->keepsEscapes())
        return text;
    const char* const lineEnd = component ? component->getLineEnd() : "\n";
    const std::string_view source = text.view();
    const auto isKept = [](char byte) { return byte != '\n' && byte != '\r' && byte != '\\'; };
    if (std::all_of(source.begin(), source.end(), isKept))
        return text;
    std::string result;
    result.reserve(source.size() * 2);
    for (std::size_t i = 0; i < source.size(); ++i) {
        const char byte = source[i];
        // A backslash at the end escapes nothing, and goes.
        const bool isEscape = byte == '\\';
        if (isEscape && ++i == source.size())
            break;
        const char meant = isEscape ? source[i] : byte;
        if (isEscape ? meant == 'n' : meant == '\n')
            result += lineEnd;
        else if (isEscape && meant == 't')
            result += '\t';
        else if (isEscape || meant != '\r')
            result += meant;
    }
    return result;
}

LvString LuPanelix::convertFromCString(const LvString&, int) { return {}; }
