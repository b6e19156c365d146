#include "script/file/file_stream.hpp"

#include "foundation/console/console.hpp"
#include "foundation/console/io_error.hpp"
#include "foundation/console/paths.hpp"

#include <cerrno>
#include <sys/stat.h>
#include <vector>

namespace morvane {
namespace {
constexpr NAT PIECE_BYTES = 256 * 1024;

// Both kinds of source give their bytes by READ.
template <class SOURCE> bool Pump(FILE_WRITE &target, SOURCE &source, NAT &count) {
    std::vector<char> piece(static_cast<std::size_t>(PIECE_BYTES));
    for (;;) {
        const NAT got = source.READ(piece.data(), PIECE_BYTES);
        if (got < 1) return true;
        if (!target.WRITE(piece.data(), got)) return false;
        count += got;
    }
}

bool Status(const UTF16 &name, struct stat &status) {
    const std::string path = LOADPATH(name);
    return !path.empty() && ::stat(path.c_str(), &status) == 0;
}
} // namespace

bool APPEND_BYTES(FILE_WRITE &target, const UTF16 &source, bool unpacked) {
    NAT count = 0;
    if (unpacked) {
        GZ_READ file;
        if (!ASSIGNGZREAD(file, source) || !Pump(target, file, count)) return false;
        if (file.BROKEN()) SETIORESULT(154);
    } else {
        FILE_READ file;
        if (!ASSIGNREAD(file, source) || !Pump(target, file, count)) return false;
    }
    return !IOERROR(source);
}

// A pipe or a device could make a copy wait or never end.
bool IS_REGULAR_FILE(const UTF16 &name) {
    struct stat status;
    if (name.EMPTY()) {
        WRITELN("Empty filename!");
        return false;
    }
    if (!Status(name, status)) {
        SETSYSTEMRESULT(errno, LOADPATH(name), false);
        return !IOERROR(name);
    }
    if (S_ISREG(status.st_mode)) return true;
    WRITELN("  No regular file (" + GETUTF8(GETMESSAGEDIR(name)) + ").");
    return false;
}

bool IS_SAME_FILE(const UTF16 &a, const UTF16 &b) {
    struct stat first, second;
    return Status(a, first) && Status(b, second) && first.st_dev == second.st_dev &&
           first.st_ino == second.st_ino;
}

bool REFUSE_SAME(const UTF16 &source, const UTF16 &target) {
    if (!IS_SAME_FILE(source, target)) return false;
    WRITELN("  Source and target are the same file (" + GETUTF8(GETMESSAGEDIR(source)) + ").");
    return true;
}
} // namespace morvane
