// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

/// One of the two renditions of a dialog.
enum class Rendition { WINDOWS, SCENE };

/// What came of a play: the auditor's calls in their order, as "operation id value", and all fields of all
/// components as text, by "id.field". Components without an auditorID are called by their type and number.
struct TwinOutcome {
    std::vector<std::string> calls;
    std::map<std::string, std::string> fields;
};

/// Loads the dialog, builds one rendition of it, plays the script to that, and tells what came of it. Faults
/// of either text fail the test.
TwinOutcome playTwin(Rendition rendition, const std::string& dialog, const std::string& script);

/// A field in which the renditions may differ, and why.
struct TwinDifference {
    std::string field; ///< "id.field", or ".field" for that field of all components.
    std::string reason;
};

/// Plays one script to both renditions and expects the same of them, but for the differences. One that is
/// expected and is not there fails the test, too. The result is what both auditors heard.
std::vector<std::string> expectTwins(const std::string& dialog, const std::string& script,
                                     const std::vector<TwinDifference>& differences = {});
