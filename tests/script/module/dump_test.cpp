#include "script/engine/macro.hpp"
#include "script/module/use_all.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// What a script shows in an engine that knows printing and the dumps.
std::string SHOWN(const std::string &script) {
    const CAPTURE console;
    TMACRO engine;
    engine.INIT();
    engine.USE_CORE();
    engine.USE_DUMP();
    engine.verbose = false;
    engine.LOADTEXT(script, "m");
    engine.SINGLERUN();
    std::string text = console.TEXT();
    const std::string begin = "Script runs...\n", end = "Script ends.\n";
    if (text.starts_with(begin)) text.erase(0, begin.size());
    if (text.ends_with(end)) text.erase(text.size() - end.size());
    return text;
}

// The constants of every run.
const std::string VARIABLES = "  (0) true := \"1\"\n  (0) false := \"0\"\n"
                              "  (0) condition := \"0\"\n  (0) for.length := \"0\"\n"
                              "  (0) for.rest := \"0\"\n  (0) for.count := \"0\"\n"
                              "  (0) for.relative := \"0\"\n";

std::string FRAMED(const std::string &name, const std::string &lines) {
    return "***** dump." + name + " *****\n" + lines + "***** dump." + name + " end *****\n";
}
} // namespace

TEST_CASE("dump.var shows every variable, the oldest first, with its scope") {
    CHECK(SHOWN("a := 5\nprocess\nb := \"x \"\"y\"\ndump.var\nend\n") ==
          FRAMED("vars", VARIABLES + "  (1) a := \"5\"\n  (2) b := \"x \"\"y\"\n"));
}

TEST_CASE("dump.modulus shows the scope of each open module and how many variables it met") {
    // Seven variables are built in, one more is the script's.
    CHECK(SHOWN("a := 5\nmodule\nmodule\ndump.modulus\nend\ndump.modul\nend\ndump.modulus\n") ==
          FRAMED("modulus", "  (2) 8\n  (3) 8\n") + FRAMED("modulus", "  (2) 8\n") +
              FRAMED("modulus", ""));
}

TEST_CASE("dump.prog shows commands that the script still has") {
    CHECK(SHOWN("process\nprocedure a\nend\ndump.prog\nend\ndump.prog\n") ==
          FRAMED("progs", "  (0)+[procedure] a\n") + FRAMED("progs", ""));
}

TEST_CASE("dump.used knows lambdas and functions by their words") {
    const std::string text = SHOWN("a := max 1 2\nb := 1\nprint random.byte\ndump.used\n");
    CHECK(text.find("+[function] max\n") != std::string::npos);
    CHECK(text.find("+[lambda] random.byte\n") != std::string::npos);
    CHECK(text.find("  (1)+[procedure] print\n") != std::string::npos);
    CHECK(text.find("nop") == std::string::npos);
}

TEST_CASE("dump.all shows all dumps in the order of the rows") {
    const std::string script = "with dump\nall\nend\n";
    CHECK(SHOWN(script) == FRAMED("lines", "  1 (1): with dump\n  2 (2): all\n  3 (3): end\n") +
                               FRAMED("used", "  (1)+[procedure] dump.all\n") +
                               FRAMED("progs", "") + FRAMED("progs", "") + FRAMED("modulus", "") +
                               FRAMED("vars", VARIABLES) + FRAMED("vars", "") +
                               FRAMED("withs", "  (2) dump\n") + FRAMED("outputs", "") +
                               FRAMED("stack", "  (1) with\n") + FRAMED("redo & undo", ""));
}

TEST_CASE("dump.line shows the line's number in the file that it came from") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("part.macro", "nop\nnop\n");
    CHECK(SHOWN("nop\nimport part.macro\ndump.line\n") ==
          "Read file (part.macro) with size (8 B).\n" +
              FRAMED("lines", "  1 (1): nop\n  2 (1): nop\n  3 (2): nop\n  4 (3): dump.line\n"));
}

TEST_CASE("every row of the dumps runs as its usage line shows") {
    for (const COMMAND_ROW &row : DUMP_SET.rows) {
        CAPTURE(row.usage);
        const std::string text = SHOWN(std::string(row.usage) + "\n");
        CHECK(text.starts_with("***** dump."));
        CHECK(text.ends_with(" end *****\n"));
    }
}

TEST_CASE("a dump goes to the newest open output") {
    const SCRATCH_FOLDER folder;
    const std::string text =
        SHOWN("output.store a.txt\noutput.store b.txt\ndump.stack\nend\nend\n");
    CHECK(text.find("dump.stack") == std::string::npos);
    CHECK(folder.READ("a.txt").empty());
    CHECK(folder.READ("b.txt") == FRAMED("stack", "  (1) output.store\n  (2) output.store\n"));
}
