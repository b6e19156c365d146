#include "image2d/chart/shape.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace morvane {
namespace {
constexpr REAL TURN = 2 * std::numbers::pi;

PICTURE_AREA Around(const COMPLEX &centre, REAL halfWidth, REAL halfHeight) {
    return {centre.x - halfWidth, centre.y - halfHeight, centre.x + halfWidth,
            centre.y + halfHeight};
}

PICTURE_AREA TextArea(const SHAPE &shape) {
    const REAL length = static_cast<REAL>(shape.text.LENGTH()) * LETTER_WIDTH * shape.size;
    const REAL share = shape.anchor == TEXT_ANCHOR::START    ? 0
                       : shape.anchor == TEXT_ANCHOR::MIDDLE ? 0.5
                                                             : 1;
    const REAL above = BASELINE * shape.size, below = (EM - BASELINE) * shape.size;
    const COMPLEX at = shape.points.front();
    if (shape.isUpwards)
        return {at.x - above, at.y - (1 - share) * length, at.x + below, at.y + share * length};
    return {at.x - share * length, at.y - above, at.x + (1 - share) * length, at.y + below};
}

// Clips a-b to the area (Liang and Barsky 1984); false when nothing is left.
bool ClipSegment(COMPLEX &a, COMPLEX &b, const PICTURE_AREA &area) {
    REAL from = 0, to = 1;
    const REAL dx = b.x - a.x, dy = b.y - a.y;
    const auto edge = [&](REAL p, REAL q) { // p * t <= q
        if (p == 0) return q >= 0;
        const REAL t = q / p;
        if (p < 0) from = std::max(from, t);
        if (p > 0) to = std::min(to, t);
        return from <= to;
    };
    if (!edge(-dx, a.x - area.left) || !edge(dx, area.right - a.x)) return false;
    if (!edge(-dy, a.y - area.top) || !edge(dy, area.bottom - a.y)) return false;
    const COMPLEX start = a;
    if (to < 1) b = {start.x + to * dx, start.y + to * dy};
    if (from > 0) a = {start.x + from * dx, start.y + from * dy};
    return true;
}

// One side of a polygon's clipping (Sutherland and Hodgman 1974): keeps what has depth(p) >= 0.
template <class DEPTH>
std::vector<COMPLEX> ClipSide(const std::vector<COMPLEX> &points, const DEPTH &depth) {
    std::vector<COMPLEX> kept;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const COMPLEX &a = points[i], &b = points[(i + 1) % points.size()];
        const REAL depthA = depth(a), depthB = depth(b);
        if (depthA >= 0) kept.push_back(a);
        if ((depthA < 0) == (depthB < 0)) continue;
        const REAL t = depthA / (depthA - depthB);
        kept.push_back({a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)});
    }
    return kept;
}

// Points of an arc, both ends included, at most half a tenth of a unit away from it.
void AddArc(std::vector<COMPLEX> &points, const COMPLEX &centre, const COMPLEX &radii, REAL from,
            REAL to, REAL turned) {
    const REAL radius = std::max({std::abs(radii.x), std::abs(radii.y), 1.0});
    const REAL step = 2 * std::acos(1 - std::min(0.05 / radius, 1.0));
    const REAL count = std::clamp(std::ceil(std::abs(to - from) / step), 4.0, 4096.0);
    const REAL cosine = std::cos(turned), sine = std::sin(turned);
    for (REAL i = 0; i <= count; ++i) {
        const REAL angle = from + (to - from) * i / count;
        const REAL u = radii.x * std::cos(angle), v = radii.y * std::sin(angle);
        points.push_back({centre.x + u * cosine - v * sine, centre.y - u * sine - v * cosine});
    }
}

std::vector<COMPLEX> Rectangle(const SHAPE &shape) {
    const COMPLEX &a = shape.points[0], &b = shape.points[1];
    const REAL left = std::min(a.x, b.x), right = std::max(a.x, b.x);
    const REAL top = std::min(a.y, b.y), bottom = std::max(a.y, b.y);
    const REAL r = std::min({shape.radius, (right - left) / 2, (bottom - top) / 2});
    if (r <= 0) return {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
    std::vector<COMPLEX> points;
    AddArc(points, {right - r, top + r}, {r, r}, TURN / 4, 0, 0);
    AddArc(points, {right - r, bottom - r}, {r, r}, 0, -TURN / 4, 0);
    AddArc(points, {left + r, bottom - r}, {r, r}, -TURN / 4, -TURN / 2, 0);
    AddArc(points, {left + r, top + r}, {r, r}, TURN / 2, TURN / 4, 0);
    return points;
}

std::vector<COMPLEX> Curve(const std::vector<COMPLEX> &knots) {
    std::vector<COMPLEX> points{knots.front()};
    for (std::size_t i = 0; i + 2 < knots.size(); i += 2) {
        const COMPLEX &a = knots[i], &c = knots[i + 1], &b = knots[i + 2];
        const REAL length = std::hypot(c.x - a.x, c.y - a.y) + std::hypot(b.x - c.x, b.y - c.y);
        const REAL count = std::clamp(std::ceil(length / 3), 4.0, 1024.0);
        for (REAL k = 1; k <= count; ++k) {
            const REAL t = k / count, s = 1 - t;
            points.push_back({s * s * a.x + 2 * s * t * c.x + t * t * b.x,
                              s * s * a.y + 2 * s * t * c.y + t * t * b.y});
        }
    }
    return points;
}
} // namespace

PICTURE_AREA GETBOUNDS(const SHAPE &shape) {
    if (shape.points.empty()) return {};
    if (shape.kind == SHAPE_KIND::TEXT) return TextArea(shape);
    const REAL half = shape.stroke.w > 0 ? shape.lineWidth / 2 : 0;
    switch (shape.kind) {
    case SHAPE_KIND::CIRCLE:
    case SHAPE_KIND::ARC:
    case SHAPE_KIND::SECTOR:
        return Around(shape.points[0], shape.radius + half, shape.radius + half);
    case SHAPE_KIND::ELLIPSE: {
        const REAL radius = std::max(shape.points[1].x, shape.points[1].y) + half;
        return Around(shape.points[0], radius, radius);
    }
    default: break;
    }
    PICTURE_AREA area = Around(shape.points[0], 0, 0);
    for (const COMPLEX &point : shape.points) {
        area.left = std::min(area.left, point.x), area.right = std::max(area.right, point.x);
        area.top = std::min(area.top, point.y), area.bottom = std::max(area.bottom, point.y);
    }
    return {area.left - half, area.top - half, area.right + half, area.bottom + half};
}

std::vector<std::vector<COMPLEX>> CLIP_LINE(const std::vector<COMPLEX> &points,
                                            const PICTURE_AREA &area) {
    std::vector<std::vector<COMPLEX>> parts;
    bool isOpen = false; // the last part reaches the point before
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        COMPLEX a = points[i], b = points[i + 1];
        if (!ClipSegment(a, b, area)) {
            isOpen = false;
            continue;
        }
        if (!isOpen) parts.push_back({a});
        parts.back().push_back(b);
        isOpen = b == points[i + 1];
    }
    return parts;
}

std::vector<COMPLEX> CLIP_POLYGON(const std::vector<COMPLEX> &points, const PICTURE_AREA &area) {
    std::vector<COMPLEX> kept = ClipSide(points, [&](const COMPLEX &p) { return p.x - area.left; });
    kept = ClipSide(kept, [&](const COMPLEX &p) { return area.right - p.x; });
    kept = ClipSide(kept, [&](const COMPLEX &p) { return p.y - area.top; });
    return ClipSide(kept, [&](const COMPLEX &p) { return area.bottom - p.y; });
}

std::vector<SHAPE> BEVELS(const SHAPE &rectangle) {
    const COMPLEX &a = rectangle.points[0], &b = rectangle.points[1];
    const REAL left = std::min(a.x, b.x), right = std::max(a.x, b.x);
    const REAL top = std::min(a.y, b.y), bottom = std::max(a.y, b.y);
    const REAL side = std::min(right - left, bottom - top);
    const REAL inset = std::min(rectangle.radius, side / 2), tall = std::min(side / 4, 6.0);
    constexpr NAT QUARTER = 64;
    SHAPE upper, lower;
    upper.kind = lower.kind = SHAPE_KIND::RECTANGLE;
    upper.clip = lower.clip = rectangle.clip;
    upper.fill = {255, 255, 255, QUARTER}, lower.fill = {0, 0, 0, QUARTER};
    upper.points = {{left + inset, top}, {right - inset, top + tall}};
    lower.points = {{left + inset, bottom - tall}, {right - inset, bottom}};
    return {upper, lower};
}

std::vector<COMPLEX> GETOUTLINE(const SHAPE &shape) {
    if (shape.points.empty()) return {};
    const COMPLEX &centre = shape.points[0];
    std::vector<COMPLEX> points;
    switch (shape.kind) {
    case SHAPE_KIND::LINE:
    case SHAPE_KIND::POLYLINE:
    case SHAPE_KIND::POLYGON: return shape.points;
    case SHAPE_KIND::CURVE: return Curve(shape.points);
    case SHAPE_KIND::RECTANGLE: return Rectangle(shape);
    case SHAPE_KIND::CIRCLE:
        AddArc(points, centre, {shape.radius, shape.radius}, 0, TURN, 0);
        break;
    case SHAPE_KIND::ELLIPSE: AddArc(points, centre, shape.points[1], 0, TURN, shape.angle); break;
    case SHAPE_KIND::SECTOR: points.push_back(centre); [[fallthrough]];
    case SHAPE_KIND::ARC:
        AddArc(points, centre, {shape.radius, shape.radius}, shape.angle, shape.angleEnd, 0);
        break;
    case SHAPE_KIND::TEXT: break;
    }
    return points;
}
} // namespace morvane
