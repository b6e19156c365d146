#include "foundation/base/random.hpp"

#include "foundation/base/number_text.hpp"
#include "script/engine/macro.hpp"
#include "support/capture.hpp"

#include <algorithm>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// The value that `expression` has in a script which runs with the given seed.
std::string DRAWN(std::string_view expression, std::uint64_t seed) {
    const CAPTURE console;
    TMACRO engine;
    engine.INIT();
    engine.USE_ALL();
    engine.verbose = false;
    engine.PUTCONSTANT("a", ""); // outlives the run
    RESTART_RANDOM(seed);
    engine.LOADTEXT("a := " + std::string(expression) + "\n");
    engine.SINGLERUN();
    return GETUTF8(engine.GETCONSTANTVALUE("a"));
}

bool INSIDE(REAL value, REAL low, REAL high) { return low <= value && value <= high; }
} // namespace

TEST_CASE("the same seed draws the same numbers, another seed others") {
    for (const char *word : {"random", "random4.full", "random.rgba", "random.range 0 1e15"}) {
        CHECK(DRAWN(word, 5) == DRAWN(word, 5));
        CHECK(DRAWN(word, 5) != DRAWN(word, 6));
    }
}

TEST_CASE("two draws of one script differ") {
    const CAPTURE console;
    TMACRO engine;
    engine.INIT();
    engine.USE_ALL();
    engine.verbose = false;
    engine.PUTCONSTANT("a", ""); // outlives the run
    engine.PUTCONSTANT("b", "");
    engine.LOADTEXT("a := random\nb := random\n");
    engine.SINGLERUN();
    CHECK(GETUTF8(engine.GETCONSTANTVALUE("a")) != GETUTF8(engine.GETCONSTANTVALUE("b")));
}

TEST_CASE("random.range draws every whole number of its range and no other") {
    bool isSeen[4] = {};
    for (std::uint64_t seed = 0; seed < 100; ++seed) {
        const NAT value = GETNAT(DRAWN("random.range 2 5", seed));
        REQUIRE(value >= 2);
        REQUIRE(value <= 5);
        isSeen[value - 2] = true;
    }
    for (const bool seen : isSeen)
        CHECK(seen);
}

TEST_CASE("the ends of random.range may stand in any order") {
    for (std::uint64_t seed = 0; seed < 20; ++seed)
        CHECK(DRAWN("random.range 5 2", seed) == DRAWN("random.range 2 5", seed));
}

TEST_CASE("random.range between broken ends draws the whole numbers between them") {
    for (std::uint64_t seed = 0; seed < 20; ++seed)
        CHECK(DRAWN("random.range 1.2 2.9", seed) == "2");
}

TEST_CASE("random.range of one number gives it") {
    CHECK(DRAWN("random.range 7 7", 1) == "7");
    CHECK(DRAWN("random.range.nat -7 -7", 1) == "-7");
}

TEST_CASE("random.range.nat covers the whole 64-bit range") {
    bool isNegative = false, isPositive = false;
    for (std::uint64_t seed = 0; seed < 40; ++seed) {
        const std::string value =
            DRAWN("random.range.nat -9223372036854775808 9223372036854775807", seed);
        (value.starts_with("-") ? isNegative : isPositive) = true;
        CHECK(value.size() > 10);
    }
    CHECK(isNegative);
    CHECK(isPositive);
}

TEST_CASE("a wrong count of random.range is reported") {
    CAPTURE console;
    TMACRO engine;
    engine.INIT();
    engine.USE_ALL();
    engine.verbose = false;
    engine.LOADTEXT("a := random.range 1\n", "test.macro");
    engine.SINGLERUN();
    CHECK(console.CONTAINS("Parameter error! Please use 2 parameters in line 1 (test.macro).\n"));
}

TEST_CASE("random numbers lie between 0 and 1, the full ones between -1 and 1") {
    bool isNegative = false;
    for (std::uint64_t seed = 0; seed < 50; ++seed) {
        const REAL number = GETREAL(DRAWN("random", seed));
        CHECK(INSIDE(number, 0, 1));
        const HYPER four = GETHYPER(DRAWN("random4", seed));
        CHECK((INSIDE(four.x, 0, 1) && INSIDE(four.y, 0, 1) && INSIDE(four.z, 0, 1) &&
               INSIDE(four.w, 0, 1)));
        const REAL full = GETREAL(DRAWN("random.full", seed));
        CHECK(INSIDE(full, -1, 1));
        if (full < 0) isNegative = true;
    }
    CHECK(isNegative);
}

TEST_CASE("random2, random3 and random4 give as many components") {
    const auto commas = [](const std::string &text) {
        return std::count(text.begin(), text.end(), ',');
    };
    for (const char *tail : {"", ".full"}) {
        CHECK(commas(DRAWN("random2" + std::string(tail), 3)) == 1);
        CHECK(commas(DRAWN("random3" + std::string(tail), 3)) == 2);
        CHECK(commas(DRAWN("random4" + std::string(tail), 3)) == 3);
    }
}

TEST_CASE("whole random numbers have the size named") {
    NAT largestByte = 0, largestWord = 0;
    for (std::uint64_t seed = 0; seed < 100; ++seed) {
        largestByte = std::max(largestByte, GETNAT(DRAWN("random.byte", seed)));
        largestWord = std::max(largestWord, GETNAT(DRAWN("random.word", seed)));
        CHECK(GETNAT(DRAWN("random.gray", seed)) <= 255);
        CHECK(GETNAT(DRAWN("random.fullgray", seed)) <= 65535);
    }
    CHECK(largestByte <= 255);
    CHECK(largestByte > 200);
    CHECK(largestWord <= 65535);
    CHECK(largestWord > 255);
}

TEST_CASE("random.rgb has three whole components, random.rgba four") {
    const VECTORNAT colour = GETVECTORNAT(DRAWN("random.rgb", 9));
    CHECK(DRAWN("random.rgb", 9) == GETUTF8(GETSTRING(colour)));
    const HYPERNAT full = GETHYPERNAT(DRAWN("random.rgba", 9));
    CHECK(DRAWN("random.rgba", 9) == GETUTF8(GETSTRING(full)));
}
