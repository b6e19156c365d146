#pragma once

#include "foundation/base/records.hpp"

#include <atomic>
#include <functional>
#include <memory>

// The threads behind RUN_SLICES; used inside foundation/thread only.
namespace morvane {
// A lane holds one live thread at most; as many lanes as threads may live at once. The destructor
// waits for every thread.
class WORKER_LANES {
public:
    // 0 to 2^32 threads over its life, at most `limit` (at least 1) alive.
    WORKER_LANES(NAT limit, NAT slices);
    WORKER_LANES(const WORKER_LANES &) = delete;
    WORKER_LANES &operator=(const WORKER_LANES &) = delete;
    ~WORKER_LANES();

    // Runs work(slice) on a new thread in a free lane and returns once the thread has its
    // arguments. False when no thread could be started; it counts as ended then.
    bool START(NAT slice, const std::function<void(NAT slice)> &work);
    NAT STARTED() const;              // starts so far
    NAT ENDED() const;                // threads that have ended, or could not be started
    void WAITBELOW(NAT alive) const;  // sleeps until fewer than so many threads are alive
    void WAITBEYOND(NAT ended) const; // sleeps until more than so many threads have ended

private:
    struct LANE;
    LANE *FreeLane();

    NAT laneCount = 0;
    std::unique_ptr<LANE[]> lanes; // null when memory ran out: every start fails
};
} // namespace morvane
