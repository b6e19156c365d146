#include "foundation/base/time.hpp"
#include "foundation/console/console.hpp"
#include "foundation/console/log.hpp"
#include "support/capture.hpp"
#include "support/child_process.hpp"
#include "support/temporary_folder.hpp"

#include <csignal>
#include <filesystem>
#include <string>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// In a child whose current directory is a new folder; the child's result.
template <class WORK> int InFolder(const TEMPORARY_FOLDER &folder, WORK work) {
    return IN_CHILD([&] {
        CAPTURE console;
        return ::chdir(folder.PATH().c_str()) == 0 ? work(console) : 99;
    });
}

std::string LogName() {
    return std::filesystem::read_symlink("/proc/self/exe").filename().string() + ".log";
}
} // namespace

TEST_CASE("the log is named after the program and lies in the current directory") {
    TEMPORARY_FOLDER folder;
    CHECK(InFolder(folder, [&](CAPTURE &console) {
              OPENLOGFILE();
              return LOGFILE && console.TEXT() == "Write file (" + LogName() + ").\n" ? 7 : 1;
          }) == 7);
    CHECK(std::filesystem::exists(folder.PATH(LogName())));
}

TEST_CASE("the log holds a copy of the console, also when VERBOSE is off, and no status lines") {
    TEMPORARY_FOLDER folder;
    InFolder(folder, [&](CAPTURE &) {
        OPENLOGFILE();
        WRITELN("one");
        VERBOSE = false;
        WRITELN(UTF16("two"));
        SETTERMINAL(true);
        PROGRESS("work", 0);
        PROGRESS();
        PLEASEWAIT("work");
        PLEASEWAIT();
        WRITELN("three");
        CLOSELOGFILE();
        WRITELN("four");
        return 0;
    });
    CHECK(folder.GET(LogName()) == "one\ntwo\nthree\n");
}

TEST_CASE("a log that cannot be opened leaves LOGFILE off") {
    TEMPORARY_FOLDER folder;
    std::filesystem::create_directory(folder.PATH(LogName()));
    CHECK(InFolder(folder, [&](CAPTURE &console) {
              OPENLOGFILE();
              return !LOGFILE && console.CONTAINS("access denied.") ? 7 : 1;
          }) == 7);
}

TEST_CASE("the end of the console closes the log, then tells the whole time") {
    TEMPORARY_FOLDER folder;
    CHECK(InFolder(folder, [](CAPTURE &console) {
              CONSOLE_START();
              OPENLOGFILE();
              console.CLEAR();
              CONSOLE_DONE();
              return console.TEXT() == "\nDone (0 sec).\n" && !LOGFILE ? 7 : 1;
          }) == 7);
    CHECK(folder.GET(LogName()).find("Done") == std::string::npos);
}

TEST_CASE("the start of the console turns a broken pipe and a file size limit into errors") {
    CHECK(IN_CHILD([] {
              CONSOLE_START();
              ::raise(SIGPIPE);
              ::raise(SIGXFSZ);
              return 7;
          }) == 7);
}
