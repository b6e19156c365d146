#include "app/help_entries.hpp"

#include "app/program.hpp"
#include "foundation/base/number_text.hpp"
#include "script/engine/macro.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <set>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// "name/kind/unit" of every parameter, "?" behind one that may be left out, "+" behind a repeated.
std::string READ(std::string_view parameters) {
    std::string text;
    for (const HELP_PARAMETER &parameter : HELP_PARAMETERS(parameters))
        text += parameter.name + "/" + parameter.kind + "/" + parameter.unit +
                (parameter.isOptional ? "?" : "") + (parameter.isRepeated ? "+" : "") + " ";
    return text;
}
} // namespace

TEST_CASE("a parameter has a name, a kind and a unit, which may stand in brackets") {
    CHECK(READ("") == "");
    CHECK(READ("file: file") == "file/file/ ");
    CHECK(READ("time: real [s], radius: number voxels") == "time/real/s radius/number/voxels ");
    CHECK(READ("point: point [abs & rel]") == "point/point/abs & rel ");
}

TEST_CASE("parameters in brackets may be left out, dots repeat one") {
    CHECK(READ("a: text, [b: real [mm], c: text ...]") == "a/text/ b/real/mm? c/text/?+ ");
    CHECK(READ("[a: number,] b: text") == "a/number/? b/text/ ");
    CHECK(READ("value: real ...") == "value/real/+ ");
    CHECK(READ("[a: real] ...") == "a/real/?+ ");
}

TEST_CASE("the syntax of a line shows the names with brackets, dots and ways to call") {
    CHECK(HELP_SYNTAX("") == "");
    CHECK(HELP_SYNTAX("a: text, [b: real [mm], c: text ...]") == "a [b c ...]");
    CHECK(HELP_SYNTAX("[a: number,] b: text") == "[a] b");
    CHECK(HELP_SYNTAX("low: real, high: real | range: range") == "low high | range");
    CHECK(HELP_SYNTAX("[factor: real | factors: vector]") == "[factor | factors]");
}

TEST_CASE("every parameter of the language has one of the known kinds") {
    const std::set<std::string> kinds = {"text",   "file",  "name",  "number", "real", "flag",
                                         "vector", "point", "range", "pair",   "hyper"};
    for (const HELP_ENTRY &entry : HELP_ENTRIES())
        for (const HELP_PARAMETER &parameter : HELP_PARAMETERS(entry.parameters)) {
            INFO(entry.name, ": ", parameter.name, ": ", parameter.kind);
            CHECK(kinds.contains(parameter.kind));
        }
}

TEST_CASE("every keyword says what it takes, what it does, and how a line with it looks") {
    for (const HELP_ENTRY &entry : HELP_ENTRIES()) {
        if (!entry.keyword) continue;
        INFO(entry.name);
        CHECK_FALSE(entry.note.empty());
        CHECK(entry.usage.starts_with(entry.name));
    }
}

TEST_CASE("every keyword's usage line runs as it stands") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("part.macro", "a := 1\n");
    const auto exitBefore = TMACRO::EXIT;
    TMACRO::EXIT = [](int) {};
    for (const HELP_ENTRY &entry : HELP_ENTRIES()) {
        if (!entry.keyword || entry.name == "include") continue;
        const CAPTURE console;
        TMACRO engine;
        engine.INIT();
        engine.USE_ALL();
        // A search asks its block for the result, and a repeat its last line for the end.
        const bool isSearch = entry.name == "minimize" || entry.name == "maximize";
        const bool isRepeat = entry.name == "repeat";
        engine.LOADTEXT(std::string(entry.usage) + (isSearch   ? "\nresult := true\nend\n"
                                                    : isRepeat ? "\nuntil 1\n"
                                                               : "\n"));
        engine.SINGLERUN();
        INFO(std::string(entry.usage), ": ", console.TEXT());
        CHECK(engine.STATUS.EMPTY());
    }
    TMACRO::EXIT = exitBefore;
}
