#include "field3d/field/scalar_analysis.hpp"
#include "field3d/format/file_base.hpp"
#include "field3d/format/nifti.hpp"
#include "field3d/format/nifti_info.hpp"
#include "field3d/format/read_raw.hpp"
#include "field3d/format/stats.hpp"
#include "foundation/console/files.hpp"

#include <array>
#include <string_view>

// The frame of a field as a file of its own: a header without data.
namespace morvane {
namespace {
// Reads a header that has a size; formats without a readable one give false in silence.
bool READ_PROPERTIES(const UTF16 &file, TNIFTI &header) {
    constexpr std::array<std::string_view, 6> WITHOUT = {"mdf", "mif", "mifx", "pcr", "vtk", "gz"};
    if (file.EMPTY()) return false;
    const std::string extension = GETUTF8(GETEXTENSION(file));
    for (const std::string_view other : WITHOUT)
        if (extension == other) return false;
    const bool read =
        extension.ends_with(".gz") ? INFO_NII_GZ_VAR(file, header) : INFO_NII_VAR(file, header);
    return read && NAT{header.dim[1]} + header.dim[2] + header.dim[3] + header.dim[4] > 0;
}

void TAKE_FRAME(T3D_SCALAR_ANALYSIS &field, const TNIFTI &header) {
    MATRIX3 matrix;
    VECTOR offset;
    GETNIFTI_TRANSFORM(header, matrix, offset);
    field._SETMATRIX(matrix);
    field._SETMOVE(offset);
    WRITE_FRAME("  Transformation: ", field.GETFRAME());
}
} // namespace

bool T3D_SCALAR_ANALYSIS::LOAD_PROPERTIES(const UTF16 &file) {
    TNIFTI header;
    if (!active || !READ_PROPERTIES(file, header)) return false;
    TAKE_FRAME(*this, header);
    return true;
}

bool T3D_SCALAR_ANALYSIS::LOAD_FRAMEWORK(BYTE tag, const UTF16 &file) {
    TNIFTI header;
    if (!READ_PROPERTIES(file, header)) return false;
    DONE();
    INIT(tag);
    const VECTORNAT size{header.dim[1], header.dim[2], header.dim[3]};
    _DISPATCH([&](auto &raster) { return MAKEZERO(raster, size); });
    TAKE_FRAME(*this, header);
    return ISNOTEMPTY();
}

bool T3D_SCALAR_ANALYSIS::SAVE_PROPERTIES(const UTF16 &file) const {
    if (file.EMPTY() || !active || !FITS_NIFTI(SIZE())) return false;
    const NIFTI_KIND kind = BITS() == 16 ? NIFTI_KIND{512, 16} : NIFTI_KIND{2, 8};
    const TNIFTI header = MAKENIFTI(kind, SIZE(), GETFRAME(), false);
    FILE_WRITE target;
    if (!ASSIGNWRITE(target, WITHEXTENSION(file, "hdr"))) return false;
    target.WRITE(&header, sizeof(header));
    return target.COMMIT();
}
} // namespace morvane
