#include "foundation/console/paths.hpp"
#include "image2d/format/formats_table.hpp"
#include "raster_support.hpp"

#include <set>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// "extension: kinds that read / kinds that write", kinds as letters: g, w (16 bits), r, a, z.
std::string Summary(const RASTER_FORMAT &row) {
    std::string read, write;
    const auto add = [&](const auto &codec, char letter) {
        if (codec.read) read += letter;
        if (codec.write) write += letter;
    };
    add(row.gray, 'g');
    add(row.fullGray, 'w');
    add(row.rgb, 'r');
    add(row.rgba, 'a');
    add(row.zrgb, 'z');
    return std::string(row.extension) + (row.zipped ? "(.gz): " : ": ") + read + "/" + write;
}

template <class RASTER> void Fill(RASTER &raster) {
    const auto fill = [](auto &plane, int factor) {
        for (NAT i = 0; i < plane.COUNT(); ++i)
            plane.DATA()[i] =
                static_cast<std::remove_reference_t<decltype(plane.DATA()[0])>>(i * factor + 3);
    };
    if constexpr (requires { raster.DATA(); })
        fill(raster, 7001);
    else if constexpr (requires { raster.planes; })
        for (int i = 0; i < 3; ++i)
            fill(raster.planes[static_cast<std::size_t>(i)], 37 + 11 * i);
    else {
        Fill(raster.rgb);
        fill(raster.alpha, 19);
    }
}

template <class RASTER> std::vector<int> AllPixels(const RASTER &raster) {
    if constexpr (requires { PIXELS(raster); })
        return PIXELS(raster);
    else {
        std::vector<int> values = PIXELS(raster.rgb);
        for (const int value : PIXELS(raster.alpha))
            values.push_back(value);
        return values;
    }
}

// Every row that reads and writes this kind gives the picture back; the count of such rows.
template <class RASTER> int RoundTrips(const std::set<std::string> &lossy) {
    int count = 0;
    for (const RASTER_FORMAT &row : RASTER_FORMATS()) {
        const auto &codec = row.CODEC<RASTER>();
        if (!codec.read || !codec.write || lossy.contains(std::string(row.extension))) continue;
        for (const char *ending : {"", ".gz"}) {
            if (*ending && !row.zipped) continue;
            const TEMPORARY_FOLDER folder;
            CAPTURE console;
            const UTF16 name(folder.PATH("a." + std::string(row.extension) + ending));
            RASTER raster(5, 3), back;
            Fill(raster);
            CHECK(SAVE(raster, name));
            CHECK(LOAD(back, name));
            CHECK(AllPixels(back) == AllPixels(raster));
            ++count;
        }
    }
    return count;
}

template <class RASTER> std::string SavedAs(const std::string &name) {
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    RASTER raster(1, 1);
    CHECK(SAVE(raster, UTF16(folder.PATH(name))));
    CHECK(folder.ENTRIES() == 1);
    for (const auto &entry : std::filesystem::directory_iterator(folder.PATH()))
        return entry.path().filename().string();
    return {};
}
} // namespace

TEST_CASE("the table of raster formats says which kinds each extension reads and writes") {
    std::vector<std::string> rows;
    for (const RASTER_FORMAT &row : RASTER_FORMATS())
        rows.push_back(Summary(row));
    CHECK(rows == std::vector<std::string>{
                      "pbm(.gz): gwra/r", "pgm(.gz): gwra/gwr", "ppm(.gz): gwra/r",
                      "pnm(.gz): gwra/r", "pam(.gz): /raz", "bmp: gwra/r", "dib: gwra/r", "tga: /r",
                      "tif: /gwr", "tiff: /gwr", "png: /gwraz", "rgb: ra/raz", "imgf: gw/",
                      "fro: gw/", "fre: gw/", "pd: gw/", "t1: gw/", "t2: gw/"});
    for (const RASTER_FORMAT &row : RASTER_FORMATS()) {
        CHECK(!row.legend.empty());
        CHECK(!row.values.empty());
    }
}

TEST_CASE("every format that a kind reads and writes gives its pictures back") {
    CHECK(RoundTrips<TGRAY>({}) == 2);            // pgm, pgm.gz
    CHECK(RoundTrips<TFULLGRAY>({}) == 2);        // the same
    CHECK(RoundTrips<TRGB>({"pbm", "pgm"}) == 7); // ppm, pnm, both packed, bmp, dib, rgb
    CHECK(RoundTrips<TRGBA>({}) == 1);            // rgb
}

TEST_CASE("the extension of a name is taken in any case") {
    CHECK(SavedAs<TGRAY>("a.PGM") == "a.PGM");
    CHECK(SavedAs<TGRAY>("a.Pgm.GZ") == "a.Pgm.GZ");
    CHECK(SavedAs<TRGB>("a.Tiff") == "a.Tiff");
}

TEST_CASE("saving adds the kind's extension to a name that has another one") {
    CHECK(SavedAs<TGRAY>("a") == "a.pgm");
    CHECK(SavedAs<TGRAY>("a.foo") == "a.foo.pgm");
    CHECK(SavedAs<TGRAY>("a.bmp") == "a.bmp.pgm");
    CHECK(SavedAs<TFULLGRAY>("a.ppm.gz") == "a.ppm.gz.pgm");
    CHECK(SavedAs<TRGB>("a.b.foo") == "a.b.foo.ppm");
    CHECK(SavedAs<TRGBA>("a.tif") == "a.tif.pam");
    CHECK(SavedAs<TZRGB>("a.tif") == "a.tif.pam"); // not offered for a depth
}

TEST_CASE("every writer adds its own extension to a name that has another one") {
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    const TRGB raster(1, 1);
    const UTF16 name(folder.PATH("a.x"));
    CHECK(SAVEPBM(raster, name));
    CHECK(SAVEPGM(raster, name));
    CHECK(SAVEPPM(raster, name));
    CHECK(SAVEPAM(raster, name));
    CHECK(SAVERGB(raster, name));
    CHECK(SAVEBMP(raster, name));
    CHECK(SAVETGA(raster, name));
    CHECK(SAVETIF(raster, name));
    CHECK(SAVEPNG(raster, name));
    for (const char *extension : {"pbm", "pgm", "ppm", "pam", "rgb", "bmp", "tga", "tif", "png"})
        CHECK(!folder.GET(std::string("a.x.") + extension).empty());
    CHECK(folder.ENTRIES() == 9);
}

TEST_CASE("a name with an extension that a kind cannot read is told and leaves an empty picture") {
    CAPTURE console;
    TGRAY gray(1, 1);
    CHECK(!LOAD(gray, "no/a.png"));
    CHECK(gray.EMPTY());
    TRGB colour(1, 1);
    CHECK(!LOAD(colour, "a.imgf"));
    CHECK(colour.EMPTY());
    TZRGB depth(1, 1);
    CHECK(!LOAD(depth, "a.ppm"));
    CHECK(depth.EMPTY());
    CHECK(console.TEXT() == "  Couldn't read File (no/a.png)! Create empty field.\n"
                            "  Couldn't read File (a.imgf)! Create empty field.\n"
                            "  Couldn't read File (a.ppm)! Create empty field.\n");
}

TEST_CASE("a file that is not there is told and leaves an empty picture") {
    CAPTURE console;
    const TEMPORARY_FOLDER folder;
    TRGB raster(1, 1);
    for (const char *name : {"a.ppm", "a.ppm.gz", "a.bmp", "a.rgb"}) {
        console.CLEAR();
        CHECK(!LOAD(raster, UTF16(folder.PATH(name))));
        CHECK(raster.EMPTY());
        CHECK(console.CONTAINS(") not found."));
    }
    TFULLGRAY gray(1, 1);
    CHECK(!LOAD(gray, UTF16(folder.PATH("a.t2"))));
    CHECK(gray.EMPTY());
}

TEST_CASE("a colour picture takes the name of the file that filled it") {
    CAPTURE console;
    const TEMPORARY_FOLDER folder;
    const UTF16 name(folder.PUT("a.ppm", "P3 1 1 255 1 2 3"));
    TRGB raster;
    CHECK(LOAD(raster, name));
    CHECK(raster.NAME == name);
}
