#pragma once

#include "foundation/base/records.hpp"

// The inner loop of the scan: 32 neighbouring centres along x go through one direction together.
// It works on a tile, a zero-padded copy of a part of the volume whose values are shifted, and
// gives for each direction and centre an approximate value, by which the few directions that can
// be the best are found; those are then computed exactly. Kernels may differ in the last bits of
// an approximation, the vectors that follow from it do not.
namespace morvane {
inline constexpr NAT SCAN_LANES = 32;

// No line of a fast scan has more samples.
inline constexpr NAT LONGEST_LINE = 160;

// The stored value of a voxel that is zero, or outside the field.
inline constexpr std::int8_t NARROW_ZERO = -128;  // all others lie in -127..127
inline constexpr std::int16_t WIDE_ZERO = -32768; // all others lie in -32767..32767

// An approximate value differs from the exact one by less than this share of it.
inline constexpr float SCAN_TOLERANCE = 1.0F / (1 << 20);

// Positions of all lines' samples relative to their centre, in elements of a tile: those of
// direction k are begins[k] up to but not including begins[k + 1]. `backward` is the walk from the
// other end.
struct LINE_OFFSETS {
    const std::int32_t *forward = nullptr, *backward = nullptr;
    const std::uint32_t *begins = nullptr; // one more than directions
    NAT count = 0;
};

// What is computed. VARIANCE stands for the standard deviation: the same order, no root. RANK is
// one of the statistics 3 to 7 and exact.
enum class SCAN_MOMENT { VARIANCE, SUM, MEAN, RANK };

struct SCAN_TASK {
    const void *centres = nullptr; // the first of the 32 in the tile, int8 or int16
    LINE_OFFSETS lines;
    SCAN_MOMENT moment = SCAN_MOMENT::VARIANCE;
    BYTE statistic = 5;       // of RANK
    std::uint32_t wanted = 0; // bit i: the i-th centre is asked for; the others give anything
    bool zeros = true;        // some voxel near may be zero
    NAT shift = 0;            // grey value = stored value + shift
    NAT largest = 0;          // no stored value but the zero one is larger, or below minus this
    NAT r = 0;                // samples that make a line long enough
    // Results, by slot: `lanes` of the kernel tells which centre a slot holds.
    float *values = nullptr;         // 32 a direction; infinite when the line is too short
    float *best = nullptr;           // 32: the smallest
    std::int32_t *scanned = nullptr; // 32: directions long enough
};

struct SCAN_KERNEL {
    void (*narrow)(const SCAN_TASK &task) = nullptr; // int8 tiles
    void (*wide)(const SCAN_TASK &task) = nullptr;   // int16 tiles
    // masks[k]: the slots whose value of direction k is at most their limit.
    void (*select)(const float *values, NAT count, const float *limits,
                   std::uint32_t *masks) = nullptr;
    // The centre of each slot, 0 to 31; of RANK slot i is centre i.
    const BYTE *narrowLanes = nullptr, *wideLanes = nullptr;
};

namespace plain {
extern const SCAN_KERNEL KERNEL;
}
namespace avx2 {
extern const SCAN_KERNEL KERNEL;          // in scan_kernel_avx2.cpp
void NARROW_RANKS(const SCAN_TASK &task); // its RANK, in scan_rank_avx2.cpp
void WIDE_RANKS(const SCAN_TASK &task);
} // namespace avx2
const SCAN_KERNEL &FASTEST_SCAN_KERNEL(); // of this processor
} // namespace morvane
