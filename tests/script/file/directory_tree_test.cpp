#include "script/file/directory_tree.hpp"

#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
namespace fs = std::filesystem;

struct TREE_TEST {
    CAPTURE console;
    SCRATCH_FOLDER folder;
};
} // namespace

TEST_CASE("a full directory is told and left by DELETE_DIRECTORY") {
    TREE_TEST test;
    fs::create_directory("d");
    test.folder.WRITE("d/a", "1");
    CHECK_FALSE(DELETE_DIRECTORY("d"));
    CHECK(test.console.TEXT() == "  Directory not empty!\n");
    CHECK(test.folder.HAS("d/a"));
    fs::remove("d/a");
    test.console.CLEAR();
    CHECK(DELETE_DIRECTORY("d/"));
    CHECK_FALSE(test.folder.HAS("d"));
    CHECK(test.console.CONTAINS("Remove directory (d"));
}

TEST_CASE("a full directory is told and emptied first by DELETE_TREE") {
    TREE_TEST test;
    fs::create_directories("d/e");
    test.folder.WRITE("d/a", "1");
    test.folder.WRITE("d/e/.b", "1");
    CHECK(DELETE_TREE("d"));
    CHECK(test.console.TEXT() == "  Directory not empty! Delete files.\nDelete file (d/a).\n"
                                 "Delete file (d/e/.b).\nRemove directory (d/e).\n"
                                 "Remove directory (d).\n");
    CHECK_FALSE(test.folder.HAS("d"));
}

TEST_CASE("DELETE_TREE never follows a link") {
    TREE_TEST test;
    fs::create_directories("d");
    fs::create_directory("keep");
    test.folder.WRITE("keep/a", "1");
    fs::create_directory_symlink("../keep", "d/link");
    fs::create_directory_symlink("keep", "link");
    CHECK(DELETE_TREE("d"));
    CHECK(test.folder.READ("keep/a") == "1");
    // A slash behind the name of a link would make the system follow it.
    CHECK(DELETE_TREE("link/"));
    CHECK_FALSE(fs::is_symlink("link"));
    CHECK(test.folder.READ("keep/a") == "1");
}

TEST_CASE("the root, the working directory and those above it are never deleted") {
    TREE_TEST test;
    fs::create_directories("d/e");
    const std::string here = fs::current_path().string();
    REQUIRE(::chdir("d/e") == 0);
    // The root only by the call that empties nothing: both ask the same guard.
    for (const char *name : {"/", "//", "/.", "/.."}) {
        test.console.CLEAR();
        CHECK_FALSE(DELETE_DIRECTORY(name));
        CHECK(test.console.CONTAINS(") is never deleted.\n"));
    }
    for (const char *name : {".", "..", "./", "../..", "x/.."}) {
        test.console.CLEAR();
        CHECK_FALSE(DELETE_TREE(name));
        CHECK_FALSE(DELETE_DIRECTORY(name));
        CHECK(test.console.CONTAINS(") is never deleted.\n"));
    }
    test.console.CLEAR();
    CHECK_FALSE(DELETE_TREE(""));
    CHECK(test.console.TEXT() == "Empty filename!\n");
    for (const std::string &name : {here, here + "/d", here + "/d/e/"}) {
        test.console.CLEAR();
        CHECK_FALSE(DELETE_TREE(name));
        CHECK(test.console.CONTAINS("  Cannot remove current directory ("));
    }
    CHECK(fs::exists(here + "/d/e"));
    REQUIRE(::chdir(here.c_str()) == 0);
}

TEST_CASE("a name that is no directory is told and left") {
    TREE_TEST test;
    test.folder.WRITE("a", "1");
    CHECK_FALSE(DELETE_TREE("a"));
    CHECK(test.folder.HAS("a"));
    CHECK(test.console.CONTAINS("  Path (a) not found."));
    CHECK_FALSE(DELETE_DIRECTORY("none"));
    CHECK(test.console.CONTAINS("(none) not found."));
}

TEST_CASE("a wildcard in the name of a directory stands for itself when deleting") {
    TREE_TEST test;
    fs::create_directory("ab");
    CHECK_FALSE(DELETE_TREE("*"));
    CHECK_FALSE(DELETE_TREE("a?"));
    CHECK(test.folder.HAS("ab"));
}

TEST_CASE("a copied directory holds files, directories and links of the source") {
    TREE_TEST test;
    fs::create_directories("a/sub/.h");
    test.folder.WRITE("a/x.gz", "bytes");
    test.folder.WRITE("a/sub/.h/y", "2");
    fs::create_symlink("x.gz", "a/link");
    CHECK(COPY_TREE("a", "new/b"));
    CHECK(test.folder.READ("new/b/x.gz") == "bytes");
    CHECK(test.folder.READ("new/b/sub/.h/y") == "2");
    CHECK(fs::read_symlink("new/b/link") == "x.gz");
    for (const char *line : {"Make directory (new).\n", "Make directory (new/b).\n",
                             "Make directory (new/b/sub).\n", "Make directory (new/b/sub/.h).\n"})
        CHECK(test.console.CONTAINS(line));
    test.console.CLEAR();
    test.folder.WRITE("new/b/other", "3");
    test.folder.WRITE("a/x.gz", "again");
    CHECK(COPY_TREE("a/", "new/b/"));
    CHECK(test.folder.READ("new/b/x.gz") == "again");
    CHECK(test.folder.READ("new/b/other") == "3");
    CHECK_FALSE(test.console.CONTAINS("Make directory"));
}

TEST_CASE("a directory is not copied into itself") {
    TREE_TEST test;
    fs::create_directories("a/b");
    fs::create_directory_symlink("a", "link");
    for (const char *target : {"a", "a/", "a/c", "a/b/c/d", "link/x", "./a/../a/x"}) {
        test.console.CLEAR();
        CHECK_FALSE(COPY_TREE("a", target));
        CHECK(test.console.CONTAINS("  Target lies inside the source ("));
    }
    CHECK_FALSE(test.folder.HAS("a/c"));
    CHECK(COPY_TREE("a", "ab"));
    CHECK_FALSE(COPY_TREE("a", ""));
    CHECK_FALSE(COPY_TREE("none", "x"));
    CHECK_FALSE(test.folder.HAS("x"));
}

TEST_CASE("a directory copied to the one above it never falls upon what is still to be copied") {
    TREE_TEST test;
    fs::create_directories("p/b/b");
    test.folder.WRITE("p/b/f", "outer");
    test.folder.WRITE("p/b/b/f", "inner");
    CHECK_FALSE(COPY_TREE("p/b", "p"));
    CHECK(test.console.CONTAINS("  Target lies inside the source (p/b)."));
    CHECK(test.folder.READ("p/b/f") == "outer");
    CHECK(test.folder.READ("p/b/b/f") == "inner");
    CHECK(test.folder.READ("p/f") == "outer");
}

TEST_CASE("a link in the target that leads into the source is not followed") {
    TREE_TEST test;
    fs::create_directories("a/x");
    fs::create_directories("a/y");
    fs::create_directory("b");
    fs::create_directory_symlink("../a/y", "b/x");
    test.folder.WRITE("a/x/f", "x");
    test.folder.WRITE("a/y/f", "y");
    CHECK_FALSE(COPY_TREE("a", "b"));
    CHECK(test.folder.READ("a/y/f") == "y");
    CHECK(test.folder.READ("b/y/f") == "y");
}

TEST_CASE("a pipe in a directory is told and the rest copied") {
    TREE_TEST test;
    fs::create_directory("a");
    test.folder.WRITE("a/x", "1");
    REQUIRE(::mkfifo("a/pipe", 0600) == 0);
    CHECK_FALSE(COPY_TREE("a", "b"));
    CHECK(test.console.CONTAINS("  No regular file (a/pipe)."));
    CHECK(test.folder.READ("b/x") == "1");
}

TEST_CASE("a directory gets another name, a file does not") {
    TREE_TEST test;
    fs::create_directory("a");
    test.folder.WRITE("f", "1");
    CHECK(RENAME_DIRECTORY("a", "b"));
    CHECK(test.console.TEXT() == "Rename directory (a -> b).\n");
    CHECK(test.folder.HAS("b"));
    CHECK_FALSE(RENAME_DIRECTORY("f", "g"));
    CHECK(test.folder.HAS("f"));
}
