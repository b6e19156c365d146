#include "field3d/field/scalar_analysis.hpp"

#include "support/capture.hpp"
#include "support/temporary_folder.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
struct LABELLED : T3D_SCALAR_ANALYSIS {
    LABELLED() : T3D_SCALAR_ANALYSIS(TAG_GRAY, 1, 1, 1) {}
    std::string NAME(NAT value) const { return GETUTF8(LABELS_GET(value)); }
};
} // namespace

TEST_CASE("labels belong to values of the voxel range") {
    LABELLED field;
    field.LABELS_PUT(3, "bone");
    field.LABELS_PUT(256, "far");
    field.LABELS_PUT(-1, "low");
    CHECK(field.NAME(3) == "bone");
    CHECK(field.NAME(2).empty());
    CHECK(field.NAME(256).empty());
    CHECK(field.LABELS_LENGTH() == 4);
    T3D_SCALAR_ANALYSIS full(TAG_FULLGRAY, 1, 1, 1);
    full.LABELS_PUT(65535, "last");
    CHECK(full.LABELS_GET(65535) == UTF16("last"));
}

TEST_CASE("a 1-bit field has no labels") {
    T3D_SCALAR_ANALYSIS field(TAG_MONO, 1, 1, 1);
    field.LABELS_PUT(1, "bone");
    CHECK(field.LABELS_LENGTH() == 0);
    CHECK(field.LABELS_GET(1).EMPTY());
}

TEST_CASE("a star is the label before, down to the first") {
    LABELLED field;
    field.LABELS_PUT(2, "bone");
    field.LABELS_PUT(3, "*");
    field.LABELS_PUT(4, "*");
    CHECK(field.NAME(4) == "bone");
    LABELLED stars;
    stars.LABELS_PUT(0, "*");
    stars.LABELS_PUT(1, "*");
    CHECK(stars.NAME(1) == "*");
}

TEST_CASE("labels save as value, tab and name, and load equal") {
    CAPTURE console;
    const TEMPORARY_FOLDER folder;
    LABELLED field, again;
    field.LABELS_PUT(0, "air");
    field.LABELS_PUT(7, "Ä bone");
    field.LABELS_PUT(8, "*");
    CHECK(field.LABELS_SAVE(UTF16(folder.PATH("a.labels"))));
    CHECK(folder.GET("a.labels") == "0\tair\n7\tÄ bone\n8\tÄ bone\n");
    again.LABELS_LOAD(UTF16(folder.PATH("a.labels")));
    CHECK(console.CONTAINS("  Found 3 labels.\n"));
    CHECK(again.NAME(0) == "air");
    CHECK(again.NAME(8) == "Ä bone");
    CHECK(again.NAME(5).empty());
}

TEST_CASE("a 1-bit field that took over labels saves none of them") {
    const CAPTURE console;
    const TEMPORARY_FOLDER folder;
    LABELLED other;
    other.LABELS_PUT(1, "bone");
    T3D_SCALAR_ANALYSIS field(TAG_MONO, 1, 1, 1);
    field.LABELS_CLONE(other);
    CHECK(field.LABELS_SAVE(UTF16(folder.PATH("a.labels"))));
    CHECK(folder.GET("a.labels").empty());
}

TEST_CASE("only stored labels are counted") {
    CAPTURE console;
    const TEMPORARY_FOLDER folder;
    folder.PUT("table.txt", "1\tbone\n256\tfar\n");
    folder.PUT("names.txt", "air\nwater\n");
    folder.PUT("atlas.xml", "<atlas>\n<area name=\"One\">\n<area name=\"Two\">\n");
    LABELLED field;
    field.LABELS_LOAD(UTF16(folder.PATH("table.txt")));
    CHECK(console.CONTAINS("  Found one label.\n"));
    T3D_SCALAR_ANALYSIS bits(TAG_MONO, 1, 1, 1);
    for (const char *name : {"table.txt", "names.txt", "atlas.xml"}) {
        console.CLEAR();
        bits.LABELS_LOAD(UTF16(folder.PATH(name)));
        CHECK(console.CONTAINS("  Found nothing.\n"));
    }
}

TEST_CASE("nothing is saved without a name or without labels") {
    const CAPTURE console;
    const TEMPORARY_FOLDER folder;
    LABELLED field;
    CHECK_FALSE(field.LABELS_SAVE(UTF16(folder.PATH("a.labels"))));
    field.LABELS_PUT(1, "bone");
    CHECK_FALSE(field.LABELS_SAVE(UTF16()));
    CHECK(folder.ENTRIES() == 0);
}

TEST_CASE("a heading line of a table is no label") {
    const CAPTURE console;
    const TEMPORARY_FOLDER folder;
    folder.PUT("a.txt", "#value\tname\n5\tbone\n");
    LABELLED field;
    field.LABELS_LOAD(UTF16(folder.PATH("a.txt")));
    CHECK(field.NAME(5) == "bone");
    CHECK(console.CONTAINS("  Found one label.\n"));
}

TEST_CASE("plain names count from 0") {
    const CAPTURE console;
    const TEMPORARY_FOLDER folder;
    folder.PUT("a.txt", "air\nwater\nbone\n");
    LABELLED field;
    field.LABELS_LOAD(UTF16(folder.PATH("a.txt")));
    CHECK(field.NAME(2) == "bone");
    CHECK(field.LABELS_LENGTH() == 3);
}

TEST_CASE("an atlas gives its area names by appearance") {
    const CAPTURE console;
    const TEMPORARY_FOLDER folder;
    folder.PUT("a.xml", "<Atlas>\n<AREA id=\"9\" Name=\"Left Lobe\"/>\n<other name=\"x\"/>\n"
                        "<area name=\"Right\"/>\n");
    LABELLED field;
    field.LABELS_LOAD(UTF16(folder.PATH("a.xml")));
    CHECK(field.NAME(0) == "Left Lobe");
    CHECK(field.NAME(1) == "Right");
    CHECK(field.LABELS_LENGTH() == 2);
}

TEST_CASE("an atlas beside the data goes before the label file itself") {
    CAPTURE console;
    const TEMPORARY_FOLDER folder;
    folder.PUT("a.atlas.xml", "no area here\n");
    folder.PUT("a.txt", "air\n");
    LABELLED field;
    field.LABELS_PUT(4, "old");
    field.LABELS_LOAD(UTF16(folder.PATH("a.txt")));
    CHECK(field.LABELS_LENGTH() == 0);
    CHECK(console.CONTAINS("  Found nothing.\n"));
}

TEST_CASE("a volume with an atlas beside it brings its labels, and a saved field its label file") {
    CAPTURE console;
    const TEMPORARY_FOLDER folder;
    LABELLED field;
    CHECK(field.SAVE(UTF16(folder.PATH("a.nii.gz"))));
    CHECK(folder.ENTRIES() == 1);
    folder.PUT("a.atlas.xml", "<area name=\"One\">\n");
    field.LOADNII_GZ(TAG_GRAY, UTF16(folder.PATH("a.nii.gz")));
    CHECK(field.NAME(0) == "One");
    CHECK(console.CONTAINS("  Found one label.\n"));
    CHECK(field.SAVE(UTF16(folder.PATH("b.nii.gz"))));
    CHECK(folder.GET("b.labels") == "0\tOne\n");
}
