#include "script/file/file_table.hpp"

#include "foundation/console/console.hpp"
#include "foundation/console/paths.hpp"
#include "script/file/unicode_text.hpp"

#include <algorithm>
#include <array>
#include <iterator>
#include <new>

namespace morvane {
namespace {
constexpr std::string_view LINE_ENDS = "\r\n";

// Cuts the bytes of a table into cells, one row after another.
class CELL_READER {
public:
    CELL_READER(std::string_view bytes, const std::string &cut, bool joined, bool keepComments)
        : text(bytes), separator(cut), join(joined), comments(keepComments) {
        if (text.starts_with("\xEF\xBB\xBF")) at = 3; // a byte order mark is no cell
        // Blanks that don't part cells stand around them for show.
        for (char blank : {' ', '\t'})
            if (separator != std::string_view(&blank, 1)) padding += blank;
        edge = join && padding.size() < 2 ? std::string(" \t") : padding;
    }

    // The next row that is neither blank nor a comment left out; false at the end.
    bool ROW(std::vector<std::string> &cells);
    // All from the next such row on.
    std::string_view REST() { return FindLine() ? text.substr(at) : std::string_view(); }

private:
    bool FindLine();
    bool IsComment(std::string_view line) const;
    bool Quoted(std::string &cell);
    std::string Plain();
    bool Separator();
    void Pass(std::string_view bytes) { at = std::min(text.find_first_not_of(bytes, at), lineEnd); }

    std::string_view text;
    const std::string &separator;
    bool join, comments;
    std::string padding; // blanks that are no separators
    std::string edge;    // blanks without a meaning at both ends of a line
    std::size_t at = 0, lineEnd = 0;
};

bool CELL_READER::IsComment(std::string_view line) const {
    return line.starts_with('#') || line.starts_with('%') || line.starts_with("//");
}

// Stands at the first cell of the next line that counts.
bool CELL_READER::FindLine() {
    while (at < text.size()) {
        lineEnd = std::min(text.find_first_of(LINE_ENDS, at), text.size());
        Pass(edge);
        const std::string_view line = text.substr(at, lineEnd - at);
        if (!line.empty() && (comments || !IsComment(line))) return true;
        at = lineEnd + (text.substr(lineEnd, 2) == "\r\n" ? 2 : 1);
    }
    return false;
}

// A cell in quotes, which may hold separators, line ends and doubled quotes. A quote that does not
// close right before a separator or a line end is a character like any other.
bool CELL_READER::Quoted(std::string &cell) {
    std::size_t from = at + 1;
    for (;;) {
        const std::size_t quote = text.find('"', from);
        if (quote == std::string_view::npos) return false;
        cell += text.substr(from, quote - from);
        from = quote + 1;
        if (from >= text.size() || text[from] != '"') break;
        cell += '"';
        ++from;
    }
    from = std::min(text.find_first_not_of(padding, from), text.size());
    const bool closed = from == text.size() || text[from] == '\r' || text[from] == '\n' ||
                        text.substr(from).starts_with(separator);
    if (!closed) return false;
    at = from;
    if (at > lineEnd) lineEnd = std::min(text.find_first_of(LINE_ENDS, at), text.size());
    return true;
}

std::string CELL_READER::Plain() {
    const std::string_view line = text.substr(at, lineEnd - at);
    const std::string_view whole = line.substr(0, line.find(separator));
    at += whole.size();
    const std::size_t last = whole.find_last_not_of(at == lineEnd ? edge : padding);
    return std::string(whole.substr(0, last == std::string_view::npos ? 0 : last + 1));
}

// Passes the separator, or all of a joined run; false at the end of the line.
bool CELL_READER::Separator() {
    if (at >= lineEnd) return false;
    at += separator.size();
    if (!join) return true;
    for (;;) {
        const std::size_t before = at;
        Pass(padding);
        if (!text.substr(at, lineEnd - at).starts_with(separator)) {
            if (at < lineEnd) at = before;
            break;
        }
        at += separator.size();
    }
    return at < lineEnd || edge == padding; // blanks at the end of a line part nothing
}

bool CELL_READER::ROW(std::vector<std::string> &cells) {
    cells.clear();
    if (!FindLine()) return false;
    do {
        Pass(padding);
        std::string cell;
        if (at < lineEnd && text[at] == '"' && Quoted(cell))
            cells.push_back(std::move(cell));
        else
            cells.push_back(Plain());
    } while (Separator());
    at = lineEnd + (text.substr(lineEnd, 2) == "\r\n" ? 2 : 1);
    return true;
}

// The separator of a file of comma-separated values: the most frequent one of its first line, a
// comma when there is none. Commas stand in texts and numbers too, so they come last.
std::string CommonSeparator(std::string_view bytes) {
    constexpr std::string_view CANDIDATES = "\t;,";
    const std::string comma = ",";
    std::array<NAT, CANDIDATES.size()> counts{};
    bool inside = false;
    for (const char c : CELL_READER(bytes, comma, false, false).REST()) {
        if (!inside && LINE_ENDS.find(c) != std::string_view::npos) break;
        inside ^= c == '"';
        const std::size_t candidate = CANDIDATES.find(c);
        if (!inside && candidate != std::string_view::npos) ++counts[candidate];
    }
    const auto most = std::max_element(counts.begin(), counts.end());
    return *most == 0 ? comma
                      : std::string(1, CANDIDATES[static_cast<std::size_t>(most - counts.begin())]);
}
} // namespace

bool TFILETABLE::LOAD(const UTF16 &name, UTF16CHAR ownSeparator) {
    return Load(name, ownSeparator, false);
}

bool TFILETABLE::LOAD_COMMENT(const UTF16 &name, UTF16CHAR ownSeparator) {
    return Load(name, ownSeparator, true);
}

bool TFILETABLE::IsAutomatic(const UTF16 &name) const {
    const UTF16 extension = LOWERCASE(GETFILEEXTENSION(name));
    return separator.empty() && (extension == "csv" || extension == "csv.gz");
}

bool TFILETABLE::Load(const UTF16 &name, UTF16CHAR ownSeparator, bool comments) {
    DONE();
    if (!TFILE::LOAD(name)) return false;
    if (ISSEPARATOR(ownSeparator)) return Parse(GETUTF8(ownSeparator), comments);
    return Parse(IsAutomatic(name) ? CommonSeparator(VIEW()) : SeparatorOf(name), comments);
}

bool TFILETABLE::LOADBYTES(std::string_view bytes, bool comments) {
    DONE();
    return TFILE::LOADBYTES(bytes) && Parse(SeparatorOf({}), comments);
}

// The cells of the bytes in the file's buffer, which is freed.
bool TFILETABLE::Parse(const std::string &cut, bool comments) {
    constexpr NAT SHORTEST_TEXT = 2; // bytes of a file that has lines
    try {
        const bool isWide = HAS_UNIT_MARK(VIEW());
        const std::string narrow = isWide ? UTF8_OF_UNITS(VIEW()) : std::string();
        const std::string_view bytes = isWide ? std::string_view(narrow) : VIEW();
        CELL_READER reader(SIZE() < SHORTEST_TEXT ? std::string_view() : bytes, cut, join,
                           comments);
        ROW cells; // keeps its memory; each row gets what it needs
        while (reader.ROW(cells)) {
            lengthX = std::max(lengthX, static_cast<NAT>(cells.size()));
            rows.emplace_back(std::make_move_iterator(cells.begin()),
                              std::make_move_iterator(cells.end()));
        }
    } catch (const std::bad_alloc &) {
        DONE();
        WRITELN("  Out of memory!");
        return false;
    }
    TFILETEXT::DONE();
    return true;
}
} // namespace morvane
