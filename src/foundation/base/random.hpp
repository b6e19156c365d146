#pragma once

#include "foundation/base/records.hpp"

#include <array>

// The only source of random numbers: the counter-based generator Philox 4x32-10 (Salmon and others
// 2011). A draw is keyed by the run's seed, the number of the command that draws, and the part
// (slice or round) in which it draws, so the same seed gives the same numbers for every thread
// limit.
namespace morvane {
extern std::uint64_t RANDOM_SEED;

// The generator itself: four words of a counter and a key.
std::array<std::uint32_t, 4> PHILOX(std::array<std::uint32_t, 4> counter,
                                    std::array<std::uint32_t, 2> key);

// The numbers of one part of one command; cheap to make, one for each slice.
class RANDOM_STREAM {
public:
    RANDOM_STREAM(std::uint64_t commandNumber, std::uint64_t partNumber);
    std::uint32_t NEXT32();
    std::uint64_t NEXT64();
    REAL FRACTION();  // [0, 1), 53 bits
    NAT BELOW(NAT n); // 0..n-1, unbiased; 0 for n below 1

private:
    std::array<std::uint32_t, 2> key;
    std::uint64_t command, part;
    std::uint64_t block = 0;
    std::array<std::uint32_t, 4> words{};
    std::size_t used = 4;
};

std::uint64_t NEXT_RANDOM_COMMAND(); // the number of the next drawing command; script thread only
void RESTART_RANDOM(std::uint64_t seed); // sets the seed and starts the numbers again
std::uint64_t SYSTEM_SEED();             // a seed drawn from the system
} // namespace morvane
