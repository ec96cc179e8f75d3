// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/gl/LuMeshStore.h"
#include "platform/lumora/gl/LuPieceList.h"
#include "platform/lumora/gl/LuTexelTable.h"

#include <span>

/// A light in the world.
struct LuLight {
    bool isPoint = false;
    LvVec3f vector; ///< Where it stands, or the direction in which it shines.
    LvColor color;  ///< Times its intensity.
};

/// All that is drawn, in the form in which the shaders read it. It knows no OpenGL: LuGLDrawer carries what
/// has changed to the graphics card.
///
/// Pieces of about the same size are drawn by one call, whatever they show: their vertices, matrices,
/// materials, lights and clip planes come from tables. So the number of calls has a limit that no scene
/// exceeds, apart from transparent pieces, which must be drawn in their order.
class LuDrawList {
public:
    static constexpr std::size_t MAX_CLIP_PLANES = 7;
    static constexpr std::size_t MAX_LIGHTS = 7;

    /// Pieces by their size classes, and behind these the transparent ones.
    static constexpr std::uint32_t TRANSPARENT_PIECES = LuMeshStore::NUM_SIZE_CLASSES;

    LuDrawList();

    /// Entries for one more user.
    std::uint32_t acquireMaterial(const LuSurface& surface);

    /// A set with one plane or light more than `set`. A set that is full stays as it is.
    std::uint32_t acquireClipSet(std::uint32_t set, const LvVec3f& normal, float distance);
    std::uint32_t acquireLightSet(std::uint32_t set, const LuLight& light);

    /// Puts what was collected since the mark in the place of what the chunk had; the content then ends
    /// there.
    void commit(LuRenderChunk& chunk, LuRenderContent& content, const LuRenderMark& mark);

    /// Writes the places of a chunk, and of those below it, anew: it has moved.
    void move(LuRenderChunk& chunk, const LvMatrix& world);

    /// Gives up all that a chunk holds, and those below it.
    void release(LuRenderChunk& chunk);

    /// Gives up the records of content that is not committed.
    void releaseUsers(const LuRenderRecord& record);

    LuSharedTexelTable<4> materials;
    LuSharedTexelTable<8> clipSets;
    LuSharedTexelTable<16> lightSets;
    LuTexelTable records{4};
    LuMeshStore meshes;
    LuPieceList pieces[TRANSPARENT_PIECES + 1];

    /// Changes whenever anything transparent does.
    std::uint64_t transparentChange = 1;

private:
    void writeRecord(LuRenderRecord& record, const LvMatrix& world);
    void commitRecords(LuRenderChunk& chunk, std::span<LuRenderRecord> content);
    void commitPieces(LuRenderChunk& chunk, std::span<const LuNewPiece> content, std::size_t firstRecord);
    std::uint32_t takePlace(std::uint32_t list);
    void removePieces(LuRenderChunk::Slots& slots);
    void releaseMeshes(LuRenderChunk& chunk);
    void releaseChildren(LuRenderChunk& chunk);

    std::vector<std::uint32_t> m_reusable[TRANSPARENT_PIECES + 1]; ///< Empty between the calls.
};
