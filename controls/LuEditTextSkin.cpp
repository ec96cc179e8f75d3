// SPDX-License-Identifier: MIT
#include "controls/LuEditTextSkin.h"

#include "generated/LuEmbeddedSkins.h"

const char* LuEditTextSkin::DialogEditText = LuEmbeddedSkin_DialogEditText;
LuSkin LuEditTextSkin::s_skin("DialogEditText.lum", LuEmbeddedSkin_DialogEditText,
                              {"DialogEditTextFrame", "DialogEditTextEditingFrame",
                               "DialogEditTextDownButtonPressed", "DialogEditTextDownButtonReleased",
                               "DialogEditTextUpButtonPressed", "DialogEditTextUpButtonReleased",
                               "DialogEditTextScrollFrame", "DialogEditTextCursorFrame",
                               "DialogEditTextCaretFrame"});
