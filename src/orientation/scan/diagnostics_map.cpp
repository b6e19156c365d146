#include "orientation/scan/diagnostics_map.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "foundation/base/geometry.hpp"
#include "foundation/base/number_text.hpp"
#include "image2d/canvas/draw.hpp"
#include "image2d/canvas/font.hpp"
#include "image2d/colour/colormap.hpp"
#include "orientation/scan/hemisphere.hpp"
#include "orientation/scan/scan_line.hpp"

#include <algorithm>

namespace morvane {
namespace {
// A line long enough, where its point stands.
struct MAP_POINT {
    COMPLEXNAT pixel;
    REAL mean = 0, deviation = 0;
};

NAT Side(NAT r) { return ROUND(PI * static_cast<REAL>(r)); }

// take(MAP_POINT) for every polar point whose line has at least r samples.
template <class TAKE>
void ForEachPoint(const T3D_SCALAR_ANALYSIS &scalar, const VECTORNAT &voxel, NAT r,
                  const TAKE &take) {
    const NAT side = Side(r);
    TPOLYNAT line;
    FOR_EACH_RING_POINT(
        r,
        [&](const RING_POINT &point) {
            const VECTORNAT p1 = voxel + point.offset, p2 = voxel - point.offset;
            GETLINE_W0(scalar, p1.x, p1.y, p1.z, p2.x, p2.y, p2.z, line);
            if (line.LENGTH < r) return;
            const NAT column = point.position + 1 + side / 2 - point.population / 2;
            take(MAP_POINT{{column, point.ring + 1}, line.MEAN(), line.SD()});
        },
        [](NAT) {});
}

WORD Pixel(REAL value) { return static_cast<WORD>(LIMIT(ROUND(value), 0, 65535)); }

// The points of the lowest deviation: ringed when they are one or two, and counted.
void Mark(TFULLGRAY &map, const TPOLYCOMPLEX &points, const TPOLYCOMPLEXNAT &pixels) {
    TPOLYCOMPLEX sorted;
    sorted.INIT();
    for (const COMPLEX &point : points.SPAN())
        sorted.PUSH(point);
    sorted.SORTY();
    NAT count = 0;
    while (count < sorted.LENGTH && sorted._GET(count + 1).y == sorted._GET(1).y)
        ++count;
    const PIXEL_LIMITS limits = GETLIMITS(map);
    for (NAT i = 1; i <= count && count < 3; ++i) {
        const COMPLEXNAT pixel = pixels._GET(ROUND(sorted._GET(i).x));
        map.VALUE = static_cast<WORD>(limits.min);
        CIRCLE(map, pixel.x, pixel.y, 2);
        map.VALUE = static_cast<WORD>(limits.max);
        CIRCLE(map, pixel.x, pixel.y, 3);
    }
    map.VALUE = static_cast<WORD>(limits.max);
    WRITE(map, 1, 1, GETSTRING(count));
}

template <class SHADE>
void Draw(const T3D_SCALAR_ANALYSIS &scalar, const VECTORNAT &voxel, NAT r, TFULLGRAY &map,
          const SHADE &shade) {
    map.INIT(Side(r), Side(r));
    TPOLYCOMPLEX points; // (position in `pixels`, deviation)
    TPOLYCOMPLEXNAT pixels;
    points.INIT();
    pixels.INIT();
    ForEachPoint(scalar, voxel, r, [&](const MAP_POINT &point) {
        map.PUT(point.pixel.x, point.pixel.y, Pixel(shade(point)));
        pixels.PUSH(point.pixel);
        points.PUSH({static_cast<REAL>(pixels.LENGTH), point.deviation});
    });
    Mark(map, points, pixels);
}
} // namespace

void DIFFUSION_MAP(const T3D_SCALAR_ANALYSIS &scalar, NAT x, NAT y, NAT z, NAT r, TFULLGRAY &map) {
    DIFFUSION_SD(scalar, x, y, z, r, map);
}

void DIFFUSION_SD(const T3D_SCALAR_ANALYSIS &scalar, NAT x, NAT y, NAT z, NAT r, TFULLGRAY &map) {
    Draw(scalar, {x, y, z}, r, map, [](const MAP_POINT &point) { return 2 * point.deviation; });
}

void DIFFUSION_MEAN(const T3D_SCALAR_ANALYSIS &scalar, NAT x, NAT y, NAT z, NAT r, TFULLGRAY &map) {
    Draw(scalar, {x, y, z}, r, map, [](const MAP_POINT &point) { return point.mean; });
}

void DIFFUSION_COLOURS(const T3D_SCALAR_ANALYSIS &scalar, NAT x, NAT y, NAT z, NAT r, TRGB &map) {
    map.INIT(Side(r), Side(r));
    TCOLORMAP colours;
    if (!colours.PUT(256, "VIRIDIS")) return;
    REAL lowest = REALMAX, highest = 0, brightest = 0;
    ForEachPoint(scalar, {x, y, z}, r, [&](const MAP_POINT &point) {
        lowest = std::min(lowest, point.deviation);
        highest = std::max(highest, point.deviation);
        brightest = std::max(brightest, point.mean);
    });
    ForEachPoint(scalar, {x, y, z}, r, [&](const MAP_POINT &point) {
        const VECTOR colour = colours.GETRGB(lowest, highest, point.deviation);
        const REAL share = DIVIDE(point.mean, brightest);
        map.PUT(point.pixel.x, point.pixel.y, ROUND(colour * (255 * share)));
    });
}

void LOW_MAP(const TFULLGRAY &map, TGRAY &low) {
    low.INIT(map.WIDTH, map.HEIGHT);
    const NAT highest = std::max(GETLIMITS(map).max, NAT{255});
    for (NAT y = 1; y <= low.HEIGHT; ++y)
        for (NAT x = 1; x <= low.WIDTH; ++x)
            low._PUT(x, y, static_cast<BYTE>(NAT{map._GET(x, y)} * 255 / highest));
}
} // namespace morvane
