#pragma once

#include "foundation/base/record_operators.hpp"
#include "foundation/base/utf16chars7.hpp"

// What a typed list adds to TPOLY: its type code and one SORTED flag for each axis.
namespace morvane {
template <class T, class... KINDS>
concept ONE_OF = (std::same_as<T, KINDS> || ...);
template <class T>
concept WHOLE_NUMBER = ANY_OF<T, NAT, WORD, BYTE>;
template <class T>
concept NUMBER = ANY_OF<T, REAL, NAT, WORD, BYTE>;
template <class T>
concept PLANE_RECORD = ANY_OF<T, COMPLEX, COMPLEXNAT>;
template <class T>
concept SPACE_RECORD = ANY_OF<T, VECTOR, VECTORNAT>;
template <class T>
concept HYPER_RECORD = ANY_OF<T, HYPER, HYPERNAT>;
template <class T>
concept AXIS_RECORD = PLANE_RECORD<T> || SPACE_RECORD<T> || HYPER_RECORD<T>;

template <class T> inline constexpr NAT POLY_CODE = 0;
template <> inline constexpr NAT POLY_CODE<REAL> = 1;
template <> inline constexpr NAT POLY_CODE<NAT> = 2;
template <> inline constexpr NAT POLY_CODE<WORD> = 3;
template <> inline constexpr NAT POLY_CODE<BYTE> = 4;
template <> inline constexpr NAT POLY_CODE<void *> = 225;
template <> inline constexpr NAT POLY_CODE<UTF16CHARS7> = 241;

// Elements are sorted by one component; set true by INIT and cleared by every PUT.
template <class T> struct POLY_FLAGS {
    void SETFLAGS(bool) {}
};
template <PLANE_RECORD T> struct POLY_FLAGS<T> {
    bool SORTEDX = true, SORTEDY = true;
    void SETFLAGS(bool value) { SORTEDX = SORTEDY = value; }
};
template <SPACE_RECORD T> struct POLY_FLAGS<T> {
    bool SORTEDX = true, SORTEDY = true, SORTEDZ = true;
    void SETFLAGS(bool value) { SORTEDX = SORTEDY = SORTEDZ = value; }
};
template <HYPER_RECORD T> struct POLY_FLAGS<T> {
    bool SORTEDX = true, SORTEDY = true, SORTEDZ = true, SORTEDW = true;
    void SETFLAGS(bool value) { SORTEDX = SORTEDY = SORTEDZ = SORTEDW = value; }
};
// Texts: sorted by text order, by the number each text holds.
template <> struct POLY_FLAGS<UTF16CHARS7> {
    bool SORTEDTEXT = false, SORTEDREAL = false;
    void SETFLAGS(bool) { SORTEDTEXT = SORTEDREAL = false; }
};
} // namespace morvane
