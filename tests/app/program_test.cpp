#include "app/program.hpp"

#include "app/program_run.hpp"
#include "script/option/update.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("a script that fails ends the program with status 0") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("test.macro", "nonsense\n");
    const PROGRAM_RUN run({"-strict", "-macro=test.macro"});
    CHECK(run.status == 0);
    CHECK(run.SCRIPT() == "Syntax error (nonsense) in line 1 (test.macro)! Unknown procedure!\n");
}

TEST_CASE("a script without lines runs nothing, not even its start message") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("test.macro", "");
    const PROGRAM_RUN run({"test.macro"});
    CHECK(run.status == 0);
    CHECK_FALSE(run.CONTAINS("Script runs..."));
    CHECK_FALSE(run.CONTAINS(FIRST_MESSAGE));
}

TEST_CASE("-strict in front of a bare word takes it as its value, so the default script is run") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("test.macro", "nop\n");
    CHECK(PROGRAM_RUN({"-strict", "test.macro"}).CONTAINS(FIRST_MESSAGE));
    CHECK(PROGRAM_RUN({"-strict", "+verbose", "test.macro"}).SCRIPT() == "  nop|\n");
}

TEST_CASE("the program ends with the closing line of its console") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("test.macro", "nop\n");
    const PROGRAM_RUN run({"test.macro"});
    CHECK(run.CONTAINS("\nDone ("));
    CHECK(run.console.TEXT().ends_with(").\n"));
}

TEST_CASE("with +status a script that fails ends the program with status 1") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("syntax.macro", "nonsense\n");
    folder.WRITE("count.macro", "wait\n");
    folder.WRITE("good.macro", "nop\n");
    for (const char *script : {"-macro=syntax.macro", "-macro=count.macro"}) {
        INFO(script);
        CHECK(PROGRAM_RUN({"-strict", "+status", script}).status == 1);
        CHECK(PROGRAM_RUN({"-strict", "-status=on", script}).status == 1);
        CHECK(PROGRAM_RUN({"-strict", "-status=off", script}).status == 0);
        CHECK(PROGRAM_RUN({"-strict", script}).status == 0);
    }
    CHECK(PROGRAM_RUN({"-strict", "+status", "-macro=good.macro"}).status == 0);
}

TEST_CASE("with +status a script that stops by stop or break ends with status 0") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("stop.macro", "stop\n");
    folder.WRITE("break.macro", "break\n");
    CHECK(PROGRAM_RUN({"+status", "stop.macro"}).status == 0);
    CHECK(PROGRAM_RUN({"+status", "break.macro"}).status == 0);
}

TEST_CASE("with +status a named script that is not there counts as failed") {
    const SCRATCH_FOLDER folder;
    CHECK(PROGRAM_RUN({"+status", "missing.macro"}).status == 1);
    CHECK(PROGRAM_RUN({"+status", "-first"}).status == 0);
    std::filesystem::remove("morvane.macro");
    CHECK(PROGRAM_RUN({"+status"}).status == 0); // the first run, as always
}

TEST_CASE("+status changes nothing but the exit status") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("test.macro", "print parameter.status\nnonsense\n");
    const PROGRAM_RUN run({"-strict", "+status", "test.macro"});
    CHECK(run.SCRIPT() == "  print|true|\ntrue\nSyntax error (nonsense) in line 2 (test.macro)! "
                          "Unknown procedure!\n");
    CHECK(run.CONTAINS("\nDone ("));
}

TEST_CASE("-update ends the program with status 0 before any option is read") {
    UPDATE_PROGRAM = "/nowhere/wget";
    const SCRATCH_FOLDER folder;
    folder.WRITE("morvane.macro", "nop\n");
    const PROGRAM_RUN run({"-update"});
    UPDATE_PROGRAM = "/usr/bin/wget";
    CHECK(run.status == 0);
    CHECK(run.CONTAINS("Wget not found!"));
    CHECK_FALSE(run.CONTAINS("Usage:"));
    CHECK_FALSE(run.CONTAINS("Script runs..."));
}
