#include "script/option/update.hpp"

#include "script/option/parameter.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <sys/stat.h>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// A stand-in for the fetching program, a shell script of these lines, in a folder of its own.
class STAND_IN {
public:
    explicit STAND_IN(const std::string &lines) {
        folder.WRITE("fetch", "#!/bin/sh\n" + lines);
        ::chmod("fetch", 0755);
        path = std::filesystem::current_path() / "fetch";
        UPDATE_PROGRAM = path.c_str();
    }
    ~STAND_IN() { UPDATE_PROGRAM = "/usr/bin/wget"; }
    STAND_IN(const STAND_IN &) = delete;
    STAND_IN &operator=(const STAND_IN &) = delete;

    SCRATCH_FOLDER folder;

private:
    std::string path;
};

std::string UPDATED(const std::string &lines) {
    const STAND_IN program(lines);
    const CAPTURE console;
    UPDATE("https://maker.invalid/x/morvane", "morvane");
    return console.TEXT();
}
} // namespace

TEST_CASE("the fetching program gets the address and the name of the new file") {
    const STAND_IN program("echo \"$@\" > called.txt\n");
    const CAPTURE console;
    UPDATE("https://maker.invalid/x/morvane", "morvane");
    CHECK(program.folder.READ("called.txt") ==
          "-O morvane.n.part https://maker.invalid/x/morvane\n");
}

TEST_CASE("a fetched program lies beside the old one with .n behind its name") {
    const STAND_IN program("echo new > \"$2\"\n");
    program.folder.WRITE("morvane.n", "older\n");
    const CAPTURE console;
    UPDATE("https://maker.invalid/x/morvane", "morvane");
    CHECK(console.TEXT().ends_with("You can find the new file at \"morvane.n\".\n"));
    CHECK(program.folder.READ("morvane.n") == "new\n");
    CHECK_FALSE(program.folder.HAS("morvane.n.part"));
}

TEST_CASE("a failed fetch leaves no file behind and keeps an older one") {
    const STAND_IN program("echo half > \"$2\"\nexit 4\n");
    program.folder.WRITE("morvane.n", "older\n");
    const CAPTURE console;
    UPDATE("https://maker.invalid/x/morvane", "morvane");
    CHECK(console.TEXT().ends_with("Network failure.\n"));
    CHECK(program.folder.READ("morvane.n") == "older\n");
    CHECK_FALSE(program.folder.HAS("morvane.n.part"));
}

TEST_CASE("each exit code of the fetch is told in its own words") {
    CHECK(UPDATED("exit 0\n") == "You can find the new file at \"morvane.n\".\n");
    CHECK(UPDATED("exit 1\n") == "Generic error code.\n");
    CHECK(UPDATED("exit 2\n") == "Parse error—for instance, when parsing command-line options, the "
                                 "‘.wgetrc’ or ‘.netrc’...\n");
    CHECK(UPDATED("exit 3\n") == "File I/O error.\n");
    CHECK(UPDATED("exit 4\n") == "Network failure.\n");
    CHECK(UPDATED("exit 5\n") == "SSL verification failure.\n");
    CHECK(UPDATED("exit 6\n") == "Username/password authentication failure.\n");
    CHECK(UPDATED("exit 7\n") == "Protocol errors.\n");
    CHECK(UPDATED("exit 8\n") == "Server issued an error response.\n");
}

TEST_CASE("any other exit code, and a missing fetching program, ask to install it") {
    const std::string wanted =
        "Wget not found! Please install wget from https://www.gnu.org/software/wget/\n";
    CHECK(UPDATED("exit 9\n") == wanted);
    CHECK(UPDATED("exit 127\n") == wanted);
    CHECK(UPDATED("kill -9 $$\n") == wanted);
    const SCRATCH_FOLDER folder;
    const CAPTURE console;
    UPDATE_PROGRAM = "/nowhere/wget";
    UPDATE("https://maker.invalid/x/morvane", "morvane");
    UPDATE_PROGRAM = "/usr/bin/wget";
    CHECK(console.TEXT() == wanted);
}

TEST_CASE("-update as the first argument fetches for this platform and ends the program") {
    const STAND_IN program("exit 4\n");
    CAPTURE console;
    TPARAMETER options(std::vector<std::string>{"/opt/my tools/morvane", "-update"});
    CHECK(options.INIT("Morvane", "Author", 2017, "https://maker.invalid"));
    CHECK(console.CONTAINS("  -update : Load a new version from https://maker.invalid/"));
    CHECK(console.TEXT().ends_with("/morvane\nNetwork failure.\n"));
}

TEST_CASE("-update counts only as the first argument and only as it stands") {
    const STAND_IN program("touch called\n");
    for (const std::vector<std::string> &arguments :
         {std::vector<std::string>{"-x=1", "-update"}, {"--update"}, {"-update=1"}, {"update"}}) {
        CAPTURE console;
        std::vector<std::string> all = {"/bin/morvane"};
        all.insert(all.end(), arguments.begin(), arguments.end());
        TPARAMETER options(all);
        CHECK_FALSE(options.INIT("Morvane", "Author", 2017, "https://maker.invalid"));
    }
    CHECK_FALSE(program.folder.HAS("called"));
}
