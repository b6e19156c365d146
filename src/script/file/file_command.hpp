#pragma once

#include "script/file/file_text.hpp"

namespace morvane {
// A script's lines after includes. Each line knows its number in the file it came from.
class TFILECOMMAND : public TFILETEXT {
public:
    bool LOAD(const UTF16 &name);
    // A script from memory; `name` stands for its file in reports.
    bool LOADBYTES(std::string_view bytes, const UTF16 &name);
    void DONE();

    // Replaces the text of `line` by the lines of a file (one empty line for a file without any),
    // so that the file's first line stands at `line`. False, and the script as it was, when the
    // file cannot be read, includes stand too deep in each other or the script grows too large.
    bool LOADINSERT(NAT line, const UTF16 &file);
    bool INSERTBYTES(NAT line, std::string_view bytes, const UTF16 &name); // the same from memory

    NAT GETREALLINE(NAT line) const;   // the number in its file; `line` outside 1..LENGTH
    UTF16 GETREALFILE(NAT line) const; // its file's name as given; the script outside 1..LENGTH
    const std::vector<UTF16> &FILES() const { return files; } // the script first, then includes

    // The files that led to a line: the script, the file that it includes, and so on to the line's
    // own. Empty outside 1..LENGTH.
    std::vector<UTF16> GETCHAIN(NAT line) const;

    static constexpr NAT DEEPEST_INCLUDE = 64;
    static constexpr NAT LARGEST_SCRIPT = NAT{1} << 30; // bytes after includes

private:
    struct ORIGIN {
        NAT line, file, depth; // file: offset in `files`; depth: includes above this line
        NAT insertion = 0;     // which insertion brought it, 0 for the script's own lines
    };
    // A file that stands in place of a line; `above` is the insertion that brought that line.
    struct INSERTION {
        NAT file, above;
    };
    bool StartOrigins(bool loaded, const UTF16 &name);
    bool Insert(NAT line, const TFILETEXT &included, const UTF16 &name);
    std::vector<ORIGIN> OriginsWith(NAT line, const TFILETEXT &included, const UTF16 &name,
                                    NAT depth);
    bool ReplaceLine(NAT line, const TFILETEXT &included, std::vector<ORIGIN> newOrigins);

    std::vector<ORIGIN> origins;
    std::vector<INSERTION> insertions; // counted from 1
    std::vector<UTF16> files;
};
} // namespace morvane
