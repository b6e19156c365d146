#pragma once

#include "foundation/base/records.hpp"

// The running clock and the calendar.
namespace morvane {
// The time of day with milliseconds, local time.
struct CLOCK {
    NAT hour = 0, minute = 0, second = 0, millisecond = 0;
};

TIME GETSYSTEMTIME();           // the running clock, which no change of the date moves
void SETTIME();                 // keeps now as the start time; done once at program start
TIME GETDIV();                  // since SETTIME, in whole seconds
TIME GETLASTDIV();              // since the last such reading, in whole seconds
REAL GETTIME(const TIME &time); // seconds
// The difference in whole seconds, hundredths 0.
TIME operator-(const TIME &a, const TIME &b);
// True once a second: the clock's whole second differs from the one seen last.
bool CHECKTIME();
DATE GETDATE(); // today, local time
CLOCK GETCLOCK();
bool LEAPYEAR(NAT year);
} // namespace morvane
