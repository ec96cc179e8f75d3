// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// Takes the skin of a name; an empty one leaves it to the settings. The result is empty when all went well,
/// else a sentence for the user, and no skin is taken.
std::string takeSkin(const std::string& name);
