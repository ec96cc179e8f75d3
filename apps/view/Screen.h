// SPDX-License-Identifier: MIT
#pragma once

/// Whether windows can be seen and operated. If not, it says so.
bool isScreenThere();
