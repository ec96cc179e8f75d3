// SPDX-License-Identifier: MIT
#include "platform/lumora/nodes/LuTriangulation.h"

// In this order: the first brings, on each target, what the second needs.
#include <GL/glcorearb.h>

#include <GL/glu.h>

#include <array>
#include <deque>
#include <memory>

namespace {

using Point = std::array<GLdouble, 3>;

/// What the tessellator works on. It keeps pointers to the points: a deque doesn't move them.
struct Work {
    std::deque<Point> points;
    std::vector<LvVec3f>* corners;
};

Work& workOf(void* data) { return *static_cast<Work*>(data); }

void APIENTRY takeVertex(void* vertex, void* data) {
    const Point& point = *static_cast<Point*>(vertex);
    workOf(data).corners->push_back(
        {static_cast<float>(point[0]), static_cast<float>(point[1]), static_cast<float>(point[2])});
}

void APIENTRY combine(GLdouble coordinates[3], void**, GLfloat*, void** result, void* data) {
    *result = &workOf(data).points.emplace_back(Point{coordinates[0], coordinates[1], coordinates[2]});
}

// Whoever asks for edge flags gets plain triangles, neither fans nor strips.
void APIENTRY ignoreEdgeFlag(GLboolean, void*) {}

template <class Function>
void setCallback(GLUtesselator* tessellator, GLenum which, Function function) {
    gluTessCallback(tessellator, which, reinterpret_cast<void(APIENTRY*)()>(function));
}

struct TessellatorDeleter {
    void operator()(GLUtesselator* tessellator) const { gluDeleteTess(tessellator); }
};

std::unique_ptr<GLUtesselator, TessellatorDeleter> makeTessellator() {
    std::unique_ptr<GLUtesselator, TessellatorDeleter> tessellator(gluNewTess());
    setCallback(tessellator.get(), GLU_TESS_VERTEX_DATA, &takeVertex);
    setCallback(tessellator.get(), GLU_TESS_COMBINE_DATA, &combine);
    setCallback(tessellator.get(), GLU_TESS_EDGE_FLAG_DATA, &ignoreEdgeFlag);
    gluTessProperty(tessellator.get(), GLU_TESS_WINDING_RULE, GLU_TESS_WINDING_NONZERO);
    return tessellator;
}

/// Twice the area that the polygon's shadows have, as a vector.
LvVec3f sumOfCrossProducts(const LuContour& points) {
    LvVec3f sum;
    for (std::size_t i = 1; i + 1 < points.size(); ++i)
        sum += (points[i] - points[0]).cross(points[i + 1] - points[0]);
    return sum;
}

/// True when a fan round the first point fills the polygon: every corner turns the same way, once round.
bool isConvex(const LuContour& points, const LvVec3f& normal) {
    const std::size_t count = points.size();
    for (std::size_t i = 0; i < count; ++i) {
        const LvVec3f here = points[(i + 1) % count] - points[i];
        const LvVec3f next = points[(i + 2) % count] - points[(i + 1) % count];
        if (here.cross(next).dot(normal) < 0)
            return false;
    }
    // A star turns the same way too, more than once round.
    for (std::size_t i = 1; i + 1 < count; ++i) {
        if ((points[i] - points[0]).cross(points[i + 1] - points[0]).dot(normal) < 0)
            return false;
    }
    return true;
}

} // namespace

LvVec3f luPolygonNormal(const LuContour& points) {
    const LvVec3f sum = sumOfCrossProducts(points);
    const float length = sum.length();
    return length > 0 && std::isfinite(length) ? sum * (1.0F / length) : LvVec3f();
}

void luTriangulatePolygon(const LuContour& points, std::vector<LvVec3f>& corners) {
    const LvVec3f normal = luPolygonNormal(points);
    if (normal == LvVec3f())
        return;
    if (!isConvex(points, normal)) {
        luTriangulateContours({points}, normal, corners);
        return;
    }
    for (std::size_t i = 1; i + 1 < points.size(); ++i)
        corners.insert(corners.end(), {points[0], points[i], points[i + 1]});
}

void luTriangulateContours(const std::vector<LuContour>& contours, const LvVec3f& normal,
                           std::vector<LvVec3f>& corners) {
    const auto tessellator = makeTessellator();
    Work work{{}, &corners};
    const std::size_t before = corners.size();
    gluTessNormal(tessellator.get(), normal.x, normal.y, normal.z);
    gluTessBeginPolygon(tessellator.get(), &work);
    for (const LuContour& contour : contours) {
        gluTessBeginContour(tessellator.get());
        for (const LvVec3f& point : contour) {
            Point& place = work.points.emplace_back(Point{point.x, point.y, point.z});
            gluTessVertex(tessellator.get(), place.data(), place.data());
        }
        gluTessEndContour(tessellator.get());
    }
    gluTessEndPolygon(tessellator.get());
    // An outline that the tessellator gives up on may leave an unfinished triangle.
    corners.resize(before + (corners.size() - before) / 3 * 3);
}
