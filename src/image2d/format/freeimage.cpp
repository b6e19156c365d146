#include "image2d/format/freeimage.hpp"

#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"
#include "foundation/console/paths.hpp"
#include "image2d/format/external_rows.hpp"
#include "image2d/format/freeimage_library.hpp"
#include "image2d/format/library_file.hpp"
#include "image2d/format/library_search.hpp"

#include <bit>
#include <limits>
#include <memory>
#include <utility>

namespace morvane {
namespace {
// On processors that store the low byte first a colour pixel begins with blue.
constexpr SAMPLE_ORDER ORDER = std::endian::native == std::endian::little ? BGR_ORDER : RGB_ORDER;

// Owner of a picture of the library.
class BITMAP {
public:
    BITMAP(const FREEIMAGE_LIBRARY &library, FIBITMAP *picture)
        : routines(&library), handle(picture) {}
    BITMAP(BITMAP &&other)
    noexcept : routines(other.routines), handle(std::exchange(other.handle, nullptr)) {}
    BITMAP &operator=(BITMAP &&other) noexcept {
        std::swap(handle, other.handle);
        return *this;
    }
    ~BITMAP() {
        if (handle) routines->Unload(handle);
    }
    BITMAP(const BITMAP &) = delete;
    BITMAP &operator=(const BITMAP &) = delete;

    explicit operator bool() const { return handle != nullptr; }
    FIBITMAP *GET() const { return handle; }
    NAT WIDTH() const { return routines->GetWidth(handle); }
    NAT HEIGHT() const { return routines->GetHeight(handle); }
    NAT BITS() const { return routines->GetBPP(handle); }
    int KIND() const { return routines->GetImageType(handle); }
    // Row y from the top, from 1.
    BYTE *ROW(NAT y) const { return routines->GetScanLine(handle, static_cast<int>(HEIGHT() - y)); }
    using CONVERSION = FIBITMAP *(*FREEIMAGE_LIBRARY::*)(FIBITMAP *);
    void CONVERT(CONVERSION conversion) {
        *this = BITMAP(*routines, (routines->*conversion)(handle));
    }
    void CLEAR() { *this = BITMAP(*routines, nullptr); }

private:
    const FREEIMAGE_LIBRARY *routines;
    FIBITMAP *handle;
};

template <class RASTER> constexpr bool IS_FULL = std::is_same_v<RASTER, TFULLGRAY>;

template <class RASTER> UTF16 Title(NAT width, NAT height) {
    return LIBRARY_TITLE(EXTERNAL_KIND<RASTER>::TITLE, "FI", width, height);
}

// The picture's header alone, where the format allows it, tells whether its size can be true.
bool IsLikely(const FREEIMAGE_LIBRARY &fi, FREEIMAGE_LIBRARY::FORMAT format,
              const std::string &path, NAT fileBytes) {
    if (!fi.SupportsNoPixels(format)) return true;
    const BITMAP header(fi, fi.Load(format, path.c_str(), FIF_LOAD_NOPIXELS));
    return header &&
           IS_LIKELY_SIZE(header.WIDTH() * header.HEIGHT() / 8 * header.BITS(), fileBytes);
}

BITMAP OpenPicture(const FREEIMAGE_LIBRARY &fi, const UTF16 &name) {
    const NAT fileBytes = FILESIZE(name);
    const std::string path = LOADPATH(name);
    BITMAP none(fi, nullptr);
    if (fileBytes < 1) return none;
    FREEIMAGE_LIBRARY::FORMAT format = fi.GetFileType(path.c_str(), 0);
    if (format < 0) format = fi.GetFIFFromFilename(path.c_str());
    if (format < 0 || !fi.SupportsReading(format)) return none;
    FREEIMAGE_COMPLAINTS();
    if (!IsLikely(fi, format, path, fileBytes) || FREEIMAGE_COMPLAINTS() > 0) return none;
    const int flags = format == FIF_JPEG ? JPEG_ACCURATE : 0;
    BITMAP picture(fi, fi.Load(format, path.c_str(), flags));
    return FREEIMAGE_COMPLAINTS() > 0 ? std::move(none) : std::move(picture);
}

// To the pixels of the canvas; an empty picture for kinds that hold no plain colours (reals,
// complex numbers).
template <class RASTER> void Convert(BITMAP &picture) {
    using FI = FREEIMAGE_LIBRARY;
    const int kind = picture.KIND();
    const bool isDeep = kind == FIT_UINT16 || kind == FIT_RGB16 || kind == FIT_RGBA16;
    if (kind != FIT_BITMAP && !isDeep) return picture.CLEAR();
    if (IS_FULL<RASTER> && isDeep) {
        if (kind != FIT_UINT16) picture.CONVERT(&FI::ConvertToUINT16);
        return;
    }
    const bool isGray = EXTERNAL_KIND<RASTER>::CHANNELS == 1;
    if (isGray || kind == FIT_UINT16) picture.CONVERT(&FI::ConvertToGreyscale);
    if (isGray || !picture) return;
    picture.CONVERT(EXTERNAL_KIND<RASTER>::CHANNELS == 3 ? &FI::ConvertTo24Bits
                                                         : &FI::ConvertTo32Bits);
}

// Bits of a pixel that row by row go into the canvas as they are.
template <class RASTER> constexpr NAT BITS = EXTERNAL_KIND<RASTER>::BYTES * 8;

template <class RASTER> void TakeRow(RASTER &canvas, NAT y, const BITMAP &picture) {
    if constexpr (IS_FULL<RASTER>)
        // Deliberate: an 8-bit file on a 16-bit image keeps its values, whichever library reads it.
        if (picture.BITS() == 8) {
            const BYTE *source = picture.ROW(y);
            for (NAT x = 1; x <= canvas.WIDTH; ++x)
                canvas._PUT(x, y, source[x - 1]);
            return;
        }
    PUT_SAMPLES(canvas, y, picture.ROW(y), ORDER);
}

template <class RASTER> bool Load(RASTER &canvas, const UTF16 &name) {
    canvas.DONE();
    const FREEIMAGE_LIBRARY *fi = FREEIMAGE_ROUTINES();
    if (!fi) return false;
    const QUIET_TIFF quiet;
    BITMAP picture = OpenPicture(*fi, name);
    if (picture) Convert<RASTER>(picture);
    if (!picture) return false;
    const bool isWidened = IS_FULL<RASTER> && picture.BITS() == 8;
    if (picture.BITS() != BITS<RASTER> && !isWidened) return false;
    const NAT width = picture.WIDTH(), height = picture.HEIGHT();
    canvas.INIT(width, height);
    if (canvas.EMPTY()) return false;
    const UTF16 title = Title<RASTER>(width, height);
    for (NAT y = 1; y <= height; ++y) {
        PROGRESS(title, static_cast<REAL>(y) / static_cast<REAL>(height));
        TakeRow(canvas, y, picture);
    }
    PROGRESS();
    return true;
}

template <class RASTER> BITMAP Picture(const FREEIMAGE_LIBRARY &fi, const RASTER &canvas) {
    const NAT width = WIDTH_OF(canvas), height = HEIGHT_OF(canvas);
    BITMAP picture(fi,
                   fi.AllocateT(IS_FULL<RASTER> ? FIT_UINT16 : FIT_BITMAP, static_cast<int>(width),
                                static_cast<int>(height), static_cast<int>(BITS<RASTER>), 0, 0, 0));
    if (!picture) return picture;
    const UTF16 title = Title<RASTER>(width, height);
    for (NAT y = 1; y <= height; ++y) {
        PROGRESS(title, static_cast<REAL>(y) / static_cast<REAL>(height));
        GET_SAMPLES(canvas, y, picture.ROW(y), ORDER);
    }
    PROGRESS();
    return picture;
}

// The conversions that a format needs of a kind of pixels; first null: as they are. False when the
// format takes none of them.
bool FitTo(const FREEIMAGE_LIBRARY &fi, FREEIMAGE_LIBRARY::FORMAT format, NAT bits,
           BITMAP::CONVERSION (&steps)[2]) {
    using FI = FREEIMAGE_LIBRARY;
    if (bits == 16) {
        if (fi.SupportsExportType(format, FIT_UINT16)) return true;
        steps[0] = &FI::ConvertToGreyscale;
        bits = 8;
    }
    // The writer of JPEG takes 32 bits for the four inks of print alone.
    const bool isInk = bits == 32 && format == FIF_JPEG;
    if (!isInk && fi.SupportsExportBPP(format, static_cast<int>(bits))) return true;
    steps[1] = bits == 24 ? &FI::ConvertTo32Bits : &FI::ConvertTo24Bits;
    return fi.SupportsExportBPP(format, bits == 24 ? 32 : 24) != 0;
}

// The picture as the bytes of a file.
std::string Encoded(const FREEIMAGE_LIBRARY &fi, FREEIMAGE_LIBRARY::FORMAT format,
                    const BITMAP &picture) {
    const std::unique_ptr<FIMEMORY, void (*)(FIMEMORY *)> memory(fi.OpenMemory(nullptr, 0),
                                                                 fi.CloseMemory);
    const int flags = format == FIF_JPEG ? JPEG_QUALITYSUPERB | JPEG_SUBSAMPLING_444 : 0;
    BYTE *data = nullptr;
    std::uint32_t size = 0;
    FREEIMAGE_COMPLAINTS();
    if (!memory || !fi.SaveToMemory(format, picture.GET(), memory.get(), flags) ||
        FREEIMAGE_COMPLAINTS() > 0 || !fi.AcquireMemory(memory.get(), &data, &size))
        return {};
    return {reinterpret_cast<const char *>(data), size};
}
} // namespace

bool LOADFREEIMAGE_GRAY(TGRAY &canvas, const UTF16 &name) { return Load(canvas, name); }
bool LOADFREEIMAGE_FULLGRAY(TFULLGRAY &canvas, const UTF16 &name) { return Load(canvas, name); }
bool LOADFREEIMAGE_RGB(TRGB &canvas, const UTF16 &name) { return Load(canvas, name); }
bool LOADFREEIMAGE_RGBA(TRGBA &canvas, const UTF16 &name) { return Load(canvas, name); }
bool LOADFREEIMAGE_ZRGB(TZRGB &canvas, const UTF16 &name) { return Load(canvas, name); }

template <class RASTER> bool SAVEFREEIMAGE(const RASTER &canvas, const UTF16 &name) {
    const FREEIMAGE_LIBRARY *fi = FREEIMAGE_ROUTINES();
    constexpr NAT LONGEST = std::numeric_limits<int>::max() / 8;
    if (!fi || canvas.EMPTY() || WIDTH_OF(canvas) > LONGEST || HEIGHT_OF(canvas) > LONGEST)
        return false;
    const QUIET_TIFF quiet;
    const int format = fi->GetFIFFromFilename(SAVEPATH(name).c_str());
    BITMAP::CONVERSION steps[2] = {nullptr, nullptr};
    if (format < 0 || !FitTo(*fi, format, BITS<RASTER>, steps)) return false;
    BITMAP picture = Picture(*fi, canvas);
    for (const BITMAP::CONVERSION step : steps)
        if (step && picture) picture.CONVERT(step);
    const std::string bytes = picture ? Encoded(*fi, format, picture) : std::string();
    return !bytes.empty() && WRITE_LIBRARY_FILE(name, bytes);
}

template bool SAVEFREEIMAGE(const TGRAY &, const UTF16 &);
template bool SAVEFREEIMAGE(const TFULLGRAY &, const UTF16 &);
template bool SAVEFREEIMAGE(const TRGB &, const UTF16 &);
template bool SAVEFREEIMAGE(const TRGBA &, const UTF16 &);
template bool SAVEFREEIMAGE(const TZRGB &, const UTF16 &);
} // namespace morvane
