#pragma once

#include "foundation/container/matrix.hpp"
#include "foundation/container/memory_block.hpp"

namespace morvane {
template <class T, char CODE>
TMATRIX_OF<T, CODE> &TMATRIX_OF<T, CODE>::operator=(TMATRIX_OF &&other) noexcept {
    if (this == &other) return *this;
    LIST::operator=(std::move(other));
    DEFAULT = other.DEFAULT;
    WRITE = other.WRITE;
    WIDTH = std::exchange(other.WIDTH, 0);
    HEIGHT = std::exchange(other.HEIGHT, 0);
    return *this;
}

template <class T, char CODE> void TMATRIX_OF<T, CODE>::INIT() {
    LIST::INIT();
    this->KIND = CODE;
    this->SORTED = true;
    DEFAULT = WRITE = T{};
    WIDTH = HEIGHT = 0;
}

template <class T, char CODE> void TMATRIX_OF<T, CODE>::INIT(NAT width, NAT height) {
    const bool isEmpty = width < 1 || height < 1;
    LIST::INIT(isEmpty ? 0 : BLOCK_SIZE(width, height));
    this->KIND = CODE;
    this->SORTED = true;
    DEFAULT = WRITE = T{};
    WIDTH = this->LENGTH > 0 ? width : 0;
    HEIGHT = this->LENGTH > 0 ? height : 0;
}

template <class T, char CODE> void TMATRIX_OF<T, CODE>::DONE() {
    LIST::DONE();
    WIDTH = HEIGHT = 0;
}

template <class T, char CODE>
void TMATRIX_OF<T, CODE>::RESIZE(NAT width, NAT height) requires ANY_OF<T, WORD, BYTE> {
    const bool isEmpty = width < 1 || height < 1;
    LIST::NEWLENGTH(isEmpty ? 0 : BLOCK_SIZE(width, height));
    WIDTH = this->LENGTH > 0 ? width : 0;
    HEIGHT = this->LENGTH > 0 ? height : 0;
}

template <class T, char CODE> T TMATRIX_OF<T, CODE>::GET(NAT x, NAT y) const {
    return INTO(x, y) ? LIST::GET(POSITION(x, y)) : DEFAULT;
}

template <class T, char CODE> void TMATRIX_OF<T, CODE>::PUT(NAT x, NAT y, const T &value) {
    if (this->DYNAMIC > 0 || this->SIZE < 1) {
        PUT_DYNAMIC(x, y, value);
        if (this->LENGTH < 1) WIDTH = HEIGHT = 0; // nothing written yet, or memory ran out
        return;
    }
    if (INTO(x, y)) LIST::PUT(POSITION(x, y), value);
}

template <class T, char CODE> void TMATRIX_OF<T, CODE>::PUT_DYNAMIC(NAT x, NAT y, const T &value) {
    if (x < 1 || y < 1) return;
    const T copy = value; // it may stand in the block that moves
    if (HEIGHT <= 1 && y == 1) {
        LIST::PUT(x, copy);
        if (this->LENGTH < x) return; // no memory, which has been told
        WIDTH = std::max(WIDTH, x);
        HEIGHT = 1;
        return;
    }
    if (x > WIDTH) __REARRANGE(x, std::max(HEIGHT, y));
    if (x > WIDTH || BLOCK_SIZE(WIDTH, y) == NATMAX) return;
    LIST::PUT(POSITION(x, y), copy);
    if (this->LENGTH >= POSITION(x, y)) HEIGHT = std::max(HEIGHT, y);
}

template <class T, char CODE> void TMATRIX_OF<T, CODE>::__REARRANGE(NAT width, NAT height) {
    TMATRIX_OF wide;
    wide.LIST::INIT();
    wide.NEWLENGTH(BLOCK_SIZE(width, height));
    if (wide.LENGTH < 1) return; // no memory, which has been told
    wide.WIDTH = width;
    for (NAT y = 1; y <= HEIGHT; ++y)
        for (NAT x = 1; x <= WIDTH; ++x)
            wide._PUT(x, y, GET(x, y));
    LIST::REPLACE(wide);
    if (this->LENGTH == wide.LENGTH) WIDTH = width;
}

template <class T, char CODE> void TMATRIX_OF<T, CODE>::_HLINE(NAT x1, NAT x2, NAT y) {
    const auto [from, to] = std::minmax(x1, x2);
    for (NAT x = from; x < to; ++x)
        _PUT(x, y, WRITE);
}

template <class T, char CODE> void TMATRIX_OF<T, CODE>::_VLINE(NAT x, NAT y1, NAT y2) {
    const auto [from, to] = std::minmax(y1, y2);
    for (NAT y = from; y <= to; ++y)
        _PUT(x, y, WRITE);
}

template <class T, char CODE>
void TMATRIX_OF<T, CODE>::_VVLINE(NAT x, NAT y1, NAT y2) requires ANY_OF<T, BYTE> {
    const auto [from, to] = std::minmax(y1, y2);
    for (NAT y = from; y <= to; ++y)
        _PUT(x, y, static_cast<BYTE>((3 * _GET(x, y) + WRITE) / 4));
}
} // namespace morvane
