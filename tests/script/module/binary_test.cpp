#include "foundation/base/number_text.hpp"
#include "script/module/binary_text.hpp"
#include "script/module/use_all.hpp"
#include "text_script.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
std::string ValueOf(const char *word, std::string bytes) {
    BINARY_FORM form;
    std::string value;
    REQUIRE(BINARY_FORM_OF(word, form));
    REQUIRE(static_cast<NAT>(bytes.size()) == form.bytes * form.parts);
    PUT_BINARY_VALUE(value, form, bytes.data());
    return value;
}
} // namespace

TEST_CASE("whole numbers of 1, 2, 4 and 8 bytes are read with and without a sign") {
    CHECK(ValueOf("byte", "\xFE") == "254");
    CHECK(ValueOf("signbyte", "\xFE") == "-2");
    CHECK(ValueOf("word", "\xFE\xFF") == "65534");
    CHECK(ValueOf("signword", "\xFE\xFF") == "-2");
    CHECK(ValueOf("longword", "\x02\x01\xFF\xFF") == "4294902018");
    CHECK(ValueOf("signlongword", "\x02\x01\xFF\xFF") == "-65278");
    CHECK(ValueOf("quadword", std::string(8, '\xFF')) == "18446744073709551615");
    CHECK(ValueOf("signquadword", std::string(8, '\xFF')) == "-1");
    CHECK(ValueOf("SignWord", std::string("\0\x80", 2)) == "-32768");
}

TEST_CASE("big in front of a form turns its bytes round") {
    CHECK(ValueOf("bigword", "\x01\x02") == "258");
    CHECK(ValueOf("bigsignlongword", "\xFF\xFF\xFF\xFE") == "-2");
    CHECK(ValueOf("bigsingle", std::string("\x3F\xC0\0\0", 4)) == "1.5");
    CHECK(ValueOf("bigdouble", std::string("\x40\x09\x21\xFB\x54\x44\x2D\x18", 8)) ==
          "3.141592653589793");
    CHECK(ValueOf("bigextended", std::string("\xC0\0\xA0\0\0\0\0\0\0\0", 10)) == "-2.5");
}

TEST_CASE("reals are written with the digits that give the same value again") {
    CHECK(ValueOf("single", std::string("\xCD\xCC\xCC\x3D", 4)) == "0.1");
    CHECK(ValueOf("single", std::string("\0\0\x80\xFF", 4)) == "-inf");
    CHECK(ValueOf("double", std::string("\x9A\x99\x99\x99\x99\x99\xB9\x3F", 8)) == "0.1");
    CHECK(ValueOf("double", std::string("\x48\xAF\xBC\x9A\xF2\xD7\x7A\x3E", 8)) == "1e-07");
}

TEST_CASE("an extended real has 15 bits of exponent and 64 of mantissa") {
    CHECK(ValueOf("extended", std::string("\0\0\0\0\0\0\0\x80\xFF\x3F", 10)) == "1");
    CHECK(ValueOf("extended", std::string("\0\0\0\0\0\0\0\xA0\x00\xC0", 10)) == "-2.5");
    CHECK(ValueOf("extended", std::string(10, '\0')) == "0");
    CHECK(ValueOf("extended", std::string("\0\0\0\0\0\0\0\x80\xFF\x7F", 10)) == "inf");
    CHECK(ValueOf("extended", std::string("\0\0\0\0\0\0\0\xC0\xFF\x7F", 10)) == "nan");
}

TEST_CASE("the parts of a colour are joined by commas, a byte may be hex digits") {
    CHECK(ValueOf("rgb", "\x01\x02\x03") == "1,2,3");
    CHECK(ValueOf("rgba", "\x01\x02\x03\xFF") == "1,2,3,255");
    CHECK(ValueOf("wordrgb", std::string("\x01\0\0\x01\x02\0", 6)) == "1,256,2");
    CHECK(ValueOf("bigwordrgba", std::string("\0\x01\x01\0\0\x02\0\x03", 8)) == "1,256,2,3");
    CHECK(ValueOf("hex", "\x0F") == "0F");
}

TEST_CASE("without decimal points the parts of a colour are parted by semicolons") {
    FORMAT.DECIMAL = false;
    CHECK(ValueOf("rgb", "\x01\x02\x03") == "1;2;3");
    CHECK(ValueOf("bigsingle", std::string("\x3F\xC0\0\0", 4)) == "1,5");
    FORMAT = TFORMAT{};
}

TEST_CASE("unknown forms are refused") {
    BINARY_FORM form;
    for (const char *word : {"", "big", "bigbyte", "bigrgb", "bighex", "words", "big word"})
        CHECK_FALSE(BINARY_FORM_OF(word, form));
}

TEST_CASE("bin.to.txt writes one value a line, or so many parted by tabs") {
    TEXT_SCRIPT script;
    script.folder.WRITE("a.raw", "HEAD\x01\x02\x03\x04\x05");
    CHECK(script.RUN("bin.to.txt a.raw byte b.txt 6\nbinary.to.text a.raw byte c.txt 4 2") == "");
    CHECK(script.folder.READ("b.txt") == "3\n4\n5\n");
    CHECK(script.folder.READ("c.txt") == "1\t2\n3\t4\n5\n");
}

TEST_CASE("bytes at the end that are no whole value are told and left out") {
    TEXT_SCRIPT script;
    script.folder.WRITE("a.raw", std::string("\x01\0\x02\0\x03", 5));
    CHECK(script.RUN("bin.to.txt a.raw word b.txt") ==
          "  The last 1 bytes of (a.raw) are no whole value!\n");
    CHECK(script.folder.READ("b.txt") == "1\n2\n");
    CHECK(script.RUN("bin.to.txt a.raw word c.txt 1 2") == "");
    CHECK(script.folder.READ("c.txt") == "512\t768\n");
}

TEST_CASE("a header larger than the file is told, one of all its bytes leaves no values") {
    TEXT_SCRIPT script;
    script.folder.WRITE("a.raw", "1234");
    CHECK(script.RUN("bin.to.txt a.raw byte b.txt 5") ==
          "  File (a.raw) is smaller than its header (5 bytes)!\n");
    CHECK_FALSE(script.folder.HAS("b.txt"));
    CHECK(script.RUN("bin.to.txt a.raw byte b.txt 4") == "");
    CHECK(script.folder.READ("b.txt") == "");
}

TEST_CASE("what bin.to.txt cannot mean stops the script") {
    TEXT_SCRIPT script;
    script.folder.WRITE("a.raw", "1234");
    const std::string place = " in line 1 (test.macro)!\n";
    CHECK(script.RUN("bin.to.txt a.raw words b.txt") == "Error (unknown form: words)" + place);
    CHECK(script.RUN("bin.to.txt a.raw byte b.txt -1") == "Error (header below 0: -1)" + place);
    CHECK(script.RUN("bin.to.txt a.raw byte b.txt 0 0") ==
          "Error (values of a line below 1: 0)" + place);
    CHECK(script.RUN("bin.to.txt a.raw byte") ==
          "Parameter error! Please use min. 3 parameters in line 1 (test.macro).\n");
    CHECK(script.RUN("bin.to.txt a b c 1 2 3") ==
          "Parameter error! Please use max. 5 parameters in line 1 (test.macro).\n");
    CHECK(script.folder.FILES() == 1);
}

TEST_CASE("the usage lines of the binary commands run") {
    TEXT_SCRIPT script;
    script.folder.WRITE("scan.raw", std::string(356, '\0'));
    for (const COMMAND_ROW &row : BINARY_SET.rows) {
        INFO(std::string(row.usage));
        CHECK(script.RUN(std::string(row.usage)) == "");
    }
    CHECK(script.folder.READ("values.txt") == "0\n");
}
