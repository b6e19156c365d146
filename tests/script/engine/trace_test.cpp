#include "script/engine/script_runner.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// The console of a script that runs with the trace on.
std::string TRACE_OF(const std::string &script) {
    SCRIPT_RUNNER runner;
    runner.engine.verbose = true;
    return runner.RUN(script);
}
} // namespace

TEST_CASE("the trace is on in a new engine") { CHECK(TMACRO().verbose); }

TEST_CASE("a call is traced with its parameters before it runs") {
    CHECK(TRACE_OF("print a 5 \"b c\"\n") == "  print|a|5|b c|\na5b c\n");
    CHECK(TRACE_OF("nop\n") == "  nop|\n");
}

TEST_CASE("an assignment is traced with its operator and value") {
    CHECK(TRACE_OF("a := 5\na += 1 2\n") == "  a|:=|5|\n  a|+=|3|\n");
}

TEST_CASE("a function is traced with its target") {
    CHECK(TRACE_OF("a := sum 1 2\n") == "  a := [sum]|1|2|\n");
}

TEST_CASE("a script command is traced like a built-in one") {
    CHECK(TRACE_OF("procedure p\nend\np 1\nfunction f\nend\na := f 2\n") ==
          "  p|1|\n  a := [f]|2|\n");
}

TEST_CASE("the block keywords are traced by their names") {
    CHECK(TRACE_OF("if 1\nthen\nend\nelse\nend\nifnot 1\nelse\nend\n") ==
          "  if|1|\n  if.then|\n  ifnot|1|\n  if.else|\n");
    CHECK(TRACE_OF("for 2\nend\nfor 2 3\nend\nfor 1 2 4\nend\n") ==
          "  for|2|\n  for|2..3|\n  for|1..(2)..4|\n");
    CHECK(TRACE_OF(
              "for.part 10 2 3\nend\nfor.random 1\nend\nfor.random 3 3\nend\nparallel 1\nend\n") ==
          "  for.part|4..6|\n  for.random|1|\n  for.random|3..3|\n  for|1|\n");
    CHECK(TRACE_OF("while 0\nend\nrepeat\nuntil 1\n") == "  while|\n  repeat|\n");
}

TEST_CASE("declarations are traced with their reach") {
    CHECK(TRACE_OF("var a b\nlocal c 5 6\nglobal d 7\n") ==
          "  a|b|(instance 1) :=|\n  c|(instance 1) :=|56|\n  d|(global) :=|7|\n");
}

TEST_CASE("output keywords are traced with their file") {
    const SCRATCH_FOLDER folder;
    CHECK(TRACE_OF("store out\nend\n").starts_with("  store|out|\n"));
    CHECK(TRACE_OF("output.append out\nend\n").starts_with("  output.append|out|\n"));
    CHECK(TRACE_OF("store.space ,\nappend.space\n") ==
          "  store/append.space|,|\n  store/append.space|empty|\n");
}

TEST_CASE("include is traced with its file") {
    const SCRATCH_FOLDER folder;
    SCRATCH_FOLDER::WRITE_TEXT("part", "a\nb\n");
    CHECK(TRACE_OF("ignore\ninclude part\nend\n").starts_with("  include|part|\n"));
}

TEST_CASE("a lambda is traced by its value only") {
    CHECK(TRACE_OF("print tick\n") == "  print|1|\n1\n");
}

TEST_CASE("the trace has its colours on an interactive terminal") {
    SCRIPT_RUNNER runner;
    runner.engine.verbose = true;
    INTERACTION = true;
    SETTERMINAL(true);
    unsetenv("NO_COLOR");
    const std::string shown = runner.RUN("list 5 \"t\" <1> word tick\na := sum 1\nb := 7\n");
    const std::string failed = runner.RUN("fail := \"= \"\nthis is = an error\nnop := 1\n");
    RESETTERMINAL();
    const std::string green = "\033[32m", yellow = "\033[33m", blue = "\033[34m", red = "\033[91m",
                      off = "\033[0m";
    CHECK(shown == "  " + green + "list" + off + "|" + blue + "5" + off + "|" + red + "t" + off +
                       "|" + blue + "1" + off + "|word|" + green + "1" + off +
                       "|\n1[5]2[t]3[1]0[word]9[1]\n  " + yellow + "a := [sum]" + off + "|" + blue +
                       "1" + off + "|\n  " + yellow + "b" + off + "|:=|7|\n");
    CHECK(failed.ends_with(red + "Error" + off + " (overloaded identifier: nop) in line 3 (m)!\n"));
}

TEST_CASE("the colour of a syntax report covers its line, of a parameter report its first words") {
    SCRIPT_RUNNER runner;
    INTERACTION = true;
    SETTERMINAL(true);
    unsetenv("NO_COLOR");
    const std::string syntax = runner.RUN("xyz\n"), count = runner.RUN("case\n");
    const UTF16 status = runner.engine.STATUS;
    RESETTERMINAL();
    CHECK(syntax == "\033[91mSyntax error (xyz) in line 1 (m)! Unknown procedure!\033[0m\n");
    CHECK(count == "\033[91mParameter error!\033[0m Please use one parameter in line 1 (m).\n");
    CHECK(status == "Parameter error! Please use one parameter in line 1 (m).");
}
