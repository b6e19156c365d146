#include "script/file/unicode_text.hpp"

#include "script/file/file_table.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("a character becomes one to four bytes of UTF-8") {
    std::string text;
    for (const std::uint32_t code : {0x41U, 0xB5U, 0x20ACU, 0x1F42DU, 0x10FFFFU})
        APPEND_UTF8(text, code);
    CHECK(text == "A\xC2\xB5\xE2\x82\xAC\xF0\x9F\x90\xAD\xF4\x8F\xBF\xBF");
}

TEST_CASE("16-bit units are read in both orders, pairs of them as one character") {
    using namespace std::string_view_literals;
    const auto little = "\xFF\xFE\x35\x00\xB5\x00\x3D\xD8\x2D\xDC"sv;
    const auto big = "\xFE\xFF\x00\x35\x00\xB5\xD8\x3D\xDC\x2D"sv;
    CHECK(HAS_UNIT_MARK(little));
    CHECK(HAS_UNIT_MARK(big));
    CHECK_FALSE(HAS_UNIT_MARK("\xEF\xBB\xBF"));
    for (const std::string_view bytes : {little, big})
        CHECK(UTF8_OF_UNITS(bytes) == "5\xC2\xB5\xF0\x9F\x90\xAD");
}

TEST_CASE("half of a pair of 16-bit units is a question mark and an odd byte nothing") {
    using namespace std::string_view_literals;
    CHECK(UTF8_OF_UNITS("\xFE\xFF\xD8\x3D\x00\x41\xDC\x2D\x00"sv) == "?A?");
    CHECK(UTF8_OF_UNITS("\xFE\xFF\xD8\x3D"sv) == "?");
}

TEST_CASE("a table in 16-bit units keeps characters that take two of them") {
    using namespace std::string_view_literals;
    TFILETABLE table;
    CHECK(table.LOADBYTES("\xFE\xFF\xD8\x3D\xDC\x2D\x00\t\x00\x31\x00\n"sv));
    CHECK(table.GETVIEW(1, 1) == "\xF0\x9F\x90\xAD");
    CHECK(table.GETVIEW(2, 1) == "1");
}
