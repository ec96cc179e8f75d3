// SPDX-License-Identifier: MIT
#include "apps/view/SkinChoice.h"

#include "tests/host/ComponentTest.h"
#include "tests/host/TestHost.h"

#include <filesystem>
#include <fstream>

namespace {

class SkinChoiceTest : public ComponentTest {
protected:
    ~SkinChoiceTest() override { LuPanelix::setSkin("data/Panelix/skins/default"); }

    static bool isTaken() { return LuNode::getByName("SkinChoiceTestMark") != nullptr; }

    /// Makes a skin whose one file has a mark.
    static std::string makeMarkedSkin() {
        const std::filesystem::path folder = std::filesystem::path(getTestOutputFolder()) / "marked-skin";
        // Of an earlier run: MinGW's library does not overwrite files.
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
        for (const auto& file : std::filesystem::directory_iterator("data/Panelix/skins/default"))
            std::filesystem::copy_file(file.path(), folder / file.path().filename());
        std::ofstream(folder / "TextProperties.lum")
            << "#Lumora V2.0 ascii\nDEF DialogTextProperties Group { Font { } }\n"
               "DEF SkinChoiceTestMark Group { }\n";
        return folder.generic_string();
    }
};

TEST_F(SkinChoiceTest, skinThatIsThere_isTakenWithoutAWord) {
    EXPECT_FALSE(isTaken());
    EXPECT_EQ(takeSkin(makeMarkedSkin()), "");
    EXPECT_TRUE(isTaken());
}

TEST_F(SkinChoiceTest, noName_leavesTheSkin) { EXPECT_EQ(takeSkin(""), ""); }

TEST_F(SkinChoiceTest, unknownName_isToldWithTheFoldersLookedIn) {
    LuPreferences::setString("LUMORAHOME", "");
    LuPanelix::setSkinsDirectories("/one;/two");
    EXPECT_EQ(takeSkin("nonsense"),
              "there is no skin \"nonsense\": no directory of this name here nor in the skins "
              "folders /one;/two; without --skin the default skin is taken");
}

TEST_F(SkinChoiceTest, unknownNameWithoutFolders_isToldWhatNamesThem) {
    LuPreferences::setString("LUMORAHOME", "");
    LuPanelix::setSkinsDirectories("");
    EXPECT_EQ(takeSkin("nonsense"),
              "there is no skin \"nonsense\": no directory of this name here, and PANELIX_SKINS_DIR and "
              "LUMORAHOME, which "
              "tell the skins folders, are not set; without --skin the default skin is taken");
}

TEST_F(SkinChoiceTest, defaultSkin_needsNoDirectory) {
    LuPreferences::setString("LUMORAHOME", "");
    LuPanelix::setSkinsDirectories("");
    EXPECT_EQ(takeSkin("default"), "");
}

} // namespace
