#include "script/engine/script_runner.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
std::string REPEATED(const std::string &text, int count) {
    std::string all;
    for (int i = 0; i < count; ++i)
        all += text;
    return all;
}
} // namespace

TEST_CASE("a procedure that calls itself forever ends in a report") {
    CHECK(RUN_SCRIPT("procedure p\np 1\nend\np\nprint no\n") ==
          "Error (too many nested blocks) in line 2 (m)!\n");
    CHECK(RUN_SCRIPT("function f\na := f 1\nend\na := f\nprint no\n") ==
          "Error (too many nested blocks) in line 2 (m)!\n");
}

TEST_CASE("the deepest kinds of nesting end in a report") {
    for (const char *head : {"process\n", "for 2\n", "for 1 2\n", "for 1 1 2\n", "for.part 2 1 2\n",
                             "for.random 2\n", "while 1\n", "repeat\n", "module\n", "with a\n",
                             "minimize 0 1 2 x\n", "parallel 2\n", "case 1\nofnot 2\n"}) {
        CAPTURE(head);
        CHECK(RUN_SCRIPT(REPEATED(head, 20000))
                  .starts_with("Error (too many nested blocks) in line "));
    }
}

TEST_CASE("a million nested blocks in skipped code are followed") {
    CHECK(RUN_SCRIPT("ignore\n" + REPEATED("for 2\n", 1000000) + REPEATED("end\n", 1000000) +
                     "end\nprint a\n") == "a\n");
}

TEST_CASE("a loop that the script's end leaves open stops at the deepest scope") {
    CHECK(RUN_SCRIPT("for 1e18\n") == "Error (too many nested blocks) in line 1 (m)!\n");
}

TEST_CASE("the engine works after too many nested blocks") {
    SCRIPT_RUNNER runner;
    runner.RUN("procedure p\np 1\nend\np\n");
    CHECK(runner.RUN("for 2\nprint for.count\nend\n") == "1\n2\n");
}

TEST_CASE("a file that includes itself ends in a report") {
    const SCRATCH_FOLDER folder;
    SCRATCH_FOLDER::WRITE_TEXT("self", "x\nif 0\nthen\ninclude self\nend\n");
    const std::string shown = RUN_SCRIPT("ignore\ninclude self\nend\nprint a\n");
    CHECK(shown.find("Error (") != std::string::npos);
}

TEST_CASE("values that name each other by @ do not fill the memory") {
    const std::string shown = RUN_SCRIPT(
        "c := " + REPEATED("x", 250) + "\nb := \"" + REPEATED("@c", 120) + "\"\n" + "d := \"" +
        REPEATED("@e", 120) + "\"\ne := 1\nprint " + REPEATED("@d", 100000) + "\n");
    CHECK(shown == "Error (line too long after @ replacement) in line 5 (m)!\n");
}

TEST_CASE("a run ends with a report after its budget of lines") {
    SCRIPT_RUNNER runner;
    runner.engine.switches.LINES = 1000;
    // The script and each pass of the loop open a block: 1, the head, then two for each pass.
    CHECK(runner.RUN("while 1\nend\n") == "Error (too many lines) in line 2 (m)!\n");
    runner.engine.switches.LINES = 3;
    CHECK(runner.RUN("nop\nprint a\nprint b\n") == "a\nError (too many lines) in line 3 (m)!\n");
}

TEST_CASE("without files no output and no include reaches the disk") {
    const SCRATCH_FOLDER folder;
    SCRATCH_FOLDER::WRITE_TEXT("part", "x\ny\n");
    SCRIPT_RUNNER runner;
    runner.engine.switches.FILES = false;
    CHECK(runner.RUN(
              "store out\na\nend\nignore\ninclude part\nend\nifexists part\nelse print none\n") ==
          "  Include file (part) not found!\nnone\n");
    CHECK(SCRATCH_FOLDER::TEXT("out") == "no file");
}

TEST_CASE("strange lines end in reports or values, never in a crash") {
    for (const char *line : {"\"",
                             "'",
                             "(",
                             "@",
                             "@@",
                             "[",
                             "a]",
                             "a[",
                             "a[]",
                             "x := a[99999999999999999999]",
                             "x := $ffffffffffffffffffffffffffffffff",
                             "x := #99999999",
                             "x := #-1",
                             "a[-1] := 5",
                             "[1] := 5",
                             "x #= 99999999999 1",
                             "x $= 99999999999 abc",
                             "x $= -99999999999 abc",
                             "x d= -99999999999 abc",
                             "then",
                             "else",
                             "of",
                             "of ",
                             "end",
                             "until",
                             "if nan",
                             "for inf",
                             "for -inf inf",
                             "for 1e308 1e-308 1e308",
                             "case",
                             "local \"\" 5",
                             "var \"a b\"",
                             "x s= a",
                             "x r= a b c",
                             "x := <,,,>",
                             "x := <;>",
                             "halt a b",
                             "with \"\"",
                             "repeat\nuntil <"}) {
        CAPTURE(line);
        SCRIPT_RUNNER runner;
        runner.engine.switches.LINES = 1000;
        CHECK(runner.RUN(std::string(line) + "\nprint behind\n").find("no run") ==
              std::string::npos);
    }
}
