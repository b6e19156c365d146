#include "app/first_words.hpp"

#include "app/program_run.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("morvane help prints the help alone and ends with status 0") {
    const SCRATCH_FOLDER folder;
    const PROGRAM_RUN run({"help"});
    CHECK(run.status == 0);
    CHECK(run.console.TEXT().starts_with("Help\n"));
    CHECK_FALSE(run.CONTAINS("Done ("));
    CHECK(folder.FILES() == 0);
}

TEST_CASE("a script called help is run as before") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("help", "nop\n");
    CHECK(PROGRAM_RUN({"help"}).SCRIPT() == "  nop|\n");
}

TEST_CASE("help counts only as the very first argument") {
    const SCRATCH_FOLDER folder;
    CHECK(PROGRAM_RUN({"-x=1", "help"}).CONTAINS("  -macro : macro file = help\n"));
    CHECK(PROGRAM_RUN({"-help"}).status == 1);
}

TEST_CASE("morvane --version prints one line with name, version and platform") {
    const PROGRAM_RUN run({"--version"});
    CHECK(run.status == 0);
    const std::vector<std::string> lines = LINES_OF(run.console.TEXT());
    REQUIRE(lines.size() == 1);
    CHECK(lines[0].starts_with("Morvane 9.4.8 for "));
    CHECK(lines[0].ends_with(" LE)"));
}

TEST_CASE("--version with other arguments is an option as any other") {
    CHECK(PRINTED("parameter.version", {"--version"}) == "false\n");
    CHECK(PRINTED("parameter.version", {"--version=3"}) == "3\n");
}

TEST_CASE("--check without a file, or with two, prints its usage and ends with status 2") {
    for (const std::vector<const char *> &arguments :
         {std::vector<const char *>{"--check"}, {"--check", "a.macro", "b.macro"}}) {
        const PROGRAM_RUN run(arguments);
        CHECK(run.status == 2);
        CHECK(run.console.TEXT() == "Usage: morvane --check FILE\n");
    }
}

TEST_CASE("--check of a clean script ends with status 0 and runs nothing") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("clean.macro", "print hello\n");
    const PROGRAM_RUN run({"--check", "clean.macro"});
    CHECK(run.status == 0);
    CHECK_FALSE(run.CONTAINS("hello"));
    CHECK_FALSE(run.CONTAINS("Morvane"));
}

TEST_CASE("--check of a script with a mistake ends with status 2") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("wrong.macro", "nop\nnonsense\n");
    const PROGRAM_RUN run({"--check", "wrong.macro"});
    CHECK(run.status == 2);
    CHECK(run.CONTAINS("wrong.macro:2:"));
}
