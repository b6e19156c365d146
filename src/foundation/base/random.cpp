#include "foundation/base/random.hpp"

#include <chrono>
#include <sys/random.h>

namespace morvane {
std::uint64_t RANDOM_SEED = 0;

namespace {
std::uint64_t lastCommand = 0;

std::uint32_t Low(std::uint64_t word) { return static_cast<std::uint32_t>(word); }
std::uint32_t High(std::uint64_t word) { return static_cast<std::uint32_t>(word >> 32); }
} // namespace

std::array<std::uint32_t, 4> PHILOX(std::array<std::uint32_t, 4> counter,
                                    std::array<std::uint32_t, 2> key) {
    constexpr std::uint64_t FACTOR0 = 0xD2511F53, FACTOR1 = 0xCD9E8D57;
    for (int round = 0; round < 10; ++round) {
        const std::uint64_t product0 = FACTOR0 * counter[0], product1 = FACTOR1 * counter[2];
        counter = {High(product1) ^ counter[1] ^ key[0], Low(product1),
                   High(product0) ^ counter[3] ^ key[1], Low(product0)};
        key[0] += 0x9E3779B9;
        key[1] += 0xBB67AE85;
    }
    return counter;
}

RANDOM_STREAM::RANDOM_STREAM(std::uint64_t commandNumber, std::uint64_t partNumber)
    : key{Low(RANDOM_SEED), High(RANDOM_SEED)}, command(commandNumber), part(partNumber) {}

std::uint32_t RANDOM_STREAM::NEXT32() {
    if (used == words.size()) {
        // 32 bits of each and, in the last word, 8 more of the block and the part and 16 more of
        // the command: more than any run reaches, so no two streams ever share a counter.
        const std::uint32_t upper =
            (High(block) & 0xFF) | (High(part) & 0xFF) << 8 | (High(command) & 0xFFFF) << 16;
        words = PHILOX({Low(block), Low(part), Low(command), upper}, key);
        ++block;
        used = 0;
    }
    return words[used++];
}

std::uint64_t RANDOM_STREAM::NEXT64() {
    const std::uint64_t low = NEXT32();
    return static_cast<std::uint64_t>(NEXT32()) << 32 | low;
}

REAL RANDOM_STREAM::FRACTION() { return static_cast<REAL>(NEXT64() >> 11) * 0x1p-53; }

NAT RANDOM_STREAM::BELOW(NAT n) {
    if (n < 1) return 0;
    const std::uint64_t range = static_cast<std::uint64_t>(n);
    const std::uint64_t rejected = (0 - range) % range; // 2^64 mod n: the uneven start is left out
    std::uint64_t drawn = NEXT64();
    while (drawn < rejected)
        drawn = NEXT64();
    return static_cast<NAT>(drawn % range);
}

std::uint64_t NEXT_RANDOM_COMMAND() { return ++lastCommand; }

void RESTART_RANDOM(std::uint64_t seed) {
    RANDOM_SEED = seed;
    lastCommand = 0;
}

std::uint64_t SYSTEM_SEED() {
    std::uint64_t seed = 0;
    if (getentropy(&seed, sizeof seed) == 0) return seed;
    return static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
}
} // namespace morvane
