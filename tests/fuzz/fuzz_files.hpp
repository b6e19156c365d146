#pragma once

#include "field3d/format/nifti_header.hpp"
#include "foundation/console/console.hpp"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>

// Files for the fuzz targets of readers, in a temporary folder of the process.
namespace morvane {
inline const std::string &FOLDER() {
    static const std::string folder = [] {
        std::string name = "/tmp/morvane-fuzz-XXXXXX";
        if (!mkdtemp(name.data())) std::abort();
        SETSINK([](std::string_view, void *) {}, nullptr);
        return name;
    }();
    return folder;
}

inline void PUT(const std::string &path, const BYTE *data, std::size_t size) {
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char *>(data), static_cast<std::streamsize>(size));
}

// The bytes as a header claim at most 16,384 voxels: larger claims are left to the tests, so that
// a round stays quick and memory bounded.
inline bool ISSMALL(const BYTE *data, std::size_t size) {
    constexpr NAT MOST_VOXELS = NAT{1} << 14;
    TNIFTI header;
    std::memcpy(&header, data, std::min(size, sizeof header));
    if (header.sizeof_hdr != 348) SWAPNIFTI(header);
    NAT voxels = 1;
    for (std::size_t axis = 1; axis <= 7; ++axis) {
        const NAT side = header.dim[axis] < 1 ? 1 : header.dim[axis];
        if (voxels > MOST_VOXELS / side) return false;
        voxels *= side;
    }
    return true;
}
} // namespace morvane
