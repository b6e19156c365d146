#include "foundation/container/poly.hpp"

#include "foundation/console/console.hpp"
#include "foundation/container/memory_block.hpp"

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

namespace morvane {
namespace {
constexpr NAT FIRST_RESERVE = 65536; // bytes

// Free elements behind `count` of a growing list: a share that shrinks with the byte size.
NAT RESERVE_STEP(NAT count, NAT bytes) {
    if (bytes <= 0x100000) return count;
    if (bytes <= 0xA00000) return count / 2;
    if (bytes <= 0x6600000) return count / 4;
    if (bytes <= 0x40000000) return count / 8;
    if (bytes <= 0x280000000) return count / 32;
    return count / 64;
}

std::size_t BYTES(NAT count, NAT size) { return static_cast<std::size_t>(count * size); }
char *AT(void *block, NAT bytes) { return static_cast<char *>(block) + bytes; }
} // namespace

TPOLY::TPOLY(TPOLY &&other) noexcept { *this = std::move(other); }

TPOLY &TPOLY::operator=(TPOLY &&other) noexcept {
    if (this == &other) return *this;
    DONE();
    KIND = other.KIND;
    GUARD = other.GUARD;
    MAXIMAL = other.MAXIMAL;
    DYNAMIC = other.DYNAMIC;
    TAG = other.TAG;
    CHECK1 = other.CHECK1;
    DATA = other.DATA;
    CHECK2 = other.CHECK2;
    SIZE = other.SIZE;
    CHECK3 = other.CHECK3;
    LENGTH = other.LENGTH;
    RANGE = other.RANGE;
    SORTED = other.SORTED;
    other.__SAFEDONE();
    return *this;
}

void TPOLY::INIT(NAT count, NAT size) {
    if (count < 1 && size > 0) return INIT(size);
    if (!FRESH()) {
        const bool reusable = MAXIMAL > 0 && LENGTH == count && SIZE == size;
        KIND = CHECK1 = CHECK2 = CHECK3 = 0;
        TAG = {};
        if (reusable) return NEWLENGTH(count);
    }
    // Deliberate: INIT with another count or size abandons the old block without freeing it.
    // Whoever wants the memory back calls DONE first, as every typed list does.
    __SAFEDONE();
    if (size < 1) return;
    SIZE = size;
    DATA = GUARD = NEW_BLOCK(count, size);
    if (!DATA) {
        WRITELN("  Wrong static allocation (Out of memory?)! Create empty field.");
        return;
    }
    MAXIMAL = count;
    SETLENGTH(count);
}

void TPOLY::INIT(NAT size) {
    if (!FRESH()) {
        KIND = CHECK1 = CHECK2 = CHECK3 = 0;
        TAG = {};
        if (DYNAMIC > 0 && SIZE == size) return NEWLENGTH(0);
        DONE();
    }
    __SAFEDONE();
    if (size < 1) return;
    const NAT reserve = size > FIRST_RESERVE ? size : FIRST_RESERVE / size;
    DATA = GUARD = NEW_BLOCK(reserve, size);
    if (!DATA) {
        WRITELN("  Wrong dynamic allocation (Out of memory?)! Create empty field.");
        return;
    }
    SIZE = size;
    MAXIMAL = DYNAMIC = reserve;
    SORTED = true;
}

void TPOLY::DONE() {
    if (!FRESH()) {
        if (MAXIMAL >= 1 && MAXIMAL - DYNAMIC == LENGTH)
            RELEASE("Done");
        else
            LOG_BLOCK("Wrong counts, keep", MAXIMAL, SIZE);
    }
    __SAFEDONE();
}

void TPOLY::__SAFEDONE() {
    KIND = MAXIMAL = DYNAMIC = CHECK1 = CHECK2 = SIZE = CHECK3 = LENGTH = 0;
    TAG = {};
    GUARD = DATA = nullptr;
    RANGE = {};
    SORTED = false;
}

void TPOLY::RELEASE(const char *where) {
    if (CHECK1 != 0 || CHECK2 != 0 || CHECK3 != 0) return __CORRUPTMEMORY(where);
    LOG_BLOCK("Free", MAXIMAL, SIZE);
    FREE_BLOCK(DATA);
}

void TPOLY::__CORRUPTMEMORY(const char *where) const {
    WRITELN(std::string("  Corrupt memory (") + where + " size=" + std::to_string(HEAP_SIZE(DATA)) +
            " and should=" + std::to_string(BLOCK_SIZE(MAXIMAL, SIZE)) + ")!");
}

void TPOLY::EMPTY_BLOCK() {
    GUARD = DATA = nullptr;
    MAXIMAL = DYNAMIC = LENGTH = 0;
    RANGE = {};
    SORTED = true;
}

void TPOLY::NEWLENGTH(NAT count) {
    if (SIZE < 1) {
        WRITELN("  Corrupt memory packet (size=" + std::to_string(SIZE) + ")!");
        return DONE();
    }
    if (FRESH()) { // never filled, or freed by a length of 0
        if (count < 1) return;
        const NAT kind = KIND;
        INIT(count, SIZE);
        KIND = kind;
        return;
    }
    if (count < 1) return NEWLENGTH_ZERO();
    if (DYNAMIC == 0) return NEWLENGTH_STATIC(count);
    if (count >= MAXIMAL) return NEWLENGTH_DYNAMIC(count);
    // Elements behind LENGTH are zero at any time, so only the dropped ones need to be cleared.
    if (count < LENGTH) std::memset(AT(DATA, count * SIZE), 0, BYTES(LENGTH - count, SIZE));
    SETLENGTH(count);
    DYNAMIC = MAXIMAL - count;
    SORTED = false;
}

void TPOLY::NEWLENGTH_ZERO() {
    if (DYNAMIC == 0) {
        RELEASE("Newlength-0");
        return EMPTY_BLOCK();
    }
    std::memset(DATA, 0, BYTES(LENGTH, SIZE));
    SETLENGTH(0);
    DYNAMIC = MAXIMAL;
    SORTED = true;
}

void TPOLY::NEWLENGTH_STATIC(NAT count) {
    SORTED = false;
    if (count == LENGTH || MOVE_BLOCK(count, count, "Newlength-static")) return;
    WRITELN("  Not enough Memory! Create empty field.");
    RELEASE("Newlength-static");
    EMPTY_BLOCK();
}

void TPOLY::NEWLENGTH_DYNAMIC(NAT count) {
    SORTED = false;
    const NAT reserve = std::max(DYNAMIC, RESERVE_STEP(count, BLOCK_SIZE(count, SIZE)));
    const NAT capacity = count > NATMAX - reserve ? NATMAX : count + reserve;
    if (MOVE_BLOCK(count, capacity, "Newlength-dynamic")) return;
    if (MOVE_BLOCK(count, count, "Newlength-dynamic")) {
        WRITELN("  Not enough Memory! Disable dynamic memory.");
        return;
    }
    WRITELN("  Not enough Memory! Create empty field.");
    RELEASE("Newlength-dynamic");
    EMPTY_BLOCK();
}

// Moves the elements into a block of `capacity`; false, and nothing changed, without memory.
bool TPOLY::MOVE_BLOCK(NAT count, NAT capacity, const char *where) {
    void *block = NEW_BLOCK(capacity, SIZE);
    if (!block) return false;
    std::memcpy(block, DATA, BYTES(std::min(count, LENGTH), SIZE));
    RELEASE(where);
    DATA = GUARD = block;
    MAXIMAL = capacity;
    DYNAMIC = capacity - count;
    SETLENGTH(count);
    return true;
}

bool TPOLY::EXTEND_BLOCK(NAT index) {
    if (DYNAMIC < 1) return false;
    NEWLENGTH(index);
    return INSIDE(index);
}

void TPOLY::ADDLENGTH(NAT count) {
    NAT sum = 0;
    if (__builtin_add_overflow(LENGTH, count, &sum)) sum = count < 0 ? 0 : NATMAX;
    NEWLENGTH(sum);
}

void TPOLY::GET(NAT index, void *target) const {
    if (INSIDE(index) && target) _GET(index, target);
}

void TPOLY::PUT(NAT index, const void *source) {
    if (index < 1) return;
    if ((index <= LENGTH || EXTEND(index)) && source) _PUT(index, source);
    SORTED = false;
}

void TPOLY::_GET(NAT index, void *target) const {
    std::memcpy(target, _INDEX(index), static_cast<std::size_t>(SIZE));
}

void TPOLY::_PUT(NAT index, const void *source) {
    std::memmove(_INDEX(index), source, static_cast<std::size_t>(SIZE));
}

void *TPOLY::_INDEX(NAT index) const { return AT(DATA, (index - 1) * SIZE); }

void TPOLY::GETPOS(NAT index, void *&position, NAT offset) const {
    position = INSIDE(index) ? AT(_INDEX(index), offset) : nullptr;
}

bool TPOLY::SWAP(TPOLY &other) {
    if (LENGTH != other.LENGTH || SIZE != other.SIZE) return false;
    // The capacity belongs to the block, so it goes with it; all else stays.
    std::swap(DATA, other.DATA);
    std::swap(GUARD, other.GUARD);
    std::swap(MAXIMAL, other.MAXIMAL);
    std::swap(DYNAMIC, other.DYNAMIC);
    return true;
}

void TPOLY::FLIP() {
    SORTED = false;
    for (NAT low = 1, high = LENGTH; low < high; ++low, --high) {
        char *a = AT(_INDEX(low), 0), *b = AT(_INDEX(high), 0);
        std::swap_ranges(a, a + SIZE, b);
    }
}

void TPOLY::REPLACE(const TPOLY &other) {
    if (this == &other || SIZE != other.SIZE || SIZE < 1) return;
    NEWLENGTH(other.LENGTH);
    if (LENGTH != other.LENGTH || LENGTH < 1) return;
    std::memcpy(DATA, other.DATA, BYTES(LENGTH, SIZE));
    SORTED = other.SORTED;
}

void TPOLY::REPLACE(NAT start, NAT count, const TPOLY &other) {
    if (SIZE != other.SIZE || SIZE < 1 || start < 1 || start > LENGTH + 1) return;
    TPOLY copy; // the other's elements, when it is this list itself
    if (this == &other && LENGTH > 0) {
        copy.INIT(LENGTH, SIZE);
        copy.REPLACE(other);
        if (copy.LENGTH != LENGTH) return;
    }
    const TPOLY &source = this == &other ? copy : other;
    const NAT replaced = std::clamp<NAT>(count, 0, LENGTH - start + 1);
    const NAT tail = LENGTH - (start - 1) - replaced;
    const NAT wanted = start - 1 + source.LENGTH + tail;
    const NAT tailOffset = (start - 1 + replaced) * SIZE;
    const NAT newTailOffset = (start - 1 + source.LENGTH) * SIZE;
    const bool grows = source.LENGTH > replaced;
    if (grows) NEWLENGTH(wanted);
    if (grows && LENGTH != wanted) return;
    if (tail > 0) std::memmove(AT(DATA, newTailOffset), AT(DATA, tailOffset), BYTES(tail, SIZE));
    if (source.LENGTH > 0)
        std::memcpy(AT(DATA, (start - 1) * SIZE), source.DATA, BYTES(source.LENGTH, SIZE));
    if (!grows) NEWLENGTH(wanted);
    SORTED = false;
}
} // namespace morvane
