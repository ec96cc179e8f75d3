// SPDX-License-Identifier: MIT
#include "platform/lumora/win/LuWinComponent.h"

#include "platform/lumora/win/LuWin.h"

LuWinComponent::~LuWinComponent() = default;

void LuWinComponent::show() { LuWin::show(m_baseWidget); }

void LuWinComponent::hide() { LuWin::hide(m_baseWidget); }
