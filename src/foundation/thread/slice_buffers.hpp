#pragma once

#include "foundation/container/poly_types.hpp"

namespace morvane {
// States of a slice of a buffered run.
inline constexpr BYTE SLICE_RUNNING = 2; // not finished: not started, or still running
inline constexpr BYTE SLICE_READY = 1;   // finished, result not yet taken
inline constexpr BYTE SLICE_DONE = 0;    // result taken, or the start failed

// Private result buffers of the slices 1..n of a parallel run, with a state each. A worker writes
// its own block and its own state; the rest belongs to the thread that started it.
class TSLICE {
public:
    TPOLYPOINTER SLICES; // one block per slice
    TPOLYBYTE STATES;    // read and written as atomics
    NAT CURRENT = 0;     // the slice handed to the thread being started

    TSLICE() = default;
    TSLICE(const TSLICE &) = delete;
    TSLICE &operator=(const TSLICE &) = delete;
    ~TSLICE() { DONE(); }

    bool INIT(NAT count); // null pointers, states 0; false when memory runs out
    void FILL(NAT bytes); // a zero-filled block for each slice; null where memory runs out
    bool FILL(NAT slice, NAT bytes); // for one slice
    void RELEASE(NAT slice);         // frees its block
    void *GET(NAT slice) const;      // null outside 1..n
    void FILLSTATE(BYTE state);      // all states; CURRENT becomes 0
    void PUTSTATE(NAT slice, BYTE state);
    BYTE GETSTATE(NAT slice) const; // 0 outside 1..n
    // Finished, and neither neighbour can still read what the slice's commit overwrites.
    bool MAYCOMMIT(NAT slice) const;
    void DONE(); // frees the blocks from the last to the first, then both lists
};
} // namespace morvane
