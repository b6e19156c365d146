#include "script/file/directory_tree.hpp"

#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"
#include "foundation/console/io_error.hpp"
#include "foundation/console/paths.hpp"
#include "script/file/directory_scan.hpp"
#include "script/file/file_copy.hpp"
#include "script/file/name_search.hpp"

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace morvane {
namespace {
constexpr std::size_t LONGEST_PATH = 8192; // bytes; bounds the depth of the calls

std::string Shown(const UTF16 &path) { return GETUTF8(GETMESSAGEDIR(path)); }

bool TellFailure(int failure, const std::string &path) {
    SETSYSTEMRESULT(failure, path, true);
    IOERROR(path);
    return false;
}

// With a slash at its end a link would be followed.
std::string WithoutEnd(std::string path) {
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    return path;
}

std::string Canonical(const std::string &path) {
    std::error_code ignored;
    return WithoutEnd(std::filesystem::weakly_canonical(path, ignored).string());
}

// `below` is `above` or lies in it; both canonical.
bool LiesIn(const std::string &below, const std::string &above) {
    if (above == "/" || below == above) return true;
    return below.starts_with(above + "/");
}

bool IsLink(const std::string &path) {
    struct stat status;
    return ::lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
}

// Tells why a directory is never deleted.
bool IsRefused(const std::string &path) {
    if (path.empty()) {
        WRITELN("Empty filename!");
        return true;
    }
    const std::string last = path.substr(path.find_last_of('/') + 1);
    if (last.empty() || last == "." || last == "..") {
        WRITELN("  Directory (" + Shown(path) + ") is never deleted.");
        return true;
    }
    if (!LiesIn(Canonical(GETUTF8(GETCURRENTDIR())), Canonical(path))) return false;
    SETIORESULT(16);
    return IOERROR(path);
}

// An open directory of the system; its names are read to the end at once.
class OPEN_DIRECTORY {
public:
    OPEN_DIRECTORY(int parent, const char *name)
        : descriptor(::openat(parent, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC)) {
        failure = descriptor < 0 ? errno : 0;
        if (failure) return;
        handle = ::fdopendir(descriptor);
        if (!handle) failure = errno;
    }
    ~OPEN_DIRECTORY() {
        if (handle)
            ::closedir(handle); // closes the descriptor too
        else if (descriptor >= 0)
            ::close(descriptor);
    }
    OPEN_DIRECTORY(const OPEN_DIRECTORY &) = delete;
    OPEN_DIRECTORY &operator=(const OPEN_DIRECTORY &) = delete;

    int FAILURE() const { return failure; } // errno of opening, 0: open
    int DESCRIPTOR() const { return descriptor; }
    std::vector<std::string> NAMES() {
        std::vector<std::string> names;
        while (const dirent *entry = handle ? ::readdir(handle) : nullptr)
            if (std::string_view(entry->d_name) != "." && std::string_view(entry->d_name) != "..")
                names.emplace_back(entry->d_name);
        std::sort(names.begin(), names.end());
        return names;
    }

private:
    int descriptor;
    DIR *handle = nullptr;
    int failure = 0;
};

bool Emptied(OPEN_DIRECTORY &directory, const std::string &path, dev_t device);

// Names are looked up in the open directory, so that a link put in place of one meanwhile is not
// followed. A failure leaves the rest to be deleted all the same.
bool DeleteEntry(int parent, const std::string &name, const std::string &path, dev_t device) {
    struct stat status;
    if (::fstatat(parent, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0)
        return TellFailure(errno, path);
    const bool isDirectory = S_ISDIR(status.st_mode);
    if (isDirectory) {
        if (status.st_dev != device) return TellFailure(EXDEV, path);
        if (path.size() > LONGEST_PATH) return TellFailure(ENAMETOOLONG, path);
        OPEN_DIRECTORY directory(parent, name.c_str());
        if (directory.FAILURE()) return TellFailure(directory.FAILURE(), path);
        if (!Emptied(directory, path, device)) return false;
    }
    if (::unlinkat(parent, name.c_str(), isDirectory ? AT_REMOVEDIR : 0) != 0)
        return TellFailure(errno, path);
    WRITELN((isDirectory ? "Remove directory (" : "Delete file (") + Shown(path) + ").");
    return true;
}

bool Emptied(OPEN_DIRECTORY &directory, const std::string &path, dev_t device) {
    bool isEmpty = true;
    for (const std::string &name : directory.NAMES())
        isEmpty = DeleteEntry(directory.DESCRIPTOR(), name, path + "/" + name, device) && isEmpty;
    return isEmpty;
}

bool EmptyTree(const std::string &path) {
    OPEN_DIRECTORY directory(AT_FDCWD, path.c_str());
    struct stat status;
    if (directory.FAILURE()) return TellFailure(directory.FAILURE(), path);
    if (::fstat(directory.DESCRIPTOR(), &status) != 0) return TellFailure(errno, path);
    return Emptied(directory, path, status.st_dev);
}

bool DeleteDirectory(const UTF16 &name, bool withFiles) {
    const std::string path = WithoutEnd(SAVEPATH(name));
    if (IsLink(path)) return DELETE(path);
    if (IsRefused(path)) return false;
    OPEN_DIRECTORY directory(AT_FDCWD, path.c_str());
    if (directory.FAILURE()) return TellFailure(directory.FAILURE(), path);
    if (!directory.NAMES().empty()) {
        WRITELN(withFiles ? "  Directory not empty! Delete files." : "  Directory not empty!");
        if (!withFiles || !EmptyTree(path)) return false;
    }
    return RMDIR(path);
}

bool CopyLink(const UTF16 &from, const UTF16 &to) {
    std::error_code failure;
    const std::string target = SAVEPATH(to);
    const std::filesystem::path where = std::filesystem::read_symlink(LOADPATH(from), failure);
    if (failure) return TellFailure(failure.value(), GETUTF8(from));
    if (IsLink(target)) ::unlink(target.c_str());
    if (::symlink(where.c_str(), target.c_str()) != 0) return TellFailure(errno, target);
    WRITELN("Make link (" + Shown(to) + ").");
    return true;
}

// A copied directory; what it holds stays as it is.
struct SOURCE_TREE {
    std::string canonical;
    NAT leftOut = 0; // names that a script cannot hold
};

// Where the target stands above the source, or links lead into it, a copied entry could fall upon
// one of the source that is still to be copied.
bool IsInside(const SOURCE_TREE &source, const UTF16 &to) {
    if (!LiesIn(Canonical(GETUTF8(to)), source.canonical)) return false;
    WRITELN("  Target lies inside the source (" + Shown(to) + ").");
    return true;
}

bool CopyEntries(const UTF16 &from, const UTF16 &to, SOURCE_TREE &tree) {
    if (IsInside(tree, to)) return false;
    std::vector<DIRECTORY_ENTRY> entries = DIRECTORY_ENTRIES(from + "/", tree.leftOut);
    std::sort(entries.begin(), entries.end(),
              [](const auto &a, const auto &b) { return GETUTF8(a.name) < GETUTF8(b.name); });
    bool isCopied = HARDMKDIR(to);
    for (const DIRECTORY_ENTRY &entry : entries) {
        if (!DIRECTORYEXISTS(to)) return false; // told
        const UTF16 source = from + "/" + entry.name, target = to + "/" + entry.name;
        const bool done = entry.isLink        ? CopyLink(source, target)
                          : entry.isDirectory ? CopyEntries(source, target, tree)
                                              : COPY_FILE(source, target, COPY_METHOD::BYTES);
        isCopied = done && isCopied;
    }
    return isCopied;
}
} // namespace

bool DELETE_DIRECTORY(const UTF16 &path) { return DeleteDirectory(path, false); }
bool DELETE_TREE(const UTF16 &path) { return DeleteDirectory(path, true); }

bool COPY_TREE(const UTF16 &from, const UTF16 &to) {
    if (!DIRECTORYEXISTS(from)) return TellFailure(ENOTDIR, GETUTF8(from));
    const UTF16 source = WithoutEnd(SAVEPATH(from)), target = WithoutEnd(SAVEPATH(to));
    if (target.EMPTY()) {
        WRITELN("Empty filename!");
        return false;
    }
    SOURCE_TREE tree{Canonical(GETUTF8(source))};
    const bool isCopied = CopyEntries(source, target, tree);
    TELL_LEFT_OUT(tree.leftOut);
    return isCopied && tree.leftOut == 0;
}

bool RENAME_DIRECTORY(const UTF16 &from, const UTF16 &to) {
    if (!DIRECTORYEXISTS(from)) return TellFailure(ENOTDIR, GETUTF8(from));
    return RENAMEDIR(from, to);
}
} // namespace morvane
