// Any bytes as a plain .nii and as the header of a pair, into fields of every width. Headers that
// claim more than a million voxels are left to the tests, so that memory stays bounded.
#include "field3d/field/scalar_analysis.hpp"
#include "field3d/format/nifti.hpp"
#include "field3d/format/nifti_info.hpp"
#include "foundation/console/console.hpp"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>

namespace morvane {
namespace {
constexpr NAT MOST_VOXELS = NAT{1} << 20;

// The temporary folder of this process.
const std::string &FOLDER() {
    static const std::string folder = [] {
        std::string name = "/tmp/morvane-fuzz-XXXXXX";
        if (!mkdtemp(name.data())) std::abort();
        SETSINK([](std::string_view, void *) {}, nullptr);
        return name;
    }();
    return folder;
}

bool ISSMALL(const BYTE *data, std::size_t size) {
    TNIFTI header;
    std::memcpy(&header, data, std::min(size, sizeof header));
    if (header.sizeof_hdr != 348) SWAPNIFTI(header);
    NAT voxels = 1;
    for (std::size_t axis = 1; axis <= 4; ++axis) {
        const NAT side = header.dim[axis] < 1 ? 1 : header.dim[axis];
        if (voxels > MOST_VOXELS / side) return false;
        voxels *= side;
    }
    return true;
}

void PUT(const std::string &path, const BYTE *data, std::size_t size) {
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char *>(data), static_cast<std::streamsize>(size));
}

void LOAD_ALL(const UTF16 &name, NAT stack) {
    T3D_SCALAR_ANALYSIS field;
    for (const BYTE tag : {TAG_MONO, TAG_GRAY, TAG_FULLGRAY})
        field.LOADNII(tag, name, stack);
    field.loadFilterFactor = 3;
    field.LOADNII_GZ(TAG_GRAY, name, stack);
    TNIFTI header;
    INFO_NII_VAR(name, header);
    NIFTI_SOURCE source;
    if (!source.OPEN(name, stack, false)) return;
    const VECTORNAT size = source.SIZE();
    TPOLYREAL slice(size.x * size.y);
    if (slice.LENGTH > 0) source.READSLICE(source.STACKS(), size.z, slice.ELEMENTS());
}
} // namespace
} // namespace morvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace morvane;
    if (size < 1 || !ISSMALL(data, size)) return 0;
    const std::string plain = FOLDER() + "/a.nii", head = FOLDER() + "/b.hdr";
    PUT(plain, data, size);
    LOAD_ALL(UTF16(plain), static_cast<std::int8_t>(data[size - 1]));
    const std::size_t part = std::min<std::size_t>(size, 348);
    PUT(head, data, part);
    PUT(FOLDER() + "/b.img", data + part, size - part);
    LOAD_ALL(UTF16(head), 1);
    INFO_NII_TXT(UTF16(head));
    return 0;
}
