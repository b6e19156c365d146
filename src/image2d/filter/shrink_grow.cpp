#include "image2d/filter/shrink_grow.hpp"

#include "foundation/base/safe_arithmetic.hpp"
#include "foundation/console/console.hpp"

#include <algorithm>
#include <array>
#include <new>
#include <vector>

namespace morvane {
namespace {
constexpr NAT NEIGHBOURS = 8;

// One row of the state before the pass with a background pixel at each end: whether each pixel
// asks its neighbours to change (1 or 0), and its value where it does (else 0).
struct PASS_ROW {
    std::vector<std::uint32_t> asks, values;
};

template <class PIXEL> class PASS {
public:
    PASS(const CANVAS<PIXEL> &canvasBefore, const STRUCTURE &structure, bool isGrow)
        : canvas(canvasBefore), low(structure.range.x), high(structure.range.y), grow(isGrow) {
        const auto width = static_cast<std::size_t>(canvas.WIDTH + 2);
        for (PASS_ROW &row : rows) {
            row.asks.resize(width);
            row.values.resize(width);
        }
    }
    // The state of row y, also outside the canvas.
    void READ(NAT y) {
        PASS_ROW &row = AT(y);
        const bool inside = y >= 1 && y <= canvas.HEIGHT;
        const auto set = [&](std::size_t x, NAT value) {
            const bool asks = (value >= low && value <= high) == grow;
            row.asks[x] = asks;
            row.values[x] = asks ? static_cast<std::uint32_t>(value) : 0;
        };
        set(0, canvas.BACKGROUND);
        set(static_cast<std::size_t>(canvas.WIDTH + 1), canvas.BACKGROUND);
        for (NAT x = 1; x <= canvas.WIDTH; ++x)
            set(static_cast<std::size_t>(x),
                inside ? NAT{canvas._GET(x, y)} : NAT{canvas.BACKGROUND});
    }
    const PASS_ROW &AT(NAT y) const { return rows[static_cast<std::size_t>((y + 3) % 3)]; }
    PASS_ROW &AT(NAT y) { return rows[static_cast<std::size_t>((y + 3) % 3)]; }

private:
    const CANVAS<PIXEL> &canvas;
    NAT low, high;
    bool grow;
    std::array<PASS_ROW, 3> rows;
};

// The changes of row y, whose neighbours' state stands in `pass`.
template <class PIXEL>
NAT ChangeRow(const PASS<PIXEL> &pass, CANVAS<PIXEL> &canvas, NAT y, const PIXEL_AREA &area,
              NAT least, NAT value) {
    const PASS_ROW &above = pass.AT(y - 1), &centre = pass.AT(y), &below = pass.AT(y + 1);
    PIXEL *row = canvas.ROW(y);
    NAT changed = 0;
    for (NAT x = area.left; x <= area.right; ++x) {
        const auto i = static_cast<std::size_t>(x);
        if (centre.asks[i]) continue; // it belongs to the other side itself
        const std::uint32_t count = above.asks[i - 1] + above.asks[i] + above.asks[i + 1] +
                                    centre.asks[i - 1] + centre.asks[i + 1] + below.asks[i - 1] +
                                    below.asks[i] + below.asks[i + 1];
        if (count <= least) continue;
        const std::uint32_t sum = above.values[i - 1] + above.values[i] + above.values[i + 1] +
                                  centre.values[i - 1] + centre.values[i + 1] +
                                  below.values[i - 1] + below.values[i] + below.values[i + 1];
        row[x - 1] = static_cast<PIXEL>(value >= 0 ? value : sum / count);
        ++changed;
    }
    return changed;
}

// In a grow the pixels in the range ask, in a shrink those outside it. The rows are read before
// they change, so that every pixel sees the state before the pass.
template <class PIXEL>
NAT OnePass(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, const STRUCTURE &structure,
            bool isGrow) {
    const PIXEL_AREA inside = canvas.LIMITED(area);
    if (inside.EMPTY()) return 0;
    const NAT least = LIMIT(structure.n, NAT{0}, NEIGHBOURS);
    const NAT value = std::min(structure.value, CANVAS<PIXEL>::MAXIMUM);
    try {
        PASS<PIXEL> pass(canvas, structure, isGrow);
        pass.READ(inside.top - 1);
        pass.READ(inside.top);
        NAT changed = 0;
        for (NAT y = inside.top; y <= inside.bottom; ++y) {
            pass.READ(y + 1);
            changed += ChangeRow(pass, canvas, y, inside, least, value);
        }
        return changed;
    } catch (const std::bad_alloc &) {
        WRITELN("  Out of memory! Filter not applied.");
        return 0;
    }
}

template <class PIXEL>
NAT AllPasses(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, const STRUCTURE &structure,
              bool isGrow) {
    NAT all = 0;
    for (NAT pass = 1; pass <= MOST_PASSES; ++pass) {
        const NAT changed = OnePass(canvas, area, structure, isGrow);
        if (changed == 0) break;
        all += changed;
    }
    return all;
}
} // namespace

template <class PIXEL>
NAT SHRINK(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, const STRUCTURE &structure) {
    return OnePass(canvas, area, structure, false);
}
template <class PIXEL>
NAT GROW(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, const STRUCTURE &structure) {
    return OnePass(canvas, area, structure, true);
}
template <class PIXEL>
NAT FULLSHRINK(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, const STRUCTURE &structure) {
    return AllPasses(canvas, area, structure, false);
}
template <class PIXEL>
NAT FULLGROW(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, const STRUCTURE &structure) {
    return AllPasses(canvas, area, structure, true);
}

namespace plain {
namespace {
template <class PIXEL>
NAT OnePass(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, const STRUCTURE &structure,
            bool isGrow) {
    const PIXEL_AREA inside = canvas.LIMITED(area);
    CANVAS<PIXEL> before;
    if (!before.CLONE(canvas)) return 0;
    const auto asks = [&](NAT value) {
        return (value >= structure.range.x && value <= structure.range.y) == isGrow;
    };
    NAT changed = 0;
    for (NAT y = inside.top; y <= inside.bottom; ++y)
        for (NAT x = inside.left; x <= inside.right; ++x) {
            if (asks(before.GET(x, y))) continue;
            NAT count = 0, sum = 0;
            for (NAT j = y - 1; j <= y + 1; ++j)
                for (NAT i = x - 1; i <= x + 1; ++i)
                    if ((i != x || j != y) && asks(before.GET(i, j))) {
                        ++count;
                        sum += before.GET(i, j);
                    }
            if (count <= LIMIT(structure.n, NAT{0}, NEIGHBOURS)) continue;
            const NAT value = std::min(structure.value, CANVAS<PIXEL>::MAXIMUM);
            canvas.PUT(x, y, static_cast<PIXEL>(value >= 0 ? value : sum / count));
            ++changed;
        }
    return changed;
}
} // namespace

template <class PIXEL>
NAT SHRINK(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, const STRUCTURE &structure) {
    return OnePass(canvas, area, structure, false);
}
template <class PIXEL>
NAT GROW(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, const STRUCTURE &structure) {
    return OnePass(canvas, area, structure, true);
}
} // namespace plain

template NAT SHRINK(CANVAS<BYTE> &, const PIXEL_AREA &, const STRUCTURE &);
template NAT SHRINK(CANVAS<WORD> &, const PIXEL_AREA &, const STRUCTURE &);
template NAT GROW(CANVAS<BYTE> &, const PIXEL_AREA &, const STRUCTURE &);
template NAT GROW(CANVAS<WORD> &, const PIXEL_AREA &, const STRUCTURE &);
template NAT FULLSHRINK(CANVAS<BYTE> &, const PIXEL_AREA &, const STRUCTURE &);
template NAT FULLSHRINK(CANVAS<WORD> &, const PIXEL_AREA &, const STRUCTURE &);
template NAT FULLGROW(CANVAS<BYTE> &, const PIXEL_AREA &, const STRUCTURE &);
template NAT FULLGROW(CANVAS<WORD> &, const PIXEL_AREA &, const STRUCTURE &);
template NAT plain::SHRINK(CANVAS<BYTE> &, const PIXEL_AREA &, const STRUCTURE &);
template NAT plain::SHRINK(CANVAS<WORD> &, const PIXEL_AREA &, const STRUCTURE &);
template NAT plain::GROW(CANVAS<BYTE> &, const PIXEL_AREA &, const STRUCTURE &);
template NAT plain::GROW(CANVAS<WORD> &, const PIXEL_AREA &, const STRUCTURE &);
} // namespace morvane
