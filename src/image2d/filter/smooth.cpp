#include "image2d/filter/smooth.hpp"

#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"
#include "foundation/console/console.hpp"

#include <algorithm>
#include <new>
#include <vector>

namespace morvane {
namespace {
using ROWSUM = std::uint32_t;

// How a filter makes its pixel of the centre c and the mean m.
struct TAKE_MEAN {
    static ROWSUM PIXEL(ROWSUM, ROWSUM m, ROWSUM) { return m; }
};
struct TAKE_HALF {
    static ROWSUM PIXEL(ROWSUM c, ROWSUM m, ROWSUM) { return (c + m) / 2; }
};
struct TAKE_NINTH {
    static ROWSUM PIXEL(ROWSUM c, ROWSUM m, ROWSUM) { return (8 * c + m) / 9; }
};
struct TAKE_HALF_OF_MASK {
    static ROWSUM PIXEL(ROWSUM c, ROWSUM m, ROWSUM) { return c == 0 ? 0 : (c + m) / 2; }
};
struct TAKE_SHARP {
    static ROWSUM PIXEL(ROWSUM c, ROWSUM m, ROWSUM maximum) {
        const ROWSUM twice = 2 * c;
        return twice < m ? 0 : std::min(twice - m, maximum);
    }
};

// A sum of 9 pixels divided by 9. The half lies farther from a whole ninth than the error of the
// product, so that truncation is exact for every sum below 2^20, and the loop has no division.
ROWSUM Ninth(ROWSUM sum) {
    return static_cast<ROWSUM>(static_cast<std::int32_t>(
        (static_cast<float>(static_cast<std::int32_t>(sum)) + 0.5F) * (1.0F / 9.0F)));
}

// The pixels `from..to` (from 0) of one row whose sums over the rows around it stand in `columns`;
// `rows` is their count.
template <class TAKE, class PIXEL>
void FilterRow(const ROWSUM *columns, NAT rows, const PIXEL *centre, PIXEL *out, NAT width,
               NAT from, NAT to) {
    constexpr ROWSUM MAXIMUM = std::numeric_limits<PIXEL>::max();
    const auto edge = [&](NAT x) {
        ROWSUM sum = columns[x];
        NAT count = 1;
        if (x > 0) sum += columns[x - 1], ++count;
        if (x + 1 < width) sum += columns[x + 1], ++count;
        const ROWSUM mean = sum / static_cast<ROWSUM>(count * rows);
        out[x] = static_cast<PIXEL>(TAKE::PIXEL(centre[x], mean, MAXIMUM));
    };
    if (from == 0) edge(0);
    const NAT first = std::max<NAT>(from, 1), last = std::min(to, width - 2);
    if (rows == 3)
        for (NAT x = first; x <= last; ++x) {
            const ROWSUM mean = Ninth(columns[x - 1] + columns[x] + columns[x + 1]);
            out[x] = static_cast<PIXEL>(TAKE::PIXEL(centre[x], mean, MAXIMUM));
        }
    else
        for (NAT x = first; x <= last; ++x)
            edge(x);
    if (to == width - 1 && to > 0) edge(to);
}

// In place, with copies of the two rows that are overwritten before their last use.
template <class TAKE, class PIXEL> void Filter(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    const PIXEL_AREA inside = canvas.LIMITED(area);
    if (inside.EMPTY()) return;
    const NAT width = canvas.WIDTH;
    const auto length = static_cast<std::size_t>(width);
    std::vector<PIXEL> above, centre;
    std::vector<ROWSUM> columns;
    try {
        above.resize(length), centre.resize(length), columns.resize(length);
    } catch (const std::bad_alloc &) {
        WRITELN("  Out of memory! Filter not applied.");
        return;
    }
    if (inside.top > 1) std::copy_n(canvas.ROW(inside.top - 1), width, above.begin());
    for (NAT y = inside.top; y <= inside.bottom; ++y) {
        PIXEL *row = canvas.ROW(y);
        std::copy_n(row, width, centre.begin());
        std::fill(columns.begin(), columns.end(), 0);
        const PIXEL *const middle = centre.data();
        ROWSUM *const sums = columns.data();
        NAT rows = 1;
        for (NAT x = 0; x < width; ++x)
            sums[x] = middle[x];
        const auto add = [&](const PIXEL *other) {
            for (NAT x = 0; x < width; ++x)
                sums[x] += other[x];
            ++rows;
        };
        if (y > 1) add(above.data());
        if (y < canvas.HEIGHT) add(canvas.ROW(y + 1));
        FilterRow<TAKE>(sums, rows, middle, row, width, inside.left - 1, inside.right - 1);
        std::swap(above, centre);
    }
}
} // namespace

template <class PIXEL> void HARDSMOOTH(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    Filter<TAKE_MEAN>(canvas, area);
}
template <class PIXEL> void SMOOTH(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    Filter<TAKE_HALF>(canvas, area);
}
template <class PIXEL> void SOFTSMOOTH(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    Filter<TAKE_NINTH>(canvas, area);
}
template <class PIXEL> void SMOOTH0(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    Filter<TAKE_HALF_OF_MASK>(canvas, area);
}
template <class PIXEL> void UNSHARPMASKING(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    Filter<TAKE_SHARP>(canvas, area);
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
template <class TAKE, class PIXEL> void Filter(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    const PIXEL_AREA inside = canvas.LIMITED(area);
    CANVAS<PIXEL> source;
    if (!source.CLONE(canvas)) return;
    for (NAT y = inside.top; y <= inside.bottom; ++y)
        for (NAT x = inside.left; x <= inside.right; ++x) {
            const ROWSUM mean = static_cast<ROWSUM>(MEAN3(source, x, y));
            const ROWSUM pixel = TAKE::PIXEL(source.GET(x, y), mean, CANVAS<PIXEL>::MAXIMUM);
            canvas.PUT(x, y, static_cast<PIXEL>(pixel));
        }
}
} // namespace

template <class PIXEL> void HARDSMOOTH(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    Filter<TAKE_MEAN>(canvas, area);
}
template <class PIXEL> void SMOOTH(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    Filter<TAKE_HALF>(canvas, area);
}
template <class PIXEL> void SOFTSMOOTH(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    Filter<TAKE_NINTH>(canvas, area);
}
template <class PIXEL> void SMOOTH0(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    Filter<TAKE_HALF_OF_MASK>(canvas, area);
}
template <class PIXEL> void UNSHARPMASKING(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    Filter<TAKE_SHARP>(canvas, area);
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
