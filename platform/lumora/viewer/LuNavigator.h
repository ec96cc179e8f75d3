// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvGeometry.h"

class LuCamera;
class LuEvent;
class LuMouseButtonEvent;
class LuNode;
class LvBox3f;

/// Moves a camera about the point that it looks at, which lies on its line of sight at its focalDistance.
///
/// | event                                    | what the camera does                                   |
/// |------------------------------------------|--------------------------------------------------------|
/// | drag with button 1 or 3                  | orbits; half a turn for the height of the viewport     |
/// | drag with button 2, or 3 with Shift      | pans: the point under the pointer follows it           |
/// | wheel                                    | zooms towards the focus, and away from it              |
/// | Home                                     | shows the whole scene                                  |
///
/// A camera with numbers that make no sense is moved as one that sees what LvViewVolume makes of it; numbers
/// that are written to a camera are finite.
class LuNavigator {
public:
    /// Does what an event asks for; true when it was one of those above. `scene`, which may be null, is what
    /// Home shows.
    bool handleEvent(const LuEvent& event, LuCamera& camera, LuNode* scene, const LvViewportRegion& region);

    /// From the press of a button to its release. The events of the pointer belong to the navigator then,
    /// whatever it passes over.
    bool isDragging() const { return m_drag != NONE; }
    void endDrag() { m_drag = NONE; }

    /// Moves about the focus, in radians: to the right about the y axis of the scene, and up, at most until
    /// the camera looks straight down or up.
    static void orbit(LuCamera& camera, float right, float up);

    /// Moves so that what is seen at `from`, as far away as the focus, is seen at `to` afterwards. Positions
    /// are normalised: (0, 0) is the lower left corner of the viewport, (1, 1) the upper right one.
    static void pan(LuCamera& camera, float aspect, const LvVec2f& from, const LvVec2f& to);

    /// Makes the things at the focus `factor` times as large. Factors that aren't above 0 do nothing.
    static void zoom(LuCamera& camera, float factor);

    /// Sets the nearest and the farthest distance so that all of a box is seen that lies before the camera.
    /// An empty box changes nothing.
    static void fitDepth(LuCamera& camera, const LvBox3f& box);

private:
    enum Drag { NONE, ORBIT, PAN };

    bool handleButton(const LuMouseButtonEvent& event, LuCamera& camera);
    void drag(const LvVec2i32& position, LuCamera& camera, const LvViewportRegion& region);

    Drag m_drag = NONE;
    int m_button = 0; ///< That was pressed.
    LvVec2i32 m_position;
};
