#include "script/engine/keywords_table.hpp"

#include "script/engine/blocks.hpp"

#include <array>
#include <unordered_map>

namespace morvane {
namespace {
using enum KEYWORD_ROLE;

// Deliberate: minimize, maximize, for.part, for.random, ofnot and sub open no skipped block.
constexpr KEYWORD TABLE[] = {
    {"include", INCLUDE, false, nullptr, "file: file", "include part.macro",
     "put the lines of a file in place of this line and stop the script there; use import"},
    {"import", IMPORT, false, RUN_IMPORT, "file: file", "import part.macro",
     "the lines of a file in place of this line, carried out from the first one"},
    {"if.then", THEN, true, RUN_THEN, "[command: text ...]", "if.then print yes",
     "a command, or alone on its line a block, when the last condition holds"},
    {"then", THEN, true, RUN_THEN, "[command: text ...]", "then print yes",
     "a command, or alone on its line a block, when the last condition holds"},
    {"if.true", THEN, true, RUN_THEN, "[command: text ...]", "if.true print yes",
     "a command, or alone on its line a block, when the last condition holds"},
    {"if.else", ELSE, true, RUN_ELSE, "[command: text ...]", "if.else print no",
     "a command, or alone on its line a block, when the last condition fails"},
    {"else", ELSE, true, RUN_ELSE, "[command: text ...]", "else print no",
     "a command, or alone on its line a block, when the last condition fails"},
    {"if.false", ELSE, true, RUN_ELSE, "[command: text ...]", "if.false print no",
     "a command, or alone on its line a block, when the last condition fails"},
    {"of", OF, true, RUN_OF, "value: text, [command: text ...]", "of bone print hard",
     "a command, or alone with its values a block, when the case value is the one named"},
    {"halt", LEAVE, false, RUN_HALT, "[status: number]", "halt",
     "end the process at once, in skipped lines too"},
    {"break", LEAVE, false, RUN_BREAK, "", "break", "end the script, in skipped lines too"},
    {"end", END, false, nullptr, "[value: text ...]", "end", "close a block"},
    {"until", END, false, nullptr, "[number: real ...]", "until 1",
     "close a block; a repeat ends when every number is 1 or more"},
    {"begin", BEGIN, false, nullptr, "", "begin",
     "nothing: a line that may stand behind the head of a block"},
    {"ignore", BLOCK, true, RUN_IGNORE, "", "ignore", "skip a block"},
    {"process", BLOCK, true, RUN_PROCESS, "", "process", "a block with variables of its own"},
    {"with", BLOCK, true, RUN_WITH, "prefix: name", "with scalar",
     "a block in which every command gets this prefix"},
    {"procedure", BLOCK, true, DECLARE_PROCEDURE, "name: name", "procedure twice",
     "a new command; its block reads parameter[1], parameter[2] and so on"},
    {"function", BLOCK, true, DECLARE_FUNCTION, "name: name", "function twice",
     "a new function; its block gives its value to the variable result"},
    {"module", BLOCK, true, RUN_MODULE, "", "module",
     "a block with commands and variables of its own"},
    {"sub", BLOCK, false, DECLARE_SUB, "name: name", "sub twice", "a new command, as procedure"},
    {"if", BLOCK, false, RUN_IF, "number: real ...", "if 1",
     "the condition holds when every number is 1 or more"},
    {"ifall", BLOCK, false, RUN_IF, "number: real ...", "ifall 1 1",
     "the condition holds when every number is 1 or more"},
    {"ifand", BLOCK, false, RUN_IF, "number: real ...", "ifand 1 1",
     "the condition holds when every number is 1 or more"},
    {"ifnot", BLOCK, false, RUN_IF, "number: real ...", "ifnot 0",
     "the condition holds when not all numbers are 1 or more"},
    {"ifnotall", BLOCK, false, RUN_IF, "number: real ...", "ifnotall 0 1",
     "the condition holds when not all numbers are 1 or more"},
    {"ifnand", BLOCK, false, RUN_IF, "number: real ...", "ifnand 0 1",
     "the condition holds when not all numbers are 1 or more"},
    {"ifone", BLOCK, false, RUN_IF, "number: real ...", "ifone 0 1",
     "the condition holds when some number is 1 or more"},
    {"ifor", BLOCK, false, RUN_IF, "number: real ...", "ifor 0 1",
     "the condition holds when some number is 1 or more"},
    {"ifnotone", BLOCK, false, RUN_IF, "number: real ...", "ifnotone 0 0",
     "the condition holds when no number is 1 or more"},
    {"ifnor", BLOCK, false, RUN_IF, "number: real ...", "ifnor 0 0",
     "the condition holds when no number is 1 or more"},
    {"ifzero", BLOCK, false, RUN_IF, "value: hyper ...", "ifzero <0,0,0>",
     "the condition holds when every length is 0"},
    {"ifnotzero", BLOCK, false, RUN_IF, "value: hyper ...", "ifnotzero <1,0,0>",
     "the condition holds when no length is 0"},
    {"ifsmaller", BLOCK, false, RUN_IF, "value: hyper, next: hyper ...", "ifsmaller 1 2",
     "the condition holds when each length is below the next"},
    {"ifequal", BLOCK, false, RUN_IF, "value: hyper, next: hyper ...", "ifequal <1,2> <1,2>",
     "the condition holds when each value equals the next"},
    {"ifabsequal", BLOCK, false, RUN_IF, "value: hyper, next: hyper ...", "ifabsequal 5 <3,4>",
     "the condition holds when each length equals the next"},
    {"ifbigger", BLOCK, false, RUN_IF, "value: hyper, next: hyper ...", "ifbigger 2 1",
     "the condition holds when each length is above the next"},
    {"ifempty", BLOCK, false, RUN_IF, "[text: text ...]", "ifempty",
     "the condition holds when all texts are empty"},
    {"ifnotempty", BLOCK, false, RUN_IF, "[text: text ...]", "ifnotempty bone",
     "the condition holds when some text is not empty"},
    {"ifsame", BLOCK, false, RUN_IF, "[text: text ...]", "ifsame bone bone",
     "the condition holds when each text equals the next"},
    {"ifnotsame", BLOCK, false, RUN_IF, "[text: text ...]", "ifnotsame bone skin",
     "the condition holds when some text differs from the next"},
    {"ifcontain", BLOCK, false, RUN_IF, "part: text, text: text ...", "ifcontain on bone stone",
     "the condition holds when every later text contains the first"},
    {"ifallcontain", BLOCK, false, RUN_IF, "part: text, text: text ...",
     "ifallcontain on bone stone", "the condition holds when every later text contains the first"},
    {"ifnotcontain", BLOCK, false, RUN_IF, "part: text, text: text ...",
     "ifnotcontain on bone skin",
     "the condition holds when not every later text contains the first"},
    {"ifnotallcontain", BLOCK, false, RUN_IF, "part: text, text: text ...",
     "ifnotallcontain on bone skin",
     "the condition holds when not every later text contains the first"},
    {"ifonecontain", BLOCK, false, RUN_IF, "part: text, text: text ...",
     "ifonecontain on bone skin", "the condition holds when some later text contains the first"},
    {"ifnotonecontain", BLOCK, false, RUN_IF, "part: text, text: text ...",
     "ifnotonecontain on skin hair", "the condition holds when no later text contains the first"},
    {"ifpart", BLOCK, false, RUN_IF, "text: text, part: text ...", "ifpart bone on ne",
     "the condition holds when the first text contains every later one"},
    {"ifallpart", BLOCK, false, RUN_IF, "text: text, part: text ...", "ifallpart bone on ne",
     "the condition holds when the first text contains every later one"},
    {"ifnotpart", BLOCK, false, RUN_IF, "text: text, part: text ...", "ifnotpart bone on in",
     "the condition holds when the first text lacks some later one"},
    {"ifnotallpart", BLOCK, false, RUN_IF, "text: text, part: text ...", "ifnotallpart bone on in",
     "the condition holds when the first text lacks some later one"},
    {"ifonepart", BLOCK, false, RUN_IF, "text: text, part: text ...", "ifonepart bone in on",
     "the condition holds when the first text contains some later one"},
    {"ifnotonepart", BLOCK, false, RUN_IF, "text: text, part: text ...", "ifnotonepart bone in sk",
     "the condition holds when the first text contains no later one"},
    {"ifexists", BLOCK, false, RUN_IF, "file: file ...", "ifexists bone.nii",
     "the condition holds when each is a file, a directory or a mask that fits some file"},
    {"ifnotexists", BLOCK, false, RUN_IF, "file: file ...", "ifnotexists bone.nii",
     "the reverse of ifexists"},
    {"ifzero.filesize", BLOCK, false, RUN_IF_FILESIZE, "file: file", "ifzero.filesize bone.nii",
     "the condition stays only when the file is empty"},
    {"ifsmaller.filesize", BLOCK, false, RUN_IF_FILESIZE, "file: file, size: number bytes",
     "ifsmaller.filesize bone.nii 1000", "the condition stays only when the file is smaller"},
    {"ifequal.filesize", BLOCK, false, RUN_IF_FILESIZE, "file: file, size: number bytes",
     "ifequal.filesize bone.nii 1000", "the condition stays only when the file has this size"},
    {"iffilesize", BLOCK, false, RUN_IF_FILESIZE, "file: file, size: number bytes",
     "iffilesize bone.nii 1000", "the condition stays only when the file has this size"},
    {"ifbigger.filesize", BLOCK, false, RUN_IF_FILESIZE, "file: file, size: number bytes",
     "ifbigger.filesize bone.nii 1000", "the condition stays only when the file is bigger"},
    {"case", BLOCK, false, RUN_CASE, "value: text", "case bone",
     "the value that the of and ofnot lines behind it look at"},
    {"ofnot", BLOCK, false, RUN_OFNOT, "value: text ...", "ofnot skin",
     "a block that runs when no value equals the case value"},
    {"for", BLOCK, true, RUN_FOR,
     "count: number | first: number, last: number | first: real, step: real, last: real", "for 3",
     "a block for 1 to n, for a to b, or for a to b by a step in the middle; see for.count"},
    {"parallel", BLOCK, true, RUN_PARALLEL, "count: number | first: number, last: number",
     "parallel 3", "a loop as for, of which each member of a group of runs takes its share"},
    {"for.part", BLOCK, false, RUN_FOR_PART, "total: number, part: number, parts: number",
     "for.part 100 1 4", "the loop over one part of 1 to total, cut into equal parts"},
    {"for.random", BLOCK, false, RUN_FOR_RANDOM, "count: number | first: number, last: number",
     "for.random 10", "the loop of for in a random order"},
    {"minimize", BLOCK, false, RUN_MINIMIZE, "low: real, step: real, high: real, name: name ...",
     "minimize 0 0.5 10 a",
     "search the smallest value at which the block sets result to true; step 0: by powers of ten"},
    {"maximize", BLOCK, false, RUN_MAXIMIZE, "low: real, step: real, high: real, name: name ...",
     "maximize 0 0.5 10 a",
     "search the largest value at which the block sets result to true; step 0: by powers of ten"},
    {"repeat", BLOCK, true, RUN_REPEAT, "", "repeat",
     "a block that runs until the numbers of its closing line are 1 or more"},
    {"while", BLOCK, true, RUN_WHILE, "number: real ...", "while 0",
     "a block that runs as long as every number is 1 or more"},
    {"execute", BLOCK, false, RUN_EXECUTE, "program: file, [argument: text ...]", "execute ls -l",
     "run a program and wait for its end"},
    {"output.store", BLOCK, true, RUN_OUTPUT_STORE, "file: file", "output.store out.txt",
     "a block whose print lines go into a new file"},
    {"output.append", BLOCK, true, RUN_OUTPUT_APPEND, "file: file", "output.append out.txt",
     "a block whose print lines go to the end of a file"},
    {"store.space", BLOCK, false, RUN_STORE_SPACE, "[separator: text]", "store.space \";\"",
     "what parts the values of a line in store and append blocks; without a parameter nothing"},
    {"store", BLOCK, true, RUN_STORE, "file: file", "store out.txt",
     "a block whose lines are the text of a new file"},
    {"append.space", BLOCK, false, RUN_STORE_SPACE, "[separator: text]", "append.space \";\"",
     "what parts the values of a line in store and append blocks; without a parameter nothing"},
    {"append", BLOCK, true, RUN_APPEND, "file: file", "append out.txt",
     "a block whose lines are put at the end of a file"},
};
// Deliberate: any word that begins with var, local or global is that keyword.
constexpr KEYWORD PREFIX_TABLE[] = {
    {"var", BLOCK, false, DECLARE_VAR, "name: name ...", "var a b",
     "make these variables empty, new ones where there are none"},
    {"local", BLOCK, false, DECLARE_LOCAL, "name: name, [value: text ...]", "local a 5",
     "a variable and its value"},
    {"global", BLOCK, false, DECLARE_GLOBAL, "name: name, [value: text ...]", "global a 5",
     "a variable that lives until the script ends"},
};

std::unordered_map<std::string_view, const KEYWORD *> MakeIndex() {
    std::unordered_map<std::string_view, const KEYWORD *> index;
    for (const KEYWORD &keyword : TABLE)
        index.emplace(keyword.word, &keyword);
    return index;
}
} // namespace

std::span<const KEYWORD> KEYWORDS() { return TABLE; }
std::span<const KEYWORD> PREFIX_KEYWORDS() { return PREFIX_TABLE; }

const KEYWORD *FIND_KEYWORD(const UTF16 &word) {
    static const std::unordered_map<std::string_view, const KEYWORD *> index = MakeIndex();
    const std::string_view low = word.LOWBYTES.VIEW();
    const std::string_view high = word.HIGHBYTES.VIEW();
    const std::size_t plain = high.find_first_not_of('\0');
    if (plain == std::string_view::npos)
        if (const auto found = index.find(low); found != index.end()) return found->second;
    for (const KEYWORD &keyword : PREFIX_TABLE)
        if (low.starts_with(keyword.word) && plain >= keyword.word.size()) return &keyword;
    return nullptr;
}
} // namespace morvane
