#include "image2d/filter/groups.hpp"

#include "foundation/base/safe_arithmetic.hpp"
#include "foundation/console/console.hpp"
#include "image2d/filter/run_groups.hpp"

#include <algorithm>
#include <functional>
#include <new>

namespace morvane {
namespace {
// The number of each group, 0 for those that are left out.
std::vector<RUN_INDEX> Numbers(const RUN_GROUPS &groups, const GROUP_SIZES &sizes, NAT largest,
                               GROUP_RESULT &result) {
    std::vector<NAT> counts(groups.groupCount);
    for (const RUN &run : groups.runs)
        counts[run.group] += run.right - NAT{run.left};
    std::vector<NAT> kept;
    for (NAT &count : counts) {
        if (count < sizes.least || count > sizes.most) count = 0;
        if (count > 0) kept.push_back(count);
    }
    result.found = static_cast<NAT>(kept.size());
    const NAT room = largest - result.first + 1;
    NAT least = 1, ofLeast = NATMAX; // the smallest kept size, and how many groups may have it
    if (result.found > room && room > 0) {
        const auto last = kept.begin() + (room - 1);
        std::nth_element(kept.begin(), last, kept.end(), std::greater<>());
        least = *last;
        ofLeast = room - std::count_if(kept.begin(), last, [&](NAT n) { return n > least; });
    }
    std::vector<RUN_INDEX> numbers(counts.size());
    NAT next = result.first;
    for (std::size_t i = 0; i < counts.size() && next <= largest; ++i) {
        if (counts[i] < least || (counts[i] == least && ofLeast-- <= 0)) continue;
        numbers[i] = static_cast<RUN_INDEX>(next++);
    }
    result.last = next - 1;
    return numbers;
}

template <class SOURCE, class TARGET>
GROUP_RESULT Group(const CANVAS<SOURCE> &source, const COMPLEXNAT &range, const GROUP_SIZES &sizes,
                   CANVAS<TARGET> &target) {
    const NAT width = source.WIDTH;
    // As small as the pixels allow, so that many are compared at once.
    const auto low = static_cast<std::int32_t>(LIMIT(range.x, NAT{0}, source.MAXIMUM + 1));
    const auto high = static_cast<std::int32_t>(LIMIT(range.y, NAT{-1}, source.MAXIMUM));
    const auto inside = [&](NAT y, BYTE *mask) {
        const SOURCE *pixels = source.ROW(y);
        const TARGET *former = target.ROW(y);
        for (NAT x = 0; x < width; ++x)
            mask[x] = (pixels[x] >= low) & (pixels[x] <= high) & (former[x] == 0);
    };
    const RUN_GROUPS groups(width, source.HEIGHT, inside);
    GROUP_RESULT result;
    result.first = GETLIMITS(target).max + 1;
    const std::vector<RUN_INDEX> numbers = Numbers(groups, sizes, target.MAXIMUM, result);
    groups.EACH_RUN([&](NAT y, const RUN &run) {
        TARGET *out = target.ROW(y);
        const auto number = static_cast<TARGET>(numbers[run.group]);
        RUN_INDEX x = run.left; // most runs of noise are short: no call for them
        do
            out[x] = number;
        while (++x < run.right);
    });
    return result;
}
} // namespace

template <class SOURCE, class TARGET>
GROUP_RESULT GROUP(const CANVAS<SOURCE> &source, const COMPLEXNAT &range, const GROUP_SIZES &sizes,
                   CANVAS<TARGET> &target) {
    const bool isAlike = source.WIDTH == target.WIDTH && source.HEIGHT == target.HEIGHT;
    if (!isAlike || source.EMPTY()) return {};
    try {
        return Group(source, range, sizes, target);
    } catch (const std::bad_alloc &) {
        WRITELN("  Out of memory! No groups made.");
        return {};
    }
}

namespace {
// Counts and borders of all values; the edges between the rows and between neighbours of a row.
template <class PIXEL>
void CountEdges(const CANVAS<PIXEL> &groups, std::vector<GROUP_COUNT> &counts) {
    for (NAT y = 1; y <= groups.HEIGHT; ++y) {
        const PIXEL *row = groups.ROW(y);
        const PIXEL *above = y > 1 ? groups.ROW(y - 1) : nullptr;
        const PIXEL *below = y < groups.HEIGHT ? groups.ROW(y + 1) : nullptr;
        for (NAT x = 0; x < groups.WIDTH; ++x) {
            const PIXEL value = row[x];
            GROUP_COUNT &group = counts[value];
            ++group.count;
            group.border += (x == 0 || row[x - 1] != value) +
                            (x + 1 == groups.WIDTH || row[x + 1] != value) +
                            (!above || above[x] != value) + (!below || below[x] != value);
        }
    }
}

template <class PIXEL> void MapValues(CANVAS<PIXEL> &groups, const std::vector<PIXEL> &table) {
    std::for_each(groups.DATA(), groups.DATA() + groups.COUNT(),
                  [&](PIXEL &value) { value = table[value]; });
}

REAL KeyOf(const GROUP_COUNT &group, const GROUP_ORDER &order) {
    REAL key = group.FRACTION();
    if (order.key == GROUP_KEY::COUNT) key = static_cast<REAL>(group.count);
    if (order.key == GROUP_KEY::BORDER) key = static_cast<REAL>(group.border);
    return order.base > 0 ? LOG(order.base, key) : key;
}
} // namespace

template <class PIXEL> std::vector<GROUP_COUNT> COUNT_GROUPS(const CANVAS<PIXEL> &groups) try {
    std::vector<GROUP_COUNT> counts(static_cast<std::size_t>(groups.MAXIMUM + 1));
    for (std::size_t i = 0; i < counts.size(); ++i)
        counts[i].number = static_cast<NAT>(i);
    CountEdges(groups, counts);
    std::erase_if(counts, [](const GROUP_COUNT &g) { return g.number == 0 || g.count == 0; });
    return counts;
} catch (const std::bad_alloc &) {
    WRITELN("  Out of memory! Groups not counted.");
    return {};
}

template <class PIXEL> NAT SORT_GROUPS(CANVAS<PIXEL> &groups, const GROUP_ORDER &order) {
    std::vector<GROUP_COUNT> counts = COUNT_GROUPS(groups);
    if (counts.empty()) return 0;
    std::stable_sort(counts.begin(), counts.end(), [&](const auto &a, const auto &b) {
        const REAL keyA = KeyOf(a, order), keyB = KeyOf(b, order);
        return order.isInverse ? keyA < keyB : keyA > keyB;
    });
    const NAT left = std::min(static_cast<NAT>(counts.size()), std::max<NAT>(order.most, 0));
    std::vector<PIXEL> table(static_cast<std::size_t>(groups.MAXIMUM + 1));
    for (NAT rank = 1; rank <= left; ++rank)
        table[static_cast<std::size_t>(counts[static_cast<std::size_t>(rank - 1)].number)] =
            static_cast<PIXEL>(rank);
    MapValues(groups, table);
    return left;
}

template <class PIXEL> void UNSORT_GROUPS(CANVAS<PIXEL> &groups, RANDOM_STREAM &random) {
    const std::vector<GROUP_COUNT> counts = COUNT_GROUPS(groups);
    if (counts.empty()) return;
    TPOLYNAT numbers(static_cast<NAT>(counts.size()));
    for (NAT i = 1; i <= numbers.LENGTH; ++i)
        numbers.PUT(i, counts[static_cast<std::size_t>(i - 1)].number);
    numbers.MIX(random);
    std::vector<PIXEL> table(static_cast<std::size_t>(groups.MAXIMUM + 1));
    for (NAT i = 1; i <= numbers.LENGTH; ++i)
        table[static_cast<std::size_t>(counts[static_cast<std::size_t>(i - 1)].number)] =
            static_cast<PIXEL>(numbers.GET(i));
    MapValues(groups, table);
}

template GROUP_RESULT GROUP(const CANVAS<BYTE> &, const COMPLEXNAT &, const GROUP_SIZES &,
                            CANVAS<BYTE> &);
template GROUP_RESULT GROUP(const CANVAS<BYTE> &, const COMPLEXNAT &, const GROUP_SIZES &,
                            CANVAS<WORD> &);
template GROUP_RESULT GROUP(const CANVAS<WORD> &, const COMPLEXNAT &, const GROUP_SIZES &,
                            CANVAS<BYTE> &);
template GROUP_RESULT GROUP(const CANVAS<WORD> &, const COMPLEXNAT &, const GROUP_SIZES &,
                            CANVAS<WORD> &);
template std::vector<GROUP_COUNT> COUNT_GROUPS(const CANVAS<BYTE> &);
template std::vector<GROUP_COUNT> COUNT_GROUPS(const CANVAS<WORD> &);
template NAT SORT_GROUPS(CANVAS<BYTE> &, const GROUP_ORDER &);
template NAT SORT_GROUPS(CANVAS<WORD> &, const GROUP_ORDER &);
template void UNSORT_GROUPS(CANVAS<BYTE> &, RANDOM_STREAM &);
template void UNSORT_GROUPS(CANVAS<WORD> &, RANDOM_STREAM &);
} // namespace morvane
