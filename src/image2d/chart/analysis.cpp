#include "image2d/chart/analysis.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/base/safe_arithmetic.hpp"
#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"

#include <algorithm>
#include <cmath>

namespace morvane {
namespace {
constexpr NAT SMOOTHED_FROM = 11; // values that occur; fewer are analysed as they are
// Rounds of smoothing: four for each 64 values that occur, which spreads a value over about two
// bins to each side of 8-bit grey values.
constexpr NAT VALUES = 64, ROUNDS = 4;
constexpr NAT MOST_ROUNDS = 1024; // about a second for all values of 16 bits
// Shares of the largest size from which on the first and the second derivative have a sign.
constexpr REAL NOTICEABLE_SLOPE = 0.01, NOTICEABLE_BEND = 0.05;
constexpr NAT FIRST_POSITION = 3; // before it the derivatives stand on copies of one difference
constexpr COMPLEXNAT CHART{640, 480};

const char *Label(ANALYSIS_KIND kind) {
    switch (kind) {
    case ANALYSIS_KIND::MAXIMUM: return "Maximum point:";
    case ANALYSIS_KIND::MINIMUM: return "Minimum point:";
    default: return "Inflection point:";
    }
}

// Calls change(from, to, isFalling) for each change of sign: `from` is the last position with the
// one sign, `to` the first with the other; what is not noticeable lies between. A change gives the
// position that it chose, and the next one begins behind it, so that no position is chosen twice.
template <class CHANGE>
void EachSignChange(const TPOLYREAL &derivative, REAL noticeable, const CHANGE &change) {
    REAL largest = 0;
    for (const REAL value : derivative.SPAN())
        largest = std::max(largest, std::abs(value));
    NAT last = 0, chosen = 0;
    for (NAT i = FIRST_POSITION; i <= derivative.LENGTH; ++i) {
        const REAL value = derivative._GET(i);
        if (!(std::abs(value) > largest * noticeable)) continue;
        if (last > 0 && (derivative._GET(last) > 0) != (value > 0))
            chosen = change(std::max(last, chosen + 1), i, value < 0);
        last = i;
    }
}

// The position in from..to with the largest rank, the middle one of equals.
template <class RANK> NAT Best(NAT from, NAT to, const RANK &rank) {
    NAT first = from, last = from;
    for (NAT i = from + 1; i <= to; ++i) {
        if (rank(i) > rank(first)) first = i;
        if (rank(i) >= rank(first)) last = i;
    }
    return (first + last) / 2;
}

void Collect(const TPOLYNAT &bins, HISTOGRAM_ANALYSIS &result) {
    result.counts.INIT();
    result.logs.INIT();
    result.points.clear();
    for (NAT i = 1; i <= bins.LENGTH; ++i) {
        if (bins._GET(i) == 0) continue;
        result.counts.PUSH({i - 1, bins._GET(i)});
        result.logs.PUSH(LOG10(static_cast<REAL>(bins._GET(i))));
    }
    const NAT length = result.logs.LENGTH;
    const NAT rounds =
        length < SMOOTHED_FROM ? 0 : LIMIT(length / VALUES * ROUNDS, NAT{1}, MOST_ROUNDS);
    for (NAT i = 0; i < rounds; ++i)
        result.logs.SMOOTH();
}
} // namespace

void IMAGE_ANALYSE(const TPOLYNAT &bins, HISTOGRAM_ANALYSIS &result) {
    Collect(bins, result);
    TPOLYREAL first, second;
    result.logs.DERIVATION(first);
    first.DERIVATION(second);
    if (first.LENGTH != result.logs.LENGTH || second.LENGTH != first.LENGTH) return; // no memory
    const auto add = [&](ANALYSIS_KIND kind, NAT i) {
        result.points.push_back(
            {kind, result.counts._GET(i).x, result.logs._GET(i), first._GET(i), second._GET(i)});
        return i;
    };
    EachSignChange(first, NOTICEABLE_SLOPE, [&](NAT from, NAT to, bool isFalling) {
        const REAL sign = isFalling ? 1 : -1;
        const auto height = [&](NAT i) { return sign * result.logs._GET(i); };
        return add(isFalling ? ANALYSIS_KIND::MAXIMUM : ANALYSIS_KIND::MINIMUM,
                   Best(from, to, height));
    });
    EachSignChange(second, NOTICEABLE_BEND, [&](NAT from, NAT to, bool) {
        const auto nearness = [&](NAT i) { return -std::abs(second._GET(i)); };
        return add(ANALYSIS_KIND::INFLECTION, Best(from, to, nearness));
    });
    std::stable_sort(
        result.points.begin(), result.points.end(),
        [](const ANALYSIS_POINT &a, const ANALYSIS_POINT &b) { return a.value < b.value; });
}

UTF16 WRITEOUT(const ANALYSIS_POINT &point) {
    return Label(point.kind) + GETSTRING(point.value) + " f=" + GETSTRING(point.f) +
           " f'=" + GETSTRING(point.first) + " f''=" + GETSTRING(point.second);
}

void WRITE_ANALYSIS(const HISTOGRAM_ANALYSIS &analysis) {
    for (const ANALYSIS_POINT &point : analysis.points)
        WRITELN(WRITEOUT(point));
}

bool SAVE_ANALYSIS(const HISTOGRAM_ANALYSIS &analysis, const UTF16 &name) {
    FILE_WRITE file;
    if (!ASSIGNWRITE(file, name)) return false;
    for (const ANALYSIS_POINT &point : analysis.points)
        file.WRITELN(WRITEOUT(point));
    return file.COMMIT();
}

void DRAW_ANALYSIS(const HISTOGRAM_ANALYSIS &analysis, THISTOGRAM &chart) {
    chart.LOGBASE = 10;
    chart.LEGENDS("histogram", {});
    chart.HISTOGRAM(analysis.counts);
    if (analysis.counts.LENGTH == 0) return;
    chart.SELECT();
    chart.LEGEND("smoothed");
    for (NAT i = 1; i <= analysis.counts.LENGTH; ++i)
        chart.CURVE(static_cast<REAL>(analysis.counts._GET(i).x), analysis.logs._GET(i));
    // Labels find their places in this order: where it is narrow, maxima have theirs first.
    for (const ANALYSIS_KIND kind :
         {ANALYSIS_KIND::MAXIMUM, ANALYSIS_KIND::MINIMUM, ANALYSIS_KIND::INFLECTION})
        for (const ANALYSIS_POINT &point : analysis.points) {
            if (point.kind != kind) continue;
            const UTF16 word = kind == ANALYSIS_KIND::MAXIMUM   ? "max "
                               : kind == ANALYSIS_KIND::MINIMUM ? "min "
                                                                : "";
            chart.POI(static_cast<REAL>(point.value), point.f, word + GETSTRING(point.value));
        }
}

bool SAVE_HISTOGRAM(const TPOLYNAT &bins, const UTF16 &name) {
    FILE_WRITE file;
    if (!ASSIGNWRITE(file, name)) return false;
    for (NAT i = 1; i <= bins.LENGTH; ++i)
        file.WRITELN(GETSTRING(i - 1) + "\t" + GETSTRING(bins._GET(i)));
    return file.COMMIT();
}

void START_VALUE_CHART(THISTOGRAM &chart) {
    chart.INIT(CHART.x, CHART.y);
    chart.LOGBASE = 10;
    chart.BOTTOM("values");
    chart.LEFT("log10 frequency");
}

bool SAVE_HISTOGRAM_IMAGE(const TPOLYNAT &bins, const UTF16 &name) {
    THISTOGRAM chart;
    START_VALUE_CHART(chart);
    chart.HISTOGRAM(bins);
    return chart.SAVE(name);
}

bool SAVE_ANALYSIS_IMAGE(const HISTOGRAM_ANALYSIS &analysis, const UTF16 &name) {
    THISTOGRAM chart;
    START_VALUE_CHART(chart);
    DRAW_ANALYSIS(analysis, chart);
    return chart.SAVE(name);
}
} // namespace morvane
