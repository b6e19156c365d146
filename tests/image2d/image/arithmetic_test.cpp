#include "image2d/image/arithmetic.hpp"
#include "support/capture.hpp"
#include "support/image_rows.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
NUMBER_ROWS RESULT_OF(PIXEL_OPERATION operation, OPERANDS operands, BYTE kind = IMAGE_GRAY) {
    TIMAGE target(kind);
    COMBINE_PIXELS(operation, operands, target);
    return ROWS_OF(target);
}
} // namespace

TEST_CASE("two images are subtracted, put apart, multiplied and divided in whole numbers") {
    const ROWS_IMAGE a(IMAGE_GRAY, {{10, 200, 255, 0}}), b(IMAGE_GRAY, {{30, 100, 255, 0}});
    const TIMAGE *const both[] = {&a, &b};
    using enum PIXEL_OPERATION;
    CHECK(RESULT_OF(SUB, both) == NUMBER_ROWS{{0, 100, 0, 0}});
    CHECK(RESULT_OF(SUB_ABS, both) == NUMBER_ROWS{{20, 100, 0, 0}});
    CHECK(RESULT_OF(SUB_RANGE, both) == NUMBER_ROWS{{108, 228, 128, 128}});
    CHECK(RESULT_OF(ADD, both) == NUMBER_ROWS{{40, 255, 255, 0}});
    CHECK(RESULT_OF(ADD_MIN, both) == NUMBER_ROWS{{10, 100, 255, 0}});
    CHECK(RESULT_OF(ADD_MAX, both) == NUMBER_ROWS{{30, 200, 255, 0}});
    CHECK(RESULT_OF(MUL, both) == NUMBER_ROWS{{1, 78, 255, 0}});   // 300/255, 20000/255
    CHECK(RESULT_OF(DIV, both) == NUMBER_ROWS{{82, 255, 255, 0}}); // 2560/31, 51200/101, 65280/256
    CHECK(RESULT_OF(MEAN, both) == NUMBER_ROWS{{20, 150, 255, 0}});
}

TEST_CASE("the middle of 16 bits is 32768 and their M 65535") {
    const ROWS_IMAGE a(IMAGE_FULLGRAY, {{65535, 5}}), b(IMAGE_FULLGRAY, {{65535, 8}});
    const TIMAGE *const both[] = {&a, &b};
    using enum PIXEL_OPERATION;
    CHECK(RESULT_OF(SUB_RANGE, both, IMAGE_FULLGRAY) == NUMBER_ROWS{{32768, 32765}});
    CHECK(RESULT_OF(MUL, both, IMAGE_FULLGRAY) == NUMBER_ROWS{{65535, 0}});
    CHECK(RESULT_OF(DIV, both, IMAGE_FULLGRAY) == NUMBER_ROWS{{65535, 36408}}); // 327680 / 9
}

TEST_CASE("three factors are divided by M squared, further ones follow by twos") {
    const ROWS_IMAGE a(IMAGE_GRAY, {{255, 100}}), b(IMAGE_GRAY, {{128, 100}}),
        c(IMAGE_GRAY, {{255, 200}});
    const TIMAGE *const three[] = {&a, &b, &c}, *const four[] = {&a, &b, &c, &c};
    CHECK(RESULT_OF(PIXEL_OPERATION::MUL, three) == NUMBER_ROWS{{128, 30}}); // 2000000 / 65025
    CHECK(RESULT_OF(PIXEL_OPERATION::MUL, four) == NUMBER_ROWS{{128, 23}});  // 30 * 200 / 255
}

TEST_CASE("between adds the differences to both neighbours, median takes the middle") {
    const ROWS_IMAGE a(IMAGE_GRAY, {{10, 90}}), between(IMAGE_GRAY, {{30, 20}}),
        b(IMAGE_GRAY, {{15, 40}});
    const TIMAGE *const three[] = {&a, &between, &b}, *const four[] = {&a, &between, &b, &b};
    CHECK(RESULT_OF(PIXEL_OPERATION::BETWEEN, three) == NUMBER_ROWS{{35, 0}});
    CHECK(RESULT_OF(PIXEL_OPERATION::MEDIAN, three) == NUMBER_ROWS{{15, 40}});
    CHECK(RESULT_OF(PIXEL_OPERATION::MEDIAN, four) == NUMBER_ROWS{{15, 40}});
    CHECK(RESULT_OF(PIXEL_OPERATION::MEAN, three) == NUMBER_ROWS{{18, 50}}); // 55 / 3
}

TEST_CASE("a mean is rounded to nearest, ties to even") {
    const ROWS_IMAGE a(IMAGE_GRAY, {{1, 2}}), b(IMAGE_GRAY, {{2, 3}});
    const TIMAGE *const both[] = {&a, &b};
    CHECK(RESULT_OF(PIXEL_OPERATION::MEAN, both) == NUMBER_ROWS{{2, 2}});
}

TEST_CASE("images of different size are told, and what is missing is background") {
    ROWS_IMAGE a(IMAGE_GRAY, {{1, 2}}), b(IMAGE_GRAY, {{10}, {20}});
    b._SETBACKGROUND(5);
    const TIMAGE *const both[] = {&a, &b};
    const CAPTURE console;
    CHECK(RESULT_OF(PIXEL_OPERATION::ADD, both) == NUMBER_ROWS{{11, 7}, {20, 5}});
    CHECK(console.TEXT() == "  Images of different size (2x1, 1x2): the rest is background.\n");
}

TEST_CASE("colours are joined by component, grey ones stand for three; alpha is the first's") {
    TIMAGE a(IMAGE_RGBA, 1, 1), target(IMAGE_RGBA);
    a.PUTRGBA(1, 1, {100, 50, 20, 90});
    const ROWS_IMAGE b(IMAGE_GRAY, {{30}});
    const TIMAGE *const both[] = {&a, &b};
    COMBINE_PIXELS(PIXEL_OPERATION::SUB, both, target);
    CHECK(target.GETRGBA(1, 1) == HYPERNAT{70, 20, 0, 90});
    CHECK(RESULT_OF(PIXEL_OPERATION::SUB, both) == NUMBER_ROWS{{26}}); // 170 / 3 - 30
}

TEST_CASE("an intensity joins two exposure times by their rates") {
    const ROWS_IMAGE a(IMAGE_GRAY, {{100, 7}}), b(IMAGE_GRAY, {{60, 7}});
    TIMAGE target(IMAGE_GRAY), zero(IMAGE_GRAY);
    INTENSITY(a, b, 10, 30, target); // (10 + 2) / 2 * 20; (0.7 + 0.2333) / 2 * 20 = 9.33
    CHECK(ROWS_OF(target) == NUMBER_ROWS{{120, 9}});
    INTENSITY(a, b, 10, 0, zero); // the second rate is 0: 10 / 2 * 5, 0.7 / 2 * 5
    CHECK(ROWS_OF(zero) == NUMBER_ROWS{{25, 2}});
}

TEST_CASE("an intensity that lies in the middle of two values becomes the even one") {
    const ROWS_IMAGE a(IMAGE_GRAY, {{0, 1}}), b(IMAGE_GRAY, {{164, 26}});
    TIMAGE target(IMAGE_GRAY);
    INTENSITY(a, b, 10, 20, target); // 0.75 a + 0.375 b = 61.5 and 10.5
    CHECK(ROWS_OF(target) == NUMBER_ROWS{{62, 10}});
}

TEST_CASE("blending agrees with a colour put over a pixel") {
    TIMAGE above(IMAGE_RGBA, 3, 1), below(IMAGE_RGBA, 3, 1), target(IMAGE_RGBA);
    const HYPERNAT over[] = {{200, 10, 0, 128}, {200, 10, 0, 255}, {200, 10, 0, 0}};
    TRGBA plain(3, 1);
    for (NAT x = 1; x <= 3; ++x) {
        const HYPERNAT under{40, 60, 255, 100 * x - 50};
        above.PUTRGBA(x, 1, over[x - 1]);
        below.PUTRGBA(x, 1, under);
        plain.PUT(x, 1, under);
        plain.PUTOVER(x, 1, over[x - 1]);
    }
    const TIMAGE *const both[] = {&above, &below};
    OVER(both, target);
    for (NAT x = 1; x <= 3; ++x)
        CHECK(target.GETRGBA(x, 1) == plain.GET(x, 1));
}

TEST_CASE("an opaque image hides what lies below it, and is transparent outside its pixels") {
    const ROWS_IMAGE small(IMAGE_FULLGRAY, {{1000}}), large(IMAGE_FULLGRAY, {{5, 6}, {7, 8}});
    const TIMAGE *const both[] = {&small, &large};
    TIMAGE target(IMAGE_FULLGRAY);
    OVER(both, target);
    CHECK(ROWS_OF(target) == NUMBER_ROWS{{1000, 6}, {7, 8}});
}

TEST_CASE("empty operands give an empty result") {
    const TIMAGE a(IMAGE_GRAY), b(IMAGE_GRAY);
    const TIMAGE *const both[] = {&a, &b};
    CHECK(RESULT_OF(PIXEL_OPERATION::ADD, both).empty());
    TIMAGE target(IMAGE_GRAY);
    OVER(both, target);
    CHECK_FALSE(target.ISNOTEMPTY());
}
