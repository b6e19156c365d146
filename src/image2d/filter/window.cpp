#include "image2d/filter/window.hpp"

#include "foundation/base/rounding.hpp"
#include "foundation/console/console.hpp"

#include <cmath>
#include <new>
#include <vector>

namespace morvane {
namespace {
using WEIGHT = REAL (*)(REAL share); // of the way from 0 to 1 along the axis

REAL Sine(REAL share) { return std::sin(PI * share); }
REAL RaisedCosine(REAL share) { return (1 - std::cos(2 * PI * share)) / 2; }

std::vector<REAL> Weights(NAT count, WEIGHT weight) {
    std::vector<REAL> weights(static_cast<std::size_t>(count), 1);
    if (count < 2) return weights;
    for (NAT i = 0; i < count; ++i)
        weights[static_cast<std::size_t>(i)] =
            weight(static_cast<REAL>(i) / static_cast<REAL>(count - 1));
    weights.back() = weights.front(); // exactly 0, as the first
    return weights;
}

template <class PIXEL> void Apply(CANVAS<PIXEL> &canvas, WEIGHT weight) try {
    const std::vector<REAL> columns = Weights(canvas.WIDTH, weight);
    const std::vector<REAL> rows = Weights(canvas.HEIGHT, weight);
    for (NAT y = 1; y <= canvas.HEIGHT; ++y) {
        PIXEL *row = canvas.ROW(y);
        const REAL factor = rows[static_cast<std::size_t>(y - 1)];
        for (std::size_t x = 0; x < columns.size(); ++x)
            row[x] = static_cast<PIXEL>(ROUND(static_cast<REAL>(row[x]) * columns[x] * factor));
    }
} catch (const std::bad_alloc &) {
    WRITELN("  Out of memory! Window not applied.");
}
} // namespace

template <class PIXEL> void WINDOW_SIN(CANVAS<PIXEL> &canvas) { Apply(canvas, Sine); }
template <class PIXEL> void WINDOW_COS(CANVAS<PIXEL> &canvas) { Apply(canvas, RaisedCosine); }

template <class PIXEL> void RADIAL(CANVAS<PIXEL> &canvas, const COMPLEX &point, REAL turn) {
    const REAL largest = static_cast<REAL>(canvas.MAXIMUM);
    for (NAT y = 1; y <= canvas.HEIGHT; ++y) {
        PIXEL *row = canvas.ROW(y);
        const REAL down = static_cast<REAL>(y) - point.y;
        for (NAT x = 1; x <= canvas.WIDTH; ++x) {
            const REAL angle = std::atan2(down, static_cast<REAL>(x) - point.x);
            const REAL turns = angle / turn, share = turns - std::floor(turns);
            row[x - 1] = static_cast<PIXEL>(ROUND(share * largest));
        }
    }
}

template void WINDOW_SIN(CANVAS<BYTE> &);
template void WINDOW_SIN(CANVAS<WORD> &);
template void WINDOW_COS(CANVAS<BYTE> &);
template void WINDOW_COS(CANVAS<WORD> &);
template void RADIAL(CANVAS<BYTE> &, const COMPLEX &, REAL);
template void RADIAL(CANVAS<WORD> &, const COMPLEX &, REAL);
} // namespace morvane
