// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/gl/LuDirtyRanges.h"
#include "platform/lumora/gl/LuRenderChunk.h"

/// Pieces that are drawn together, without a gap between them: the place of one that goes is taken by the
/// last. Each knows the chunk that it belongs to, which is told of its new place.
class LuPieceList {
public:
    std::size_t getSize() const { return m_pieces.size(); }
    const std::vector<LuPiece>& getPieces() const { return m_pieces; }

    /// The middle of a piece, in the space of its record.
    const LvVec3f& getCenter(std::size_t index) const { return m_places[index].center; }

    /// The new piece's index. `place` is its number among the chunk's pieces.
    std::uint32_t add(const LuNewPiece& piece, LuRenderChunk& owner, std::uint32_t place);
    void replace(std::uint32_t index, const LuNewPiece& piece, LuRenderChunk& owner, std::uint32_t place);
    void remove(std::uint32_t index);

    std::vector<LuDirtyRanges::Range> takeDirty() { return m_dirty.take(m_pieces.size()); }

private:
    /// What the shaders don't read.
    struct Place {
        LuRenderChunk* owner;
        std::uint32_t place;
        LvVec3f center;
    };

    std::vector<LuPiece> m_pieces;
    std::vector<Place> m_places; ///< As many.
    LuDirtyRanges m_dirty;
};
