#include "field3d/field/scalar_analysis.hpp"
#include "foundation/console/console.hpp"
#include "orientation/scan/scan.hpp"
#include "orientation/scan/scan_slice.hpp"
#include "orientation/vector/vector_analysis.hpp"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <random>
#include <vector>

// The scan beside its plain twin, on one thread; processor time, so other load matters little.
// bench_scan [full]; with "full" the 256^3 scan is run whole, too.
namespace morvane {
namespace {
double Seconds() {
    timespec time;
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

struct RESULT {
    double median = 0, least = 0; // nanoseconds a voxel above 0
};

// Slices `first` to `last`, after a warm-up.
template <class SCAN> RESULT Measure(int runs, NAT voxels, const SCAN &scan) {
    std::vector<double> times;
    if (runs > 1) scan();
    for (int run = 0; run < runs; ++run) {
        const double start = Seconds();
        scan();
        times.push_back((Seconds() - start) * 1e9 / static_cast<double>(voxels));
    }
    std::sort(times.begin(), times.end());
    return {times[times.size() / 2], times.front()};
}

NAT VoxelsAboveZero(const T3D_SCALAR_ANALYSIS &scalar, NAT z) {
    NAT count = 0;
    for (NAT y = 1; y <= scalar.SIZEY(); ++y)
        for (NAT x = 1; x <= scalar.SIZEX(); ++x)
            count += scalar.GET(x, y, z) > 0;
    return count;
}

void Compare(const char *name, T3D_SCALAR_ANALYSIS &scalar, NAT r) {
    const VECTORNAT size = scalar.SIZE();
    const NAT z = size.z / 2, voxels = VoxelsAboveZero(scalar, z);
    T3D_VECTOR_ANALYSIS fast(VECTOR_FLOAT, size.x, size.y, size.z);
    T3D_VECTOR_ANALYSIS slow(VECTOR_FLOAT, size.x, size.y, size.z);
    const SCAN_PLAN plan(GETSETTINGS(scalar), r, 1, size.x); // shared by all slices of a scan
    const SCAN_SLICE fastSlice{plan, GETVOLUME(scalar), fast, SCAN_ROAD::FAST};
    const SCAN_SLICE slowSlice{plan, GETVOLUME(scalar), slow, SCAN_ROAD::PLAIN};
    const RESULT fastTime = Measure(9, voxels, [&] { fastSlice.RUN(z); });
    const RESULT slowTime = Measure(1, voxels, [&] { slowSlice.RUN(z); });
    const NAT slice = size.x * size.y;
    const bool same = std::memcmp(fast.FLOATS() + slice * (z - 1), slow.FLOATS() + slice * (z - 1),
                                  static_cast<std::size_t>(slice) * sizeof(VECTOR)) == 0;
    std::printf("%-28s r %2lld %8lld voxels  scan %8.0f (min %8.0f) ns/voxel  plain %9.0f ns/voxel"
                "  ratio %5.1f  %s\n",
                name, static_cast<long long>(r), static_cast<long long>(voxels), fastTime.median,
                fastTime.least, slowTime.median, slowTime.median / fastTime.median,
                same ? "same vectors" : "VECTORS DIFFER");
    std::fflush(stdout);
}

void Noise(T3D_SCALAR_ANALYSIS &scalar, BYTE tag, const VECTORNAT &size, unsigned top) {
    std::mt19937 random(1);
    scalar.INIT(tag, size.x, size.y, size.z);
    for (NAT z = 1; z <= size.z; ++z)
        for (NAT y = 1; y <= size.y; ++y)
            for (NAT x = 1; x <= size.x; ++x)
                scalar.PUT(x, y, z, static_cast<NAT>(1 + random() % top));
}

void Whole(NAT edge, NAT r) {
    T3D_SCALAR_ANALYSIS scalar;
    Noise(scalar, TAG_GRAY, {edge, edge, edge}, 255);
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT);
    const double start = Seconds();
    static_cast<void>(DIFFUSION_FIELD(scalar, field, r, 1, false, 1));
    std::printf("full scan of %lld^3 voxels without zeros, r %lld, one thread: %.2f s\n",
                static_cast<long long>(edge), static_cast<long long>(r), Seconds() - start);
}
} // namespace
} // namespace morvane

int main(int count, char **arguments) {
    using namespace morvane;
    VERBOSE = false;
    T3D_SCALAR_ANALYSIS scalar;
    Noise(scalar, TAG_GRAY, {128, 64, 40}, 255);
    Compare("8 bits without zeros", scalar, 8);
    Compare("8 bits without zeros", scalar, 16);
    Noise(scalar, TAG_FULLGRAY, {128, 64, 40}, 4095);
    Compare("12 bits without zeros", scalar, 16);
    Noise(scalar, TAG_FULLGRAY, {128, 64, 40}, 65535);
    Compare("16 bits without zeros", scalar, 16);
    scalar.LOAD(TAG_GRAY, MORVANE_EXAMPLE_DATA "/mri_head_2mm.nii.gz");
    if (scalar.ISNOTEMPTY()) {
        scalar.SETLOWER(30, 0);
        Compare("head, background zero", scalar, 8);
        Compare("head, background zero", scalar, 16);
    }
    if (count > 1 && std::strcmp(arguments[1], "full") == 0) Whole(256, 8);
    return 0;
}
