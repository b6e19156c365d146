#include "orientation/scan/image_method.hpp"
#include "orientation/scan/image_row.hpp"
#include "orientation/scan/scan_block.hpp"
#include "orientation/scan/scan_images.hpp"

#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
std::vector<const SCAN_KERNEL *> Kernels() {
    std::vector<const SCAN_KERNEL *> kernels = {&plain::KERNEL};
    if (&FASTEST_SCAN_KERNEL() != &plain::KERNEL) kernels.push_back(&FASTEST_SCAN_KERNEL());
    return kernels;
}

// Pixels whose vector differs between the fast road, with every kernel, and the plain one.
NAT Differences(const TIMAGE &image, NAT r) {
    const SCAN_PLANE plane(image);
    const NAT width = image.SIZEX();
    const SCAN_PLAN plan(GETSETTINGS(image), GETDIRECTIONS(r), r, width);
    REQUIRE(plan.FAST());
    const IMAGE_SCAN_ROW slow{plan, plane, SCAN_ROAD::PLAIN}, fast{plan, plane, SCAN_ROAD::FAST};
    SCAN_BUFFER<BYTE> wanted, wantedToo;
    SCAN_BUFFER<VECTOR> expected, found;
    NAT count = 0;
    for (NAT y = 1; y <= image.SIZEY(); ++y) {
        REQUIRE(slow.FIND(y, wanted, expected));
        REQUIRE(fast.FIND(y, wantedToo, found));
        for (NAT x = 0; x < width; ++x)
            count += !SAME_BITS(found[x], expected[x]) || wanted[x] != wantedToo[x];
        for (const SCAN_KERNEL *kernel : Kernels()) {
            SCAN_BLOCK block(plan, plane.VOLUME(), *kernel);
            REQUIRE(block.INIT());
            REQUIRE(found.INIT(width));
            block.SCAN({1, y, 1}, width, 1, wanted.DATA(), found.DATA());
            for (NAT x = 0; x < width; ++x)
                count += !SAME_BITS(found[x], expected[x]);
        }
    }
    return count;
}

struct IMAGE_TYPE {
    const char *name;
    BYTE kind;
    NAT low, high, zeros; // zeros in percent
};
constexpr IMAGE_TYPE TYPES[] = {
    {"8 bits", IMAGE_GRAY, 1, 255, 0},
    {"8 bits with zeros", IMAGE_GRAY, 1, 255, 8},
    {"mostly zero", IMAGE_GRAY, 1, 255, 60},
    {"two values", IMAGE_GRAY, 1, 2, 0},
    {"five values", IMAGE_GRAY, 20, 24, 3},
    {"one value", IMAGE_GRAY, 9, 9, 10},
    {"narrow 16 bits with zeros", IMAGE_FULLGRAY, 1, 255, 8},
    {"12 bits", IMAGE_FULLGRAY, 1, 4095, 0},
    {"all 16 bits", IMAGE_FULLGRAY, 1, 65535, 0},
    {"all 16 bits with zeros", IMAGE_FULLGRAY, 1, 65535, 8},
    {"16 bits, extremes", IMAGE_FULLGRAY, 65533, 65535, 5},
};
constexpr REAL SHARES[] = {0.25, 1, 0.02, 3};
constexpr REAL ANGLES[] = {5 * PI / 180, 1.2, 0, 2};

template <class VALUE> auto Flat(VALUE &value) {
    return [&value](NAT x, NAT y) { return value(x, y, 1); };
}
} // namespace

TEST_CASE("the fast road of an image gives the bits of the plain one for every method, statistic "
          "and fullscan") {
    unsigned seed = 1;
    for (const IMAGE_TYPE &type : TYPES)
        for (BYTE method = 1; method <= 6; ++method)
            for (BYTE statistic = 0; statistic <= 8; ++statistic)
                for (const bool full : {false, true}) {
                    CAPTURE(type.name);
                    CAPTURE(int{method});
                    CAPTURE(int{statistic});
                    ++seed;
                    const NAT r = 1 + seed % 7;
                    TIMAGE image;
                    NOISE noise(seed, type.low, type.high, type.zeros);
                    FILL_IMAGE(image, type.kind, {2 * r + 1 + seed % 45, 2 * r + 1 + seed % 9},
                               Flat(noise));
                    image.diffusionMethod = method;
                    image.subMethod = statistic;
                    image.fullScan = full;
                    image.diffusionMax = SHARES[seed / 3 % 4];
                    image.diffusionAngle = ANGLES[seed / 7 % 4];
                    CHECK(Differences(image, r) == 0);
                }
}

TEST_CASE("the fast road of an image gives the bits of the plain one at every small size") {
    unsigned seed = 900;
    for (NAT width = 1; width <= 20; ++width)
        for (NAT height = 1; height <= 20; ++height)
            for (const BYTE kind : {IMAGE_GRAY, IMAGE_FULLGRAY}) {
                ++seed;
                TIMAGE image;
                NOISE noise(seed, 1, kind == IMAGE_GRAY ? 255 : 40000, seed % 3 * 10);
                FILL_IMAGE(image, kind, {width, height}, Flat(noise));
                image.diffusionMethod = static_cast<BYTE>(seed % 7);
                CHECK(Differences(image, 1 + seed % 5) == 0); // also where the circle is too large
            }
}

TEST_CASE("the fast road of an image gives the bits of the plain one for long scans and wide "
          "images") {
    TIMAGE image;
    NOISE noise(3, 1, 65535, 1), bytes(4, 1, 255);
    FILL_IMAGE(image, IMAGE_FULLGRAY, {141, 133}, Flat(noise));
    CHECK(Differences(image, 64) == 0);
    FILL_IMAGE(image, IMAGE_GRAY, {300, 35}, Flat(bytes));
    CHECK(Differences(image, 16) == 0);
}

TEST_CASE("the fast road of an image gives the bits of the plain one on thin lines") {
    for (BYTE method = 1; method <= 6; ++method)
        for (const NAT r : {2, 5, 8}) {
            TIMAGE image;
            FILL_IMAGE(image, IMAGE_GRAY, {50, 19}, [](NAT x, NAT y) {
                if (y == 10) return NAT{200};
                if (x == 2 * y) return NAT{90};
                return x > 35 ? 30 + (x * 7 + y * 5) % 11 : NAT{0};
            });
            image.diffusionMethod = method;
            CHECK(Differences(image, r) == 0);
        }
}

TEST_CASE("the rows of both roads are the same angles") {
    TIMAGE image;
    NOISE noise(5, 1, 255, 5);
    FILL_IMAGE(image, IMAGE_GRAY, {60, 40}, Flat(noise));
    for (const bool axial : {false, true})
        for (const BYTE kind : {IMAGE_GRAY, IMAGE_FULLGRAY, IMAGE_RGB, IMAGE_RGBA, IMAGE_ZRGB}) {
            image.diffusionAxial = axial;
            TIMAGE fast(kind, 60, 40), slow(kind, 60, 40);
            for (NAT y = 1; y <= 40; ++y) {
                DIFFUSION(image, fast, y, 6);
                plain::DIFFUSION(image, slow, y, 6);
            }
            CHECK(DIFFERENT_PIXELS(fast, slow) == 0);
        }
}

TEST_CASE("an image scan above the tables' length takes the plain road") {
    const SCAN_PLAN plan(SCAN_SETTINGS{}, GETDIRECTIONS(65), 65, 200);
    CHECK_FALSE(plan.FAST());
    TIMAGE image, target;
    FILL_IMAGE(image, IMAGE_GRAY, {133, 133}, [](NAT x, NAT) { return 1 + x * x % 200; });
    target.INIT(IMAGE_FULLGRAY, 133, 133);
    DIFFUSION(image, target, 67, 65);
    CHECK(target.GET(67, 67) == 65535); // the columns are constant: down
    CHECK(target.GET(67, 66) == 0);     // another row
}
