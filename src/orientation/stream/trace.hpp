#pragma once

#include "foundation/base/geometry.hpp"
#include "orientation/stream/stream_settings.hpp"
#include "orientation/vector/vector_sampler.hpp"

#include <cmath>

namespace morvane {
class T3D_SCALAR_ANALYSIS;

// A limit that many angles are compared with. Cosines are compared, by their signed squares; only
// when they are closer than 1e-9 the angles themselves, so that every decision is that of GETANGLE.
class ANGLE_LIMIT {
public:
    explicit ANGLE_LIMIT(REAL radians);
    bool ABOVE(const VECTOR &a, const VECTOR &b) const { // limit > angle of a and b
        const int side = Side(a, b);
        return side != 0 ? side < 0 : limit > GETANGLE(a, b);
    }
    bool BELOW(const VECTOR &a, const VECTOR &b) const { // limit < angle of a and b
        const int side = Side(a, b);
        return side != 0 ? side > 0 : limit < GETANGLE(a, b);
    }

private:
    // -1: the angle is smaller by far, 1: it is larger by far, 0: not decided.
    int Side(const VECTOR &a, const VECTOR &b) const {
        const REAL dot = SCALAR(a, b), squares = SCALAR(a, a) * SCALAR(b, b);
        if (!(squares > SAFE_MIN && squares < SAFE_MAX)) return 0; // zero vectors too
        const REAL square = dot * std::abs(dot);
        if (square > upper * squares) return -1;
        return square < lower * squares ? 1 : 0;
    }
    static constexpr REAL SAFE_MIN = 1e-200, SAFE_MAX = 1e200;
    REAL limit, lower, upper; // signed squares of the cosine, less and more a safe distance
};

// One half of a line: points in global coordinates. Emptied without touching its memory.
class HALF_LINE {
public:
    NAT LENGTH() const { return length; }
    const VECTOR &GET(NAT index) const { return points._GET(index); } // 1..LENGTH
    void CLEAR() { length = 0; }
    bool PUSH(const VECTOR &point) { // false: memory ran out, which the container has told
        if (length == points.LENGTH && !Grow()) return false;
        points._PUT(++length, point);
        return true;
    }

private:
    bool Grow();
    TPOLYVECTOR points;
    NAT length = 0;
};

// Traces lines through one field. `left` holds the seed and the points along the vectors, `right`
// the points against them, without the seed.
class STREAM_TRACER {
public:
    // More points than this are not stored for half a line, whatever the length limit is.
    static constexpr NAT MAXIMAL_POINTS = NAT{1} << 24;

    STREAM_TRACER(const T3D_VECTOR_ANALYSIS &field, const T3D_SCALAR_ANALYSIS *scalar,
                  const STREAM_SETTINGS &settings);
    HALF_LINE left, right;

    // Traces both halves of the seed at a global point by the form that the settings ask for.
    void TRACE(const VECTOR &seed);
    NAT POINTS() const { return left.LENGTH() + right.LENGTH(); }
    const VECTOR &STEP() const { return step; }      // global units for each axis
    REAL LENGTHLIMIT() const { return lengthLimit; } // points of one half line
    const VECTOR &LOWER() const { return lower; }    // the corners of the field
    const VECTOR &UPPER() const { return upper; }

    void _VECTOR_SEED(const VECTOR &seed);                // every step is stored
    void _VECTOR_SEED_CONTRAST(const VECTOR &seed);       // the same, with stop contrast
    void _VECTOR_SEED_ANGLE(const VECTOR &seed);          // bends and ends are stored
    void _VECTOR_SEED_ANGLE_CONTRAST(const VECTOR &seed); // the same, with stop contrast

private:
    template <bool BENDS, bool CONTRAST> void Trace(const VECTOR &seed);
    template <bool BENDS, bool CONTRAST>
    void Walk(const VECTOR &seed, const VECTOR &stride, HALF_LINE &half) const;
    bool Outside(const VECTOR &pos) const;

    VECTOR_SAMPLER sampler;
    const T3D_SCALAR_ANALYSIS *contrast; // null: not looked at
    NAT stopContrast;
    ANGLE_LIMIT stopAngle, segmentAngle;
    bool bends; // segment angle above 0
    VECTOR step, lower, upper;
    REAL lengthLimit = 0;
    NAT roundLimit = 0; // steps of one half line
};
} // namespace morvane
