// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvMatrix.h"
#include "platform/lumora/gl/LuRenderState.h"

#include <memory>
#include <vector>

class LuCamera;
class LuNode;
struct LuMesh;
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

/// A piece while it is collected: its record is an index into the records collected with it.
struct LuNewPiece {
    LuPiece piece;
    std::uint32_t sizeClass = 0; ///< Of its run of vertices.
    LvVec3f center;              ///< Of the piece, in the space of its record.
};

/// What has been collected of a part of the scene.
struct LuRenderContent {
    std::vector<LuRenderRecord> records;
    std::vector<LuNewPiece> pieces;
    std::vector<LuMesh*> meshes; ///< Each with one user more.
    std::vector<std::unique_ptr<LuRenderChunk>> children;
    const LuCamera* camera = nullptr; ///< The first.
    int numNodes = 0;
    bool usesWorld =
        false; ///< It holds something that depends on its place in the world: a light, a clip plane.

    /// Keeps the memory for the next use.
    void clear() {
        records.clear();
        pieces.clear();
        meshes.clear();
        children.clear();
        camera = nullptr;
        numNodes = 0;
        usesWorld = false;
    }
};

/// A part of the scene that is kept as it is drawn, until it changes or is entered with another state.
///
/// It stands for a node at one place of the graph: a node that hangs in several has a chunk for each. Its
/// records and pieces hold slots of the draw list.
struct LuRenderChunk {
    struct Slot {
        std::uint32_t list;
        std::uint32_t index;
    };

    const LuNode* node = nullptr; ///< To compare with only: the stamp tells whether it is still the same.
    std::uint64_t stamp = 0;
    LuRenderState state; ///< What it was entered with.
    LvMatrix incoming;   ///< From its space to that of the chunk above.
    LvMatrix world;      ///< From its space to the world's.
    bool usesWorld = false;
    const LuCamera* camera = nullptr; ///< The first; it is there as long as the chunk is right.
    std::vector<LuRenderRecord> records;
    std::vector<Slot> pieces;
    std::vector<LuMesh*> meshes;
    std::vector<std::unique_ptr<LuRenderChunk>> children;
};
