#pragma once

#include "foundation/container/poly_of.hpp"
#include "foundation/container/poly_sort.hpp"

#include <algorithm>

// Searching and ordering of typed lists.
namespace morvane {
namespace poly {
template <class T> T WRAPPED_NEGATIVE(const T &value) { return T{} - value; }

// A mix of all components, for hash tables.
template <class T> std::uint64_t HASH(const T &value) {
    std::uint64_t hash = 0x9E3779B97F4A7C15u;
    const auto mix = [&hash](NAT part) {
        hash = (hash ^ static_cast<std::uint64_t>(part)) * 0xD6E8FEB86659FD93u;
        hash ^= hash >> 32;
        return part;
    };
    components::MAP<T>(mix, value);
    return hash;
}
} // namespace poly

template <class T>
NAT TPOLY_OF<T>::SEARCH(const T &value) const requires ANY_OF<T, NAT, VECTORNAT> {
    const T *first = ELEMENTS(), *end = first + LENGTH;
    const T *found = SORTED ? std::lower_bound(first, end, value) : std::find(first, end, value);
    return found != end && *found == value ? found - first + 1 : 0;
}

template <class T> NAT TPOLY_OF<T>::SEARCHOVER(T value) const requires ANY_OF<T, NAT> {
    const T *first = ELEMENTS(), *end = first + LENGTH;
    const T *found = SORTED ? std::lower_bound(first, end, value)
                            : std::find_if(first, end, [value](T e) { return e >= value; });
    return found != end ? found - first + 1 : 0;
}

template <class T> template <class X> NAT TPOLY_OF<T>::SEARCHX(X x) const requires PLANE_RECORD<T> {
    const auto wanted = static_cast<decltype(T::x)>(x);
    const T *first = ELEMENTS(), *end = first + LENGTH;
    const T *found = this->SORTEDX
                         ? std::lower_bound(first, end, wanted,
                                            [](const T &e, auto limit) { return e.x < limit; })
                         : std::find_if(first, end, [wanted](const T &e) { return e.x == wanted; });
    return found != end && found->x == wanted ? found - first + 1 : 0;
}

template <class T>
NAT TPOLY_OF<T>::BACKSEARCHX(REAL x, NAT start) const requires ANY_OF<T, VECTOR> {
    for (NAT i = std::min(start, LENGTH); i >= 1; --i)
        if (_GET(i).x == x) return i;
    return 0;
}

template <class T>
bool TPOLY_OF<T>::CHECK(NAT index, const T &value) const requires SPACE_RECORD<T> {
    return INSIDE(index) && _GET(index) == value;
}

template <class T>
bool TPOLY_OF<T>::_CHECK(NAT index, const T &value) const requires SPACE_RECORD<T> {
    return _GET(index) == value;
}

template <class T>
template <class X>
bool TPOLY_OF<T>::_CHECKX(NAT index, X x) const requires ANY_OF<T, COMPLEXNAT, VECTOR> {
    return _GET(index).x == static_cast<decltype(T::x)>(x);
}

template <class T>
bool TPOLY_OF<T>::LOWER(NAT index, const T &value) const requires ANY_OF<T, VECTORNAT> {
    return INSIDE(index) && _GET(index) < value;
}

template <class T>
NAT TPOLY_OF<T>::LOOKNEAR(NAT a, NAT b, NAT c, NAT d,
                          const T &value) const requires ANY_OF<T, VECTOR> {
    for (const NAT index : {a, b, c, d})
        if (CHECK(index, value)) return index;
    return 0;
}

template <class T> void TPOLY_OF<T>::SORT() requires NUMBER<T> {
    HEAP_SORT(ELEMENTS(), LENGTH, std::less<T>());
    SORTED = true;
}

template <class T>
void TPOLY_OF<T>::SORTHELP(TPOLY_OF<NAT> &index) const requires ANY_OF<T, REAL, NAT> {
    index.NEWLENGTH(0);
    index.NEWLENGTH(LENGTH);
    if (index.LENGTH != LENGTH) return; // no memory, which has been told
    for (NAT i = 1; i <= LENGTH; ++i)
        index._PUT(i, i);
    HEAP_SORT(index.ELEMENTS(), LENGTH, [this](NAT a, NAT b) { return _GET(a) < _GET(b); });
    index.SORTED = false;
}

template <class T> void TPOLY_OF<T>::SORTRANK() requires WHOLE_NUMBER<T> {
    SORT();
    TPOLY_OF<COMPLEXNAT> runs;
    for (NAT i = 1; i <= LENGTH; ++i) {
        const NAT value = static_cast<NAT>(_GET(i));
        if (runs.LENGTH > 0 && runs._GET(runs.LENGTH).x == value)
            ++runs._INDEX(runs.LENGTH)->y;
        else
            runs.PUSH({value, 1});
    }
    runs.SORTY();
    NAT position = 0;
    for (const COMPLEXNAT &run : runs.SPAN())
        for (NAT i = 0; i < run.y; ++i)
            _PUT(++position, static_cast<T>(run.x));
    SORTED = runs.LENGTH < 2;
}

template <class T>
template <class COMPONENT>
void TPOLY_OF<T>::SORT_BY(COMPONENT component, bool &flag) {
    HEAP_SORT(ELEMENTS(), LENGTH,
              [component](const T &a, const T &b) { return a.*component < b.*component; });
    SORTED = false;
    this->SETFLAGS(false);
    flag = true;
}

template <class T> void TPOLY_OF<T>::SORTX() requires(PLANE_RECORD<T> || SPACE_RECORD<T>) {
    SORT_BY(&T::x, this->SORTEDX);
}

template <class T> void TPOLY_OF<T>::SORTY() requires(PLANE_RECORD<T> || SPACE_RECORD<T>) {
    SORT_BY(&T::y, this->SORTEDY);
}

template <class T> void TPOLY_OF<T>::SORTZ() requires SPACE_RECORD<T> {
    SORT_BY(&T::z, this->SORTEDZ);
}

// From the end: an element stays when its direction was not met yet, so the search for later
// elements is one look into a hash table of directions.
template <class T> void TPOLY_OF<T>::UNIQUE_DIRECTION() requires ANY_OF<T, COMPLEXNAT, VECTORNAT> {
    NAT capacity = 16;
    while (capacity < 2 * LENGTH)
        capacity *= 2;
    TPOLY_OF<NAT> table(capacity), kept(std::max<NAT>(LENGTH, 1));
    if (table.LENGTH < 1 || kept.LENGTH < 1) return NEWLENGTH(0); // no memory, which has been told
    for (NAT i = LENGTH; i >= 1; --i) {
        const T direction = std::min(_GET(i), poly::WRAPPED_NEGATIVE(_GET(i)));
        NAT slot =
            static_cast<NAT>(poly::HASH(direction) & static_cast<std::uint64_t>(capacity - 1));
        NAT other = 0;
        while ((other = table._GET(slot + 1)) != 0 && _GET(other) != direction &&
               poly::WRAPPED_NEGATIVE(_GET(other)) != direction)
            slot = (slot + 1) & (capacity - 1);
        if (other != 0) continue;
        table._PUT(slot + 1, i);
        // Deliberate: UNIQUE_DIRECTION never keeps the last element.
        kept._PUT(i, i < LENGTH ? 1 : 0);
    }
    NAT count = 0;
    for (NAT i = 1; i <= LENGTH; ++i)
        if (kept._GET(i) != 0) _PUT(++count, T(_GET(i)));
    NEWLENGTH(count);
    this->SETFLAGS(false);
}

template <class T> void TPOLY_OF<T>::MIX(RANDOM_STREAM &random) requires ANY_OF<T, REAL, NAT> {
    for (NAT i = 1; i <= LENGTH; ++i) {
        const NAT a = random.BELOW(LENGTH), b = random.BELOW(LENGTH);
        std::swap(ELEMENTS()[a], ELEMENTS()[b]);
    }
    SORTED = false;
}
} // namespace morvane
