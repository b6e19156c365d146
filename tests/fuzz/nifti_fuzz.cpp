// Any bytes as a plain .nii and as the header of a pair, into fields of every width.
#include "field3d/field/scalar_analysis.hpp"
#include "field3d/format/nifti.hpp"
#include "field3d/format/nifti_info.hpp"
#include "fuzz_files.hpp"

namespace morvane {
namespace {
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
