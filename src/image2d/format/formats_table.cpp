#include "image2d/format/formats_table.hpp"

#include "foundation/console/console.hpp"
#include "foundation/console/paths.hpp"

#include <array>

namespace morvane {
namespace {
// The writer for all names whose extension the kind does not write: it adds its own.
template <class RASTER> bool SaveOwn(const RASTER &raster, const UTF16 &name) {
    if constexpr (ANY_OF<RASTER, TGRAY, TFULLGRAY>)
        return SAVEPGM(raster, name);
    else if constexpr (std::same_as<RASTER, TRGB>)
        return SAVEPPM(raster, name);
    else
        return SAVEPAM(raster, name);
}

constexpr std::string_view PNM_VALUES =
    "A 16-bit file on an 8-bit image loses its low bytes; all other values stay as they are. Grey "
    "from colour is the mean of the components. Colour images take values up to 255.";
constexpr std::string_view IMGF_VALUES =
    "Big-endian. A 16-bit file on an 8-bit image loses its low bytes.";
constexpr std::string_view BMP_VALUES =
    "1, 4, 8 and 24 bits, not compressed, bottom up; a palette is followed. Written with 24 bits.";
constexpr std::string_view TIF_VALUES = "Little-endian, not compressed, one strip.";

constexpr RASTER_FORMAT Pnm(std::string_view extension, std::string_view legend) {
    return {.extension = extension,
            .zipped = true,
            .legend = legend,
            .values = PNM_VALUES,
            .gray = {LOADPNM<TGRAY>, nullptr},
            .fullGray = {LOADPNM<TFULLGRAY>, nullptr},
            .rgb = {LOADPNM<TRGB>, SAVEPPM},
            .rgba = {LOADPNM<TRGBA>, nullptr},
            .zrgb = {}};
}

constexpr RASTER_FORMAT Pbm() {
    RASTER_FORMAT row = Pnm("pbm", "PBM, portable bitmap: black and white");
    row.values =
        "Black is 0 and white is 255. Written black where the pixel has half brightness or "
        "less.";
    row.rgb.write = SAVEPBM;
    return row;
}

constexpr RASTER_FORMAT Pgm() {
    RASTER_FORMAT row = Pnm("pgm", "PGM, portable greymap of 8 or 16 bits");
    row.gray.write = SAVEPGM<TGRAY>;
    row.fullGray.write = SAVEPGM<TFULLGRAY>;
    row.rgb.write = SAVEPGM<TRGB>;
    return row;
}

constexpr RASTER_FORMAT Bmp(std::string_view extension) {
    return {.extension = extension,
            .zipped = false,
            .legend = "BMP, bitmap of Windows and OS/2",
            .values = BMP_VALUES,
            .gray = {LOADBMP<TGRAY>, nullptr},
            .fullGray = {LOADBMP<TFULLGRAY>, nullptr},
            .rgb = {LOADBMP<TRGB>, SAVEBMP},
            .rgba = {LOADBMP<TRGBA>, nullptr},
            .zrgb = {}};
}

constexpr RASTER_FORMAT Tif(std::string_view extension) {
    return {.extension = extension,
            .zipped = false,
            .legend = "TIFF, tagged image file",
            .values = TIF_VALUES,
            .gray = {nullptr, SAVETIF<TGRAY>},
            .fullGray = {nullptr, SAVETIF<TFULLGRAY>},
            .rgb = {nullptr, SAVETIF<TRGB>},
            .rgba = {},
            .zrgb = {}};
}

constexpr RASTER_FORMAT Imgf(std::string_view extension) {
    return {.extension = extension,
            .zipped = false,
            .legend = "IMGF, grey values of a scanner",
            .values = IMGF_VALUES,
            .gray = {LOADIMGF<TGRAY>, nullptr},
            .fullGray = {LOADIMGF<TFULLGRAY>, nullptr},
            .rgb = {},
            .rgba = {},
            .zrgb = {}};
}

constexpr RASTER_FORMAT PAM = {
    .extension = "pam",
    .zipped = true,
    .legend = "PAM, portable arbitrary map: colour, with alpha where the image has it",
    .values = "8 bits a component.",
    .gray = {},
    .fullGray = {},
    .rgb = {nullptr, SAVEPAM<TRGB>},
    .rgba = {nullptr, SAVEPAM<TRGBA>},
    .zrgb = {nullptr, SAVEPAM<TZRGB>},
};
constexpr RASTER_FORMAT TGA = {
    .extension = "tga",
    .zipped = false,
    .legend = "TGA, Truevision",
    .values = "24 bits, not compressed, bottom up.",
    .gray = {},
    .fullGray = {},
    .rgb = {nullptr, SAVETGA},
    .rgba = {},
    .zrgb = {},
};
constexpr RASTER_FORMAT PNG = {
    .extension = "png",
    .zipped = false,
    .legend = "PNG, portable network graphics",
    .values = "All values of all kinds; the data are not compressed.",
    .gray = {nullptr, SAVEPNG<TGRAY>},
    .fullGray = {nullptr, SAVEPNG<TFULLGRAY>},
    .rgb = {nullptr, SAVEPNG<TRGB>},
    .rgba = {nullptr, SAVEPNG<TRGBA>},
    .zrgb = {nullptr, SAVEPNG<TZRGB>},
};
constexpr RASTER_FORMAT RAW_RGB = {
    .extension = "rgb",
    .zipped = false,
    .legend = "raw colour: \"RGB \", width and height, pixels",
    .values = "2, 3 or 4 bytes a pixel, by the size of the file: nibbles red, green, blue, alpha, "
              "or bytes. Written with 4 bytes.",
    .gray = {},
    .fullGray = {},
    .rgb = {LOADRGB<TRGB>, SAVERGB<TRGB>},
    .rgba = {LOADRGB<TRGBA>, SAVERGB<TRGBA>},
    .zrgb = {nullptr, SAVERGB<TZRGB>},
};

constexpr std::array FORMATS = {
    Pbm(),
    Pgm(),
    Pnm("ppm", "PPM, portable pixmap: colour"),
    Pnm("pnm", "PNM, any of PBM, PGM and PPM; written as PPM"),
    PAM,
    Bmp("bmp"),
    Bmp("dib"),
    TGA,
    Tif("tif"),
    Tif("tiff"),
    PNG,
    RAW_RGB,
    Imgf("imgf"),
    Imgf("fro"),
    Imgf("fre"),
    Imgf("pd"),
    Imgf("t1"),
    Imgf("t2"),
};
} // namespace

bool RASTER_FORMAT::MATCHES(std::string_view fileExtension) const {
    if (zipped && fileExtension.ends_with(".gz"))
        return fileExtension.substr(0, fileExtension.size() - 3) == extension;
    return fileExtension == extension;
}

std::span<const RASTER_FORMAT> RASTER_FORMATS() { return FORMATS; }

const RASTER_FORMAT *RASTER_FORMAT_OF(const UTF16 &name) {
    const std::string extension = GETUTF8(LOWERCASE(GETFILEEXTENSION(name)));
    for (const RASTER_FORMAT &format : FORMATS)
        if (format.MATCHES(extension)) return &format;
    return nullptr;
}

template <ANY_OF<TGRAY, TFULLGRAY, TRGB, TRGBA, TZRGB> RASTER>
bool LOAD(RASTER &raster, const UTF16 &name) {
    const RASTER_FORMAT *format = RASTER_FORMAT_OF(name);
    const auto read = format ? format->CODEC<RASTER>().read : nullptr;
    if (read) return read(raster, name);
    raster.INIT();
    return TELL_UNREAD(name);
}

template <ANY_OF<TGRAY, TFULLGRAY, TRGB, TRGBA, TZRGB> RASTER>
bool SAVE(const RASTER &raster, const UTF16 &name) {
    const RASTER_FORMAT *format = RASTER_FORMAT_OF(name);
    const auto write = format ? format->CODEC<RASTER>().write : nullptr;
    return write ? write(raster, name) : SaveOwn(raster, name);
}

template bool LOAD(TGRAY &, const UTF16 &);
template bool LOAD(TFULLGRAY &, const UTF16 &);
template bool LOAD(TRGB &, const UTF16 &);
template bool LOAD(TRGBA &, const UTF16 &);
template bool LOAD(TZRGB &, const UTF16 &);
template bool SAVE(const TGRAY &, const UTF16 &);
template bool SAVE(const TFULLGRAY &, const UTF16 &);
template bool SAVE(const TRGB &, const UTF16 &);
template bool SAVE(const TRGBA &, const UTF16 &);
template bool SAVE(const TZRGB &, const UTF16 &);

bool TELL_UNREAD(const UTF16 &name) {
    WRITELN("  Couldn't read File (" + GETUTF8(name) + ")! Create empty field.");
    return false;
}
} // namespace morvane
