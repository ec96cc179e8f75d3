// SPDX-License-Identifier: MIT
#pragma once

#include <GL/glcorearb.h>

/// The OpenGL functions that we use: 3.3 core, and all of them in ES 3.0 too.
#define LU_GL_FUNCTIONS(X)                                                                                   \
    X(ActiveTexture, PFNGLACTIVETEXTUREPROC)                                                                 \
    X(AttachShader, PFNGLATTACHSHADERPROC)                                                                   \
    X(BindBuffer, PFNGLBINDBUFFERPROC)                                                                       \
    X(BindFramebuffer, PFNGLBINDFRAMEBUFFERPROC)                                                             \
    X(BindRenderbuffer, PFNGLBINDRENDERBUFFERPROC)                                                           \
    X(BindTexture, PFNGLBINDTEXTUREPROC)                                                                     \
    X(BindVertexArray, PFNGLBINDVERTEXARRAYPROC)                                                             \
    X(BlendFuncSeparate, PFNGLBLENDFUNCSEPARATEPROC)                                                         \
    X(BlitFramebuffer, PFNGLBLITFRAMEBUFFERPROC)                                                             \
    X(BufferData, PFNGLBUFFERDATAPROC)                                                                       \
    X(BufferSubData, PFNGLBUFFERSUBDATAPROC)                                                                 \
    X(CheckFramebufferStatus, PFNGLCHECKFRAMEBUFFERSTATUSPROC)                                               \
    X(Clear, PFNGLCLEARPROC)                                                                                 \
    X(ClearColor, PFNGLCLEARCOLORPROC)                                                                       \
    X(ColorMask, PFNGLCOLORMASKPROC)                                                                         \
    X(CompileShader, PFNGLCOMPILESHADERPROC)                                                                 \
    X(CreateProgram, PFNGLCREATEPROGRAMPROC)                                                                 \
    X(CreateShader, PFNGLCREATESHADERPROC)                                                                   \
    X(DeleteBuffers, PFNGLDELETEBUFFERSPROC)                                                                 \
    X(DeleteFramebuffers, PFNGLDELETEFRAMEBUFFERSPROC)                                                       \
    X(DeleteProgram, PFNGLDELETEPROGRAMPROC)                                                                 \
    X(DeleteRenderbuffers, PFNGLDELETERENDERBUFFERSPROC)                                                     \
    X(DeleteShader, PFNGLDELETESHADERPROC)                                                                   \
    X(DeleteTextures, PFNGLDELETETEXTURESPROC)                                                               \
    X(DeleteVertexArrays, PFNGLDELETEVERTEXARRAYSPROC)                                                       \
    X(DepthFunc, PFNGLDEPTHFUNCPROC)                                                                         \
    X(DepthMask, PFNGLDEPTHMASKPROC)                                                                         \
    X(Disable, PFNGLDISABLEPROC)                                                                             \
    X(DrawArraysInstanced, PFNGLDRAWARRAYSINSTANCEDPROC)                                                     \
    X(Enable, PFNGLENABLEPROC)                                                                               \
    X(EnableVertexAttribArray, PFNGLENABLEVERTEXATTRIBARRAYPROC)                                             \
    X(Finish, PFNGLFINISHPROC)                                                                               \
    X(FramebufferRenderbuffer, PFNGLFRAMEBUFFERRENDERBUFFERPROC)                                             \
    X(GenBuffers, PFNGLGENBUFFERSPROC)                                                                       \
    X(GenFramebuffers, PFNGLGENFRAMEBUFFERSPROC)                                                             \
    X(GenRenderbuffers, PFNGLGENRENDERBUFFERSPROC)                                                           \
    X(GenTextures, PFNGLGENTEXTURESPROC)                                                                     \
    X(GenVertexArrays, PFNGLGENVERTEXARRAYSPROC)                                                             \
    X(GetIntegerv, PFNGLGETINTEGERVPROC)                                                                     \
    X(GetProgramInfoLog, PFNGLGETPROGRAMINFOLOGPROC)                                                         \
    X(GetProgramiv, PFNGLGETPROGRAMIVPROC)                                                                   \
    X(GetShaderInfoLog, PFNGLGETSHADERINFOLOGPROC)                                                           \
    X(GetShaderiv, PFNGLGETSHADERIVPROC)                                                                     \
    X(GetString, PFNGLGETSTRINGPROC)                                                                         \
    X(GetUniformLocation, PFNGLGETUNIFORMLOCATIONPROC)                                                       \
    X(LinkProgram, PFNGLLINKPROGRAMPROC)                                                                     \
    X(PixelStorei, PFNGLPIXELSTOREIPROC)                                                                     \
    X(ReadPixels, PFNGLREADPIXELSPROC)                                                                       \
    X(RenderbufferStorage, PFNGLRENDERBUFFERSTORAGEPROC)                                                     \
    X(RenderbufferStorageMultisample, PFNGLRENDERBUFFERSTORAGEMULTISAMPLEPROC)                               \
    X(ShaderSource, PFNGLSHADERSOURCEPROC)                                                                   \
    X(TexImage2D, PFNGLTEXIMAGE2DPROC)                                                                       \
    X(TexParameteri, PFNGLTEXPARAMETERIPROC)                                                                 \
    X(TexSubImage2D, PFNGLTEXSUBIMAGE2DPROC)                                                                 \
    X(Uniform1i, PFNGLUNIFORM1IPROC)                                                                         \
    X(Uniform3f, PFNGLUNIFORM3FPROC)                                                                         \
    X(Uniform4f, PFNGLUNIFORM4FPROC)                                                                         \
    X(UniformMatrix4fv, PFNGLUNIFORMMATRIX4FVPROC)                                                           \
    X(UseProgram, PFNGLUSEPROGRAMPROC)                                                                       \
    X(VertexAttribDivisor, PFNGLVERTEXATTRIBDIVISORPROC)                                                     \
    X(VertexAttribIPointer, PFNGLVERTEXATTRIBIPOINTERPROC)                                                   \
    X(VertexAttribPointer, PFNGLVERTEXATTRIBPOINTERPROC)                                                     \
    X(Viewport, PFNGLVIEWPORTPROC)

/// The functions of one context. To be called while that context is current.
struct LuGLFunctions {
    using AnyFunction = void (*)();

    /// Gives a function by its full name, "glViewport"; null when there is none.
    using Loader = AnyFunction (*)(const char* name);

    /// False, with a message, when one is missing.
    bool load(Loader loader);

#define LU_GL_DECLARE(name, Type) Type name = nullptr;
    LU_GL_FUNCTIONS(LU_GL_DECLARE)
#undef LU_GL_DECLARE
};
