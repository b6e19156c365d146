#include "image2d/canvas/canvas.hpp"

#include <algorithm>

namespace morvane {
namespace {
// Pixels of a square that is turned at once, so that both rows and columns stay in the cache.
constexpr NAT TILE = 64;

// The turned canvas: pixel (x, y) goes to `place(x, y)`, an offset in its block.
template <class PIXEL, class PLACE> void TURN(CANVAS<PIXEL> &canvas, const PLACE &place) {
    if (canvas.EMPTY()) return;
    CANVAS<PIXEL> turned(canvas.HEIGHT, canvas.WIDTH);
    if (turned.EMPTY()) return; // no memory, which has been told
    for (NAT top = 1; top <= canvas.HEIGHT; top += TILE)
        for (NAT left = 1; left <= canvas.WIDTH; left += TILE)
            for (NAT y = top; y <= std::min(top + TILE - 1, canvas.HEIGHT); ++y)
                for (NAT x = left; x <= std::min(left + TILE - 1, canvas.WIDTH); ++x)
                    turned.DATA()[place(x, y)] = canvas._GET(x, y);
    canvas.REPLACE(turned);
}
} // namespace

template <class PIXEL> void FLIPX(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    const PIXEL_AREA inside = canvas.LIMITED(area);
    for (NAT y = inside.top; y <= inside.bottom; ++y) {
        PIXEL *first = canvas.ROW(y) + inside.left - 1;
        std::reverse(first, first + inside.WIDTH());
    }
}

template <class PIXEL> void FLIPY(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    const PIXEL_AREA inside = canvas.LIMITED(area);
    for (NAT top = inside.top, bottom = inside.bottom; top < bottom; ++top, --bottom) {
        PIXEL *first = canvas.ROW(top) + inside.left - 1;
        std::swap_ranges(first, first + inside.WIDTH(), canvas.ROW(bottom) + inside.left - 1);
    }
}

// Clockwise: the first column becomes the first row, read from the bottom.
template <class PIXEL> void ROTATE90(CANVAS<PIXEL> &canvas) {
    const NAT height = canvas.HEIGHT;
    TURN(canvas, [height](NAT x, NAT y) { return height - y + (x - 1) * height; });
}

template <class PIXEL> void ROTATE180(CANVAS<PIXEL> &canvas) {
    std::reverse(canvas.DATA(), canvas.DATA() + canvas.COUNT());
}

template <class PIXEL> void ROTATE270(CANVAS<PIXEL> &canvas) {
    const NAT width = canvas.WIDTH, height = canvas.HEIGHT;
    TURN(canvas, [=](NAT x, NAT y) { return y - 1 + (width - x) * height; });
}

template <class PIXEL>
void INSERT(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, const CANVAS<PIXEL> &other) {
    if (canvas.EMPTY() || other.EMPTY()) return;
    const NAT left = std::max<NAT>(area.left, 1), top = std::max<NAT>(area.top, 1);
    const NAT right = std::min({area.right, canvas.WIDTH, other.WIDTH});
    const NAT bottom = std::min({area.bottom, canvas.HEIGHT, other.HEIGHT});
    if (right < left) return;
    for (NAT y = top; y <= bottom; ++y)
        std::copy_n(other.ROW(y) + left - 1, right - left + 1, canvas.ROW(y) + left - 1);
}

template <class PIXEL>
void INSERT(CANVAS<PIXEL> &canvas, NAT x, NAT y, const CANVAS<PIXEL> &other) {
    // The part of the other canvas that lands inside, without sums that could overflow.
    if (canvas.EMPTY() || other.EMPTY() || x > canvas.WIDTH || y > canvas.HEIGHT) return;
    if (x < 1 - other.WIDTH || y < 1 - other.HEIGHT) return;
    const NAT left = std::max<NAT>(1, 2 - x), right = std::min(other.WIDTH, canvas.WIDTH - x + 1);
    const NAT top = std::max<NAT>(1, 2 - y), bottom = std::min(other.HEIGHT, canvas.HEIGHT - y + 1);
    if (right < left) return;
    for (NAT row = top; row <= bottom; ++row)
        std::copy_n(other.ROW(row) + left - 1, right - left + 1,
                    canvas.ROW(y + row - 1) + x + left - 2);
}

template void FLIPX(CANVAS<BYTE> &, const PIXEL_AREA &);
template void FLIPX(CANVAS<WORD> &, const PIXEL_AREA &);
template void FLIPY(CANVAS<BYTE> &, const PIXEL_AREA &);
template void FLIPY(CANVAS<WORD> &, const PIXEL_AREA &);
template void ROTATE90(CANVAS<BYTE> &);
template void ROTATE90(CANVAS<WORD> &);
template void ROTATE180(CANVAS<BYTE> &);
template void ROTATE180(CANVAS<WORD> &);
template void ROTATE270(CANVAS<BYTE> &);
template void ROTATE270(CANVAS<WORD> &);
template void INSERT(CANVAS<BYTE> &, const PIXEL_AREA &, const CANVAS<BYTE> &);
template void INSERT(CANVAS<WORD> &, const PIXEL_AREA &, const CANVAS<WORD> &);
template void INSERT(CANVAS<BYTE> &, NAT, NAT, const CANVAS<BYTE> &);
template void INSERT(CANVAS<WORD> &, NAT, NAT, const CANVAS<WORD> &);
} // namespace morvane
