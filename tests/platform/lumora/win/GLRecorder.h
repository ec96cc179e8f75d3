// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/win/LuWinGL.h"

#include <cmath>
#include <string>
#include <vector>

/// Takes the place of the operations that windows draw with, as long as it lives, and writes down their
/// calls: "color 255 0 0", "vertex 3 4".
class GLRecorder {
public:
    GLRecorder() {
        s_calls = &m_calls;
        static constexpr LuWinGL OPERATIONS = {
            [](unsigned mode) { write("begin", {static_cast<int>(mode)}); },
            [] { write("end", {}); },
            [](float red, float green, float blue) { writeColor("color3f", red, green, blue); },
            [](const float* color) { writeColor("color3fv", color[0], color[1], color[2]); },
            [](short x, short y) {
                write("vertex", {x, y});
            },
            [](short x1, short y1, short x2, short y2) {
                write("rects", {x1, y1, x2, y2});
            },
            [](unsigned mode) { write("shadeModel", {static_cast<int>(mode)}); },
            [](unsigned mask) { write("pushAttrib", {static_cast<int>(mask)}); },
            [] { write("popAttrib", {}); },
            [] { write("flush", {}); }};
        LuWinGL::set(&OPERATIONS);
    }
    ~GLRecorder() { LuWinGL::set(nullptr); }
    GLRecorder(const GLRecorder&) = delete;
    GLRecorder& operator=(const GLRecorder&) = delete;

    /// The calls since the last time.
    std::vector<std::string> take() {
        std::vector<std::string> calls;
        calls.swap(m_calls);
        return calls;
    }

private:
    static void write(const char* name, const std::vector<int>& numbers) {
        std::string call = name;
        for (const int number : numbers)
            call += " " + std::to_string(number);
        s_calls->push_back(call);
    }
    static void writeColor(const char* name, float red, float green, float blue) {
        const auto getByte = [](float part) { return static_cast<int>(std::lround(part * 255)); };
        write(name, {getByte(red), getByte(green), getByte(blue)});
    }

    inline static std::vector<std::string>* s_calls = nullptr;
    std::vector<std::string> m_calls;
};
