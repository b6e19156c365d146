#include "image2d/image/fills.hpp"
#include "image2d/image/filters.hpp"
#include "image2d/image/group_image.hpp"
#include "image2d/image/spheres.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <array>
#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
void Set(TIMAGE &image, const std::vector<NAT> &values) {
    for (std::size_t i = 0; i < values.size(); ++i)
        image.PUT(static_cast<NAT>(i) % image.SIZEX() + 1, static_cast<NAT>(i) / image.SIZEX() + 1,
                  values[i]);
}
std::vector<NAT> Get(const TIMAGE &image) {
    std::vector<NAT> values;
    for (NAT y = 1; y <= image.SIZEY(); ++y)
        for (NAT x = 1; x <= image.SIZEX(); ++x)
            values.push_back(image.GET(x, y));
    return values;
}
} // namespace

TEST_CASE("a filter runs as often as told, on each plane and alpha of RGBA, never on ZRGB") {
    TIMAGE image(IMAGE_GRAY, 3, 1);
    Set(image, {0, 80, 0});
    HARDSMOOTH(image, 2); // 40 26 40, then 33 35 33
    CHECK(Get(image) == std::vector<NAT>{33, 35, 33});
    HARDSMOOTH(image, 0);
    HARDSMOOTH(image, -5);
    CHECK(Get(image) == std::vector<NAT>{33, 35, 33});
    TIMAGE rgba(IMAGE_RGBA, 2, 1);
    rgba.PUTRGBA(1, 1, {10, 20, 30, 40});
    HARDSMOOTH(rgba, 1);
    CHECK(rgba.GETRGBA(2, 1) == HYPERNAT{5, 10, 15, 20});
    TIMAGE zrgb(IMAGE_ZRGB, 2, 1);
    zrgb.PUTRGBA(1, 1, {10, 20, 30, 40});
    HARDSMOOTH(zrgb, 1);
    CHECK(zrgb.GETRGBA(1, 1) == HYPERNAT{10, 20, 30, 40});
}

TEST_CASE("cleaning adjusts, smooths once and sharpens twice") {
    TIMAGE image(IMAGE_GRAY, 2, 1);
    Set(image, {10, 20});
    CLEAN_NOISE(image);
    // 0 255; means 127: 63 191; sharpened against 127: 0 255, and again.
    CHECK(Get(image) == std::vector<NAT>{0, 255});
    Set(image, {10, 10});
    CLEAN_NOISE(image);
    CHECK(Get(image) == std::vector<NAT>{10, 10});
}

TEST_CASE("changes are counted by plane") {
    TIMAGE image(IMAGE_RGB, 3, 3);
    image.PUTRGB(2, 2, {255, 0, 255});
    const PLANE_NUMBERS changes = SHRINK(image, {{255, 255}, 4, 0});
    CHECK(changes.planes == 3);
    CHECK(changes.values == std::array<NAT, 4>{1, 0, 1, 0});
    TIMAGE empty;
    CHECK(REMOVE_OUTLIERS(empty, 1).planes == 0);
}

TEST_CASE("turns move all planes of every kind, and four quarters are none") {
    TIMAGE zrgb(IMAGE_ZRGB, 3, 2);
    zrgb.PUTZRGB(1, 1, 77, {1, 2, 3, 4});
    ROTATE90(zrgb);
    CHECK(zrgb.SIZE() == COMPLEXNAT{2, 3});
    CHECK(zrgb.GETRGBA(2, 1) == HYPERNAT{1, 2, 3, 4}); // clockwise: to the right
    CHECK(zrgb.GETZ(2, 1) == 77);
    ROTATE270(zrgb);
    CHECK(zrgb.GETZ(1, 1) == 77);
    ROTATE180(zrgb);
    CHECK(zrgb.GETZ(3, 2) == 77);
    FLIPX(zrgb);
    CHECK(zrgb.GETZ(1, 2) == 77);
    FLIPY(zrgb);
    CHECK(zrgb.GETZ(1, 1) == 77);
}

TEST_CASE("windows, angles and distances leave alpha alone") {
    TIMAGE image(IMAGE_RGBA, 3, 3);
    image._SETRGBAVALUE({200, 100, 50, 9});
    FILL(image);
    WINDOW_COS(image);
    CHECK(image.GETRGBA(1, 1) == HYPERNAT{0, 0, 0, 9});
    CHECK(image.GETRGBA(2, 2) == HYPERNAT{200, 100, 50, 9});
    DISTANCE(image, std::array{COMPLEX{1, 1}});
    CHECK(image.GETRGBA(3, 1) == HYPERNAT{2, 2, 2, 9});
    RADIAL(image, {2, 2}, 2 * PI);
    CHECK(image.GETRGBA(1, 2) == HYPERNAT{128, 128, 128, 9});
}

TEST_CASE("the pen fills all pixels, or a rectangle with its corners in any order") {
    TIMAGE image(IMAGE_FULLGRAY, 3, 2), colour(IMAGE_RGBA, 1, 1);
    image._SETVALUE(1000);
    FILL_CUBE(image, {3, 2}, {2, 1});
    CHECK(Get(image) == std::vector<NAT>{0, 1000, 1000, 0, 1000, 1000});
    FILL_CUBE(image, {-9, 2}, {99, 2});
    CHECK(Get(image) == std::vector<NAT>{0, 1000, 1000, 1000, 1000, 1000});
    FILL(image);
    CHECK(GETLIMITS(*image._FULLGRAY()).min == 1000);
    colour._SETRGBAVALUE({1, 2, 3, 4});
    FILL(colour);
    CHECK(colour.GETRGBA(1, 1) == HYPERNAT{1, 2, 3, 4});
}

TEST_CASE("random values use the whole range, and the seed repeats them") {
    TIMAGE image(IMAGE_FULLGRAY, 100, 100), again(IMAGE_FULLGRAY, 100, 100);
    RESTART_RANDOM(5);
    FILL_RANDOM(image);
    RESTART_RANDOM(5);
    FILL_RANDOM(again);
    CHECK(Get(image) == Get(again));
    CHECK(GETLIMITS(*image._FULLGRAY()).max > 65000); // 10000 draws
    CHECK(GETLIMITS(*image._FULLGRAY()).min < 500);
    FILL_RANDOM(again);
    CHECK(Get(image) != Get(again));
    TIMAGE rgba(IMAGE_RGBA, 20, 20);
    FILL_RANDOM(rgba);
    CHECK(GETLIMITS(rgba._RGBA()->alpha).min == 255);
    CHECK(GETLIMITS(rgba._RGB()->BLUE()).max > 200);
}

TEST_CASE("holes of a wanted size get the pen") {
    TIMAGE image(IMAGE_GRAY, 6, 3);
    Set(image, {9, 9, 9, 9, 9, 0, //
                9, 0, 9, 0, 0, 9, //
                9, 9, 9, 9, 9, 9});
    image._SETVALUE(50);
    CHECK(FILL_HOLE(image, {2, 5}) == 1);
    CHECK(Get(image) == std::vector<NAT>{9, 9, 9, 9, 9, 0,   //
                                         9, 0, 9, 50, 50, 9, //
                                         9, 9, 9, 9, 9, 9});
    TIMAGE colour(IMAGE_RGB, 3, 3);
    colour._SETRGBVALUE({1, 2, 3});
    FILL(colour);
    colour.PUTRGB(2, 2, {0, 0, 0});
    CHECK(FILL_HOLE(colour, {1, 1}) == 1);
    CHECK(colour.GETRGB(2, 2) == VECTORNAT{1, 2, 3});
}

TEST_CASE("zero pixels are interpolated everywhere, gaps only where they are enclosed") {
    TIMAGE image(IMAGE_GRAY, 5, 3);
    const std::vector<NAT> holed = {10, 20, 30, 40, 0,  //
                                    10, 0,  0,  40, 50, //
                                    10, 20, 30, 40, 50};
    Set(image, holed);
    CHECK(FILL_GAP(image, {1, 1, 5, 3}) == 2);
    CHECK(Get(image) ==
          std::vector<NAT>{10, 20, 30, 40, 0, 10, 20, 30, 40, 50, 10, 20, 30, 40, 50});
    CHECK(FILL_ZERO(image) == 1);
    CHECK(image.GET(5, 1) == 45); // of 40 and 50
    Set(image, holed);
    CHECK(FILL_GAP(image, {3, 1, 5, 3}) == 0); // the hole reaches out of the area
    CHECK(image.GET(3, 2) == 0);
}

TEST_CASE("a colour is missing where all its components are zero, and each plane is filled") {
    TIMAGE image(IMAGE_RGBA, 3, 1);
    image.PUTRGBA(1, 1, {10, 0, 100, 200});
    image.PUTRGBA(3, 1, {30, 0, 200, 100});
    CHECK(FILL_ZERO(image) == 1);
    CHECK(image.GETRGBA(2, 1) == HYPERNAT{20, 0, 150, 150});
    TIMAGE black(IMAGE_RGB, 2, 2), none;
    CHECK(FILL_ZERO(black) == 0);
    CHECK(FILL_ZERO(none) == 0);
    CHECK(FILL_GAP(none, {1, 1, 0, 0}) == 0);
}

TEST_CASE("an image of groups has size and frame of its source, and is grey") {
    TIMAGE source(IMAGE_RGB, 3, 1), target(IMAGE_RGBA, 9, 9);
    source._SETMOVE({7, 8, 9});
    source.PUTRGB(1, 1, {100, 100, 0});
    source.PUTRGB(3, 1, {100, 100, 0});
    const GROUP_RESULT result = GROUP(source, {100, 100}, {}, target);
    CHECK(result.found == 2);
    CHECK(target.ID() == IMAGE_FULLGRAY);
    CHECK(target._GETMOVE() == VECTOR{7, 8, 9});
    CHECK(Get(target) == std::vector<NAT>{1, 0, 2});
    GROUP(source, {0, 0}, {}, target); // afresh
    CHECK(Get(target) == std::vector<NAT>{0, 1, 0});
    GROUP(source, {100, 100}, {}, target, true);
    CHECK(Get(target) == std::vector<NAT>{2, 1, 3});
}

TEST_CASE("groups are not added to an image of another size") {
    CAPTURE console;
    TIMAGE source(IMAGE_GRAY, 3, 1), target(IMAGE_GRAY, 2, 1);
    CHECK(GROUP(source, {0, 0}, {}, target, true).found == 0);
    CHECK(console.TEXT() == "  Groups of another size or kind (2x1, 3x1): nothing added.\n");
    CHECK(Get(target) == std::vector<NAT>{0, 0});
    TIMAGE fresh(IMAGE_GRAY);
    CHECK(GROUP(source, {0, 0}, {}, fresh, true).found == 1);
}

TEST_CASE("the table of groups has a line for each") {
    CAPTURE console;
    SCRATCH_FOLDER scratch;
    TIMAGE image(IMAGE_GRAY, 4, 1);
    CHECK(!SAVE_GROUPS(image, "groups.txt"));
    CHECK(console.TEXT() == "  No groups!\n");
    Set(image, {1, 1, 0, 3});
    CHECK(SAVE_GROUPS(image, "groups.txt"));
    CHECK(scratch.READ("groups.txt") == "1\t6\t2\t3\n3\t4\t1\t4\n");
}

TEST_CASE("circles become points of one line in global coordinates") {
    TIMAGE image(IMAGE_GRAY, 5, 5);
    FRAME frame;
    frame.SETSCALE({2, 2, 2});
    frame.SETMOVE({10, 20, 30});
    image.SETFRAME(frame);
    for (NAT x = 2; x <= 4; ++x)
        for (NAT y = 2; y <= 4; ++y)
            image.PUT(x, y, 200);
    TCLOUD cloud;
    CHECK(GETSPHERE(image, {128, 255}, 10, cloud) == 1); // the corners lie within
    CHECK(cloud.GETLINELENGTH() == 1);
    CHECK(cloud.GETNAME(1) == "Spheres");
    CHECK(cloud.GETPOINT(1) == HYPER{14, 24, 30, 3}); // pixel (3, 3), radius 1.5 pixels
    CHECK(GETSPHERE(image, {1, 2}, 10, cloud) == 0);
    CHECK(cloud.GETLINELENGTH() == 1);
}

TEST_CASE("a filter runs 9999 times at most") {
    TIMAGE image(IMAGE_GRAY, 3, 3), same(IMAGE_GRAY, 3, 3);
    image.PUT(2, 2, 255);
    same.PUT(2, 2, 255);
    SMOOTH(image, NATMAX);
    SMOOTH(same, MOST_PASSES);
    CHECK(image.GET(2, 2) == same.GET(2, 2));
    CHECK(image.GET(1, 1) == same.GET(1, 1));
}
