#include "foundation/console/log.hpp"
#include "foundation/console/paths.hpp"
#include "script/option/parameter.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
std::string LOG_NAME() {
    return std::filesystem::read_symlink("/proc/self/exe").filename().string() + ".log";
}

// A run of the listing with these arguments behind the program's path; the log is closed at its
// end.
struct LOGGED {
    CAPTURE console;
    explicit LOGGED(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "/bin/morvane");
        TPARAMETER options(arguments);
        CHECK_FALSE(options.INIT("Morvane", "Author", 2017, "https://maker.invalid"));
        console.CLEAR();
        options.USAGE("morvane");
        WRITELN("a line behind it");
        VERBOSE = true;
    }
    ~LOGGED() { CLOSELOGFILE(); }
    LOGGED(const LOGGED &) = delete;
    LOGGED &operator=(const LOGGED &) = delete;
};
} // namespace

TEST_CASE("+logfile opens a log that begins with title, maker, path and directory") {
    const SCRATCH_FOLDER folder;
    {
        const LOGGED line({"+logfile"});
        CHECK(LOGFILE);
        CHECK(line.console.CONTAINS("  +/-logfile : log = on\nWrite file (" + LOG_NAME() + ").\n"));
    }
    const std::string log = folder.READ(LOG_NAME());
    CHECK(log.starts_with("Morvane - "));
    CHECK(log.find(" 9.4.8 for ") < log.find('\n'));
    CHECK(log.find(" Author\n/bin/morvane\n" + GETUTF8(GETCURRENTDIR()) + "\n") !=
          std::string::npos);
    CHECK(log.ends_with("  +/-verbose : verbose = on\na line behind it\n"));
}

TEST_CASE("the log is written even when -verbose=off silences the console") {
    const SCRATCH_FOLDER folder;
    {
        const LOGGED line({"-logfile=on", "-verbose=off"});
        CHECK_FALSE(line.console.CONTAINS("a line behind it"));
    }
    CHECK(folder.READ(LOG_NAME()).ends_with("  +/-verbose : verbose = off\na line behind it\n"));
}

TEST_CASE("without the option, and with it off, there is no log") {
    const SCRATCH_FOLDER folder;
    const LOGGED none({});
    const LOGGED off({"-logfile=off"});
    const LOGGED minus({"-logfile"});
    CHECK_FALSE(LOGFILE);
    CHECK(folder.FILES() == 0);
}

TEST_CASE("-logfile=off closes a log that is open") {
    const SCRATCH_FOLDER folder;
    const LOGGED on({"+logfile"});
    const LOGGED off({"-logfile=off"});
    CHECK_FALSE(LOGFILE);
    CHECK(folder.READ(LOG_NAME()).ends_with("  +/-logfile : log = off\n"));
}

TEST_CASE("the help opens no log") {
    const SCRATCH_FOLDER folder;
    const LOGGED line({"-h", "+logfile"});
    CHECK(line.console.CONTAINS("  +/-logfile : log = off\n"));
    CHECK(folder.FILES() == 0);
}
