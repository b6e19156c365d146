#include "script/file/file_copy.hpp"

#include "foundation/console/files.hpp"
#include "script/file/file.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"
#include "support/without_root.hpp"

#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
namespace fs = std::filesystem;

// A gz file of a text.
void WRITE_GZ(const char *name, std::string_view text) {
    FILE_WRITE file;
    REQUIRE(ASSIGNGZWRITE(file, name));
    REQUIRE(file.WRITE(text));
    REQUIRE(file.COMMIT());
}

bool IS_PACKED(const std::string &bytes) { return bytes.starts_with("\x1F\x8B"); }

std::string UNPACKED(const char *name) {
    TFILE file;
    file.LOAD(name);
    return std::string(file.VIEW());
}

struct COPY_TEST {
    CAPTURE console;
    SCRATCH_FOLDER folder;
};
} // namespace

TEST_CASE("a copy makes the missing directories of its target") {
    COPY_TEST test;
    test.folder.WRITE("a.txt", "abc");
    CHECK(COPY_FILE("a.txt", "x/y/b.txt", COPY_METHOD::AUTO));
    CHECK(test.folder.READ("x/y/b.txt") == "abc");
    CHECK(test.console.TEXT() == "Make directory (x).\nMake directory (x/y).\n"
                                 "Write file (x/y/b.txt).\n"
                                 "Read file (a.txt) with size (3 B).\n");
}

TEST_CASE("copying by auto packs and unpacks when exactly one name ends with gz") {
    COPY_TEST test;
    test.folder.WRITE("a.txt", "abcabc");
    CHECK(COPY_FILE("a.txt", "a.txt.gz", COPY_METHOD::AUTO));
    CHECK(IS_PACKED(test.folder.READ("a.txt.gz")));
    CHECK(UNPACKED("a.txt.gz") == "abcabc");
    CHECK(COPY_FILE("a.txt.gz", "b.txt", COPY_METHOD::AUTO));
    CHECK(test.folder.READ("b.txt") == "abcabc");
    CHECK(COPY_FILE("a.txt.gz", "b.GZ", COPY_METHOD::AUTO));
    CHECK(test.folder.READ("b.GZ") == test.folder.READ("a.txt.gz"));
}

TEST_CASE("the other methods of copying do not look at the names") {
    COPY_TEST test;
    test.folder.WRITE("a", "abc");
    CHECK(COPY_FILE("a", "b.gz", COPY_METHOD::BYTES));
    CHECK(test.folder.READ("b.gz") == "abc");
    CHECK(COPY_FILE("a", "c", COPY_METHOD::PACK));
    CHECK(IS_PACKED(test.folder.READ("c")));
    CHECK(COPY_FILE("c", "d", COPY_METHOD::UNPACK));
    CHECK(test.folder.READ("d") == "abc");
    CHECK(COPY_FILE("a", "e", COPY_METHOD::UNPACK));
    CHECK(test.folder.READ("e") == "abc");
}

TEST_CASE("the words of the copy methods are read in any case") {
    COPY_METHOD method = COPY_METHOD::BYTES;
    CHECK(READ_COPY_METHOD("Pack", method));
    CHECK(method == COPY_METHOD::PACK);
    CHECK(READ_COPY_METHOD("unpack", method));
    CHECK(method == COPY_METHOD::UNPACK);
    CHECK(READ_COPY_METHOD("bytes", method));
    CHECK(method == COPY_METHOD::BYTES);
    CHECK_FALSE(READ_COPY_METHOD("fast", method));
    CHECK(method == COPY_METHOD::BYTES);
    CHECK(READ_COPY_METHOD("AUTO", method));
    CHECK(method == COPY_METHOD::AUTO);
}

TEST_CASE("the same file as source and target of a copy is refused in words") {
    COPY_TEST test;
    test.folder.WRITE("a.txt", "abc");
    fs::create_hard_link("a.txt", "hard.txt");
    fs::create_symlink("a.txt", "soft.txt");
    for (const char *target : {"a.txt", "./a.txt", "hard.txt", "soft.txt"}) {
        test.console.CLEAR();
        CHECK_FALSE(COPY_FILE("a.txt", target, COPY_METHOD::AUTO));
        CHECK(test.console.TEXT() == "  Source and target are the same file (a.txt).\n");
    }
    CHECK_FALSE(MOVE_FILE("a.txt", "hard.txt"));
    CHECK_FALSE(RENAME_FILE("a.txt", "a.txt"));
    CHECK(test.folder.READ("a.txt") == "abc");
}

TEST_CASE("a damaged gz source leaves an old target as it was") {
    COPY_TEST test;
    WRITE_GZ("a.gz", std::string(5000, 'a') + "b");
    std::string bytes = test.folder.READ("a.gz");
    test.folder.WRITE("a.gz", bytes.substr(0, bytes.size() - 6));
    test.folder.WRITE("b.txt", "old");
    CHECK_FALSE(COPY_FILE("a.gz", "b.txt", COPY_METHOD::AUTO));
    CHECK(test.console.CONTAINS("  CRC error in data (a.gz)."));
    CHECK(test.folder.READ("b.txt") == "old");
    CHECK(test.folder.FILES() == 2);
}

TEST_CASE("a missing source, a directory and a pipe are told and not copied") {
    COPY_TEST test;
    fs::create_directory("d");
    REQUIRE(::mkfifo("pipe", 0600) == 0);
    CHECK_FALSE(COPY_FILE("none", "b", COPY_METHOD::AUTO));
    CHECK(test.console.CONTAINS("  File (none) not found."));
    CHECK_FALSE(COPY_FILE("d", "b", COPY_METHOD::AUTO));
    CHECK(test.console.CONTAINS("  No regular file (d)."));
    CHECK_FALSE(COPY_FILE("pipe", "b", COPY_METHOD::AUTO));
    CHECK(test.console.CONTAINS("  No regular file (pipe)."));
    CHECK_FALSE(COPY_FILE("", "b", COPY_METHOD::AUTO));
    CHECK(test.console.CONTAINS("Empty filename!"));
    CHECK_FALSE(test.folder.HAS("b"));
}

TEST_CASE("a copied program can be run as the original") {
    COPY_TEST test;
    test.folder.WRITE("a", "#!");
    fs::permissions("a", fs::perms::owner_all);
    CHECK(COPY_FILE("a", "b", COPY_METHOD::AUTO));
    CHECK((fs::status("b").permissions() & fs::perms::owner_exec) != fs::perms::none);
}

TEST_CASE("a name goes to a name, or into a directory; a mask goes into a directory") {
    COPY_TEST test;
    test.folder.WRITE("a.txt", "1");
    test.folder.WRITE("b.txt", "2");
    fs::create_directory("in");
    CHECK(COPY_FILES("a.txt", "c", COPY_METHOD::AUTO));
    CHECK(test.folder.READ("c") == "1");
    CHECK(COPY_FILES("a.txt", "in", COPY_METHOD::AUTO));
    CHECK(test.folder.READ("in/a.txt") == "1");
    CHECK(COPY_FILES("a.txt", "new/", COPY_METHOD::AUTO));
    CHECK(test.folder.READ("new/a.txt") == "1");
    CHECK(COPY_FILES("?.txt", "all", COPY_METHOD::AUTO));
    CHECK(test.folder.READ("all/a.txt") + test.folder.READ("all/b.txt") == "12");
    CHECK_FALSE(COPY_FILES("*.none", "all", COPY_METHOD::AUTO));
    CHECK(test.console.CONTAINS("  No file fits (*.none)."));
}

TEST_CASE("packing into a directory adds gz to the names and unpacking cuts it") {
    COPY_TEST test;
    test.folder.WRITE("a.nii", "abc");
    CHECK(COPY_FILES_TO("packed", {"a.nii"}, COPY_METHOD::PACK));
    CHECK(UNPACKED("packed/a.nii.gz") == "abc");
    CHECK(COPY_FILES_TO("plain/", {"packed/*"}, COPY_METHOD::UNPACK));
    CHECK(test.folder.READ("plain/a.nii") == "abc");
}

TEST_CASE("an empty directory name as a target of files is the working directory") {
    COPY_TEST test;
    fs::create_directory("in");
    test.folder.WRITE("in/a", "1");
    CHECK(COPY_FILES_TO("", {"in/a"}, COPY_METHOD::AUTO));
    CHECK(test.folder.READ("a") == "1");
}

TEST_CASE("a name with a wildcard that is there as it stands is just that file") {
    COPY_TEST test;
    test.folder.WRITE("a*b", "star");
    test.folder.WRITE("aXb", "x");
    CHECK(COPY_FILES("a*b", "c", COPY_METHOD::AUTO));
    CHECK(test.folder.READ("c") == "star");
    DELETE_FILES("a*b");
    CHECK_FALSE(test.folder.HAS("a*b"));
    CHECK(test.folder.HAS("aXb"));
    DELETE_FILES("a*b");
    CHECK_FALSE(test.folder.HAS("aXb"));
}

TEST_CASE("a move replaces its target and makes the directories") {
    COPY_TEST test;
    test.folder.WRITE("a", "1");
    test.folder.WRITE("b", "2");
    CHECK(MOVE_FILE("a", "b"));
    CHECK(test.folder.READ("b") == "1");
    CHECK_FALSE(test.folder.HAS("a"));
    CHECK(MOVE_FILES("b", "x/y"));
    CHECK(MOVE_FILES("x/y", "z/"));
    CHECK(test.folder.READ("z/y") == "1");
    CHECK(MOVE_FILES_TO("w", {"z/*"}));
    CHECK(test.folder.READ("w/y") == "1");
    CHECK_FALSE(MOVE_FILES("z/*", "w"));
    CHECK(test.console.CONTAINS("  No file fits (z/*)."));
}

TEST_CASE("files of one name from several directories never replace one another") {
    COPY_TEST test;
    fs::create_directory("s1");
    fs::create_directory("s2");
    test.folder.WRITE("s1/a", "1");
    test.folder.WRITE("s2/a", "2");
    test.folder.WRITE("s2/a.gz", "3");
    CHECK_FALSE(COPY_FILES_TO("copy", {"s1/*", "s2/a"}, COPY_METHOD::AUTO));
    CHECK(test.console.CONTAINS("  A second file of this name is left where it is (s2/a).\n"));
    CHECK(test.folder.READ("copy/a") == "1");
    CHECK_FALSE(COPY_FILES_TO("packed", {"s2/*"}, COPY_METHOD::PACK));
    CHECK(UNPACKED("packed/a.gz") == "2");
    CHECK_FALSE(MOVE_FILES("s?/a", "moved"));
    CHECK(test.folder.READ("moved/a") == "1");
    CHECK(test.folder.READ("s2/a") == "2");
    CHECK(MOVE_FILES_TO("next/", {"s2/a", "s2/*"})); // one file in both
    CHECK(test.folder.READ("next/a") + test.folder.READ("next/a.gz") == "23");
}

TEST_CASE("a write-protected target is told and stays, whether copied, moved or renamed to") {
    COPY_TEST test;
    test.folder.WRITE("raw", "raw");
    test.folder.WRITE("a", "1");
    fs::permissions("raw", fs::perms(0444));
    const WITHOUT_ROOT user;
    CHECK_FALSE(COPY_FILE("a", "raw", COPY_METHOD::AUTO));
    CHECK_FALSE(MOVE_FILE("a", "raw"));
    CHECK_FALSE(RENAME_FILE("a", "raw"));
    const std::string line = "DOS-Error\n  File (raw) access denied.\n";
    CHECK(test.console.TEXT() == line + line + line);
    CHECK(test.folder.READ("raw") == "raw");
    CHECK(test.folder.READ("a") == "1");
    CHECK(RENAME_FILE("a", "b"));
}

TEST_CASE("a move between file systems keeps bytes, permissions and time") {
    COPY_TEST test;
    test.folder.WRITE("a.gz", "no gz");
    fs::permissions("a.gz", fs::perms::owner_read | fs::perms::owner_write);
    const timespec time[] = {{1000, 0}, {1000, 0}};
    REQUIRE(::utimensat(AT_FDCWD, "a.gz", time, 0) == 0);
    CHECK(MOVE_BY_COPY("a.gz", "b.txt"));
    CHECK_FALSE(test.folder.HAS("a.gz"));
    CHECK(test.folder.READ("b.txt") == "no gz");
    CHECK(FILEAGE("b.txt") == 1000);
    CHECK((FILEATTR("b.txt") & 0777) == 0600);
}

TEST_CASE("a move that cannot be written keeps the source") {
    COPY_TEST test;
    test.folder.WRITE("a", "1");
    fs::create_directory("d");
    CHECK_FALSE(MOVE_BY_COPY("a", "d"));
    CHECK_FALSE(MOVE_FILE("a", "d"));
    CHECK(test.folder.READ("a") == "1");
}

TEST_CASE("a directory is no file to move, rename or delete") {
    COPY_TEST test;
    fs::create_directory("d");
    CHECK_FALSE(MOVE_FILE("d", "e"));
    CHECK_FALSE(RENAME_FILE("d", "e"));
    DELETE_FILES("d");
    DELETE_FILES("*");
    DELETE_FILES("d/");
    CHECK(test.folder.HAS("d"));
    CHECK(test.console.TEXT() == "  No regular file (d).\n  No regular file (d).\n");
}

TEST_CASE("a link to a directory is not deleted as a file, a link to a file is") {
    COPY_TEST test;
    fs::create_directory("d");
    test.folder.WRITE("a", "1");
    fs::create_symlink("d", "dl");
    fs::create_symlink("a", "al");
    fs::create_symlink("none", "nl");
    DELETE_FILES("*l");
    CHECK(fs::is_symlink("dl"));
    CHECK_FALSE(fs::is_symlink("al"));
    CHECK_FALSE(fs::is_symlink("nl"));
    CHECK(test.folder.HAS("a"));
}

TEST_CASE("deleting what is not there prints nothing") {
    COPY_TEST test;
    DELETE_FILES("none");
    DELETE_FILES("*.none");
    DELETE_FILES("");
    CHECK(test.console.TEXT().empty());
}

TEST_CASE("joining puts the files one behind the other, unpacked, and leaves the target out") {
    COPY_TEST test;
    test.folder.WRITE("p2.txt", "two\n");
    test.folder.WRITE("p1.txt", "one\n");
    WRITE_GZ("p3.txt.gz", "three\n");
    test.folder.WRITE("p_all.txt", "old\n");
    CHECK(JOIN_FILES("p_all.txt", {"p*.txt", "p3.txt.gz"}));
    CHECK(test.folder.READ("p_all.txt") == "one\ntwo\nthree\n");
    CHECK(test.console.CONTAINS("  Source and target are the same file (p_all.txt).\n"));
    CHECK(JOIN_FILES("new/all.gz", {"p1.txt", "p1.txt"}));
    CHECK(UNPACKED("new/all.gz") == "one\none\n");
}

TEST_CASE("a join that names its target as a source is refused") {
    COPY_TEST test;
    test.folder.WRITE("a", "1");
    test.folder.WRITE("b", "2");
    fs::create_symlink("a", "link");
    for (const char *name : {"a", "./a", "link"}) {
        test.console.CLEAR();
        CHECK_FALSE(JOIN_FILES("a", {name, "b"}));
        CHECK(test.console.CONTAINS("  Source and target are the same file ("));
        CHECK(test.folder.READ("a") == "1");
    }
}

TEST_CASE("joining with a file that is missing changes nothing") {
    COPY_TEST test;
    test.folder.WRITE("a", "1");
    test.folder.WRITE("all", "old");
    CHECK_FALSE(JOIN_FILES("all", {"a", "none"}));
    CHECK_FALSE(JOIN_FILES("all", {"a", "none*"}));
    CHECK_FALSE(JOIN_FILES("all", {"all"}));
    CHECK(test.folder.READ("all") == "old");
    CHECK(test.folder.FILES() == 2);
}
