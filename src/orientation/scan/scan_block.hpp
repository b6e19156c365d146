#pragma once

#include "orientation/scan/scan_tile.hpp"

namespace morvane {
// The fast road: scans blocks of centres, tile by tile, 32 centres at a time, with scratch lists
// made once. Every vector is the same, to the last bit, as by the walk voxel by voxel.
class SCAN_BLOCK {
public:
    // The plan must be FAST and, like the volume, live as long as the block.
    SCAN_BLOCK(const SCAN_PLAN &plan, const SCAN_VOLUME &volume, const SCAN_KERNEL &kernel);
    [[nodiscard]] bool INIT(); // false when memory runs out

    NAT ROWS() const { return plan.shape.rows; } // most rows of one SCAN
    // `columns` x `rows` centres from the voxel `first` on, plan.factor voxels apart on x and y.
    // Where wanted[i] is set, results[i] gets the vector; x runs fastest.
    void SCAN(const VECTORNAT &first, NAT columns, NAT rows, const BYTE *wanted, VECTOR *results);

private:
    struct GROUP { // up to 32 centres of one row
        const void *centres;
        std::uint32_t wanted;
        bool zeros;
        VECTOR *results; // of its first centre
    };
    void SCAN_TILE_ROW(NAT row, NAT columns, const BYTE *wanted, VECTOR *results);
    void SCAN_GROUP(const GROUP &group);
    const void *CENTRE(const GROUP &group, NAT lane) const;
    // The vector of the centre in a slot from its candidates; `best`: its smallest approximation.
    VECTOR BEST_VECTOR(const void *centre, NAT slot, NAT scanned, float best);
    VECTOR LONE_VECTOR(const void *centre, std::uint32_t direction, NAT scanned);
    REAL VALUE(const void *centre, std::uint32_t direction); // exact
    VECTOR WHOLE_SCAN(const void *centre);                   // by the methods' own walk

    const SCAN_PLAN &plan;
    SCAN_VOLUME volume;
    const SCAN_KERNEL &kernel;
    SCAN_TILE tile;
    SCAN_LISTS lists;
    SCAN_BUFFER<float> values;             // 32 a direction
    SCAN_BUFFER<std::uint32_t> masks;      // one a direction
    SCAN_BUFFER<std::uint32_t> candidates; // one list of directions for each centre
    NAT counts[SCAN_LANES] = {};           // their lengths
};
} // namespace morvane
