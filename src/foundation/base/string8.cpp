#include "foundation/base/string8.hpp"

#include <algorithm>
#include <array>
#include <cstring>
#include <new>

namespace morvane {
namespace {
constexpr NAT SHARED_ZERO_LENGTH = 512; // zero planes up to here are shared
constexpr NAT LONGEST = NAT{1} << 40;   // no text is longer; keeps sizes from overflowing

std::size_t Size(NAT length) { return static_cast<std::size_t>(length); }
} // namespace

// Freed blocks of one small capacity, kept for the next text: a script line makes and drops many,
// and this halves their price. One list a thread.
struct STRING8::FREE_LIST {
    static constexpr NAT CAPACITY = 40;
#ifdef __SANITIZE_ADDRESS__
    static constexpr int MOST = 0; // the sanitizer shall see every block
#else
    static constexpr int MOST = 256;
#endif
    struct LINK {
        LINK *next;
    };
    LINK *first = nullptr;
    int count = 0;
    bool closed = false; // the thread ends: later texts free their blocks themselves

    constexpr FREE_LIST() = default;
    ~FREE_LIST() {
        closed = true;
        while (void *memory = Take())
            ::operator delete(memory);
    }
    void *Take() {
        if (!first) return nullptr;
        --count;
        return std::exchange(first, first->next);
    }
    bool Keep(void *memory) {
        if (closed || count == MOST) return false;
        first = new (memory) LINK{first};
        ++count;
        return true;
    }
    static FREE_LIST &Mine() {
        static thread_local constinit FREE_LIST list;
        return list;
    }
};

STRING8::BLOCK *STRING8::Allocate(NAT length, NAT capacity) {
    if (length < 1 || capacity < length || capacity > LONGEST) return nullptr;
    void *memory = nullptr;
    if (capacity <= FREE_LIST::CAPACITY) {
        capacity = FREE_LIST::CAPACITY;
        memory = FREE_LIST::Mine().Take();
    }
    if (!memory) memory = ::operator new(sizeof(BLOCK) + Size(capacity), std::nothrow);
    return memory ? new (memory) BLOCK{1, length, capacity} : nullptr;
}

void STRING8::Free(BLOCK *unused) {
    if (unused->capacity == FREE_LIST::CAPACITY && FREE_LIST::Mine().Keep(unused)) return;
    ::operator delete(unused);
}

// One immortal block for each length: the table itself is an owner, so no text ever frees it and
// UNIQUE always copies it.
STRING8::BLOCK *STRING8::ZeroBlock(NAT length) {
    static std::array<BLOCK *, SHARED_ZERO_LENGTH + 1> zeroBlocks{};
    BLOCK *&zero = zeroBlocks[Size(length)];
    if (!zero && (zero = Allocate(length, length))) std::memset(zero->Bytes(), 0, Size(length));
    return zero;
}

STRING8::STRING8(std::string_view bytes)
    : block(Allocate(static_cast<NAT>(bytes.size()), static_cast<NAT>(bytes.size()))) {
    if (block) std::memcpy(block->Bytes(), bytes.data(), bytes.size());
}

STRING8 STRING8::RAW(NAT length) {
    STRING8 result;
    result.block = Allocate(length, length);
    return result;
}

STRING8 STRING8::FILLED(NAT length, char value) {
    STRING8 result;
    if (value == 0 && length >= 1 && length <= SHARED_ZERO_LENGTH) {
        result.block = ZeroBlock(length);
        if (result.block) ++result.block->count;
        return result;
    }
    result.block = Allocate(length, length);
    if (result.block) std::memset(result.block->Bytes(), value, Size(length));
    return result;
}

char *STRING8::UNIQUE() {
    if (!block) return nullptr;
    if (block->count > 1) *this = STRING8(VIEW());
    return block ? block->Bytes() : nullptr;
}

void STRING8::APPEND(std::string_view bytes) {
    if (bytes.empty()) return;
    const NAT added = static_cast<NAT>(bytes.size()), length = LENGTH();
    if (block && block->count == 1 && block->capacity - length >= added) {
        std::memcpy(block->Bytes() + length, bytes.data(), bytes.size());
        block->length = length + added;
        return;
    }
    if (added > LONGEST - length) return *this = STRING8(), void();
    STRING8 longer;
    longer.block = Allocate(length + added, length + std::max(added, length / 2));
    if (longer.block) {
        if (length > 0) std::memcpy(longer.block->Bytes(), DATA(), Size(length));
        std::memcpy(longer.block->Bytes() + length, bytes.data(), bytes.size());
    }
    *this = std::move(longer);
}

bool STRING8::ISZERO() const {
    if (!block) return true;
    const NAT length = block->length;
    if (length <= SHARED_ZERO_LENGTH && block == ZeroBlock(length)) return true;
    const char *bytes = block->Bytes();
    return bytes[0] == 0 && std::memcmp(bytes, bytes + 1, Size(length - 1)) == 0;
}
} // namespace morvane
