// SPDX-License-Identifier: MIT
#include "platform/lumora/gl/LuMeshStore.h"

#include "platform/lumora/base/LvBox3f.h"
#include "platform/lumora/gl/LuMeshBuilder.h"

#include <algorithm>

int LuMeshStore::getSizeClass(std::uint32_t count) {
    int sizeClass = 0;
    while (sizeClass + 1 < NUM_SIZE_CLASSES && getClassSize(sizeClass) < count)
        ++sizeClass;
    return sizeClass;
}

LuMeshRange LuMeshStore::addRange(const LuTexel* vertices, std::size_t count) {
    LuMeshRange range;
    range.count = static_cast<std::uint32_t>(count);
    if (count == 0)
        return range;
    // A gap of the size class takes any run of it, so that faces that change all the time need no more room.
    const int sizeClass = getSizeClass(range.count);
    range.sizeClass = static_cast<std::uint32_t>(sizeClass);
    std::vector<std::uint32_t>& gaps = m_freeRanges[sizeClass];
    if (gaps.empty()) {
        range.base = static_cast<std::uint32_t>(m_vertices.size());
        m_vertices.resize(m_vertices.size() + getClassSize(sizeClass));
    } else {
        range.base = gaps.back();
        gaps.pop_back();
    }
    std::copy_n(vertices, count, m_vertices.begin() + range.base);
    m_dirty.mark(range.base, range.base + count);
    LvBox3f box;
    for (std::size_t i = 0; i < count; ++i)
        box.extendBy(LvVec3f(vertices[i].x, vertices[i].y, vertices[i].z));
    range.center = box.getCenter();
    return range;
}

const LuMeshRange& LuMeshStore::getShape(Shape shape) {
    LuMeshRange& range = m_shapes[shape];
    if (range.count == 0) {
        LuMeshBuilder builder;
        if (shape == CUBE)
            builder.addCube();
        else if (shape == SPHERE)
            builder.addSphere();
        else
            builder.addCone();
        range = addRange(builder.getVertices().data(), builder.getVertices().size());
    }
    return range;
}

const LuMeshRange& LuMeshStore::findGlyph(const Glyph& glyph) {
    const auto [place, isNew] = m_glyphs.try_emplace(glyph);
    if (isNew) {
        LuMeshBuilder builder;
        if (glyph.part == GLYPH_SIDES)
            builder.addGlyphSides(*glyph.face, glyph.character);
        else
            builder.addGlyph(*glyph.face, glyph.character, glyph.part == GLYPH_BACK);
        const std::size_t limit = getClassSize(NUM_SIZE_CLASSES - 1);
        place->second = addRange(builder.getVertices().data(), std::min(builder.getVertices().size(), limit));
    }
    m_known[getKnownIndex(glyph)] = {glyph, &place->second};
    return place->second;
}

LuMesh* LuMeshStore::findFaces(std::uint64_t faces, std::uint64_t points) {
    const auto place = m_faces.find({faces, points});
    if (place == m_faces.end())
        return nullptr;
    ++place->second.users;
    return &place->second;
}

LuMesh* LuMeshStore::addFaces(std::uint64_t faces, std::uint64_t points,
                              const std::vector<LuContour>& polygons) {
    LuMeshBuilder builder;
    for (const LuContour& polygon : polygons)
        builder.addPolygon(polygon);
    const std::vector<LuTexel>& vertices = builder.getVertices();
    LuMesh& mesh = m_faces[{faces, points}];
    const std::size_t limit = getClassSize(NUM_SIZE_CLASSES - 1);
    for (std::size_t begin = 0; begin < vertices.size(); begin += limit)
        mesh.ranges.push_back(addRange(&vertices[begin], std::min(limit, vertices.size() - begin)));
    ++mesh.users;
    return &mesh;
}

void LuMeshStore::removeUnused() {
    if (!m_hasUnused)
        return;
    m_hasUnused = false;
    std::erase_if(m_faces, [this](const auto& entry) {
        if (entry.second.users > 0)
            return false;
        for (const LuMeshRange& range : entry.second.ranges)
            m_freeRanges[range.sizeClass].push_back(range.base);
        return true;
    });
}
