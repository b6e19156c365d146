#include "foundation/console/console.hpp"
#include "foundation/console/file_port.hpp"
#include "foundation/console/io_error.hpp"
#include "foundation/console/paths.hpp"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace morvane {
namespace {
// Ends a system call that gives 0 on success: its failure is told, its success in a line.
bool Finish(int result, const std::string &path, const UTF16 &name, const char *message) {
    if (result != 0) SETSYSTEMRESULT(errno, path, true);
    if (result != 0 && IOERROR(name)) return false;
    TELLFILE(message, FILENAMESAVE(name));
    return true;
}

bool Status(const UTF16 &name, struct stat &status) {
    const std::string path = LOADPATH(name);
    return !path.empty() && ::stat(path.c_str(), &status) == 0;
}

constexpr mode_t DIRECTORY_MODE = 0777; // the process's mask takes from it

bool IsDirectory(const std::string &path) {
    struct stat status;
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

// The path and those above it that are missing, the deepest first.
std::vector<std::string> MissingDirectories(std::string path) {
    std::vector<std::string> missing;
    while (!path.empty() && !IsDirectory(path)) {
        missing.push_back(path);
        const std::size_t slash = path.find_last_of('/');
        path = slash == std::string::npos ? std::string() : path.substr(0, slash);
    }
    return missing;
}
} // namespace

bool DELETE(const UTF16 &name) {
    const std::string path = LOADPATH(name);
    return Finish(::unlink(path.c_str()), path, name, "Delete file (");
}

bool RENAME(const UTF16 &from, const UTF16 &to) {
    const std::string path = LOADPATH(from);
    return Finish(::rename(path.c_str(), SAVEPATH(to).c_str()), path, from, "Rename file (");
}

bool MKDIR(const UTF16 &path) {
    const std::string bytes = SAVEPATH(path);
    return Finish(::mkdir(bytes.c_str(), DIRECTORY_MODE), bytes, path, "Make directory (");
}

bool RMDIR(const UTF16 &path) {
    const std::string bytes = SAVEPATH(path);
    return Finish(::rmdir(bytes.c_str()), bytes, path, "Remove directory (");
}

bool RENAMEDIR(const UTF16 &from, const UTF16 &to) {
    const std::string path = SAVEPATH(from);
    if (::rename(path.c_str(), SAVEPATH(to).c_str()) != 0) {
        SETSYSTEMRESULT(errno, path, true);
        IOERROR(from);
        return false;
    }
    WRITELN("Rename directory (" + GETUTF8(GETMESSAGEDIR(from)) + " -> " +
            GETUTF8(GETMESSAGEDIR(to)) + ").");
    return true;
}

bool CHDIR(const UTF16 &path) {
    const std::string bytes = SAVEPATH(path);
    return Finish(::chdir(bytes.c_str()), bytes, path, "Change directory (");
}

bool HARDMKDIR(const UTF16 &path) {
    const std::string whole = SAVEPATH(path);
    if (whole.size() >= PATH_MAX) {
        SETSYSTEMRESULT(ENAMETOOLONG, whole, true);
        return !IOERROR(path);
    }
    const std::vector<std::string> missing = MissingDirectories(whole);
    for (auto directory = missing.rbegin(); directory != missing.rend(); ++directory) {
        // "a//b/" names a directory more than once.
        if (IsDirectory(*directory)) continue;
        const int result = ::mkdir(directory->c_str(), DIRECTORY_MODE);
        if (!Finish(result, *directory, *directory, "Make directory (")) return false;
    }
    return true;
}

bool HARDCHDIR(const UTF16 &path) {
    const std::string bytes = SAVEPATH(path);
    if (bytes.empty() || path == GETCURRENTDIR()) return true;
    int result = ::chdir(bytes.c_str());
    if (result != 0) {
        if (!HARDMKDIR(path)) return false;
        result = ::chdir(bytes.c_str());
    }
    return Finish(result, bytes, path, "Change directory (");
}

NAT FILESIZE(const UTF16 &name) {
    struct stat status;
    return Status(name, status) ? status.st_size : -1;
}

NAT FILEAGE(const UTF16 &name) {
    struct stat status;
    return Status(name, status) ? status.st_mtime : -1;
}

bool FILEEXISTS(const UTF16 &name) {
    struct stat status;
    return Status(name, status) && !S_ISDIR(status.st_mode);
}

NAT FILEATTR(const UTF16 &name) {
    struct stat status;
    return Status(name, status) ? NAT{status.st_mode} : -1;
}

bool DIRECTORYEXISTS(const UTF16 &name) {
    struct stat status;
    return Status(name, status) && S_ISDIR(status.st_mode);
}
} // namespace morvane
