#include "foundation/base/number_print.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/base/random.hpp"

#include <cmath>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
std::string S(const UTF16 &text) { return GETUTF8(text); }

// A changed FORMAT while it lives.
struct KEEP_FORMAT {
    TFORMAT before = FORMAT;
    ~KEEP_FORMAT() { FORMAT = before; }
};
} // namespace

TEST_CASE("GETSTRING of a real removes the digit noise at its end") {
    CHECK(S(GETSTRING(1.1)) == "1.1"); // 1.1000000000000001
    CHECK(S(GETSTRING(0.1)) == "0.1");
    CHECK(S(GETSTRING(0.1 + 0.2)) == "0.3");
    CHECK(S(GETSTRING(123.456)) == "123.456");
    CHECK(S(GETSTRING(-0.25)) == "-0.25");
    CHECK(S(GETSTRING(2.3)) == "2.2999999999999998"); // no zeros stand before the noise
    CHECK(S(GETSTRING(1.0 / 3)) == "0.3333333333333333");
}

TEST_CASE("GETSTRING of a whole real has no point") {
    CHECK(S(GETSTRING(0.0)) == "0");
    CHECK(S(GETSTRING(100.0)) == "100");
    CHECK(S(GETSTRING(-5.0)) == "-5");
    CHECK(S(GETSTRING(99999999999999.0)) == "99999999999999");
}

TEST_CASE("GETSTRING of minus zero is 0") {
    CHECK(S(GETSTRING(-0.0)) == "0");
    CHECK(S(GETSTRING(-1e-30)) == "0");
}

TEST_CASE("a point in the second half of the text keeps its zeros") {
    // 15 digits, the point at 16, length 32: 2 * 16 is not below 32.
    CHECK(S(GETSTRING(123456789012345.0)) == "123456789012345.0000000000000000");
    CHECK(S(GETSTRING(12345678901234.0)) == "12345678901234");
    CHECK(S(GETSTRING(-12345678901234.0)) == "-12345678901234.0000000000000000");
    CHECK(S(GETSTRING(-1234567890123.0)) == "-1234567890123");
    CHECK(S(GETSTRING(1e20)) == "100000000000000000000.0000000000000000");
}

TEST_CASE("a printed real has 17 significant digits") {
    CHECK(S(GETSTRING(1234567890123456789.0)) == "1234567890123456800.0000000000000000");
    CHECK(S(GETSTRING(12345.678901234567)) == "12345.678901234567");
}

TEST_CASE("up to two digits behind a run of zeros count as noise") {
    CHECK(S(GETSTRING(1e-16)) == "0");   // 0.0000000000000001
    CHECK(S(GETSTRING(1.2e-15)) == "0"); // 0.0000000000000012
    CHECK(S(GETSTRING(1e-15)) == "0.000000000000001");
    CHECK(S(GETSTRING(1.23e-14)) == "0.0000000000000123");
    CHECK(S(GETSTRING(0.034, 3)) == "0");
    CHECK(S(GETSTRING(1.205, 3)) == "1.2");
}

TEST_CASE("a value without a number prints as 0") {
    CHECK(S(GETSTRING(REALMAX)) == "0");
    CHECK(S(GETSTRING(-REALMAX)) == "0");
    CHECK(S(GETSTRING(std::nan(""))) == "0");
    CHECK(S(GETSTRING(std::nan(""), 2)) == "0");
    CHECK(S(GETSTRING(REALMAX, -1)) == "0");
}

TEST_CASE("GETSTRING with decimals prints so many") {
    CHECK(S(GETSTRING(1.5, 2)) == "1.50"); // the point at 2, length 4: 2 * 2 is not below 4
    CHECK(S(GETSTRING(1.5, 3)) == "1.5");
    CHECK(S(GETSTRING(2.345678, 2)) == "2.35");
    CHECK(S(GETSTRING(12.0, 0)) == "12");
    CHECK(S(GETSTRING(-0.25, 0)) == "0");
    CHECK(S(GETSTRING(1000.0, 2)) == "1000.00");
    CHECK(S(GETSTRING(123456.75, 1)) == "123456.8");
    CHECK(S(GETSTRING(1e15, 2)) == "1000000000000000.00");
}

TEST_CASE("any number of decimals is safe") {
    CHECK(S(GETSTRING(1.0, NATMAX)) == "1");
    CHECK(S(GETSTRING(2.3, 1000)) == "2.2999999999999998");
    CHECK(S(GETSTRING(1e300, NATMAX)).size() == 301);
    CHECK(S(GETSTRING(5e-324, NATMAX)).substr(0, 4) == "0.00");
    CHECK(S(GETSTRING(1250.0, -1)) == "1.25E3");
    CHECK(S(GETSTRING(1250.0, NATMIN)) == "1.25E3");
}

TEST_CASE("the quick print of whole values equals the long one") {
    RESTART_RANDOM(1);
    RANDOM_STREAM random(1, 1);
    for (int round = 0; round < 20000; ++round) {
        const NAT bits = random.BELOW(60);
        const REAL value = static_cast<REAL>(random.BELOW(NAT{1} << bits) - (NAT{1} << bits) / 2);
        std::string quick, slow;
        PRINT_PLAIN(quick, value);
        PRINT_PLAIN(slow, value, 16);
        REQUIRE(quick == slow);
    }
}

TEST_CASE("a decimal comma when DECIMAL is not set") {
    const KEEP_FORMAT keep;
    FORMAT.DECIMAL = false;
    CHECK(S(GETSTRING(1.5)) == "1,5");
    CHECK(S(GETSTRING(1.25, 1)) == "1,2");
    CHECK(S(GETSTRING(VECTOR{1.5, 2, 3})) == "<1,5; 2; 3>");
    CHECK(S(GETSTRING(1250.0, -1)) == "1,25E3");
}

TEST_CASE("GETSHORT has decimals by magnitude") {
    CHECK(S(GETSHORT(0.0)) == "0");
    CHECK(S(GETSHORT(123456.7)) == "123457");
    CHECK(S(GETSHORT(12345.67)) == "12345.7");
    CHECK(S(GETSHORT(1234.567)) == "1234.57");
    CHECK(S(GETSHORT(123.4567)) == "123.457");
    CHECK(S(GETSHORT(12.34567)) == "12.3457");
    CHECK(S(GETSHORT(1.234567)) == "1.23457");
    CHECK(S(GETSHORT(0.12345678)) == "0.123457");
    CHECK(S(GETSHORT(0.012345678)) == "0.0123457");
    CHECK(S(GETSHORT(0.0012345678)) == "0.00123457");
    CHECK(S(GETSHORT(0.00012345678)) == "0.000123457");
    CHECK(S(GETSHORT(0.000012345678)) == "0.0000123457");
    CHECK(S(GETSHORT(0.0000012345678)) == "0.00000123457");
    CHECK(S(GETSHORT(0.00000012345678)) == "0.00000012346"); // 11 decimals are the most
    CHECK(S(GETSHORT(0.1)) == "0.1");
    CHECK(S(GETSHORT(99999.96)) == "100000.0"); // 1 decimal by the value before it is rounded
    CHECK(S(GETSHORT(-1.5)) == "-1.5");
    CHECK(S(GETSHORT(100.0)) == "100.000"); // the point stands behind the first half
}

TEST_CASE("GETSHORT with places gives significant places") {
    CHECK(S(GETSHORT(1.23456, 3)) == "1.23");
    CHECK(S(GETSHORT(0.123456, 3)) == "0.123");
    CHECK(S(GETSHORT(-12.3456, 3)) == "-12.3");
    CHECK(S(GETSHORT(0.00123456, 3)) == "0.00123");
    CHECK(S(GETSHORT(123.456, 3)) == "123");
    CHECK(S(GETSHORT(1.1, 0)) == "1.1");
    CHECK(S(GETSHORT(1.1, -5)) == "1.1");
    CHECK(S(GETSHORT(0.0, 3)) == "0");
    CHECK(S(GETSHORT(1e-12, 5)) == "0"); // below 1e-9: 11 decimals
    CHECK(S(GETSHORT(-1e-20, 5)) == "0");
}

TEST_CASE("more digits before the point than places give the exponent form") {
    CHECK(S(GETSHORT(123456789.0, 3)) == "1.23E8");
    CHECK(S(GETSHORT(-1234.0, 2)) == "-1.2E3");
    CHECK(S(GETSHORT(100000000.0, 3)) == "1E8");
    CHECK(S(GETSHORT(1e300, 1)) == "1E300");
}

TEST_CASE("SCIENTIFICFORM shortens a number without changing its value") {
    CHECK(S(SCIENTIFICFORM("0.25")) == "25E-2");
    CHECK(S(SCIENTIFICFORM("-0.25")) == "-25E-2");
    CHECK(S(SCIENTIFICFORM("0.0012")) == "12E-4");
    CHECK(S(SCIENTIFICFORM("1000")) == "1E3");
    CHECK(S(SCIENTIFICFORM("-1200")) == "-12E2");
    CHECK(S(SCIENTIFICFORM("12.5")) == "12.5");
    CHECK(S(SCIENTIFICFORM("12.000")) == "12");
    CHECK(S(SCIENTIFICFORM("1200.00")) == "12E2");
    CHECK(S(SCIENTIFICFORM("7")) == "7");
    CHECK(S(SCIENTIFICFORM("0")) == "0");
    CHECK(S(SCIENTIFICFORM("123")) == "123");
    CHECK(S(SCIENTIFICFORM("")) == "");
    CHECK(S(SCIENTIFICFORM("1E50")) == "1E50");
    CHECK(S(SCIENTIFICFORM("00")) == "00");
}

TEST_CASE("the E form reads back to the same value") {
    const KEEP_FORMAT keep;
    FORMAT.SCIENTIFIC = true;
    for (const REAL value : {0.25, -0.25, 0.00125, 1000.0, -1200.0, 12.5, 1e20, 7.0, 0.0, 0.1})
        CHECK(GETREAL(GETSTRING(value)) == value);
    CHECK(S(GETSTRING(1000.0)) == "1E3");
    CHECK(S(GETSTRING(0.25)) == "25E-2");
    CHECK(S(GETSTRING(NAT{1200})) == "12E2");
    CHECK(S(GETSTRING(1e20)) == "1E20");
}

TEST_CASE("GETSTRING of a whole number groups its digits when DIGIT is set") {
    const KEEP_FORMAT keep;
    CHECK(S(GETSTRING(NAT{1234567})) == "1234567");
    FORMAT.DIGIT = true;
    CHECK(S(GETSTRING(NAT{1234567})) == "1,234,567");
    CHECK(S(GETSTRING(123)) == "123");
    CHECK(S(GETSTRING(-123)) == "-123");
    CHECK(S(GETSTRING(-1234)) == "-1,234");
    CHECK(S(GETSTRING(1234567.0)) == "1234567"); // reals are not grouped
    FORMAT.DECIMAL = false;
    CHECK(S(GETSTRING(NAT{1234567})) == "1.234.567");
    FORMAT.SCIENTIFIC = true;
    CHECK(S(GETSTRING(1000)) == "1E3");
}

TEST_CASE("GETSTRING knows the ends of the whole numbers") {
    CHECK(S(GETSTRING(NATMIN)) == "-9223372036854775808");
    CHECK(S(GETSTRING(std::uint64_t{18446744073709551615U})) == "18446744073709551615");
    CHECK(S(GETSTRING_UNSIGNED(18446744073709551615U, true)) == "18,446,744,073,709,551,615");
    CHECK(S(GETSTRING_UNSIGNED(999, true)) == "999");
    CHECK(S(GETSTRING(std::uint64_t{1234567}, true)) == "1,234,567");
}

TEST_CASE("GETSTRING of a boolean is true or false") {
    CHECK(S(GETSTRING(true)) == "true");
    CHECK(S(GETSTRING(false)) == "false");
}

TEST_CASE("GETHEX writes capital digits, padded to the width") {
    CHECK(S(GETHEX(255)) == "FF");
    CHECK(S(GETHEX(0)) == "0");
    CHECK(S(GETHEX(0, 4)) == "0000");
    CHECK(S(GETHEX(0xABC, 6)) == "000ABC");
    CHECK(S(GETHEX(-255)) == "-FF");
    CHECK(S(GETHEX(-255, 6)) == "-000FF");
    CHECK(S(GETHEX(NATMIN)) == "-8000000000000000");
    CHECK(S(GETHEX(255, NATMIN)) == "FF");
}

TEST_CASE("GETHEX limits the value to a number of digits") {
    CHECK(S(GETHEX(300, 2, 2)) == "FF");
    CHECK(S(GETHEX(-300, 3, 2)) == "-FF");
    CHECK(S(GETHEX(17, 2, 2)) == "11");
    CHECK(S(GETHEX(NATMAX, 1, 16)) == "7FFFFFFFFFFFFFFF");
    CHECK(S(GETHEX(5, 1, 0)) == "0");
    CHECK(S(GETHEX(5, 1, -1)) == "0");
}

TEST_CASE("GETPREFIX scales by thousands") {
    CHECK(S(GETPREFIX(999, 1, "B")) == "999 B");
    CHECK(S(GETPREFIX(1000, 1, "B")) == "1.0 kB");
    CHECK(S(GETPREFIX(1234, 1, "B")) == "1.2 kB");
    CHECK(S(GETPREFIX(2.5e6, 1, "B")) == "2.5 MB");
    CHECK(S(GETPREFIX(3.21e9, 2, "B")) == "3.21 GB");
    CHECK(S(GETPREFIX(4e12, 0, "B")) == "4 TB");
    CHECK(S(GETPREFIX(5e15, 0, "B")) == "5 PB");
    CHECK(S(GETPREFIX(6e18, 0, "B")) == "6 EB");
    CHECK(S(GETPREFIX(0, 0, "")) == "0 ");
}

TEST_CASE("a second PUSH overwrites the first saved copy") {
    const KEEP_FORMAT keep;
    FORMAT.LEADING = 1;
    FORMAT.PUSH();
    FORMAT.LEADING = 2;
    FORMAT.PUSH();
    FORMAT.LEADING = 3;
    FORMAT.POP();
    CHECK(FORMAT.LEADING == 2);
    FORMAT.POP();
    CHECK(FORMAT.LEADING == 2);
}

TEST_CASE("the defaults of FORMAT") {
    const TFORMAT format;
    CHECK_FALSE(format.SCIENTIFIC);
    CHECK(format.DECIMAL);
    CHECK_FALSE(format.DIGIT);
    CHECK(format.LEADING == 0);
    CHECK(format.TRAILING == 0);
    CHECK(format.DEGREE);
    CHECK_FALSE(format.VECTOR);
    CHECK_FALSE(format.MATRIX);
    CHECK(format.SORTING);
    CHECK(format.ALIGN);
}
