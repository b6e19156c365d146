#include "script/module/list.hpp"

#include "foundation/base/geometry.hpp"
#include "foundation/container/poly_sort.hpp"
#include "script/module/list_value.hpp"

#include <algorithm>
#include <cmath>

namespace morvane {
using namespace list;

namespace {
// Passes between two looks whether smoothing still changes anything.
constexpr NAT SETTLING_PASSES = 256;

template <class T> REAL LengthOf(const T &value) { return GETLENGTH(NUMBERS(value)); }
REAL LengthOf(REAL value) { return std::abs(value); }
REAL LengthOf(NAT value) { return std::abs(static_cast<REAL>(value)); }
REAL LengthOf(const UTF16CHARS7 &value) { return static_cast<REAL>(value.LENGTH()); }

template <class STORED> UTF16 Extreme(const STORED &stored, bool smallest) {
    const auto values = stored.values.SPAN();
    if (values.empty()) return {};
    return SHORT(smallest ? *std::min_element(values.begin(), values.end())
                          : *std::max_element(values.begin(), values.end()));
}

template <class STORED> NAT ExtremeLength(const STORED &stored, bool shortest) {
    const auto values = stored.values.SPAN();
    if (values.empty()) return 0;
    const auto less = [](const auto &a, const auto &b) { return LengthOf(a) < LengthOf(b); };
    const auto found = shortest ? std::min_element(values.begin(), values.end(), less)
                                : std::max_element(values.begin(), values.end(), less);
    return found - values.begin() + 1;
}

// By bytes: infinite values end as what is no number, which never equals itself.
template <class VALUES> bool IsSettled(const VALUES &before, const VALUES &values) {
    return std::ranges::equal(std::as_bytes(before.SPAN()), std::as_bytes(values.SPAN()));
}

// What an inlier is at least and at most, by component.
struct INLIER_RANGE {
    HYPER low, high;

    bool HOLDS(const HYPER &value) const {
        return components::ALL([](REAL v, REAL a, REAL b) { return !(v < a || v > b); }, value, low,
                               high);
    }
};

// mean ± factor * SD, the single value itself where a component has no spread, whatever the
// mean's rounding says.
INLIER_RANGE InliersOf(const TPOLYHYPER &baseline, REAL factor) {
    HYPER least = HMAX, most = HMIN;
    for (const HYPER &value : baseline.SPAN()) {
        least = MIN(least, value);
        most = MAX(most, value);
    }
    const auto middle = [](REAL a, REAL b, REAL mean) { return a == b ? a : mean; };
    const auto spread = [factor](REAL a, REAL b, REAL sd) {
        return a == b ? 0 : std::abs(factor) * sd;
    };
    const HYPER mean = components::MAP<HYPER>(middle, least, most, baseline.MEAN());
    const HYPER reach = components::MAP<HYPER>(spread, least, most, baseline.SD());
    return {mean - reach, mean + reach};
}
} // namespace

void TLIST::NumbersOf(TPOLYHYPER &numbers) const {
    Visit([&numbers](const auto &stored) {
        numbers.RESIZE(stored.values.LENGTH);
        for (NAT i = 1; i <= numbers.LENGTH; ++i)
            numbers._PUT(i, NUMBERS(stored.values._GET(i)));
    });
}

UTF16 TLIST::MIN() const {
    return Visit([](const auto &stored) { return Extreme(stored, true); });
}

UTF16 TLIST::MAX() const {
    return Visit([](const auto &stored) { return Extreme(stored, false); });
}

NAT TLIST::SHORTEST() const {
    return Visit([](const auto &stored) { return ExtremeLength(stored, true); });
}

NAT TLIST::LONGEST() const {
    return Visit([](const auto &stored) { return ExtremeLength(stored, false); });
}

HYPER TLIST::MEAN() const {
    return Visit([this](const auto &stored) {
        if constexpr (requires { stored.values.MEAN(); }) {
            return NUMBERS(stored.values.MEAN());
        } else {
            TPOLYHYPER numbers;
            NumbersOf(numbers);
            return numbers.MEAN();
        }
    });
}

HYPER TLIST::SD() const {
    return Visit([this](const auto &stored) {
        if constexpr (requires { stored.values.SD(); }) {
            return NUMBERS(stored.values.SD());
        } else {
            TPOLYHYPER numbers;
            NumbersOf(numbers);
            return numbers.SD();
        }
    });
}

UTF16 TLIST::SHOW(const HYPER &numbers) const {
    if (KIND() == LIST_CHARS) return GETSHORT(numbers);
    if (KIND() == LIST_NAT) return GETSTRING(numbers.x); // a mean of whole numbers is a real
    return Visit([&numbers](const auto &stored) {
        return TEXT(READ<std::remove_cvref_t<decltype(stored.VALUE)>>(numbers));
    });
}

bool TLIST::SMOOTH(NAT passes) {
    return Visit([passes](auto &stored) {
        auto &values = stored.values;
        if constexpr (requires { values.SMOOTH(); }) {
            std::remove_cvref_t<decltype(values)> before;
            for (NAT pass = 1; pass <= passes; ++pass) {
                const bool looks = pass % SETTLING_PASSES == 0;
                if (looks) before.REPLACE(values);
                values.SMOOTH();
                if (looks && IsSettled(before, values)) break;
            }
            return true;
        } else {
            return false;
        }
    });
}

void TLIST::SORT() {
    Visit([](auto &stored) {
        auto &values = stored.values;
        if constexpr (requires { values.SORT(); })
            values.SORT();
        else
            HEAP_SORT(values.ELEMENTS(), values.LENGTH,
                      [](const auto &a, const auto &b) { return a < b; });
    });
    if (!FORMAT.SORTING && KIND() != LIST_CHARS) FLIP(); // texts are in that order already
}

void TLIST::SORTREAL() {
    if (auto *texts = std::get_if<LIST_CHARS>(&store)) return texts->values.SORTREAL();
    SORT();
}

void TLIST::KEEP_INLIERS(const TLIST &source, const TLIST &baseline, REAL factor) {
    TPOLYHYPER numbers;
    baseline.NumbersOf(numbers);
    if (numbers.LENGTH != baseline.LENGTH()) return DONE(); // no memory, which has been told
    const INLIER_RANGE range = InliersOf(numbers, factor);
    REPLACE(source);
    Visit([&range](auto &stored) {
        NAT kept = 0;
        for (NAT i = 1; i <= stored.values.LENGTH; ++i) {
            const auto value = stored.values._GET(i);
            if (range.HOLDS(NUMBERS(value))) stored.values._PUT(++kept, value);
        }
        stored.values.RESIZE(kept);
    });
}
} // namespace morvane
