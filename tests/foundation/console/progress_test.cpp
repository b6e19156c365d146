#include "foundation/base/time.hpp"
#include "foundation/console/console.hpp"
#include "support/capture.hpp"

#include <limits>
#include <poll.h>
#include <string>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// A terminal's view of the status lines; no title is open before and after.
class STATUS_LINES : public CAPTURE {
public:
    explicit STATUS_LINES(bool terminal) {
        PROGRESS();
        SETTIME();
        SETTERMINAL(terminal);
        CLEAR();
    }
    ~STATUS_LINES() {
        PROGRESS();
        RESETTERMINAL();
    }
};

// Waits until the clock has just begun a new second, so that what follows lies within it.
void WaitForNewSecond() {
    const NAT second = GETSYSTEMTIME().second;
    while (GETSYSTEMTIME().second == second)
        ::poll(nullptr, 0, 1);
}

std::string Line(const std::string &text, std::size_t formerLength) {
    return text + std::string(formerLength > text.size() ? formerLength - text.size() : 0, ' ');
}

int hookCalls = 0;
} // namespace

TEST_CASE("a new PROGRESS title shows at once, with a carriage return") {
    STATUS_LINES console(true);
    PROGRESS("  Smooth", 0);
    CHECK(console.TEXT() == "  Smooth. 0 % ready (0 sec of 0 sec).\r");
    CHECK(OUTPUT_WRITE.GET() == UTF16("  Smooth. 0 % ready (0 sec of 0 sec)."));
    CHECK(OUTPUT_STATE == 0);
    CHECK(OUTPUT_PLEASEWAIT == 1);
}

TEST_CASE("a second PROGRESS in the same second changes OUTPUT_STATE but prints nothing") {
    STATUS_LINES console(true);
    WaitForNewSecond();
    PROGRESS("work", 0);
    console.CLEAR();
    PROGRESS("work", 0.5);
    CHECK(OUTPUT_STATE == 0.5);
    CHECK(console.TEXT().empty());
}

TEST_CASE("PROGRESS shows the share with two decimals once a second") {
    STATUS_LINES console(true);
    PROGRESS("work", 0);
    WaitForNewSecond();
    console.CLEAR();
    PROGRESS("work", 0.125);
    CHECK(console.CONTAINS("work. 12.50 % ready ("));
    CHECK(console.TEXT().back() == '\r');
    console.CLEAR();
    PROGRESS("work", 0.25);
    CHECK(console.TEXT().empty());
}

TEST_CASE("the closing line of PROGRESS covers the former line and ends the row") {
    STATUS_LINES console(true);
    PROGRESS("w", 0);
    OUTPUT_WRITE = UTF16(std::string(50, 'x'));
    console.CLEAR();
    PROGRESS();
    CHECK(console.TEXT() == Line("w. 100 % ready (0 sec of 0 sec).", 50) + "\n");
    CHECK(OUTPUT_STATE == 1);
    CHECK(OUTPUT_PROGRESS.EMPTY());
}

TEST_CASE("into a pipe only the closing line goes, without blanks behind it") {
    STATUS_LINES console(false);
    PROGRESS("a long title", 0);
    WaitForNewSecond();
    PROGRESS("a long title", 0.5);
    CHECK(console.TEXT().empty());
    PROGRESS();
    CHECK(console.CONTAINS("a long title. 100 % ready ("));
    CHECK_FALSE(console.CONTAINS("\r"));
    CHECK_FALSE(console.CONTAINS(" \n"));
}

TEST_CASE("closing a PROGRESS that nobody opened writes nothing") {
    STATUS_LINES console(true);
    PROGRESS();
    PLEASEWAIT();
    CHECK(console.TEXT().empty());
}

TEST_CASE("the share of PROGRESS is limited to 0..1") {
    STATUS_LINES console(true);
    PROGRESS("work", -3);
    CHECK(OUTPUT_STATE == 0);
    PROGRESS("work", 7);
    CHECK(OUTPUT_STATE == 1);
    PROGRESS("work", std::numeric_limits<REAL>::quiet_NaN());
    CHECK(OUTPUT_STATE == 0);
}

TEST_CASE("a status line shows at most 80 units") {
    STATUS_LINES console(true);
    PROGRESS(std::string(100, 'x'), 0);
    CHECK(console.TEXT() == std::string(80, 'x') + "\r");
}

TEST_CASE("a new PLEASEWAIT title shows at once with the time since the start") {
    STATUS_LINES console(true);
    PLEASEWAIT("load");
    CHECK(console.TEXT() == "Please wait. load (0 sec). -\r");
    CHECK(OUTPUT_PLEASEWAIT == 2);
    CHECK(OUTPUT_STATE == 0.5);
}

TEST_CASE("the sign of PLEASEWAIT turns once a second and the phase goes from 4 to 0") {
    STATUS_LINES console(true);
    PLEASEWAIT("load");
    const char *endings[] = {"). \\", "). |", "). /", "). -"};
    const NAT phases[] = {3, 4, 0, 1};
    for (int i = 0; i < 4; ++i) {
        WaitForNewSecond();
        console.CLEAR();
        PLEASEWAIT("load");
        CHECK(console.TEXT().starts_with("Please wait. load ("));
        CHECK(console.CONTAINS(" of "));
        CHECK(console.CONTAINS(endings[i]));
        CHECK(OUTPUT_PLEASEWAIT == phases[i]);
        CHECK(OUTPUT_STATE == static_cast<REAL>(phases[i]) * 0.25);
    }
}

TEST_CASE("PLEASEWAIT in the same second prints nothing") {
    STATUS_LINES console(true);
    WaitForNewSecond();
    PLEASEWAIT("load");
    console.CLEAR();
    PLEASEWAIT("load");
    CHECK(console.TEXT().empty());
}

TEST_CASE("PLEASEWAIT without a text closes its line and clears the title") {
    STATUS_LINES console(true);
    PLEASEWAIT("load");
    console.CLEAR();
    PLEASEWAIT();
    CHECK(console.TEXT() == "Please wait ready. load (0 sec of 0 sec).\n");
    CHECK(OUTPUT_STATE == 1);
    CHECK(OUTPUT_PLEASEWAIT == 1);
    CHECK(OUTPUT_PROGRESS.EMPTY());
}

TEST_CASE("the embedding caller hears of every status update") {
    STATUS_LINES console(true);
    hookCalls = 0;
    OUTPUT_GUI = [] { ++hookCalls; };
    PROGRESS("work", 0);
    PROGRESS();
    PLEASEWAIT("load");
    PLEASEWAIT();
    OUTPUT_GUI = nullptr;
    CHECK(hookCalls == 4);
}
