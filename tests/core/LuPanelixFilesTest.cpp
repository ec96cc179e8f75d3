// SPDX-License-Identifier: MIT
#include "platform/lumora/nodes/LuGroup.h"
#include "tests/host/ComponentTest.h"
#include "tests/host/TestHost.h"

#include <fstream>

namespace {

class DialogFileTest : public ComponentTest {
protected:
    /// Writes a dialog file; each test has its own.
    std::string writeFile(const std::string& content) {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        const std::string path = getTestOutputFolder() + "/" + test->name() + ".lum";
        std::ofstream(path, std::ios::binary) << "#Lumora V2.0 ascii\n" << content;
        return path;
    }
};

TEST_F(DialogFileTest, EmptyIdGivesTheFirstComponentAtTheTop) {
    const std::string file =
        writeFile("Separator { }\nPanelix { auditorID \"a\" }\nPanelix { auditorID \"b\" }\n");
    LuPanelix* component = LuPanelix::loadFromFile(file, "");
    ASSERT_NE(component, nullptr);
    EXPECT_EQ(component->auditorID.getValue(), "a");
    component->unref();
}

TEST_F(DialogFileTest, IdChoosesAmongTheTopComponents) {
    const std::string file =
        writeFile("Panelix { auditorID \"a\" }\nPanelix { auditorID \"b\" label \"B\" }\n");
    LuPanelix* component = LuPanelix::loadFromFile(file, "b");
    ASSERT_NE(component, nullptr);
    EXPECT_EQ(component->label.getValue(), "B");
    component->unref();
}

TEST_F(DialogFileTest, SecondLoadGivesTheSameObjectWithOneMoreReference) {
    const std::string file = writeFile("Panelix { }\n");
    LuPanelix* first = LuPanelix::loadFromFile(file, "");
    const int references = first->getRefCount();
    EXPECT_EQ(LuPanelix::loadFromFile(file, ""), first);
    EXPECT_EQ(first->getRefCount(), references + 1);
    first->unref();
    first->unref();
}

TEST_F(DialogFileTest, FileThatHasChangedOnDiskGivesTheOldObjects) {
    const std::string file = writeFile("Panelix { label \"old\" }\n");
    LuPanelix* first = LuPanelix::loadFromFile(file, "");
    writeFile("Panelix { label \"new\" }\n");
    LuPanelix* second = LuPanelix::loadFromFile(file, "");
    ASSERT_EQ(second, first);
    EXPECT_EQ(second->label.getValue(), "old");
    first->unref();
    second->unref();
}

TEST_F(DialogFileTest, FileWithoutComponentsPostsTheMessageWithoutAnId) {
    const std::string file = writeFile("Separator { }\n");
    expectMessage("LuPanelix::loadFromFile",
                  "Cannot find any Panelix component in Lumora file \"" + file + "\".");
    EXPECT_EQ(LuPanelix::loadFromFile(file, ""), nullptr);
}

TEST_F(DialogFileTest, UnknownIdPostsTheMessageWithIt) {
    const std::string file = writeFile("Panelix { auditorID \"a\" }\n");
    expectMessage("LuPanelix::loadFromFile",
                  "Cannot find any Panelix component with auditorID = \"x\" in Lumora file \"" + file +
                      "\".");
    EXPECT_EQ(LuPanelix::loadFromFile(file, "x"), nullptr);
}

TEST_F(DialogFileTest, ComponentsDeeperInTheFileAreNotFound) {
    const std::string file = writeFile("Separator { Panelix { auditorID \"deep\" } }\n");
    expectMessageContaining("LuPanelix::loadFromFile", "Cannot find any Panelix component");
    EXPECT_EQ(LuPanelix::loadFromFile(file, "deep"), nullptr);
}

TEST_F(DialogFileTest, MissingFileIsNull) {
    expectMessageContaining("LuInput::openFile", "no-such-file.lum");
    EXPECT_EQ(LuPanelix::loadFromFile("no-such-file.lum", ""), nullptr);
}

TEST_F(DialogFileTest, BrokenFileIsNullAndIsReadAgainNextTime) {
    const std::string file = writeFile("Panelix { label \n");
    expectMessageContaining("LuInput", "error");
    EXPECT_EQ(LuPanelix::loadFromFile(file, ""), nullptr);
    writeFile("Panelix { label \"mended\" }\n");
    LuPanelix* component = LuPanelix::loadFromFile(file, "");
    ASSERT_NE(component, nullptr);
    EXPECT_EQ(component->label.getValue(), "mended");
    component->unref();
}

TEST_F(DialogFileTest, ComponentTakenOutOfItsFileAndEndedEndsTheCacheEntry) {
    const std::string file = writeFile("Panelix { label \"old\" }\n");
    LuPanelix* component = LuPanelix::loadFromFile(file, "");
    auto* root = static_cast<LuGroup*>(component->getObservers()[0].getNode());
    root->removeChild(component);
    component->unref();
    writeFile("Panelix { label \"new\" }\n");
    component = LuPanelix::loadFromFile(file, "");
    ASSERT_NE(component, nullptr);
    EXPECT_EQ(component->label.getValue(), "new");
    component->unref();
}

TEST_F(DialogFileTest, DialogLivesOnInTheCacheWithoutAnyCaller) {
    const std::string file = writeFile("Panelix { label \"kept\" }\n");
    LuPanelix* component = LuPanelix::loadFromFile(file, "");
    component->label.setValue("changed");
    component->unref();
    component = LuPanelix::loadFromFile(file, "");
    EXPECT_EQ(component->label.getValue(), "changed");
    component->unref();
}

} // namespace
