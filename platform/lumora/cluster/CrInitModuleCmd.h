// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

/// Tells a cluster that a module has started. Without a cluster the names are only kept, for whoever asks.
class CrInitModuleCmd {
public:
    static CrInitModuleCmd* Instance();

    void serialize(const char* moduleName) { m_names.emplace_back(moduleName); }

    /// All names in the order in which they were announced.
    const std::vector<std::string>& getNames() const { return m_names; }

private:
    std::vector<std::string> m_names;
};
