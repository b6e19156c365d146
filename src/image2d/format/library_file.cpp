#include "image2d/format/library_file.hpp"

#include "foundation/base/safe_arithmetic.hpp"
#include "foundation/console/file_lines.hpp"
#include "foundation/console/files.hpp"
#include "foundation/console/paths.hpp"

#include <algorithm>
#include <array>
#include <new>
#include <ranges>

namespace morvane {
namespace {
// Written or read by the own codecs alone; some are other formats to the libraries.
constexpr std::array<std::string_view, 7> OWN_ALONE = {"rgb", "imgf", "fro", "fre",
                                                       "pd",  "t1",   "t2"};

bool IsPlain(char c) { return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9'); }
} // namespace

UTF16 LIBRARY_TITLE(const char *kind, const char *path, NAT width, NAT height) {
    return "  " + UTF16(kind) + " (" + path + ") with (" + GETSTRING(width) + "x" +
           GETSTRING(height) + ")";
}

std::string READ_LIBRARY_FILE(const UTF16 &name) try {
    FILE_READ file;
    if (!OPENSILENT(file, name) || file.SIZE() < 1) return {};
    std::string bytes(static_cast<std::size_t>(file.SIZE()), '\0');
    return file.READ(bytes.data(), file.SIZE()) == file.SIZE() ? bytes : std::string();
} catch (const std::bad_alloc &) {
    return {};
}

bool WRITE_LIBRARY_FILE(const UTF16 &name, std::string_view bytes) {
    FILE_WRITE file;
    if (OPENSILENT(file, name) && file.WRITE(bytes)) file.COMMIT();
    return true;
}

std::string LIBRARY_EXTENSION(const UTF16 &name) {
    std::string extension = GETUTF8(LOWERCASE(GETFILEEXTENSION(name)));
    if (!std::ranges::all_of(extension, IsPlain)) return {}; // "pgm.gz" too
    return std::ranges::find(OWN_ALONE, extension) == OWN_ALONE.end() ? extension : std::string();
}

namespace {
NAT Little(const BYTE *bytes, int count) {
    NAT value = 0;
    for (int i = count - 1; i >= 0; --i)
        value = value * 256 + bytes[i];
    return value;
}

// Bytes of an uncompressed picture; NATMAX when that is out of range.
NAT PictureBytes(NAT rowBits, NAT rowUnit, NAT height) {
    const NAT row = (rowBits + rowUnit - 1) / rowUnit * (rowUnit / 8);
    return height > 0 && row > NATMAX / height ? NATMAX : row * height;
}

// `file` stands behind the two bytes of the magic.
bool IsOwnPnm(FILE_READ &file, char digit) {
    if (digit < '4') return digit >= '1';
    constexpr NAT LARGEST = NAT{1} << 40;
    const NAT width = LIMIT(GETNAT(FILEREAD(file)), NAT{0}, LARGEST);
    const NAT height = LIMIT(GETNAT(FILEREAD(file)), NAT{0}, LARGEST);
    const NAT maximum = digit == '4' ? 1 : GETNAT(FILEREAD(file));
    if (digit != '4' && maximum != 255 && maximum != 65535) return true;
    const NAT bits = digit == '4' ? 1 : (digit == '6' ? 3 : 1) * (maximum > 255 ? 16 : 8);
    return PictureBytes(width * bits, 8, height) > file.SIZE() - file.POSITION();
}

// The file's 54 bytes: its header and the info header of 40 bytes.
bool IsShortBmp(const BYTE *header, NAT fileBytes) {
    constexpr NAT INFO_BYTES = 40;
    if (Little(header + 14, 4) != INFO_BYTES || Little(header + 30, 4) != 0) return false;
    const NAT signedHeight = static_cast<std::int32_t>(Little(header + 22, 4));
    const NAT height = signedHeight < 0 ? -signedHeight : signedHeight; // negative: top down
    const NAT bits = Little(header + 18, 4) * Little(header + 28, 2);
    return PictureBytes(bits, 32, height) > fileBytes - Little(header + 10, 4);
}
} // namespace

bool IS_LEFT_TO_OWN(const UTF16 &name) {
    constexpr NAT HEADER_BYTES = 54;
    FILE_READ file;
    BYTE header[HEADER_BYTES] = {};
    if (!OPENSILENT(file, name)) return false;
    const NAT count = file.READ(header, HEADER_BYTES);
    if (header[0] == 'B' && header[1] == 'M')
        return count < HEADER_BYTES || IsShortBmp(header, file.SIZE());
    if (header[0] != 'P' || header[1] < '1' || header[1] > '6' || !file.SEEK(2)) return false;
    return IsOwnPnm(file, static_cast<char>(header[1]));
}

bool IS_CUT_JPEG(std::string_view bytes) {
    constexpr BYTE MARK = 0xff, START = 0xd8, END = 0xd9, SCAN = 0xda, FIRST_RESTART = 0xd0;
    const auto at = [&](std::size_t i) { return static_cast<BYTE>(bytes[i]); };
    if (bytes.size() < 4 || at(0) != MARK || at(1) != START) return false;
    bool isScan = false; // inside coded pixels, where a mark may be a byte of them
    for (std::size_t i = 2; i + 1 < bytes.size();) {
        const BYTE code = at(i + 1);
        const bool isPixel = code == 0 || (code >= FIRST_RESTART && code < START);
        if (at(i) != MARK || code == MARK || (isScan && isPixel)) {
            ++i;
            continue;
        }
        if (code == END) return false;
        if (i + 3 >= bytes.size()) return true;
        isScan = code == SCAN;
        i += 2 + static_cast<std::size_t>(at(i + 2) * 256 + at(i + 3));
    }
    return true;
}
} // namespace morvane
