#include "foundation/base/time.hpp"

#include "foundation/base/number_text.hpp"
#include "script/engine/macro.hpp"
#include "support/capture.hpp"

#include <algorithm>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
struct SCRIPT_RUN {
    CAPTURE console;
    TMACRO engine;

    explicit SCRIPT_RUN(std::string_view script) {
        engine.INIT();
        engine.USE_ALL();
        engine.verbose = false;
        // Constants from before a run outlive it, so that a test can read what a script stored.
        for (const char *name : {"v1", "v2", "v3", "v4"})
            engine.PUTCONSTANT(name, "untouched");
        engine.LOADTEXT(script, "test.macro");
        console.CLEAR();
        engine.SINGLERUN();
    }
    std::string TEXT(const char *name) { return GETUTF8(engine.GETCONSTANTVALUE(name)); }
    NAT VALUE(const char *name) { return GETNAT(engine.GETCONSTANTVALUE(name)); }
};
} // namespace

TEST_CASE("the date words are those of today") {
    const DATE before = GETDATE();
    SCRIPT_RUN run("v1 := year\nv2 := month\nv3 := day\nv4 := datestamp\n");
    if (before == GETDATE()) {
        CHECK(run.VALUE("v1") == before.year);
        CHECK(run.VALUE("v2") == before.month);
        CHECK(run.VALUE("v3") == before.day);
        CHECK(run.TEXT("v4") == run.TEXT("v1") + "_" + run.TEXT("v2") + "_" + run.TEXT("v3"));
    }
}

TEST_CASE("the parts of the clock lie in their ranges") {
    SCRIPT_RUN run("v1 := hour\nv2 := minute\nv3 := second\nv4 := milliscond\n");
    CHECK((run.VALUE("v1") >= 0 && run.VALUE("v1") < 24));
    CHECK((run.VALUE("v2") >= 0 && run.VALUE("v2") < 60));
    CHECK((run.VALUE("v3") >= 0 && run.VALUE("v3") < 61));
    CHECK((run.VALUE("v4") >= 0 && run.VALUE("v4") < 1000));
}

TEST_CASE("the millisecond is spelled milliscond in scripts") {
    CHECK(SCRIPT_RUN("v1 := milliscond\n").TEXT("v1") != "milliscond");
    CHECK(SCRIPT_RUN("v1 := millisecond\n").TEXT("v1") == "millisecond");
}

TEST_CASE("the timestamp joins four parts with colons") {
    const std::string text = SCRIPT_RUN("v1 := timestamp\n").TEXT("v1");
    CHECK(std::count(text.begin(), text.end(), ':') == 3);
    CHECK(text.find(' ') == std::string::npos);
}

TEST_CASE("the weekday is one of seven words") {
    const std::string_view words[] = {"Sunday",   "Monday", "Tuesday", "Wensday",
                                      "Thursday", "Friday", "Saturday"};
    const DATE before = GETDATE();
    const std::string text = SCRIPT_RUN("v1 := weekday\n").TEXT("v1");
    if (before == GETDATE()) CHECK(text == words[before.weekday]);
}

TEST_CASE("leapyear tells the truth as a number") {
    SCRIPT_RUN run(
        "v1 := leapyear 2000\nv2 := leapyear 1900\nv3 := leapyear 2024\nv4 := leapyear 2023\n");
    CHECK(run.TEXT("v1") + run.TEXT("v2") + run.TEXT("v3") + run.TEXT("v4") == "1010");
}

TEST_CASE("leapyear with a wrong count is reported") {
    CHECK(SCRIPT_RUN("v1 := leapyear\n")
              .console.CONTAINS(
                  "Parameter error! Please use one parameter in line 1 (test.macro).\n"));
    CHECK(SCRIPT_RUN("v1 := leapyear 1 2\n")
              .console.CONTAINS(
                  "Parameter error! Please use one parameter in line 1 (test.macro).\n"));
}

TEST_CASE("the stop watch shows the time since its start") {
    CHECK(SCRIPT_RUN("timer.start\nv1 := timer.get\n").TEXT("v1") == "0 sec");
    const std::string text = SCRIPT_RUN("timer.start\nwait 1.1\nv1 := timer.get\n").TEXT("v1");
    CHECK((text == "1 sec" || text == "2 sec"));
}
