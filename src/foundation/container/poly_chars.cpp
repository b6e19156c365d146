#include "foundation/container/poly_chars.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/container/poly_sort.hpp"
#include "foundation/container/poly_types.hpp"

#include <algorithm>

namespace morvane {
namespace {
// The positions 1..count in a list; empty without memory.
TPOLYNAT POSITIONS(NAT count) {
    TPOLYNAT index;
    index.NEWLENGTH(count);
    for (NAT i = 1; i <= index.LENGTH; ++i)
        index._PUT(i, i);
    return index;
}
} // namespace

void TPOLYCHARS::PUSH_UNIQUE(const UTF16CHARS7 &text) {
    if (LENGTH < 1 || !(_GET(LENGTH) == text)) PUSH(text);
}

NAT TPOLYCHARS::SEARCH(const UTF16CHARS7 &text) const {
    const UTF16CHARS7 *first = ELEMENTS(), *end = first + LENGTH;
    const bool binary = SORTED && SORTEDTEXT && sortedAlign == FORMAT.ALIGN;
    const UTF16CHARS7 *found =
        binary ? std::lower_bound(first, end, text) : std::find(first, end, text);
    return found != end && *found == text ? found - first + 1 : 0;
}

NAT TPOLYCHARS::BACKSEARCH(const UTF16CHARS7 &text, NAT start) const {
    for (NAT i = std::min(start, LENGTH); i >= 1; --i)
        if (_GET(i) == text) return i;
    return 0;
}

NAT TPOLYCHARS::COUNT(const UTF16CHARS7 &text) const {
    return std::count(ELEMENTS(), ELEMENTS() + LENGTH, text);
}

bool TPOLYCHARS::CHECK(NAT index, const UTF16CHARS7 &text) const {
    return INSIDE(index) && _CHECK(index, text);
}

bool TPOLYCHARS::LOWER(NAT index, const UTF16CHARS7 &text) const {
    return INSIDE(index) && _GET(index) < text;
}

void TPOLYCHARS::SORT() {
    TPOLYNAT index = POSITIONS(LENGTH);
    if (index.LENGTH != LENGTH) return; // no memory, which has been told
    const bool ascending = FORMAT.SORTING;
    HEAP_SORT(index.ELEMENTS(), LENGTH, [this, ascending](NAT a, NAT b) {
        return ascending ? _GET(a) < _GET(b) : _GET(b) < _GET(a);
    });
    SORTWITHHELP(index);
    SORTED = ascending;
    SORTEDTEXT = true;
    SORTEDREAL = false;
    sortedAlign = FORMAT.ALIGN;
}

void TPOLYCHARS::SORTREAL() {
    TPOLYREAL keys;
    keys.NEWLENGTH(LENGTH);
    TPOLYNAT index = POSITIONS(LENGTH);
    if (index.LENGTH != LENGTH || keys.LENGTH != LENGTH) return; // told
    for (NAT i = 1; i <= LENGTH; ++i)
        keys._PUT(i, GETREAL(_GET(i).GET()));
    HEAP_SORT(index.ELEMENTS(), LENGTH,
              [&keys](NAT a, NAT b) { return keys._GET(a) < keys._GET(b); });
    SORTWITHHELP(index);
    if (!FORMAT.SORTING) FLIP();
    SORTED = SORTEDTEXT = false;
    SORTEDREAL = true;
}

void TPOLYCHARS::SORTWITHHELP(const TPOLYNAT &index) {
    TPOLYCHARS old;
    old.REPLACE(*this);
    if (old.LENGTH != LENGTH || index.LENGTH != LENGTH) return;
    for (NAT i = 1; i <= LENGTH; ++i)
        _PUT(i, old.GET(index._GET(i)));
    SORTED = SORTEDTEXT = SORTEDREAL = false;
}
} // namespace morvane
