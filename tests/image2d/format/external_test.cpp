#include "image2d/format/external.hpp"

#include "foundation/console/paths.hpp"
#include "image2d/format/external_rows.hpp"
#include "image2d/format/formats.hpp"
#include "image2d/format/freeimage.hpp"
#include "image2d/format/imagemagick.hpp"
#include "image2d/format/library_file.hpp"
#include "image2d/format/library_search.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <vector>

#include <doctest/doctest.h>

using namespace morvane;
using namespace std::string_literals;

namespace {
enum class LIBRARY { FREE, MAGICK };

// A scratch folder, the console's text, and the switches as at start before and behind.
struct STAGE {
    SCRATCH_FOLDER folder;
    CAPTURE console;
    STAGE() { RESET_LIBRARIES(); }
    ~STAGE() { RESET_LIBRARIES(); }
};

// Both libraries in turn, alone, where they are installed.
void WithEach(const std::function<void(LIBRARY, STAGE &)> &work) {
    for (const LIBRARY library : {LIBRARY::FREE, LIBRARY::MAGICK}) {
        STAGE stage;
        if (library == LIBRARY::FREE ? !FREEIMAGE() : !IMAGEMAGICK()) {
            MESSAGE("a library is not installed: not tested");
            continue;
        }
        if (library == LIBRARY::FREE)
            DISABLE_IMAGEMAGICK();
        else
            DISABLE_FREEIMAGE();
        CAPTURE(library);
        work(library, stage);
    }
}

// Every value once, 256 a row.
template <class PIXEL> void Ramp(CANVAS<PIXEL> &canvas) {
    canvas.INIT(256, (CANVAS<PIXEL>::MAXIMUM + 1) / 256);
    for (NAT i = 0; i < canvas.COUNT(); ++i)
        canvas.DATA()[i] = static_cast<PIXEL>(i);
}
template <class PIXEL> bool Same(const CANVAS<PIXEL> &a, const CANVAS<PIXEL> &b) {
    return a.WIDTH == b.WIDTH && a.HEIGHT == b.HEIGHT &&
           std::equal(a.DATA(), a.DATA() + a.COUNT(), b.DATA());
}

// Two rows: red, green; blue, a mixed colour. Alpha 255, 0; 128, 200.
void Colours(TRGBA &image) {
    image.INIT(2, 2);
    image.PUT(1, 1, {255, 0, 0, 255});
    image.PUT(2, 1, {0, 255, 0, 1});
    image.PUT(1, 2, {0, 0, 255, 128});
    image.PUT(2, 2, {10, 20, 30, 200});
}
} // namespace

TEST_CASE("the environment names the only library that is tried, an empty name none") {
    SHARED_LIBRARY library;
    CHECK(SEARCH_LIBRARY(library, "MORVANE_TEST_LIBRARY", {"libnone.so", "libz.so.1"}) ==
          "libz.so.1");
    CHECK(library.FIND("zlibVersion") != nullptr);
    ::setenv("MORVANE_TEST_LIBRARY", "", 1);
    CHECK(SEARCH_LIBRARY(library, "MORVANE_TEST_LIBRARY", {"libz.so.1"}).empty());
    CHECK_FALSE(library.ISOPEN());
    ::setenv("MORVANE_TEST_LIBRARY", "libnone.so", 1);
    CHECK(SEARCH_LIBRARY(library, "MORVANE_TEST_LIBRARY", {"libz.so.1"}).empty());
    ::unsetenv("MORVANE_TEST_LIBRARY");
}

TEST_CASE("a library's words stand in one line without control characters") {
    CHECK(LIBRARY_WORDS("bad\x1b[31m file\n") == "bad [31m file");
    CHECK(LIBRARY_WORDS(nullptr).empty());
    CHECK(LIBRARY_WORDS(std::string(5000, 'x').c_str()).size() == 400);
}

TEST_CASE("a size that a file cannot hold is not believed") {
    CHECK(IS_LIKELY_SIZE(NAT{256} << 20, 1));
    CHECK_FALSE(IS_LIKELY_SIZE((NAT{256} << 20) + 1, 100));
    CHECK(IS_LIKELY_SIZE(NAT{1} << 30, NAT{1} << 18));
}

TEST_CASE("the versions name the libraries") {
    const STAGE stage;
    if (FREEIMAGE()) CHECK(GETUTF8(FREEIMAGE_VERSION()).starts_with("FreeImage 3."));
    if (IMAGEMAGICK()) {
        const std::string version = GETUTF8(IMAGEMAGICK_VERSION());
        CHECK(version.starts_with("ImageMagick "));
        CHECK(std::count(version.begin(), version.end(), ' ') == 2);
    }
}

TEST_CASE("a library that is switched off is not used until it is switched on") {
    const STAGE stage;
    const bool isFree = FREEIMAGE(), isMagick = IMAGEMAGICK();
    DISABLE_FREEIMAGE();
    DISABLE_IMAGEMAGICK();
    CHECK_FALSE(FREEIMAGE());
    CHECK_FALSE(IMAGEMAGICK());
    TGRAY canvas(2, 2);
    CHECK_FALSE(EXTERNAL_SAVE(canvas, "a.png"));
    CHECK_FALSE(stage.folder.HAS("a.png"));
    SAVEPNG(canvas, "own.png");
    CHECK_FALSE(EXTERNAL_LOAD(canvas, "own.png"));
    CHECK(canvas.EMPTY());
    ENABLE_FREEIMAGE();
    ENABLE_IMAGEMAGICK();
    CHECK(FREEIMAGE() == isFree);
    CHECK(IMAGEMAGICK() == isMagick);
}

TEST_CASE("a library that is forbidden for the run stays off") {
    const STAGE stage;
    FORBID_FREEIMAGE();
    FORBID_IMAGEMAGICK();
    ENABLE_FREEIMAGE();
    ENABLE_IMAGEMAGICK();
    CHECK_FALSE(FREEIMAGE());
    CHECK_FALSE(IMAGEMAGICK());
}

TEST_CASE("grey values of 8 and 16 bits pass the libraries unchanged") {
    WithEach([](LIBRARY library, STAGE &stage) {
        for (const char *name : {"a.png", "a.tif"}) {
            CAPTURE(name);
            TGRAY gray, grayBack;
            Ramp(gray);
            REQUIRE(EXTERNAL_SAVE(gray, name));
            REQUIRE(EXTERNAL_LOAD(grayBack, name));
            CHECK(Same(gray, grayBack));
            TFULLGRAY full, fullBack;
            Ramp(full);
            REQUIRE(EXTERNAL_SAVE(full, name));
            REQUIRE(EXTERNAL_LOAD(fullBack, name));
            CHECK(Same(full, fullBack));
        }
        const bool isFree = library == LIBRARY::FREE;
        CHECK(stage.console.CONTAINS(isFree ? "  Grey (FI) with (256x1)"
                                            : "  Grey (IM) with (256x1)"));
        CHECK(stage.console.CONTAINS(isFree ? "  Fullgrey (FI) with (256x256)"
                                            : "  Fullgrey (IM) with (256x256)"));
    });
}

TEST_CASE("the libraries share a reader of TIFF files without disturbing each other") {
    const STAGE stage;
    if (!FREEIMAGE() || !IMAGEMAGICK()) {
        MESSAGE("a library is not installed: not tested");
        return;
    }
    TGRAY gray, back;
    Ramp(gray);
    for (int pass = 1; pass <= 2; ++pass) {
        REQUIRE(SAVEMAGICKBITMAP(gray, "a.tif"));
        REQUIRE(LOADMAGICKBITMAP_GRAY(back, "a.tif"));
        REQUIRE(LOADFREEIMAGE_GRAY(back, "a.tif"));
        CHECK(Same(gray, back));
        stage.folder.WRITE("b.tif", stage.folder.READ("a.tif").substr(0, 100));
        CHECK_FALSE(LOADFREEIMAGE_GRAY(back, "b.tif"));
        CHECK_FALSE(LOADMAGICKBITMAP_GRAY(back, "b.tif"));
    }
}

TEST_CASE("a JPEG stream ends with its mark, whatever stands in its segments and behind it") {
    const std::string head = "\xff\xd8\xff\xe1\x00\x06\xff\xd9zz\xff\xda\x00\x02"s;
    CHECK(IS_CUT_JPEG(head)); // the mark inside the segment is not the end
    CHECK(IS_CUT_JPEG(head + "ab\xff\x00\xff\xd0"s + "cd"));
    CHECK_FALSE(IS_CUT_JPEG(head + "ab\xff\xd9"));
    CHECK_FALSE(IS_CUT_JPEG(head + "ab\xff\xff\xd9 more"));
    CHECK(IS_CUT_JPEG(head.substr(0, 5)));
    CHECK_FALSE(IS_CUT_JPEG("no JPEG"));
}

TEST_CASE("short PNM and BMP files are left to the own readers, which tell of them") {
    const STAGE stage;
    const auto isLeft = [&](const std::string &bytes) {
        stage.folder.WRITE("a", bytes);
        return IS_LEFT_TO_OWN("a");
    };
    CHECK_FALSE(isLeft("P5 2 1 255\nab"));
    CHECK(isLeft("P5 2 1 255\na"));
    CHECK_FALSE(isLeft("P6 1 1 65535\nabcdef"));
    CHECK(isLeft("P6 1 1 65535\nabcde"));
    CHECK_FALSE(isLeft("P4 9 1\nab"));
    CHECK(isLeft("P4 9 1\na"));
    CHECK(isLeft("P2 1 1 255\n7\n"));
    CHECK(isLeft("P5 9999999999999999999 9999999999999999999 255\nab"));
    CHECK(isLeft("BM"));
    CHECK_FALSE(isLeft("not a picture"));
    TRGB image(1, 2); // 4 bytes a row
    REQUIRE(SAVEBMP(image, "b.bmp"));
    const std::string whole = stage.folder.READ("b.bmp");
    CHECK(whole.size() == 62);
    CHECK_FALSE(isLeft(whole));
    CHECK(isLeft(whole.substr(0, 61)));
}

TEST_CASE("a 16-bit mask stays 16-bit") {
    WithEach([](LIBRARY, STAGE &) {
        TFULLGRAY mask(4, 1), back;
        mask.PUT(2, 1, 65535);
        REQUIRE(EXTERNAL_SAVE(mask, "mask.png"));
        REQUIRE(EXTERNAL_LOAD(back, "mask.png"));
        CHECK(Same(mask, back));
    });
}

TEST_CASE("colours and alpha pass the libraries unchanged") {
    WithEach([](LIBRARY library, STAGE &stage) {
        TRGBA image, back;
        Colours(image);
        REQUIRE(EXTERNAL_SAVE(image, "a.png"));
        REQUIRE(EXTERNAL_LOAD(back, "a.png"));
        REQUIRE(back.WIDTH() == 2);
        REQUIRE(back.HEIGHT() == 2);
        for (NAT y = 1; y <= 2; ++y)
            for (NAT x = 1; x <= 2; ++x)
                CHECK(back.GET(x, y) == image.GET(x, y));
        TRGB rgb;
        REQUIRE(EXTERNAL_LOAD(rgb, "a.png"));
        CHECK(rgb.GET(1, 2) == VECTORNAT{0, 0, 255});
        REQUIRE(EXTERNAL_SAVE(rgb, "b.tif"));
        REQUIRE(EXTERNAL_LOAD(back, "b.tif"));
        CHECK(back.GET(2, 2) == HYPERNAT{10, 20, 30, 255});
        TZRGB depth;
        REQUIRE(EXTERNAL_LOAD(depth, "a.png"));
        CHECK(depth.GETRGBA(1, 2) == HYPERNAT{0, 0, 255, 128});
        CHECK(depth.GETZ(1, 2) == 0);
        CHECK(EXTERNAL_SAVE(depth, "c.tif"));
        for (const char *kind : {"RGBA", "RGB", "ZRGB"})
            CHECK(stage.console.CONTAINS(std::string("  ") + kind +
                                         (library == LIBRARY::FREE ? " (FI)" : " (IM)") +
                                         " with (2x2)"));
    });
}

TEST_CASE("the own writers' PNG and TIFF files are read by the libraries with equal pixels") {
    WithEach([](LIBRARY, STAGE &) {
        TFULLGRAY full, fullBack;
        Ramp(full);
        for (const char *name : {"own.png", "own.tif"}) {
            CAPTURE(name);
            REQUIRE((GETUTF8(GETFILEEXTENSION(name)) == "png" ? SAVEPNG(full, name)
                                                              : SAVETIF(full, name)));
            REQUIRE(EXTERNAL_LOAD(fullBack, name));
            CHECK(Same(full, fullBack));
        }
        TRGBA image, back;
        Colours(image);
        REQUIRE(SAVEPNG(image, "own.png"));
        REQUIRE(EXTERNAL_LOAD(back, "own.png"));
        CHECK(back.GET(1, 2) == image.GET(1, 2));
    });
}

TEST_CASE("an 8-bit file on a 16-bit image keeps its values, whichever library reads it") {
    WithEach([](LIBRARY, STAGE &) {
        TGRAY gray;
        Ramp(gray);
        REQUIRE(SAVEPNG(gray, "a.png"));
        TFULLGRAY full;
        REQUIRE(EXTERNAL_LOAD(full, "a.png"));
        for (NAT x = 1; x <= 256; ++x)
            REQUIRE(full.GET(x, 1) == x - 1);
    });
}

TEST_CASE("a 16-bit file on 8-bit pixels loses its low bytes") {
    WithEach([](LIBRARY, STAGE &) {
        TFULLGRAY full;
        Ramp(full);
        REQUIRE(SAVEPNG(full, "a.png"));
        TGRAY gray;
        TRGB rgb;
        REQUIRE(EXTERNAL_LOAD(gray, "a.png"));
        REQUIRE(EXTERNAL_LOAD(rgb, "a.png"));
        for (NAT y = 1; y <= 256; ++y) { // the row is the high byte
            REQUIRE(gray.GET(y, y) == y - 1);
            REQUIRE(rgb.GET(257 - y, y) == VECTORNAT{y - 1, y - 1, y - 1});
        }
    });
}

TEST_CASE("a JPEG file comes back with nearly its values") {
    WithEach([](LIBRARY, STAGE &stage) {
        TRGBA image; // JPEG has no alpha
        image.INIT(32, 32);
        image.FILL({200, 100, 50, 255});
        const bool isSaved = EXTERNAL_SAVE(image, "a.jpg");
        INFO(stage.console.TEXT());
        REQUIRE(isSaved);
        TRGB back;
        REQUIRE(EXTERNAL_LOAD(back, "a.jpg"));
        REQUIRE(back.WIDTH() == 32);
        CHECK(std::abs(back.GET(7, 9).x - 200) <= 2); // one colour: only rounding is lost
        CHECK(std::abs(back.GET(7, 9).y - 100) <= 2);
        CHECK(std::abs(back.GET(7, 9).z - 50) <= 2);
    });
}

TEST_CASE("grey values tell on saving which way ImageMagick counts") {
    WithEach([](LIBRARY library, STAGE &stage) {
        if (library == LIBRARY::FREE) return;
        TGRAY gray(3, 2);
        REQUIRE(EXTERNAL_SAVE(gray, "a.png"));
        bool isTold = false;
        for (const char *path : {"RGB", "Fullrgb", "Floatrgb", "Doublergb"})
            isTold = isTold ||
                     stage.console.CONTAINS("  Grey (IM:" + std::string(path) + ") with (3x2)");
        CHECK(isTold);
    });
}

TEST_CASE("PNM files with another maximum than 255 or 65535 keep their values, so no library reads "
          "them") {
    WithEach([](LIBRARY, STAGE &stage) {
        TGRAY gray;
        stage.folder.WRITE("a.pgm", std::string("P5\n# 255\n2 1\n15\n\x05\x0f", 19));
        CHECK_FALSE(EXTERNAL_LOAD(gray, "a.pgm"));
        stage.folder.WRITE("b.pgm", std::string("P5\n2 1\n255\n\x05\x0f", 13));
        CHECK(EXTERNAL_LOAD(gray, "b.pgm"));
        CHECK(gray.GET(2, 1) == 15);
    });
}

TEST_CASE("colours saved as pgm or pbm are turned grey by the own writers, not by a library") {
    WithEach([](LIBRARY, STAGE &stage) {
        TRGB image(1, 1);
        CHECK_FALSE(EXTERNAL_SAVE(image, "a.pgm"));
        CHECK_FALSE(EXTERNAL_SAVE(image, "a.pbm"));
        CHECK(stage.folder.FILES() == 0);
    });
}

TEST_CASE("the formats of the own readers alone and odd names reach no library") {
    WithEach([](LIBRARY, STAGE &stage) {
        TRGB image(1, 1);
        for (const char *name : {"a.rgb", "a.imgf", "a.t1", "a", "a.txt", "a.ppm.gz", "a.p%g",
                                 "msl:a", "show:", "win:a.png:x", "a.show", "a.msl", "a.mvg"})
            CHECK_MESSAGE(!EXTERNAL_SAVE(image, name), name);
        CHECK(stage.folder.FILES() == 0);
    });
}

TEST_CASE("a file's name is a plain path, whatever it holds") {
    WithEach([](LIBRARY, STAGE &stage) {
        TGRAY gray(2, 2), back;
        gray.FILL(77);
        for (const char *name : {"msl:a.png", "|touch hit;.png", "@a.png", "a%d.png", "a[0].png",
                                 "-write.png", "ephemeral:a.png"}) {
            CAPTURE(name);
            REQUIRE(EXTERNAL_SAVE(gray, name));
            CHECK(stage.folder.HAS(name));
            REQUIRE(EXTERNAL_LOAD(back, name));
            CHECK(back.GET(1, 1) == 77);
        }
        CHECK(stage.folder.FILES() == 7);
        CHECK_FALSE(stage.folder.HAS("hit"));
    });
}

TEST_CASE("a drawing script is no picture, whatever its name says") {
    WithEach([](LIBRARY, STAGE &stage) {
        TRGB image;
        stage.folder.WRITE("a.png", "push graphic-context\nviewbox 0 0 9 9\npop graphic-context\n");
        CHECK_FALSE(EXTERNAL_LOAD(image, "a.png"));
        stage.folder.WRITE("a.msl", "<?xml version=\"1.0\"?><msl><image/><write "
                                    "filename=\"png:hit\"/></msl>");
        CHECK_FALSE(EXTERNAL_LOAD(image, "a.msl"));
        CHECK_FALSE(stage.folder.HAS("hit"));
        CHECK(image.EMPTY());
    });
}

TEST_CASE("the last row of a library is the first row of an image") {
    WithEach([](LIBRARY, STAGE &stage) {
        TGRAY gray;
        stage.folder.WRITE("a.pgm", std::string("P5\n1 3\n255\n\x01\x02\x03", 14));
        REQUIRE(EXTERNAL_LOAD(gray, "a.pgm"));
        CHECK(gray.GET(1, 1) == 1);
        CHECK(gray.GET(1, 3) == 3);
    });
}

TEST_CASE("a missing file and a folder are left to the own readers, without a word") {
    WithEach([](LIBRARY, STAGE &stage) {
        TGRAY gray(2, 2);
        CHECK_FALSE(EXTERNAL_LOAD(gray, "nowhere.png"));
        CHECK(gray.EMPTY());
        std::filesystem::create_directory("folder.png");
        CHECK_FALSE(EXTERNAL_LOAD(gray, "folder.png"));
        CHECK(stage.console.TEXT().empty());
    });
}

TEST_CASE("a file that cannot be written is told once and stays as it was") {
    WithEach([](LIBRARY, STAGE &stage) {
        TGRAY gray(2, 2);
        CHECK(EXTERNAL_SAVE(gray, "nowhere/a.png"));
        const std::string &text = stage.console.TEXT();
        CHECK(text.find("-Error") != std::string::npos);
        CHECK(text.find("-Error") == text.rfind("-Error"));
    });
}

TEST_CASE("a file cut at any length is no picture and leaves an empty image") {
    WithEach([](LIBRARY, STAGE &stage) {
        // More than one block of 8x8 of a JPEG file each way, and rows that need padding.
        TRGB image(9, 9), back;
        for (NAT y = 1; y <= 9; ++y)
            for (NAT x = 1; x <= 9; ++x)
                image.PUT(x, y, {x * 25, y * 25, (x * y * 37) % 256});
        for (const char *name : {"a.png", "a.tif", "a.jpg", "a.bmp", "a.ppm"}) {
            REQUIRE(EXTERNAL_SAVE(image, name));
            const std::string whole = stage.folder.READ(name);
            REQUIRE(EXTERNAL_LOAD(back, name));
            for (std::size_t length = 0; length < whole.size(); ++length) {
                std::filesystem::remove(name); // some disks are slow at cutting a file that stands
                stage.folder.WRITE(name, whole.substr(0, length));
                stage.console.CLEAR();
                const bool isLoaded = EXTERNAL_LOAD(back, name);
                REQUIRE(isLoaded != back.EMPTY());
                if (!isLoaded) continue;
                // Behind the pixels of a TIFF file stand words that nothing needs.
                REQUIRE(std::string(name) == "a.tif");
                for (std::size_t plane = 0; plane < 3; ++plane)
                    REQUIRE(Same(back.planes[plane], image.planes[plane]));
            }
        }
    });
}

TEST_CASE("a header that promises more than the file can hold takes no memory") {
    WithEach([](LIBRARY, STAGE &stage) {
        TGRAY gray(2, 2);
        SAVEPNG(gray, "a.png");
        std::string bytes = stage.folder.READ("a.png");
        bytes[17] = bytes[21] = 1; // 65538 x 65538; the sum of the header is wrong then
        stage.folder.WRITE("a.png", bytes);
        CHECK_FALSE(EXTERNAL_LOAD(gray, "a.png"));
        stage.folder.WRITE("a.pgm", "P5\n200000 200000\n255\nabc");
        CHECK_FALSE(EXTERNAL_LOAD(gray, "a.pgm"));
        CHECK(gray.EMPTY());
    });
}
