#include "foundation/base/checksum.hpp"

#include <string>

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("CRC-32 of the check text") {
    CHECK(CRC32("123456789") == 0xCBF43926);
    CHECK(CRC32("") == 0);
    CHECK(CRC32UPDATE(CRC32("1234"), "56789", 5) == 0xCBF43926);
}

TEST_CASE("Adler-32 of the check text") {
    CHECK(ADLER32("Wikipedia") == 0x11E60398);
    CHECK(ADLER32("") == 1);
    CHECK(ADLER32UPDATE(ADLER32("Wiki"), "pedia", 5) == 0x11E60398);
}

TEST_CASE("Adler-32 does not overflow over many large bytes") {
    const std::string bytes(100000, '\xFF');
    std::uint64_t a = 1, b = 0;
    for (const char c : bytes) {
        a = (a + static_cast<unsigned char>(c)) % 65521;
        b = (b + a) % 65521;
    }
    CHECK(ADLER32(bytes) == (b << 16 | a));
}

TEST_CASE("bytes, words and halves of bytes") {
    CHECK(SWAP4(0x12345678) == 0x78563412);
    CHECK(GETNIBBLE(0xA5, 1) == 0x5);
    CHECK(GETNIBBLE(0xA5, 2) == 0xA);
    CHECK(GETNIBBLE(0xA5, 3) == 0);
    CHECK(GETNIBBLE(0xA5, 0) == 0);
    CHECK_FALSE(CHECK_ENDIAN());
}
