// SPDX-License-Identifier: MIT
#include "platform/lumora/gl/LuGLDrawer.h"

#include "platform/lumora/base/LuDebugError.h"
#include "platform/lumora/gl/LuGLFunctions.h"
#include "platform/lumora/gl/LuGLProgram.h"

#include <glm/gtc/matrix_transform.hpp>

#include <algorithm>
#include <cstddef>

namespace {

/// Texels in a row of each table's texture; the shaders know it.
constexpr std::size_t ROW = 1024;

/// Rows that a texture has at least: it grows by sending all of it.
constexpr std::size_t LEAST_ROWS = 32;

} // namespace

/// Where the program's variables are.
class LuGLDrawer::Program : public LuGLProgram {
public:
    explicit Program(const LuGLFunctions& functions) : LuGLProgram(functions) {
        if (!isUsable())
            return;
        functions.UseProgram(getName());
        const char* const tables[] = {"vertexTable", "recordTable", "materialTable", "clipTable",
                                      "lightTable"};
        for (int i = 0; i < NUM_TABLES; ++i)
            functions.Uniform1i(find(tables[i]), i);
        viewProjection = find("viewProjection");
        eye = find("eye");
        headlight = find("headlight");
        ambientLight = find("ambientLight");
    }

    int viewProjection = -1, eye = -1, headlight = -1, ambientLight = -1;
};

LuRenderView LuRenderView::makeFront(int width, int height, const LvVec2f& topLeft, float nearest,
                                     float farthest) {
    LuRenderView view;
    view.view = LvMatrix::translation({-topLeft.x, -topLeft.y, -nearest - 1});
    view.projection = LvMatrix(glm::ortho(0.0F, static_cast<float>(width), static_cast<float>(-height), 0.0F,
                                          0.0F, std::max(nearest - farthest, 0.0F) + 2));
    return view;
}

LuGLDrawer::LuGLDrawer(const LuGLFunctions& functions) : m_gl(functions) {}

LuGLDrawer::~LuGLDrawer() {
    for (Texture& texture : m_textures)
        m_gl.DeleteTextures(1, &texture.name);
    for (Buffer& buffer : m_buffers) {
        m_gl.DeleteVertexArrays(1, &buffer.array);
        m_gl.DeleteBuffers(1, &buffer.name);
    }
}

bool LuGLDrawer::draw(LuDrawList& list, const LuRenderView& view) {
    if (!m_program)
        m_program = std::make_unique<Program>(m_gl);
    m_drawCalls = 0;
    if (!m_program->isUsable())
        return false;
    send(list);
    m_gl.UseProgram(m_program->getName());
    setUniforms(view);
    m_gl.Enable(GL_DEPTH_TEST);
    m_gl.DepthFunc(GL_LEQUAL);
    m_gl.Disable(GL_CULL_FACE);
    // The background decides how opaque the picture is.
    m_gl.ColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_FALSE);
    drawOpaque(list);
    drawTransparent(list, view);
    m_gl.ColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    m_gl.BindVertexArray(0);
    return true;
}

void LuGLDrawer::send(LuDrawList& list) {
    m_sentBytes = 0;
    const auto updateTable = [this](Table table, LuTexelTable& entries) {
        updateTexture(table, entries.getTexels(), entries.takeDirtyTexels());
    };
    updateTexture(VERTICES, list.meshes.getVertices(), list.meshes.takeDirtyVertices());
    updateTable(RECORDS, list.records);
    updateTable(MATERIALS, list.materials.getTable());
    updateTable(CLIP_SETS, list.clipSets.getTable());
    updateTable(LIGHT_SETS, list.lightSets.getTable());
    for (std::uint32_t i = 0; i < LuDrawList::TRANSPARENT_PIECES; ++i)
        updateBuffer(m_buffers[i], list.pieces[i].getPieces(), list.pieces[i].takeDirty());
}

void LuGLDrawer::updateTexture(Table table, const std::vector<LuTexel>& texels,
                               const std::vector<LuDirtyRanges::Range>& dirty) {
    Texture& texture = m_textures[table];
    m_gl.ActiveTexture(GL_TEXTURE0 + table);
    m_gl.BindTexture(GL_TEXTURE_2D, texture.name);
    if (dirty.empty())
        return;
    const std::size_t rows = (texels.size() + ROW - 1) / ROW;
    if (rows > texture.rows) {
        if (growTexture(texture, rows))
            sendTexels(texels, 0, texels.size());
        return;
    }
    for (const LuDirtyRanges::Range& range : dirty)
        sendTexels(texels, range.begin, range.end);
}

bool LuGLDrawer::growTexture(Texture& texture, std::size_t rows) {
    GLint limit = 0;
    m_gl.GetIntegerv(GL_MAX_TEXTURE_SIZE, &limit);
    if (rows > static_cast<std::size_t>(limit)) {
        if (!m_isTooLarge)
            LuDebugError::post("LuGLDrawer::draw", "The scene is larger than the graphics card takes.");
        m_isTooLarge = true;
        return false;
    }
    if (texture.name == 0) {
        m_gl.GenTextures(1, &texture.name);
        m_gl.BindTexture(GL_TEXTURE_2D, texture.name);
        m_gl.TexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
        m_gl.TexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    }
    texture.rows = std::min(std::max({rows, texture.rows * 2, LEAST_ROWS}), static_cast<std::size_t>(limit));
    m_gl.TexImage2D(GL_TEXTURE_2D, 0, GL_RGBA32F, ROW, static_cast<GLsizei>(texture.rows), 0, GL_RGBA,
                    GL_FLOAT, nullptr);
    return true;
}

void LuGLDrawer::sendTexels(const std::vector<LuTexel>& texels, std::size_t begin, std::size_t end) {
    while (begin < end) {
        // Whole rows go together, what is left of one by itself.
        const std::size_t column = begin % ROW;
        const std::size_t left = end - begin;
        const std::size_t width = column == 0 && left >= ROW ? ROW : std::min(left, ROW - column);
        const std::size_t height = width == ROW ? left / ROW : 1;
        m_gl.TexSubImage2D(GL_TEXTURE_2D, 0, static_cast<GLint>(column), static_cast<GLint>(begin / ROW),
                           static_cast<GLsizei>(width), static_cast<GLsizei>(height), GL_RGBA, GL_FLOAT,
                           &texels[begin]);
        m_sentBytes += width * height * sizeof(LuTexel);
        begin += width * height;
    }
}

void LuGLDrawer::setPointers(std::size_t firstPiece) {
    const auto at = [firstPiece](std::size_t member) {
        return reinterpret_cast<const void*>(firstPiece * sizeof(LuPiece) + member);
    };
    m_gl.VertexAttribIPointer(0, 3, GL_UNSIGNED_INT, sizeof(LuPiece), at(offsetof(LuPiece, record)));
    m_gl.VertexAttribPointer(1, 2, GL_FLOAT, GL_FALSE, sizeof(LuPiece), at(offsetof(LuPiece, x)));
}

void LuGLDrawer::updateBuffer(Buffer& buffer, const std::vector<LuPiece>& pieces,
                              const std::vector<LuDirtyRanges::Range>& dirty) {
    if (dirty.empty())
        return;
    if (buffer.name == 0) {
        m_gl.GenVertexArrays(1, &buffer.array);
        m_gl.GenBuffers(1, &buffer.name);
        m_gl.BindVertexArray(buffer.array);
        m_gl.BindBuffer(GL_ARRAY_BUFFER, buffer.name);
        setPointers(0);
        for (const GLuint attribute : {0U, 1U}) {
            m_gl.EnableVertexAttribArray(attribute);
            m_gl.VertexAttribDivisor(attribute, 1);
        }
    }
    m_gl.BindBuffer(GL_ARRAY_BUFFER, buffer.name);
    const auto send = [&](std::size_t begin, std::size_t end) {
        const std::size_t size = (end - begin) * sizeof(LuPiece);
        m_gl.BufferSubData(GL_ARRAY_BUFFER, static_cast<GLintptr>(begin * sizeof(LuPiece)),
                           static_cast<GLsizeiptr>(size), &pieces[begin]);
        m_sentBytes += size;
    };
    if (pieces.size() > buffer.capacity) {
        buffer.capacity = std::max(pieces.size(), buffer.capacity * 2);
        m_gl.BufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(buffer.capacity * sizeof(LuPiece)), nullptr,
                        GL_DYNAMIC_DRAW);
        send(0, pieces.size());
        return;
    }
    for (const LuDirtyRanges::Range& range : dirty)
        send(range.begin, range.end);
}

void LuGLDrawer::setUniforms(const LuRenderView& view) {
    const glm::mat4 viewProjection = view.projection.glm() * view.view.glm();
    m_gl.UniformMatrix4fv(m_program->viewProjection, 1, GL_FALSE, &viewProjection[0][0]);
    const LvMatrix toWorld = view.view.inverse();
    LvVec3f toEye = toWorld.transformDirection({0, 0, 1});
    const float length = toEye.length();
    toEye = length > 0 ? toEye * (1 / length) : LvVec3f(0, 0, 1);
    // A projection whose fourth row takes no z sees in parallel.
    const bool isParallel = view.projection.at(2, 3) == 0;
    const LvVec3f eye = isParallel ? toEye : toWorld.getTranslation();
    m_gl.Uniform4f(m_program->eye, eye.x, eye.y, eye.z, isParallel ? 0.0F : 1.0F);
    m_gl.Uniform4f(m_program->headlight, toEye.x, toEye.y, toEye.z, view.headlight);
    m_gl.Uniform3f(m_program->ambientLight, view.ambientLight.x, view.ambientLight.y, view.ambientLight.z);
}

void LuGLDrawer::drawOpaque(const LuDrawList& list) {
    m_gl.Disable(GL_BLEND);
    m_gl.DepthMask(GL_TRUE);
    // Edges made by clip planes are smoothed by it.
    m_gl.Enable(GL_SAMPLE_ALPHA_TO_COVERAGE);
    for (std::uint32_t i = 0; i < LuDrawList::TRANSPARENT_PIECES; ++i) {
        const std::size_t count = list.pieces[i].getSize();
        if (count == 0)
            continue;
        m_gl.BindVertexArray(m_buffers[i].array);
        m_gl.DrawArraysInstanced(GL_TRIANGLES, 0,
                                 static_cast<GLsizei>(LuMeshStore::getClassSize(static_cast<int>(i))),
                                 static_cast<GLsizei>(count));
        ++m_drawCalls;
    }
    m_gl.Disable(GL_SAMPLE_ALPHA_TO_COVERAGE);
}

void LuGLDrawer::sortTransparent(const LuDrawList& list, const LvMatrix& view) {
    const LuPieceList& pieces = list.pieces[LuDrawList::TRANSPARENT_PIECES];
    struct Placed {
        float depth;
        std::uint32_t index;
    };
    std::vector<Placed> order;
    for (std::uint32_t i = 0; i < pieces.getSize(); ++i) {
        const LuTexel* const rows = list.records.get(pieces.getPieces()[i].record);
        const LvVec3f& c = pieces.getCenter(i);
        const auto along = [&c](const LuTexel& row) {
            return row.x * c.x + row.y * c.y + row.z * c.z + row.w;
        };
        const LvVec3f place(along(rows[0]), along(rows[1]), along(rows[2]));
        order.push_back({view.transformPoint(place).z, i});
    }
    std::stable_sort(order.begin(), order.end(),
                     [](const Placed& left, const Placed& right) { return left.depth < right.depth; });
    m_sorted.clear();
    for (const Placed& placed : order)
        m_sorted.push_back(pieces.getPieces()[placed.index]);
    m_sortedChange = list.transparentChange;
    m_sortedView = view;
    LuDirtyRanges all;
    all.mark(0, m_sorted.size());
    updateBuffer(m_buffers[LuDrawList::TRANSPARENT_PIECES], m_sorted, all.take(m_sorted.size()));
}

void LuGLDrawer::drawTransparent(const LuDrawList& list, const LuRenderView& view) {
    if (m_sortedChange != list.transparentChange || !(m_sortedView == view.view))
        sortTransparent(list, view.view);
    if (m_sorted.empty())
        return;
    m_gl.Enable(GL_BLEND);
    m_gl.BlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    m_gl.DepthMask(GL_FALSE);
    m_gl.BindVertexArray(m_buffers[LuDrawList::TRANSPARENT_PIECES].array);
    m_gl.BindBuffer(GL_ARRAY_BUFFER, m_buffers[LuDrawList::TRANSPARENT_PIECES].name);
    for (std::size_t begin = 0; begin < m_sorted.size();) {
        const int sizeClass = LuMeshStore::getSizeClass(m_sorted[begin].count);
        std::size_t end = begin + 1;
        while (end < m_sorted.size() && LuMeshStore::getSizeClass(m_sorted[end].count) == sizeClass)
            ++end;
        setPointers(begin);
        m_gl.DrawArraysInstanced(GL_TRIANGLES, 0, static_cast<GLsizei>(LuMeshStore::getClassSize(sizeClass)),
                                 static_cast<GLsizei>(end - begin));
        ++m_drawCalls;
        begin = end;
    }
    m_gl.DepthMask(GL_TRUE);
    m_gl.Disable(GL_BLEND);
}
