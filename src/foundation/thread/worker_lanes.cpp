#include "foundation/thread/worker_lanes.hpp"

#include "foundation/thread/run_slices.hpp"

#include <algorithm>
#include <new>
#include <system_error>
#include <thread>

namespace morvane {
std::atomic<std::uint32_t> THREAD_STARTED{0};
std::atomic<std::uint32_t> THREAD_FINISHED{0};
std::atomic<std::uint32_t> THREAD_TAKEN{0};

namespace {
bool (*startFails)(NAT slice) = nullptr;

// Of the counters only, which outlive every thread: the last thing that a worker touches.
void Count(std::atomic<std::uint32_t> &counter) {
    counter.fetch_add(1, std::memory_order_acq_rel);
    counter.notify_all();
}
} // namespace

void SETSTARTFAILURE(bool (*fails)(NAT slice)) { startFails = fails; }

struct WORKER_LANES::LANE {
    std::thread thread;
    std::atomic<bool> ended{false};
};

WORKER_LANES::WORKER_LANES(NAT limit, NAT slices)
    : laneCount(std::clamp(limit, NAT{1}, std::max(slices, NAT{1}))),
      lanes(new (std::nothrow) LANE[static_cast<std::size_t>(laneCount)]) {
    THREAD_STARTED.store(0);
    THREAD_FINISHED.store(0);
}

WORKER_LANES::~WORKER_LANES() {
    for (NAT i = 0; lanes && i < laneCount; ++i)
        if (lanes[static_cast<std::size_t>(i)].thread.joinable())
            lanes[static_cast<std::size_t>(i)].thread.join();
}

// A lane without a thread, or one whose thread has ended; null when all are at work.
WORKER_LANES::LANE *WORKER_LANES::FreeLane() {
    for (NAT i = 0; lanes && i < laneCount; ++i) {
        LANE &lane = lanes[static_cast<std::size_t>(i)];
        if (!lane.thread.joinable()) return &lane;
        if (!lane.ended.load(std::memory_order_acquire)) continue;
        lane.thread.join();
        return &lane;
    }
    return nullptr;
}

bool WORKER_LANES::START(NAT slice, const std::function<void(NAT slice)> &work) {
    LANE *lane = FreeLane();
    THREAD_STARTED.store(THREAD_STARTED.load() + 1);
    THREAD_TAKEN.store(0);
    bool started = false;
    if (lane && !(startFails && startFails(slice))) {
        lane->ended.store(false);
        try {
            lane->thread = std::thread([lane, slice, &work]() noexcept {
                const NAT taken = slice;
                Count(THREAD_TAKEN);
                work(taken);
                lane->ended.store(true, std::memory_order_release);
                Count(THREAD_FINISHED);
            });
            started = true;
        } catch (const std::system_error &) {
        } catch (const std::bad_alloc &) {
        }
    }
    if (!started) {
        Count(THREAD_TAKEN);
        Count(THREAD_FINISHED);
    }
    THREAD_TAKEN.wait(0);
    return started;
}

NAT WORKER_LANES::STARTED() const { return THREAD_STARTED.load(); }

NAT WORKER_LANES::ENDED() const { return THREAD_FINISHED.load(std::memory_order_acquire); }

void WORKER_LANES::WAITBELOW(NAT alive) const {
    for (NAT ended = ENDED(); STARTED() - ended >= alive; ended = ENDED())
        WAITBEYOND(ended);
}

void WORKER_LANES::WAITBEYOND(NAT ended) const {
    THREAD_FINISHED.wait(static_cast<std::uint32_t>(ended), std::memory_order_acquire);
}
} // namespace morvane
