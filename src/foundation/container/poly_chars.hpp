#pragma once

#include "foundation/base/utf16chars7.hpp"
#include "foundation/container/poly_of.hpp"

namespace morvane {
// A list of short texts. Sorting follows FORMAT.SORTING: ascending when true, else descending.
class TPOLYCHARS : public TPOLY_OF<UTF16CHARS7> {
public:
    TPOLYCHARS() = default;
    explicit TPOLYCHARS(NAT count) : TPOLY_OF(count) {}

    void PUSH_UNIQUE(const UTF16CHARS7 &text); // unless the last element equals it
    NAT SEARCH(const UTF16CHARS7 &text) const; // position or 0; binary when sorted
    NAT BACKSEARCH(const UTF16CHARS7 &text) const { return BACKSEARCH(text, LENGTH); }
    NAT BACKSEARCH(const UTF16CHARS7 &text, NAT start) const; // the last position up to `start`
    NAT COUNT(const UTF16CHARS7 &text) const;                 // occurrences
    bool CHECK(NAT index, const UTF16CHARS7 &text) const;     // false outside the list
    bool _CHECK(NAT index, const UTF16CHARS7 &text) const { return _GET(index) == text; }
    bool LOWER(NAT index, const UTF16CHARS7 &text) const;

    void SORT();     // by text order
    void SORTREAL(); // by the number that each text holds
    // Element i becomes the element at position index[i]; `index` is a permutation.
    void SORTWITHHELP(const TPOLY_OF<NAT> &index);

private:
    bool sortedAlign = true; // FORMAT.ALIGN at the time of SORT: another order can't be searched
};
} // namespace morvane
