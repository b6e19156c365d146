#include "foundation/thread/processor.hpp"
#include "foundation/thread/usable_threads.hpp"
#include "support/child_process.hpp"

#include <sched.h>
#include <string>
#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("GETTHREADS is at least 1 and no more than the affinity mask allows") {
    cpu_set_t set;
    REQUIRE(::sched_getaffinity(0, sizeof set, &set) == 0);
    CHECK(GETTHREADS() >= 1);
    CHECK(GETTHREADS() <= CPU_COUNT(&set));
}

TEST_CASE("GETTHREADS is cores times threads, doubled by hyper-threading") {
    const PROCESSOR_RECORD &p = PROCESSOR();
    CHECK(GETTHREADS() == p.CPUCORES * p.CPUTHREADS * (p.IS_HYPERTHREADING ? 2 : 1));
}

TEST_CASE("a process bound to one processor has one thread") {
    CHECK(IN_CHILD([] {
              cpu_set_t all, one;
              if (::sched_getaffinity(0, sizeof all, &all) != 0) return 1;
              CPU_ZERO(&one);
              for (std::size_t cpu = 0; cpu < CPU_SETSIZE && CPU_COUNT(&one) == 0; ++cpu)
                  if (CPU_ISSET(cpu, &all)) CPU_SET(cpu, &one);
              if (::sched_setaffinity(0, sizeof one, &one) != 0) return 2;
              return USABLE_THREADS() == 1 ? 7 : 3;
          }) == 7);
}

TEST_CASE("a quota counts whole processors, a part of one as one") {
    CHECK(CPUQUOTA("200000 100000\n") == 2);
    CHECK(CPUQUOTA("150000 100000") == 2);
    CHECK(CPUQUOTA("1000 100000") == 1);
    CHECK(CPUQUOTA("50000\n 100000\n") == 1);
}

TEST_CASE("a quota that is none or cannot be read limits nothing") {
    for (const char *text : {"max 100000\n", "-1\n 100000\n", "0 100000", "", " ", "100000", "5 0",
                             "5 -1", "100000 x"})
        CHECK(CPUQUOTA(text) == 0);
}

TEST_CASE("the quota of a group and of every group above it is looked at") {
    CHECK(QUOTA_FILES("0::/a/b\n", false) == std::vector<std::string>{"/sys/fs/cgroup/a/b/cpu.max",
                                                                      "/sys/fs/cgroup/a/cpu.max",
                                                                      "/sys/fs/cgroup/cpu.max"});
    CHECK(QUOTA_FILES("0::/\n", false) == std::vector<std::string>{"/sys/fs/cgroup/cpu.max"});
}

TEST_CASE("the older hierarchy is known by its controller") {
    const std::string groups = "3:cpu,cpuacct:/a\n2:cpuset:/b\n0::/c\n";
    CHECK(QUOTA_FILES(groups, true) ==
          std::vector<std::string>{
              "/sys/fs/cgroup/cpu/a/cpu.cfs_quota_us", "/sys/fs/cgroup/cpu/a/cpu.cfs_period_us",
              "/sys/fs/cgroup/cpu/cpu.cfs_quota_us", "/sys/fs/cgroup/cpu/cpu.cfs_period_us"});
    CHECK(QUOTA_FILES("2:cpuset:/b\n", true).empty());
    CHECK(QUOTA_FILES("nonsense\n:\n", false).empty());
}

TEST_CASE("GETCORES tells the vendor, the cores and the threads") {
    PROCESSOR_RECORD p;
    p.CPUCORES = 4;
    CHECK(GETCORES(p) == "CPU cores 4*1 (4 threads)");
    p.VENDOR = VENDOR_CODE::AMD;
    p.IS_HYPERTHREADING = true;
    CHECK(GETCORES(p) == "AMD cores 4*1+htt (8 threads)");
    p.CPUTHREADS = 2;
    p.IS_HYPERTHREADING = false;
    p.VENDOR = VENDOR_CODE::POWERPC;
    CHECK(GETCORES(p) == "PowerPC cores 4*2 (8 threads)");
}

TEST_CASE("every vendor has its word") {
    PROCESSOR_RECORD p;
    const std::pair<VENDOR_CODE, std::string> words[] = {
        {VENDOR_CODE::INTEL, "Intel "},     {VENDOR_CODE::COMPATIBLE, "Like AMD or Intel "},
        {VENDOR_CODE::VIRTUAL, "Virtual "}, {VENDOR_CODE::SPARC, "Sparc "},
        {VENDOR_CODE::ARM, "ARM "},         {VENDOR_CODE::UNKNOWN, "CPU "}};
    for (const auto &[vendor, word] : words) {
        p.VENDOR = vendor;
        CHECK(GETCORES(p) == word + "cores 1*1 (1 threads)");
    }
}

TEST_CASE("GETSIMD lists the families with their extensions") {
    PROCESSOR_RECORD p;
    CHECK(GETSIMD(p).empty());
    p.IS_MMX = p.IS_MMX_EXT = p.IS_SSE = p.IS_SSE2 = p.IS_SSSE3 = p.IS_SSE42 = true;
    p.IS_AVX = p.IS_FMA = p.IS_AVX2 = true;
    CHECK(GETSIMD(p) == "mmx+ext,sse+2+s3+42,avx+fma+2");
    p.IS_3DNOW = p.IS_3DNOW_PREFETCH = p.IS_AVX512F = p.IS_AVX512VL = p.IS_AMX = true;
    CHECK(GETSIMD(p) == "mmx+ext,3dnow+prefetch,sse+2+s3+42,avx+fma+2,avx512+f+vl,amx");
}

TEST_CASE("an extension without its family is not listed") {
    PROCESSOR_RECORD p;
    p.IS_BMI2 = true;
    CHECK(GETSIMD(p).empty());
}

#if defined(__x86_64__)
TEST_CASE("every 64-bit x86 processor has the first two steps of SSE") {
    CHECK(PROCESSOR().IS_SSE2);
    CHECK(PROCESSOR().GET_SSE_VERSION >= 2);
    CHECK(PROCESSOR().IS_AVX2 == (__builtin_cpu_supports("avx2") != 0));
    CHECK(PROCESSOR().IS_AVX512F == (__builtin_cpu_supports("avx512f") != 0));
}
#endif

TEST_CASE("emptying the MMX state leaves the numbers alone") {
    volatile double a = 1.5;
    EMMS();
    FEMMS();
    CHECK(a * 2 == 3);
}
