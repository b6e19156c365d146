#include "foundation/thread/slice_buffers.hpp"

#include "foundation/container/memory_block.hpp"

#include <atomic>

namespace morvane {
namespace {
// The state byte of a slice inside 1..n, shared between a worker and its starter.
std::atomic_ref<BYTE> State(const TPOLYBYTE &states, NAT slice) {
    return std::atomic_ref<BYTE>(static_cast<BYTE *>(states.DATA)[slice - 1]);
}
} // namespace

bool TSLICE::INIT(NAT count) {
    DONE();
    if (count < 1) return true;
    SLICES.INIT(count);
    STATES.INIT(count);
    if (SLICES.LENGTH == count && STATES.LENGTH == count) return true;
    DONE();
    return false;
}

void TSLICE::FILL(NAT bytes) {
    for (NAT slice = 1; slice <= SLICES.LENGTH; ++slice)
        FILL(slice, bytes);
}

bool TSLICE::FILL(NAT slice, NAT bytes) {
    if (slice < 1 || slice > SLICES.LENGTH) return false;
    RELEASE(slice);
    SLICES.PUT(slice, NEW_BLOCK(bytes, 1));
    return GET(slice) != nullptr;
}

void TSLICE::RELEASE(NAT slice) {
    if (void *block = GET(slice)) FREE_BLOCK(block);
    if (slice >= 1 && slice <= SLICES.LENGTH) SLICES.PUT(slice, nullptr);
}

void *TSLICE::GET(NAT slice) const {
    return slice >= 1 && slice <= SLICES.LENGTH ? SLICES._GET(slice) : nullptr;
}

void TSLICE::FILLSTATE(BYTE state) {
    for (NAT slice = 1; slice <= STATES.LENGTH; ++slice)
        PUTSTATE(slice, state);
    CURRENT = 0;
}

void TSLICE::PUTSTATE(NAT slice, BYTE state) {
    if (slice < 1 || slice > STATES.LENGTH) return;
    State(STATES, slice).store(state, std::memory_order_release);
}

BYTE TSLICE::GETSTATE(NAT slice) const {
    if (slice < 1 || slice > STATES.LENGTH) return SLICE_DONE;
    return State(STATES, slice).load(std::memory_order_acquire);
}

bool TSLICE::MAYCOMMIT(NAT slice) const {
    return GETSTATE(slice) == SLICE_READY && GETSTATE(slice - 1) < SLICE_RUNNING &&
           GETSTATE(slice + 1) < SLICE_RUNNING;
}

void TSLICE::DONE() {
    for (NAT slice = SLICES.LENGTH; slice >= 1; --slice)
        RELEASE(slice);
    SLICES.DONE();
    STATES.DONE();
    CURRENT = 0;
}
} // namespace morvane
