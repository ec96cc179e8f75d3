// SPDX-License-Identifier: MIT
#include "platform/lumora/nodes/LuText3.h"

#include "platform/fonts/LuFontFace.h"
#include "platform/lumora/actions/LuPickRay.h"
#include "platform/lumora/actions/LuTraversalState.h"
#include "platform/lumora/base/LvBox3f.h"

LU_NODE_SOURCE(LuText3, LuShape, "Text3")

namespace {

/// SIDES and BACK lie this far behind the front, in z.
constexpr float TEXT_DEPTH = 1.0F;

/// Gives a flat box the depth of the parts that are shown.
void addDepth(LvBox3f& box, int shown) {
    box.min.z = (shown & (LuText3::SIDES | LuText3::BACK)) ? -TEXT_DEPTH : 0;
    box.max.z = (shown & (LuText3::FRONT | LuText3::SIDES)) ? 0 : -TEXT_DEPTH;
}

const LuFontFace& findFace(const LuTraversalState& state) { return *LuFontFace::find(state.fontName.view()); }

} // namespace

LuText3::LuText3() {
    LuNodeConstructor constructor(s_class, this);
    constructor.field("string", string);
    constructor.field("spacing", spacing);
    constructor.enumField("parts", parts, "Part",
                          {{"FRONT", FRONT}, {"SIDES", SIDES}, {"BACK", BACK}, {"ALL", ALL}});
    constructor.enumField("justification", justification, "Justification",
                          {{"LEFT", LEFT}, {"RIGHT", RIGHT}, {"CENTER", CENTER}});
}

float LuText3::getAdvance(const LuFontFace& face, std::string_view line) {
    float advance = 0;
    for (std::size_t position = 0; position < line.size();)
        advance += face.getGlyphMetrics(LuUtf8::next(line, position)).advance;
    return advance;
}

float LuText3::getJustifiedPart(float advance) const {
    const int value = justification.getValue();
    return value == CENTER ? advance * 0.5F : value == RIGHT ? advance : 0;
}

float LuText3::getLineWidth(const LuTraversalState& state, const LvString& line) {
    return getAdvance(findFace(state), line.view()) * state.fontSize;
}

LvBox3f LuText3::computeLineBox(const LuTraversalState& state, int index) const {
    const std::string_view line = getShownLine(index);
    const LuFontFace& face = findFace(state);
    LvBox3f box;
    box.min.z = box.max.z = 0;
    float x = 0;
    for (std::size_t position = 0; position < line.size();) {
        const LuGlyphMetrics& glyph = face.getGlyphMetrics(LuUtf8::next(line, position));
        if (!glyph.isEmpty) {
            box.min.x = std::min(box.min.x, x + glyph.minX);
            box.min.y = std::min(box.min.y, glyph.minY);
            box.max.x = std::max(box.max.x, x + glyph.maxX);
            box.max.y = std::max(box.max.y, glyph.maxY);
        }
        x += glyph.advance;
    }
    if (box.isEmpty())
        return {};
    const LvVec3f offset(-getJustifiedPart(x), static_cast<float>(-index) * spacing.getValue(), 0);
    return {(box.min + offset) * state.fontSize, (box.max + offset) * state.fontSize};
}

int LuText3::getInheritedDepth(const LuTraversalState& state) const { return state.fontDepth; }

void LuText3::computeBBox(const LuTraversalState& state, LvBox3f& box) const {
    box.makeEmpty();
    for (int i = 0; i < string.getNum(); ++i)
        box.extendBy(computeLineBox(state, i));
    if (!box.isEmpty())
        addDepth(box, parts.getValue());
}

void LuText3::intersect(const LuTraversalState& state, const LuPickRay& ray, LuPickHit& hit) const {
    for (int i = 0; i < string.getNum(); ++i) {
        LvBox3f box = computeLineBox(state, i);
        if (box.isEmpty())
            continue;
        addDepth(box, parts.getValue());
        luIntersectBox(ray, box, hit);
    }
}
