#include "image2d/chart/vector_drawing.hpp"

#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"

#include <algorithm>
#include <cmath>
#include <new>

namespace morvane {
namespace {
// Picture coordinates are limited to this, so that all arithmetic and every text stays plain.
constexpr REAL FARTHEST = 1e6;
constexpr NAT LARGEST_SIDE = 30000;            // units of a picture's width or height
constexpr std::size_t MOST_SHAPES = 4'000'000; // a list that no viewer opens any more
constexpr NAT HIGHEST_FONT = 52;
constexpr REAL BLEND = 0.25; // share of the pen in a blended line or area

REAL Place(REAL value, REAL a, REAL b, REAL low, REAL high) {
    if (a == b) return (low + high) / 2;
    const REAL half = b / 2 - a / 2; // the difference of two large numbers may have no value
    return LIMIT(low + (value / 2 - a / 2) / half * (high - low), -FARTHEST, FARTHEST);
}

bool IsNumber(REAL value) { return std::isfinite(value) && std::abs(value) <= 2 * FARTHEST; }
bool IsSound(const SHAPE &shape) {
    for (const COMPLEX &point : shape.points)
        if (!IsNumber(point.x) || !IsNumber(point.y)) return false;
    return !shape.points.empty() && IsNumber(shape.radius) && IsNumber(shape.angle) &&
           IsNumber(shape.angleEnd) && IsNumber(shape.size) && IsNumber(shape.lineWidth);
}

HYPERNAT Limited(const HYPERNAT &colour) {
    const auto component = [](NAT value) { return LIMIT(value, NAT{0}, NAT{255}); };
    return {component(colour.x), component(colour.y), component(colour.z), component(colour.w)};
}
HYPERNAT Blended(const HYPERNAT &colour) {
    return {colour.x, colour.y, colour.z, ROUND(static_cast<REAL>(colour.w) * BLEND)};
}

// The parts of `rows` that no range of `covered` holds; then they are covered. `covered` stays
// ascending, without ranges that touch.
std::vector<RANGE> TakeUncovered(std::vector<RANGE> &covered, RANGE rows) {
    std::vector<RANGE> open, merged;
    REAL from = rows.min;
    for (const RANGE &range : covered) {
        if (range.max < rows.min || range.min > rows.max) {
            merged.push_back(range);
            continue;
        }
        if (range.min > from) open.push_back({from, range.min});
        from = std::max(from, range.max);
        rows = {std::min(rows.min, range.min), std::max(rows.max, range.max)};
    }
    if (from < rows.max) open.push_back({from, rows.max});
    merged.insert(std::upper_bound(merged.begin(), merged.end(), rows,
                                   [](const RANGE &a, const RANGE &b) { return a.min < b.min; }),
                  rows);
    covered = std::move(merged);
    return open;
}
} // namespace

void T2DVECTOR::INIT(NAT width, NAT height) {
    DONE();
    if (width < 1 || height < 1) return;
    sizeX = std::min(width, LARGEST_SIDE), sizeY = std::min(height, LARGEST_SIDE);
    WINDOW();
}

void T2DVECTOR::DONE() {
    CLEAR();
    VALUE = {0, 0, 0, 255}, BACKGROUND = {255, 255, 255, 255};
    LINEWIDTH = 1;
    sizeX = sizeY = font = 0;
    WINDOW();
}

void T2DVECTOR::CLEAR() {
    shapes.clear();
    SCAN_RESET();
    isRendered = false;
    rendering.DONE();
}

void T2DVECTOR::WINDOW(REAL x1, REAL y1, REAL x2, REAL y2) {
    const REAL wide = static_cast<REAL>(sizeX), tall = static_cast<REAL>(sizeY);
    window = {LIMIT(std::min(x1, x2), 0.0, wide), LIMIT(std::min(y1, y2), 0.0, tall),
              LIMIT(std::max(x1, x2), 0.0, wide), LIMIT(std::max(y1, y2), 0.0, tall)};
    SCREEN({window.left, window.top}, {window.right, window.bottom});
}
void T2DVECTOR::WINDOW() { WINDOW(0, 0, static_cast<REAL>(sizeX), static_cast<REAL>(sizeY)); }

void T2DVECTOR::SCREEN(const COMPLEX &a, const COMPLEX &b) { worldA = a, worldB = b; }

COMPLEX T2DVECTOR::TOPICTURE(const COMPLEX &world) const {
    return {Place(world.x, worldA.x, worldB.x, window.left, window.right),
            Place(world.y, worldA.y, worldB.y, window.top, window.bottom)};
}

std::vector<COMPLEX> T2DVECTOR::Points(std::span<const COMPLEX> world) const {
    std::vector<COMPLEX> points;
    points.reserve(world.size());
    for (const COMPLEX &point : world)
        points.push_back(TOPICTURE(point));
    return points;
}

SHAPE T2DVECTOR::MAKE(SHAPE_KIND kind) const {
    SHAPE shape;
    shape.kind = kind;
    shape.stroke = Limited(VALUE);
    shape.fill = NO_COLOUR;
    shape.lineWidth = LIMIT(LINEWIDTH, 0.0, FARTHEST);
    shape.font = font;
    shape.clip = window;
    return shape;
}
SHAPE T2DVECTOR::MAKEFULL(SHAPE_KIND kind) const {
    SHAPE shape = MAKE(kind);
    shape.fill = shape.stroke, shape.stroke = NO_COLOUR;
    return shape;
}

void T2DVECTOR::ADD(SHAPE &&shape) {
    if (!IsSound(shape) || !GETBOUNDS(shape).MEETS(shape.clip)) return;
    if (shapes.size() >= MOST_SHAPES) return;
    CHANGED();
    try {
        shapes.push_back(std::move(shape));
    } catch (const std::bad_alloc &) {
    } // a drawing without its last shapes, as with the limit
}

void T2DVECTOR::ADDLINE(std::vector<COMPLEX> &&points, const SHAPE &look) {
    SHAPE whole = look;
    whole.points = std::move(points);
    if (!IsSound(whole)) return;
    const REAL half = look.lineWidth / 2; // by which a line on the window's border reaches over it
    for (std::vector<COMPLEX> &part : CLIP_LINE(whole.points, whole.clip)) {
        SHAPE shape = look;
        shape.clip = {look.clip.left - half, look.clip.top - half, look.clip.right + half,
                      look.clip.bottom + half};
        shape.points = std::move(part);
        ADD(std::move(shape));
    }
}

void T2DVECTOR::LINE(REAL x1, REAL y1, REAL x2, REAL y2) {
    ADDLINE({TOPICTURE({x1, y1}), TOPICTURE({x2, y2})}, MAKE(SHAPE_KIND::LINE));
}
void T2DVECTOR::VLINE(REAL x, REAL y1, REAL y2) { LINE(x, y1, x, y2); }
void T2DVECTOR::VVLINE(REAL x, REAL y1, REAL y2) {
    SHAPE shape = MAKE(SHAPE_KIND::LINE);
    shape.stroke = Blended(shape.stroke);
    ADDLINE({TOPICTURE({x, y1}), TOPICTURE({x, y2})}, shape);
}

void T2DVECTOR::SCAN_RESET() {
    for (std::vector<RANGE> &side : covered)
        side.clear();
}
void T2DVECTOR::VLINE(REAL x1, REAL y1, REAL x2, REAL y2, REAL x) {
    AddEdge(TOPICTURE({x1, y1}), TOPICTURE({x2, y2}), TOPICTURE({x, y1}).x, false);
}
void T2DVECTOR::VVLINE(REAL x1, REAL y1, REAL x2, REAL y2, REAL x) {
    AddEdge(TOPICTURE({x1, y1}), TOPICTURE({x2, y2}), TOPICTURE({x, y1}).x, true);
}

void T2DVECTOR::AddEdge(const COMPLEX &a, const COMPLEX &b, REAL x, bool isBlended) {
    const COMPLEX &upper = a.y <= b.y ? a : b, &lower = a.y <= b.y ? b : a;
    if (!(upper.y < lower.y) || !IsNumber(x)) return;
    const REAL slope = (lower.x - upper.x) / (lower.y - upper.y);
    const auto edgeAt = [&](REAL y) { return upper.x + slope * (y - upper.y); };
    const REAL crossing = slope == 0 ? upper.y : upper.y + (x - upper.x) / slope;
    const REAL middle = LIMIT(crossing, upper.y, lower.y); // the edge may change its side here
    for (const RANGE piece : {RANGE{upper.y, middle}, RANGE{middle, lower.y}}) {
        if (!(piece.min < piece.max)) continue;
        const std::size_t side = edgeAt((piece.min + piece.max) / 2) < x ? 0 : 1;
        for (const RANGE &rows : TakeUncovered(covered[side], piece)) {
            SHAPE shape = MAKEFULL(SHAPE_KIND::POLYGON);
            if (isBlended) shape.fill = Blended(shape.fill);
            shape.points = CLIP_POLYGON({{edgeAt(rows.min), rows.min},
                                         {edgeAt(rows.max), rows.max},
                                         {x, rows.max},
                                         {x, rows.min}},
                                        window);
            ADD(std::move(shape));
        }
    }
}

void T2DVECTOR::RECTANGLE(REAL x1, REAL y1, REAL x2, REAL y2, REAL radius, bool isBevelled) {
    SHAPE shape = MAKE(SHAPE_KIND::RECTANGLE);
    shape.points = {TOPICTURE({x1, y1}), TOPICTURE({x2, y2})};
    shape.radius = radius, shape.isBevelled = isBevelled;
    ADD(std::move(shape));
}
void T2DVECTOR::FULLRECTANGLE(REAL x1, REAL y1, REAL x2, REAL y2, REAL radius, bool isBevelled) {
    SHAPE shape = MAKEFULL(SHAPE_KIND::RECTANGLE);
    shape.points = {TOPICTURE({x1, y1}), TOPICTURE({x2, y2})};
    shape.radius = radius, shape.isBevelled = isBevelled;
    ADD(std::move(shape));
}

void T2DVECTOR::CURVE(std::span<const COMPLEX> points) {
    if (points.size() < 3) return;
    SHAPE shape = MAKE(SHAPE_KIND::CURVE);
    shape.points = Points(points.first(points.size() - (points.size() + 1) % 2));
    ADD(std::move(shape));
}
void T2DVECTOR::POLYLINE(std::span<const COMPLEX> points) {
    if (points.size() > 1) ADDLINE(Points(points), MAKE(SHAPE_KIND::POLYLINE));
}
void T2DVECTOR::POLYGON(std::span<const COMPLEX> points) {
    SHAPE shape = MAKEFULL(SHAPE_KIND::POLYGON);
    shape.points = Points(points);
    if (!IsSound(shape)) return;
    shape.points = CLIP_POLYGON(shape.points, window);
    if (shape.points.size() > 2) ADD(std::move(shape));
}

void T2DVECTOR::CIRCLE(REAL x, REAL y, REAL radius) {
    SHAPE shape = MAKE(SHAPE_KIND::CIRCLE);
    shape.points = {TOPICTURE({x, y})}, shape.radius = radius;
    if (radius >= 0) ADD(std::move(shape));
}
void T2DVECTOR::FULLCIRCLE(REAL x, REAL y, REAL radius) {
    SHAPE shape = MAKEFULL(SHAPE_KIND::CIRCLE);
    shape.points = {TOPICTURE({x, y})}, shape.radius = radius;
    if (radius >= 0) ADD(std::move(shape));
}
void T2DVECTOR::ELLIPSE(REAL x, REAL y, REAL radiusX, REAL radiusY, REAL angle) {
    SHAPE shape = MAKE(SHAPE_KIND::ELLIPSE);
    shape.points = {TOPICTURE({x, y}), {radiusX, radiusY}}, shape.angle = angle;
    if (radiusX >= 0 && radiusY >= 0) ADD(std::move(shape));
}
void T2DVECTOR::FULLELLIPSE(REAL x, REAL y, REAL radiusX, REAL radiusY, REAL angle) {
    SHAPE shape = MAKEFULL(SHAPE_KIND::ELLIPSE);
    shape.points = {TOPICTURE({x, y}), {radiusX, radiusY}}, shape.angle = angle;
    if (radiusX >= 0 && radiusY >= 0) ADD(std::move(shape));
}
void T2DVECTOR::ARC(REAL x, REAL y, REAL radius, REAL from, REAL to) {
    SHAPE shape = MAKE(SHAPE_KIND::ARC);
    shape.points = {TOPICTURE({x, y})}, shape.radius = radius;
    shape.angle = from, shape.angleEnd = LIMIT(to, from - 2 * PI, from + 2 * PI);
    if (radius >= 0) ADD(std::move(shape));
}
void T2DVECTOR::SECTOR(REAL x, REAL y, REAL radius, REAL from, REAL to) {
    SHAPE shape = MAKEFULL(SHAPE_KIND::SECTOR);
    shape.points = {TOPICTURE({x, y})}, shape.radius = radius;
    shape.angle = from, shape.angleEnd = LIMIT(to, from - 2 * PI, from + 2 * PI);
    if (radius >= 0) ADD(std::move(shape));
}

void T2DVECTOR::SETFONT(NAT number) {
    if (number >= 0 && number <= HIGHEST_FONT) font = number;
}

void T2DVECTOR::ADDTEXT(const COMPLEX &place, const UTF16 &text, REAL size, TEXT_ANCHOR anchor,
                        bool isUpwards) {
    SHAPE shape = MAKEFULL(SHAPE_KIND::TEXT);
    shape.points = {place};
    shape.text = text, shape.size = size, shape.anchor = anchor, shape.isUpwards = isUpwards;
    if (size > 0 && !text.EMPTY()) ADD(std::move(shape));
}

void T2DVECTOR::Write(REAL x, REAL y, const UTF16 &text, REAL size, bool isUpwards) {
    COMPLEX place = TOPICTURE({x, y});
    (isUpwards ? place.x : place.y) += BASELINE * size;
    ADDTEXT(place, text, size, TEXT_ANCHOR::START, isUpwards);
}
void T2DVECTOR::WRITE(REAL x, REAL y, const UTF16 &text, REAL size) {
    Write(x, y, text, size, false);
}
void T2DVECTOR::WRITE_LEFT(REAL x, REAL y, const UTF16 &text, REAL size) {
    Write(x, y, text, size, true);
}

void T2DVECTOR::Prepare() {
    if (prepare) prepare(*this);
}

HYPERNAT T2DVECTOR::GET(NAT x, NAT y) {
    if (!isRendered) isRendered = RENDER(rendering);
    return rendering.GET(x, y);
}
} // namespace morvane
