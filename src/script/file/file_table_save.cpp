#include "script/file/file_table.hpp"

#include "foundation/console/files.hpp"
#include "foundation/console/paths.hpp"

#include <algorithm>

namespace morvane {
namespace {
constexpr std::string_view CSV_SEPARATORS = ",;\t";

void AppendQuoted(std::string &text, std::string_view cell) {
    text += '"';
    for (const char c : cell) {
        if (c == '"') text += '"';
        text += c;
    }
    text += '"';
}

// What a reader would pass over, or take for something else, at the start of a line.
bool IsMistakable(std::string_view line) {
    const std::size_t first = line.find_first_not_of(" \t");
    if (first == std::string_view::npos) return true;
    const std::string_view rest = line.substr(first);
    for (const std::string_view mark : {"#", "%", "//", "\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF"})
        if (rest.starts_with(mark)) return true;
    return false;
}
} // namespace

std::string TFILETABLE::SeparatorOf(const UTF16 &name) const {
    if (!separator.empty()) return separator;
    return IsAutomatic(name) ? "," : "\t";
}

bool TFILETABLE::NeedsQuotes(const PART &part, std::string_view cell) const {
    if (cell.empty()) return join; // a run of separators would swallow it
    const auto isBlank = [](char c) { return c == ' ' || c == '\t'; };
    return isBlank(cell.front()) || isBlank(cell.back()) ||
           cell.find_first_of("\"\r\n") != std::string_view::npos ||
           cell.find_first_of(part.shunned) != std::string_view::npos ||
           cell.find(part.separator) != std::string_view::npos;
}

// Appends one line of the output; `line` is a row, or a column where the table is transposed.
void TFILETABLE::PutLine(const PART &part, NAT line, std::string &text) const {
    const NAT first = part.transposed ? part.first.y : part.first.x;
    const NAT last = part.transposed ? LENGTHY() : LENGTHX();
    const std::size_t start = text.size();
    for (NAT i = first; i <= last; ++i) {
        const std::string_view cell = part.transposed ? GETVIEW(line, i) : GETVIEW(i, line);
        if (i > first) text += part.separator;
        if (NeedsQuotes(part, cell))
            AppendQuoted(text, cell);
        else
            text += cell;
    }
    if (IsMistakable(std::string_view(text).substr(start))) {
        // Quotes around its first cell, which has none yet, make it a row of the table again.
        const std::string_view cell = part.transposed ? GETVIEW(line, first) : GETVIEW(first, line);
        std::string quoted;
        AppendQuoted(quoted, cell);
        text.replace(start, cell.size(), quoted);
    }
    text += '\n';
}

bool TFILETABLE::Write(const PART &part, const SINK &sink) const {
    std::string text;
    const NAT last = part.transposed ? LENGTHX() : LENGTHY();
    for (NAT line = part.transposed ? part.first.x : part.first.y; line <= last; ++line) {
        text.clear();
        PutLine(part, line, text);
        if (!sink(text)) return false;
    }
    return true;
}

bool TFILETABLE::Save(const UTF16 &name, PART part) const {
    part.separator = SeparatorOf(name);
    if (IsAutomatic(name)) part.shunned = CSV_SEPARATORS;
    const bool packed = LOWERCASE(COPY(name, name.LENGTH() - 1, 2)) == UTF16("gz");
    FILE_WRITE file;
    if (!(packed ? ASSIGNGZWRITE(file, name) : ASSIGNWRITE(file, name))) return false;
    Write(part, [&file](std::string_view text) { return file.WRITE(text); });
    return file.COMMIT();
}

bool TFILETABLE::SAVE(const UTF16 &name) const { return Save(name, {}); }
bool TFILETABLE::SAVE_TRANSPOSE(const UTF16 &name) const {
    return Save(name, {.first = {1, 1}, .transposed = true, .separator = {}, .shunned = {}});
}

bool TFILETABLE::SAVE_HEADER(const UTF16 &name) const {
    const COMPLEXNAT first{std::min(header.x, LENGTHX()) + 1, std::min(header.y, LENGTHY()) + 1};
    return Save(name, {.first = first, .transposed = false, .separator = {}, .shunned = {}});
}

std::string TFILETABLE::SAVEBYTES() const {
    std::string bytes;
    Write({.first = {1, 1}, .transposed = false, .separator = SeparatorOf({}), .shunned = {}},
          [&bytes](std::string_view text) {
              bytes += text;
              return true;
          });
    return bytes;
}
} // namespace morvane
