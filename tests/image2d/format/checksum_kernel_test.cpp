#include "image2d/format/checksum_kernel.hpp"

#include <string>
#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// All pairs of results over a text cut at the position, both forms, from given starts.
bool AreEqual(const CHECKSUM_KERNEL &kernel, const std::string &text, NAT cut) {
    const NAT rest = static_cast<NAT>(text.size()) - cut;
    const char *behind = text.data() + cut;
    const auto crc = kernel.crc32(kernel.crc32(0, text.data(), cut), behind, rest);
    const auto adler = kernel.adler32(kernel.adler32(1, text.data(), cut), behind, rest);
    return crc == CRC32(text) && adler == ADLER32(text);
}

std::string Bytes(NAT length, int factor) {
    std::string text;
    for (NAT i = 0; i < length; ++i)
        text += static_cast<char>(factor == 0 ? 255 : i * i % 251 * factor);
    return text;
}
} // namespace

TEST_CASE("the checksums of every processor equal the plain ones at every length and cut") {
    for (const CHECKSUM_KERNEL *kernel : {&CHECKSUMS(), &plain::CHECKSUMS}) {
        for (NAT length = 0; length <= 300; ++length)
            CHECK(AreEqual(*kernel, Bytes(length, 7), length / 3));
        for (NAT cut = 0; cut <= 200; ++cut)
            CHECK(AreEqual(*kernel, Bytes(1000, 3), cut));
    }
}

TEST_CASE("the checksums of long runs of the largest byte do not overflow") {
    for (const NAT length : {5552, 32 * 1024, 32 * 1024 + 31, 3000001})
        CHECK(AreEqual(CHECKSUMS(), Bytes(length, 0), 12345 % (length + 1)));
}
