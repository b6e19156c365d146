#include "script/engine/row_parameters.hpp"

#include <random>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
std::string ERROR_OF(std::string_view text) { return PARSE_PARAMETERS(text).error; }

void CHECK_COUNT(std::string_view text, NAT least, NAT most) {
    INFO(std::string(text));
    const PARAMETER_TEXT parsed = PARSE_PARAMETERS(text);
    CHECK(parsed.error == "");
    CHECK(COUNT_OF(parsed).least == least);
    CHECK(COUNT_OF(parsed).most == most);
}
constexpr NAT ANY = PARAMETER_COUNT::UNLIMITED;
} // namespace

TEST_CASE("a parameters text tells how many parameters it allows") {
    CHECK_COUNT("", 0, 0);
    CHECK_COUNT("a: real", 1, 1);
    CHECK_COUNT("a: real mm, b: vector voxels", 2, 2);
    CHECK_COUNT("[a: real]", 0, 1);
    CHECK_COUNT("a: file, [b: number, c: number]", 1, 3);
    CHECK_COUNT("[a: number,] b: text", 1, 2);
    CHECK_COUNT("a: text [, b: text]", 1, 2);
    CHECK_COUNT("a: text ...", 1, ANY);
    CHECK_COUNT("[a: text ...]", 0, ANY);
    CHECK_COUNT("time: real [s]", 1, 1);
    CHECK_COUNT("a: real [b: real]", 1, 2);
    CHECK_COUNT("a: name, b: range ...", 2, ANY);
    CHECK_COUNT("[key: text, value: text] ...", 0, ANY);
    CHECK_COUNT("a: real, b: real | c: range", 1, 2);
    CHECK_COUNT("[a: vector | x: number, y: number, z: number]", 0, 3);
}

TEST_CASE("a parameter has a name, a kind and perhaps a unit of several words") {
    const PARAMETER_TEXT text = PARSE_PARAMETERS("length: real mm per voxel ..., on: flag");
    REQUIRE(text.choices.size() == 1);
    REQUIRE(text.choices[0].size() == 2);
    CHECK(text.choices[0][0].name == "length");
    CHECK(text.choices[0][0].kind == "real");
    CHECK(text.choices[0][0].unit == "mm per voxel");
    CHECK(text.choices[0][0].repeated);
    CHECK(text.choices[0][1].name == "on");
    CHECK_FALSE(text.choices[0][1].repeated);
    const PARAMETER_TEXT wait = PARSE_PARAMETERS("time: real [s], [share: real]");
    REQUIRE(wait.error == "");
    CHECK(wait.choices[0][0].unit == "s");
    CHECK(wait.choices[0][1].GROUP());
}

TEST_CASE("a parameters text that is not well formed says why") {
    CHECK(ERROR_OF("a") == "\"a\" has no kind");
    CHECK(ERROR_OF("a: colour") == "\"colour\" is no kind");
    CHECK(ERROR_OF("a:") == "\"\" is no kind");
    CHECK(ERROR_OF("[s]") == "\"s\" has no kind");
    CHECK(ERROR_OF("[a: real") == "a bracket is open");
    CHECK(ERROR_OF("a: real]") == "\"]\" is left over");
    CHECK(ERROR_OF("a: real,") == "nothing behind a comma");
    CHECK(ERROR_OF("[]") == "empty brackets");
    CHECK(ERROR_OF("a: real, , b: real") == "\"\" has no kind");
}

TEST_CASE("a line is written with names, brackets, dots and ways to call") {
    const auto syntax = [](std::string_view text) {
        return PARAMETER_SYNTAX(PARSE_PARAMETERS(text), [](std::string_view name) {
            return "<" + std::string(name) + ">";
        });
    };
    CHECK(syntax("") == "");
    CHECK(syntax("a: text, [b: real [mm], c: text ...]") == "<a> [<b> <c> ...]");
    CHECK(syntax("[a: number, [b: number]]") == "[<a> [<b>]]");
    CHECK(syntax("[key: text, value: text] ...") == "[<key> <value> ...]");
    CHECK(syntax("[a: pair | x: number, y: number]") == "[<a> | <x> <y>]");
    CHECK(syntax("a: real | b: real, c: real") == "<a> | <b> <c>");
}

TEST_CASE("a parameter is a file when it is one in every line that has one there") {
    const auto file = [](std::string_view text, std::size_t offset) {
        return IS_FILE_AT(PARSE_PARAMETERS(text), offset);
    };
    CHECK(file("field: file", 0));
    CHECK(file("lines: file, [share: real percent]", 0));
    CHECK_FALSE(file("lines: file, [share: real percent]", 1));
    CHECK(file("field: file, [report: file]", 1));
    CHECK_FALSE(file("field: file | name: text", 0));
    CHECK_FALSE(file("field: file", 1));
    CHECK_FALSE(file("", 0));
    CHECK_FALSE(file("profile: name", 0));
    CHECK_FALSE(file("[object: number,] field: file", 0)); // the number may stand there
    CHECK(file("[object: number,] field: file", 1));
    CHECK(file("field: file ...", 7));
    CHECK_FALSE(file("field: file, value: text ...", 7));
}

TEST_CASE("any text of parameters is read without harm") {
    const std::string_view parts[] = {"a", ": ", "real", "file", "[", "]", "|", ",", "...", " "};
    std::mt19937 random(1);
    for (int round = 0; round < 20000; ++round) {
        std::string text;
        for (auto length = random() % 24; length > 0; --length)
            text += parts[random() % std::size(parts)];
        const PARAMETER_TEXT parsed = PARSE_PARAMETERS(text);
        const PARAMETER_COUNT count = COUNT_OF(parsed);
        INFO(text);
        CHECK((count.least <= count.most || !parsed.error.empty()));
        IS_FILE_AT(parsed, 0);
    }
}
