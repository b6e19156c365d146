#pragma once

#include "script/file/name_list.hpp"

namespace morvane {
class TDIRLIST;

// Names of files. A mask may hold "*" and "?" in every part, see NAME_SEARCH; one that fits nothing
// adds nothing. The names are sorted by text order and FORMAT.SORTING. GETFILE appends, INIT
// replaces.
class TFILELIST : public TNAMELIST {
public:
    using TNAMELIST::INIT;

    void GETFILE(const UTF16 &mask);
    void INIT(const UTF16 &mask);
    // The mask below each of the directories, in their order; an absolute mask stands for itself.
    void GETFILE(const TDIRLIST &directories, const UTF16 &mask);
    void INIT(const TDIRLIST &directories, const UTF16 &mask);
    // Appends the names of a text file, one a line, without blanks around them; empty lines are
    // skipped. A failure is told.
    void GETLINES(const UTF16 &name);
    // In every name; the list only, no file is renamed.
    void REPLACETXT(const UTF16 &find, const UTF16 &replacement);
};
} // namespace morvane
