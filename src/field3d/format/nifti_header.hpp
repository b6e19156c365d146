#pragma once

#include "field3d/raster/frame.hpp"
#include "foundation/base/utf16.hpp"

#include <cstdint>

namespace morvane {
// The published NIfTI-1 header, 348 bytes; an Analyze 7.5 header has the same layout in the fields
// used here. A .nii file has it at its start, then 4 extension bytes and the data.
struct TNIFTI {
    std::int32_t sizeof_hdr = 0;
    char data_type[10] = {};
    char db_name[18] = {};
    std::int32_t extents = 0;
    std::int16_t session_error = 0;
    char regular = 0;
    char dim_info = 0;
    std::int16_t dim[8] = {};
    float intent_p1 = 0, intent_p2 = 0, intent_p3 = 0;
    std::int16_t intent_code = 0;
    std::int16_t datatype = 0;
    std::int16_t bitpix = 0;
    std::int16_t slice_start = 0;
    float pixdim[8] = {};
    float vox_offset = 0;
    float scl_slope = 0, scl_inter = 0;
    std::int16_t slice_end = 0;
    BYTE slice_code = 0;
    BYTE xyzt_units = 0;
    float cal_max = 0, cal_min = 0;
    float slice_duration = 0;
    float toffset = 0;
    std::int32_t glmax = 0, glmin = 0;
    char descrip[80] = {};
    char aux_file[24] = {};
    std::int16_t qform_code = 0, sform_code = 0;
    float quatern_b = 0, quatern_c = 0, quatern_d = 0;
    float qoffset_x = 0, qoffset_y = 0, qoffset_z = 0;
    float srow_x[4] = {}, srow_y[4] = {}, srow_z[4] = {};
    char intent_name[16] = {};
    char magic[4] = {};
};
static_assert(sizeof(TNIFTI) == 348);

// The bytes of one number reversed; floats by their bits, so that a NaN stays what it is.
float SWAPENDIAN2(float value);
double SWAPENDIAN2(double value);
void SWAPNIFTI(TNIFTI &header); // every number in use, in place

UTF16 GETNIFTIUNITS(BYTE units);   // "mm or sec"
UTF16 GETNIFTITYPE(WORD datatype); // "Unknown type" for a code without a name
UTF16 GETNIFTIINTENT(WORD intent); // "No intent" for a code without a name
void FILLANALYZE(TNIFTI &header, NAT minimum, NAT maximum);

// The sample type as one number: its bits modulo 1000, 1000 floats, 2000 and 3000 colours, negative
// signed. 0: the pair of bitpix and datatype is none that is read.
NAT GETNIFTICODE(const TNIFTI &header);

// The quaternion b, c, d of a matrix, as this system writes it.
VECTOR HELP_MATRIX_TO_QUAT(const MATRIX3 &matrix);
// The frame of a header: srow, else the quaternion, else pixdim.
void GETNIFTI_TRANSFORM(const TNIFTI &header, MATRIX3 &matrix, VECTOR &offset);

// What a field writes about itself; the data kind comes from the caller.
struct NIFTI_KIND {
    WORD datatype = 0, bitpix = 0;
    std::int16_t rank = 3, components = 0; // 5 and 3 for vectors, 5 and 6 for tensors
    std::int16_t intent = 0;               // 1007 vector, 1005 tensor
};
inline constexpr NIFTI_KIND NIFTI_VECTOR_REAL{64, 64, 5, 3, 1007};
inline constexpr NIFTI_KIND NIFTI_VECTOR_NAT{1024, 64, 5, 3, 1007};
inline constexpr NIFTI_KIND NIFTI_TENSOR_REAL{64, 64, 5, 6, 1005};
inline constexpr NIFTI_KIND NIFTI_TENSOR_NAT{1024, 64, 5, 6, 1005};
// A header as every writer fills it; `single` for .nii (data at 352), else for the .hdr of a pair.
TNIFTI MAKENIFTI(const NIFTI_KIND &kind, const VECTORNAT &size, const FRAME &frame, bool single);
} // namespace morvane
