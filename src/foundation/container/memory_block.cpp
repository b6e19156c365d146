#include "foundation/container/memory_block.hpp"

#include "foundation/console/console.hpp"
#include "foundation/console/log.hpp"

#include <cstdint>
#include <cstdlib>
#include <limits>
#include <malloc.h>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

namespace morvane {
namespace {
constexpr NAT BLOCK_LIMIT = std::numeric_limits<std::ptrdiff_t>::max();

// The console belongs to the first thread of the process; workers must not touch it.
bool IS_FIRST_THREAD() {
    thread_local const bool isFirst = getpid() == gettid();
    return isFirst;
}

// Large blocks in large pages: a volume that a file fills costs a fault for 2 MiB, not for 4 KiB.
void TAKE_LARGE_PAGES(void *block, std::size_t bytes) {
    constexpr std::size_t PAGE = std::size_t{2} << 20;
    if (bytes < 4 * PAGE) return;
    const auto start = reinterpret_cast<std::uintptr_t>(block);
    const std::uintptr_t first = (start + PAGE - 1) / PAGE * PAGE,
                         last = (start + bytes) / PAGE * PAGE;
    madvise(static_cast<char *>(block) + (first - start), last - first, MADV_HUGEPAGE);
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
    if (block) TAKE_LARGE_PAGES(block, static_cast<std::size_t>(bytes));
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
