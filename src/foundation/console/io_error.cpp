#include "foundation/console/io_error.hpp"

#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"
#include "foundation/console/io_error_table.hpp"

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>

namespace morvane {
namespace {
NAT lastResult = 0;

bool HasDirectory(const std::string &path) {
    const std::size_t slash = path.find_last_of('/');
    if (slash == std::string::npos || slash == 0) return true;
    struct stat status;
    return ::stat(path.substr(0, slash).c_str(), &status) == 0;
}

constexpr NAT PLAIN_CODES = 200; // behind every row of the table
} // namespace

std::span<const IO_ERROR_ROW> IO_ERROR_ROWS() { return IO_ERROR_TABLE; }

std::string_view IO_ERROR_CLASS(NAT code) {
    if (code >= 2 && code <= 17) return "DOS-Error";
    if (code >= 100 && code <= 106) return "I/O-Error";
    if (code >= 150 && code <= 162) return "Fatal-Error";
    return "?\?\?-Error";
}

std::string IO_ERROR_DETAIL(NAT code, const std::string &name) {
    const auto row = std::find_if(std::begin(IO_ERROR_TABLE), std::end(IO_ERROR_TABLE),
                                  [code](const IO_ERROR_ROW &r) { return r.code == code; });
    if (row == std::end(IO_ERROR_TABLE))
        return "  Error number: " + std::to_string(code) + " from " + name;
    return std::string(row->before) + name + std::string(row->after);
}

NAT IOCODE(int systemError, bool writing) {
    switch (systemError) {
    case 0: return 0;
    case ENOENT: return 2;
    case ENOTDIR:
    case ELOOP:
    case ENAMETOOLONG: return 3;
    case EMFILE:
    case ENFILE: return 4;
    case EACCES:
    case EPERM:
    case EISDIR:
    case EEXIST:
    case ENOTEMPTY:
    case ETXTBSY: return 5;
    case EBADF: return 6;
    case EINVAL: return 12;
    case ENODEV:
    case ENXIO: return 15;
    case EBUSY: return 16;
    case EXDEV: return 17;
    case EIO: return writing ? 101 : 100;
    case ENOSPC:
    case EFBIG:
    case EDQUOT:
    case EPIPE: return 101;
    case EROFS: return 150;
    case ESPIPE: return 156;
    case ENOEXEC: return 153;
    default: return PLAIN_CODES + systemError;
    }
}

void SETSYSTEMRESULT(int systemError, const std::string &path, bool writing) {
    const bool lostDirectory = systemError == ENOENT && !HasDirectory(path);
    SETIORESULT(lostDirectory ? 3 : IOCODE(systemError, writing));
}

void SETIORESULT(NAT code) { lastResult = code; }

bool IOERROR(const UTF16 &name) {
    const NAT code = lastResult;
    lastResult = 0;
    if (code == 0) return false;
    const std::string kind(IO_ERROR_CLASS(code));
    WRITELN(COLOURS() ? "\033[91m" + kind + "\033[0m" : kind);
    WRITELN(IO_ERROR_DETAIL(code, GETUTF8(name)));
    return true;
}
} // namespace morvane
