// SPDX-License-Identifier: MIT
#include "platform/lumora/gl/LuGLContext.h"

#include "platform/lumora/gl/LuGLFunctions.h"

LuGLContext::LuGLContext() : m_functions(std::make_unique<LuGLFunctions>()) {}

LuGLContext::~LuGLContext() = default;
