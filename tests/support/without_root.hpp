#pragma once

#include <cstdlib>
#include <filesystem>
#include <unistd.h>

namespace morvane {
// Works as a user for whom permissions hold, when the tests run as root; every user may
// write into the current folder.
class WITHOUT_ROOT {
public:
    WITHOUT_ROOT() : isRoot(::geteuid() == 0) {
        std::filesystem::permissions(".", std::filesystem::perms::all);
        if (isRoot && ::seteuid(65534) != 0) std::abort();
    }
    ~WITHOUT_ROOT() {
        if (isRoot && ::seteuid(0) != 0) std::abort();
    }
    WITHOUT_ROOT(const WITHOUT_ROOT &) = delete;
    WITHOUT_ROOT &operator=(const WITHOUT_ROOT &) = delete;

private:
    bool isRoot;
};
} // namespace morvane
