#include "foundation/base/utf16.hpp"
#include "script/engine/script_line.hpp"
#include "script/module/use_all.hpp"

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <string>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// The words of a script's lines, lower case, without comments and texts in quotes.
void COLLECT_WORDS(const std::filesystem::path &macro, std::set<std::string> &words) {
    static const std::regex quoted("\"[^\"]*\"|'[^']*'"), word("[a-z0-9_.]+");
    std::ifstream file(macro);
    for (std::string line; std::getline(file, line);) {
        const std::string text =
            std::regex_replace(GETUTF8(LOWERCASE(CUT_COMMENT(UTF16(line)))), quoted, " ");
        for (std::sregex_iterator i(text.begin(), text.end(), word), end; i != end; ++i)
            words.insert(i->str());
    }
}

std::set<std::string> WORDS_OF_ALL_MACROS() {
    std::set<std::string> words;
    for (const auto &entry : std::filesystem::recursive_directory_iterator(MORVANE_MACROS))
        if (entry.path().extension() == ".macro") COLLECT_WORDS(entry.path(), words);
    return words;
}
} // namespace

TEST_CASE("macro coverage: every command of the language's modules is tried by a macro") {
    const std::set<std::string> words = WORDS_OF_ALL_MACROS();
    REQUIRE(words.contains("print"));
    for (const COMMAND_SET *set : MODULE_SETS())
        for (const COMMAND_ROW &row : set->rows) {
            const std::string name = std::string(set->nameSpace) + std::string(row.name);
            CHECK_MESSAGE(words.contains(name), "in no macro of tests/macro: " << name);
        }
}
