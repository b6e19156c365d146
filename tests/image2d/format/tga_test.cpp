#include "image2d/format/formats.hpp"
#include "raster_support.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("a TGA file has an 18-byte header and rows of blue, green, red from the last one on") {
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    TRGB raster(258, 2);
    raster.FILL({1, 2, 3});
    raster.PUT(1, 2, {10, 20, 30});
    CHECK(SAVETGA(raster, UTF16(folder.PATH("a.tga"))));
    const std::string file = folder.GET("a.tga");
    CHECK(file.size() == 18 + 258 * 2 * 3);
    CHECK(file.substr(0, 24) ==
          BYTES({0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 2, 1, 2, 0, 24, 0, 30, 20, 10, 3, 2, 1}));
}
