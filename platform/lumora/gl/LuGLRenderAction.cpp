// SPDX-License-Identifier: MIT
#include "platform/lumora/gl/LuGLRenderAction.h"

#include "platform/lumora/actions/LuGetBoundingBoxAction.h"
#include "platform/lumora/nodes/LuGroup.h"

#include <utility>

namespace {

/// A part with fewer nodes is collected again faster than it is looked up.
constexpr int SMALL_PART = 24;

} // namespace

LuGLRenderAction::LuGLRenderAction() : m_scene(new LuSeparator) { m_scene->ref(); }

LuGLRenderAction::~LuGLRenderAction() { m_scene->unref(); }

void LuGLRenderAction::visit(LuNode* node) {
    ++m_statistics.visitedNodes;
    ++m_summary.numNodes;
    node->GLRender(this);
}

void LuGLRenderAction::begin() {
    m_render = {};
    m_part = nullptr;
}

void LuGLRenderAction::apply(LuNode* scene) {
    if (m_scene->getChild(0) != scene) {
        m_scene->removeAllChildren();
        m_scene->addChild(scene);
    }
    m_statistics = {};
    if (m_sceneStamp == m_scene->getRenderCache().get())
        return;
    LuGetBoundingBoxAction boxAction;
    boxAction.apply(m_scene);
    m_box = boxAction.getBoundingBox();

    m_sceneStamp = m_scene->getRenderCache().get();
    m_summary = {};
    OldChunks old(m_root);
    m_old = &old;
    LuAction::apply(m_scene);
    m_old = nullptr;
    m_root.swap(m_content.children);
    m_content.children.clear();
    m_camera = m_summary.camera;
    releaseHeld();
    m_list.meshes.removeUnused();
}

void LuGLRenderAction::releaseHeld() {
    for (const std::uint32_t set : m_heldClipSets)
        m_list.clipSets.release(set);
    for (const std::uint32_t set : m_heldLightSets)
        m_list.lightSets.release(set);
    m_heldClipSets.clear();
    m_heldLightSets.clear();
}

LuRenderState LuGLRenderAction::getIncomingState() const {
    LuRenderState state = m_render;
    state.fontName = m_state.fontName;
    state.fontSize = m_state.fontSize;
    return state;
}

std::unique_ptr<LuRenderChunk>* LuGLRenderAction::OldChunks::find(const LuNode* node) {
    if (m_next < m_chunks.size() && m_chunks[m_next] && m_chunks[m_next]->node == node)
        return &m_chunks[m_next++];
    if (m_chunks.empty())
        return nullptr;
    if (!m_isIndexed)
        index();
    // Of several places of one node those that come first in the traversal are taken first.
    const auto [begin, end] = m_index.equal_range(node);
    std::size_t best = m_chunks.size();
    for (auto place = begin; place != end; ++place) {
        if (m_chunks[place->second] && place->second < best)
            best = place->second;
    }
    if (best == m_chunks.size())
        return nullptr;
    m_next = best + 1;
    return &m_chunks[best];
}

void LuGLRenderAction::OldChunks::index() {
    m_isIndexed = true;
    for (std::size_t i = 0; i < m_chunks.size(); ++i) {
        if (m_chunks[i])
            m_index.emplace(m_chunks[i]->node, i);
    }
}

bool LuGLRenderAction::keep(const LuNode* node, const LuRenderCache& cache) {
    if (!cache.isKept() || !m_old)
        return false;
    std::unique_ptr<LuRenderChunk>* const place = m_old->find(node);
    if (!place)
        return false;
    LuRenderChunk& chunk = **place;
    const LvMatrix world = getWorld();
    const bool hasMoved = !(chunk.world == world);
    if (chunk.stamp != cache.get() || !(chunk.state == getIncomingState()) || (hasMoved && chunk.usesWorld)) {
        m_found = place;
        return false;
    }
    if (hasMoved)
        m_list.move(chunk, world);
    ++(hasMoved ? m_statistics.movedParts : m_statistics.keptParts);
    chunk.incoming = m_state.model;
    m_summary.usesWorld |= chunk.usesWorld;
    addCamera(chunk.camera);
    m_content.children.push_back(std::move(*place));
    return true;
}

LuGLRenderAction::Part::Part(LuGLRenderAction& action, const LuNode* node, const LuRenderCache& cache)
    : m_action(action), m_node(node), m_cache(cache), m_stamp(cache.get()), m_above(action.m_part),
      m_state(action.m_state), m_render(action.m_render), m_summaryAbove(action.m_summary),
      m_mark(action.m_content),
      m_chunk(action.m_found ? std::move(*std::exchange(action.m_found, nullptr)) : nullptr),
      m_old(action.m_old) {
    action.m_part = this;
    action.m_state.model = {};
    action.m_summary = {};
    if (m_chunk)
        action.m_old = &m_ownOld.emplace(m_chunk->children);
}

const LvMatrix& LuGLRenderAction::Part::getWorld() {
    if (!m_isWorldKnown)
        m_world = m_above ? m_above->getWorld() * m_state.model : m_state.model;
    m_isWorldKnown = true;
    return m_world;
}

bool LuGLRenderAction::Part::isWorthKeeping(const Summary& summary) const {
    const std::size_t numChildren = m_action.m_content.children.size() - m_mark.children;
    if (!m_above || summary.numNodes >= SMALL_PART || numChildren > 1)
        return true;
    return numChildren > 0 && m_action.m_content.records.size() > m_mark.records;
}

void LuGLRenderAction::Part::leave() {
    const Summary summary = std::exchange(m_action.m_summary, m_summaryAbove);
    m_action.m_summary.usesWorld |= summary.usesWorld;
    m_action.addCamera(summary.camera);
    m_action.m_state = m_state;
    m_action.m_render = m_render;
    m_action.m_part = m_above;
    m_action.m_old = m_old;
    if (isWorthKeeping(summary)) {
        makeChunk(summary);
        return;
    }
    m_action.m_summary.numNodes += summary.numNodes;
    mergeWithAbove();
    if (m_chunk)
        m_action.m_list.release(*m_chunk);
}

void LuGLRenderAction::Part::makeChunk(const Summary& summary) {
    LuDrawList& list = m_action.m_list;
    const LuRenderState state = m_action.getIncomingState();
    list.clipSets.retain(state.clipSet);
    list.lightSets.retain(state.lightSet);
    if (m_chunk) {
        list.clipSets.release(m_chunk->state.clipSet);
        list.lightSets.release(m_chunk->state.lightSet);
    } else {
        m_chunk = std::make_unique<LuRenderChunk>();
    }
    m_chunk->node = m_node;
    m_chunk->stamp = m_stamp;
    m_chunk->state = state;
    m_chunk->incoming = m_state.model;
    m_chunk->world = getWorld();
    m_chunk->usesWorld = summary.usesWorld;
    m_chunk->camera = summary.camera;
    list.commit(*m_chunk, m_action.m_content, m_mark);
    m_cache.setKept();
    ++m_action.m_statistics.collectedParts;
    m_action.m_content.children.push_back(std::move(m_chunk));
}

/// Only the space changes: the content lies behind that of the part above already.
void LuGLRenderAction::Part::mergeWithAbove() {
    LuRenderContent& content = m_action.m_content;
    for (std::size_t i = m_mark.records; i < content.records.size(); ++i)
        content.records[i].local = m_state.model * content.records[i].local;
    for (std::size_t i = m_mark.children; i < content.children.size(); ++i)
        content.children[i]->incoming = m_state.model * content.children[i]->incoming;
}

void LuGLRenderAction::addCamera(const LuCamera* camera) {
    if (!m_summary.camera)
        m_summary.camera = camera;
}

void LuGLRenderAction::addClipPlane(const LvPlane& plane) {
    const LvMatrix toWorld = getWorld();
    // A plane is carried over by the inverse, transposed; a flattened space has no inside to cut.
    const glm::vec4 local(plane.getNormal().x, plane.getNormal().y, plane.getNormal().z,
                          -plane.getDistanceFromOrigin());
    const glm::vec4 world = local * toWorld.inverse().glm();
    const LvVec3f normal(world[0], world[1], world[2]);
    const float length = normal.length();
    m_summary.usesWorld = true;
    if (!(length > 0))
        return;
    m_render.clipSet = m_list.acquireClipSet(m_render.clipSet, normal * (1 / length), -world[3] / length);
    m_heldClipSets.push_back(m_render.clipSet);
}

void LuGLRenderAction::addLight(const LuLight& light) {
    const LvMatrix toWorld = getWorld();
    LuLight placed = light;
    placed.vector =
        light.isPoint ? toWorld.transformPoint(light.vector) : toWorld.transformDirection(light.vector);
    m_summary.usesWorld = true;
    m_render.lightSet = m_list.acquireLightSet(m_render.lightSet, placed);
    m_heldLightSets.push_back(m_render.lightSet);
}

std::uint32_t LuGLRenderAction::addRecord(const LvMatrix& local, std::uint32_t flags) {
    LuRenderRecord record;
    record.local = local;
    record.material = m_list.acquireMaterial(m_render.surface);
    record.clipSet = m_render.clipSet;
    record.lightSet = m_render.lightSet;
    m_list.clipSets.retain(record.clipSet);
    m_list.lightSets.retain(record.lightSet);
    record.flags = flags;
    record.isTransparent = m_render.surface.transparency > 0;
    m_content.records.push_back(record);
    return static_cast<std::uint32_t>(m_content.records.size() - 1);
}

void LuGLRenderAction::addPiece(std::uint32_t record, const LuMeshRange& range, float x, float y) {
    m_content.pieces.push_back({record, x, y, &range});
}

void LuGLRenderAction::addShape(LuMeshStore::Shape shape, const LvVec3f& scale) {
    LvMatrix local = m_state.model;
    local.scaleBy(scale);
    addPiece(addRecord(local, LuRenderRecord::SOLID), m_list.meshes.getShape(shape), 0, 0);
}

void LuGLRenderAction::addMesh(LuMesh* mesh) {
    m_content.meshes.push_back(mesh);
    if (mesh->ranges.empty())
        return;
    const std::uint32_t record = addRecord(m_state.model, 0);
    for (const LuMeshRange& range : mesh->ranges)
        addPiece(record, range, 0, 0);
}

void LuGLRenderAction::beginText(float size) {
    m_textRecord.reset();
    m_textSize = size;
}

void LuGLRenderAction::addGlyph(const LuFontFace& face, char32_t character, LuMeshStore::GlyphPart part,
                                float x, float y) {
    const LuMeshRange& range = m_list.meshes.getGlyph(face, character, part);
    if (range.count == 0)
        return;
    if (!m_textRecord) {
        LvMatrix local = m_state.model;
        local.scaleBy({m_textSize, m_textSize, 1});
        m_textRecord = addRecord(local, 0);
    }
    addPiece(*m_textRecord, range, x, y);
}
