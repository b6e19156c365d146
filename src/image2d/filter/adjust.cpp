#include "image2d/filter/adjust.hpp"

#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"

#include <algorithm>
#include <cmath>
#include <vector>

namespace morvane {
namespace {
// The new value of each pixel value; 64 K entries at most.
template <class PIXEL> using TABLE = std::vector<PIXEL>;

template <class PIXEL, class VALUE> TABLE<PIXEL> MakeTable(const VALUE &value) {
    constexpr NAT LARGEST = CANVAS<PIXEL>::MAXIMUM;
    TABLE<PIXEL> table(static_cast<std::size_t>(LARGEST + 1));
    for (NAT v = 0; v <= LARGEST; ++v)
        table[static_cast<std::size_t>(v)] = static_cast<PIXEL>(LIMIT(value(v), NAT{0}, LARGEST));
    return table;
}

template <class PIXEL>
void MapArea(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, const TABLE<PIXEL> &table) {
    const PIXEL_AREA inside = canvas.LIMITED(area);
    const PIXEL *const map = table.data();
    for (NAT y = inside.top; y <= inside.bottom; ++y) {
        PIXEL *const row = canvas.ROW(y) + inside.left - 1;
        for (NAT x = 0; x < inside.WIDTH(); ++x)
            row[x] = map[row[x]];
    }
}

template <class PIXEL> void Stretch(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, NAT largest) {
    const PIXEL_LIMITS limits = GETLIMITS(canvas);
    if (canvas.EMPTY() || limits.max == limits.min) return;
    const REAL spread = static_cast<REAL>(limits.max - limits.min);
    MapArea(canvas, area, MakeTable<PIXEL>([&](NAT v) {
                if (v <= limits.min) return NAT{0};
                if (v >= limits.max) return largest;
                return ROUND(static_cast<REAL>(v - limits.min) / spread *
                             static_cast<REAL>(largest));
            }));
}
} // namespace

template <class PIXEL> void ADJUST(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    Stretch(canvas, area, CANVAS<PIXEL>::MAXIMUM);
}

void ADJUST256(TFULLCANVAS &canvas, const PIXEL_AREA &area) { Stretch(canvas, area, 255); }

template <class PIXEL>
void ADJUST_LINEAR(CANVAS<PIXEL> &canvas, NAT low, NAT high, NAT outLow, NAT outHigh) {
    for (NAT *value : {&low, &high, &outLow, &outHigh})
        *value = LIMIT(*value, NAT{0}, CANVAS<PIXEL>::MAXIMUM);
    if (low > high) std::swap(low, high);
    if (outLow > outHigh) std::swap(outLow, outHigh);
    const REAL spread = static_cast<REAL>(high - low), out = static_cast<REAL>(outHigh - outLow);
    MapArea(canvas, canvas.WHOLE(), MakeTable<PIXEL>([&](NAT v) {
                if (v < low) return outLow;
                if (v > high) return outHigh;
                return ROUND(static_cast<REAL>(outLow) +
                             DIVIDE(out * static_cast<REAL>(v - low), spread));
            }));
}

template <class PIXEL> void EQUAL(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    const PIXEL_AREA inside = canvas.LIMITED(area);
    const NAT count = inside.WIDTH() * inside.HEIGHT();
    if (count < 2) return;
    std::vector<NAT> bins(static_cast<std::size_t>(CANVAS<PIXEL>::MAXIMUM + 1));
    for (NAT y = inside.top; y <= inside.bottom; ++y)
        for (NAT x = inside.left; x <= inside.right; ++x)
            ++bins[canvas._GET(x, y)];
    const REAL scale = static_cast<REAL>(CANVAS<PIXEL>::MAXIMUM);
    NAT below = 0;
    MapArea(canvas, inside, MakeTable<PIXEL>([&](NAT v) {
                const NAT value =
                    ROUND(static_cast<REAL>(below) / static_cast<REAL>(count) * scale);
                below += bins[static_cast<std::size_t>(v)];
                return value;
            }));
}

template <class PIXEL> void MONO(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, NAT threshold) {
    const PIXEL_LIMITS limits = GETLIMITS(canvas, area);
    if (canvas.EMPTY() || limits.max == limits.min) return;
    const REAL low = static_cast<REAL>(limits.min),
               spread = static_cast<REAL>(limits.max - limits.min);
    constexpr NAT LARGEST = CANVAS<PIXEL>::MAXIMUM;
    MapArea(canvas, area, MakeTable<PIXEL>([&](NAT v) {
                const NAT scaled =
                    ROUND((static_cast<REAL>(v) - low) / spread * static_cast<REAL>(LARGEST));
                return scaled < threshold ? NAT{0} : LARGEST;
            }));
}

void LIGHTER(TRAWCANVAS &canvas, const PIXEL_AREA &area) {
    MapArea(canvas, area, MakeTable<BYTE>([](NAT v) { return v + 64; }));
}

void DARKER(TRAWCANVAS &canvas, const PIXEL_AREA &area) {
    MapArea(canvas, area, MakeTable<BYTE>([](NAT v) { return v - 64; }));
}

template <class PIXEL>
void SETRANGE(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, const TPOLYNAT &table) {
    if (table.LENGTH != CANVAS<PIXEL>::MAXIMUM + 1) return;
    MapArea(canvas, area, MakeTable<PIXEL>([&](NAT v) { return table._GET(v + 1); }));
}

template <class PIXEL>
void SETLOWER(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, NAT low, NAT value) {
    SETVALUE(canvas, area, 0, low, value);
}

template <class PIXEL>
void SETHIGHER(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, NAT high, NAT value) {
    SETVALUE(canvas, area, high, CANVAS<PIXEL>::MAXIMUM, value);
}

template <class PIXEL>
void SETVALUE(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, NAT low, NAT high, NAT value) {
    MapArea(canvas, area,
            MakeTable<PIXEL>([&](NAT v) { return v >= low && v <= high ? value : v; }));
}

void INVERT(TRAWCANVAS &canvas, const PIXEL_AREA &area) {
    MapArea(canvas, area, MakeTable<BYTE>([](NAT v) { return 255 - v; }));
}

void INVERT(TFULLCANVAS &canvas, const PIXEL_AREA &area, NAT m) {
    const NAT top = LIMIT(m, NAT{0}, TFULLCANVAS::MAXIMUM);
    MapArea(canvas, area, MakeTable<WORD>([&](NAT v) { return top - v; }));
}

template void ADJUST(CANVAS<BYTE> &, const PIXEL_AREA &);
template void ADJUST_LINEAR(CANVAS<BYTE> &, NAT, NAT, NAT, NAT);
template void EQUAL(CANVAS<BYTE> &, const PIXEL_AREA &);
template void MONO(CANVAS<BYTE> &, const PIXEL_AREA &, NAT);
template void SETRANGE(CANVAS<BYTE> &, const PIXEL_AREA &, const TPOLYNAT &);
template void SETLOWER(CANVAS<BYTE> &, const PIXEL_AREA &, NAT, NAT);
template void SETHIGHER(CANVAS<BYTE> &, const PIXEL_AREA &, NAT, NAT);
template void SETVALUE(CANVAS<BYTE> &, const PIXEL_AREA &, NAT, NAT, NAT);
template void ADJUST(CANVAS<WORD> &, const PIXEL_AREA &);
template void ADJUST_LINEAR(CANVAS<WORD> &, NAT, NAT, NAT, NAT);
template void EQUAL(CANVAS<WORD> &, const PIXEL_AREA &);
template void MONO(CANVAS<WORD> &, const PIXEL_AREA &, NAT);
template void SETRANGE(CANVAS<WORD> &, const PIXEL_AREA &, const TPOLYNAT &);
template void SETLOWER(CANVAS<WORD> &, const PIXEL_AREA &, NAT, NAT);
template void SETHIGHER(CANVAS<WORD> &, const PIXEL_AREA &, NAT, NAT);
template void SETVALUE(CANVAS<WORD> &, const PIXEL_AREA &, NAT, NAT, NAT);
} // namespace morvane
