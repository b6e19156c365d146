#include "foundation/base/number_text.hpp"
#include "foundation/base/time.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("the difference of two times is in whole seconds") {
    const TIME a{1, 1, 0, 0, 50}, b{0, 23, 59, 58, 99};
    CHECK(a - b == TIME{0, 1, 0, 2, 0});
}

TEST_CASE("GETTIME gives seconds") { CHECK(GETTIME({1, 1, 1, 1, 50}) == 90061.5); }

TEST_CASE("the running clock does not go back and its parts are in range") {
    const TIME first = GETSYSTEMTIME(), second = GETSYSTEMTIME();
    CHECK(GETTIME(second) >= GETTIME(first));
    CHECK(first.hour < 24);
    CHECK(first.minute < 60);
    CHECK(first.second < 60);
    CHECK(first.hundredth < 100);
}

TEST_CASE("GETDIV counts from SETTIME") {
    SETTIME();
    CHECK(GETTIME(GETDIV()) <= 1);
    CHECK(GETTIME(GETLASTDIV()) <= 1);
    CHECK(GETDIV().hundredth == 0);
}

TEST_CASE("CHECKTIME is true at most once a second") {
    int times = 0;
    const REAL start = GETTIME(GETSYSTEMTIME());
    for (int i = 0; i < 1000; ++i)
        times += CHECKTIME();
    const REAL passed = GETTIME(GETSYSTEMTIME()) - start;
    CHECK(times >= (passed >= 1 ? 1 : 0));
    CHECK(times <= 2 + passed);
}

TEST_CASE("leap years") {
    CHECK(LEAPYEAR(2024));
    CHECK(LEAPYEAR(2000));
    CHECK_FALSE(LEAPYEAR(1900));
    CHECK_FALSE(LEAPYEAR(2023));
}

TEST_CASE("the calendar and the clock are in range") {
    const DATE date = GETDATE();
    CHECK(date.year >= 2020);
    CHECK((date.month >= 1 && date.month <= 12));
    CHECK((date.day >= 1 && date.day <= 31));
    CHECK((date.weekday >= 0 && date.weekday <= 6));
    const CLOCK clock = GETCLOCK();
    CHECK((clock.hour >= 0 && clock.hour < 24));
    CHECK((clock.millisecond >= 0 && clock.millisecond < 1000));
}
