#pragma once

#include "foundation/base/rounding.hpp"
#include "foundation/container/poly_of.hpp"
#include "foundation/container/poly_sort.hpp"
#include "foundation/container/poly_statistics.hpp"

#include <algorithm>

// Statistics and numeric operations of typed lists.
namespace morvane {
namespace poly {
// A value no element lies above (top) or below.
template <class T> constexpr T EXTREME(bool top) {
    if constexpr (std::same_as<T, REAL>)
        return top ? REALMAX : -REALMAX;
    else if constexpr (std::same_as<T, NAT>)
        return top ? NATMAX : NATMIN;
    else {
        using PART = decltype(T::x);
        return components::MAP<T>([top](PART) { return EXTREME<PART>(top); }, T{});
    }
}
} // namespace poly

template <class T>
T TPOLY_OF<T>::MIN() const requires(ANY_OF<T, REAL, NAT, COMPLEX, VECTOR, VECTORNAT, HYPER>) {
    if (LENGTH < 1) return poly::EXTREME<T>(true);
    return *std::min_element(ELEMENTS(), ELEMENTS() + LENGTH);
}

template <class T>
T TPOLY_OF<T>::MAX() const requires(ANY_OF<T, REAL, NAT, COMPLEX, VECTOR, VECTORNAT, HYPER>) {
    if (LENGTH < 1) return poly::EXTREME<T>(false);
    return *std::max_element(ELEMENTS(), ELEMENTS() + LENGTH);
}

template <class T> T TPOLY_OF<T>::MIN0() const requires ANY_OF<T, VECTOR> {
    if (LENGTH < 1) return poly::EXTREME<T>(true);
    T least = _GET(1);
    for (NAT i = 2; i <= LENGTH; ++i)
        if (_GET(i) != VZERO && _GET(i) < least) least = _GET(i);
    return least;
}

template <class T> NAT TPOLY_OF<T>::MAXPOS() const requires ANY_OF<T, REAL, NAT> {
    if (LENGTH < 1) return 0;
    return std::max_element(ELEMENTS(), ELEMENTS() + LENGTH) - ELEMENTS() + 1;
}

template <class T> T TPOLY_OF<T>::DIMMIN() const requires ANY_OF<T, COMPLEX, COMPLEXNAT, VECTOR> {
    T least = poly::EXTREME<T>(true);
    for (const T &element : SPAN())
        least = morvane::MIN(least, element);
    return least;
}

template <class T> T TPOLY_OF<T>::DIMMAX() const requires ANY_OF<T, COMPLEX, COMPLEXNAT, VECTOR> {
    T most = poly::EXTREME<T>(false);
    for (const T &element : SPAN())
        most = morvane::MAX(most, element);
    return most;
}

template <class T> T TPOLY_OF<T>::SUM() const requires(ANY_OF<T, REAL, NAT> || REAL_RECORD<T>) {
    if constexpr (std::same_as<T, NAT>) {
        std::uint64_t sum = 0; // wraps round where the sum is out of range
        for (const NAT element : SPAN())
            sum += static_cast<std::uint64_t>(element);
        return static_cast<NAT>(sum);
    } else {
        T sum{};
        for (const T &element : SPAN())
            sum = sum + element;
        return sum;
    }
}

template <class T>
auto TPOLY_OF<T>::MEAN() const -> REAL_MEAN requires(ANY_OF<T, REAL, NAT> || REAL_RECORD<T>) {
    if (LENGTH < 1) return {};
    if constexpr (std::same_as<T, NAT>)
        return NATMEAN(SPAN());
    else
        return SUM() / static_cast<REAL>(LENGTH);
}

template <class T>
auto TPOLY_OF<T>::SD() const -> REAL_MEAN requires(ANY_OF<T, REAL, NAT> || REAL_RECORD<T>) {
    if (LENGTH < 2) return {};
    if constexpr (std::same_as<T, NAT>) {
        return NATSD(SPAN());
    } else {
        const T mean = MEAN();
        T squares{};
        for (const T &element : SPAN())
            squares = squares + SQR(element - mean);
        return SQRT(squares / static_cast<REAL>(LENGTH - 1));
    }
}

template <class T> T TPOLY_OF<T>::VARIANCE() const requires ANY_OF<T, HYPER> {
    if (LENGTH < 2) return {};
    const T mean = MEAN();
    T squares{};
    for (const T &element : SPAN())
        squares = squares + SQR(element - mean);
    return squares / static_cast<REAL>(LENGTH - 1);
}

template <class T> T TPOLY_OF<T>::SORTED_ELEMENT(NAT position) const {
    if (!INSIDE(position)) return {};
    TPOLY_OF<T> copy(LENGTH);
    copy.REPLACE(*this);
    if (copy.LENGTH != LENGTH) return {}; // no memory, which has been told
    HEAP_SORT(copy.ELEMENTS(), LENGTH, [](const T &a, const T &b) { return a < b; });
    return copy._GET(position);
}

// Deliberate: quartiles of an even length are the lower neighbour.
template <class T> T TPOLY_OF<T>::Q1() const requires ANY_OF<T, REAL, NAT, VECTOR> {
    return SORTED_ELEMENT(LENGTH % 2 != 0 ? LENGTH / 4 + 1 : LENGTH / 4);
}

template <class T> T TPOLY_OF<T>::MEDIAN() const requires ANY_OF<T, REAL, NAT, VECTOR> {
    return SORTED_ELEMENT(LENGTH % 2 != 0 ? LENGTH / 2 + 1 : LENGTH / 2);
}

template <class T> T TPOLY_OF<T>::Q3() const requires ANY_OF<T, REAL, NAT, VECTOR> {
    return SORTED_ELEMENT(LENGTH % 2 != 0 ? LENGTH / 4 * 3 + 1 : LENGTH / 4 * 3);
}

template <class T> VECTOR TPOLY_OF<T>::QUANTILE() const requires ANY_OF<T, REAL> {
    return {Q1(), MEDIAN(), Q3()};
}

// Deliberate: QUANTILE of whole numbers averages two neighbours at an even length.
template <class T> VECTORNAT TPOLY_OF<T>::QUANTILE() const requires ANY_OF<T, NAT> {
    if (LENGTH % 2 != 0) return {Q1(), MEDIAN(), Q3()};
    const auto middle = [this](NAT position) {
        return NATMIDDLE(SORTED_ELEMENT(position), SORTED_ELEMENT(position + 1));
    };
    return {middle(LENGTH / 4), middle(LENGTH / 2), middle(LENGTH / 4 * 3)};
}

template <class T> void TPOLY_OF<T>::SMOOTH() requires(ANY_OF<T, REAL, NAT> || REAL_RECORD<T>) {
    for (NAT i = 2; i < LENGTH; ++i) { // the left neighbour is the smoothed one already
        if constexpr (std::same_as<T, NAT>) {
            const REAL around = static_cast<REAL>(_GET(i - 1)) + static_cast<REAL>(_GET(i + 1));
            _PUT(i, ROUND((static_cast<REAL>(_GET(i)) + around / 2) / 2));
        } else {
            _PUT(i, (_GET(i) + (_GET(i - 1) + _GET(i + 1)) / 2.0) / 2.0);
        }
    }
    if (LENGTH < 3) return;
    SORTED = false;
    this->SETFLAGS(false);
}

template <class T>
void TPOLY_OF<T>::DERIVATION(TPOLY_OF<REAL> &target) const requires ANY_OF<T, REAL> {
    target.REPLACE(*this);
    const NAT n = target.LENGTH;
    target.SORTED = false;
    if (n < 2) return;
    for (NAT i = n; i >= 2; --i)
        target._PUT(i, target._GET(i) - target._GET(i - 1));
    target._PUT(1, target._GET(2));
    for (NAT i = 2; i < n; ++i)
        target._PUT(i, (target._GET(i) + target._GET(i + 1)) / 2);
}

template <class T> void TPOLY_OF<T>::ADDUP(const T &value) requires ANY_OF<T, VECTOR> {
    const T constant = value;
    for (T &element : SPAN())
        element = element + constant;
}

template <class T> void TPOLY_OF<T>::SUBTRACT(const T &value) requires ANY_OF<T, VECTOR> {
    const T constant = value;
    for (T &element : SPAN())
        element = element - constant;
}

template <class T> void TPOLY_OF<T>::MULTIPLY(const T &value) requires ANY_OF<T, VECTOR, HYPER> {
    const T constant = value;
    for (T &element : SPAN())
        element = element * constant;
    SORTED = false;
    this->SETFLAGS(false);
}
} // namespace morvane
