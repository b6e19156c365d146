#include "field3d/format/nifti.hpp"

#include "field3d/nifti_builder.hpp"
#include "foundation/base/record_operators.hpp"
#include "support/capture.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
const std::vector<WORD> RAMP = {1, 2, 3, 4, 5, 6, 7, 8};

std::string VALID() { return NII(HEADER_OF(16, 512, 2, 2, 2), RAMP); }

// What loading the bytes prints below the line of the file layer; the field's size in `size`.
template <class FIELD = T3DFULLGRAY>
std::string LINES_OF(const std::string &bytes, VECTORNAT &size, const char *name = "x.nii") {
    const TEMPORARY_FOLDER folder;
    folder.PUT(name, bytes);
    CAPTURE console;
    FIELD field;
    if (std::string(name).ends_with("gz"))
        LOADNII_GZ(field, UTF16(folder.PATH(name)), 1, 0, 0);
    else
        LOADNII(field, UTF16(folder.PATH(name)), 1, 0, 0);
    size = field.SIZE();
    const std::string text = console.TEXT();
    return text.substr(text.find('\n') + 1);
}

std::string LINES_OF(const TNIFTI &header, VECTORNAT &size) {
    return LINES_OF(NII(header, RAMP), size);
}

// 3-D headers that claim more than any file here holds.
TNIFTI GIANT() { return HEADER_OF(8, 2, 32767, 32767, 32767); }
} // namespace

TEST_CASE("every prefix of a file shorter than its header is a wrong header") {
    VECTORNAT size;
    const std::string valid = VALID();
    for (std::size_t length = 0; length < 348; ++length)
        REQUIRE(LINES_OF(valid.substr(0, length), size) == "  Wrong header! Create empty field.\n");
    CHECK(size == VZERONAT);
}

TEST_CASE("every prefix that cuts the data tells the sizes and gives a zero field") {
    VECTORNAT size;
    const std::string valid = VALID();
    for (std::size_t length = 348; length < valid.size(); ++length) {
        const std::string text = LINES_OF(valid.substr(0, length), size);
        REQUIRE(text.starts_with("  Wrong file size! Header: 352 +Dim: 8 *Bytes: 2\n"
                                 "  Calculated type (bytes):"));
        REQUIRE(text.find("  3DFullgrey (GreyZero) with (2x2x2). 100 % ready") != text.npos);
        REQUIRE(text.find("  0:(8) \n") != text.npos);
        REQUIRE(size == VECTORNAT{2, 2, 2});
    }
}

TEST_CASE("every prefix of a gzip file is a wrong header or leaves zeros where data are missing") {
    const std::string zipped = ZIPPED(VALID());
    for (std::size_t length = 0; length < zipped.size(); ++length) {
        VECTORNAT size;
        const std::string text = LINES_OF(zipped.substr(0, length), size, "x.nii.gz");
        if (size == VZERONAT)
            REQUIRE(text == "  Wrong header! Create empty field.\n");
        else
            REQUIRE(size == VECTORNAT{2, 2, 2});
    }
}

TEST_CASE("a short stream leaves zeros behind its last sample and tells where") {
    CAPTURE console;
    const TEMPORARY_FOLDER folder;
    folder.PUT("x.nii.gz", ZIPPED(VALID().substr(0, 352 + 9)));
    T3DFULLGRAY field;
    LOADNII_GZ(field, UTF16(folder.PATH("x.nii.gz")), 1, 0, 0);
    REQUIRE(field.SIZE() == VECTORNAT{2, 2, 2});
    CHECK(field._GETINDEX(4) == 4);
    CHECK(field._GETINDEX(5) == 0); // half a sample is none
    CHECK(console.CONTAINS("  Data end behind voxel 4! The rest is zero.\n"));
    CHECK(field._GETINDEX(8) == 0);
}

TEST_CASE("sizes of 0 and below are bad dim sizes") {
    VECTORNAT size;
    for (const int side : {0, -1, -32768})
        for (std::size_t axis = 1; axis <= 3; ++axis) {
            TNIFTI header = HEADER_OF(16, 512, 2, 2, 2);
            header.dim[axis] = static_cast<std::int16_t>(side);
            CHECK(LINES_OF(header, size).starts_with("  Bad dim size (3 <"));
            CHECK(size == VZERONAT);
        }
    TNIFTI header = HEADER_OF(16, 512, -2, -2, 2); // a positive product all the same
    CHECK(LINES_OF(header, size) ==
          "  Bad dim size (3 <-2, -2, 2> 1 <0, 0, 0>)! Create empty field.\n");
}

TEST_CASE("ranks other than 3 to 7 and empty further axes are bad dim sizes") {
    VECTORNAT size;
    for (const int rank : {-1, 0, 2, 8, 768}) {
        TNIFTI header = HEADER_OF(16, 512, 2, 2, 2);
        header.dim[0] = static_cast<std::int16_t>(rank);
        CHECK(LINES_OF(header, size).starts_with("  Bad dim size ("));
    }
    TNIFTI header = HEADER_OF(16, 512, 2, 2, 2);
    header.dim[0] = 5;
    CHECK(LINES_OF(header, size) ==
          "  Bad dim size (5 <2, 2, 2> 1 <0, 0, 0>)! Create empty field.\n");
}

TEST_CASE("a header that claims 32767 voxels a side with little data takes no memory") {
    VECTORNAT size;
    const std::string file = NII(GIANT(), std::vector<BYTE>(8000, 1));
    CHECK(LINES_OF<T3DGRAY>(file, size).find("! Create empty field.\n") != std::string::npos);
    CHECK(size == VZERONAT);
    CHECK(LINES_OF<T3DGRAY>(ZIPPED(file), size, "x.nii.gz") ==
          "  Couldn't fill field (32767x32767x32767) from so few data! Create empty field.\n");
    CHECK(size == VZERONAT);
    CHECK(LINES_OF<T3DMONO>(file, size).find("from so few data!") != std::string::npos);
}

TEST_CASE("all axes at their largest overflow nothing") {
    VECTORNAT size;
    TNIFTI header = GIANT();
    header.dim[0] = 7;
    for (std::size_t axis = 4; axis <= 7; ++axis)
        header.dim[axis] = 32767;
    CHECK(LINES_OF(header, size).find("! Create empty field.\n") != std::string::npos);
    CHECK(size == VZERONAT);
}

TEST_CASE("a vox_offset past the end tells the sizes and gives a zero field") {
    VECTORNAT size;
    for (const float offset : {353.0F, 1e6F, 1e30F, static_cast<float>(REALMAX)}) {
        TNIFTI header = HEADER_OF(16, 512, 2, 2, 2);
        header.vox_offset = offset;
        CHECK(LINES_OF(header, size).starts_with("  Wrong file size! Header: "));
        CHECK(size == VECTORNAT{2, 2, 2});
        const std::string zipped = ZIPPED(NII(header, RAMP));
        CHECK(LINES_OF(zipped, size, "x.nii.gz").find("with (2x2x2)") != std::string::npos);
    }
}

TEST_CASE("an unknown sample type is refused") {
    VECTORNAT size;
    for (const int type : {0, 1, 3, 32, 1536, -1}) {
        const std::string text =
            LINES_OF(HEADER_OF(16, static_cast<std::int16_t>(type), 2, 2, 2), size);
        CHECK(text == "  Bad dim values! Create empty field.\n");
    }
    CHECK(size == VZERONAT);
}

TEST_CASE("version 2 is refused in both byte orders") {
    VECTORNAT size;
    TNIFTI header = HEADER_OF(16, 512, 2, 2, 2);
    header.sizeof_hdr = 540;
    const std::string line = "  Nifti-2 currently not supported! Create empty field.\n";
    CHECK(LINES_OF(header, size) == line);
    SWAPNIFTI(header);
    CHECK(LINES_OF(header, size) == line);
    CHECK(size == VZERONAT);
}

TEST_CASE("a file without a header is a wrong header") {
    VECTORNAT size;
    CHECK(LINES_OF(std::string(1000, 'x'), size) == "  Wrong header! Create empty field.\n");
}

TEST_CASE("a file that can't be opened is told") {
    CAPTURE console;
    const TEMPORARY_FOLDER folder;
    T3DGRAY field(2, 2, 2);
    LOADNII(field, UTF16(folder.PATH("none.nii")), 1, 0, 0);
    CHECK(field.EMPTY());
    CHECK(console.CONTAINS("  Couldn't read File (" + folder.PATH("none.nii") +
                           ")! Create empty field.\n"));
    LOADNII_GZ(field, UTF16(folder.PATH()), 1, 0, 0);
    CHECK(console.CONTAINS("  Couldn't read File (" + folder.PATH() + ")! Create empty field.\n"));
}

TEST_CASE("a pair without its image gives a zero field with the file's name and frame") {
    CAPTURE console;
    const TEMPORARY_FOLDER folder;
    TNIFTI header = HEADER_OF(16, 512, 2, 3, 4);
    header.pixdim[1] = 5;
    folder.PUT("x.hdr", BYTES_OF(header));
    T3DFULLGRAY field;
    LOADNII(field, UTF16(folder.PATH("x.hdr")), 1, 0, 0);
    CHECK(field.SIZE() == VECTORNAT{2, 3, 4});
    CHECK(field.frame.SCALE().x == 5);
    CHECK(field.fileName == UTF16CHARS7(UTF16(folder.PATH("x.hdr"))));
    CHECK(console.CONTAINS("  Couldn't read File (" + folder.PATH("x.img") +
                           ")! Create field without values.\n"));
    header.dim[0] = 2;
    folder.PUT("x.hdr", BYTES_OF(header));
    LOADNII(field, UTF16(folder.PATH("x.hdr")), 1, 0, 0);
    CHECK(field.EMPTY());
    CHECK(console.CONTAINS(") and bad dim size! Create empty field.\n"));
}

TEST_CASE("a giant pair without its image is refused") {
    CAPTURE console;
    const TEMPORARY_FOLDER folder;
    folder.PUT("x.hdr", BYTES_OF(GIANT()));
    T3DGRAY field;
    LOADNII(field, UTF16(folder.PATH("x.hdr")), 1, 0, 0);
    CHECK(field.EMPTY());
}

TEST_CASE("an empty name loads nothing and keeps the field") {
    CAPTURE console;
    T3DGRAY field(2, 2, 2);
    LOADNII(field, UTF16(), 1, 0, 0);
    CHECK(field.SIZE() == VECTORNAT{2, 2, 2});
    CHECK(console.TEXT().empty());
}

TEST_CASE("a header of random numbers neither crashes nor hangs") {
    VECTORNAT size;
    std::uint32_t state = 1;
    for (int run = 0; run < 300; ++run) {
        std::string bytes = VALID();
        for (std::size_t i = 4; i < 348; ++i) {
            state = state * 1664525 + 1013904223;
            if (i < 40 || i >= 48) bytes[i] = static_cast<char>(state >> 24);
        }
        std::memcpy(bytes.data() + 70, "\x00\x02\x10\x00", 4); // still words
        LINES_OF(bytes, size);
    }
}
