// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvMatrix.h"
#include "platform/lumora/gl/LuDrawList.h"

#include <memory>

struct LuGLFunctions;

/// From where a scene is seen, and by which light that comes from there.
struct LuRenderView {
    LvMatrix view;       ///< From the world's space to the eye's, which looks along -z.
    LvMatrix projection; ///< From there to the cube of edges 2 that shows, as OpenGL has it.
    float headlight = 1; ///< Brightness of a light from the eye's direction; 0 switches it off.
    LvColor ambientLight{0.2F, 0.2F, 0.2F};

    /// From the front, parallel, one unit of the scene for a pixel. `topLeft` is seen in the picture's corner
    /// of that name; everything from `nearest` to `farthest` in z shows.
    static LuRenderView makeFront(int width, int height, const LvVec2f& topLeft, float nearest,
                                  float farthest);
};

/// Draws a draw list into the current framebuffer of an OpenGL context.
///
/// It keeps a copy of the list on the graphics card and sends what has changed since the last time. All
/// operations, the end of the object too, need the context to be current.
class LuGLDrawer {
public:
    /// `functions` stay the caller's and must live as long.
    explicit LuGLDrawer(const LuGLFunctions& functions);
    ~LuGLDrawer();
    LuGLDrawer(const LuGLDrawer&) = delete;
    LuGLDrawer& operator=(const LuGLDrawer&) = delete;

    /// The same list each time: what has changed is noted in it, for one drawer. Background and viewport are
    /// the caller's. False, with a message, when the driver refuses the program.
    bool draw(LuDrawList& list, const LuRenderView& view);

    /// Sends what has changed in the list to the graphics card, as draw does too: for who has time before.
    void send(LuDrawList& list);

    /// Calls of the last draw that draw something.
    int getDrawCalls() const { return m_drawCalls; }

    /// Bytes that the last draw or send sent to the graphics card.
    std::size_t getSentBytes() const { return m_sentBytes; }

private:
    class Program;
    struct Texture {
        unsigned name = 0;
        std::size_t rows = 0;
    };
    struct Buffer {
        unsigned array = 0;
        unsigned name = 0;
        std::size_t capacity = 0; ///< Pieces.
    };
    enum Table { VERTICES, RECORDS, MATERIALS, CLIP_SETS, LIGHT_SETS, NUM_TABLES };

    void updateTexture(Table table, const std::vector<LuTexel>& texels,
                       const std::vector<LuDirtyRanges::Range>& dirty);
    bool growTexture(Texture& texture, std::size_t rows);
    void sendTexels(const std::vector<LuTexel>& texels, std::size_t begin, std::size_t end);
    void updateBuffer(Buffer& buffer, const std::vector<LuPiece>& pieces,
                      const std::vector<LuDirtyRanges::Range>& dirty);
    void setPointers(std::size_t firstPiece);
    void setUniforms(const LuRenderView& view);
    void drawOpaque(const LuDrawList& list);
    void drawTransparent(const LuDrawList& list, const LuRenderView& view);
    void sortTransparent(const LuDrawList& list, const LvMatrix& view);

    const LuGLFunctions& m_gl;
    std::unique_ptr<Program> m_program;
    Texture m_textures[NUM_TABLES];
    Buffer m_buffers[LuDrawList::TRANSPARENT_PIECES + 1];
    std::vector<LuPiece> m_sorted; ///< The transparent pieces, the farthest first.
    std::uint64_t m_sortedChange = 0;
    LvMatrix m_sortedView;
    int m_drawCalls = 0;
    std::size_t m_sentBytes = 0;
    bool m_isTooLarge = false;
};
