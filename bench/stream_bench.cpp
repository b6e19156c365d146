// Streamlines through a smooth field of 96 x 96 x 96 voxels: traced points a second on one thread,
// beside the plain twin, the described steps written down as they are told.

#include "foundation/base/geometry.hpp"
#include "orientation/stream/trace.hpp"

#include <benchmark/benchmark.h>
#include <cmath>

namespace morvane {
namespace {
constexpr NAT SIDE = 96;

// A swirl around the z axis that rises slowly: long, curved lines, no random numbers.
const T3D_VECTOR_ANALYSIS &Field() {
    static T3D_VECTOR_ANALYSIS field;
    if (field.ISNOTEMPTY()) return field;
    field.INIT(VECTOR_FLOAT, SIDE, SIDE, SIDE);
    const REAL middle = (SIDE + 1) / 2.0;
    for (NAT z = 1; z <= SIDE; ++z)
        for (NAT y = 1; y <= SIDE; ++y)
            for (NAT x = 1; x <= SIDE; ++x) {
                const REAL dx = static_cast<REAL>(x) - middle, dy = static_cast<REAL>(y) - middle;
                field.PUT(x, y, z, VECTOR{-dy, dx, 5 + 2 * std::sin(0.1 * static_cast<REAL>(z))});
            }
    return field;
}

template <class F> void EachSeed(F f) {
    for (NAT z = 8; z < SIDE; z += 16)
        for (NAT y = 8; y < SIDE; y += 8)
            for (NAT x = 8; x < SIDE; x += 8)
                f(VECTOR{static_cast<REAL>(x) - 1, static_cast<REAL>(y) - 1,
                         static_cast<REAL>(z) - 1});
}

STREAM_SETTINGS Settings() {
    STREAM_SETTINGS settings;
    settings.steps = 0.5;
    settings.angles = 0;
    settings.stopLength = 1e6; // lines end at the border, so that every form makes the same steps
    return settings;
}

// The same steps with the checked calls, an arc cosine a step and growing lists.
void PlainHalf(const T3D_VECTOR_ANALYSIS &field, const STREAM_SETTINGS &settings,
               const VECTOR &seed, REAL sign, REAL limit, TPOLYVECTOR &half) {
    const VECTOR step = field._GETSCALE() * settings.steps;
    const VECTOR lower = field.GETFRAME().L2G({0.5, 0.5, 0.5});
    const VECTOR upper = field.GETFRAME().L2G(TO_REAL(field.SIZE()) + 0.5);
    VECTOR pos = seed, dir = VZERO;
    for (;;) {
        const VECTOR prev = dir, last = pos;
        dir = NORM(field.GET_TRILINEAR(last));
        pos = last + dir * step * sign;
        if (!(pos == last)) half.PUSH(pos);
        if (pos.x < lower.x || pos.y < lower.y || pos.z < lower.z) break;
        if (pos.x > upper.x || pos.y > upper.y || pos.z > upper.z) break;
        if (pos == last) break;
        if (!(settings.stopAngle > GETANGLE(dir, prev))) break;
        if (!(limit > static_cast<REAL>(half.LENGTH))) break;
    }
}

NAT PlainPoints(const T3D_VECTOR_ANALYSIS &field, const STREAM_SETTINGS &settings, REAL limit) {
    NAT points = 0;
    EachSeed([&](const VECTOR &seed) {
        TPOLYVECTOR left, right;
        left.INIT();
        right.INIT();
        left.PUSH(seed);
        PlainHalf(field, settings, seed, 1, limit, left);
        PlainHalf(field, settings, seed, -1, limit, right);
        points += left.LENGTH + right.LENGTH;
    });
    return points;
}

NAT TracedPoints(STREAM_TRACER &tracer) {
    NAT points = 0;
    EachSeed([&](const VECTOR &seed) {
        tracer.TRACE(seed);
        points += tracer.POINTS();
    });
    return points;
}

void TraceLines(benchmark::State &state) {
    const STREAM_SETTINGS settings = Settings();
    STREAM_TRACER tracer(Field(), nullptr, settings);
    NAT points = 0;
    for ([[maybe_unused]] auto round : state)
        points += TracedPoints(tracer);
    state.SetItemsProcessed(points);
}

void TraceBends(benchmark::State &state) {
    STREAM_SETTINGS settings = Settings();
    settings.angles = PI / 180;
    STREAM_TRACER plain(Field(), nullptr, Settings()), tracer(Field(), nullptr, settings);
    NAT points = 0;
    const NAT steps = TracedPoints(plain); // as many lookups, fewer stored points
    for ([[maybe_unused]] auto round : state) {
        benchmark::DoNotOptimize(TracedPoints(tracer));
        points += steps;
    }
    state.SetItemsProcessed(points);
}

void PlainTwin(benchmark::State &state) {
    const STREAM_SETTINGS settings = Settings();
    const STREAM_TRACER tracer(Field(), nullptr, settings);
    NAT points = 0;
    for ([[maybe_unused]] auto round : state)
        points += PlainPoints(Field(), settings, tracer.LENGTHLIMIT());
    state.SetItemsProcessed(points);
}

BENCHMARK(TraceLines)->Unit(benchmark::kMillisecond);
BENCHMARK(TraceBends)->Unit(benchmark::kMillisecond);
BENCHMARK(PlainTwin)->Unit(benchmark::kMillisecond);
} // namespace
} // namespace morvane

BENCHMARK_MAIN();
