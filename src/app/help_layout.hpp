#pragma once

#include <string>
#include <string_view>
#include <vector>

// How the help is set: headings and two columns, wrapped at the width of the console.
namespace morvane {
// 100 columns, fewer on a narrower terminal, never below 40.
std::size_t HELP_WIDTH();
std::size_t TEXT_WIDTH(std::string_view utf8); // letters, not bytes

void WRITE_HEADING(std::string_view text); // bold on a terminal
// A text under a label of `labelWidth` columns, wrapped; the label is green on a terminal.
void WRITE_COLUMN(std::string_view label, std::size_t labelWidth, std::string_view text);
// The same with the text as it stands, blanks and all.
void WRITE_FIXED(std::string_view label, std::size_t labelWidth, std::string_view text);

struct HELP_LINE {
    std::string label, text;
};
// Lines whose labels share one width, which no label of more than 40 columns widens.
void WRITE_COLUMNS(const std::vector<HELP_LINE> &lines);
// The words of a text in lines of at most `width` columns; a longer word stays whole.
std::vector<std::string> WRAP(std::string_view text, std::size_t width);
} // namespace morvane
