// SPDX-License-Identifier: MIT
#pragma once

#include "platform/win32/WindowSystem.h"

#include <memory>

struct LuWinGL;

/// Where the toolkit's windows draw by OpenGL, one window at a time, and how the picture comes to a window.
/// A window of its own carries the OpenGL context: not every system shows what a child window's context
/// draws.
class LuWinCanvas {
public:
    using Maker = std::shared_ptr<LuWinCanvas> (*)();

    virtual ~LuWinCanvas() = default;

    /// The one that all windows share; it ends with the last who holds it. Null where nothing can be drawn,
    /// which has been reported at the first time.
    static std::shared_ptr<LuWinCanvas> getShared();

    /// Replaces how the canvas is made; a maker that gives null stands for a system without OpenGL. Null
    /// brings back the system's own. Who holds the canvas keeps it.
    static void setMaker(Maker maker);

    /// Starts a picture, sizes in pixels, of this colour. x goes to the right and y down from the upper left
    /// corner. False when that can't be, which has been reported at the first time.
    virtual bool begin(int width, int height, COLORREF background) = 0;

    /// Shows the picture in the upper left corner of `dc`.
    virtual void end(HDC dc) = 0;

private:
    friend struct LuWinGL;

    /// What differs from one window system to the other.
    static std::shared_ptr<LuWinCanvas> make();
    static const LuWinGL& getSystemGL();
};
