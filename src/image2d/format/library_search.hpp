#pragma once

#include "foundation/base/records.hpp"
#include "image2d/format/shared_library.hpp"

#include <string>
#include <vector>

namespace morvane {
// Opens the first library of the list that is there, silently. Where the environment has the
// variable, the one file that it names is tried instead; empty: none. Gives the name that was
// opened, or an empty one.
std::string SEARCH_LIBRARY(SHARED_LIBRARY &library, const char *variable,
                           const std::vector<std::string> &names);
inline bool OPEN_FIRST(SHARED_LIBRARY &library, const char *variable,
                       const std::vector<std::string> &names) {
    return !SEARCH_LIBRARY(library, variable, names).empty();
}

// A library's text for the console: one line without control characters, at most 400 bytes.
std::string LIBRARY_WORDS(const char *text);

// Whether a picture of so many bytes may come out of a file of that size. What a header promises
// alone is not believed beyond 256 MiB.
bool IS_LIKELY_SIZE(NAT pictureBytes, NAT fileBytes);
} // namespace morvane
