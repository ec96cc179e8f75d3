// SPDX-License-Identifier: MIT
#include "platform/lumora/gl/LuDrawList.h"

#include <algorithm>
#include <iterator>

namespace {

/// Of a number that is infinite or none not even the product with 0 is 0.
bool isFinite(const glm::mat4& m) {
    return m[0] * 0.0F + m[1] * 0.0F + m[2] * 0.0F + m[3] * 0.0F == glm::vec4(0);
}

bool isMirror(const glm::mat4& m) {
    const LvVec3f x(m[0][0], m[0][1], m[0][2]);
    const LvVec3f y(m[1][0], m[1][1], m[1][2]);
    const LvVec3f z(m[2][0], m[2][1], m[2][2]);
    return x.cross(y).dot(z) < 0;
}

/// Moves what lies in `from` behind the first `count` to the end of `to`.
template <class Entry>
void moveBehind(std::vector<Entry>& from, std::size_t count, std::vector<Entry>& to) {
    const auto begin = from.begin() + static_cast<std::ptrdiff_t>(count);
    to.insert(to.end(), std::make_move_iterator(begin), std::make_move_iterator(from.end()));
    from.erase(begin, from.end());
}

} // namespace

LuDrawList::LuDrawList() {
    // Entry 0 of these is the empty set, and stays.
    clipSets.acquire({});
    lightSets.acquire({});
    pieces[TRANSPARENT_PIECES].keepCenters();
}

std::uint32_t LuDrawList::acquireMaterial(const LuSurface& surface) {
    const LuSurface& s = surface;
    return materials.acquire({LuTexel{s.diffuse.x, s.diffuse.y, s.diffuse.z, 1 - s.transparency},
                              LuTexel{s.ambient.x, s.ambient.y, s.ambient.z, 0},
                              LuTexel{s.specular.x, s.specular.y, s.specular.z, s.shininess * 128},
                              LuTexel{s.emissive.x, s.emissive.y, s.emissive.z, 0}});
}

std::uint32_t LuDrawList::acquireClipSet(std::uint32_t set, const LvVec3f& normal, float distance) {
    auto entry = clipSets.get(set);
    const auto count = static_cast<std::size_t>(entry[0].x);
    if (count < MAX_CLIP_PLANES) {
        entry[count + 1] = {normal.x, normal.y, normal.z, -distance};
        entry[0].x += 1;
    }
    return clipSets.acquire(entry);
}

std::uint32_t LuDrawList::acquireLightSet(std::uint32_t set, const LuLight& light) {
    auto entry = lightSets.get(set);
    const auto count = static_cast<std::size_t>(entry[0].x);
    if (count < MAX_LIGHTS) {
        entry[2 * count + 1] = {light.vector.x, light.vector.y, light.vector.z, light.isPoint ? 1.0F : 0.0F};
        entry[2 * count + 2] = {light.color.x, light.color.y, light.color.z, 0};
        entry[0].x += 1;
    }
    return lightSets.acquire(entry);
}

void LuDrawList::writeRecord(LuRenderRecord& record, const LvMatrix& world) {
    const glm::mat4 m = (world * record.local).glm();
    LuTexel* const texels = records.change(record.entry);
    // What stands nowhere is drawn as a point, which covers nothing.
    const bool isPlaced = isFinite(m);
    for (int row = 0; row < 3; ++row)
        texels[row] = isPlaced ? LuTexel{m[0][row], m[1][row], m[2][row], m[3][row]} : LuTexel{};
    const std::uint32_t flags = record.flags | (isMirror(m) ? LuRenderRecord::MIRRORED : 0);
    texels[3] = {static_cast<float>(record.material), static_cast<float>(record.clipSet),
                 static_cast<float>(record.lightSet), static_cast<float>(flags)};
    if (record.isTransparent)
        ++transparentChange;
}

void LuDrawList::releaseUsers(const LuRenderRecord& record) {
    materials.release(record.material);
    clipSets.release(record.clipSet);
    lightSets.release(record.lightSet);
}

void LuDrawList::commitRecords(LuRenderChunk& chunk, std::span<LuRenderRecord> content) {
    const std::size_t before = chunk.records.size();
    for (std::size_t i = 0; i < content.size(); ++i)
        content[i].entry = i < before ? chunk.records[i].entry : records.add();
    for (std::size_t i = content.size(); i < before; ++i)
        records.remove(chunk.records[i].entry);
    for (const LuRenderRecord& record : chunk.records)
        releaseUsers(record);
    chunk.records.assign(content.begin(), content.end());
    for (LuRenderRecord& record : chunk.records)
        writeRecord(record, chunk.world);
}

std::uint32_t LuDrawList::takePlace(std::uint32_t list) {
    std::vector<std::uint32_t>& reusable = m_reusable[list];
    if (reusable.empty())
        return pieces[list].add();
    const std::uint32_t index = reusable.back();
    reusable.pop_back();
    return index;
}

void LuDrawList::commitPieces(LuRenderChunk& chunk, std::span<const LuNewPiece> content,
                              std::size_t firstRecord) {
    // Places are used again where the sizes allow: then a new text changes what lies beside each other.
    LuRenderChunk::Slots before;
    before.swap(chunk.pieces);
    chunk.pieces.reserve(content.size());
    for (auto slot = before.rbegin(); slot != before.rend(); ++slot)
        m_reusable[slot->list].push_back(slot->index);
    for (const LuNewPiece& piece : content) {
        const LuRenderRecord& record = chunk.records[piece.record - firstRecord];
        const std::uint32_t list = record.isTransparent ? TRANSPARENT_PIECES : piece.range->sizeClass;
        const std::uint32_t index = takePlace(list);
        pieces[list].set(index, piece, record.entry, chunk, static_cast<std::uint32_t>(chunk.pieces.size()));
        chunk.pieces.push_back({list, index});
    }
    if (before.empty())
        return;
    before.clear();
    for (std::uint32_t list = 0; list <= TRANSPARENT_PIECES; ++list) {
        for (const std::uint32_t index : m_reusable[list])
            before.push_back({list, index});
        m_reusable[list].clear();
    }
    removePieces(before);
}

void LuDrawList::removePieces(LuRenderChunk::Slots& slots) {
    // From the end on: the piece that takes a place is then none of those that go.
    std::sort(slots.begin(), slots.end(),
              [](const auto& left, const auto& right) { return left.index > right.index; });
    for (const LuRenderChunk::Slot& slot : slots) {
        pieces[slot.list].remove(slot.index);
        if (slot.list == TRANSPARENT_PIECES)
            ++transparentChange;
    }
    slots.clear();
}

void LuDrawList::releaseMeshes(LuRenderChunk& chunk) {
    for (LuMesh* mesh : chunk.meshes)
        meshes.release(mesh);
    chunk.meshes.clear();
}

void LuDrawList::releaseChildren(LuRenderChunk& chunk) {
    for (const auto& child : chunk.children) {
        if (child)
            release(*child);
    }
    chunk.children.clear();
}

void LuDrawList::commit(LuRenderChunk& chunk, LuRenderContent& content, const LuRenderMark& mark) {
    commitRecords(chunk, std::span(content.records).subspan(mark.records));
    commitPieces(chunk, std::span<const LuNewPiece>(content.pieces).subspan(mark.pieces), mark.records);
    content.records.resize(mark.records);
    content.pieces.resize(mark.pieces);
    releaseMeshes(chunk);
    moveBehind(content.meshes, mark.meshes, chunk.meshes);
    releaseChildren(chunk);
    moveBehind(content.children, mark.children, chunk.children);
}

void LuDrawList::move(LuRenderChunk& chunk, const LvMatrix& world) {
    chunk.world = world;
    for (LuRenderRecord& record : chunk.records)
        writeRecord(record, world);
    for (const auto& child : chunk.children)
        move(*child, world * child->incoming);
}

void LuDrawList::release(LuRenderChunk& chunk) {
    removePieces(chunk.pieces);
    for (const LuRenderRecord& record : chunk.records) {
        records.remove(record.entry);
        releaseUsers(record);
    }
    chunk.records.clear();
    releaseMeshes(chunk);
    clipSets.release(chunk.state.clipSet);
    lightSets.release(chunk.state.lightSet);
    releaseChildren(chunk);
}
