#include "app/program.hpp"
#include "foundation/base/number_text.hpp"
#include "script/engine/keywords_table.hpp"
#include "script/engine/macro.hpp"
#include "script/engine/row_parameters.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <algorithm>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
constexpr std::size_t LONGEST_NOTE = 100;

// A line as the engine sees it: its words, and how many parameters it cuts from a remainder. The
// engine has no commands, so that no word of a usage is called.
struct USAGE {
    std::string command, target, parameters;
    NAT count = 0;
    std::vector<std::string> values;

    USAGE(std::string_view text, COMMAND_KIND kind) {
        const LINE_PART line = PREPARE_PART(CUT_COMMENT(UTF16(std::string(text))));
        isAssignment = line.assignment;
        command = GETUTF8(line.word);
        parameters = GETUTF8(line.rest);
        if (kind == COMMAND_KIND::FUNCTION || isAssignment) {
            const LINE_PART behind = PREPARE_PART(line.rest), value = PREPARE_PART(behind.rest);
            target = command;
            isFunctionForm = GETUTF8(behind.word) == ":=";
            command = GETUTF8(value.word);
            parameters = GETUTF8(kind == COMMAND_KIND::LAMBDA ? behind.rest : value.rest);
        }
        CAPTURE console;
        TMACRO engine;
        engine.INIT();
        engine._GETPARAMETER_WITH_CONSTANTS(UTF16(parameters));
        count = engine.PARAMETERLENGTH();
        for (NAT i = 1; i <= count; ++i)
            values.push_back(GETUTF8(engine.GETPARAMETER(i)));
    }
    bool isAssignment = false, isFunctionForm = false;
};

template <class F> void EACH_ROW(F f) {
    for (const COMMAND_SET *set : COMMAND_SETS())
        for (const COMMAND_ROW &row : set->rows) {
            const std::string name = std::string(set->nameSpace) + std::string(row.name);
            INFO(name << ": " << std::string(row.usage));
            f(name, row);
        }
}

template <class F> void EACH_KEYWORD(F f) {
    for (const auto &table : {KEYWORDS(), PREFIX_KEYWORDS()})
        for (const KEYWORD &keyword : table) {
            INFO(std::string(keyword.word) << ": " << std::string(keyword.usage));
            f(keyword);
        }
}

bool ALLOWS(const COUNT_RULE &rule, NAT count) {
    switch (rule.kind) {
    case COUNT_RULE::KIND::EXACT: return count == rule.count;
    case COUNT_RULE::KIND::LEAST: return count >= rule.count;
    case COUNT_RULE::KIND::MOST: return count <= rule.count;
    default: return true;
    }
}
} // namespace

TEST_CASE("every usage line has its command in the place of its kind") {
    EACH_ROW([](const std::string &name, const COMMAND_ROW &row) {
        const USAGE usage(row.usage, row.kind);
        if (row.kind == COMMAND_KIND::FUNCTION) {
            CHECK(usage.isAssignment);
            CHECK(usage.isFunctionForm);
            CHECK(usage.command == name);
        } else if (row.kind == COMMAND_KIND::LAMBDA) {
            CHECK(std::count(usage.values.begin(), usage.values.end(), name) == 1);
        } else {
            CHECK_FALSE(usage.isAssignment);
            CHECK(usage.command == name);
        }
    });
}

TEST_CASE("no usage line is anything but a call: it holds no comment, keyword or @") {
    EACH_ROW([](const std::string &, const COMMAND_ROW &row) {
        const std::string usage(row.usage);
        CHECK(GETUTF8(CUT_COMMENT(UTF16(usage))) == usage);
        CHECK(FIND_KEYWORD(PREPARE_PART(UTF16(usage)).word) == nullptr);
        CHECK(usage.find('@') == std::string::npos);
    });
}

TEST_CASE("the parameters of every usage line satisfy the row's count rule") {
    EACH_ROW([](const std::string &, const COMMAND_ROW &row) {
        if (row.kind == COMMAND_KIND::LAMBDA) return;
        const USAGE usage(row.usage, row.kind);
        INFO(usage.count << " parameters");
        CHECK(ALLOWS(row.count, usage.count));
    });
}

TEST_CASE("the parameters of every usage line are so many as the parameters text allows") {
    EACH_ROW([](const std::string &, const COMMAND_ROW &row) {
        if (row.kind == COMMAND_KIND::LAMBDA) return;
        const USAGE usage(row.usage, row.kind);
        const PARAMETER_COUNT allowed = COUNT_OF(PARSE_PARAMETERS(row.parameters));
        INFO(usage.count << " parameters for \"" << std::string(row.parameters) << "\"");
        CHECK(usage.count >= allowed.least);
        CHECK(usage.count <= allowed.most);
    });
}

TEST_CASE("every parameters text is well formed") {
    EACH_ROW([](const std::string &, const COMMAND_ROW &row) {
        INFO(std::string(row.parameters));
        CHECK(PARSE_PARAMETERS(row.parameters).error == "");
        if (row.kind == COMMAND_KIND::LAMBDA) CHECK(row.parameters == "");
    });
    EACH_KEYWORD([](const KEYWORD &keyword) {
        INFO(std::string(keyword.parameters));
        CHECK(PARSE_PARAMETERS(keyword.parameters).error == "");
    });
}

TEST_CASE("count rule and parameters text of a row say the same") {
    EACH_ROW([](const std::string &, const COMMAND_ROW &row) {
        const PARAMETER_COUNT allowed = COUNT_OF(PARSE_PARAMETERS(row.parameters));
        INFO("\"" << std::string(row.parameters) << "\" against " << row.count.count);
        if (row.count.kind == COUNT_RULE::KIND::EXACT) {
            CHECK(allowed.least == row.count.count);
            CHECK(allowed.most == row.count.count);
        } else if (row.count.kind == COUNT_RULE::KIND::LEAST) {
            CHECK(allowed.least == row.count.count);
        } else if (row.count.kind == COUNT_RULE::KIND::MOST) {
            CHECK(allowed.least == 0);
            CHECK(allowed.most == row.count.count);
        }
    });
}

// A name that is only taken apart is a text called path.
TEST_CASE("a parameter that stands for a file has the kind file") {
    static const std::regex fileName(
        ".*\\.(txt|csv|tsv|xml|nii|gz|hdr|img|trk|vtk|vtp|obj|dxf|swc|mel|raw|dat|bin|log|macro|"
        "png|ppm|bmp|svg|html|input)");
    std::vector<std::string> kinds; // of the parameters in order, those of groups too
    const auto collect = [&](auto &&self, const PARAMETER_SEQUENCE &parts) -> void {
        for (const PARAMETER_PART &part : parts) {
            if (part.GROUP()) self(self, part.choices.front());
            if (!part.GROUP()) kinds.push_back(part.name == "path" ? "file" : part.kind);
        }
    };
    int files = 0;
    EACH_ROW([&](const std::string &, const COMMAND_ROW &row) {
        const PARAMETER_TEXT text = PARSE_PARAMETERS(row.parameters);
        const USAGE usage(row.usage, row.kind);
        kinds.clear();
        collect(collect, text.choices.front());
        if (kinds.empty() || row.kind == COMMAND_KIND::LAMBDA) return;
        // A repeated parameter is the last one; a group in front may have been left out.
        if (usage.count < COUNT_OF(text).least || text.choices.size() > 1) return;
        for (std::size_t i = 0; i < usage.values.size(); ++i) {
            if (!std::regex_match(usage.values[i], fileName) || usage.values[i].front() == '.')
                continue;
            INFO(usage.values[i]);
            CHECK(kinds[std::min(i, kinds.size() - 1)] == "file");
            ++files;
        }
    });
    CHECK(files > 30);
}

TEST_CASE("no name stands twice for one kind, in all sets together") {
    std::map<std::pair<std::string, int>, int> uses;
    EACH_ROW([&](const std::string &name, const COMMAND_ROW &row) {
        const bool property = row.kind == COMMAND_KIND::PROPERTY;
        ++uses[{name, property ? 2 : static_cast<int>(row.kind)}];
        if (property) ++uses[{name, 3}];
    });
    for (const auto &[key, count] : uses) {
        INFO(key.first << " of kind " << key.second);
        CHECK(count == 1);
    }
}

TEST_CASE("no command has the name of a keyword, and none begins as a declaration does") {
    EACH_ROW([](const std::string &name, const COMMAND_ROW &row) {
        if (row.kind == COMMAND_KIND::FUNCTION || row.kind == COMMAND_KIND::LAMBDA) return;
        CHECK(FIND_KEYWORD(UTF16(name)) == nullptr);
    });
}

TEST_CASE("every note is short, on one line, without a point, and is understood alone") {
    const auto check = [](std::string_view note) {
        CHECK(!note.empty());
        CHECK(note.size() <= LONGEST_NOTE);
        CHECK(note.find_first_of("\n\t") == std::string_view::npos);
        CHECK_FALSE(note.ends_with('.'));
        CHECK_FALSE(note.starts_with(' '));
        CHECK_FALSE(note.ends_with(' '));
        for (const std::string_view word : {"the same", "it ", "its ", "all of it", "all of these"})
            CHECK_FALSE(note.starts_with(word)); // the help shows a note without its neighbours
    };
    EACH_ROW([&](const std::string &, const COMMAND_ROW &row) { check(row.note); });
    EACH_KEYWORD([&](const KEYWORD &keyword) { check(keyword.note); });
}

TEST_CASE("every keyword has a usage that begins with it or shows its place in a line") {
    EACH_KEYWORD([](const KEYWORD &keyword) {
        const LINE_PART line = PREPARE_PART(CUT_COMMENT(UTF16(std::string(keyword.usage))));
        CHECK(GETUTF8(line.word) == std::string(keyword.word));
        const PARAMETER_COUNT allowed = COUNT_OF(PARSE_PARAMETERS(keyword.parameters));
        CAPTURE console;
        TMACRO engine;
        engine.INIT();
        engine._GETPARAMETER_WITH_CONSTANTS(line.rest);
        INFO(engine.PARAMETERLENGTH() << " parameters");
        CHECK(engine.PARAMETERLENGTH() >= allowed.least);
        CHECK(engine.PARAMETERLENGTH() <= allowed.most);
    });
}

TEST_CASE("the reference file names every registered command on one line of its own") {
    const SCRATCH_FOLDER folder;
    const CAPTURE console;
    const char *const arguments[] = {"morvane", "-first"};
    REQUIRE(RUN_PROGRAM(2, arguments) == 0);
    std::map<std::string, int> lines;
    std::istringstream stream(folder.READ("morvane.macro"));
    for (std::string line; std::getline(stream, line);)
        ++lines[line];
    EACH_ROW([&](const std::string &, const COMMAND_ROW &row) {
        CHECK(lines[std::string(row.usage) + " // " + std::string(row.note)] == 1);
    });
}
