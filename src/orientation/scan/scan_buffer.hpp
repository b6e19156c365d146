#pragma once

#include "foundation/container/memory_block.hpp"

#include <utility>

namespace morvane {
// Scratch memory of a scan: zero elements, counted from 0; freed with the object.
template <class T> class SCAN_BUFFER {
public:
    SCAN_BUFFER() = default;
    SCAN_BUFFER(const SCAN_BUFFER &) = delete;
    SCAN_BUFFER &operator=(const SCAN_BUFFER &) = delete;
    ~SCAN_BUFFER() { FREE_BLOCK(block); }

    // False, and an empty buffer, when memory runs out.
    [[nodiscard]] bool INIT(NAT count) {
        FREE_BLOCK(std::exchange(block, nullptr));
        block = NEW_BLOCK(count, static_cast<NAT>(sizeof(T)));
        return block != nullptr;
    }
    T *DATA() const { return static_cast<T *>(block); }
    T &operator[](NAT offset) const { return DATA()[offset]; }

private:
    void *block = nullptr;
};
} // namespace morvane
