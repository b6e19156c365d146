#include "image2d/format/imagemagick.hpp"

#include "foundation/console/console.hpp"
#include "image2d/format/external_rows.hpp"
#include "image2d/format/imagemagick_library.hpp"
#include "image2d/format/library_file.hpp"
#include "image2d/format/library_search.hpp"

#include <limits>
#include <new>
#include <string>
#include <vector>

namespace morvane {
namespace {
constexpr std::size_t BEST_QUALITY = 100; // of formats that lose something
// The longest blanks that may stand before the first word of a drawing script.
constexpr std::size_t HEAD_BYTES = 512;

// Owner of a wand, with its complaints.
class WAND {
public:
    explicit WAND(const IMAGEMAGICK_LIBRARY &library) : im(library) {
        IMAGEMAGICK_START();
        handle = im.NewWand();
    }
    ~WAND() {
        if (handle) im.DestroyWand(handle);
    }
    WAND(const WAND &) = delete;
    WAND &operator=(const WAND &) = delete;

    operator MAGICK_WAND *() const { return handle; }
    // Whether a call went well: it succeeded, and nothing says that the file is damaged. Anything
    // else is told, but for a format that the library doesn't know.
    bool IS_WELL(int succeeded) const {
        int severity = 0;
        char *text = im.GetException(handle, &severity);
        const std::string words = LIBRARY_WORDS(text);
        if (text) im.RelinquishMemory(text);
        const bool isBad = severity >= MAGICK_ERROR || severity == MAGICK_DAMAGED;
        if (succeeded && !isBad) return true;
        if (severity != 0 && severity != MAGICK_UNKNOWN_FORMAT)
            WRITELN("Imagemagick error (" + GETSTRING(severity) + "): " + words);
        return false;
    }
    const IMAGEMAGICK_LIBRARY &im;

private:
    MAGICK_WAND *handle;
};

template <class RASTER> constexpr bool IS_FULL = std::is_same_v<RASTER, TFULLGRAY>;
template <class RASTER> constexpr NAT CHANNELS = EXTERNAL_KIND<RASTER>::CHANNELS;

template <class RASTER> constexpr const char *Map() {
    return CHANNELS<RASTER> == 1 ? "I" : CHANNELS<RASTER> == 3 ? "RGB" : "RGBA";
}

template <class RASTER> UTF16 Title(const char *path, NAT width, NAT height) {
    return LIBRARY_TITLE(EXTERNAL_KIND<RASTER>::TITLE, path, width, height);
}

// Drawing scripts that the library would carry out: they read and write other files.
bool IsDrawingScript(const std::string &bytes) {
    const std::string head = bytes.substr(0, HEAD_BYTES);
    const std::size_t first = head.find_first_not_of(" \t\r\n");
    if (first == std::string::npos) return false;
    for (const char *word : {"push ", "viewbox ", "<msl", "<image", "<group"})
        if (head.compare(first, std::string_view(word).size(), word) == 0) return true;
    return head.find("<msl") != std::string::npos;
}

// Hands the bytes to the library, the header first, so that its size is known before its pixels
// are unpacked.
bool ReadPicture(WAND &wand, const std::string &bytes, const std::string &extension) {
    const IMAGEMAGICK_LIBRARY &im = wand.im;
    if (IS_MAGICK_FORMAT(extension)) im.SetFormat(wand, extension.c_str());
    if (!wand.IS_WELL(im.PingBlob(wand, bytes.data(), bytes.size()))) return false;
    im.ResetIterator(wand);
    const NAT width = static_cast<NAT>(im.GetWidth(wand));
    const NAT height = static_cast<NAT>(im.GetHeight(wand));
    return width > 0 && height > 0 &&
           IS_LIKELY_SIZE(width * height * 8, static_cast<NAT>(bytes.size()));
}

// A row of samples as the library gives them; false when it fails.
using SAMPLES = std::vector<WORD>;
bool ExportRow(const WAND &wand, NAT y, NAT width, const char *map, bool isDeep, SAMPLES &row) {
    return wand.im.ExportPixels(wand, 0, y - 1, static_cast<std::size_t>(width), 1, map,
                                isDeep ? MAGICK_SHORT : MAGICK_CHAR, row.data()) != 0;
}

// The row for the canvas. A 16-bit file on 8-bit pixels loses its low bytes, an 8-bit file on a
// 16-bit image keeps its values.
template <class RASTER> void TakeRow(RASTER &canvas, NAT y, SAMPLES &row, bool isDeep) {
    const std::size_t count = row.size();
    BYTE *bytes = reinterpret_cast<BYTE *>(row.data());
    if (isDeep && !IS_FULL<RASTER>)
        for (std::size_t i = 0; i < count; ++i)
            bytes[i] = static_cast<BYTE>(row[i] >> 8);
    if (!isDeep && IS_FULL<RASTER>)
        for (std::size_t i = count; i-- > 0;)
            row[i] = bytes[i];
    PUT_SAMPLES(canvas, y, bytes, RGB_ORDER);
}

bool TELL_CUT() {
    WRITELN("Imagemagick error (" + GETSTRING(MAGICK_DAMAGED) + "): the file has no end");
    return false;
}

// Rows of a TGA file come as they lie in the file, by its own rule from the bottom up.
void TurnTga(const WAND &wand) {
    const int first = wand.im.GetOrientation(wand);
    if (first == MAGICK_BOTTOMLEFT || first == MAGICK_BOTTOMRIGHT) wand.im.Flip(wand);
    if (first == MAGICK_TOPRIGHT || first == MAGICK_BOTTOMRIGHT) wand.im.Flop(wand);
}

template <class RASTER> bool TakePicture(RASTER &canvas, const WAND &wand) {
    const IMAGEMAGICK_LIBRARY &im = wand.im;
    const NAT width = static_cast<NAT>(im.GetWidth(wand));
    const NAT height = static_cast<NAT>(im.GetHeight(wand));
    const bool isDeep = im.GetDepth(wand) > 8;
    const int space = im.GetColorspace(wand);
    if (space != MAGICK_GRAY && space != MAGICK_SRGB && space != MAGICK_LINEAR)
        im.TransformColorspace(wand, MAGICK_SRGB);
    canvas.INIT(width, height);
    if (canvas.EMPTY()) return false;
    SAMPLES row(static_cast<std::size_t>(width * CHANNELS<RASTER>));
    const UTF16 title = Title<RASTER>("IM", width, height);
    for (NAT y = 1; y <= height; ++y) {
        PROGRESS(title, static_cast<REAL>(y) / static_cast<REAL>(height));
        if (!ExportRow(wand, y, width, Map<RASTER>(), isDeep, row)) return wand.IS_WELL(0);
        TakeRow(canvas, y, row, isDeep);
    }
    PROGRESS();
    return true;
}

template <class RASTER> bool Load(RASTER &canvas, const UTF16 &name) try {
    canvas.DONE();
    const IMAGEMAGICK_LIBRARY *im = IMAGEMAGICK_ROUTINES();
    const std::string bytes = im ? READ_LIBRARY_FILE(name) : std::string();
    if (bytes.empty() || IsDrawingScript(bytes)) return false;
    if (IS_CUT_JPEG(bytes)) return TELL_CUT();
    const std::string extension = LIBRARY_EXTENSION(name);
    {
        WAND header(*im);
        if (!header || !ReadPicture(header, bytes, extension)) return false;
    }
    WAND wand(*im);
    if (!wand) return false;
    if (IS_MAGICK_FORMAT(extension)) im->SetFormat(wand, extension.c_str());
    if (!wand.IS_WELL(im->ReadBlob(wand, bytes.data(), bytes.size()))) return false;
    im->ResetIterator(wand);
    if (extension == "tga") TurnTga(wand);
    if (TakePicture(canvas, wand)) return true;
    canvas.DONE();
    return false;
} catch (const std::bad_alloc &) {
    canvas.DONE();
    return false;
}

// The words for the way in which grey pixels go to the library.
const char *PathOf(int storage) {
    switch (storage) {
    case MAGICK_CHAR: return "IM:RGB";
    case MAGICK_SHORT: return "IM:Fullrgb";
    case MAGICK_FLOAT: return "IM:Floatrgb";
    default: return "IM:Doublergb";
    }
}

// Samples of one row, widened or narrowed to what the library counts in. Reals are 0..1.
class IMPORT_ROW {
public:
    IMPORT_ROW(int storageKind, NAT count)
        : storage(storageKind), bytes(static_cast<std::size_t>(count)), words(bytes.size()),
          floats(bytes.size()), doubles(bytes.size()) {}

    // From samples of 0..maximum, which is 255 or 65535.
    template <class SAMPLE> const void *FILL(const SAMPLE *samples) {
        constexpr int MAXIMUM = std::numeric_limits<SAMPLE>::max();
        constexpr bool IS_DEEP = MAXIMUM > 255;
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            const int sample = samples[i];
            switch (storage) {
            case MAGICK_CHAR: bytes[i] = static_cast<BYTE>(IS_DEEP ? sample >> 8 : sample); break;
            case MAGICK_SHORT: words[i] = static_cast<WORD>(IS_DEEP ? sample : sample * 257); break;
            case MAGICK_FLOAT:
                floats[i] = static_cast<float>(sample) / static_cast<float>(MAXIMUM);
                break;
            default: doubles[i] = static_cast<double>(sample) / MAXIMUM;
            }
        }
        return DATA();
    }

private:
    const void *DATA() const {
        switch (storage) {
        case MAGICK_CHAR: return bytes.data();
        case MAGICK_SHORT: return words.data();
        case MAGICK_FLOAT: return floats.data();
        default: return doubles.data();
        }
    }

    int storage;
    std::vector<BYTE> bytes;
    std::vector<WORD> words;
    std::vector<float> floats;
    std::vector<double> doubles;
};

bool PutEmptyPicture(const WAND &wand, NAT width, NAT height, bool hasAlpha) {
    const IMAGEMAGICK_LIBRARY &im = wand.im;
    PIXEL_WAND *black = im.NewPixel();
    if (!black) return false;
    im.SetAlpha(black, 1);
    const int isMade =
        im.NewImage(wand, static_cast<std::size_t>(width), static_cast<std::size_t>(height), black);
    im.DestroyPixel(black);
    if (hasAlpha && isMade) im.SetAlphaChannel(wand, MAGICK_ACTIVATE_ALPHA);
    return wand.IS_WELL(isMade);
}

// Black and white at half brightness, without the dots that the library would make of grey.
template <class SAMPLE> void MakeBilevel(std::vector<SAMPLE> &samples) {
    constexpr SAMPLE MAXIMUM = std::numeric_limits<SAMPLE>::max();
    for (SAMPLE &sample : samples)
        sample = sample <= MAXIMUM / 2 ? SAMPLE{0} : MAXIMUM;
}

template <class RASTER>
bool PutPicture(const RASTER &canvas, const WAND &wand, const std::string &extension) {
    using SAMPLE = std::conditional_t<IS_FULL<RASTER>, WORD, BYTE>;
    const NAT width = WIDTH_OF(canvas), height = HEIGHT_OF(canvas);
    if (!PutEmptyPicture(wand, width, height, CHANNELS<RASTER> == 4)) return false;
    const int storage = IMAGEMAGICK_STORAGE();
    std::vector<SAMPLE> samples(static_cast<std::size_t>(width * CHANNELS<RASTER>));
    IMPORT_ROW row(storage, width * CHANNELS<RASTER>);
    const UTF16 title =
        Title<RASTER>(CHANNELS<RASTER> == 1 ? PathOf(storage) : "IM", width, height);
    for (NAT y = 1; y <= height; ++y) {
        PROGRESS(title, static_cast<REAL>(y) / static_cast<REAL>(height));
        GET_SAMPLES(canvas, y, reinterpret_cast<BYTE *>(samples.data()), RGB_ORDER);
        if (extension == "pbm") MakeBilevel(samples);
        const void *data = row.FILL(samples.data());
        if (!wand.im.ImportPixels(wand, 0, y - 1, static_cast<std::size_t>(width), 1, Map<RASTER>(),
                                  storage, data))
            return wand.IS_WELL(0);
    }
    PROGRESS();
    return true;
}

// Format, depth and type; PNG files would shrink to fewer bits where the values allow it.
template <class RASTER> void Describe(const WAND &wand, const std::string &extension) {
    const IMAGEMAGICK_LIBRARY &im = wand.im;
    constexpr NAT N = CHANNELS<RASTER>;
    im.SetImageFormat(wand, extension.c_str());
    if (extension == "tga") im.SetOrientation(wand, MAGICK_TOPLEFT);
    im.SetImageDepth(wand, IS_FULL<RASTER> ? 16 : 8);
    im.SetImageType(wand, extension == "pbm" ? MAGICK_BILEVEL
                          : N == 1           ? MAGICK_GRAYSCALE
                          : N == 3           ? MAGICK_TRUECOLOR
                                             : MAGICK_TRUECOLOR_ALPHA);
    im.SetOption(wand, "png:bit-depth", IS_FULL<RASTER> ? "16" : "8");
    im.SetOption(wand, "png:color-type", N == 1 ? "0" : N == 3 ? "2" : "6");
    if (extension.starts_with("jp") || extension == "webp") im.SetQuality(wand, BEST_QUALITY);
}

// The picture as the bytes of a file; empty when the library fails.
std::string Encoded(const WAND &wand) {
    std::size_t size = 0;
    unsigned char *data = wand.im.GetBlob(wand, &size);
    const bool isWell = wand.IS_WELL(data != nullptr);
    std::string bytes;
    if (isWell) bytes.assign(reinterpret_cast<const char *>(data), size);
    if (data) wand.im.RelinquishMemory(data);
    return bytes;
}
} // namespace

bool LOADMAGICKBITMAP_GRAY(TGRAY &canvas, const UTF16 &name) { return Load(canvas, name); }
bool LOADMAGICKBITMAP_FULLGRAY(TFULLGRAY &canvas, const UTF16 &name) { return Load(canvas, name); }
bool LOADMAGICKBITMAP_RGB(TRGB &canvas, const UTF16 &name) { return Load(canvas, name); }
bool LOADMAGICKBITMAP_RGBA(TRGBA &canvas, const UTF16 &name) { return Load(canvas, name); }
bool LOADMAGICKBITMAP_ZRGB(TZRGB &canvas, const UTF16 &name) { return Load(canvas, name); }

template <class RASTER> bool SAVEMAGICKBITMAP(const RASTER &canvas, const UTF16 &name) try {
    const IMAGEMAGICK_LIBRARY *im = IMAGEMAGICK_ROUTINES();
    const std::string extension = LIBRARY_EXTENSION(name);
    if (!im || canvas.EMPTY() || !IS_MAGICK_FORMAT(extension)) return false;
    const WAND wand(*im);
    if (!wand || !PutPicture(canvas, wand, extension)) return false;
    Describe<RASTER>(wand, extension);
    const std::string bytes = Encoded(wand);
    return !bytes.empty() && WRITE_LIBRARY_FILE(name, bytes);
} catch (const std::bad_alloc &) {
    return false;
}

template bool SAVEMAGICKBITMAP(const TGRAY &, const UTF16 &);
template bool SAVEMAGICKBITMAP(const TFULLGRAY &, const UTF16 &);
template bool SAVEMAGICKBITMAP(const TRGB &, const UTF16 &);
template bool SAVEMAGICKBITMAP(const TRGBA &, const UTF16 &);
template bool SAVEMAGICKBITMAP(const TZRGB &, const UTF16 &);
} // namespace morvane
