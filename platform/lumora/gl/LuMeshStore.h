// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvVec.h"
#include "platform/lumora/gl/LuTexelTable.h"
#include "platform/lumora/nodes/LuTriangulation.h"

#include <array>
#include <cstdint>
#include <map>
#include <unordered_map>

class LuFontFace;

/// A run of vertices, three to a triangle, in the store's list.
struct LuMeshRange {
    std::uint32_t base = 0;
    std::uint32_t count = 0;
    std::uint32_t sizeClass = 0;
    LvVec3f center; ///< Of the box round it.
};

/// A mesh of any size: cut into runs that each fit the largest size class.
struct LuMesh {
    std::vector<LuMeshRange> ranges;
    int users = 0;
};

/// The vertices of all meshes: one list, from which shaders fetch by index. A vertex is one texel, its place
/// and its packed normal.
class LuMeshStore {
public:
    enum Shape { CUBE, SPHERE, CONE };
    enum GlyphPart { GLYPH_FRONT, GLYPH_SIDES, GLYPH_BACK };

    /// A draw call takes pieces of one size class, in number of vertices: no call takes smaller pieces than
    /// half of its size, but for the least.
    static constexpr int NUM_SIZE_CLASSES = 14;
    static std::uint32_t getClassSize(int sizeClass) {
        return sizeClass == 0 ? 6U : sizeClass == 1 ? 18U : 36U << (sizeClass - 2);
    }
    static int getSizeClass(std::uint32_t count);

    /// A shape of extent 1: the cube's edges, the sphere's radius, the cone's height and radius.
    const LuMeshRange& getShape(Shape shape);

    /// A character in em units, its origin at 0: the front at z 0, the back at z -1, the sides between them.
    /// Without vertices for a space. Kept as long as the store.
    const LuMeshRange& getGlyph(const LuFontFace& face, char32_t character, GlyphPart part) {
        const Glyph glyph{&face, character, part};
        const KnownGlyph& known = m_known[getKnownIndex(glyph)];
        return known.range && known.glyph == glyph ? *known.range : findGlyph(glyph);
    }

    /// The faces that two stamps stand for, those of the faces and of their points; null when they are not
    /// known yet. It comes with one more user.
    LuMesh* findFaces(std::uint64_t faces, std::uint64_t points);
    LuMesh* addFaces(std::uint64_t faces, std::uint64_t points, const std::vector<LuContour>& polygons);
    void release(LuMesh* mesh) { m_hasUnused |= --mesh->users == 0; }

    /// Forgets the faces that have no user.
    void removeUnused();

    const std::vector<LuTexel>& getVertices() const { return m_vertices; }
    std::vector<LuDirtyRanges::Range> takeDirtyVertices() { return m_dirty.take(m_vertices.size()); }
    bool isDirty() const { return !m_dirty.isEmpty(); }
    int getNumFaceMeshes() const { return static_cast<int>(m_faces.size()); }

private:
    struct Glyph {
        const LuFontFace* face = nullptr;
        char32_t character = 0;
        GlyphPart part = GLYPH_FRONT;
        friend bool operator==(const Glyph&, const Glyph&) = default;
    };
    struct GlyphHash {
        std::size_t operator()(const Glyph& glyph) const {
            return std::hash<const void*>()(glyph.face) ^
                   (static_cast<std::size_t>(glyph.character) * 4 + static_cast<std::size_t>(glyph.part)) *
                       0x9E3779B97F4A7C15U;
        }
    };

    /// A glyph that was asked for lately, so that most characters of a text are found without hashing.
    struct KnownGlyph {
        Glyph glyph;
        const LuMeshRange* range = nullptr;
    };
    static constexpr std::size_t NUM_KNOWN = 512; ///< All of ASCII in three parts, and more.
    static std::size_t getKnownIndex(const Glyph& glyph) {
        return (static_cast<std::size_t>(glyph.character) * 4 + glyph.part) % NUM_KNOWN;
    }

    const LuMeshRange& findGlyph(const Glyph& glyph);
    LuMeshRange addRange(const LuTexel* vertices, std::size_t count);

    std::vector<LuTexel> m_vertices;
    LuDirtyRanges m_dirty;
    std::vector<std::uint32_t> m_freeRanges[NUM_SIZE_CLASSES]; ///< Bases of gaps, by their size.
    LuMeshRange m_shapes[3];
    std::unordered_map<Glyph, LuMeshRange, GlyphHash> m_glyphs; ///< Its entries stay where they are.
    std::array<KnownGlyph, NUM_KNOWN> m_known;
    std::map<std::pair<std::uint64_t, std::uint64_t>, LuMesh> m_faces;
    bool m_hasUnused = false;
};
