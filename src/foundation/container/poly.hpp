#pragma once

#include "foundation/base/records.hpp"

#include <array>

namespace morvane {
// The untyped block container below every list, matrix and voxel space. Elements are plain records
// of SIZE bytes, positions start at 1. A list is static (exactly LENGTH elements) or dynamic
// (DYNAMIC free elements behind LENGTH). When memory runs out the list is empty and a line tells
// so; nothing is raised. No locks: workers use _GET and _PUT on disjoint elements only.
class TPOLY {
public:
    NAT KIND = 0;               // the container's type code, 0 on a bare TPOLY
    void *GUARD = nullptr;      // a second copy of DATA, see FRESH
    NAT MAXIMAL = 0;            // capacity in elements
    NAT DYNAMIC = 0;            // free elements behind LENGTH; 0: the list is static
    std::array<char, 17> TAG{}; // cleared by INIT and DONE
    NAT CHECK1 = 0;             // always 0, like CHECK2 and CHECK3; tested before each release
    void *DATA = nullptr;       // the block
    NAT CHECK2 = 0;
    NAT SIZE = 0; // bytes of an element
    NAT CHECK3 = 0;
    NAT LENGTH = 0;      // elements in use
    RANGENAT RANGE{};    // (1, LENGTH), or (0, 0) when empty
    bool SORTED = false; // the values are in ascending order

    TPOLY() = default;
    TPOLY(const TPOLY &) = delete;
    TPOLY &operator=(const TPOLY &) = delete;
    TPOLY(TPOLY &&other) noexcept;
    TPOLY &operator=(TPOLY &&other) noexcept;
    ~TPOLY() { DONE(); }

    // Never initialised, released, or holding garbage.
    bool FRESH() const { return DATA == nullptr || DATA != GUARD; }
    // Static list of `count` zero elements; a count below 1 makes a dynamic list. A list that has
    // this count and size already keeps its block and its elements.
    void INIT(NAT count, NAT size);
    // Empty dynamic list with a reserve of 64 KiB, or of `size` elements when they are larger.
    void INIT(NAT size);
    void DONE();       // frees the block and zeroes the object; may be called twice
    void __SAFEDONE(); // zeroes the object without freeing: its block was taken over

    // Change LENGTH; new elements are zero. A negative count is 0.
    void NEWLENGTH(NAT count);
    void RESIZE(NAT count) { NEWLENGTH(count); }
    void ADDLENGTH(NAT count);

    void GET(NAT index, void *target) const; // nothing outside 1..LENGTH or for null
    void PUT(NAT index, const void *source); // behind LENGTH a dynamic list grows
    void PUSH(const void *source) { PUT(LENGTH + 1, source); }
    void _GET(NAT index, void *target) const; // no range test
    void _PUT(NAT index, const void *source); // no range test
    void *_INDEX(NAT index) const;            // address of an element, no range test
    void GETPOS(NAT index, void *&position, NAT offset = 0) const; // null outside the range

    bool SWAP(TPOLY &other);          // exchanges the blocks when LENGTH and SIZE are equal
    void FLIP();                      // reverses the order in place
    void REPLACE(const TPOLY &other); // this list gets the other's elements, if SIZE matches
    // The `count` elements from `start` on are replaced by the whole of `other`, if SIZE matches.
    void REPLACE(NAT start, NAT count, const TPOLY &other);

protected:
    bool INSIDE(NAT index) const { return index >= 1 && index <= LENGTH; }
    // Makes position `index` behind LENGTH part of the list; false when the list is static.
    bool EXTEND(NAT index) {
        if (DYNAMIC < 1 || index >= MAXIMAL) return EXTEND_BLOCK(index);
        DYNAMIC = MAXIMAL - index;
        SETLENGTH(index);
        return true;
    }

private:
    void SETLENGTH(NAT count) {
        LENGTH = count;
        RANGE = {count > 0 ? 1 : 0, count};
    }
    bool EXTEND_BLOCK(NAT index);
    void NEWLENGTH_ZERO();
    void NEWLENGTH_STATIC(NAT count);
    void NEWLENGTH_DYNAMIC(NAT count);
    bool MOVE_BLOCK(NAT count, NAT capacity, const char *where);
    void RELEASE(const char *where);
    void EMPTY_BLOCK(); // no block and no counts; KIND, SIZE and TAG stay
    void __CORRUPTMEMORY(const char *where) const;
};
} // namespace morvane
