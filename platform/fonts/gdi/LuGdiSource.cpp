// SPDX-License-Identifier: MIT
#include "platform/fonts/gdi/LuGdiSource.h"

#include "platform/fonts/LuOutlineBuilder.h"
#include "platform/lumora/base/LvString.h"

#include <algorithm>
#include <cstring>
#include <memory>

namespace {

constexpr int MAX_PIXELS = 32767;

LuOutlineBuilder::Point pointOf(const POINTFX& point) {
    const auto value = [](FIXED number) { return number.value + number.fract / 65536.0; };
    return {value(point.x), value(point.y)};
}

/// One run of points of a contour, of the three kinds that GDI knows.
void addCurve(LuOutlineBuilder& builder, WORD type, const POINTFX* points, int count) {
    if (type == TT_PRIM_LINE) {
        for (int i = 0; i < count; ++i)
            builder.lineTo(pointOf(points[i]));
    } else if (type == TT_PRIM_QSPLINE) {
        // All but the last are control points; between two of them lies a point of the curve.
        for (int i = 0; i + 1 < count; ++i) {
            const auto control = pointOf(points[i]);
            const auto next = pointOf(points[i + 1]);
            const bool isLast = i + 2 == count;
            builder.curveTo(
                control,
                isLast ? next : LuOutlineBuilder::Point{(control.x + next.x) / 2, (control.y + next.y) / 2});
        }
    } else if (type == TT_PRIM_CSPLINE) {
        for (int i = 0; i + 2 < count; i += 3)
            builder.cubicTo(pointOf(points[i]), pointOf(points[i + 1]), pointOf(points[i + 2]));
    }
}

/// Reads what GetGlyphOutline wrote: contours of a header and runs of points.
void addContours(LuOutlineBuilder& builder, const char* data, std::size_t size) {
    std::size_t position = 0;
    while (position + sizeof(TTPOLYGONHEADER) <= size) {
        const auto* header = reinterpret_cast<const TTPOLYGONHEADER*>(data + position);
        if (header->cb < sizeof(TTPOLYGONHEADER) || header->cb > size - position)
            break;
        builder.moveTo(pointOf(header->pfxStart));
        const std::size_t end = position + header->cb;
        position += sizeof(TTPOLYGONHEADER);
        while (position + offsetof(TTPOLYCURVE, apfx) <= end) {
            const auto* curve = reinterpret_cast<const TTPOLYCURVE*>(data + position);
            const std::size_t length = offsetof(TTPOLYCURVE, apfx) + curve->cpfx * sizeof(POINTFX);
            if (length > end - position)
                break;
            addCurve(builder, curve->wType, curve->apfx, curve->cpfx);
            position += length;
        }
        position = end;
    }
    builder.close();
}

std::uint32_t bigEndian(const std::vector<unsigned char>& bytes, std::size_t position, std::size_t count) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < count; ++i)
        value = (value << 8) | (position + i < bytes.size() ? bytes[position + i] : 0u);
    return value;
}

/// GDI names a table by its letters in the order of memory.
DWORD tableName(const char (&letters)[5]) {
    DWORD name = 0;
    std::memcpy(&name, letters, sizeof name);
    return name;
}

} // namespace

LuGdiSource::LuGdiSource(std::wstring requestedFamily) : m_requestedFamily(std::move(requestedFamily)) {}

LuGdiSource* LuGdiSource::create(const std::wstring& family) {
    std::unique_ptr<LuGdiSource> source(new LuGdiSource(family));
    source->m_context = CreateCompatibleDC(nullptr);
    if (!source->m_context)
        return nullptr;
    source->selectPixels(16);
    OUTLINETEXTMETRICW probe{};
    probe.otmSize = sizeof probe;
    if (GetOutlineTextMetricsW(source->m_context, sizeof probe, &probe) == 0 || probe.otmEMSquare == 0)
        return nullptr;

    source->m_unitsPerEm = probe.otmEMSquare;
    source->m_emFont = source->createFont(static_cast<int>(probe.otmEMSquare));
    source->selectEm();
    TEXTMETRICW metrics{};
    GetTextMetricsW(source->m_context, &metrics);
    source->m_ascent = static_cast<float>(metrics.tmAscent / source->m_unitsPerEm);
    source->m_descent = static_cast<float>(metrics.tmDescent / source->m_unitsPerEm);
    wchar_t name[256] = {};
    GetTextFaceW(source->m_context, 256, name);
    source->m_family = LvString::fromWide(name).getString();
    return source.release();
}

LuGdiSource::~LuGdiSource() {
    if (m_originalFont)
        SelectObject(m_context, m_originalFont);
    if (m_emFont)
        DeleteObject(m_emFont);
    if (m_pixelFont)
        DeleteObject(m_pixelFont);
    if (m_context)
        DeleteDC(m_context);
}

HFONT LuGdiSource::createFont(int pixels) const {
    LOGFONTW font{};
    font.lfHeight = -pixels;
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfOutPrecision = OUT_OUTLINE_PRECIS;
    m_requestedFamily.copy(font.lfFaceName, LF_FACESIZE - 1);
    return CreateFontIndirectW(&font);
}

void LuGdiSource::selectPixels(int pixels) {
    HFONT old = nullptr;
    if (pixels != m_pixels) {
        old = m_pixelFont;
        m_pixelFont = createFont(std::min(pixels, MAX_PIXELS));
        m_pixels = pixels;
    }
    const HGDIOBJ previous = SelectObject(m_context, m_pixelFont);
    if (!m_originalFont)
        m_originalFont = previous;
    if (old)
        DeleteObject(old);
}

void LuGdiSource::selectEm() { SelectObject(m_context, m_emFont); }

WORD LuGdiSource::getGlyphIndex(char32_t character) {
    if (character > 0xFFFF)
        return findInCharacterMap(character);
    const wchar_t unit = static_cast<wchar_t>(character);
    WORD index = 0;
    if (GetGlyphIndicesW(m_context, &unit, 1, &index, GGI_MARK_NONEXISTING_GLYPHS) != 1 || index == 0xFFFF)
        return 0;
    return index;
}

void LuGdiSource::loadCharacterMap() {
    m_isCharacterMapLoaded = true;
    const DWORD size = GetFontData(m_context, tableName("cmap"), 0, nullptr, 0);
    if (size == GDI_ERROR)
        return;
    std::vector<unsigned char> table(size);
    GetFontData(m_context, tableName("cmap"), 0, table.data(), size);
    const std::uint32_t count = bigEndian(table, 2, 2);
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::size_t start = bigEndian(table, 4 + std::size_t{i} * 8 + 4, 4);
        constexpr std::uint32_t GROUPS_OF_32_BITS = 12;
        if (bigEndian(table, start, 2) != GROUPS_OF_32_BITS)
            continue;
        const std::size_t rowCount = bigEndian(table, start + 12, 4);
        for (std::size_t row = 0, at = start + 16; row < rowCount && at + 12 <= table.size(); ++row, at += 12)
            m_groups.push_back(
                {bigEndian(table, at, 4), bigEndian(table, at + 4, 4), bigEndian(table, at + 8, 4)});
        return;
    }
}

WORD LuGdiSource::findInCharacterMap(char32_t character) {
    if (!m_isCharacterMapLoaded)
        loadCharacterMap();
    for (const Group& group : m_groups) {
        if (character >= group.first && character <= group.last)
            return static_cast<WORD>(group.glyph + (character - group.first));
    }
    return 0;
}

bool LuGdiSource::hasGlyph(char32_t character) {
    selectEm();
    return getGlyphIndex(character) != 0;
}

float LuGdiSource::loadGlyph(char32_t character, std::vector<LuOutlineContour>& outline) {
    selectEm();
    const WORD index = getGlyphIndex(character);
    const UINT format = GGO_NATIVE | GGO_UNHINTED | GGO_GLYPH_INDEX;
    const MAT2 identity{{0, 1}, {0, 0}, {0, 0}, {0, 1}};
    GLYPHMETRICS metrics{};
    const DWORD size = GetGlyphOutlineW(m_context, index, format, &metrics, 0, nullptr, &identity);
    if (size == GDI_ERROR)
        return 0;
    if (size > 0) {
        std::vector<char> data(size);
        if (GetGlyphOutlineW(m_context, index, format, &metrics, size, data.data(), &identity) != GDI_ERROR) {
            LuOutlineBuilder builder(outline, 1 / m_unitsPerEm);
            addContours(builder, data.data(), data.size());
        }
    }
    return static_cast<float>(metrics.gmCellIncX / m_unitsPerEm);
}

int LuGdiSource::loadPixelAdvance(char32_t character, int pixels) {
    selectPixels(pixels);
    wchar_t units[2] = {static_cast<wchar_t>(character), 0};
    if (character > 0xFFFF) {
        units[0] = static_cast<wchar_t>(0xD800 + ((character - 0x10000) >> 10));
        units[1] = static_cast<wchar_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
    }
    SIZE size{};
    GetTextExtentPoint32W(m_context, units, character > 0xFFFF ? 2 : 1, &size);
    return size.cx;
}

int LuGdiSource::loadLineHeight(int pixels) {
    selectPixels(pixels);
    TEXTMETRICW metrics{};
    GetTextMetricsW(m_context, &metrics);
    return metrics.tmHeight;
}
