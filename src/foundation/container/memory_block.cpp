#include "foundation/container/memory_block.hpp"

#include "foundation/console/console.hpp"
#include "foundation/console/log.hpp"

#include <cstdlib>
#include <limits>
#include <malloc.h>
#include <string>
#include <unistd.h>

namespace morvane {
namespace {
constexpr NAT BLOCK_LIMIT = std::numeric_limits<std::ptrdiff_t>::max();

// The console belongs to the first thread of the process; workers must not touch it.
bool IS_FIRST_THREAD() {
    thread_local const bool isFirst = getpid() == gettid();
    return isFirst;
}
} // namespace

NAT BLOCK_SIZE(NAT count, NAT size) {
    NAT bytes = 0;
    if (count < 0 || size < 0 || __builtin_mul_overflow(count, size, &bytes)) return NATMAX;
    return bytes;
}

void *NEW_BLOCK(NAT count, NAT size) {
    const NAT bytes = BLOCK_SIZE(count, size);
    if (bytes < 1 || bytes >= BLOCK_LIMIT) return nullptr;
    void *block = std::calloc(static_cast<std::size_t>(count), static_cast<std::size_t>(size));
    LOG_BLOCK(block ? "Allocate" : "No memory for", count, size);
    return block;
}

void FREE_BLOCK(void *block) { std::free(block); }

NAT HEAP_SIZE(void *block) { return static_cast<NAT>(malloc_usable_size(block)); }

void LOG_BLOCK(const char *what, NAT count, NAT size) {
    if (!IS_FIRST_THREAD() || !LOGFILE) return;
    WRITELOG(std::string("  ") + what + " memory " + std::to_string(BLOCK_SIZE(count, size)) +
             " bytes (" + std::to_string(count) + " x " + std::to_string(size) + ").\n");
}
} // namespace morvane
