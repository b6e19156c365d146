#include "script/module/use_all.hpp"

#include "script/module/text_script.hpp"

#include <algorithm>
#include <doctest/doctest.h>
#include <map>

using namespace morvane;

namespace {
constexpr std::string_view CONTENT = "7\n8\n9\n";

// Every file of the current folder and what it holds.
std::map<std::string, std::string> CONTENTS() {
    std::map<std::string, std::string> contents;
    for (const auto &entry : std::filesystem::recursive_directory_iterator(".")) {
        std::ostringstream text;
        if (entry.is_regular_file()) text << std::ifstream(entry.path()).rdbuf();
        contents[entry.path()] = text.str();
    }
    return contents;
}

// The words of a usage line, each a file that is there.
void MAKE_FILES(const SCRATCH_FOLDER &folder, std::string_view usage) {
    std::istringstream words{std::string(usage)};
    for (std::string word; words >> word;) {
        std::erase(word, '"');
        if (word.find('.') == std::string::npos || word.find_first_of("/*<:") != std::string::npos)
            continue;
        folder.WRITE(word, CONTENT);
    }
}

bool NAMES_A_FILE(const COMMAND_ROW &row) {
    return row.parameters.find(": file") != std::string_view::npos;
}

// Runs the line with the engine's files switched off.
struct WITHOUT_FILES : TEXT_SCRIPT {
    WITHOUT_FILES() {
        engine.switches.FILES = false;
        engine.switches.EXECUTE = false;
    }
};
} // namespace

TEST_CASE("with its files switched off no command of the language changes a file") {
    for (const COMMAND_SET *set : MODULE_SETS())
        for (const COMMAND_ROW &row : set->rows) {
            if (!NAMES_A_FILE(row)) continue;
            INFO(row.usage);
            WITHOUT_FILES script;
            MAKE_FILES(script.folder, row.usage);
            const auto before = CONTENTS();
            script.RUN("list.push 1 2\ntable.addrow 1 2\n" + std::string(row.usage));
            CHECK(CONTENTS() == before);
        }
}

TEST_CASE("with its files switched off no command of the language reads a file") {
    for (const COMMAND_SET *set : MODULE_SETS())
        for (const COMMAND_ROW &row : set->rows) {
            if (!NAMES_A_FILE(row)) continue;
            INFO(row.usage);
            WITHOUT_FILES script;
            MAKE_FILES(script.folder, row.usage);
            script.RUN(std::string(row.usage));
            CHECK_FALSE(script.console.CONTAINS("Read file"));
            CHECK_FALSE(script.console.CONTAINS("Sub program"));
            const std::string sizes = script.RUN("print list.length \" \" table.lengthy");
            CHECK(sizes == "0 0\n");
        }
}

TEST_CASE("a sub program reaches files only where its caller does") {
    TEXT_SCRIPT script;
    script.folder.WRITE("sub.macro", "store out.txt\ntext\nend\n");
    script.RUN("run sub.macro");
    CHECK(script.folder.HAS("out.txt"));
    std::filesystem::remove("out.txt");
    script.engine.switches.FILES = false;
    CHECK(script.RUN("run sub.macro") == "");
    CHECK_FALSE(script.folder.HAS("out.txt"));
}

TEST_CASE("a sub program starts processes only where its caller does") {
    TEXT_SCRIPT script;
    script.folder.WRITE("sub.macro", "execute touch made\n");
    script.engine.switches.EXECUTE = false;
    CHECK(script.RUN("run sub.macro").find("execute is switched off") != std::string::npos);
    CHECK_FALSE(script.folder.HAS("made"));
}

TEST_CASE("a sub program has as many lines as its caller may still run") {
    TEXT_SCRIPT script;
    script.folder.WRITE("sub.macro", "while 1\nend\n");
    script.engine.switches.LINES = 1000;
    CHECK(script.RUN("run sub.macro").find("too many lines") != std::string::npos);
}
