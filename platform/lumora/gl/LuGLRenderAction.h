// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/actions/LuAction.h"
#include "platform/lumora/actions/LuRenderCache.h"
#include "platform/lumora/base/LvBox3f.h"
#include "platform/lumora/base/LvGeometry.h"
#include "platform/lumora/gl/LuDrawList.h"

#include <optional>
#include <unordered_map>

class LuSeparator;

/// Collects what a scene looks like in a draw list, and keeps it up to date: where nothing has changed since
/// the last apply nothing is traversed, and otherwise only the parts that have changed.
///
/// It needs no OpenGL; LuGLDrawer draws the list. Parts are the content of separators and kits. One that is
/// small is kept with the part round it.
class LuGLRenderAction : public LuAction {
public:
    LuGLRenderAction();
    ~LuGLRenderAction() override;

    /// Brings the draw list up to date with a scene. The scene is held with a reference until another one, or
    /// null, takes its place. As everywhere, components in it build themselves when their box is first asked
    /// for, which is done here.
    void apply(LuNode* scene);

    LuDrawList& getDrawList() { return m_list; }

    /// The box round the scene of the last apply; empty when there is nothing to see.
    const LvBox3f& getBoundingBox() const { return m_box; }

    /// The first camera in the scene of the last apply, or null.
    const LuCamera* getCamera() const { return m_camera; }

    /// What the last apply did.
    struct Statistics {
        int visitedNodes = 0;   ///< 0 when nothing had changed.
        int collectedParts = 0; ///< Made anew.
        int keptParts = 0;      ///< Met, and found unchanged.
        int movedParts = 0;     ///< Met, unchanged but for their place.
    };
    const Statistics& getStatistics() const { return m_statistics; }

    // What follows is for nodes, from their GLRender.

    /// The surface of the shapes to come.
    LuSurface& changeSurface() { return m_render.surface; }
    void setCoordinates(std::uint64_t stamp) { m_render.coordinates = stamp; }

    /// Only the first counts.
    void addCamera(const LuCamera* camera);

    /// In the current space. What lies on the side that the normal points away from is cut away.
    void addClipPlane(const LvPlane& plane);

    /// `vector` in the current space.
    void addLight(const LuLight& light);

    /// A shape of the store, stretched.
    void addShape(LuMeshStore::Shape shape, const LvVec3f& scale);

    /// Faces of the current coordinates; `makePolygons` is called where they are not known yet.
    template <class Function>
    void addFaces(const LuChangeStamp& stamp, Function makePolygons) {
        LuMesh* mesh = m_list.meshes.findFaces(stamp.get(), m_render.coordinates);
        addMesh(mesh ? mesh : m_list.meshes.addFaces(stamp.get(), m_render.coordinates, makePolygons()));
    }

    /// Starts a text, whose characters are measured in `size`; then adds its characters, their origins at
    /// (x, y) in em units.
    void beginText(float size);
    void addGlyph(const LuFontFace& face, char32_t character, LuMeshStore::GlyphPart part, float x, float y);

    /// Traverses the content of a separator or kit by `traverseContent`, unless its draws are still right.
    /// State and space are as before when it returns.
    template <class Function>
    void traverseCached(const LuNode* node, const LuRenderCache& cache, Function traverseContent) {
        if (keep(node, cache))
            return;
        Part part(*this, node, cache);
        traverseContent();
        part.leave();
    }

protected:
    void visit(LuNode* node) override;
    void begin() override;

private:
    /// The chunks that the last traversal left below a chunk, to be found again.
    class OldChunks {
    public:
        explicit OldChunks(std::vector<std::unique_ptr<LuRenderChunk>>& chunks) : m_chunks(chunks) {}
        /// The next chunk of the node; null when there is none left. It stays in its place until it is taken.
        std::unique_ptr<LuRenderChunk>* find(const LuNode* node);

    private:
        void index();

        std::vector<std::unique_ptr<LuRenderChunk>>& m_chunks;
        std::size_t m_next = 0;
        bool m_isIndexed = false;
        std::unordered_multimap<const LuNode*, std::size_t> m_index;
    };

    /// What is known of the content of a separator or kit, with the chunks in it.
    struct Summary {
        const LuCamera* camera = nullptr; ///< The first.
        int numNodes = 0;                 ///< Without those in chunks.
        bool usesWorld = false; ///< Something depends on its place in the world: a light, a clip plane.
    };

    /// A separator or kit whose content is being collected. All that comes behind its mark is its content.
    class Part {
    public:
        Part(LuGLRenderAction& action, const LuNode* node, const LuRenderCache& cache);
        void leave();

        /// From its space to the world's. Few parts are asked for it.
        const LvMatrix& getWorld();

    private:
        bool isWorthKeeping(const Summary& summary) const;
        void makeChunk(const Summary& summary);
        void mergeWithAbove();

        LuGLRenderAction& m_action;
        const LuNode* m_node;
        const LuRenderCache& m_cache;
        std::uint64_t m_stamp;
        Part* m_above;
        LuTraversalState m_state;
        LuRenderState m_render;
        Summary m_summaryAbove;
        LuRenderMark m_mark;
        LvMatrix m_world;
        bool m_isWorldKnown = false;
        std::unique_ptr<LuRenderChunk> m_chunk;
        std::optional<OldChunks> m_ownOld;
        OldChunks* m_old;
    };

    bool keep(const LuNode* node, const LuRenderCache& cache);

    /// From the current space to the world's.
    LvMatrix getWorld() { return m_part ? m_part->getWorld() * m_state.model : m_state.model; }
    LuRenderState getIncomingState() const;
    std::uint32_t addRecord(const LvMatrix& local, std::uint32_t flags);
    void addPiece(std::uint32_t record, const LuMeshRange& range, float x, float y);
    void addMesh(LuMesh* mesh);
    void releaseHeld();

    LuSeparator* m_scene; ///< Above the scene, so that a change of any scene shows in a stamp.
    std::uint64_t m_sceneStamp = 0;
    LuDrawList m_list;
    std::vector<std::unique_ptr<LuRenderChunk>> m_root; ///< One at most.
    LvBox3f m_box;
    const LuCamera* m_camera = nullptr;
    Statistics m_statistics;

    // During a traversal:
    LuRenderState m_render;
    Part* m_part = nullptr;    ///< The innermost.
    LuRenderContent m_content; ///< Of all parts that are open; the innermost's comes last.
    Summary m_summary;         ///< Of the innermost part.
    OldChunks* m_old = nullptr;
    std::unique_ptr<LuRenderChunk>* m_found = nullptr; ///< Of the node whose Part comes next.
    std::optional<std::uint32_t> m_textRecord;
    float m_textSize = 0;
    std::vector<std::uint32_t> m_heldClipSets, m_heldLightSets;
};
