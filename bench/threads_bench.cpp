#include "field3d/field/scalar_analysis.hpp"
#include "foundation/console/console.hpp"
#include "orientation/scan/scan.hpp"
#include "orientation/vector/vector_analysis.hpp"

#include <cstdio>
#include <ctime>
#include <random>

// One thread beside two, and what the waiting thread burns. Wall time: run it on a quiet machine.
namespace morvane {
namespace {
double Seconds(clockid_t clock) {
    timespec time;
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

struct TIMES {
    double wall = 1e9, process = 0, caller = 0; // seconds of the quickest run
};

TIMES Scan(const T3D_SCALAR_ANALYSIS &scalar, NAT threads) {
    TIMES best;
    for (int run = 0; run < 5; ++run) {
        T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT);
        const double wall = Seconds(CLOCK_MONOTONIC), process = Seconds(CLOCK_PROCESS_CPUTIME_ID);
        const double caller = Seconds(CLOCK_THREAD_CPUTIME_ID);
        static_cast<void>(DIFFUSION_FIELD(scalar, field, 10, 1, false, threads));
        const TIMES times{Seconds(CLOCK_MONOTONIC) - wall,
                          Seconds(CLOCK_PROCESS_CPUTIME_ID) - process,
                          Seconds(CLOCK_THREAD_CPUTIME_ID) - caller};
        if (times.wall < best.wall) best = times;
    }
    std::printf("threads %lld: wall %.3f s, processor %.3f s, waiting thread %.3f s\n",
                static_cast<long long>(threads), best.wall, best.process, best.caller);
    return best;
}
} // namespace
} // namespace morvane

int main() {
    using namespace morvane;
    VERBOSE = false;
    std::mt19937 random(1);
    T3D_SCALAR_ANALYSIS scalar(TAG_GRAY, 128, 128, 64);
    for (NAT z = 1; z <= 64; ++z)
        for (NAT y = 1; y <= 128; ++y)
            for (NAT x = 1; x <= 128; ++x)
                scalar.PUT(x, y, z, static_cast<NAT>(1 + random() % 255));
    const TIMES one = Scan(scalar, 1), two = Scan(scalar, 2);
    std::printf("two threads are %.2f times one; they take %.2f times its processor time\n",
                one.wall / two.wall, two.process / one.process);
    return 0;
}
