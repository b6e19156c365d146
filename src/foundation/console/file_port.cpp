#include "foundation/console/file_port.hpp"

#include "foundation/console/console.hpp"
#include "foundation/console/io_error.hpp"
#include "foundation/console/paths.hpp"

#include <cerrno>
#include <sys/stat.h>
#include <utility>

namespace morvane {
namespace {
FILE *Open(const std::string &path, const char *mode) { return std::fopen(path.c_str(), mode); }

bool OpenForReading(FILE_READ &file, const UTF16 &name) {
    file.CLOSE();
    const UTF16 path = FILENAMELOAD(name);
    if (!ISNAMED(path)) return false;
    const std::string bytes = GETUTF8(path);
    SETSYSTEMRESULT(OPENFILE(file, bytes), bytes, false);
    return !IOERROR(name);
}
} // namespace

bool ISNAMED(const UTF16 &name) {
    if (!name.EMPTY()) return true;
    WRITELN("Empty filename!");
    return false;
}

void TELLFILE(const char *what, const UTF16 &path) {
    WRITELN(what + GETUTF8(GETMESSAGEDIR(path)) + ").");
}

int OPENFILE(FILE_READ &file, const std::string &path) {
    file.CLOSE();
    FILE *handle = Open(path, "rbe");
    if (!handle) return errno;
    struct stat status;
    const int failed = ::fstat(::fileno(handle), &status) != 0 ? errno
                       : S_ISDIR(status.st_mode)               ? EISDIR
                                                               : 0;
    if (failed) {
        std::fclose(handle);
        return failed;
    }
    file.handle = handle;
    file.size = status.st_size;
    return 0;
}

FILE_READ::~FILE_READ() { CLOSE(); }

void FILE_READ::CLOSE() {
    if (handle) std::fclose(std::exchange(handle, nullptr));
    size = 0;
}

NAT FILE_READ::READ(void *target, NAT count) {
    if (!handle || count <= 0) return 0;
    const std::size_t got = std::fread(target, 1, static_cast<std::size_t>(count), handle);
    if (std::ferror(handle)) SETIORESULT(IOCODE(errno, false));
    return static_cast<NAT>(got);
}

bool FILE_READ::SEEK(NAT position) {
    return handle && position >= 0 && ::fseeko(handle, position, SEEK_SET) == 0;
}

NAT FILE_READ::POSITION() const { return handle ? ::ftello(handle) : 0; }

bool FILE_READ::ATEND() const {
    if (!handle) return true;
    const int next = std::getc(handle);
    if (next == EOF) return true;
    std::ungetc(next, handle);
    return false;
}

bool ASSIGNREAD(FILE_READ &file, const UTF16 &name) {
    if (!OpenForReading(file, name)) return false;
    WRITELN("Read file (" + GETUTF8(GETMESSAGEDIR(FILENAMELOAD(name))) + ") with size (" +
            GETUTF8(GETPREFIX(static_cast<REAL>(file.SIZE()), 1, "B")) + ").");
    return true;
}

bool ASSIGNREADTEXT(FILE_READ &file, const UTF16 &name) {
    if (!OpenForReading(file, name)) return false;
    TELLFILE("Read file (", FILENAMELOAD(name));
    return true;
}

bool OPENSILENT(FILE_READ &file, const UTF16 &name) {
    const std::string path = LOADPATH(name);
    return !path.empty() && OPENFILE(file, path) == 0;
}

FILE_TEXT::~FILE_TEXT() { CLOSE(); }

bool FILE_TEXT::START(const UTF16 &fileName, const char *mode) {
    CLOSE();
    const UTF16 path = FILENAMESAVE(fileName);
    if (!ISNAMED(path)) return false;
    name = GETUTF8(fileName);
    failure = 0;
    handle = Open(GETUTF8(path), mode);
    if (!handle) {
        SETSYSTEMRESULT(errno, GETUTF8(path), true);
        IOERROR(fileName);
        return false;
    }
    std::setvbuf(handle, nullptr, _IOLBF, BUFSIZ);
    return true;
}

bool FILE_TEXT::WRITE(std::string_view utf8) {
    if (!handle || failure) return false;
    if (std::fwrite(utf8.data(), 1, utf8.size(), handle) == utf8.size()) return true;
    failure = errno;
    return false;
}

bool FILE_TEXT::FLUSH() {
    if (!handle || failure) return false;
    if (std::fflush(handle) != 0) failure = errno;
    return failure == 0;
}

void FILE_TEXT::CLOSE() {
    if (!handle) return;
    FLUSH();
    if (std::fclose(std::exchange(handle, nullptr)) != 0 && !failure) failure = errno;
    SETIORESULT(IOCODE(failure, true));
    IOERROR(name);
}

bool ASSIGNWRITE(FILE_TEXT &file, const UTF16 &name) {
    if (!file.START(name, "we")) return false;
    TELLFILE("Write file (", FILENAMESAVE(name));
    return true;
}

bool ASSIGNAPPEND(FILE_TEXT &file, const UTF16 &name) {
    if (!file.START(name, "a+e")) return false;
    TELLFILE("Append file (", FILENAMESAVE(name));
    return true;
}
} // namespace morvane
