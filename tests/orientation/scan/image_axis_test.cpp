#include "orientation/scan/image_axis.hpp"

#include "image2d/format/formats.hpp"
#include "orientation/scan/scan_images.hpp"
#include "support/capture.hpp"

#include <cmath>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
constexpr NAT LENGTH = 16;

// Waves across an axis at so many degrees from x towards y.
void Waves(TIMAGE &image, REAL degrees) {
    const REAL a = degrees * PI / 180;
    FILL_IMAGE(image, IMAGE_GRAY, {101, 101}, [&](NAT x, NAT y) {
        const REAL across = static_cast<REAL>(y) * std::cos(a) - static_cast<REAL>(x) * std::sin(a);
        return NAT{128} + ROUND(100 * std::sin(across / 3));
    });
}
REAL Apart(REAL a, REAL b) { return std::abs(std::remainder(a - b, 180)); }

MEAN_AXIS MeanAxis(const TIMAGE &image, NAT r, NAT threads = 2) {
    CAPTURE console;
    return GETMEANAXIS(image, r, threads);
}

void LoadPgm(TIMAGE &image, const char *name) {
    CAPTURE console;
    image.INIT(IMAGE_GRAY);
    REQUIRE(LOADPNM(*image._GRAY(), UTF16(std::string(MORVANE_EXAMPLE_DATA "/") + name)));
}
} // namespace

TEST_CASE("the mean axis of waves is theirs") {
    TIMAGE image;
    for (const REAL degrees : {90.0, 75.0, 45.0, 20.0, -15.0, -45.0, -80.0}) {
        CAPTURE(degrees);
        Waves(image, degrees);
        const MEAN_AXIS mean = MeanAxis(image, LENGTH);
        // Neighbouring directions of length 16 lie up to 3.6 degrees apart.
        CHECK(Apart(mean.degrees, degrees) < 2);
        CHECK(mean.alignment > 0.95);
        CHECK(mean.degrees > -90);
        CHECK(mean.degrees <= 90);
    }
}

TEST_CASE("axes in all directions alike have little alignment") {
    TIMAGE image;
    NOISE noise(3, 1, 255);
    FILL_IMAGE(image, IMAGE_GRAY, {120, 120}, [&](NAT x, NAT y) { return noise(x, y, 1); });
    CHECK(MeanAxis(image, 8).alignment < 0.1);
}

TEST_CASE("two halves at right angles cancel, unless one has more contrast") {
    TIMAGE image;
    const auto halves = [&](NAT contrast) {
        FILL_IMAGE(image, IMAGE_GRAY, {160, 80}, [&](NAT x, NAT y) {
            if (x <= 80) return NAT{100} + 50 * (x % 4 / 2);
            // 3 degrees off x, as no direction of the scan lies along it
            return NAT{100} + contrast * ((y + x / 19) % 4 / 2);
        });
        return MeanAxis(image, 8);
    };
    CHECK(halves(50).alignment < 0.2);
    const MEAN_AXIS left = halves(5);
    CHECK(left.alignment > 0.7);
    CHECK(Apart(left.degrees, 90) < 3);
}

TEST_CASE("the mean axis does not depend on the thread limit") {
    TIMAGE image;
    NOISE noise(9, 1, 255);
    FILL_IMAGE(image, IMAGE_GRAY, {70, 60}, [&](NAT x, NAT y) { return noise(x, y, 1); });
    const MEAN_AXIS one = MeanAxis(image, 6, 1), eight = MeanAxis(image, 6, 8);
    CHECK(one.degrees == eight.degrees);
    CHECK(one.alignment == eight.alignment);
}

TEST_CASE("without any axis the mean is zero") {
    TIMAGE image(IMAGE_GRAY, 40, 40);
    const MEAN_AXIS black = MeanAxis(image, 5);
    CHECK(black.degrees == 0);
    CHECK(black.alignment == 0);
    CAPTURE console;
    CHECK(GETMEANAXIS(image, 20, 1).alignment == 0);
    CHECK(console.TEXT() == "Wrong scan size (20)!\n");
}

// The axes are those of the structure tensor of the whole picture (scikit-image), in degrees from x
// towards y; see examples/data/README.md. All with the scan length 16 and default settings.
TEST_CASE("the mean axis of oriented textures is within 5 degrees of their structure tensor") {
    struct TEXTURE {
        const char *name;
        REAL degrees;
    };
    const TEXTURE textures[] = {{"polymer_fibres.pgm", 85.1},
                                {"collagen_shg_a1.pgm", 15.4},
                                {"collagen_shg_roi1.pgm", 87.0},
                                {"brick.pgm", -85.9}};
    for (const TEXTURE &texture : textures) {
        CAPTURE(texture.name);
        TIMAGE image;
        LoadPgm(image, texture.name);
        const MEAN_AXIS mean = MeanAxis(image, LENGTH);
        CAPTURE(mean.degrees);
        CAPTURE(mean.alignment);
        CHECK(Apart(mean.degrees, texture.degrees) < 5);
        CHECK(mean.alignment > 0.2);
    }
}
