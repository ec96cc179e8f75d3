// SPDX-License-Identifier: MIT
#include "platform/lumora/gl/LuPieceList.h"

#include "platform/lumora/gl/LuMeshStore.h"

std::uint32_t LuPieceList::add() {
    m_pieces.emplace_back();
    m_places.emplace_back();
    if (m_keepsCenters)
        m_centers.emplace_back();
    return static_cast<std::uint32_t>(m_pieces.size() - 1);
}

void LuPieceList::set(std::uint32_t index, const LuNewPiece& piece, std::uint32_t record,
                      LuRenderChunk& owner, std::uint32_t place) {
    const LuMeshRange& range = *piece.range;
    m_pieces[index] = {record, range.base, range.count, piece.x, piece.y};
    m_places[index] = {&owner, place};
    if (m_keepsCenters)
        m_centers[index] = range.center + LvVec3f(piece.x, piece.y, 0);
    m_dirty.markOne(index);
}

void LuPieceList::remove(std::uint32_t index) {
    if (index + 1 < m_pieces.size()) {
        m_pieces[index] = m_pieces.back();
        m_places[index] = m_places.back();
        m_places[index].owner->pieces[m_places[index].place].index = index;
        if (m_keepsCenters)
            m_centers[index] = m_centers.back();
        m_dirty.markOne(index);
    }
    m_pieces.pop_back();
    m_places.pop_back();
    if (m_keepsCenters)
        m_centers.pop_back();
}
