#include "foundation/console/console.hpp"
#include "foundation/console/log.hpp"
#include "support/capture.hpp"
#include "support/child_process.hpp"

#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// What `work` writes to a standard output that is a pipe.
template <class WORK> std::string PipedOutput(WORK work) {
    int ends[2];
    if (::pipe(ends) != 0) return "no pipe";
    const pid_t child = ::fork();
    if (child == 0) {
        ::dup2(ends[1], STDOUT_FILENO);
        work();
        ::_exit(0);
    }
    ::close(ends[1]);
    std::string text;
    char bytes[256];
    for (ssize_t got = 0; (got = ::read(ends[0], bytes, sizeof bytes)) > 0;)
        text.append(bytes, static_cast<std::size_t>(got));
    ::close(ends[0]);
    ::waitpid(child, nullptr, 0);
    return text;
}

// Gives READLN a standard input that holds `text` and then ends.
void SetInput(const std::string &text) {
    int ends[2];
    if (::pipe(ends) != 0) return;
    if (::write(ends[1], text.data(), text.size()) < 0) return;
    ::close(ends[1]);
    ::dup2(ends[0], STDIN_FILENO);
    ::close(ends[0]);
}
} // namespace

TEST_CASE("WRITELN ends a line and WRITELNLN leaves an empty one behind it") {
    CAPTURE console;
    WRITE("a");
    WRITELN("b");
    WRITELNLN("c");
    WRITELN();
    CHECK(console.TEXT() == "ab\nc\n\n\n");
}

TEST_CASE("a text is written as UTF-8") {
    CAPTURE console;
    WRITELN(UTF16("5 µm"));
    CHECK(console.TEXT() == "5 \xC2\xB5m\n");
}

TEST_CASE("numbers and vectors are written as GETSTRING tells them") {
    CAPTURE console;
    WRITELN(7);
    WRITELN(VECTOR{1, 2, 3});
    CHECK(console.TEXT() == "7\n" + GETUTF8(GETSTRING(VECTOR{1, 2, 3})) + "\n");
}

TEST_CASE("with VERBOSE off and no log every form of WRITE does nothing") {
    CAPTURE console;
    VERBOSE = false;
    WRITE("a");
    WRITE(UTF16("a"));
    WRITE(1);
    WRITELN();
    WRITELN("a");
    WRITELN(UTF16("a"));
    WRITELNLN("a");
    WRITELNLN(UTF16("a"));
    CHECK(console.TEXT().empty());
}

TEST_CASE("the console counts as present when output goes into a pipe") {
    CHECK(PipedOutput([] {
              CONSOLE_START();
              WRITE("a");
              WRITELN(UTF16("b"));
          }) == "ab\n");
}

TEST_CASE("a text longer than the pipe arrives whole") {
    const std::string text(300'000, 'x');
    CHECK(PipedOutput([&] { WRITELN(text); }) == text + "\n");
}

TEST_CASE("a closed pipe silences the output and does not end the process") {
    CHECK(IN_CHILD([] {
              CONSOLE_START();
              int ends[2];
              if (::pipe(ends) != 0) return 1;
              ::close(ends[0]);
              ::dup2(ends[1], STDOUT_FILENO);
              WRITELN("nobody reads this");
              WRITELN("nor this");
              return CONSOLE_FAILED() ? 7 : 2;
          }) == 7);
}

TEST_CASE("a full disk under standard output silences it") {
    CHECK(IN_CHILD([] {
              const int full = ::open("/dev/full", O_WRONLY);
              if (full < 0) return 1;
              ::dup2(full, STDOUT_FILENO);
              WRITELN("no room");
              return CONSOLE_FAILED() ? 7 : 2;
          }) == 7);
}

TEST_CASE("output that may not block waits for its reader") {
    const std::string text(300'000, 'x');
    CHECK(PipedOutput([&] {
              ::fcntl(STDOUT_FILENO, F_SETFL, ::fcntl(STDOUT_FILENO, F_GETFL) | O_NONBLOCK);
              WRITELN(text);
          }).size() == text.size() + 1);
}

TEST_CASE("colours need interaction, a terminal, and NO_COLOR unset") {
    CAPTURE console;
    ::unsetenv("NO_COLOR");
    INTERACTION = true;
    SETTERMINAL(true);
    CHECK(COLOURS());
    SETTERMINAL(false);
    CHECK_FALSE(COLOURS());
    SETTERMINAL(true);
    INTERACTION = false;
    CHECK_FALSE(COLOURS());
    INTERACTION = true;
    ::setenv("NO_COLOR", "", 1);
    CHECK_FALSE(COLOURS());
    ::unsetenv("NO_COLOR");
    RESETTERMINAL();
    CHECK_FALSE(COLOURS()); // a sink is no terminal
}

TEST_CASE("READLN reads line by line and gives an empty line at the end of input") {
    CHECK(IN_CHILD([] {
              INTERACTION = true;
              SetInput("first\r\nsecond");
              if (!(READLN() == UTF16("first"))) return 1;
              if (!(READLN() == UTF16("second"))) return 2;
              if (!READLN().EMPTY() || !READLN().EMPTY()) return 3;
              return 7;
          }) == 7);
}

TEST_CASE("READLN without interaction reads nothing") {
    CHECK(IN_CHILD([] {
              INTERACTION = false;
              SetInput("first\n");
              if (!READLN().EMPTY()) return 1;
              INTERACTION = true;
              return READLN() == UTF16("first") ? 7 : 2;
          }) == 7);
}

TEST_CASE("READLN leaves the rest of the input to a program that is started") {
    CHECK(IN_CHILD([] {
              INTERACTION = true;
              SetInput("ours\ntheirs\n");
              READLN();
              char bytes[16];
              const ssize_t got = ::read(STDIN_FILENO, bytes, sizeof bytes);
              return std::string(bytes, static_cast<std::size_t>(got)) == "theirs\n" ? 7 : 1;
          }) == 7);
}
