#pragma once

#include "foundation/container/poly_chars.hpp"
#include "script/file/name_search.hpp"

namespace morvane {
// What the lists of file and directory names share. All sorts are ascending when FORMAT.SORTING is
// true, else descending; names with equal keys stand by text order.
class TNAMELIST : public TPOLYCHARS {
public:
    TNAMELIST() { INIT(); }
    using TPOLYCHARS::INIT;

    void CLEAR() { INIT(); }
    // By the numbers in the last part of each name, the first ones first: run2_10 stands behind
    // run2_9. A name without a number counts as 0. "-" is a sign at the start and behind a
    // character that is no letter or digit.
    void SORTREAL();
    void SORTSIZE(); // by FILESIZE
    void SORTDATE(); // by FILEAGE, the oldest first

    void SUB(const UTF16 &name);     // removes every entry that equals it
    void SUBWEAK(const UTF16 &text); // removes every entry that holds it, without regard to case
    // Appends what was found, without names that the list holds already; tells what was left out.
    void APPEND(const NAME_SEARCH &search);

private:
    template <class KEEP> void Keep(KEEP keep);
};

// The numbers in the last part of a path, as SORTREAL compares them.
std::vector<REAL> NUMBERS_OF_NAME(const UTF16 &path);
} // namespace morvane
