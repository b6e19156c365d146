#pragma once

#include "foundation/base/number_text.hpp"
#include "foundation/base/record_operators.hpp"
#include "foundation/base/rounding.hpp"
#include "foundation/base/utf16chars7.hpp"

// One value of a list: how it comes from a text or a HYPER and goes back to them.
namespace morvane::list {
// By the number readers; what cannot be read is 0. A text is cut to 254 characters.
template <class T> T READ(const UTF16 &text) {
    if constexpr (std::same_as<T, REAL>)
        return GETREAL(text);
    else if constexpr (std::same_as<T, NAT>)
        return GETNAT(text);
    else if constexpr (std::same_as<T, COMPLEX>)
        return GETCOMPLEX(text);
    else if constexpr (std::same_as<T, VECTOR>)
        return GETVECTOR(text);
    else if constexpr (std::same_as<T, HYPER>)
        return GETHYPER(text);
    else
        return UTF16CHARS7(text);
}

template <class T> T READ(const HYPER &numbers) {
    if constexpr (std::same_as<T, REAL>)
        return numbers.x;
    else if constexpr (std::same_as<T, NAT>)
        return ROUND(numbers.x);
    else if constexpr (std::same_as<T, COMPLEX>)
        return {numbers.x, numbers.y};
    else if constexpr (std::same_as<T, VECTOR>)
        return {numbers.x, numbers.y, numbers.z};
    else if constexpr (std::same_as<T, HYPER>)
        return numbers;
    else
        return UTF16CHARS7(GETSHORT(numbers));
}

inline HYPER NUMBERS(REAL value) { return {value, 0, 0, 0}; }
inline HYPER NUMBERS(NAT value) { return {static_cast<REAL>(value), 0, 0, 0}; }
inline HYPER NUMBERS(const COMPLEX &value) { return {value.x, value.y, 0, 0}; }
inline HYPER NUMBERS(const VECTOR &value) { return {value.x, value.y, value.z, 0}; }
inline HYPER NUMBERS(const HYPER &value) { return value; }
inline HYPER NUMBERS(const UTF16CHARS7 &value) { return GETHYPER(value.GET()); }

template <class T> UTF16 TEXT(const T &value) { return GETSTRING(value); }
inline UTF16 TEXT(const UTF16CHARS7 &value) { return value.GET(); }

// Without zeros at the end of a record; a number with all its digits.
template <class T> UTF16 SHORT(const T &value) { return GETSHORT(NUMBERS(value)); }
inline UTF16 SHORT(NAT value) { return GETSTRING(value); }
inline UTF16 SHORT(const UTF16CHARS7 &value) { return value.GET(); }

// Component `part` from 1, of a text its tab-separated element; empty where there is none.
UTF16 PART(REAL value, NAT part);
UTF16 PART(NAT value, NAT part);
UTF16 PART(const COMPLEX &value, NAT part);
UTF16 PART(const VECTOR &value, NAT part);
UTF16 PART(const HYPER &value, NAT part);
UTF16 PART(const UTF16CHARS7 &value, NAT part);

// UTF-8 that READ reads equal: the usual text where that is exact, else all digits.
std::string EXACT(REAL value);
std::string EXACT(NAT value);
std::string EXACT(const COMPLEX &value);
std::string EXACT(const VECTOR &value);
std::string EXACT(const HYPER &value);
inline std::string EXACT(const UTF16CHARS7 &value) { return GETUTF8(value.GET()); }
} // namespace morvane::list
