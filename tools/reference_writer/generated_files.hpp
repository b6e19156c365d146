#pragma once

#include "reference.hpp"

#include <span>
#include <string>
#include <string_view>

// The files that are made from the tables: one writer each, the same bytes at every call.
namespace morvane {
std::string COMMANDS_PAGE(const REFERENCE &reference); // docs/commands.md
std::string FORMATS_PAGE(const REFERENCE &reference);  // docs/formats.md
std::string MAN_PAGE(const REFERENCE &reference);      // roff for man(1)
std::string BASH_COMPLETION(const REFERENCE &reference);
std::string ZSH_COMPLETION(const REFERENCE &reference);
std::string FISH_COMPLETION(const REFERENCE &reference);
std::string TEXTMATE_GRAMMAR(const REFERENCE &reference);   // JSON
std::string EXTENSION_MANIFEST(const REFERENCE &reference); // package.json of the editor extension
std::string VIM_SYNTAX(const REFERENCE &reference);

struct GENERATED_FILE {
    std::string_view path; // from the root of the project
    std::string (*text)(const REFERENCE &reference);
};
std::span<const GENERATED_FILE> GENERATED_FILES();
} // namespace morvane
