#include "foundation/console/files.hpp"
#include "support/capture.hpp"
#include "support/temporary_folder.hpp"

#include <string>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
bool SaveGz(const std::string &path, const std::string &bytes, int level = 6) {
    FILE_WRITE file;
    return ASSIGNGZWRITE(file, path, level) && file.WRITE(bytes) && file.COMMIT();
}

std::string Sample() {
    std::string text;
    for (int i = 0; i < 2000; ++i)
        text += std::to_string(i * i) + " ";
    return text;
}

// All that a stream gives.
std::string ReadAll(GZ_READ &file) {
    std::string text;
    char bytes[1000];
    for (NAT got = 0; (got = file.READ(bytes, sizeof bytes)) > 0;)
        text.append(bytes, static_cast<std::size_t>(got));
    return text;
}
} // namespace

TEST_CASE("what a gzip file was given it gives back") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    REQUIRE(SaveGz(folder.PATH("a.gz"), Sample()));
    CHECK(folder.GET("a.gz").substr(0, 2) == "\x1F\x8B");
    CHECK(folder.ENTRIES() == 1);
    GZ_READ file;
    REQUIRE(ASSIGNGZREAD(file, folder.PATH("a.gz")));
    CHECK(ReadAll(file) == Sample());
    CHECK_FALSE(file.BROKEN());
}

TEST_CASE("opening a gzip file tells the size of the packed file") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    REQUIRE(SaveGz(folder.PATH("a.gz"), Sample()));
    console.CLEAR();
    GZ_READ file;
    REQUIRE(ASSIGNGZREAD(file, folder.PATH("a.gz")));
    const REAL size = static_cast<REAL>(folder.GET("a.gz").size());
    CHECK(console.TEXT() == "Read file (" + folder.PATH("a.gz") + ") with size (" +
                                GETUTF8(GETPREFIX(size, 1, "B")) + ").\n");
}

TEST_CASE("a plain file reads through the gzip port as it is") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    GZ_READ file;
    REQUIRE(ASSIGNGZREAD(file, folder.PUT("a.gz", "plain text")));
    CHECK(ReadAll(file) == "plain text");
    CHECK_FALSE(file.BROKEN());
}

TEST_CASE("a gzip stream is broken at every cut") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    REQUIRE(SaveGz(folder.PATH("a.gz"), "a short text, a short text, a short text"));
    const std::string whole = folder.GET("a.gz");
    for (std::size_t length = 2; length < whole.size(); ++length) {
        GZ_READ file;
        REQUIRE(ASSIGNGZREAD(file, folder.PUT("cut.gz", whole.substr(0, length))));
        ReadAll(file);
        CHECK(file.BROKEN());
    }
}

TEST_CASE("a damaged stream is broken") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    REQUIRE(SaveGz(folder.PATH("a.gz"), Sample()));
    std::string bytes = folder.GET("a.gz");
    bytes[bytes.size() / 2] = static_cast<char>(bytes[bytes.size() / 2] ^ 0x55);
    GZ_READ file;
    REQUIRE(ASSIGNGZREAD(file, folder.PUT("bad.gz", bytes)));
    ReadAll(file);
    CHECK(file.BROKEN());
}

TEST_CASE("a wrong checksum shows when no more than the expected bytes were read") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    REQUIRE(SaveGz(folder.PATH("a.gz"), "0123456789"));
    std::string bytes = folder.GET("a.gz");
    bytes[bytes.size() - 8] = static_cast<char>(bytes[bytes.size() - 8] ^ 1);
    GZ_READ file;
    REQUIRE(ASSIGNGZREAD(file, folder.PUT("bad.gz", bytes)));
    char text[10];
    file.READ(text, 10);
    CHECK(file.BROKEN());
}

TEST_CASE("asking whether a stream is broken loses no byte") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    REQUIRE(SaveGz(folder.PATH("a.gz"), "abcdef"));
    GZ_READ file;
    REQUIRE(ASSIGNGZREAD(file, folder.PATH("a.gz")));
    char text[6] = {};
    CHECK(file.READ(text, 2) == 2);
    CHECK_FALSE(file.BROKEN());
    CHECK(file.READ(text, 6) == 4);
    CHECK(std::string(text, 4) == "cdef");
}

TEST_CASE("a gzip stream can be set to a position of its unpacked bytes") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    REQUIRE(SaveGz(folder.PATH("a.gz"), Sample()));
    GZ_READ file;
    REQUIRE(ASSIGNGZREAD(file, folder.PATH("a.gz")));
    CHECK(file.SEEK(5000));
    char text[10];
    CHECK(file.READ(text, 10) == 10);
    CHECK(std::string(text, 10) == Sample().substr(5000, 10));
    CHECK_FALSE(file.SEEK(-1));
}

TEST_CASE("a missing gzip file is told") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    GZ_READ file;
    CHECK_FALSE(ASSIGNGZREAD(file, folder.PATH("none.gz")));
    CHECK(console.TEXT() == "DOS-Error\n  File (" + folder.PATH("none.gz") + ") not found.\n");
    CHECK(file.READ(nullptr, 0) == 0);
}

TEST_CASE("an abandoned gzip file leaves nothing") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    {
        FILE_WRITE file;
        REQUIRE(ASSIGNGZWRITE(file, folder.PATH("a.gz")));
        file.WRITE("x");
    }
    CHECK(folder.ENTRIES() == 0);
}
