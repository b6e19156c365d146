#include "foundation/base/record_operators.hpp"
#include "orientation/scan/method_walk.hpp"

namespace morvane {
void TALLY_2013::ADD(const VECTOR &unit, REAL value) {
    if (value < best) {
        best = value;
        result = unit * value;
    } else if (value == best) {
        // Deliberate: a tie gives the zero vector but keeps the best value, so a later lower value
        // still wins.
        result = VZERO;
    }
}

VECTOR GETIMAGEVECTOR_BRENK2013(const VOXEL_SCAN &scan) {
    TALLY_2013 tally;
    const bool whole = FOR_EACH_LONG_LINE(scan, [&](NAT direction, REAL value) {
        tally.ADD(scan.directions.vectors._GET(direction + 1), value);
    });
    return whole ? tally.result : VZERO;
}
} // namespace morvane
