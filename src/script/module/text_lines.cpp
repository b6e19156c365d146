#include "script/module/text_lines.hpp"

#include "foundation/console/files.hpp"
#include "script/engine/constant_table.hpp"
#include "script/module/text_line.hpp"
#include "script/module/text_target.hpp"

#include <algorithm>

namespace morvane {
namespace {
constexpr std::size_t NONE = std::string_view::npos;
constexpr std::size_t LONGEST_RESULT = 4 * LONGEST_TEXT; // bytes that may matter in a value

// Reads the file and writes what filter(line, target) puts out for each of its lines.
template <class FILTER>
bool Rewrite(const TEXT_REQUEST &request, const TFILEREADTEXT &file, FILTER filter) {
    FILE_WRITE target;
    if (!ASSIGNWRITE_BY_NAME(target, request.target)) return false;
    if (file.LENGTH() == 0) target.WRITE(file.VIEW());
    for (NAT line = 1; line <= file.LENGTH(); ++line)
        filter(LINE_OF(file, line), target);
    return target.COMMIT();
}

// The line with `between` in place of every occurrence.
void PutReplaced(FILE_WRITE &target, std::string_view line, std::string_view find,
                 std::string_view between) {
    std::size_t found = find.empty() ? NONE : line.find(find);
    while (found != NONE) {
        target.WRITE(line.substr(0, found));
        target.WRITE(between);
        line.remove_prefix(found + find.size());
        found = line.find(find);
    }
    target.WRITE(line);
}

NAT FirstLineWith(const TFILEREADTEXT &file, std::string_view text) {
    NAT line = 1;
    while (line <= file.LENGTH() && !HOLDS(file.GETVIEW(line), text))
        ++line;
    return line <= file.LENGTH() ? line : 0;
}

bool StaysAt(LINES_GONE gone, std::string_view line, std::string_view text) {
    return HOLDS(line, text) == (gone == LINES_GONE::OTHER);
}

// Cut behind a character, so that a value never ends inside one.
std::string_view ResultOf(std::string_view line) {
    if (line.size() <= LONGEST_RESULT) return line;
    std::size_t end = LONGEST_RESULT;
    while (end > 0 && (static_cast<BYTE>(line[end]) & 0xC0) == 0x80)
        --end;
    return line.substr(0, end);
}
} // namespace

bool REPLACE_LINES(const TEXT_REQUEST &request) {
    TFILEREADTEXT file;
    if (!file.LOAD(request.file)) return false;
    return Rewrite(request, file, [&](const TEXT_LINE &line, FILE_WRITE &target) {
        PutReplaced(target, line.text, request.text, request.replacement);
        target.WRITE(line.end);
    });
}

// A cut ends its line as the line itself ends; a last line without an end as the first one does.
bool SPLIT_LINES(const TEXT_REQUEST &request) {
    TFILEREADTEXT file;
    if (!file.LOAD(request.file)) return false;
    const std::string_view first = file.LENGTH() > 0 ? LINE_OF(file, 1).end : std::string_view();
    const std::string_view usual = first.empty() ? "\n" : first;
    return Rewrite(request, file, [&](const TEXT_LINE &line, FILE_WRITE &target) {
        PutReplaced(target, line.text, request.text, line.end.empty() ? usual : line.end);
        target.WRITE(line.end);
    });
}

bool DELETE_LINES(LINES_GONE gone, const TEXT_REQUEST &request) {
    TFILEREADTEXT file;
    if (!file.LOAD(request.file)) return false;
    const bool atFirst = gone == LINES_GONE::BEFORE || gone == LINES_GONE::AFTER;
    const NAT mark = atFirst ? FirstLineWith(file, request.text) : 0;
    if (atFirst && mark == 0) TELLMISSING(request.text, request.file);
    NAT number = 0;
    return Rewrite(request, file, [&](const TEXT_LINE &line, FILE_WRITE &target) {
        ++number;
        bool stays = atFirst ? mark == 0 : StaysAt(gone, line.text, request.text);
        if (mark > 0) stays = gone == LINES_GONE::BEFORE ? number >= mark : number <= mark;
        if (!stays) return;
        target.WRITE(line.text);
        target.WRITE(line.end);
    });
}

bool IGNORE_TEXT(TEXT_GONE gone, const TEXT_REQUEST &request) {
    TFILEREADTEXT file;
    if (!file.LOAD(request.file)) return false;
    return Rewrite(request, file, [&](const TEXT_LINE &line, FILE_WRITE &target) {
        std::string_view text = line.text;
        const std::size_t found = request.text.empty() ? NONE : text.find(request.text);
        if (found != NONE)
            text = gone == TEXT_GONE::BEFORE ? text.substr(found)
                                             : text.substr(0, found + request.text.size());
        target.WRITE(text);
        target.WRITE(line.end);
    });
}

bool COUNT_LINES(const UTF16 &file, std::string_view text, NAT &count) {
    TFILEREADTEXT lines;
    count = 0;
    if (!lines.LOAD(file)) return false;
    for (NAT line = 1; line <= lines.LENGTH(); ++line)
        count += HOLDS(lines.GETVIEW(line), text);
    return true;
}

bool FIND_LINE(const UTF16 &file, std::string_view text, UTF16 &line) {
    TFILEREADTEXT lines;
    line = {};
    if (!lines.LOAD(file)) return false;
    const NAT found = FirstLineWith(lines, text);
    if (found > 0) line = GETUTF16(ResultOf(lines.GETVIEW(found)));
    return true;
}

bool FIND_LINES(const UTF16 &file, std::string_view text, UTF16 &lines) {
    TFILEREADTEXT read;
    std::string joined;
    bool isFirst = true;
    lines = {};
    if (!read.LOAD(file)) return false;
    for (NAT line = 1; line <= read.LENGTH() && joined.size() < LONGEST_RESULT; ++line) {
        if (!HOLDS(read.GETVIEW(line), text)) continue;
        std::string found(ResultOf(read.GETVIEW(line)));
        std::replace(found.begin(), found.end(), '\t', ' ');
        joined += (isFirst ? "" : "\t") + found;
        isFirst = false;
    }
    lines = GETUTF16(joined);
    return true;
}
} // namespace morvane
