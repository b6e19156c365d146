#include "image2d/canvas/font.hpp"
#include "image2d/chart/vector_drawing.hpp"
#include "support/scratch_folder.hpp"

#include <cmath>
#include <limits>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
constexpr HYPERNAT WHITE{255, 255, 255, 255}, BLACK{0, 0, 0, 255};

// The red plane of the rendering as rows of text: '#' is the pen 0, '.' the background 255, a
// digit the tenths of darkness.
std::string Picture(T2DVECTOR &drawing) {
    std::string text;
    for (NAT y = 1; y <= drawing.HEIGHT(); ++y, text += "\n")
        for (NAT x = 1; x <= drawing.WIDTH(); ++x) {
            const NAT value = drawing.GET(x, y).x;
            text += value == 0     ? '#'
                    : value == 255 ? '.'
                                   : static_cast<char>('0' + (255 - value) * 10 / 255);
        }
    return text;
}

REAL Darkness(T2DVECTOR &drawing) { // in whole pixels of black
    REAL sum = 0;
    for (NAT y = 1; y <= drawing.HEIGHT(); ++y)
        for (NAT x = 1; x <= drawing.WIDTH(); ++x)
            sum += static_cast<REAL>(255 - drawing.GET(x, y).x) / 255;
    return sum;
}
} // namespace

TEST_CASE("an empty drawing is its background") {
    T2DVECTOR drawing(3, 2);
    CHECK(drawing.GET(1, 1) == WHITE);
    CHECK(drawing.GET(3, 2) == WHITE);
    CHECK(drawing.GET(4, 1) == HZERONAT);
    drawing.BACKGROUND = {1, 2, 3, 4};
    drawing.CLEAR();
    CHECK(drawing.GET(2, 2) == HYPERNAT{1, 2, 3, 4});
}

TEST_CASE("a line along the middle of pixels covers them and nothing else") {
    T2DVECTOR drawing(5, 4);
    drawing.LINE(1, 1.5, 4, 1.5);
    drawing.LINE(4.5, 1, 4.5, 4);
    CHECK(Picture(drawing) == ".....\n"
                              ".####\n"
                              "....#\n"
                              "....#\n");
}

TEST_CASE("a pixel is as dark as the share of it that is covered") {
    T2DVECTOR drawing(4, 2);
    drawing.FULLRECTANGLE(1, 0, 2.5, 1);
    CHECK(drawing.GET(2, 1).x == 0);
    CHECK(drawing.GET(3, 1).x == 127); // 255 - 128 of 255
    CHECK(drawing.GET(4, 1).x == 255);
    const COMPLEX triangle[] = {{0, 1}, {2, 1}, {0, 2}};
    drawing.POLYGON(triangle); // 3/4 of a pixel, then 1/4
    CHECK(drawing.GET(1, 2).x == 255 - 191);
    CHECK(drawing.GET(2, 2).x == 255 - 64);
}

TEST_CASE("a slanted line has the darkness of its area at every angle") {
    for (NAT degrees = 3; degrees < 180; degrees += 7) {
        T2DVECTOR drawing(60, 60);
        drawing.LINEWIDTH = 2;
        const REAL angle = GETRAD(static_cast<REAL>(degrees));
        const REAL x = 20 * std::cos(angle), y = 20 * std::sin(angle);
        drawing.LINE(30 - x, 30 - y, 30 + x, 30 + y);
        // 40 long and 2 wide; slanted ends are round and add a circle of radius 1.
        CHECK(Darkness(drawing) == doctest::Approx(80 + PI).epsilon(0.03));
    }
}

TEST_CASE("filled circles, ellipses and sectors cover their area") {
    T2DVECTOR circle(60, 60), ellipse(60, 60), sector(60, 60), rounded(60, 60);
    circle.FULLCIRCLE(30, 30, 20);
    CHECK(Darkness(circle) == doctest::Approx(PI * 400).epsilon(0.005));
    ellipse.FULLELLIPSE(30, 30, 25, 10, 0.7);
    CHECK(Darkness(ellipse) == doctest::Approx(PI * 250).epsilon(0.005));
    sector.SECTOR(30, 30, 20, 0, PI / 2);
    CHECK(Darkness(sector) == doctest::Approx(PI * 100).epsilon(0.005));
    CHECK(sector.GET(36, 24).x == 0);   // upper right
    CHECK(sector.GET(36, 36).x == 255); // lower right
    rounded.FULLRECTANGLE(10, 10, 50, 40, 8);
    CHECK(Darkness(rounded) == doctest::Approx(1200 - (4 - PI) * 64).epsilon(0.005));
}

TEST_CASE("outlines cover their length times the line width") {
    T2DVECTOR circle(60, 60), curve(60, 60), arc(60, 60);
    circle.CIRCLE(30, 30, 20);
    CHECK(Darkness(circle) == doctest::Approx(2 * PI * 20).epsilon(0.03));
    arc.ARC(30, 30, 20, 0, PI);
    CHECK(Darkness(arc) == doctest::Approx(PI * 20).epsilon(0.04));
    CHECK(arc.GET(31, 11).x < 128);  // the upper half
    CHECK(arc.GET(31, 50).x == 255); // not the lower one
    const COMPLEX straight[] = {{10, 20}, {25, 30}, {40, 40}};
    curve.CURVE(straight); // the control point on the chord: a straight line
    CHECK(Darkness(curve) == doctest::Approx(std::hypot(30, 20) + PI / 4).epsilon(0.03));
}

TEST_CASE("a blended line is a quarter of the pen over what is there") {
    T2DVECTOR drawing(3, 2);
    drawing.VVLINE(1.5, 0, 2);
    CHECK(Picture(drawing) == ".2.\n.2.\n");
    CHECK(drawing.GET(2, 1).x == 255 - 64);
}

TEST_CASE("edges that meet cover no row of a side twice until the scan is reset") {
    T2DVECTOR drawing(6, 4);
    drawing.VVLINE(1, 0, 1, 3, 3);
    drawing.VVLINE(1, 2, 1, 4, 3); // rows 2 and 3 again, row 4 new
    CHECK(Picture(drawing) == ".22...\n.22...\n.22...\n.22...\n");
    drawing.VVLINE(5, 0, 5, 4, 3); // the other side of the column
    CHECK(Picture(drawing) == ".2222.\n.2222.\n.2222.\n.2222.\n");
    drawing.SCAN_RESET();
    drawing.VVLINE(1, 0, 1, 1, 3);
    CHECK(drawing.GET(2, 1).x < 255 - 64);
    CHECK(drawing.GET(2, 2).x == 255 - 64);
}

TEST_CASE("an edge that crosses its column fills both sides") {
    T2DVECTOR drawing(4, 4);
    drawing.VLINE(0, 0, 4, 4, 2);                                  // two triangles of 2 x 2 / 2
    CHECK(Darkness(drawing) == doctest::Approx(4).epsilon(0.005)); // alpha in whole steps
    CHECK(drawing.GET(2, 1).x == 0);
    CHECK(drawing.GET(3, 4).x == 0);
    CHECK(drawing.GET(3, 1).x == 255);
}

TEST_CASE("the world lies on the window from its left upper to its right lower corner") {
    T2DVECTOR drawing(100, 50);
    drawing.WINDOW(10, 10, 90, 40);
    CHECK(drawing.TOPICTURE({10, 10}) == COMPLEX{10, 10}); // the picture's own coordinates
    drawing.SCREEN({0, 1}, {8, -1});
    CHECK(drawing.TOPICTURE({0, 1}) == COMPLEX{10, 10});
    CHECK(drawing.TOPICTURE({4, 0}) == COMPLEX{50, 25});
    CHECK(drawing.TOPICTURE({8, -1}) == COMPLEX{90, 40});
    drawing.SCREEN({3, 0}, {3, 1});
    CHECK(drawing.TOPICTURE({99, 0}).x == 50); // equal ends: the middle
}

TEST_CASE("nothing is drawn outside the window") {
    T2DVECTOR drawing(6, 6);
    drawing.WINDOW(2, 2, 4, 4);
    drawing.FULLCIRCLE(3, 3, 10);
    drawing.LINE(-5, 3, 50, 3);
    drawing.WRITE(-4, -4, "WWWW", 2);
    CHECK(Picture(drawing) == "......\n......\n..##..\n..##..\n......\n......\n");
    drawing.WINDOW(-5, 5, 99, 99); // limited to the picture
    CHECK(drawing.GETWINDOW() == PICTURE_AREA{0, 5, 6, 6});
}

TEST_CASE("places that are no number draw nothing and huge ones are limited") {
    constexpr REAL NAN_ = std::numeric_limits<REAL>::quiet_NaN();
    constexpr REAL HUGE_ = std::numeric_limits<REAL>::max();
    T2DVECTOR drawing(8, 8);
    drawing.LINE(NAN_, 0, 1, 1);
    drawing.CIRCLE(1, NAN_, 3);
    drawing.CIRCLE(1, 1, NAN_);
    drawing.CIRCLE(1, 1, REALMAX);
    drawing.FULLELLIPSE(1, 1, NAN_, 2);
    drawing.RECTANGLE(0, NAN_, 1, 1);
    drawing.VLINE(0, 0, NAN_, 3, 1);
    drawing.WRITE(NAN_, 1, "x");
    drawing.SECTOR(1, 1, 3, NAN_, 1);
    CHECK(drawing.SHAPES().empty());
    drawing.LINE(-HUGE_, 4.5, HUGE_, 4.5);
    CHECK(Picture(drawing).substr(4 * 9, 8) == "########");
    drawing.SCREEN({-HUGE_, 0}, {HUGE_, 8});
    CHECK(drawing.TOPICTURE({0, 0}).x == 4);
}

TEST_CASE("letters of one em are those of the canvases, and turned ones too") {
    T2DVECTOR drawing(60, 60);
    drawing.SETFONT(50); // soft borders
    drawing.WRITE(3, 2, "Äg%");
    drawing.WRITE_LEFT(40, 50, "Äg%");
    TGRAY canvas(60, 60);
    canvas.FILL(255);
    canvas.VALUE = 0;
    canvas.SETFONT(50);
    WRITE(canvas, 4, 3, "Äg%");
    WRITE(canvas, 41, 50, "Äg%", WRITE_DIRECTION::LEFT);
    NAT different = 0;
    for (NAT y = 1; y <= 60; ++y)
        for (NAT x = 1; x <= 60; ++x)
            different += std::abs(drawing.GET(x, y).x - canvas.GET(x, y)) > 1;
    CHECK(different == 0);
    CHECK(drawing.GETFONT() == 50);
    drawing.SETFONT(53);
    CHECK(drawing.GETFONT() == 50);
}

TEST_CASE("letters of two em are twice as large") {
    T2DVECTOR small(40, 20), large(80, 40);
    small.WRITE(0, 0, "Hag");
    large.WRITE(0, 0, "Hag", 2);
    CHECK(Darkness(large) == doctest::Approx(4 * Darkness(small)).epsilon(0.1));
    CHECK(large.GET(4, 20).x == 0);
}

TEST_CASE("the same drawing gives the same pixels each time") {
    T2DVECTOR drawing(64, 64);
    drawing.VALUE = {200, 100, 50, 128};
    drawing.FULLCIRCLE(30, 30, 20);
    drawing.LINE(1, 2, 60, 61);
    drawing.WRITE(5, 5, "text", 1.25);
    TRGBA a, b;
    REQUIRE(drawing.RENDER(a));
    REQUIRE(drawing.RENDER(b));
    for (NAT y = 1; y <= 64; ++y)
        for (NAT x = 1; x <= 64; ++x)
            CHECK(a.GET(x, y) == b.GET(x, y));
}

TEST_CASE("a picture without size draws and saves nothing") {
    SCRATCH_FOLDER folder;
    T2DVECTOR drawing(0, 5);
    drawing.LINE(0, 0, 5, 5);
    TRGBA raster;
    CHECK_FALSE(drawing.RENDER(raster));
    CHECK_FALSE(drawing.SAVEPNG("a.png"));
    CHECK(folder.FILES() == 0);
}
