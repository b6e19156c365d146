#include "image2d/chart/graph_layout.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"

#include <algorithm>
#include <cmath>
#include <iterator>

// Lengths are for a picture of 640x480 and multiplied by the unit: a line of text is 16 high, a
// letter 8 wide.
namespace morvane {
namespace {
constexpr REAL TEXT_LINE = EM, BORDER = 4, CAPTION = TEXT_LINE + 4;
constexpr REAL OVERHANG = 10;     // of the uppermost number over the frame
constexpr REAL RIGHT_MARGIN = 14; // when no scale stands there
constexpr REAL LABEL_GAP = 12;    // between numbers of a level scale
constexpr REAL SMALLEST_FRAME = 40;
constexpr NAT MOST_STEPS = 20;

REAL Across(REAL value, const RANGE &range, REAL from, REAL to) {
    const REAL half = range.max / 2 - range.min / 2;
    return from + (value / 2 - range.min / 2) / half * (to - from);
}
} // namespace

GRAPH_LAYOUT::GRAPH_LAYOUT(TGRAPH &newGraph) : graph(newGraph) {
    const REAL wide = static_cast<REAL>(graph.WIDTH()), tall = static_cast<REAL>(graph.HEIGHT());
    unit = static_cast<REAL>(std::max<NAT>(ROUND(std::min(wide / 640, tall / 480)), 1));
    SetRanges();
    Arrange();
    const auto isTight = [&] {
        return frame.WIDTH() < SMALLEST_FRAME * unit || frame.HEIGHT() < SMALLEST_FRAME * unit;
    };
    if (isTight()) hasCaptions = false, Arrange();
    if (isTight()) hasText = false, Arrange();
}

// An axis has the range that was set, else that of its curves; left and bottom have 0..1 without
// either.
void GRAPH_LAYOUT::SetRanges() {
    for (std::size_t side = 0; side < std::size(scales); ++side) {
        const TGRAPH::AXIS &axis = graph.axes[side];
        RANGE found{REALMAX, -REALMAX};
        for (const CURVE &curve : graph.curves) {
            const bool isOwn =
                side < BOTTOM ? curve.isLeft == (side == LEFT) : curve.isBottom == (side == BOTTOM);
            if (!isOwn || axis.isRanged) continue;
            for (const COMPLEX &point : curve.points.SPAN()) {
                const REAL value = side < BOTTOM ? point.y : point.x;
                if (!std::isfinite(value)) continue;
                found = {std::min(found.min, value), std::max(found.max, value)};
            }
        }
        const bool isFound = found.min <= found.max;
        scales[side].isShown = axis.isRanged || isFound || side == LEFT || side == BOTTOM;
        scales[side].range = axis.isRanged ? axis.range
                             : isFound     ? GETSOUNDRANGE(found.min, found.max)
                                           : RANGE{0, 1};
    }
}

void GRAPH_LAYOUT::SetCaption(SCALE &scale) {
    scale.caption = graph.axes[&scale - scales].caption;
    scale.power = {};
    if (scale.isShown && scale.steps.power != 0)
        scale.power = "\u00D710^" + std::to_string(scale.steps.power);
}

// Left and right edge and the steps of the level scales, which need each other's room.
void GRAPH_LAYOUT::ArrangeAcross(REAL top, REAL bottom) {
    const REAL wide = static_cast<REAL>(graph.WIDTH()), letter = LETTER_WIDTH * unit;
    const NAT wanted = LIMIT(graph.SCALE, NAT{1}, MOST_STEPS);
    const NAT mostUpright = std::max<NAT>(FLOOR((bottom - top) / (2 * TEXT_LINE * unit)), 1);
    REAL edges[2] = {0, 0}; // room of the left and the right scale
    for (const SIDE side : {LEFT, RIGHT}) {
        SCALE &scale = scales[side];
        scale.steps = GETSTEPS(scale.range, std::min(wanted, mostUpright));
        SetCaption(scale);
        if (!scale.isShown) continue;
        edges[side] = BORDER * unit + (TICK + GAP) * unit +
                      letter * static_cast<REAL>(scale.steps.LONGEST_LABEL());
        if (hasCaptions && !(scale.caption + scale.power).EMPTY()) edges[side] += CAPTION * unit;
    }
    frame.left = edges[LEFT];
    frame.right = wide - std::max(edges[RIGHT], RIGHT_MARGIN * unit);
    for (const SIDE side : {BOTTOM, UP}) {
        SCALE &scale = scales[side];
        const REAL span = std::abs(scale.range.max / 2 - scale.range.min / 2) * 2;
        for (NAT count = wanted; count >= 1; --count) {
            scale.steps = GETSTEPS(scale.range, count);
            const REAL room = scale.steps.STEP() / span * frame.WIDTH();
            const REAL label = letter * static_cast<REAL>(scale.steps.LONGEST_LABEL());
            if (label + LABEL_GAP * unit <= room) break;
        }
        SetCaption(scale);
        if (!scale.isShown) continue;
        const REAL half = letter * static_cast<REAL>(scale.steps.LONGEST_LABEL()) / 2;
        frame.right = std::min(frame.right, wide - half - BORDER * unit);
        frame.left = std::max(frame.left, half + BORDER * unit);
    }
}

void GRAPH_LAYOUT::Arrange() {
    const REAL tall = static_cast<REAL>(graph.HEIGHT());
    const auto hasCaption = [&](SIDE side) {
        const TGRAPH::AXIS &axis = graph.axes[side];
        const REAL size =
            std::max(std::abs(scales[side].range.min), std::abs(scales[side].range.max));
        const bool hasPower = scales[side].isShown && (size >= 1e6 || size < 1e-3);
        return hasCaptions && (!axis.caption.EMPTY() || hasPower);
    };
    REAL top = BORDER + static_cast<REAL>(graph.legendRows) * (TEXT_LINE + 2);
    if (hasCaption(UP)) top += CAPTION;
    if (scales[UP].isShown) top += TICK + GAP + TEXT_LINE;
    REAL bottom = TICK + GAP + TEXT_LINE + BORDER;
    if (hasCaption(BOTTOM)) bottom += CAPTION;
    frame.top = std::max(top, OVERHANG) * unit;
    frame.bottom = tall - bottom * unit;
    if (hasText) {
        ArrangeAcross(frame.top, frame.bottom);
    } else {
        const REAL wide = static_cast<REAL>(graph.WIDTH());
        const REAL edge = std::min({1.0, wide / 4, tall / 4});
        frame = {edge, edge, wide - edge, tall - edge};
    }
    frame = {Crisp(frame.left), Crisp(frame.top), Crisp(frame.right), Crisp(frame.bottom)};
    frame.right = std::max(frame.right, frame.left),
    frame.bottom = std::max(frame.bottom, frame.top);
}

// The nearest place where a line of one unit covers whole pixels.
REAL GRAPH_LAYOUT::Crisp(REAL coordinate) const {
    const REAL half = MOD(ROUND(unit), 2) == 1 ? 0.5 : 0;
    return static_cast<REAL>(FLOOR(coordinate)) + half;
}

COMPLEX GRAPH_LAYOUT::Map(const COMPLEX &world, bool isLeft, bool isBottom) const {
    constexpr REAL FARTHEST = 1e6;
    const REAL x = Across(world.x, scales[isBottom ? BOTTOM : UP].range, frame.left, frame.right);
    const REAL y = Across(world.y, scales[isLeft ? LEFT : RIGHT].range, frame.bottom, frame.top);
    return {LIMIT(x, -FARTHEST, FARTHEST), LIMIT(y, -FARTHEST, FARTHEST)};
}

// A curve's lines in picture units, one for each run of points that are numbers. Of points that
// follow one another in a column of pixels the first, lowest, highest and last stay, so that a
// curve of millions of points looks the same with some thousand.
std::vector<std::vector<COMPLEX>> GRAPH_LAYOUT::Lines(const CURVE &curve) const {
    std::vector<std::vector<COMPLEX>> lines;
    std::vector<COMPLEX> run; // at most first, lowest, highest and last of a column
    const auto flush = [&] {
        if (!run.empty()) lines.back().insert(lines.back().end(), run.begin(), run.end());
        run.clear();
    };
    bool isOpen = false;
    for (const COMPLEX &world : curve.points.SPAN()) {
        const COMPLEX at = Map(world, curve.isLeft, curve.isBottom);
        if (std::isnan(at.x) || std::isnan(at.y)) {
            flush();
            isOpen = false;
            continue;
        }
        if (!isOpen) lines.emplace_back();
        isOpen = true;
        if (!run.empty() && std::floor(run.front().x) != std::floor(at.x)) flush();
        run.push_back(at);
        if (run.size() < 5) continue;
        // Of the three between first and last the one that is neither lowest nor highest goes.
        const auto [low, high] = std::minmax_element(
            run.begin(), run.end(), [](const COMPLEX &a, const COMPLEX &b) { return a.y < b.y; });
        for (auto point = run.begin() + 1; point != run.end() - 1; ++point)
            if (point != low && point != high) {
                run.erase(point);
                break;
            }
    }
    flush();
    return lines;
}
} // namespace morvane
