// SPDX-License-Identifier: MIT
#include "platform/lumora/gl/LuPieceList.h"

std::uint32_t LuPieceList::add(const LuNewPiece& piece, LuRenderChunk& owner, std::uint32_t place) {
    const auto index = static_cast<std::uint32_t>(m_pieces.size());
    m_pieces.push_back(piece.piece);
    m_places.push_back({&owner, place, piece.center});
    m_dirty.markOne(index);
    return index;
}

void LuPieceList::replace(std::uint32_t index, const LuNewPiece& piece, LuRenderChunk& owner,
                          std::uint32_t place) {
    m_pieces[index] = piece.piece;
    m_places[index] = {&owner, place, piece.center};
    m_dirty.markOne(index);
}

void LuPieceList::remove(std::uint32_t index) {
    if (index + 1 < m_pieces.size()) {
        m_pieces[index] = m_pieces.back();
        m_places[index] = m_places.back();
        m_places[index].owner->pieces[m_places[index].place].index = index;
        m_dirty.markOne(index);
    }
    m_pieces.pop_back();
    m_places.pop_back();
}
