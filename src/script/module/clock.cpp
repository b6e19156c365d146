#include "script/module/use_all.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/base/time.hpp"
#include "script/engine/macro.hpp"

namespace morvane {
namespace {
constexpr std::string_view WEEKDAYS[] = {"Sunday",   "Monday", "Tuesday", "Wensday",
                                         "Thursday", "Friday", "Saturday"};

TIME timerStart = GETSYSTEMTIME(); // the clock at the last timer.start, else at program start

// Shows one part of the clock or of the date.
template <auto READ, auto PART> void PART_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(READ().*PART);
}

void TIMER_START(TMACRO *) { timerStart = GETSYSTEMTIME(); }

void TIMER_GET_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(GETSYSTEMTIME() - timerStart);
}

void TIMESTAMP_LAMD(TMACRO *engine) {
    const CLOCK now = GETCLOCK();
    engine->COMMAND_RESULT = GETSTRING(now.hour) + ":" + GETSTRING(now.minute) + ":" +
                             GETSTRING(now.second) + ":" + GETSTRING(now.millisecond);
}

void DATESTAMP_LAMD(TMACRO *engine) {
    const DATE today = GETDATE();
    engine->COMMAND_RESULT =
        GETSTRING(today.year) + "_" + GETSTRING(today.month) + "_" + GETSTRING(today.day);
}

void WEEKDAY_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = WEEKDAYS[static_cast<std::size_t>(GETDATE().weekday % 7)];
}

void LEAPYEAR_REF(TMACRO *engine) {
    engine->COMMAND_RESULT = LEAPYEAR(GETNAT(engine->GETPARAMETER(1))) ? "1" : "0";
}

constexpr COMMAND_ROW CLOCK_ROWS[] = {
    PROCEDURE("timer.start", TIMER_START, OWN_COUNT, "", "timer.start", "start the stop watch"),
    LAMBDA("timer.get", TIMER_GET_LAMD, "print timer.get", "time since timer.start"),
    LAMBDA("hour", (PART_LAMD<GETCLOCK, &CLOCK::hour>), "print hour", "hour of the day"),
    LAMBDA("minute", (PART_LAMD<GETCLOCK, &CLOCK::minute>), "print minute", "minute"),
    LAMBDA("second", (PART_LAMD<GETCLOCK, &CLOCK::second>), "print second", "second"),
    // Deliberate: the millisecond is spelled milliscond in scripts.
    LAMBDA("milliscond", (PART_LAMD<GETCLOCK, &CLOCK::millisecond>), "print milliscond",
           "millisecond"),
    LAMBDA("year", (PART_LAMD<GETDATE, &DATE::year>), "print year", "year"),
    LAMBDA("month", (PART_LAMD<GETDATE, &DATE::month>), "print month", "month of the year"),
    LAMBDA("day", (PART_LAMD<GETDATE, &DATE::day>), "print day", "day of the month"),
    LAMBDA("timestamp", TIMESTAMP_LAMD, "print timestamp", "hour:minute:second:millisecond"),
    LAMBDA("datestamp", DATESTAMP_LAMD, "print datestamp", "year_month_day"),
    LAMBDA("weekday", WEEKDAY_LAMD, "print weekday", "name of the day"),
    FUNCTION("leapyear", LEAPYEAR_REF, EXACTLY(1), "year: number", "a := leapyear 2000",
             "1 for a leap year, else 0"),
};
static_assert(ROWS_ARE_SOUND(CLOCK_ROWS));
} // namespace

const COMMAND_SET CLOCK_SET{"", CLOCK_ROWS};

void TMACRO::USE_CLOCK() { REGISTER(CLOCK_SET); }
} // namespace morvane
