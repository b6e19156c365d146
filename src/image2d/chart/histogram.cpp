#include "image2d/chart/histogram.hpp"

#include "foundation/base/safe_arithmetic.hpp"
#include "image2d/chart/scale_steps.hpp"

#include <algorithm>
#include <cmath>

namespace morvane {
namespace {
constexpr NAT WHOLE_BINS = 256;   // up to this many all bins are shown
constexpr REAL ROOM_ABOVE = 0.06; // of the range, so that no peak touches the frame
constexpr REAL ZERO_SHARE = 0.5;
constexpr const char *NOTHING = "no values";

} // namespace

void THISTOGRAM::INIT(NAT width, NAT height) {
    TGRAPH::INIT(width, height);
    LOGBASE = 0;
    LEGENDS({}, {});
}

REAL THISTOGRAM::DRAWN(REAL value) const { return LOGBASE == 0 ? value : NORMLOG(LOGBASE, value); }

void THISTOGRAM::_MHISTO(const RANGE &bottom, const RANGE &left) {
    const RANGE drawn = GETSOUNDRANGE(DRAWN(left.min), DRAWN(left.max));
    const REAL room = (drawn.max / 2 - drawn.min / 2) * 2 * ROOM_ABOVE;
    BOTTOM(bottom.min, bottom.max);
    LEFT(drawn.min == 0 ? 0 : drawn.min - room, drawn.max == 0 ? 0 : drawn.max + room);
    CREATE();
}

void THISTOGRAM::_MADDHISTO(const TPOLYREAL &values, REAL first) {
    SELECT();
    for (NAT i = 1; i <= values.LENGTH; ++i)
        CURVE(first + static_cast<REAL>(i - 1), DRAWN(values._GET(i)));
}

void THISTOGRAM::LEGENDS(const UTF16 &a, const UTF16 &b) { legends[0] = a, legends[1] = b; }

// Steps from x on, each up to the next one's x; the last one ends the picture.
void THISTOGRAM::Steps(const TPOLYCOMPLEX &steps) {
    RANGE counts{0, 1};
    for (const COMPLEX &step : steps.SPAN())
        counts = {std::min(counts.min, step.y), std::max(counts.max, step.y)};
    _MHISTO({steps.GET(1).x, steps.GET(steps.LENGTH).x}, counts);
    SELECT();
    LINEWIDTH = 1;
    FILL();
    LEGEND(legends[0]);
    CURVE(steps.GET(1).x, 0);
    for (const COMPLEX &step : steps.SPAN())
        HISTOCURVE(step.x, DRAWN(step.y));
}

void THISTOGRAM::HISTOGRAM(const TPOLYNAT &bins, REAL first) {
    NAT from = 1, to = bins.LENGTH;
    while (from <= to && bins._GET(from) == 0)
        ++from;
    const bool isEmpty = from > to;
    while (!isEmpty && bins._GET(to) == 0)
        --to;
    if (bins.LENGTH <= WHOLE_BINS || isEmpty) from = 1, to = bins.LENGTH;
    TPOLYCOMPLEX steps;
    steps.INIT();
    for (NAT i = from; i <= to; ++i)
        steps.PUSH({first + static_cast<REAL>(i) - 1.5, static_cast<REAL>(bins._GET(i))});
    steps.PUSH({first + static_cast<REAL>(to) - 0.5, 0});
    Steps(steps);
    if (isEmpty) NOTE(NOTHING);
}

void THISTOGRAM::HISTOGRAM(const TPOLYCOMPLEXNAT &pairs) {
    TPOLYCOMPLEX steps;
    steps.INIT();
    for (NAT i = 1; i <= pairs.LENGTH; ++i) {
        const COMPLEXNAT &pair = pairs._GET(i);
        const REAL left = static_cast<REAL>(pair.x) - 0.5;
        if (i > 1 && pairs._GET(i - 1).x < pair.x - 1)
            steps.PUSH({static_cast<REAL>(pairs._GET(i - 1).x) + 0.5, 0});
        steps.PUSH({left, static_cast<REAL>(pair.y)});
    }
    steps.PUSH({static_cast<REAL>(pairs.GET(pairs.LENGTH).x) + 0.5, 0});
    Steps(steps);
    if (pairs.LENGTH == 0) NOTE(NOTHING);
}

void THISTOGRAM::HISTOGRAM(const TPOLYREAL &values, REAL first) {
    const TPOLYREAL *lists[] = {&values};
    Curves(lists, first);
}

void THISTOGRAM::HISTOGRAM(const TPOLYREAL &a, const TPOLYREAL &b, REAL first) {
    const TPOLYREAL *lists[] = {&a, &b};
    Curves(lists, first);
}

void THISTOGRAM::Curves(std::span<const TPOLYREAL *const> lists, REAL first) {
    RANGE raw, drawn{REALMAX, -REALMAX}; // the values that are drawn lowest and highest
    NAT length = 0;
    for (const TPOLYREAL *list : lists) {
        length = std::max(length, list->LENGTH);
        for (const REAL value : list->SPAN()) {
            const REAL y = DRAWN(value);
            if (!std::isfinite(y)) continue;
            if (y < drawn.min) drawn.min = y, raw.min = value;
            if (y > drawn.max) drawn.max = y, raw.max = value;
        }
    }
    const bool isEmpty = drawn.min > drawn.max;
    if (isEmpty) raw = {0, 1};
    // Zero belongs to a chart of positive values unless they all lie far away from it.
    if (LOGBASE == 0 && raw.min > 0 && raw.min < raw.max * ZERO_SHARE) raw.min = 0;
    _MHISTO({first, first + static_cast<REAL>(std::max<NAT>(length, 2) - 1)}, raw);
    for (std::size_t i = 0; i < lists.size() && !isEmpty; ++i) {
        _MADDHISTO(*lists[i], first);
        LEGEND(legends[i]);
    }
    if (isEmpty) NOTE(NOTHING);
}
} // namespace morvane
