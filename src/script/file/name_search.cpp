#include "script/file/name_search.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/base/utf16chars7.hpp"
#include "foundation/console/paths.hpp"
#include "script/file/name_mask.hpp"

#include <algorithm>

namespace morvane {
namespace {
bool IsHidden(const UTF16 &name) { return name.IS(1, '.'); }
UTF16 Entered(const UTF16 &path) { return path == UTF16("/") ? path : path + "/"; }
} // namespace

// Empty parts, as in "a//b", are dropped.
NAME_SEARCH::PARTS NAME_SEARCH::Cut(const UTF16 &mask) {
    PARTS parts;
    UTF16 rest = FILENAMESAVE(mask);
    if (rest.IS(1, '/')) parts.start = "/";
    while (!rest.EMPTY()) {
        const UTF16 part = SPLIT(rest, "/");
        if (!part.EMPTY()) parts.names.push_back(part);
    }
    return parts;
}

void NAME_SEARCH::Add(const UTF16 &name) {
    if (name.LENGTH() > UTF16CHARS7::CAPACITY)
        ++leftOut;
    else
        found.push_back(name);
}

void NAME_SEARCH::SortFrom(std::size_t first) {
    const auto start = found.begin() + static_cast<std::ptrdiff_t>(first);
    std::sort(start, found.end(),
              [](const UTF16 &a, const UTF16 &b) { return FORMAT.SORTING ? a < b : b < a; });
    found.erase(std::unique(start, found.end()), found.end());
}

// A part without wildcards is taken as it is; whether the path is there shows at its end.
void NAME_SEARCH::Walk(const UTF16 &prefix, const std::vector<UTF16> &parts, std::size_t at,
                       PATH_KIND kind) {
    UTF16 path = prefix;
    while (at < parts.size() && !HAS_WILDCARD(parts[at])) {
        path += parts[at++];
        if (at < parts.size()) path += "/";
    }
    if (at < parts.size()) return Enter(path, parts, at, kind);
    if (KIND_OF_PATH(path) == kind) Add(path);
}

void NAME_SEARCH::Enter(const UTF16 &prefix, const std::vector<UTF16> &parts, std::size_t at,
                        PATH_KIND kind) {
    DIRECTORY_IDENTITY here;
    if (!IDENTIFY_DIRECTORY(prefix, here)) return;
    above.push_back(here);
    const bool isLast = at + 1 == parts.size();
    for (const DIRECTORY_ENTRY &entry : DIRECTORY_ENTRIES(prefix, leftOut)) {
        if (!FITS_MASK(entry.name, parts[at])) continue;
        const UTF16 path = prefix + entry.name;
        if (isLast && entry.isDirectory == (kind == PATH_KIND::DIRECTORY)) Add(path);
        if (!isLast && entry.isDirectory && !LeadsBack(entry, path))
            Walk(path + "/", parts, at + 1, kind);
    }
    above.pop_back();
}

bool NAME_SEARCH::LeadsBack(const DIRECTORY_ENTRY &entry, const UTF16 &path) const {
    DIRECTORY_IDENTITY target;
    if (!entry.isLink || !IDENTIFY_DIRECTORY(path, target)) return false;
    return std::find(above.begin(), above.end(), target) != above.end();
}

// Paths of a script end at 254 units, which bounds the depth.
void NAME_SEARCH::WalkBelow(const UTF16 &prefix, const UTF16 &mask) {
    for (const DIRECTORY_ENTRY &entry : DIRECTORY_ENTRIES(prefix, leftOut)) {
        if (!entry.isDirectory || entry.isLink) continue;
        const UTF16 path = prefix + entry.name;
        if (FITS_MASK(entry.name, mask)) Add(path);
        if (!IsHidden(entry.name)) WalkBelow(path + "/", mask);
    }
}

void NAME_SEARCH::FILES(const UTF16 &mask) {
    const std::size_t first = found.size();
    const PARTS parts = Cut(mask);
    const bool isNamed = !parts.names.empty() && !mask.IS(mask.LENGTH(), '/');
    if (isNamed) Walk(parts.start, parts.names, 0, PATH_KIND::FILE);
    SortFrom(first);
}

void NAME_SEARCH::DIRECTORIES(const UTF16 &mask) {
    const std::size_t first = found.size();
    const PARTS parts = Cut(mask);
    Walk(parts.start, parts.names, 0, PATH_KIND::DIRECTORY);
    SortFrom(first);
}

void NAME_SEARCH::DIRECTORIES_BELOW(const UTF16 &mask) {
    const std::size_t first = found.size();
    PARTS parts = Cut(mask);
    if (parts.names.empty()) return;
    const UTF16 last = parts.names.back();
    parts.names.pop_back();
    NAME_SEARCH base;
    if (!parts.names.empty()) base.Walk(parts.start, parts.names, 0, PATH_KIND::DIRECTORY);
    for (const UTF16 &directory : base.found)
        WalkBelow(Entered(directory), last);
    if (parts.names.empty()) WalkBelow(parts.start, last);
    leftOut += base.leftOut;
    SortFrom(first);
}

void NAME_SEARCH::TREES(const UTF16 &mask) {
    const std::size_t first = found.size();
    NAME_SEARCH base;
    base.DIRECTORIES(mask);
    for (const UTF16 &directory : base.found) {
        Add(directory);
        WalkBelow(Entered(directory), "*");
    }
    leftOut += base.leftOut;
    SortFrom(first);
}
} // namespace morvane
