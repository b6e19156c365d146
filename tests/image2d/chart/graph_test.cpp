#include "foundation/base/number_text.hpp"
#include "image2d/chart/graph.hpp"
#include "image2d/chart/scale_steps.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// The labels of a scale for a range, parted by blanks.
std::string Labels(REAL min, REAL max, NAT count = 5) {
    const SCALE_STEPS steps = GETSTEPS(GETSOUNDRANGE(min, max), count);
    std::string text;
    for (NAT i = steps.first; i <= steps.last; ++i)
        text += (text.empty() ? "" : " ") + GETUTF8(steps.LABEL(i));
    return text;
}

const std::vector<SHAPE> &Drawn(TGRAPH &graph) {
    (void)graph.GETSVG();
    return graph.SHAPES();
}
std::vector<SHAPE> Kind(TGRAPH &graph, SHAPE_KIND kind) {
    std::vector<SHAPE> found;
    for (const SHAPE &shape : Drawn(graph))
        if (shape.kind == kind) found.push_back(shape);
    return found;
}
bool HasText(TGRAPH &graph, const char *text) {
    const std::vector<SHAPE> texts = Kind(graph, SHAPE_KIND::TEXT);
    return std::any_of(texts.begin(), texts.end(),
                       [&](const SHAPE &shape) { return shape.text == text; });
}

// Every text lies in the picture and no two of them meet.
void CheckTexts(TGRAPH &graph) {
    const std::vector<SHAPE> texts = Kind(graph, SHAPE_KIND::TEXT);
    const PICTURE_AREA picture{0, 0, static_cast<REAL>(graph.WIDTH()),
                               static_cast<REAL>(graph.HEIGHT())};
    for (std::size_t i = 0; i < texts.size(); ++i) {
        CAPTURE(GETUTF8(texts[i].text));
        CHECK(picture.HOLDS(GETBOUNDS(texts[i])));
        for (std::size_t k = 0; k < i; ++k) {
            CAPTURE(GETUTF8(texts[k].text));
            PICTURE_AREA other = GETBOUNDS(texts[k]); // cells may touch: letters have room in them
            other.top += 2, other.bottom -= 2;
            CHECK_FALSE(GETBOUNDS(texts[i]).MEETS(other));
        }
    }
}
PICTURE_AREA Frame(TGRAPH &graph) {
    const SHAPE border = Kind(graph, SHAPE_KIND::RECTANGLE).at(0);
    return {border.points[0].x, border.points[0].y, border.points[1].x, border.points[1].y};
}
} // namespace

TEST_CASE("scales have steps of 1, 2 or 5 and numbers with as many decimals as they need") {
    CHECK(Labels(0, 10) == "0 2 4 6 8 10");
    CHECK(Labels(0, 255) == "0 50 100 150 200 250");
    CHECK(Labels(0, 1) == "0.0 0.2 0.4 0.6 0.8 1.0");
    CHECK(Labels(-1, 1) == "-1.0 -0.5 0.0 0.5 1.0");
    CHECK(Labels(0.13, 0.17) == "0.13 0.14 0.15 0.16 0.17");
    CHECK(Labels(-30, -10) == "-30 -25 -20 -15 -10");
    CHECK(Labels(10, 0) == "0 2 4 6 8 10"); // a falling axis has the same numbers
    CHECK(Labels(0, 10, 2) == "0 5 10");
    CHECK(Labels(0, 65535) == "0 10000 20000 30000 40000 50000 60000");
}

TEST_CASE("large and tiny numbers share a power of ten, in thousands") {
    const SCALE_STEPS large = GETSTEPS({0, 5e9}, 5), tiny = GETSTEPS({0, 4e-7}, 5);
    CHECK(large.power == 9);
    CHECK(Labels(0, 5e9) == "0 1 2 3 4 5");
    CHECK(Labels(0, 25e6) == "0 5 10 15 20 25");
    CHECK(tiny.power == -9);
    CHECK(Labels(0, 4e-7) == "0 100 200 300 400");
    CHECK(GETSTEPS({0, 1e6}, 5).power == 6);
    CHECK(GETSTEPS({0, 9e5}, 5).power == 0);
    TGRAPH graph(640, 480);
    graph.LEFT("counts");
    graph.LEFT(0, 5e9);
    graph.BOTTOM(0, 4e-7);
    graph.CREATE();
    CHECK(HasText(graph, "counts (×10^9)"));
    CHECK(HasText(graph, "×10^-9"));
}

TEST_CASE("numbers of a scale follow the comma of the number format") {
    FORMAT.DECIMAL = false;
    const std::string labels = Labels(0, 1);
    FORMAT.DECIMAL = true;
    CHECK(labels == "0,0 0,2 0,4 0,6 0,8 1,0");
}

TEST_CASE("a range that is no range gets ends that are apart and finite") {
    constexpr REAL HUGE_ = std::numeric_limits<REAL>::max();
    constexpr REAL NAN_ = std::numeric_limits<REAL>::quiet_NaN();
    CHECK(GETSOUNDRANGE(0, 0) == RANGE{-0.5, 0.5});
    CHECK(GETSOUNDRANGE(100, 100) == RANGE{90, 110});
    CHECK(GETSOUNDRANGE(NAN_, 1) == RANGE{0, 1});
    CHECK(GETSOUNDRANGE(2, 1) == RANGE{2, 1});
    for (const RANGE &range :
         {RANGE{-HUGE_, HUGE_}, RANGE{-REALMAX, REALMAX}, RANGE{1e15, 1e15 + 1},
          RANGE{1e-310, 2e-310}, RANGE{NAN_, NAN_}, RANGE{5e-324, 5e-324}}) {
        const RANGE sound = GETSOUNDRANGE(range.min, range.max);
        CAPTURE(range.min);
        CHECK(std::isfinite(sound.min));
        CHECK(sound.max > sound.min);
        const SCALE_STEPS steps = GETSTEPS(sound, 5);
        CHECK(steps.last - steps.first >= 1);
        CHECK(steps.last - steps.first <= 12);
        CHECK(steps.LONGEST_LABEL() <= 16);
    }
}

TEST_CASE("texts of a chart lie in the picture and on no other text, for any range and size") {
    const RANGE ranges[] = {{0, 1},         {-1e9, 1e9},     {0, 255},       {-0.00012, 0.0007},
                            {1e5, 1.001e5}, {-999999, -0.1}, {1e300, 2e300}, {7, 7}};
    const COMPLEXNAT sizes[] = {{640, 480},  {320, 240}, {200, 150},
                                {1280, 960}, {900, 120}, {100, 700}};
    for (const RANGE &range : ranges)
        for (const COMPLEXNAT &size : sizes) {
            CAPTURE(size.x);
            CAPTURE(range.min);
            TGRAPH graph(size.x, size.y);
            graph.UP("A title of some length");
            graph.LEFT("left caption");
            graph.RIGHT("right caption");
            graph.BOTTOM("bottom caption");
            graph.LEFT(range.min, range.max);
            graph.BOTTOM(range.min, range.max);
            graph.RIGHT(range.min, range.max);
            graph.CREATE();
            CheckTexts(graph);
        }
}

TEST_CASE("captions too long for the picture are cut with an ellipsis") {
    TGRAPH graph(200, 150);
    graph.BOTTOM("a caption that is much longer than two hundred pixels");
    graph.CREATE();
    CheckTexts(graph);
    CHECK(HasText(graph, "a caption that is much…"));
}

TEST_CASE("pictures too small for text show the frame alone") {
    for (const NAT side : {1, 2, 5, 20, 40, 60}) {
        TGRAPH graph(side, side);
        graph.UP("title");
        graph.LEFT(0, 1e5);
        graph.CREATE();
        graph.CURVE(0, 0);
        graph.CURVE(1, 1e5);
        graph.POI(0.5, 5e4, "label");
        TRGBA raster;
        CHECK(graph.RENDER(raster));
        CHECK(raster.WIDTH() == side);
        CheckTexts(graph);
    }
    TGRAPH small(40, 40);
    small.CREATE();
    CHECK(Kind(small, SHAPE_KIND::RECTANGLE).size() == 1);
}

TEST_CASE("a curve runs through its points in the ranges of its axes") {
    TGRAPH graph(640, 480);
    graph.LEFT(0, 10);
    graph.BOTTOM(0, 100);
    graph.RIGHT(0, 1000);
    graph.CREATE();
    const PICTURE_AREA frame = Frame(graph);
    graph.SELECT();
    graph.CURVE(0, 0);
    graph.CURVE(50, 10);
    graph.SELECT(false, true);
    graph.CURVE(100, 500);
    graph.CURVE(50, 1000);
    const std::vector<SHAPE> lines = Kind(graph, SHAPE_KIND::POLYLINE);
    REQUIRE(lines.size() == 2);
    const REAL middle = (frame.left + frame.right) / 2;
    CHECK(lines[0].points[0] == COMPLEX{frame.left, frame.bottom});
    CHECK(lines[0].points[1].x == doctest::Approx(middle));
    CHECK(lines[0].points[1].y == doctest::Approx(frame.top));
    CHECK(lines[1].points[0].x == doctest::Approx(frame.right));
    CHECK(lines[1].points[0].y == doctest::Approx((frame.top + frame.bottom) / 2));
    CHECK(lines[1].points[1].y == doctest::Approx(frame.top));
    CHECK_FALSE(lines[0].stroke == lines[1].stroke); // a colour of its own
}

TEST_CASE("shapes drawn after CREATE lie in the world of the left and the bottom axis") {
    TGRAPH graph(640, 480);
    graph.LEFT(0, 10);
    graph.BOTTOM(0, 100);
    graph.CREATE();
    graph.FULLCIRCLE(50, 5, 3);
    const PICTURE_AREA frame = Frame(graph);
    const SHAPE circle = Kind(graph, SHAPE_KIND::CIRCLE).at(0);
    CHECK(circle.points[0].x == doctest::Approx((frame.left + frame.right) / 2));
    CHECK(circle.points[0].y == doctest::Approx((frame.top + frame.bottom) / 2));
    CHECK(graph.SHAPES().back().kind == SHAPE_KIND::CIRCLE); // above the chart, once
    CHECK(Kind(graph, SHAPE_KIND::CIRCLE).size() == 1);
}

TEST_CASE("a step keeps its value up to the next place") {
    TGRAPH graph(640, 480);
    graph.LEFT(0, 10);
    graph.BOTTOM(0, 10);
    graph.CREATE();
    graph.HISTOCURVE(0, 5);
    graph.HISTOCURVE(5, 10);
    const std::vector<COMPLEX> points = Kind(graph, SHAPE_KIND::POLYLINE).at(0).points;
    REQUIRE(points.size() == 3);
    CHECK(points[1].x == doctest::Approx(points[2].x));
    CHECK(points[1].y == doctest::Approx(points[0].y));
    CHECK(points[2].y < points[1].y);
}

TEST_CASE("marks stand on the axis, plain or blended") {
    TGRAPH graph(640, 480);
    graph.LEFT(-10, 10);
    graph.BOTTOM(0, 10);
    graph.CREATE();
    graph.VLINE(5, 10);
    graph.VVLINE(5, -10);
    const PICTURE_AREA frame = Frame(graph);
    const REAL zero = (frame.top + frame.bottom) / 2;
    NAT found = 0;
    for (const SHAPE &line : Kind(graph, SHAPE_KIND::LINE)) {
        if (line.points[0].y != doctest::Approx(zero)) continue;
        if (line.points[0].x != doctest::Approx((frame.left + frame.right) / 2)) continue;
        ++found;
        const bool isUp = line.points[1].y < zero;
        CHECK(line.points[1].y == doctest::Approx(isUp ? frame.top : frame.bottom));
        CHECK(line.stroke.w == (isUp ? 255 : 64));
    }
    CHECK(found == 2);
}

TEST_CASE("a curve is cut at the frame and broken where it is no number") {
    TGRAPH graph(640, 480);
    graph.LEFT(0, 1);
    graph.BOTTOM(0, 10);
    graph.CREATE();
    for (const REAL y : {0.5, 5.0, 0.5, std::numeric_limits<REAL>::quiet_NaN(), 0.2, -REALMAX, 0.3})
        graph.CURVE(y, y);
    const PICTURE_AREA frame = Frame(graph);
    const PICTURE_AREA around{frame.left - 1, frame.top - 1, frame.right + 1, frame.bottom + 1};
    const std::vector<SHAPE> lines = Kind(graph, SHAPE_KIND::POLYLINE);
    CHECK(lines.size() == 4); // out and back twice
    for (const SHAPE &line : lines)
        CHECK(around.HOLDS(GETBOUNDS(line)));
}

TEST_CASE("a point that no line leads to is a dot") {
    TGRAPH graph(640, 480);
    graph.LEFT(0, 1);
    graph.BOTTOM(0, 1);
    graph.CREATE();
    graph.CURVE(0.5, 0.5);
    CHECK(Kind(graph, SHAPE_KIND::CIRCLE).size() == 1);
    CHECK(Kind(graph, SHAPE_KIND::POLYLINE).empty());
}

TEST_CASE("a curve of a million points is drawn with some thousand and keeps its extremes") {
    TGRAPH graph(640, 480);
    graph.LEFT(-1, 1);
    graph.BOTTOM(0, 1e6);
    graph.CREATE();
    for (NAT i = 0; i < 1'000'000; ++i)
        graph.CURVE(static_cast<REAL>(i), i == 123456 ? 1 : i == 765432 ? -1 : i % 2 ? 0.1 : -0.1);
    const PICTURE_AREA frame = Frame(graph);
    std::size_t count = 0;
    REAL top = frame.bottom, bottom = frame.top;
    for (const SHAPE &line : Kind(graph, SHAPE_KIND::POLYLINE)) {
        count += line.points.size();
        for (const COMPLEX &point : line.points)
            top = std::min(top, point.y), bottom = std::max(bottom, point.y);
    }
    CHECK(count < 4 * 640);
    CHECK(top == doctest::Approx(frame.top));
    CHECK(bottom == doctest::Approx(frame.bottom));
}

TEST_CASE("labels of points stand inside the frame, on no other label and on no mark") {
    TGRAPH graph(640, 480);
    graph.LEFT(0, 1);
    graph.BOTTOM(0, 1);
    graph.CREATE();
    graph.POI(0, 0, "left lower corner");
    graph.POI(1, 1, "right upper corner");
    graph.POI(0, 1, "left upper corner");
    graph.POI(1, 0, "right lower corner");
    for (NAT i = 0; i < 12; ++i)
        graph.POI(0.5 + 0.01 * static_cast<REAL>(i), 0.5, "crowd " + GETSTRING(i));
    graph.POI(0.5, 2, "outside");
    CheckTexts(graph);
    CHECK(HasText(graph, "left lower corner"));
    CHECK(HasText(graph, "right upper corner"));
    CHECK(HasText(graph, "crowd 0")); // those given first find their places first
    CHECK_FALSE(HasText(graph, "outside"));
    const PICTURE_AREA frame = Frame(graph);
    for (const SHAPE &text : Kind(graph, SHAPE_KIND::TEXT)) {
        const std::string words = GETUTF8(text.text);
        if (words.find("corner") == std::string::npos && words.find("crowd") == std::string::npos)
            continue;
        CHECK(frame.HOLDS(GETBOUNDS(text)));
        for (const SHAPE &mark : Kind(graph, SHAPE_KIND::CIRCLE))
            CHECK_FALSE(GETBOUNDS(text).MEETS({mark.points[0].x - 3, mark.points[0].y - 3,
                                               mark.points[0].x + 3, mark.points[0].y + 3}));
    }
}

TEST_CASE("a label keeps off a curve that leaves it room") {
    TGRAPH graph(640, 480);
    graph.LEFT(-1, 1);
    graph.BOTTOM(0, 10);
    graph.CREATE();
    for (NAT i = 0; i <= 1000; ++i) {
        const REAL x = static_cast<REAL>(i) / 100;
        graph.CURVE(x, std::sin(x * 2));
    }
    graph.POI(PI / 4, 1, "first maximum");
    graph.POI(PI / 2, 0, "zero");
    graph.POI(3 * PI / 4, -1, "first minimum");
    const std::vector<SHAPE> lines = Kind(graph, SHAPE_KIND::POLYLINE);
    for (const char *words : {"first maximum", "zero", "first minimum"})
        for (const SHAPE &text : Kind(graph, SHAPE_KIND::TEXT))
            if (text.text == words)
                for (const SHAPE &line : lines)
                    CHECK(CLIP_LINE(line.points, GETBOUNDS(text)).empty());
    CHECK(HasText(graph, "first maximum"));
    CHECK(HasText(graph, "zero"));
}

TEST_CASE("a legend stands where no curve runs, else above the frame") {
    for (const bool isDense : {false, true}) {
        TGRAPH graph(640, 480);
        graph.UP("title");
        graph.LEFT(-1, 1);
        graph.BOTTOM(0, 300);
        graph.CREATE();
        for (NAT k = 1; k <= 5; ++k) {
            graph.SELECT();
            graph.LEGEND("series " + GETSTRING(k));
            for (NAT i = 0; i <= 300; ++i)
                graph.CURVE(static_cast<REAL>(i), isDense ? std::sin(static_cast<REAL>(i * k * i))
                                                          : 0.1 * static_cast<REAL>(k));
        }
        CheckTexts(graph);
        const PICTURE_AREA frame = Frame(graph);
        for (NAT k = 1; k <= 5; ++k)
            for (const SHAPE &text : Kind(graph, SHAPE_KIND::TEXT)) {
                if (!(text.text == "series " + GETSTRING(k))) continue;
                CHECK(frame.HOLDS(GETBOUNDS(text)) != isDense);
                for (const SHAPE &line : Kind(graph, SHAPE_KIND::POLYLINE))
                    CHECK(CLIP_LINE(line.points, GETBOUNDS(text)).empty());
            }
        CHECK(HasText(graph, "series 5"));
        CHECK(graph.GETSVG() == graph.GETSVG()); // laid out anew each time, with the same result
    }
}

TEST_CASE("a chart without ranges takes those of its curves") {
    TGRAPH graph(640, 480);
    graph.CREATE();
    graph.SELECT(true, true);
    graph.CURVE(-5, 100);
    graph.CURVE(5, 300);
    CHECK(HasText(graph, "300"));
    CHECK(HasText(graph, "-4"));
    CheckTexts(graph);
}

TEST_CASE("an axis in falling order is turned round") {
    TGRAPH graph(640, 480);
    graph.BOTTOM(10, 0);
    graph.LEFT(0, 1);
    graph.CREATE();
    graph.CURVE(10, 0);
    graph.CURVE(0, 0.5);
    const std::vector<COMPLEX> points = Kind(graph, SHAPE_KIND::POLYLINE).at(0).points;
    CHECK(points[0].x == doctest::Approx(Frame(graph).left));
    CHECK(points[1].x == doctest::Approx(Frame(graph).right));
    CheckTexts(graph);
}

TEST_CASE("the four scales can be written one by one") {
    TGRAPH graph(640, 480);
    graph.LEFT(0, 1);
    graph.RIGHT(5, 9);
    graph.UP(70, 75);
    graph.BOTTOM(20, 40);
    graph._LEFT_WRITE();
    CHECK(HasText(graph, "0.2"));
    CHECK_FALSE(HasText(graph, "7"));
    graph._RIGHT_WRITE();
    CHECK(HasText(graph, "7"));
    graph._UP_WRITE();
    CHECK(HasText(graph, "72"));
    graph._BOTTOM_WRITE();
    CHECK(HasText(graph, "30"));
}
