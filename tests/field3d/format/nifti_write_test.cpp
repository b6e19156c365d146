#include "field3d/format/nifti.hpp"

#include "field3d/nifti_builder.hpp"
#include "foundation/base/record_operators.hpp"
#include "support/capture.hpp"

#include <doctest/doctest.h>

#include <filesystem>

using namespace morvane;

namespace {
// 3 x 2 x 2 voxels of values 1000 * index, in a tilted frame.
void FILL(T3DFULLGRAY &field) {
    field.INIT(3, 2, 2);
    for (NAT i = 1; i <= 12; ++i)
        field._PUTINDEX(i, static_cast<WORD>(1000 * i));
    field.frame.SETMATRIX({{{{0, 2, 0}, {-3, 0, 0}, {0, 0, 4.5}}}});
    field.frame.SETMOVE({5, -6, 7});
}

bool SAME(const T3DFULLGRAY &a, const T3DFULLGRAY &b) {
    const MATRIX3 &m = a.frame.MATRIX(), &n = b.frame.MATRIX();
    return a.SIZE() == b.SIZE() && std::equal(a.VOXELS(), a.VOXELS() + a.COUNT(), b.VOXELS()) &&
           m[0] == n[0] && m[1] == n[1] && m[2] == n[2] && a.frame.MOVE() == b.frame.MOVE();
}
} // namespace

TEST_CASE("a saved file loads with the same voxels and frame, in every form") {
    const CAPTURE console;
    const TEMPORARY_FOLDER folder;
    T3DFULLGRAY field, again;
    FILL(field);
    for (const char *name : {"a.nii", "a.nii.gz", "a.hdr"}) {
        CHECK(SAVE(field, UTF16(folder.PATH(name))));
        again.INIT();
        if (std::string(name) == "a.nii.gz")
            LOADNII_GZ(again, UTF16(folder.PATH(name)), 1, 0, 0);
        else
            LOADNII(again, UTF16(folder.PATH(name)), 1, 0, 0);
        CHECK(SAME(field, again));
    }
    CHECK(std::filesystem::exists(folder.PATH("a.img")));
    CHECK(folder.ENTRIES() == 4); // nothing left beside the files
}

TEST_CASE("a .nii is header, four zero bytes and the voxels as they lie in memory") {
    CAPTURE console;
    const TEMPORARY_FOLDER folder;
    T3DFULLGRAY field;
    FILL(field);
    CHECK(SAVENII(field, UTF16(folder.PATH("a.nii"))));
    const std::string bytes = folder.GET("a.nii");
    REQUIRE(bytes.size() == 352 + 24);
    CHECK(bytes.substr(344, 8) == std::string("n+1\0\0\0\0\0", 8));
    CHECK(bytes.substr(352, 4) == std::string("\xE8\x03\xD0\x07", 4));
    CHECK(console.CONTAINS("  3DFullgrey with (3x2x2). 100 % ready"));
}

TEST_CASE("a pair is 348 bytes of header and the bare voxels") {
    const CAPTURE console;
    const TEMPORARY_FOLDER folder;
    CHECK(SAVEHDR(T3DGRAY(3, 2, 2), UTF16(folder.PATH("a.hdr"))));
    CHECK(folder.GET("a.hdr").size() == 348);
    CHECK(folder.GET("a.hdr").substr(344) == std::string("ni1\0", 4));
    CHECK(folder.GET("a.img") == std::string(12, '\0'));
}

TEST_CASE("a missing extension is appended") {
    const CAPTURE console;
    const TEMPORARY_FOLDER folder;
    const T3DGRAY field(1, 1, 1);
    CHECK(SAVENII(field, UTF16(folder.PATH("a.x"))));
    CHECK(SAVENII_GZ(field, UTF16(folder.PATH("a.nii"))));
    CHECK(SAVEHDR(field, UTF16(folder.PATH("b"))));
    CHECK(folder.GET("a.x.nii").size() == 353);
    CHECK(std::filesystem::exists(folder.PATH("a.nii.nii.gz")));
    CHECK(folder.GET("b.img").size() == 1);
    CHECK(SAVENII(field, UTF16(folder.PATH("C.NII"))));
    CHECK(std::filesystem::exists(folder.PATH("C.NII")));
}

TEST_CASE("a 1-bit file is written, but no reader of this system takes it back") {
    CAPTURE console;
    const TEMPORARY_FOLDER folder;
    T3DMONO field(4, 2, 1);
    field.PUT(1, 1, 1, true);
    field.PUT(4, 2, 1, true);
    CHECK(SAVENII(field, UTF16(folder.PATH("a.nii"))));
    CHECK(folder.GET("a.nii").substr(352) == std::string("\x81\x00", 2));
    LOADNII(field, UTF16(folder.PATH("a.nii")), 1, 0, 0);
    CHECK(field.EMPTY());
    CHECK(console.CONTAINS("  Bad dim values! Create empty field.\n"));
}

TEST_CASE("a colour field writes red, green and blue of each voxel in turn") {
    const CAPTURE console;
    const TEMPORARY_FOLDER folder;
    T3DRGB field(2, 1, 1);
    field.PUT(1, 1, 1, {1, 2, 3});
    field.PUT(2, 1, 1, {4, 5, 6});
    CHECK(SAVE(field, UTF16(folder.PATH("a.nii"))));
    CHECK(folder.GET("a.nii").substr(352) == "\x01\x02\x03\x04\x05\x06");
    T3DGRAY gray;
    LOADNII(gray, UTF16(folder.PATH("a.nii")), 1, 0, 0);
    CHECK(gray.GET(2, 1, 1) == 5);
}

TEST_CASE("an unwritable target keeps what was there and writes nothing") {
    const CAPTURE console;
    const TEMPORARY_FOLDER folder;
    const T3DGRAY field(2, 2, 2);
    CHECK_FALSE(SAVENII(field, UTF16(folder.PATH("none/a.nii"))));
    CHECK_FALSE(SAVENII_GZ(field, UTF16(folder.PATH("none/a.nii.gz"))));
    CHECK_FALSE(SAVEHDR(field, UTF16(folder.PATH("none/a.hdr"))));
    CHECK(folder.ENTRIES() == 0);
}

TEST_CASE("a full disk is told and leaves the old file") {
    const TEMPORARY_FOLDER folder;
    folder.PUT("a.nii", "old");
    if (!std::filesystem::exists("/dev/full")) return;
    std::filesystem::create_symlink("/dev/full", folder.PATH("full.nii"));
    CAPTURE console;
    CHECK_FALSE(SAVENII(T3DGRAY(100, 100, 100), UTF16(folder.PATH("full.nii"))));
    CHECK(console.CONTAINS("-Error"));
    CHECK(folder.GET("a.nii") == "old");
}

TEST_CASE("a field with a side beyond 32767 doesn't fit the header and is not written") {
    CAPTURE console;
    const TEMPORARY_FOLDER folder;
    CHECK_FALSE(SAVENII(T3DGRAY(32768, 1, 1), UTF16(folder.PATH("a.nii"))));
    CHECK(console.TEXT() == "  Field (32768x1x1) too large for this format!\n");
    CHECK(folder.ENTRIES() == 0);
}

TEST_CASE("empty fields and unknown extensions are told and not written") {
    CAPTURE console;
    const TEMPORARY_FOLDER folder;
    CHECK_FALSE(SAVENII(T3DGRAY(), UTF16(folder.PATH("a.nii"))));
    CHECK_FALSE(SAVE(T3DGRAY(1, 1, 1), UTF16(folder.PATH("a.xyz"))));
    CHECK(console.TEXT() == "  Empty field - not written!\n"
                            "Unknown fileextension (xyz)! File not written.\n");
    CHECK(folder.ENTRIES() == 0);
}

TEST_CASE("a vector file is written plane after plane and read back by its planes") {
    const CAPTURE console;
    const TEMPORARY_FOLDER folder;
    const VECTORNAT size{2, 2, 1};
    NIFTI_TARGET target;
    const UTF16 name(folder.PATH("v.nii.gz"));
    REQUIRE(target.OPEN(name, NIFTI_VECTOR_NAT, size, FRAME()));
    for (NAT plane = 0; plane < 3; ++plane) {
        const NAT samples[] = {10 * plane, 10 * plane + 1, -plane, NATMAX};
        CHECK(target.WRITE("  3DVector", samples, sizeof samples));
    }
    CHECK(target.DONE());
    NIFTI_SOURCE source;
    REQUIRE(source.OPEN(name, 1, true));
    CHECK(source.HEADER.intent_code == 1007);
    CHECK(source.STACKS() == 3);
    NAT plane[4];
    CHECK(source.READSLICE(3, 1, plane));
    CHECK(plane[1] == 21);
    CHECK(plane[2] == -2);
    CHECK(plane[3] == NATMAX);
    CHECK(source.READSLICE(1, 1, plane)); // back to the start of a stream
    CHECK(plane[1] == 1);
}
