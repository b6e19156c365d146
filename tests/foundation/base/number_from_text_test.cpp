#include "foundation/base/number_text.hpp"

#include <cmath>

#include <doctest/doctest.h>

using namespace morvane;
using doctest::Approx;

namespace {
// FORMAT.DECIMAL false while it lives.
struct COMMA {
    COMMA() { FORMAT.DECIMAL = false; }
    ~COMMA() { FORMAT.DECIMAL = true; }
};
} // namespace

TEST_CASE("GETREAL reads plain numbers") {
    CHECK(GETREAL("12") == 12);
    CHECK(GETREAL("-12.5") == -12.5);
    CHECK(GETREAL("1e3") == 1000);
    CHECK(GETREAL("1E-2") == 0.01);
    CHECK(GETREAL("1e+2") == 100);
    CHECK(GETREAL("5.") == 5);
    CHECK(GETREAL("0.1") == 0.1);
    CHECK(GETREAL("123456789012345678") == 123456789012345678.0);
    CHECK(GETREAL("2.2250738585072014e-308") == 2.2250738585072014e-308);
}

TEST_CASE("an empty text and a text without a number are 0") {
    CHECK(GETREAL("") == 0);
    CHECK(GETREAL("abc") == 0);
    CHECK(GETREAL("-") == 0);
    CHECK(GETREAL(".") == 0);
    CHECK(GETREAL(".abc") == 0);
    CHECK(GETNAT("") == 0);
    CHECK(GETNAT("é") == 0);
}

TEST_CASE("a leading point is skipped when a digit follows, so that .5 reads as 5") {
    CHECK(GETREAL(".5") == 5);
    CHECK(GETREAL("x .25") == 25);
    CHECK(GETREAL("-.5") == -0.5); // the minus stands first, the point belongs to the number
}

TEST_CASE("percent, degree and pi are rewritten") {
    CHECK(GETREAL("50%") == 0.5);
    CHECK(GETREAL("90°") == Approx(PI / 2).epsilon(1e-15));
    CHECK(GETREAL("π") == PI);
    CHECK(GETREAL("2*π") == 2 * PI);
    CHECK(GETREAL("100% and 7") == 1);
    CHECK(GETREAL("%5") == 0.015); // "*0.015"
}

TEST_CASE("CUTNAT does not rewrite percent, degree and pi") {
    CHECK(GETNAT("50%") == 50);
    CHECK(GETNAT("90°") == 90);
    CHECK(GETNAT("π7") == 7);
}

TEST_CASE("units with a high byte are no digits") {
    CHECK(GETREAL(UTF16(UTF16CHAR{'7', 1}) + "3") == 3);
    CHECK(GETREAL(UTF16("3") + UTF16CHAR{'7', 1}) == 3);
    CHECK(GETREAL(UTF16(UTF16CHAR{2, 0}) + "3") == 3); // a control character is not "π"
    CHECK(GETREAL(UTF16(UTF16CHAR{2, 0}) + "3 é") == 3);
    CHECK(GETREAL(UTF16(UTF16CHAR{2, 0}) + "3 €") == 3);
}

TEST_CASE("what stands before a number is dropped") {
    CHECK(GETREAL("size <12, 7>") == 12);
    CHECK(GETREAL("a=3") == 3);
}

TEST_CASE("sums and products are evaluated with the product first") {
    CHECK(GETREAL("3-1") == 2);
    CHECK(GETREAL("2*3+4") == 10);
    CHECK(GETREAL("2+3*4") == 14);
    CHECK(GETREAL("1-2-3") == -4);
    CHECK(GETREAL("-3+2") == -1);
    CHECK(GETREAL("10/4*2") == 5);
    CHECK(GETREAL("2*3*4+5*6") == 54);
}

TEST_CASE("a division by zero in an expression gives 0") {
    CHECK(GETREAL("1/0") == 0);
    CHECK(GETREAL("1/0+3") == 3);
}

TEST_CASE("a negative exponent belongs to its number") {
    CHECK(GETREAL("2*1e-2") == 0.02);
    CHECK(GETREAL("1e-2*2") == 0.02);
    CHECK(GETREAL("2*1.e-1+1") == 1.2);
    CHECK(GETREAL("2*1e+2") == 200);
}

TEST_CASE("a minus behind an operator follows the order of the rewrites") {
    CHECK(GETREAL("2*-3") == -3); // 2*+-3: the factor is empty, so 0, and -3 is added
    CHECK(GETREAL("3--1") == 2);
}

TEST_CASE("bits and comparisons are operators") {
    CHECK(GETREAL("6&3") == 2);
    CHECK(GETREAL("6|3") == 7);
    CHECK(GETREAL("6.9&3.9") == 2);
    CHECK(GETREAL("1<2") == 1);
    CHECK(GETREAL("2<=2") == 1);
    CHECK(GETREAL("2<>2") == 0);
    CHECK(GETREAL("3>2") == 1);
    CHECK(GETREAL("2>=3") == 0);
    CHECK(GETREAL("2=2") == 1);
    CHECK(GETREAL("2*3>5") == 1);
}

TEST_CASE("a two-character operator at the end makes the value 0") {
    CHECK(GETREAL("5<=") == 0);
    CHECK(GETREAL("5<>") == 0);
    CHECK(GETREAL("5>=") == 0);
}

TEST_CASE("a lone operator at the end of an expression is ignored") {
    CHECK(GETREAL("5>") == 5);
    CHECK(GETREAL("5*") == 5);
    CHECK(GETREAL("-5>") == -5);
    CHECK(GETREAL("2*3>") == 6);
    CHECK(GETNAT("5>") == 5);
}

TEST_CASE("an intermediate value goes through its printed form") {
    // 1/3 prints as 0.3333333333333333, so three times that is not 1.
    CHECK(GETREAL("1/3*3") == 0.3333333333333333 * 3);
    CHECK(GETREAL("1/1e17*1e17") == 0); // 1e-17 prints as 0
    FORMAT.SCIENTIFIC = true;
    CHECK(GETREAL("10*10+1") == 101);
    CHECK(GETREAL("1/4+1") == 1.25);
    FORMAT.SCIENTIFIC = false;
}

TEST_CASE("a long expression does not exhaust the stack") {
    std::string sum = "1", product = "1";
    for (int i = 0; i < 300000; ++i) {
        sum += "+1";
        product += "*1";
    }
    CHECK(GETREAL(sum) == 300001);
    CHECK(GETREAL(product) == 1);
    CHECK(GETREAL(std::string(300000, '-')) == 0);
    CHECK(GETREAL("7" + std::string(300000, '<')) == 0);
}

TEST_CASE("CUTREAL leaves the rest in lower case and rewritten") {
    UTF16 text("12 AB 50%");
    CHECK(CUTREAL(text) == 12);
    CHECK(text == " ab 50*0.01");
    CHECK(CUTREAL(text) == 0.5);
    CHECK(text.EMPTY());
    CHECK(CUTREAL(text) == 0);
}

TEST_CASE("CUTREAL without a number takes the whole text") {
    UTF16 text("abc é");
    CHECK(CUTREAL(text) == 0);
    CHECK(text.EMPTY());
}

TEST_CASE("CUTNAT leaves the rest in lower case") {
    UTF16 text("7% X8");
    CHECK(CUTNAT(text) == 7);
    CHECK(text == "% x8");
    CHECK(CUTNAT(text) == 8);
    CHECK(text.EMPTY());
}

TEST_CASE("bytes are cut as texts are") {
    std::string bytes = "é 50% Rest 3-1";
    CHECK(CUTREAL(bytes) == 0.5);
    CHECK(bytes == " rest 3-1");
    CHECK(CUTNAT(bytes) == 2);
    CHECK(bytes.empty());
    bytes = "90° π";
    CHECK(CUTREAL(bytes) == Approx(PI / 2).epsilon(1e-15));
    CHECK(CUTREAL(bytes) == PI);
}

TEST_CASE("GETREAL leaves the text") {
    const UTF16 text("5 A");
    CHECK(GETREAL(text) == 5);
    CHECK(text == "5 A");
}

TEST_CASE("GETNAT rounds what is no whole number, ties to even") {
    CHECK(GETNAT("1.5") == 2);
    CHECK(GETNAT("2.5") == 2);
    CHECK(GETNAT("-7") == -7);
    CHECK(GETNAT("1e3") == 1000);
    CHECK(GETNAT("7/2") == 4);
}

TEST_CASE("GETNAT knows the whole range and limits what lies outside") {
    CHECK(GETNAT("9223372036854775807") == NATMAX);
    CHECK(GETNAT("-9223372036854775808") == NATMIN);
    CHECK(GETNAT("9223372036854775806") == NATMAX - 1);
    CHECK(GETNAT("9223372036854775808") == NATMAX);
    CHECK(GETNAT("-99999999999999999999") == NATMIN);
}

TEST_CASE("a decimal comma takes the point's place when DECIMAL is not set") {
    const COMMA comma;
    CHECK(GETREAL("1,5") == 1.5);
    CHECK(GETREAL("1.5") == 1);
    CHECK(GETREAL(",5") == 5);
    CHECK(GETREAL("50%") == 0.5);
    CHECK(GETREAL("π") == PI);
    CHECK(GETREAL("1/4+0,5") == 0.75);
    CHECK(GETVECTOR("<1,5; 2; 3,25>") == VECTOR{1.5, 2, 3.25});
}

TEST_CASE("GETBYTE is limited to 0..255") {
    CHECK(GETBYTE("300") == 255);
    CHECK(GETBYTE("-3") == 0);
    CHECK(GETBYTE("17") == 17);
}

TEST_CASE("GETBOOLEAN knows words, signs and numbers") {
    for (const char *yes : {"Ja", " true ", "2", "YES", "h", "on", "OK", "1", "+", "0.7"})
        CHECK(GETBOOLEAN(yes));
    for (const char *no : {"no", "", "0", "off", "-1", "   ", "onx", "0.2"})
        CHECK_FALSE(GETBOOLEAN(no));
}

TEST_CASE("records take as many numbers as they have, and missing ones are 0") {
    CHECK(GETVECTOR("<1, 2>") == VECTOR{1, 2, 0});
    CHECK(GETVECTOR("<1, 2, 3>") == VECTOR{1, 2, 3});
    CHECK(GETVECTOR("-1 50% 2*3") == VECTOR{-1, 0.5, 6});
    CHECK(GETCOMPLEX("<1.5, -2>") == COMPLEX{1.5, -2});
    CHECK(GETHYPER("1;2;3;4") == HYPER{1, 2, 3, 4});
    CHECK(GETVECTORNAT("<1, 2.5, 3.5>") == VECTORNAT{1, 2, 4});
    CHECK(GETCOMPLEXNAT("640 480") == COMPLEXNAT{640, 480});
    CHECK(GETHYPERNAT("1 2 3") == HYPERNAT{1, 2, 3, 0});
    CHECK(GETVECTOR("") == VZERO);
    CHECK(GETSYMMATRIX3("1 2 3 4 5 6") == SYMMATRIX3{{1, 2, 3}, {4, 5, 6}});
    CHECK(GETMATRIX3("1 2 3 4 5 6 7 8 9")[2] == VECTOR{7, 8, 9});
}

TEST_CASE("the last number of a record between brackets may be negative") {
    CHECK(GETVECTOR("<1, 2, -3>") == VECTOR{1, 2, -3});
    CHECK(GETVECTOR("<1, 2, 1e-2>") == VECTOR{1, 2, 0.01});
    CHECK_FALSE(std::signbit(GETCOMPLEX("<1, -0>").y)); // 0 plus -0
}

TEST_CASE("printed records read back") {
    const VECTOR v{1.1, -2.25, 1e-7};
    CHECK(GETVECTOR(GETSTRING(v)) == v);
    const MATRIX3 m{{VECTOR{1, 2, 3}, VECTOR{4, -5, 6}, VECTOR{7, 8, 9.5}}};
    CHECK(GETMATRIX3(GETSTRING(m)) == m);
}

TEST_CASE("GETMATRIX4 takes 16 numbers, or four rows parted by semicolons") {
    const MATRIX4 whole = GETMATRIX4("1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16");
    CHECK(whole[3] == HYPER{13, 14, 15, 16});
    const MATRIX4 rows = GETMATRIX4("1 2;3;4 5 6 7;8");
    CHECK(rows[0] == HYPER{1, 2, 0, 0});
    CHECK(rows[1] == HYPER{3, 0, 0, 0});
    CHECK(rows[2] == HYPER{4, 5, 6, 7});
    CHECK(rows[3] == HYPER{8, 0, 0, 0});
}

TEST_CASE("VAL tells the position of the first bad character") {
    REAL real = 0;
    NAT nat = 0, code = 0;
    VAL("12.5", real, code);
    CHECK(real == 12.5);
    CHECK(code == 0);
    VAL("12x5", real, code);
    CHECK(code == 3);
    VAL("12x5", nat, code);
    CHECK(code == 3);
    VAL("-17", nat, code);
    CHECK(nat == -17);
    CHECK(code == 0);
    VAL("1.5", nat, code);
    CHECK(code == 2);
    VAL("", real, code);
    CHECK(code != 0);
}

TEST_CASE("VAL takes a point without digits on one side") {
    REAL real = 0;
    NAT code = 0;
    VAL("-.5", real, code);
    CHECK(real == -0.5);
    CHECK(code == 0);
    VAL("5.", real, code);
    CHECK(real == 5);
    CHECK(code == 0);
    VAL(".", real, code);
    CHECK(code != 0);
}
