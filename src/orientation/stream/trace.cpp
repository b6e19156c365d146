#include "orientation/stream/trace.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "foundation/base/geometry.hpp"

#include <algorithm>
#include <cstring>

namespace morvane {
namespace {
// Of cosines. Their own rounding errors, and what those of their squares come to, are below 1e-12;
// the arc cosine is monotone, so a cosine further away than this can't turn a decision.
constexpr REAL SAFE_DISTANCE = 2e-9;

bool SameBytes(const VECTOR &a, const VECTOR &b) { return std::memcmp(&a, &b, sizeof a) == 0; }
bool IsNumber(const VECTOR &v) { return v.x == v.x && v.y == v.y && v.z == v.z; }
// Negative zeros become zeros, so that a step of length 0 leaves the bytes as they are.
VECTOR WithoutNegativeZero(const VECTOR &v) { return {v.x + 0.0, v.y + 0.0, v.z + 0.0}; }
VECTOR StepOn(const VECTOR &p, const VECTOR &dir, const VECTOR &stride) {
    return {p.x + dir.x * stride.x, p.y + dir.y * stride.y, p.z + dir.z * stride.z};
}

REAL SignedSquare(REAL x) { return x * std::abs(x); }
} // namespace

ANGLE_LIMIT::ANGLE_LIMIT(REAL radians)
    : limit(radians), lower(SignedSquare(std::cos(radians) - SAFE_DISTANCE)),
      upper(SignedSquare(std::cos(radians) + SAFE_DISTANCE)) {}

bool HALF_LINE::Grow() {
    const NAT wanted = points.LENGTH < 1 ? 4096 : points.LENGTH * 2;
    if (points.LENGTH < 1)
        points.INIT(wanted);
    else
        points.NEWLENGTH(wanted);
    if (points.LENGTH == wanted) return true;
    length = std::min(length, points.LENGTH);
    return false;
}

STREAM_TRACER::STREAM_TRACER(const T3D_VECTOR_ANALYSIS &field, const T3D_SCALAR_ANALYSIS *scalar,
                             const STREAM_SETTINGS &settings)
    : sampler(field), contrast(settings.stopContrast != 0 ? scalar : nullptr),
      stopContrast(settings.stopContrast), stopAngle(settings.stopAngle),
      segmentAngle(settings.angles), bends(settings.angles > 0), step(field._GETSCALE()) {
    const VECTOR size = TO_REAL(field.SIZE());
    const REAL diagonal = GETLENGTH(size - 1);
    // Deliberate: with steps of exactly 1 a stop length counts as it is, not rounded.
    if (settings.steps == 1.0) {
        lengthLimit =
            settings.stopLength > 0 ? settings.stopLength : static_cast<REAL>(ROUND(diagonal));
    } else {
        step = step * settings.steps;
        const REAL length = settings.stopLength > 0 ? settings.stopLength : diagonal;
        lengthLimit = static_cast<REAL>(ROUND(DIVIDE(length, settings.steps)));
    }
    lengthLimit = std::min(lengthLimit, static_cast<REAL>(MAXIMAL_POINTS));
    // Bends may be rare, so stored points don't bound the steps: a closed orbit would never end.
    const REAL rounds = 1000 * std::max(lengthLimit, DIVIDE(diagonal, settings.steps));
    roundLimit = LIMIT(ROUND(rounds), NAT{65536}, MAXIMAL_POINTS);
    const FRAME &frame = field.GETFRAME();
    lower = frame.L2G({0.5, 0.5, 0.5});
    upper = frame.L2G(size + 0.5);
}

// Below the lower or above the upper corner; a position that is no number lies outside too.
bool STREAM_TRACER::Outside(const VECTOR &pos) const {
    return !(pos.x >= lower.x && pos.y >= lower.y && pos.z >= lower.z && pos.x <= upper.x &&
             pos.y <= upper.y && pos.z <= upper.z);
}

// Deliberate: a point outside the box is stored before the test ends the line, so that a line ends
// just outside the field.
template <bool BENDS, bool CONTRAST>
void STREAM_TRACER::Walk(const VECTOR &seed, const VECTOR &stride, HALF_LINE &half) const {
    VECTOR pos = seed, dir = VZERO, marker = seed;
    NAT grey = CONTRAST ? contrast->GET_TRILINEAR(seed) : 0;
    for (NAT round = 1; round <= roundLimit; ++round) {
        const VECTOR prev = dir, last = pos;
        dir = NORM(sampler.TRILINEAR(last));
        pos = StepOn(last, dir, stride);
        if (!IsNumber(pos)) {
            pos = last;
            break;
        }
        const bool moved = !SameBytes(pos, last);
        if constexpr (BENDS) {
            // Deliberate: with a segment angle only the bends and the end point are stored, and
            // the length limit counts stored points.
            if (moved && segmentAngle.BELOW(last - marker, pos - last)) {
                if (!half.PUSH(pos)) break;
                marker = pos;
            }
        } else if (moved && !half.PUSH(pos)) {
            break;
        }
        if (Outside(pos) || !moved) break;
        // Deliberate: a vector with a flipped sign is not turned round, the stop angle ends the
        // line there.
        if (!stopAngle.ABOVE(dir, prev)) break;
        if (!(lengthLimit > static_cast<REAL>(half.LENGTH()))) break;
        if constexpr (CONTRAST) {
            const NAT next = contrast->GET_TRILINEAR(last);
            if (std::abs(next - grey) > stopContrast) break;
            grey = next;
        }
    }
    if (BENDS && !SameBytes(marker, pos)) half.PUSH(pos);
}

template <bool BENDS, bool CONTRAST> void STREAM_TRACER::Trace(const VECTOR &seed) {
    const VECTOR start = WithoutNegativeZero(seed);
    left.CLEAR();
    right.CLEAR();
    if (!left.PUSH(start)) return;
    Walk<BENDS, CONTRAST>(start, step, left);
    Walk<BENDS, CONTRAST>(start, -step, right);
}

void STREAM_TRACER::_VECTOR_SEED(const VECTOR &seed) { Trace<false, false>(seed); }
void STREAM_TRACER::_VECTOR_SEED_CONTRAST(const VECTOR &seed) { Trace<false, true>(seed); }
void STREAM_TRACER::_VECTOR_SEED_ANGLE(const VECTOR &seed) { Trace<true, false>(seed); }
void STREAM_TRACER::_VECTOR_SEED_ANGLE_CONTRAST(const VECTOR &seed) { Trace<true, true>(seed); }

void STREAM_TRACER::TRACE(const VECTOR &seed) {
    if (contrast) return bends ? _VECTOR_SEED_ANGLE_CONTRAST(seed) : _VECTOR_SEED_CONTRAST(seed);
    return bends ? _VECTOR_SEED_ANGLE(seed) : _VECTOR_SEED(seed);
}
} // namespace morvane
