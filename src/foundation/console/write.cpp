#include "foundation/console/console.hpp"

#include "foundation/console/log.hpp"

#include <cerrno>
#include <cstdlib>
#include <poll.h>
#include <sys/uio.h>
#include <unistd.h>

namespace morvane {
bool VERBOSE = true;
bool LOGFILE = false;
bool INTERACTION = true;

namespace {
CONSOLE_SINK currentSink = nullptr;
void *sinkContext = nullptr;
bool outputFailed = false;

enum class PRETENDED { NOTHING, TERMINAL, NONE };
PRETENDED pretended = PRETENDED::NOTHING;

// A pipe that does not block has no room at the moment: wait for it, as a blocking one would.
bool WaitForRoom() {
    pollfd output{STDOUT_FILENO, POLLOUT, 0};
    return ::poll(&output, 1, -1) >= 0 || errno == EINTR;
}

// Both texts with one system call as a rule. After a failure standard output stays silent.
void WriteOutput(std::string_view text, std::string_view ending) {
    while (!outputFailed && text.size() + ending.size() > 0) {
        // writev takes its pieces as writable memory and only reads them.
        const iovec pieces[] = {{const_cast<char *>(text.data()), text.size()},
                                {const_cast<char *>(ending.data()), ending.size()}};
        const ssize_t written = ::writev(STDOUT_FILENO, pieces, 2);
        if (written < 0) {
            if (errno == EINTR || (errno == EAGAIN && WaitForRoom())) continue;
            outputFailed = true;
            return;
        }
        const std::size_t count = static_cast<std::size_t>(written);
        const std::size_t fromText = count < text.size() ? count : text.size();
        text.remove_prefix(fromText);
        ending.remove_prefix(count - fromText);
    }
}

void Emit(std::string_view text, std::string_view ending) {
    if (VERBOSE && currentSink) {
        currentSink(text, sinkContext);
        if (!ending.empty()) currentSink(ending, sinkContext);
    } else if (VERBOSE) {
        WriteOutput(text, ending);
    }
    WRITELOG(text);
    WRITELOG(ending);
}
} // namespace

bool ISTERMINAL() {
    if (pretended != PRETENDED::NOTHING) return pretended == PRETENDED::TERMINAL;
    static const bool terminal = ::isatty(STDOUT_FILENO) == 1;
    return terminal && !currentSink;
}

void SETTERMINAL(bool terminal) { pretended = terminal ? PRETENDED::TERMINAL : PRETENDED::NONE; }

void RESETTERMINAL() { pretended = PRETENDED::NOTHING; }

bool COLOURS() { return INTERACTION && ISTERMINAL() && !std::getenv("NO_COLOR"); }

bool CONSOLE_FAILED() { return outputFailed; }

void SETSINK(CONSOLE_SINK sink, void *context) {
    currentSink = sink;
    sinkContext = context;
}

void WRITE(std::string_view utf8) { Emit(utf8, {}); }

void WRITE(const UTF16 &text) {
    if (VERBOSE || LOGFILE) Emit(GETUTF8(text), {});
}

void WRITELN() { Emit({}, "\n"); }

void WRITELN(std::string_view utf8) { Emit(utf8, "\n"); }

void WRITELN(const UTF16 &text) {
    if (VERBOSE || LOGFILE) Emit(GETUTF8(text), "\n");
}

void WRITELNLN(std::string_view utf8) { Emit(utf8, "\n\n"); }

void WRITELNLN(const UTF16 &text) {
    if (VERBOSE || LOGFILE) Emit(GETUTF8(text), "\n\n");
}

// Byte by byte, so that a program started by the script finds the rest of the input untouched.
UTF16 READLN() {
    std::string line;
    while (INTERACTION) {
        char byte = 0;
        const ssize_t count = ::read(STDIN_FILENO, &byte, 1);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0 || byte == '\n') break;
        line.push_back(byte);
    }
    if (!line.empty() && line.back() == '\r') line.pop_back();
    return GETUTF16(line);
}
} // namespace morvane
