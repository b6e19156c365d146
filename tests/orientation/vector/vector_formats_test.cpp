#include "orientation/vector/vector_formats_table.hpp"

#include "orientation/vector/vector_analysis.hpp"
#include "support/capture.hpp"
#include "support/temporary_folder.hpp"

#include <cmath>
#include <cstring>
#include <doctest/doctest.h>
#include <limits>

using namespace morvane;

namespace {
void Fill(T3D_VECTOR_ANALYSIS &field) {
    for (NAT z = 1; z <= field._GETSIZEZ(); ++z)
        for (NAT y = 1; y <= field._GETSIZEY(); ++y)
            for (NAT x = 1; x <= field._GETSIZEX(); ++x)
                field.PUT(x, y, z, VECTORNAT{x, 10 * y, 100 * z});
    field._SETMATRIX({{{{2, 0, 0}, {0, 0.5, 0}, {0, 0, 4}}}});
    field._SETMOVE({1, -2, 3});
}

bool Equal(const T3D_VECTOR_ANALYSIS &a, const T3D_VECTOR_ANALYSIS &b) {
    if (!(a.SIZE() == b.SIZE()) || !(a.MATRIX() == b.MATRIX()) || !(a.MOVE() == b.MOVE()))
        return false;
    for (NAT z = 1; z <= a._GETSIZEZ(); ++z)
        for (NAT y = 1; y <= a._GETSIZEY(); ++y)
            for (NAT x = 1; x <= a._GETSIZEX(); ++x)
                if (!(a.GETNAT(x, y, z) == b.GETNAT(x, y, z)) ||
                    !(a.GET(x, y, z) == b.GET(x, y, z)))
                    return false;
    return true;
}

double DoubleAt(const std::string &bytes, std::size_t offset) {
    double value = 0;
    std::memcpy(&value, bytes.data() + offset, sizeof value);
    return value;
}
float FloatAt(const std::string &bytes, std::size_t offset) {
    float value = 0;
    std::memcpy(&value, bytes.data() + offset, sizeof value);
    return value;
}
std::int16_t ShortAt(const std::string &bytes, std::size_t offset) {
    std::int16_t value = 0;
    std::memcpy(&value, bytes.data() + offset, sizeof value);
    return value;
}
} // namespace

TEST_CASE("every format that is read and written brings every kind back equal") {
    CAPTURE console;
    TEMPORARY_FOLDER folder;
    for (const VECTOR_FORMAT &format : VECTOR_FORMATS) {
        if (!format.reader || !format.writer) continue;
        for (const BYTE kind : {VECTOR_FLOAT, VECTOR_INTEGER, VECTOR_24BIT}) {
            INFO(format.extension, " ", kind);
            T3D_VECTOR_ANALYSIS field(kind, 3, 2, 2), back;
            Fill(field);
            const UTF16 name = folder.PATH("field." + std::string(format.extension));
            CHECK(field.SAVE(name));
            CHECK(back.LOAD(kind, name));
            CHECK(Equal(field, back));
        }
    }
}

TEST_CASE("an unknown extension is saved as text, and loaded by the reader of texts alone") {
    CAPTURE console;
    TEMPORARY_FOLDER folder;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 3, 2, 2), back;
    Fill(field);
    for (const char *name : {"field.xyz", "field"}) {
        const UTF16 file = folder.PATH(name);
        CHECK(field.SAVE(file));
        console.CLEAR();
        CHECK_FALSE(back.LOAD(VECTOR_FLOAT, file));
        CHECK(console.TEXT() == "Unknown vectorfield!\n");
        CHECK_FALSE(back.ISNOTEMPTY());
        CHECK(back.LOADTXT(VECTOR_FLOAT, file));
        CHECK(Equal(field, back));
    }
}

TEST_CASE("without the extension's own reader nothing is loaded") {
    CHECK(VECTOR_FORMAT_OF("xyz").extension == "txt");
    CHECK(VECTOR_FORMAT_OF("am").extension == "am");
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 2, 2);
    CHECK_FALSE(field.LOAD(VECTOR_FLOAT, "missing.am"));
    CHECK(console.TEXT() == "Unknown vectorfield!\n");
    CHECK_FALSE(field.ISNOTEMPTY());
}

TEST_CASE("an empty name loads nothing and keeps the field") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 2, 2);
    CHECK_FALSE(field.LOAD(VECTOR_FLOAT, ""));
    CHECK_FALSE(field.LOADNII(VECTOR_FLOAT, ""));
    CHECK_FALSE(field.LOADTXT(""));
    CHECK(field.SIZE() == VECTORNAT{2, 2, 2});
}

TEST_CASE("an empty field writes no file") {
    CAPTURE console;
    TEMPORARY_FOLDER folder;
    const T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT);
    for (const VECTOR_FORMAT &format : VECTOR_FORMATS)
        CHECK_FALSE(field.SAVE(folder.PATH("field." + std::string(format.extension))));
    CHECK(folder.ENTRIES() == 0);
}

TEST_CASE("a NIfTI file of vectors holds the x plane, then y, then z, as doubles") {
    CAPTURE console;
    TEMPORARY_FOLDER folder;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 1, 2);
    Fill(field);
    CHECK(field.SAVENII(folder.PATH("field")));
    const std::string bytes = folder.GET("field.nii");
    REQUIRE(bytes.size() == 352 + 4 * 3 * 8);
    CHECK(ShortAt(bytes, 40) == 5);    // rank
    CHECK(ShortAt(bytes, 48) == 1);    // dim[4]
    CHECK(ShortAt(bytes, 50) == 3);    // dim[5]
    CHECK(ShortAt(bytes, 68) == 1007); // intent: vector
    CHECK(ShortAt(bytes, 70) == 64);   // datatype
    CHECK(ShortAt(bytes, 72) == 64);   // bitpix
    CHECK(DoubleAt(bytes, 352) == 1);
    CHECK(DoubleAt(bytes, 352 + 8) == 2);
    CHECK(DoubleAt(bytes, 352 + 4 * 8) == 10);
    CHECK(DoubleAt(bytes, 352 + 8 * 8) == 100);
    CHECK(DoubleAt(bytes, 352 + 11 * 8) == 200);
}

TEST_CASE("an integer field goes into 64-bit samples and keeps them above 2^53") {
    CAPTURE console;
    TEMPORARY_FOLDER folder;
    T3D_VECTOR_ANALYSIS field(VECTOR_INTEGER, 2, 2, 2), back;
    field.PUT(1, 1, 1, VECTORNAT{NATMAX - 1, NATMIN + 1, 3});
    CHECK(field.SAVENII_GZ(folder.PATH("field")));
    CHECK(back.LOADNII_GZ(VECTOR_INTEGER, folder.PATH("field.nii.gz")));
    CHECK(back.GETNAT(1, 1, 1) == VECTORNAT{NATMAX - 1, NATMIN + 1, 3});
    CHECK(field.SAVETXT(folder.PATH("field.txt")));
    CHECK(back.LOADTXT(folder.PATH("field.txt")));
    CHECK(back.GETNAT(1, 1, 1) == VECTORNAT{NATMAX - 1, NATMIN + 1, 3});
}

TEST_CASE("a 24-bit field is stored as colours") {
    CAPTURE console;
    TEMPORARY_FOLDER folder;
    T3D_VECTOR_ANALYSIS field(VECTOR_24BIT, 2, 1, 1);
    field.PUT(1, 1, 1, VECTOR{1, 2, 3});
    field.PUT(2, 1, 1, VECTOR{4, 5, 6});
    CHECK(field.SAVENII(folder.PATH("field.nii")));
    const std::string bytes = folder.GET("field.nii");
    REQUIRE(bytes.size() == 352 + 6);
    CHECK(ShortAt(bytes, 40) == 3);
    CHECK(ShortAt(bytes, 70) == 128);
    CHECK(ShortAt(bytes, 72) == 24);
    CHECK(bytes.substr(352) == "\1\2\3\4\5\6");
}

TEST_CASE("every prefix of a vector file gives an empty field") {
    CAPTURE console;
    TEMPORARY_FOLDER folder;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 1, 1), back;
    Fill(field);
    CHECK(field.SAVENII(folder.PATH("field.nii")));
    const std::string bytes = folder.GET("field.nii");
    for (std::size_t length = 0; length < bytes.size(); length += length < 340 ? 34 : 1) {
        const std::string name = folder.PUT("cut.nii", bytes.substr(0, length));
        back.NEW(2, 2, 2);
        CHECK_FALSE(back.LOADNII(VECTOR_FLOAT, name));
        CHECK_FALSE(back.ISNOTEMPTY());
    }
}

TEST_CASE("a cut gz stream leaves zeros and tells so") {
    CAPTURE console;
    TEMPORARY_FOLDER folder;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 8, 8, 8), back;
    NAT seed = 3;
    for (NAT i = 0; i < 512; ++i) {
        seed = seed * 48271 % 2147483647;
        field.FLOATS()[i] = {std::sqrt(static_cast<REAL>(seed)), 1, 2};
    }
    CHECK(field.SAVENII_GZ(folder.PATH("field.nii.gz")));
    const std::string bytes = folder.GET("field.nii.gz");
    folder.PUT("cut.nii.gz", bytes.substr(0, bytes.size() / 2));
    console.CLEAR();
    CHECK(back.LOADNII_GZ(VECTOR_FLOAT, folder.PATH("cut.nii.gz")));
    CHECK(console.CONTAINS("  Wrong file size! The missing vectors are zero.\n"));
    CHECK(back.SIZE() == VECTORNAT{8, 8, 8});
    CHECK(back.GET(8, 8, 8) == VZERO);
}

TEST_CASE("a scalar file is no vector field") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field;
    CHECK_FALSE(field.LOADNII(VECTOR_FLOAT, MORVANE_TEST_DATA "/mri_head_slab.nii"));
    CHECK(console.CONTAINS("  Bad dim values! Create empty field.\n"));
    CHECK_FALSE(field.ISNOTEMPTY());
}

TEST_CASE("a missing file tells so and leaves an empty field") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 2, 2);
    CHECK_FALSE(field.LOAD(VECTOR_FLOAT, "/nowhere/field.nii"));
    CHECK(console.CONTAINS("  Couldn't read File (/nowhere/field.nii)! Create empty field.\n"));
    CHECK_FALSE(field.ISNOTEMPTY());
    CHECK_FALSE(field.LOAD(VECTOR_FLOAT, "/nowhere/field.txt"));
}

TEST_CASE("properties are a header alone, and set offset and matrix of another field") {
    CAPTURE console;
    TEMPORARY_FOLDER folder;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 3, 2, 2), other(VECTOR_FLOAT, 5, 5, 5), made;
    Fill(field);
    CHECK(field.SAVE_PROPERTIES(folder.PATH("frame")));
    CHECK(folder.GET("frame.hdr").size() == 348);
    CHECK(folder.ENTRIES() == 1);
    other.PUT(5, 5, 5, VECTOR{1, 1, 1});
    CHECK(other.LOAD_PROPERTIES(folder.PATH("frame.hdr")));
    CHECK(other.SIZE() == VECTORNAT{5, 5, 5});
    CHECK(other.GET(5, 5, 5) == VECTOR{1, 1, 1});
    CHECK(other.MATRIX() == field.MATRIX());
    CHECK(other.MOVE() == field.MOVE());
    CHECK(made.LOAD_FRAMEWORK(VECTOR_INTEGER, folder.PATH("frame.hdr")));
    CHECK(made._GETID() == VECTOR_INTEGER);
    CHECK(made.SIZE() == VECTORNAT{3, 2, 2});
    CHECK(made.COUNT(VZERO) == 12);
    CHECK(made.MOVE() == field.MOVE());
}

TEST_CASE("properties of a file that is no header change nothing") {
    CAPTURE console;
    TEMPORARY_FOLDER folder;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 2, 2);
    CHECK_FALSE(field.LOAD_PROPERTIES(folder.PUT("a.hdr", std::string(400, 'x'))));
    CHECK_FALSE(field.LOAD_PROPERTIES(folder.PUT("a.mif", std::string(400, 'x'))));
    CHECK_FALSE(field.LOAD_FRAMEWORK(VECTOR_FLOAT, folder.PATH("missing.hdr")));
    CHECK(field.SIZE() == VECTORNAT{2, 2, 2});
    CHECK(field.MATRIX() == M3NORM);
}

TEST_CASE("an AVS field has its text, two bytes 12, the floats and the extents") {
    CAPTURE console;
    TEMPORARY_FOLDER folder;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 1, 1);
    Fill(field);
    CHECK(field.SAVEFLD(folder.PATH("field")));
    const std::string bytes = folder.GET("field.fld");
    const std::string text =
        "# AVS field file\nndim=3\ndim1=2\ndim2=1\ndim3=1\nnspace=3\nveclen=3\n"
        "data=float\nfield=uniform\nmin_ext=1 -2 3\nmax_ext=3 -2 3\n\f\f";
    REQUIRE(bytes.size() == text.size() + 12 * 4);
    CHECK(bytes.substr(0, text.size()) == text);
    const float expected[] = {1, 10, 100, 2, 10, 100, 1, 3, -2, -2, 3, 3};
    for (std::size_t i = 0; i < 12; ++i)
        CHECK(FloatAt(bytes, text.size() + 4 * i) == expected[i]);
    CHECK(console.CONTAINS("  3DVector with (2x1x1). 100 % ready"));
}

TEST_CASE("an AVS field of whole numbers limits them to 32 bits") {
    CAPTURE console;
    TEMPORARY_FOLDER folder;
    T3D_VECTOR_ANALYSIS field(VECTOR_INTEGER, 1, 1, 1);
    field.PUT(1, 1, 1, VECTORNAT{NATMAX, NATMIN, 7});
    CHECK(field.SAVEFLD(folder.PATH("field.fld")));
    const std::string bytes = folder.GET("field.fld");
    CHECK(bytes.find("\ndata=integer\n") != std::string::npos);
    std::int32_t values[3];
    std::memcpy(values, bytes.data() + bytes.find("\f\f") + 2, sizeof values);
    CHECK(values[0] == std::numeric_limits<std::int32_t>::max());
    CHECK(values[1] == std::numeric_limits<std::int32_t>::min());
    CHECK(values[2] == 7);
    CHECK(console.CONTAINS("  3DVector32 with (1x1x1). 100 % ready"));
}

TEST_CASE("an AmiraMesh text has its lattice and one voxel a line") {
    CAPTURE console;
    TEMPORARY_FOLDER folder;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 1, 1);
    Fill(field);
    field.PUT(2, 1, 1, VECTOR{0.1, -0.5, 0});
    CHECK(field.SAVETXT_AM(folder.PATH("field")));
    CHECK(folder.GET("field.am") == "# AmiraMesh 3D ASCII 2.0\n"
                                    "define Lattice 2 1 1\n"
                                    "Parameters {\n"
                                    "    Content \"2x1x1 float[3], uniform coordinates\",\n"
                                    "    BoundingBox 1 3 -2 -2 3 3,\n"
                                    "    CoordType \"uniform\"\n"
                                    "}\n"
                                    "Lattice { float[3] Data } @1\n"
                                    "# Data section follows\n"
                                    "@1\n"
                                    "1 10 100\n"
                                    "0.1 -0.5 0\n");
}

TEST_CASE("numbered lines hold position and vector with five decimals") {
    CAPTURE console;
    TEMPORARY_FOLDER folder;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 1, 1);
    field.PUT(2, 1, 1, VECTOR{0.123456, -1, 1e20});
    CHECK(field.SAVE(folder.PATH("field.limbert")));
    CHECK(folder.GET("field.limbert") ==
          "1, 0.00000, 0.00000, 0.00000, 0.00000, 0.00000, 0.00000\n"
          "2, 1.00000, 0.00000, 0.00000, 0.12346, -1.00000, 100000000000000000000.00000\n");
}

TEST_CASE("a failed write leaves the old file and no other") {
    CAPTURE console;
    TEMPORARY_FOLDER folder;
    const T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 2, 2);
    for (const VECTOR_FORMAT &format : VECTOR_FORMATS)
        CHECK_FALSE(field.SAVE("/nowhere/at/all/field." + std::string(format.extension)));
    CHECK(folder.ENTRIES() == 0);
}
