#include "foundation/base/number_text.hpp"
#include "foundation/base/random.hpp"
#include "foundation/base/time.hpp"
#include "script/engine/macro.hpp"
#include "script/module/use_all.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// An engine with all modules, without trace, and the console's text of a script.
struct SCRIPT_RUN {
    CAPTURE console;
    TMACRO engine;

    SCRIPT_RUN() {
        engine.INIT();
        engine.USE_ALL();
        engine.verbose = false;
        // Constants from before a run outlive it, so that a test can read what a script stored.
        for (const char *name : {"v1", "v2", "v3", "v4"})
            engine.PUTCONSTANT(name, "untouched");
    }
    std::string RUN(std::string_view script) {
        engine.LOADTEXT(script, "test.macro");
        console.CLEAR();
        engine.SINGLERUN();
        std::string text = console.TEXT();
        const std::string begin = "Script runs...\n", end = "Script ends.\n";
        if (text.starts_with(begin)) text.erase(0, begin.size());
        if (text.ends_with(end)) text.erase(text.size() - end.size());
        return text;
    }
    std::string TEXT(const char *name) { return GETUTF8(engine.GETCONSTANTVALUE(name)); }
};
} // namespace

TEST_CASE("modules register in their order, from core to dump") {
    const auto sets = MODULE_SETS();
    REQUIRE(sets.size() >= 3);
    CHECK(sets[0] == &CORE_SET);
    CHECK(sets[1] == &RANDOM_SET);
    CHECK(sets[2] == &CLOCK_SET);
    CHECK(sets[3] == &LIST_SET);
    CHECK(sets[4] == &MATH_SET);
    CHECK(sets.back() == &DUMP_SET);
}

TEST_CASE("print joins its parameters without a separator and ends the line") {
    SCRIPT_RUN run;
    CHECK(run.RUN("print \"a \" 5 b\nprint\nwriteln x\n") == "a 5b\n\nx\n");
}

TEST_CASE("write ends no line and write.tab writes a tab") {
    SCRIPT_RUN run;
    CHECK(run.RUN("write a\nwrite.tab\nwrite b\n") == "a\tb");
}

TEST_CASE("coloured prints are plain without a terminal") {
    SCRIPT_RUN run;
    CHECK(run.RUN("print.red a\nprint.green b\nprint.blue c\nprint.yellow d\nprint.cyan e\n"
                  "print.purple f\n") == "a\nb\nc\nd\ne\nf\n");
}

TEST_CASE("coloured prints carry their code on a terminal") {
    SCRIPT_RUN run;
    INTERACTION = true;
    SETTERMINAL(true);
    const std::string text = run.RUN("print.red a\nprint.green b\nprint.blue c\nprint.yellow d\n"
                                     "print.cyan e\nprint.purple f\n");
    RESETTERMINAL();
    CHECK(text == "\x1b[91ma\x1b[0m\n\x1b[32mb\x1b[0m\n\x1b[34mc\x1b[0m\n\x1b[33md\x1b[0m\n"
                  "\x1b[36me\x1b[0m\n\x1b[35mf\x1b[0m\n");
}

TEST_CASE("inside an output block the text goes into the file, without colours") {
    const SCRATCH_FOLDER folder;
    SCRIPT_RUN run;
    INTERACTION = true;
    SETTERMINAL(true);
    const std::string text = run.RUN("output.store core_test.txt\nprint.red a\nwrite b\nwrite.tab\n"
                                     "print c\necho seen\nend\nprint behind\n");
    RESETTERMINAL();
    CHECK(folder.READ("core_test.txt") == "a\nb\tc\n");
    CHECK(text.find("seen\n") != std::string::npos);
    CHECK(text.ends_with("behind\n"));
    CHECK(text.find('c') == text.find("core_test"));
}

TEST_CASE("stop prints its place and ends the script") {
    SCRIPT_RUN run;
    CHECK(run.RUN("nop\nstop\nprint never\n") == "In line 2 (test.macro).\nScript stop.\n");
}

TEST_CASE("debug.no ends the trace and debug begins it") {
    SCRIPT_RUN run;
    run.engine.verbose = true;
    CHECK(run.RUN("debug.no\nnop\n").find("nop") == std::string::npos);
    CHECK(run.RUN("debug.no\ndebug\nnop\n").find("  nop|") != std::string::npos);
}

TEST_CASE("wait, sleep and delay need one parameter") {
    SCRIPT_RUN run;
    for (const char *word : {"wait", "sleep", "delay"})
        CHECK(run.RUN(std::string(word) + "\n") ==
              "Parameter error! Please use one parameter in line 1 (test.macro).\n");
}

TEST_CASE("wait waits for its seconds") {
    SCRIPT_RUN run;
    const CLOCK before = GETCLOCK();
    run.RUN("wait 0.05\n");
    const CLOCK after = GETCLOCK();
    const auto milliseconds = [](const CLOCK &clock) {
        return ((clock.hour * 60 + clock.minute) * 60 + clock.second) * 1000 + clock.millisecond;
    };
    const NAT day = 24 * 60 * 60 * 1000;
    CHECK((milliseconds(after) - milliseconds(before) + day) % day >= 49);
}

TEST_CASE("wait of a negative or infinite time does not wait") {
    SCRIPT_RUN run;
    CHECK(run.RUN("wait -5\nwait 1e999\nwait -1e999\nwait nothing\nprint on\n") == "on\n");
}

TEST_CASE("progress with more than two parameters is reported") {
    SCRIPT_RUN run;
    CHECK(run.RUN("progress 0.5 a b\n") ==
          "Parameter error! Please use max. 2 parameters in line 1 (test.macro).\n");
}

TEST_CASE("progress shows a share and without parameters its end") {
    SCRIPT_RUN run;
    const std::string text = run.RUN("progress 0.5 Filter\nprogress\n");
    CHECK(OUTPUT_STATE >= 0.5);
    CHECK(text.find("Filter. 100 % ready (") != std::string::npos);
}

TEST_CASE("run frames a script of its own, which knows no commands") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("core_sub.macro", "v1 := 5\n");
    SCRIPT_RUN run;
    const std::string text = run.RUN("run core_sub.macro\nprint on\n");
    CHECK(text.starts_with(">>>> Sub program\n"));
    CHECK(text.ends_with("<<<<< End of sub program\non\n"));
    CHECK(text.find("Script runs...\n") != std::string::npos);
    CHECK(run.TEXT("v1") == "untouched");
}

TEST_CASE("a failure of the sub program becomes the caller's and stops it") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("core_bad.macro", "print 5\n");
    SCRIPT_RUN run;
    const std::string text = run.RUN("run core_bad.macro\nprint never\n");
    CHECK(text.find("Syntax error (print) in line 1 (core_bad.macro)! Unknown procedure!") !=
          std::string::npos);
    CHECK(text.find("never") == std::string::npos);
    CHECK(GETUTF8(run.engine.STATUS) ==
          "Syntax error (print) in line 1 (core_bad.macro)! Unknown procedure!");
}

TEST_CASE("run of a missing file does nothing") {
    SCRIPT_RUN run;
    CHECK(run.RUN("run no_such_file.macro\nprint on\n") == "on\n");
}

TEST_CASE("a script that runs itself stops at once, since a sub program has no run") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("core_self.macro", "run core_self.macro\n");
    SCRIPT_RUN run;
    const std::string text = run.RUN("run core_self.macro\n");
    CHECK(text.find("(run) in line 1 (core_self.macro)! Unknown procedure!") != std::string::npos);
}

TEST_CASE("min and max take the extreme of any number of parameters") {
    SCRIPT_RUN run;
    run.RUN("v1 := min 3 -1.5 2\nv2 := max 3 -1.5 2\nv3 := min 7\n");
    CHECK(run.TEXT("v1") == "-1.5");
    CHECK(run.TEXT("v2") == "3");
    CHECK(run.TEXT("v3") == "7");
}

TEST_CASE("min without a parameter is reported") {
    SCRIPT_RUN run;
    CHECK(run.RUN("v1 := min\n") ==
          "Parameter error! Please use min. one parameter in line 1 (test.macro).\n");
}

TEST_CASE("minmax limits a number to a range") {
    SCRIPT_RUN run;
    run.RUN("v1 := minmax 300 0 255\nv2 := minmax -1 0 255\nv3 := minmax 7 0 255\n"
            "v4 := minmax 9 4 4\n");
    CHECK(run.TEXT("v1") == "255");
    CHECK(run.TEXT("v2") == "0");
    CHECK(run.TEXT("v3") == "7");
    CHECK(run.TEXT("v4") == "4");
}

// The other modules have such a test of their own, with what their examples need.
TEST_CASE("the usage example of every core, random and clock row is a line that works") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("sub.macro", "v1 := 1\n");
    for (const COMMAND_SET *set : {&CORE_SET, &RANDOM_SET, &CLOCK_SET})
        for (const COMMAND_ROW &row : set->rows) {
            SCRIPT_RUN run;
            run.RUN(std::string(row.usage) + "\n");
            INFO(std::string(row.usage));
            CHECK(GETUTF8(run.engine.STATUS) == "");
        }
}
