#include "image2d/chart/value_analysis.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/base/safe_arithmetic.hpp"
#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"
#include "foundation/container/poly_statistics.hpp"
#include "foundation/container/poly_text.hpp"

#include <algorithm>
#include <cmath>
#include <vector>

namespace morvane {
namespace {
constexpr COMPLEXNAT BARS{70, 8}; // columns and rows of the chart on the console
constexpr NAT WHOLE_BINS = 256;   // up to this many all bins are shown
constexpr NAT QUARTERED_FROM = 4; // fewer values have no quarter

UTF16 Line(const char *name, const UTF16 &number) { return name + UTF16("\t") + number; }

std::vector<UTF16> Lines(const BIN_STATISTIC &statistic) {
    return {Line("count", GETSTRING(statistic.count)), Line("mean", GETSTRING(statistic.mean)),
            Line("SD", GETSTRING(statistic.sd)),       Line("min", GETSTRING(statistic.min)),
            Line("q.25", GETSTRING(statistic.q1)),     Line("median", GETSTRING(statistic.median)),
            Line("q.75", GETSTRING(statistic.q3)),     Line("max", GETSTRING(statistic.max))};
}

// f(value, count) for each bin with a count.
template <class F> void EachCount(const TPOLYNAT &bins, const F &f) {
    for (NAT i = 1; i <= bins.LENGTH; ++i)
        if (bins._GET(i) > 0) f(i - 1, bins._GET(i));
}

// The value at a position of the ascending list of all values.
NAT ValueAt(const TPOLYNAT &bins, NAT position) {
    NAT passed = 0, found = 0;
    EachCount(bins, [&](NAT value, NAT count) {
        if (passed < position) found = value;
        passed += count;
    });
    return found;
}

// The bins that a chart on the console shows: all of a few, of more those up to the last one with
// a count, so that a field of 16 bits with small values has its bars side by side.
void WriteBars(const TPOLYNAT &bins) {
    NAT shown = bins.LENGTH;
    while (shown > WHOLE_BINS && bins._GET(shown) == 0)
        --shown;
    TPOLYNAT trimmed;
    trimmed.INIT();
    for (NAT i = 1; i <= shown; ++i)
        trimmed.PUSH(bins._GET(i));
    WRITE_HISTOGRAM(BARS.x, BARS.y, trimmed);
}

void Quartiles(const TPOLYNAT &bins, BIN_STATISTIC &statistic) {
    const NAT n = statistic.count;
    const auto at = [&](NAT position) {
        if (n % 2 != 0) return ValueAt(bins, position + 1);
        return NATMIDDLE(ValueAt(bins, position), ValueAt(bins, position + 1));
    };
    statistic.median = at(n / 2);
    statistic.q1 = n < QUARTERED_FROM ? statistic.min : at(n / 4);
    statistic.q3 = n < QUARTERED_FROM ? statistic.max : at(n / 4 * 3);
}
} // namespace

BIN_STATISTIC GETSTATISTIC(const TPOLYNAT &bins) {
    BIN_STATISTIC statistic;
    REAL sum = 0, squares = 0;
    EachCount(bins, [&](NAT value, NAT count) {
        if (statistic.count == 0) statistic.min = value;
        statistic.max = value;
        statistic.count += count;
        sum += static_cast<REAL>(value) * static_cast<REAL>(count);
    });
    if (statistic.count == 0) return statistic;
    statistic.mean = sum / static_cast<REAL>(statistic.count);
    EachCount(bins, [&](NAT value, NAT count) {
        const REAL distance = static_cast<REAL>(value) - statistic.mean;
        squares += distance * distance * static_cast<REAL>(count);
    });
    if (statistic.count > 1)
        statistic.sd = std::sqrt(squares / static_cast<REAL>(statistic.count - 1));
    Quartiles(bins, statistic);
    return statistic;
}

void WRITE_COUNTS(const TPOLYNAT &bins) {
    bool isEmpty = true;
    EachCount(bins, [&](NAT value, NAT count) {
        WRITELN(GETSTRING(value) + "\t" + GETSTRING(count));
        isEmpty = false;
    });
    if (isEmpty) WRITELN("Empty histogram!");
}

void WRITE_VALUE_ANALYSIS(const TPOLYNAT &bins) {
    const BIN_STATISTIC statistic = GETSTATISTIC(bins);
    if (statistic.count == 0) return WRITELN("Empty histogram!");
    // Bars are logarithms: they have no height where every value occurs once.
    if (std::ranges::max(bins.SPAN()) > 1) WriteBars(bins);
    for (const UTF16 &line : Lines(statistic))
        WRITELN(line);
    HISTOGRAM_ANALYSIS analysis;
    IMAGE_ANALYSE(bins, analysis);
    WRITE_ANALYSIS(analysis);
}

bool SAVE_VALUE_ANALYSIS(const TPOLYNAT &bins, const UTF16 &name) {
    FILE_WRITE file;
    if (!ASSIGNWRITE(file, name)) return false;
    HISTOGRAM_ANALYSIS analysis;
    IMAGE_ANALYSE(bins, analysis);
    for (const UTF16 &line : Lines(GETSTATISTIC(bins)))
        file.WRITELN(line);
    for (const ANALYSIS_POINT &point : analysis.points)
        file.WRITELN(WRITEOUT(point));
    file.WRITELN("value\tcount");
    EachCount(bins, [&](NAT value, NAT count) {
        file.WRITELN(GETSTRING(value) + "\t" + GETSTRING(count));
    });
    return file.COMMIT();
}

bool SAVE_VALUE_ANALYSIS_IMAGE(const TPOLYNAT &bins, const UTF16 &name) {
    const BIN_STATISTIC statistic = GETSTATISTIC(bins);
    HISTOGRAM_ANALYSIS analysis;
    IMAGE_ANALYSE(bins, analysis);
    THISTOGRAM chart;
    START_VALUE_CHART(chart);
    const auto rounded = [](REAL value) { return GETSTRING(value, 2); };
    if (statistic.count > 0)
        chart.UP("mean " + rounded(statistic.mean) + ", SD " + rounded(statistic.sd) +
                 ", quartiles " + GETSTRING(statistic.q1) + ", " + GETSTRING(statistic.median) +
                 ", " + GETSTRING(statistic.q3));
    DRAW_ANALYSIS(analysis, chart);
    if (statistic.count > 0) {
        const REAL top = LOG10(static_cast<REAL>(std::ranges::max(bins.SPAN())));
        for (const NAT quartile : {statistic.q1, statistic.median, statistic.q3})
            chart.VVLINE(static_cast<REAL>(quartile), top);
    }
    return chart.SAVE(name);
}
} // namespace morvane
