#include "image2d/image/levels.hpp"

#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"
#include "image2d/colour/colormap.hpp"
#include "image2d/filter/adjust.hpp"
#include "image2d/image/channels.hpp"
#include "image2d/image/result.hpp"

#include <algorithm>
#include <vector>

namespace morvane {
namespace {
template <class PIXEL> bool IsPlain(const CANVAS<PIXEL> &plane) {
    const PIXEL_LIMITS limits = GETLIMITS(plane);
    return limits.min == limits.max;
}

// Maps a plane by new(v).
template <class PIXEL, class NEW> void MapPlane(CANVAS<PIXEL> &plane, const NEW &value) {
    constexpr NAT LARGEST = CANVAS<PIXEL>::MAXIMUM;
    TPOLYNAT table;
    table.INIT(LARGEST + 1);
    if (table.LENGTH != LARGEST + 1) return;
    for (NAT v = 0; v <= LARGEST; ++v)
        table._PUT(v + 1, LIMIT(value(v), NAT{0}, LARGEST));
    SETRANGE(plane, plane.WHOLE(), table);
}

template <class PIXEL> constexpr NAT HALF = (CANVAS<PIXEL>::MAXIMUM + 1) / 2;

// The values that pixels have, in order.
std::vector<NAT> UsedValues(const TFULLGRAY &plane) {
    TPOLYNAT bins;
    HISTOGRAM(plane, bins);
    std::vector<NAT> used;
    for (NAT i = 1; i <= bins.LENGTH; ++i)
        if (bins._GET(i) > 0) used.push_back(i - 1);
    return used;
}

bool IsWrapped(const TFULLGRAY &plane) {
    constexpr NAT GAP_RATIO = 16;
    const std::vector<NAT> used = UsedValues(plane);
    const auto upper = std::lower_bound(used.begin(), used.end(), HALF<WORD>);
    if (upper - used.begin() < 2 || used.end() - upper < 2) return false;
    const NAT middle = *upper - *(upper - 1),
              ends = used.front() + TFULLGRAY::MAXIMUM + 1 - used.back();
    return middle > GAP_RATIO * ends;
}
} // namespace

bool IFPLAIN(const TIMAGE &image) {
    if (!image.ISNOTEMPTY()) return false;
    bool isPlain = true;
    const_cast<TIMAGE &>(image)._ALLPLANES(
        [&](const auto &plane) { isPlain = isPlain && IsPlain(plane); });
    return isPlain;
}

void SETSIGN(TIMAGE &image) {
    image._PLANES([]<class PIXEL>(CANVAS<PIXEL> &plane) {
        MapPlane(plane, [](NAT v) { return v < HALF<PIXEL> ? v + HALF<PIXEL> : v - HALF<PIXEL>; });
    });
}

void SETRANGE(TIMAGE &image) {
    if (image._FULLGRAY() && IsWrapped(*image._FULLGRAY())) SETSIGN(image);
    NAT smallest = image.PIXELMAX();
    VALUEPLANES(image, [&](const auto &plane) {
        smallest = std::min(smallest, static_cast<NAT>(GETLIMITS(plane).min));
    });
    VALUEPLANES(image, [&](auto &plane) { MapPlane(plane, [&](NAT v) { return v - smallest; }); });
}

void SETCROP(TIMAGE &image) {
    constexpr NAT SPOTS = 3;
    VALUEPLANES(image, [](auto &plane) {
        TPOLYNAT bins;
        HISTOGRAM(plane, bins);
        NAT first = 1, last = bins.LENGTH;
        while (first <= last && bins._GET(first) <= SPOTS)
            ++first;
        while (last > first && bins._GET(last) <= SPOTS)
            --last;
        if (first > last) return;
        MapPlane(plane, [&](NAT v) { return LIMIT(v, first - 1, last - 1); });
    });
}

void SETLOWER(TIMAGE &image, NAT bound, NAT value) {
    VALUEPLANES(image, [&](auto &plane) { SETLOWER(plane, plane.WHOLE(), bound, value); });
}

void SETHIGHER(TIMAGE &image, NAT bound, NAT value) {
    VALUEPLANES(image, [&](auto &plane) { SETHIGHER(plane, plane.WHOLE(), bound, value); });
}

void SETVALUE(TIMAGE &image, const COMPLEXNAT &range, NAT value) {
    VALUEPLANES(image,
                [&](auto &plane) { SETVALUE(plane, plane.WHOLE(), range.x, range.y, value); });
}

void SETVALUE(TIMAGE &image, const VECTORNAT &colour, const VECTORNAT &newColour) {
    const auto mean = [](const VECTORNAT &c) { return (c.x + c.y + c.z) / 3; };
    if (image.ISGRAY()) return SETVALUE(image, {mean(colour), mean(colour)}, mean(newColour));
    TRGB *const rgb = image._RGB();
    if (!rgb || image._ZRGB()) return;
    for (NAT y = 1; y <= rgb->HEIGHT(); ++y)
        for (NAT x = 1; x <= rgb->WIDTH(); ++x)
            if (rgb->_GET(x, y) == colour) rgb->PUT(x, y, newColour);
}

void EQUAL(TIMAGE &image) {
    VALUEPLANES(image, [](auto &plane) { EQUAL(plane, plane.WHOLE()); });
}

void MONO(TIMAGE &image, NAT threshold) {
    image._PLANES([&](auto &plane) { MONO(plane, plane.WHOLE(), threshold); });
}

void GRAY(TIMAGE &image) {
    if (TRGB *rgb = image._RGB()) rgb->GRAY();
}

void HDRGRAY(TIMAGE &image) {
    if (TRGB *rgb = image._RGB()) HDRGRAY(*rgb);
}

void INVERT(TIMAGE &image, NAT m) {
    VALUEPLANES(image, [&]<class PIXEL>(CANVAS<PIXEL> &plane) {
        if constexpr (std::is_same_v<PIXEL, WORD>)
            INVERT(plane, plane.WHOLE(), m);
        else
            INVERT(plane, plane.WHOLE());
    });
}

namespace {
// The colours of 0..largest in the current map.
std::vector<VECTORNAT> MapColours(NAT largest) {
    std::vector<VECTORNAT> colours;
    colours.reserve(static_cast<std::size_t>(largest) + 1);
    const TCOLORMAP &map = CURRENTMAP();
    for (NAT v = 0; v <= largest; ++v) {
        const VECTOR c = map.GETRGB(0, static_cast<REAL>(largest), static_cast<REAL>(v));
        colours.push_back(ROUND(VECTOR{c.x * 255, c.y * 255, c.z * 255}));
    }
    return colours;
}

void ColorizeColours(TRGB &rgb) {
    const std::vector<VECTORNAT> colours = MapColours(3 * TGRAY::MAXIMUM);
    for (NAT y = 1; y <= rgb.HEIGHT(); ++y)
        for (NAT x = 1; x <= rgb.WIDTH(); ++x)
            rgb.PUT(x, y, colours[static_cast<std::size_t>(rgb.GETFULLGRAY(x, y))]);
}
} // namespace

void COLORIZE(TIMAGE &image) {
    if (image.ISCOLOUR()) return ColorizeColours(*image._RGB());
    IMAGE_RESULT result(image, image.SIZE(), IMAGE_RGB);
    const std::vector<VECTORNAT> colours = MapColours(image.PIXELMAX());
    for (NAT y = 1; y <= result.image.SIZEY(); ++y)
        for (NAT x = 1; x <= result.image.SIZEX(); ++x)
            result.image.PUTRGB(x, y, colours[static_cast<std::size_t>(image.GET(x, y))]);
    result.GIVE(image);
}
} // namespace morvane
