#include "foundation/base/number_text.hpp"
#include "foundation/console/files.hpp"
#include "geometry/format/line_text.hpp"
#include "geometry/model/cloud.hpp"
#include "script/file/file_text.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <filesystem>
#include <fstream>
#include <sstream>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
std::string CONTENT(const char *name) {
    std::ifstream file(name, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}
void WRITE_TEXT(const char *name, std::string_view text) {
    std::ofstream(name, std::ios::binary) << text;
}
void PARSE(TCLOUD &cloud, std::string_view bytes, const char *name = "lines.txt") {
    TFILETEXT text;
    text.LOADBYTES(bytes);
    READ_LINE_TEXT(cloud, text, name, nullptr);
}
// All that a text file holds of a cloud.
std::string DESCRIPTION(const TCLOUD &cloud) {
    std::string all;
    for (NAT object = 1; object <= cloud.GETOBJECTLENGTH(); ++object) {
        all += GETUTF8(cloud.GETNAME(object)) + ":";
        for (NAT line = 1; line <= cloud.GETOBJECTLINELENGTH(object); ++line) {
            all += "[" + std::to_string(cloud.GETMATERIAL(object, line));
            for (NAT i = 1; i <= cloud.GETLINEPOINTLENGTH(object, line); ++i)
                all += " " + GETUTF8(GETSTRING(cloud.GETOBJECT(object, line, i)));
            all += "]";
        }
    }
    return all;
}
struct BRACKETS { // the bracket setting for the time of a test
    BRACKETS() { FORMAT.VECTOR = true; }
    ~BRACKETS() { FORMAT.VECTOR = false; }
};
void FILL_CLOUD(TCLOUD &cloud) {
    cloud.NEWPOINT({1.5, 2, 3, 4});
    cloud.NEWPOINT({-1, 0, 0.1, 0});
    cloud.NEWLINE(0);
    cloud.NEWPOINT({1, 2, 0, 0});
    cloud.NEWLINE(12);
    cloud.NEWPOINT({0, 0, 0, 0});
    cloud.NEWLINE(0);
    cloud.NEWOBJECT("first one");
    cloud.NEWPOINT({7, 0, 0, 0});
    cloud.NEWLINE(3);
    cloud.NEWPOINT({1.0 / 3, 0, 0, -2.25});
    cloud.NEWLINE(0);
    cloud.NEWOBJECT("zweite \u00e4");
}
} // namespace

TEST_CASE("a saved text leaves out trailing zeros and joins the rest with tabs") {
    const SCRATCH_FOLDER work;
    TCLOUD cloud;
    FILL_CLOUD(cloud);
    REQUIRE(cloud.SAVE("lines.txt"));
    CHECK(CONTENT("lines.txt") == "1.5\t2\t3\t4\n"
                                  "-1\t0\t0.1\n"
                                  "\n"
                                  "1\t2\n"
                                  "material:12\n"
                                  "0\n"
                                  "object:first one\n"
                                  "7\n"
                                  "material:3\n"
                                  "0.3333333333333333\t0\t0\t-2.25\n"
                                  "object:zweite \u00e4\n");
}

TEST_CASE("a point with t, z and y of 0 is saved as one number") {
    const SCRATCH_FOLDER work;
    TCLOUD cloud;
    cloud.NEWPOINT({5, 0, 0, 0});
    REQUIRE(cloud.SAVE("point.txt"));
    CHECK(CONTENT("point.txt") == "5\nobject:repaired\n");
}

TEST_CASE("with the bracket setting points are saved as records") {
    const SCRATCH_FOLDER work;
    const BRACKETS brackets;
    TCLOUD cloud;
    FILL_CLOUD(cloud);
    REQUIRE(cloud.SAVE("lines.txt"));
    const std::string text = CONTENT("lines.txt");
    CHECK(text.starts_with("<1.5, 2, 3, 4>\n<-1, 0, 0.1>\n\n<1, 2>\nmaterial:12\n0\n"));
    TCLOUD loaded;
    REQUIRE(loaded.LOAD("lines.txt"));
    CHECK(DESCRIPTION(loaded) == DESCRIPTION(cloud));
}

TEST_CASE("a saved cloud loads equal") {
    const SCRATCH_FOLDER work;
    TCLOUD cloud, loaded;
    FILL_CLOUD(cloud);
    REQUIRE(cloud.SAVE("lines.txt"));
    REQUIRE(loaded.LOAD("lines.txt"));
    CHECK(DESCRIPTION(loaded) == DESCRIPTION(cloud));
    CHECK(std::ranges::equal(loaded.SPAN(), cloud.SPAN())); // to the last bit
}

TEST_CASE("a cloud filled without NEWLINE is repaired by SAVE to one line and one object") {
    const SCRATCH_FOLDER work;
    TCLOUD cloud;
    cloud.NEWPOINT({1, 0, 0, 0});
    cloud.NEWPOINT({2, 0, 0, 0});
    REQUIRE(cloud.SAVE("lines.txt"));
    CHECK(cloud.GETLINELENGTH() == 1);
    CHECK(cloud.GETOBJECTLENGTH() == 1);
    CHECK(GETUTF8(cloud.GETNAME(1)) == "repaired");
}

TEST_CASE("a cloud without points is not saved") {
    const SCRATCH_FOLDER work;
    TCLOUD cloud;
    CHECK_FALSE(cloud.SAVE("lines.txt"));
    CHECK_FALSE(std::filesystem::exists("lines.txt"));
}

TEST_CASE("an existing file becomes a bak file") {
    const SCRATCH_FOLDER work;
    WRITE_TEXT("lines.txt", "old");
    TCLOUD cloud;
    cloud.NEWPOINT({1, 0, 0, 0});
    REQUIRE(cloud.SAVE("lines.txt"));
    CHECK(CONTENT("lines.txt.bak") == "old");
    CHECK(CONTENT("lines.txt") == "1\nobject:repaired\n");
}

TEST_CASE("a failed save leaves the old file and nothing else") {
    const SCRATCH_FOLDER work;
    TCLOUD cloud;
    cloud.NEWPOINT({1, 0, 0, 0});
    CAPTURE console;
    CHECK_FALSE(cloud.SAVE("missing/lines.txt"));
    CHECK(console.CONTAINS("not found"));
    CHECK(std::filesystem::is_empty("."));
}

TEST_CASE("a text file in another directory keeps its name") {
    const SCRATCH_FOLDER work;
    std::filesystem::create_directory("out");
    TCLOUD cloud;
    FILL_CLOUD(cloud);
    REQUIRE(cloud.SAVE("out/lines.txt"));
    TCLOUD loaded;
    REQUIRE(loaded.LOAD("out/lines.txt"));
    CHECK(DESCRIPTION(loaded) == DESCRIPTION(cloud));
}

TEST_CASE("an object with a path character in its name gets a file of its own") {
    const SCRATCH_FOLDER work;
    std::filesystem::create_directory("out");
    TCLOUD cloud;
    FILL_CLOUD(cloud);
    cloud.PUTNAME(2, "leg/left");
    std::filesystem::create_directory("out/leg");
    WRITE_TEXT("out/leg/left-2.txt", "old");
    REQUIRE(cloud.SAVE("out/lines.txt"));
    CHECK(CONTENT("out/lines.txt").ends_with("0\nobject:first one\n"));
    CHECK(CONTENT("out/leg/left-2.txt").starts_with("7\nmaterial:3\n"));
    CHECK(CONTENT("out/leg/left-2.txt.bak") == "old");
}

TEST_CASE("an object's name never leads out of the target's directory") {
    const SCRATCH_FOLDER work;
    std::filesystem::create_directory("out");
    TCLOUD cloud;
    FILL_CLOUD(cloud);
    cloud.PUTNAME(1, "../up");
    cloud.PUTNAME(2, "/root/../down");
    REQUIRE(cloud.SAVE("out/lines.txt"));
    CHECK(std::filesystem::exists("out/up-1.txt"));
    CHECK(std::filesystem::exists("out/root/down-2.txt"));
    CHECK_FALSE(std::filesystem::exists("out/lines.txt"));
}

TEST_CASE("the numbers of object files have equal widths") {
    const SCRATCH_FOLDER work;
    TCLOUD cloud;
    for (int i = 0; i < 10; ++i) {
        cloud.NEWPOINT({1, 0, 0, 0});
        cloud.NEWOBJECT("d/o");
    }
    REQUIRE(cloud.SAVE("lines"));
    CHECK(std::filesystem::exists("d/o-01"));
    CHECK(std::filesystem::exists("d/o-10"));
}

TEST_CASE("object: names the lines before it, in any case and with blanks around") {
    TCLOUD cloud;
    PARSE(cloud, "1 2\n  OBJECT: \t my\tname \t\n3\n\tObject:\n4\n");
    CHECK(DESCRIPTION(cloud) == "my name:[0 <1, 2, 0, 0>]"
                                "child-lines.txt:[0 <3, 0, 0, 0>]"
                                "child-lines.txt:[0 <4, 0, 0, 0>]");
}

TEST_CASE("the name of a child is the file name with its extension") {
    TCLOUD cloud;
    PARSE(cloud, "1\n2\n", "some/where/fibres.skein.txt");
    CHECK(GETUTF8(cloud.GETNAME(1)) == "child-fibres.skein.txt");
}

TEST_CASE("an empty line ends a line and further ones change nothing") {
    TCLOUD cloud;
    PARSE(cloud, "\n1\n \t \n\n\n2\n3\n\nobject: a\n");
    CHECK(DESCRIPTION(cloud) == "a:[0 <1, 0, 0, 0>][0 <2, 0, 0, 0> <3, 0, 0, 0>]");
}

TEST_CASE("material: behind points belongs to the line that it closes") {
    TCLOUD cloud;
    PARSE(cloud, "1\nmaterial: 5\n2\n\n3\nMATERIAL:7\n4\nobject:a\n");
    CHECK(DESCRIPTION(cloud) ==
          "a:[5 <1, 0, 0, 0>][0 <2, 0, 0, 0>][7 <3, 0, 0, 0>][0 <4, 0, 0, 0>]");
}

TEST_CASE("material: before points belongs to the lines that follow") {
    TCLOUD cloud;
    PARSE(cloud, "material: 5\n1\n\n2\nmaterial: 6\n3\nobject:a\n");
    CHECK(DESCRIPTION(cloud) == "a:[5 <1, 0, 0, 0>][5 <2, 0, 0, 0>][6 <3, 0, 0, 0>]");
}

TEST_CASE("missing numbers of a point are 0 and lines without a digit are passed over") {
    TCLOUD cloud;
    PARSE(cloud, "# a comment\n1, -2.5; 3e1\nx y z\n\t4 5 6 7 8\nobject:a\n");
    CHECK(DESCRIPTION(cloud) == "a:[0 <1, -2.5, 30, 0> <4, 5, 6, 7>]");
}

TEST_CASE("a load goes behind the lines that are there") {
    TCLOUD cloud;
    cloud.NEWPOINT({9, 0, 0, 0});
    PARSE(cloud, "1\nobject:a\n");
    CHECK(DESCRIPTION(cloud) == "repaired:[0 <9, 0, 0, 0>]a:[0 <1, 0, 0, 0>]");
}

TEST_CASE("a file that does not exist is told and loads nothing") {
    const SCRATCH_FOLDER work;
    CAPTURE console;
    TCLOUD cloud;
    CHECK_FALSE(cloud.LOAD("none.txt"));
    CHECK(console.CONTAINS("  File (none.txt) not found."));
    CHECK(cloud.GETPOINTLENGTH() == 0);
}

TEST_CASE("a name with wildcards loads all matching files in their order") {
    const SCRATCH_FOLDER work;
    std::filesystem::create_directory("in");
    std::filesystem::create_directory("in/d.txt"); // a directory is no file
    WRITE_TEXT("in/b.txt", "2\n");
    WRITE_TEXT("in/a.txt", "1\nobject:first\n");
    WRITE_TEXT("in/c.dat", "3\n");
    CAPTURE console;
    TCLOUD cloud;
    REQUIRE(cloud.LOAD("in/*.txt"));
    CHECK(DESCRIPTION(cloud) == "first:[0 <1, 0, 0, 0>]child-b.txt:[0 <2, 0, 0, 0>]");
}

TEST_CASE("a bracket in a name with wildcards stands for itself") {
    const SCRATCH_FOLDER work;
    WRITE_TEXT("a[1]b.txt", "1\n");
    WRITE_TEXT("a1b.txt", "2\n");
    CAPTURE console;
    TCLOUD cloud;
    REQUIRE(cloud.LOAD("a[1]*.txt"));
    CHECK(DESCRIPTION(cloud) == "child-a[1]b.txt:[0 <1, 0, 0, 0>]");
}

TEST_CASE("a name with wildcards that fits no file is told") {
    const SCRATCH_FOLDER work;
    std::filesystem::create_directory("in");
    CAPTURE console;
    TCLOUD cloud;
    CHECK_FALSE(cloud.LOAD("in/*.none"));
    CHECK(console.CONTAINS("  File (in/*.none) not found."));
    CHECK_FALSE(cloud.LOAD("nowhere/*"));
    CHECK(console.CONTAINS("  Path (nowhere/*) not found."));
    CHECK(cloud.GETPOINTLENGTH() == 0);
}

TEST_CASE("a load of 0 percent loads nothing, of 100 percent everything") {
    const SCRATCH_FOLDER work;
    WRITE_TEXT("lines.txt", "1\n\n2\nmaterial:4\n3\nobject:a\n");
    CAPTURE console;
    RANDOM_STREAM random(1, 1);
    TCLOUD none, all;
    CHECK(none.LOAD("lines.txt", 0, random));
    CHECK(none.GETPOINTLENGTH() == 0);
    CHECK(none.GETLINELENGTH() == 0);
    CHECK(none.GETOBJECTLENGTH() == 0);
    CHECK(all.LOAD("lines.txt", 100, random));
    CHECK(DESCRIPTION(all) == "a:[0 <1, 0, 0, 0>][4 <2, 0, 0, 0>][0 <3, 0, 0, 0>]");
}

TEST_CASE("a random share keeps whole lines with their materials") {
    std::string text;
    for (int i = 1; i <= 2000; ++i) {
        const std::string number = std::to_string(i);
        text += number + "\n" + number + "\nmaterial:" + number + "\n";
    }
    TFILETEXT file;
    file.LOADBYTES(text);
    RANDOM_STREAM random(1, 1);
    const LINE_SHARE share{25, random};
    TCLOUD cloud;
    READ_LINE_TEXT(cloud, file, "lines.txt", &share);
    const NAT lines = cloud.GETLINELENGTH();
    CHECK(lines > 400); // 500 expected, with a standard deviation of 19
    CHECK(lines < 600);
    for (NAT line = 1; line <= lines; ++line) {
        CHECK(cloud.GETALLLINEPOINTLENGTH(line) == 2);
        CHECK(cloud.GETLINE(line, 1).x == static_cast<REAL>(cloud.GETALLMATERIAL(line)));
    }
}

TEST_CASE("garbage loads without harm") {
    constexpr char GARBAGE[] = "object:\0\xFF\nmaterial:99999999999999999999\n\x01\xC3\n1e999\n"
                               "-\n--5\nmaterial:-\r\r\r\nobject:object:\n5\xE2\x82";
    const std::string_view bytes(GARBAGE, sizeof GARBAGE - 1);
    for (std::size_t length = 0; length <= bytes.size(); ++length) {
        TCLOUD cloud;
        PARSE(cloud, bytes.substr(0, length));
        CHECK(cloud.GETLINELENGTH() <= 4);
    }
}
