#include "image2d/filter/outliers.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace morvane {
namespace {
constexpr std::size_t NINE = 9;
constexpr NAT BLOCK = 64; // pixels whose neighbourhoods are sorted together

template <class PIXEL> using LANES = std::array<PIXEL, BLOCK>;

// Lane by lane the smaller value to a, the larger to b.
template <class PIXEL> void Exchange(LANES<PIXEL> &a, LANES<PIXEL> &b) {
    for (std::size_t i = 0; i < BLOCK; ++i) {
        const PIXEL low = std::min(a[i], b[i]), high = std::max(a[i], b[i]);
        a[i] = low;
        b[i] = high;
    }
}

// The optimal sorting network of nine values, 25 exchanges (Floyd; Knuth, The Art of Computer
// Programming 3, 5.3.4).
constexpr std::array<std::array<BYTE, 2>, 25> NETWORK = {
    {{0, 1}, {3, 4}, {6, 7}, {1, 2}, {4, 5}, {7, 8}, {0, 1}, {3, 4}, {6, 7},
     {0, 3}, {3, 6}, {0, 3}, {1, 4}, {4, 7}, {1, 4}, {2, 5}, {5, 8}, {2, 5},
     {1, 3}, {5, 7}, {2, 6}, {4, 6}, {2, 4}, {2, 3}, {5, 6}}};

// The new pixels of one block of a row; the count of outliers. `columns` are the three rows, at the
// pixel left of the block.
template <class PIXEL>
NAT CleanBlock(const std::array<const PIXEL *, 3> &rows, PIXEL *out, NAT count, REAL factor) {
    std::array<LANES<PIXEL>, NINE> values;
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t step = 0; step < 3; ++step) {
            LANES<PIXEL> &lane = values[3 * row + step];
            std::copy_n(rows[row] + step, count, lane.begin());
            std::fill(lane.begin() + count, lane.end(), PIXEL{0});
        }
    const LANES<PIXEL> centre = values[4];
    for (const auto &[low, high] : NETWORK)
        Exchange(values[low], values[high]);
    NAT changed = 0;
    for (NAT i = 0; i < count; ++i) {
        const auto lane = static_cast<std::size_t>(i);
        const int median = values[4][lane], spread = values[6][lane] - values[2][lane];
        const REAL reach = spread * factor;
        const bool isOutlier = !(centre[lane] >= median - reach && centre[lane] <= median + reach);
        out[i] = isOutlier ? static_cast<PIXEL>(median) : centre[lane];
        changed += isOutlier;
    }
    return changed;
}
} // namespace

template <class PIXEL>
NAT REMOVE_OUTLIERS(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, REAL factor) {
    const PIXEL_AREA inside = canvas.LIMITED(area);
    if (inside.EMPTY()) return 0;
    CANVAS<PIXEL> result(inside.WIDTH(), inside.HEIGHT());
    if (result.EMPTY()) return 0; // no memory, which has been told
    NAT changed = 0;
    for (NAT y = inside.top + 1; y < inside.bottom; ++y) {
        PIXEL *out = result.ROW(y - inside.top + 1) + 1;
        for (NAT x = inside.left + 1; x < inside.right; x += BLOCK) {
            const std::array<const PIXEL *, 3> rows = {
                canvas.ROW(y - 1) + x - 2, canvas.ROW(y) + x - 2, canvas.ROW(y + 1) + x - 2};
            const NAT count = std::min(BLOCK, inside.right - x);
            changed += CleanBlock(rows, out + (x - inside.left - 1), count, factor);
        }
    }
    for (NAT y = inside.top; y <= inside.bottom; ++y)
        std::copy_n(result.ROW(y - inside.top + 1), inside.WIDTH(),
                    canvas.ROW(y) + inside.left - 1);
    return changed;
}

namespace plain {
template <class PIXEL>
NAT REMOVE_OUTLIERS(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, REAL factor) {
    const PIXEL_AREA inside = canvas.LIMITED(area);
    CANVAS<PIXEL> source;
    if (inside.EMPTY() || !source.CLONE(canvas)) return 0;
    NAT changed = 0;
    TPOLYNAT nine(static_cast<NAT>(NINE));
    for (NAT y = inside.top; y <= inside.bottom; ++y)
        for (NAT x = inside.left; x <= inside.right; ++x) {
            const bool isBorder =
                x == inside.left || x == inside.right || y == inside.top || y == inside.bottom;
            if (isBorder) {
                canvas.PUT(x, y, 0);
                continue;
            }
            for (NAT dy = -1; dy <= 1; ++dy)
                for (NAT dx = -1; dx <= 1; ++dx)
                    nine.PUT((dy + 1) * 3 + (dx + 1) + 1, source.GET(x + dx, y + dy));
            const VECTORNAT quartiles = nine.QUANTILE();
            const REAL median = static_cast<REAL>(quartiles.y);
            const REAL reach = static_cast<REAL>(std::abs(quartiles.x - quartiles.z)) * factor;
            const REAL value = source.GET(x, y);
            if (value >= median - reach && value <= median + reach) continue;
            canvas.PUT(x, y, static_cast<PIXEL>(quartiles.y));
            ++changed;
        }
    return changed;
}
} // namespace plain

template NAT REMOVE_OUTLIERS(CANVAS<BYTE> &, const PIXEL_AREA &, REAL);
template NAT REMOVE_OUTLIERS(CANVAS<WORD> &, const PIXEL_AREA &, REAL);
template NAT plain::REMOVE_OUTLIERS(CANVAS<BYTE> &, const PIXEL_AREA &, REAL);
template NAT plain::REMOVE_OUTLIERS(CANVAS<WORD> &, const PIXEL_AREA &, REAL);
} // namespace morvane
