#include "script/file/file_list.hpp"

#include "script/file/dir_list.hpp"
#include "script/file/file_text.hpp"

namespace morvane {
namespace {
bool IsAbsolute(const UTF16 &mask) { return mask.IS(1, '/') || mask.IS(1, '\\'); }

UTF16 Below(const UTF16 &directory, const UTF16 &mask) {
    const bool isEnded = directory.EMPTY() || directory.IS(directory.LENGTH(), '/');
    return isEnded ? directory + mask : directory + "/" + mask;
}
} // namespace

void TFILELIST::GETFILE(const UTF16 &mask) {
    NAME_SEARCH search;
    search.FILES(mask);
    APPEND(search);
}

void TFILELIST::INIT(const UTF16 &mask) {
    CLEAR();
    GETFILE(mask);
}

void TFILELIST::GETFILE(const TDIRLIST &directories, const UTF16 &mask) {
    if (IsAbsolute(mask)) return GETFILE(mask);
    NAME_SEARCH search;
    for (NAT i = 1; i <= directories.LENGTH; ++i)
        search.FILES(Below(directories.GET(i).GET(), mask));
    APPEND(search);
}

void TFILELIST::INIT(const TDIRLIST &directories, const UTF16 &mask) {
    CLEAR();
    GETFILE(directories, mask);
}

void TFILELIST::GETLINES(const UTF16 &name) {
    TFILETEXT text;
    if (!text.LOAD(name)) return;
    NAT leftOut = 0;
    for (NAT line = 1; line <= text.LENGTH(); ++line) {
        const UTF16 entry = KILLFIRST(KILLLAST(text.GET(line), ' ', '\t'), ' ', '\t');
        if (entry.LENGTH() > UTF16CHARS7::CAPACITY)
            ++leftOut;
        else if (!entry.EMPTY())
            PUSH(entry);
    }
    TELL_LEFT_OUT(leftOut);
}

void TFILELIST::REPLACETXT(const UTF16 &find, const UTF16 &replacement) {
    for (NAT i = 1; i <= LENGTH; ++i) {
        UTF16CHARS7 name = _GET(i);
        morvane::REPLACE(name, find, replacement);
        PUT(i, name);
    }
}
} // namespace morvane
