#include "image2d/filter/adjust.hpp"
#include "image2d/filter/resize.hpp"

#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
template <class PIXEL> void Set(CANVAS<PIXEL> &canvas, const std::vector<int> &pixels) {
    for (std::size_t i = 0; i < pixels.size(); ++i)
        canvas.DATA()[i] = static_cast<PIXEL>(pixels[i]);
}
template <class PIXEL> std::vector<int> Pixels(const CANVAS<PIXEL> &canvas) {
    return {canvas.DATA(), canvas.DATA() + canvas.COUNT()};
}
} // namespace

TEST_CASE("auto contrast stretches the values to the full range and leaves a flat image") {
    TGRAY canvas(3, 1);
    Set(canvas, {10, 20, 30});
    ADJUST(canvas, canvas.WHOLE());
    CHECK(Pixels(canvas) == std::vector<int>{0, 128, 255}); // 127.5 to even
    Set(canvas, {7, 7, 7});
    ADJUST(canvas, canvas.WHOLE());
    CHECK(Pixels(canvas) == std::vector<int>{7, 7, 7});
    TFULLGRAY full(3, 1);
    Set(full, {1000, 1001, 1002});
    ADJUST256(full, full.WHOLE());
    CHECK(Pixels(full) == std::vector<int>{0, 128, 255});
}

TEST_CASE("auto contrast looks at the whole canvas and maps the area") {
    TGRAY canvas(3, 1);
    Set(canvas, {0, 50, 100});
    ADJUST(canvas, {2, 1, 2, 1});
    CHECK(Pixels(canvas) == std::vector<int>{0, 128, 100});
}

TEST_CASE("a linear map puts its pairs in order and limits them") {
    TGRAY canvas(4, 1);
    Set(canvas, {0, 10, 15, 255});
    ADJUST_LINEAR(canvas, 20, 10, 300, 55);
    CHECK(Pixels(canvas) == std::vector<int>{55, 55, 155, 255});
    Set(canvas, {0, 10, 15, 255});
    ADJUST_LINEAR(canvas, 10, 10, 1, 2); // no spread: the value itself goes to the lower end
    CHECK(Pixels(canvas) == std::vector<int>{1, 1, 2, 2});
}

TEST_CASE("equalisation maps a value to the share of pixels below it") {
    TGRAY canvas(4, 1);
    Set(canvas, {5, 5, 9, 200});
    EQUAL(canvas, canvas.WHOLE());
    CHECK(Pixels(canvas) == std::vector<int>{0, 0, 128, 191}); // 127.5, 191.25
    TGRAY single(2, 1);
    Set(single, {5, 9});
    EQUAL(single, {1, 1, 1, 1});
    CHECK(Pixels(single) == std::vector<int>{5, 9});
}

TEST_CASE("a threshold is compared with the scaled value") {
    TGRAY canvas(3, 1);
    Set(canvas, {100, 110, 120}); // scaled 0, 128, 255
    MONO(canvas, canvas.WHOLE(), 128);
    CHECK(Pixels(canvas) == std::vector<int>{0, 255, 255});
    Set(canvas, {100, 110, 120});
    MONO(canvas, canvas.WHOLE(), 129);
    CHECK(Pixels(canvas) == std::vector<int>{0, 0, 255});
    Set(canvas, {9, 9, 9});
    MONO(canvas, canvas.WHOLE(), 1);
    CHECK(Pixels(canvas) == std::vector<int>{9, 9, 9});
}

TEST_CASE("values are replaced with their bounds taken in") {
    TGRAY canvas(4, 1);
    const std::vector<int> pixels = {1, 5, 9, 200};
    Set(canvas, pixels);
    SETLOWER(canvas, canvas.WHOLE(), 5, 0);
    CHECK(Pixels(canvas) == std::vector<int>{0, 0, 9, 200});
    Set(canvas, pixels);
    SETHIGHER(canvas, canvas.WHOLE(), 9, 300);
    CHECK(Pixels(canvas) == std::vector<int>{1, 5, 255, 255});
    Set(canvas, pixels);
    SETVALUE(canvas, canvas.WHOLE(), 5, 9, 77);
    CHECK(Pixels(canvas) == std::vector<int>{1, 77, 77, 200});
}

TEST_CASE("lighter and darker move by 64 and inversion turns the range") {
    TGRAY canvas(3, 1);
    Set(canvas, {0, 100, 250});
    LIGHTER(canvas, canvas.WHOLE());
    CHECK(Pixels(canvas) == std::vector<int>{64, 164, 255});
    DARKER(canvas, canvas.WHOLE());
    CHECK(Pixels(canvas) == std::vector<int>{0, 100, 191});
    INVERT(canvas, canvas.WHOLE());
    CHECK(Pixels(canvas) == std::vector<int>{255, 155, 64});
    TFULLGRAY full(2, 1);
    Set(full, {10, 5000});
    INVERT(full, full.WHOLE(), 1000);
    CHECK(Pixels(full) == std::vector<int>{990, 0});
}

TEST_CASE("a table maps every value, and one of another length nothing") {
    TGRAY canvas(2, 1);
    Set(canvas, {0, 255});
    TPOLYNAT table(256);
    for (NAT i = 1; i <= 256; ++i)
        table.PUT(i, 300 - i);
    SETRANGE(canvas, canvas.WHOLE(), table);
    CHECK(Pixels(canvas) == std::vector<int>{255, 44});
    SETRANGE(canvas, canvas.WHOLE(), TPOLYNAT(255));
    CHECK(Pixels(canvas) == std::vector<int>{255, 44});
}

TEST_CASE("the inverse lightness of grey is its negative") {
    TRGB image(2, 1);
    image.PUT(1, 1, {10, 10, 10});
    image.PUT(2, 1, {255, 0, 0});
    INVERT_LUMIOSITY(image);
    CHECK(image.GET(1, 1) == VECTORNAT{245, 245, 245});
    CHECK(image.GET(2, 1) == VECTORNAT{255, 0, 0}); // lightness 0.5
}

TEST_CASE("the local tone map uses the full range in three equal planes") {
    TRGB image(40, 3);
    for (NAT x = 1; x <= 40; ++x)
        for (NAT y = 1; y <= 3; ++y)
            image.PUT(x, y, {x * 4, x * 3, x % 5 * 20});
    HDRGRAY(image);
    for (const TGRAY &plane : image.planes) {
        CHECK(GETLIMITS(plane).min == 0);
        CHECK(GETLIMITS(plane).max == 255);
    }
    CHECK(image.GET(7, 2).x == image.GET(7, 2).z);
    TRGB flat(3, 3);
    flat.FILL({9, 9, 9});
    HDRGRAY(flat);
    CHECK(flat.GET(2, 2) == VECTORNAT{128, 128, 128});
}

TEST_CASE("nearest resizing reads at the new position times the scale") {
    TGRAY canvas(4, 1);
    Set(canvas, {10, 20, 30, 40});
    RESIZE(canvas, 2, 1); // scale 4/3: 1.33, 2.67; in y 1/2 rounds to 0, which reads 1
    CHECK(Pixels(canvas) == std::vector<int>{10, 30});
    RESIZE(canvas, 5, 1); // 2/6: 0.33 0.67 1 1.33 1.67
    CHECK(Pixels(canvas) == std::vector<int>{10, 10, 10, 10, 30});
    RESIZE(canvas, 0, 4);
    CHECK(canvas.EMPTY());
}

TEST_CASE("smooth resizing averages cells, mixes four pixels when it enlarges, copies near one") {
    TGRAY canvas(6, 1);
    Set(canvas, {0, 10, 20, 30, 40, 55});
    SMOOTHRESIZE(canvas, 3, 1);
    CHECK(Pixels(canvas) == std::vector<int>{5, 25, 48}); // 47.5 to even
    SMOOTHRESIZE(canvas, 1, 1);
    CHECK(Pixels(canvas) == std::vector<int>{26});
    TGRAY small(2, 1);
    Set(small, {0, 100});
    SMOOTHRESIZE(small, 4, 1); // centres at -0.25, 0.25, 0.75, 1.25
    CHECK(Pixels(small) == std::vector<int>{0, 50, 50, 100});
    TGRAY same(3, 2);
    Set(same, {1, 2, 3, 4, 5, 6});
    SMOOTHRESIZE(same, 3, 2);
    CHECK(Pixels(same) == std::vector<int>{1, 2, 3, 4, 5, 6});
    SMOOTHSCALE(same, 2, 0.5);
    CHECK(same.WIDTH == 6);
    CHECK(same.HEIGHT == 1);
}

TEST_CASE("a size without memory leaves the canvas") {
    TFULLGRAY canvas(2, 2);
    canvas.FILL(3);
    SMOOTHRESIZE(canvas, NATMAX, NATMAX);
    RESIZE(canvas, NATMAX / 8, 1);
    CHECK(canvas.GET(2, 2) == 3);
    TGRAY empty;
    SMOOTHSCALE(empty, 3, 3);
    CHECK(empty.EMPTY());
}
