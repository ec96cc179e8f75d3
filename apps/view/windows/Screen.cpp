// SPDX-License-Identifier: MIT
#include "apps/view/Screen.h"

bool isScreenThere() { return true; }
