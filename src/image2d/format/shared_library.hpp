#pragma once

#include <string>

namespace morvane {
// A library of the system that is opened at run time. It stays open when the object ends, because
// libraries leave threads and exit handlers behind; CLOSE is for one that turned out useless.
class SHARED_LIBRARY {
public:
    SHARED_LIBRARY() = default;
    SHARED_LIBRARY(const SHARED_LIBRARY &) = delete;
    SHARED_LIBRARY &operator=(const SHARED_LIBRARY &) = delete;

    bool OPEN(const std::string &file); // silent; false when there is none, or the name is empty
    bool ISOPEN() const { return handle != nullptr; }
    void CLOSE();
    void *FIND(const std::string &routine) const; // null when it has none of that name
    // A routine as a function pointer: by its exported name, else by "_name@bytes" with the count
    // of its arguments' bytes. False leaves the pointer null.
    template <class FUNCTION>
    bool BIND(FUNCTION *&target, const std::string &routine, int bytes) const {
        void *found = FIND(routine);
        if (!found) found = FIND("_" + routine + "@" + std::to_string(bytes));
        target = reinterpret_cast<FUNCTION *>(found);
        return found != nullptr;
    }

private:
    void *handle = nullptr;
};
} // namespace morvane
