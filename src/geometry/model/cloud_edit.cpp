#include "geometry/model/cloud_edit.hpp"

#include "foundation/base/geometry.hpp"
#include "foundation/base/rounding.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace morvane {
namespace {
VECTOR PLACE(const HYPER &point) { return {point.x, point.y, point.z}; }
HYPER WITH_PLACE(const HYPER &point, const VECTOR &place) {
    return {place.x, place.y, place.z, point.w};
}
// From 2^53 steps on a value is a multiple as far as its digits tell; an infinite one stays too.
REAL SNAP(REAL value, REAL step) {
    const REAL steps = value / step;
    return std::abs(steps) < 0x1p53 ? static_cast<REAL>(ROUND(steps)) * step : value;
}

// Erases the lines for which the test holds.
template <class TEST> NAT ERASE_WHERE(TCLOUD &cloud, TEST test) {
    const TCLOUD &lines = cloud;
    for (NAT line = 1; line <= lines.GETLINELENGTH(); ++line)
        if (test(lines.GETSPAN(line))) cloud.MARKALLLINE(line);
    return cloud.ERASEMARKED();
}

void CENTER_POINTS(std::span<HYPER> points) {
    if (points.empty()) return;
    VECTOR low = PLACE(points.front()), high = low;
    for (const HYPER &point : points) {
        low = MIN(low, PLACE(point));
        high = MAX(high, PLACE(point));
    }
    const VECTOR center = low + (high - low) / 2.0;
    for (HYPER &point : points)
        point = WITH_PLACE(point, PLACE(point) - center);
}

template <class STATISTIC> void REPLACE_T(TCLOUD &cloud, STATISTIC statistic) {
    TPOLYREAL values;
    values.INIT();
    for (NAT line = 1; line <= cloud.GETLINELENGTH(); ++line) {
        const std::span<HYPER> points = cloud.GETSPAN(line);
        values.NEWLENGTH(0);
        for (const HYPER &point : points)
            values.PUSH(point.w);
        const REAL value = statistic(values);
        for (HYPER &point : points)
            point.w = value;
    }
}

// The vector of each line of two points becomes change(vector).
template <class CHANGE> void CHANGE_VECTORS(TCLOUD &cloud, CHANGE change) {
    for (NAT line = 1; line <= cloud.GETLINELENGTH(); ++line) {
        const std::span<HYPER> points = cloud.GETSPAN(line);
        if (points.size() != 2) continue;
        const VECTOR start = PLACE(points[0]);
        points[1] = WITH_PLACE(points[1], start + change(PLACE(points[1]) - start));
    }
}

// The lengths of all vectors above 0.
TPOLYREAL VECTOR_LENGTHS(TCLOUD &cloud) {
    TPOLYREAL lengths;
    lengths.INIT();
    CHANGE_VECTORS(cloud, [&lengths](const VECTOR &v) {
        if (GETLENGTH(v) > 0) lengths.PUSH(GETLENGTH(v));
        return v;
    });
    return lengths;
}
} // namespace

REAL LINE_LENGTH(std::span<const HYPER> line) {
    REAL length = 0;
    for (std::size_t i = 1; i < line.size(); ++i)
        length += GETLENGTH(PLACE(line[i]) - PLACE(line[i - 1]));
    return length;
}

NAT ERASE_T_MIN(TCLOUD &cloud, REAL limit) {
    return ERASE_WHERE(cloud, [limit](std::span<const HYPER> line) {
        return std::ranges::any_of(line, [limit](const HYPER &p) { return p.w < limit; });
    });
}

NAT ERASE_T_MAX(TCLOUD &cloud, REAL limit) {
    return ERASE_WHERE(cloud, [limit](std::span<const HYPER> line) {
        return std::ranges::any_of(line, [limit](const HYPER &p) { return p.w > limit; });
    });
}

NAT ERASE_LENGTH_MIN(TCLOUD &cloud, REAL limit) {
    return ERASE_WHERE(cloud,
                       [limit](std::span<const HYPER> line) { return LINE_LENGTH(line) < limit; });
}

NAT ERASE_LENGTH_MAX(TCLOUD &cloud, REAL limit) {
    return ERASE_WHERE(cloud,
                       [limit](std::span<const HYPER> line) { return LINE_LENGTH(line) > limit; });
}

void DISCRETE(TCLOUD &cloud, REAL step) {
    if (step == 0 || !std::isfinite(step)) return;
    for (HYPER &p : cloud.SPAN())
        p = {SNAP(p.x, step), SNAP(p.y, step), SNAP(p.z, step), SNAP(p.w, step)};
}

void DISCRETE_3D(TCLOUD &cloud, REAL step) {
    if (step == 0 || !std::isfinite(step)) return;
    for (HYPER &p : cloud.SPAN())
        p = {SNAP(p.x, step), SNAP(p.y, step), SNAP(p.z, step), p.w};
}

void CENTER(TCLOUD &cloud) { CENTER_POINTS(cloud.SPAN()); }

void CENTER_OBJECTS(TCLOUD &cloud) {
    for (NAT object = 1; object <= cloud.GETOBJECTLENGTH(); ++object) {
        const NAT first = cloud.GETOBJECTLINE(object, 1);
        const NAT last = first + cloud.GETOBJECTLINELENGTH(object) - 1;
        const NAT start = cloud.GETPLINE(first, 1);
        const NAT end = cloud.GETPLINE(last, cloud.GETALLLINEPOINTLENGTH(last));
        CENTER_POINTS(cloud.SPAN().subspan(static_cast<std::size_t>(start - 1),
                                           static_cast<std::size_t>(end - start + 1)));
    }
}

void NUMBER_T(TCLOUD &cloud) {
    REAL number = 0;
    for (HYPER &point : cloud.SPAN())
        point.w = ++number;
}

void LENGTH_T(TCLOUD &cloud) {
    for (NAT line = 1; line <= cloud.GETLINELENGTH(); ++line) {
        const std::span<HYPER> points = cloud.GETSPAN(line);
        REAL length = 0;
        for (std::size_t i = 0; i < points.size(); ++i) {
            if (i > 0) length += GETLENGTH(PLACE(points[i]) - PLACE(points[i - 1]));
            points[i].w = length;
        }
    }
}

void MEAN_T(TCLOUD &cloud) {
    REPLACE_T(cloud, [](const TPOLYREAL &values) { return values.MEAN(); });
}
void SD_T(TCLOUD &cloud) {
    REPLACE_T(cloud, [](const TPOLYREAL &values) { return values.SD(); });
}
void MIN_T(TCLOUD &cloud) {
    REPLACE_T(cloud, [](const TPOLYREAL &values) { return values.MIN(); });
}
void MEDIAN_T(TCLOUD &cloud) {
    REPLACE_T(cloud, [](const TPOLYREAL &values) { return values.MEDIAN(); });
}
void MAX_T(TCLOUD &cloud) {
    REPLACE_T(cloud, [](const TPOLYREAL &values) { return values.MAX(); });
}

void VECTOR_NORM(TCLOUD &cloud) {
    CHANGE_VECTORS(cloud, [](const VECTOR &v) { return NORM(v); });
}

void VECTOR_NORMSCALE(TCLOUD &cloud, REAL scale) {
    CHANGE_VECTORS(cloud, [scale](const VECTOR &v) { return NORM(v) * scale; });
}

void VECTOR_SCALE(TCLOUD &cloud, REAL scale) {
    CHANGE_VECTORS(cloud, [scale](const VECTOR &v) { return v * scale; });
}

void VECTOR_MINSCALE(TCLOUD &cloud) {
    const TPOLYREAL lengths = VECTOR_LENGTHS(cloud);
    if (lengths.LENGTH > 0) VECTOR_SCALE(cloud, 1 / lengths.MIN());
}

void VECTOR_MAXSCALE(TCLOUD &cloud) {
    const TPOLYREAL lengths = VECTOR_LENGTHS(cloud);
    if (lengths.LENGTH > 0) VECTOR_SCALE(cloud, 1 / lengths.MAX());
}

void VECTOR_NEGATE(TCLOUD &cloud) {
    CHANGE_VECTORS(cloud, [](const VECTOR &v) { return -v; });
}

void VECTOR_INVERT(TCLOUD &cloud) {
    for (NAT line = 1; line <= cloud.GETLINELENGTH(); ++line) {
        const std::span<HYPER> points = cloud.GETSPAN(line);
        if (points.size() == 2) std::swap(points[0], points[1]);
    }
}
} // namespace morvane
