#pragma once

#include "script/file/name_list.hpp"

namespace morvane {
// Names of directories. A mask may hold "*" and "?" in every part, see NAME_SEARCH; a directory
// that is missing adds nothing. GET... appends, INIT... replaces.
class TDIRLIST : public TNAMELIST {
public:
    using TNAMELIST::INIT;

    void GETDIR(const UTF16 &mask); // the directories that the mask fits
    void INIT(const UTF16 &mask);
    void GETDIRRECURSIVE(const UTF16 &mask); // the mask's last part is looked for at every depth
    void INITRECURSIVE(const UTF16 &mask);
    void GETDIRCOMPLETE(const UTF16 &mask); // those that the mask fits, and all below them
    void INITCOMPLETE(const UTF16 &mask);
};
} // namespace morvane
