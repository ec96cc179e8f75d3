// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/gl/LuDirtyRanges.h"
#include "platform/lumora/gl/LuRenderChunk.h"

/// Pieces that are drawn together, without a gap between them: the place of one that goes is taken by the
/// last. Each knows the chunk that it belongs to, which is told of its new place.
class LuPieceList {
public:
    /// The list is to know the middles of its pieces.
    void keepCenters() { m_keepsCenters = true; }

    std::size_t getSize() const { return m_pieces.size(); }
    const std::vector<LuPiece>& getPieces() const { return m_pieces; }

    /// The middle of a piece, in the space of its record.
    const LvVec3f& getCenter(std::size_t index) const { return m_centers[index]; }

    /// The index of a new piece, to be set.
    std::uint32_t add();

    /// `record` is the piece's entry in the table of records, `place` its number among the chunk's pieces.
    void set(std::uint32_t index, const LuNewPiece& piece, std::uint32_t record, LuRenderChunk& owner,
             std::uint32_t place);
    void remove(std::uint32_t index);

    std::vector<LuDirtyRanges::Range> takeDirty() { return m_dirty.take(m_pieces.size()); }

private:
    /// What the shaders don't read.
    struct Place {
        LuRenderChunk* owner = nullptr;
        std::uint32_t place = 0;
    };

    bool m_keepsCenters = false;
    std::vector<LuPiece> m_pieces;
    std::vector<Place> m_places;    ///< As many.
    std::vector<LvVec3f> m_centers; ///< As many, or none.
    LuDirtyRanges m_dirty;
};
