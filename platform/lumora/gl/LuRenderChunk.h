// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LuPool.h"
#include "platform/lumora/base/LvMatrix.h"
#include "platform/lumora/gl/LuRenderState.h"

#include <memory>
#include <vector>

class LuCamera;
class LuNode;
struct LuMesh;
struct LuMeshRange;
struct LuRenderChunk;

/// A piece as the shaders get it: a run of vertices, and the record that says where it stands and how it
/// looks.
struct LuPiece {
    std::uint32_t record = 0;
    std::uint32_t base = 0;
    std::uint32_t count = 0;
    float x = 0, y = 0; ///< Added to the vertices, before the record's matrix.
};

/// What one shape, or all characters of one text, have in common.
struct LuRenderRecord {
    enum Flag {
        SOLID = 1,   ///< Closed: its inside is never seen.
        MIRRORED = 2 ///< The matrix makes a right hand a left one.
    };

    LvMatrix local; ///< From the shape's space to that of its part of the scene.
    std::uint32_t material = 0, clipSet = 0, lightSet = 0; ///< Entries of tables, each with one user more.
    std::uint32_t flags = 0;
    bool isTransparent = false;
    std::uint32_t entry = 0; ///< In the table of records.
};

/// A piece while it is collected.
struct LuNewPiece {
    std::uint32_t record;     ///< Index into the records that have been collected.
    float x, y;               ///< As of LuPiece.
    const LuMeshRange* range; ///< The store's.
};

/// What has been collected and belongs to no chunk yet. What is collected last leaves first: a part of the
/// scene has all that has come since it was entered.
struct LuRenderContent {
    std::vector<LuRenderRecord> records;
    std::vector<LuNewPiece> pieces;
    std::vector<LuMesh*> meshes; ///< Each with one user more.
    std::vector<std::unique_ptr<LuRenderChunk>> children;
};

/// How much there is of each: the place in the content where a part of the scene begins.
struct LuRenderMark {
    explicit LuRenderMark(const LuRenderContent& content)
        : records(content.records.size()), pieces(content.pieces.size()), meshes(content.meshes.size()),
          children(content.children.size()) {}

    std::size_t records, pieces, meshes, children;
};

/// A part of the scene that is kept as it is drawn, until it changes or is entered with another state.
///
/// It stands for a node at one place of the graph: a node that hangs in several has a chunk for each. Its
/// records and pieces hold slots of the draw list.
struct LuRenderChunk : LuPooled {
    struct Slot {
        std::uint32_t list;
        std::uint32_t index;
    };
    using Slots = std::vector<Slot, LuPoolAllocator<Slot>>;

    const LuNode* node = nullptr; ///< To compare with only: the stamp tells whether it is still the same.
    std::uint64_t stamp = 0;
    LuRenderState state; ///< What it was entered with.
    LvMatrix incoming;   ///< From its space to that of the chunk above.
    LvMatrix world;      ///< From its space to the world's.
    bool usesWorld = false;
    const LuCamera* camera = nullptr; ///< The first; it is there as long as the chunk is right.
    std::vector<LuRenderRecord, LuPoolAllocator<LuRenderRecord>> records;
    Slots pieces;
    std::vector<LuMesh*> meshes;
    std::vector<std::unique_ptr<LuRenderChunk>> children;
};
