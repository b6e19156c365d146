#include "foundation/base/byte_scan.hpp"

namespace morvane {
void COPY_BYTES(char *to, const char *from, std::size_t count) {
    if (count > 0) std::memcpy(to, from, count);
}

void ZERO_BYTES(char *to, std::size_t count) { std::memset(to, 0, count); }
} // namespace morvane
