#include "script/file/dir_list.hpp"

#include "support/capture.hpp"
#include "support/scratch_folder.hpp"
#include "support/without_root.hpp"

#include <filesystem>
#include <unistd.h>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
std::string NAMES(const TNAMELIST &list) {
    std::string names;
    for (NAT i = 1; i <= list.LENGTH; ++i)
        names += (i > 1 ? " " : "") + GETUTF8(list.GET(i).GET());
    return names;
}

// data/s1/mask, data/s2/deep/mask, data/.h/mask, a file and a link that leads back.
struct STUDY {
    SCRATCH_FOLDER folder;
    TDIRLIST list;
    STUDY() {
        for (const char *name : {"data/s1/mask", "data/s2/deep/mask", "data/.h/mask"})
            std::filesystem::create_directories(name);
        folder.WRITE("data/file", "");
        std::filesystem::create_symlink("..", "data/s1/loop");
    }
};
} // namespace

TEST_CASE("the directories of a mask come without files and names with a point") {
    STUDY study;
    study.list.INIT("data/*");
    CHECK(NAMES(study.list) == "data/s1 data/s2");
    study.list.INIT("data/.*");
    CHECK(NAMES(study.list) == "data/.h");
    study.list.INIT("data/");
    CHECK(NAMES(study.list) == "data");
    study.list.INIT("data/file");
    CHECK(study.list.LENGTH == 0);
    study.list.INIT("data/*/*");
    CHECK(NAMES(study.list) == "data/s1/loop data/s1/mask data/s2/deep");
}

TEST_CASE("the root and the working directory are directories") {
    STUDY study;
    study.list.INIT("/");
    CHECK(NAMES(study.list) == "/");
    study.list.INIT(".");
    CHECK(NAMES(study.list) == ".");
    study.list.INIT("");
    CHECK(study.list.LENGTH == 0);
    study.list.INIT("missing");
    CHECK(study.list.LENGTH == 0);
}

TEST_CASE("a recursive mask looks for its last part at every depth") {
    STUDY study;
    study.list.INITRECURSIVE("data/mask");
    CHECK(NAMES(study.list) == "data/s1/mask data/s2/deep/mask");
    study.list.INITRECURSIVE("data/*");
    CHECK(NAMES(study.list) == "data/s1 data/s1/mask data/s2 data/s2/deep data/s2/deep/mask");
    study.list.INITRECURSIVE("d?ta/s2/m*");
    CHECK(NAMES(study.list) == "data/s2/deep/mask");
    study.list.INITRECURSIVE("mask");
    CHECK(NAMES(study.list) == "data/s1/mask data/s2/deep/mask");
    study.list.INITRECURSIVE("missing/*");
    CHECK(study.list.LENGTH == 0);
}

TEST_CASE("a complete mask gives the directories and all below them") {
    STUDY study;
    study.list.INITCOMPLETE("data/s?");
    CHECK(NAMES(study.list) == "data/s1 data/s1/mask data/s2 data/s2/deep data/s2/deep/mask");
    study.list.INITCOMPLETE("data/s2");
    study.list.GETDIRCOMPLETE("data/s2/deep");
    CHECK(NAMES(study.list) == "data/s2 data/s2/deep data/s2/deep/mask");
    study.list.INITCOMPLETE("missing");
    CHECK(study.list.LENGTH == 0);
}

TEST_CASE("directories that are links are not entered on the way down") {
    STUDY study;
    study.list.INITCOMPLETE(".");
    CHECK(study.list.SEARCH("./data/s1/loop") == 0);
    CHECK(NAMES(study.list) == ". ./data ./data/s1 ./data/s1/mask ./data/s2 ./data/s2/deep "
                               "./data/s2/deep/mask");
}

TEST_CASE("the appending forms keep what the list holds") {
    STUDY study;
    study.list.INIT("data/s2");
    study.list.GETDIR("data/*");
    study.list.GETDIRRECURSIVE("mask");
    CHECK(NAMES(study.list) == "data/s2 data/s1 data/s1/mask data/s2/deep/mask");
}

TEST_CASE("a directory that may not be read is told") {
    STUDY study;
    const CAPTURE console;
    std::filesystem::permissions("data/s1", std::filesystem::perms::none);
    {
        const WITHOUT_ROOT user;
        study.list.INIT("data/s1/*");
    }
    std::filesystem::permissions("data/s1", std::filesystem::perms::owner_all);
    CHECK(study.list.LENGTH == 0);
    CHECK(console.CONTAINS("  File (data/s1/) access denied."));
}

TEST_CASE("a path deeper than a script can hold ends the walk") {
    const SCRATCH_FOLDER folder;
    const CAPTURE console;
    // 60 directories of 5 characters are 60 * 6 - 1 = 359; 42 of them fit: 42 * 6 - 1 = 251.
    for (int i = 0; i < 60; ++i) {
        std::filesystem::create_directory("abcde");
        REQUIRE(::chdir("abcde") == 0);
    }
    for (int i = 0; i < 60; ++i)
        REQUIRE(::chdir("..") == 0);
    TDIRLIST list;
    list.INITCOMPLETE("abcde");
    CHECK(list.LENGTH == 42);
    CHECK(console.CONTAINS("  Names left out (1)"));
}
