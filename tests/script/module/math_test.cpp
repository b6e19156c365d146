#include "script/module/math_parameters.hpp"
#include "script/module/math_run.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("the commands of the number format set and show its fields") {
    MATH_RUN run;
    run.RUN("math.scientific 1\nmath.digit 3\nmath.leading 4\nmath.trailing -5\nmath.degree 0\n"
            "math.vector yes\nmath.matrix on\n");
    CHECK(FORMAT.SCIENTIFIC);
    CHECK(FORMAT.DIGIT);
    CHECK(FORMAT.LEADING == 4);
    CHECK(FORMAT.TRAILING == -5);
    CHECK_FALSE(FORMAT.DEGREE);
    CHECK(FORMAT.VECTOR);
    CHECK(FORMAT.MATRIX);
    CHECK(run.VALUE("math.scientific") == "1");
    CHECK(run.VALUE("math.digit") == "1");
    CHECK(run.VALUE("math.leading") == "4");
    CHECK(run.VALUE("math.trailing") == "-5");
    CHECK(run.VALUE("math.degree") == "0");
    CHECK(run.VALUE("math.vector") == "1");
    CHECK(run.VALUE("math.matrix") == "1");
    CHECK(run.VALUE("math.decimal") == "1");
    run.RUN("math.digit 0\nmath.scientific false\n");
    CHECK_FALSE(FORMAT.DIGIT);
    CHECK_FALSE(FORMAT.SCIENTIFIC);
}

TEST_CASE("counts of the number format stay within 32 bits") {
    MATH_RUN run;
    run.RUN("math.leading 99999999999\nmath.trailing -99999999999\n");
    CHECK(FORMAT.LEADING == 2147483647);
    CHECK(FORMAT.TRAILING == -2147483647 - 1);
}

TEST_CASE("a command of the number format takes one parameter and its reading none") {
    MATH_RUN run;
    CHECK(run.RUN("math.decimal\n") ==
          "Parameter error! Please use one parameter in line 1 (test.macro).\n");
    CHECK(run.RUN("a := math.decimal 1\n") == "Parameter error! No parameter needed.\n");
}

TEST_CASE("the short E form never changes a value") {
    MATH_RUN run;
    FORMAT.SCIENTIFIC = true;
    CHECK(run.VALUE("min 0.25") == "25E-2");
    CHECK(run.VALUE("min 0.001") == "1E-3");
    CHECK(run.VALUE("min -0.5") == "-5E-1");
    CHECK(run.VALUE("min 1200") == "12E2");
    CHECK(run.VALUE("min 12.5") == "12.5");
    for (const char *text : {"0.25", "0.001", "-0.0125", "1200", "12.5", "0"})
        CHECK(GETREAL(run.VALUE(std::string("min ") + text)) == GETREAL(text));
}

TEST_CASE("named angles are known in every run") {
    MATH_RUN run;
    for (int pass = 1; pass <= 2; ++pass) {
        for (const char *name : {"math.2*pi", "math.360°"})
            CHECK(GETREAL(run.VALUE(name)) == 2 * PI);
        for (const char *name : {"math.pi", "math.180°", "MATH.PI"})
            CHECK(GETREAL(run.VALUE(name)) == PI);
        for (const char *name : {"math.pi/2", "math.90°"})
            CHECK(GETREAL(run.VALUE(name)) == PI / 2);
        for (const char *name : {"math.pi/4", "math.45°"})
            CHECK(GETREAL(run.VALUE(name)) == PI / 4);
    }
    run.engine.CLEAR();
    CHECK(GETREAL(run.engine.GETCONSTANTVALUE("math.pi")) == PI);
}

TEST_CASE("an @ before a named angle takes the longer name") {
    MATH_RUN run;
    CHECK(run.RUN("print \"@math.pi/2\"\n") == "1.5707963267948966\n");
    CHECK(run.RUN("print \"@math.pi/4\"\n") == "0.7853981633974483\n");
    CHECK(run.RUN("print \"@math.pi\"\n") == "3.1415926535897931\n");
}

TEST_CASE("named angles follow the decimal sign unless the script has set them") {
    MATH_RUN run;
    CHECK(run.RUN("math.pi/2 := 7\nmath.decimal 0\nprint math.pi\nprint math.pi/2\n"
                  "stack : math.180° 2 /\na := stack\nprint a\nmath.decimal 1\nprint math.pi\n") ==
          "3,1415926535897931\n7\n1,5707963267948966\n3.1415926535897931\n");
}

TEST_CASE("norms divide by the length, the smallest and the largest component that is given") {
    MATH_RUN run;
    CHECK(run.VALUE("math.norm <0, 3, 4>") == "<0, 0.6, 0.8>");
    CHECK(run.VALUE("math.minnorm <2, 4, 6>") == "<1, 2, 3>");
    CHECK(run.VALUE("math.maxnorm <1, 2, 4>") == "<0.25, 0.5, 1>");
    CHECK(run.VALUE("math.maxnorm <-1, -2, -4>") == "<1, 2, 4>");
    CHECK(run.VALUE("math.minnorm <2, 4, 6, 8>") == "<1, 2, 3, 4>");
    CHECK(run.VALUE("math.norm -5") == "-1");
    CHECK(run.VALUE("math.maxnorm -5") == "1");
}

TEST_CASE("norms by zero give zero") {
    MATH_RUN run;
    CHECK(run.VALUE("math.norm <0, 0, 0>") == "0");
    CHECK(run.VALUE("math.minnorm <0, 1, 2>") == "0");
    CHECK(run.VALUE("math.maxnorm <-1, 0>") == "0");
}

TEST_CASE("norms and lengths of several vectors are joined with a blank") {
    MATH_RUN run;
    CHECK(run.VALUE("math.norm <5, 0> <0, 7>") == "1 <0, 1>");
    CHECK(run.VALUE("math.length <3, 4> 7 <1, 1, 1, 1>") == "5 7 2");
    CHECK(run.RUN("a := math.length\n") ==
          "Parameter error! Please use min. one parameter in line 1 (test.macro).\n");
}

TEST_CASE("results that no longer fit a value are left out whole and told") {
    MATH_RUN run;
    std::string vectors, lengths;
    for (int i = 0; i < 130; ++i)
        vectors += " <3, 4>";
    for (int i = 0; i < 127; ++i) // 127 digits with 126 blanks between are 253 units
        lengths += i > 0 ? " 5" : "5";
    CHECK(run.VALUE("math.length" + vectors) ==
          "  A value holds only 127 of 130 results!\n" + lengths);
    CHECK(run.VALUE("matrix.transform" + vectors + " (1,0,0;0,1,0;0,0,1)")
              .starts_with("  A value holds only 25 of 130 results!\n<3, 4, 0> <3, 4, 0>"));
    CHECK(run.engine.GETCONSTANTVALUE("v1").LENGTH() == 25 * 9 + 24);
}

TEST_CASE("math.angle is the angle of two vectors in radians") {
    MATH_RUN run;
    CHECK(GETREAL(run.VALUE("math.angle <1, 0> <0, 2>")) == doctest::Approx(PI / 2));
    CHECK(GETREAL(run.VALUE("math.angle <1, 0, 0> <-3, 0, 0>")) == doctest::Approx(PI));
    CHECK(GETREAL(run.VALUE("math.angle <1, 0> <1, 1>")) == doctest::Approx(PI / 4));
    CHECK(run.VALUE("math.angle <1, 2, 3> <1, 2, 3>") == "0");
    CHECK(run.VALUE("math.angle <1, 2, 3> 0") == "0");
    CHECK(run.RUN("a := math.angle 1\n") ==
          "Parameter error! Please use 2 parameters in line 1 (test.macro).\n");
}

TEST_CASE("numbers in a text are counted as the readers find them") {
    CHECK(COUNT_NUMBERS("", 9) == 0);
    CHECK(COUNT_NUMBERS("no digits", 9) == 0);
    CHECK(COUNT_NUMBERS("5", 9) == 1);
    CHECK(COUNT_NUMBERS("<1, -2, 3.5>", 9) == 3);
    CHECK(COUNT_NUMBERS("(<1, 2, 3>;<4, 5, 6>;<7, 8, 9>)", 9) == 9);
    CHECK(COUNT_NUMBERS("1 2 3 4 5", 4) == 4);
    CHECK(COUNT_NUMBERS("2*3+4, 90°", 9) == 2);
}

TEST_CASE("the usage of every command of the math module works as it stands") {
    MATH_RUN run;
    for (const COMMAND_SET *set : {&MATH_SET, &STACK_SET, &QUAT_SET, &MATRIX_SET})
        for (const COMMAND_ROW &row : set->rows) {
            CAPTURE(row.usage);
            CHECK(row.usage.find(std::string(set->nameSpace) + std::string(row.name)) !=
                  row.usage.npos);
            CHECK(run.RUN(std::string(row.usage) + "\n") == "");
            CHECK(run.engine.STATUS.EMPTY());
            FORMAT = run.before;
            if (row.kind != COMMAND_KIND::FUNCTION) continue;
            const std::string expression(row.usage.substr(row.usage.find(":= ") + 3));
            CHECK(run.VALUE(expression) != "");
        }
}
