#include "image2d/chart/value_analysis.hpp"

#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <cmath>
#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
TPOLYNAT List(const std::vector<NAT> &values) {
    TPOLYNAT list;
    list.INIT();
    for (const NAT value : values)
        list.PUSH(value);
    return list;
}

// The counts of a list of values below `bins`.
TPOLYNAT Counted(const TPOLYNAT &values, NAT bins) {
    std::vector<NAT> counts(static_cast<std::size_t>(bins));
    for (const NAT value : values.SPAN())
        ++counts[static_cast<std::size_t>(value)];
    return List(counts);
}
} // namespace

TEST_CASE("the statistic of counts is that of the list of values") {
    for (NAT length = 4; length <= 40; ++length) {
        std::vector<NAT> values;
        for (NAT i = 1; i <= length; ++i)
            values.push_back(i * i * 7 % 53);
        const TPOLYNAT list = List(values);
        const BIN_STATISTIC statistic = GETSTATISTIC(Counted(list, 60));
        const VECTORNAT quartiles = list.QUANTILE();
        INFO("length ", length);
        CHECK(statistic.count == length);
        CHECK(statistic.min == list.MIN());
        CHECK(statistic.max == list.MAX());
        CHECK(VECTORNAT{statistic.q1, statistic.median, statistic.q3} == quartiles);
        CHECK(statistic.mean == doctest::Approx(list.MEAN()).epsilon(1e-12));
        CHECK(statistic.sd == doctest::Approx(list.SD()).epsilon(1e-12));
    }
}

TEST_CASE("quartiles of three values or fewer are the smallest and the largest one") {
    const BIN_STATISTIC three = GETSTATISTIC(Counted(List({9, 4, 5}), 10));
    CHECK(three.q1 == 4);
    CHECK(three.median == 5);
    CHECK(three.q3 == 9);
    const BIN_STATISTIC two = GETSTATISTIC(Counted(List({4, 8}), 10));
    CHECK(two.q1 == 4);
    CHECK(two.median == 6);
    CHECK(two.q3 == 8);
    const BIN_STATISTIC one = GETSTATISTIC(Counted(List({4}), 10));
    CHECK(one.sd == 0);
    CHECK(one.q1 == 4);
    CHECK(one.median == 4);
    CHECK(one.q3 == 4);
}

TEST_CASE("counts of a large field of 16 bits have an exact mean and deviation") {
    std::vector<NAT> counts(65536);
    counts.front() = counts.back() = NAT{1} << 40;
    const BIN_STATISTIC statistic = GETSTATISTIC(List(counts));
    CHECK(statistic.count == NAT{1} << 41);
    CHECK(statistic.mean == 32767.5);
    CHECK(statistic.sd == doctest::Approx(32767.5).epsilon(1e-9));
    CHECK(statistic.q1 == 0);
    CHECK(statistic.q3 == 65535);
}

TEST_CASE("bars of many bins end with the last one that has a count") {
    std::vector<NAT> counts(65536);
    counts[10] = counts[279] = 5;
    std::string text;
    {
        CAPTURE console;
        WRITE_VALUE_ANALYSIS(List(counts));
        text = console.TEXT();
    }
    CHECK(text.find(" 280\n") != std::string::npos);
    CHECK(text.find("65536") == std::string::npos);
}

TEST_CASE("values that occur once have no bars") {
    CAPTURE console;
    WRITE_VALUE_ANALYSIS(List({1, 0, 1}));
    CHECK(console.TEXT() == "count\t2\nmean\t1\nSD\t1.4142135623730951\nmin\t0\nq.25\t0\n"
                            "median\t1\nq.75\t2\nmax\t2\n");
}

TEST_CASE("the chart of an analysis has the statistic above it and a mark at each quartile") {
    SCRATCH_FOLDER folder;
    CAPTURE console;
    std::vector<NAT> counts(30);
    counts[8] = counts[12] = 4, counts[10] = 1;
    REQUIRE(SAVE_VALUE_ANALYSIS_IMAGE(List(counts), "a.svg"));
    const std::string svg = folder.READ("a.svg");
    for (const char *text : {">values<", ">log10 frequency<", ">smoothed<",
                             ">mean 10.00, SD 2.00, quartiles 8, 10, 12<"})
        CHECK(svg.find(text) != std::string::npos);
    REQUIRE(SAVE_VALUE_ANALYSIS_IMAGE(List({}), "empty.svg"));
    CHECK(folder.READ("empty.svg").find(">no values<") != std::string::npos);
    CHECK_FALSE(SAVE_VALUE_ANALYSIS_IMAGE(List(counts), "no/such/a.svg"));
    CHECK_FALSE(SAVE_VALUE_ANALYSIS(List(counts), "no/such/a.txt"));
}
