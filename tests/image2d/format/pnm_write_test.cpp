#include "image2d/format/formats.hpp"
#include "raster_support.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("a PGM file of 8 bits is P5, a comment, the size, 255, and the rows") {
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    TGRAY raster(3, 2);
    SET(raster, {1, 2, 3, 4, 5, 255});
    CHECK(SAVEPGM(raster, UTF16(folder.PATH("a.pgm"))));
    CHECK(folder.GET("a.pgm") == "P5\n# morvane\n3 2\n255\n" + BYTES({1, 2, 3, 4, 5, 255}));
}

TEST_CASE("a PGM file of 16 bits has the high byte first and the maximum 65535") {
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    TFULLGRAY raster(2, 1);
    SET(raster, {0x1234, 0xFF00});
    CHECK(SAVEPGM(raster, UTF16(folder.PATH("a.pgm"))));
    CHECK(folder.GET("a.pgm") == "P5\n# morvane\n2 1\n65535\n" + BYTES({0x12, 0x34, 0xFF, 0}));
}

TEST_CASE("colour is written as PPM, as its mean in a PGM, and as bits in a PBM") {
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    TRGB raster(2, 1);
    SET(raster, {10, 20, 31, 255, 0, 0});
    CHECK(SAVEPPM(raster, UTF16(folder.PATH("a.ppm"))));
    CHECK(folder.GET("a.ppm") == "P6\n# morvane\n2 1\n255\n" + BYTES({10, 20, 31, 255, 0, 0}));
    CHECK(SAVEPGM(raster, UTF16(folder.PATH("a.pgm"))));
    CHECK(folder.GET("a.pgm") == "P5\n# morvane\n2 1\n255\n" + BYTES({20, 85}));
}

TEST_CASE("a PBM file has 1 bits for pixels at half brightness or below") {
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    TRGB raster(9, 1);
    // The sum of white is 765: 382 is at half, 383 is above.
    SET(raster, {0, 0,   0,   255, 255, 255, 127, 127, 128, 127, 128, 128, 255, 127,
                 0, 255, 128, 0,   1,   1,   1,   200, 200, 200, 0,   0,   0});
    CHECK(SAVEPBM(raster, UTF16(folder.PATH("a.pbm"))));
    CHECK(folder.GET("a.pbm") == "P4\n# morvane\n9 1\n" + BYTES({0xAA, 0x80}));
}

TEST_CASE("a PAM file has its lines as they are and interleaved rows") {
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    TRGB raster(2, 1);
    SET(raster, {1, 2, 3, 4, 5, 6});
    CHECK(SAVEPAM(raster, UTF16(folder.PATH("a.pam"))));
    CHECK(folder.GET("a.pam") == "P7\n# morvane\nWIDTH 2\nHEIGHT 1\nDEPTH 3\nMAXVAL 255 \n"
                                 "TUPLTYPE RGB  \nENDHDR\n" +
                                     BYTES({1, 2, 3, 4, 5, 6}));
    TRGBA transparent(1, 1);
    transparent.FILL({1, 2, 3, 40});
    CHECK(SAVEPAM(transparent, UTF16(folder.PATH("b.pam"))));
    CHECK(folder.GET("b.pam") == "P7\n# morvane\nWIDTH 1\nHEIGHT 1\nDEPTH 4\nMAXVAL 255 \n"
                                 "TUPLTYPE RGB_ALPHA\nENDHDR\n" +
                                     BYTES({1, 2, 3, 40}));
    TZRGB deep;
    deep.INIT(1, 1, true);
    CHECK(SAVEPAM(deep, UTF16(folder.PATH("c.pam"))));
    CHECK(folder.GET("c.pam").ends_with("ENDHDR\n" + BYTES({0, 0, 0, 255})));
}

TEST_CASE("a name that ends in gz is written through gzip") {
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    TFULLGRAY raster(2, 2), back;
    SET(raster, {1, 256, 40000, 65535});
    CHECK(SAVEPGM(raster, UTF16(folder.PATH("a.pgm.gz"))));
    CHECK(folder.GET("a.pgm.gz").substr(0, 2) == "\x1F\x8B");
    CHECK(LOADPNM(back, UTF16(folder.PATH("a.pgm.gz"))));
    CHECK(PIXELS(back) == PIXELS(raster));
    CHECK(folder.ENTRIES() == 1);
}

TEST_CASE("an empty picture is not written, and the file of that name stays") {
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    const UTF16 name(folder.PUT("a.pgm", "old"));
    CHECK(!SAVEPGM(TGRAY(), name));
    CHECK(folder.GET("a.pgm") == "old");
    CHECK(console.TEXT() == "  Empty image - not written!\n");
}

TEST_CASE("a file that cannot be opened is told and nothing is written") {
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    const TRGB raster(2, 2);
    CHECK(!SAVEPPM(raster, UTF16(folder.PATH("no/a.ppm"))));
    CHECK(!SAVEPNG(raster, UTF16(folder.PATH("no/a.png"))));
    CHECK(console.CONTAINS("DOS-Error"));
    CHECK(folder.ENTRIES() == 0);
}
