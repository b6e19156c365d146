#include "foundation/console/paths.hpp"

#include <algorithm>
#include <climits>
#include <unistd.h>

namespace morvane {
namespace {
constexpr UTF16CHAR SLASH{'/', 0}, BACKSLASH{'\\', 0}, POINT{'.', 0}, UNDERLINE{'_', 0};

bool IsSeparator(UTF16CHAR unit) { return unit == SLASH || unit == BACKSLASH; }

// Position of the last separator; 0: none.
NAT LastSeparator(const UTF16 &path) {
    NAT index = path.LENGTH();
    while (index > 0 && !IsSeparator(path.GETCHAR(index)))
        --index;
    return index;
}

// Position of the last unit of this value; 0: none.
NAT LastUnit(const UTF16 &text, UTF16CHAR unit) {
    NAT index = text.LENGTH();
    while (index > 0 && !(text.GETCHAR(index) == unit))
        --index;
    return index;
}

// Position of the first unit of this value; 0: none.
NAT FirstUnit(const UTF16 &text, UTF16CHAR unit) {
    for (NAT index = 1; index <= text.LENGTH(); ++index)
        if (text.GETCHAR(index) == unit) return index;
    return 0;
}

UTF16 Before(const UTF16 &text, NAT position) { return COPY(text, 1, position - 1); }

UTF16 Behind(const UTF16 &text, NAT position) {
    return COPY(text, position + 1, text.LENGTH() - position);
}

// Position, in a file part, of the point before its extension; "nii.gz" is one; 0: none.
NAT ExtensionPoint(const UTF16 &file) {
    const NAT last = LastUnit(file, POINT);
    if (last == 0 || !(LOWERCASE(Behind(file, last)) == UTF16("gz"))) return last;
    const NAT inner = LastUnit(Before(file, last), POINT);
    return inner > 0 ? inner : last;
}

UTF16 Normalised(const UTF16 &name) {
    UTF16 result = name;
    for (NAT index = 1; index <= name.LENGTH(); ++index) {
        const UTF16CHAR unit = name.GETCHAR(index);
        if (unit == UTF16CHAR{}) result.PUTCHAR(index, UNDERLINE);
        if (unit == BACKSLASH) result.PUTCHAR(index, SLASH);
    }
    return result;
}

// The path without its last part: up to the last "\" and, where there is none, the last "/".
UTF16 CutPart(const UTF16 &path) {
    const NAT back = LastUnit(path, BACKSLASH);
    return Before(path, std::max(back > 0 ? back : LastUnit(path, SLASH), NAT{1}));
}

// The longest tail that begins behind a separator and has at most `room` units.
UTF16 TailOfParts(const UTF16 &path, NAT room) {
    for (NAT index = std::max(path.LENGTH() - room, NAT{1}); index < path.LENGTH(); ++index)
        if (path.GETCHAR(index) == SLASH) return Behind(path, index);
    return {};
}

// The longest head that ends with a separator and has at most `room` units.
UTF16 HeadOfParts(const UTF16 &path, NAT room) {
    return COPY(path, 1, LastUnit(COPY(path, 1, room), SLASH));
}
} // namespace

UTF16 GETDIR(const UTF16 &path) {
    const NAT separator = LastSeparator(path);
    return separator > 0 ? Before(path, separator) : UTF16();
}

UTF16 GETFILE(const UTF16 &path) { return Behind(path, LastSeparator(path)); }

UTF16 GETFILENAME(const UTF16 &path) {
    const UTF16 file = GETFILE(path);
    const NAT point = ExtensionPoint(file);
    return point > 0 ? Before(file, point) : file;
}

UTF16 GET_SHORTFILENAME(const UTF16 &path) {
    const UTF16 file = GETFILE(path);
    const NAT point = FirstUnit(file, POINT);
    return point > 0 ? Before(file, point) : file;
}

UTF16 GET_FULLFILEEXTENSION(const UTF16 &path) {
    const UTF16 file = GETFILE(path);
    const NAT point = FirstUnit(file, POINT);
    return point > 0 ? Behind(file, point) : UTF16();
}

UTF16 GETFILEEXTENSION(const UTF16 &path) {
    const UTF16 file = GETFILE(path);
    const NAT point = ExtensionPoint(file);
    return point > 0 ? Behind(file, point) : UTF16();
}

UTF16 GETDIRFILENAME(const UTF16 &path) {
    const NAT point = LastUnit(path, POINT);
    return point > LastSeparator(path) ? Before(path, point) : path;
}

UTF16 GETSHORTDIR(const UTF16 &path, NAT length) {
    constexpr NAT GAP = 3; // units of the text for what was left out
    const UTF16 whole = GETREPLACE(path, '\\', '/');
    if (whole.LENGTH() <= length) return whole;
    const NAT room = std::max(length - GAP, NAT{0});
    const NAT fileLength = GETFILE(whole).LENGTH();
    const UTF16 head = HeadOfParts(whole, std::min(room / 2, std::max(room - fileLength, NAT{0})));
    const UTF16 parts = TailOfParts(whole, room - head.LENGTH());
    const UTF16 tail = parts.EMPTY() ? Behind(whole, whole.LENGTH() - room) : parts;
    return COPY(head + "..\\" + tail, 1, length);
}

bool FILESHORT = true;

UTF16 GETMESSAGEDIR(const UTF16 &path) {
    constexpr NAT PATH_UNITS = 60;
    return FILESHORT ? GETSHORTDIR(path, PATH_UNITS) : GETREPLACE(path, '\\', '/');
}

UTF16 FILENAMELOAD(const UTF16 &name) {
    const UTF16 plain = Normalised(name);
    if (COPY(plain, 1, 5) == UTF16("../.."))
        return CutPart(CutPart(GETCURRENTDIR())) + Behind(plain, 5);
    if (COPY(plain, 1, 2) == UTF16("..")) return CutPart(GETCURRENTDIR()) + Behind(plain, 2);
    return plain;
}

UTF16 FILENAMESAVE(const UTF16 &name) { return Normalised(name); }

UTF16 GETCURRENTDIR() {
    char path[PATH_MAX];
    return ::getcwd(path, sizeof path) ? GETUTF16(path) : UTF16();
}

std::string LOADPATH(const UTF16 &name) { return GETUTF8(FILENAMELOAD(name)); }

std::string SAVEPATH(const UTF16 &name) { return GETUTF8(FILENAMESAVE(name)); }
} // namespace morvane
