#pragma once

#include "foundation/container/poly_of.hpp"

#include <algorithm>

namespace morvane {
template <class T> void TPOLY_OF<T>::INIT() {
    TPOLY::INIT(static_cast<NAT>(sizeof(T)));
    KIND = POLY_CODE<T>;
    this->SETFLAGS(true);
}

template <class T> void TPOLY_OF<T>::INIT(NAT count) {
    const NAT size = static_cast<NAT>(sizeof(T));
    if (LENGTH != count || SIZE != size) TPOLY::DONE();
    TPOLY::INIT(count, size);
    KIND = POLY_CODE<T>;
    this->SETFLAGS(true);
}

template <class T> void TPOLY_OF<T>::NEWLENGTH(NAT count) {
    if (SIZE < 1) INIT();
    if (count > LENGTH) this->SETFLAGS(false); // zeros behind the last element break an order
    TPOLY::NEWLENGTH(count);
}

template <class T> void TPOLY_OF<T>::ADDLENGTH(NAT count) {
    if (SIZE < 1) INIT();
    if (count > 0) this->SETFLAGS(false);
    TPOLY::ADDLENGTH(count);
}

template <class T> void TPOLY_OF<T>::PUT(NAT index, const T &value) {
    if (index < 1) return;
    if (index <= LENGTH) {
        _PUT(index, value);
    } else {
        if (SIZE < 1) INIT();
        const T copy = value; // the value may stand in the block that moves
        if (EXTEND(index)) _PUT(index, copy);
    }
    SORTED = false;
    this->SETFLAGS(false);
}

template <class T> T TPOLY_OF<T>::POP() {
    if (LENGTH < 1) return T{};
    const T value = _GET(LENGTH);
    TPOLY::NEWLENGTH(LENGTH - 1);
    return value;
}

template <class T> void TPOLY_OF<T>::FILL(const T &value) {
    const T copy = value;
    std::fill_n(ELEMENTS(), LENGTH, copy);
    SORTED = true;
    this->SETFLAGS(true);
}

template <class T> void TPOLY_OF<T>::CLEAR() requires ANY_OF<T, BYTE> { FILL(0); }

template <class T> void TPOLY_OF<T>::REPLACE(const TPOLY_OF &other) {
    if (SIZE < 1) INIT();
    if (other.SIZE < 1) return NEWLENGTH(0); // never filled
    TPOLY::REPLACE(other);
    if (LENGTH == other.LENGTH) static_cast<POLY_FLAGS<T> &>(*this) = other;
}

template <class T> void TPOLY_OF<T>::REPLACE(NAT start, NAT count, const TPOLY_OF &other) {
    if (SIZE < 1) INIT();
    if (other.SIZE < 1) { // never filled
        TPOLY_OF empty;
        empty.INIT();
        return REPLACE(start, count, empty);
    }
    TPOLY::REPLACE(start, count, other);
    this->SETFLAGS(false);
}

template <class T> void TPOLY_OF<T>::FLIP() {
    SORTED = false;
    this->SETFLAGS(false);
    std::reverse(ELEMENTS(), ELEMENTS() + LENGTH);
}

template <class T> std::uint32_t TPOLY_OF<T>::GETBYTE4(NAT index) const requires ANY_OF<T, BYTE> {
    return READ<std::uint32_t>(index);
}

template <class T> std::uint64_t TPOLY_OF<T>::GETBYTE8(NAT index) const requires ANY_OF<T, BYTE> {
    return READ<std::uint64_t>(index);
}
} // namespace morvane
