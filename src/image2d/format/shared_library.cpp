#include "image2d/format/shared_library.hpp"

#include <dlfcn.h>
#include <utility>

namespace morvane {
bool SHARED_LIBRARY::OPEN(const std::string &file) {
    CLOSE();
    if (!file.empty()) handle = ::dlopen(file.c_str(), RTLD_LAZY | RTLD_LOCAL);
    return ISOPEN();
}

void SHARED_LIBRARY::CLOSE() {
    if (void *open = std::exchange(handle, nullptr)) ::dlclose(open);
}

void *SHARED_LIBRARY::FIND(const std::string &routine) const {
    return handle ? ::dlsym(handle, routine.c_str()) : nullptr;
}
} // namespace morvane
