#include "foundation/console/files.hpp"
#include "support/capture.hpp"
#include "support/temporary_folder.hpp"

#include <string>

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("ASSIGNREAD with an empty name prints Empty filename! and gives false") {
    CAPTURE console;
    FILE_READ file;
    CHECK_FALSE(ASSIGNREAD(file, ""));
    CHECK(console.TEXT() == "Empty filename!\n");
}

TEST_CASE("every opening refuses an empty name") {
    CAPTURE console;
    FILE_READ read;
    GZ_READ gz;
    FILE_WRITE write;
    FILE_TEXT text;
    CHECK_FALSE(ASSIGNREADTEXT(read, ""));
    CHECK_FALSE(ASSIGNGZREAD(gz, ""));
    CHECK_FALSE(ASSIGNWRITE(write, ""));
    CHECK_FALSE(ASSIGNGZWRITE(write, ""));
    CHECK_FALSE(ASSIGNWRITE(text, ""));
    CHECK_FALSE(ASSIGNAPPEND(text, ""));
    std::string lines;
    for (int i = 0; i < 6; ++i)
        lines += "Empty filename!\n";
    CHECK(console.TEXT() == lines);
}

TEST_CASE("opening a byte file tells its size in decimal units") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    const std::string path = folder.PUT("a", std::string(1234, 'x'));
    FILE_READ file;
    CHECK(ASSIGNREAD(file, path));
    CHECK(file.SIZE() == 1234);
    CHECK(console.TEXT() == "Read file (" + path + ") with size (1.2 kB).\n");
}

TEST_CASE("opening a text file tells no size") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    const std::string path = folder.PUT("a", "x");
    FILE_READ file;
    CHECK(ASSIGNREADTEXT(file, path));
    CHECK(console.TEXT() == "Read file (" + path + ").\n");
}

TEST_CASE("OPENSILENT says nothing, found or not") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    FILE_READ file;
    CHECK(OPENSILENT(file, folder.PUT("a", "x")));
    CHECK_FALSE(OPENSILENT(file, folder.PATH("b")));
    CHECK_FALSE(OPENSILENT(file, folder.PATH()));
    CHECK_FALSE(OPENSILENT(file, ""));
    CHECK(console.TEXT().empty());
}

TEST_CASE("a missing file and a missing directory are told apart") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    FILE_READ file;
    CHECK_FALSE(ASSIGNREAD(file, folder.PATH("none")));
    CHECK(console.TEXT() == "DOS-Error\n  File (" + folder.PATH("none") + ") not found.\n");
    console.CLEAR();
    CHECK_FALSE(ASSIGNREAD(file, folder.PATH("none/a")));
    CHECK(console.TEXT() == "DOS-Error\n  Path (" + folder.PATH("none/a") + ") not found.\n");
}

TEST_CASE("a directory cannot be read as a file") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    FILE_READ file;
    GZ_READ gz;
    CHECK_FALSE(ASSIGNREAD(file, folder.PATH()));
    CHECK_FALSE(ASSIGNGZREAD(gz, folder.PATH()));
    CHECK(console.CONTAINS("  File (" + folder.PATH() + ") access denied."));
}

TEST_CASE("READ gives what the file holds and no more") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    FILE_READ file;
    REQUIRE(ASSIGNREAD(file, folder.PUT("a", "abcdef")));
    char bytes[8] = {};
    CHECK(file.READ(bytes, 4) == 4);
    CHECK(file.POSITION() == 4);
    CHECK_FALSE(file.ATEND());
    CHECK(file.READ(bytes, 4) == 2);
    CHECK(file.ATEND());
    CHECK(file.SEEK(1));
    CHECK(file.READ(bytes, 2) == 2);
    CHECK(std::string(bytes, 2) == "bc");
    CHECK(file.READ(bytes, -1) == 0);
    CHECK_FALSE(file.SEEK(-1));
}

TEST_CASE("a closed file reads nothing") {
    FILE_READ file;
    char byte = 0;
    CHECK(file.READ(&byte, 1) == 0);
    CHECK(file.ATEND());
    CHECK_FALSE(file.SEEK(0));
    file.CLOSE();
    CHECK_FALSE(file.OPEN());
}

TEST_CASE("a text file shows each line as soon as it is written") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    FILE_TEXT file;
    REQUIRE(ASSIGNWRITE(file, folder.PATH("a.txt")));
    CHECK(console.TEXT() == "Write file (" + folder.PATH("a.txt") + ").\n");
    file.WRITE("one\n");
    CHECK(folder.GET("a.txt") == "one\n");
    file.WRITE("two");
    CHECK(file.FLUSH());
    CHECK(folder.GET("a.txt") == "one\ntwo");
}

TEST_CASE("ASSIGNWRITE of a text file truncates and ASSIGNAPPEND goes on at the end") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    folder.PUT("a.txt", "old text");
    FILE_TEXT file;
    REQUIRE(ASSIGNWRITE(file, folder.PATH("a.txt")));
    file.WRITE("new");
    file.CLOSE();
    REQUIRE(ASSIGNAPPEND(file, folder.PATH("a.txt")));
    CHECK(console.CONTAINS("Append file (" + folder.PATH("a.txt") + ").\n"));
    file.WRITE(" end");
    file.CLOSE();
    CHECK(folder.GET("a.txt") == "new end");
}

TEST_CASE("ASSIGNAPPEND creates a missing file") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    FILE_TEXT file;
    CHECK(ASSIGNAPPEND(file, folder.PATH("a.txt")));
    file.WRITE("x");
    file.CLOSE();
    CHECK(folder.GET("a.txt") == "x");
}

TEST_CASE("a text file on a full disk is told once, when it closes") {
    CAPTURE console;
    FILE_TEXT file;
    REQUIRE(ASSIGNWRITE(file, "/dev/full"));
    console.CLEAR();
    file.WRITE("one\n");
    file.WRITE("two\n");
    CHECK_FALSE(file.FLUSH());
    CHECK(console.TEXT().empty());
    file.CLOSE();
    CHECK(console.TEXT() == "I/O-Error\n  Disk (/dev/full) write error.\n");
}
