#include "generated_files.hpp"
#include "text_forms.hpp"

namespace morvane {
namespace {
// In fish a backslash escapes within single quotes.
std::string QUOTED(std::string_view text) {
    return "'" + REPLACED(REPLACED(text, "\\", "\\\\"), "'", "\\'") + "'";
}

std::string VALUES(const REFERENCE_OPTION &option) {
    if (option.isSwitch) return " -x -a 'on off'";
    if (!option.values.empty()) return " -x -a " + QUOTED(JOINED(option.values, " "));
    if (option.files.size() > 1)
        return " -x -a '(__fish_complete_suffix " + option.files.substr(1) + ")'";
    return option.files.empty() ? " -x" : " -r -F";
}

std::string OPTION_LINES(const REFERENCE_OPTION &option) {
    const std::string legend = " -d " + QUOTED(option.legend) + "\n";
    std::string lines = "complete -c morvane -o " + option.name + VALUES(option) + legend;
    if (option.isSwitch)
        lines += "complete -c morvane -n 'string match -q -- \"+*\" (commandline -ct)' -a '+" +
                 option.name + "'" + legend;
    return lines;
}

// "-h" is short, "-strict" old, "--version" long; a word without a sign is the first argument.
std::string WORD_LINE(const REFERENCE_WORD &word) {
    const std::string legend = " -d " + QUOTED(word.note) + "\n";
    const std::string values =
        word.argument == "FILE" ? " -x -a '(__fish_complete_suffix .macro)'" : "";
    if (word.word.starts_with("--"))
        return "complete -c morvane -l " + word.word.substr(2) + values + legend;
    if (word.word.front() != '-')
        return "complete -c morvane -n 'test (count (commandline -opc)) -eq 1' -a " + word.word +
               legend;
    const std::string form = word.word.size() == 2 ? " -s " : " -o ";
    return "complete -c morvane" + form + QUOTED(word.word.substr(1)) + values + legend;
}

constexpr std::string_view HEAD =
    R"(# Completion of morvane for fish. Made by tools/reference_writer; edit the rows, not this file.

function __morvane_wants_name
    set -l words (commandline -opc)
    test (count $words) -eq 2; and test "$words[2]" = help
end

complete -c morvane -f
complete -c morvane -n 'not __morvane_wants_name' -a '(__fish_complete_suffix .macro)'
)";
} // namespace

std::string FISH_COMPLETION(const REFERENCE &reference) {
    std::vector<std::string> names = reference.HELP_NAMES();
    std::string text(HEAD);
    for (const REFERENCE_WORD &word : reference.words)
        text += WORD_LINE(word);
    for (const REFERENCE_OPTION &option : reference.options)
        text += OPTION_LINES(option);
    return text + "complete -c morvane -n __morvane_wants_name -a '\n" + WRAPPED(names, "    ") +
           "'\n";
}
} // namespace morvane
