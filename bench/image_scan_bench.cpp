#include "foundation/console/console.hpp"
#include "image2d/format/formats.hpp"
#include "orientation/scan/image_method.hpp"
#include "orientation/scan/image_row.hpp"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <random>
#include <vector>

// The scan of an image beside its plain twin, row by row on one thread, angles included; processor
// time, so other load matters little. Plan and tables are made once, as a command does.
namespace morvane {
namespace {
double Seconds() {
    timespec time;
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

struct RESULT {
    double median = 0, least = 0; // nanoseconds a pixel above 0
};

template <class SCAN> RESULT Measure(int runs, NAT pixels, const SCAN &scan) {
    std::vector<double> times;
    if (runs > 1) scan(); // warm-up
    for (int run = 0; run < runs; ++run) {
        const double start = Seconds();
        scan();
        times.push_back((Seconds() - start) * 1e9 / static_cast<double>(pixels));
    }
    std::sort(times.begin(), times.end());
    return {times[times.size() / 2], times.front()};
}

NAT Different(const TIMAGE &a, const TIMAGE &b) {
    NAT count = 0;
    for (NAT y = 1; y <= a.SIZEY(); ++y)
        for (NAT x = 1; x <= a.SIZEX(); ++x)
            count += a.GET(x, y) != b.GET(x, y);
    return count;
}

void Compare(const char *name, const TIMAGE &image, NAT r) {
    const COMPLEXNAT size = image.SIZE();
    TIMAGE fast(IMAGE_FULLGRAY, size.x, size.y), slow(IMAGE_FULLGRAY, size.x, size.y);
    const SCAN_PLANE plane(image);
    const SCAN_PLAN plan(GETSETTINGS(image), GETDIRECTIONS(r), r, size.x);
    const ANGLE_VALUES angles(fast.PIXELMAX(), false, r);
    NAT pixels = 0;
    for (NAT y = 1; y <= size.y; ++y)
        for (NAT x = 1; x <= size.x; ++x)
            pixels += image.GET(x, y) > 0;
    const auto scan = [&](SCAN_ROAD road, TIMAGE &target) {
        const IMAGE_SCAN_ROW row{plan, plane, road};
        for (NAT y = 1; y <= size.y; ++y)
            row.RUN(y, angles, target);
    };
    const RESULT fastTime = Measure(9, pixels, [&] { scan(SCAN_ROAD::FAST, fast); });
    const RESULT slowTime = Measure(3, pixels, [&] { scan(SCAN_ROAD::PLAIN, slow); });
    std::printf("%-26s r %2lld %7lld pixels  scan %6.0f (min %6.0f) ns/pixel  plain %7.0f ns/pixel"
                "  ratio %5.1f  %s\n",
                name, static_cast<long long>(r), static_cast<long long>(pixels), fastTime.median,
                fastTime.least, slowTime.median, slowTime.median / fastTime.median,
                Different(fast, slow) == 0 ? "same angles" : "ANGLES DIFFER");
    std::fflush(stdout);
}

void Noise(TIMAGE &image, BYTE kind, NAT edge, unsigned top, unsigned zeros = 0) {
    std::mt19937 random(1);
    image.INIT(kind, edge, edge);
    for (NAT y = 1; y <= edge; ++y)
        for (NAT x = 1; x <= edge; ++x)
            image.PUT(x, y, random() % 100 < zeros ? NAT{0} : static_cast<NAT>(1 + random() % top));
}
} // namespace
} // namespace morvane

int main() {
    using namespace morvane;
    VERBOSE = false;
    TIMAGE image;
    Noise(image, IMAGE_GRAY, 256, 255);
    for (const NAT r : {4, 8, 16, 32})
        Compare("8 bits without zeros", image, r);
    Noise(image, IMAGE_GRAY, 256, 255, 5);
    Compare("8 bits, 5 % zeros", image, 16);
    Noise(image, IMAGE_FULLGRAY, 256, 4095);
    Compare("12 bits without zeros", image, 16);
    Noise(image, IMAGE_FULLGRAY, 256, 65535);
    Compare("16 bits without zeros", image, 16);
    image.INIT(IMAGE_GRAY);
    if (LOADPNM(*image._GRAY(), MORVANE_EXAMPLE_DATA "/polymer_fibres.pgm")) {
        Compare("polymer fibres", image, 8);
        Compare("polymer fibres", image, 16);
    }
    if (LOADPNM(*image._GRAY(), MORVANE_EXAMPLE_DATA "/collagen_shg_a1.pgm"))
        Compare("collagen, mostly zero", image, 16);
    for (const BYTE statistic : {BYTE{5}, BYTE{7}}) {
        Noise(image, IMAGE_GRAY, 256, 255);
        image.subMethod = statistic;
        Compare(statistic == 5 ? "8 bits, median" : "8 bits, maximum", image, 16);
    }
    return 0;
}
