#pragma once

#include "foundation/base/random.hpp"
#include "foundation/container/poly.hpp"
#include "foundation/container/poly_flags.hpp"

#include <cstring>
#include <span>

namespace morvane {
// A list of plain records. Positions start at 1. A default-constructed list holds nothing and
// becomes dynamic at its first PUT; GET and PUT test the range, _GET and _PUT do not.
template <class T> class TPOLY_OF : public TPOLY, public POLY_FLAGS<T> {
public:
    using ELEMENT = T;
    using REAL_MEAN = std::conditional_t<WHOLE_NUMBER<T>, REAL, T>;

    TPOLY_OF() = default;
    explicit TPOLY_OF(NAT count) { INIT(count); }
    TPOLY_OF(TPOLY_OF &&) noexcept = default;
    TPOLY_OF &operator=(TPOLY_OF &&) noexcept = default;

    void INIT(); // empty and dynamic
    // Static with `count` elements, zero when the list had another length; frees what was held.
    void INIT(NAT count);

    void NEWLENGTH(NAT count); // as TPOLY; a list that holds nothing becomes dynamic
    void RESIZE(NAT count) { NEWLENGTH(count); }
    void ADDLENGTH(NAT count);

    // Zero outside 1..LENGTH.
    T GET(NAT index) const { return INSIDE(index) ? _GET(index) : T{}; }
    const T &_GET(NAT index) const { return ELEMENTS()[index - 1]; }
    void PUT(NAT index, const T &value);
    void _PUT(NAT index, const T &value) { ELEMENTS()[index - 1] = value; }
    T *_INDEX(NAT index) { return ELEMENTS() + (index - 1); }
    const T *_INDEX(NAT index) const { return ELEMENTS() + (index - 1); }
    void PUSH(const T &value) { PUT(LENGTH + 1, value); }
    T POP(); // the last element, removed; zero when empty
    void FILL(const T &value);
    void CLEAR() requires ANY_OF<T, BYTE>; // all bytes 0
    // The elements in memory, the first at [0]; valid until the list grows.
    T *ELEMENTS() { return static_cast<T *>(DATA); }
    const T *ELEMENTS() const { return static_cast<const T *>(DATA); }
    std::span<T> SPAN() { return {ELEMENTS(), static_cast<std::size_t>(LENGTH)}; }
    std::span<const T> SPAN() const { return {ELEMENTS(), static_cast<std::size_t>(LENGTH)}; }
    void REPLACE(const TPOLY_OF &other);
    void REPLACE(NAT start, NAT count, const TPOLY_OF &other);
    void FLIP();

    // Extremes; of records by the order of their `<`. Empty: MIN gives the largest value there is.
    T MIN() const requires(ANY_OF<T, REAL, NAT, COMPLEX, VECTOR, VECTORNAT, HYPER>);
    T MAX() const requires(ANY_OF<T, REAL, NAT, COMPLEX, VECTOR, VECTORNAT, HYPER>);
    T MIN0() const requires ANY_OF<T, VECTOR>;        // VZERO is skipped from the second element on
    NAT MAXPOS() const requires ANY_OF<T, REAL, NAT>; // first largest; 0 when empty
    // Component-wise extremes; empty: infinities (of whole numbers the largest, the smallest).
    T DIMMIN() const requires ANY_OF<T, COMPLEX, COMPLEXNAT, VECTOR>;
    T DIMMAX() const requires ANY_OF<T, COMPLEX, COMPLEXNAT, VECTOR>;

    T SUM() const requires(ANY_OF<T, REAL, NAT> || REAL_RECORD<T>);
    REAL_MEAN MEAN() const requires(ANY_OF<T, REAL, NAT> || REAL_RECORD<T>); // 0 when empty
    // Sample standard deviation, divisor n-1; 0 for fewer than two elements. Of whole numbers
    // exact up to the one division and root, see NATSD.
    REAL_MEAN SD() const requires(ANY_OF<T, REAL, NAT> || REAL_RECORD<T>);
    T VARIANCE() const requires ANY_OF<T, HYPER>; // SD without the root
    // Sorted position n/4+1, n/2+1, (n/4)*3+1 of an odd length n, n/4, n/2, (n/4)*3 of an even
    // one; position 0 reads as 0.
    T Q1() const requires ANY_OF<T, REAL, NAT, VECTOR>;
    T MEDIAN() const requires ANY_OF<T, REAL, NAT, VECTOR>;
    T Q3() const requires ANY_OF<T, REAL, NAT, VECTOR>;
    VECTOR QUANTILE() const requires ANY_OF<T, REAL>;   // Q1, MEDIAN, Q3
    VECTORNAT QUANTILE() const requires ANY_OF<T, NAT>; // even length: mean of two neighbours

    // Positions of a value, 0 when there is none. Binary when the list is sorted.
    NAT SEARCH(const T &value) const requires ANY_OF<T, NAT, VECTORNAT>;
    NAT SEARCHOVER(T value) const requires ANY_OF<T, NAT>; // first element of at least `value`
    template <class X> NAT SEARCHX(X x) const requires PLANE_RECORD<T>;
    // The last position with that x, from the end or from `start` downwards.
    NAT BACKSEARCHX(REAL x) const requires ANY_OF<T, VECTOR> { return BACKSEARCHX(x, LENGTH); }
    NAT BACKSEARCHX(REAL x, NAT start) const requires ANY_OF<T, VECTOR>;
    // Element `index` equals `value`; the checked form is false outside the list.
    bool CHECK(NAT index, const T &value) const requires SPACE_RECORD<T>;
    bool _CHECK(NAT index, const T &value) const requires SPACE_RECORD<T>;
    template <class X> bool _CHECKX(NAT index, X x) const requires ANY_OF<T, COMPLEXNAT, VECTOR>;
    bool LOWER(NAT index, const T &value) const requires ANY_OF<T, VECTORNAT>;
    // The first of four likely positions that holds `value`, or 0.
    NAT LOOKNEAR(NAT a, NAT b, NAT c, NAT d, const T &value) const requires ANY_OF<T, VECTOR>;

    void SORT() requires NUMBER<T>; // ascending heap sort, not stable
    void SORTHELP(TPOLY_OF<NAT> &index) const requires ANY_OF<T, REAL, NAT>; // ascending positions
    void SORTRANK() requires WHOLE_NUMBER<T>; // by how often a value occurs, rarest first
    void SORTX() requires(PLANE_RECORD<T> || SPACE_RECORD<T>);
    void SORTY() requires(PLANE_RECORD<T> || SPACE_RECORD<T>);
    void SORTZ() requires SPACE_RECORD<T>;
    // Keeps one element of each axis direction: those that no later one equals or negates. The
    // last element is not kept.
    void UNIQUE_DIRECTION() requires ANY_OF<T, COMPLEXNAT, VECTORNAT>;
    void MIX(RANDOM_STREAM &random) requires ANY_OF<T, REAL, NAT>; // n random exchanges

    // x[i] := (x[i] + (x[i-1] + x[i+1]) / 2) / 2 in place, from 2 to n-1.
    void SMOOTH() requires(ANY_OF<T, REAL, NAT> || REAL_RECORD<T>);
    void DERIVATION(TPOLY_OF<REAL> &target) const requires ANY_OF<T, REAL>;
    void ADDUP(const T &value) requires ANY_OF<T, VECTOR>;
    void SUBTRACT(const T &value) requires ANY_OF<T, VECTOR>;
    void MULTIPLY(const T &value) requires ANY_OF<T, VECTOR, HYPER>;

    // Little-endian values at a 1-based byte position, without range test.
    WORD GETBYTE2(NAT index) const requires ANY_OF<T, BYTE> { return READ<WORD>(index); }
    std::uint32_t GETBYTE4(NAT index) const requires ANY_OF<T, BYTE>;
    std::uint64_t GETBYTE8(NAT index) const requires ANY_OF<T, BYTE>;
    float GETFLOAT32(NAT index) const requires ANY_OF<T, BYTE> { return READ<float>(index); }
    REAL GETFLOAT64(NAT index) const requires ANY_OF<T, BYTE> { return READ<REAL>(index); }

private:
    // The element at a sorted position; zero for position 0.
    T SORTED_ELEMENT(NAT position) const;
    template <class COMPONENT> void SORT_BY(COMPONENT component, bool &flag);
    template <class VALUE> VALUE READ(NAT index) const {
        VALUE value;
        std::memcpy(&value, ELEMENTS() + (index - 1), sizeof value);
        return value;
    }
};
} // namespace morvane

#include "foundation/container/poly_of_access.hpp"
#include "foundation/container/poly_of_search.hpp"
#include "foundation/container/poly_of_statistics.hpp"
