#include "image2d/chart/histogram.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
TPOLYNAT Bins(const std::vector<NAT> &values) {
    TPOLYNAT bins;
    bins.INIT();
    for (const NAT value : values)
        bins.PUSH(value);
    return bins;
}
TPOLYREAL Reals(const std::vector<REAL> &values) {
    TPOLYREAL list;
    list.INIT();
    for (const REAL value : values)
        list.PUSH(value);
    return list;
}

std::vector<SHAPE> Kind(T2DVECTOR &graph, SHAPE_KIND kind) {
    (void)graph.GETSVG();
    std::vector<SHAPE> found;
    for (const SHAPE &shape : graph.SHAPES())
        if (shape.kind == kind) found.push_back(shape);
    return found;
}
bool HasText(T2DVECTOR &graph, const char *text) {
    const std::vector<SHAPE> texts = Kind(graph, SHAPE_KIND::TEXT);
    return std::any_of(texts.begin(), texts.end(),
                       [&](const SHAPE &shape) { return shape.text == text; });
}
PICTURE_AREA Frame(T2DVECTOR &graph) {
    const SHAPE border = Kind(graph, SHAPE_KIND::RECTANGLE).at(0);
    return {border.points[0].x, border.points[0].y, border.points[1].x, border.points[1].y};
}
// All corners of the outline's steps in the world of the chart, rounded to hundredths.
std::vector<COMPLEX> Corners(T2DVECTOR &graph, const RANGE &bottom, const RANGE &left) {
    const PICTURE_AREA frame = Frame(graph);
    std::vector<COMPLEX> corners;
    for (const SHAPE &line : Kind(graph, SHAPE_KIND::POLYLINE))
        for (const COMPLEX &point : line.points) {
            const REAL x = (point.x - frame.left) / frame.WIDTH();
            const REAL y = (frame.bottom - point.y) / frame.HEIGHT();
            corners.push_back(
                {std::round((bottom.min + x * (bottom.max - bottom.min)) * 100) / 100 + 0.0,
                 std::round((left.min + y * (left.max - left.min)) * 100) / 100 + 0.0});
        }
    return corners;
}
} // namespace

TEST_CASE("bins are filled steps around their grey values, with room above the largest") {
    THISTOGRAM chart(640, 480);
    chart.HISTOGRAM(Bins({4, 0, 10}));
    const RANGE left{0, 10.6}; // 6 % above
    CHECK(Corners(chart, {-0.5, 2.5}, left) ==
          std::vector<COMPLEX>{
              {-0.5, 0}, {-0.5, 4}, {0.5, 4}, {0.5, 0}, {1.5, 0}, {1.5, 10}, {2.5, 10}, {2.5, 0}});
    CHECK(Kind(chart, SHAPE_KIND::POLYGON).size() == 1); // the filled area
    CHECK(THISTOGRAM::KIND == 195);
    CHECK(chart.SCALE == 5);
    CHECK(chart.LOGBASE == 0);
}

TEST_CASE("with a logarithm base the logarithms are drawn") {
    THISTOGRAM chart(640, 480);
    chart.LOGBASE = 10;
    CHECK(chart.DRAWN(100) == doctest::Approx(2));
    CHECK(chart.DRAWN(0) == 0);
    CHECK(chart.DRAWN(-100) == doctest::Approx(-2));
    chart.HISTOGRAM(Bins({1, 100, 0}));
    const std::vector<COMPLEX> corners = Corners(chart, {-0.5, 2.5}, {0, 2.12});
    CHECK(std::count(corners.begin(), corners.end(), COMPLEX{0.5, 2}) == 1);
    CHECK(std::count(corners.begin(), corners.end(), COMPLEX{-0.5, 0}) >= 1); // log 1
    chart.LOGBASE = 1; // no logarithm has this base: the answer of LOG is 0
    CHECK(chart.DRAWN(7) == 0);
}

TEST_CASE("of more than 256 bins those in use are shown") {
    std::vector<NAT> values(65536, 0);
    values[1000] = 5, values[3000] = 7;
    THISTOGRAM chart(640, 480);
    chart.HISTOGRAM(Bins(values));
    CHECK(HasText(chart, "1500"));
    CHECK(HasText(chart, "3000"));
    CHECK_FALSE(HasText(chart, "10000"));
    THISTOGRAM whole(640, 480);
    values.resize(256);
    values[100] = 1;
    whole.HISTOGRAM(Bins(values));
    CHECK(HasText(whole, "250"));
}

TEST_CASE("pairs of values and counts are steps, with zero between values that part") {
    TPOLYCOMPLEXNAT pairs;
    pairs.INIT();
    pairs.PUSH({2, 5});
    pairs.PUSH({3, 4});
    pairs.PUSH({6, 10});
    THISTOGRAM chart(640, 480);
    chart.HISTOGRAM(pairs);
    CHECK(Corners(chart, {1.5, 6.5}, {0, 10.6}) == std::vector<COMPLEX>{{1.5, 0},
                                                                        {1.5, 5},
                                                                        {2.5, 5},
                                                                        {2.5, 4},
                                                                        {3.5, 4},
                                                                        {3.5, 0},
                                                                        {5.5, 0},
                                                                        {5.5, 10},
                                                                        {6.5, 10},
                                                                        {6.5, 0}});
}

TEST_CASE("values are a curve over their positions, two lists are two curves with a legend") {
    THISTOGRAM one(640, 480), two(640, 480);
    one.HISTOGRAM(Reals({0, 5, 10}));
    CHECK(Corners(one, {1, 3}, {0, 10.6}) == std::vector<COMPLEX>{{1, 0}, {2, 5}, {3, 10}});
    two.LEGENDS("smallest", "largest");
    two.HISTOGRAM(Reals({-10, 0}), Reals({0, 10}), 7);
    CHECK(Corners(two, {7, 8}, {-11.2, 11.2}) ==
          std::vector<COMPLEX>{{7, -10}, {8, 0}, {7, 0}, {8, 10}});
    CHECK(HasText(two, "smallest"));
    CHECK(HasText(two, "largest"));
}

TEST_CASE("ranges can be set and curves added one by one") {
    THISTOGRAM chart(640, 480);
    chart.LOGBASE = 2;
    chart._MHISTO({0, 4}, {1, 1024}); // logarithms 0..10
    chart._MADDHISTO(Reals({2, 8}), 0);
    chart._MADDHISTO(Reals({1024, 1}), 3);
    CHECK(Corners(chart, {0, 4}, {0, 10.6}) ==
          std::vector<COMPLEX>{{0, 1}, {1, 3}, {3, 10}, {4, 0}});
}

TEST_CASE("lists of nothing, of one value and of huge values give a sensible picture") {
    constexpr REAL HUGE_ = std::numeric_limits<REAL>::max();
    constexpr REAL NAN_ = std::numeric_limits<REAL>::quiet_NaN();
    const std::vector<std::vector<REAL>> lists{
        {},           {0},       {5},    {-3},        {HUGE_},      {-HUGE_, HUGE_},
        {1e15, 1e15}, {NAN_, 3}, {NAN_}, {5e-324, 0}, {-7, -2, -3}, {REALMAX, 1, -REALMAX}};
    for (const REAL base : {0.0, 10.0, 0.5, -3.0})
        for (std::size_t i = 0; i < lists.size(); ++i) {
            CAPTURE(i);
            CAPTURE(base);
            THISTOGRAM chart(640, 480);
            chart.LOGBASE = base;
            chart.HISTOGRAM(Reals(lists[i]));
            const std::string svg = chart.GETSVG();
            CHECK(svg.find("nan") == std::string::npos);
            CHECK(svg.find("inf") == std::string::npos);
            CHECK(Kind(chart, SHAPE_KIND::TEXT).size() >= 4); // numbers on both scales
            TRGBA raster;
            CHECK(chart.RENDER(raster));
        }
    THISTOGRAM empty(640, 480), zero(640, 480), pairs(640, 480), huge(640, 480);
    empty.HISTOGRAM(Bins({}));
    CHECK(HasText(empty, "no values"));
    zero.HISTOGRAM(Bins({0, 0, 0}));
    CHECK(HasText(zero, "no values"));
    pairs.HISTOGRAM(TPOLYCOMPLEXNAT());
    CHECK(HasText(pairs, "no values"));
    huge.HISTOGRAM(Bins({NATMAX, 1}));
    CHECK(huge.GETSVG().find("×10^18") != std::string::npos);
}

TEST_CASE("a million bins make a picture") {
    TPOLYNAT bins;
    bins.INIT(1'000'000);
    for (NAT i = 1; i <= 1'000'000; ++i)
        bins._PUT(i, i % 1000);
    THISTOGRAM chart(640, 480);
    chart.HISTOGRAM(bins);
    CHECK(chart.GETSVG().size() < 300'000);
}

TEST_CASE("the same histogram gives the same file each time") {
    SCRATCH_FOLDER folder;
    CAPTURE capture;
    for (const char *name : {"a", "b"}) {
        THISTOGRAM chart(640, 480);
        chart.UP("title");
        chart.HISTOGRAM(Bins({1, 5, 3, 9}));
        chart.POI(3, 9, "maximum 3");
        REQUIRE(chart.SAVE(std::string(name) + ".png"));
        REQUIRE(chart.SAVE(std::string(name) + ".svg"));
        REQUIRE(chart.SAVE(std::string(name) + ".svg"));
    }
    CHECK(folder.READ("a.png") == folder.READ("b.png"));
    CHECK(folder.READ("a.svg") == folder.READ("b.svg"));
}
