#include "generated_files.hpp"
#include "text_forms.hpp"

namespace morvane {
namespace {
// The text between the brackets of an option's entry.
std::string LEGEND(std::string_view text) {
    std::string legend;
    for (const char c : text) {
        if (c == '[' || c == ']' || c == '\\' || c == ':') legend += '\\';
        legend += c;
    }
    return legend;
}

std::string VALUES(const REFERENCE_OPTION &option) {
    if (option.isSwitch) return ":(on off)";
    if (!option.values.empty()) return ":(" + JOINED(option.values, " ") + ")";
    if (option.files == "*") return ":_files";
    if (!option.files.empty()) return ":_files -g \"" + option.files + "(-.)\"";
    return ": ";
}

// An entry without a value is the first argument only; "-?" is a pattern that has to be escaped.
std::string WORD_LINE(const REFERENCE_WORD &word) {
    std::string line = REPLACED(word.word, "?", "\\?") + "[" + LEGEND(word.note) + "]";
    if (word.argument == "FILE") line += ":macro:_files -g \"*.macro(-.)\"";
    return "        " + SHELL_QUOTED(line) + " \\\n";
}

std::string OPTION_LINES(const REFERENCE_OPTION &option) {
    const std::string legend = "[" + LEGEND(option.legend) + "]";
    std::string lines = "        " +
                        SHELL_QUOTED("-" + option.name + "=" + legend + ":" + LEGEND(option.name) +
                                     VALUES(option)) +
                        " \\\n";
    if (option.isSwitch) lines += "        " + SHELL_QUOTED("+" + option.name + legend) + " \\\n";
    return lines;
}

constexpr std::string_view FORM = R"zsh(#compdef morvane
# Completion of morvane for zsh. Made by tools/reference_writer; edit the rows, not this file.

_morvane_names() {
    local -a names=(
@NAMES@    )
    compadd -- $names
}

_morvane_first() {
    local -a words=(@FIRST@)
    _describe -t words word words
    _files -g '*.macro(-.)'
}

_morvane() {
    if (( CURRENT == 3 )) && [[ $words[2] == help ]]; then
        _morvane_names
        return
    fi
    _arguments \
@OPTIONS@        '1:macro:_morvane_first' \
        '*:macro:_files -g "*.macro(-.)"'
}

_morvane "$@"
)zsh";
} // namespace

std::string ZSH_COMPLETION(const REFERENCE &reference) {
    std::vector<std::string> names = reference.HELP_NAMES();
    for (std::string &name : names)
        name = SHELL_QUOTED(name);
    std::string options, first;
    for (const REFERENCE_WORD &word : reference.words) {
        if (word.word.front() == '-')
            options += WORD_LINE(word);
        else
            first += (first.empty() ? "" : " ") + SHELL_QUOTED(word.word + ":" + word.note);
    }
    for (const REFERENCE_OPTION &option : reference.options)
        options += OPTION_LINES(option);
    std::string text = REPLACED(FORM, "@NAMES@", WRAPPED(names, "        "));
    return REPLACED(REPLACED(text, "@FIRST@", first), "@OPTIONS@", options);
}
} // namespace morvane
