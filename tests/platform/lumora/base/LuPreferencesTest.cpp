// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LuPreferences.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace {

constexpr const char* NAME = "LUMORA_PREFERENCES_TEST";

void setEnvironment(const LvString& value) {
#ifdef _WIN32
    _wputenv_s(LvString(NAME).toWide().c_str(), value.toWide().c_str());
#else
    setenv(NAME, value.getString(), 1);
#endif
}

void clearEnvironment() {
#ifdef _WIN32
    _putenv_s(NAME, "");
#else
    unsetenv(NAME);
#endif
}

class LuPreferencesTest : public testing::Test {
protected:
    void TearDown() override {
        LuPreferences::reset(NAME);
        clearEnvironment();
    }
};

TEST_F(LuPreferencesTest, unsetName_hasNoValue) {
    EXPECT_EQ(LuPreferences::getValue(NAME), nullptr);
    EXPECT_EQ(LuPreferences::getString(NAME, "default"), "default");
    EXPECT_EQ(LuPreferences::getStringValue(NAME), "");
}

TEST_F(LuPreferencesTest, environment_givesTheValue) {
    setEnvironment("from outside");
    EXPECT_STREQ(LuPreferences::getValue(NAME), "from outside");
    EXPECT_EQ(LuPreferences::getString(NAME, "default"), "from outside");
    EXPECT_EQ(LuPreferences::getStringValue(NAME), "from outside");
}

TEST_F(LuPreferencesTest, environment_isReadAtEachCall) {
    setEnvironment("one");
    EXPECT_STREQ(LuPreferences::getValue(NAME), "one");
    setEnvironment("two");
    EXPECT_STREQ(LuPreferences::getValue(NAME), "two");
    clearEnvironment();
    EXPECT_EQ(LuPreferences::getValue(NAME), nullptr);
}

TEST_F(LuPreferencesTest, program_goesBeforeTheEnvironment) {
    setEnvironment("from outside");
    LuPreferences::setString(NAME, "from the program");
    EXPECT_STREQ(LuPreferences::getValue(NAME), "from the program");
    setEnvironment("from outside again");
    EXPECT_EQ(LuPreferences::getStringValue(NAME), "from the program");
}

TEST_F(LuPreferencesTest, emptyValueOfTheProgram_isSet) {
    LuPreferences::setString(NAME, "");
    EXPECT_STREQ(LuPreferences::getValue(NAME), "");
    EXPECT_EQ(LuPreferences::getString(NAME, "default"), "");
}

TEST_F(LuPreferencesTest, reset_bringsTheEnvironmentBack) {
    setEnvironment("from outside");
    LuPreferences::setString(NAME, "from the program");
    LuPreferences::reset(NAME);
    EXPECT_STREQ(LuPreferences::getValue(NAME), "from outside");
}

TEST_F(LuPreferencesTest, value_staysInPlaceWhileItIsTheSame) {
    setEnvironment("kept");
    const char* const value = LuPreferences::getValue(NAME);
    EXPECT_EQ(LuPreferences::getValue(NAME), value);
    LuPreferences::setString("LUMORA_PREFERENCES_OTHER", "other");
    EXPECT_STREQ(value, "kept");
    LuPreferences::reset("LUMORA_PREFERENCES_OTHER");
}

TEST_F(LuPreferencesTest, charactersOutsideLatin1_comeThrough) {
    const LvString euro = "\xE2\x82\xAC \xC3\xBC";
    setEnvironment(euro);
    EXPECT_EQ(LuPreferences::getStringValue(NAME), euro);
}

TEST_F(LuPreferencesTest, nameless_isNeverSet) {
    for (const char* name : {static_cast<const char*>(nullptr), ""}) {
        LuPreferences::setString(name, "value");
        EXPECT_EQ(LuPreferences::getValue(name), nullptr);
        LuPreferences::reset(name);
    }
}

} // namespace
