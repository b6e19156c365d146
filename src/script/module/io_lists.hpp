#pragma once

#include "script/file/dir_list.hpp"
#include "script/file/file_copy.hpp"
#include "script/file/file_list.hpp"

#include <algorithm>

namespace morvane {
// A list of names with the position at which a script stands: 0 before the first entry, 1..LENGTH
// on one, LENGTH + 1 behind the last.
template <class LIST> struct IO_LIST {
    LIST names;
    NAT position = 1;

    NAT LENGTH() const { return names.LENGTH; }
    // Limited to 0..LENGTH + 1; below 0 from the end, -1 being the last.
    void GOTO(NAT index) {
        if (index < 0) index = index < -LENGTH() ? 0 : LENGTH() + 1 + index;
        position = std::min(index, LENGTH() + 1);
    }
    void NEXT() { position = std::min(position, LENGTH()) + 1; }
    void BEFORE() { position = std::max(std::min(position, LENGTH() + 1) - 1, NAT{0}); }
    NAT REST() const { return std::max(LENGTH() - position, NAT{0}); } // behind the position
    // The name at the position or beside it; empty where there is none.
    UTF16 GET(NAT offset = 0) const { return names.GET(position + offset).GET(); }
};

// What the commands under io. share: the two lists, and how files are copied.
struct IO_STATE {
    IO_LIST<TFILELIST> FILES;
    IO_LIST<TDIRLIST> DIRS;
    COPY_METHOD METHOD = COPY_METHOD::AUTO;
};
extern IO_STATE IO;
void INIT_IO(); // empty lists, copying by AUTO
} // namespace morvane
