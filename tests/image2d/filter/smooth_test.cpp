#include "image2d/filter/smooth.hpp"

#include <cstdint>
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
template <class PIXEL> void FillNoise(CANVAS<PIXEL> &canvas, std::uint32_t seed) {
    for (NAT i = 0; i < canvas.COUNT(); ++i) {
        seed = seed * 1664525 + 1013904223;
        canvas.DATA()[i] = static_cast<PIXEL>(seed >> 28 == 0 ? 0 : seed >> 11);
    }
}

template <class PIXEL> using OPERATION = void (*)(CANVAS<PIXEL> &, const PIXEL_AREA &);
template <class PIXEL>
void Compare(OPERATION<PIXEL> fast, OPERATION<PIXEL> slow, NAT width, NAT height,
             const PIXEL_AREA &area) {
    CANVAS<PIXEL> one(width, height), other;
    FillNoise(one, static_cast<std::uint32_t>(width * 31 + height));
    other.CLONE(one);
    fast(one, area);
    slow(other, area);
    CHECK(Pixels(one) == Pixels(other));
}
template <class PIXEL> void CompareAll(OPERATION<PIXEL> fast, OPERATION<PIXEL> slow) {
    for (NAT width = 1; width <= 20; ++width)
        for (NAT height = 1; height <= 20; ++height) {
            Compare<PIXEL>(fast, slow, width, height, {1, 1, width, height});
            Compare<PIXEL>(fast, slow, width, height, {2, 2, width - 1, height - 1});
            Compare<PIXEL>(fast, slow, width, height, {width, 1, width, height});
            Compare<PIXEL>(fast, slow, width, height, {1, height, width / 2, height});
        }
}
} // namespace

TEST_CASE_TEMPLATE("the mean counts the pixels inside the canvas", PIXEL, BYTE, WORD) {
    CANVAS<PIXEL> canvas(3, 3);
    Set(canvas, {9, 0, 0, 0, 0, 0, 0, 0, 90});
    CHECK(plain::MEAN3(canvas, 2, 2) == 11);
    CHECK(plain::MEAN3(canvas, 1, 1) == 2); // 9 / 4
    CHECK(plain::MEAN3(canvas, 2, 1) == 1); // 9 / 6
    HARDSMOOTH(canvas, canvas.WHOLE());
    CHECK(Pixels(canvas) == std::vector<int>{2, 1, 0, 1, 11, 15, 0, 15, 22});
}

TEST_CASE("the smoothing filters mix centre and mean with truncation") {
    const std::vector<int> pixels = {9, 0, 0, 0, 0, 0, 0, 0, 90};
    TGRAY canvas(3, 3);
    Set(canvas, pixels);
    SMOOTH(canvas, canvas.WHOLE());
    CHECK(Pixels(canvas) == std::vector<int>{5, 0, 0, 0, 5, 7, 0, 7, 56});
    Set(canvas, pixels);
    SOFTSMOOTH(canvas, canvas.WHOLE()); // corners: (8*9 + 2) / 9, (8*90 + 22) / 9
    CHECK(Pixels(canvas) == std::vector<int>{8, 0, 0, 0, 1, 1, 0, 1, 82});
    Set(canvas, pixels);
    SMOOTH0(canvas, canvas.WHOLE());
    CHECK(Pixels(canvas) == std::vector<int>{5, 0, 0, 0, 0, 0, 0, 0, 56});
    Set(canvas, pixels);
    UNSHARPMASKING(canvas, canvas.WHOLE());
    CHECK(Pixels(canvas) == std::vector<int>{16, 0, 0, 0, 0, 0, 0, 0, 158});
}

TEST_CASE("unsharp masking is limited to the pixel range") {
    TFULLGRAY canvas(2, 1);
    Set(canvas, {65535, 0});
    UNSHARPMASKING(canvas, canvas.WHOLE());
    CHECK(Pixels(canvas) == std::vector<int>{65535, 0});
}

TEST_CASE("white stays white under every mean") {
    TFULLGRAY canvas(5, 4);
    canvas.FILL(65535);
    HARDSMOOTH(canvas, canvas.WHOLE());
    SOFTSMOOTH(canvas, canvas.WHOLE());
    CHECK(GETLIMITS(canvas).min == 65535);
}

TEST_CASE("a canvas of one column has only corners and edges") {
    TGRAY canvas(1, 3);
    Set(canvas, {10, 20, 90});
    HARDSMOOTH(canvas, canvas.WHOLE());
    CHECK(Pixels(canvas) == std::vector<int>{15, 40, 55});
    TGRAY single(1, 1);
    Set(single, {7});
    HARDSMOOTH(single, single.WHOLE());
    CHECK(Pixels(single) == std::vector<int>{7});
}

TEST_CASE("the 3x3 filters equal their plain twins at every small size and area") {
    CompareAll<BYTE>(HARDSMOOTH<BYTE>, plain::HARDSMOOTH<BYTE>);
    CompareAll<WORD>(HARDSMOOTH<WORD>, plain::HARDSMOOTH<WORD>);
    CompareAll<WORD>(SMOOTH<WORD>, plain::SMOOTH<WORD>);
    CompareAll<BYTE>(SOFTSMOOTH<BYTE>, plain::SOFTSMOOTH<BYTE>);
    CompareAll<WORD>(SMOOTH0<WORD>, plain::SMOOTH0<WORD>);
    CompareAll<WORD>(UNSHARPMASKING<WORD>, plain::UNSHARPMASKING<WORD>);
}

TEST_CASE("the division by nine is exact for every sum of nine pixels") {
    // One row of three columns: the interior pixel's sum takes every value that 16 bits allow.
    TFULLGRAY canvas(3, 3);
    for (NAT sum = 0; sum <= 9 * 65535; sum += sum < 4000 || sum > 580000 ? 1 : 97) {
        NAT rest = sum;
        for (NAT i = 0; i < 9; ++i) {
            const NAT pixel = std::min<NAT>(rest, 65535);
            canvas.DATA()[i] = static_cast<WORD>(pixel);
            rest -= pixel;
        }
        HARDSMOOTH(canvas, {2, 2, 2, 2});
        if (canvas.GET(2, 2) != sum / 9) {
            CHECK(canvas.GET(2, 2) == sum / 9);
            break;
        }
    }
}

TEST_CASE("a convolution repeats the border and limits its result") {
    TGRAY canvas(3, 1);
    Set(canvas, {10, 20, 40});
    KERNEL3 kernel;
    kernel.weights = {0, 0, 0, -1, 3, 0, 0, 0, 0};
    kernel.divisor = 2;
    FILTER(canvas, canvas.WHOLE(), kernel);
    CHECK(Pixels(canvas) == std::vector<int>{10, 25, 50});
    kernel.divisor = 0;
    FILTER(canvas, canvas.WHOLE(), kernel);
    CHECK(Pixels(canvas) == std::vector<int>{0, 0, 0});
}
