#include "field3d/field/scalar_analysis.hpp"
#include "field3d/format/nifti_header.hpp"
#include "support/capture.hpp"
#include "support/temporary_folder.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// Writes a header alone that claims this size.
std::string HEADER_OF(const TEMPORARY_FOLDER &folder, const VECTORNAT &size) {
    const TNIFTI header = MAKENIFTI({2, 8}, size, FRAME(), false);
    return folder.PUT("claims.hdr",
                      std::string(reinterpret_cast<const char *>(&header), sizeof(header)));
}
} // namespace

TEST_CASE("saved properties are a header of 348 bytes without data") {
    const CAPTURE console;
    const TEMPORARY_FOLDER folder;
    T3D_SCALAR_ANALYSIS field(150, 2, 3, 4);
    REQUIRE(field.SAVE_PROPERTIES(folder.PATH("frame")));
    CHECK(folder.GET("frame.hdr").size() == 348);
    CHECK(folder.ENTRIES() == 1);
    CHECK(folder.GET("frame.hdr")[70] == 2); // datatype, as of 8 bits
    T3D_SCALAR_ANALYSIS wide(151, 2, 3, 4);
    REQUIRE(wide.SAVE_PROPERTIES(folder.PATH("wide.hdr")));
    CHECK(folder.GET("wide.hdr")[71] == 2); // 512
}

TEST_CASE("properties with a side beyond 32767 don't fit a header and are not written") {
    CAPTURE console;
    const TEMPORARY_FOLDER folder;
    const T3D_SCALAR_ANALYSIS field(TAG_GRAY, 32768, 1, 1);
    CHECK_FALSE(field.SAVE_PROPERTIES(folder.PATH("frame.hdr")));
    CHECK(console.TEXT() == "  Field (32768x1x1) too large for this format!\n");
    CHECK(folder.ENTRIES() == 0);
}

TEST_CASE("loaded properties replace offset and matrix and keep the voxels") {
    CAPTURE console;
    const TEMPORARY_FOLDER folder;
    T3D_SCALAR_ANALYSIS source(150, 2, 3, 4);
    FRAME frame;
    frame.SETSCALE({2, 3, 4});
    frame.SETMOVE({10, 20, 30});
    source.SETFRAME(frame);
    REQUIRE(source.SAVE_PROPERTIES(folder.PATH("frame.hdr")));
    T3D_SCALAR_ANALYSIS field(151, 5, 5, 5);
    field.PUT(1, 1, 1, 7);
    REQUIRE(field.LOAD_PROPERTIES(folder.PATH("frame.hdr")));
    CHECK(field.SIZEX() == 5);
    CHECK(field.GET(1, 1, 1) == 7);
    CHECK(field.SCALE() == VECTOR{2, 3, 4});
    CHECK(field.MOVE() == VECTOR{10, 20, 30});
    CHECK(console.CONTAINS("  Transformation: (<2, 0, 0>;<0, 3, 0>;<0, 0, 4>) + <10, 20, 30>\n"));
}

TEST_CASE("a framework is a zero field with the size and frame of a header") {
    const CAPTURE console;
    const TEMPORARY_FOLDER folder;
    T3D_SCALAR_ANALYSIS source(150, 2, 3, 4);
    FRAME frame;
    frame.SETSCALE({1, 1, 5});
    source.SETFRAME(frame);
    REQUIRE(source.SAVE_PROPERTIES(folder.PATH("frame.hdr")));
    T3D_SCALAR_ANALYSIS field(150, 9, 9, 9);
    REQUIRE(field.LOAD_FRAMEWORK(151, folder.PATH("frame.hdr")));
    CHECK(field.SIZE() == VECTORNAT{2, 3, 4});
    CHECK(field.BITS() == 16);
    CHECK(field.MAX() == 0);
    CHECK(field.SCALE() == VECTOR{1, 1, 5});
}

TEST_CASE("a header that claims a huge size makes an empty field") {
    CAPTURE console;
    const TEMPORARY_FOLDER folder;
    T3D_SCALAR_ANALYSIS field(150, 2, 2, 2);
    CHECK_FALSE(field.LOAD_FRAMEWORK(150, HEADER_OF(folder, {32767, 32767, 32767})));
    CHECK_FALSE(field.ISNOTEMPTY());
    CHECK(console.CONTAINS("! Create empty field.\n"));
}

TEST_CASE("formats without a readable header and missing files change nothing") {
    CAPTURE console;
    const TEMPORARY_FOLDER folder;
    T3D_SCALAR_ANALYSIS field(150, 2, 2, 2);
    for (const char *name : {"a.mif", "a.mifx", "a.mdf", "a.pcr", "a.vtk", "a.gz"})
        CHECK_FALSE(field.LOAD_PROPERTIES(name));
    CHECK(console.TEXT().empty());
    CHECK_FALSE(field.LOAD_FRAMEWORK(150, folder.PATH("missing.hdr")));
    CHECK(field.SIZEX() == 2);
    CHECK(console.CONTAINS(" not found.\n"));
}
