#include "foundation/console/log.hpp"

#include "foundation/base/time.hpp"
#include "foundation/console/console.hpp"
#include "foundation/console/paths.hpp"

#include <csignal>
#include <unistd.h>

namespace morvane {
FILE_TEXT OLOGFILE;

namespace {
UTF16 ProgramPath() {
    char path[4096];
    const ssize_t length = ::readlink("/proc/self/exe", path, sizeof path);
    if (length <= 0) return "morvane";
    return GETUTF16(std::string_view(path, static_cast<std::size_t>(length)));
}

// Ends the process as the signal would have, but for the files under way.
void EndBySignal(int number) {
    REMOVE_UNFINISHED();
    std::signal(number, SIG_DFL);
    std::raise(number);
}
} // namespace

void OPENLOGFILE() {
    if (LOGFILE || OLOGFILE.OPEN()) return;
    LOGFILE = ASSIGNWRITE(OLOGFILE, GETFILE(ProgramPath() + ".log"));
}

void CLOSELOGFILE() {
    LOGFILE = false;
    OLOGFILE.CLOSE();
}

void WRITELOG(std::string_view utf8) {
    if (LOGFILE && !utf8.empty()) OLOGFILE.WRITE(utf8);
}

void CONSOLE_START() {
    VERBOSE = true;
    FORMAT.PUSH();
    SETTIME();
    OUTPUT_WRITE = UTF16CHARS7();
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    // A signal that the caller had ignored, as nohup does, stays ignored.
    for (const int number : {SIGINT, SIGTERM, SIGHUP})
        if (std::signal(number, EndBySignal) == SIG_IGN) std::signal(number, SIG_IGN);
}

void CONSOLE_DONE() {
    CLOSELOGFILE();
    WRITELN();
    WRITELN("Done (" + GETSTRING(GETDIV()) + ").");
}
} // namespace morvane
