#include "foundation/thread/run_slices.hpp"

#include "foundation/console/console.hpp"
#include "foundation/thread/slice_buffers.hpp"
#include "foundation/thread/worker_lanes.hpp"

#include <algorithm>

namespace morvane {
namespace {
using BUFFER_WORK = std::function<void(NAT slice, void *buffer)>;
using BUFFER_COMMIT = std::function<void(NAT slice, const void *buffer)>;

// The printed side of a run: its lines, its title, its share done.
class REPORT {
public:
    REPORT(const UTF16 &title, NAT sliceCount) : label(title), count(sliceCount) {}
    REPORT(const REPORT &) = delete;
    REPORT &operator=(const REPORT &) = delete;
    ~REPORT() { PROGRESS(); }

    void TellThreads(NAT threadLimit) const {
        WRITELN("Working threads: " + GETSTRING(count));
        WRITELN("Parallel: " + GETSTRING(threadLimit));
    }
    void Show(NAT ended) const {
        PROGRESS(label, count > 0 ? static_cast<REAL>(ended) / static_cast<REAL>(count) : 0);
    }

private:
    const UTF16 &label;
    NAT count;
};

// What happens around a slice: `work` on its thread, the others on the caller's.
struct SLICE_STEPS {
    std::function<void(NAT slice)> prepare = [](NAT) {};
    std::function<void(NAT slice)> work;
    std::function<void(NAT slice)> failed = [](NAT) {}; // its thread could not be started
    std::function<void()> between = [] {};              // after each start and each end
};

// Starts a thread a slice, at most `limit` alive, and sleeps until all have ended.
void FanOut(const REPORT &report, RANGENAT slices, NAT limit, const SLICE_STEPS &steps) {
    WORKER_LANES lanes(limit, slices.max - slices.min + 1);
    report.Show(0);
    for (NAT slice = slices.min; slice <= slices.max; ++slice) {
        steps.prepare(slice);
        if (!lanes.START(slice, steps.work)) steps.failed(slice);
        lanes.WAITBELOW(limit);
        steps.between();
        report.Show(lanes.ENDED());
    }
    for (NAT ended = lanes.ENDED(); ended < lanes.STARTED(); ended = lanes.ENDED()) {
        lanes.WAITBEYOND(ended);
        steps.between();
        report.Show(lanes.ENDED());
    }
    steps.between();
}

// The slices of a run whose results wait in buffers, and what of them is in the field already.
class BUFFERED_RUN {
public:
    BUFFERED_RUN(NAT firstSlice, NAT lastSlice, NAT bytes, const BUFFER_COMMIT &commitSlice)
        : first(firstSlice), last(lastSlice), bufferBytes(std::max(bytes, NAT{1})),
          commit(commitSlice) {}

    // States of the run's slices are "not finished", of those beside it "nobody reads"; false
    // when memory runs out.
    bool Init(NAT sliceCount) {
        if (!buffers.INIT(sliceCount)) return false;
        for (NAT slice = first; slice <= last; ++slice)
            buffers.PUTSTATE(slice, SLICE_RUNNING);
        return true;
    }
    void Prepare(NAT slice) {
        buffers.CURRENT = slice;
        buffers.FILL(slice, bufferBytes);
    }
    // On a worker: null buffers, for which memory ran out, are passed over.
    void Work(NAT slice, const BUFFER_WORK &work) {
        void *buffer = buffers.GET(slice);
        if (buffer) work(slice, buffer);
        buffers.PUTSTATE(slice, buffer ? SLICE_READY : SLICE_DONE);
    }
    void Fail(NAT slice) {
        buffers.PUTSTATE(slice, SLICE_DONE);
        buffers.RELEASE(slice);
    }
    // Every result that no other slice can still read over.
    void CommitReady() {
        for (NAT slice = oldest; slice <= buffers.CURRENT; ++slice)
            if (buffers.MAYCOMMIT(slice)) Commit(slice);
        while (oldest <= last && buffers.GETSTATE(oldest) == SLICE_DONE)
            ++oldest;
    }

private:
    void Commit(NAT slice) {
        commit(slice, buffers.GET(slice));
        buffers.PUTSTATE(slice, SLICE_DONE);
        buffers.RELEASE(slice);
    }

    NAT first, last, bufferBytes;
    const BUFFER_COMMIT &commit;
    TSLICE buffers;
    NAT oldest = first; // every slice before it is committed
};
} // namespace

void RUN_SLICES(const UTF16 &label, NAT first, NAT last, NAT threadLimit,
                const std::function<void(NAT slice)> &work) {
    const NAT limit = std::max(threadLimit, NAT{1});
    const REPORT report(label, std::max(last - first + 1, NAT{0}));
    report.TellThreads(limit);
    SLICE_STEPS steps;
    steps.work = work;
    FanOut(report, {first, last}, limit, steps);
}

void RUN_SLICES_BUFFERED(const UTF16 &label, NAT first, NAT last, NAT sliceCount, NAT threadLimit,
                         NAT bufferBytes, const std::function<void(NAT slice, void *buffer)> &work,
                         const std::function<void(NAT slice, const void *buffer)> &commit) {
    const REPORT report(label, std::max(last - first + 1, NAT{0}));
    BUFFERED_RUN run(first, last, bufferBytes, commit);
    if (!run.Init(sliceCount)) return;
    if (threadLimit < 2 || sliceCount < 2) {
        for (NAT slice = first; slice <= last; ++slice) {
            report.Show(slice - first);
            run.Prepare(slice);
            run.Work(slice, work);
            run.CommitReady();
        }
        return;
    }
    report.TellThreads(threadLimit);
    SLICE_STEPS steps;
    steps.prepare = [&run](NAT slice) { run.Prepare(slice); };
    steps.work = [&run, &work](NAT slice) { run.Work(slice, work); };
    steps.failed = [&run](NAT slice) { run.Fail(slice); };
    steps.between = [&run] { run.CommitReady(); };
    FanOut(report, {first, last}, threadLimit, steps);
}
} // namespace morvane
