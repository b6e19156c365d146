#include "script/module/list.hpp"

#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"
#include "script/file/file_text.hpp"
#include "script/module/list_value.hpp"

#include <algorithm>

// Lists as text files.
namespace morvane {
using namespace list;

namespace {
constexpr NAT CHUNK = NAT{1} << 16; // bytes gathered before they are written

bool IsGz(const UTF16 &name) {
    const std::string low = GETUTF8(LOWERCASE(name));
    return low.ends_with("gz");
}

bool IsBlank(std::string_view line) {
    return line.find_first_not_of(" \t") == std::string_view::npos;
}

// Lines gathered into chunks of a file that takes its name when all are written.
class LINE_WRITER {
public:
    bool OPEN(const UTF16 &name) {
        return IsGz(name) ? ASSIGNGZWRITE(file, name) : ASSIGNWRITE(file, name);
    }
    bool WRITE(std::string_view text) {
        buffer += text;
        return static_cast<NAT>(buffer.size()) < CHUNK || Flush();
    }
    bool COMMIT() { return Flush() && file.COMMIT(); }

private:
    bool Flush() {
        const bool written = file.WRITE(buffer);
        buffer.clear();
        return written;
    }

    FILE_WRITE file;
    std::string buffer;
};

// Whether a character was a line end or, for cells of a table, a tab; each becomes a blank.
bool Flatten(std::string &text, bool tabs) {
    bool changed = false;
    for (char &c : text) {
        if (c != '\n' && c != '\r' && !(tabs && c == '\t')) continue;
        c = ' ';
        changed = true;
    }
    return changed;
}

void TellFlattened(NAT count, const char *what) {
    if (count > 0)
        WRITELN("  Texts with " + UTF16(what) + ", saved as a blank: " + GETSTRING(count));
}
} // namespace

bool TLIST::LOAD(const UTF16 &name) {
    DONE();
    TFILEREADTEXT text;
    if (!text.LOAD(name)) return false;
    const bool texts = KIND() == LIST_CHARS;
    for (NAT line = 1; line <= text.LENGTH(); ++line) {
        if (!texts && IsBlank(text.GETVIEW(line))) continue;
        if (!PUSH(text.GET(line))) return false;
    }
    return true;
}

bool TLIST::SAVE(const UTF16 &name) const {
    LINE_WRITER file;
    if (!file.OPEN(name)) return false;
    // A file of fewer than two bytes has no lines, so a single empty text ends with two.
    const bool isShort = LENGTH() == 1 && GETEXACT(1).empty();
    NAT flattened = 0;
    for (NAT i = 1; i <= LENGTH(); ++i) {
        std::string line = GETEXACT(i);
        flattened += Flatten(line, false);
        if (!file.WRITE(line + (isShort ? "\r\n" : "\n"))) break;
    }
    TellFlattened(flattened, "a line end");
    return file.COMMIT();
}

bool SAVE_TABLE(const UTF16 &name, std::span<const LIST_COLUMN> columns) {
    LINE_WRITER file;
    if (!file.OPEN(name)) return false;
    NAT rows = 0, flattened = 0;
    for (const LIST_COLUMN &column : columns)
        rows = std::max(rows, column.list->LENGTH());
    for (NAT row = 0; row <= rows; ++row) { // row 0 holds the names
        std::string line;
        for (const LIST_COLUMN &column : columns) {
            if (&column != columns.data()) line += '\t';
            std::string cell;
            if (row == 0) cell = GETUTF8(column.name);
            if (row > 0 && row <= column.list->LENGTH()) cell = column.list->GETEXACT(row);
            flattened += Flatten(cell, true);
            line += cell;
        }
        if (!file.WRITE(line + "\n")) break;
    }
    TellFlattened(flattened, "a tab or a line end");
    return file.COMMIT();
}
} // namespace morvane
