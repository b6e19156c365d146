#pragma once

#include "foundation/base/safe_arithmetic.hpp"

#include <algorithm>
#include <concepts>
#include <type_traits>

// The operators of the value records. All of + - * / work component by component, with a number or
// with a record of the same kind; there is no complex and no quaternion product among them. A zero
// divisor gives 0 for its component. No allocation: field code calls them once a voxel.
namespace morvane {
template <class T, class... KINDS>
concept ANY_OF = (std::same_as<T, KINDS> || ...);
template <class R>
concept REAL_RECORD = ANY_OF<R, COMPLEX, VECTOR, HYPER>;
template <class R>
concept NAT_RECORD = ANY_OF<R, COMPLEXNAT, VECTORNAT, HYPERNAT>;
template <class R>
concept VALUE_RECORD = REAL_RECORD<R> || NAT_RECORD<R>;

namespace components {
template <class R> inline constexpr int COUNT = sizeof(R) / sizeof(REAL);
template <class R>
using REALS =
    std::conditional_t<COUNT<R> == 2, COMPLEX, std::conditional_t<COUNT<R> == 3, VECTOR, HYPER>>;

// f of each component, or of each pair or triple of them.
template <class OUT, class F, class... RECORDS> constexpr OUT MAP(F f, const RECORDS &...r) {
    if constexpr (COUNT<OUT> == 2)
        return {f(r.x...), f(r.y...)};
    else if constexpr (COUNT<OUT> == 3)
        return {f(r.x...), f(r.y...), f(r.z...)};
    else
        return {f(r.x...), f(r.y...), f(r.z...), f(r.w...)};
}
// Whether f holds for every component.
template <class F, class R, class... RECORDS>
constexpr bool ALL(F f, const R &a, const RECORDS &...r) {
    bool all = f(a.x, r.x...) && f(a.y, r.y...);
    if constexpr (COUNT < R >> 2) all = all && f(a.z, r.z...);
    if constexpr (COUNT < R >> 3) all = all && f(a.w, r.w...);
    return all;
}
// Whole numbers wrap round, as the processor does.
struct ADD {
    constexpr REAL operator()(REAL a, REAL b) const { return a + b; }
    constexpr NAT operator()(NAT a, NAT b) const {
        return static_cast<NAT>(static_cast<std::uint64_t>(a) + static_cast<std::uint64_t>(b));
    }
};
struct SUBTRACT {
    constexpr REAL operator()(REAL a, REAL b) const { return a - b; }
    constexpr NAT operator()(NAT a, NAT b) const {
        return static_cast<NAT>(static_cast<std::uint64_t>(a) - static_cast<std::uint64_t>(b));
    }
};
struct MULTIPLY {
    constexpr REAL operator()(REAL a, REAL b) const { return a * b; }
    constexpr NAT operator()(NAT a, NAT b) const {
        return static_cast<NAT>(static_cast<std::uint64_t>(a) * static_cast<std::uint64_t>(b));
    }
};
} // namespace components

// The same record with real components.
template <VALUE_RECORD R> constexpr components::REALS<R> TO_REAL(const R &a) {
    return components::MAP<components::REALS<R>>([](auto x) { return static_cast<REAL>(x); }, a);
}

// Two records of one kind.
template <VALUE_RECORD R> constexpr R operator+(const R &a, const R &b) {
    return components::MAP<R>(components::ADD{}, a, b);
}
template <VALUE_RECORD R> constexpr R operator-(const R &a, const R &b) {
    return components::MAP<R>(components::SUBTRACT{}, a, b);
}
template <VALUE_RECORD R> constexpr R operator*(const R &a, const R &b) {
    return components::MAP<R>(components::MULTIPLY{}, a, b);
}
// Nat records give the real quotients; DIV is the whole-numbered division.
template <VALUE_RECORD R> constexpr components::REALS<R> operator/(const R &a, const R &b) {
    return components::MAP<components::REALS<R>>(
        [](auto x, auto y) { return DIVIDE(static_cast<REAL>(x), static_cast<REAL>(y)); }, a, b);
}
template <VALUE_RECORD R> constexpr R operator-(const R &a) {
    if constexpr (REAL_RECORD<R>)
        return components::MAP<R>([](REAL x) { return -x; }, a);
    else
        return R{} - a;
}

// A record and a real; nat records give the real record.
template <VALUE_RECORD R, std::floating_point T>
constexpr components::REALS<R> operator+(const R &a, T b) {
    return components::MAP<components::REALS<R>>(
        [b](auto x) { return static_cast<REAL>(x) + static_cast<REAL>(b); }, a);
}
template <VALUE_RECORD R, std::floating_point T>
constexpr components::REALS<R> operator-(const R &a, T b) {
    return components::MAP<components::REALS<R>>(
        [b](auto x) { return static_cast<REAL>(x) - static_cast<REAL>(b); }, a);
}
template <VALUE_RECORD R, std::floating_point T>
constexpr components::REALS<R> operator*(const R &a, T b) {
    return components::MAP<components::REALS<R>>(
        [b](auto x) { return static_cast<REAL>(x) * static_cast<REAL>(b); }, a);
}
template <VALUE_RECORD R, class T>
requires std::is_arithmetic_v<T>
constexpr components::REALS<R> operator/(const R &a, T b) {
    return components::MAP<components::REALS<R>>(
        [b](auto x) { return DIVIDE(static_cast<REAL>(x), static_cast<REAL>(b)); }, a);
}
// A record and a whole number: real records stay real, nat records stay nat.
template <VALUE_RECORD R, std::integral T> constexpr R operator+(const R &a, T b) {
    using PART = decltype(a.x + NAT{});
    return components::MAP<R>([b](PART x) { return components::ADD{}(x, static_cast<PART>(b)); },
                              a);
}
template <VALUE_RECORD R, std::integral T> constexpr R operator-(const R &a, T b) {
    using PART = decltype(a.x + NAT{});
    return components::MAP<R>(
        [b](PART x) { return components::SUBTRACT{}(x, static_cast<PART>(b)); }, a);
}
template <VALUE_RECORD R, std::integral T> constexpr R operator*(const R &a, T b) {
    using PART = decltype(a.x + NAT{});
    return components::MAP<R>(
        [b](PART x) { return components::MULTIPLY{}(x, static_cast<PART>(b)); }, a);
}
template <VALUE_RECORD R, class T>
requires std::is_arithmetic_v<T>
constexpr auto operator*(T a, const R &b) { return b * a; }

// A nat record with the real record of its size gives the real record.
template <class A, class B>
concept MIXED_RECORDS = VALUE_RECORD<A> && VALUE_RECORD<B> && !std::same_as<A, B> &&
                        std::same_as<components::REALS<A>, components::REALS<B>>;
template <class A, class B>
requires MIXED_RECORDS<A, B>
constexpr auto operator+(const A &a, const B &b) { return TO_REAL(a) + TO_REAL(b); }
template <class A, class B>
requires MIXED_RECORDS<A, B>
constexpr auto operator-(const A &a, const B &b) { return TO_REAL(a) - TO_REAL(b); }
template <class A, class B>
requires MIXED_RECORDS<A, B>
constexpr auto operator*(const A &a, const B &b) { return TO_REAL(a) * TO_REAL(b); }
template <class A, class B>
requires MIXED_RECORDS<A, B>
constexpr auto operator/(const A &a, const B &b) { return TO_REAL(a) / TO_REAL(b); }

template <VALUE_RECORD R, class T> constexpr R &operator+=(R &a, const T &b) { return a = a + b; }
template <VALUE_RECORD R, class T> constexpr R &operator-=(R &a, const T &b) { return a = a - b; }
template <VALUE_RECORD R, class T> constexpr R &operator*=(R &a, const T &b) { return a = a * b; }
template <VALUE_RECORD R, class T> constexpr R &operator/=(R &a, const T &b) { return a = a / b; }

// Whole-numbered division, its rest, and the logical shift to the right, of nat records.
template <NAT_RECORD R> constexpr R DIV(const R &a, const R &b) {
    return components::MAP<R>([](NAT x, NAT y) { return DIV(x, y); }, a, b);
}
template <NAT_RECORD R> constexpr R DIV(const R &a, NAT b) {
    return components::MAP<R>([b](NAT x) { return DIV(x, b); }, a);
}
template <NAT_RECORD R> constexpr R MOD(const R &a, const R &b) {
    return components::MAP<R>([](NAT x, NAT y) { return MOD(x, y); }, a, b);
}
template <NAT_RECORD R> constexpr R MOD(const R &a, NAT b) {
    return components::MAP<R>([b](NAT x) { return MOD(x, b); }, a);
}
template <NAT_RECORD R> constexpr R SHR(const R &a, NAT bits) {
    return components::MAP<R>(
        [bits](NAT x) { return static_cast<NAT>(static_cast<std::uint64_t>(x) >> (bits & 63)); },
        a);
}

// Lexicographic: the first component decides, then the next.
template <VALUE_RECORD R> constexpr bool operator<(const R &a, const R &b) {
    if (a.x != b.x) return a.x < b.x;
    if constexpr (components::COUNT<R> == 2)
        return a.y < b.y;
    else {
        if (a.y != b.y) return a.y < b.y;
        if constexpr (components::COUNT<R> == 3)
            return a.z < b.z;
        else
            return a.z != b.z ? a.z < b.z : a.w < b.w;
    }
}
template <VALUE_RECORD R> constexpr bool operator>(const R &a, const R &b) { return b < a; }
template <VALUE_RECORD R> constexpr bool operator<=(const R &a, const R &b) {
    return a < b || a == b;
}
template <VALUE_RECORD R> constexpr bool operator>=(const R &a, const R &b) { return b <= a; }

// Component by component. SQRT takes the root of the absolute value.
template <VALUE_RECORD R> constexpr R SQR(const R &a) { return a * a; }
template <REAL_RECORD R> R SQRT(const R &a) {
    return components::MAP<R>([](REAL x) { return SQRT(x); }, a);
}
template <REAL_RECORD R> R POWER(const R &a, REAL exponent) {
    return components::MAP<R>([exponent](REAL x) { return POWER(x, exponent); }, a);
}
template <REAL_RECORD R> R POWER(const R &a, const R &exponents) {
    return components::MAP<R>([](REAL x, REAL y) { return POWER(x, y); }, a, exponents);
}
template <VALUE_RECORD R> constexpr R ABS(const R &a) {
    using PART = decltype(a.x + NAT{});
    return components::MAP<R>(
        [](PART x) { return x < 0 ? components::SUBTRACT{}(PART{}, x) : x + PART{}; }, a);
}
template <VALUE_RECORD R> constexpr R MIN(const R &a, const R &b) {
    return components::MAP<R>([](auto x, auto y) { return y < x ? y : x; }, a, b);
}
template <VALUE_RECORD R> constexpr R MAX(const R &a, const R &b) {
    return components::MAP<R>([](auto x, auto y) { return x < y ? y : x; }, a, b);
}
template <VALUE_RECORD R> constexpr R LIMIT(const R &value, const R &low, const R &high) {
    return components::MAP<R>([](auto v, auto a, auto b) { return LIMIT(v, a, b); }, value, low,
                              high);
}
// Whether every component lies in its low..high.
template <VALUE_RECORD R> constexpr bool INTO(const R &value, const R &low, const R &high) {
    return components::ALL([](auto v, auto a, auto b) { return INTO(v, a, b); }, value, low, high);
}
} // namespace morvane
