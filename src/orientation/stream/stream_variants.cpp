#include "orientation/stream/stream_variants.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "foundation/base/geometry.hpp"
#include "foundation/base/random.hpp"
#include "foundation/console/console.hpp"
#include "orientation/stream/seeds.hpp"

#include <cstring>

namespace morvane {
namespace {
using KIND = STREAM_RUN::KIND;
constexpr const char *LABEL = "Calculate stream lines";

// Deliberate: stream, its slices and nodes use candidates whose stored vector is zero, the mask,
// muscle and random forms use those whose vector is not zero.
bool ZeroVector(const STREAM_JOB &job, const VECTORNAT &p) {
    const VECTOR v = job.field.GET(p.x, p.y, p.z);
    return std::memcmp(&v, &VZERO, sizeof v) == 0; // all 24 bytes
}
bool InMask(const STREAM_MASK &mask, const VECTORNAT &p) {
    return mask.values.SEARCH(mask.scalar.GET(p)) > 0;
}

// Every grid point that qualifies; the last plane of each axis holds none.
template <class QUALIFIES>
void RunGrid(const STREAM_JOB &job, STREAM_RUN &run, QUALIFIES qualifies) {
    const VECTORNAT size = job.field.SIZE();
    const UTF16 label = LABEL;
    PROGRESS(label, 0);
    for (NAT z = 1; z < size.z; ++z) {
        for (NAT y = 1; y < size.y; ++y)
            for (NAT x = 1; x < size.x; ++x)
                if (qualifies(VECTORNAT{x, y, z})) run.TRY({x, y, z});
        PROGRESS(label, static_cast<REAL>(z) / static_cast<REAL>(size.z - 1));
    }
    PROGRESS();
    run.FINISH();
}

VECTORNAT Draw(RANDOM_STREAM &random, const VECTORNAT &size) {
    const REAL x = random.FRACTION(), y = random.FRACTION(), z = random.FRACTION();
    return ROUND(VECTOR{x, y, z} * size);
}

// Deliberate: a drawn candidate that does not qualify is drawn once more, not until one does.
template <class QUALIFIES>
void RunRandom(const STREAM_JOB &job, STREAM_RUN &run, NAT rounds, const char *note,
               QUALIFIES qualifies) {
    const VECTORNAT size = job.field.SIZE();
    const UTF16 label = LABEL;
    const std::uint64_t command = NEXT_RANDOM_COMMAND();
    PROGRESS(label, 0);
    for (NAT round = 1; round <= rounds; ++round) {
        RANDOM_STREAM random(command, static_cast<std::uint64_t>(round));
        VECTORNAT candidate = Draw(random, size);
        if (!qualifies(candidate)) candidate = Draw(random, size);
        if (qualifies(candidate)) run.TRY(candidate);
        PROGRESS(label, static_cast<REAL>(round) / static_cast<REAL>(rounds));
    }
    PROGRESS();
    run.FINISH();
    WRITELN(note);
}

constexpr const char *NOTE =
    "  Note: Required seeds may vary from the found seeds by zero vectors.";
constexpr const char *MASK_NOTE =
    "  Note: Required seeds may vary from the found seeds by zero vectors or masks value.";

// Two directions at right angles to the normal and to each other; zero for a zero normal.
void GetPlane(const VECTOR &normal, VECTOR &a, VECTOR &b) {
    a = NORM(CROSS(normal, VECTOR{0, 0, 1}));
    if (a == VZERO) a = NORM(CROSS(normal, VECTOR{0, 1, 0}));
    if (a == VZERO) a = NORM(CROSS(normal, VECTOR{1, 0, 0}));
    b = NORM(CROSS(normal, a));
}

// Deliberate: a slice reaches beyond the field, where reads give the zero vector, so that those
// candidates count as required.
template <class QUALIFIES>
void RunSlice(const STREAM_JOB &job, const VECTOR &point, const VECTOR &normal,
              QUALIFIES qualifies) {
    if (!STREAM_RUN::PREPARE(job)) return;
    STREAM_RUN run(job, KIND::LINES);
    const VECTOR size = TO_REAL(job.field.SIZE());
    const VECTOR middle = point == VZERO ? size / 2.0 : point;
    VECTOR a, b;
    GetPlane(normal, a, b);
    const NAT reach = ROUND(GETLENGTH(size));
    const UTF16 label = LABEL;
    PROGRESS(label, 0);
    for (NAT i = -reach; i <= reach; ++i) {
        for (NAT j = -reach; j <= reach; ++j) {
            const VECTORNAT candidate =
                ROUND(middle + a * static_cast<REAL>(j) + b * static_cast<REAL>(i));
            if (qualifies(candidate)) run.TRY(candidate);
        }
        PROGRESS(label, static_cast<REAL>(i + reach) / static_cast<REAL>(2 * reach));
    }
    PROGRESS();
    run.FINISH();
}
} // namespace

void _VECTOR_STREAM_UNIFORM(const STREAM_JOB &job) {
    if (!STREAM_RUN::PREPARE(job)) return;
    STREAM_RUN run(job, KIND::LINES);
    RunGrid(job, run, [&](const VECTORNAT &p) { return ZeroVector(job, p); });
}

void _VECTOR_STREAM_UNIFORM_RANDOM(const STREAM_JOB &job, NAT rounds) {
    if (!STREAM_RUN::PREPARE(job)) return;
    STREAM_RUN run(job, KIND::LINES);
    RunRandom(job, run, rounds, NOTE, [&](const VECTORNAT &p) { return !ZeroVector(job, p); });
}

void _VECTOR_STREAM_MASK(const STREAM_JOB &job, const STREAM_MASK &mask) {
    if (!STREAM_RUN::PREPARE(job)) return;
    STREAM_RUN run(job, KIND::LINES);
    RunGrid(job, run, [&](const VECTORNAT &p) { return !ZeroVector(job, p) && InMask(mask, p); });
}

void _VECTOR_STREAM_MASK_RANDOM(const STREAM_JOB &job, NAT rounds, const STREAM_MASK &mask) {
    if (!STREAM_RUN::PREPARE(job)) return;
    STREAM_RUN run(job, KIND::LINES);
    RunRandom(job, run, rounds, MASK_NOTE,
              [&](const VECTORNAT &p) { return !ZeroVector(job, p) && InMask(mask, p); });
}

void _VECTOR_STREAM_MUSCLE(const STREAM_JOB &job) {
    if (!STREAM_RUN::PREPARE(job)) return;
    STREAM_RUN run(job, KIND::MUSCLE);
    RunGrid(job, run, [&](const VECTORNAT &p) { return !ZeroVector(job, p); });
}

void _VECTOR_STREAM_MUSCLE_RANDOM(const STREAM_JOB &job, NAT rounds) {
    if (!STREAM_RUN::PREPARE(job)) return;
    STREAM_RUN run(job, KIND::MUSCLE);
    RunRandom(job, run, rounds, NOTE, [&](const VECTORNAT &p) { return !ZeroVector(job, p); });
}

void _VECTOR_STREAM_MUSCLE_MASK(const STREAM_JOB &job, const STREAM_MASK &mask) {
    if (!STREAM_RUN::PREPARE(job)) return;
    STREAM_RUN run(job, KIND::MUSCLE);
    RunGrid(job, run, [&](const VECTORNAT &p) { return !ZeroVector(job, p) && InMask(mask, p); });
}

void _VECTOR_STREAM_MUSCLE_MASK_RANDOM(const STREAM_JOB &job, NAT rounds, const STREAM_MASK &mask) {
    if (!STREAM_RUN::PREPARE(job)) return;
    STREAM_RUN run(job, KIND::MUSCLE);
    RunRandom(job, run, rounds, NOTE,
              [&](const VECTORNAT &p) { return !ZeroVector(job, p) && InMask(mask, p); });
}

void _VECTOR_STREAM_SLICE(const STREAM_JOB &job, const VECTOR &point, const VECTOR &normal) {
    RunSlice(job, point, normal, [&](const VECTORNAT &p) { return ZeroVector(job, p); });
}

void _VECTOR_STREAM_SLICE_MASK(const STREAM_JOB &job, const VECTOR &point, const VECTOR &normal,
                               const STREAM_MASK &mask) {
    RunSlice(job, point, normal,
             [&](const VECTORNAT &p) { return ZeroVector(job, p) && InMask(mask, p); });
}

void _VECTOR_STREAM_NODES(const STREAM_JOB &job, T3D_SCALAR_ANALYSIS &target) {
    if (!STREAM_RUN::PREPARE(job)) return;
    STREAM_RUN run(job, KIND::NODES, &target);
    RunGrid(job, run, [&](const VECTORNAT &p) { return ZeroVector(job, p); });
}
} // namespace morvane
