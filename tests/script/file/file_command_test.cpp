#include "script/file/file_command.hpp"
#include "support/capture.hpp"
#include "support/temporary_folder.hpp"

#include <string>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// The lines as "file:line text", one a row.
std::string Listing(const TFILECOMMAND &script) {
    std::string rows;
    for (NAT line = 1; line <= script.LENGTH(); ++line)
        rows += GETUTF8(script.GETREALFILE(line)) + ":" + std::to_string(script.GETREALLINE(line)) +
                " " + std::string(script.GETVIEW(line)) + "\n";
    return rows;
}
} // namespace

TEST_CASE("without includes the real line is the line and the file the loaded one") {
    TFILECOMMAND script;
    REQUIRE(script.LOADBYTES("a\nb\n", "main"));
    CHECK(Listing(script) == "main:1 a\nmain:2 b\n");
    CHECK(script.GETREALLINE(9) == 9);
    CHECK(GETUTF8(script.GETREALFILE(9)) == "main");
}

TEST_CASE("LOADINSERT replaces the line by the file's lines and keeps every real line") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    const std::string name = folder.PUT("part", "x\ny\r\nz");
    TFILECOMMAND script;
    REQUIRE(script.LOADBYTES("a\ninclude part\nb\nc", "main"));
    CHECK(script.LOADINSERT(2, name));
    CHECK(Listing(script) ==
          "main:1 a\n" + name + ":1 x\n" + name + ":2 y\n" + name + ":3 z\nmain:3 b\nmain:4 c\n");
    CHECK(console.TEXT() == "Read file (" + name + ") with size (6 B).\n");
}

TEST_CASE("the first and the last line can be replaced") {
    TFILECOMMAND script;
    REQUIRE(script.LOADBYTES("a\nb\nc\n", "main"));
    REQUIRE(script.INSERTBYTES(1, "1\n2\n", "one"));
    REQUIRE(script.INSERTBYTES(4, "3\n4\n", "two"));
    CHECK(Listing(script) == "one:1 1\none:2 2\nmain:2 b\ntwo:1 3\ntwo:2 4\n");
}

TEST_CASE("a file inside an included file keeps its own numbering") {
    TFILECOMMAND script;
    REQUIRE(script.LOADBYTES("a\nb\n", "main"));
    REQUIRE(script.INSERTBYTES(1, "c\nd\n", "one"));
    REQUIRE(script.INSERTBYTES(2, "e\nf\n", "two"));
    CHECK(Listing(script) == "one:1 c\ntwo:1 e\ntwo:2 f\nmain:2 b\n");
    CHECK(script.FILES().size() == 3);
}

TEST_CASE("a file named twice is listed once") {
    TFILECOMMAND script;
    REQUIRE(script.LOADBYTES("a\nb\n", "main"));
    REQUIRE(script.INSERTBYTES(1, "c\n", "one"));
    REQUIRE(script.INSERTBYTES(2, "c\n", "one"));
    CHECK(script.FILES().size() == 2);
}

TEST_CASE("a file without lines leaves one empty line in its place") {
    TFILECOMMAND script;
    REQUIRE(script.LOADBYTES("a\ninclude x\nb\n", "main"));
    REQUIRE(script.INSERTBYTES(2, "", "none"));
    CHECK(Listing(script) == "main:1 a\nnone:1 \nmain:3 b\n");
}

TEST_CASE("an include that cannot be read leaves the script as it was") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    TFILECOMMAND script;
    REQUIRE(script.LOADBYTES("a\nb\n", "main"));
    CHECK_FALSE(script.LOADINSERT(1, folder.PATH("none")));
    CHECK_FALSE(script.INSERTBYTES(0, "x\n", "n"));
    CHECK_FALSE(script.INSERTBYTES(3, "x\n", "n"));
    CHECK(Listing(script) == "main:1 a\nmain:2 b\n");
}

TEST_CASE("a file that includes itself comes to an end") {
    CAPTURE console;
    TFILECOMMAND script;
    REQUIRE(script.LOADBYTES("include me\ninclude me\n", "me"));
    NAT includes = 0;
    while (script.INSERTBYTES(includes + 1, "first\ninclude me\n", "me"))
        ++includes;
    CHECK(includes == TFILECOMMAND::DEEPEST_INCLUDE);
    CHECK(console.TEXT() == "  Include file (me) grows the script without end!\n");
}

TEST_CASE("includes beside each other do not count as deep") {
    TFILECOMMAND script;
    std::string lines;
    for (int i = 0; i < 200; ++i)
        lines += "x\n";
    REQUIRE(script.LOADBYTES(lines, "main"));
    for (NAT line = 1; line <= 200; ++line)
        REQUIRE(script.INSERTBYTES(line, "y\n", "one"));
    CHECK(script.LENGTH() == 200);
    CHECK(script.GETVIEW(200) == "y");
}

TEST_CASE("a new load forgets the includes of the old script") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    TFILECOMMAND script;
    REQUIRE(script.LOADBYTES("a\nb\n", "main"));
    REQUIRE(script.INSERTBYTES(1, "c\nd\n", "one"));
    const std::string name = folder.PUT("other", "e\nf\n");
    REQUIRE(script.LOAD(name));
    CHECK(Listing(script) == name + ":1 e\n" + name + ":2 f\n");
    CHECK_FALSE(script.LOAD(folder.PATH("none")));
    CHECK(script.LENGTH() == 0);
    CHECK(script.GETREALFILE(1).EMPTY());
}
