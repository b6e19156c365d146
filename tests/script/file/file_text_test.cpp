#include "script/file/file_text.hpp"
#include "support/capture.hpp"
#include "support/temporary_folder.hpp"

#include <string>
#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
using LINES = std::vector<std::string>;

LINES LinesOf(std::string_view bytes) {
    TFILETEXT text;
    LINES lines;
    if (!text.LOADBYTES(bytes)) return {"failed"};
    for (NAT line = 1; line <= text.LENGTH(); ++line)
        lines.push_back(GETUTF8(text.GET(line)));
    return lines;
}
} // namespace

TEST_CASE("a line ends with a line feed, a carriage return, or both in that order") {
    CHECK(LinesOf("a\nb\rc\r\nd\n") == LINES{"a", "b", "c", "d"});
    CHECK(LinesOf("a\n\rb\n") == LINES{"a", "", "b"});
    CHECK(LinesOf("a\n\nb\n") == LINES{"a", "", "b"});
}

TEST_CASE("a last line without an end counts when it has characters") {
    CHECK(LinesOf("a\nb") == LINES{"a", "b"});
    CHECK(LinesOf("a\n") == LINES{"a"});
    CHECK(LinesOf("ab") == LINES{"ab"});
}

TEST_CASE("a file of fewer than 2 bytes has no lines") {
    CHECK(LinesOf("") == LINES{});
    CHECK(LinesOf("a") == LINES{});
    CHECK(LinesOf("\n\n") == LINES{"", ""});
}

TEST_CASE("lines are decoded from UTF-8 and given raw by GETVIEW") {
    TFILETEXT text;
    REQUIRE(text.LOADBYTES("5 µm\n"));
    CHECK(text.GET(1).LENGTH() == 4);
    CHECK(text.GETVIEW(1) == "5 µm");
}

TEST_CASE("lines outside the text are empty and have no position") {
    TFILETEXT text;
    REQUIRE(text.LOADBYTES("ab\ncd\n"));
    for (const NAT line : {-1, 0, 3}) {
        CHECK(text.GET(line).EMPTY());
        CHECK(text.GETVIEW(line).empty());
        CHECK(text.POSGET(line) == 0);
    }
    CHECK(text.POSGET(1) == 1);
    CHECK(text.POSGET(2) == 4);
}

TEST_CASE("TFILETEXT turns every byte of a line end into a zero byte") {
    TFILETEXT text;
    REQUIRE(text.LOADBYTES("a\r\nb\rc\n\nd"));
    CHECK(text.VIEW() == std::string_view("a\0\0b\0c\0\0d", 9));
}

TEST_CASE("TFILEREADTEXT leaves the bytes as they are and has the same lines") {
    TFILEREADTEXT text;
    REQUIRE(text.LOADBYTES("a\r\nb\n"));
    CHECK(text.VIEW() == "a\r\nb\n");
    CHECK(text.LENGTH() == 2);
    CHECK(text.GETVIEW(2) == "b");
}

TEST_CASE("typed reads take little-endian values at a byte position") {
    TFILEREADTEXT text;
    REQUIRE(text.LOADBYTES(std::string_view("\x01\xFE\xFF\xFF\xFF\x00\x00\xC0\x3F", 9)));
    CHECK(text.GETBYTE(1) == 1);
    CHECK(text.GETINT(2) == -2);
    CHECK(text.GETSINGLE(6) == 1.5F);
    const HYPERNAT rgba = text.GETRGBA(1);
    CHECK(rgba.x == 1);
    CHECK(rgba.y == 254);
    CHECK(rgba.z == 255);
    CHECK(rgba.w == 255);
}

TEST_CASE("typed reads outside the file give 0") {
    TFILEREADTEXT text;
    REQUIRE(text.LOADBYTES("\xFF\xFF\xFF\xFF"));
    CHECK(text.GETINT(1) == -1);
    for (const NAT position : {NATMIN, NAT{0}, NAT{2}, NATMAX}) {
        CHECK(text.GETINT(position) == 0);
        CHECK(text.GETSINGLE(position) == 0);
        CHECK(text.GETRGBA(position).x == 0);
    }
    CHECK(text.GETBYTE(0) == 0);
    CHECK(text.GETBYTE(5) == 0);
    CHECK(text.GETPCHAR(5).empty());
    TFILEREADTEXT empty;
    CHECK(empty.GETINT(1) == 0);
}

TEST_CASE("GETPCHAR reads up to a zero byte or the end of the file") {
    TFILETEXT text;
    REQUIRE(text.LOADBYTES("ab\ncd"));
    CHECK(text.GETPCHAR(1) == "ab");
    CHECK(text.GETPCHAR(2) == "b");
    CHECK(text.GETPCHAR(4) == "cd");
}

TEST_CASE("a text loads from a packed file too") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    TFILE file;
    REQUIRE(file.LOADBYTES("one\ntwo\n"));
    REQUIRE(file.SAVE(folder.PATH("a.gz")));
    TFILETEXT text;
    CHECK(text.LOAD(folder.PATH("a.gz")));
    CHECK(text.LENGTH() == 2);
    CHECK(text.GETVIEW(2) == "two");
}

TEST_CASE("a failed load leaves no lines") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    TFILETEXT text;
    REQUIRE(text.LOADBYTES("one\ntwo\n"));
    CHECK_FALSE(text.LOAD(folder.PATH("none")));
    CHECK(text.LENGTH() == 0);
    CHECK(text.SIZE() == 0);
}
