// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LvFileHelper.h"

#include "platform/lumora/base/LuPreferences.h"
#include "tests/host/TestHost.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

constexpr int READ_AND_WRITE = LvFileHelper::READABLE + LvFileHelper::WRITABLE;

/// A folder of its own for each test, so that tests can run beside each other.
class LvFileHelperTest : public testing::Test {
protected:
    LvFileHelperTest()
        : folder(getTestOutputFolder() + "/LvFileHelper-" +
                 testing::UnitTest::GetInstance()->current_test_info()->name()) {
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
    }
    ~LvFileHelperTest() override { std::filesystem::remove_all(folder); }

    LvString write(const std::string& name, const std::string& content) const {
        const LvString path = folder + "/" + name;
        std::FILE* const file = LvFileHelper::openFile(path, "wb");
        EXPECT_NE(file, nullptr) << path.getString();
        if (file) {
            EXPECT_EQ(std::fwrite(content.data(), 1, content.size(), file), content.size());
            std::fclose(file);
        }
        return path;
    }

    const std::string folder;
    std::string content = "from before";
    std::string reason = "from before";
};

TEST_F(LvFileHelperTest, file_isReadWhole) {
    const std::string bytes = std::string("one\r\n\0two\x1A\n", 11) + std::string(200000, 'x');
    ASSERT_TRUE(LvFileHelper::readWholeFile(write("file.lum", bytes), content, reason));
    EXPECT_EQ(content, bytes);
    EXPECT_EQ(reason, "");
}

TEST_F(LvFileHelperTest, emptyFile_isRead) {
    ASSERT_TRUE(LvFileHelper::readWholeFile(write("empty.lum", ""), content, reason));
    EXPECT_EQ(content, "");
}

TEST_F(LvFileHelperTest, nameOutsideLatin1_isFound) {
    const LvString path = write("\xE2\x82\xAC\xC3\xBC\xF0\x9F\x98\x80.lum", "text");
    EXPECT_TRUE(LvFileHelper::isAccessible(path, LvFileHelper::READABLE));
    ASSERT_TRUE(LvFileHelper::readWholeFile(path, content, reason)) << reason;
    EXPECT_EQ(content, "text");
}

TEST_F(LvFileHelperTest, missingFile_givesTheReason) {
    EXPECT_FALSE(LvFileHelper::readWholeFile(folder + "/none.lum", content, reason));
    EXPECT_EQ(reason, "it does not exist");
    EXPECT_EQ(content, "");
    EXPECT_FALSE(LvFileHelper::readWholeFile(folder + "/none/none.lum", content, reason));
    EXPECT_EQ(reason, "it does not exist");
    EXPECT_FALSE(LvFileHelper::readWholeFile("", content, reason));
    EXPECT_EQ(reason, "it does not exist");
}

TEST_F(LvFileHelperTest, directory_givesTheReason) {
    EXPECT_FALSE(LvFileHelper::readWholeFile(folder, content, reason));
    EXPECT_EQ(reason, "it is a directory");
    EXPECT_EQ(content, "");
}

TEST_F(LvFileHelperTest, pathWithAZeroByte_namesNoFile) {
    const LvString path = write("file.lum", "text") + LvString(std::string("\0.txt", 5));
    EXPECT_FALSE(LvFileHelper::readWholeFile(path, content, reason));
    EXPECT_EQ(reason, "it does not exist");
    EXPECT_FALSE(LvFileHelper::isAccessible(path, LvFileHelper::EXISTS));
    EXPECT_EQ(LvFileHelper::openFile(path, "rb"), nullptr);
}

TEST_F(LvFileHelperTest, file_isAccessible) {
    const LvString path = write("file.lum", "text");
    EXPECT_TRUE(LvFileHelper::isAccessible(path, LvFileHelper::EXISTS));
    EXPECT_TRUE(LvFileHelper::isAccessible(path, READ_AND_WRITE));
    EXPECT_FALSE(LvFileHelper::isDirectory(path));
}

TEST_F(LvFileHelperTest, directory_isAccessible) {
    EXPECT_TRUE(LvFileHelper::isAccessible(folder, LvFileHelper::EXISTS));
    EXPECT_TRUE(LvFileHelper::isDirectory(folder));
    EXPECT_TRUE(LvFileHelper::isDirectory(folder + "/"));
}

TEST_F(LvFileHelperTest, missingPath_isNotAccessible) {
    EXPECT_FALSE(LvFileHelper::isAccessible(folder + "/none", LvFileHelper::EXISTS));
    EXPECT_FALSE(LvFileHelper::isAccessible("", LvFileHelper::EXISTS));
    EXPECT_FALSE(LvFileHelper::isDirectory(folder + "/none"));
    EXPECT_FALSE(LvFileHelper::isDirectory(""));
}

#ifdef _WIN32
TEST_F(LvFileHelperTest, readOnlyFile_isNotWritable) {
    const LvString path = write("file.lum", "text");
    std::filesystem::permissions(path.str(), std::filesystem::perms::owner_read);
    EXPECT_TRUE(LvFileHelper::isAccessible(path, LvFileHelper::READABLE));
    EXPECT_FALSE(LvFileHelper::isAccessible(path, LvFileHelper::WRITABLE));
    std::filesystem::permissions(path.str(), std::filesystem::perms::all);
}
#endif

TEST(LvFileHelper, toUnixPath_turnsBackslashes) {
    EXPECT_EQ(LvFileHelper::toUnixPath("C:\\skins\\one;D:/two\\"), "C:/skins/one;D:/two/");
    EXPECT_EQ(LvFileHelper::toUnixPath(""), "");
}

class LvFileHelperExpandTest : public testing::Test {
protected:
    LvFileHelperExpandTest() {
        LuPreferences::setString("LUMORA_EXPAND_1", "/one");
        LuPreferences::setString("LUMORA_EXPAND_2", "$LUMORA_EXPAND_1");
        LuPreferences::setString("LUMORA_EXPAND_EMPTY", "");
    }
    ~LvFileHelperExpandTest() override {
        for (const char* name : {"LUMORA_EXPAND_1", "LUMORA_EXPAND_2", "LUMORA_EXPAND_EMPTY"})
            LuPreferences::reset(name);
    }
};

TEST_F(LvFileHelperExpandTest, variables_areReplaced) {
    EXPECT_EQ(LvFileHelper::expandString("$LUMORA_EXPAND_1/file"), "/one/file");
    EXPECT_EQ(LvFileHelper::expandString("a${LUMORA_EXPAND_1}b"), "a/oneb");
    EXPECT_EQ(LvFileHelper::expandString("$LUMORA_EXPAND_1$LUMORA_EXPAND_1"), "/one/one");
    EXPECT_EQ(LvFileHelper::expandString("a${LUMORA_EXPAND_EMPTY}b"), "ab");
}

TEST_F(LvFileHelperExpandTest, values_areNotExpandedAgain) {
    EXPECT_EQ(LvFileHelper::expandString("$LUMORA_EXPAND_2"), "$LUMORA_EXPAND_1");
}

TEST_F(LvFileHelperExpandTest, name_runsAsFarAsItsCharacters) {
    EXPECT_EQ(LvFileHelper::expandString("$LUMORA_EXPAND_1x"), "$LUMORA_EXPAND_1x");
    EXPECT_EQ(LvFileHelper::expandString("$LUMORA_EXPAND_1.lum"), "/one.lum");
}

TEST_F(LvFileHelperExpandTest, whatIsNotSet_staysAsItIs) {
    for (const char* text : {"", "plain", "$LUMORA_EXPAND_NONE/x", "${LUMORA_EXPAND_NONE}", "$", "a$", "$$",
                             "$1", "${", "${}", "${LUMORA_EXPAND_1", "\xC3\xBC$\xC3\xBC"})
        EXPECT_EQ(LvFileHelper::expandString(text), text);
}

TEST_F(LvFileHelperExpandTest, variableBehindADollar_isReplaced) {
    EXPECT_EQ(LvFileHelper::expandString("$$LUMORA_EXPAND_1"), "$/one");
    EXPECT_EQ(LvFileHelper::expandString("${none ${LUMORA_EXPAND_1}"), "${none /one");
}

} // namespace
