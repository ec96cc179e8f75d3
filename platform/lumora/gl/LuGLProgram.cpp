// SPDX-License-Identifier: MIT
#include "platform/lumora/gl/LuGLProgram.h"

#include "platform/lumora/base/LuDebugError.h"
#include "platform/lumora/gl/LuGLFunctions.h"
#include "platform/lumora/gl/LuShaderSource.h"

#include <cstring>
#include <string>

LuGLProgram::LuGLProgram(const LuGLFunctions& functions) : m_gl(functions) {
    const auto* const version = reinterpret_cast<const char*>(m_gl.GetString(GL_VERSION));
    const bool isEs = version && std::strncmp(version, "OpenGL ES", 9) == 0;
    const char* const first = isEs ? "#version 300 es\n" : "#version 330 core\n";
    m_name = m_gl.CreateProgram();
    if (!attach(GL_VERTEX_SHADER, first, LuShaderSource::VERTEX) ||
        !attach(GL_FRAGMENT_SHADER, first, LuShaderSource::FRAGMENT))
        return;
    m_gl.LinkProgram(m_name);
    GLint isLinked = 0;
    m_gl.GetProgramiv(m_name, GL_LINK_STATUS, &isLinked);
    m_isLinked = isLinked != 0;
    if (m_isLinked)
        return;
    std::string log(1024, '\0');
    m_gl.GetProgramInfoLog(m_name, static_cast<GLsizei>(log.size()), nullptr, log.data());
    LuDebugError::post("LuGLDrawer::draw", "The driver refuses our program: %s", log.c_str());
}

LuGLProgram::~LuGLProgram() { m_gl.DeleteProgram(m_name); }

bool LuGLProgram::attach(unsigned kind, const char* version, const char* source) {
    const GLuint shader = m_gl.CreateShader(kind);
    const char* const sources[] = {version, source};
    m_gl.ShaderSource(shader, 2, sources, nullptr);
    m_gl.CompileShader(shader);
    GLint isCompiled = 0;
    m_gl.GetShaderiv(shader, GL_COMPILE_STATUS, &isCompiled);
    if (isCompiled) {
        m_gl.AttachShader(m_name, shader);
    } else {
        std::string log(1024, '\0');
        m_gl.GetShaderInfoLog(shader, static_cast<GLsizei>(log.size()), nullptr, log.data());
        LuDebugError::post("LuGLDrawer::draw", "The driver refuses our shader: %s", log.c_str());
    }
    // It lives on in the program.
    m_gl.DeleteShader(shader);
    return isCompiled != 0;
}

int LuGLProgram::find(const char* variable) const { return m_gl.GetUniformLocation(m_name, variable); }
