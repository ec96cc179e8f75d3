// SPDX-License-Identifier: MIT
#pragma once

struct LuGLFunctions;

/// The program that draws scenes. Its making and its end need the context to be current.
class LuGLProgram {
public:
    /// Compiles it. What the driver says to it, where it refuses, is posted.
    explicit LuGLProgram(const LuGLFunctions& functions);
    ~LuGLProgram();
    LuGLProgram(const LuGLProgram&) = delete;
    LuGLProgram& operator=(const LuGLProgram&) = delete;

    bool isUsable() const { return m_isLinked; }
    unsigned getName() const { return m_name; }

    /// Where a variable is; -1 for one that is not used.
    int find(const char* variable) const;

private:
    bool attach(unsigned kind, const char* version, const char* source);

    const LuGLFunctions& m_gl;
    unsigned m_name = 0;
    bool m_isLinked = false;
};
