#include "script/file/dir_list.hpp"

namespace morvane {
void TDIRLIST::GETDIR(const UTF16 &mask) {
    NAME_SEARCH search;
    search.DIRECTORIES(mask);
    APPEND(search);
}

void TDIRLIST::INIT(const UTF16 &mask) {
    CLEAR();
    GETDIR(mask);
}

void TDIRLIST::GETDIRRECURSIVE(const UTF16 &mask) {
    NAME_SEARCH search;
    search.DIRECTORIES_BELOW(mask);
    APPEND(search);
}

void TDIRLIST::INITRECURSIVE(const UTF16 &mask) {
    CLEAR();
    GETDIRRECURSIVE(mask);
}

void TDIRLIST::GETDIRCOMPLETE(const UTF16 &mask) {
    NAME_SEARCH search;
    search.TREES(mask);
    APPEND(search);
}

void TDIRLIST::INITCOMPLETE(const UTF16 &mask) {
    CLEAR();
    GETDIRCOMPLETE(mask);
}
} // namespace morvane
