#include "script/file/file.hpp"
#include "script/module/text_parts.hpp"
#include "text_script.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
constexpr std::string_view RUNS = "head\nRUN 1\na\nRUN 2\nb\n";

// The parts that a command makes of a text, each in brackets.
std::string PartsOf(const std::string &command, std::string_view text) {
    TEXT_SCRIPT script;
    script.folder.WRITE("a.txt", text);
    script.RUN(command + " a.txt RUN");
    std::string parts;
    for (int number = 1; script.folder.FILES() > number; ++number)
        parts += "[" + script.folder.READ("a_" + std::to_string(number) + ".txt") + "]";
    CHECK(script.folder.READ("a.txt") == text);
    return parts;
}
} // namespace

TEST_CASE("text.split.file.before begins a part with each line that holds the text") {
    CHECK(PartsOf("text.split.file.before", RUNS) == "[head\n][RUN 1\na\n][RUN 2\nb\n]");
    CHECK(PartsOf("text.split.file.before", "RUN 1\nRUN 2") == "[RUN 1\n][RUN 2]");
}

TEST_CASE("text.split.file leaves the lines that hold the text out") {
    CHECK(PartsOf("text.split.file", RUNS) == "[head\n][a\n][b\n]");
    CHECK(PartsOf("txt.split.file", "RUN\nRUN\r\na") == "[a]");
    CHECK(PartsOf("text.split.file", "RUN\n") == "");
}

TEST_CASE("text.split.file.after ends a part with each line that holds the text") {
    CHECK(PartsOf("text.split.file.after", RUNS) == "[head\nRUN 1\n][a\nRUN 2\n][b\n]");
    CHECK(PartsOf("text.split.file.after", "a\nRUN\r\n") == "[a\nRUN\r\n]");
}

TEST_CASE("a file without the text is one part, which is told, and an empty file is none") {
    TEXT_SCRIPT script;
    script.folder.WRITE("a.txt", "x\ny");
    CHECK(script.RUN("text.split.file a.txt RUN") == "  Text (RUN) not found in file (a.txt).\n");
    CHECK(script.folder.READ("a_1.txt") == "x\ny");
    CHECK(PartsOf("text.split.file", "") == "");
}

TEST_CASE("part numbers are filled with 0 to the width of their count") {
    CHECK(GETUTF8(PART_NAME("data.txt", 3, 9)) == "data_3.txt");
    CHECK(GETUTF8(PART_NAME("data.txt", 3, 12)) == "data_03.txt");
    CHECK(GETUTF8(PART_NAME("a.b/data", 3, 100)) == "a.b/data_003");
    CHECK(GETUTF8(PART_NAME("data.txt.gz", 1, 1)) == "data_1.txt.gz");
    TEXT_SCRIPT script;
    std::string text;
    for (int i = 1; i <= 10; ++i)
        text += "RUN " + std::to_string(i) + "\n";
    script.folder.WRITE("a.txt", text);
    script.RUN("math.digit 1\nmath.scientific 1\ntext.split.file.before a.txt RUN");
    CHECK(script.folder.READ("a_01.txt") == "RUN 1\n");
    CHECK(script.folder.READ("a_10.txt") == "RUN 10\n");
    FORMAT = TFORMAT{};
}

TEST_CASE("the parts are named after the target when there is one") {
    TEXT_SCRIPT script;
    script.folder.WRITE("a.txt", RUNS);
    script.RUN("text.split.file a.txt RUN part.csv");
    CHECK(script.folder.READ("part_3.csv") == "b\n");
    CHECK_FALSE(script.folder.HAS("a_1.txt"));
}

TEST_CASE("text.collect gathers the lines of all files of a mask, each with an end") {
    TEXT_SCRIPT script;
    script.folder.WRITE("b.log", "error 2\nx\nerror 3");
    script.folder.WRITE("a.log", "error 1\r\nx\n");
    script.folder.WRITE("c.txt", "error 4\n");
    CHECK(script.RUN("text.collect \"?.log\" error all.txt") == "");
    CHECK(script.folder.READ("all.txt") == "error 1\r\nerror 2\nerror 3\n");
    CHECK(script.RUN("txt.collect c.txt error all.txt") == "");
    CHECK(script.folder.READ("all.txt") == "error 4\n");
}

TEST_CASE("a mask never gathers from the target itself") {
    TEXT_SCRIPT script;
    script.folder.WRITE("a.txt", "x 1\n");
    script.folder.WRITE("all.txt", "x 0");
    script.RUN("text.collect.append \"*.txt\" x ./all.txt");
    CHECK(script.folder.READ("all.txt") == "x 0\nx 1\n");
    script.RUN("text.collect \"*.txt\" x all.txt");
    CHECK(script.folder.READ("all.txt") == "x 1\n");
    script.RUN("here := io.workdir\ntext.collect.append \"@here/*.txt\" x all.txt");
    CHECK(script.folder.READ("all.txt") == "x 1\nx 1\n");
}

TEST_CASE("a mask never gathers from a link to the target") {
    TEXT_SCRIPT script;
    script.folder.WRITE("all.log", "x 0\n");
    std::filesystem::create_symlink("all.log", "b.txt");
    script.folder.WRITE("a.txt", "x 1\n");
    script.RUN("text.collect.append \"*.txt\" x all.log");
    CHECK(script.folder.READ("all.log") == "x 0\nx 1\n");
}

TEST_CASE("parts of which one would replace the file itself are refused") {
    TEXT_SCRIPT script;
    script.folder.WRITE("a_2.txt", "x\n1\nx\n2\n");
    CHECK(script.RUN("text.split.file.before a_2.txt x a.txt") ==
          "  Source and target are the same file (a_2.txt).\n");
    CHECK(script.folder.READ("a_2.txt") == "x\n1\nx\n2\n");
    CHECK_FALSE(script.folder.HAS("a_1.txt"));
}

TEST_CASE("text.collect.append adds to a file or begins a new one") {
    TEXT_SCRIPT script;
    script.folder.WRITE("a.txt", "x 1\ny\n");
    script.RUN("text.collect.append a.txt x b.txt\ntxt.collect.append a.txt y b.txt");
    CHECK(script.folder.READ("b.txt") == "x 1\ny\n");
}

TEST_CASE("text.collect.append unpacks and packs a target whose name ends in gz") {
    TEXT_SCRIPT script;
    script.folder.WRITE("a.txt", "x 1\n");
    script.RUN("text.collect a.txt x b.gz\ntext.collect.append a.txt 1 b.gz");
    TFILE packed;
    REQUIRE(packed.LOAD("b.gz"));
    CHECK(packed.VIEW() == "x 1\nx 1\n");
}

TEST_CASE("a mask without files is told and writes nothing") {
    TEXT_SCRIPT script;
    CHECK(script.RUN("text.collect \"*.log\" x b.txt") == "  No file for (*.log).\n");
    CHECK(script.folder.FILES() == 0);
}

TEST_CASE("a source that cannot be read leaves the target as it was") {
    TEXT_SCRIPT script;
    script.folder.WRITE("b.txt", "old\n");
    CHECK(script.RUN("text.collect none.txt x b.txt") ==
          "DOS-Error\n  File (none.txt) not found.\n");
    CHECK(script.folder.READ("b.txt") == "old\n");
}
