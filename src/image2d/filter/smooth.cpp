#include "image2d/filter/smooth.hpp"

#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"
#include "foundation/console/console.hpp"
#include "image2d/filter/smooth_rows.hpp"

#include <algorithm>
#include <new>
#include <vector>

namespace morvane {
namespace {
// A pixel by its rule.
template <class PIXEL> PIXEL PixelOf(MEAN_RULE rule, NAT c, NAT m) {
    switch (rule) {
    case MEAN_RULE::HALF: return static_cast<PIXEL>((c + m) / 2);
    case MEAN_RULE::NINTH: return static_cast<PIXEL>((8 * c + m) / 9);
    case MEAN_RULE::HALF_OF_MASK: return static_cast<PIXEL>(c == 0 ? 0 : (c + m) / 2);
    case MEAN_RULE::SHARP:
        return static_cast<PIXEL>(LIMIT(2 * c - m, NAT{0}, CANVAS<PIXEL>::MAXIMUM));
    default: return static_cast<PIXEL>(m);
    }
}

// The sums of the columns of one row over the rows around it.
template <class PIXEL> struct COLUMNS {
    std::vector<typename SMOOTH_ROWS<PIXEL>::COLUMN> sums;
    NAT rows = 0; // 1 to 3

    void READ(const SMOOTH_ROWS<PIXEL> &kernel, const CANVAS<PIXEL> &canvas, NAT y) {
        const PIXEL *centre = canvas.ROW(y);
        const PIXEL *above = y > 1 ? canvas.ROW(y - 1) : nullptr;
        const PIXEL *below = y < canvas.HEIGHT ? canvas.ROW(y + 1) : nullptr;
        rows = 1 + (above != nullptr) + (below != nullptr);
        if (rows == 3) return kernel.sum(above, centre, below, sums.data(), canvas.WIDTH);
        const PIXEL *other = above ? above : below;
        for (std::size_t x = 0; x < sums.size(); ++x)
            sums[x] = static_cast<typename SMOOTH_ROWS<PIXEL>::COLUMN>(
                NAT{centre[x]} + (other ? NAT{other[x]} : NAT{0}));
    }
};

// The pixels `from` to `to` (from 0) of a row in place.
template <class PIXEL>
void FilterRow(const SMOOTH_ROWS<PIXEL> &kernel, MEAN_RULE rule, const COLUMNS<PIXEL> &columns,
               PIXEL *row, NAT from, NAT to) {
    const NAT width = static_cast<NAT>(columns.sums.size());
    const auto *sums = columns.sums.data();
    const auto edge = [&](NAT x) {
        NAT sum = sums[x], count = 1;
        if (x > 0) sum += sums[x - 1], ++count;
        if (x + 1 < width) sum += sums[x + 1], ++count;
        row[x] = PixelOf<PIXEL>(rule, row[x], sum / (count * columns.rows));
    };
    if (columns.rows < 3) {
        for (NAT x = from; x <= to; ++x)
            edge(x);
        return;
    }
    if (from == 0) edge(0);
    const NAT first = std::max<NAT>(from, 1), last = std::min(to, width - 2);
    if (first <= last)
        kernel.take[static_cast<std::size_t>(rule)](sums + first, row + first, row + first,
                                                    last - first + 1);
    if (to == width - 1 && to > 0) edge(to);
}

// In place: the columns of the next row are summed before this row changes.
template <class PIXEL> void Filter(MEAN_RULE rule, CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    const PIXEL_AREA inside = canvas.LIMITED(area);
    if (inside.EMPTY()) return;
    COLUMNS<PIXEL> columns, next;
    try {
        columns.sums.resize(static_cast<std::size_t>(canvas.WIDTH));
        next.sums.resize(static_cast<std::size_t>(canvas.WIDTH));
    } catch (const std::bad_alloc &) {
        WRITELN("  Out of memory! Filter not applied.");
        return;
    }
    const SMOOTH_ROWS<PIXEL> &kernel = FASTEST_ROWS<PIXEL>();
    columns.READ(kernel, canvas, inside.top);
    for (NAT y = inside.top; y <= inside.bottom; ++y) {
        if (y < inside.bottom) next.READ(kernel, canvas, y + 1);
        FilterRow(kernel, rule, columns, canvas.ROW(y), inside.left - 1, inside.right - 1);
        std::swap(columns, next);
    }
}
} // namespace

template <class PIXEL> void HARDSMOOTH(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    Filter(MEAN_RULE::MEAN, canvas, area);
}
template <class PIXEL> void SMOOTH(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    Filter(MEAN_RULE::HALF, canvas, area);
}
template <class PIXEL> void SOFTSMOOTH(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    Filter(MEAN_RULE::NINTH, canvas, area);
}
template <class PIXEL> void SMOOTH0(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    Filter(MEAN_RULE::HALF_OF_MASK, canvas, area);
}
template <class PIXEL> void UNSHARPMASKING(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    Filter(MEAN_RULE::SHARP, canvas, area);
}

template <class PIXEL>
void FILTER(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, const KERNEL3 &kernel) {
    const PIXEL_AREA inside = canvas.LIMITED(area);
    CANVAS<PIXEL> source;
    if (inside.EMPTY() || !source.CLONE(canvas)) return;
    const auto &w = kernel.weights;
    for (NAT y = inside.top; y <= inside.bottom; ++y) {
        const PIXEL *rows[] = {source.ROW(std::max<NAT>(y - 1, 1)), source.ROW(y),
                               source.ROW(std::min(y + 1, source.HEIGHT))};
        PIXEL *out = canvas.ROW(y);
        for (NAT x = inside.left - 1; x < inside.right; ++x) {
            const NAT left = std::max<NAT>(x - 1, 0), right = std::min(x + 1, source.WIDTH - 1);
            REAL sum = 0;
            for (std::size_t i = 0; i < 3; ++i)
                sum += w[3 * i] * rows[i][left] + w[3 * i + 1] * rows[i][x] +
                       w[3 * i + 2] * rows[i][right];
            const NAT value = ROUND(DIVIDE(sum, kernel.divisor));
            out[x] = static_cast<PIXEL>(LIMIT(value, NAT{0}, CANVAS<PIXEL>::MAXIMUM));
        }
    }
}

namespace plain {
template <class PIXEL> NAT MEAN3(const CANVAS<PIXEL> &canvas, NAT x, NAT y) {
    NAT sum = 0, count = 0;
    for (NAT j = y - 1; j <= y + 1; ++j)
        for (NAT i = x - 1; i <= x + 1; ++i)
            if (canvas.INSIDE(i, j)) {
                sum += canvas.GET(i, j);
                ++count;
            }
    return count > 0 ? sum / count : 0;
}

namespace {
template <class PIXEL> void Filter(MEAN_RULE rule, CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    const PIXEL_AREA inside = canvas.LIMITED(area);
    CANVAS<PIXEL> source;
    if (!source.CLONE(canvas)) return;
    for (NAT y = inside.top; y <= inside.bottom; ++y)
        for (NAT x = inside.left; x <= inside.right; ++x)
            canvas.PUT(x, y, PixelOf<PIXEL>(rule, source.GET(x, y), MEAN3(source, x, y)));
}
} // namespace

template <class PIXEL> void HARDSMOOTH(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    Filter(MEAN_RULE::MEAN, canvas, area);
}
template <class PIXEL> void SMOOTH(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    Filter(MEAN_RULE::HALF, canvas, area);
}
template <class PIXEL> void SOFTSMOOTH(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    Filter(MEAN_RULE::NINTH, canvas, area);
}
template <class PIXEL> void SMOOTH0(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    Filter(MEAN_RULE::HALF_OF_MASK, canvas, area);
}
template <class PIXEL> void UNSHARPMASKING(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    Filter(MEAN_RULE::SHARP, canvas, area);
}
} // namespace plain

template void HARDSMOOTH(CANVAS<BYTE> &, const PIXEL_AREA &);
template void HARDSMOOTH(CANVAS<WORD> &, const PIXEL_AREA &);
template void SMOOTH(CANVAS<BYTE> &, const PIXEL_AREA &);
template void SMOOTH(CANVAS<WORD> &, const PIXEL_AREA &);
template void SOFTSMOOTH(CANVAS<BYTE> &, const PIXEL_AREA &);
template void SOFTSMOOTH(CANVAS<WORD> &, const PIXEL_AREA &);
template void SMOOTH0(CANVAS<BYTE> &, const PIXEL_AREA &);
template void SMOOTH0(CANVAS<WORD> &, const PIXEL_AREA &);
template void UNSHARPMASKING(CANVAS<BYTE> &, const PIXEL_AREA &);
template void UNSHARPMASKING(CANVAS<WORD> &, const PIXEL_AREA &);
template void plain::HARDSMOOTH(CANVAS<BYTE> &, const PIXEL_AREA &);
template void plain::HARDSMOOTH(CANVAS<WORD> &, const PIXEL_AREA &);
template void plain::SMOOTH(CANVAS<BYTE> &, const PIXEL_AREA &);
template void plain::SMOOTH(CANVAS<WORD> &, const PIXEL_AREA &);
template void plain::SOFTSMOOTH(CANVAS<BYTE> &, const PIXEL_AREA &);
template void plain::SOFTSMOOTH(CANVAS<WORD> &, const PIXEL_AREA &);
template void plain::SMOOTH0(CANVAS<BYTE> &, const PIXEL_AREA &);
template void plain::SMOOTH0(CANVAS<WORD> &, const PIXEL_AREA &);
template void plain::UNSHARPMASKING(CANVAS<BYTE> &, const PIXEL_AREA &);
template void plain::UNSHARPMASKING(CANVAS<WORD> &, const PIXEL_AREA &);
template NAT plain::MEAN3(const CANVAS<BYTE> &, NAT, NAT);
template void FILTER(CANVAS<BYTE> &, const PIXEL_AREA &, const KERNEL3 &);
template NAT plain::MEAN3(const CANVAS<WORD> &, NAT, NAT);
template void FILTER(CANVAS<WORD> &, const PIXEL_AREA &, const KERNEL3 &);
} // namespace morvane
