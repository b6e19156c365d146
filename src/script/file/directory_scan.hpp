#pragma once

#include "foundation/base/utf16.hpp"

#include <string>
#include <vector>

namespace morvane {
// Which directory of the system a path leads to, links followed.
struct DIRECTORY_IDENTITY {
    std::uint64_t device = 0, number = 0;
    friend bool operator==(const DIRECTORY_IDENTITY &, const DIRECTORY_IDENTITY &) = default;
};

struct DIRECTORY_ENTRY {
    UTF16 name;               // without the directory
    bool isDirectory = false; // links followed
    bool isLink = false;
};

// The entries of a directory but "." and "..", in no order. `prefix` is its path with "/" behind
// it; empty: the working directory. Names that a script cannot hold (longer than 254 units with
// the prefix, no UTF-8, or with a backslash) are left out and counted in `leftOut`. A missing
// directory has no entries; another failure is told.
std::vector<DIRECTORY_ENTRY> DIRECTORY_ENTRIES(const UTF16 &prefix, NAT &leftOut);

void TELL_LEFT_OUT(NAT count); // one line when there were such names

enum class PATH_KIND { NONE, FILE, DIRECTORY };
// What a path leads to; a link that leads nowhere is a file.
PATH_KIND KIND_OF_PATH(const UTF16 &path);
bool IDENTIFY_DIRECTORY(const UTF16 &path, DIRECTORY_IDENTITY &identity); // false: there is none
} // namespace morvane
