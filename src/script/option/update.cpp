#include "script/option/update.hpp"

#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"

namespace morvane {
const char *UPDATE_PROGRAM = "/usr/bin/wget";

namespace {
constexpr std::string_view NOT_FOUND =
    "Wget not found! Please install wget from https://www.gnu.org/software/wget/";

// By the exit code, from 1.
constexpr std::string_view FAILURES[] = {
    "Generic error code.",
    "Parse error—for instance, when parsing command-line options, the ‘.wgetrc’ or ‘.netrc’...",
    "File I/O error.",
    "Network failure.",
    "SSL verification failure.",
    "Username/password authentication failure.",
    "Protocol errors.",
    "Server issued an error response.",
};
constexpr NAT LAST_FAILURE = std::size(FAILURES);

UTF16 Quoted(const UTF16 &text) { return "\"" + text + "\""; }
} // namespace

UTF16 UPDATE_MESSAGE(NAT code, const UTF16 &file) {
    if (code == 0) return "You can find the new file at " + Quoted(file) + ".";
    if (code < 0 || code > LAST_FAILURE) return GETUTF16(NOT_FOUND);
    return GETUTF16(FAILURES[static_cast<std::size_t>(code - 1)]);
}

void UPDATE(const UTF16 &address, const UTF16 &name) {
    const UTF16 file = name + ".n", part = file + ".part";
    const bool isThere = FILEEXISTS(UPDATE_PROGRAM);
    const NAT code =
        isThere ? EXEC(UPDATE_PROGRAM, "-O " + Quoted(part) + " " + Quoted(address)) : -1;
    // The fetch leaves an empty file when it fails.
    if (FILEEXISTS(part)) code == 0 ? RENAME(part, file) : DELETE(part);
    WRITELN(UPDATE_MESSAGE(code, file));
}
} // namespace morvane
