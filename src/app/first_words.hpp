#pragma once

#include <optional>
#include <string>
#include <vector>

namespace morvane {
// The words that count as the very first argument only, and only when no file has their name:
// "help [WORDS]", "--version" alone, "--check FILE". They print their text without a banner.
// The exit status when one of them was given, else nothing, and the program runs a script.
// `arguments` are those of the process, the program's path first.
std::optional<int> FIRST_WORDS(const std::vector<std::string> &arguments);
} // namespace morvane
