#include "field3d/field/scalar_analysis.hpp"

#include "foundation/base/record_operators.hpp"
#include "support/capture.hpp"
#include "support/temporary_folder.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
UTF16 DATA(const char *name) { return UTF16(std::string(MORVANE_TEST_DATA) + "/" + name); }
} // namespace

TEST_CASE("a load goes by the extension, in any case of letters") {
    const CAPTURE console;
    const TEMPORARY_FOLDER folder;
    T3D_SCALAR_ANALYSIS field(TAG_GRAY, 2, 2, 2), again;
    field.PUT(2, 2, 2, 99);
    for (const char *name : {"a.nii", "a.NII.GZ", "a.hdr"}) {
        CHECK(field.SAVE(UTF16(folder.PATH(name))));
        again.LOAD(TAG_GRAY, UTF16(folder.PATH(name)));
        CHECK(again.GET(2, 2, 2) == 99);
        CHECK(again.fileName == UTF16CHARS7(UTF16(folder.PATH(name))));
    }
}

TEST_CASE("a load takes the width it is told and keeps the load filter, not the other settings") {
    const CAPTURE console;
    T3D_SCALAR_ANALYSIS field(TAG_MONO, 2, 2, 2);
    field.loadFilterFactor = 10;
    field.subMethod = 5;
    field.LABELS_PUT(1, "old");
    field.LOADNII_GZ(TAG_FULLGRAY, DATA("low_res.nii.gz"));
    CHECK(field.BITS() == 16);
    CHECK(field.MAX() == 10);
    CHECK(field.loadFilterFactor == 10);
    CHECK(field.subMethod == 2);
    CHECK(field.LABELS_LENGTH() == 0);
}

TEST_CASE("a failed load leaves an empty field of the width it was told") {
    const CAPTURE console;
    T3D_SCALAR_ANALYSIS field(TAG_MONO, 2, 2, 2);
    field.LOADNII(TAG_GRAY, DATA("bit1_refuse.nii"));
    CHECK(field.ID() == TAG_GRAY);
    CHECK(field.SIZE() == VZERONAT);
    CHECK(field.fileName.EMPTY());
    field.LOADNII_GZ(TAG_GRAY, DATA("version2.nii.gz"));
    CHECK(console.CONTAINS("  Nifti-2 currently not supported! Create empty field.\n"));
}

TEST_CASE("an empty name keeps the field in use") {
    CAPTURE console;
    T3D_SCALAR_ANALYSIS field(TAG_MONO, 2, 2, 2);
    field.LOAD(TAG_GRAY, UTF16());
    field.LOADNII(TAG_GRAY, UTF16());
    CHECK_FALSE(field.SAVE(UTF16()));
    CHECK(field.ID() == TAG_MONO);
    CHECK(field.SIZE() == VECTORNAT{2, 2, 2});
    CHECK(console.TEXT().empty());
}

TEST_CASE("unknown extensions are told") {
    CAPTURE console;
    T3D_SCALAR_ANALYSIS field(TAG_GRAY, 2, 2, 2);
    CHECK_FALSE(field.SAVE("a.png"));
    field.LOAD(TAG_GRAY, "a.png");
    CHECK(field.SIZE() == VZERONAT);
    CHECK(console.TEXT() == "Unknown fileextension (png)! File not written.\n"
                            "Unknown fileextension (png)! Create empty field.\n");
}
