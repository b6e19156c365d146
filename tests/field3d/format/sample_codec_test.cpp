#include "field3d/format/sample_codec.hpp"

#include <doctest/doctest.h>

#include <cmath>
#include <limits>
#include <vector>

using namespace morvane;

namespace {
// Voxels of samples of one type under a load filter; floats map from 0..1.
template <class VOXEL, class T>
std::vector<NAT> VOXELS_OF(NAT code, const std::vector<T> &samples, NAT offset = 0,
                           NAT factor = 0) {
    std::vector<typename CODEC_OUT<VOXEL>::TYPE> out(samples.size());
    const SAMPLE_MAP map{code, offset, factor, {0, 1}};
    const NAT count = static_cast<NAT>(samples.size() * sizeof(T)) / GETSAMPLEBYTES(code);
    GETCODEC<VOXEL>(code, GETRULE(offset, factor))(reinterpret_cast<const BYTE *>(samples.data()),
                                                   count, out.data(), map);
    return {out.begin(), out.begin() + count};
}
using LIST = std::vector<NAT>;
} // namespace

TEST_CASE("bytes keep their value in 8 and 16 bits and part at 127 in one") {
    const std::vector<BYTE> samples = {0, 127, 128, 255};
    CHECK(VOXELS_OF<WORD>(8, samples) == LIST{0, 127, 128, 255});
    CHECK(VOXELS_OF<BYTE>(8, samples) == LIST{0, 127, 128, 255});
    CHECK(VOXELS_OF<bool>(8, samples) == LIST{0, 0, 1, 1});
}

TEST_CASE("signed bytes move by 128 and part at 0") {
    const std::vector<std::int8_t> samples = {-128, 0, 1, 127};
    CHECK(VOXELS_OF<WORD>(-8, samples) == LIST{0, 128, 129, 255});
    CHECK(VOXELS_OF<BYTE>(-8, samples) == LIST{0, 128, 129, 255});
    CHECK(VOXELS_OF<bool>(-8, samples) == LIST{0, 0, 1, 1});
}

TEST_CASE("wider samples keep their high bits") {
    CHECK(VOXELS_OF<WORD>(16, std::vector<WORD>{0x1234}) == LIST{0x1234});
    CHECK(VOXELS_OF<BYTE>(16, std::vector<WORD>{0x1234}) == LIST{0x12});
    CHECK(VOXELS_OF<bool>(16, std::vector<WORD>{32767, 32768}) == LIST{0, 1});
    CHECK(VOXELS_OF<WORD>(-16, std::vector<std::int16_t>{-32768, -1, 0, 32767}) ==
          LIST{0, 32767, 32768, 65535});
    CHECK(VOXELS_OF<BYTE>(-16, std::vector<std::int16_t>{-32768, -1, 0}) == LIST{0, 127, 128});
    CHECK(VOXELS_OF<WORD>(32, std::vector<std::uint32_t>{0x12345678}) == LIST{0x1234});
    CHECK(VOXELS_OF<BYTE>(32, std::vector<std::uint32_t>{0x12345678}) == LIST{0x12});
    CHECK(VOXELS_OF<bool>(32, std::vector<std::uint32_t>{2147483647, 2147483648}) == LIST{0, 1});
    CHECK(VOXELS_OF<WORD>(-32, std::vector<std::int32_t>{-2147483647 - 1, 0}) == LIST{0, 32768});
    CHECK(VOXELS_OF<BYTE>(64, std::vector<std::uint64_t>{0x1234567800000000}) == LIST{0x12});
    CHECK(VOXELS_OF<WORD>(-64, std::vector<NAT>{NATMIN, 0, NATMAX}) == LIST{0, 32768, 65535});
    CHECK(VOXELS_OF<bool>(-64, std::vector<NAT>{NATMIN, 0, 1}) == LIST{0, 0, 1});
}

TEST_CASE("the filter takes the plain value: 0 1 passes it and clips") {
    CHECK(VOXELS_OF<BYTE>(16, std::vector<WORD>{7, 255, 256, 60000}, 0, 1) ==
          LIST{7, 255, 255, 255});
    CHECK(VOXELS_OF<WORD>(-16, std::vector<std::int16_t>{-5, 7}, 0, 1) == LIST{0, 7});
}

TEST_CASE("the filter adds, then multiplies, or divides by a negative factor") {
    const std::vector<std::int16_t> samples = {-12000, -11995};
    CHECK(VOXELS_OF<WORD>(-16, samples, 12000) == LIST{0, 5});
    CHECK(VOXELS_OF<WORD>(-16, samples, 12000, 10) == LIST{0, 50});
    CHECK(VOXELS_OF<WORD>(-16, samples, 12000, -2) == LIST{0, 2});
}

TEST_CASE("a filter on one bit keeps the threshold of the sample type") {
    CHECK(VOXELS_OF<bool>(8, std::vector<BYTE>{100, 130}, -3) == LIST{0, 0});
    CHECK(VOXELS_OF<bool>(8, std::vector<BYTE>{100, 130}, 0, 2) == LIST{1, 1});
    CHECK(VOXELS_OF<bool>(-8, std::vector<std::int8_t>{-1, 0}, 1) == LIST{0, 1});
}

TEST_CASE("the filter never overflows, whatever sample and factor") {
    CHECK(VOXELS_OF<WORD>(64, std::vector<std::uint64_t>{~std::uint64_t{0}}, NATMAX, NATMAX) ==
          LIST{65535});
    CHECK(VOXELS_OF<WORD>(-64, std::vector<NAT>{NATMIN}, NATMIN, NATMAX) == LIST{0});
    CHECK(VOXELS_OF<WORD>(-64, std::vector<NAT>{NATMAX}, 1, NATMIN) == LIST{1});
}

TEST_CASE("floats map their range onto the voxels, rounded with ties to even") {
    const std::vector<float> samples = {-1, 0, 0.5, 1, 2};
    CHECK(VOXELS_OF<BYTE>(1032, samples) == LIST{0, 0, 128, 255, 255});
    CHECK(VOXELS_OF<WORD>(1032, samples) == LIST{0, 0, 32768, 65535, 65535});
    CHECK(VOXELS_OF<bool>(1032, samples) == LIST{0, 0, 0, 1, 1}); // 0.5 rounds to the even 0
}

TEST_CASE("what is no number becomes 0, infinities the ends of the range") {
    const double none = std::numeric_limits<double>::quiet_NaN();
    const std::vector<double> samples = {none, REALMAX, -REALMAX};
    CHECK(VOXELS_OF<WORD>(1064, samples) == LIST{0, 65535, 0});
    CHECK(VOXELS_OF<WORD>(1064, samples, 0, 1) == LIST{0, 65535, 0});
    CHECK(VOXELS_OF<bool>(1064, samples, 0, 1) == LIST{0, 1, 0});
}

TEST_CASE("filtered floats are computed as reals, then limited and rounded") {
    const std::vector<float> samples = {2.25F, 2.5F, -7};
    CHECK(VOXELS_OF<BYTE>(1032, samples, 1) == LIST{3, 4, 0});
    CHECK(VOXELS_OF<BYTE>(1032, samples, 0, 10) == LIST{22, 25, 0});
    CHECK(VOXELS_OF<BYTE>(1032, samples, 0, -2) == LIST{1, 1, 0});
    CHECK(VOXELS_OF<bool>(1032, samples, 0, 1) == LIST{1, 1, 0});
}

TEST_CASE("80-bit floats are read without the processor's help") {
    // 1.0: mantissa 8000000000000000, exponent 3FFF; -0.5; infinity
    const std::vector<BYTE> samples = {0, 0, 0, 0, 0, 0, 0, 0x80, 0xFF, 0x3F, //
                                       0, 0, 0, 0, 0, 0, 0, 0x80, 0xFE, 0xBF, //
                                       0, 0, 0, 0, 0, 0, 0, 0x80, 0xFF, 0x7F};
    REAL values[3];
    GETDECODER<REAL>(1080)(samples.data(), 3, values);
    CHECK(values[0] == 1.0);
    CHECK(values[1] == -0.5);
    CHECK(std::isinf(values[2]));
    CHECK(VOXELS_OF<BYTE>(1080, samples) == LIST{255, 0, 255});
}

TEST_CASE("colours are the sum in 16 bits and the mean in 8, without alpha") {
    const std::vector<BYTE> samples = {10, 20, 31, 255, 255, 255, 255, 9};
    CHECK(VOXELS_OF<WORD>(2032, samples) == LIST{61, 765});
    CHECK(VOXELS_OF<BYTE>(2032, samples) == LIST{20, 255});
    const std::vector<WORD> words = {256, 512, 1024, 65535, 65535, 65535};
    CHECK(VOXELS_OF<WORD>(3024, words) == LIST{597, 65535});
    CHECK(VOXELS_OF<BYTE>(3024, words) == LIST{2, 255});
}

TEST_CASE("colours ignore the filter") {
    CHECK(VOXELS_OF<WORD>(2024, std::vector<BYTE>{10, 20, 31}, 1000, 7) == LIST{61});
}

TEST_CASE("a colour file loads into a 1-bit field as all false") {
    CHECK(VOXELS_OF<bool>(2024, std::vector<BYTE>{255, 255, 255}) == LIST{0});
    CHECK(VOXELS_OF<bool>(3032, std::vector<WORD>{65535, 65535, 65535, 65535}) == LIST{0});
}

TEST_CASE("each number of a sample is swapped on its own") {
    BYTE words[] = {1, 2, 3, 4, 5, 6};
    SWAPSAMPLES(3024, words, 1);
    CHECK(words[0] == 2);
    CHECK(words[5] == 5);
    SWAPSAMPLES(2024, words, 2);
    CHECK(words[0] == 2);
    BYTE real[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    SWAPSAMPLES(1080, real, 1);
    CHECK(real[0] == 10);
}

TEST_CASE("the sizes of a sample are those of its number and those of its bytes") {
    CHECK(GETCODEBYTES(3024) == 3);
    CHECK(GETSAMPLEBYTES(3024) == 6);
    CHECK(GETCODEBYTES(-16) == 2);
    CHECK(GETSAMPLEBYTES(1080) == 10);
    CHECK(GETSAMPLEBYTES(17) == 0);
    const bool known = GETCODEC<BYTE>(17, SAMPLE_RULE::SCALE) != nullptr;
    CHECK_FALSE(known);
}

TEST_CASE("families have their names in the progress line") {
    CHECK(GETFAMILY(8) == UTF16("Grey"));
    CHECK(GETFAMILY(-16) == UTF16("-Fullgrey"));
    CHECK(GETFAMILY(-64) == UTF16("-64Grey"));
    CHECK(GETFAMILY(3032) == UTF16("FullRGBA"));
    CHECK(GETFAMILY(2024) == UTF16("RGB"));
    CHECK(GETFAMILY(1064) == UTF16("64Float"));
}

TEST_CASE("decoded samples are plain numbers, limited to whole ones where those are wanted") {
    const std::vector<std::uint64_t> large = {~std::uint64_t{0}};
    NAT whole = 0;
    GETDECODER<NAT>(64)(reinterpret_cast<const BYTE *>(large.data()), 1, &whole);
    CHECK(whole == NATMAX);
    const float half = 2.5F;
    GETDECODER<NAT>(1032)(reinterpret_cast<const BYTE *>(&half), 1, &whole);
    CHECK(whole == 2);
}
