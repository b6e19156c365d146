#pragma once

#include "foundation/base/records.hpp"
#include "foundation/container/poly_types.hpp"

#include <span>

// Nearness of points and lines. Distances are those of x, y, z; t is no place.
namespace morvane {
// At most `distance` apart.
bool NEAR_POINTS(const HYPER &a, const HYPER &b, REAL distance);
// As many points, and each near the point with its number. A line without points is near nothing.
bool NEAR_LINES(std::span<const HYPER> a, std::span<const HYPER> b, REAL distance);

// The largest finite coordinate of a list without its sign; 0 when there is none.
REAL LARGEST_COORDINATE(std::span<const HYPER> points);

// A hash grid of numbered points: finds those that may lie within `reach` of a place without
// looking at the others. Points with a coordinate that is no finite number are left out. `largest`
// is the largest finite coordinate without its sign.
class POINT_GRID {
public:
    POINT_GRID(NAT count, REAL reach, REAL largest); // numbers 1..count
    bool READY() const { return next.LENGTH > 0; }   // memory was there
    void INSERT(NAT number, const VECTOR &place);
    // Calls visit(number) for every candidate; those for which it gives true leave the grid.
    template <class VISIT> void TAKE(const VECTOR &place, VISIT visit) {
        FOR_CELLS(place, [&](NAT slot) {
            for (NAT *link = heads._INDEX(slot); *link != 0;) {
                const NAT number = *link;
                if (visit(number))
                    *link = next._GET(number);
                else
                    link = next._INDEX(number);
            }
        });
    }
    // Whether test(number) holds for any candidate.
    template <class TEST> bool ANY(const VECTOR &place, TEST test) const {
        bool found = false;
        FOR_CELLS(place, [&](NAT slot) {
            for (NAT number = heads._GET(slot); number != 0 && !found; number = next._GET(number))
                found = test(number);
        });
        return found;
    }

private:
    VECTOR CELL(const VECTOR &place) const;
    NAT SLOT(const VECTOR &cell) const;
    template <class ACT> void FOR_CELLS(const VECTOR &place, ACT act) const {
        const VECTOR cell = CELL(place);
        for (REAL z = -1; z <= 1; ++z)
            for (REAL y = -1; y <= 1; ++y)
                for (REAL x = -1; x <= 1; ++x)
                    act(SLOT({cell.x + x, cell.y + y, cell.z + z}));
    }

    REAL edge;
    TPOLYNAT heads; // first number of each slot, 0: none
    TPOLYNAT next;  // the number behind each number in its slot
};
} // namespace morvane
