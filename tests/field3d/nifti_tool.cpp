// Writes and reads NIfTI files for nifti_check.py, which compares them with what another reader
// sees.
//   nifti_tool write FOLDER            fields of every width in every form
//   nifti_tool read FILE BITS STACK    size, frame and CRC-32 of the voxels
#include "field3d/field/scalar_analysis.hpp"
#include "field3d/format/nifti.hpp"
#include "foundation/base/checksum.hpp"
#include "foundation/base/number_text.hpp"

#include <cstdio>
#include <string>

namespace morvane {
namespace {
FRAME TILTED() {
    FRAME frame;
    frame.SETMATRIX({{{{0.5, 0.25, 0}, {-0.25, 0.5, 0}, {0, 0.125, 2}}}});
    frame.SETMOVE({-12.5, 30.25, 7});
    return frame;
}

// Voxel value x + 10 y + 100 z (modulo the range); nifti_check.py holds the same rule.
void WRITE_SCALAR(BYTE tag, const std::string &path) {
    T3D_SCALAR_ANALYSIS field(tag, 7, 5, 3);
    for (NAT z = 1; z <= 3; ++z)
        for (NAT y = 1; y <= 5; ++y)
            for (NAT x = 1; x <= 7; ++x)
                field.PUT(x, y, z,
                          tag == TAG_GRAY ? (x + 10 * y + 100 * z) % 256
                                          : 190 * (x + 10 * y + 100 * z));
    field.SETFRAME(TILTED());
    field.SAVE(UTF16(path));
}

void WRITE_RGB(const std::string &path) {
    T3DRGB field(7, 5, 3);
    for (NAT z = 1; z <= 3; ++z)
        for (NAT y = 1; y <= 5; ++y)
            for (NAT x = 1; x <= 7; ++x)
                field.PUT(x, y, z, {x, 10 * y, 80 * z});
    field.frame = TILTED();
    SAVE(field, UTF16(path));
}

int WRITE_ALL(const std::string &folder) {
    for (const char *extension : {".nii", ".nii.gz", ".hdr"}) {
        WRITE_SCALAR(TAG_GRAY, folder + "/gray" + extension);
        WRITE_SCALAR(TAG_FULLGRAY, folder + "/fullgray" + extension);
        WRITE_RGB(folder + "/rgb" + extension);
    }
    return 0;
}

int READ_ONE(const std::string &path, NAT bits, NAT stack) {
    T3D_SCALAR_ANALYSIS field;
    const BYTE tag = bits == 1 ? TAG_MONO : bits == 8 ? TAG_GRAY : TAG_FULLGRAY;
    field.INIT(tag);
    field.loadFilterFactor = bits == 16 ? 1 : 0; // plain values
    if (path.ends_with(".gz"))
        field.LOADNII_GZ(tag, UTF16(path), stack);
    else
        field.LOADNII(tag, UTF16(path), stack);
    const NAT crc = field._DISPATCH([](const auto &raster) -> NAT {
        return raster.EMPTY() ? 0 : CRC32UPDATE(0, raster.VOXELS(), raster.BYTES());
    });
    std::printf("\nRESULT\t%s\t%lld\t%s\t%s\n", GETUTF8(GETSTRING(field.SIZE())).c_str(),
                static_cast<long long>(crc), GETUTF8(GETSTRING(field.MATRIX())).c_str(),
                GETUTF8(GETSTRING(field.MOVE())).c_str());
    return 0;
}
} // namespace
} // namespace morvane

int main(int count, char **arguments) {
    const std::string order = count > 1 ? arguments[1] : "";
    if (order == "write" && count == 3) return morvane::WRITE_ALL(arguments[2]);
    if (order == "read" && count == 5)
        return morvane::READ_ONE(arguments[2], std::stol(arguments[3]), std::stol(arguments[4]));
    std::fputs("nifti_tool write FOLDER | nifti_tool read FILE BITS STACK\n", stderr);
    return 1;
}
