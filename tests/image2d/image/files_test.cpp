#include "image2d/image/files.hpp"

#include "image2d/format/external.hpp"
#include "support/capture.hpp"
#include "support/temporary_folder.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// The external codecs are off while it lives, so that every machine reads and writes alike.
class OWN_CODECS {
public:
    OWN_CODECS() {
        RESET_LIBRARIES();
        DISABLE_FREEIMAGE();
        DISABLE_IMAGEMAGICK();
    }
    OWN_CODECS(const OWN_CODECS &) = delete;
    OWN_CODECS &operator=(const OWN_CODECS &) = delete;
    ~OWN_CODECS() { RESET_LIBRARIES(); }
};

const std::string P3 = "P3 2 1 255  10 20 30  3 3 3";
} // namespace

TEST_CASE("loading an image gives it the kind, the pixels and the name") {
    const OWN_CODECS own;
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    const UTF16 name(folder.PUT("a.ppm", P3));
    TIMAGE image;
    for (const BYTE id : {IMAGE_GRAY, IMAGE_FULLGRAY, IMAGE_RGB, IMAGE_RGBA}) {
        CHECK(LOAD(image, id, name));
        CHECK(image.ID() == id);
        CHECK(image.SIZE() == COMPLEXNAT{2, 1});
        CHECK(image.NAME == name);
        CHECK(image.GETRGB(2, 1) == VECTORNAT{3, 3, 3});
    }
    CHECK(image.GETRGBA(1, 1) == HYPERNAT{10, 20, 30, 255});
    CHECK(LOAD(image, IMAGE_GRAY, name));
    CHECK(image.GET(1, 1) == 20);
}

TEST_CASE("loading an image tells the file, then what the codec tells") {
    const OWN_CODECS own;
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    const UTF16 name(folder.PUT("a.ppm", P3));
    TIMAGE image;
    CHECK(LOAD(image, IMAGE_RGB, name));
    CHECK(console.TEXT().starts_with("Read file (" + GETUTF8(name) + ").\nRead file (" +
                                     GETUTF8(name) + ") with size ("));
    CHECK(console.CONTAINS("  RGB with (2x1). "));
}

TEST_CASE("a failed load leaves an empty image of the kind, without a name") {
    const OWN_CODECS own;
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    TIMAGE image(IMAGE_RGB, 4, 4);
    image.NAME = UTF16("old");
    CHECK(!LOAD(image, IMAGE_GRAY, UTF16(folder.PATH("no.pgm"))));
    CHECK(image.ID() == IMAGE_GRAY);
    CHECK(!image.ISNOTEMPTY());
    CHECK(image.NAME.EMPTY());
    CHECK(!LOAD(image, IMAGE_ZRGB, UTF16(folder.PUT("a.ppm", P3))));
    CHECK(image.ID() == IMAGE_ZRGB);
    CHECK(!image.ISNOTEMPTY());
    CHECK(console.CONTAINS("  Couldn't read File ("));
}

TEST_CASE("an unknown kind is told and leaves the image as it is") {
    const OWN_CODECS own;
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    TIMAGE image(IMAGE_RGB, 4, 3);
    CHECK(!LOAD(image, 7, UTF16(folder.PUT("a.ppm", P3))));
    CHECK(!LOADPNM(image, 0, UTF16(folder.PATH("a.ppm"))));
    CHECK(image.ID() == IMAGE_RGB);
    CHECK(image.SIZE() == COMPLEXNAT{4, 3});
    CHECK(console.CONTAINS("Unknown imagefield!\n"));
    CHECK(!SAVE(TIMAGE(), UTF16(folder.PATH("b.ppm"))));
    CHECK(folder.ENTRIES() == 1);
}

TEST_CASE("loading resets the frame and keeps the settings") {
    const OWN_CODECS own;
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    TIMAGE image(IMAGE_RGB, 4, 4);
    image.copyMethod = 5;
    image._SETMOVE({1, 2, 3});
    CHECK(LOADPNM(image, IMAGE_RGB, UTF16(folder.PUT("a.ppm", P3))));
    CHECK(image.copyMethod == 5);
    CHECK(image._GETMOVE() == VECTOR{0, 0, 0});
}

TEST_CASE("the own readers are called whatever the extension says") {
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    TIMAGE image;
    CHECK(LOADPNM(image, IMAGE_GRAY, UTF16(folder.PUT("a.dat", P3))));
    CHECK(image.GET(1, 1) == 20);
    const UTF16 raw(folder.PUT("a.raw", "#abcdef"));
    CHECK(LOADRAW(image, IMAGE_RGB, raw, 1, 2, 1));
    CHECK(image.GETRGB(1, 2) == VECTORNAT{'d', 'e', 'f'});
    const UTF16 rgb(folder.PUT("b.raw", std::string("RGB \1\0\1\0abc", 11)));
    CHECK(LOADRGB(image, IMAGE_RGBA, rgb));
    CHECK(image.GETRGBA(1, 1) == HYPERNAT{'a', 'b', 'c', 255});
    const std::string imgf("IMGF\0\0\0\34\0\0\0\1\0\0\0\1\0\0\0\20\0\0\0\1\0\0\0\0\1\2", 30);
    CHECK(LOADIMGF(image, IMAGE_FULLGRAY, UTF16(folder.PUT("c.raw", imgf))));
    CHECK(image.GET(1, 1) == 258);
    CHECK(!LOADBMP(image, IMAGE_RGB, raw));
    CHECK(!image.ISNOTEMPTY());
}

TEST_CASE("a reader that does not know a kind leaves an empty image") {
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    const UTF16 name(folder.PUT("a", P3));
    TIMAGE image(IMAGE_RGB, 2, 2);
    CHECK(!LOADRGB(image, IMAGE_GRAY, name));
    CHECK(!LOADRAW(image, IMAGE_FULLGRAY, name, 1, 1, 0));
    CHECK(!LOADIMGF(image, IMAGE_RGB, name));
    CHECK(!LOADPNM(image, IMAGE_ZRGB, name));
    CHECK(!LOADBMP(image, IMAGE_ZRGB, name));
    CHECK(image.ID() == IMAGE_ZRGB);
    CHECK(!image.ISNOTEMPTY());
}

TEST_CASE("an image is written in its own format when the name has none of its kind") {
    const OWN_CODECS own;
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    TIMAGE image(IMAGE_FULLGRAY, 2, 1), back;
    image.PUT(2, 1, 50000);
    const UTF16 name(folder.PATH("a.foo"));
    CHECK(SAVE(image, name));
    CHECK(console.TEXT() ==
          "Write file (" + GETUTF8(name) + ").\nWrite file (" + GETUTF8(name) + ".pgm).\n");
    CHECK(LOAD(back, IMAGE_FULLGRAY, UTF16(folder.PATH("a.foo.pgm"))));
    CHECK(back.GET(2, 1) == 50000);
}

TEST_CASE("a PNG file is read when an external codec is there, and told otherwise") {
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    const UTF16 name(folder.PATH("a.png"));
    TIMAGE image(IMAGE_RGB, 2, 1), back;
    image.PUTRGB(2, 1, {1, 2, 3});
    {
        const OWN_CODECS own;
        CHECK(SAVE(image, name));
        CHECK(!LOAD(back, IMAGE_RGB, name));
        CHECK(console.CONTAINS("  Couldn't read File (" + GETUTF8(name) +
                               ")! Create empty field.\n"));
    }
    const bool external = FREEIMAGE() || IMAGEMAGICK();
    CHECK(LOAD(back, IMAGE_RGB, name) == external);
    CHECK(back.GETRGB(2, 1) == (external ? VECTORNAT{1, 2, 3} : VECTORNAT{0, 0, 0}));
}
