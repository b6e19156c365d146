#include "field3d/format/nifti_info.hpp"

#include "field3d/nifti_builder.hpp"
#include "support/capture.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
TNIFTI SAMPLE() {
    TNIFTI header = HEADER_OF(64, 64, 2, 3, 4);
    header.dim[0] = 5, header.dim[4] = 1, header.dim[5] = 3;
    header.intent_code = 1007;
    header.xyzt_units = 10;
    header.cal_min = -1, header.cal_max = 2.5F;
    header.srow_x[0] = 2, header.srow_x[3] = 7;
    header.quatern_c = 0.5F;
    header.sform_code = 1;
    header.slice_code = 1;
    header.slice_end = 9;
    header.scl_slope = 1;
    return header;
}
const char *const DUMP = R"(Nifti header of one file - NII Version 1
==================
Slices.
  Slice order: 0 Timing order: 1
  Slice start: 0 End: 9
  Slice offset: 0 Slope: 1
  Time offset: 0  Duration: 0
Affine transformtion (1).
  [2	0	0	7]
  [0	0	0	0]
  [0	0	0	0]
Quaternion (0).
  [a,b,c,d] = [sqrt(1.0-(b*b+c*c+d*d)), 0, 0.5, 0]
  offset = [0 0 0]
Data array dimensions (64 bits & 64 (FLOAT64) data type).
  Dim[0] = 5
  Dim[1] = 2
  Dim[2] = 3
  Dim[3] = 4
  Dim[4] = 1
  Dim[5] = 3
  Dim[6] = 0
  Dim[7] = 0
Grid spacings.
  Pixdim[0] = qfac = 0
  Pixdim[1] = 1 mm or sec
  Pixdim[2] = 1 mm or sec
  Pixdim[3] = 1 mm or sec
  Pixdim[4] = 0 mm or sec
  Pixdim[5] = 0 mm or sec
  Pixdim[6] = 0 mm or sec
  Pixdim[7] = 0 mm or sec
Data (1007 Meaning: VECTOR).
  Min intensity: -1 Max intensity: 2.5
  Data offset: 352
)";
} // namespace

TEST_CASE("the dump shows the header section by section") {
    const TEMPORARY_FOLDER folder;
    folder.PUT("a.nii", BYTES_OF(SAMPLE()));
    CAPTURE console;
    CHECK(INFO_NII_TXT(UTF16(folder.PATH("a.nii"))));
    CHECK(console.TEXT().substr(console.TEXT().find('\n') + 1) == DUMP);
}

TEST_CASE("the dump goes into a text file when one is named") {
    const CAPTURE console;
    const TEMPORARY_FOLDER folder;
    folder.PUT("a.nii.gz", ZIPPED(BYTES_OF(SAMPLE())));
    CHECK(INFO_NII_FILE(UTF16(folder.PATH("a.nii.gz")), UTF16(folder.PATH("a.txt"))));
    CHECK(folder.GET("a.txt") == DUMP);
}

TEST_CASE("the title tells Analyze headers, pairs and single files apart") {
    const TEMPORARY_FOLDER folder;
    TNIFTI header = SAMPLE();
    CAPTURE console;
    std::memcpy(header.magic, "ni1", 4);
    std::memcpy(header.intent_name, "sixteen letters!", 16);
    folder.PUT("a.hdr", BYTES_OF(header));
    INFO_NII_TXT(UTF16(folder.PATH("a.img"))); // an image's header stands in the .hdr
    CHECK(console.CONTAINS("\nNifti header - NII Version 1\n"));
    CHECK(console.CONTAINS("Data (1007 Meaning: VECTOR - sixteen letters!).\n"));
    std::memset(header.magic, 0, 4);
    folder.PUT("a.hdr", BYTES_OF(header));
    INFO_NII_TXT(UTF16(folder.PATH("a.hdr")));
    CHECK(console.CONTAINS("\nNifti header - HDR\n"));
}

TEST_CASE("a header of another size is told with its bytes swapped") {
    const TEMPORARY_FOLDER folder;
    folder.PUT("a.nii", std::string("\x01\x00\x00\x00", 4) + std::string(400, '\0'));
    TNIFTI second = SAMPLE();
    second.sizeof_hdr = 540;
    folder.PUT("b.nii", BYTES_OF(second));
    CAPTURE console;
    CHECK_FALSE(INFO_NII_TXT(UTF16(folder.PATH("a.nii"))));
    CHECK(console.CONTAINS("Error (Header size = 16777216)! Not a nifti file format!\n"));
    CHECK_FALSE(INFO_NII_TXT(UTF16(folder.PATH("b.nii"))));
    CHECK(console.CONTAINS("Error (Header size = 469893120)! Not a nifti file format!\n"));
}

TEST_CASE("formats without a readable header say so") {
    CAPTURE console;
    CHECK_FALSE(INFO_NII_TXT("x/a.mif"));
    CHECK(console.TEXT() == "Not provided!\n");
    console.CLEAR();
    CHECK_FALSE(INFO_NII_FILE("x/a.mifx", "b.txt"));
    CHECK(console.TEXT() == "Header file inside (x/a.m?f*)!\n");
    console.CLEAR();
    CHECK_FALSE(INFO_NII_FILE("a.pcr", "b.txt"));
    CHECK(console.TEXT() == "Header file inside (a.pcr)!\n");
    console.CLEAR();
    CHECK_FALSE(INFO_NII_FILE("a.vtk", "b.txt"));
    CHECK(console.TEXT() == "Not provided!\n");
    console.CLEAR();
    CHECK_FALSE(INFO_NII_TXT("a.gz"));
    CHECK(console.TEXT() == "Zipped file not provided!\n");
}

TEST_CASE("an extension that only ends in gz is looked at like any other") {
    CAPTURE console;
    const TEMPORARY_FOLDER folder;
    folder.PUT("a.mgz", BYTES_OF(SAMPLE()));
    CHECK(INFO_NII_TXT(UTF16(folder.PATH("a.mgz"))));
    CHECK(console.CONTAINS("Data array dimensions"));
}

TEST_CASE("the function gives kind, size, stacks and further axes between tabs") {
    const CAPTURE console;
    const TEMPORARY_FOLDER folder;
    folder.PUT("a.nii", BYTES_OF(SAMPLE()));
    CHECK(INFO_NII(UTF16(folder.PATH("a.nii"))) == UTF16("30064\t<2, 3, 4>\t1\t<3, 0, 0>"));
    TNIFTI tensor = SAMPLE();
    tensor.intent_code = 1005;
    SWAPNIFTI(tensor);
    folder.PUT("t.nii", BYTES_OF(tensor));
    CHECK(INFO_NII(UTF16(folder.PATH("t.nii"))) == UTF16("60064\t<2, 3, 4>\t1\t<3, 0, 0>"));
    const UTF16 none("0\t<0, 0, 0>\t0\t<0, 0, 0>");
    CHECK(INFO_NII("a.pcr") == none);
    CHECK(INFO_NII("a.gz") == none);
    CHECK(INFO_NII(UTF16(folder.PATH("missing.nii"))) == none);
}
