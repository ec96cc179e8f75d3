// SPDX-License-Identifier: MIT
#include "apps/view/SkinChoice.h"

#include "core/LuPanelix.h"

std::string takeSkin(const std::string& name) {
    if (name.empty())
        return {};
    if (!LuPanelix::findSkin(name).isEmpty()) {
        LuPanelix::setSkin(name);
        return {};
    }
    // The library carries this one with it: no directory need hold it.
    if (name == "default")
        return {};
    const std::string folders = LuPanelix::getSkinsDirectories().str();
    return "there is no skin \"" + name + "\": no directory of this name here" +
           (folders.empty()
                ? ", and PANELIX_SKINS_DIR and LUMORAHOME, which tell the skins folders, are not set"
                : " nor in the skins folders " + folders) +
           "; without --skin the default skin is taken";
}
