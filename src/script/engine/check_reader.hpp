#pragma once

#include "script/engine/check_blocks.hpp"
#include "script/engine/check_names.hpp"

namespace morvane {
// Reads a script and what it imports into the lines that run; follows the blocks, and gathers the
// names that the script declares and assigns.
class CHECK_READER {
public:
    CHECK_READER(CHECK_NAMES &nameList, CHECK_FINDINGS &list)
        : names(nameList), findings(list), blocks(list) {}

    bool READ(const UTF16 &file); // false: it cannot be read
    const std::vector<CHECK_LINE> &LINES() const { return lines; }
    const std::vector<MISSING_FILE> &MISSING() const { return missing; }

private:
    // How the lines of a file join those around them.
    enum class JOIN : BYTE { SCRIPT, IMPORT, INCLUDE };
    bool ReadFile(const UTF16 &file, JOIN join);
    void ReadLine(CHECK_LINE line);
    void ReadText(CHECK_LINE &line);
    void ReadRunning(CHECK_LINE &line);
    bool Inline(CHECK_LINE &line) const;
    void Directive(const CHECK_LINE &line);
    void Import(const CHECK_LINE &line);
    void Include(const CHECK_LINE &line, const std::vector<TOKEN> &tokens);
    void Insert(const CHECK_LINE &line, const UTF16 &path, JOIN join);
    void Miss(const CHECK_LINE &line, const UTF16 &file, std::string_view word);
    void Gather(const CHECK_LINE &line);
    void GatherKeyword(const CHECK_LINE &line);
    void OpenWith(const CHECK_LINE &line);

    CHECK_NAMES &names;
    CHECK_FINDINGS &findings;
    CHECK_BLOCKS blocks;
    std::vector<CHECK_LINE> lines;
    std::vector<MISSING_FILE> missing;
    std::vector<UTF16> chain; // files that led to the one being read
    std::size_t order = 0;
    NAT files = 0;
    bool markerSet = false; // a directive of this store block has changed what directives are
};
} // namespace morvane
