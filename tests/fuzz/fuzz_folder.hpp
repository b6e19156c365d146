#pragma once

#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <string>
#include <unistd.h>

namespace morvane {
// A folder of the process is the current one while this lives; before and behind it the fuzzer
// itself works in its own.
class FUZZ_FOLDER {
public:
    FUZZ_FOLDER() {
        if (::chdir(Name().c_str()) != 0) std::abort();
    }
    ~FUZZ_FOLDER() {
        if (::fchdir(before) != 0) std::abort();
    }
    FUZZ_FOLDER(const FUZZ_FOLDER &) = delete;
    FUZZ_FOLDER &operator=(const FUZZ_FOLDER &) = delete;

    static int ENTRIES() { // in the current folder, without itself and the one above
        DIR *folder = ::opendir(".");
        if (!folder) std::abort();
        int entries = -2;
        while (::readdir(folder))
            ++entries;
        ::closedir(folder);
        return entries;
    }

private:
    static const std::string &Name() {
        static const std::string name = [] {
            before = ::open(".", O_RDONLY | O_DIRECTORY);
            std::string pattern = "/tmp/morvane-fuzz-XXXXXX";
            if (before < 0 || !mkdtemp(pattern.data())) std::abort();
            return pattern;
        }();
        return name;
    }
    static inline int before = -1;
};
} // namespace morvane
