#include "orientation/scan/scan_messages.hpp"

#include "foundation/console/console.hpp"

namespace morvane {
bool IS_SCAN_LENGTH(NAT r, NAT smallestSize) {
    if (r >= 1 && r <= 65535 && smallestSize > 2 * r) return true;
    WRITELN("Wrong scan size (" + GETSTRING(r) + ")!");
    return false;
}

void WRITE_SCAN_METHOD(const SCAN_SETTINGS &settings, NAT r) {
    const UTF16 share = GETSTRING(settings.max * 100, 2) + " %";
    const UTF16 cone = GETSTRING(settings.angle * 180 / PI, 2) + "°), only for " + share;
    switch (settings.method) {
    case SCAN_METHOD::BRENK2013: return WRITELN("Method: brenk2013 = only the single best vector");
    case SCAN_METHOD::BRENK2014A:
        return WRITELN("Method: brenk2014a = mean the two best vectors, if distance < " +
                       GETSTRING(static_cast<REAL>(r) * 0.5));
    case SCAN_METHOD::BRENK2014B:
        return WRITELN("Method: brenk2014b = mean (same SD) best vectors, only for " + share);
    case SCAN_METHOD::BRENK2015A:
        return WRITELN("Method: brenk2015a = mean (same SD) best vectors (around " + cone);
    case SCAN_METHOD::BRENK2019:
        return WRITELN("Method: brenk2019 = mean (same SD) best vectors (around " + cone);
    default: return WRITELN("Method: brenk2015b = mean the best vectors (around " + cone);
    }
}
} // namespace morvane
