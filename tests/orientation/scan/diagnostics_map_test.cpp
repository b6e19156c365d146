#include "orientation/scan/diagnostics_map.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "image2d/canvas/draw.hpp"
#include "image2d/canvas/font.hpp"
#include "orientation/scan/diagnostics.hpp"
#include "orientation/scan/hemisphere.hpp"
#include "orientation/scan/scan_fields.hpp"
#include "orientation/scan/scan_line.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
TPOLYNAT LineAt(const T3D_SCALAR_ANALYSIS &scalar, const VECTORNAT &c, const VECTORNAT &d) {
    TPOLYNAT line;
    GETLINE_W0(scalar, c.x + d.x, c.y + d.y, c.z + d.z, c.x - d.x, c.y - d.y, c.z - d.z, line);
    return line;
}
bool SAME(const TFULLGRAY &a, const TFULLGRAY &b) {
    if (a.WIDTH != b.WIDTH || a.HEIGHT != b.HEIGHT) return false;
    return std::equal(a.DATA(), a.DATA() + a.COUNT(), b.DATA());
}
} // namespace

TEST_CASE("a map has a row a ring with its points in the middle, twice the deviation each") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {41, 41, 41}, NOISE(3, 1, 200));
    const NAT r = 16;
    const VECTORNAT c{21, 20, 22};
    TFULLGRAY expected(50, 50), map; // round(16 pi) = 50
    NAT lowest = 0, x = 0, y = 0;
    REAL least = 1e9;
    FOR_EACH_RING_POINT(
        r,
        [&](const RING_POINT &point) {
            const TPOLYNAT line = LineAt(scalar, c, point.offset);
            if (line.LENGTH < r) return;
            const NAT column = point.position + 1 + 25 - point.population / 2;
            expected._PUT(column, point.ring + 1, static_cast<WORD>(ROUND(2 * line.SD())));
            if (line.SD() < least) {
                least = line.SD();
                lowest = 0;
                x = column;
                y = point.ring + 1;
            }
            lowest += line.SD() == least;
        },
        [](NAT) {});
    REQUIRE(lowest == 1);
    const PIXEL_LIMITS limits = GETLIMITS(expected);
    expected.VALUE = static_cast<WORD>(limits.min);
    CIRCLE(expected, x, y, 2);
    expected.VALUE = static_cast<WORD>(limits.max);
    CIRCLE(expected, x, y, 3);
    WRITE(expected, 1, 1, "1");
    DIFFUSION_MAP(scalar, c.x, c.y, c.z, r, map);
    CHECK(SAME(map, expected));
    TFULLGRAY deviation;
    DIFFUSION_SD(scalar, c.x, c.y, c.z, r, deviation);
    CHECK(SAME(map, deviation));
}

TEST_CASE("three lowest directions and more are counted and not ringed") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {41, 41, 41}, [](NAT, NAT, NAT) { return 7; });
    TFULLGRAY map, mean, letters(50, 50);
    DIFFUSION_MAP(scalar, 21, 21, 21, 16, map); // all deviations are 0, and so is the map
    CHECK(GETLIMITS(map).max == 0);
    DIFFUSION_MEAN(scalar, 21, 21, 21, 16, mean); // 7 on every point
    letters.VALUE = 7;
    WRITE(letters, 1, 1, "1605"); // all points of the hemisphere, doubles too
    for (NAT y = 1; y <= 16; ++y)
        for (NAT x = 1; x <= 8; ++x) // the rows of the first digit are empty this far left
            if (y < 9) CHECK(mean.GET(x, y) == letters.GET(x, y));
    CHECK(mean.GET(1, 1) == letters.GET(1, 1));
    CHECK(COUNT(mean, 7, 7) >= 1605);
    CHECK(GETLIMITS(mean).max == 7);
}

TEST_CASE("a line too short is 0 on the map, and the count is 0 without lines") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {41, 41, 41},
               [](NAT x, NAT y, NAT z) { return x == 21 && y == 21 && z == 21 ? 9 : 0; });
    TFULLGRAY map;
    DIFFUSION_MAP(scalar, 21, 21, 21, 16, map);
    CHECK(map.WIDTH == 50);
    CHECK(GETLIMITS(map).max == 0);
}

TEST_CASE("a deviation above 32767 is limited to 65535 on the map") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_FULLGRAY, {13, 13, 13},
               [](NAT x, NAT, NAT) { return x % 2 == 0 ? 65535 : 1; });
    TFULLGRAY map;
    DIFFUSION_MAP(scalar, 7, 7, 7, 4, map);
    CHECK(GETLIMITS(map).max == 65535);
}

TEST_CASE("the low map keeps values up to 255 and shrinks others in proportion") {
    TFULLGRAY map(2, 2);
    TGRAY low;
    map.PUT(1, 1, 255);
    map.PUT(2, 2, 7);
    LOW_MAP(map, low);
    CHECK(low.GET(1, 1) == 255);
    CHECK(low.GET(2, 2) == 7);
    map.PUT(1, 1, 2550);
    LOW_MAP(map, low);
    CHECK(low.GET(1, 1) == 255);
    CHECK(low.GET(2, 2) == 0); // 0.7
    map.PUT(2, 2, 1000);
    LOW_MAP(map, low);
    CHECK(low.GET(2, 2) == 100);
}

TEST_CASE("the colour map goes from dark blue to yellow with the deviation, bright with the mean") {
    // Values grow along x: lines across x are constant, lines along it vary most.
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {41, 41, 41}, [](NAT x, NAT, NAT) { return 5 * x; });
    TRGB map;
    DIFFUSION_COLOURS(scalar, 21, 21, 21, 16, map);
    REQUIRE(map.WIDTH() == 50);
    NAT blue = 0, yellow = 0;
    for (NAT y = 1; y <= 50; ++y)
        for (NAT x = 1; x <= 50; ++x) {
            const VECTORNAT colour = map.GET(x, y);
            blue += colour.z > colour.y && colour.z > 50;
            yellow += colour.x > 200 && colour.y > 200 && colour.z < 100;
        }
    CHECK(blue > 20);
    CHECK(yellow > 20);
    CHECK(map.GET(1, 1) == VECTORNAT{0, 0, 0});
    FILL_FIELD(scalar, TAG_GRAY, {41, 41, 41}, [](NAT, NAT, NAT) { return 0; });
    DIFFUSION_COLOURS(scalar, 21, 21, 21, 16, map); // no line at all
    CHECK(map.GET(25, 25) == VECTORNAT{0, 0, 0});
}
