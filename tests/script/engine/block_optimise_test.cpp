#include "script/engine/script_runner.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("minimize finds the smallest value that succeeds in steps") {
    // Coarse: x = 0, 2, 4, 6 (6 succeeds). Fine: 4 fails, so 6 stays.
    CHECK(RUN_SCRIPT(
              "minimize 0 2 10 x\nprint x\nresult := 0\nifbigger x 5\nthen result := 1\nend\n") ==
          "0\n2\n4\n6\n4\n6\n");
}

TEST_CASE("maximize mirrors it from the upper bound") {
    // Coarse: x = 10, 8, 6, 4 (4 succeeds, x is 2 then). Fine: 4 succeeds, 6 fails, so 4 stays.
    CHECK(RUN_SCRIPT(
              "maximize 0 2 10 x\nprint x\nresult := 0\nifsmaller x 5\nthen result := 1\nend\n") ==
          "10\n8\n6\n4\n4\n6\n4\n");
}

TEST_CASE("swapped bounds are put in order and the sign of the step does not count") {
    CHECK(RUN_SCRIPT("minimize 10 -2 0 x\nprint x\nresult := 1\nend\n") == "0\n0\n");
}

TEST_CASE("a search without success stops behind its upper bound") {
    // Coarse: 0, 1, 2, then x is 3 and beyond; back to 2. Fine: 1 fails. Last pass with 2.
    CHECK(RUN_SCRIPT("minimize 0 1 2 x\nprint x\nresult := 0\nend\n") == "0\n1\n2\n1\n2\n");
}

TEST_CASE("maximize takes its last coarse move back only when that went below the bound") {
    // Coarse: 2, 1, 0, then x is -1: back to 0. Fine: 1 fails, back to 0. Last pass with 0.
    CHECK(RUN_SCRIPT("maximize 0 1 2 x\nprint x\nresult := 0\nend\n") == "2\n1\n0\n1\n0\n");
    // Coarse: 2 succeeds, x is 1 and stays. Fine: 2 succeeds, 3 is beyond. Last pass with 2.
    CHECK(RUN_SCRIPT("maximize 0 1 2 x\nprint x\nresult := 1\nend\n") == "2\n2\n2\n");
}

TEST_CASE("a geometric minimize has two fine stages") {
    // Coarse: 1, 10, 100 (succeeds); x is 100. Stage one: 10 fails, 100. Stage two: 90, 81, 72.9,
    // 65.61, 59.049, 53.1441 succeed, 47.82969 fails and gives 47.82969 + 4.782969.
    const std::string shown = RUN_SCRIPT("minimize 1 0 1000 x\nprint x\nresult := 0\n"
                                         "ifbigger x 50\nthen result := 1\nend\n");
    CHECK(shown.starts_with("1\n1E1\n1E2\n1E1\n"));
    const std::string last = shown.substr(shown.rfind('\n', shown.size() - 2) + 1);
    CHECK(GETREAL(last) == doctest::Approx(52.612659).epsilon(1e-12)); // a few roundings
}

TEST_CASE("the second geometric stage undoes a move from the moved value") {
    // 0.9 of 100 fails at once: 90 + 9 = 99, not 100.
    const std::string shown = RUN_SCRIPT("minimize 1 0 1000 x\nprint x\nresult := 0\n"
                                         "ifbigger x 95\nthen result := 1\nend\n");
    CHECK(shown.ends_with("99\n"));
}

TEST_CASE("several variables move together, then one after the other") {
    // Coarse: (0,0), (1,1) succeeds, both 1. Fine: x 0 succeeds; y 0 fails; then x is at its bound
    // and y fails again.
    CHECK(RUN_SCRIPT("minimize 0 1 5 x y\nprint x y\nresult := 0\nifbigger y 0.5\nthen result := "
                     "1\nend\n") == "00\n11\n01\n00\n00\n01\n");
}

TEST_CASE("behind a search its lines run once more and their end closes the enclosing block") {
    CHECK(RUN_SCRIPT("process\nminimize 0 1 1 x\nresult := 1\nprint x\nend\nprint behind\nend\n") ==
          "0\n0\nbehind\n");
}

TEST_CASE("a search without a range does nothing, not even skip its block") {
    CHECK(RUN_SCRIPT("minimize 1 1 1 x\nprint x\nend\nprint no\n") == "x\n");
}

TEST_CASE("a search needs four parameters") {
    for (const char *line : {"minimize 1 2 3", "maximize 1 2 3"})
        CHECK(RUN_SCRIPT(std::string(line) + "\n") ==
              "Parameter error! Please use min. 4 parameters in line 1 (m).\n");
}

TEST_CASE("a minimize whose block never sets result reports and stops on the first pass") {
    CHECK(RUN_SCRIPT("result := 1\nminimize 0 1 5 x\nprint x\nend\nprint no\n") ==
          "0\nError (Please define the status of the minimization via the variable 'result'!) "
          "in line 4 (m)!\n");
}

TEST_CASE("an empty result in the coarse way of maximize is told as a minimization") {
    CHECK(RUN_SCRIPT("maximize 0 1 5 x\nend\n") ==
          "Error (Please define the status of the minimization via the variable 'result'!) "
          "in line 2 (m)!\n");
    CHECK(
        RUN_SCRIPT(
            "n := 0\nmaximize 0 1 5 x\nresult := 1\nifsame n 1\nthen var result\nn := 1\nend\n") ==
        "Error (Please define the status of the maximization via the variable 'result'!) "
        "in line 7 (m)!\n");
}

TEST_CASE("a search takes its variables as written") {
    CHECK(RUN_SCRIPT("x := 3\nminimize 0 1 5 x\nresult := 1\nprint x\nend\n") == "0\n0\n");
}

TEST_CASE("the number format is as before behind a geometric search") {
    CHECK(RUN_SCRIPT("minimize 1 0 1000 x\nresult := 1\nend\n") == "");
    CHECK(!FORMAT.SCIENTIFIC);
}

TEST_CASE("minimize, maximize, for.part, for.random, ofnot and sub open no skipped block") {
    for (const char *head : {"minimize 0 1 2 x", "maximize 0 1 2 x", "for.part 1 1 1",
                             "for.random 2", "ofnot 1", "sub s"}) {
        CAPTURE(head);
        CHECK(RUN_SCRIPT("ignore\n" + std::string(head) + "\nend\nprint early\n") == "early\n");
    }
}

TEST_CASE("every other block keyword opens a block in skipped code") {
    for (const char *head :
         {"ignore",  "process",    "with a",         "procedure p",     "function f",
          "module",  "if.then",    "then",           "if.true",         "if.else",
          "else",    "if.false",   "of 1",           "for 2",           "repeat",
          "while 1", "parallel 2", "output.store a", "output.append a", "store a",
          "append a"}) {
        CAPTURE(head);
        CHECK(RUN_SCRIPT("ignore\n" + std::string(head) + "\nend\nprint no\nend\nprint a\n") ==
              "a\n");
    }
}
