#include "foundation/base/rounding.hpp"
#include "image2d/chart/analysis.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <cmath>
#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// The logarithm of two peaks: 1e9 exp(-(v-90)^2/968) + 6e8 exp(-(v-150)^2/968), its first and its
// second derivative.
struct PEAKS {
    REAL sum, first, second;
};
PEAKS Peaks(REAL v) {
    const REAL a = 1e9 * std::exp(-(v - 90) * (v - 90) / 968);
    const REAL b = 6e8 * std::exp(-(v - 150) * (v - 150) / 968);
    const REAL da = -(v - 90) / 484, db = -(v - 150) / 484;
    const REAL sum = a + b, slope = (a * da + b * db) / sum;
    const REAL bend = (a * (da * da - 1.0 / 484) + b * (db * db - 1.0 / 484)) / sum;
    return {sum, slope, bend - slope * slope};
}
// The zero between low and high, where `of` changes its sign once.
template <class OF> REAL Zero(REAL low, REAL high, const OF &of) {
    for (NAT i = 0; i < 60; ++i) {
        const REAL middle = (low + high) / 2;
        ((of(low) > 0) == (of(middle) > 0) ? low : high) = middle;
    }
    return low;
}

TPOLYNAT TwoPeaks() {
    TPOLYNAT bins;
    bins.INIT();
    for (NAT v = 0; v < 256; ++v)
        bins.PUSH(ROUND(Peaks(static_cast<REAL>(v)).sum));
    return bins;
}

std::vector<REAL> Values(const HISTOGRAM_ANALYSIS &analysis, ANALYSIS_KIND kind) {
    std::vector<REAL> values;
    for (const ANALYSIS_POINT &point : analysis.points) {
        const bool isInside = point.value > 20 && point.value < 235; // behind the ends' own bends
        if (point.kind == kind && isInside) values.push_back(static_cast<REAL>(point.value));
    }
    return values;
}

TPOLYNAT Bins(const std::vector<NAT> &values) {
    TPOLYNAT bins;
    bins.INIT();
    for (const NAT value : values)
        bins.PUSH(value);
    return bins;
}
} // namespace

TEST_CASE("maxima, minimum and inflections of two peaks stand where calculus puts them") {
    HISTOGRAM_ANALYSIS analysis;
    IMAGE_ANALYSE(TwoPeaks(), analysis);
    const auto slope = [](REAL v) { return Peaks(v).first; };
    const auto bend = [](REAL v) { return Peaks(v).second; };
    const std::vector<REAL> maxima = Values(analysis, ANALYSIS_KIND::MAXIMUM);
    const std::vector<REAL> minima = Values(analysis, ANALYSIS_KIND::MINIMUM);
    const std::vector<REAL> inflections = Values(analysis, ANALYSIS_KIND::INFLECTION);
    REQUIRE(maxima.size() == 2);
    REQUIRE(minima.size() == 1);
    REQUIRE(inflections.size() == 2);
    const REAL valley = Zero(105, 135, slope);
    CHECK(std::abs(maxima[0] - Zero(70, 105, slope)) <= 1);
    CHECK(std::abs(maxima[1] - Zero(135, 170, slope)) <= 1);
    CHECK(std::abs(minima[0] - valley) <= 1);
    CHECK(std::abs(inflections[0] - Zero(95, valley, bend)) <= 1);
    CHECK(std::abs(inflections[1] - Zero(valley, 145, bend)) <= 1);
}

TEST_CASE("a point tells the curve and its derivatives there") {
    HISTOGRAM_ANALYSIS analysis;
    IMAGE_ANALYSE(TwoPeaks(), analysis);
    for (const ANALYSIS_POINT &point : analysis.points) {
        if (point.value < 20 || point.value > 235) continue;
        const PEAKS exact = Peaks(static_cast<REAL>(point.value));
        CHECK(point.f == doctest::Approx(std::log10(exact.sum)).epsilon(0.01));
        CHECK(std::abs(point.first - exact.first / std::log(10)) < 0.005);
        CHECK(std::abs(point.second - exact.second / std::log(10)) < 0.001);
    }
}

TEST_CASE("up to ten values are analysed as they are") {
    HISTOGRAM_ANALYSIS analysis;
    // Log10 counts 0 0 1 2 1 0 1 2: the slopes are 0 0.5 1 0 -1 0 1 1.
    IMAGE_ANALYSE(Bins({1, 1, 10, 100, 10, 1, 10, 100}), analysis);
    CHECK(analysis.logs.GET(4) == 2);
    REQUIRE(analysis.points.size() >= 2);
    CAPTURE capture;
    WRITE_ANALYSIS(analysis);
    INFO(capture.TEXT());
    CHECK(capture.CONTAINS("Maximum point:3 f=2 f'=0 f''=-1\n"));
    CHECK(capture.CONTAINS("Minimum point:5 f=0 f'=0 f''=1\n"));
}

TEST_CASE("more than ten values are smoothed, four rounds for each 64 of them") {
    HISTOGRAM_ANALYSIS analysis;
    std::vector<NAT> counts(11, 1);
    counts[5] = 10000;
    IMAGE_ANALYSE(Bins(counts), analysis);
    // One round in place: the neighbour before is 1 by then, so (4 + (1 + 0) / 2) / 2.
    CHECK(analysis.logs.GET(6) == doctest::Approx(2.25));
    std::vector<NAT> more(128, 1);
    more[64] = 10000;
    TPOLYREAL expected;
    expected.INIT();
    for (const NAT count : more)
        expected.PUSH(std::log10(static_cast<REAL>(count)));
    for (NAT i = 0; i < 8; ++i)
        expected.SMOOTH();
    IMAGE_ANALYSE(Bins(more), analysis);
    for (NAT i = 1; i <= 128; ++i)
        CHECK(analysis.logs.GET(i) == doctest::Approx(expected.GET(i)));
}

TEST_CASE("only values that occur are analysed, each with its value and count") {
    HISTOGRAM_ANALYSIS analysis;
    IMAGE_ANALYSE(Bins({0, 5, 0, 0, 100, 3}), analysis);
    REQUIRE(analysis.counts.LENGTH == 3);
    CHECK(analysis.counts.GET(1) == COMPLEXNAT{1, 5});
    CHECK(analysis.counts.GET(2) == COMPLEXNAT{4, 100});
    CHECK(analysis.counts.GET(3) == COMPLEXNAT{5, 3});
    CHECK(analysis.logs.GET(2) == doctest::Approx(2));
}

TEST_CASE("histograms of nothing, of one value and of equal counts have no points") {
    HISTOGRAM_ANALYSIS analysis;
    IMAGE_ANALYSE(Bins({}), analysis);
    CHECK(analysis.points.empty());
    IMAGE_ANALYSE(Bins({0, 0, 0}), analysis);
    CHECK(analysis.counts.LENGTH == 0);
    IMAGE_ANALYSE(Bins({0, 9, 0}), analysis);
    CHECK(analysis.counts.LENGTH == 1);
    CHECK(analysis.points.empty());
    IMAGE_ANALYSE(Bins({7, 7}), analysis);
    CHECK(analysis.points.empty());
    IMAGE_ANALYSE(Bins(std::vector<NAT>(300, 42)), analysis);
    CHECK(analysis.points.empty());
}

TEST_CASE("the points are written as text files, the histogram as lines of value and count") {
    SCRATCH_FOLDER folder;
    CAPTURE capture;
    HISTOGRAM_ANALYSIS analysis;
    const TPOLYNAT bins = Bins({1, 10, 100, 1000, 100, 10, 100, 1000});
    IMAGE_ANALYSE(bins, analysis);
    REQUIRE(SAVE_ANALYSIS(analysis, "a.txt"));
    std::string expected;
    for (const ANALYSIS_POINT &point : analysis.points)
        expected += GETUTF8(WRITEOUT(point)) + "\n";
    CHECK(folder.READ("a.txt") == expected);
    REQUIRE(SAVE_HISTOGRAM(Bins({5, 0, 2}), "h.txt"));
    CHECK(folder.READ("h.txt") == "0\t5\n1\t0\n2\t2\n");
    CHECK_FALSE(SAVE_HISTOGRAM(bins, "no/such/h.txt"));
}

TEST_CASE("the picture of an analysis shows the histogram, the smoothed curve and the points") {
    SCRATCH_FOLDER folder;
    CAPTURE capture;
    HISTOGRAM_ANALYSIS analysis;
    IMAGE_ANALYSE(TwoPeaks(), analysis);
    REQUIRE(SAVE_ANALYSIS_IMAGE(analysis, "a.svg"));
    const std::string svg = folder.READ("a.svg");
    for (const char *text :
         {">values<", ">log10 frequency<", ">histogram<", ">smoothed<", "<circle"})
        CHECK(svg.find(text) != std::string::npos);
    for (const REAL maximum : Values(analysis, ANALYSIS_KIND::MAXIMUM))
        CHECK(svg.find(">max " + std::to_string(std::lround(maximum)) + "<") != std::string::npos);
    IMAGE_ANALYSE(Bins({}), analysis);
    REQUIRE(SAVE_ANALYSIS_IMAGE(analysis, "empty.svg"));
    CHECK(folder.READ("empty.svg").find(">no values<") != std::string::npos);
}
