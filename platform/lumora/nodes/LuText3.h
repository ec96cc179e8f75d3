// SPDX-License-Identifier: MIT
#pragma once

#include "platform/lumora/base/LvBox3f.h"
#include "platform/lumora/nodes/LuShapes.h"

class LuFontFace;

/// Text made of the outlines of the current font's glyphs. The first line stands on y 0, each further line
/// one font size, times `spacing`, below.
class LuText3 : public LuShape {
    LU_NODE_HEADER(LuText3)

    enum Part { FRONT = 1, SIDES = 2, BACK = 4, ALL = 7 };
    enum Justification { LEFT = 1, RIGHT = 2, CENTER = 3 };

    LuText3();

    LuMFString string; ///< One entry a line, UTF-8.
    LuSFFloat spacing{1.0F};
    LuSFEnum parts{FRONT};        ///< FRONT lies at z 0; SIDES and BACK reach to z -1.
    LuSFEnum justification{LEFT}; ///< Which point of each line stands at x 0.

    void computeBBox(const LuTraversalState& state, LvBox3f& box) const override;
    void GLRender(LuGLRenderAction* action) override;

    /// The advance of one line in scene units.
    static float getLineWidth(const LuTraversalState& state, const LvString& line);

protected:
    /// The boxes of the lines, not the outlines: who aims at a text doesn't aim at its strokes.
    void intersect(const LuTraversalState& state, const LuPickRay& ray, LuPickHit& hit) const override;
    int getInheritedDepth(const LuTraversalState& state) const override;

    /// Called with each line before it is measured or drawn; a subclass may show something else instead. The
    /// text must stay until the next line is asked for.
    virtual std::string_view getShownLine(int index) const { return string[index].view(); }

private:
    /// The advance of a line in em units, and how much of it stands left of x 0.
    static float getAdvance(const LuFontFace& face, std::string_view line);
    float getJustifiedPart(float advance) const;
    LvBox3f computeLineBox(const LuTraversalState& state, int index) const;
};
