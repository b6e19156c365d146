#pragma once

#include "foundation/base/records.hpp"

#include <string_view>
#include <utility>

namespace morvane {
// A reference-counted, copy-on-write byte string that knows its length. The empty string is a null
// handle. Counts are not atomic: texts belong to the script's thread, workers use none. A string
// for which memory runs out is empty.
class STRING8 {
public:
    STRING8() = default;
    explicit STRING8(std::string_view bytes);
    STRING8(const STRING8 &other) : block(other.block) {
        if (block) ++block->count;
    }
    STRING8(STRING8 &&other) noexcept : block(std::exchange(other.block, nullptr)) {}
    STRING8 &operator=(const STRING8 &other) {
        if (other.block) ++other.block->count;
        Release();
        block = other.block;
        return *this;
    }
    STRING8 &operator=(STRING8 &&other) noexcept {
        std::swap(block, other.block);
        return *this;
    }
    ~STRING8() { Release(); }

    NAT LENGTH() const { return block ? block->length : 0; }
    // The bytes; null when empty.
    const char *DATA() const { return block ? block->Bytes() : nullptr; }
    std::string_view VIEW() const {
        return block ? std::string_view(block->Bytes(), static_cast<std::size_t>(block->length))
                     : std::string_view();
    }
    // The bytes, ours alone from here on; null when empty.
    char *UNIQUE();
    // Bytes behind the end; cheap when the string is ours alone. `bytes` may lie in the string.
    void APPEND(std::string_view bytes);
    // Zero planes of a usual text's length are shared and cost no allocation.
    static STRING8 FILLED(NAT length, char value);
    // Length bytes of any content, to be filled through UNIQUE.
    static STRING8 RAW(NAT length);
    // Whether every byte is 0, as in the high plane of plain text.
    bool ISZERO() const;
    // Owners of the block; 0 when empty.
    long COUNT() const { return block ? block->count : 0; }

    friend bool operator==(const STRING8 &a, const STRING8 &b) {
        return a.block == b.block || a.VIEW() == b.VIEW();
    }

private:
    struct BLOCK {
        long count;
        NAT length, capacity; // the bytes follow

        char *Bytes() { return reinterpret_cast<char *>(this + 1); }
    };
    static BLOCK *Allocate(NAT length, NAT capacity);
    static BLOCK *ZeroBlock(NAT length);
    static void Free(BLOCK *unused);
    struct FREE_LIST;
    void Release() {
        if (block && --block->count == 0) Free(block);
    }

    BLOCK *block = nullptr;
};
} // namespace morvane
