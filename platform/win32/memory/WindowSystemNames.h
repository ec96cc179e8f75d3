// SPDX-License-Identifier: MIT
#pragma once

#include "platform/win32/memory/WindowSystemTypes.h"

#include "platform/win32/memory/WindowSystemConstants.h"

#include "platform/win32/memory/WindowSystemFunctions.h"
