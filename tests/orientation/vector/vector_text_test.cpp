#include "orientation/vector/vector_text.hpp"

#include "script/file/file_text.hpp"
#include "support/capture.hpp"
#include "support/temporary_folder.hpp"

#include <doctest/doctest.h>
#include <limits>

using namespace morvane;

namespace {
bool Read(T3D_VECTOR_ANALYSIS &field, std::string_view bytes, BYTE tag = VECTOR_FLOAT) {
    TFILEREADTEXT text;
    text.LOADBYTES(bytes);
    return READ_VECTOR_TEXT(field, tag, text);
}
} // namespace

TEST_CASE("a text of vectors has size and frame, then one line for each that is not zero") {
    CAPTURE console;
    TEMPORARY_FOLDER folder;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 3, 2, 1);
    field._SETMOVE({0.5, 0, -1});
    field.PUT(2, 1, 1, VECTOR{1, -2.5, 0});
    field.PUT(3, 2, 1, VECTOR{1e-20, 0.1, 1e300});
    CHECK(field.SAVETXT(folder.PATH("field.txt")));
    CHECK(folder.GET("field.txt") == "size: <3, 2, 1>\n"
                                     "offset: <0.5, 0, -1>\n"
                                     "matrix: <1, 0, 0> <0, 1, 0> <0, 0, 1>\n"
                                     "<2, 1, 1> <1, -2.5, 0>\n"
                                     "<3, 2, 1> <1e-20, 0.1, 1e+300>\n");
    CHECK(console.CONTAINS("Save vectorfield. 100 % ready"));
}

TEST_CASE("a text has points whatever the number format of the script is") {
    CAPTURE console;
    TEMPORARY_FOLDER folder;
    T3D_VECTOR_ANALYSIS field(VECTOR_INTEGER, 1, 1, 1);
    field.PUT(1, 1, 1, VECTORNAT{12345, 0, 0});
    const TFORMAT old = FORMAT;
    FORMAT.DECIMAL = false;
    FORMAT.DIGIT = true;
    CHECK(field.SAVETXT(folder.PATH("field.txt")));
    FORMAT = old;
    CHECK(folder.GET("field.txt").find("<1, 1, 1> <12345, 0, 0>\n") != std::string::npos);
}

TEST_CASE("a scale multiplies the written vectors, not the positions") {
    CAPTURE console;
    TEMPORARY_FOLDER folder;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 1, 1);
    field.PUT(2, 1, 1, VECTOR{1, 2, 3});
    CHECK(field.SAVE(folder.PATH("field.txt"), {10, 0.5, -1}));
    CHECK(folder.GET("field.txt").find("<2, 1, 1> <10, 1, -3>\n") != std::string::npos);
}

TEST_CASE("numbers that are none come back as they were") {
    CAPTURE console;
    TEMPORARY_FOLDER folder;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 1, 1, 1), back(VECTOR_FLOAT);
    field.PUT(1, 1, 1, VECTOR{REALMAX, -REALMAX, std::numeric_limits<REAL>::quiet_NaN()});
    CHECK(field.SAVETXT(folder.PATH("field.txt")));
    CHECK(back.LOADTXT(folder.PATH("field.txt")));
    const VECTOR v = back.GET(1, 1, 1);
    CHECK(v.x == REALMAX);
    CHECK(v.y == -REALMAX);
    CHECK(v.z != v.z);
}

TEST_CASE("lines alone make a field up to their largest positions") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field;
    CHECK(Read(field, "# comment 1 2 3 4 5 6\n1 2 1 0.5 0 0\n<3,1,2> <0,0,-4>\nno numbers\n7 8\n"));
    CHECK(field.SIZE() == VECTORNAT{3, 2, 2});
    CHECK(field.GET(1, 2, 1) == VECTOR{0.5, 0, 0});
    CHECK(field.GET(3, 1, 2) == VECTOR{0, 0, -4});
    CHECK(field.COUNT(VZERO) == 10);
}

TEST_CASE("a line outside the told size is dropped") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field;
    CHECK(Read(field, "size: <2, 2, 2>\n<5, 1, 1> <1, 1, 1>\n<0, 1, 1> <1, 1, 1>\n"));
    CHECK(field.SIZE() == VECTORNAT{2, 2, 2});
    CHECK(field.COUNT(VZERO) == 8);
}

TEST_CASE("a text without vectors gives an empty field and tells so") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 2, 2);
    for (const char *garbage :
         {"", "hello", "\n\n\n", "1 2 3 4 5", "-1 0 5 1 2 3\n", "<<<>>>--..ee"}) {
        console.CLEAR();
        CHECK_FALSE(Read(field, garbage));
        CHECK(console.TEXT() == "  No vectors found! Create empty field.\n");
        CHECK_FALSE(field.ISNOTEMPTY());
    }
}

TEST_CASE("some bytes that claim a huge field allocate none") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field;
    CHECK_FALSE(Read(field, "size: <32767, 32767, 32767>\n"));
    CHECK(console.CONTAINS("  Bad dim size <32767, 32767, 32767>! Create empty field.\n"));
    CHECK_FALSE(Read(field, "size: <1e300, 1, 1>\n1 1 1 1 1 1\n"));
    CHECK_FALSE(Read(field, "size: <0, 1, 1>\n1 1 1 1 1 1\n"));
    CHECK_FALSE(Read(field, "100000 100000 100000 1 1 1\n"));
    CHECK_FALSE(field.ISNOTEMPTY());
}

TEST_CASE("a number out of range in a text reads as zero") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field;
    CHECK(Read(field, "1 1 1 1e999 -5 1e-999\n"));
    CHECK(field.GET(1, 1, 1) == VECTOR{0, -5, 0});
}

TEST_CASE("LOADTXT of a field without storage prints Unknown vectorfield") {
    CAPTURE console;
    TEMPORARY_FOLDER folder;
    T3D_VECTOR_ANALYSIS field;
    CHECK_FALSE(field.LOADTXT(folder.PUT("a.txt", "1 1 1 1 1 1\n")));
    CHECK(console.TEXT() == "Unknown vectorfield!\n");
}

TEST_CASE("numbers with decimals are rounded") {
    std::string text;
    APPEND_NUMBER(text, 2.0 / 3, 5);
    CHECK(text == "0.66667");
    text.clear();
    APPEND_NUMBER(text, -0.0);
    CHECK(text == "0");
}
