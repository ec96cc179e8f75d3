// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/actions/LuAction.h"
#include "platform/lumora/actions/LuBoundingBoxCache.h"
#include "platform/lumora/actions/LuGetBoundingBoxAction.h"
#include "platform/lumora/actions/LuPickRay.h"
#include "platform/lumora/actions/LuPickedPoint.h"

#include <optional>

/// Finds the shapes on a ray: that under a position of the viewport, as the camera in the scene sees it, or
/// any ray of the scene. LuPickStyle, LuSwitch and LuClipPlane are obeyed. Shapes are met from both sides;
/// each gives the point where the ray meets it first.
///
/// Separators and kits are left out with all that is below as soon as the ray misses their boxes, or, when
/// only the nearest point is wanted, meets them behind it.
class LuRayPickAction : public LuAction {
public:
    explicit LuRayPickAction(const LvViewportRegion& region = {});
    ~LuRayPickAction() override;

    const LvViewportRegion& getViewportRegion() const { return m_region; }
    void setViewportRegion(const LvViewportRegion& region) { m_region = region; }
    const LvViewportRegion* getViewport() const override { return &m_region; }

    /// What to pick under. The last of these calls holds, for any number of applies.
    ///
    /// A pixel counts from (0, 0) in the viewport's lower left corner; its middle is taken. Normalised
    /// positions run from (0, 0) to (1, 1). Both pick nothing before the scene's first camera.
    void setPoint(const LvVec2i32& pixel) { setNormalizedPoint(m_region.getNormalizedPosition(pixel)); }
    void setNormalizedPoint(const LvVec2f& position);

    /// A line in the space of the node that the action is applied to; from and up to distances from its
    /// position, in scene units. Cameras are not looked at. Without a direction nothing is picked.
    void setRay(const LvLine& line, double nearDistance = 0,
                double farDistance = std::numeric_limits<double>::infinity());

    /// What positions refer to until there is a camera: for a part of a scene that has none.
    void setViewVolume(const LvViewVolume& volume) { m_startVolume = volume; }

    /// Whether all points are wanted, or only the nearest, which is the start.
    void setPickAll(bool isPickAll) { m_isPickAll = isPickAll; }
    bool isPickAll() const { return m_isPickAll; }

    /// What the last apply has found. The nearest point is the first; null for an index outside the list. Of
    /// points equally far the one met first comes first.
    int getPickedPointsListLength() const { return static_cast<int>(m_points.size()); }
    LuPickedPoint* getPickedPoint(int index = 0);

    /// The same points in the order in which they were met.
    LuPickedPoint* getUnsortedPickedPoint(int index);

    // For nodes, while they are traversed:

    /// The ray in the current space. Null when there is none yet, or the space has no extent on some axis.
    const LuPickRay* getObjectRay();

    /// What a shape offers its meetings with the ray to, and how it then hands the result over.
    LuPickHit makeHit() const { return {m_nearest, m_farthest, getLimit()}; }
    void addHit(const LuPickHit& hit);

    /// Grows with each hit: a node that finds it changed has a new point below it.
    int getHitCount() const { return m_hitCount; }

    /// A camera sees the scene from now on.
    void look(const LvViewVolume& volume);

    /// From now on only what lies on the side of the plane's normal counts. The plane is in the current
    /// space.
    void clip(const LvPlane& plane);

    /// Traverses what is below a node by `traverseContent`, unless the ray misses the box round it. `cache`
    /// holds that box; where it doesn't, the box is measured. State and space are as before afterwards.
    template <class Function>
    void traverseCulled(LuNode* node, const LuBoundingBoxCache& cache, Function traverseContent) {
        const bool wasMeasured = m_isMeasured;
        if (mayMeet(node, cache)) {
            const Saved saved{m_state, m_worldRay, m_hasRay, m_nearest, m_farthest};
            traverseContent();
            bringBack(saved);
        }
        m_isMeasured = wasMeasured;
    }

protected:
    void visit(LuNode* node) override;
    void begin() override;

private:
    struct Saved {
        LuTraversalState state;
        LuPickRay ray;
        bool hasRay;
        double nearest, farthest;
    };

    double getLimit() const;
    bool mayMeet(LuNode* node, const LuBoundingBoxCache& cache);
    bool mayMeet(const LvBox3f& box);
    void bringBack(const Saved& saved);
    void startRay(const LvLine& line, double nearest, double farthest);
    bool computeObjectRay();

    LvViewportRegion m_region;
    std::optional<LvVec2f> m_position{LvVec2f(0.5F, 0.5F)};
    LvLine m_line;
    double m_lineNear = 0;
    double m_lineFar = 0;
    std::optional<LvViewVolume> m_startVolume;
    bool m_isPickAll = false;

    LuPickRay m_worldRay;
    bool m_hasRay = false;
    double m_nearest = 0; ///< The part of the ray that counts.
    double m_farthest = 0;

    /// The ray in the space of m_objectModel.
    LuPickRay m_objectRay;
    glm::dvec3 m_objectInverse{0, 0, 0}; ///< One divided by its direction, of each axis.
    LvMatrix m_objectModel;
    bool m_isObjectRayKnown = false;
    bool m_hasObjectRay = false;

    /// True below a node whose box was measured in this walk: what has no box in its cache then can't keep
    /// one.
    bool m_isMeasured = false;
    LuGetBoundingBoxAction m_boxAction;

    std::vector<std::unique_ptr<LuPickedPoint>> m_points;
    std::vector<LuPickedPoint*> m_sorted;
    int m_hitCount = 0;
};
