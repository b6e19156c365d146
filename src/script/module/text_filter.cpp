#include "script/module/use_all.hpp"

#include "foundation/base/number_text.hpp"
#include "script/module/on_disk.hpp"
#include "script/module/text_lines.hpp"
#include "script/module/text_parts.hpp"

namespace morvane {
namespace {
// file, text, [target]; without a target the file itself. False: the text is empty, which stops the
// script before a filter takes every line away.
bool READ_REQUEST(TMACRO *engine, TEXT_REQUEST &request, NAT target) {
    request.file = engine->GETPARAMETER(1);
    request.text = GETUTF8(engine->GETPARAMETER(2));
    request.target = engine->GETPARAMETER_ERRORFREE(target);
    if (request.target.EMPTY()) request.target = request.file;
    if (request.text.empty()) engine->ERROR("empty text to search for");
    return !request.text.empty();
}

// file, text, [replacement, [target]]; without a replacement the text is removed.
void TEXT_REPLACE(TMACRO *engine) {
    TEXT_REQUEST request;
    request.replacement = GETUTF8(engine->GETPARAMETER_ERRORFREE(3));
    if (READ_REQUEST(engine, request, 4)) REPLACE_LINES(request);
}

template <LINES_GONE GONE> void TEXT_DELETE(TMACRO *engine) {
    TEXT_REQUEST request;
    if (READ_REQUEST(engine, request, 3)) DELETE_LINES(GONE, request);
}

template <TEXT_GONE GONE> void TEXT_IGNORE(TMACRO *engine) {
    TEXT_REQUEST request;
    if (READ_REQUEST(engine, request, 3)) IGNORE_TEXT(GONE, request);
}

void TEXT_SPLIT(TMACRO *engine) {
    TEXT_REQUEST request;
    if (READ_REQUEST(engine, request, 3)) SPLIT_LINES(request);
}

template <PART_CUT CUT> void TEXT_SPLIT_FILE(TMACRO *engine) {
    TEXT_REQUEST request;
    if (READ_REQUEST(engine, request, 3)) SPLIT_FILE(CUT, request);
}

template <bool APPEND> void TEXT_COLLECT(TMACRO *engine) {
    TEXT_REQUEST request;
    if (READ_REQUEST(engine, request, 3)) COLLECT_LINES(APPEND, request);
}

void TEXT_COUNT_REF(TMACRO *engine) {
    NAT count = 0;
    const UTF16 file = engine->GETPARAMETER(1);
    if (COUNT_LINES(file, GETUTF8(engine->GETPARAMETER(2)), count))
        engine->COMMAND_RESULT = GETSTRING(count);
}

template <auto FIND> void TEXT_FIND_REF(TMACRO *engine) {
    const UTF16 file = engine->GETPARAMETER(1);
    FIND(file, GETUTF8(engine->GETPARAMETER(2)), engine->COMMAND_RESULT);
}

// A row of both names. Its usage is the name and these arguments, in front of a function "a := ".
struct TEXT_ROW {
    COMMAND_KIND kind;
    std::string_view name;
    HANDLER handler;
    COUNT_RULE count;
    std::string_view parameters, arguments, note;
};

constexpr auto PROCEDURES = COMMAND_KIND::PROCEDURE, FUNCTIONS = COMMAND_KIND::FUNCTION;
constexpr std::string_view FILTERED = "file: file, text: text, [target: file]";
constexpr std::string_view GATHERED = "files: file, text: text, target: file";
constexpr std::string_view SEARCHED = "file: file, text: text";

constexpr TEXT_ROW TEXT_ROWS[] = {
    {PROCEDURES, "replace", ON_DISK<TEXT_REPLACE, 4>, AT_LEAST(2),
     "file: file, text: text, [replacement: text, target: file]", "notes.txt red blue",
     "replace a text in each line"},
    {PROCEDURES, "delete.before", ON_DISK<TEXT_DELETE<LINES_GONE::BEFORE>, 3>, AT_LEAST(2),
     FILTERED, "notes.txt \"End of header\"", "drop the lines before the first line with the text"},
    {PROCEDURES, "delete.line", ON_DISK<TEXT_DELETE<LINES_GONE::HOLDING>, 3>, AT_LEAST(2), FILTERED,
     "notes.txt draft", "drop every line with the text"},
    {PROCEDURES, "delete.other", ON_DISK<TEXT_DELETE<LINES_GONE::OTHER>, 3>, AT_LEAST(2), FILTERED,
     "notes.txt size", "drop every line without the text"},
    {PROCEDURES, "delete.after", ON_DISK<TEXT_DELETE<LINES_GONE::AFTER>, 3>, AT_LEAST(2), FILTERED,
     "notes.txt Summary", "drop the lines after the first line with the text"},
    {PROCEDURES, "ignore.before", ON_DISK<TEXT_IGNORE<TEXT_GONE::BEFORE>, 3>, AT_LEAST(2), FILTERED,
     "notes.txt size", "drop what stands before a mark in each line"},
    {PROCEDURES, "ignore.after", ON_DISK<TEXT_IGNORE<TEXT_GONE::AFTER>, 3>, AT_LEAST(2), FILTERED,
     "notes.txt mm", "drop what stands after a mark in each line"},
    {PROCEDURES, "filter", ON_DISK<TEXT_DELETE<LINES_GONE::OTHER>, 3>, AT_LEAST(2), FILTERED,
     "notes.txt size sizes.txt", "keep the lines with the text"},
    {PROCEDURES, "filter.not", ON_DISK<TEXT_DELETE<LINES_GONE::HOLDING>, 3>, AT_LEAST(2), FILTERED,
     "notes.txt draft clean.txt", "keep the lines without the text"},
    {FUNCTIONS, "count", ON_DISK<TEXT_COUNT_REF, 2>, EXACTLY(2), SEARCHED, "notes.txt size",
     "count of the lines with the text"},
    {FUNCTIONS, "find", ON_DISK<TEXT_FIND_REF<FIND_LINE>, 2>, EXACTLY(2), SEARCHED,
     "notes.txt size", "first line with the text"},
    {FUNCTIONS, "find.all", ON_DISK<TEXT_FIND_REF<FIND_LINES>, 2>, EXACTLY(2), SEARCHED,
     "notes.txt size", "all lines with the text, as a list"},
    {PROCEDURES, "split", ON_DISK<TEXT_SPLIT, 3>, AT_LEAST(2), FILTERED,
     "notes.txt \";\" lines.txt", "cut every line at a text"},
    {PROCEDURES, "split.file.before", ON_DISK<TEXT_SPLIT_FILE<PART_CUT::BEFORE>, 3>, AT_LEAST(2),
     FILTERED, "notes.txt Chapter", "a file for each part; a line with the text begins one"},
    {PROCEDURES, "split.file", ON_DISK<TEXT_SPLIT_FILE<PART_CUT::AT>, 3>, AT_LEAST(2), FILTERED,
     "notes.txt \"---\"", "a file for each part between the lines with the text"},
    {PROCEDURES, "split.file.after", ON_DISK<TEXT_SPLIT_FILE<PART_CUT::AFTER>, 3>, AT_LEAST(2),
     FILTERED, "notes.txt End", "a file for each part; a line with the text ends one"},
    {PROCEDURES, "collect", ON_DISK<TEXT_COLLECT<false>, 3>, EXACTLY(3), GATHERED,
     "\"*.log\" error errors.txt", "gather the lines with the text in a new file"},
    {PROCEDURES, "collect.append", ON_DISK<TEXT_COLLECT<true>, 3>, EXACTLY(3), GATHERED,
     "run.log error errors.txt", "add the lines with the text to a file"},
};

constexpr std::size_t ROW_COUNT = std::size(TEXT_ROWS);
constexpr std::string_view ASSIGNED = "a := ";

struct NAMED_ROWS {
    COMMAND_ROW rows[ROW_COUNT];
};

constexpr std::size_t USAGE_LENGTH(std::string_view nameSpace, const TEXT_ROW &row) {
    const std::size_t front = row.kind == COMMAND_KIND::FUNCTION ? ASSIGNED.size() : 0;
    return front + nameSpace.size() + row.name.size() + 1 + row.arguments.size();
}

consteval std::size_t USAGE_LENGTHS(std::string_view nameSpace) {
    std::size_t length = 0;
    for (const TEXT_ROW &row : TEXT_ROWS)
        length += USAGE_LENGTH(nameSpace, row);
    return length;
}

// The usage lines under one name, one behind the other.
template <const std::string_view &NAMESPACE>
constexpr auto USAGES = [] {
    std::array<char, USAGE_LENGTHS(NAMESPACE)> usages{};
    char *out = usages.data();
    for (const TEXT_ROW &row : TEXT_ROWS)
        for (const std::string_view part :
             {row.kind == COMMAND_KIND::FUNCTION ? ASSIGNED : std::string_view(), NAMESPACE,
              row.name, std::string_view(" "), row.arguments})
            out = std::copy(part.begin(), part.end(), out);
    return usages;
}();

template <const std::string_view &NAMESPACE>
constexpr NAMED_ROWS ROWS = [] {
    NAMED_ROWS named{};
    const char *usage = USAGES<NAMESPACE>.data();
    COMMAND_ROW *out = named.rows;
    for (const TEXT_ROW &row : TEXT_ROWS) {
        const std::size_t length = USAGE_LENGTH(NAMESPACE, row);
        *out++ = {row.kind,  row.name,       row.handler,     nullptr,
                  row.count, row.parameters, {usage, length}, row.note};
        usage += length;
    }
    return named;
}();

constexpr std::string_view TEXT_NAMESPACE = "text.", TXT_NAMESPACE = "txt.";
static_assert(ROWS_ARE_SOUND(ROWS<TEXT_NAMESPACE>.rows));
static_assert(ROWS_ARE_SOUND(ROWS<TXT_NAMESPACE>.rows));
} // namespace

const COMMAND_SET TEXT_SET{TEXT_NAMESPACE, ROWS<TEXT_NAMESPACE>.rows};
const COMMAND_SET TXT_SET{TXT_NAMESPACE, ROWS<TXT_NAMESPACE>.rows};

void TMACRO::USE_TEXT() {
    REGISTER(TEXT_SET);
    REGISTER(TXT_SET);
    REGISTER(BLOB_SET);
}
} // namespace morvane
