#include "foundation/console/console.hpp"
#include "foundation/thread/run_slices.hpp"
#include "support/capture.hpp"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <cstring>
#include <ctime>
#include <mutex>
#include <poll.h>
#include <string>
#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
void Sleep(int milliseconds) { ::poll(nullptr, 0, milliseconds); }

// Counts how many are inside at once.
class CROWD {
public:
    void Enter() {
        const int now = ++inside;
        for (int old = most; old < now && !most.compare_exchange_weak(old, now);)
            continue;
    }
    void Leave() { --inside; }
    int Most() const { return most; }

private:
    std::atomic<int> inside{0}, most{0};
};

int MostAtOnce(NAT limit) {
    CROWD crowd;
    RUN_SLICES("work", 1, 24, limit, [&](NAT) {
        crowd.Enter();
        Sleep(3);
        crowd.Leave();
    });
    return crowd.Most();
}

// The sum of each element and its neighbours in the list, in place; what a smoothing filter does.
std::vector<std::int64_t> Smoothed(NAT limit) {
    std::vector<std::int64_t> field(66);
    for (std::size_t i = 0; i < field.size(); ++i)
        field[i] = static_cast<std::int64_t>(i * i * 7 % 31);
    RUN_SLICES_BUFFERED(
        "work", 2, 65, 66, limit, sizeof(std::int64_t),
        [&](NAT slice, void *buffer) {
            const std::size_t at = static_cast<std::size_t>(slice - 1);
            const std::int64_t sum = field[at - 1] + field[at] + field[at + 1];
            std::memcpy(buffer, &sum, sizeof sum);
        },
        [&](NAT slice, const void *buffer) {
            std::memcpy(&field[static_cast<std::size_t>(slice - 1)], buffer, sizeof(std::int64_t));
        });
    return field;
}

double ProcessSeconds() {
    timespec now;
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

bool FailsAtThree(NAT slice) { return slice == 3; }
} // namespace

TEST_CASE("every slice of a run is worked on once") {
    CAPTURE console;
    std::vector<std::atomic<int>> visits(101);
    RUN_SLICES("work", 2, 99, 8, [&](NAT slice) { ++visits[static_cast<std::size_t>(slice)]; });
    for (std::size_t slice = 0; slice < visits.size(); ++slice)
        CHECK(visits[slice] == (slice >= 2 && slice <= 99 ? 1 : 0));
}

TEST_CASE("no more threads live at once than the limit allows") {
    CAPTURE console;
    CHECK(MostAtOnce(1) == 1);
    CHECK(MostAtOnce(3) <= 3);
    CHECK(MostAtOnce(8) <= 8);
}

TEST_CASE("as many threads as the limit allows do live at once") {
    CAPTURE console;
    std::atomic<int> here{0};
    // Each waits for the other: with one thread at a time this would never end.
    RUN_SLICES("work", 1, 2, 2, [&](NAT) {
        ++here;
        for (int i = 0; i < 10'000 && here < 2; ++i)
            Sleep(1);
    });
    CHECK(here == 2);
}

TEST_CASE("a limit below 1 works as 1") {
    CAPTURE console;
    CHECK(MostAtOnce(0) == 1);
    CHECK(console.CONTAINS("Parallel: 1\n"));
    CHECK(MostAtOnce(-5) == 1);
}

TEST_CASE("with a limit of 1 a plain run still starts threads, one at a time") {
    CAPTURE console;
    std::atomic<int> elsewhere{0};
    const pid_t caller = ::gettid();
    RUN_SLICES("work", 1, 4, 1, [&](NAT) { elsewhere += ::gettid() != caller; });
    CHECK(elsewhere == 4);
}

TEST_CASE("a run tells its slices, its limit and its end") {
    CAPTURE console;
    RUN_SLICES("  Scan", 2, 9, 3, [](NAT) {});
    CHECK(console.TEXT().starts_with("Working threads: 8\nParallel: 3\n  Scan. 100 % ready ("));
}

TEST_CASE("a run without slices does no work") {
    CAPTURE console;
    int calls = 0;
    RUN_SLICES("work", 2, 1, 4, [&](NAT) { ++calls; });
    RUN_SLICES("work", 2, 0, 4, [&](NAT) { ++calls; });
    CHECK(calls == 0);
}

TEST_CASE("the counters agree at the end of a run") {
    CAPTURE console;
    RUN_SLICES("work", 1, 20, 4, [](NAT) {});
    CHECK(THREAD_STARTED == 20);
    CHECK(THREAD_FINISHED == 20);
    CHECK(THREAD_TAKEN == 1);
}

TEST_CASE("the caller sleeps while it waits") {
    CAPTURE console;
    const double before = ProcessSeconds();
    RUN_SLICES("work", 1, 4, 2, [](NAT) { Sleep(150); }); // at least 0.3 s
    CHECK(ProcessSeconds() - before < 0.1);
}

TEST_CASE("a slice whose thread cannot be started keeps its content, without a message") {
    CAPTURE console;
    std::vector<int> field(6, 0);
    SETSTARTFAILURE(FailsAtThree);
    RUN_SLICES("work", 1, 5, 2, [&](NAT slice) { field[static_cast<std::size_t>(slice)] = 1; });
    SETSTARTFAILURE(nullptr);
    CHECK(field == std::vector<int>{0, 1, 1, 0, 1, 1});
    CHECK(console.TEXT().starts_with("Working threads: 5\nParallel: 2\nwork. 100 % ready ("));
    CHECK(THREAD_FINISHED == 5);
}

TEST_CASE("a buffered slice whose thread cannot be started is not committed") {
    CAPTURE console;
    std::vector<NAT> committed;
    SETSTARTFAILURE(FailsAtThree);
    RUN_SLICES_BUFFERED(
        "work", 1, 5, 5, 2, 8, [](NAT, void *) {},
        [&](NAT slice, const void *) { committed.push_back(slice); });
    SETSTARTFAILURE(nullptr);
    std::sort(committed.begin(), committed.end());
    CHECK(committed == std::vector<NAT>{1, 2, 4, 5});
}

TEST_CASE("a buffered run reads the old values of the neighbours, whatever the limit") {
    CAPTURE console;
    const std::vector<std::int64_t> serial = Smoothed(1);
    CHECK(serial[2 - 1] == 0 + 7 + 28);    // 7 * (0, 1, 4) modulo 31
    CHECK(serial[3 - 1] == 7 + 28 + 1);    // 63 is 1 modulo 31
    CHECK(serial[65] == 65 * 65 * 7 % 31); // a border slice stays
    CHECK(Smoothed(2) == serial);
    CHECK(Smoothed(8) == serial);
    CHECK(Smoothed(1000) == serial);
}

TEST_CASE("a slice is not committed before both neighbours have finished") {
    CAPTURE console;
    constexpr std::size_t COUNT = 40;
    std::vector<std::atomic<bool>> finished(COUNT + 2);
    bool early = false;
    std::vector<NAT> order;
    RUN_SLICES_BUFFERED(
        "work", 2, COUNT - 1, COUNT, 4, 1,
        [&](NAT slice, void *) {
            Sleep(static_cast<int>(slice * 7 % 5));
            finished[static_cast<std::size_t>(slice)] = true;
        },
        [&](NAT slice, const void *) {
            order.push_back(slice);
            const std::size_t at = static_cast<std::size_t>(slice);
            if (at > 2 && !finished[at - 1]) early = true;
            if (at < COUNT - 1 && !finished[at + 1]) early = true;
        });
    CHECK_FALSE(early);
    CHECK(order.size() == COUNT - 2);
}

TEST_CASE("results are committed on the caller's thread, each once") {
    CAPTURE console;
    std::vector<int> commits(21, 0);
    bool elsewhere = false;
    const pid_t caller = ::gettid();
    RUN_SLICES_BUFFERED(
        "work", 1, 20, 20, 4, 16, [](NAT, void *) {},
        [&](NAT slice, const void *) {
            ++commits[static_cast<std::size_t>(slice)];
            elsewhere = elsewhere || ::gettid() != caller;
        });
    CHECK(std::count(commits.begin(), commits.end(), 1) == 20);
    CHECK_FALSE(elsewhere);
}

TEST_CASE("a result is committed during the run, not only at its end") {
    CAPTURE console;
    std::atomic<int> commits{0};
    int atLastSlice = 0;
    RUN_SLICES_BUFFERED(
        "work", 1, 30, 30, 2, 1,
        [&](NAT slice, void *) {
            if (slice == 30) atLastSlice = commits;
        },
        [&](NAT, const void *) { ++commits; });
    CHECK(atLastSlice > 0);
    CHECK(commits == 30);
}

TEST_CASE("a buffer is zero when its slice begins") {
    CAPTURE console;
    std::atomic<int> dirty{0};
    for (const NAT limit : {1, 4})
        RUN_SLICES_BUFFERED(
            "work", 1, 30, 30, limit, 4096,
            [&](NAT, void *buffer) {
                char *bytes = static_cast<char *>(buffer);
                if (std::count(bytes, bytes + 4096, 0) != 4096) ++dirty;
                std::memset(bytes, 1, 4096);
            },
            [](NAT, const void *) {});
    CHECK(dirty == 0);
}

TEST_CASE("slices for which memory runs out are skipped") {
    CAPTURE console;
    int works = 0, commits = 0;
    RUN_SLICES_BUFFERED(
        "work", 1, 3, 3, 2, NATMAX, [&](NAT, void *) { ++works; },
        [&](NAT, const void *) { ++commits; });
    RUN_SLICES_BUFFERED(
        "work", 1, 3, 3, 1, NATMAX, [&](NAT, void *) { ++works; },
        [&](NAT, const void *) { ++commits; });
    CHECK(works == 0);
    CHECK(commits == 0);
}

TEST_CASE("with a limit below 2 or a field of one slice a buffered run starts no thread") {
    CAPTURE console;
    const pid_t caller = ::gettid();
    bool elsewhere = false;
    const auto work = [&](NAT, void *) { elsewhere = elsewhere || ::gettid() != caller; };
    RUN_SLICES_BUFFERED("work", 1, 5, 5, 1, 1, work, [](NAT, const void *) {});
    RUN_SLICES_BUFFERED("work", 1, 1, 1, 8, 1, work, [](NAT, const void *) {});
    CHECK_FALSE(elsewhere);
    CHECK_FALSE(console.CONTAINS("Parallel"));
    CHECK(console.CONTAINS("work. 100 % ready ("));
}

TEST_CASE("a field of two slices has no inner slice to work on") {
    CAPTURE console;
    int works = 0;
    RUN_SLICES_BUFFERED(
        "work", 2, 1, 2, 4, 1, [&](NAT, void *) { ++works; }, [](NAT, const void *) {});
    CHECK(works == 0);
}
