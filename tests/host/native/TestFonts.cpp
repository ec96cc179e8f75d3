// SPDX-License-Identifier: MIT
#include <cstdlib>

namespace {

// The tests measure texts in the typeface that the Windows tests have too. Before main(), because the first
// question for a font settles the matter for the process.
[[maybe_unused]] const int s_chosen = setenv("FONTCONFIG_FILE", PANELIX_TEST_FONTS, 1);

} // namespace
