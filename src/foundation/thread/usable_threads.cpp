#include "foundation/thread/usable_threads.hpp"

#include "foundation/console/files.hpp"
#include "foundation/thread/processor.hpp"

#include <algorithm>
#include <charconv>
#include <sched.h>
#include <sstream>
#include <thread>

namespace morvane {
namespace {
// A file of the system's own, whose size is told as 0; empty when it is not there.
std::string SystemText(const std::string &path) {
    constexpr NAT LONGEST = 64 * 1024;
    FILE_READ file;
    if (!OPENSILENT(file, path)) return {};
    std::string text(LONGEST, '\0');
    text.resize(static_cast<std::size_t>(file.READ(text.data(), LONGEST)));
    return text;
}

NAT MaskCount() {
    constexpr int MOST_PROCESSORS = 1 << 20;
    for (int processors = 1024; processors <= MOST_PROCESSORS; processors *= 2) {
        cpu_set_t *set = CPU_ALLOC(static_cast<std::size_t>(processors));
        if (!set) break;
        const std::size_t bytes = CPU_ALLOC_SIZE(static_cast<std::size_t>(processors));
        const bool known = ::sched_getaffinity(0, bytes, set) == 0;
        const NAT count = known ? CPU_COUNT_S(bytes, set) : 0;
        CPU_FREE(set);
        if (known) return std::max(count, NAT{1});
    }
    return std::max(NAT{std::thread::hardware_concurrency()}, NAT{1});
}

// "12:cpu,cpuacct:/a/b": the group's path when the line is of the hierarchy asked for.
bool GroupPath(const std::string &line, bool version1, std::string &path) {
    const std::size_t first = line.find(':');
    const std::size_t second = first == std::string::npos ? first : line.find(':', first + 1);
    if (second == std::string::npos) return false;
    const std::string names = "," + line.substr(first + 1, second - first - 1) + ",";
    path = line.substr(second + 1);
    return version1 ? names.find(",cpu,") != std::string::npos : names == ",,";
}

NAT Limited(NAT count, NAT quota) { return quota > 0 ? std::min(count, quota) : count; }
} // namespace

NAT CPUQUOTA(std::string_view cpuMax) {
    NAT quota = 0, period = 0;
    const char *end = cpuMax.data() + cpuMax.size();
    const auto first = std::from_chars(cpuMax.data(), end, quota);
    if (first.ec != std::errc() || quota <= 0) return 0; // "max" too
    const char *next = first.ptr;
    while (next != end && (*next == ' ' || *next == '\n'))
        ++next;
    const auto second = std::from_chars(next, end, period);
    if (second.ec != std::errc() || period <= 0) return 0;
    return (quota - 1) / period + 1;
}

std::vector<std::string> QUOTA_FILES(const std::string &groups, bool version1) {
    std::vector<std::string> files;
    std::istringstream lines(groups);
    for (std::string line, path; std::getline(lines, line);) {
        if (!GroupPath(line, version1, path)) continue;
        while (!path.empty() && path.back() == '/')
            path.pop_back();
        for (;;) {
            const std::string folder = (version1 ? "/sys/fs/cgroup/cpu" : "/sys/fs/cgroup") + path;
            files.push_back(folder + (version1 ? "/cpu.cfs_quota_us" : "/cpu.max"));
            if (version1) files.push_back(folder + "/cpu.cfs_period_us");
            if (path.empty()) break;
            path.erase(std::min(path.find_last_of('/'), path.size()));
        }
    }
    return files;
}

NAT USABLE_THREADS() {
    NAT count = MaskCount();
    const std::string groups = SystemText("/proc/self/cgroup");
    for (const std::string &file : QUOTA_FILES(groups, false))
        count = Limited(count, CPUQUOTA(SystemText(file)));
    const std::vector<std::string> old = QUOTA_FILES(groups, true);
    for (std::size_t i = 0; i + 1 < old.size(); i += 2)
        count = Limited(count, CPUQUOTA(SystemText(old[i]) + " " + SystemText(old[i + 1])));
    return std::max(count, NAT{1});
}
} // namespace morvane
