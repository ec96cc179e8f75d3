// SPDX-License-Identifier: MIT
#include "platform/fonts/LuOutlineBuilder.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

/// The largest difference between a cubic curve and what stands for it, in em units.
constexpr double TOLERANCE = 0.0005;
constexpr int MAX_PIECES = 16;

/// What the control point of a quadratic curve adds to the interval of its ends, along one axis.
void includeExtreme(double start, double control, double end, double& low, double& high) {
    if (control >= low && control <= high)
        return;
    const double divisor = start - 2 * control + end;
    if (divisor == 0)
        return;
    const double t = (start - control) / divisor;
    if (t <= 0 || t >= 1)
        return;
    const double extreme = (1 - t) * (1 - t) * start + 2 * t * (1 - t) * control + t * t * end;
    low = std::min(low, extreme);
    high = std::max(high, extreme);
}

struct Range {
    double low = std::numeric_limits<double>::infinity();
    double high = -std::numeric_limits<double>::infinity();

    void include(double start, const LuOutlineSegment& segment, double control, double end) {
        double low1 = std::min(start, end);
        double high1 = std::max(start, end);
        if (segment.isCurve)
            includeExtreme(start, control, end, low1, high1);
        low = std::min(low, low1);
        high = std::max(high, high1);
    }
};

} // namespace

LuOutlineBuilder::LuOutlineBuilder(std::vector<LuOutlineContour>& outline, double scale)
    : m_outline(outline), m_scale(scale) {}

void LuOutlineBuilder::moveTo(Point point) {
    close();
    m_contour.startX = static_cast<float>(point.x * m_scale);
    m_contour.startY = static_cast<float>(point.y * m_scale);
    m_current = point;
}

void LuOutlineBuilder::lineTo(Point point) {
    if (point.x == m_current.x && point.y == m_current.y)
        return;
    append({false, 0, 0, static_cast<float>(point.x * m_scale), static_cast<float>(point.y * m_scale)});
    m_current = point;
}

void LuOutlineBuilder::curveTo(Point control, Point point) {
    append({true, static_cast<float>(control.x * m_scale), static_cast<float>(control.y * m_scale),
            static_cast<float>(point.x * m_scale), static_cast<float>(point.y * m_scale)});
    m_current = point;
}

void LuOutlineBuilder::cubicTo(Point control1, Point control2, Point point) {
    const Point start = m_current;
    // The third difference measures how far a cubic curve is from a quadratic one; n pieces lessen it by n^3.
    const double x = point.x - 3 * control2.x + 3 * control1.x - start.x;
    const double y = point.y - 3 * control2.y + 3 * control1.y - start.y;
    const double difference = std::sqrt(3.0) / 36 * std::hypot(x, y) * m_scale;
    const double needed = std::ceil(std::cbrt(difference / TOLERANCE));
    const int pieces = static_cast<int>(std::clamp(needed, 1.0, static_cast<double>(MAX_PIECES)));

    const auto at = [&](double t) {
        const double u = 1 - t;
        const double a = u * u * u, b = 3 * u * u * t, c = 3 * u * t * t, d = t * t * t;
        return Point{a * start.x + b * control1.x + c * control2.x + d * point.x,
                     a * start.y + b * control1.y + c * control2.y + d * point.y};
    };
    const auto slopeAt = [&](double t) {
        const double u = 1 - t;
        const double a = 3 * u * u, b = 6 * u * t, c = 3 * t * t;
        return Point{a * (control1.x - start.x) + b * (control2.x - control1.x) + c * (point.x - control2.x),
                     a * (control1.y - start.y) + b * (control2.y - control1.y) + c * (point.y - control2.y)};
    };
    const double step = 1.0 / pieces;
    Point from = start;
    for (int i = 0; i < pieces; ++i) {
        const Point to = i + 1 == pieces ? point : at((i + 1) * step);
        const Point slope1 = slopeAt(i * step);
        const Point slope2 = slopeAt((i + 1) * step);
        curveTo({(from.x + to.x) / 2 + (slope1.x - slope2.x) * step / 4,
                 (from.y + to.y) / 2 + (slope1.y - slope2.y) * step / 4},
                to);
        from = to;
    }
}

void LuOutlineBuilder::close() {
    if (!m_contour.segments.empty()) {
        const LuOutlineSegment last = m_contour.segments.back();
        if (last.x != m_contour.startX || last.y != m_contour.startY)
            append({false, 0, 0, m_contour.startX, m_contour.startY});
    }
    const auto isCurve = [](const LuOutlineSegment& segment) { return segment.isCurve; };
    const auto& segments = m_contour.segments;
    // A line there and back has no area; one curve with a line has.
    if (segments.size() > 2 || std::any_of(segments.begin(), segments.end(), isCurve))
        m_outline.push_back(std::move(m_contour));
    m_contour = {};
}

void LuOutlineBuilder::append(const LuOutlineSegment& segment) { m_contour.segments.push_back(segment); }

void luMeasureOutline(const std::vector<LuOutlineContour>& outline, LuGlyphMetrics& metrics) {
    Range rangeX, rangeY;
    for (const LuOutlineContour& contour : outline) {
        double x = contour.startX, y = contour.startY;
        for (const LuOutlineSegment& segment : contour.segments) {
            rangeX.include(x, segment, segment.controlX, segment.x);
            rangeY.include(y, segment, segment.controlY, segment.y);
            x = segment.x;
            y = segment.y;
        }
    }
    metrics.isEmpty = rangeX.low > rangeX.high;
    if (metrics.isEmpty)
        return;
    metrics.minX = static_cast<float>(rangeX.low);
    metrics.minY = static_cast<float>(rangeY.low);
    metrics.maxX = static_cast<float>(rangeX.high);
    metrics.maxY = static_cast<float>(rangeY.high);
}
