// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LuDebugError.h"

#include <string>
#include <vector>

/// The host listens to the error channel during each test. A fault that the test does not expect fails it,
/// and so does an expected fault that does not come. Information is only collected.

/// Expects one fault with exactly this text, before or after it is posted.
void expectMessage(const std::string& where, const std::string& text);

/// Expects one fault whose text holds this part.
void expectMessageContaining(const std::string& where, const std::string& part);

/// Judges what has come so far, as at the end of a test, and begins anew. For a test of several steps.
void checkMessages();

/// All messages since the test began or checkMessages() was called.
std::vector<LuDebugMessage> getPostedMessages();

/// Only the information among them.
std::vector<LuDebugMessage> getPostedInfos();

/// A folder for files that a test writes, below the build folder; it exists. Tests run beside each other:
/// choose names that say which test writes.
std::string getTestOutputFolder();

/// Sets up the error channel and Google Test. Called by main().
void startTestHost();
