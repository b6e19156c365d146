#include "field3d/format/nifti.hpp"

#include "field3d/nifti_builder.hpp"
#include "foundation/base/checksum.hpp"
#include "foundation/base/record_operators.hpp"
#include "support/capture.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
UTF16 DATA(const char *name) { return UTF16(std::string(MORVANE_TEST_DATA) + "/" + name); }

template <class FIELD> std::uint32_t CRC_OF(const FIELD &field) {
    return CRC32UPDATE(0, field.VOXELS(), field.BYTES());
}

// Loads the bytes as a file of that name.
template <class FIELD>
void LOAD_BYTES(FIELD &field, const std::string &bytes, NAT stack = 1, NAT offset = 0,
                NAT factor = 0, const char *name = "x.nii") {
    const TEMPORARY_FOLDER folder;
    folder.PUT(name, bytes);
    if (std::string(name).ends_with("gz"))
        LOADNII_GZ(field, UTF16(folder.PATH(name)), stack, offset, factor);
    else
        LOADNII(field, UTF16(folder.PATH(name)), stack, offset, factor);
}
const std::vector<WORD> RAMP = {0, 256, 512, 300, 65535, 7, 8, 9};
} // namespace

TEST_CASE("a plain file gives its voxels, its name and its lines on the console") {
    CAPTURE console;
    T3DGRAY field;
    LOADNII(field, DATA("mri_head_slab.nii"), 1, 0, 0);
    CHECK(field.SIZE() == VECTORNAT{91, 217, 2});
    CHECK(CRC_OF(field) == 0x5c9d73b9);
    CHECK(field.frame.MOVE() == VECTOR{0, -125, -1});
    CHECK(field.fileName == UTF16CHARS7(DATA("mri_head_slab.nii")));
    CHECK(console.CONTAINS("  3DGrey with (91x217x2). 100 % ready"));
    CHECK(console.CONTAINS("  Transformation: (<1, 0, 0>;<0, 1, 0>;<0, 0, 1>) + <0, -125, -1>\n"));
}

TEST_CASE("a gzip file reads like a plain one") {
    const CAPTURE console;
    T3DGRAY field;
    LOADNII_GZ(field, DATA("low_res.nii.gz"), 1, 0, 0);
    CHECK(field.SIZE() == VECTORNAT{7, 5, 3});
    CHECK(CRC_OF(field) == 0xc6f07920);
    CHECK(field.frame.SCALE() == VECTOR{2, 2, 2});
    CHECK(console.CONTAINS("  0:(52) 1:(53) \n"));
}

TEST_CASE("without codes the frame is the voxel size") {
    const CAPTURE console;
    T3DGRAY field;
    LOADNII_GZ(field, DATA("minimal.nii.gz"), 1, 0, 0);
    CHECK(CRC_OF(field) == 0x11849ff0);
    CHECK(field.frame.SCALE() == VECTOR{3, 3, 3});
    CHECK(field.frame.MOVE() == VZERO);
}

TEST_CASE("either name of a pair selects both files") {
    const CAPTURE console;
    T3DGRAY a, b;
    LOADNII(a, DATA("pair_ras.hdr"), 1, 0, 0);
    LOADNII(b, DATA("pair_ras.img"), 1, 0, 0);
    CHECK(a.SIZE() == VECTORNAT{62, 41, 34});
    CHECK(CRC_OF(a) == 0x6293c9b1);
    CHECK(CRC_OF(b) == 0x6293c9b1);
    CHECK(b.frame.SCALE().x == doctest::Approx(2.38523).epsilon(1e-5));
}

TEST_CASE(
    "a big-endian file is recognised from its header size and reads like a little-endian one") {
    const CAPTURE console;
    T3DFULLGRAY little, big;
    LOADNII(little, DATA("analyze_le.hdr"), 1, 0, 0);
    LOADNII(big, DATA("analyze_be.hdr"), 1, 0, 0);
    CHECK(little.SIZE() == VECTORNAT{24, 30, 20});
    CHECK(CRC_OF(little) == CRC_OF(big));
    // -610 is the smallest sample
    NAT smallest = 65535;
    for (NAT i = 1; i <= big.COUNT(); ++i)
        smallest = std::min<NAT>(smallest, big._GETINDEX(i));
    CHECK(smallest == 32768 - 610);
}

TEST_CASE("a float file without range takes two passes and prints the range it found") {
    CAPTURE console;
    T3DGRAY field;
    LOADNII(field, DATA("anatomical_big_endian_float.nii"), 1, 0, 0);
    CHECK(field.SIZE() == VECTORNAT{21, 26, 22});
    CHECK(console.CONTAINS("  3DGrey (32Float_a) with (21x26x22). 100 % ready"));
    CHECK(console.CONTAINS("  New min (0) max (21199.935546875) values -> 0..255!\n"));
    CHECK(GETUTF8(UTF16(field.fileName)).ends_with("float.nii"));
}

TEST_CASE("a float file with a range maps it onto the voxels") {
    CAPTURE console;
    TNIFTI header = HEADER_OF(32, 16, 2, 1, 2);
    header.cal_min = 10, header.cal_max = 20;
    T3DGRAY field;
    LOAD_BYTES(field, NII<float>(header, {5, 10, 15, 99}));
    CHECK(field._GETINDEX(1) == 0);
    CHECK(field._GETINDEX(3) == 128);
    CHECK(field._GETINDEX(4) == 255);
    CHECK(console.CONTAINS("(32Float_o)"));
    CHECK(console.CONTAINS("  New min (10) max (20) values -> 0..255!\n"));
    T3DMONO bits;
    LOAD_BYTES(bits, NII<float>(header, {5, 10, 16, 99}));
    CHECK_FALSE(bits._GETINDEX(2));
    CHECK(bits._GETINDEX(3));
    CHECK(console.CONTAINS(" values -> threshold=15\n"));
}

TEST_CASE("infinite and undefined samples don't widen the range") {
    const CAPTURE console;
    T3DGRAY field;
    LOAD_BYTES(field, NII<float>(HEADER_OF(32, 16, 2, 2, 1),
                                 {0, static_cast<float>(REALMAX), 100, std::nanf("")}));
    CHECK(field._GETINDEX(1) == 0);
    CHECK(field._GETINDEX(2) == 255);
    CHECK(field._GETINDEX(3) == 255);
    CHECK(field._GETINDEX(4) == 0);
}

TEST_CASE("16 bits into 8 keep the high byte, with the filter 0 1 they clip at 255") {
    CAPTURE console;
    T3DGRAY field;
    const std::string file = NII(HEADER_OF(16, 512, 2, 2, 2), RAMP);
    LOAD_BYTES(field, file);
    CHECK(field._GETINDEX(3) == 2);
    CHECK(field._GETINDEX(5) == 255);
    CHECK(console.CONTAINS("  3DGrey (Fullgrey) with (2x2x2)"));
    LOAD_BYTES(field, file, 1, 0, 1);
    CHECK(field._GETINDEX(3) == 255);
    CHECK(field._GETINDEX(6) == 7);
}

TEST_CASE("a 1-bit field tells its threshold") {
    CAPTURE console;
    T3DMONO field;
    LOAD_BYTES(field, NII(HEADER_OF(16, 512, 2, 2, 2), RAMP));
    CHECK(field._GETINDEX(5));
    CHECK_FALSE(field._GETINDEX(4));
    CHECK(console.CONTAINS("  3DMono (Fullgrey|$7FFF) with (2x2x2)"));
    CHECK(console.CONTAINS("  Empty.\n"));
    LOADNII_GZ(field, DATA("rgb24.nii.gz"), 1, 0, 0);
    CHECK(console.CONTAINS("  3DMono (RGB|3*$7F) with (128x128x2)"));
}

TEST_CASE("scl_slope and scl_inter take no part, voxels are the raw samples") {
    const CAPTURE console;
    TNIFTI header = HEADER_OF(16, 512, 2, 2, 2);
    header.scl_slope = 100, header.scl_inter = -5;
    T3DFULLGRAY field;
    LOAD_BYTES(field, NII(header, RAMP));
    CHECK(field._GETINDEX(6) == 7);
}

TEST_CASE("data start at vox_offset rounded, and at 352 when that is not above 0") {
    const CAPTURE console;
    TNIFTI header = HEADER_OF(8, 2, 2, 1, 1);
    const std::vector<BYTE> samples = {1, 2, 3, 4, 5, 6};
    const auto first = [&](float offset) {
        header.vox_offset = offset;
        T3DGRAY field;
        LOAD_BYTES(field, NII(header, samples));
        return NAT{field._GETINDEX(1)};
    };
    CHECK(first(352) == 1);
    CHECK(first(353.6F) == 3);
    CHECK(first(0) == 1);
    CHECK(first(-8) == 1);
    CHECK(first(std::nanf("")) == 1);
}

TEST_CASE("a first axis of one voxel folds away: a series of images becomes a volume") {
    const CAPTURE console;
    TNIFTI header = HEADER_OF(8, 2, 1, 3, 2);
    header.dim[0] = 4, header.dim[4] = 4;
    T3DGRAY field;
    LOAD_BYTES(field, NII(header, std::vector<BYTE>(24, 9)));
    CHECK(field.SIZE() == VECTORNAT{3, 2, 4});
}

TEST_CASE("a third axis of one voxel takes the place of the fourth") {
    const CAPTURE console;
    TNIFTI header = HEADER_OF(8, 2, 3, 2, 1);
    header.dim[0] = 4, header.dim[4] = 4;
    T3DGRAY field;
    LOAD_BYTES(field, NII(header, std::vector<BYTE>(24, 9)));
    CHECK(field.SIZE() == VECTORNAT{3, 2, 4});
}

TEST_CASE("stacks count from 1, negative ones from the end, and 0 is the first") {
    CAPTURE console;
    TNIFTI header = HEADER_OF(8, 2, 2, 2, 2);
    header.dim[0] = 4, header.dim[4] = 3;
    std::vector<BYTE> samples(24);
    for (std::size_t i = 0; i < 24; ++i)
        samples[i] = static_cast<BYTE>(i);
    const auto first = [&](NAT stack) {
        T3DGRAY field;
        LOAD_BYTES(field, NII(header, samples), stack);
        return field.EMPTY() ? -1 : NAT{field._GETINDEX(1)};
    };
    CHECK(first(1) == 0);
    CHECK(first(3) == 16);
    CHECK(first(-1) == 16);
    CHECK(first(-3) == 0);
    CHECK(first(-9) == 0);
    CHECK(first(NATMIN) == 0);
    CHECK(first(0) == 0);
    CHECK(first(4) == -1);
    CHECK(console.CONTAINS("  Wrong selected stack 4 from [1..3]! Create empty field.\n"));
}

TEST_CASE("the planes of a vector file are its stacks") {
    const CAPTURE console;
    const TEMPORARY_FOLDER folder;
    TNIFTI header = MAKENIFTI(NIFTI_VECTOR_REAL, {2, 1, 2}, FRAME(), true);
    std::vector<double> samples(12);
    for (std::size_t i = 0; i < 12; ++i)
        samples[i] = static_cast<double>(i) + 0.5;
    folder.PUT("v.nii", NII(header, samples));
    NIFTI_SOURCE source;
    REQUIRE(source.OPEN(UTF16(folder.PATH("v.nii")), 1, false));
    CHECK(source.STACKS() == 3);
    CHECK_FALSE(source.LACKS(3));
    CHECK(source.LACKS(4));
    REAL slice[2];
    CHECK(source.READSLICE(2, 2, slice));
    CHECK(slice[0] == 6.5);
    CHECK(slice[1] == 7.5);
    NAT whole[2];
    CHECK(source.READSLICE(3, 1, whole));
    CHECK(whole[0] == 8);
    CHECK_FALSE(source.READSLICE(4, 1, slice));
    CHECK_FALSE(source.READSLICE(1, 3, slice));
}
