#include "image2d/colour/colormap.hpp"

#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"
#include "image2d/colour/colormap_table.hpp"

#include <algorithm>
#include <cmath>
#include <vector>

namespace morvane {
namespace {
constexpr NAT LONGEST_TABLE = NAT{1} << 20;
constexpr NAT STANDARD_TABLE = 256;

HYPER Share(const HYPERNAT &colour) {
    return {static_cast<REAL>(colour.x) / 255, static_cast<REAL>(colour.y) / 255,
            static_cast<REAL>(colour.z) / 255, static_cast<REAL>(colour.w) / 255};
}

HYPER Blend(const HYPER &a, const HYPER &b, REAL share) {
    return {(1 - share) * a.x + share * b.x, (1 - share) * a.y + share * b.y,
            (1 - share) * a.z + share * b.z, (1 - share) * a.w + share * b.w};
}

bool IsPlace(REAL x) { return x >= 0 && x <= 1; }
bool IsAlike(const HYPER &colour) { return colour.x == colour.y && colour.y == colour.z; }

void BuildKeys(TCOLORMAP &map, NAT length, std::span<const COLOUR_KEY> keys) {
    TPOLYCOMPLEX points;
    TPOLYHYPER colours;
    points.INIT();
    colours.INIT();
    for (const COLOUR_KEY &key : keys) {
        points.PUSH({key.position, 0});
        colours.PUSH(Share({key.red, key.green, key.blue, key.alpha}));
    }
    map.DONE();
    map.INIT(LIMIT(length, NAT{1}, LONGEST_TABLE));
    map.BUILD(points, colours);
}
} // namespace

void TCOLORMAP::BUILD(const TPOLYCOMPLEX &points, const TPOLYHYPER &colours) {
    const NAT keys = std::min(points.LENGTH, colours.LENGTH);
    if (keys < 1 || LENGTH < 1) return;
    const REAL last = static_cast<REAL>(LENGTH - 1);
    if (keys == 1)
        for (NAT i = 1; i <= LENGTH; ++i)
            _PUT(i, colours._GET(1));
    NAT firstKey = 0, lastKey = 0;
    for (NAT key = 1; key < keys; ++key) {
        const REAL from = points._GET(key).x, to = points._GET(key + 1).x;
        if (!IsPlace(from) || !IsPlace(to) || to < from) continue;
        if (firstKey == 0) firstKey = key;
        lastKey = key + 1;
        const NAT start = ROUND(from * last), steps = ROUND((to - from) * last);
        const HYPER first = colours._GET(key), second = colours._GET(key + 1);
        for (NAT i = 0; i <= steps; ++i) {
            const REAL share = steps > 0 ? static_cast<REAL>(i) / static_cast<REAL>(steps) : 1;
            if (start + i < LENGTH) _PUT(start + i + 1, Blend(first, second, share));
        }
    }
    // Rounded steps may end one entry early or late: the outer keys keep their places.
    if (firstKey == 0) return;
    for (const NAT key : {firstKey, lastKey})
        _PUT(ROUND(points._GET(key).x * last) + 1, colours._GET(key));
}

void TCOLORMAP::PUT(NAT length, std::span<const HYPERNAT> colours) {
    TPOLYCOMPLEX points;
    TPOLYHYPER shares;
    points.INIT();
    shares.INIT();
    const REAL last = static_cast<REAL>(std::max<std::size_t>(colours.size(), 2) - 1);
    for (const HYPERNAT &colour : colours) {
        points.PUSH({static_cast<REAL>(points.LENGTH) / last, 0});
        shares.PUSH(Share(colour));
    }
    DONE();
    INIT(LIMIT(length, NAT{1}, LONGEST_TABLE));
    BUILD(points, shares);
}

void TCOLORMAP::PUT(NAT length, std::span<const VECTORNAT> colours) {
    std::vector<HYPERNAT> opaque;
    for (const VECTORNAT &colour : colours)
        opaque.push_back({colour.x, colour.y, colour.z, 255});
    PUT(length, std::span<const HYPERNAT>(opaque));
}

bool TCOLORMAP::PUT(NAT length, std::string_view builder) {
    for (const COLORMAP_FAMILY &family : COLORMAP_FAMILIES())
        for (const COLORMAP_ROW &row : family.rows)
            if (row.builder == builder) {
                BuildKeys(*this, length, row.keys);
                return true;
            }
    return false;
}

HYPER TCOLORMAP::GETRGBA(NAT index) const {
    if (LENGTH < 1) return {};
    // The distance from entry 1, without the absolute value that the smallest number does not have.
    const NAT size = index == NATMIN ? NATMAX : std::abs(index);
    const NAT offset = size == 0 ? LENGTH - 1 : (size - 1) % LENGTH;
    return _GET(offset + 1);
}

VECTOR TCOLORMAP::GETRGB(NAT index) const {
    const HYPER colour = GETRGBA(index);
    return {colour.x, colour.y, colour.z};
}

HYPER TCOLORMAP::GETRGBA(REAL low, REAL high, REAL value) const {
    if (LENGTH < 1) return {};
    const REAL place = MINMAX(value, low, high, 1, static_cast<REAL>(LENGTH));
    return _GET(LIMIT(ROUND(place), NAT{1}, LENGTH));
}

VECTOR TCOLORMAP::GETRGB(REAL low, REAL high, REAL value) const {
    const HYPER colour = GETRGBA(low, high, value);
    return {colour.x, colour.y, colour.z};
}

namespace {
// Each entry's alpha from its place of 0..1 and its colour.
template <class ALPHA> void SetAlpha(TCOLORMAP &map, const ALPHA &alpha) {
    const REAL last = static_cast<REAL>(std::max<NAT>(map.LENGTH - 1, 1));
    for (NAT i = 1; i <= map.LENGTH; ++i) {
        HYPER colour = map._GET(i);
        colour.w = alpha(colour, static_cast<REAL>(i - 1) / last);
        map._PUT(i, colour);
    }
}
bool IsBlack(const HYPER &colour) { return IsAlike(colour) && colour.x == 0; }
bool IsWhite(const HYPER &colour) { return IsAlike(colour) && colour.x == 1; }
} // namespace

void TCOLORMAP::SETALPHA_BW() {
    SetAlpha(*this, [](const HYPER &, REAL place) { return place; });
}
void TCOLORMAP::SETALPHA_WB() {
    SetAlpha(*this, [](const HYPER &, REAL place) { return 1 - place; });
}
void TCOLORMAP::SETALPHA_BLACK() {
    SetAlpha(*this, [](const HYPER &colour, REAL) { return IsBlack(colour) ? 0 : colour.w; });
}
void TCOLORMAP::SETALPHA_WHITE() {
    SetAlpha(*this, [](const HYPER &colour, REAL) { return IsWhite(colour) ? 0 : colour.w; });
}
void TCOLORMAP::SETALPHA_GRAY() {
    SetAlpha(*this, [](const HYPER &colour, REAL) {
        return IsAlike(colour) && !IsBlack(colour) && !IsWhite(colour) ? 0 : colour.w;
    });
}

NAT FAMILY_LENGTH(COLOUR_FAMILY family) {
    return static_cast<NAT>(COLORMAP_FAMILIES()[static_cast<std::size_t>(family)].rows.size());
}

std::string_view BUILD_FAMILY(TCOLORMAP &map, COLOUR_FAMILY family, NAT index, NAT steps) {
    const NAT place = LIMIT(index, NAT{1}, FAMILY_LENGTH(family));
    const COLORMAP_ROW &row = COLORMAP_FAMILIES()[static_cast<std::size_t>(family)]
                                  .rows[static_cast<std::size_t>(place - 1)];
    BuildKeys(map, steps, row.keys);
    return row.name;
}

TCOLORMAP &CURRENTMAP() {
    static TCOLORMAP map = [] {
        TCOLORMAP first;
        BUILD_FAMILY(first, COLOUR_FAMILY::DEFAULTMAP, 1, STANDARD_TABLE);
        return first;
    }();
    return map;
}

HYPER OVER(const HYPER &a, const HYPER &b) {
    const REAL below = (1 - b.w) * a.w;
    return {below * a.x + b.w * b.x, below * a.y + b.w * b.y, below * a.z + b.w * b.z, below + b.w};
}

HYPERNAT LIGHTUP(const HYPERNAT &colour) {
    const auto up = [](NAT value) {
        return value > 255 ? NAT{255} : LIMIT(value + 64, NAT{0}, NAT{255});
    };
    return {up(colour.x), up(colour.y), up(colour.z), up(colour.w)};
}
} // namespace morvane
