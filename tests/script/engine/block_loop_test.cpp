#include "script/engine/script_runner.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
const std::string COUNTERS = "list for.length for.rest for.count for.relative\nend\n";
} // namespace

TEST_CASE("for 0 skips its block and takes the line behind its end") {
    CHECK(RUN_SCRIPT("for 0\nprint no\nfor 2\nend\nend\nprint a\n") == "a\n");
}

TEST_CASE("for n counts from one") {
    CHECK(RUN_SCRIPT("for 4\n" + COUNTERS) ==
          "0[4]0[3]0[1]0[0.25]\n0[4]0[2]0[2]0[0.5]\n0[4]0[1]0[3]0[0.75]\n0[4]0[0]0[4]0[1]\n");
}

TEST_CASE("for 3 sees for.count 1, 2, 3 and for.rest 2, 1, 0") {
    CHECK(RUN_SCRIPT("for 3\nprint for.count \" \" for.rest\nend\n") == "1 2\n2 1\n3 0\n");
}

TEST_CASE("for with a negative number counts down from minus one") {
    CHECK(RUN_SCRIPT("for -2\n" + COUNTERS) == "0[2]0[1]0[-1]0[0.5]\n0[2]0[0]0[-2]0[1]\n");
}

TEST_CASE("for rounds its numbers up") {
    CHECK(RUN_SCRIPT("for 1.2\nprint for.count\nend\nfor -0.5\nprint no\nend\n") == "1\n2\n");
    CHECK(RUN_SCRIPT("for 1.5 2.5\nprint for.count\nend\n") == "2\n3\n");
}

TEST_CASE("for a b counts up or down") {
    CHECK(RUN_SCRIPT("for 3 3\n" + COUNTERS) == "0[1]0[-2]0[3]0[1]\n");
    CHECK(RUN_SCRIPT("for 2 1\n" + COUNTERS) == "0[2]0[0]0[2]0[0.5]\n0[2]0[1]0[1]0[1.5]\n");
}

TEST_CASE("for.relative of a range is 1 / length plus the distance from its start") {
    CHECK(RUN_SCRIPT("for 2 5\nprint for.length \" \" for.relative\nend\n") ==
          "4 0.25\n4 1.25\n4 2.25\n4 3.25\n");
}

TEST_CASE("for.rest of a range is its length minus the counter, below zero too") {
    CHECK(RUN_SCRIPT("for 4 6\nprint for.rest\nend\n") == "-1\n-2\n-3\n");
}

TEST_CASE("for a s b counts in real steps") {
    CHECK(RUN_SCRIPT("for 0 0.5 1\n" + COUNTERS) ==
          "0[4]0[]0[0]0[]\n0[4]0[]0[0.5]0[]\n0[4]0[]0[1]0[]\n");
    CHECK(RUN_SCRIPT("for 3 2 0\nprint for.count\nend\nprint a\n") == "3\n1\na\n");
    CHECK(RUN_SCRIPT("for 0 -1 2\nprint for.count\nend\n") == "0\n1\n2\n");
}

TEST_CASE("for a 0 b skips its block") {
    CHECK(RUN_SCRIPT("for 1 0 5\nprint no\nend\nprint a\n") == "a\n");
}

TEST_CASE("for needs one to three parameters") {
    for (const char *line : {"for", "for 1 2 3 4"})
        CHECK(RUN_SCRIPT(std::string(line) + "\nend\n") ==
              "Parameter error! Please use min. one parameter in line 1 (m).\n");
}

TEST_CASE("the ends of the number range do not overflow") {
    const std::string largest = "9223372036854775807", script = "print for.count\nstop\nend\n";
    CHECK(RUN_SCRIPT("for " + largest + "\n" + script).starts_with("1\n"));
    CHECK(RUN_SCRIPT("for -1e300\n" + script).starts_with("-1\n"));
    CHECK(
        RUN_SCRIPT("for -1e300 1e300\nprint for.length\nstop\nend\n").starts_with(largest + "\n"));
    CHECK(
        RUN_SCRIPT("for 1e300 -1e300\nprint for.length\nstop\nend\n").starts_with(largest + "\n"));
    CHECK(RUN_SCRIPT("for 0 1e-300 1\nprint for.length\nstop\nend\n").starts_with(largest + "\n"));
    CHECK(RUN_SCRIPT("for.part " + largest + " " + largest + " " + largest +
                     "\nprint for.count\nend\n") == largest + "\n");
}

TEST_CASE("counters of an inner loop hide those of the outer one until its end") {
    CHECK(RUN_SCRIPT(
              "for 2\nfor 5 5\nprint for.count\nend\nprint for.count\nend\nprint for.count\n") ==
          "5\n1\n5\n2\n0\n");
}

TEST_CASE("while 0 skips its block") {
    CHECK(RUN_SCRIPT("while 0\nprint no\nend\nprint a\n") == "a\n");
}

TEST_CASE("while evaluates its line before each pass") {
    CHECK(RUN_SCRIPT("a := 3\nwhile a 1\nprint a condition\na -= a 1\nend\nprint a condition\n") ==
          "31\n21\n11\n00\n");
}

TEST_CASE("while sets condition to 0 for the skipped pass") {
    SCRIPT_RUNNER runner;
    static std::string seen;
    seen.clear();
    runner.engine.PUTLAMBDA("see", [](TMACRO *e) {
        seen += GETUTF8(e->GETCONSTANTVALUE("condition"));
        e->COMMAND_RESULT = "0";
    });
    runner.RUN("while 0\nhalt see\nend\n");
    CHECK(seen == "00");
}

TEST_CASE("while without a parameter needs one") {
    CHECK(RUN_SCRIPT("while\nend\n") ==
          "Parameter error! Please use min. one parameter in line 1 (m).\n");
}

TEST_CASE("a while that fails later names the current line") {
    CHECK(RUN_SCRIPT("a := 1\nwhile @a\na := \"\"\nend\n") ==
          "Parameter error! Please use min. one parameter in line 4 (m).\n");
}

TEST_CASE("repeat with until 1 runs its block once") {
    CHECK(RUN_SCRIPT("repeat\nprint a condition\nuntil 1\nprint b\n") == "a1\nb\n");
}

TEST_CASE("repeat runs until every number is one or more") {
    CHECK(RUN_SCRIPT("a := -1\nb := -2\nrepeat\na += a 1\nb += b 1\nprint a b\nuntil a @b\n") ==
          "0-1\n10\n21\n");
    CHECK(RUN_SCRIPT("a := -2\nrepeat\na += a 1\nprint a\nuntil a\nprint b\n") == "-1\n0\n1\nb\n");
}

TEST_CASE("repeat without a condition needs one parameter") {
    CHECK(RUN_SCRIPT("repeat\nprint a\nend\nprint b\n") ==
          "a\nParameter error! Please use min. one parameter in line 3 (m).\n");
}

TEST_CASE("until is evaluated when its block has been left") {
    // A whole name is replaced inside the block, the @ form only behind it.
    CHECK(RUN_SCRIPT("repeat\ndone := 1\nuntil done\nprint a\n") == "a\n");
    CHECK(RUN_SCRIPT("n := 0\nrepeat\ndone := 1\nn += n 1\nif n\nifbigger n 3\nthen break\n"
                     "until @done\nprint a\n") ==
          "In line 7 (m).\nScript break. Terminate everything.\n");
}

TEST_CASE("break leaves all loops and ends the script") {
    CHECK(RUN_SCRIPT("for 3\nfor 3\nprint a\nbreak\nend\nend\nprint b\n") ==
          "a\nIn line 4 (m).\nScript break. Terminate everything.\n");
}

TEST_CASE("for.part runs its part of the range") {
    const std::string body = "\nprint for.count\nend\nprint end\n";
    CHECK(RUN_SCRIPT("for.part 10 1 3" + body) == "1\n2\n3\nend\n");
    CHECK(RUN_SCRIPT("for.part 10 2 3" + body) == "4\n5\n6\nend\n");
    CHECK(RUN_SCRIPT("for.part 10 3 3" + body) == "7\n8\n9\n10\nend\n");
    CHECK(RUN_SCRIPT("for.part 2 1 3" + body) == "end\n");
    CHECK(RUN_SCRIPT("for.part 2 3 3" + body) == "1\n2\nend\n");
}

TEST_CASE("the share of a part is named for.relativ") {
    CHECK(RUN_SCRIPT("for.part 4 2 2\nlist for.length for.count for.relativ for.relative\nend\n") ==
          "0[2]0[3]0[0.5]0[0]\n0[2]0[4]0[1.5]0[0]\n");
}

TEST_CASE("for.part with a part that is not above zero does nothing, not even skip its block") {
    CHECK(RUN_SCRIPT("for.part 10 0 3\nprint once\nend\nprint no\n") == "once\n");
}

TEST_CASE("for.part needs three parameters") {
    for (const char *line : {"for.part 1 2", "for.part 1 2 3 4"})
        CHECK(RUN_SCRIPT(std::string(line) + "\nend\n") ==
              "Parameter error! Please use min. 3 parameters in line 1 (m).\n");
}

TEST_CASE("for.random runs over all values once") {
    const std::string shown = RUN_SCRIPT(
        "for.random 5\nseen[@for.count] := 1\nprint for.length for.rest \" \" for.relative\nend\n");
    CHECK(shown == "54 0.2\n53 0.4\n52 0.6\n51 0.8\n50 1\n");
    CHECK(RUN_SCRIPT("sum1 := 0\nfor.random 2 5\nsum1 += sum1 for.count\nend\nprint sum1\n") ==
          "14\n");
    CHECK(RUN_SCRIPT("p := 1\nfor.random 5 3\np *= p for.count\nend\nprint p\n") == "60\n");
}

TEST_CASE("for.random below one skips its block") {
    CHECK(RUN_SCRIPT("for.random 0\nprint no\nend\nprint a\n") == "a\n");
    CHECK(RUN_SCRIPT("for.random -3\nprint no\nend\nprint a\n") == "a\n");
    CHECK(RUN_SCRIPT("for.random\nend\n") ==
          "Parameter error! Please use min. one parameter in line 1 (m).\n");
}

TEST_CASE("for.random of more values than memory holds is refused") {
    CHECK(RUN_SCRIPT("for.random 1e18\nend\n") ==
          "Error (too many random values) in line 1 (m)!\n");
}

TEST_CASE("parallel alone behaves as for") {
    CHECK(RUN_SCRIPT("parallel 2\nprint for.count\nend\nprint a\n") == "1\n2\na\n");
}

TEST_CASE("parallel in a group runs the iterations of its member") {
    SCRIPT_RUNNER runner;
    runner.engine.parallelPosition = {1, 3};
    CHECK(runner.RUN(
              "parallel 6\nlist parallel.length parallel.count parallel.relativ\nend\nprint a\n") ==
          "0[6]0[1]0[0.1666666666666667]\n0[6]0[4]0[0.6666666666666666]\na\n");
    CHECK(runner.RUN("parallel 4 8\nprint parallel.count \" \" parallel.relativ\nend\nprint a\n") ==
          "4 0.2\n7 3.2\na\n");
    runner.engine.parallelPosition = {3, 3};
    CHECK(runner.RUN("parallel 6\nprint no\nend\nprint a\n") == "a\n");
}

TEST_CASE("a wrong place in a group is told") {
    for (const COMPLEXNAT position : {COMPLEXNAT{-1, 2}, COMPLEXNAT{1, -2}, COMPLEXNAT{3, 2}}) {
        SCRIPT_RUNNER runner;
        runner.engine.parallelPosition = position;
        CHECK(runner.RUN("parallel 6\nend\n") == "Error (Wrong parallel initialization (" +
                                                     GETUTF8(GETSTRING(position)) +
                                                     ")!) in line 1 (m)!\n");
    }
}
