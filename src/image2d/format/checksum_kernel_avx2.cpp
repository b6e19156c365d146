#include "image2d/format/checksum_kernel.hpp"

#if defined(__x86_64__)
#include <algorithm>
#include <immintrin.h>

namespace morvane {
namespace {
__m128i LoadHalf(const BYTE *bytes) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i *>(bytes));
}

// 16 bytes carried over the distance that the constants stand for, which is what the bytes there
// must be added to (Gopal and others, Fast CRC computation using PCLMULQDQ, 2009).
__attribute__((target("pclmul"))) __m128i Carried(__m128i bytes, __m128i constants) {
    return _mm_xor_si128(_mm_clmulepi64_si128(bytes, constants, 0x00),
                         _mm_clmulepi64_si128(bytes, constants, 0x11));
}

__attribute__((target("pclmul"))) std::uint32_t Crc32(std::uint32_t crc, const void *data,
                                                      NAT length) {
    if (length < 64) return CRC32UPDATE(crc, data, length);
    const BYTE *bytes = static_cast<const BYTE *>(data), *end = bytes + length;
    const __m128i over64 = _mm_set_epi64x(0x1C6E41596, 0x154442BD4);
    const __m128i over16 = _mm_set_epi64x(0x0CCAA009E, 0x1751997D0);
    __m128i a = _mm_xor_si128(LoadHalf(bytes), _mm_cvtsi32_si128(static_cast<int>(~crc)));
    __m128i b = LoadHalf(bytes + 16), c = LoadHalf(bytes + 32), d = LoadHalf(bytes + 48);
    for (bytes += 64; end - bytes >= 64; bytes += 64) {
        a = _mm_xor_si128(Carried(a, over64), LoadHalf(bytes));
        b = _mm_xor_si128(Carried(b, over64), LoadHalf(bytes + 16));
        c = _mm_xor_si128(Carried(c, over64), LoadHalf(bytes + 32));
        d = _mm_xor_si128(Carried(d, over64), LoadHalf(bytes + 48));
    }
    b = _mm_xor_si128(Carried(a, over16), b);
    c = _mm_xor_si128(Carried(b, over16), c);
    d = _mm_xor_si128(Carried(c, over16), d);
    // These 16 bytes, begun with a register of 0, stand for all before them.
    BYTE rest[16];
    _mm_storeu_si128(reinterpret_cast<__m128i *>(rest), d);
    return CRC32UPDATE(CRC32UPDATE(0xFFFFFFFFU, rest, 16), bytes, end - bytes);
}

NAT Sum(__m256i numbers) {
    alignas(32) std::uint32_t values[8];
    _mm256_store_si256(reinterpret_cast<__m256i *>(values), numbers);
    NAT sum = 0;
    for (const std::uint32_t value : values)
        sum += value;
    return sum;
}

std::uint32_t Adler32(std::uint32_t adler, const void *data, NAT length) {
    constexpr NAT MODULUS = 65521;
    constexpr NAT STEPS = 1024; // of 32 bytes; the numbers below stay in 32 bits
    const __m256i weights =
        _mm256_setr_epi8(32, 31, 30, 29, 28, 27, 26, 25, 24, 23, 22, 21, 20, 19, 18, 17, 16, 15, 14,
                         13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1);
    const BYTE *bytes = static_cast<const BYTE *>(data);
    NAT first = adler & 0xFFFF, second = adler >> 16;
    for (; length >= 32;) {
        const NAT steps = std::min(length / 32, STEPS);
        __m256i sums = _mm256_setzero_si256(), earlier = sums, weighted = sums;
        for (NAT i = 0; i < steps; ++i, bytes += 32) {
            const __m256i now = _mm256_loadu_si256(reinterpret_cast<const __m256i *>(bytes));
            earlier = _mm256_add_epi32(earlier, sums);
            sums = _mm256_add_epi32(sums, _mm256_sad_epu8(now, _mm256_setzero_si256()));
            weighted =
                _mm256_add_epi32(weighted, _mm256_madd_epi16(_mm256_maddubs_epi16(now, weights),
                                                             _mm256_set1_epi16(1)));
        }
        second += 32 * (steps * first + Sum(earlier)) + Sum(weighted);
        first = (first + Sum(sums)) % MODULUS;
        second %= MODULUS;
        length -= 32 * steps;
    }
    return ADLER32UPDATE(static_cast<std::uint32_t>(second << 16 | first), bytes, length);
}
} // namespace

const CHECKSUM_KERNEL avx2::CHECKSUMS = {Crc32, Adler32};
} // namespace morvane
#else
namespace morvane {
const CHECKSUM_KERNEL avx2::CHECKSUMS = plain::CHECKSUMS;
} // namespace morvane
#endif
