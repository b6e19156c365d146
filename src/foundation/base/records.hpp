#pragma once

#include <array>
#include <concepts>
#include <cstdint>
#include <limits>
#include <numbers>

// The value records of the system: plain, trivially copyable, passed and returned by value.
// == compares all components. The other operators stand in record_operators.hpp, geometry in
// geometry.hpp.
namespace morvane {
using REAL = double;
using NAT = std::int64_t; // signed in spite of its name
using BYTE = std::uint8_t;
using WORD = std::uint16_t;

inline constexpr REAL PI = std::numbers::pi;
inline constexpr REAL REALMAX = std::numeric_limits<REAL>::infinity();
inline constexpr NAT NATMIN = std::numeric_limits<NAT>::min();
inline constexpr NAT NATMAX = std::numeric_limits<NAT>::max();

// A 2-D point or an (index, value) pair; no complex product exists.
struct COMPLEX {
    REAL x = 0, y = 0;
    friend constexpr bool operator==(const COMPLEX &, const COMPLEX &) = default;
};
// A pixel coordinate or a size.
struct COMPLEXNAT {
    NAT x = 0, y = 0;
    friend constexpr bool operator==(const COMPLEXNAT &, const COMPLEXNAT &) = default;
};
// A 3-D point, a size, or a colour (red, green, blue).
struct VECTOR {
    REAL x = 0, y = 0, z = 0;
    friend constexpr bool operator==(const VECTOR &, const VECTOR &) = default;
};
// A voxel coordinate or a field size; coordinates start at 1.
struct VECTORNAT {
    NAT x = 0, y = 0, z = 0;
    friend constexpr bool operator==(const VECTORNAT &, const VECTORNAT &) = default;
};
// Four components; as a quaternion x is the scalar part and y, z, w the axis part.
struct HYPER {
    REAL x = 0, y = 0, z = 0, w = 0;
    friend constexpr bool operator==(const HYPER &, const HYPER &) = default;
};
struct HYPERNAT {
    NAT x = 0, y = 0, z = 0, w = 0;
    friend constexpr bool operator==(const HYPERNAT &, const HYPERNAT &) = default;
};
// Three rows; operator[] counts rows from 0.
struct MATRIX3 {
    std::array<VECTOR, 3> rows{};
    constexpr VECTOR &operator[](std::size_t row) { return rows[row]; }
    constexpr const VECTOR &operator[](std::size_t row) const { return rows[row]; }
    friend constexpr bool operator==(const MATRIX3 &, const MATRIX3 &) = default;
};
// Four rows; operator[] counts rows from 0.
struct MATRIX4 {
    std::array<HYPER, 4> rows{};
    constexpr HYPER &operator[](std::size_t row) { return rows[row]; }
    constexpr const HYPER &operator[](std::size_t row) const { return rows[row]; }
    friend constexpr bool operator==(const MATRIX4 &, const MATRIX4 &) = default;
};
// A symmetric matrix: diagonal (xx, yy, zz), then off-diagonal (xy, xz, yz).
struct SYMMATRIX3 {
    VECTOR diagonal, off;
    // GETSYMMATRIX3 of the matrix: all zeros when it is not exactly symmetric.
    template <std::same_as<MATRIX3> M> SYMMATRIX3 &operator=(const M &matrix) {
        return *this = GETSYMMATRIX3(matrix);
    }
    friend constexpr bool operator==(const SYMMATRIX3 &, const SYMMATRIX3 &) = default;
};
// A triangle.
struct VTRI {
    VECTOR a, b, c;
    friend constexpr bool operator==(const VTRI &, const VTRI &) = default;
};
// The eight corners of a box, in the order of GETCENTERCUBE.
struct CUBE {
    std::array<VECTOR, 8> corners{};
    friend constexpr bool operator==(const CUBE &, const CUBE &) = default;
};
// One flag for each CUBE corner.
struct WEAK {
    std::array<bool, 8> corners{};
    friend constexpr bool operator==(const WEAK &, const WEAK &) = default;
};
struct RANGE {
    REAL min = 0, max = 0;
    friend constexpr bool operator==(const RANGE &, const RANGE &) = default;
};
struct RANGENAT {
    NAT min = 0, max = 0;
    friend constexpr bool operator==(const RANGENAT &, const RANGENAT &) = default;
};
struct TIME {
    NAT day = 0, hour = 0, minute = 0, second = 0, hundredth = 0;
    friend constexpr bool operator==(const TIME &, const TIME &) = default;
};
// weekday: 0 is Sunday.
struct DATE {
    NAT year = 0, month = 0, day = 0, weekday = 0;
    friend constexpr bool operator==(const DATE &, const DATE &) = default;
};

// Names: the first letter is the record, NORM is all ones or the identity, MIN and MAX are the ends
// of the range (infinite for reals).
inline constexpr COMPLEX CRIGHT{1, 0}, CUP{0, 1}, CZERO{0, 0};
inline constexpr COMPLEXNAT CZERONAT{0, 0}, CNORMNAT{1, 1};
inline constexpr VECTOR VRIGHT{1, 0, 0}, VUP{0, 1, 0}, VZERO{0, 0, 0}, VNORM{1, 1, 1};
inline constexpr VECTOR VMIN{-REALMAX, -REALMAX, -REALMAX}, VMAX{REALMAX, REALMAX, REALMAX};
inline constexpr VECTORNAT VZERONAT{0, 0, 0}, VNORMNAT{1, 1, 1};
inline constexpr VECTORNAT VMINNAT{NATMIN, NATMIN, NATMIN}, VMAXNAT{NATMAX, NATMAX, NATMAX};
inline constexpr HYPER HZERO{0, 0, 0, 0}, HNORM{1, 1, 1, 1};
inline constexpr HYPER HMIN{-REALMAX, -REALMAX, -REALMAX, -REALMAX};
inline constexpr HYPER HMAX{REALMAX, REALMAX, REALMAX, REALMAX};
inline constexpr HYPERNAT HZERONAT{0, 0, 0, 0}, HNORMNAT{1, 1, 1, 1};
inline constexpr HYPERNAT HMINNAT{NATMIN, NATMIN, NATMIN, NATMIN};
inline constexpr HYPERNAT HMAXNAT{NATMAX, NATMAX, NATMAX, NATMAX};
inline constexpr MATRIX3 M3ZERO{};
inline constexpr MATRIX3 M3NORM{{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}};
inline constexpr MATRIX4 M4ZERO{};
inline constexpr MATRIX4 M4NORM{{{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}}};
inline constexpr SYMMATRIX3 SM3ZERO{};
inline constexpr SYMMATRIX3 SM3NORM{{1, 1, 1}, {0, 0, 0}};
} // namespace morvane
