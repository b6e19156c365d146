#include "orientation/vector/vector_analysis.hpp"

#include "support/capture.hpp"
#include "support/temporary_folder.hpp"

#include <array>
#include <doctest/doctest.h>

using namespace morvane;

namespace {
// A file of 2 x 1 x 1 voxels at the global point <1,0,0>: (0,0,0) and (0,2,0).
std::string SecondFile(const TEMPORARY_FOLDER &folder) {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 1, 1);
    field.PUT(2, 1, 1, VECTOR{0, 2, 0});
    field._SETMOVE({1, 0, 0});
    std::string name = folder.PATH("second.nii");
    field.SAVENII(name);
    return name;
}

void Fill(T3D_VECTOR_ANALYSIS &field) {
    field.INIT(VECTOR_FLOAT, 3, 1, 1);
    for (NAT x = 1; x <= 3; ++x)
        field.PUT(x, 1, 1, VECTOR{3, 0, 0});
}
} // namespace

TEST_CASE("APPEND copies every vector to its global place") {
    CAPTURE console;
    TEMPORARY_FOLDER folder;
    T3D_VECTOR_ANALYSIS field;
    Fill(field);
    CHECK(field.APPEND(SecondFile(folder)));
    CHECK(field.GET(1, 1, 1) == VECTOR{3, 0, 0});
    CHECK(field.GET(2, 1, 1) == VZERO);
    CHECK(field.GET(3, 1, 1) == VECTOR{0, 2, 0});
    CHECK(console.CONTAINS("  Source     : <1, 0, 0> .. <2, 0, 0>\n"));
    CHECK(console.CONTAINS("  Destination: <0, 0, 0> .. <2, 0, 0>\n"));
    CHECK(console.CONTAINS("  Merging. 100 % ready"));
}

TEST_CASE("APPEND0 copies no zero vectors, APPEND_BEST only longer ones") {
    CAPTURE console;
    TEMPORARY_FOLDER folder;
    T3D_VECTOR_ANALYSIS field;
    Fill(field);
    CHECK(field.APPEND0(SecondFile(folder)));
    CHECK(field.GET(2, 1, 1) == VECTOR{3, 0, 0});
    CHECK(field.GET(3, 1, 1) == VECTOR{0, 2, 0});
    Fill(field);
    CHECK(field.APPEND_BEST(SecondFile(folder)));
    CHECK(field.GET(3, 1, 1) == VECTOR{3, 0, 0});
    field.PUT(3, 1, 1, VECTOR{1, 0, 0});
    CHECK(field.APPEND_BEST(SecondFile(folder)));
    CHECK(field.GET(3, 1, 1) == VECTOR{0, 2, 0});
}

TEST_CASE("a header file moves what is appended") {
    CAPTURE console;
    TEMPORARY_FOLDER folder;
    T3D_VECTOR_ANALYSIS field, frame(VECTOR_FLOAT, 1, 1, 1);
    Fill(field);
    frame.SAVE_PROPERTIES(folder.PATH("frame.hdr"));
    CHECK(field.APPEND0(SecondFile(folder), folder.PATH("frame.hdr")));
    CHECK(field.GET(2, 1, 1) == VECTOR{0, 2, 0});
    CHECK(console.CONTAINS("  New header: "));
}

TEST_CASE("appending without overlap writes nothing and is no error") {
    CAPTURE console;
    TEMPORARY_FOLDER folder;
    T3D_VECTOR_ANALYSIS field;
    Fill(field);
    field._SETMOVE({100, 100, 100});
    CHECK(field.APPEND(SecondFile(folder)));
    CHECK(field.COUNT(VECTOR{3, 0, 0}) == 3);
}

TEST_CASE("a file that can't be read appends nothing") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field;
    Fill(field);
    CHECK_FALSE(field.APPEND("/nowhere/field.nii"));
    CHECK(field.COUNT(VECTOR{3, 0, 0}) == 3);
}

TEST_CASE("a stack of files lies along z in one field") {
    CAPTURE console;
    TEMPORARY_FOLDER folder;
    const UTF16 name = SecondFile(folder);
    const std::array<UTF16, 3> names{name, name, name};
    T3D_VECTOR_ANALYSIS field;
    CHECK(field.LOADSTACK(VECTOR_FLOAT, names));
    CHECK(field.SIZE() == VECTORNAT{2, 1, 3});
    CHECK(field.GET(2, 1, 1) == VECTOR{0, 2, 0});
    CHECK(field.GET(2, 1, 3) == VECTOR{0, 2, 0});
    CHECK(field.MOVE() == VECTOR{1, 0, 0});
    const std::array<UTF16, 2> broken{name, UTF16("/nowhere/a.nii")};
    CHECK_FALSE(field.LOADSTACK(VECTOR_FLOAT, broken));
    CHECK_FALSE(field.ISNOTEMPTY());
}
