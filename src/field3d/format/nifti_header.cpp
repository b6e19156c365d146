#include "field3d/format/nifti_header.hpp"

#include "foundation/base/geometry.hpp"
#include "foundation/base/record_operators.hpp"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstring>
#include <utility>

namespace morvane {
namespace {
template <class T> struct CODE_NAME {
    T code;
    const char *name;
};
// Deliberate: datatype 2 has the name INT8, as 256 has.
constexpr CODE_NAME<WORD> TYPES[] = {
    {1, "BINARY"},    {2, "INT8"},        {4, "INT16"},         {8, "INT32"},
    {16, "FLOAT32"},  {32, "COMPLEX64"},  {64, "FLOAT64"},      {128, "RGB24"},
    {256, "INT8"},    {512, "UINT16"},    {768, "UINT32"},      {1024, "INT64"},
    {1280, "UINT64"}, {1536, "FLOAT128"}, {1792, "COMPLEX128"}, {2048, "COMPLEX256"},
    {2304, "RGBA32"},
};
constexpr CODE_NAME<WORD> INTENTS[] = {
    {2, "CORREL"},       {3, "TTEST"},        {4, "FTEST"},         {5, "ZSCORE"},
    {6, "CHISQ"},        {7, "BETA"},         {8, "BINOM"},         {9, "GAMMA"},
    {10, "POISSON"},     {11, "NORMAL"},      {12, "FTEST_NONC"},   {13, "CHISQ_NONC"},
    {14, "LOGISTIC"},    {15, "LAPLACE"},     {16, "UNIFORM"},      {17, "TTEST_NONC"},
    {18, "WEIBULL"},     {19, "CHI"},         {20, "INVGAUSS"},     {21, "EXTVAL"},
    {22, "PVAL"},        {1001, "ESTIMATE"},  {1002, "LABEL"},      {1003, "NEURONAME"},
    {1004, "GENMATRIX"}, {1005, "SYMMATRIX"}, {1006, "DISPVECT"},   {1007, "VECTOR"},
    {1008, "POINTSET"},  {1009, "TRIANGLE"},  {1010, "QUATERNION"},
};
struct SAMPLE_ROW {
    std::int16_t bitpix, datatype;
    NAT code;
};
constexpr SAMPLE_ROW SAMPLES[] = {
    {8, 2, 8},      {8, 256, -8},   {16, 512, 16},   {16, 4, -16},
    {32, 768, 32},  {32, 8, -32},   {64, 1280, 64},  {64, 1024, -64},
    {32, 16, 1032}, {64, 64, 1064}, {24, 128, 2024}, {32, 2304, 2032},
};

template <class T, std::size_t N>
UTF16 NAME_OF(const CODE_NAME<T> (&rows)[N], T code, const char *none) {
    for (const auto &row : rows)
        if (row.code == code) return UTF16(row.name);
    return UTF16(none);
}

template <class T> void SWAP_BYTES(T &value) {
    auto bytes = std::bit_cast<std::array<BYTE, sizeof(T)>>(value);
    for (std::size_t i = 0; i < sizeof(T) / 2; ++i)
        std::swap(bytes[i], bytes[sizeof(T) - 1 - i]);
    value = std::bit_cast<T>(bytes);
}
template <class T, std::size_t N> void SWAP_BYTES(T (&values)[N]) {
    for (T &value : values)
        SWAP_BYTES(value);
}

constexpr MATRIX3 DIAGONAL(REAL x, REAL y, REAL z) { return {{{{x, 0, 0}, {0, y, 0}, {0, 0, z}}}}; }

// The three rows of the frame are the columns of the rotation, times the voxel size.
void FROM_QUATERNION(const TNIFTI &h, MATRIX3 &matrix, VECTOR &offset) {
    const REAL b = h.quatern_b, c = h.quatern_c, d = h.quatern_d;
    const REAL a = std::sqrt(std::abs(1 - b * b - c * c - d * d));
    const VECTOR column1{a * a + b * b - c * c - d * d, 2 * (b * c + a * d), 2 * (b * d - a * c)};
    const VECTOR column2{2 * (b * c - a * d), a * a + c * c - b * b - d * d, 2 * (c * d + a * b)};
    const VECTOR column3{2 * (b * d + a * c), 2 * (c * d - a * b), a * a + d * d - b * b - c * c};
    // Deliberate: qform_code as a number scales row 3, and pixdim[0] is not used.
    const REAL third = static_cast<REAL>(h.pixdim[3]) * h.qform_code;
    matrix = {{{column1 * static_cast<REAL>(h.pixdim[1]), column2 * static_cast<REAL>(h.pixdim[2]),
                column3 * third}}};
    offset = {h.qoffset_x, h.qoffset_y, h.qoffset_z};
}
} // namespace

float SWAPENDIAN2(float value) {
    SWAP_BYTES(value);
    return value;
}

double SWAPENDIAN2(double value) {
    SWAP_BYTES(value);
    return value;
}

void SWAPNIFTI(TNIFTI &h) {
    const auto swap = [](auto &...fields) { (SWAP_BYTES(fields), ...); };
    swap(h.sizeof_hdr, h.extents, h.session_error, h.dim, h.intent_p1, h.intent_p2, h.intent_p3,
         h.intent_code, h.datatype, h.bitpix, h.slice_start, h.pixdim, h.vox_offset, h.scl_slope,
         h.scl_inter, h.slice_end, h.cal_max, h.cal_min, h.slice_duration, h.toffset, h.glmax,
         h.glmin, h.qform_code, h.sform_code, h.quatern_b, h.quatern_c, h.quatern_d, h.qoffset_x,
         h.qoffset_y, h.qoffset_z, h.srow_x, h.srow_y, h.srow_z);
}

UTF16 GETNIFTIUNITS(BYTE units) {
    constexpr const char *LENGTHS[] = {"", "m", "mm", "µm"};
    const UTF16 length(LENGTHS[units & 3]);
    UTF16 time;
    switch (units & 252) {
    case 8: time = "sec"; break;
    case 16: time = "msec"; break;
    case 24: time = "µsec"; break;
    case 32: time = "HZ"; break;
    case 40: time = "ppm"; break;
    case 48: time = "rad/sec"; break;
    default: break;
    }
    if (length.EMPTY() || time.EMPTY()) return length + time;
    return length + UTF16(" or ") + time;
}

UTF16 GETNIFTITYPE(WORD datatype) { return NAME_OF(TYPES, datatype, "Unknown type"); }

UTF16 GETNIFTIINTENT(WORD intent) { return NAME_OF(INTENTS, intent, "No intent"); }

void FILLANALYZE(TNIFTI &header, NAT minimum, NAT maximum) {
    header.extents = 16384;
    header.regular = 'r';
    header.glmin = static_cast<std::int32_t>(LIMIT(minimum, INT32_MIN, INT32_MAX));
    header.glmax = static_cast<std::int32_t>(LIMIT(maximum, INT32_MIN, INT32_MAX));
}

NAT GETNIFTICODE(const TNIFTI &header) {
    for (const SAMPLE_ROW &row : SAMPLES)
        if (row.bitpix == header.bitpix && row.datatype == header.datatype) return row.code;
    return 0;
}

VECTOR HELP_MATRIX_TO_QUAT(const MATRIX3 &m) {
    // Deliberate: the quaternion comes from the product of the diagonal, not from its sum.
    const REAL a = 0.5 * std::sqrt(std::abs(m[0].x * m[1].y * m[2].z + 1));
    if (a == 0) return {1, 0, 0};
    return {0.25 * (m[1].z - m[2].y) / a, 0.25 * (m[2].x - m[0].z) / a,
            0.25 * (m[0].y - m[1].x) / a};
}

void GETNIFTI_TRANSFORM(const TNIFTI &h, MATRIX3 &matrix, VECTOR &offset) {
    const MATRIX3 spacing = DIAGONAL(h.pixdim[1], h.pixdim[2], h.pixdim[3]);
    if (h.sform_code > 0) {
        for (std::size_t row = 0; row < 3; ++row)
            matrix[row] = {h.srow_x[row], h.srow_y[row], h.srow_z[row]};
        offset = {h.srow_x[3], h.srow_y[3], h.srow_z[3]};
    } else if (h.qform_code != 0) {
        FROM_QUATERNION(h, matrix, offset);
    } else {
        matrix = spacing;
        offset = VZERO;
    }
    if (matrix[0] == VZERO || matrix[1] == VZERO || matrix[2] == VZERO)
        matrix = h.pixdim[1] * h.pixdim[2] * h.pixdim[3] > 0 ? spacing : M3NORM;
}

TNIFTI MAKENIFTI(const NIFTI_KIND &kind, const VECTORNAT &size, const FRAME &frame, bool single) {
    const auto side = [](NAT value) {
        return static_cast<std::int16_t>(LIMIT(value, 0, INT16_MAX));
    };
    const auto real = [](REAL value) { return static_cast<float>(value); };
    const MATRIX3 &m = frame.MATRIX();
    const VECTOR &move = frame.MOVE(), scale = frame.SCALE(), quaternion = HELP_MATRIX_TO_QUAT(m);
    TNIFTI h;
    h.sizeof_hdr = 348;
    h.regular = 'r';
    const std::int16_t dim[8] = {kind.rank,
                                 side(size.x),
                                 side(size.y),
                                 side(size.z),
                                 static_cast<std::int16_t>(kind.components > 0 ? 1 : 0),
                                 kind.components};
    std::copy(std::begin(dim), std::end(dim), h.dim);
    h.intent_code = kind.intent;
    h.datatype = static_cast<std::int16_t>(kind.datatype);
    h.bitpix = static_cast<std::int16_t>(kind.bitpix);
    const float pixdim[4] = {1, real(scale.x), real(scale.y), real(scale.z)};
    std::copy(std::begin(pixdim), std::end(pixdim), h.pixdim);
    h.vox_offset = single ? 352.0F : 0.0F;
    h.scl_slope = 1;
    h.slice_code = 1;
    h.xyzt_units = 10;
    h.qform_code = h.sform_code = 1;
    h.quatern_b = real(quaternion.x), h.quatern_c = real(quaternion.y);
    h.quatern_d = real(quaternion.z);
    h.qoffset_x = real(move.x), h.qoffset_y = real(move.y), h.qoffset_z = real(move.z);
    for (std::size_t row = 0; row < 3; ++row) {
        h.srow_x[row] = real(m[row].x);
        h.srow_y[row] = real(m[row].y);
        h.srow_z[row] = real(m[row].z);
    }
    h.srow_x[3] = real(move.x), h.srow_y[3] = real(move.y), h.srow_z[3] = real(move.z);
    std::memcpy(h.magic, single ? "n+1" : "ni1", 4);
    return h;
}
} // namespace morvane
