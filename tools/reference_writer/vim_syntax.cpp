#include "generated_files.hpp"
#include "text_forms.hpp"

#include <algorithm>
#include <cctype>

namespace morvane {
namespace {
// In a pattern with \V only the backslash and the delimiter are special.
std::string PLAIN(const std::string &word) {
    return "\\V" + REPLACED(REPLACED(word, "\\", "\\\\"), "/", "\\/") + "\\m";
}

std::string ANY(const std::vector<std::string> &words) {
    std::vector<std::string> plain;
    for (const std::string &word : words)
        plain.push_back(PLAIN(word));
    return "\\%(" + JOINED(plain, "\\|") + "\\)";
}

// Whether a name consists of the characters that `syn iskeyword` below lists.
bool IS_WORD(const std::string &name) {
    return std::ranges::all_of(name, [](char c) {
        return std::isalnum(static_cast<unsigned char>(c)) || c == '_' || c == '.';
    });
}

// The lines of a group: `syn keyword`, and a match for names such as image.rotate.-90.
std::string NAME_LINES(const std::string &group, const std::vector<std::string> &names) {
    std::vector<std::string> words, others;
    for (const std::string &name : names)
        (IS_WORD(name) ? words : others).push_back(name);
    const std::string lines = WRAPPED(words, "syn keyword " + group + " ");
    if (others.empty()) return lines;
    return lines + "syn match " + group + " /\\%(^\\|\\s\\)\\@1<=" + ANY(others) +
           "\\%(\\s\\|$\\)\\@=/\n";
}

constexpr std::string_view FORM =
    R"(" Colours for the macros of morvane. Made by tools/reference_writer; edit the rows, not this file.
if exists("b:current_syntax")
  finish
endif

syn case ignore
syn iskeyword @,48-57,_,.

@COMMANDS@@VARIABLES@
syn match morvaneNumber /\%(^\|[^[:alnum:]_.@-]\)\@1<=-\=\d\+\%(\.\d\+\)\=\%(e[+-]\=\d\+\)\=\w\@!/
syn match morvaneNumber /\%(^\| \)\@1<=\%(\$\x\+\|%[01]\+\|#\d\+\)\%( \|$\)\@=/
syn match morvaneTarget /^\s*\zs\S\+\%( \+@OPERATORS@\%( \|$\)\)\@=/
syn match morvaneOperator / \@1<=@OPERATORS@\%( \|$\)\@=/
syn match morvaneBracket /[()<>\[\]{}]/
syn match morvaneAt /@\w\+\%(\.\w\+\)*/
syn match morvaneDirective /^\s*\zs@@\S/
syn match morvaneKeyword /^\s*\zs@KEYWORDS@\%( \|$\)\@=/
syn match morvaneKeyword /\c\%(^\s*\%(\%(if\.\)\=\%(then\|else\)\|if\.true\|if\.false\) \+\)\@<=@KEYWORDS@\%( \|$\)\@=/
syn match morvaneKeyword /\c\%(^\s*of \+\S\+ \+\)\@<=@KEYWORDS@\%( \|$\)\@=/
syn match morvaneDeclaration /^\s*\zs@PREFIXES@\S*/
" A text ends with its line and at a comment, which no quote protects.
syn region morvaneString start=/"/ end=/"/ end=/ \/\//me=s-1 end=/$/ oneline contains=morvaneAt
syn region morvaneString start=/'/ end=/'/ end=/ \/\//me=s-1 end=/$/ oneline contains=morvaneAt
syn match morvaneComment / \/\/.*$/
syn match morvaneComment /^\s*\zs\%(\/\/\|#\|%\).*$/
syn match morvaneComment /\%^!.*$/

hi def link morvaneCommand Function
hi def link morvaneVariable Identifier
hi def link morvaneNumber Number
hi def link morvaneTarget Identifier
hi def link morvaneOperator Operator
hi def link morvaneBracket Delimiter
hi def link morvaneAt Special
hi def link morvaneDirective PreProc
hi def link morvaneKeyword Statement
hi def link morvaneDeclaration Type
hi def link morvaneString String
hi def link morvaneComment Comment

let b:current_syntax = "morvane"
)";
} // namespace

std::string VIM_SYNTAX(const REFERENCE &reference) {
    std::string text =
        REPLACED(FORM, "@COMMANDS@", NAME_LINES("morvaneCommand", reference.COMMAND_NAMES()));
    text = REPLACED(text, "@VARIABLES@", NAME_LINES("morvaneVariable", reference.variables));
    text = REPLACED(text, "@OPERATORS@", ANY(reference.operators));
    text = REPLACED(text, "@KEYWORDS@", ANY(reference.KEYWORD_NAMES()));
    return REPLACED(text, "@PREFIXES@", ANY(reference.prefixes));
}
} // namespace morvane
