#include "foundation/base/geometry.hpp"
#include "orientation/scan/method_walk.hpp"

namespace morvane {
void TALLY_2014A::ADD(const VECTOR &unit, REAL value) {
    if (value < best) {
        best = value;
        result = unit * value;
        open = true;
        return;
    }
    if (value != best) return;
    if (!open) {
        result = VZERO; // a third direction of the same value cancels the vector
        return;
    }
    // Deliberate: the limit is r * 0.5 although unit vectors are compared, so from r 5 on every
    // second vector joins.
    const REAL limit = static_cast<REAL>(r) * 0.5;
    if (limit > GETLENGTH(NORM(result) - unit))
        result = (result + unit * value) / 2;
    else if (limit > GETLENGTH(NORM(result) + unit))
        result = (result + (-unit) * value) / 2;
    else
        result = VZERO;
    open = false;
}

void TALLY_2014B::ADD(const VECTOR &unit, REAL value) {
    if (value < best) {
        best = value;
        result = unit * value;
        ties = 1;
    } else if (value == best && ties >= 1) {
        result += INV(result, unit) ? (-unit) * value : unit * value;
        ++ties;
    }
}

VECTOR TALLY_2014B::MEAN(NAT walked, REAL max) const {
    if (!(static_cast<REAL>(walked) * max > static_cast<REAL>(ties))) return VZERO;
    return ties >= 2 ? result / ties : result;
}

VECTOR GETIMAGEVECTOR_BRENK2014A(const VOXEL_SCAN &scan) {
    TALLY_2014A tally;
    tally.r = scan.r;
    const bool whole = FOR_EACH_LONG_LINE(scan, [&](NAT direction, REAL value) {
        tally.ADD(scan.directions.vectors._GET(direction + 1), value);
    });
    return whole ? tally.result : VZERO;
}

VECTOR GETIMAGEVECTOR_BRENK2014B(const VOXEL_SCAN &scan) {
    TALLY_2014B tally;
    const bool whole = FOR_EACH_LONG_LINE(scan, [&](NAT direction, REAL value) {
        tally.ADD(scan.directions.vectors._GET(direction + 1), value);
    });
    if (!whole) return VZERO;
    return tally.MEAN(scan.directions.points.LENGTH, scan.settings.max);
}
} // namespace morvane
