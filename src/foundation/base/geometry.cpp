#include "foundation/base/geometry.hpp"

namespace morvane {
VECTORNAT CROSS(const VECTORNAT &a, const VECTORNAT &b) {
    return VECTORNAT{a.y, a.z, a.x} * VECTORNAT{b.z, b.x, b.y} -
           VECTORNAT{a.z, a.x, a.y} * VECTORNAT{b.y, b.z, b.x};
}

HYPER CROSS(const HYPER &a, const HYPER &b, const HYPER &c) {
    return {DET(VECTOR{a.y, a.z, a.w}, {b.y, b.z, b.w}, {c.y, c.z, c.w}),
            -DET(VECTOR{a.x, a.z, a.w}, {b.x, b.z, b.w}, {c.x, c.z, c.w}),
            DET(VECTOR{a.x, a.y, a.w}, {b.x, b.y, b.w}, {c.x, c.y, c.w}),
            -DET(VECTOR{a.x, a.y, a.z}, {b.x, b.y, b.z}, {c.x, c.y, c.z})};
}

REAL DET(const HYPER &a, const HYPER &b, const HYPER &c, const HYPER &d) {
    return SCALAR(a, CROSS(b, c, d));
}

COMPLEX POLTOKART2(REAL r, REAL phi) { return {r * std::cos(phi), r * std::sin(phi)}; }

VECTOR POLTOKART3(REAL theta, REAL phi) {
    return {std::sin(theta) * std::cos(phi), std::sin(theta) * std::sin(phi), std::cos(theta)};
}

VECTOR POLTOKART3(REAL r, REAL theta, REAL phi) { return POLTOKART3(theta, phi) * r; }

VECTOR ROTATEX(const VECTOR &v, REAL angle) {
    if (angle == 0) return v;
    const REAL c = std::cos(angle), s = std::sin(angle);
    return {v.x, v.y * c - v.z * s, v.y * s + v.z * c};
}

VECTOR ROTATEY(const VECTOR &v, REAL angle) {
    if (angle == 0) return v;
    const REAL c = std::cos(angle), s = std::sin(angle);
    return {v.x * c + v.z * s, v.y, v.z * c - v.x * s};
}

VECTOR ROTATEZ(const VECTOR &v, REAL angle) {
    if (angle == 0) return v;
    const REAL c = std::cos(angle), s = std::sin(angle);
    return {v.x * c - v.y * s, v.x * s + v.y * c, v.z};
}

REAL GETLENGTH_PL(const VECTOR &p, const VECTOR &q, const VECTOR &d) {
    return DIVIDE(GETLENGTH(CROSS(p - q, d)), GETLENGTH(d));
}

REAL GETLENGTH_PE(const VECTOR &p, const VECTOR &q, const VECTOR &a, const VECTOR &b) {
    const VECTOR normal = CROSS(a, b);
    return DIVIDE(ABS(SCALAR(p - q, normal)), GETLENGTH(normal));
}

VECTOR GETVECTOR_PL(const VECTORNAT &p, const VECTORNAT &q, const VECTORNAT &d) {
    const VECTOR direction = TO_REAL(d), foot = TO_REAL(q);
    const REAL square = SCALAR(direction, direction);
    if (square == 0) return VZERO;
    return foot + direction * (SCALAR(TO_REAL(p) - foot, direction) / square);
}

REAL AREA(const VTRI &triangle) {
    return GETLENGTH(CROSS(triangle.b - triangle.a, triangle.c - triangle.a)) / 2;
}

CUBE GETCENTERCUBE(const VECTOR &center, const VECTOR &size) {
    return GETWEAKCUBE(center, size, 1, WEAK{});
}

CUBE GETWEAKCUBE(const VECTOR &center, const VECTOR &size, REAL factor, const WEAK &weak) {
    constexpr std::array<VECTOR, 8> SIGNS{{{-1, 1, 1},
                                           {1, 1, 1},
                                           {1, -1, 1},
                                           {-1, -1, 1},
                                           {-1, 1, -1},
                                           {1, 1, -1},
                                           {1, -1, -1},
                                           {-1, -1, -1}}};
    const VECTOR half = size / 2;
    CUBE cube;
    for (std::size_t i = 0; i < SIGNS.size(); ++i)
        cube.corners[i] = center + SIGNS[i] * (weak.corners[i] ? half * factor : half);
    return cube;
}
} // namespace morvane
