// SPDX-License-Identifier: MIT
#pragma once

#include "platform/fonts/LuFontFace.h"

#include <vector>

/// Builds contours from the pieces that a font library gives. Points come in the library's units and are
/// multiplied by `scale` to em units.
class LuOutlineBuilder {
public:
    struct Point {
        double x = 0, y = 0;
    };

    /// Contours are appended to `outline`, which stays the caller's and must live as long as the builder.
    LuOutlineBuilder(std::vector<LuOutlineContour>& outline, double scale);

    /// Closes the contour so far and starts the next.
    void moveTo(Point point);
    void lineTo(Point point);
    void curveTo(Point control, Point point);

    /// A cubic curve becomes quadratic ones that differ by less than a thousandth of an em.
    void cubicTo(Point control1, Point control2, Point point);

    /// Closes the contour with a line where its ends differ. A contour without an area is dropped.
    void close();

private:
    void append(const LuOutlineSegment& segment);

    std::vector<LuOutlineContour>& m_outline;
    double m_scale;
    LuOutlineContour m_contour;
    Point m_current; ///< End of the last piece, in the library's units.
};

/// The exact box of an outline into `metrics`: curves count with their extremes, not their control points.
void luMeasureOutline(const std::vector<LuOutlineContour>& outline, LuGlyphMetrics& metrics);
