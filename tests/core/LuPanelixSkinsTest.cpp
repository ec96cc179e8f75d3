// SPDX-License-Identifier: MIT
#include "platform/lumora/io/LuInput.h"
#include "platform/lumora/nodes/LuProperties.h"
#include "tests/core/OpenPanelix.h"
#include "tests/host/ComponentTest.h"
#include "tests/host/TestHost.h"

#include <filesystem>
#include <fstream>

namespace {

class SkinTest : public ComponentTest {
protected:
    /// Makes a skin directory whose one file gives the text properties this font size.
    std::string makeSkin(const std::string& name, int fontSize) {
        const std::filesystem::path folder = std::filesystem::path(getTestOutputFolder()) / "skins" / name;
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
        for (const auto& file : std::filesystem::directory_iterator("data/Panelix/skins/default"))
            std::filesystem::copy_file(file.path(), folder / file.path().filename());
        std::ofstream(folder / "TextProperties.lum")
            << "#Lumora V2.0 ascii\nDEF DialogTextProperties Group { Font { size " << fontSize << " } }\n";
        return folder.generic_string();
    }
    static std::filesystem::path getSkinFolder(const char* skin) {
        return std::filesystem::path("data/Panelix/skins") / skin;
    }

    /// What a skin file gives a name to, in the order in which it does.
    static std::vector<std::string> getDefinedNames(const std::filesystem::path& file) {
        std::vector<std::string> names;
        std::ifstream in(file);
        for (std::string word; in >> word;) {
            if (word == "DEF" && in >> word)
                names.push_back(word);
        }
        return names;
    }
    static float getFontSize() {
        auto* group = static_cast<LuGroup*>(LuNode::getByName("DialogTextProperties"));
        for (int i = 0; group && i < group->getNumChildren(); ++i) {
            if (group->getChild(i)->isOfType(LuFont::getClassTypeId()))
                return static_cast<LuFont*>(group->getChild(i))->size.getValue();
        }
        return 0;
    }
};

TEST_F(SkinTest, DirectoriesComeFromBothSettings) {
    const LvString home = LuPreferences::getStringValue("LUMORAHOME");
    LuPreferences::setString("LUMORAHOME", "/opt/lumora");
    LuPanelix::setSkinsDirectories("/a;/b");
    EXPECT_EQ(LuPanelix::getSkinsDirectories(), "/opt/lumora/data/Panelix/skins/;/a;/b");
    EXPECT_EQ(LuPanelix::getSkinsDirectory(), LuPanelix::getSkinsDirectories());
    LuPreferences::setString("LUMORAHOME", "");
    EXPECT_EQ(LuPanelix::getSkinsDirectories(), "/a;/b");
    LuPanelix::setSkinsDirectories("");
    EXPECT_EQ(LuPanelix::getSkinsDirectories(), "");
    LuPreferences::setString("LUMORAHOME", home);
}

TEST_F(SkinTest, NameThatLeadsNowhereChangesNothing) {
    LuPanelix::setSkin("default");
    const float before = getFontSize();
    LuPanelix::setSkin("no-such-skin");
    EXPECT_EQ(getFontSize(), before);
}

TEST_F(SkinTest, SkinChangesGroupsInUse) {
    LuPanelix::setSkin("default");
    auto* group = static_cast<LuGroup*>(LuNode::getByName("DialogTextProperties"));
    ASSERT_NE(group, nullptr);
    LuPanelix::setSkin(makeSkin("larger", 22));
    EXPECT_EQ(LuNode::getByName("DialogTextProperties"), group);
    EXPECT_EQ(getFontSize(), 22);
    LuPanelix::setSkin("default");
}

TEST_F(SkinTest, TwoChangesInARowBothTakeEffect) {
    LuPanelix::setSkin(makeSkin("first", 30));
    EXPECT_EQ(getFontSize(), 30);
    LuPanelix::setSkin(makeSkin("second", 31));
    EXPECT_EQ(getFontSize(), 31);
    LuPanelix::setSkin("default");
    EXPECT_EQ(getFontSize(), 11);
    EXPECT_EQ(LuBase::getNamed("DialogTextProperties").size(), 1U);
}

TEST_F(SkinTest, SkinIsFoundInTheFurtherDirectories) {
    const std::string folder = makeSkin("further", 40);
    LuPanelix::setSkinsDirectories(
        ("/nowhere;" + std::filesystem::path(folder).parent_path().generic_string()));
    LuPanelix::setSkin("further");
    EXPECT_EQ(getFontSize(), 40);
    LuPanelix::setSkinsDirectories("data/Panelix/skins");
    LuPanelix::setSkin("default");
}

TEST_F(SkinTest, FoundSkinIsTheFirstDirectoryOfItsName) {
    const std::string folder = makeSkin("found", 11);
    const std::string above = std::filesystem::path(folder).parent_path().generic_string();
    EXPECT_EQ(LuPanelix::findSkin(folder), folder);
    EXPECT_EQ(LuPanelix::findSkin("data"), "data");
    LuPanelix::setSkinsDirectories("/nowhere;" + above + ";data/Panelix/skins");
    EXPECT_EQ(LuPanelix::findSkin("found"), above + "/found");
    EXPECT_EQ(LuPanelix::findSkin("no-such-skin"), "");
}

TEST_F(SkinTest, SkinWithoutAFileFallsBackOnTheStoredText) {
    const std::string folder = makeSkin("partial", 50);
    std::filesystem::remove(folder + "/TextProperties.lum");
    expectMessageContaining("Panelix::readDefaultSkinsParts",
                            "The skin file : <TextProperties.lum> cannot be found.");
    LuPanelix::setSkin(folder);
    EXPECT_EQ(getFontSize(), 11);
    LuPanelix::setSkin("default");
}

TEST_F(SkinTest, OnlyTheFirstMissingFileGetsTheLongMessage) {
    const std::string folder = makeSkin("shortened", 50);
    std::filesystem::remove(folder + "/TextProperties.lum");
    const std::string message = "The skin file : <TextProperties.lum> cannot be found.";
    expectMessageContaining("Panelix::readDefaultSkinsParts", message);
    LuPanelix::setSkin(folder);
    expectMessage("Panelix::readDefaultSkinsParts", message);
    LuPanelix::setSkin(folder);
    LuPanelix::setSkin("default");
}

TEST_F(SkinTest, SkinThatLacksANameLeavesTheGroupEmpty) {
    const std::string folder = makeSkin("empty", 50);
    std::ofstream(folder + "/TextProperties.lum") << "#Lumora V2.0 ascii\nGroup { }\n";
    LuPanelix::setSkin("default");
    LuPanelix::setSkin(folder);
    EXPECT_EQ(getFontSize(), 0);
    LuPanelix::setSkin("default");
}

TEST_F(SkinTest, ReadingASkinFileKeepsTheSearchPath) {
    LuInput::clearDirectories();
    LuInput::addDirectoryLast("/one");
    LuInput::addDirectoryLast("/two");
    EXPECT_EQ(OpenPanelix::readFromFile("NoSuchFile.lum"), nullptr);
    ASSERT_EQ(LuInput::getDirectories().getLength(), 2);
    EXPECT_EQ(*LuInput::getDirectories()[0], "/one");
    EXPECT_EQ(*LuInput::getDirectories()[1], "/two");
    LuInput::clearDirectories();
}

TEST_F(SkinTest, EverySkinFileIsRead) {
    for (const char* skin : {"default", "slate"}) {
        int numFiles = 0;
        for (const auto& file : std::filesystem::directory_iterator(getSkinFolder(skin))) {
            LuInput input;
            ASSERT_TRUE(input.openFile(file.path().generic_string())) << file.path();
            LuNode* const root = LuDB::readAll(&input);
            ASSERT_NE(root, nullptr) << file.path();
            const Held<LuNode> held(root);
            ++numFiles;
        }
        EXPECT_EQ(numFiles, 18) << skin;
    }
}

TEST_F(SkinTest, EverySkinDefinesTheNamesOfTheDefault) {
    for (const auto& file : std::filesystem::directory_iterator(getSkinFolder("default"))) {
        const std::string name = file.path().filename().string();
        const auto names = getDefinedNames(file.path());
        ASSERT_FALSE(names.empty()) << name;
        EXPECT_EQ(getDefinedNames(getSkinFolder("slate") / name), names) << name;
    }
}

} // namespace
