#include "foundation/console/file_lines.hpp"
#include "support/capture.hpp"
#include "support/temporary_folder.hpp"

#include <string>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// A file with these bytes, open for reading.
class OPEN_FILE {
public:
    explicit OPEN_FILE(const std::string &bytes) { OPENSILENT(file, folder.PUT("a", bytes)); }
    FILE_READ file;

private:
    TEMPORARY_FOLDER folder;
};

std::string U(const UTF16 &text) { return GETUTF8(text); }
} // namespace

TEST_CASE("FILEREADLN skips empty lines and drops bytes below 32") {
    OPEN_FILE a("one\n\r\n\t\ntw\to\rthree");
    CHECK(U(FILEREADLN(a.file)) == "one");
    CHECK(U(FILEREADLN(a.file)) == "two");
    CHECK(U(FILEREADLN(a.file)) == "three");
    CHECK(U(FILEREADLN(a.file)) == "");
    CHECK(a.file.ATEND());
}

TEST_CASE("FILEREADLN decodes UTF-8") {
    OPEN_FILE a("5 µm\n");
    CHECK(U(FILEREADLN(a.file)) == "5 µm");
}

TEST_CASE("FILEREADLN with a length stops when the line holds more bytes") {
    OPEN_FILE a("abcdefgh\n");
    CHECK(U(FILEREADLN(a.file, 3)) == "abcd");
    CHECK(U(FILEREADLN(a.file, 3)) == "efgh");
}

TEST_CASE("READLN of a file keeps empty lines") {
    OPEN_FILE a("one\r\n\nthree");
    CHECK(U(READLN(a.file)) == "one");
    CHECK(U(READLN(a.file)) == "");
    CHECK(U(READLN(a.file)) == "three");
}

TEST_CASE("FILEREAD gives the words of a header without its comments") {
    OPEN_FILE a("P5 # a comment with words\n# another\n\n  12\t34\r\n255#end\nX");
    for (const char *word : {"P5", "12", "34", "255", "X", ""})
        CHECK(U(FILEREAD(a.file)) == word);
}

TEST_CASE("FILEREAD consumes one byte behind the word") {
    OPEN_FILE a("255\n\n\x01");
    CHECK(U(FILEREAD(a.file)) == "255");
    char bytes[2] = {};
    CHECK(a.file.READ(bytes, 2) == 2);
    CHECK(bytes[0] == '\n');
    CHECK(bytes[1] == '\x01');
}

TEST_CASE("FILEGZREAD reads the same words from a gzip file") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    FILE_WRITE out;
    REQUIRE(ASSIGNGZWRITE(out, folder.PATH("a.gz")));
    CHECK(FILEGZWRITELN(out, "P2 #x"));
    CHECK(FILEGZWRITELNLN(out, "7 8"));
    REQUIRE(out.COMMIT());
    GZ_READ in;
    REQUIRE(ASSIGNGZREAD(in, folder.PATH("a.gz")));
    for (const char *word : {"P2", "7", "8", ""})
        CHECK(U(FILEGZREAD(in)) == word);
}

TEST_CASE("FILEWRITE writes UTF-8 and FILEWRITELN a line feed behind it") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    FILE_WRITE out;
    REQUIRE(ASSIGNWRITE(out, folder.PATH("a")));
    CHECK(FILEWRITE(out, "µ"));
    CHECK(FILEWRITELN(out, "m"));
    REQUIRE(out.COMMIT());
    CHECK(folder.GET("a") == "µm\n");
}

TEST_CASE("a closed file gives empty lines and words") {
    FILE_READ file;
    CHECK(FILEREADLN(file).EMPTY());
    CHECK(FILEREAD(file).EMPTY());
    CHECK(READLN(file).EMPTY());
}
