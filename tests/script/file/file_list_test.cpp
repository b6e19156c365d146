#include "script/file/file_list.hpp"

#include "foundation/base/number_text.hpp"
#include "script/file/dir_list.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// The names, parted by blanks.
std::string NAMES(const TNAMELIST &list) {
    std::string names;
    for (NAT i = 1; i <= list.LENGTH; ++i)
        names += (i > 1 ? " " : "") + GETUTF8(list.GET(i).GET());
    return names;
}

void MAKE(const char *folder) { std::filesystem::create_directories(folder); }

std::string FILES(const char *mask) {
    TFILELIST list;
    list.INIT(mask);
    return NAMES(list);
}

// Puts FORMAT back at the end.
struct FORMAT_GUARD {
    TFORMAT old = FORMAT;
    ~FORMAT_GUARD() { FORMAT = old; }
};
} // namespace

TEST_CASE("the files of a mask come sorted by name, directories left out") {
    const SCRATCH_FOLDER folder;
    for (const char *name : {"c.pgm", "a.pgm", "b.pgm", "d.txt", ".e.pgm"})
        folder.WRITE(name, "");
    MAKE("f.pgm");
    CHECK(FILES("*.pgm") == "a.pgm b.pgm c.pgm");
    CHECK(FILES(".*.pgm") == ".e.pgm");
    CHECK(FILES("./?.pgm") == "./a.pgm ./b.pgm ./c.pgm");
    CHECK(FILES("f.pgm").empty());
    CHECK(FILES("a.pgm") == "a.pgm");
}

TEST_CASE("a mask may hold wildcards in several parts of its path") {
    const SCRATCH_FOLDER folder;
    for (const char *name : {"data/s2", "data/s1", "data/.s3", "data/t"})
        MAKE(name);
    for (const char *name : {"data/s1/slice_01.pgm", "data/s2/slice_02.pgm", "data/s2/slice_3.pgm",
                             "data/t/slice_04.pgm", "data/.s3/slice_05.pgm", "data/slice_06.pgm"})
        folder.WRITE(name, "");
    CHECK(FILES("data/*/slice_??.pgm") ==
          "data/s1/slice_01.pgm data/s2/slice_02.pgm data/t/slice_04.pgm");
    CHECK(FILES("data/s?/slice_??.pgm") == "data/s1/slice_01.pgm data/s2/slice_02.pgm");
    CHECK(FILES("*/s1/*.pgm") == "data/s1/slice_01.pgm");
    CHECK(FILES("data\\s1\\*.pgm") == "data/s1/slice_01.pgm");
    CHECK(FILES("data//s1/*.pgm") == "data/s1/slice_01.pgm");
}

TEST_CASE("a mask of the directory above gives names that can be opened") {
    const SCRATCH_FOLDER folder;
    MAKE("in/deep");
    folder.WRITE("a.txt", "");
    folder.WRITE("in/b.txt", "");
    REQUIRE(::chdir("in/deep") == 0);
    CHECK(FILES("../*.txt") == "../b.txt");
    CHECK(FILES("../../*.txt") == "../../a.txt");
}

TEST_CASE("a missing directory gives an empty list without a line") {
    const SCRATCH_FOLDER folder;
    const CAPTURE console;
    CHECK(FILES("none/*.pgm").empty());
    CHECK(FILES("none/*/x").empty());
    CHECK(FILES("none").empty());
    CHECK(FILES("").empty());
    CHECK(FILES("/").empty());
    folder.WRITE("file", "");
    CHECK(FILES("file/*").empty());
    CHECK(FILES("file/").empty());
    CHECK(console.TEXT().empty());
}

TEST_CASE("a link that leads back to a directory above it is not entered") {
    const SCRATCH_FOLDER folder;
    MAKE("a");
    folder.WRITE("a/x.txt", "");
    std::filesystem::create_symlink(".", "a/l");
    std::filesystem::create_symlink("..", "a/m");
    CHECK(FILES("*/*.txt") == "a/x.txt");
    CHECK(FILES("*/*/*.txt").empty());
    // Two links at every level: without the rule 2 to the power of 30 paths.
    std::string deep;
    for (int i = 0; i < 30; ++i)
        deep += "*/";
    CHECK(FILES((deep + "*.txt").c_str()).empty());
}

TEST_CASE("a link to a directory elsewhere is entered by a mask") {
    const SCRATCH_FOLDER folder;
    MAKE("archive/s1");
    MAKE("study");
    folder.WRITE("archive/s1/a.pgm", "");
    std::filesystem::create_symlink("../archive/s1", "study/s1");
    CHECK(FILES("study/*/a.pgm") == "study/s1/a.pgm");
}

TEST_CASE("a link that leads nowhere is a file") {
    const SCRATCH_FOLDER folder;
    std::filesystem::create_symlink("nowhere", "a.lnk");
    CHECK(FILES("*.lnk") == "a.lnk");
    CHECK(FILES("a.lnk") == "a.lnk");
}

TEST_CASE("names that a script cannot hold are left out and told") {
    const SCRATCH_FOLDER folder;
    const CAPTURE console;
    folder.WRITE("a.txt", "");
    folder.WRITE("b\\c.txt", "");
    folder.WRITE("..d.txt", "");
    folder.WRITE("\xFF.txt", "");
    CHECK(FILES("*.txt") == "a.txt");
    CHECK(console.TEXT() ==
          "  Names left out (3): longer than 254 characters, or not to be written "
          "in a script.\n");
}

TEST_CASE("a name that would be read as one two directories above is left out") {
    const SCRATCH_FOLDER folder;
    const CAPTURE console;
    MAKE("in");
    folder.WRITE("..d.txt", "");
    REQUIRE(::chdir("in") == 0);
    CHECK(FILES("../.*.txt").empty()); // "../..d.txt" would begin with "../.."
    CHECK(console.CONTAINS("  Names left out (1)"));
}

TEST_CASE("a path of 254 characters is listed and one of 255 is left out") {
    const SCRATCH_FOLDER folder;
    const CAPTURE console;
    MAKE(std::string(100, 'd').c_str());
    const std::string directory = std::string(100, 'd') + "/"; // 101 characters
    folder.WRITE(directory + std::string(153, 'a'), "");
    folder.WRITE(directory + std::string(154, 'b'), "");
    CHECK(FILES("d*/*") == directory + std::string(153, 'a'));
    CHECK(console.CONTAINS("  Names left out (1)"));
}

TEST_CASE("GETFILE appends what the list does not hold yet") {
    const SCRATCH_FOLDER folder;
    for (const char *name : {"a.txt", "b.txt", "c.pgm"})
        folder.WRITE(name, "");
    TFILELIST list;
    list.INIT("b.*");
    list.GETFILE("*");
    CHECK(NAMES(list) == "b.txt a.txt c.pgm");
    list.INIT("*.pgm");
    CHECK(NAMES(list) == "c.pgm");
}

TEST_CASE("a mask is looked for in every directory of a list, in the order of the list") {
    const SCRATCH_FOLDER folder;
    for (const char *name : {"s1/in", "s2/in", "s3"})
        MAKE(name);
    for (const char *name : {"s1/a.txt", "s2/b.txt", "s2/a.txt", "s1/in/c.txt", "d.txt"})
        folder.WRITE(name, "");
    TDIRLIST directories;
    directories.INIT("s2");
    directories.GETDIR("s*");
    TFILELIST list;
    list.INIT(directories, "*.txt");
    CHECK(NAMES(list) == "s2/a.txt s2/b.txt s1/a.txt");
    list.INIT(directories, "in/*.txt");
    CHECK(NAMES(list) == "s1/in/c.txt");
    const std::string absolute = std::filesystem::current_path().string() + "/d.txt";
    list.INIT(directories, absolute);
    CHECK(NAMES(list) == absolute);
}

TEST_CASE("descending FORMAT.SORTING turns the order of a mask round") {
    const SCRATCH_FOLDER folder;
    const FORMAT_GUARD guard;
    for (const char *name : {"a", "b", "c"})
        folder.WRITE(name, "");
    FORMAT.SORTING = false;
    CHECK(FILES("?") == "c b a");
}

TEST_CASE("FORMAT.ALIGN chooses whether a shorter name stands before a longer one") {
    const SCRATCH_FOLDER folder;
    const FORMAT_GUARD guard;
    for (const char *name : {"s10", "s9"})
        folder.WRITE(name, "");
    CHECK(FILES("s*") == "s10 s9");
    FORMAT.ALIGN = false;
    CHECK(FILES("s*") == "s9 s10");
}

TEST_CASE("SORTREAL goes by the numbers in the last part of a name") {
    TFILELIST list;
    for (const char *name : {"9/run2_10.pgm", "1/run10_1.pgm", "5/run2_9.pgm", "7/none.pgm"})
        list.PUSH(name);
    list.SORTREAL();
    CHECK(NAMES(list) == "7/none.pgm 5/run2_9.pgm 9/run2_10.pgm 1/run10_1.pgm");
    const FORMAT_GUARD guard;
    FORMAT.SORTING = false;
    list.SORTREAL();
    CHECK(NAMES(list) == "1/run10_1.pgm 9/run2_10.pgm 5/run2_9.pgm 7/none.pgm");
}

TEST_CASE("numbers of a name have decimals, and a sign where no letter or digit stands before") {
    CHECK(NUMBERS_OF_NAME("d/dose_0.25.nii") == std::vector<REAL>{0.25});
    CHECK(NUMBERS_OF_NAME("t_-10.nii") == std::vector<REAL>{-10});
    CHECK(NUMBERS_OF_NAME("-3") == std::vector<REAL>{-3});
    CHECK(NUMBERS_OF_NAME("2020-01-05") == std::vector<REAL>{2020, 1, 5});
    CHECK(NUMBERS_OF_NAME("slice-10.pgm") == std::vector<REAL>{10});
    CHECK(NUMBERS_OF_NAME("12/abc") == std::vector<REAL>{0});
    CHECK(NUMBERS_OF_NAME("a7.") == std::vector<REAL>{7});
}

TEST_CASE("SORTSIZE and SORTDATE go by the file, equal ones by name") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("a", "333");
    folder.WRITE("b", "1");
    folder.WRITE("c", "1");
    const NAT times[] = {200, 300, 100};
    for (int i = 0; i < 3; ++i) {
        const timespec time[] = {{times[i], 0}, {times[i], 0}};
        REQUIRE(::utimensat(AT_FDCWD, std::string(1, static_cast<char>('a' + i)).c_str(), time,
                            0) == 0);
    }
    TFILELIST list;
    list.INIT("?");
    list.SORTSIZE();
    CHECK(NAMES(list) == "b c a");
    list.SORTDATE();
    CHECK(NAMES(list) == "c a b");
}

TEST_CASE("SUB removes exact names and SUBWEAK names that hold the text in any case") {
    TFILELIST list;
    for (const char *name : {"a.txt", "A.txt", "old/b.txt", "OLD.txt", "a.txt"})
        list.PUSH(name);
    list.SUB("a.txt");
    CHECK(NAMES(list) == "A.txt old/b.txt OLD.txt");
    list.SUB("b.txt");
    CHECK(list.LENGTH == 3);
    list.SUBWEAK("Old");
    CHECK(NAMES(list) == "A.txt");
    list.SUBWEAK("");
    CHECK(NAMES(list) == "A.txt");
}

TEST_CASE("GETLINES takes one name a line and REPLACETXT changes the list alone") {
    const SCRATCH_FOLDER folder;
    const CAPTURE console;
    folder.WRITE("names", "a 1.pgm\r\n\n \tb.pgm \n" + std::string(255, 'x') + "\nc.pgm");
    TFILELIST list;
    list.GETLINES("names");
    CHECK(NAMES(list) == "a 1.pgm b.pgm c.pgm");
    CHECK(console.CONTAINS("  Names left out (1)"));
    list.REPLACETXT(".pgm", ".png");
    CHECK(NAMES(list) == "a 1.png b.png c.png");
    list.GETLINES("none");
    CHECK(list.LENGTH == 3);
    CHECK(console.CONTAINS("  File (none) not found."));
}
