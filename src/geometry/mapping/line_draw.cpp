#include "geometry/mapping/line_draw.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "foundation/base/rounding.hpp"
#include "geometry/model/cloud.hpp"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace morvane {
namespace {
// A point of a cloud in voxels of the field, whole numbers, and its t.
struct SPOT {
    VECTOR voxel;
    REAL t = 0;
};

// Draws into one raster: the voxel width is chosen before any loop.
template <class RASTER> class PEN {
public:
    PEN(RASTER &target, DRAW_GREY chosenGrey) : raster(target), grey(chosenGrey) {}

    SPOT Spot(const HYPER &point) const {
        const VECTOR local = raster.frame.G2L({point.x, point.y, point.z});
        return {{static_cast<REAL>(ROUND(local.x)), static_cast<REAL>(ROUND(local.y)),
                 static_cast<REAL>(ROUND(local.z))},
                point.w};
    }

    // Writes the voxels of the box around the spot for which inside(dx, dy, dz) holds.
    template <class INSIDE> void Box(const SPOT &spot, NAT reach, INSIDE &&inside) {
        const auto value = Grey(spot.t);
        const VECTORNAT low = Limited(spot.voxel, -static_cast<REAL>(reach), 1);
        const VECTORNAT high = Limited(spot.voxel, static_cast<REAL>(reach), 0);
        for (NAT z = low.z; z <= high.z; ++z)
            for (NAT y = low.y; y <= high.y; ++y)
                for (NAT x = low.x; x <= high.x; ++x)
                    if (inside(static_cast<REAL>(x) - spot.voxel.x,
                               static_cast<REAL>(y) - spot.voxel.y,
                               static_cast<REAL>(z) - spot.voxel.z))
                        raster._PUT(x, y, z, value);
    }

    void Block(const SPOT &spot, bool solid) {
        Box(spot, solid ? 1 : 0, [](REAL, REAL, REAL) { return true; });
    }

    // From one spot to the next in steps of one voxel along the longest axis; the part of a long
    // segment that lies outside the field is not walked.
    void Segment(const SPOT &a, const SPOT &b, bool solid) {
        const VECTOR d{b.voxel.x - a.voxel.x, b.voxel.y - a.voxel.y, b.voxel.z - a.voxel.z};
        const REAL steps = std::max({std::abs(d.x), std::abs(d.y), std::abs(d.z)});
        if (steps < 1) return Block(a, solid);
        REAL first = 0, last = 1;
        Clip(a.voxel.x, d.x, raster.SIZEX, first, last);
        Clip(a.voxel.y, d.y, raster.SIZEY, first, last);
        Clip(a.voxel.z, d.z, raster.SIZEZ, first, last);
        if (first > last) return;
        const REAL end = std::floor(last * steps);
        for (REAL i = std::ceil(first * steps); i <= end; ++i) {
            const REAL share = i / steps;
            Block(
                {{std::nearbyint(a.voxel.x + d.x * share), std::nearbyint(a.voxel.y + d.y * share),
                  std::nearbyint(a.voxel.z + d.z * share)},
                 a.t + (b.t - a.t) * share},
                solid);
        }
    }

private:
    using VOXEL = typename RASTER::TYPE;

    VOXEL Grey(REAL t) const {
        const REAL own = static_cast<REAL>(raster.VALUE);
        const REAL value = grey == DRAW_GREY::VALUE ? own : grey == DRAW_GREY::T ? t : own * t;
        const REAL limited = value > 0 ? std::min<REAL>(value, RASTER::KIND::MAXIMUM) : 0;
        if constexpr (std::is_same_v<VOXEL, bool>)
            return limited >= 1;
        else
            return static_cast<VOXEL>(ROUND(limited));
    }

    // spot + shift on each axis; below the field it becomes 1, above it the size plus `beyond`,
    // so that a box that misses the field is empty.
    VECTORNAT Limited(const VECTOR &spot, REAL shift, NAT beyond) const {
        const auto limit = [&](REAL position, NAT size) {
            const REAL low = beyond == 1 ? 1 : 0;
            return static_cast<NAT>(
                std::clamp(position + shift, low, static_cast<REAL>(size + beyond)));
        };
        return {limit(spot.x, raster.SIZEX), limit(spot.y, raster.SIZEY),
                limit(spot.z, raster.SIZEZ)};
    }

    // Narrows the shares first..last of a segment to the field and two voxels around it.
    static void Clip(REAL start, REAL delta, NAT size, REAL &first, REAL &last) {
        const REAL low = -1 - start, high = static_cast<REAL>(size) + 2 - start;
        if (delta == 0) {
            if (low > 0 || high < 0) last = -1;
            return;
        }
        first = std::max(first, std::min(low / delta, high / delta));
        last = std::min(last, std::max(low / delta, high / delta));
    }

    RASTER &raster;
    DRAW_GREY grey;
};

// Calls draw(pen, spot) for every point.
template <class DRAW>
void ForPoints(const TCLOUD &cloud, T3D_SCALAR_ANALYSIS &field, DRAW_GREY grey, DRAW &&draw) {
    field._DISPATCH([&](auto &raster) {
        if (raster.EMPTY()) return;
        PEN pen(raster, grey);
        for (NAT i = 1; i <= cloud.GETPOINTLENGTH(); ++i)
            draw(pen, pen.Spot(cloud.GETPOINT(i)));
    });
}

// No shape reaches further than the largest field; so a radius typed wrong stays harmless.
NAT Reach(REAL radius) { return radius > 0 ? ROUND(std::min(radius, 1e9)) : 0; }
} // namespace

void DRAW_POINTS(const TCLOUD &cloud, T3D_SCALAR_ANALYSIS &field, DRAW_GREY grey, bool solid) {
    ForPoints(cloud, field, grey, [&](auto &pen, const SPOT &spot) { pen.Block(spot, solid); });
}

void DRAW_SPHERES(const TCLOUD &cloud, T3D_SCALAR_ANALYSIS &field, DRAW_GREY grey, REAL radius,
                  bool solid) {
    if (!(radius >= 0)) return;
    const REAL outer = radius * radius;
    const REAL inner = solid || radius < 1 ? -1 : (radius - 1) * (radius - 1);
    ForPoints(cloud, field, grey, [&](auto &pen, const SPOT &spot) {
        pen.Box(spot, Reach(std::floor(radius)), [&](REAL dx, REAL dy, REAL dz) {
            const REAL distance = dx * dx + dy * dy + dz * dz;
            return distance <= outer && distance > inner;
        });
    });
}

void DRAW_CUBES(const TCLOUD &cloud, T3D_SCALAR_ANALYSIS &field, DRAW_GREY grey, REAL radius,
                bool solid) {
    if (!(radius >= 0)) return;
    const NAT reach = Reach(radius);
    const REAL face = static_cast<REAL>(reach);
    ForPoints(cloud, field, grey, [&](auto &pen, const SPOT &spot) {
        pen.Box(spot, reach, [&](REAL dx, REAL dy, REAL dz) {
            return solid || std::max({std::abs(dx), std::abs(dy), std::abs(dz)}) == face;
        });
    });
}

void DRAW_LINES(const TCLOUD &cloud, T3D_SCALAR_ANALYSIS &field, DRAW_GREY grey, bool points,
                bool solid) {
    field._DISPATCH([&](auto &raster) {
        if (raster.EMPTY()) return;
        PEN pen(raster, grey);
        for (NAT line = 1; line <= cloud.GETLINELENGTH(); ++line) {
            const auto span = cloud.GETSPAN(line);
            if (span.size() == 1 && points) pen.Block(pen.Spot(span[0]), solid);
            for (std::size_t i = 1; i < span.size(); ++i)
                pen.Segment(pen.Spot(span[i - 1]), pen.Spot(span[i]), solid);
        }
    });
}
} // namespace morvane
