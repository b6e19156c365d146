#include "reference.hpp"

#include "app/program.hpp"
#include "generated_files.hpp"
#include "script/engine/keywords_table.hpp"
#include "support/capture.hpp"

#include <algorithm>
#include <map>
#include <set>
#include <sstream>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
const REFERENCE &MADE() {
    static const REFERENCE reference = MAKE_REFERENCE();
    return reference;
}

std::set<std::string> ROW_NAMES() {
    std::set<std::string> names;
    for (const COMMAND_SET *set : COMMAND_SETS())
        for (const COMMAND_ROW &row : set->rows)
            names.insert(std::string(set->nameSpace) + std::string(row.name));
    return names;
}

const REFERENCE_ENTRY *FIND_ENTRY(const std::string &name) {
    for (const REFERENCE_SECTION &section : MADE().sections)
        for (const REFERENCE_ENTRY &entry : section.entries)
            if (entry.name == name) return &entry;
    return nullptr;
}

const REFERENCE_OPTION *FIND_OPTION(const std::string &name) {
    for (const REFERENCE_OPTION &option : MADE().options)
        if (option.name == name) return &option;
    return nullptr;
}

// The names in the first cells of the page's tables.
std::map<std::string, int> NAMES_ON_THE_PAGE() {
    std::map<std::string, int> names;
    std::istringstream page(COMMANDS_PAGE(MADE()));
    for (std::string line; std::getline(page, line);) {
        if (!line.starts_with("| `")) continue;
        const std::string cell = line.substr(2, line.find(" | ") - 2);
        for (std::size_t begin = cell.find('`'); begin != std::string::npos;) {
            const std::size_t end = cell.find('`', begin + 1);
            ++names[cell.substr(begin + 1, end - begin - 1)];
            begin = cell.find('`', end + 1);
        }
    }
    return names;
}
} // namespace

TEST_CASE("the page names every command as often as it has kinds, and every keyword once") {
    std::map<std::string, int> wanted;
    for (const COMMAND_SET *set : COMMAND_SETS())
        for (const COMMAND_ROW &row : set->rows)
            ++wanted[std::string(set->nameSpace) + std::string(row.name)];
    for (const auto &table : {KEYWORDS(), PREFIX_KEYWORDS()})
        for (const KEYWORD &keyword : table)
            ++wanted[std::string(keyword.word)];
    CHECK(NAMES_ON_THE_PAGE() == wanted);
}

TEST_CASE("every row of a table on the page has the cells of its head") {
    std::istringstream page(COMMANDS_PAGE(MADE()));
    std::size_t cells = 0, rows = 0;
    for (std::string line; std::getline(page, line);) {
        if (!line.starts_with("|")) continue;
        std::size_t bars = 0;
        for (std::size_t i = 0; i < line.size(); ++i)
            if (line[i] == '|' && (i == 0 || line[i - 1] != '\\')) ++bars;
        if (line.starts_with("| Keyword") || line.starts_with("| Command")) cells = bars;
        INFO(line);
        CHECK(bars == cells);
        ++rows;
    }
    CHECK(rows > 100);
}

TEST_CASE("every line of the contents leads to a heading, each heading once") {
    const std::string page = COMMANDS_PAGE(MADE());
    std::set<std::string> titles;
    for (std::size_t place = page.find("- ["); place != std::string::npos;
         place = page.find("\n- [", place + 1)) {
        const std::size_t begin = page.find('[', place) + 1;
        const std::string title = page.substr(begin, page.find(']', begin) - begin);
        INFO(title);
        CHECK(titles.insert(title).second);
        CHECK(page.find("\n## " + title + "\n") != std::string::npos);
    }
    CHECK(titles.size() == MADE().sections.size() + 1);
}

TEST_CASE("the names of the reference are the names of the rows") {
    const auto names = MADE().COMMAND_NAMES();
    CHECK(std::set<std::string>(names.begin(), names.end()) == ROW_NAMES());
    CHECK(names.size() == ROW_NAMES().size());
}

TEST_CASE("rows of one handler and one wording are synonyms") {
    const REFERENCE_ENTRY *origin = FIND_ENTRY("scalar.origin");
    REQUIRE(origin != nullptr);
    CHECK(origin->synonyms == std::vector<std::string>{"scalar.offset"});
    CHECK(FIND_ENTRY("scalar.offset") == nullptr);
}

TEST_CASE("every option of the listing is in the reference, with its values") {
    const CAPTURE console;
    const char *const arguments[] = {"morvane", "-h"};
    RUN_PROGRAM(2, arguments);
    std::istringstream listing(console.TEXT());
    int count = 0;
    for (std::string line; std::getline(listing, line);) {
        const std::size_t name = line.starts_with("  +/-") ? 5 : line.starts_with("  -") ? 3 : 0;
        if (name == 0 || line.find(" = ") == std::string::npos) continue;
        INFO(line);
        CHECK(FIND_OPTION(line.substr(name, line.find(' ', name) - name)) != nullptr);
        ++count;
    }
    CHECK(count > 15);
    REQUIRE(FIND_OPTION("vector.type") != nullptr);
    CHECK(FIND_OPTION("vector.type")->values ==
          std::vector<std::string>{"hdr", "nii", "nii.gz", "fld", "am"});
    REQUIRE(FIND_OPTION("verbose") != nullptr);
    CHECK(FIND_OPTION("verbose")->isSwitch);
    REQUIRE(FIND_OPTION("macro") != nullptr);
    CHECK(FIND_OPTION("macro")->files == "*.macro");
    REQUIRE(FIND_OPTION("mesh.split") != nullptr);
    CHECK(FIND_OPTION("mesh.split")->range == "0-100");
}

TEST_CASE("the version is the one that the build names") {
    CHECK(MADE().version == MORVANE_VERSION);
}

TEST_CASE("two makings give the same bytes") {
    const REFERENCE again = MAKE_REFERENCE();
    for (const GENERATED_FILE &file : GENERATED_FILES()) {
        INFO(std::string(file.path));
        CHECK(file.text(MADE()) == file.text(again));
        CHECK(file.text(MADE()).ends_with("\n"));
    }
}
