#include "image2d/format/freeimage_library.hpp"

#include "foundation/console/console.hpp"
#include "image2d/format/library_search.hpp"
#include "image2d/format/shared_library.hpp"

#include <utility>

namespace morvane {
namespace {
constexpr int NEWEST_MINOR = 22, NEWEST_SONAME = 12;
const std::string BASE = "libfreeimage";

NAT complaints = 0;
std::string lastComplaint;

std::vector<std::string> CandidateNames() {
    std::vector<std::string> names;
    for (int minor = NEWEST_MINOR; minor >= 0; minor -= 2)
        names.push_back(BASE + "-3." + std::to_string(minor) + ".0.so");
    names.push_back(BASE + ".so");
    for (int soname = NEWEST_SONAME; soname >= 1; --soname)
        names.push_back(BASE + ".so." + std::to_string(soname));
    return names;
}

// Sets a handler of libtiff and gives the former one; null handlers are silent.
using SET_HANDLER = void *(*)(void *);
SET_HANDLER setError = nullptr, setWarning = nullptr;

class FREEIMAGE_OWNER {
public:
    FREEIMAGE_OWNER() {
        if (!OPEN_FIRST(library, "MORVANE_FREEIMAGE", CandidateNames())) return;
        isReady = BindSetup();
        isReady &= BindPictures();
        isReady &= BindMemory();
        if (calls.Initialise)
            calls.Initialise(0);
        else
            WRITELN("Freeimage could not be initialised!");
        if (isReady) calls.SetOutputMessage(Complain);
        setError = reinterpret_cast<SET_HANDLER>(library.FIND("TIFFSetErrorHandler"));
        setWarning = reinterpret_cast<SET_HANDLER>(library.FIND("TIFFSetWarningHandler"));
    }
    ~FREEIMAGE_OWNER() {
        if (!isReady) return;
        calls.SetOutputMessage(nullptr);
        calls.DeInitialise();
    }
    FREEIMAGE_OWNER(const FREEIMAGE_OWNER &) = delete;
    FREEIMAGE_OWNER &operator=(const FREEIMAGE_OWNER &) = delete;

    const FREEIMAGE_LIBRARY *ROUTINES() const { return isReady ? &calls : nullptr; }

private:
    // What the library has to say about a file. The same words follow each other in long rows.
    static void Complain(FREEIMAGE_LIBRARY::FORMAT format, const char *text);

    template <class FUNCTION> bool Bind(FUNCTION *&target, const char *name, int bytes) {
        const std::string routine = std::string("FreeImage_") + name;
        if (library.BIND(target, routine, bytes)) return true;
        WRITELN("Wrong ProcName: " + routine);
        return false;
    }
    // All are tried, so that every missing routine is told.
    bool BindSetup() {
        bool isWhole = Bind(calls.Initialise, "Initialise", 4);
        isWhole &= Bind(calls.DeInitialise, "DeInitialise", 0);
        isWhole &= Bind(calls.GetVersion, "GetVersion", 0);
        isWhole &= Bind(calls.SetOutputMessage, "SetOutputMessage", 4);
        isWhole &= Bind(calls.GetFileType, "GetFileType", 8);
        isWhole &= Bind(calls.GetFIFFromFilename, "GetFIFFromFilename", 4);
        isWhole &= Bind(calls.GetFormatFromFIF, "GetFormatFromFIF", 4);
        isWhole &= Bind(calls.SupportsReading, "FIFSupportsReading", 4);
        isWhole &= Bind(calls.SupportsNoPixels, "FIFSupportsNoPixels", 4);
        isWhole &= Bind(calls.SupportsExportBPP, "FIFSupportsExportBPP", 8);
        isWhole &= Bind(calls.SupportsExportType, "FIFSupportsExportType", 8);
        return isWhole;
    }
    bool BindPictures() {
        bool isWhole = Bind(calls.AllocateT, "AllocateT", 28);
        isWhole &= Bind(calls.Load, "Load", 12);
        isWhole &= Bind(calls.GetWidth, "GetWidth", 4);
        isWhole &= Bind(calls.GetHeight, "GetHeight", 4);
        isWhole &= Bind(calls.GetBPP, "GetBPP", 4);
        isWhole &= Bind(calls.GetImageType, "GetImageType", 4);
        isWhole &= Bind(calls.ConvertToGreyscale, "ConvertToGreyscale", 4);
        isWhole &= Bind(calls.ConvertToUINT16, "ConvertToUINT16", 4);
        isWhole &= Bind(calls.ConvertTo24Bits, "ConvertTo24Bits", 4);
        isWhole &= Bind(calls.ConvertTo32Bits, "ConvertTo32Bits", 4);
        isWhole &= Bind(calls.GetScanLine, "GetScanLine", 8);
        isWhole &= Bind(calls.Unload, "Unload", 4);
        return isWhole;
    }
    bool BindMemory() {
        bool isWhole = Bind(calls.OpenMemory, "OpenMemory", 8);
        isWhole &= Bind(calls.CloseMemory, "CloseMemory", 4);
        isWhole &= Bind(calls.SaveToMemory, "SaveToMemory", 16);
        isWhole &= Bind(calls.AcquireMemory, "AcquireMemory", 12);
        return isWhole;
    }

    SHARED_LIBRARY library;
    FREEIMAGE_LIBRARY calls;
    bool isReady = false;
};

const FREEIMAGE_LIBRARY *complainer = nullptr;

void FREEIMAGE_OWNER::Complain(FREEIMAGE_LIBRARY::FORMAT format, const char *text) {
    const std::string words = LIBRARY_WORDS(text);
    if (complaints++ > 0 && words == lastComplaint) return;
    lastComplaint = words;
    if (format >= 0 && complainer)
        WRITELN(LIBRARY_WORDS(complainer->GetFormatFromFIF(format)) + " Format");
    WRITELN(words);
}
} // namespace

QUIET_TIFF::QUIET_TIFF() {
    if (setError) errorHandler = setError(nullptr);
    if (setWarning) warningHandler = setWarning(nullptr);
}

QUIET_TIFF::~QUIET_TIFF() {
    if (setError) setError(errorHandler);
    if (setWarning) setWarning(warningHandler);
}

const FREEIMAGE_LIBRARY *FREEIMAGE_ROUTINES() {
    static const FREEIMAGE_OWNER owner;
    complainer = owner.ROUTINES();
    return complainer;
}

NAT FREEIMAGE_COMPLAINTS() { return std::exchange(complaints, 0); }
} // namespace morvane
