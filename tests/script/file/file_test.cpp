#include "script/file/file.hpp"
#include "support/capture.hpp"
#include "support/temporary_folder.hpp"

#include <string>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
std::string Long() {
    std::string text;
    for (int i = 0; i < 40'000; ++i)
        text += std::to_string(i) + ",";
    return text;
}
} // namespace

TEST_CASE("a whole file is loaded with its size") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    TFILE file;
    CHECK(file.LOAD(folder.PUT("a", std::string("a\0b\xFF", 4))));
    CHECK(file.SIZE() == 4);
    CHECK(file.VIEW() == std::string_view("a\0b\xFF", 4));
    CHECK(console.TEXT() == "Read file (" + folder.PATH("a") + ") with size (4 B).\n");
}

TEST_CASE("an empty file loads as nothing") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    TFILE file;
    CHECK(file.LOAD(folder.PUT("a", "")));
    CHECK(file.SIZE() == 0);
    CHECK(file.VIEW().empty());
}

TEST_CASE("a failed load leaves nothing of what was held") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    TFILE file;
    REQUIRE(file.LOADBYTES("held"));
    CHECK_FALSE(file.LOAD(folder.PATH("none")));
    CHECK(file.SIZE() == 0);
    CHECK(console.TEXT() == "DOS-Error\n  File (" + folder.PATH("none") + ") not found.\n");
}

TEST_CASE("a file whose size the system tells as 0 is read to its end") {
    CAPTURE console;
    TFILE file;
    CHECK(file.LOAD("/proc/self/status"));
    CHECK(file.SEARCHPOS("Pid:") > 0);
}

TEST_CASE("a name ending in gz is packed by SAVE and unpacked by LOAD") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    TFILE file, again;
    REQUIRE(file.LOADBYTES(Long()));
    CHECK(file.SAVE(folder.PATH("a.txt.gz")));
    CHECK(folder.GET("a.txt.gz").size() < Long().size());
    CHECK(folder.GET("a.txt.gz").substr(0, 2) == "\x1F\x8B");
    CHECK(again.LOAD(folder.PATH("a.txt.gz")));
    CHECK(again.VIEW() == Long());
}

TEST_CASE("other names are saved as they are, ending apart from case") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    TFILE file;
    REQUIRE(file.LOADBYTES("text"));
    CHECK(file.SAVE(folder.PATH("a.txt")));
    CHECK(folder.GET("a.txt") == "text");
    CHECK(file.SAVE(folder.PATH("a.GZ")));
    CHECK(folder.GET("a.GZ").substr(0, 2) == "\x1F\x8B");
}

TEST_CASE("a cut gz file is told and leaves nothing") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    TFILE file;
    REQUIRE(file.LOADBYTES(Long()));
    REQUIRE(file.SAVE(folder.PATH("a.gz")));
    const std::string bytes = folder.GET("a.gz");
    console.CLEAR();
    CHECK_FALSE(file.LOAD(folder.PUT("cut.gz", bytes.substr(0, bytes.size() / 2))));
    CHECK(file.SIZE() == 0);
    CHECK(console.CONTAINS("Fatal-Error\n  CRC error in data (" + folder.PATH("cut.gz") + ").\n"));
}

TEST_CASE("a failed SAVE is told and false") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    TFILE file;
    REQUIRE(file.LOADBYTES("text"));
    CHECK_FALSE(file.SAVE(folder.PATH("none/a")));
    CHECK(console.CONTAINS("Path (" + folder.PATH("none/a") + ") not found."));
}

TEST_CASE("SEARCHPOS finds a text at or behind a position, counted from 1") {
    TFILE file;
    REQUIRE(file.LOADBYTES("abcabc"));
    CHECK(file.SEARCHPOS("abc") == 1);
    CHECK(file.SEARCHPOS("abc", 2) == 4);
    CHECK(file.SEARCHPOS("abc", 4) == 4);
    CHECK(file.SEARCHPOS("abc", 5) == 0);
    CHECK(file.SEARCHPOS("x") == 0);
    CHECK(file.SEARCHPOS("") == 0);
    CHECK(file.SEARCHPOS("a", 100) == 0);
    CHECK(file.SEARCHPOS("a", -100) == 1);
}
