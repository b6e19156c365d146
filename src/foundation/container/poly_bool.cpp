#include "foundation/container/poly_bool.hpp"

#include <algorithm>
#include <bit>
#include <utility>

namespace morvane {
namespace {
constexpr NAT BOOL_CODE = 5;
// One flag more than asked for fits always: position `count` is used by voxel masks.
NAT BYTE_COUNT(NAT count) { return count < 1 ? 0 : count / 8 + 1; }
} // namespace

TPOLYBOOL::TPOLYBOOL(TPOLYBOOL &&other) noexcept { *this = std::move(other); }

TPOLYBOOL &TPOLYBOOL::operator=(TPOLYBOOL &&other) noexcept {
    if (this == &other) return *this;
    TPOLY::operator=(std::move(other));
    BITS = std::exchange(other.BITS, 0);
    DEFAULT = other.DEFAULT;
    WRITE = other.WRITE;
    return *this;
}

void TPOLYBOOL::INIT() {
    TPOLY::INIT(1);
    KIND = BOOL_CODE;
    BITS = 0;
    DEFAULT = false;
    WRITE = true;
}

void TPOLYBOOL::INIT(NAT count) {
    const NAT bytes = BYTE_COUNT(count);
    if (LENGTH != bytes || SIZE != 1 || BITS != count) TPOLY::DONE();
    TPOLY::INIT(bytes, 1);
    KIND = BOOL_CODE;
    BITS = LENGTH > 0 ? count : 0;
    DEFAULT = false;
    WRITE = true;
}

void TPOLYBOOL::DONE() {
    TPOLY::DONE();
    BITS = 0;
}

void TPOLYBOOL::NEWLENGTH(NAT count) {
    if (SIZE < 1) INIT();
    const NAT wanted = std::max<NAT>(count, 0);
    const NAT oldLength = LENGTH;
    TPOLY::NEWLENGTH(BYTE_COUNT(wanted));
    // Clear what the last byte held behind the flags that stay, so that new ones are false.
    for (NAT i = std::min(BITS, wanted); i < std::min(oldLength, LENGTH) * 8; ++i)
        _PUT(i, false);
    BITS = LENGTH > 0 ? wanted : 0;
}

void TPOLYBOOL::PUT(NAT index, bool value) {
    if (index < 0) return;
    if (index >= BITS) {
        if (SIZE < 1) INIT();
        if (DYNAMIC < 1) return;
        if (index >> 3 >= LENGTH) EXTEND((index >> 3) + 1);
        if (LENGTH < 1) BITS = 0; // no memory, which has been told
        if (index >> 3 >= LENGTH) return;
        BITS = index + 1;
    }
    _PUT(index, value);
    SORTED = false;
}

void TPOLYBOOL::FILL(bool value) {
    std::fill_n(BYTES(), LENGTH, static_cast<BYTE>(value ? 0xFF : 0));
    for (NAT i = BITS; DYNAMIC > 0 && i < LENGTH * 8; ++i)
        _PUT(i, false);
    SORTED = true;
}

bool TPOLYBOOL::ALLTRUE() const { return COUNT() == BITS; }

NAT TPOLYBOOL::COUNT() const {
    NAT count = 0;
    for (NAT i = 0; i < BITS >> 3; ++i)
        count += std::popcount(BYTES()[i]);
    for (NAT i = BITS & ~NAT{7}; i < BITS; ++i)
        count += _GET(i) ? 1 : 0;
    return count;
}

void TPOLYBOOL::REPLACE(const TPOLYBOOL &other) {
    if (SIZE < 1) INIT();
    if (other.LENGTH < 1) return NEWLENGTH(0);
    TPOLY::REPLACE(other);
    BITS = LENGTH == other.LENGTH ? other.BITS : 0;
}
} // namespace morvane
