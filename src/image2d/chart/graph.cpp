#include "image2d/chart/graph.hpp"

#include "foundation/base/safe_arithmetic.hpp"
#include "image2d/chart/graph_layout.hpp"

#include <algorithm>
#include <iterator>

namespace morvane {
namespace {
// Colours that readers with any colour vision tell apart (Okabe and Ito 2008); black is the last.
constexpr HYPERNAT PALETTE[] = {{0, 114, 178, 255},   {213, 94, 0, 255},  {0, 158, 115, 255},
                                {204, 121, 167, 255}, {230, 159, 0, 255}, {86, 180, 233, 255},
                                {0, 0, 0, 255}};
constexpr REAL CURVE_WIDTH = 1.5;
constexpr std::size_t MOST_POINTS = 10000; // marked points of a chart
} // namespace

void TGRAPH::INIT(NAT width, NAT height) {
    DONE();
    T2DVECTOR::INIT(width, height);
}

void TGRAPH::DONE() {
    CLEAR();
    T2DVECTOR::DONE();
    for (AXIS &axis : axes)
        axis = {};
    SCALE = 5;
    isCreated = false;
}

void TGRAPH::CLEAR() {
    T2DVECTOR::CLEAR();
    curves.clear();
    marks.clear();
    points.clear();
    note = {};
    isLeft = isBottom = true;
    selected = legendRows = 0;
    prepared = 0;
}

void TGRAPH::SetRange(AXIS &axis, REAL min, REAL max) {
    axis.range = GETSOUNDRANGE(min, max);
    axis.isRanged = true;
    CHANGED();
}

void TGRAPH::SetCaption(AXIS &axis, const UTF16 &text) {
    axis.caption = text;
    CHANGED();
}

void TGRAPH::CREATE() {
    isCreated = true;
    CHANGED();
    const GRAPH_LAYOUT layout(*this);
    const PICTURE_AREA &frame = layout.FRAME();
    WINDOW(frame.left, frame.top, frame.right, frame.bottom);
    const RANGE &left = layout.AXIS(GRAPH_LAYOUT::LEFT),
                &bottom = layout.AXIS(GRAPH_LAYOUT::BOTTOM);
    SCREEN({bottom.min, left.max}, {bottom.max, left.min});
}

void TGRAPH::StartCurve() {
    LINE_OF_POINTS curve;
    curve.isLeft = isLeft, curve.isBottom = isBottom;
    curve.colour = VALUE, curve.lineWidth = LINEWIDTH;
    curve.points.INIT();
    curves.push_back(std::move(curve));
}

void TGRAPH::SELECT(bool left, bool bottom) {
    isLeft = left, isBottom = bottom;
    VALUE = PALETTE[static_cast<std::size_t>(selected) % std::size(PALETTE)];
    LINEWIDTH = CURVE_WIDTH;
    ++selected;
    StartCurve();
}

void TGRAPH::LEGEND(const UTF16 &text) {
    if (curves.empty()) StartCurve();
    curves.back().legend = text;
    CHANGED();
}

void TGRAPH::FILL() {
    if (curves.empty()) StartCurve();
    curves.back().isFilled = true;
    CHANGED();
}

void TGRAPH::CURVE(REAL x, REAL y) {
    if (curves.empty()) StartCurve();
    LINE_OF_POINTS &curve = curves.back();
    if (curve.points.LENGTH == 0) curve.colour = VALUE, curve.lineWidth = LINEWIDTH;
    curve.points.PUSH({x, y});
    CHANGED();
}

void TGRAPH::HISTOCURVE(REAL x, REAL y) {
    if (!curves.empty() && curves.back().points.LENGTH > 0) {
        const TPOLYCOMPLEX &before = curves.back().points;
        const COMPLEX &last = before._GET(before.LENGTH);
        if (last.x != x) CURVE(x, last.y);
    }
    CURVE(x, y);
}

void TGRAPH::VLINE(REAL x, REAL y) {
    marks.push_back({isLeft, isBottom, false, VALUE, LINEWIDTH, {x, y}});
    CHANGED();
}
void TGRAPH::VVLINE(REAL x, REAL y) {
    marks.push_back({isLeft, isBottom, true, VALUE, LINEWIDTH, {x, y}});
    CHANGED();
}

void TGRAPH::POI(REAL x, REAL y, const UTF16 &text) {
    if (points.size() < MOST_POINTS) points.push_back({isLeft, isBottom, {x, y}, text});
    CHANGED();
}

void TGRAPH::NOTE(const UTF16 &text) {
    note = text;
    CHANGED();
}

void TGRAPH::_LEFT_WRITE() { GRAPH_LAYOUT(*this).DRAWSCALE(GRAPH_LAYOUT::LEFT); }
void TGRAPH::_RIGHT_WRITE() { GRAPH_LAYOUT(*this).DRAWSCALE(GRAPH_LAYOUT::RIGHT); }
void TGRAPH::_BOTTOM_WRITE() { GRAPH_LAYOUT(*this).DRAWSCALE(GRAPH_LAYOUT::BOTTOM); }
void TGRAPH::_UP_WRITE() { GRAPH_LAYOUT(*this).DRAWSCALE(GRAPH_LAYOUT::UP); }

// Draws the chart anew in front of the shapes that the caller has drawn.
void TGRAPH::Prepare(T2DVECTOR &drawing) {
    TGRAPH &graph = static_cast<TGRAPH &>(drawing);
    const std::size_t prepared = std::min(graph.prepared, graph.shapes.size());
    const auto first = graph.shapes.begin() + static_cast<std::ptrdiff_t>(prepared);
    std::vector<SHAPE> own(std::make_move_iterator(first),
                           std::make_move_iterator(graph.shapes.end()));
    graph.shapes.clear();
    graph.legendRows = 0;
    if (graph.isCreated) GRAPH_LAYOUT(graph).DRAW();
    graph.prepared = graph.shapes.size();
    graph.shapes.insert(graph.shapes.end(), std::make_move_iterator(own.begin()),
                        std::make_move_iterator(own.end()));
}
} // namespace morvane
