// SPDX-License-Identifier: MIT
// What shapes do when they are drawn.
#include "platform/fonts/LuFontFace.h"
#include "platform/lumora/gl/LuGLRenderAction.h"
#include "platform/lumora/nodes/LuText3.h"

#include <cmath>

void LuCube::GLRender(LuGLRenderAction* action) {
    action->addShape(LuMeshStore::CUBE, {width.getValue(), height.getValue(), depth.getValue()});
}

void LuSphere::GLRender(LuGLRenderAction* action) {
    action->addShape(LuMeshStore::SPHERE, {radius.getValue(), radius.getValue(), radius.getValue()});
}

void LuCone::GLRender(LuGLRenderAction* action) {
    action->addShape(LuMeshStore::CONE,
                     {bottomRadius.getValue(), height.getValue(), bottomRadius.getValue()});
}

void LuFaceSet::GLRender(LuGLRenderAction* action) {
    action->addFaces(m_stamp, [&] { return getPolygons(action->getState()); });
}

void LuIndexedFaceSet::GLRender(LuGLRenderAction* action) {
    action->addFaces(m_stamp, [&] { return getPolygons(action->getState()); });
}

void LuText3::GLRender(LuGLRenderAction* action) {
    const LuTraversalState& state = action->getState();
    const LuFontFace& face = *LuFontFace::find(state.fontName.view());
    const int shown = parts.getValue();
    action->beginText(state.fontSize);
    for (int i = 0; i < string.getNum(); ++i) {
        const std::string_view text = getShownLine(i);
        const bool isMeasured = justification.getValue() != LEFT;
        float x = -(isMeasured ? getJustifiedPart(getAdvance(face, text)) : 0.0F);
        const float y = static_cast<float>(-i) * spacing.getValue();
        for (std::size_t position = 0; position < text.size();) {
            const char32_t character = LuUtf8::next(text, position);
            if (shown & FRONT)
                action->addGlyph(face, character, LuMeshStore::GLYPH_FRONT, x, y);
            if (shown & SIDES)
                action->addGlyph(face, character, LuMeshStore::GLYPH_SIDES, x, y);
            if (shown & BACK)
                action->addGlyph(face, character, LuMeshStore::GLYPH_BACK, x, y);
            x += face.getGlyphMetrics(character).advance;
        }
    }
}
