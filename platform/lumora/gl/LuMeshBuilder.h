// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/gl/LuTexelTable.h"
#include "platform/lumora/nodes/LuTriangulation.h"

class LuFontFace;

/// Collects triangles in the form that the shaders fetch.
class LuMeshBuilder {
public:
    const std::vector<LuTexel>& getVertices() const { return m_vertices; }

    /// Shapes about the origin: edges of length 1, radius 1, height and radius 1.
    void addCube();
    void addSphere();
    void addCone();

    /// A flat polygon with the normal of its order of points.
    void addPolygon(const LuContour& points);

    /// A character's face in em units, at z 0 with the normal along z, or at z -1 and against it.
    void addGlyph(const LuFontFace& face, char32_t character, bool isBack);

    /// What stands between the two, from z 0 to -1.
    void addGlyphSides(const LuFontFace& face, char32_t character);

private:
    void addVertex(const LvVec3f& place, const LvVec3f& normal);
    void addQuad(const LvVec3f (&places)[4], const LvVec3f (&normals)[4]);

    std::vector<LuTexel> m_vertices;
};
