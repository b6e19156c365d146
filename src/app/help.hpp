#pragma once

#include <span>
#include <string>

namespace morvane {
// morvane help [WORDS]: what the commands and keywords are, made from their rows. Without words
// the overview; else the page of a name, the list of a namespace, or what holds the words.
// Prints plain lines of at most 100 columns, with colours only on a terminal.
void HELP(std::span<const std::string> words);
} // namespace morvane
