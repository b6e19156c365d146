#include "orientation/scan/scan_block.hpp"

#include "foundation/thread/processor.hpp"
#include "orientation/scan/scan.hpp"
#include "orientation/scan/scan_fields.hpp"

#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
std::vector<const SCAN_KERNEL *> Kernels() {
    std::vector<const SCAN_KERNEL *> kernels = {&plain::KERNEL};
    if (&FASTEST_SCAN_KERNEL() != &plain::KERNEL) kernels.push_back(&FASTEST_SCAN_KERNEL());
    return kernels;
}

// Voxels whose vector differs between the fast road, with every kernel, and the plain one.
NAT Differences(const T3D_SCALAR_ANALYSIS &scalar, NAT r, NAT factor, NAT z) {
    const NAT columns = scalar.SIZEX() / factor, rows = scalar.SIZEY() / factor;
    T3D_VECTOR_ANALYSIS expected(VECTOR_FLOAT, columns, rows, scalar.SIZEZ());
    plain::DIFFUSION(scalar, expected, z, r, factor);
    const SCAN_PLAN plan(GETSETTINGS(scalar), r, factor, columns);
    REQUIRE(plan.FAST());
    const SCAN_VOLUME volume = GETVOLUME(scalar);
    NAT count = 0;
    for (const SCAN_KERNEL *kernel : Kernels()) {
        SCAN_BLOCK block(plan, volume, *kernel);
        REQUIRE(block.INIT());
        for (NAT top = 1; top <= rows; top += block.ROWS()) {
            const NAT height = std::min(block.ROWS(), rows - top + 1);
            std::vector<BYTE> wanted(static_cast<std::size_t>(columns * height));
            std::vector<VECTOR> results(wanted.size());
            const auto x = [&](std::size_t i) { return static_cast<NAT>(i) % columns + 1; };
            const auto y = [&](std::size_t i) { return static_cast<NAT>(i) / columns + top; };
            for (std::size_t i = 0; i < wanted.size(); ++i)
                wanted[i] = scalar.GET(x(i) * factor, y(i) * factor, z) > 0;
            block.SCAN({factor, top * factor, z}, columns, height, wanted.data(), results.data());
            for (std::size_t i = 0; i < wanted.size(); ++i)
                count += !SAME_BITS(results[i], expected.GET(x(i), y(i), z / factor));
        }
    }
    return count;
}

struct VOLUME_KIND {
    const char *name;
    BYTE tag;
    NAT low, high, zeros; // zeros in percent
};
constexpr VOLUME_KIND KINDS[] = {
    {"8 bits", TAG_GRAY, 1, 255, 0},
    {"8 bits with zeros", TAG_GRAY, 1, 255, 8},
    {"mostly zero", TAG_GRAY, 1, 255, 60},
    {"two values", TAG_GRAY, 1, 2, 0},
    {"five values", TAG_GRAY, 20, 24, 3},
    {"one value", TAG_GRAY, 9, 9, 10},
    {"narrow 16 bits", TAG_FULLGRAY, 40000, 40254, 0},
    {"narrow 16 bits with zeros", TAG_FULLGRAY, 1, 255, 8},
    {"12 bits", TAG_FULLGRAY, 1, 4095, 0},
    {"12 bits with zeros", TAG_FULLGRAY, 1, 4095, 8},
    {"all 16 bits", TAG_FULLGRAY, 1, 65535, 0},
    {"all 16 bits with zeros", TAG_FULLGRAY, 1, 65535, 8},
    {"16 bits, extremes", TAG_FULLGRAY, 65533, 65535, 5},
};
constexpr REAL SHARES[] = {0.25, 1, 0.02, 3};
constexpr REAL ANGLES[] = {5 * PI / 180, 1.2, 0, 2};
} // namespace

TEST_CASE("the fast road gives the bits of the plain one for every method and statistic") {
    unsigned seed = 1;
    for (const VOLUME_KIND &kind : KINDS)
        for (BYTE method = 1; method <= 6; ++method)
            for (BYTE statistic = 0; statistic <= 7; ++statistic) {
                CAPTURE(kind.name);
                CAPTURE(int{method});
                CAPTURE(int{statistic});
                ++seed;
                const NAT r = 1 + seed % 6;
                T3D_SCALAR_ANALYSIS scalar;
                FILL_FIELD(scalar, kind.tag, {2 * r + 1 + seed % 40, 2 * r + 1 + seed % 3, 5},
                           NOISE(seed, kind.low, kind.high, kind.zeros));
                scalar.diffusionMethod = method;
                scalar.subMethod = statistic;
                scalar.fullScan = seed % 5 == 0;
                scalar.diffusionMax = SHARES[seed / 3 % 4];
                scalar.diffusionAngle = ANGLES[seed / 7 % 4];
                CHECK(Differences(scalar, r, 1, 3) == 0);
            }
}

TEST_CASE("the fast road gives the bits of the plain one at every factor") {
    for (NAT factor = 1; factor <= 5; ++factor)
        for (const BYTE tag : {TAG_GRAY, TAG_FULLGRAY}) {
            T3D_SCALAR_ANALYSIS scalar;
            FILL_FIELD(scalar, tag, {71, 30, 12}, NOISE(11, 1, tag == TAG_GRAY ? 255 : 9000, 3));
            for (const BYTE method : {BYTE{1}, BYTE{5}}) {
                scalar.diffusionMethod = method;
                CHECK(Differences(scalar, 4, factor, factor) == 0);
                CHECK(Differences(scalar, 4, factor, 12 / factor * factor) == 0);
            }
        }
}

TEST_CASE("the fast road gives the bits of the plain one on thin lines and in front of walls") {
    for (BYTE method = 1; method <= 6; ++method)
        for (const NAT r : {2, 5, 8}) {
            T3D_SCALAR_ANALYSIS scalar;
            FILL_FIELD(scalar, TAG_GRAY, {50, 19, 19}, [](NAT x, NAT y, NAT z) {
                if (y == 10 && z == 10) return NAT{200};
                if (x == y + z) return NAT{90};
                return x > 35 ? 30 + (x * 7 + y * 5 + z * z) % 11 : NAT{0};
            });
            scalar.diffusionMethod = method;
            CHECK(Differences(scalar, r, 1, 10) == 0);
            CHECK(Differences(scalar, r, 1, 1) == 0);
        }
}

TEST_CASE("the fast road gives the bits of the plain one for long scans") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_FULLGRAY, {35, 35, 35}, NOISE(13, 1, 65535, 1));
    CHECK(Differences(scalar, 17, 1, 18) == 0);
    FILL_FIELD(scalar, TAG_GRAY, {33, 33, 33}, NOISE(13, 1, 255));
    CHECK(Differences(scalar, 16, 1, 17) == 0);
}

TEST_CASE("the adaptive form is the same on both roads") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {40, 21, 15}, NOISE(17, 1, 3, 20));
    for (BYTE method = 1; method <= 6; ++method)
        for (NAT factor = 2; factor <= 5; ++factor) {
            scalar.diffusionMethod = method;
            T3D_VECTOR_ANALYSIS fast(VECTOR_FLOAT, 40, 21, 15), slow(VECTOR_FLOAT, 40, 21, 15);
            for (NAT z = factor; z <= 15; z += factor) {
                DIFFUSION_ADAPTIVE(scalar, fast, z, 2, factor);
                plain::DIFFUSION_ADAPTIVE(scalar, slow, z, 2, factor);
            }
            CHECK(DIFFERENT_VECTORS(fast, slow) == 0);
        }
}

TEST_CASE("the processor's own kernel is chosen") {
    CHECK((&FASTEST_SCAN_KERNEL() == &plain::KERNEL) == !PROCESSOR().IS_AVX2);
}

TEST_CASE("the scratch of a scan stays below 16 MiB a thread") {
    for (const NAT r : {8, 16, 32, 48, 64})
        for (const NAT factor : {1, 5}) {
            const SCAN_PLAN plan(SCAN_SETTINGS{}, r, factor, 512);
            if (!plan.FAST()) continue;
            const NAT tile = plan.shape.ELEMENTS() * 2;
            const NAT lists = plan.lines.count * (SCAN_LANES * 8 + 4);
            CHECK(tile + lists < (NAT{15} << 20));
        }
    CHECK(SCAN_PLAN(SCAN_SETTINGS{}, 64, 1, 512).FAST());
}
