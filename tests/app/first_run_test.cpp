#include "app/first_run.hpp"

#include "app/program_run.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/base/time.hpp"
#include "support/child_process.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("without arguments and without morvane.macro the reference is written, nothing runs") {
    const SCRATCH_FOLDER folder;
    const PROGRAM_RUN run({});
    CHECK(run.status == 0);
    CHECK(folder.HAS("morvane.macro"));
    CHECK(run.CONTAINS(FIRST_MESSAGE));
    CHECK_FALSE(run.CONTAINS("Script runs..."));
    CHECK(folder.FILES() == 1);
}

TEST_CASE("the reference opens with its fixed lines") {
    const SCRATCH_FOLDER folder;
    const PROGRAM_RUN run({});
    const std::vector<std::string> lines = LINES_OF(folder.READ("morvane.macro"));
    REQUIRE(lines.size() > 12);
    CHECK(lines[0] == "//!./morvane // Version: 9.4.8");
    CHECK(lines[1] == "// This is a list of morvane commands - you can use this macro like a "
                      "programing language");
    CHECK(lines[2].starts_with("// https://"));
    CHECK(lines[3].starts_with("// 2017-" + GETUTF8(GETSTRING(GETDATE().year)) + " "));
    CHECK(lines[4] == "io.file.remove \"morvane.macro\" // remove old command list");
    CHECK(lines[5] == "execute ./morvane // make new command list");
    CHECK(lines[6] == "halt // Do not interpret the rest");
    CHECK(lines[7].find("*****") != std::string::npos);
    CHECK(lines[8] == "// @variable denotes builtin variables.");
    CHECK(lines[9] == "// Assignment := are only used if the stack type is the same (image := "
                      "image.func) or a result (10 := image.func).");
}

TEST_CASE("the reference holds one line for every row, in the order of registration") {
    const SCRATCH_FOLDER folder;
    const PROGRAM_RUN run({});
    const std::vector<std::string> lines = LINES_OF(folder.READ("morvane.macro"));
    std::vector<std::string> rows;
    for (const COMMAND_SET *set : COMMAND_SETS())
        for (const COMMAND_ROW &row : set->rows)
            rows.push_back(std::string(row.usage) + " // " + std::string(row.note));
    REQUIRE(lines.size() == rows.size() + 12);
    CHECK(std::vector<std::string>(lines.begin() + 10, lines.end() - 2) == rows);
    CHECK(lines[lines.size() - 2] == "// For more line commands, look at Skein2!");
    CHECK(lines.back() == "");
}

TEST_CASE("every line of the reference is cut to its usage as the line loop cuts comments") {
    for (const COMMAND_SET *set : COMMAND_SETS())
        for (const COMMAND_ROW &row : set->rows) {
            INFO(std::string(row.usage));
            CHECK(row.usage.find("//") == std::string_view::npos);
            CHECK(row.usage.find('\n') == std::string_view::npos);
            CHECK(row.note.find('\n') == std::string_view::npos);
        }
}

TEST_CASE("-first rewrites the reference and runs nothing, even when -macro names a script") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("morvane.macro", "print old\n");
    folder.WRITE("other.macro", "print other\n");
    const PROGRAM_RUN run({"-first", "-macro=other.macro"});
    CHECK(run.status == 0);
    CHECK(folder.READ("morvane.macro").starts_with("//!./morvane // Version: 9.4.8\n"));
    CHECK(run.CONTAINS("  +/-first : Write first macro file example = on\n"));
    CHECK(run.CONTAINS(FIRST_MESSAGE));
    CHECK_FALSE(run.CONTAINS("Script runs..."));
}

TEST_CASE("-first=off runs the script") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("morvane.macro", "nop\n");
    const PROGRAM_RUN run({"-first=off"});
    CHECK(run.SCRIPT() == "  nop|\n");
    CHECK_FALSE(run.CONTAINS(FIRST_MESSAGE));
}

TEST_CASE("a missing script is the first run, the reference gets its own name") {
    const SCRATCH_FOLDER folder;
    const PROGRAM_RUN run({"missing.macro"});
    CHECK(run.status == 0);
    CHECK(folder.HAS("morvane.macro"));
    CHECK_FALSE(folder.HAS("missing.macro"));
}

TEST_CASE("when the reference cannot be written the message is printed all the same") {
    const SCRATCH_FOLDER folder;
    std::filesystem::create_directory("morvane.macro");
    const PROGRAM_RUN run({"-first"});
    CHECK(run.status == 0);
    CHECK(run.CONTAINS(FIRST_MESSAGE));
    CHECK(folder.FILES() == 1);
}

TEST_CASE("the reference refreshes itself in its first lines and ends before its list") {
    const SCRATCH_FOLDER folder;
    const PROGRAM_RUN write({});
    // A stand-in for the program: the script calls it to write the list anew.
    folder.WRITE("morvane", "#!/bin/sh\nls > seen.txt\necho new > morvane.macro\n");
    std::filesystem::permissions("morvane", std::filesystem::perms::owner_all);
    const int status = IN_CHILD([] {
        const PROGRAM_RUN run({});
        return 7; // not reached: halt ends the process
    });
    CHECK(status == 0);
    CHECK(folder.READ("seen.txt").find("morvane.macro") == std::string::npos);
    CHECK(folder.READ("morvane.macro") == "new\n");
}

TEST_CASE("every form of -first that says yes writes the reference") {
    for (const char *option :
         {"-first", "--first", "+first", "-first=on", "-first=yes", "-first=1"}) {
        INFO(option);
        const SCRATCH_FOLDER folder;
        folder.WRITE("morvane.macro", "nop\n");
        CHECK(PROGRAM_RUN({option}).CONTAINS(FIRST_MESSAGE));
    }
    for (const char *option : {"-first=off", "-first=no", "-first=0", "-First"}) {
        INFO(option);
        const SCRATCH_FOLDER folder;
        folder.WRITE("morvane.macro", "nop\n");
        CHECK(PROGRAM_RUN({option}).SCRIPT() == "  nop|\n");
    }
}

TEST_CASE("a word behind -first is its value and names no script") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("other.macro", "print other\n");
    folder.WRITE("morvane.macro", "nop\n");
    CHECK(PROGRAM_RUN({"-first", "other.macro"}).SCRIPT() == "  nop|\n");
}
