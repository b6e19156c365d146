#pragma once

#include "foundation/base/records.hpp"

// The heap below the containers, the only place that asks the C library for blocks.
namespace morvane {
// Bytes of `count` elements of `size`; NATMAX when the product or an argument is out of range.
NAT BLOCK_SIZE(NAT count, NAT size);
// A block of zero bytes; null when memory runs out, the product overflows, or nothing is asked for.
[[nodiscard]] void *NEW_BLOCK(NAT count, NAT size);
void FREE_BLOCK(void *block);
// The block's real size in bytes, as the heap reports it; at least what was asked for.
NAT HEAP_SIZE(void *block);
// Writes a line of the log file alone, when one is open. Silent on worker threads.
void LOG_BLOCK(const char *what, NAT count, NAT size);
} // namespace morvane
