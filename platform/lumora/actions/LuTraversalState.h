// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvMatrix.h"
#include "platform/lumora/base/LvName.h"
#include "platform/lumora/base/LvViewVolume.h"

class LuClipPlane;
class LuCoordinate3;
class LuMaterial;

/// What the current camera sees. There is none before the first camera, nor in an action without a viewport.
/// The volume itself stays with the action (LuAction::keepViewVolume): every separator saves this element,
/// and hardly one has a camera in it.
class LuViewVolumeElement {
public:
    bool isSet() const { return m_volume != nullptr; }

    /// To be asked for only where one is set.
    const LvViewVolume& get() const { return *m_volume; }

    /// The volume must live as long as the states that have it.
    void set(const LvViewVolume& volume) { m_volume = &volume; }

private:
    const LvViewVolume* m_volume = nullptr;
};

/// What the nodes of a traversal hand on to those after them. Plain data: separators save it as a whole and
/// bring it back. The nodes pointed to live longer than the traversal.
class LuTraversalState {
public:
    inline static const LvName DEFAULT_FONT{"Tahoma"};

    LvMatrix model; ///< From the current node's space to that of the innermost separator with a cache, or the
                    ///< root's where the action keeps no caches.

    LuViewVolumeElement viewVolume;

    LvName fontName = DEFAULT_FONT;
    float fontSize = 10.0F; ///< Scene units.
    const LuCoordinate3* coordinates = nullptr;
    int pickStyle = 0; ///< LuPickStyle::Style.

    /// Depth of separators at which the font and the coordinates were set: a box that uses what was set
    /// outside of a separator can't be kept in it.
    int fontDepth = 0;
    int coordinateDepth = 0;
};
