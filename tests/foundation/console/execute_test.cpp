#include "foundation/console/files.hpp"
#include "foundation/console/log.hpp"
#include "support/capture.hpp"
#include "support/child_process.hpp"
#include "support/temporary_folder.hpp"

#include <filesystem>
#include <string>

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("EXEC waits and gives the exit code") {
    CAPTURE console;
    CHECK(EXEC("/bin/sh", "-c 'exit 42'") == 42);
    CHECK(EXEC("/bin/sh", "-c \"exit 0\"") == 0);
    CHECK(console.TEXT().empty());
}

TEST_CASE("EXEC parts the arguments at blanks outside both kinds of quotes") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    const std::string out = folder.PATH("out");
    folder.PUT("show.sh", "for a in \"$@\"; do echo \"[$a]\"; done > " + out + "\n");
    EXEC("/bin/sh", folder.PATH("show.sh") + "  a 'b c' \"d 'e\"  f\"g h\" ''");
    CHECK(folder.GET("out") == "[a]\n[b c]\n[d 'e]\n[fg h]\n[]\n");
}

TEST_CASE("EXEC lets no shell look at the arguments") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    EXEC("/usr/bin/touch", folder.PATH("a;") + " " + folder.PATH("$HOME"));
    CHECK(std::filesystem::exists(folder.PATH("a;")));
    CHECK(std::filesystem::exists(folder.PATH("$HOME")));
}

TEST_CASE("EXEC of a program that cannot be started is told and gives -1") {
    CAPTURE console;
    CHECK(EXEC("/no/such/program", "") == -1);
    CHECK(console.TEXT() == "DOS-Error\n  Path (/no/such/program) not found.\n");
}

TEST_CASE("EXEC of a program that a signal ended gives 128 and the signal") {
    CAPTURE console;
    CHECK(EXEC("/bin/sh", "-c 'kill -9 $$'") == 137);
}

TEST_CASE("EXEC gives the program the signals as they are outside") {
    CHECK(IN_CHILD([] {
              CAPTURE console;
              CONSOLE_START();
              return EXEC("/bin/sh", "-c 'kill -PIPE $$'") == 128 + 13 ? 7 : 1;
          }) == 7);
}

TEST_CASE("GETEXECUTE finds a bare name in the system's folders") {
    CAPTURE console;
    CHECK(GETUTF8(GETEXECUTE("sh")) == "/bin/sh");
    CHECK(GETUTF8(GETEXECUTE("sh.EXE")) == "/bin/sh");
    CHECK(GETUTF8(GETEXECUTE("sh.com")) == "/bin/sh");
    CHECK(console.TEXT().empty());
}

TEST_CASE("GETEXECUTE keeps the name of a file that is there") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    const std::string path = folder.PUT("tool", "x");
    CHECK(GETUTF8(GETEXECUTE(path)) == path);
}

TEST_CASE("GETEXECUTE of an unknown program warns and keeps the name") {
    CAPTURE console;
    CHECK(GETUTF8(GETEXECUTE("no-such-program-here")) == "no-such-program-here");
    CHECK(console.TEXT() == "Possible wrong binary (no-such-program-here)!\n");
}
