#include "foundation/console/console.hpp"
#include "foundation/console/file_port.hpp"
#include "foundation/console/io_error.hpp"
#include "foundation/console/paths.hpp"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace morvane {
namespace {
constexpr std::size_t BUFFER_BYTES = 256 * 1024;
constexpr std::size_t LONGEST_WRITE = std::size_t{1} << 30; // bytes of one system call
constexpr int MOST_LINKS = 40;
constexpr std::size_t LONGEST_STEM = 200; // of the target's name inside the hidden one

// Names of the files under way, for REMOVE_UNFINISHED. One that finds no place here is only
// removed by its owner.
std::array<std::atomic<const char *>, 64> unfinished;

void Register(const char *path) {
    for (auto &place : unfinished) {
        const char *expected = nullptr;
        if (place.compare_exchange_strong(expected, path)) return;
    }
}

void Unregister(const char *path) {
    for (auto &place : unfinished) {
        const char *expected = path;
        if (place.compare_exchange_strong(expected, nullptr)) return;
    }
}

std::string DirectoryOf(const std::string &path) {
    const std::size_t slash = path.find_last_of('/');
    return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

// Follows links to the name that is really written, which need not exist; 0, or the errno value.
int FollowLinks(std::string &path) {
    for (int step = 0; step < MOST_LINKS; ++step) {
        char link[PATH_MAX];
        const ssize_t length = ::readlink(path.c_str(), link, sizeof link);
        if (length < 0) return 0;
        const std::string next(link, static_cast<std::size_t>(length));
        path = next.starts_with('/') ? next : DirectoryOf(path) + next;
    }
    return ELOOP;
}

// A new hidden file in the target's directory; the descriptor, or -1 with errno.
int CreateBeside(const std::string &target, std::string &hidden) {
    static std::atomic<unsigned> counter{0};
    const std::string directory = DirectoryOf(target);
    const std::string stem = target.substr(directory.size(), LONGEST_STEM);
    for (;;) {
        hidden = directory + "." + stem + "." + std::to_string(::getpid()) + "." +
                 std::to_string(++counter) + ".part";
        const int descriptor =
            ::open(hidden.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (descriptor >= 0 || errno != EEXIST) return descriptor;
    }
}

// 0, or the errno value.
int WriteAll(int descriptor, const char *bytes, std::size_t count) {
    while (count > 0) {
        const ssize_t put = ::write(descriptor, bytes, std::min(count, LONGEST_WRITE));
        if (put < 0 && errno == EINTR) continue;
        if (put <= 0) return put < 0 ? errno : ENOSPC;
        bytes += put;
        count -= static_cast<std::size_t>(put);
    }
    return 0;
}
} // namespace

struct FILE_WRITE::STATE {
    UTF16 name;         // as told in reports
    std::string target; // with links followed
    std::string hidden; // the file beside it; empty: the target is written directly
    int descriptor = -1;
    void *stream = nullptr; // gzip; owns the descriptor
    int failure = 0;        // errno of the first failure
    std::string buffer;

    int OpenTarget();
    void Put(const char *bytes, std::size_t count);
    void Flush();
    void Close();
    void Remove();
};

int FILE_WRITE::STATE::OpenTarget() {
    if (const int failed = FollowLinks(target)) return failed;
    struct stat status;
    const bool exists = ::stat(target.c_str(), &status) == 0;
    if (exists && S_ISDIR(status.st_mode)) return EISDIR;
    if (exists && ::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) return errno;
    if (exists && !S_ISREG(status.st_mode)) {
        descriptor = ::open(target.c_str(), O_WRONLY | O_CLOEXEC);
        return descriptor < 0 ? errno : 0;
    }
    descriptor = CreateBeside(target, hidden);
    if (descriptor < 0) {
        hidden.clear();
        return errno;
    }
    Register(hidden.c_str());
    // The owner is kept where the system allows it, the permissions always.
    if (exists && (status.st_uid != ::geteuid() || status.st_gid != ::getegid()) &&
        ::fchown(descriptor, status.st_uid, status.st_gid) != 0)
        errno = 0;
    return exists && ::fchmod(descriptor, status.st_mode & 07777) != 0 ? errno : 0;
}

void FILE_WRITE::STATE::Put(const char *bytes, std::size_t count) {
    if (failure || count == 0) return;
    failure = stream ? GZ_WRITE(stream, bytes, static_cast<NAT>(count))
                     : WriteAll(descriptor, bytes, count);
}

void FILE_WRITE::STATE::Flush() {
    Put(buffer.data(), buffer.size());
    buffer.clear();
}

void FILE_WRITE::STATE::Close() {
    const int open = std::exchange(descriptor, -1);
    if (void *handle = std::exchange(stream, nullptr)) {
        const int failed = GZ_FINISH(handle);
        if (!failure) failure = failed;
    } else if (open >= 0 && ::close(open) != 0 && !failure) {
        failure = errno;
    }
}

void FILE_WRITE::STATE::Remove() {
    if (hidden.empty()) return;
    ::unlink(hidden.c_str());
    Unregister(hidden.c_str());
    hidden.clear();
}

FILE_WRITE::FILE_WRITE() = default;

FILE_WRITE::~FILE_WRITE() { ABANDON(); }

bool FILE_WRITE::OPEN() const { return state != nullptr; }

bool FILE_WRITE::START(FILE_WRITE &file, const UTF16 &name) {
    file.ABANDON();
    const UTF16 path = FILENAMESAVE(name);
    if (!ISNAMED(path)) return false;
    auto state = std::make_unique<STATE>();
    state->name = name;
    state->target = GETUTF8(path);
    if (const int failed = state->OpenTarget()) {
        state->Close();
        state->Remove();
        SETSYSTEMRESULT(failed, state->target, true);
        IOERROR(name);
        return false;
    }
    state->buffer.reserve(BUFFER_BYTES);
    file.state = std::move(state);
    return true;
}

bool FILE_WRITE::WRITE(const void *bytes, NAT count) {
    if (!state || state->failure || count < 0) return false;
    const char *from = static_cast<const char *>(bytes);
    const std::size_t length = static_cast<std::size_t>(count);
    if (state->buffer.size() + length > BUFFER_BYTES) state->Flush();
    if (length > BUFFER_BYTES)
        state->Put(from, length);
    else if (length > 0)
        state->buffer.append(from, length);
    return state->failure == 0;
}

bool FILE_WRITE::WRITELN(const UTF16 &text) { return WRITE(GETUTF8(text) + "\n"); }

bool FILE_WRITE::COMMIT() {
    if (!state) return false;
    state->Flush();
    state->Close();
    if (!state->failure && !state->hidden.empty()) {
        if (::rename(state->hidden.c_str(), state->target.c_str()) != 0) {
            state->failure = errno;
        } else {
            Unregister(state->hidden.c_str());
            state->hidden.clear();
        }
    }
    const bool written = state->failure == 0;
    ABANDON();
    return written;
}

void FILE_WRITE::ABANDON() {
    if (!state) return;
    const std::unique_ptr<STATE> ended = std::move(state);
    const int failure = ended->failure;
    ended->Close();
    ended->Remove();
    if (!failure) return;
    SETSYSTEMRESULT(failure, ended->target, true);
    IOERROR(ended->name);
}

bool OPENSILENT(FILE_WRITE &file, const UTF16 &name) { return FILE_WRITE::START(file, name); }

bool ASSIGNWRITE(FILE_WRITE &file, const UTF16 &name) {
    if (!FILE_WRITE::START(file, name)) return false;
    TELLFILE("Write file (", FILENAMESAVE(name));
    return true;
}

bool ASSIGNGZWRITE(FILE_WRITE &file, const UTF16 &name, int level) {
    if (!FILE_WRITE::START(file, name)) return false;
    file.state->stream = GZ_ATTACH(file.state->descriptor, level);
    if (!file.state->stream) {
        file.state->failure = ENOMEM;
        file.ABANDON();
        return false;
    }
    file.state->descriptor = -1; // the stream closes it
    TELLFILE("Write file (", FILENAMESAVE(name));
    return true;
}

void REMOVE_UNFINISHED() {
    for (auto &place : unfinished)
        if (const char *path = place.load()) ::unlink(path);
}
} // namespace morvane
