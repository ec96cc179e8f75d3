// SPDX-License-Identifier: MIT
#pragma once

#include "core/LuSkin.h"

/// The skin of the edit text, of which the slider's value box shows two frames.
class LuEditTextSkin {
    LU_SKIN_HEADER(DialogEditText)

    static void loadSkinOnFirstUse() { s_skin.loadOnFirstUse(); }
};
