#include "image2d/format/external.hpp"

#include "foundation/console/paths.hpp"
#include "image2d/format/external_rows.hpp"
#include "image2d/format/freeimage.hpp"
#include "image2d/format/freeimage_library.hpp"
#include "image2d/format/imagemagick.hpp"
#include "image2d/format/imagemagick_library.hpp"
#include "image2d/format/library_file.hpp"
#include "image2d/format/library_search.hpp"

namespace morvane {
namespace {
// Whether a library is used. What the run forbids no script allows again.
struct USE {
    bool enabled = true, forbidden = false;

    bool ALLOWED() const { return enabled && !forbidden; }
};
USE freeimage, imagemagick;

bool Freeimage(TGRAY &canvas, const UTF16 &name) { return LOADFREEIMAGE_GRAY(canvas, name); }
bool Freeimage(TFULLGRAY &canvas, const UTF16 &name) {
    return LOADFREEIMAGE_FULLGRAY(canvas, name);
}
bool Freeimage(TRGB &canvas, const UTF16 &name) { return LOADFREEIMAGE_RGB(canvas, name); }
bool Freeimage(TRGBA &canvas, const UTF16 &name) { return LOADFREEIMAGE_RGBA(canvas, name); }
bool Freeimage(TZRGB &canvas, const UTF16 &name) { return LOADFREEIMAGE_ZRGB(canvas, name); }

bool Imagemagick(TGRAY &canvas, const UTF16 &name) { return LOADMAGICKBITMAP_GRAY(canvas, name); }
bool Imagemagick(TFULLGRAY &canvas, const UTF16 &name) {
    return LOADMAGICKBITMAP_FULLGRAY(canvas, name);
}
bool Imagemagick(TRGB &canvas, const UTF16 &name) { return LOADMAGICKBITMAP_RGB(canvas, name); }
bool Imagemagick(TRGBA &canvas, const UTF16 &name) { return LOADMAGICKBITMAP_RGBA(canvas, name); }
bool Imagemagick(TZRGB &canvas, const UTF16 &name) { return LOADMAGICKBITMAP_ZRGB(canvas, name); }

// The first `count` words of a text.
std::string FirstWords(const std::string &text, int count) {
    std::size_t end = 0;
    for (int i = 0; i < count && end != std::string::npos; ++i)
        end = text.find(' ', end + (i > 0));
    return text.substr(0, end);
}

// Deliberate: colours saved as pgm or pbm are turned grey by the own writers, not by a library.
template <class RASTER> bool IsOwnConversion(const std::string &extension) {
    return EXTERNAL_KIND<RASTER>::CHANNELS > 1 && (extension == "pgm" || extension == "pbm");
}
} // namespace

bool FREEIMAGE() { return freeimage.ALLOWED() && FREEIMAGE_ROUTINES(); }
bool IMAGEMAGICK() { return imagemagick.ALLOWED() && IMAGEMAGICK_ROUTINES(); }

UTF16 FREEIMAGE_VERSION() {
    const FREEIMAGE_LIBRARY *fi = FREEIMAGE_ROUTINES();
    return fi ? UTF16("FreeImage " + LIBRARY_WORDS(fi->GetVersion())) : UTF16();
}

// Of "ImageMagick 6.9.11-60 Q16 x86_64 2021-01-25 ..." what names the build.
UTF16 IMAGEMAGICK_VERSION() {
    const IMAGEMAGICK_LIBRARY *im = IMAGEMAGICK_ROUTINES();
    std::size_t number = 0;
    return im ? UTF16(FirstWords(LIBRARY_WORDS(im->GetVersion(&number)), 3)) : UTF16();
}

void DISABLE_FREEIMAGE() { freeimage.enabled = false; }
void ENABLE_FREEIMAGE() { freeimage.enabled = true; }
void FORBID_FREEIMAGE() { freeimage.forbidden = true; }
void DISABLE_IMAGEMAGICK() { imagemagick.enabled = false; }
void ENABLE_IMAGEMAGICK() { imagemagick.enabled = true; }
void FORBID_IMAGEMAGICK() { imagemagick.forbidden = true; }
void RESET_LIBRARIES() { freeimage = imagemagick = {}; }

template <class RASTER> bool EXTERNAL_LOAD(RASTER &canvas, const UTF16 &name) {
    canvas.DONE();
    const std::string extension = LIBRARY_EXTENSION(name);
    // Deliberate: PNM files with another maximum than 255 or 65535 keep their values, so no library
    // reads them.
    if (extension.empty() && !GETFILEEXTENSION(name).EMPTY()) return false;
    if (IS_LEFT_TO_OWN(name)) return false;
    return (FREEIMAGE() && Freeimage(canvas, name)) || (IMAGEMAGICK() && Imagemagick(canvas, name));
}

template <class RASTER> bool EXTERNAL_SAVE(const RASTER &canvas, const UTF16 &name) {
    const std::string extension = LIBRARY_EXTENSION(name);
    if (extension.empty() || IsOwnConversion<RASTER>(extension)) return false;
    return (FREEIMAGE() && SAVEFREEIMAGE(canvas, name)) ||
           (IMAGEMAGICK() && SAVEMAGICKBITMAP(canvas, name));
}

template bool EXTERNAL_LOAD(TGRAY &, const UTF16 &);
template bool EXTERNAL_LOAD(TFULLGRAY &, const UTF16 &);
template bool EXTERNAL_LOAD(TRGB &, const UTF16 &);
template bool EXTERNAL_LOAD(TRGBA &, const UTF16 &);
template bool EXTERNAL_LOAD(TZRGB &, const UTF16 &);
template bool EXTERNAL_SAVE(const TGRAY &, const UTF16 &);
template bool EXTERNAL_SAVE(const TFULLGRAY &, const UTF16 &);
template bool EXTERNAL_SAVE(const TRGB &, const UTF16 &);
template bool EXTERNAL_SAVE(const TRGBA &, const UTF16 &);
template bool EXTERNAL_SAVE(const TZRGB &, const UTF16 &);
} // namespace morvane
