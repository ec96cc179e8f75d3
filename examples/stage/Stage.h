// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvVec.h"

#include <string>

class LuCamera;
class LuNode;
class LuSeparator;
class LuTopLevelDialog;

/// What the examples with a panel in a scene share: the scene, a camera, and a window that shows both; or a
/// play file that is played to them.
///
/// The arguments of such a program: `[tilted] [--play FILE]`.
class Stage {
public:
    static constexpr int WIDTH = 800; ///< Pixels of the picture, and units of the scene from the front.
    static constexpr int HEIGHT = 500;

    Stage(const char* title, int argumentCount, char** arguments);
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    /// Puts a node of the program at a place; (0, 0, 0) is the middle of the picture. A panel hangs down to
    /// the right of its place.
    void add(LuNode* node, const LvVec3f& at);

    /// Shows the scene until the user closes it, or plays the file to it, which `panel` stands in. False,
    /// with a message, when that could not be done, or an argument was none.
    bool run(LuTopLevelDialog* panel);

private:
    bool play(LuTopLevelDialog* panel);

    std::string m_title;
    std::string m_playFile;
    std::string m_misunderstood; ///< An argument that is none.
    LuSeparator* m_scene;
    LuCamera* m_camera;
};
