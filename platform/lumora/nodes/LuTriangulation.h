// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvVec.h"

#include <vector>

/// A flat polygon, or one contour of a shape with holes; the last point is followed by the first.
using LuContour = std::vector<LvVec3f>;

/// The normal of a polygon, of length 1: seen against it the points run anticlockwise. A polygon that isn't
/// flat gives the mean; one without an area gives (0, 0, 0).
LvVec3f luPolygonNormal(const LuContour& points);

/// Cuts a polygon, concave or crossing itself, into triangles: three points each are appended to `corners`,
/// in the order of the polygon. A polygon without an area gives none.
void luTriangulatePolygon(const LuContour& points, std::vector<LvVec3f>& corners);

/// The same for contours of which some may be holes: what a contour goes round twice in the same direction is
/// filled, what two go round in opposite directions is a hole. `normal` is that of their plane.
void luTriangulateContours(const std::vector<LuContour>& contours, const LvVec3f& normal,
                           std::vector<LvVec3f>& corners);
