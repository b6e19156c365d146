#pragma once

#include "foundation/base/utf16.hpp"

// Filters over the lines of a text file, which may be as long as they like. Texts are compared as
// UTF-8 bytes, upper and lower case differ, an empty text stands in no line. What a filter keeps is
// written byte for byte, each line with its own end. A file of fewer than 2 bytes has no lines and
// is written as it is. Names that end in gz are packed files.
namespace morvane {
struct TEXT_REQUEST {
    UTF16 file;
    std::string text;        // what the lines are searched for
    std::string replacement; // of REPLACE_LINES
    UTF16 target;            // may be the file itself
};

// Every filter is false, and the target as it was, when the file cannot be read or the target
// cannot be written, which is told.
bool REPLACE_LINES(const TEXT_REQUEST &request); // every occurrence
bool SPLIT_LINES(const TEXT_REQUEST &request);   // a line end in place of every occurrence

// BEFORE and AFTER: the lines in front of, or behind, the first line that holds the text; without
// such a line nothing goes, which is told. HOLDING and OTHER: all lines with, or without, it.
enum class LINES_GONE : BYTE { BEFORE, HOLDING, OTHER, AFTER };
bool DELETE_LINES(LINES_GONE gone, const TEXT_REQUEST &request);

// In each line what stands in front of, or behind, the first occurrence, which stays.
enum class TEXT_GONE : BYTE { BEFORE, AFTER };
bool IGNORE_TEXT(TEXT_GONE gone, const TEXT_REQUEST &request);

// Results of reading; false when the file cannot be read. A found line is given without its end,
// and long results as far as a value of the language reaches.
bool COUNT_LINES(const UTF16 &file, std::string_view text, NAT &count);
bool FIND_LINE(const UTF16 &file, std::string_view text, UTF16 &line); // the first; none: empty
// All, joined by tabs; a tab inside a line becomes a blank.
bool FIND_LINES(const UTF16 &file, std::string_view text, UTF16 &lines);
} // namespace morvane
