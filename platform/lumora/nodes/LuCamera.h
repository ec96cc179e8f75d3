// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvViewVolume.h"
#include "platform/lumora/nodes/LuNode.h"

#include <vector>

class LvBox3f;

/// Where the scene after it is seen from. An action with a viewport gets the view volume from it, fitted to
/// the viewport's shape.
class LuCamera : public LuNode {
public:
    static void initClass();
    static LuType getClassTypeId() { return s_class.classTypeId; }
    static LuFieldData** getFieldDataPtr() { return &s_class.fieldData; }

    LuSFVec3f position{LvVec3f(0, 0, 1)};
    LuSFRotation orientation;      ///< From looking along -z with y up.
    LuSFFloat aspectRatio{1.0F};   ///< Width by height, where there is no viewport to tell.
    LuSFFloat nearDistance{1.0F};  ///< Scene units from the position; what is nearer is not seen,
    LuSFFloat farDistance{10.0F};  ///< nor is what is farther.
    LuSFFloat focalDistance{5.0F}; ///< Where the point of interest lies, for who moves the camera.

    /// What is seen; with an aspect of 0 the field's.
    LvViewVolume getViewVolume(float aspect = 0) const;

    /// Moves the camera along its line of sight, and sets near, far and focal distance, so that all below
    /// `node`, in the node's own space, is seen as large as the region allows. `margin` is left free on each
    /// side, as a share of the whole. With nothing to see the camera stays as it is.
    void viewAll(LuNode* node, const LvViewportRegion& region, float margin = 0);
    void viewBox(const LvBox3f& box, float aspect, float margin = 0);

    /// Turns the camera to look at a point, with y up as far as that can be.
    void pointAt(const LvVec3f& target);

    void doAction(LuAction* action) override;
    void rayPick(LuRayPickAction* action) override;
    void GLRender(LuGLRenderAction* action) override;

protected:
    LuCamera() = default;

    /// Adds the fields above; called by each class's constructor.
    void addFields(LuNodeConstructor& constructor);

    virtual LvViewVolume makeViewVolume(float aspect) const = 0;

    /// Sets what the class sees by, so that points at `corners`, which are in the space of the camera's axes
    /// with the box's centre as origin, are all seen. The result is the distance to move back by, at least
    /// `leastDistance`.
    virtual float fit(const std::vector<LvVec3f>& corners, float aspect, float leastDistance) = 0;

private:
    static LuNodeClass s_class;
};

/// Far things look smaller.
class LuPerspectiveCamera : public LuCamera {
    LU_NODE_HEADER(LuPerspectiveCamera)
    LuPerspectiveCamera();
    LuSFFloat heightAngle; ///< From the bottom to the top of what is seen, in radians. Default pi / 4.

protected:
    LvViewVolume makeViewVolume(float aspect) const override;
    float fit(const std::vector<LvVec3f>& corners, float aspect, float leastDistance) override;
};

/// All things look as large as they are.
class LuOrthographicCamera : public LuCamera {
    LU_NODE_HEADER(LuOrthographicCamera)
    LuOrthographicCamera();
    LuSFFloat height{2.0F}; ///< Of what is seen, in scene units.

protected:
    LvViewVolume makeViewVolume(float aspect) const override;
    float fit(const std::vector<LvVec3f>& corners, float aspect, float leastDistance) override;
};
