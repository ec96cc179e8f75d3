// SPDX-License-Identifier: MIT
#include "platform/lumora/base/LuPreferences.h"

#include <cstdlib>
#include <map>
#include <optional>

namespace {

struct Setting {
    LvString value;
    bool isFromProgram = false;
};

using SettingTable = std::map<std::string, Setting, std::less<>>;

SettingTable& getTable() {
    static SettingTable s_table;
    return s_table;
}

std::optional<LvString> readEnvironment(const char* name) {
#ifdef _WIN32
    const wchar_t* value = _wgetenv(LvString(name).toWide().c_str());
    if (value)
        return LvString::fromWide(value);
#else
    const char* value = std::getenv(name);
    if (value)
        return LvString(value);
#endif
    return std::nullopt;
}

} // namespace

const char* LuPreferences::getValue(const char* name) {
    if (!name || !*name)
        return nullptr;
    SettingTable& table = getTable();
    const auto known = table.find(std::string_view(name));
    if (known != table.end() && known->second.isFromProgram)
        return known->second.value.getString();
    const std::optional<LvString> found = readEnvironment(name);
    if (!found)
        return nullptr;
    // The copy keeps the text alive for the caller; the same value stays in the same place.
    Setting& kept = table[name];
    if (kept.value != *found)
        kept.value = *found;
    return kept.value.getString();
}

LvString LuPreferences::getString(const char* name, const LvString& defaultValue) {
    const char* value = getValue(name);
    return value ? LvString(value) : defaultValue;
}

LvString LuPreferences::getStringValue(const char* name) { return getValue(name); }

void LuPreferences::setString(const char* name, const LvString& value) {
    if (name && *name)
        getTable()[name] = {value, true};
}

void LuPreferences::reset(const char* name) {
    if (name)
        getTable().erase(name);
}
