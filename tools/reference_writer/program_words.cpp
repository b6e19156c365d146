#include "program_words.hpp"

#include "app/options_table.hpp"
#include "app/program.hpp"
#include "foundation/console/console.hpp"

#include <algorithm>
#include <regex>
#include <unistd.h>

namespace morvane {
namespace {
// What the program prints when it is asked for its options.
std::vector<std::string> HELP_LISTING() {
    std::string text;
    SETSINK([](std::string_view utf8, void *all) { *static_cast<std::string *>(all) += utf8; },
            &text);
    const char *const arguments[] = {"morvane", "-h"};
    RUN_PROGRAM(2, arguments);
    SETSINK(nullptr, nullptr);
    std::vector<std::string> lines;
    for (std::size_t begin = 0, end; begin < text.size(); begin = end + 1) {
        end = std::min(text.find('\n', begin), text.size());
        lines.push_back(text.substr(begin, end - begin));
    }
    return lines;
}

std::string LOWERED(std::string_view text) {
    std::string lower(text);
    for (char &c : lower)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return lower;
}

// "gz NII" is nii.gz; "PNM (PBM, PGM, PPM) : text" are four; "OBJ (3) : text" is obj.
std::vector<std::string> VALUES_OF_LEGEND(std::string_view legend) {
    const std::string head = LOWERED(legend.substr(0, legend.find(" :")));
    static const std::regex word("[a-z]+");
    std::vector<std::string> values;
    for (std::sregex_iterator i(head.begin(), head.end(), word), end; i != end; ++i)
        values.push_back(i->str());
    if (values.size() > 1 && values.front() == "gz") return {values[1] + ".gz"};
    return values;
}

bool ENDS_WITH(std::string_view name, std::string_view end) { return name.ends_with(end); }

// The options of the program's own table.
void READ_TABLE(REFERENCE &reference) {
    std::string topic;
    for (const OPTION_ROW &row : OPTIONS) {
        if (row.kind == OPTION_KIND::TOPIC) {
            topic = row.name;
            continue;
        }
        if (row.kind == OPTION_KIND::LEGEND) {
            if (reference.options.empty() || !ENDS_WITH(reference.options.back().name, ".type"))
                continue;
            const auto values = VALUES_OF_LEGEND(row.name);
            auto &known = reference.options.back().values;
            known.insert(known.end(), values.begin(), values.end());
            continue;
        }
        REFERENCE_OPTION option;
        option.name = row.name;
        option.legend = row.legend;
        option.standard = row.standard;
        option.topic = topic;
        option.isSwitch = row.kind == OPTION_KIND::LIBRARY || row.kind == OPTION_KIND::STATUS;
        if (row.kind == OPTION_KIND::LIBRARY)
            option.legend = "an image library, on when it is found at run time";
        if (row.kind == OPTION_KIND::NATURAL)
            option.range = std::to_string(row.min) + "-" + std::to_string(row.max);
        if (ENDS_WITH(row.name, ".input")) option.files = "*";
        reference.options.push_back(option);
        if (!row.constant.empty()) reference.variables.emplace_back(row.constant);
    }
}

// Longer words than the listing has for them.
std::string LEGEND_OF(const std::string &name, const std::string &legend) {
    if (name == "macro") return "the macro to run; the last bare word counts, too";
    if (name == "first") return "write the command reference morvane.macro and end";
    if (name == "optionsfile") return "file of options, one name=value a line";
    if (name == "logfile") return "write a copy of the console's text into a log file";
    if (name == "verbose") return "write to the console";
    return legend;
}

std::string FILES_OF(const std::string &name) {
    if (name == "macro") return "*.macro";
    if (name == "optionsfile") return "*.ini";
    return {};
}

// The options before the first topic: those of every program, and how the script is named.
void READ_COMMON_OPTIONS(REFERENCE &reference, const std::vector<std::string> &lines) {
    static const std::regex form("  (\\+/-|-)(\\S+) : (.*) = (.*)");
    char folder[4096];
    const std::string here = ::getcwd(folder, sizeof folder) ? std::string(folder) + "/" : "";
    for (const std::string &line : lines) {
        if (line == "Input Options:") return;
        std::smatch parts;
        if (!std::regex_match(line, parts, form)) continue;
        REFERENCE_OPTION option;
        option.name = parts[2];
        option.legend = LEGEND_OF(option.name, parts[3]);
        option.standard = parts[4];
        // The listing shows the options file with the folder in which this runs.
        if (!here.empty() && option.standard.starts_with(here))
            option.standard.erase(0, here.size());
        option.topic = "Options of the run";
        option.isSwitch = parts[1] == "+/-";
        option.files = FILES_OF(option.name);
        reference.options.push_back(option);
    }
}

std::string VERSION_OF(const std::vector<std::string> &lines) {
    static const std::regex form("Morvane - (?:Version|Debug version) (\\S+) for .*");
    for (const std::string &line : lines)
        if (std::smatch parts; std::regex_match(line, parts, form)) return parts[1];
    return {};
}
} // namespace

void READ_PROGRAM_WORDS(REFERENCE &reference) {
    const std::vector<std::string> lines = HELP_LISTING();
    reference.version = VERSION_OF(lines);
    reference.maker = "The morvane developers";
    reference.words = {
        {"help", "[NAME]", "explains a command, a keyword or a namespace and ends"},
        {"--version", "", "prints the version and ends"},
        {"--check", "FILE", "reads a macro without running it, tells each finding and ends"},
        {"-h", "", "shows the options with their defaults and ends with status 1"},
        {"-?", "", "the same, waiting for the enter key at each section"},
        {"-strict", "", "as the first argument: no colours, no questions, no waiting"},
        {"-update", "", "as the first argument: fetches a new version"},
    };
    READ_COMMON_OPTIONS(reference, lines);
    READ_TABLE(reference);
}
} // namespace morvane
