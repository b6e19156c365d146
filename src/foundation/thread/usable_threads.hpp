#pragma once

#include "foundation/base/records.hpp"

#include <string>
#include <vector>

// How many hardware threads the system grants this process; used inside foundation/thread only.
namespace morvane {
// The affinity mask's count, limited by the control groups' quota; at least 1.
NAT USABLE_THREADS();
// Files that may hold a quota of this process, as the text of /proc/self/cgroup names its groups:
// its own group's first, then those above it. `version1` lists those of the older hierarchy, whose
// quota and period stand in two files, quota first.
std::vector<std::string> QUOTA_FILES(const std::string &groups, bool version1);
} // namespace morvane
