#include "image2d/filter/groups.hpp"
#include "image2d/filter/outliers.hpp"
#include "image2d/filter/smooth.hpp"

#include <benchmark/benchmark.h>

#include <cstring>

// Image filters beside their plain twins, the 3x3 means also beside copying the image twice. Noise
// from a fixed seed; time a pixel is the time of a run divided by its pixels.
namespace {
using namespace morvane;

constexpr NAT LARGE = 8192, MIDDLE = 4096;

template <class PIXEL> void FillNoise(CANVAS<PIXEL> &canvas) {
    std::uint32_t seed = 12345;
    for (NAT i = 0; i < canvas.COUNT(); ++i) {
        seed = seed * 1664525 + 1013904223;
        canvas.DATA()[i] = static_cast<PIXEL>(seed >> 15);
    }
}

void CountPixels(benchmark::State &state, NAT pixels) {
    state.counters["pixels/s"] =
        benchmark::Counter(static_cast<double>(pixels) * static_cast<double>(state.iterations()),
                           benchmark::Counter::kIsRate);
}

template <class PIXEL> void CopyTwice(benchmark::State &state) {
    CANVAS<PIXEL> image(LARGE, LARGE), copy(LARGE, LARGE);
    FillNoise(image);
    const auto bytes = static_cast<std::size_t>(image.COUNT()) * sizeof(PIXEL);
    for (auto _ : state) {
        std::memcpy(copy.DATA(), image.DATA(), bytes);
        benchmark::ClobberMemory();
        std::memcpy(image.DATA(), copy.DATA(), bytes);
        benchmark::ClobberMemory();
    }
    CountPixels(state, image.COUNT());
}

template <class PIXEL, void (*OPERATION)(CANVAS<PIXEL> &, const PIXEL_AREA &)>
void Means(benchmark::State &state) {
    CANVAS<PIXEL> image(LARGE, LARGE);
    FillNoise(image);
    for (auto _ : state)
        OPERATION(image, image.WHOLE());
    CountPixels(state, image.COUNT());
}

template <class PIXEL, NAT (*OPERATION)(CANVAS<PIXEL> &, const PIXEL_AREA &, REAL)>
void Outliers(benchmark::State &state) {
    CANVAS<PIXEL> noise(LARGE / 8, LARGE / 8), image;
    FillNoise(noise);
    for (auto _ : state) {
        state.PauseTiming();
        image.CLONE(noise);
        state.ResumeTiming();
        benchmark::DoNotOptimize(OPERATION(image, image.WHOLE(), 1.5));
    }
    CountPixels(state, image.COUNT());
}

void Groups(benchmark::State &state) {
    TFULLGRAY image(MIDDLE, MIDDLE), target(MIDDLE, MIDDLE);
    FillNoise(image);
    for (auto _ : state) {
        target.FILL(0);
        benchmark::DoNotOptimize(GROUP(image, {0, 32767}, {}, target));
    }
    CountPixels(state, image.COUNT());
}
} // namespace

BENCHMARK(CopyTwice<WORD>)->Unit(benchmark::kMillisecond);
BENCHMARK((Means<WORD, HARDSMOOTH<WORD>>))->Unit(benchmark::kMillisecond);
BENCHMARK((Means<WORD, plain::HARDSMOOTH<WORD>>))->Unit(benchmark::kMillisecond);
BENCHMARK((Means<WORD, SMOOTH<WORD>>))->Unit(benchmark::kMillisecond);
BENCHMARK((Means<WORD, SOFTSMOOTH<WORD>>))->Unit(benchmark::kMillisecond);
BENCHMARK((Means<WORD, UNSHARPMASKING<WORD>>))->Unit(benchmark::kMillisecond);
BENCHMARK((Means<WORD, SMOOTH0<WORD>>))->Unit(benchmark::kMillisecond);
BENCHMARK(CopyTwice<BYTE>)->Unit(benchmark::kMillisecond);
BENCHMARK((Means<BYTE, HARDSMOOTH<BYTE>>))->Unit(benchmark::kMillisecond);
BENCHMARK((Outliers<WORD, REMOVE_OUTLIERS<WORD>>))->Unit(benchmark::kMillisecond);
BENCHMARK((Outliers<WORD, plain::REMOVE_OUTLIERS<WORD>>))->Unit(benchmark::kMillisecond);
BENCHMARK((Outliers<BYTE, REMOVE_OUTLIERS<BYTE>>))->Unit(benchmark::kMillisecond);
BENCHMARK((Outliers<BYTE, plain::REMOVE_OUTLIERS<BYTE>>))->Unit(benchmark::kMillisecond);
BENCHMARK(Groups)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
