// SPDX-License-Identifier: MIT
#include "core/LuClassList.h"
#include "core/LuPanelix.h"
#include "generated/LuEmbeddedSkins.h"
#include "platform/lumora/base/LuDebugError.h"
#include "platform/lumora/base/LuPreferences.h"
#include "platform/lumora/base/LvFileHelper.h"
#include "platform/lumora/io/LuDB.h"
#include "platform/lumora/io/LuInput.h"

#include <algorithm>
#include <cstring>

const char* LuPanelix::TextProperties = LuEmbeddedSkin_TextProperties;
LuSkin LuPanelix::s_skin("TextProperties.lum", TextProperties, {"DialogTextProperties"});
LvString LuPanelix::s_skinsPath;

namespace {

/// The long part of the message about missing skin files is said once.
bool s_isFirstMissingFile = true;

/// The name of a group while another is read in its place.
LvName getTemporaryName(const LvString& part) { return "_Zph_Tmp_" + part; }

/// All that was ever read for skins. It stays for good: its groups are found by their names.
std::vector<LuGroup*>& getSkinRoots() {
    static auto& s_roots = *new std::vector<LuGroup*>;
    return s_roots;
}

LuGroup* findGroup(LvName name) {
    LuNode* const node = LuNode::getByName(name);
    return node && node->isOfType(LuGroup::getClassTypeId()) ? static_cast<LuGroup*>(node) : nullptr;
}

bool isUsable(const LvString& path) { return LvFileHelper::isAccessible(path, 0); }

} // namespace

void LuSkin::loadOnFirstUse() {
    if (!m_isFirstRead || m_isLoaded)
        return;
    // The first use of any class takes the skin that the settings name, which reads this file among all: a
    // second reading would leave two groups of each name.
    LuPanelix::selectSkin();
    if (m_isLoaded)
        return;
    LuPanelix::readDefaultSkinsParts(m_file, m_text);
    m_isLoaded = 1;
    m_isFirstRead = false;
}

void LuSkin::change() {
    for (const char* name : m_names)
        LuPanelix::free3DSkin(name);
    LuPanelix::readDefaultSkinsParts(m_file, m_text);
    for (const char* name : m_names)
        LuPanelix::load3DSkin(name);
    m_isLoaded = 1;
}

LvString LuPanelix::getSkinsDirectories() {
    LvString directories;
    const LvString home = LuPreferences::getStringValue("LUMORAHOME");
    if (!home.isEmpty())
        directories = home + "/data/Panelix/skins/";
    const LvString further = LuPreferences::getStringValue("PANELIX_SKINS_DIR");
    if (!further.isEmpty()) {
        if (!directories.isEmpty())
            directories += ";";
        directories += further;
    }
    return directories;
}

LvString LuPanelix::getSkinsDirectory() { return getSkinsDirectories(); }

void LuPanelix::setSkinsDirectories(LvString directories) {
    LuPreferences::setString("PANELIX_SKINS_DIR", directories);
}

int LuPanelix::setSkinsDirectory(LvString directory) {
    setSkin(directory);
    return 1;
}

LvString LuPanelix::findSkin(const LvString& name) {
    std::vector<LvString> candidates{name, "./" + name};
    const LvString directories = LvFileHelper::toUnixPath(getSkinsDirectories());
    for (int start = 0; start < directories.getLength();) {
        const int end = directories.find(";", start);
        candidates.push_back(directories.getSubString(start, end == LvString::npos ? -1 : end) + "/" + name);
        start = end == LvString::npos ? directories.getLength() : end + 1;
    }
    const auto place = std::find_if(candidates.begin(), candidates.end(), isUsable);
    return place == candidates.end() ? LvString() : *place;
}

void LuPanelix::setSkin(LvString name) {
    const LvString path = findSkin(name);
    if (path.isEmpty())
        return;
    s_skinsPath = path;
    change3DSkin();
}

void LuPanelix::free3DSkin(LvString part) {
    LuGroup* const group = findGroup(part);
    if (!group)
        return;
    group->setName(getTemporaryName(part));
    group->removeAllChildren();
}

void LuPanelix::load3DSkin(LvString part) {
    LuGroup* const group = findGroup(getTemporaryName(part));
    // The group just read is the last of its name. None may keep the name beside the group in use.
    const std::vector<LuBase*> named = LuBase::getNamed(part);
    LuGroup* fresh = nullptr;
    for (LuBase* base : named) {
        if (group && base->isOfType(LuGroup::getClassTypeId())) {
            fresh = static_cast<LuGroup*>(base);
            fresh->setName({});
        }
    }
    if (!fresh)
        return;
    for (int i = 0; i < fresh->getNumChildren(); ++i)
        group->addChild(fresh->getChild(i));
    group->setName(part);
}

void LuPanelix::selectSkin() {
    if (s_skinsPath.isEmpty())
        setSkin(LuPreferences::getString("PANELIX_SKIN", "default"));
}

void LuPanelix::change3DSkin() {
    s_skin.change();
    luChangeSkinOfComponentClasses();
}

void LuPanelix::readDefaultSkinsParts(const LvString& file, const char* text) {
    LuGroup* root = readFromFile(file);
    if (!root) {
        LvString message = "The skin file : <" + file + "> cannot be found.";
        if (s_isFirstMissingFile) {
            message += "\nIMPORTANT : Internal Panelix component skin is loaded to prevent from your "
                       "application to exit.\nFor loading your own Panelix skins, please verify the "
                       "PANELIX_SKINS_DIR environment variable.";
            s_isFirstMissingFile = false;
        }
        LuDebugError::post("Panelix::readDefaultSkinsParts", "%s", message.getString());
        LuInput input;
        input.setBuffer(text, std::strlen(text));
        root = LuDB::readAll(&input);
    }
    if (!root)
        return;
    root->ref();
    getSkinRoots().push_back(root);
}
