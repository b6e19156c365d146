#include "geometry/format/matching_files.hpp"

#include "foundation/console/files.hpp"
#include "foundation/console/paths.hpp"

#include <dirent.h>
#include <fnmatch.h>
#include <memory>
#include <string>

namespace morvane {
namespace {
struct CLOSE_DIRECTORY {
    void operator()(DIR *directory) const { closedir(directory); }
};

// The mask for fnmatch, which also knows sets in brackets: here a bracket stands for itself.
std::string PATTERN(const UTF16 &mask) {
    std::string pattern;
    for (const char unit : GETUTF8(mask))
        pattern += unit == '[' ? std::string("[[]") : std::string(1, unit);
    return pattern;
}
} // namespace

bool HAS_WILDCARD(const UTF16 &name) {
    const UTF16 file = GETFILE(name);
    return POS("*", file) > 0 || POS("?", file) > 0;
}

TPOLYCHARS MATCHING_FILES(const UTF16 &name) {
    TPOLYCHARS files;
    files.INIT();
    const UTF16 normal = FILENAMELOAD(name);
    const UTF16 mask = GETFILE(normal);
    const UTF16 directory = COPY(normal, 1, normal.LENGTH() - mask.LENGTH());
    const std::string path = directory.EMPTY() ? "." : GETUTF8(directory);
    const std::unique_ptr<DIR, CLOSE_DIRECTORY> list(opendir(path.c_str()));
    if (!list) return files;
    const std::string pattern = PATTERN(mask);
    while (const dirent *entry = readdir(list.get())) {
        if (fnmatch(pattern.c_str(), entry->d_name, FNM_PERIOD) != 0) continue;
        const UTF16 file = GETUTF16(entry->d_name);
        const bool fits = file.LENGTH() <= UTF16CHARS7::CAPACITY;
        if (fits && !DIRECTORYEXISTS(directory + file)) files.PUSH(file);
    }
    files.SORT();
    return files;
}
} // namespace morvane
