#include "image2d/colour/colormap.hpp"
#include "image2d/colour/colormap_table.hpp"

#include <cmath>
#include <set>
#include <string>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
void CheckColour(const HYPER &found, const HYPER &wanted) {
    CHECK(found.x == doctest::Approx(wanted.x).epsilon(1e-12));
    CHECK(found.y == doctest::Approx(wanted.y).epsilon(1e-12));
    CHECK(found.z == doctest::Approx(wanted.z).epsilon(1e-12));
    CHECK(found.w == doctest::Approx(wanted.w).epsilon(1e-12));
}

// CIE 1976 L* of an sRGB colour, D65 (IEC 61966-2-1).
REAL Lightness(const HYPER &colour) {
    const auto linear = [](REAL c) {
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    const REAL y =
        0.2126 * linear(colour.x) + 0.7152 * linear(colour.y) + 0.0722 * linear(colour.z);
    return y > 0.008856 ? 116 * std::cbrt(y) - 16 : 903.3 * y;
}

// 1: L* never falls along the map, -1: it never rises, 0: neither.
int Direction(std::string_view builder) {
    TCOLORMAP map;
    REQUIRE(map.PUT(256, builder));
    bool rises = true, falls = true;
    for (NAT i = 2; i <= 256; ++i) {
        const REAL step = Lightness(map.GETRGBA(i)) - Lightness(map.GETRGBA(i - 1));
        rises = rises && step > -1e-9;
        falls = falls && step < 1e-9;
    }
    return rises ? 1 : falls ? -1 : 0;
}
} // namespace

TEST_CASE("a map is blended linearly between its key points") {
    TCOLORMAP map;
    TPOLYCOMPLEX points;
    TPOLYHYPER colours;
    points.INIT();
    colours.INIT();
    points.PUSH({0, 0});
    points.PUSH({0.5, 0});
    points.PUSH({1, 0});
    colours.PUSH({0, 0, 0, 1});
    colours.PUSH({1, 0, 0, 1});
    colours.PUSH({1, 1, 1, 0});
    map.INIT(5);
    map.BUILD(points, colours);
    CheckColour(map.GETRGBA(1), {0, 0, 0, 1});
    CheckColour(map.GETRGBA(2), {0.5, 0, 0, 1});
    CheckColour(map.GETRGBA(3), {1, 0, 0, 1});
    CheckColour(map.GETRGBA(4), {1, 0.5, 0.5, 0.5});
    CheckColour(map.GETRGBA(5), {1, 1, 1, 0});
}

TEST_CASE("key points outside 0..1 are passed over and empty lists change nothing") {
    TCOLORMAP map;
    TPOLYCOMPLEX points;
    TPOLYHYPER colours;
    points.INIT();
    colours.INIT();
    map.INIT(3);
    map.BUILD(points, colours);
    CheckColour(map.GETRGBA(2), {0, 0, 0, 0});
    points.PUSH({0, 0});
    points.PUSH({2, 0});
    colours.PUSH({1, 1, 1, 1});
    colours.PUSH({1, 1, 1, 1});
    map.BUILD(points, colours);
    CheckColour(map.GETRGBA(1), {0, 0, 0, 0});
}

TEST_CASE("maps of every length begin and end with their outer key colours") {
    const auto share = [](const COLOUR_KEY &key) {
        return HYPER{key.red / 255.0, key.green / 255.0, key.blue / 255.0, key.alpha / 255.0};
    };
    for (const COLORMAP_FAMILY &family : COLORMAP_FAMILIES())
        for (const COLORMAP_ROW &row : family.rows)
            for (NAT length = 2; length <= 40; ++length) {
                CAPTURE(row.name);
                CAPTURE(length);
                TCOLORMAP map;
                REQUIRE(map.PUT(length, row.builder));
                CheckColour(map.GETRGBA(1), share(row.keys.front()));
                CheckColour(map.GETRGBA(length), share(row.keys.back()));
            }
}

TEST_CASE("indices wrap round and an empty map is black") {
    TCOLORMAP map;
    CheckColour(map.GETRGBA(1), {0, 0, 0, 0});
    const VECTORNAT colours[] = {{255, 0, 0}, {0, 255, 0}, {0, 0, 255}};
    map.PUT(3, colours);
    CheckColour(map.GETRGBA(4), {1, 0, 0, 1});
    CheckColour(map.GETRGBA(-2), {0, 1, 0, 1});
    CheckColour(map.GETRGBA(0), {0, 0, 1, 1});
    map.GETRGBA(NATMIN);
}

TEST_CASE("a value is scaled from its range to an entry") {
    TCOLORMAP map;
    BUILD_FAMILY(map, COLOUR_FAMILY::DEFAULTMAP, 1, 256);
    CheckColour(map.GETRGBA(-1, 1, -1), {0, 0, 0, 1});
    CheckColour(map.GETRGBA(-1, 1, 5), {1, 1, 1, 1});
    CheckColour(map.GETRGBA(0, 255, 51), {0.2, 0.2, 0.2, 1});
}

TEST_CASE("the families have their maps in order") {
    const NAT lengths[] = {5, 8, 5, 24, 11, 27, 6, 18, 4};
    for (std::size_t i = 0; i < 9; ++i)
        CHECK(FAMILY_LENGTH(static_cast<COLOUR_FAMILY>(i)) == lengths[i]);
    TCOLORMAP map;
    CHECK(BUILD_FAMILY(map, COLOUR_FAMILY::VOLUME1, 5, 100) == "Jet");
    CHECK(map.LENGTH == 100);
    CHECK(BUILD_FAMILY(map, COLOUR_FAMILY::CHART2, 27, 3) == "YlOrRd");
    CHECK(BUILD_FAMILY(map, COLOUR_FAMILY::SPECIAL, 99, 3) == "Rocket");
    CHECK(BUILD_FAMILY(map, COLOUR_FAMILY::TOPO, -1, 0) == "Topomap (0..4000)");
    CHECK(map.LENGTH == 1);
    CHECK(map.PUT(7, "GR4L"));
    CHECK_FALSE(map.PUT(7, "GREY4L"));
    CHECK(map.LENGTH == 7);
}

TEST_CASE("every map has keys from 0 to 1 in order, and its builder's name once") {
    std::set<std::string_view> builders;
    for (const COLORMAP_FAMILY &family : COLORMAP_FAMILIES())
        for (const COLORMAP_ROW &row : family.rows) {
            CAPTURE(row.name);
            CHECK(builders.insert(row.builder).second);
            REQUIRE(row.keys.size() >= 2);
            CHECK(row.keys.front().position == 0);
            CHECK(row.keys.back().position == 1);
            for (std::size_t i = 1; i < row.keys.size(); ++i)
                CHECK(row.keys[i].position >= row.keys[i - 1].position);
        }
    CHECK(builders.size() == 108);
}

TEST_CASE("published colours stand at the ends of their maps") {
    TCOLORMAP map;
    map.PUT(256, "VIRIDIS");
    CheckColour(map.GETRGBA(1), {68 / 255.0, 1 / 255.0, 84 / 255.0, 1});
    CheckColour(map.GETRGBA(256), {253 / 255.0, 231 / 255.0, 37 / 255.0, 1});
    map.PUT(8, "ACCENT"); // as many entries as colours: the colours themselves
    CheckColour(map.GETRGBA(1), {127 / 255.0, 201 / 255.0, 127 / 255.0, 1});
    CheckColour(map.GETRGBA(8), {102 / 255.0, 102 / 255.0, 102 / 255.0, 1});
}

TEST_CASE("the lightness of sequential maps runs in one direction, of all others in both") {
    const std::set<std::string_view> rising = {"BW",         "VIRIDIS",    "MAGMA",
                                               "PLASMA",     "INFERNO",    "CIVIDIS",
                                               "MAKO",       "ROCKET",     "BLACKBLUEANDWHITE",
                                               "GR4L",       "HOT",        "WARM",
                                               "COOL",       "BONE",       "CT_BONES",
                                               "CT_KIDNEYS", "CT_VESSELS", "ELECTRICBLUE",
                                               "GOLD",       "HOTIRON",    "REDYELLOW1",
                                               "REDYELLOW2", "SURFACE",    "IMHOF"};
    const std::set<std::string_view> falling = {
        "WB",      "BLUES", "BUGN",   "BUPU",   "GNBU",   "GREENS",     "GREYS",
        "ORANGES", "ORRD",  "PUBU",   "PUBUGN", "PURD",   "PURPLES",    "RDPU",
        "REDS",    "YLGN",  "YLGNBU", "YLORBR", "YLORRD", "ISLEOFDOGS2"};
    for (const COLORMAP_FAMILY &family : COLORMAP_FAMILIES())
        for (const COLORMAP_ROW &row : family.rows)
            CHECK_MESSAGE(Direction(row.builder) == (rising.contains(row.builder)    ? 1
                                                     : falling.contains(row.builder) ? -1
                                                                                     : 0),
                          row.builder);
}

TEST_CASE("alpha follows the table or the colour") {
    TCOLORMAP map;
    const VECTORNAT colours[] = {{0, 0, 0}, {128, 128, 128}, {255, 255, 255}};
    const auto alphas = [&] {
        return VECTOR{map.GETRGBA(1).w, map.GETRGBA(2).w, map.GETRGBA(3).w};
    };
    map.PUT(3, colours);
    map.SETALPHA_BW();
    CHECK(alphas() == VECTOR{0, 0.5, 1});
    map.SETALPHA_WB();
    CHECK(alphas() == VECTOR{1, 0.5, 0});
    map.PUT(3, colours);
    map.SETALPHA_BLACK();
    CHECK(alphas() == VECTOR{0, 1, 1});
    map.SETALPHA_GRAY();
    CHECK(alphas() == VECTOR{0, 0, 1});
    map.SETALPHA_WHITE();
    CHECK(alphas() == VECTOR{0, 0, 0});
}

TEST_CASE("a colour over another keeps its components multiplied by alpha") {
    CheckColour(OVER({1, 0, 0, 1}, {0, 0, 1, 0.25}), {0.75, 0, 0.25, 1});
    CheckColour(OVER({1, 1, 1, 0}, {1, 1, 1, 0}), {0, 0, 0, 0});
}

TEST_CASE("inverting the lightness keeps the hue") {
    const VECTOR dark = INVERT_LUMINOSITY(1, 0.5, 0.5); // lightness 0.75 to 0.25: (0.5, 0, 0)
    CHECK(dark.x == doctest::Approx(0.5));
    CHECK(dark.y == doctest::Approx(0).epsilon(1e-12));
    const VECTOR white = INVERT_LUMINOSITY(0, 0, 0);
    CHECK(white == VECTOR{1, 1, 1});
    const VECTOR blue = INVERT_LUMINOSITY(0, 0, 1); // lightness 0.5 stays
    CHECK(blue.x == doctest::Approx(0));
    CHECK(blue.z == doctest::Approx(1));
}

TEST_CASE("a lighter colour is limited to white") {
    CHECK(LIGHTUP({0, 100, 200, 255}) == HYPERNAT{64, 164, 255, 255});
    CHECK(LIGHTUP({NATMIN, NATMAX, -100, 1}) == HYPERNAT{0, 255, 0, 65});
    CHECK(RGBTOGRAY(1, 2, 5) == 2);
    CHECK(RGBTOFULLGRAY(1, 2, 5) == 8);
}
