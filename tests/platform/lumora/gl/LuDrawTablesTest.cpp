// SPDX-License-Identifier: MIT
// The tables and lists that are sent to the graphics card.
#include "platform/fonts/LuFontFace.h"
#include "platform/lumora/gl/LuMeshStore.h"
#include "platform/lumora/gl/LuTexelTable.h"
#include "tests/host/ToolkitTest.h"

#include <set>
#include <vector>

namespace {

class LuDrawTablesTest : public ToolkitTest {
protected:
    using Table = LuSharedTexelTable<1>;

    static Table::Entry makeEntry(float x) { return {LuTexel{x, 0, 0, 0}}; }

    static std::vector<std::size_t> takeEnds(LuDirtyRanges& dirty) {
        std::vector<std::size_t> ends;
        for (const LuDirtyRanges::Range& range : dirty.take(1000))
            ends.insert(ends.end(), {range.begin, range.end});
        return ends;
    }

    Table m_table;
    LuDirtyRanges m_dirty;
    LuMeshStore m_meshes;
};

TEST_F(LuDrawTablesTest, equalEntries_areOne) {
    const std::uint32_t first = m_table.acquire(makeEntry(1));
    const std::uint32_t second = m_table.acquire(makeEntry(2));
    EXPECT_NE(first, second);
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(m_table.acquire(makeEntry(1)), first);
        EXPECT_EQ(m_table.acquire(makeEntry(2)), second);
    }
    EXPECT_EQ(m_table.getTable().getCount(), 2U);
}

TEST_F(LuDrawTablesTest, manyEntries_areStillOneEach) {
    std::vector<std::uint32_t> indices;
    for (int i = 0; i < 20; ++i)
        indices.push_back(m_table.acquire(makeEntry(static_cast<float>(i))));
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(m_table.acquire(makeEntry(static_cast<float>(i))), indices[static_cast<std::size_t>(i)]);
    EXPECT_EQ(m_table.getTable().getCount(), 20U);
}

TEST_F(LuDrawTablesTest, entryThatHasGone_isNotFoundAgain) {
    m_table.release(m_table.acquire(makeEntry(1)));
    EXPECT_EQ(m_table.getTable().getCount(), 0U);
    const std::uint32_t other = m_table.acquire(makeEntry(2));
    const std::uint32_t again = m_table.acquire(makeEntry(1));
    EXPECT_NE(again, other);
    EXPECT_EQ(m_table.get(again)[0].x, 1);
    EXPECT_EQ(m_table.get(other)[0].x, 2);
    EXPECT_EQ(m_table.getTable().getCount(), 2U);
}

TEST_F(LuDrawTablesTest, users_areCountedHoweverAnEntryIsFound) {
    const std::uint32_t entry = m_table.acquire(makeEntry(1));
    for (int i = 2; i < 10; ++i)
        m_table.acquire(makeEntry(static_cast<float>(i)));
    m_table.acquire(makeEntry(1)); // by its contents
    m_table.acquire(makeEntry(1)); // as one of the last
    m_table.release(entry);
    m_table.release(entry);
    EXPECT_EQ(m_table.getTable().getCount(), 9U);
    m_table.release(entry);
    EXPECT_EQ(m_table.getTable().getCount(), 8U);
}

TEST_F(LuDrawTablesTest, dirtyRanges_growAndAreJoined) {
    m_dirty.mark(10, 12);
    m_dirty.mark(12, 14); // behind
    m_dirty.mark(11, 13); // within
    m_dirty.mark(500, 501);
    m_dirty.mark(100, 110);
    m_dirty.mark(105, 120); // over the end
    EXPECT_EQ(takeEnds(m_dirty), (std::vector<std::size_t>{10, 14, 100, 120, 500, 501}));
    EXPECT_TRUE(m_dirty.isEmpty());
}

TEST_F(LuDrawTablesTest, glyphs_areToldApartWhateverTheirNumbers) {
    const LuFontFace& face = *LuFontFace::find("Tahoma");
    std::vector<LuMeshRange> ranges;
    const auto collect = [&] {
        std::vector<std::uint32_t> bases;
        // 128 and 256 apart, and one beside them.
        for (const char32_t character : {U'A', U'\u00C1', U'\u0141', U'B'}) {
            for (const auto part :
                 {LuMeshStore::GLYPH_FRONT, LuMeshStore::GLYPH_SIDES, LuMeshStore::GLYPH_BACK})
                bases.push_back(m_meshes.getGlyph(face, character, part).base);
        }
        return bases;
    };
    const std::vector<std::uint32_t> bases = collect();
    EXPECT_EQ(std::set<std::uint32_t>(bases.begin(), bases.end()).size(), bases.size());
    const std::size_t vertices = m_meshes.getVertices().size();
    EXPECT_EQ(collect(), bases);
    EXPECT_EQ(m_meshes.getVertices().size(), vertices);
}

TEST_F(LuDrawTablesTest, glyphsOfTwoFaces_areToldApart) {
    const LuFontFace& tahoma = *LuFontFace::find("Tahoma");
    const LuFontFace& marlett = *LuFontFace::find("Marlett");
    ASSERT_NE(&tahoma, &marlett);
    const std::uint32_t first = m_meshes.getGlyph(tahoma, U'a', LuMeshStore::GLYPH_FRONT).base;
    const std::uint32_t second = m_meshes.getGlyph(marlett, U'a', LuMeshStore::GLYPH_FRONT).base;
    EXPECT_NE(first, second);
    EXPECT_EQ(m_meshes.getGlyph(tahoma, U'a', LuMeshStore::GLYPH_FRONT).base, first);
}

TEST_F(LuDrawTablesTest, range_knowsItsSizeClass) {
    const LuFontFace& face = *LuFontFace::find("Tahoma");
    for (const char32_t character : {U'l', U'g', U'%'}) {
        const LuMeshRange& range = m_meshes.getGlyph(face, character, LuMeshStore::GLYPH_FRONT);
        EXPECT_EQ(static_cast<int>(range.sizeClass), LuMeshStore::getSizeClass(range.count));
    }
}

} // namespace
