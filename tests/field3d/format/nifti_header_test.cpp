#include "field3d/format/nifti_header.hpp"

#include "field3d/nifti_builder.hpp"
#include "foundation/base/geometry.hpp"
#include "foundation/base/record_operators.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// A header with a quaternion of 90 degrees around z: a = d = sqrt(1/2).
TNIFTI QUARTER_TURN() {
    TNIFTI header = HEADER_OF(8, 2, 2, 2, 2);
    header.qform_code = 1;
    header.quatern_d = static_cast<float>(std::sqrt(0.5));
    header.pixdim[0] = -1;
    header.pixdim[1] = 2, header.pixdim[2] = 3, header.pixdim[3] = 4;
    header.qoffset_x = 5, header.qoffset_y = 6, header.qoffset_z = 7;
    return header;
}

bool NEAR(const VECTOR &a, const VECTOR &b) { return GETLENGTH(a - b) < 1e-6; }

struct TRANSFORM {
    MATRIX3 matrix;
    VECTOR offset;
    explicit TRANSFORM(const TNIFTI &header) { GETNIFTI_TRANSFORM(header, matrix, offset); }
};
} // namespace

TEST_CASE("the header has the published layout") {
    CHECK(offsetof(TNIFTI, dim) == 40);
    CHECK(offsetof(TNIFTI, datatype) == 70);
    CHECK(offsetof(TNIFTI, pixdim) == 76);
    CHECK(offsetof(TNIFTI, vox_offset) == 108);
    CHECK(offsetof(TNIFTI, slice_code) == 122);
    CHECK(offsetof(TNIFTI, cal_max) == 124);
    CHECK(offsetof(TNIFTI, glmax) == 140);
    CHECK(offsetof(TNIFTI, qform_code) == 252);
    CHECK(offsetof(TNIFTI, srow_x) == 280);
    CHECK(offsetof(TNIFTI, magic) == 344);
}

TEST_CASE("swapping a header twice gives it back, once turns its numbers") {
    TNIFTI header = QUARTER_TURN();
    SWAPNIFTI(header);
    CHECK(header.sizeof_hdr == 0x5C010000);
    CHECK(header.dim[0] == 0x0300);
    CHECK(header.slice_code == 0);
    SWAPNIFTI(header);
    const TNIFTI again = QUARTER_TURN();
    CHECK(std::memcmp(&header, &again, sizeof header) == 0);
    CHECK(SWAPENDIAN2(SWAPENDIAN2(1.5F)) == 1.5F);
    CHECK(SWAPENDIAN2(SWAPENDIAN2(-2.25)) == -2.25);
}

TEST_CASE("srow gives the frame: rows of the matrix are its columns") {
    TNIFTI header = QUARTER_TURN();
    header.sform_code = 2;
    const float rows[3][4] = {{1, 2, 3, 4}, {5, 6, 7, 8}, {9, 10, 11, 12}};
    std::memcpy(header.srow_x, rows, sizeof rows);
    const TRANSFORM frame(header);
    CHECK(frame.matrix[0] == VECTOR{1, 5, 9});
    CHECK(frame.matrix[2] == VECTOR{3, 7, 11});
    CHECK(frame.offset == VECTOR{4, 8, 12});
}

TEST_CASE("without srow the quaternion gives the frame") {
    const TRANSFORM frame(QUARTER_TURN());
    CHECK(NEAR(frame.matrix[0], {0, 2, 0}));
    CHECK(NEAR(frame.matrix[1], {-3, 0, 0}));
    CHECK(NEAR(frame.matrix[2], {0, 0, 4}));
    CHECK(frame.offset == VECTOR{5, 6, 7});
}

TEST_CASE("qform_code as a number scales row 3, and pixdim[0] is not used") {
    TNIFTI header = QUARTER_TURN();
    header.qform_code = 2;
    const TRANSFORM frame(header);
    CHECK(NEAR(frame.matrix[2], {0, 0, 8}));
}

TEST_CASE("without both codes the voxel size gives the frame") {
    TNIFTI header = QUARTER_TURN();
    header.qform_code = 0;
    const TRANSFORM frame(header);
    CHECK(frame.matrix[1] == VECTOR{0, 3, 0});
    CHECK(frame.offset == VZERO);
}

TEST_CASE("a zero row falls back to the voxel size, and without one to the identity") {
    TNIFTI header = QUARTER_TURN();
    header.sform_code = 1; // srow is all zero
    CHECK(TRANSFORM(header).matrix[2] == VECTOR{0, 0, 4});
    header.pixdim[2] = 0;
    CHECK(TRANSFORM(header).matrix[2] == VECTOR{0, 0, 1});
    CHECK(TRANSFORM(header).matrix[0] == VECTOR{1, 0, 0});
}

TEST_CASE("the quaternion comes from the product of the diagonal, not from its sum") {
    CHECK(HELP_MATRIX_TO_QUAT(M3NORM) == VZERO);
    // product 8: a = 0.5 * sqrt(9) = 1.5
    const MATRIX3 matrix{{{{2, 6, 3}, {0, 2, 9}, {0, 0, 2}}}};
    CHECK(HELP_MATRIX_TO_QUAT(matrix) == VECTOR{0.25 * 9 / 1.5, 0.25 * -3 / 1.5, 0.25 * 6 / 1.5});
    CHECK(HELP_MATRIX_TO_QUAT({{{{-1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}}) == VECTOR{1, 0, 0});
}

TEST_CASE("a written header holds what readers expect") {
    FRAME frame;
    frame.SETMATRIX({{{{0, 2, 0}, {3, 0, 0}, {0, 0, 4}}}});
    frame.SETMOVE({5, 6, 7});
    const TNIFTI header = MAKENIFTI({512, 16}, {10, 20, 30}, frame, true);
    CHECK(header.sizeof_hdr == 348);
    CHECK(header.dim[0] == 3);
    CHECK(header.dim[3] == 30);
    CHECK(header.dim[4] == 0);
    CHECK(header.datatype == 512);
    CHECK(header.bitpix == 16);
    CHECK(header.vox_offset == 352);
    CHECK(header.pixdim[0] == 1);
    CHECK(header.pixdim[1] == 2);
    CHECK(header.scl_slope == 1);
    CHECK(header.slice_code == 1);
    CHECK(header.xyzt_units == 10);
    CHECK(header.regular == 'r');
    CHECK(header.srow_x[1] == 3);
    CHECK(header.srow_y[0] == 2);
    CHECK(header.srow_z[3] == 7);
    CHECK(header.qoffset_y == 6);
    CHECK(std::memcmp(header.magic, "n+1", 4) == 0);
    const TNIFTI pair = MAKENIFTI({2, 8}, {1, 1, 1}, frame, false);
    CHECK(pair.vox_offset == 0);
    CHECK(std::memcmp(pair.magic, "ni1", 4) == 0);
}

TEST_CASE("vectors and tensors write rank 5 with their intent") {
    const TNIFTI vectors = MAKENIFTI(NIFTI_VECTOR_REAL, {2, 3, 4}, FRAME(), true);
    CHECK(vectors.dim[0] == 5);
    CHECK(vectors.dim[4] == 1);
    CHECK(vectors.dim[5] == 3);
    CHECK(vectors.intent_code == 1007);
    CHECK(vectors.datatype == 64);
    const TNIFTI tensors = MAKENIFTI(NIFTI_TENSOR_NAT, {2, 3, 4}, FRAME(), true);
    CHECK(tensors.dim[5] == 6);
    CHECK(tensors.intent_code == 1005);
    CHECK(tensors.datatype == 1024);
}

TEST_CASE("units of length and time join with or") {
    CHECK(GETNIFTIUNITS(10) == UTF16("mm or sec"));
    CHECK(GETNIFTIUNITS(3) == UTF16("µm"));
    CHECK(GETNIFTIUNITS(48) == UTF16("rad/sec"));
    CHECK(GETNIFTIUNITS(0).EMPTY());
}

TEST_CASE("datatype 2 has the name INT8, as 256 has") {
    CHECK(GETNIFTITYPE(2) == UTF16("INT8"));
    CHECK(GETNIFTITYPE(256) == UTF16("INT8"));
    CHECK(GETNIFTITYPE(128) == UTF16("RGB24"));
    CHECK(GETNIFTITYPE(512) == UTF16("UINT16"));
    CHECK(GETNIFTITYPE(3) == UTF16("Unknown type"));
}

TEST_CASE("intents have their names") {
    CHECK(GETNIFTIINTENT(1007) == UTF16("VECTOR"));
    CHECK(GETNIFTIINTENT(2) == UTF16("CORREL"));
    CHECK(GETNIFTIINTENT(0) == UTF16("No intent"));
}

TEST_CASE("bitpix and datatype select the sample type together") {
    CHECK(GETNIFTICODE(HEADER_OF(16, 4, 1, 1, 1)) == -16);
    CHECK(GETNIFTICODE(HEADER_OF(32, 16, 1, 1, 1)) == 1032);
    CHECK(GETNIFTICODE(HEADER_OF(32, 2304, 1, 1, 1)) == 2032);
    CHECK(GETNIFTICODE(HEADER_OF(8, 4, 1, 1, 1)) == 0);
    CHECK(GETNIFTICODE(HEADER_OF(1, 1, 1, 1, 1)) == 0);
}

TEST_CASE("an Analyze header gets extents and grey range") {
    TNIFTI header;
    FILLANALYZE(header, -5, NATMAX);
    CHECK(header.extents == 16384);
    CHECK(header.regular == 'r');
    CHECK(header.glmin == -5);
    CHECK(header.glmax == 2147483647);
}
