#include "image2d/image/filters.hpp"

#include "image2d/filter/adjust.hpp"
#include "image2d/filter/distance.hpp"
#include "image2d/filter/outliers.hpp"
#include "image2d/filter/window.hpp"

#include <algorithm>

namespace morvane {
namespace {
template <class F> void Repeat(TIMAGE &image, NAT times, const F &filter) {
    for (NAT pass = 0; pass < std::min(times, MOST_PASSES); ++pass)
        image._PLANES(filter);
}

// Every plane's count of changes.
template <class F> PLANE_NUMBERS Changes(TIMAGE &image, const F &filter) {
    PLANE_NUMBERS changes;
    image._PLANES([&](auto &plane) {
        changes.values[static_cast<std::size_t>(changes.planes++)] = filter(plane);
    });
    return changes;
}

template <class F> void EachColour(TIMAGE &image, const F &f) {
    if (TGRAY *gray = image._GRAY()) f(*gray);
    if (TFULLGRAY *full = image._FULLGRAY()) f(*full);
    if (TRGB *rgb = image._RGB())
        for (TGRAY &plane : rgb->planes)
            f(plane);
}
} // namespace

void SOFTSMOOTH(TIMAGE &image, NAT times) {
    Repeat(image, times, [](auto &plane) { SOFTSMOOTH(plane, plane.WHOLE()); });
}
void SMOOTH(TIMAGE &image, NAT times) {
    Repeat(image, times, [](auto &plane) { SMOOTH(plane, plane.WHOLE()); });
}
void HARDSMOOTH(TIMAGE &image, NAT times) {
    Repeat(image, times, [](auto &plane) { HARDSMOOTH(plane, plane.WHOLE()); });
}
void UNSHARPMASKING(TIMAGE &image, NAT times) {
    Repeat(image, times, [](auto &plane) { UNSHARPMASKING(plane, plane.WHOLE()); });
}

void CLEAN_NOISE(TIMAGE &image) {
    image._PLANES([](auto &plane) { ADJUST(plane, plane.WHOLE()); });
    SMOOTH(image, 1);
    UNSHARPMASKING(image, 2);
}

void FILTER(TIMAGE &image, const KERNEL3 &kernel) {
    image._PLANES([&](auto &plane) { FILTER(plane, plane.WHOLE(), kernel); });
}

PLANE_NUMBERS REMOVE_OUTLIERS(TIMAGE &image, REAL factor) {
    return Changes(image,
                   [&](auto &plane) { return REMOVE_OUTLIERS(plane, plane.WHOLE(), factor); });
}
PLANE_NUMBERS SHRINK(TIMAGE &image, const STRUCTURE &structure) {
    return Changes(image, [&](auto &plane) { return SHRINK(plane, plane.WHOLE(), structure); });
}
PLANE_NUMBERS GROW(TIMAGE &image, const STRUCTURE &structure) {
    return Changes(image, [&](auto &plane) { return GROW(plane, plane.WHOLE(), structure); });
}
PLANE_NUMBERS FULLSHRINK(TIMAGE &image, const STRUCTURE &structure) {
    return Changes(image, [&](auto &plane) { return FULLSHRINK(plane, plane.WHOLE(), structure); });
}
PLANE_NUMBERS FULLGROW(TIMAGE &image, const STRUCTURE &structure) {
    return Changes(image, [&](auto &plane) { return FULLGROW(plane, plane.WHOLE(), structure); });
}

void WINDOW_SIN(TIMAGE &image) {
    EachColour(image, [](auto &plane) { WINDOW_SIN(plane); });
}
void WINDOW_COS(TIMAGE &image) {
    EachColour(image, [](auto &plane) { WINDOW_COS(plane); });
}
void RADIAL(TIMAGE &image, const COMPLEX &point, REAL turn) {
    EachColour(image, [&](auto &plane) { RADIAL(plane, point, turn); });
}
void DISTANCE(TIMAGE &image, std::span<const COMPLEX> points) {
    EachColour(image, [&](auto &plane) { DISTANCE(plane, points); });
}

void FLIPX(TIMAGE &image) {
    image._ALLPLANES([](auto &plane) { FLIPX(plane, plane.WHOLE()); });
}
void FLIPY(TIMAGE &image) {
    image._ALLPLANES([](auto &plane) { FLIPY(plane, plane.WHOLE()); });
}
void ROTATE90(TIMAGE &image) {
    image._ALLPLANES([](auto &plane) { ROTATE90(plane); });
}
void ROTATE180(TIMAGE &image) {
    image._ALLPLANES([](auto &plane) { ROTATE180(plane); });
}
void ROTATE270(TIMAGE &image) {
    image._ALLPLANES([](auto &plane) { ROTATE270(plane); });
}
} // namespace morvane
