// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LuChangeStamp.h"
#include "platform/lumora/nodes/LuNode.h"
#include "platform/lumora/nodes/LuTriangulation.h"

#include <limits>

class LuPickHit;
class LuTraversalState;
struct LuPickRay;
class LvBox3f;

/// A node with geometry.
class LuShape : public LuNode {
public:
    static void initClass();
    static LuType getClassTypeId() { return s_class.classTypeId; }
    static LuFieldData** getFieldDataPtr() { return &s_class.fieldData; }

    bool affectsState() const override { return false; }
    void getBoundingBox(LuGetBoundingBoxAction* action) override;
    void rayPick(LuRayPickAction* action) override;

    /// The shape's exact box in its own space, with what `state` gives it; empty when there is nothing.
    virtual void computeBBox(const LuTraversalState& state, LvBox3f& box) const = 0;

protected:
    LuShape() = default;

    /// Offers where a ray of the shape's own space meets its surface; here that of its box.
    virtual void intersect(const LuTraversalState& state, const LuPickRay& ray, LuPickHit& hit) const;

    /// The depth of separators at which the inherited setting that the box depends on was made; OWN when it
    /// depends on none.
    static constexpr int OWN = std::numeric_limits<int>::max();
    virtual int getInheritedDepth(const LuTraversalState&) const { return OWN; }

private:
    static LuNodeClass s_class;
};

/// A box about the origin.
class LuCube : public LuShape {
    LU_NODE_HEADER(LuCube)
    LuCube();
    LuSFFloat width{2.0F};
    LuSFFloat height{2.0F};
    LuSFFloat depth{2.0F};
    void computeBBox(const LuTraversalState& state, LvBox3f& box) const override;
    void GLRender(LuGLRenderAction* action) override;
};

/// A ball about the origin.
class LuSphere : public LuShape {
    LU_NODE_HEADER(LuSphere)
    LuSphere();
    LuSFFloat radius{1.0F};
    void computeBBox(const LuTraversalState& state, LvBox3f& box) const override;
    void GLRender(LuGLRenderAction* action) override;

protected:
    void intersect(const LuTraversalState& state, const LuPickRay& ray, LuPickHit& hit) const override;
};

/// A cone about the origin, its tip up in y.
class LuCone : public LuShape {
    LU_NODE_HEADER(LuCone)
    LuCone();
    LuSFFloat bottomRadius{1.0F};
    LuSFFloat height{2.0F};
    void computeBBox(const LuTraversalState& state, LvBox3f& box) const override;
    void GLRender(LuGLRenderAction* action) override;

protected:
    void intersect(const LuTraversalState& state, const LuPickRay& ray, LuPickHit& hit) const override;
};

/// Polygons of consecutive points of the current LuCoordinate3.
class LuFaceSet : public LuShape {
    LU_NODE_HEADER(LuFaceSet)
    LuFaceSet();
    LuSFInt32 startIndex{0}; ///< The first point.
    LuMFInt32 numVertices;   ///< Points of each polygon; -1 takes all that are left.
    void computeBBox(const LuTraversalState& state, LvBox3f& box) const override;
    void GLRender(LuGLRenderAction* action) override;

    /// The points of each polygon that has an area.
    std::vector<LuContour> getPolygons(const LuTraversalState& state) const;

protected:
    void intersect(const LuTraversalState& state, const LuPickRay& ray, LuPickHit& hit) const override;
    int getInheritedDepth(const LuTraversalState& state) const override;
    void invalidateCaches() override { m_stamp.invalidate(); }

private:
    LuChangeStamp m_stamp;
};

/// Polygons of points of the current LuCoordinate3, by index, each ended by -1. Indices that name no point
/// are left out.
class LuIndexedFaceSet : public LuShape {
    LU_NODE_HEADER(LuIndexedFaceSet)
    LuIndexedFaceSet();
    LuMFInt32 coordIndex;
    void computeBBox(const LuTraversalState& state, LvBox3f& box) const override;
    void GLRender(LuGLRenderAction* action) override;

    /// The points of each polygon that has an area.
    std::vector<LuContour> getPolygons(const LuTraversalState& state) const;

protected:
    void intersect(const LuTraversalState& state, const LuPickRay& ray, LuPickHit& hit) const override;
    int getInheritedDepth(const LuTraversalState& state) const override;
    void invalidateCaches() override { m_stamp.invalidate(); }

private:
    LuChangeStamp m_stamp;
};
