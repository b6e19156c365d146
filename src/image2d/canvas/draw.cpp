#include "image2d/canvas/draw.hpp"

#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace morvane {
namespace {
constexpr NAT TENTHS = 10;
// Coordinates are limited to this, so that their sums and tenths stay whole numbers.
constexpr NAT FARTHEST = NAT{1} << 40;
// Steps of a line or a circle; longer ones are drawn with fewer points than pixels.
constexpr NAT MOST_STEPS = NAT{1} << 24;

NAT Near(NAT coordinate) { return LIMIT(coordinate, -FARTHEST, FARTHEST); }

// Moves a pixel inside the window towards the pen by `share` of 100, truncated.
void Blend(TCANVAS &canvas, NAT x, NAT y, NAT share) {
    if (share == 0 || !canvas.window.HOLDS(x, y)) return;
    const NAT old = canvas._GET(x, y);
    const NAT mixed = old + (canvas.VALUE - old) * share / 100;
    canvas._PUT(x, y, static_cast<BYTE>(LIMIT(mixed, NAT{0}, TCANVAS::MAXIMUM)));
}

template <class PIXEL> void Blend(CANVAS<PIXEL> &canvas, NAT x, NAT y) {
    canvas._PUT(x, y, static_cast<PIXEL>((3 * NAT{canvas._GET(x, y)} + canvas.VALUE) / 4));
}

// The part of a run that lies in the window; false when none does.
bool Clip(NAT &from, NAT &to, NAT low, NAT high) {
    from = std::max(from, low);
    to = std::min(to, high);
    return from <= to;
}

struct STRAIGHT {
    NAT steps; // points less one
    REAL stepX, stepY;
};
// A step is a pixel long, so that the last point lies up to half a pixel before or behind the end.
STRAIGHT Straight(NAT x1, NAT y1, NAT x2, NAT y2) {
    const REAL dx = static_cast<REAL>(x2 - x1), dy = static_cast<REAL>(y2 - y1);
    const REAL length = std::hypot(dx, dy);
    const NAT steps = std::min(ROUND(length), MOST_STEPS);
    const REAL count = steps < MOST_STEPS ? length : static_cast<REAL>(steps);
    return {steps, DIVIDE(dx, count), DIVIDE(dy, count)};
}
} // namespace

void _POINT10(TCANVAS &canvas, NAT x, NAT y) {
    const PIXEL_AREA &window = canvas.window;
    if (window.EMPTY()) return;
    if (x < window.left * TENTHS || x > window.right * TENTHS) return;
    if (y < window.top * TENTHS || y > window.bottom * TENTHS) return;
    const NAT fractionX = x % TENTHS, fractionY = y % TENTHS;
    const NAT left = x / TENTHS, top = y / TENTHS;
    Blend(canvas, left, top, (TENTHS - fractionX) * (TENTHS - fractionY));
    Blend(canvas, left + 1, top, fractionX * (TENTHS - fractionY));
    Blend(canvas, left, top + 1, (TENTHS - fractionX) * fractionY);
    Blend(canvas, left + 1, top + 1, fractionX * fractionY);
}

template <class PIXEL> void _HLINE(CANVAS<PIXEL> &canvas, NAT x1, NAT x2, NAT y) {
    const auto [low, high] = std::minmax({Near(x1), Near(x2)});
    NAT from = low, to = high - 1;
    if (y < canvas.window.top || y > canvas.window.bottom) return;
    if (!Clip(from, to, canvas.window.left, canvas.window.right)) return;
    std::fill(canvas.ROW(y) + from - 1, canvas.ROW(y) + to, canvas.VALUE);
}

template <class PIXEL> void _LINE(CANVAS<PIXEL> &canvas, NAT x1, NAT x2, NAT y) {
    _HLINE(canvas, std::min(Near(x1), Near(x2)), std::max(Near(x1), Near(x2)) + 1, y);
}

template <class PIXEL> void _VLINE(CANVAS<PIXEL> &canvas, NAT x, NAT y1, NAT y2) {
    const auto [low, high] = std::minmax({y1, y2});
    NAT from = low, to = high;
    if (x < canvas.window.left || x > canvas.window.right) return;
    if (!Clip(from, to, canvas.window.top, canvas.window.bottom)) return;
    for (NAT y = from; y <= to; ++y)
        canvas._PUT(x, y, canvas.VALUE);
}

template <class PIXEL> void _VVLINE(CANVAS<PIXEL> &canvas, NAT x, NAT y1, NAT y2) {
    const auto [low, high] = std::minmax({y1, y2});
    NAT from = low, to = high;
    if (x < canvas.window.left || x > canvas.window.right) return;
    if (!Clip(from, to, canvas.window.top, canvas.window.bottom)) return;
    for (NAT y = from; y <= to; ++y)
        Blend(canvas, x, y);
}

template <class PIXEL> void _SCAN_RESET(CANVAS<PIXEL> &canvas) {
    canvas.SCANLEFT.INIT(canvas.HEIGHT + 1);
    canvas.SCANRIGHT.INIT(canvas.HEIGHT + 1);
    canvas.SCANLEFT.FILL(false); // INIT keeps a list that has its length already
    canvas.SCANRIGHT.FILL(false);
}

namespace {
// Each row of the edge that its side has not seen yet: `run(from, to, y)` within the window.
template <class PIXEL, class RUN>
void ScanEdge(CANVAS<PIXEL> &canvas, const COMPLEXNAT &a, const COMPLEXNAT &b, NAT x,
              const RUN &run) {
    const COMPLEXNAT &upper = a.y <= b.y ? a : b, &lower = a.y <= b.y ? b : a;
    const NAT height = std::max<NAT>(lower.y - upper.y, 1);
    const REAL slope = static_cast<REAL>(lower.x - upper.x) / static_cast<REAL>(height);
    NAT first = upper.y, last = lower.y;
    if (!Clip(first, last, canvas.window.top, canvas.window.bottom)) return;
    for (NAT y = first; y <= last; ++y) {
        const NAT edge = upper.x + ROUND(slope * static_cast<REAL>(y - upper.y));
        TPOLYBOOL &seen = edge < x ? canvas.SCANLEFT : canvas.SCANRIGHT;
        if (seen.GET(y)) continue;
        seen.PUT(y, true);
        NAT from = std::min(edge, x), to = std::max(edge, x);
        if (Clip(from, to, canvas.window.left, canvas.window.right)) run(from, to, y);
    }
}
} // namespace

template <class PIXEL> void _VLINE(CANVAS<PIXEL> &canvas, NAT x1, NAT y1, NAT x2, NAT y2, NAT x) {
    ScanEdge(canvas, {Near(x1), Near(y1)}, {Near(x2), Near(y2)}, Near(x),
             [&](NAT from, NAT to, NAT y) { _LINE(canvas, from, to, y); });
}

template <class PIXEL> void _VVLINE(CANVAS<PIXEL> &canvas, NAT x1, NAT y1, NAT x2, NAT y2, NAT x) {
    ScanEdge(canvas, {Near(x1), Near(y1)}, {Near(x2), Near(y2)}, Near(x),
             [&](NAT from, NAT to, NAT y) {
                 for (NAT i = from; i <= to; ++i)
                     Blend(canvas, i, y);
             });
}

template <class PIXEL> void LINE(CANVAS<PIXEL> &canvas, NAT x1, NAT y1, NAT x2, NAT y2) {
    x1 = Near(x1), y1 = Near(y1), x2 = Near(x2), y2 = Near(y2);
    if (y1 == y2) return _LINE(canvas, x1, x2, y1);
    if (x1 == x2) return _VLINE(canvas, x1, y1, y2);
    const STRAIGHT line = Straight(x1, y1, x2, y2);
    for (NAT i = 0; i <= line.steps; ++i) {
        const REAL x = static_cast<REAL>(x1) + static_cast<REAL>(i) * line.stepX;
        const REAL y = static_cast<REAL>(y1) + static_cast<REAL>(i) * line.stepY;
        if constexpr (std::is_same_v<PIXEL, BYTE>)
            _POINT10(canvas, ROUND(x * TENTHS), ROUND(y * TENTHS));
        else if (canvas.window.HOLDS(ROUND(x), ROUND(y)))
            canvas._PUT(ROUND(x), ROUND(y), canvas.VALUE);
    }
}

template <class PIXEL> void RECTANGLE(CANVAS<PIXEL> &canvas, NAT x1, NAT y1, NAT x2, NAT y2) {
    _LINE(canvas, x1, x2, y1);
    _LINE(canvas, x1, x2, y2);
    _VLINE(canvas, x1, y1, y2);
    _VLINE(canvas, x2, y1, y2);
}

template <class PIXEL> void FULLRECTANGLE(CANVAS<PIXEL> &canvas, NAT x1, NAT y1, NAT x2, NAT y2) {
    const auto [low, high] = std::minmax({y1, y2});
    NAT from = low, to = high;
    if (!Clip(from, to, canvas.window.top, canvas.window.bottom)) return;
    for (NAT y = from; y <= to; ++y)
        _LINE(canvas, x1, x2, y);
}

namespace {
// The points of an ellipse in tenths around (x*10-5, y*10-5), one for each tenth of a pixel of the
// larger circle's length.
template <class POINT>
void EllipsePoints(NAT x, NAT y, REAL radiusX, REAL radiusY, REAL angle, const POINT &point) {
    if (!(radiusX >= 0) || !(radiusY >= 0)) return;
    const REAL tenthsX = std::min(radiusX, static_cast<REAL>(FARTHEST)) * TENTHS;
    const REAL tenthsY = std::min(radiusY, static_cast<REAL>(FARTHEST)) * TENTHS;
    const REAL length = 2 * std::numbers::pi * std::max(tenthsX, tenthsY);
    const NAT count = LIMIT(ROUND(length), NAT{1}, MOST_STEPS);
    const REAL centreX = static_cast<REAL>(Near(x) * TENTHS - 5);
    const REAL centreY = static_cast<REAL>(Near(y) * TENTHS - 5);
    const REAL cosine = std::cos(angle), sine = std::sin(angle);
    for (NAT i = 0; i < count; ++i) {
        const REAL turn = 2 * std::numbers::pi * static_cast<REAL>(i) / static_cast<REAL>(count);
        const REAL px = tenthsX * std::cos(turn), py = tenthsY * std::sin(turn);
        point(ROUND(centreX + px * cosine - py * sine), ROUND(centreY + px * sine + py * cosine));
    }
}
} // namespace

void ELLIPSE(TCANVAS &canvas, NAT x, NAT y, REAL radiusX, REAL radiusY, REAL angle) {
    EllipsePoints(x, y, radiusX, radiusY, angle,
                  [&](NAT tenthX, NAT tenthY) { _POINT10(canvas, tenthX, tenthY); });
}

// Each row between the ellipse's left and right point at that height; then the soft edge.
void FULLELLIPSE(TCANVAS &canvas, NAT x, NAT y, REAL radiusX, REAL radiusY, REAL angle) {
    if (canvas.EMPTY() || !(radiusX >= 0) || !(radiusY >= 0)) return;
    const REAL cosine = std::cos(angle), sine = std::sin(angle);
    // (u/rx)^2 + (v/ry)^2 <= 1 with u, v the point turned back, as a quadratic in x for each y.
    const REAL rx = std::max(radiusX, 1e-9), ry = std::max(radiusY, 1e-9);
    const REAL a = cosine * cosine / (rx * rx) + sine * sine / (ry * ry);
    const REAL c = sine * sine / (rx * rx) + cosine * cosine / (ry * ry);
    const REAL b = cosine * sine * (1 / (rx * rx) - 1 / (ry * ry));
    const REAL centreX = static_cast<REAL>(Near(x)) - 0.5,
               centreY = static_cast<REAL>(Near(y)) - 0.5;
    for (NAT row = canvas.window.top; row <= canvas.window.bottom; ++row) {
        const REAL dy = static_cast<REAL>(row) - centreY;
        const REAL root = b * b * dy * dy - a * (c * dy * dy - 1);
        if (root < 0) continue;
        const REAL half = std::sqrt(root) / a, middle = centreX - b * dy / a;
        const NAT left = TRUNC(std::ceil(middle - half)), right = FLOOR(middle + half);
        if (left <= right) _LINE(canvas, left, right, row);
    }
    ELLIPSE(canvas, x, y, radiusX, radiusY, angle);
}

void FULLCIRCLE(TCANVAS &canvas, NAT x, NAT y, REAL radius) {
    FULLELLIPSE(canvas, x, y, radius, radius);
}

template <class PIXEL> void CIRCLE(CANVAS<PIXEL> &canvas, NAT x, NAT y, REAL radius) {
    if constexpr (std::is_same_v<PIXEL, BYTE>)
        ELLIPSE(canvas, x, y, radius, radius);
    else
        EllipsePoints(x, y, radius, radius, 0, [&](NAT tenthX, NAT tenthY) {
            // The centre lies half a pixel before its pixel's number, so +5 comes back to it.
            const NAT px = (tenthX + 5) / TENTHS, py = (tenthY + 5) / TENTHS;
            if (canvas.window.HOLDS(px, py)) canvas._PUT(px, py, canvas.VALUE);
        });
}

template void _HLINE(CANVAS<BYTE> &, NAT, NAT, NAT);
template void _HLINE(CANVAS<WORD> &, NAT, NAT, NAT);
template void _VLINE(CANVAS<BYTE> &, NAT, NAT, NAT);
template void _VLINE(CANVAS<WORD> &, NAT, NAT, NAT);
template void _LINE(CANVAS<BYTE> &, NAT, NAT, NAT);
template void _LINE(CANVAS<WORD> &, NAT, NAT, NAT);
template void _VVLINE(CANVAS<BYTE> &, NAT, NAT, NAT);
template void _VVLINE(CANVAS<WORD> &, NAT, NAT, NAT);
template void _SCAN_RESET(CANVAS<BYTE> &);
template void _SCAN_RESET(CANVAS<WORD> &);
template void _VLINE(CANVAS<BYTE> &, NAT, NAT, NAT, NAT, NAT);
template void _VLINE(CANVAS<WORD> &, NAT, NAT, NAT, NAT, NAT);
template void _VVLINE(CANVAS<BYTE> &, NAT, NAT, NAT, NAT, NAT);
template void _VVLINE(CANVAS<WORD> &, NAT, NAT, NAT, NAT, NAT);
template void LINE(CANVAS<BYTE> &, NAT, NAT, NAT, NAT);
template void LINE(CANVAS<WORD> &, NAT, NAT, NAT, NAT);
template void RECTANGLE(CANVAS<BYTE> &, NAT, NAT, NAT, NAT);
template void RECTANGLE(CANVAS<WORD> &, NAT, NAT, NAT, NAT);
template void FULLRECTANGLE(CANVAS<BYTE> &, NAT, NAT, NAT, NAT);
template void FULLRECTANGLE(CANVAS<WORD> &, NAT, NAT, NAT, NAT);
template void CIRCLE(CANVAS<BYTE> &, NAT, NAT, REAL);
template void CIRCLE(CANVAS<WORD> &, NAT, NAT, REAL);
} // namespace morvane
