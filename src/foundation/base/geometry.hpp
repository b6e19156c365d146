#pragma once

#include "foundation/base/matrix3.hpp"
#include "foundation/base/record_operators.hpp"

#include <cmath>

// Lengths, products, angles and rotations of the value records. Angles are in radians.
namespace morvane {
// The dot product; of nat records a whole number that wraps round.
constexpr REAL SCALAR(const COMPLEX &a, const COMPLEX &b) { return a.x * b.x + a.y * b.y; }
constexpr REAL SCALAR(const VECTOR &a, const VECTOR &b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
constexpr REAL SCALAR(const HYPER &a, const HYPER &b) {
    return a.x * b.x + a.y * b.y + a.z * b.z + a.w * b.w;
}
template <NAT_RECORD R> constexpr NAT SCALAR(const R &a, const R &b) {
    const R product = a * b;
    NAT sum = components::ADD{}(product.x, product.y);
    if constexpr (components::COUNT < R >> 2) sum = components::ADD{}(sum, product.z);
    if constexpr (components::COUNT < R >> 3) sum = components::ADD{}(sum, product.w);
    return sum;
}
// The Euclidean length; 0 when it has no finite value.
template <VALUE_RECORD R> REAL GETLENGTH(const R &a) {
    const auto v = TO_REAL(a);
    const REAL length = std::sqrt(SCALAR(v, v));
    return std::isfinite(length) ? length : 0;
}
// The cross product.
constexpr VECTOR CROSS(const VECTOR &a, const VECTOR &b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
VECTORNAT CROSS(const VECTORNAT &a, const VECTORNAT &b);
// The vector at right angles to three others, of four determinants; SCALAR(d, CROSS(a, b, c)) is
// DET(d, a, b, c).
HYPER CROSS(const HYPER &a, const HYPER &b, const HYPER &c);
// The triple product a·(b×c).
constexpr REAL DET(const VECTOR &a, const VECTOR &b, const VECTOR &c) {
    return SCALAR(a, CROSS(b, c));
}
// The determinant of the matrix with these rows.
REAL DET(const HYPER &a, const HYPER &b, const HYPER &c, const HYPER &d);

// Whether a and b point against each other: length(a+b) < length(a).
template <VALUE_RECORD R> bool INV(const R &a, const R &b) {
    return GETLENGTH(a + b) < GETLENGTH(a);
}

// Divided by a given real, the length, the smallest or the largest component; a zero divisor gives
// the zero record. Nat records give the real record.
template <VALUE_RECORD R> components::REALS<R> RELATIVENORM(const R &a, REAL divisor) {
    return TO_REAL(a) / divisor;
}
template <VALUE_RECORD R> components::REALS<R> NORM(const R &a) {
    return RELATIVENORM(a, GETLENGTH(a));
}
template <VALUE_RECORD R> constexpr auto SMALLEST(const R &a) {
    auto least = std::min(a.x, a.y);
    if constexpr (components::COUNT < R >> 2) least = std::min(least, a.z);
    if constexpr (components::COUNT < R >> 3) least = std::min(least, a.w);
    return least;
}
template <VALUE_RECORD R> constexpr auto LARGEST(const R &a) {
    auto most = std::max(a.x, a.y);
    if constexpr (components::COUNT < R >> 2) most = std::max(most, a.z);
    if constexpr (components::COUNT < R >> 3) most = std::max(most, a.w);
    return most;
}
template <VALUE_RECORD R> components::REALS<R> MINNORM(const R &a) {
    return RELATIVENORM(a, static_cast<REAL>(SMALLEST(a)));
}
template <VALUE_RECORD R> components::REALS<R> MAXNORM(const R &a) {
    return RELATIVENORM(a, static_cast<REAL>(LARGEST(a)));
}

// The angle of a and b, 0..PI; 0 if a length is 0. The quotient is limited to -1..1, and the
// lengths are multiplied before their root is taken, so that equal records have exactly the angle
// 0.
template <REAL_RECORD R> REAL GETANGLE(const R &a, const R &b) {
    if (GETLENGTH(a) == 0 || GETLENGTH(b) == 0) return 0;
    REAL lengths = std::sqrt(SCALAR(a, a) * SCALAR(b, b));
    if (lengths == 0 || !std::isfinite(lengths)) lengths = GETLENGTH(a) * GETLENGTH(b);
    return lengths == 0 ? 0 : ARCCOS(LIMIT(SCALAR(a, b) / lengths, -1.0, 1.0));
}
template <NAT_RECORD R> REAL GETANGLE(const R &a, const R &b) {
    return GETANGLE(TO_REAL(a), TO_REAL(b));
}
// The angle of a and b, and 2*PI minus it when the angle of a and c is above PI/2.
template <REAL_RECORD R> REAL FULLANGLE(const R &a, const R &b, const R &c) {
    const REAL angle = GETANGLE(a, b);
    return GETANGLE(a, c) <= PI / 2 ? angle : 2 * PI - angle;
}
COMPLEX POLTOKART2(REAL r, REAL phi);
VECTOR POLTOKART3(REAL theta, REAL phi); // of length 1; theta from the z axis
VECTOR POLTOKART3(REAL r, REAL theta, REAL phi);

// Turned about one axis; angle 0 gives the input exactly.
VECTOR ROTATEX(const VECTOR &v, REAL angle);
VECTOR ROTATEY(const VECTOR &v, REAL angle);
VECTOR ROTATEZ(const VECTOR &v, REAL angle);

// The distance of p from the line through q with direction d; 0 if d has length 0.
REAL GETLENGTH_PL(const VECTOR &p, const VECTOR &q, const VECTOR &d);
// The distance of p from the plane through q spanned by a and b; 0 if a and b are parallel.
REAL GETLENGTH_PE(const VECTOR &p, const VECTOR &q, const VECTOR &a, const VECTOR &b);
// The foot q + d*((p-q)·d)/|d|² of p on the line; VZERO if d has length 0.
VECTOR GETVECTOR_PL(const VECTORNAT &p, const VECTORNAT &q, const VECTORNAT &d);

constexpr VTRI GETTRI(const VECTOR &a, const VECTOR &b, const VECTOR &c) { return {a, b, c}; }
REAL AREA(const VTRI &triangle);

// The corners at center ± size/2: (-x,+y,+z), (+x,+y,+z), (+x,-y,+z), (-x,-y,+z), then with -z.
CUBE GETCENTERCUBE(const VECTOR &center, const VECTOR &size);
// The same, with size/2 * factor for each corner whose flag is set.
CUBE GETWEAKCUBE(const VECTOR &center, const VECTOR &size, REAL factor, const WEAK &weak);
} // namespace morvane
