#include "image2d/image/hues.hpp"
#include "support/image_rows.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("the hue of a colour is its largest share beyond grey") {
    CHECK(GETHUE({200, 20, 20}) == HUE::RED);
    CHECK(GETHUE({20, 90, 30}) == HUE::GREEN);
    CHECK(GETHUE({0, 0, 1}) == HUE::BLUE);
    CHECK(GETHUE({200, 180, 0}) == HUE::YELLOW);
    CHECK(GETHUE({0, 180, 200}) == HUE::CYAN);
    CHECK(GETHUE({180, 0, 200}) == HUE::PURPLE);
    CHECK(GETHUE({200, 100, 0}) == HUE::RED); // red 100, yellow 100
    CHECK(GETHUE({77, 77, 77}) == HUE::NONE);
}

TEST_CASE("the darkest and the brightest of a hue are set to a colour") {
    const VECTORNAT dark{20, 0, 0}, middle{120, 10, 0}, bright{250, 40, 30}, blue{0, 0, 20};
    ROWS_IMAGE low(IMAGE_RGB, COLOUR_ROWS_OF{{dark, middle, bright, blue}}),
        high(IMAGE_RGB, COLOUR_ROWS_OF{{dark, middle, bright, blue}});
    const VECTORNAT floor{100, 0, 0}, ceiling{200, 0, 0};
    SETMIN(low, HUE::RED, floor);
    SETMAX(high, HUE::RED, ceiling);
    CHECK(COLOURS_OF(low) == COLOUR_ROWS_OF{{floor, middle, bright, blue}});
    CHECK(COLOURS_OF(high) == COLOUR_ROWS_OF{{dark, middle, ceiling, blue}});
}

TEST_CASE("grey pixels and grey images have no hue") {
    ROWS_IMAGE image(IMAGE_RGB, COLOUR_ROWS_OF{{{5, 5, 5}}}), gray(IMAGE_GRAY, {{5}});
    SETMIN(image, HUE::RED, {100, 0, 0});
    SETMIN(gray, HUE::RED, {100, 0, 0});
    CHECK(image.GETRGB(1, 1) == VECTORNAT{5, 5, 5});
    CHECK(gray.GET(1, 1) == 5);
}

TEST_CASE("a balance of zero, or alike in all components of a grey, changes nothing") {
    const COLOUR_ROWS_OF rows{{{10, 20, 30}, {0, 0, 0}, {255, 255, 255}, {77, 1, 254}}};
    ROWS_IMAGE image(IMAGE_RGB, rows), grays(IMAGE_RGB, COLOUR_ROWS_OF{{{50, 50, 50}}});
    SETBALANCE(image, {});
    CHECK(COLOURS_OF(image) == rows);
    SETBALANCE(grays, {{40, 40, 40}, {-30, -30, -30}, {10, 10, 10}});
    CHECK(grays.GETRGB(1, 1) == VECTORNAT{50, 50, 50});
}

TEST_CASE("the middle grey is tinted by half the midtones, its lightness kept") {
    // l is 102/255 = 0.4, weight of the midtones 2 * 0.4 * 0.6 = 0.48: red moves by 0.48 * 50 / 200
    // = 0.12 to 0.52. Lightness 0.46 goes back to 0.4 with saturation 0.12 / 0.92, so that red is
    // 0.4 * (1 + s) = 0.45217 and the others 0.4 * (1 - s) = 0.34783.
    ROWS_IMAGE image(IMAGE_RGB, COLOUR_ROWS_OF{{{102, 102, 102}}});
    SETBALANCE(image, {.shadows = {}, .midtones = {50, 0, 0}, .highlights = {}});
    CHECK(image.GETRGB(1, 1) == VECTORNAT{115, 89, 89}); // 115.3, 88.7
}

TEST_CASE("shadows tint dark pixels, highlights bright ones, and none black or white") {
    const COLOUR_ROWS_OF rows{{{0, 0, 0}, {51, 51, 51}, {204, 204, 204}, {255, 255, 255}}};
    ROWS_IMAGE dark(IMAGE_RGB, rows), bright(IMAGE_RGB, rows);
    SETBALANCE(dark, {.shadows = {50, 0, 0}, .midtones = {}, .highlights = {}});
    SETBALANCE(bright, {.shadows = {}, .midtones = {}, .highlights = {50, 0, 0}});
    const auto tint = [](const TIMAGE &image, NAT x) {
        return image.GETRGB(x, 1).x - image.GETRGB(x, 1).y;
    };
    CHECK(tint(dark, 1) == 0);
    CHECK(tint(dark, 2) > tint(dark, 3));
    CHECK(tint(bright, 3) > tint(bright, 2));
    CHECK(tint(bright, 4) == 0);
    CHECK(tint(dark, 4) == 0);
}
