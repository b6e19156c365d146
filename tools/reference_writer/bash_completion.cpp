#include "generated_files.hpp"
#include "text_forms.hpp"

namespace morvane {
namespace {
std::string WORDS_OF(const REFERENCE &reference) {
    std::vector<std::string> words;
    for (const REFERENCE_WORD &word : reference.words)
        words.push_back(word.word);
    return JOINED(words, " ");
}

std::string OPTION_WORDS(const REFERENCE &reference) {
    std::vector<std::string> words;
    for (const REFERENCE_OPTION &option : reference.options) {
        words.push_back("-" + option.name + (option.isSwitch ? "" : "="));
        if (option.isSwitch) words.push_back("+" + option.name);
    }
    return WRAPPED(words, "        ");
}

// A branch for each option whose values or files are known.
std::string VALUE_BRANCHES(const REFERENCE &reference) {
    std::string branches;
    for (const REFERENCE_OPTION &option : reference.options) {
        std::string action;
        if (option.isSwitch)
            action = "_morvane_words 'on off'";
        else if (!option.files.empty())
            action = "_morvane_files " + SHELL_QUOTED(option.files);
        else if (!option.values.empty())
            action = "_morvane_words " + SHELL_QUOTED(JOINED(option.values, " "));
        if (!action.empty()) branches += "    -" + option.name + ") " + action + " ;;\n";
    }
    return branches;
}

constexpr std::string_view FORM =
    R"(# Completion of morvane for bash. Made by tools/reference_writer; edit the rows, not this file.

_morvane_words() {
    mapfile -t COMPREPLY < <(compgen -W "$1" -- "$current")
}

# Files by a mask, and directories.
_morvane_files() {
    mapfile -t COMPREPLY < <(compgen -f -X "!$1" -- "$current"; compgen -d -- "$current")
    mapfile -t COMPREPLY < <(printf '%s\n' "${COMPREPLY[@]}" | sort -u | sed '/^$/d')
    compopt -o filenames 2>/dev/null
}

_morvane_values() {
    case $1 in
@BRANCHES@    *) _morvane_files '*' ;;
    esac
}

_morvane_option_names() {
    _morvane_words "
@OPTIONS@        @WORDS@"
    [[ ${#COMPREPLY[@]} -ne 1 || ${COMPREPLY[0]} != *= ]] || compopt -o nospace 2>/dev/null
}

_morvane_help_names() {
    _morvane_words "
@NAMES@    "
}

_morvane() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    COMPREPLY=()
    if [[ $COMP_CWORD -eq 2 && $previous == help ]]; then
        _morvane_help_names
    elif [[ $COMP_CWORD -eq 2 && $previous == --check ]]; then
        _morvane_files '*.macro'
    elif [[ $current == = ]]; then
        # The words are cut at "=": "-name=value" comes as three.
        current=
        _morvane_values "$previous"
    elif [[ $previous == = && $COMP_CWORD -gt 2 ]]; then
        _morvane_values "${COMP_WORDS[COMP_CWORD - 2]}"
    elif [[ $current == -*=* ]]; then
        local option=${current%%=*}
        current=${current#*=}
        _morvane_values "$option"
        COMPREPLY=("${COMPREPLY[@]/#/$option=}")
    elif [[ $current == [-+]* ]]; then
        _morvane_option_names
    elif [[ $previous == -* && $COMP_CWORD -gt 1 && $previous != -strict ]]; then
        _morvane_values "$previous"
    else
        _morvane_files '*.macro'
        [[ $COMP_CWORD -ne 1 || help != "$current"* ]] || COMPREPLY+=(help)
    fi
}

complete -F _morvane morvane
)";
} // namespace

std::string BASH_COMPLETION(const REFERENCE &reference) {
    std::vector<std::string> names = reference.HELP_NAMES();
    std::string text = REPLACED(FORM, "@BRANCHES@", VALUE_BRANCHES(reference));
    text = REPLACED(text, "@OPTIONS@", OPTION_WORDS(reference));
    text = REPLACED(text, "@WORDS@", REPLACED(WORDS_OF(reference), "help ", ""));
    return REPLACED(text, "@NAMES@", WRAPPED(names, "        "));
}
} // namespace morvane
