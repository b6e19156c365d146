#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"
#include "image2d/chart/graph_layout.hpp"

#include <algorithm>
#include <cmath>

namespace morvane {
namespace {
constexpr HYPERNAT INK{0, 0, 0, 255}, PAPER{255, 255, 255, 255}, LEADER{120, 120, 120, 255};
constexpr REAL DIGIT_MIDDLE = 5; // of a number's digits above the baseline
constexpr REAL MARKER = 3.5, DOT = 2.5, ROW = 18, SAMPLE = 24, PADDING = 6;
constexpr REAL CLOSEST_SMALL_TICKS = 5;
constexpr NAT BOLD_FONT = 10;

UTF16 Shortened(const UTF16 &text, REAL letters) {
    const NAT most = std::max<NAT>(FLOOR(letters), 0);
    if (text.LENGTH() <= most) return text;
    return most < 2 ? UTF16() : KILLLAST(COPY(text, 1, most - 1), ' ') + UTF16("\u2026");
}
} // namespace

PICTURE_AREA GRAPH_LAYOUT::Picture() const {
    return {0, 0, static_cast<REAL>(graph.WIDTH()), static_cast<REAL>(graph.HEIGHT())};
}

void GRAPH_LAYOUT::Stroke(const COMPLEX &a, const COMPLEX &b, REAL lineWidth,
                          const HYPERNAT &colour) {
    SHAPE shape = graph.MAKE(SHAPE_KIND::LINE);
    shape.stroke = colour, shape.lineWidth = lineWidth * unit;
    shape.clip = Picture();
    shape.points = {a, b};
    graph.ADD(std::move(shape));
}

void GRAPH_LAYOUT::Text(const COMPLEX &at, const UTF16 &text, TEXT_ANCHOR anchor, bool isUpwards) {
    if (text.EMPTY()) return;
    SHAPE shape = graph.MAKE(SHAPE_KIND::TEXT);
    shape.stroke = NO_COLOUR, shape.fill = INK, shape.size = unit;
    shape.clip = Picture();
    shape.text = text, shape.anchor = anchor, shape.isUpwards = isUpwards;
    shape.points = {at};
    graph.ADD(std::move(shape));
}

// The caption with its power of ten in so many letters; the power is never cut.
UTF16 GRAPH_LAYOUT::Caption(const SCALE &scale, REAL letters) {
    const REAL behind = static_cast<REAL>(scale.power.LENGTH()) + 3; // " (" and ")"
    if (scale.power.EMPTY()) return Shortened(scale.caption, letters);
    const UTF16 caption = Shortened(scale.caption, letters - behind);
    if (caption.EMPTY())
        return static_cast<REAL>(scale.power.LENGTH()) <= letters ? scale.power : UTF16();
    return caption + " (" + scale.power + ")";
}

void GRAPH_LAYOUT::Captions(SIDE side) {
    const SCALE &scale = scales[side];
    if (!hasText || !hasCaptions) return;
    const REAL wide = static_cast<REAL>(graph.WIDTH()), letter = LETTER_WIDTH * unit;
    if (side == LEFT || side == RIGHT) { // beside the frame, clear of what stands above and below
        const REAL low = frame.top - TICK * unit, high = frame.bottom + (TICK + GAP) * unit;
        const UTF16 text = Caption(scale, (high - low) / letter);
        const REAL half = static_cast<REAL>(text.LENGTH()) * letter / 2;
        const REAL x = side == LEFT ? (GAP + BASELINE) * unit : wide - (GAP + 4) * unit;
        const REAL middle = (frame.top + frame.bottom) / 2;
        return Text({x, std::max(std::min(middle, high - half), low + half)}, text,
                    TEXT_ANCHOR::MIDDLE, true);
    }
    const REAL y = side == UP ? (GAP + BASELINE) * unit
                              : frame.bottom + (TICK + GAP + EM + GAP + BASELINE) * unit;
    const UTF16 text = Caption(scale, wide / letter - 1);
    const REAL half = static_cast<REAL>(text.LENGTH()) * letter / 2;
    const REAL middle = (frame.left + frame.right) / 2;
    const std::size_t before = graph.shapes.size();
    Text({std::max(std::min(middle, wide - half), half), y}, text, TEXT_ANCHOR::MIDDLE);
    if (side == UP && !scale.isShown && graph.shapes.size() > before)
        graph.shapes.back().font = BOLD_FONT; // the title
}

void GRAPH_LAYOUT::Step(SIDE side, REAL value, REAL length) {
    const bool isUpright = side == LEFT || side == RIGHT;
    const COMPLEX world = isUpright ? COMPLEX{0, value} : COMPLEX{value, 0};
    const COMPLEX at = Map(world, side == LEFT, side == BOTTOM);
    const REAL outwards = (side == LEFT || side == UP ? -1 : 1) * length * unit;
    if (isUpright) {
        const REAL x = side == LEFT ? frame.left : frame.right, y = Crisp(at.y);
        return Stroke({x, y}, {x + outwards, y}, 1, INK);
    }
    const REAL y = side == BOTTOM ? frame.bottom : frame.top, x = Crisp(at.x);
    Stroke({x, y}, {x, y + outwards}, 1, INK);
}

void GRAPH_LAYOUT::DRAWSCALE(SIDE side) {
    Captions(side);
    const SCALE &scale = scales[side];
    if (!scale.isShown || !hasText) return;
    const bool isUpright = side == LEFT || side == RIGHT;
    const SCALE_STEPS &steps = scale.steps;
    for (NAT i = steps.first; i <= steps.last; ++i) {
        const REAL value = steps.VALUE(i);
        Step(side, value, TICK);
        const COMPLEX world = isUpright ? COMPLEX{0, value} : COMPLEX{value, 0};
        const COMPLEX at = Map(world, side == LEFT, side == BOTTOM);
        const REAL beside = (TICK + GAP) * unit;
        const UTF16 label = steps.LABEL(i);
        const REAL y = at.y + DIGIT_MIDDLE * unit;
        switch (side) {
        case LEFT: Text({frame.left - beside, y}, label, TEXT_ANCHOR::END); break;
        case RIGHT: Text({frame.right + beside, y}, label, TEXT_ANCHOR::START); break;
        case BOTTOM:
            Text({at.x, frame.bottom + beside + (BASELINE - 1) * unit}, label, TEXT_ANCHOR::MIDDLE);
            break;
        case UP: Text({at.x, frame.top - beside}, label, TEXT_ANCHOR::MIDDLE); break;
        }
    }
    const REAL low = std::min(scale.range.min, scale.range.max);
    const REAL high = std::max(scale.range.min, scale.range.max);
    const REAL small = steps.STEP() / static_cast<REAL>(steps.minor);
    const REAL length = isUpright ? frame.HEIGHT() : frame.WIDTH();
    if (small / (high / 2 - low / 2) / 2 * length < CLOSEST_SMALL_TICKS * unit) return;
    for (NAT i = (steps.first - 1) * steps.minor; i <= (steps.last + 1) * steps.minor; ++i) {
        const REAL value = static_cast<REAL>(i) * small;
        if (MOD(i, steps.minor) != 0 && value >= low && value <= high)
            Step(side, value, SMALL_TICK);
    }
}

void GRAPH_LAYOUT::DrawFill(const CURVE &curve, const std::vector<COMPLEX> &line) {
    const REAL zero = Map({0, 0}, curve.isLeft, curve.isBottom).y;
    const REAL ground = LIMIT(zero, frame.top, frame.bottom);
    std::vector<COMPLEX> area{{line.front().x, ground}};
    area.insert(area.end(), line.begin(), line.end());
    area.push_back({line.back().x, ground});
    SHAPE shape = graph.MAKE(SHAPE_KIND::POLYGON);
    shape.stroke = NO_COLOUR, shape.fill = curve.colour;
    shape.fill.w = ROUND(static_cast<REAL>(curve.colour.w) / 4);
    shape.clip = frame;
    shape.points = CLIP_POLYGON(area, frame);
    if (shape.points.size() > 2) graph.ADD(std::move(shape));
}

// A point that no line leads to or from.
void GRAPH_LAYOUT::DrawDot(const CURVE &curve, const COMPLEX &at) {
    if (!frame.HOLDS({at.x, at.y, at.x, at.y})) return;
    SHAPE shape = graph.MAKE(SHAPE_KIND::CIRCLE);
    shape.stroke = NO_COLOUR, shape.fill = curve.colour;
    shape.radius = DOT * unit;
    shape.clip = Picture();
    shape.points = {at};
    graph.ADD(std::move(shape));
}

void GRAPH_LAYOUT::DrawCurves(LABEL_PLACES &places) {
    std::vector<std::vector<std::vector<COMPLEX>>> lines;
    for (const CURVE &curve : graph.curves) {
        lines.push_back(Lines(curve));
        if (!curve.isFilled) continue;
        for (const std::vector<COMPLEX> &line : lines.back())
            DrawFill(curve, line);
    }
    DrawMarks(places);
    for (std::size_t i = 0; i < lines.size(); ++i)
        for (std::vector<COMPLEX> &line : lines[i]) {
            if (line.size() == 1) DrawDot(graph.curves[i], line[0]);
            for (std::vector<COMPLEX> &part : CLIP_LINE(line, frame)) {
                places.TAKELINE(part);
                SHAPE shape = graph.MAKE(SHAPE_KIND::POLYLINE);
                shape.stroke = graph.curves[i].colour;
                shape.lineWidth = graph.curves[i].lineWidth * unit;
                const REAL wide = shape.lineWidth / 2;
                shape.clip = {frame.left - wide, frame.top - wide, frame.right + wide,
                              frame.bottom + wide};
                shape.points = std::move(part);
                graph.ADD(std::move(shape));
            }
        }
}

void GRAPH_LAYOUT::DrawMarks(LABEL_PLACES &places) {
    for (const TGRAPH::MARK &mark : graph.marks) {
        const COMPLEX top = Map(mark.at, mark.isLeft, mark.isBottom);
        const REAL zero = Map({0, 0}, mark.isLeft, mark.isBottom).y;
        const COMPLEX ground{top.x, LIMIT(zero, frame.top, frame.bottom)};
        if (std::isnan(top.x) || std::isnan(top.y)) continue;
        for (std::vector<COMPLEX> &part : CLIP_LINE({ground, top}, frame)) {
            places.TAKELINE(part);
            SHAPE shape = graph.MAKE(SHAPE_KIND::LINE);
            shape.stroke = mark.colour, shape.lineWidth = mark.lineWidth * unit;
            if (mark.isBlended) shape.stroke.w = ROUND(static_cast<REAL>(mark.colour.w) / 4);
            shape.clip = frame;
            shape.points = std::move(part);
            graph.ADD(std::move(shape));
        }
    }
}

// The marks of the points; where each one is, also of those outside the frame.
std::vector<COMPLEX> GRAPH_LAYOUT::DrawSpots(LABEL_PLACES &places) {
    std::vector<COMPLEX> spots;
    const REAL radius = MARKER * unit;
    for (const TGRAPH::POINT_OF_INTEREST &point : graph.points) {
        const COMPLEX at = Map(point.at, point.isLeft, point.isBottom);
        spots.push_back(at);
        if (!frame.HOLDS({at.x, at.y, at.x, at.y})) continue; // NaN too
        places.TAKE({at.x - radius, at.y - radius, at.x + radius, at.y + radius});
        SHAPE shape = graph.MAKE(SHAPE_KIND::CIRCLE);
        shape.stroke = INK, shape.fill = PAPER;
        shape.lineWidth = unit, shape.radius = radius;
        shape.clip = Picture();
        shape.points = {at};
        graph.ADD(std::move(shape));
    }
    return spots;
}

void GRAPH_LAYOUT::DrawLabels(LABEL_PLACES &places, const std::vector<COMPLEX> &spots) {
    if (!hasText) return;
    const REAL radius = MARKER * unit;
    for (std::size_t i = 0; i < spots.size(); ++i) {
        const UTF16 &text = graph.points[i].text;
        const COMPLEX &at = spots[i];
        if (text.EMPTY() || !frame.HOLDS({at.x, at.y, at.x, at.y})) continue;
        const REAL width = static_cast<REAL>(text.LENGTH()) * LETTER_WIDTH * unit;
        PICTURE_AREA place;
        if (!places.PLACE(at, width, EM * unit, place)) continue;
        places.TAKE({place.left - 2 * unit, place.top, place.right + 2 * unit, place.bottom});
        const COMPLEX near{LIMIT(at.x, place.left, place.right),
                           LIMIT(at.y, place.top, place.bottom)};
        const REAL away = std::hypot(near.x - at.x, near.y - at.y);
        if (away > 3 * radius) { // a line from the mark to a label that stands apart
            const REAL share = (radius + unit) / away;
            Stroke({at.x + (near.x - at.x) * share, at.y + (near.y - at.y) * share}, near, 0.75,
                   LEADER);
            places.TAKELINE({at, near});
        }
        Text({(place.left + place.right) / 2, place.top + BASELINE * unit}, text,
             TEXT_ANCHOR::MIDDLE);
    }
}

std::vector<const GRAPH_LAYOUT::CURVE *> GRAPH_LAYOUT::Named() const {
    std::vector<const CURVE *> named;
    for (const CURVE &curve : graph.curves)
        if (!curve.legend.EMPTY()) named.push_back(&curve);
    return named;
}

// A sample of the line and the name behind it; `at` is the left end of the row's middle.
void GRAPH_LAYOUT::LegendEntry(const CURVE &curve, const COMPLEX &at, NAT letters) {
    const COMPLEX end{at.x + SAMPLE * unit, at.y};
    if (curve.isFilled) {
        SHAPE swatch = graph.MAKE(SHAPE_KIND::RECTANGLE);
        swatch.stroke = NO_COLOUR, swatch.fill = curve.colour;
        swatch.fill.w = ROUND(static_cast<REAL>(curve.colour.w) / 4);
        swatch.clip = Picture();
        swatch.points = {at, {end.x, at.y + 5 * unit}};
        graph.ADD(std::move(swatch));
    }
    Stroke(at, end, curve.lineWidth, curve.colour);
    Text({end.x + PADDING * unit, at.y + DIGIT_MIDDLE * unit},
         Shortened(curve.legend, static_cast<REAL>(letters)), TEXT_ANCHOR::START);
}

// Inside the frame where no curve runs; false when there is no such place.
bool GRAPH_LAYOUT::DrawLegend(LABEL_PLACES &places) {
    const std::vector<const CURVE *> named = Named();
    if (named.empty() || !hasText) return true;
    NAT letters = 0;
    for (const CURVE *curve : named)
        letters = std::max(letters, curve->legend.LENGTH());
    const REAL rows = static_cast<REAL>(named.size());
    const REAL width = (3 * PADDING + SAMPLE + static_cast<REAL>(letters) * LETTER_WIDTH) * unit;
    PICTURE_AREA place;
    if (!places.PLACEBOX(width, (rows * ROW + PADDING) * unit, place)) return false;
    REAL y = Crisp(place.top + (PADDING / 2 + ROW / 2) * unit);
    for (const CURVE *curve : named) {
        LegendEntry(*curve, {Crisp(place.left + PADDING * unit), y}, letters);
        y += ROW * unit;
    }
    places.TAKE(place);
    return true;
}

// Entries a row above the frame, all in columns as wide as the longest name; at least one.
NAT GRAPH_LAYOUT::LegendColumns() const {
    NAT letters = 0;
    for (const CURVE *curve : Named())
        letters = std::max(letters, curve->legend.LENGTH());
    const REAL column = (4 * PADDING + SAMPLE + static_cast<REAL>(letters) * LETTER_WIDTH) * unit;
    return std::max<NAT>(FLOOR(frame.WIDTH() / column), 1);
}

void GRAPH_LAYOUT::LegendAbove() {
    const std::vector<const CURVE *> named = Named();
    const NAT columns = LegendColumns();
    const REAL column = frame.WIDTH() / static_cast<REAL>(columns);
    const NAT letters =
        std::max<NAT>(FLOOR((column / unit - 3 * PADDING - SAMPLE) / LETTER_WIDTH), 1);
    const REAL scale = scales[UP].isShown ? TICK + GAP + EM : 0;
    const REAL top = frame.top - (scale + static_cast<REAL>(graph.legendRows) * ROW) * unit;
    for (std::size_t i = 0; i < named.size(); ++i) {
        const NAT number = static_cast<NAT>(i), row = number / columns;
        if (row >= graph.legendRows) return; // those that find no room are left out
        LegendEntry(*named[i],
                    {Crisp(frame.left + static_cast<REAL>(number % columns) * column),
                     Crisp(top + (static_cast<REAL>(row) + 0.5) * ROW * unit)},
                    letters);
    }
}

void GRAPH_LAYOUT::DRAW() {
    if (frame.WIDTH() < 1 || frame.HEIGHT() < 1) return;
    LABEL_PLACES places(graph.WIDTH(), graph.HEIGHT(), frame, unit);
    DrawCurves(places);
    SHAPE border = graph.MAKE(SHAPE_KIND::RECTANGLE);
    border.stroke = INK, border.lineWidth = unit;
    border.clip = Picture();
    border.points = {{frame.left, frame.top}, {frame.right, frame.bottom}};
    graph.ADD(std::move(border));
    for (const SIDE side : {LEFT, RIGHT, BOTTOM, UP})
        DRAWSCALE(side);
    Text({(frame.left + frame.right) / 2, (frame.top + frame.bottom) / 2}, graph.note,
         TEXT_ANCHOR::MIDDLE);
    const std::vector<COMPLEX> spots = DrawSpots(places);
    if (graph.legendRows > 0) {
        LegendAbove();
    } else if (!DrawLegend(places)) { // once more, with room above the frame
        const REAL rows =
            std::ceil(static_cast<REAL>(Named().size()) / static_cast<REAL>(LegendColumns()));
        graph.legendRows = std::max<NAT>(
            std::min(FLOOR(rows), FLOOR(static_cast<REAL>(graph.HEIGHT()) / (4 * ROW * unit))), 1);
        graph.shapes.clear();
        return GRAPH_LAYOUT(graph).DRAW();
    }
    DrawLabels(places, spots);
}
} // namespace morvane
