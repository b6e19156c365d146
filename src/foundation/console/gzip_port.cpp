#include "foundation/console/file_port.hpp"

#include "foundation/console/console.hpp"
#include "foundation/console/io_error.hpp"
#include "foundation/console/paths.hpp"

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>
#include <utility>
#include <zlib.h>

namespace morvane {
namespace {
constexpr unsigned GZ_BUFFER = 256 * 1024;
constexpr NAT GZ_LONGEST = NAT{1} << 30; // bytes of one call; zlib counts in 32 bits

gzFile Gz(void *handle) { return static_cast<gzFile>(handle); }

// Opens a stream of a file that is no directory; 0, or the errno value.
int OpenStream(void *&handle, const std::string &path) {
    struct stat status;
    if (::stat(path.c_str(), &status) != 0) return errno;
    if (S_ISDIR(status.st_mode)) return EISDIR;
    errno = 0;
    handle = ::gzopen(path.c_str(), "rbe");
    if (!handle) return errno ? errno : ENOMEM;
    ::gzbuffer(Gz(handle), GZ_BUFFER);
    return 0;
}

// The errno value behind a failed call on a stream.
int StreamError(void *handle) {
    int code = Z_OK;
    ::gzerror(Gz(handle), &code);
    if (code == Z_MEM_ERROR) return ENOMEM;
    return errno ? errno : EIO;
}
} // namespace

GZ_READ::~GZ_READ() { CLOSE(); }

void GZ_READ::CLOSE() {
    if (handle) ::gzclose_r(Gz(std::exchange(handle, nullptr)));
    broken = false;
}

NAT GZ_READ::READ(void *target, NAT count) {
    NAT done = 0;
    while (handle && !broken && done < count) {
        const unsigned part = static_cast<unsigned>(std::min(count - done, GZ_LONGEST));
        const int got = ::gzread(Gz(handle), static_cast<char *>(target) + done, part);
        int code = Z_OK;
        ::gzerror(Gz(handle), &code);
        // A cut stream still hands out what it holds; it is broken when nothing more comes.
        broken = got < 0 || (got == 0 && code != Z_OK && code != Z_STREAM_END);
        if (got <= 0) break;
        done += got;
    }
    return done;
}

bool GZ_READ::SEEK(NAT position) {
    return handle && position >= 0 && ::gzseek(Gz(handle), position, SEEK_SET) == position;
}

bool GZ_READ::BROKEN() const {
    if (!handle || broken) return broken;
    // A look at the next byte makes zlib check the trailer when there is none.
    BYTE next = 0;
    if (::gzread(Gz(handle), &next, 1) == 1) {
        ::gzungetc(next, Gz(handle));
        return false;
    }
    int code = Z_OK;
    ::gzerror(Gz(handle), &code);
    return code != Z_OK && code != Z_STREAM_END;
}

bool ASSIGNGZREAD(GZ_READ &file, const UTF16 &name) {
    file.CLOSE();
    const UTF16 path = FILENAMELOAD(name);
    if (!ISNAMED(path)) return false;
    const std::string bytes = GETUTF8(path);
    SETSYSTEMRESULT(OpenStream(file.handle, bytes), bytes, false);
    if (IOERROR(name)) return false;
    WRITELN("Read file (" + GETUTF8(GETMESSAGEDIR(path)) + ") with size (" +
            GETUTF8(GETPREFIX(static_cast<REAL>(FILESIZE(name)), 1, "B")) + ").");
    return true;
}

void *GZ_ATTACH(int descriptor, int level) {
    const std::string mode = "wb" + std::to_string(std::clamp(level, 0, 9));
    gzFile handle = ::gzdopen(descriptor, mode.c_str());
    if (handle) ::gzbuffer(handle, GZ_BUFFER);
    return handle;
}

int GZ_WRITE(void *handle, const void *bytes, NAT count) {
    NAT done = 0;
    while (done < count) {
        const unsigned part = static_cast<unsigned>(std::min(count - done, GZ_LONGEST));
        errno = 0;
        const int put = ::gzwrite(Gz(handle), static_cast<const char *>(bytes) + done, part);
        if (put <= 0) return StreamError(handle);
        done += put;
    }
    return 0;
}

int GZ_FINISH(void *handle) {
    errno = 0;
    const int code = ::gzclose_w(Gz(handle));
    if (code == Z_OK) return 0;
    return code == Z_MEM_ERROR ? ENOMEM : (errno ? errno : EIO);
}
} // namespace morvane
