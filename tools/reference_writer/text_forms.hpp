#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

// Texts as the generated formats want them.
namespace morvane {
std::string REPLACED(std::string_view text, std::string_view from, std::string_view to);
std::string JOINED(const std::vector<std::string> &words, std::string_view between);
// Words on lines of at most 100 columns, each line behind `indent`.
std::string WRAPPED(const std::vector<std::string> &words, std::string_view indent);

std::string MARKDOWN_TEXT(std::string_view text); // in a table cell
std::string MARKDOWN_CODE(std::string_view text); // a code span in a table cell
std::string ROFF_TEXT(std::string_view text);     // inside a line; minus signs stay minus signs
std::string SHELL_QUOTED(std::string_view text);  // in single quotes
std::string JSON_QUOTED(std::string_view text);
std::string REGEX_TEXT(std::string_view text); // each character as itself
// a|b|c of the sorted words.
std::string REGEX_ANY(const std::vector<std::string> &words);
} // namespace morvane
