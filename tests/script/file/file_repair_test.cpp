#include "script/file/file_repair.hpp"

#include "foundation/console/files.hpp"
#include "script/file/file.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <algorithm>

#include <doctest/doctest.h>

using namespace morvane;
using namespace std::string_literals;

TEST_CASE("every line of a repaired text ends with a line feed") {
    CHECK(REPAIRED_TEXT("a\r\nb\rc") == "a\nb\nc\n");
    CHECK(REPAIRED_TEXT("a\r\r\nb\n") == "a\n\nb\n");
    CHECK(REPAIRED_TEXT("a\nb\n") == "a\nb\n");
    CHECK(REPAIRED_TEXT("").empty());
    CHECK(REPAIRED_TEXT("\r") == "\n");
    CHECK(REPAIRED_TEXT("a\r\n\x1A") == "a\n");
}

TEST_CASE("bytes that are no UTF-8 are taken as Latin-1") {
    CHECK(REPAIRED_TEXT("5 \xB5m\n") == "5 µm\n");
    CHECK(REPAIRED_TEXT("5 µm \xB5m\n") == "5 µm µm\n");
    // An overlong form, half of a pair and a cut sequence are none.
    CHECK(REPAIRED_TEXT("\xC0\x80\n") == "\xC3\x80\xC2\x80\n");
    CHECK(REPAIRED_TEXT("\xED\xA0\x80\n") == "\xC3\xAD\xC2\xA0\xC2\x80\n");
    CHECK(REPAIRED_TEXT("a\xE2\x82") == "a\xC3\xA2\xC2\x82\n");
    CHECK(REPAIRED_TEXT("€ 😀\n") == "€ 😀\n");
}

TEST_CASE("a mark at the start of a text goes away, and 16-bit units become UTF-8") {
    CHECK(REPAIRED_TEXT("\xEF\xBB\xBFname\n") == "name\n");
    CHECK(REPAIRED_TEXT("\xFF\xFE"s + "a\0\xB5\0\n\0"s) == "aµ\n");
    CHECK(REPAIRED_TEXT("\xFE\xFF"s + "\0a\x20\xAC\0\n"s) == "a€\n");
    CHECK(REPAIRED_TEXT("\xFF\xFE"s + "\x3D\xD8\x00\xDE"s) == "😀\n");
    CHECK(REPAIRED_TEXT("\xFF\xFE"s + "\x3D\xD8"s) == "?\n");
    CHECK(REPAIRED_TEXT("\xFF\xFE"s + "a\0b"s) == "a\n");
}

TEST_CASE("a file with zero bytes is no text unless a mark says so") {
    CHECK_FALSE(IS_TEXT("a\0b"s));
    CHECK(IS_TEXT("a b"));
    CHECK(IS_TEXT("\xFF\xFE"s + "a\0"s));
}

TEST_CASE("a repaired text keeps its old bytes beside it") {
    const CAPTURE console;
    const SCRATCH_FOLDER folder;
    folder.WRITE("t.csv", "a\r\nb");
    folder.WRITE("t.csv.bak", "older");
    CHECK(REPAIR_FILE("t.csv"));
    CHECK(folder.READ("t.csv") == "a\nb\n");
    CHECK(folder.READ("t.csv.bak") == "older");
    CHECK(folder.READ("t.csv.bak2") == "a\r\nb");
    CHECK(console.CONTAINS("  Repaired (t.csv).\n"));
    CHECK_FALSE(REPAIR_FILE("t.csv"));
    CHECK(console.CONTAINS("  Nothing to repair (t.csv).\n"));
    CHECK(folder.FILES() == 3);
}

TEST_CASE("what is no text stays as it is") {
    const CAPTURE console;
    const SCRATCH_FOLDER folder;
    folder.WRITE("a.bin", "\r\0"s);
    CHECK_FALSE(REPAIR_FILE("a.bin"));
    CHECK(folder.READ("a.bin") == "\r\0"s);
    CHECK(console.CONTAINS("  No text, left as it is (a.bin).\n"));
    CHECK_FALSE(REPAIR_FILE("none"));
    CHECK(console.CONTAINS("  File (none) not found."));
    CHECK(folder.FILES() == 1);
}

TEST_CASE("of a gz file cut at any length the bytes that it still gives are packed anew") {
    const CAPTURE console;
    const SCRATCH_FOLDER folder;
    std::string text;
    for (int i = 0; i < 3000; ++i)
        text += std::to_string(i * 7919 % 10007) + "\n";
    FILE_WRITE file;
    REQUIRE(ASSIGNGZWRITE(file, "whole.gz"));
    REQUIRE(file.WRITE(text));
    REQUIRE(file.COMMIT());
    const std::string bytes = folder.READ("whole.gz");
    CHECK_FALSE(REPAIR_FILE("whole.gz"));
    CHECK(console.CONTAINS("  Nothing to repair (whole.gz).\n"));
    std::size_t longest = 0;
    for (std::size_t length = 20; length < bytes.size(); length += bytes.size() / 16) {
        folder.WRITE("a.gz", bytes.substr(0, length));
        if (!REPAIR_FILE("a.gz")) {
            CHECK(folder.READ("a.gz") == bytes.substr(0, length));
            continue;
        }
        TFILE rescued;
        REQUIRE(rescued.LOAD("a.gz"));
        CHECK(rescued.SIZE() > 0);
        CHECK(text.starts_with(rescued.VIEW()));
        longest = std::max(longest, rescued.VIEW().size());
    }
    CHECK(longest > text.size() / 2);
    CHECK(folder.READ("a.gz.bak").size() < bytes.size());
}

TEST_CASE("a gz file whose checksum is wrong is rescued whole") {
    const CAPTURE console;
    const SCRATCH_FOLDER folder;
    FILE_WRITE file;
    REQUIRE(ASSIGNGZWRITE(file, "a.gz"));
    REQUIRE(file.WRITE("hello"));
    REQUIRE(file.COMMIT());
    std::string bytes = folder.READ("a.gz");
    bytes[bytes.size() - 8] = static_cast<char>(bytes[bytes.size() - 8] ^ 1);
    folder.WRITE("a.gz", bytes);
    REQUIRE(REPAIR_FILE("a.gz"));
    CHECK(console.CONTAINS("  Rescued (a.gz): 5 bytes.\n"));
    TFILE rescued;
    REQUIRE(rescued.LOAD("a.gz"));
    CHECK(rescued.VIEW() == "hello");
    CHECK(folder.READ("a.gz.bak") == bytes);
}

TEST_CASE("of a gz file with a damaged byte all before it is rescued") {
    const CAPTURE console;
    const SCRATCH_FOLDER folder;
    std::string text;
    for (int i = 0; i < 200000; ++i)
        text += std::to_string(i * 7919 % 10007) + "\n";
    FILE_WRITE file;
    REQUIRE(ASSIGNGZWRITE(file, "a.gz"));
    REQUIRE(file.WRITE(text));
    REQUIRE(file.COMMIT());
    std::string bytes = folder.READ("a.gz");
    // A run of ones in the middle of the packed bytes is no valid code for long.
    for (std::size_t i = 0; i < 64; ++i)
        bytes[bytes.size() / 2 + i] = '\xFF';
    folder.WRITE("a.gz", bytes);
    REQUIRE(REPAIR_FILE("a.gz"));
    TFILE rescued;
    REQUIRE(rescued.LOAD("a.gz"));
    const auto differs = std::mismatch(rescued.VIEW().begin(), rescued.VIEW().end(), text.begin());
    CHECK(differs.first - rescued.VIEW().begin() >
          static_cast<std::ptrdiff_t>(text.size() * 4 / 10));
}

TEST_CASE("a gz file of two streams needs no repair, and bytes behind the end are no part of it") {
    const CAPTURE console;
    const SCRATCH_FOLDER folder;
    FILE_WRITE file;
    REQUIRE(ASSIGNGZWRITE(file, "a.gz"));
    REQUIRE(file.WRITE("one"));
    REQUIRE(file.COMMIT());
    const std::string bytes = folder.READ("a.gz");
    folder.WRITE("two.gz", bytes + bytes);
    CHECK_FALSE(REPAIR_FILE("two.gz"));
    CHECK(console.CONTAINS("  Nothing to repair (two.gz)."));
    folder.WRITE("tail.gz", bytes + "tail");
    CHECK_FALSE(REPAIR_FILE("tail.gz"));
    CHECK(console.CONTAINS("  Nothing to repair (tail.gz)."));
    folder.WRITE("cut.gz", bytes + bytes.substr(0, bytes.size() - 1));
    CHECK(REPAIR_FILE("cut.gz"));
    CHECK(console.CONTAINS("  Rescued (cut.gz): 6 bytes."));
    folder.WRITE("none.gz", "no gz file");
    CHECK_FALSE(REPAIR_FILE("none.gz"));
    CHECK(console.CONTAINS("  Nothing to rescue (none.gz)."));
}

TEST_CASE("a mask repairs each of its files") {
    const CAPTURE console;
    const SCRATCH_FOLDER folder;
    folder.WRITE("a.txt", "a\r\n");
    folder.WRITE("b.txt", "b");
    CHECK(REPAIR_FILES("*.txt"));
    CHECK(folder.READ("a.txt") + folder.READ("b.txt") == "a\nb\n");
}
