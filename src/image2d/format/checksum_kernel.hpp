#pragma once

#include "foundation/base/checksum.hpp"

// The two sums of a PNG file over many bytes. Both forms give the same numbers as CRC32UPDATE and
// ADLER32UPDATE.
namespace morvane {
struct CHECKSUM_KERNEL {
    std::uint32_t (*crc32)(std::uint32_t crc, const void *data, NAT length);
    std::uint32_t (*adler32)(std::uint32_t adler, const void *data, NAT length);
};
namespace plain {
inline constexpr CHECKSUM_KERNEL CHECKSUMS = {CRC32UPDATE, ADLER32UPDATE};
}
namespace avx2 {
// 64 bytes a step for the CRC, 32 for the other; needs carry-less multiplication too. The plain
// form where the system is built for other processors.
extern const CHECKSUM_KERNEL CHECKSUMS;
} // namespace avx2
const CHECKSUM_KERNEL &CHECKSUMS(); // of this processor
} // namespace morvane
