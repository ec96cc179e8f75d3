// SPDX-License-Identifier: MIT
#pragma once

/// The sources of the one program that draws scenes, without their version lines: they hold for OpenGL 3.3
/// and ES 3.0.
struct LuShaderSource {
    static const char* const VERTEX;
    static const char* const FRAGMENT;
};
