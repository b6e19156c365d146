#include "foundation/base/time.hpp"

#include <chrono>
#include <ctime>

namespace morvane {
namespace {
TIME startTime, lastReading;
NAT lastSecond = -1;

NAT WholeSeconds(const TIME &time) {
    return ((time.day * 24 + time.hour) * 60 + time.minute) * 60 + time.second;
}

TIME FromSeconds(NAT seconds) {
    return {seconds / 86400, seconds / 3600 % 24, seconds / 60 % 60, seconds % 60, 0};
}

std::tm LocalNow() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return local;
}
} // namespace

TIME GETSYSTEMTIME() {
    using namespace std::chrono;
    const NAT milliseconds =
        duration_cast<std::chrono::milliseconds>(steady_clock::now().time_since_epoch()).count();
    TIME time = FromSeconds(milliseconds / 1000);
    time.hundredth = milliseconds % 1000 / 10;
    return time;
}

void SETTIME() { startTime = lastReading = GETSYSTEMTIME(); }

TIME GETDIV() { return GETSYSTEMTIME() - startTime; }

TIME GETLASTDIV() {
    const TIME now = GETSYSTEMTIME(), passed = now - lastReading;
    lastReading = now;
    return passed;
}

REAL GETTIME(const TIME &time) {
    return static_cast<REAL>(WholeSeconds(time)) + static_cast<REAL>(time.hundredth) / 100;
}

TIME operator-(const TIME &a, const TIME &b) {
    return FromSeconds(WholeSeconds(a) - WholeSeconds(b));
}

bool CHECKTIME() {
    const NAT second = WholeSeconds(GETSYSTEMTIME());
    if (second == lastSecond) return false;
    lastSecond = second;
    return true;
}

DATE GETDATE() {
    const std::tm local = LocalNow();
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_wday};
}

CLOCK GETCLOCK() {
    std::timespec now{};
    std::timespec_get(&now, TIME_UTC);
    std::tm local{};
    localtime_r(&now.tv_sec, &local);
    return {local.tm_hour, local.tm_min, local.tm_sec, now.tv_nsec / 1000000};
}

bool LEAPYEAR(NAT year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }
} // namespace morvane
