#include "script/engine/script_runner.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// 1 or 0 as the flag stands behind the line, "?" when the script stopped.
std::string FLAG(const std::string &line) {
    const std::string shown = RUN_SCRIPT(line + "\nthen print 1\nelse print 0\n");
    return shown == "1\n" ? "1" : shown == "0\n" ? "0" : "?" + shown;
}
} // namespace

TEST_CASE("each word of the if family sets the flag by its rule") {
    const std::pair<const char *, const char *> rows[] = {
        {"if 1 2", "1"},          {"if 1 0.5", "0"},          {"ifall 1 1", "1"},
        {"ifand 0 1", "0"},       {"ifnot 1 0", "1"},         {"ifnot 1 1", "0"},
        {"ifnotall 0 0", "1"},    {"ifnand 1 1", "0"},        {"ifone 0 1", "1"},
        {"ifone 0 0", "0"},       {"ifor 0 2", "1"},          {"ifnotone 0 0", "1"},
        {"ifnotone 0 1", "0"},    {"ifnor 0.9 0", "1"},       {"ifzero 0 <0,0,0>", "1"},
        {"ifzero 0 <0,1>", "0"},  {"ifnotzero 1 <0,1>", "1"}, {"ifnotzero 1 0", "0"},
        {"ifsmaller 1 2 3", "1"}, {"ifsmaller 1 3 3", "0"},   {"ifsmaller -3 2", "0"},
        {"ifequal 2 2.0 2", "1"}, {"ifequal 2 -2", "0"},      {"ifequal <1,2> <1,2,0>", "1"},
        {"ifabsequal 2 -2", "1"}, {"ifabsequal 2 3", "0"},    {"ifbigger 3 2 1", "1"},
        {"ifbigger 3 3", "0"},    {"ifbigger -3 2", "1"},
    };
    for (const auto &[line, flag] : rows) {
        CAPTURE(line);
        CHECK(FLAG(line) == flag);
    }
}

TEST_CASE("texts are tested for emptiness and sameness, with none too") {
    CHECK(FLAG("ifempty") == "1");
    CHECK(FLAG("x := \"\"\nifempty x x") == "1");
    CHECK(FLAG("x := \"\"\nifempty x 1") == "0");
    CHECK(FLAG("ifnotempty") == "0");
    CHECK(FLAG("x := \"\"\nifnotempty x 1") == "1");
    CHECK(FLAG("x := \"\"\nifnotempty x") == "0");
    CHECK(FLAG("ifsame") == "1");
    CHECK(FLAG("ifsame a a a") == "1");
    CHECK(FLAG("ifsame a A") == "0");
    CHECK(FLAG("ifnotsame") == "0");
    CHECK(FLAG("ifnotsame a a b") == "1");
    CHECK(FLAG("ifnotsame a a") == "0");
}

TEST_CASE("texts are tested for what they contain") {
    const std::pair<const char *, const char *> rows[] = {
        {"ifcontain a ab ba", "1"},       {"ifcontain a ab b", "0"},
        {"ifallcontain a ab ba", "1"},    {"ifnotcontain a ab b", "1"},
        {"ifnotallcontain a ab ba", "0"}, {"ifonecontain a b ab", "1"},
        {"ifonecontain a b c", "0"},      {"ifnotonecontain a b c", "1"},
        {"ifnotonecontain a b ab", "0"},  {"ifpart abc a bc", "1"},
        {"ifpart abc a d", "0"},          {"ifallpart abc a bc", "1"},
        {"ifnotpart abc a d", "1"},       {"ifnotallpart abc a b", "0"},
        {"ifonepart abc d a", "1"},       {"ifonepart abc d e", "0"},
        {"ifnotonepart abc d e", "1"},    {"ifnotonepart abc d a", "0"},
    };
    for (const auto &[line, flag] : rows) {
        CAPTURE(line);
        CHECK(FLAG(line) == flag);
    }
}

TEST_CASE("files, directories and masks with matches exist") {
    const SCRATCH_FOLDER folder;
    SCRATCH_FOLDER::WRITE_TEXT("a.txt", "12345");
    CHECK(FLAG("ifexists a.txt . *.txt") == "1");
    CHECK(FLAG("ifexists a.txt b.txt") == "0");
    CHECK(FLAG("ifexists *.png") == "0");
    CHECK(FLAG("ifnotexists b.txt") == "1");
    CHECK(FLAG("ifnotexists a.txt") == "0");
}

TEST_CASE("the words for file sizes only clear the flag, so that they join an earlier test") {
    const SCRATCH_FOLDER folder;
    SCRATCH_FOLDER::WRITE_TEXT("five", "12345");
    SCRATCH_FOLDER::WRITE_TEXT("none", "");
    CHECK(FLAG("ifzero.filesize none") == "0");
    CHECK(FLAG("if 1\nifzero.filesize none") == "1");
    CHECK(FLAG("if 1\nifzero.filesize five") == "0");
    CHECK(FLAG("if 1\nifsmaller.filesize five 6") == "1");
    CHECK(FLAG("if 1\nifsmaller.filesize five 5") == "0");
    CHECK(FLAG("if 1\nifequal.filesize five 5") == "1");
    CHECK(FLAG("if 1\niffilesize five 4") == "0");
    CHECK(FLAG("if 1\nifbigger.filesize five 4") == "1");
    CHECK(FLAG("if 1\nifbigger.filesize five 5") == "0");
}

TEST_CASE("a word of the if family that needs two parameters asks for one in its report") {
    for (const char *word :
         {"if", "ifzero", "ifsmaller 1", "ifequal 1", "ifcontain 1", "ifpart 1", "ifexists"}) {
        CAPTURE(word);
        CHECK(RUN_SCRIPT(std::string(word) + "\n") ==
              "Parameter error! Please use min. one parameter in line 1 (m).\n");
    }
}

TEST_CASE("the words for file sizes tell their exact count") {
    CHECK(RUN_SCRIPT("ifzero.filesize a b\n") ==
          "Parameter error! Please use one parameter in line 1 (m).\n");
    CHECK(RUN_SCRIPT("iffilesize a\n") ==
          "Parameter error! Please use 2 parameters in line 1 (m).\n");
}

TEST_CASE("the flag starts false in every block and belongs to it") {
    CHECK(RUN_SCRIPT("else print none\nif 1\nprocess\nelse print inner\nend\nthen print outer\n") ==
          "none\ninner\nouter\n");
}

TEST_CASE("then and else blocks have their own ends") {
    CHECK(RUN_SCRIPT("if 1\nthen\nprint a\nend\nelse\nprint b\nend\nprint c\n") == "a\nc\n");
    CHECK(RUN_SCRIPT("if 0\nif.true\nprint a\nend\nif.false\nprint b\nend\nprint c\n") == "b\nc\n");
    CHECK(RUN_SCRIPT("if 0\nif.then\nfor 3\nend\nend\nif.else\nprint b\nend\n") == "b\n");
}

TEST_CASE("case needs exactly one parameter and compares as text") {
    CHECK(RUN_SCRIPT("case\n") == "Parameter error! Please use one parameter in line 1 (m).\n");
    CHECK(RUN_SCRIPT("case 1 2\n") == "Parameter error! Please use one parameter in line 1 (m).\n");
    CHECK(RUN_SCRIPT("x := 3\ncase x\nof 3\nprint three\nend\nof 3.0\nprint real\nend\n") ==
          "three\n");
}

TEST_CASE("of with several values is read as an inline form") {
    CHECK(RUN_SCRIPT("case 3\nof 3 print inline\nof 4 3\nprint a\n") == "inline\na\n");
}

TEST_CASE("of and ofnot need a value and run or skip their block") {
    CHECK(RUN_SCRIPT("of\n") == "Parameter error! Please use min. one parameter in line 1 (m).\n");
    CHECK(RUN_SCRIPT("ofnot\n") ==
          "Parameter error! Please use min. one parameter in line 1 (m).\n");
    CHECK(RUN_SCRIPT("case a\nofnot a b\nprint no\nend\nofnot b c\nprint yes\nend\nprint c\n") ==
          "yes\nc\n");
}
