#include "image2d/canvas/line_walk.hpp"

#include "foundation/base/geometry.hpp"
#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"

namespace morvane {
namespace {
COMPLEXNAT Fixed(const COMPLEXNAT &p) { return p * NAT{65536}; }

// A position's pixel; the shift is unsigned, so that a negative position is huge and outside.
COMPLEXNAT Pixel(const COMPLEXNAT &position) {
    return {static_cast<NAT>(static_cast<std::uint64_t>(position.x) >> 16),
            static_cast<NAT>(static_cast<std::uint64_t>(position.y) >> 16)};
}

// From the position on up to the first zero; `leading`: zeros before the run are passed over.
template <class READ>
NAT Run(const READ &read, COMPLEXNAT position, const PIXEL_WALK &walk, bool leading, NAT *samples) {
    NAT count = 0;
    for (NAT i = 0; i <= walk.steps; ++i) {
        const NAT value = read(Pixel(position));
        if (value != 0)
            samples[count++] = value;
        else if (!leading || count > 0)
            break;
        position += walk.step;
    }
    return count;
}

template <class READ>
NAT Line(const READ &read, const COMPLEXNAT &p1, const COMPLEXNAT &p2, NAT *samples) {
    const PIXEL_WALK walk = GETWALK(p1, p2);
    if (walk.steps <= 0) return 0;
    const COMPLEXNAT start = Fixed(p1), end = Fixed(p2);
    if (read(Pixel(start)) != 0) return Run(read, start, walk, false, samples);
    if (read(Pixel(end)) != 0) return Run(read, end, {walk.steps, -walk.step}, false, samples);
    return Run(read, start, walk, true, samples);
}

template <class READ>
void LineOf(const READ &read, const COMPLEXNAT &p1, const COMPLEXNAT &p2, TPOLYNAT &line) {
    line.INIT();
    const PIXEL_WALK walk = GETWALK(p1, p2);
    if (walk.steps <= 0) return;
    line.NEWLENGTH(walk.steps + 1);
    if (line.LENGTH == 0) return; // out of memory, told by the list
    line.NEWLENGTH(Line(read, p1, p2, line.ELEMENTS()));
}

template <class WRITE>
void PutLine(const WRITE &write, const COMPLEXNAT &p1, const COMPLEXNAT &p2, const TPOLYNAT &line) {
    const PIXEL_WALK walk = GETWALK(p1, p2);
    if (walk.steps <= 0) return;
    COMPLEXNAT position = Fixed(p1);
    for (NAT i = 0; i <= walk.steps && i < line.LENGTH; ++i) {
        write(Pixel(position), line._GET(i + 1));
        position += walk.step;
    }
}

template <class PIXEL> auto Reader(const CANVAS<PIXEL> &canvas) {
    return [&canvas](const COMPLEXNAT &p) {
        return canvas.INSIDE(p.x, p.y) ? NAT{canvas._GET(p.x, p.y)} : NAT{0};
    };
}
} // namespace

PIXEL_WALK GETWALK(const COMPLEXNAT &from, const COMPLEXNAT &to) {
    const COMPLEXNAT way = to - from;
    const NAT steps = ROUND(GETLENGTH(way));
    if (steps <= 0) return {};
    // Deliberate: a step over pixels is 65535 and not 65536 parts of the way, so a walk stops
    // slightly short of its far end.
    const auto step = [steps](NAT distance) {
        return ROUND(static_cast<REAL>(distance) / static_cast<REAL>(steps) * 65535.0);
    };
    return {steps, {step(way.x), step(way.y)}};
}

template <class PIXEL>
void GETLINE_W0(const CANVAS<PIXEL> &canvas, NAT x1, NAT y1, NAT x2, NAT y2, TPOLYNAT &line) {
    LineOf(Reader(canvas), {x1, y1}, {x2, y2}, line);
}
template void GETLINE_W0(const TGRAY &, NAT, NAT, NAT, NAT, TPOLYNAT &);
template void GETLINE_W0(const TFULLGRAY &, NAT, NAT, NAT, NAT, TPOLYNAT &);

void GETLINE_W0(const TRGB &image, NAT x1, NAT y1, NAT x2, NAT y2, TPOLYNAT &line) {
    const TGRAY &plane = image.planes[0];
    LineOf(
        [&](const COMPLEXNAT &p) {
            return plane.INSIDE(p.x, p.y) ? image.GETGRAY(p.x, p.y) : NAT{0};
        },
        {x1, y1}, {x2, y2}, line);
}

template <class PIXEL>
NAT GETLINE_W0(const CANVAS<PIXEL> &canvas, const COMPLEXNAT &p1, const COMPLEXNAT &p2,
               NAT *samples) {
    return Line(Reader(canvas), p1, p2, samples);
}
template NAT GETLINE_W0(const TGRAY &, const COMPLEXNAT &, const COMPLEXNAT &, NAT *);
template NAT GETLINE_W0(const TFULLGRAY &, const COMPLEXNAT &, const COMPLEXNAT &, NAT *);

template <class PIXEL>
void PUTLINE(CANVAS<PIXEL> &canvas, NAT x1, NAT y1, NAT x2, NAT y2, const TPOLYNAT &line) {
    PutLine(
        [&](const COMPLEXNAT &p, NAT value) {
            canvas.PUT(p.x, p.y, static_cast<PIXEL>(LIMIT(value, NAT{0}, CANVAS<PIXEL>::MAXIMUM)));
        },
        {x1, y1}, {x2, y2}, line);
}
template void PUTLINE(TGRAY &, NAT, NAT, NAT, NAT, const TPOLYNAT &);
template void PUTLINE(TFULLGRAY &, NAT, NAT, NAT, NAT, const TPOLYNAT &);

void PUTLINE(TRGB &image, NAT x1, NAT y1, NAT x2, NAT y2, const TPOLYNAT &line) {
    PutLine(
        [&](const COMPLEXNAT &p, NAT value) {
            image.PUT(p.x, p.y, {value, value, value});
        },
        {x1, y1}, {x2, y2}, line);
}
} // namespace morvane
