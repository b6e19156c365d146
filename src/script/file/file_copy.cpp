#include "script/file/file_copy.hpp"

#include "foundation/console/console.hpp"
#include "foundation/console/io_error.hpp"
#include "foundation/console/paths.hpp"
#include "script/file/directory_scan.hpp"
#include "script/file/file_stream.hpp"
#include "script/file/name_mask.hpp"
#include "script/file/name_search.hpp"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <unordered_map>

namespace morvane {
namespace {
constexpr mode_t EXECUTABLE = 0111;

std::string Shown(const UTF16 &path) { return GETUTF8(GETMESSAGEDIR(path)); }

UTF16 Inside(const UTF16 &directory, const UTF16 &file) {
    const bool isEnded = directory.EMPTY() || directory.IS(directory.LENGTH(), '/');
    return isEnded ? directory + file : directory + "/" + file;
}

bool IsFolder(const UTF16 &target) {
    const UTF16 path = FILENAMESAVE(target);
    return path.IS(path.LENGTH(), '/') || DIRECTORYEXISTS(target);
}

// A name that is taken as it stands, not as a mask.
bool IsName(const UTF16 &mask) {
    return !HAS_WILDCARD(mask) || KIND_OF_PATH(mask) == PATH_KIND::FILE;
}

// A name comes back whether it is there or not.
std::vector<UTF16> FilesOrName(const UTF16 &mask) {
    return IsName(mask) ? std::vector<UTF16>{mask} : FILES_OF(mask);
}

bool TellNothing(const UTF16 &mask) {
    WRITELN("  No file fits (" + Shown(mask) + ").");
    return false;
}

bool TellSecond(const UTF16 &file) {
    WRITELN("  A second file of this name is left where it is (" + Shown(file) + ").");
    return false;
}

// Tells a target that may not be written. Renaming would replace it all the same.
bool IsProtected(const UTF16 &target) {
    const std::string path = SAVEPATH(target);
    if (::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0 || errno == ENOENT) return false;
    SETSYSTEMRESULT(errno, path, true);
    return IOERROR(target);
}

// Whoever may read the copy of a program may run it.
void KeepExecutable(const UTF16 &source, const UTF16 &target) {
    const NAT from = FILEATTR(source), to = FILEATTR(target);
    if (from < 0 || to < 0) return;
    const mode_t mode = static_cast<mode_t>(to) & 07777;
    const mode_t wanted = mode | (static_cast<mode_t>(from) & EXECUTABLE & (mode >> 2));
    if (wanted != mode && ::chmod(SAVEPATH(target).c_str(), wanted) != 0) errno = 0;
}

bool IsUnpacked(const UTF16 &source, const UTF16 &target, COPY_METHOD method) {
    if (method == COPY_METHOD::AUTO) return IS_GZ_NAME(source) && !IS_GZ_NAME(target);
    return method == COPY_METHOD::UNPACK || (method == COPY_METHOD::PACK && IS_GZ_NAME(source));
}

bool IsPacked(const UTF16 &source, const UTF16 &target, COPY_METHOD method) {
    if (method == COPY_METHOD::AUTO) return !IS_GZ_NAME(source) && IS_GZ_NAME(target);
    return method == COPY_METHOD::PACK;
}

// The name of a copy in a directory.
UTF16 NameOfCopy(const UTF16 &source, COPY_METHOD method) {
    const UTF16 file = GETFILE(source);
    if (method == COPY_METHOD::PACK && !IS_GZ_NAME(file)) return file + ".gz";
    if (method == COPY_METHOD::UNPACK && IS_GZ_NAME(file)) return GETDIRFILENAME(file);
    return file;
}

// A file on its way into a directory.
struct TRANSFER {
    UTF16 source, target;
};

// The files of the masks and the names that they get in the directory. `isWhole` becomes false when
// a mask fits nothing, or a name is taken by another file of the masks.
std::vector<TRANSFER> TransfersInto(const UTF16 &directory, const std::vector<UTF16> &masks,
                                    COPY_METHOD method, bool &isWhole) {
    std::vector<TRANSFER> transfers;
    std::unordered_map<std::string, UTF16> taken; // target and its source
    for (const UTF16 &mask : masks) {
        const std::vector<UTF16> files = FilesOrName(mask);
        if (files.empty()) isWhole = TellNothing(mask);
        for (const UTF16 &file : files) {
            const UTF16 target = Inside(directory, NameOfCopy(file, method));
            const auto [place, isFree] = taken.try_emplace(GETUTF8(target), file);
            if (isFree)
                transfers.push_back({file, target});
            else if (place->second != file)
                isWhole = TellSecond(file);
        }
    }
    return transfers;
}

// Permissions and times, where the system allows it.
void KeepAttributes(const UTF16 &source, const UTF16 &target) {
    struct stat status;
    const std::string path = SAVEPATH(target);
    if (::stat(LOADPATH(source).c_str(), &status) != 0) return;
    const timespec times[] = {status.st_atim, status.st_mtim};
    if (::chmod(path.c_str(), status.st_mode & 07777) != 0 ||
        ::utimensat(AT_FDCWD, path.c_str(), times, 0) != 0)
        errno = 0;
}

// A directory is told and gives false; so does a name that is not there.
bool IsMovable(const UTF16 &name) {
    return KIND_OF_PATH(name) == PATH_KIND::FILE || IS_REGULAR_FILE(name);
}
} // namespace

bool READ_COPY_METHOD(const UTF16 &text, COPY_METHOD &method) {
    const UTF16 word = LOWERCASE(text);
    if (word == UTF16("auto"))
        method = COPY_METHOD::AUTO;
    else if (word == UTF16("bytes"))
        method = COPY_METHOD::BYTES;
    else if (word == UTF16("pack"))
        method = COPY_METHOD::PACK;
    else if (word == UTF16("unpack"))
        method = COPY_METHOD::UNPACK;
    else
        return false;
    return true;
}

bool IS_GZ_NAME(const UTF16 &name) {
    const UTF16 extension = LOWERCASE(GETFILEEXTENSION(name));
    return extension == UTF16("gz") || COPY(extension, extension.LENGTH() - 2, 3) == UTF16(".gz");
}

std::vector<UTF16> FILES_OF(const UTF16 &mask) {
    if (KIND_OF_PATH(mask) == PATH_KIND::FILE) return {mask};
    NAME_SEARCH search;
    if (HAS_WILDCARD(mask)) search.FILES(mask);
    search.TELLLEFTOUT();
    return search.FOUND();
}

bool COPY_FILE(const UTF16 &source, const UTF16 &target, COPY_METHOD method) {
    if (!IS_REGULAR_FILE(source) || REFUSE_SAME(source, target)) return false;
    if (!HARDMKDIR(GETDIR(FILENAMESAVE(target)))) return false;
    const bool isNew = !FILEEXISTS(target);
    FILE_WRITE file;
    const bool opened =
        IsPacked(source, target, method) ? ASSIGNGZWRITE(file, target) : ASSIGNWRITE(file, target);
    if (!opened || !APPEND_BYTES(file, source, IsUnpacked(source, target, method))) return false;
    if (!file.COMMIT()) return false;
    if (isNew) KeepExecutable(source, target);
    return true;
}

bool COPY_FILES(const UTF16 &mask, const UTF16 &target, COPY_METHOD method) {
    if (!IsName(mask) || IsFolder(target)) return COPY_FILES_TO(target, {mask}, method);
    return COPY_FILE(mask, target, method);
}

bool COPY_FILES_TO(const UTF16 &directory, const std::vector<UTF16> &masks, COPY_METHOD method) {
    bool isCopied = true;
    for (const TRANSFER &file : TransfersInto(directory, masks, method, isCopied))
        isCopied = COPY_FILE(file.source, file.target, method) && isCopied;
    return isCopied;
}

bool MOVE_FILE(const UTF16 &source, const UTF16 &target) {
    if (!IsMovable(source) || REFUSE_SAME(source, target) || IsProtected(target)) return false;
    if (!HARDMKDIR(GETDIR(FILENAMESAVE(target)))) return false;
    // A move between file systems is no failure yet, so the call that tells one isn't used.
    if (::rename(LOADPATH(source).c_str(), SAVEPATH(target).c_str()) != 0)
        return errno == EXDEV ? MOVE_BY_COPY(source, target) : RENAME(source, target);
    WRITELN("Rename file (" + Shown(source) + ").");
    return true;
}

bool MOVE_BY_COPY(const UTF16 &source, const UTF16 &target) {
    if (!COPY_FILE(source, target, COPY_METHOD::BYTES)) return false;
    KeepAttributes(source, target);
    return DELETE(source);
}

bool MOVE_FILES(const UTF16 &mask, const UTF16 &target) {
    if (!IsName(mask) || IsFolder(target)) return MOVE_FILES_TO(target, {mask});
    return MOVE_FILE(mask, target);
}

bool MOVE_FILES_TO(const UTF16 &directory, const std::vector<UTF16> &masks) {
    bool isMoved = true;
    for (const TRANSFER &file : TransfersInto(directory, masks, COPY_METHOD::BYTES, isMoved))
        isMoved = MOVE_FILE(file.source, file.target) && isMoved;
    return isMoved;
}

bool RENAME_FILE(const UTF16 &from, const UTF16 &to) {
    return IsMovable(from) && !REFUSE_SAME(from, to) && !IsProtected(to) && RENAME(from, to);
}

bool JOIN_FILES(const UTF16 &target, const std::vector<UTF16> &masks) {
    std::vector<UTF16> sources;
    for (const UTF16 &mask : masks) {
        const std::vector<UTF16> files = FilesOrName(mask);
        if (files.empty()) return TellNothing(mask);
        for (const UTF16 &file : files) {
            if (!REFUSE_SAME(file, target))
                sources.push_back(file);
            else if (IsName(mask))
                return false;
        }
    }
    if (sources.empty() || !HARDMKDIR(GETDIR(FILENAMESAVE(target)))) return false;
    if (!std::all_of(sources.begin(), sources.end(), IS_REGULAR_FILE)) return false;
    FILE_WRITE file;
    if (!(IS_GZ_NAME(target) ? ASSIGNGZWRITE(file, target) : ASSIGNWRITE(file, target)))
        return false;
    for (const UTF16 &source : sources)
        if (!APPEND_BYTES(file, source, IS_GZ_NAME(source))) return false;
    return file.COMMIT();
}

void DELETE_FILES(const UTF16 &mask) {
    for (const UTF16 &file : FILES_OF(mask))
        DELETE(file);
}
} // namespace morvane
