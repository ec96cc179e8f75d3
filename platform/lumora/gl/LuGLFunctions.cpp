// SPDX-License-Identifier: MIT
#include "platform/lumora/gl/LuGLFunctions.h"

#include "platform/lumora/base/LuDebugError.h"

bool LuGLFunctions::load(Loader loader) {
    const char* missing = nullptr;
#define LU_GL_LOAD(name, Type)                                                                               \
    name = reinterpret_cast<Type>(loader("gl" #name));                                                       \
    if (!name)                                                                                               \
        missing = "gl" #name;
    LU_GL_FUNCTIONS(LU_GL_LOAD)
#undef LU_GL_LOAD
    if (missing)
        LuDebugError::post("LuGLFunctions::load", "This OpenGL has no %s.", missing);
    return !missing;
}
