#pragma once

#include "foundation/base/utf16.hpp"

#include <atomic>
#include <functional>

// The only places with threads, counters and progress. One short-lived thread a slice, at most
// `threadLimit` alive (below 1 counts as 1); the caller sleeps while it waits. Both print
// "Working threads: n" and "Parallel: p" and show PROGRESS under `label`. A slice function writes
// no console line, sees no engine and reallocates nothing shared; the result never depends on
// the limit. A slice whose thread cannot be started keeps its old content.
namespace morvane {
// Slices `first`..`last`; each writes its own part of the result.
void RUN_SLICES(const UTF16 &label, NAT first, NAT last, NAT threadLimit,
                const std::function<void(NAT slice)> &work);

// Slices `first`..`last` of a field of `sliceCount` slices whose work reads its neighbours: work
// fills a buffer of `bufferBytes` zero bytes, and `commit` copies it into the field on the
// caller's thread, once both neighbours no longer read. A null buffer means that memory ran out:
// the slice is skipped.
void RUN_SLICES_BUFFERED(const UTF16 &label, NAT first, NAT last, NAT sliceCount, NAT threadLimit,
                         NAT bufferBytes, const std::function<void(NAT slice, void *buffer)> &work,
                         const std::function<void(NAT slice, const void *buffer)> &commit);

// The counters of the run under way, one set for the process: one command runs at a time.
extern std::atomic<std::uint32_t> THREAD_STARTED;  // threads started; written by the caller
extern std::atomic<std::uint32_t> THREAD_FINISHED; // threads that have ended
extern std::atomic<std::uint32_t> THREAD_TAKEN;    // the newest thread has copied its arguments

// Makes thread starts fail for the slices it answers true for; for tests. Null: none fail.
void SETSTARTFAILURE(bool (*fails)(NAT slice));
} // namespace morvane
