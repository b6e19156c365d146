#include "foundation/base/random.hpp"

#include <set>
#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
using WORDS = std::array<std::uint32_t, 4>;

std::vector<std::uint64_t> Draw(std::uint64_t command, std::uint64_t part) {
    RANDOM_STREAM stream(command, part);
    std::vector<std::uint64_t> drawn;
    for (int i = 0; i < 10; ++i)
        drawn.push_back(stream.NEXT64());
    return drawn;
}
} // namespace

TEST_CASE("the generator gives its published test vectors") {
    CHECK(PHILOX({0, 0, 0, 0}, {0, 0}) == WORDS{0x6627e8d5, 0xe169c58d, 0xbc57ac4c, 0x9b00dbd8});
    CHECK(PHILOX({~0U, ~0U, ~0U, ~0U}, {~0U, ~0U}) ==
          WORDS{0x408f276d, 0x41c83b0e, 0xa20bc7c6, 0x6d5451fd});
    CHECK(PHILOX({0x243f6a88, 0x85a308d3, 0x13198a2e, 0x03707344}, {0xa4093822, 0x299f31d0}) ==
          WORDS{0xd16cfe09, 0x94fdcceb, 0x5001e420, 0x24126ea1});
}

TEST_CASE("a stream starts with the generator's words at its counter") {
    RESTART_RANDOM(0);
    RANDOM_STREAM stream(0, 0);
    CHECK(stream.NEXT32() == 0x6627e8d5);
    CHECK(stream.NEXT32() == 0xe169c58d);
    CHECK(stream.NEXT64() == 0x9b00dbd8bc57ac4c);
    CHECK(stream.NEXT32() == PHILOX({1, 0, 0, 0}, {0, 0})[0]);
}

TEST_CASE("the same seed, command and part give the same numbers, any other gives others") {
    RESTART_RANDOM(5);
    const auto first = Draw(1, 1), part = Draw(1, 2), command = Draw(2, 1);
    CHECK(Draw(1, 1) == first);
    RESTART_RANDOM(6);
    const auto seed = Draw(1, 1);
    RESTART_RANDOM(5);
    CHECK(Draw(1, 1) == first);
    CHECK(std::set{first, part, command, seed, Draw(std::uint64_t{1} << 32, 1),
                   Draw(1, std::uint64_t{1} << 32)}
              .size() == 6);
}

TEST_CASE("the numbers of the commands run on until the generator is restarted") {
    RESTART_RANDOM(7);
    CHECK(NEXT_RANDOM_COMMAND() == 1);
    CHECK(NEXT_RANDOM_COMMAND() == 2);
    RESTART_RANDOM(7);
    CHECK(NEXT_RANDOM_COMMAND() == 1);
    CHECK(RANDOM_SEED == 7);
}

TEST_CASE("fractions lie in [0, 1) and fill it evenly") {
    RANDOM_STREAM stream(3, 4);
    std::array<int, 10> counts{};
    for (int i = 0; i < 10000; ++i) {
        const REAL f = stream.FRACTION();
        REQUIRE(f >= 0);
        REQUIRE(f < 1);
        ++counts[static_cast<std::size_t>(f * 10)];
    }
    for (const int count : counts) // 1000 expected, standard deviation 30
        CHECK((count > 850 && count < 1150));
}

TEST_CASE("BELOW gives every number below n and no other") {
    RANDOM_STREAM stream(3, 5);
    std::set<NAT> seen;
    for (int i = 0; i < 1000; ++i)
        seen.insert(stream.BELOW(7));
    CHECK(seen == std::set<NAT>{0, 1, 2, 3, 4, 5, 6});
    CHECK(stream.BELOW(1) == 0);
    CHECK(stream.BELOW(0) == 0);
    CHECK(stream.BELOW(-3) == 0);
    CHECK(stream.BELOW(NATMAX) >= 0);
}

TEST_CASE("two seeds of the system differ") { CHECK(SYSTEM_SEED() != SYSTEM_SEED()); }
