#pragma once

#include "script/engine/script_line.hpp"

#include <set>
#include <string>
#include <vector>

// A script's lines as the check sees them, and what it tells of them.
namespace morvane {
// What holds for the lines of a block.
struct CHECK_CONTEXT {
    std::string prefix;         // of the `with` blocks, joined; empty outside them
    bool prefixUnknown = false; // a `with` whose name is known at run time only
    bool inBody = false;        // of a command of the script's own: its caller's prefix may hold
    bool inBlock = false;
};

// One line that runs, after imports; lines that are text are not among them.
struct CHECK_LINE {
    std::string place;                // "file:line:"
    std::size_t order = 0;            // among all lines read
    UTF16 text;                       // as it stands in its file
    std::unique_ptr<LINE_PART> owner; // its first word
    const LINE_PART *part = nullptr;  // the command word: behind an inline then, else or of
    NAT column = 1;                   // of the command word
    CHECK_CONTEXT context;
};

// The place of a line and what holds there, without its words.
inline CHECK_LINE PLACE_OF(const CHECK_LINE &line) {
    CHECK_LINE place;
    place.place = line.place;
    place.order = line.order;
    place.column = line.column;
    place.context = line.context;
    return place;
}

// A file that a line would read as lines of the script, and that isn't there.
struct MISSING_FILE {
    CHECK_LINE line; // its place, with the column of the name
    UTF16 file;
    std::string_view word; // "import" or "include"
};

// Where a word stands in a text, from a column on; the column itself when it doesn't.
inline NAT COLUMN_OF(const UTF16 &word, const UTF16 &text, NAT from) {
    const NAT found = word.EMPTY() ? 0 : POS(word, text, from);
    return found > 0 ? found : from;
}

// The findings, each told once, in the order of the lines.
class CHECK_FINDINGS {
public:
    void PUT(const CHECK_LINE &line, NAT column, const std::string &text) {
        found.insert({line.order, column, line.place + std::to_string(column) + ": " + text});
    }
    void PUT(const CHECK_LINE &line, const std::string &text) { PUT(line, line.column, text); }
    void MERGE(const CHECK_FINDINGS &other) {
        found.insert(other.found.begin(), other.found.end());
    }
    std::vector<std::string> LINES() const;

private:
    struct FINDING {
        std::size_t order;
        NAT column;
        std::string text;
        friend auto operator<=>(const FINDING &, const FINDING &) = default;
    };
    std::set<FINDING> found;
};
} // namespace morvane
