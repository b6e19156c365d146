#include "app/check_script.hpp"

#include "app/program.hpp"
#include "script/engine/check_script.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// What the program prints for a script, and the status behind it.
std::string CHECKED(const SCRATCH_FOLDER &folder, std::string_view script, int status) {
    folder.WRITE("a.macro", script);
    const CAPTURE console;
    const int found = CHECK_SCRIPT("a.macro");
    CHECK(found == status);
    return console.TEXT();
}
} // namespace

TEST_CASE("a clean script is told as such and gives status 0") {
    const SCRATCH_FOLDER folder;
    CHECK(CHECKED(folder, "print 5\nscalar.load scalar.input\n", 0) == "a.macro: no findings\n");
    CHECK(CHECKED(folder, "", 0) == "a.macro: no findings\n");
}

TEST_CASE("findings are one line each with file, line and column, and give status 2") {
    const SCRATCH_FOLDER folder;
    CHECK(CHECKED(folder, "prnt 5\nfor 3\n  scalar.diffuson 4\n", 2) ==
          "a.macro:1:1: unknown procedure prnt; nearest: print\n"
          "a.macro:2:1: for has no end\n"
          "a.macro:3:3: unknown procedure scalar.diffuson; nearest: scalar.diffusion\n");
}

TEST_CASE("the check of the document's example finds each of its lines") {
    const SCRATCH_FOLDER folder;
    CHECK(CHECKED(folder,
                  "threshold = 120\nfor 3\n    scalar.load study.nii\n    scalar.diffuson 8\n"
                  "    print \"threshold = \" threshold\nmax 3 5\n",
                  2) ==
          "a.macro:1:1: unknown procedure threshold; an assignment is written name := value\n"
          "a.macro:2:1: for has no end\n"
          "a.macro:3:17: file not found: study.nii\n"
          "a.macro:4:5: unknown procedure scalar.diffuson; nearest: scalar.diffusion\n"
          "a.macro:5:5: \"= \" makes this line an assignment to print, in a quoted text too\n"
          "a.macro:6:1: unknown procedure max; max is a function: name := max\n");
}

TEST_CASE("a script that cannot be read is one line and status 2") {
    const SCRATCH_FOLDER folder;
    const CAPTURE console;
    CHECK(CHECK_SCRIPT("none.macro") == 2);
    CHECK(console.TEXT() == "Script (none.macro) cannot be read!\n");
}

TEST_CASE("a check runs no command and writes no file") {
    const SCRATCH_FOLDER folder;
    CHECK(CHECKED(folder, "store out.txt\ntext\nend\nscalar.new 2 2 2\nscalar.save out.nii\nstop\n",
                  0) == "a.macro: no findings\n");
    CHECK(folder.FILES() == 1);
}

TEST_CASE("constants of the options are variables for a check") {
    const SCRATCH_FOLDER folder;
    CHECK(CHECKED(folder, "a := scalar.input\nb := thread.max\nc := random.seed\nprint a b c\n",
                  0) == "a.macro: no findings\n");
}

TEST_CASE("the usage line of every command has no finding") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("a.macro", "");
    for (const COMMAND_SET *set : COMMAND_SETS())
        for (const COMMAND_ROW &row : set->rows) {
            // The files of the usage lines may be made by any command before.
            folder.WRITE("a.macro", "execute true\n" + std::string(row.usage) + "\n");
            const CHECK_RESULT result = CHECK_MACRO("a.macro", {COMMAND_SETS(), {}});
            CHECK_MESSAGE(result.findings.empty(),
                          row.usage << ": " << (result.findings.empty() ? "" : result.findings[0]));
        }
}
