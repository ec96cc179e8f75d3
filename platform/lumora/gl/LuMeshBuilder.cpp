// SPDX-License-Identifier: MIT
#include "platform/lumora/gl/LuMeshBuilder.h"

#include "platform/fonts/LuFontFace.h"

#include <cmath>
#include <numbers>

namespace {

// As fine as their size classes of vertices allow.
constexpr int SPHERE_SLICES = 28;
constexpr int SPHERE_STACKS = 14;
constexpr int CONE_SLICES = 48;

/// How far the lines that stand for a glyph's curve may be from it, in em units: half a pixel for a character
/// as high as a window of 500.
constexpr float GLYPH_TOLERANCE = 0.001F;

/// Sides that meet at a wider angle than this keep their edge; its cosine.
constexpr float SMOOTH_COSINE = 0.8F;

/// A direction in one number: the octahedron's two coordinates, 12 bits each. The axes come out exactly.
float packNormal(const LvVec3f& normal) {
    const float sum = std::abs(normal.x) + std::abs(normal.y) + std::abs(normal.z);
    if (!(sum > 0))
        return packNormal({0, 0, 1});
    float u = normal.x / sum;
    float v = normal.y / sum;
    if (normal.z < 0) {
        const float foldedU = std::copysign(1 - std::abs(v), u);
        v = std::copysign(1 - std::abs(u), v);
        u = foldedU;
    }
    const auto toGrid = [](float value) { return std::round((value * 0.5F + 0.5F) * 4094.0F); };
    return toGrid(u) * 4096.0F + toGrid(v);
}

float turn(int step, int steps) {
    return 2 * std::numbers::pi_v<float> * static_cast<float>(step) / static_cast<float>(steps);
}

LvVec3f onSphere(int slice, int stack) {
    const float around = turn(slice, SPHERE_SLICES);
    const float down = turn(stack, 2 * SPHERE_STACKS);
    return {std::sin(down) * std::sin(around), std::cos(down), std::sin(down) * std::cos(around)};
}

void appendCurve(LuContour& points, const LvVec3f& start, const LuOutlineSegment& curve) {
    const LvVec3f control(curve.controlX, curve.controlY, 0);
    const LvVec3f end(curve.x, curve.y, 0);
    const LvVec3f bend = start - control * 2 + end;
    // The curve bulges by a quarter of this; each halving of the steps quarters it.
    const float steps = std::ceil(std::sqrt(bend.length() * 0.25F / GLYPH_TOLERANCE));
    const int count = std::clamp(static_cast<int>(steps), 1, 32);
    for (int i = 1; i <= count; ++i) {
        const float t = static_cast<float>(i) / static_cast<float>(count);
        points.push_back(start * ((1 - t) * (1 - t)) + control * (2 * t * (1 - t)) + end * (t * t));
    }
}

LuContour flatten(const LuOutlineContour& outline) {
    LuContour points;
    LvVec3f current(outline.startX, outline.startY, 0);
    points.push_back(current);
    for (const LuOutlineSegment& segment : outline.segments) {
        if (segment.isCurve)
            appendCurve(points, current, segment);
        else
            points.push_back({segment.x, segment.y, 0});
        current = {segment.x, segment.y, 0};
    }
    const auto isRepeated = [](const LvVec3f& left, const LvVec3f& right) { return left == right; };
    points.erase(std::unique(points.begin(), points.end(), isRepeated), points.end());
    while (points.size() > 1 && points.front() == points.back())
        points.pop_back();
    return points;
}

std::vector<LuContour> getContours(const LuFontFace& face, char32_t character) {
    std::vector<LuContour> contours;
    for (const LuOutlineContour& outline : face.getGlyphOutline(character))
        contours.push_back(flatten(outline));
    return contours;
}

LvVec3f getSideNormal(const LvVec3f& from, const LvVec3f& to) {
    const LvVec3f along = to - from;
    const float length = along.length();
    return length > 0 ? LvVec3f(along.y / length, -along.x / length, 0) : LvVec3f(1, 0, 0);
}

/// The normal at the corner that two sides share: one for both where the outline is smooth.
LvVec3f joinNormals(const LvVec3f& own, const LvVec3f& other) {
    if (own.dot(other) < SMOOTH_COSINE)
        return own;
    const LvVec3f sum = own + other;
    return sum * (1.0F / sum.length());
}

} // namespace

void LuMeshBuilder::addVertex(const LvVec3f& place, const LvVec3f& normal) {
    m_vertices.push_back({place.x, place.y, place.z, packNormal(normal)});
}

void LuMeshBuilder::addQuad(const LvVec3f (&places)[4], const LvVec3f (&normals)[4]) {
    for (const int corner : {0, 1, 2, 0, 2, 3})
        addVertex(places[corner], normals[corner]);
}

void LuMeshBuilder::addCube() {
    constexpr float H = 0.5F;
    for (int axis = 0; axis < 3; ++axis) {
        for (const float side : {-1.0F, 1.0F}) {
            LvVec3f normal, right, up;
            normal[axis] = side;
            right[(axis + 1) % 3] = H;
            up[(axis + 2) % 3] = H * side;
            const LvVec3f middle = normal * H;
            addQuad({middle - right - up, middle + right - up, middle + right + up, middle - right + up},
                    {normal, normal, normal, normal});
        }
    }
}

void LuMeshBuilder::addSphere() {
    for (int stack = 0; stack < SPHERE_STACKS; ++stack) {
        for (int slice = 0; slice < SPHERE_SLICES; ++slice) {
            const LvVec3f a = onSphere(slice, stack);
            const LvVec3f b = onSphere(slice, stack + 1);
            const LvVec3f c = onSphere(slice + 1, stack + 1);
            const LvVec3f d = onSphere(slice + 1, stack);
            if (stack + 1 < SPHERE_STACKS) {
                for (const LvVec3f& point : {a, b, c})
                    addVertex(point, point);
            }
            if (stack > 0) {
                for (const LvVec3f& point : {a, c, d})
                    addVertex(point, point);
            }
        }
    }
}

void LuMeshBuilder::addCone() {
    // Of a cone as high as its radius the side rises at 45 degrees.
    const float slope = std::numbers::sqrt2_v<float> / 2;
    const LvVec3f tip(0, 0.5F, 0);
    const LvVec3f middle(0, -0.5F, 0);
    for (int slice = 0; slice < CONE_SLICES; ++slice) {
        const auto direction = [](float angle) { return LvVec3f(std::sin(angle), 0, std::cos(angle)); };
        const LvVec3f here = direction(turn(slice, CONE_SLICES));
        const LvVec3f next = direction(turn(slice + 1, CONE_SLICES));
        const LvVec3f between = here + next;
        const LvVec3f rise(0, slope, 0);
        addVertex(tip, between * (slope / between.length()) + rise);
        addVertex(middle + here, here * slope + rise);
        addVertex(middle + next, next * slope + rise);
        for (const LvVec3f& point : {middle, middle + next, middle + here})
            addVertex(point, {0, -1, 0});
    }
}

void LuMeshBuilder::addPolygon(const LuContour& points) {
    const LvVec3f normal = luPolygonNormal(points);
    std::vector<LvVec3f> corners;
    luTriangulatePolygon(points, corners);
    for (const LvVec3f& corner : corners)
        addVertex(corner, normal);
}

void LuMeshBuilder::addGlyph(const LuFontFace& face, char32_t character, bool isBack) {
    const LvVec3f normal(0, 0, isBack ? -1.0F : 1.0F);
    std::vector<LvVec3f> corners;
    luTriangulateContours(getContours(face, character), {0, 0, 1}, corners);
    for (const LvVec3f& corner : corners)
        addVertex({corner.x, corner.y, isBack ? -1.0F : 0.0F}, normal);
}

void LuMeshBuilder::addGlyphSides(const LuFontFace& face, char32_t character) {
    const LvVec3f down(0, 0, -1);
    for (const LuContour& points : getContours(face, character)) {
        const std::size_t count = points.size();
        for (std::size_t i = 0; i < count && count > 1; ++i) {
            const LvVec3f& from = points[i];
            const LvVec3f& to = points[(i + 1) % count];
            const LvVec3f own = getSideNormal(from, to);
            const LvVec3f first = joinNormals(own, getSideNormal(points[(i + count - 1) % count], from));
            const LvVec3f second = joinNormals(own, getSideNormal(to, points[(i + 2) % count]));
            addQuad({from, to, to + down, from + down}, {first, second, second, first});
        }
    }
}
