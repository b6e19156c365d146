#pragma once

#include "foundation/base/utf16.hpp"

#include <span>
#include <string_view>

namespace morvane {
class TMACRO;
struct BLOCK_FRAME;

// What the line loop itself does with a keyword before any handler.
enum class KEYWORD_ROLE : BYTE {
    BLOCK,   // only its handler
    THEN,    // inline form when something stands behind it
    ELSE,    // the same with the sense reversed
    OF,      // inline form of a case
    END,     // closes the block
    BEGIN,   // nothing
    LEAVE,   // acts in skipped code too
    INCLUDE, // acts in skipped code too, and the line goes on
    IMPORT,  // only its handler, and a word as any other where it is assigned to
};

// One keyword of the language.
struct KEYWORD {
    std::string_view word;
    KEYWORD_ROLE role;
    bool opensSkipped; // opens a nested block for the scan of skipped code
    void (*run)(TMACRO &engine, BLOCK_FRAME &frame); // null where the role says all
    // As in a command row: the parameters in order, one line that works, what it does.
    std::string_view parameters = {}, usage = {}, note = {};
};

std::span<const KEYWORD> KEYWORDS();        // exact words
std::span<const KEYWORD> PREFIX_KEYWORDS(); // words that count by their beginning
// The keyword of a lower-case word, null for none; any word that begins with `var`, `local` or
// `global` is that keyword.
const KEYWORD *FIND_KEYWORD(const UTF16 &word);
} // namespace morvane
