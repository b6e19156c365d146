#pragma once

#include "foundation/container/poly_types.hpp"

#include <algorithm>

namespace morvane {
// A list seen as rows of WIDTH elements; (x, y) from 1 is position x + (y-1)*WIDTH.
template <class T, char CODE> class TMATRIX_OF : public TPOLY_OF<T> {
    using LIST = TPOLY_OF<T>;

public:
    T DEFAULT{}; // what a read outside the field gives
    T WRITE{};   // the colour of PUT(x, y) and of the line helpers
    NAT WIDTH = 0, HEIGHT = 0;

    TMATRIX_OF() = default;
    TMATRIX_OF(NAT width, NAT height) { INIT(width, height); }
    TMATRIX_OF(TMATRIX_OF &&other) noexcept { *this = std::move(other); }
    TMATRIX_OF &operator=(TMATRIX_OF &&other) noexcept;

    void INIT();                      // dynamic, WIDTH and HEIGHT 0
    void INIT(NAT width, NAT height); // static; without memory WIDTH and HEIGHT are 0
    void DONE();
    // New dimensions on the same elements; none moves.
    void RESIZE(NAT width, NAT height) requires ANY_OF<T, WORD, BYTE>;

    bool INTO(NAT x, NAT y) const { return x >= 1 && y >= 1 && x <= WIDTH && y <= HEIGHT; }
    using LIST::GET;
    T GET(NAT x, NAT y) const;
    T _GET(NAT x, NAT y) const { return LIST::_GET(POSITION(x, y)); }
    void _PUT(NAT x, NAT y, const T &value) { LIST::_PUT(POSITION(x, y), value); }
    // Outside a static field nothing is written; a dynamic one grows.
    void PUT(NAT x, NAT y, const T &value);
    void PUT(NAT x, NAT y) requires ANY_OF<T, WORD, BYTE> { PUT(x, y, WRITE); }
    // WRITE from the smaller x up to, not including, the larger; no range test.
    void _HLINE(NAT x1, NAT x2, NAT y);
    void _VLINE(NAT x, NAT y1, NAT y2); // both ends included; no range test
    // Each element of the column becomes (3*old + WRITE) / 4; no range test.
    void _VVLINE(NAT x, NAT y1, NAT y2) requires ANY_OF<T, BYTE>;

private:
    NAT POSITION(NAT x, NAT y) const { return x + (y - 1) * WIDTH; }
    void PUT_DYNAMIC(NAT x, NAT y, const T &value);
    void __REARRANGE(NAT width, NAT height);
};

using TMATRIXREAL = TMATRIX_OF<REAL, 'A'>;
using TMATRIXNAT = TMATRIX_OF<NAT, 'B'>;
using TMATRIXWORD = TMATRIX_OF<WORD, 'C'>;
using TMATRIXBYTE = TMATRIX_OF<BYTE, 'D'>;
using TMATRIXVECTOR = TMATRIX_OF<VECTOR, 'H'>;
using TMATRIXVECTORNAT = TMATRIX_OF<VECTORNAT, 'I'>;
} // namespace morvane

#include "foundation/container/matrix_of.hpp"
