#include "script/file/directory_scan.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/base/utf16chars7.hpp"
#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"
#include "foundation/console/paths.hpp"

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>

namespace morvane {
namespace {
struct CLOSE_DIRECTORY {
    void operator()(DIR *directory) const { closedir(directory); }
};

// A name that comes back to the same bytes when a command uses it. A text that begins with ".."
// would be read as the directory above, one that begins with "../.." as the one above that.
bool IsHeld(const UTF16 &prefix, const UTF16 &name, const std::string &bytes) {
    if (prefix.LENGTH() + name.LENGTH() > UTF16CHARS7::CAPACITY) return false;
    if (bytes.find('\\') != std::string::npos) return false;
    const bool isAbove = prefix.EMPTY() || prefix == UTF16("../");
    if (isAbove && bytes.starts_with("..")) return false;
    return GETUTF8(name) == bytes;
}

// The kind as the directory tells it; links and untold kinds are looked up.
void FindKind(int directory, const dirent &read, DIRECTORY_ENTRY &entry) {
    struct stat status;
    entry.isDirectory = read.d_type == DT_DIR;
    entry.isLink = read.d_type == DT_LNK;
    if (read.d_type != DT_LNK && read.d_type != DT_UNKNOWN) return;
    if (::fstatat(directory, read.d_name, &status, AT_SYMLINK_NOFOLLOW) == 0)
        entry.isLink = S_ISLNK(status.st_mode);
    entry.isDirectory =
        ::fstatat(directory, read.d_name, &status, 0) == 0 && S_ISDIR(status.st_mode);
}

void TellClosed(int failure, const UTF16 &prefix) {
    if (failure == ENOENT || failure == ENOTDIR) return;
    SETIORESULT(failure == EMFILE || failure == ENFILE ? 4 : 5);
    IOERROR(prefix.EMPTY() ? UTF16(".") : prefix);
}
} // namespace

std::vector<DIRECTORY_ENTRY> DIRECTORY_ENTRIES(const UTF16 &prefix, NAT &leftOut) {
    std::vector<DIRECTORY_ENTRY> entries;
    const std::string path = prefix.EMPTY() ? "." : LOADPATH(prefix);
    const std::unique_ptr<DIR, CLOSE_DIRECTORY> directory(opendir(path.c_str()));
    if (!directory) {
        TellClosed(errno, prefix);
        return entries;
    }
    while (const dirent *read = readdir(directory.get())) {
        const std::string bytes = read->d_name;
        if (bytes == "." || bytes == "..") continue;
        DIRECTORY_ENTRY entry;
        entry.name = GETUTF16(bytes);
        if (!IsHeld(prefix, entry.name, bytes)) {
            ++leftOut;
            continue;
        }
        FindKind(dirfd(directory.get()), *read, entry);
        entries.push_back(std::move(entry));
    }
    return entries;
}

void TELL_LEFT_OUT(NAT count) {
    if (count < 1) return;
    WRITELN("  Names left out (" + GETSTRING_NAT(count) +
            "): longer than 254 characters, or not to be written in a script.");
}

PATH_KIND KIND_OF_PATH(const UTF16 &path) {
    struct stat status;
    const std::string bytes = LOADPATH(path);
    if (bytes.empty()) return PATH_KIND::NONE;
    if (::stat(bytes.c_str(), &status) == 0)
        return S_ISDIR(status.st_mode) ? PATH_KIND::DIRECTORY : PATH_KIND::FILE;
    return ::lstat(bytes.c_str(), &status) == 0 ? PATH_KIND::FILE : PATH_KIND::NONE;
}

bool IDENTIFY_DIRECTORY(const UTF16 &path, DIRECTORY_IDENTITY &identity) {
    struct stat status;
    const std::string bytes = path.EMPTY() ? "." : LOADPATH(path);
    if (::stat(bytes.c_str(), &status) != 0 || !S_ISDIR(status.st_mode)) return false;
    identity = {status.st_dev, status.st_ino};
    return true;
}
} // namespace morvane
