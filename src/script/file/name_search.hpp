#pragma once

#include "script/file/directory_scan.hpp"

#include <vector>

namespace morvane {
// Looks for the names that masks fit, on the disk. "*" and "?" may stand in every part of a path.
// The names begin as the mask does and stand sorted per call, by text order and FORMAT.SORTING.
// A link that leads back to a directory above it is not entered.
class NAME_SEARCH {
public:
    void FILES(const UTF16 &mask);       // what is no directory
    void DIRECTORIES(const UTF16 &mask); // links to directories too
    // The mask's last part at every depth below the directories that the rest of the mask fits.
    // Directories that are links, or that begin with a point, are not entered.
    void DIRECTORIES_BELOW(const UTF16 &mask);
    // The directories that the mask fits and all below them, without links and names with a point.
    void TREES(const UTF16 &mask);

    const std::vector<UTF16> &FOUND() const { return found; } // of all calls, in their order
    void TELLLEFTOUT() const { TELL_LEFT_OUT(leftOut); }

private:
    struct PARTS {
        UTF16 start; // "/" of an absolute path
        std::vector<UTF16> names;
    };
    static PARTS Cut(const UTF16 &mask);
    void Walk(const UTF16 &prefix, const std::vector<UTF16> &parts, std::size_t at, PATH_KIND kind);
    void Enter(const UTF16 &prefix, const std::vector<UTF16> &parts, std::size_t at,
               PATH_KIND kind);
    bool LeadsBack(const DIRECTORY_ENTRY &entry, const UTF16 &path) const;
    void WalkBelow(const UTF16 &prefix, const UTF16 &mask);
    void Add(const UTF16 &name);
    void SortFrom(std::size_t first);

    std::vector<UTF16> found;
    std::vector<DIRECTORY_IDENTITY> above; // the directories that the walk stands in
    NAT leftOut = 0;
};
} // namespace morvane
