#pragma once

#include "foundation/base/utf16.hpp"

#include <cstdint>

// The routines of FreeImage 3 that are used, with the types of its documentation.
namespace morvane {
struct FIBITMAP; // a picture of the library; rows of 4-byte alignment, the last one first
struct FIMEMORY; // a file in memory

struct FREEIMAGE_LIBRARY {
    using BOOL = std::int32_t;
    using FORMAT = int; // FREE_IMAGE_FORMAT; below 0: unknown
    using MESSAGE = void (*)(FORMAT format, const char *text);

    void (*Initialise)(BOOL localOnly) = nullptr;
    void (*DeInitialise)() = nullptr;
    const char *(*GetVersion)() = nullptr;
    void (*SetOutputMessage)(MESSAGE) = nullptr;
    FIBITMAP *(*AllocateT)(int type, int width, int height, int bits, unsigned red, unsigned green,
                           unsigned blue) = nullptr;
    FIBITMAP *(*Load)(FORMAT, const char *file, int flags) = nullptr;
    FORMAT (*GetFileType)(const char *file, int size) = nullptr;
    FORMAT (*GetFIFFromFilename)(const char *file) = nullptr;
    const char *(*GetFormatFromFIF)(FORMAT) = nullptr;
    BOOL (*SupportsReading)(FORMAT) = nullptr;
    BOOL (*SupportsNoPixels)(FORMAT) = nullptr;
    BOOL (*SupportsExportBPP)(FORMAT, int bits) = nullptr;
    BOOL (*SupportsExportType)(FORMAT, int type) = nullptr;
    unsigned (*GetWidth)(FIBITMAP *) = nullptr;
    unsigned (*GetHeight)(FIBITMAP *) = nullptr;
    unsigned (*GetBPP)(FIBITMAP *) = nullptr;
    int (*GetImageType)(FIBITMAP *) = nullptr;
    FIBITMAP *(*ConvertToGreyscale)(FIBITMAP *) = nullptr;
    FIBITMAP *(*ConvertToUINT16)(FIBITMAP *) = nullptr;
    FIBITMAP *(*ConvertTo24Bits)(FIBITMAP *) = nullptr;
    FIBITMAP *(*ConvertTo32Bits)(FIBITMAP *) = nullptr;
    BYTE *(*GetScanLine)(FIBITMAP *, int line) = nullptr;
    void (*Unload)(FIBITMAP *) = nullptr;
    FIMEMORY *(*OpenMemory)(BYTE *data, std::uint32_t size) = nullptr;
    void (*CloseMemory)(FIMEMORY *) = nullptr;
    BOOL (*SaveToMemory)(FORMAT, FIBITMAP *, FIMEMORY *, int flags) = nullptr;
    BOOL (*AcquireMemory)(FIMEMORY *, BYTE **data, std::uint32_t *size) = nullptr;
};

// Kinds of pixels, flags, and the only format whose writer takes flags here.
inline constexpr int FIT_BITMAP = 1, FIT_UINT16 = 2, FIT_RGB16 = 9, FIT_RGBA16 = 10;
inline constexpr int FIF_JPEG = 2;
inline constexpr int FIF_LOAD_NOPIXELS = 0x8000; // the header alone
inline constexpr int JPEG_ACCURATE = 2, JPEG_QUALITYSUPERB = 0x80, JPEG_SUBSAMPLING_444 = 0x4000;

// Keeps libtiff, which both image libraries share, quiet while it lives: its messages would go to
// standard error, or to the handler of the other library, which aborts when it isn't at work.
class QUIET_TIFF {
public:
    QUIET_TIFF();
    ~QUIET_TIFF();
    QUIET_TIFF(const QUIET_TIFF &) = delete;
    QUIET_TIFF &operator=(const QUIET_TIFF &) = delete;

private:
    void *errorHandler = nullptr, *warningHandler = nullptr; // as they were
};

// The library, searched for and initialised at the first call; null when it isn't there. The
// environment's MORVANE_FREEIMAGE names the only file that is tried; empty: none.
const FREEIMAGE_LIBRARY *FREEIMAGE_ROUTINES();
// Complaints of the library since the last call; each was told on the console.
NAT FREEIMAGE_COMPLAINTS();
} // namespace morvane
