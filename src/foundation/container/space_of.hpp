#pragma once

#include "foundation/base/geometry.hpp"
#include "foundation/container/space.hpp"

#include <algorithm>

namespace morvane {
template <class T, char CODE>
TSPACE_OF<T, CODE> &TSPACE_OF<T, CODE>::operator=(TSPACE_OF &&other) noexcept {
    if (this == &other) return *this;
    LIST::operator=(std::move(other));
    DEFAULT = other.DEFAULT;
    WRITE = other.WRITE;
    NX = std::exchange(other.NX, 0);
    NY = std::exchange(other.NY, 0);
    NZ = std::exchange(other.NZ, 0);
    return *this;
}

template <class T, char CODE> void TSPACE_OF<T, CODE>::INIT() {
    LIST::INIT();
    this->KIND = CODE;
    DEFAULT = WRITE = T{};
    NX = NY = NZ = 0;
}

template <class T, char CODE> void TSPACE_OF<T, CODE>::INIT(NAT nx, NAT ny, NAT nz) {
    LIST::INIT(VOXEL_COUNT(nx, ny, nz));
    this->KIND = CODE;
    DEFAULT = WRITE = T{};
    const bool isFilled = this->LENGTH > 0;
    NX = isFilled ? nx : 0;
    NY = isFilled ? ny : 0;
    NZ = isFilled ? nz : 0;
}

template <class T, char CODE> void TSPACE_OF<T, CODE>::DONE() {
    LIST::DONE();
    NX = NY = NZ = 0;
}

template <class T, char CODE> void TSPACE_OF<T, CODE>::PUT(NAT x, NAT y, NAT z, const T &value) {
    if (INTO(x, y, z)) LIST::PUT(POSITION(x, y, z), value);
}

template <class T, char CODE> void TSPACE_OF<T, CODE>::FILL(const T &value) { LIST::FILL(value); }

template <class T, char CODE> void TSPACE_OF<T, CODE>::INVERT() {
    BYTE *bytes = static_cast<BYTE *>(this->DATA);
    std::transform(bytes, bytes + this->LENGTH * this->SIZE, bytes,
                   [](BYTE b) { return static_cast<BYTE>(~b); });
    this->SORTED = false;
}

template <class T, char CODE>
template <class X>
void TSPACE_OF<T, CODE>::PUT(NAT x, NAT y, NAT z, NAT part, X value) requires SPACE_RECORD<T> {
    if (!INTO(x, y, z)) return;
    T &element = *this->_INDEX(POSITION(x, y, z));
    const auto component = static_cast<decltype(T::x)>(value);
    if (part == 1) element.x = component;
    if (part == 2) element.y = component;
    if (part == 3) element.z = component;
    this->SORTED = false;
}

template <class T, char CODE>
void TSPACE_OF<T, CODE>::GETLINE(NAT x1, NAT y1, NAT z1, NAT x2, NAT y2, NAT z2,
                                 LIST &list) const requires SPACE_RECORD<T> {
    FIXED_WALK walk({x1, y1, z1}, {x2, y2, z2});
    if (walk.STEPS() < 1) return list.NEWLENGTH(0);
    if (list.LENGTH != walk.STEPS()) list.INIT(walk.STEPS());
    for (NAT i = 1; i <= list.LENGTH; ++i) {
        walk.NEXT();
        const VECTORNAT point = walk.POINT();
        list.PUT(i, GET(point.x, point.y, point.z));
    }
}

template <class T, char CODE>
NAT TSPACE_OF<T, CODE>::COUNT(REAL low, REAL high) const requires SPACE_RECORD<T> {
    return std::count_if(this->ELEMENTS(), this->ELEMENTS() + this->LENGTH, [=](const T &element) {
        const REAL length = GETLENGTH(element);
        return low <= length && length <= high;
    });
}

template <class T, char CODE>
NAT TSPACE_OF<T, CODE>::COUNT(const T &value) const requires SPACE_RECORD<T> {
    return std::count(this->ELEMENTS(), this->ELEMENTS() + this->LENGTH, value);
}
} // namespace morvane
