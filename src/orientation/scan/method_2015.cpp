#include "foundation/base/geometry.hpp"
#include "orientation/scan/method_walk.hpp"

namespace morvane {
namespace {
// A double cone around an axis.
struct CONE {
    VECTOR axis;
    REAL angle = 0;
    bool HOLDS(const VECTOR &v) const { return GETANGLE(axis, v) <= angle; }
};

// What a best direction adds to the sum.
VECTOR Share(const CONE &cone, const VECTOR &d) {
    if (cone.HOLDS(d)) return d;
    return cone.HOLDS(-d) ? -d : VZERO;
}

// Deliberate: a direction inside the opposite cone is added when it is a best one, and ends the
// walk all the same.
bool GoesOn(const CONE &cone, const VECTOR &d) { return cone.HOLDS(d) && !cone.HOLDS(-d); }

// `ranked` gets (position in `scanned`, value), `scanned` the offsets. False: the voxel is zero.
bool FirstPass(const VOXEL_SCAN &scan, TALLY_2015 &tally) {
    SCAN_LISTS &lists = scan.lists;
    return FOR_EACH_LONG_LINE(scan, [&](NAT direction, REAL value) {
        const VECTORNAT offset = scan.directions.points._GET(direction + 1);
        tally.ADD(offset, value);
        lists.scanned.PUSH(TO_REAL(offset));
        lists.ranked.PUSH({static_cast<REAL>(lists.scanned.LENGTH), value});
    });
}

bool Accepted(const SCAN_SETTINGS &settings, NAT scanned, NAT ties) {
    return scanned > 2 && ties >= 1 &&
           static_cast<REAL>(scanned) * settings.max > static_cast<REAL>(ties);
}

VECTOR Finish(const SCAN_SETTINGS &settings, const VECTOR &sum, REAL best) {
    return settings.method == SCAN_METHOD::BRENK2019 ? NORM(sum) * best : sum;
}

// `all`: every direction of the best value is walked.
VECTOR SecondPass(const VOXEL_SCAN &scan, const TALLY_2015 &tally, bool all) {
    SCAN_LISTS &lists = scan.lists;
    if (!Accepted(scan.settings, lists.ranked.LENGTH, tally.ties)) return VZERO;
    lists.ranked.SORTY();
    const CONE cone{tally.direction, scan.settings.angle};
    VECTOR sum;
    NAT k = 0;
    bool more = true;
    while (more && k < lists.ranked.LENGTH) {
        ++k;
        const COMPLEX entry = lists.ranked._GET(k);
        const VECTOR d = lists.scanned._GET(ROUND(entry.x));
        if (entry.y == tally.best) sum += Share(cone, d);
        more = all ? entry.y == tally.best : GoesOn(cone, d);
    }
    return k > 1 ? Finish(scan.settings, sum, tally.best) : VZERO;
}

VECTOR BothPasses(const VOXEL_SCAN &scan, bool all) {
    TALLY_2015 tally;
    return FirstPass(scan, tally) ? SecondPass(scan, tally, all) : VZERO;
}

// The sums are of whole numbers, so the order of the ties only matters where one of them ends the
// walk and another does not. One entry behind the ties is always walked, as there are three.
bool TiesOf2015(const SCAN_SETTINGS &settings, const SCAN_DIRECTIONS &directions,
                const SCAN_TIES &ties, VECTOR &result) {
    TALLY_2015 tally;
    for (NAT i = 0; i < ties.count; ++i)
        tally.ADD(directions.points._GET(ties.directions[i] + NAT{1}), ties.best);
    result = VZERO;
    if (!Accepted(settings, ties.scanned, tally.ties)) return true;
    const CONE cone{tally.direction, settings.angle};
    VECTOR sum;
    NAT goingOn = 0;
    for (NAT i = 0; i < ties.count; ++i) {
        const VECTOR d = TO_REAL(directions.points._GET(ties.directions[i] + NAT{1}));
        sum += Share(cone, d);
        goingOn += GoesOn(cone, d);
    }
    const bool all = settings.method == SCAN_METHOD::BRENK2015A;
    if (all || goingOn == ties.count) result = Finish(settings, sum, tally.best);
    return all || goingOn == ties.count || goingOn == 0;
}
} // namespace

void TALLY_2015::ADD(const VECTORNAT &offset, REAL value) {
    if (value < best) {
        best = value;
        direction = TO_REAL(offset);
        ties = 1;
    } else if (value == best && ties >= 1) {
        direction += TO_REAL(offset);
        ++ties;
    }
}

VECTOR GETIMAGEVECTOR_BRENK2015A(const VOXEL_SCAN &scan) { return BothPasses(scan, true); }
VECTOR GETIMAGEVECTOR_BRENK2015B(const VOXEL_SCAN &scan) { return BothPasses(scan, false); }
VECTOR GETIMAGEVECTOR_BRENK2019(const VOXEL_SCAN &scan) { return BothPasses(scan, false); }

bool GETIMAGEVECTOR_TIES(const SCAN_SETTINGS &settings, const SCAN_DIRECTIONS &directions, NAT r,
                         const SCAN_TIES &ties, VECTOR &result) {
    TALLY_2013 first;
    TALLY_2014A second;
    TALLY_2014B third;
    second.r = r;
    const auto tally = [&](auto &kind) {
        for (NAT i = 0; i < ties.count; ++i)
            kind.ADD(directions.vectors._GET(ties.directions[i] + NAT{1}), ties.best);
    };
    switch (settings.method) {
    case SCAN_METHOD::BRENK2013:
        tally(first);
        result = first.result;
        return true;
    case SCAN_METHOD::BRENK2014A:
        tally(second);
        result = second.result;
        return true;
    case SCAN_METHOD::BRENK2014B:
        tally(third);
        result = third.MEAN(directions.points.LENGTH, settings.max);
        return true;
    default: return TiesOf2015(settings, directions, ties, result);
    }
}
} // namespace morvane
