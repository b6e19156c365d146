#include "image2d/format/imagemagick_library.hpp"

#include "foundation/console/console.hpp"
#include "image2d/format/library_search.hpp"
#include "image2d/format/shared_library.hpp"

namespace morvane {
namespace {
constexpr int NEWEST_MAJOR = 6, OLDEST_MAJOR = 4, NEWEST_SONAME = 14;

void PutVersions(std::vector<std::string> &names, const std::string &base) {
    names.push_back(base);
    for (int soname = NEWEST_SONAME; soname >= 0; --soname)
        names.push_back(base + "." + std::to_string(soname) + ".0.0");
    for (int soname = NEWEST_SONAME; soname >= 0; --soname)
        names.push_back(base + "." + std::to_string(soname));
}

std::vector<std::string> CandidateNames() {
    std::vector<std::string> names;
    for (int major = NEWEST_MAJOR; major >= OLDEST_MAJOR; --major)
        for (const char *quantum : {".Q16HDRI.", ".Q16.", ".Q8HDRI.", ".Q8."})
            PutVersions(names, "libMagickWand-" + std::to_string(major) + quantum + "so");
    return names;
}

class IMAGEMAGICK_OWNER {
public:
    IMAGEMAGICK_OWNER() {
        file = SEARCH_LIBRARY(library, "MORVANE_IMAGEMAGICK", CandidateNames());
        if (file.empty()) return;
        isReady = BindSetup();
        isReady &= BindWands();
        isReady &= BindPictures();
        isReady &= BindPixels();
    }
    ~IMAGEMAGICK_OWNER() {
        if (isStarted) calls.Terminus();
    }
    IMAGEMAGICK_OWNER(const IMAGEMAGICK_OWNER &) = delete;
    IMAGEMAGICK_OWNER &operator=(const IMAGEMAGICK_OWNER &) = delete;

    const IMAGEMAGICK_LIBRARY *ROUTINES() const { return isReady ? &calls : nullptr; }
    // The threads of a process are started in one place of the system, so the library has one.
    void START() {
        if (isStarted || !isReady) return;
        isStarted = true;
        calls.Genesis();
        calls.SetResourceLimit(MAGICK_THREADS, 1);
    }
    int STORAGE() const {
        std::size_t depth = 0;
        calls.GetQuantumDepth(&depth);
        if (depth > 16) return MAGICK_DOUBLE;
        if (file.find("HDRI") != std::string::npos) return MAGICK_FLOAT;
        return depth > 8 ? MAGICK_SHORT : MAGICK_CHAR;
    }

private:
    template <class FUNCTION> bool Bind(FUNCTION *&target, const std::string &routine, int bytes) {
        if (library.BIND(target, routine, bytes)) return true;
        WRITELN("Wrong ProcName: " + routine);
        return false;
    }
    // All are tried, so that every missing routine is told.
    bool BindSetup() {
        bool isWhole = Bind(calls.GetVersion, "GetMagickVersion", 4);
        isWhole &= Bind(calls.GetQuantumDepth, "GetMagickQuantumDepth", 4);
        isWhole &= Bind(calls.Genesis, "MagickWandGenesis", 0);
        isWhole &= Bind(calls.Terminus, "MagickWandTerminus", 0);
        isWhole &= Bind(calls.SetResourceLimit, "MagickSetResourceLimit", 12);
        isWhole &= Bind(calls.RelinquishMemory, "MagickRelinquishMemory", 4);
        isWhole &= Bind(calls.GetException, "MagickGetException", 8);
        return isWhole;
    }
    bool BindWands() {
        bool isWhole = Bind(calls.NewWand, "NewMagickWand", 0);
        isWhole &= Bind(calls.DestroyWand, "DestroyMagickWand", 4);
        isWhole &= Bind(calls.NewPixel, "NewPixelWand", 0);
        isWhole &= Bind(calls.SetAlpha, "PixelSetAlpha", 12);
        isWhole &= Bind(calls.DestroyPixel, "DestroyPixelWand", 4);
        isWhole &= Bind(calls.ResetIterator, "MagickResetIterator", 4);
        isWhole &= Bind(calls.SetFormat, "MagickSetFormat", 8);
        isWhole &= Bind(calls.SetOption, "MagickSetOption", 12);
        return isWhole;
    }
    bool BindPictures() {
        bool isWhole = Bind(calls.PingBlob, "MagickPingImageBlob", 12);
        isWhole &= Bind(calls.ReadBlob, "MagickReadImageBlob", 12);
        isWhole &= Bind(calls.GetBlob, "MagickGetImageBlob", 8);
        isWhole &= Bind(calls.NewImage, "MagickNewImage", 16);
        isWhole &= Bind(calls.GetWidth, "MagickGetImageWidth", 4);
        isWhole &= Bind(calls.GetHeight, "MagickGetImageHeight", 4);
        isWhole &= Bind(calls.GetDepth, "MagickGetImageDepth", 4);
        isWhole &= Bind(calls.GetOrientation, "MagickGetImageOrientation", 4);
        isWhole &= Bind(calls.SetOrientation, "MagickSetImageOrientation", 8);
        isWhole &= Bind(calls.Flip, "MagickFlipImage", 4);
        isWhole &= Bind(calls.Flop, "MagickFlopImage", 4);
        return isWhole;
    }
    bool BindPixels() {
        bool isWhole = Bind(calls.GetColorspace, "MagickGetImageColorspace", 4);
        isWhole &= Bind(calls.TransformColorspace, "MagickTransformImageColorspace", 8);
        isWhole &= Bind(calls.SetImageFormat, "MagickSetImageFormat", 8);
        isWhole &= Bind(calls.SetImageType, "MagickSetImageType", 8);
        isWhole &= Bind(calls.SetImageDepth, "MagickSetImageDepth", 8);
        isWhole &= Bind(calls.SetQuality, "MagickSetImageCompressionQuality", 8);
        isWhole &= Bind(calls.SetAlphaChannel, "MagickSetImageAlphaChannel", 8);
        isWhole &= Bind(calls.ExportPixels, "MagickExportImagePixels", 32);
        isWhole &= Bind(calls.ImportPixels, "MagickImportImagePixels", 32);
        return isWhole;
    }

    SHARED_LIBRARY library;
    IMAGEMAGICK_LIBRARY calls;
    std::string file;
    bool isReady = false, isStarted = false;
};

IMAGEMAGICK_OWNER &Owner() {
    static IMAGEMAGICK_OWNER owner;
    return owner;
}
} // namespace

const IMAGEMAGICK_LIBRARY *IMAGEMAGICK_ROUTINES() { return Owner().ROUTINES(); }
void IMAGEMAGICK_START() { Owner().START(); }
int IMAGEMAGICK_STORAGE() { return Owner().STORAGE(); }
} // namespace morvane
