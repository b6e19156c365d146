#pragma once

#include "script/engine/check_line.hpp"
#include "script/engine/check_names.hpp"

#include <optional>

namespace morvane {
// Which files a script reads, by name, before anything may have made them.
class CHECK_FILES {
public:
    CHECK_FILES(const CHECK_NAMES &nameList, CHECK_FINDINGS &list)
        : names(nameList), findings(list) {}

    // The lines in their order; `row` is that of the line's command, null for a keyword, for the
    // script's own commands and for what is not known.
    void GATHER(const CHECK_LINE &line, const COMMAND_ROW *row, const std::vector<TOKEN> &tokens);
    // Behind all of GATHER: a file that a load command names and that isn't there.
    void CHECK(const CHECK_LINE &line, const COMMAND_ROW *row, const std::vector<TOKEN> &tokens);
    void CHECK(const MISSING_FILE &miss); // the same of a file of lines

private:
    static constexpr std::size_t NEVER = static_cast<std::size_t>(-1);
    void Mention(const CHECK_LINE &line, const UTF16 &file);
    bool IsMade(const CHECK_LINE &line, const UTF16 &file) const;
    bool Exists(const UTF16 &file);

    const CHECK_NAMES &names;
    CHECK_FINDINGS &findings;
    std::unordered_map<std::string, std::size_t> mentions; // first line that names the file
    std::unordered_map<std::string, std::size_t> made;     // the same of lines that make files
    std::unordered_map<std::string, bool> existing;
    std::size_t unknownFrom = NEVER; // first line that may make any file
};
} // namespace morvane
