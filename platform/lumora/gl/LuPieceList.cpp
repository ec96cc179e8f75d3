// SPDX-License-Identifier: MIT
#include "platform/lumora/gl/LuPieceList.h"

std::uint32_t LuPieceList::add(const LuNewPiece& piece, LuRenderChunk& owner, std::uint32_t place) {
    const auto index = static_cast<std::uint32_t>(m_pieces.size());
    m_pieces.emplace_back();
    m_centers.emplace_back();
    m_owners.emplace_back();
    replace(index, piece, owner, place);
    return index;
}

void LuPieceList::replace(std::uint32_t index, const LuNewPiece& piece, LuRenderChunk& owner,
                          std::uint32_t place) {
    m_pieces[index] = piece.piece;
    m_centers[index] = piece.center;
    m_owners[index] = {&owner, place};
    m_dirty.markOne(index);
}

void LuPieceList::remove(std::uint32_t index) {
    if (index + 1 < m_pieces.size()) {
        m_pieces[index] = m_pieces.back();
        m_centers[index] = m_centers.back();
        m_owners[index] = m_owners.back();
        m_owners[index].chunk->pieces[m_owners[index].place].index = index;
        m_dirty.markOne(index);
    }
    m_pieces.pop_back();
    m_centers.pop_back();
    m_owners.pop_back();
}
