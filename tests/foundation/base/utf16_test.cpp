#include "foundation/base/number_text.hpp"
#include "foundation/base/utf16.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
UTF16CHAR Unit(unsigned code) { return {static_cast<BYTE>(code), static_cast<BYTE>(code >> 8)}; }
} // namespace

TEST_CASE("a text is two handles") { CHECK(sizeof(UTF16) == 2 * sizeof(void *)); }

TEST_CASE("plain text has a high plane of zeros of the same length") {
    const UTF16 text("abc");
    CHECK(text.LOWBYTES.VIEW() == "abc");
    CHECK(text.HIGHBYTES.LENGTH() == 3);
    CHECK(text.PLAIN());
}

TEST_CASE("characters of two and three bytes are decoded into both planes") {
    const UTF16 text("é€π"); // U+00E9, U+20AC, U+03C0
    REQUIRE(text.LENGTH() == 3);
    CHECK(text.GETCHAR(1) == Unit(0x00E9));
    CHECK(text.GETCHAR(2) == Unit(0x20AC));
    CHECK(text.GETCHAR(3) == Unit(0x03C0));
    CHECK(GETUTF8(text) == "é€π");
}

TEST_CASE("a character outside the basic plane turns into one zero unit and prints as nothing") {
    const UTF16 text("a\xF0\x9F\x98\x80z");
    REQUIRE(text.LENGTH() == 3);
    CHECK(text.GETCHAR(2) == UTF16CHAR{});
    CHECK(GETUTF8(text) == "az");
}

TEST_CASE("leading bytes of long forms remove as many bytes as they announce") {
    CHECK(UTF16("\xF0"
                "123z")
              .LENGTH() == 2);
    CHECK(UTF16("\xF8"
                "1234z")
              .LENGTH() == 2);
    CHECK(UTF16("\xFC"
                "12345z")
              .LENGTH() == 2);
    CHECK(UTF16("\xFE"
                "123456z")
              .LENGTH() == 2);
    CHECK(UTF16("\xFF"
                "z")
              .LENGTH() == 2);
}

TEST_CASE("a stray continuation byte gives a zero unit of its own") {
    const UTF16 text("\x80\xBFz");
    REQUIRE(text.LENGTH() == 3);
    CHECK(text.GETCHAR(1) == UTF16CHAR{});
    CHECK(text.GETCHAR(2) == UTF16CHAR{});
    CHECK(text.IS(3, 'z'));
}

TEST_CASE("a sequence cut off by the end gives one zero unit and takes what is left") {
    for (const char *cut : {"a\xC3", "a\xE2\x82", "a\xE2", "a\xF0\x9F", "a\xFE"}) {
        const UTF16 text(cut);
        REQUIRE(text.LENGTH() == 2);
        CHECK(text.GETCHAR(2) == UTF16CHAR{});
    }
}

TEST_CASE("the limits of the encoded lengths are 127, 2047 and above") {
    CHECK(GETUTF8(Unit(0)).empty());
    CHECK(GETUTF8(Unit(0x7F)) == "\x7F");
    CHECK(GETUTF8(Unit(0x80)) == "\xC2\x80");
    CHECK(GETUTF8(Unit(0x7FF)) == "\xDF\xBF");
    CHECK(GETUTF8(Unit(0x800)) == "\xE0\xA0\x80");
    CHECK(GETUTF8(Unit(0xFFFF)) == "\xEF\xBF\xBF");
}

TEST_CASE("EXTRACTUTF16 removes the character it decodes and GETUTF16CHAR does not") {
    std::string_view bytes = "éx";
    CHECK(GETUTF16CHAR(bytes) == Unit(0xE9));
    CHECK(EXTRACTUTF16(bytes) == Unit(0xE9));
    CHECK(bytes == "x");
    CHECK(EXTRACTUTF16(bytes) == Unit('x'));
    CHECK(EXTRACTUTF16(bytes) == UTF16CHAR{});
}

TEST_CASE("GETCHAR outside the text gives a zero unit") {
    const UTF16 text("ab");
    CHECK(text.GETCHAR(0) == UTF16CHAR{});
    CHECK(text.GETCHAR(3) == UTF16CHAR{});
    CHECK(text.GETCHAR(-5) == UTF16CHAR{});
    CHECK(UTF16().GETCHAR(1) == UTF16CHAR{});
}

TEST_CASE("a plane that is too short holds 0") {
    const UTF16 text(STRING8("abc"), STRING8("\x01"));
    CHECK(text.GETCHAR(1) == UTF16CHAR{'a', 1});
    CHECK(text.GETCHAR(3) == UTF16CHAR{'c', 0});
    const UTF16 longer = text + "d";
    CHECK(longer.HIGHBYTES.LENGTH() == 4);
    CHECK(longer.GETCHAR(1) == UTF16CHAR{'a', 1});
    CHECK(longer.GETCHAR(4) == UTF16CHAR{'d', 0});
}

TEST_CASE("PUTCHAR writes both bytes of one owner's text, and nothing outside") {
    UTF16 text("abc");
    const UTF16 before = text;
    text.PUTCHAR(2, Unit(0x20AC));
    text.PUTCHAR(0, Unit('x'));
    text.PUTCHAR(4, Unit('x'));
    CHECK(GETUTF8(text) == "a€c");
    CHECK(before == "abc");
    text.PUTCHAR(2, Unit('b'));
    CHECK(text == "abc");
}

TEST_CASE("PUTCHAR lengthens a high plane that is too short") {
    UTF16 text(STRING8("abc"), STRING8());
    text.PUTCHAR(3, Unit(0x0141));
    CHECK(text.GETCHAR(1) == Unit('a'));
    CHECK(text.GETCHAR(3) == Unit(0x0141));
}

TEST_CASE("+ joins texts, bytes and single units") {
    UTF16 text = UTF16("a") + "é" + Unit('c');
    CHECK(GETUTF8(text) == "aéc");
    text += text;
    CHECK(GETUTF8(text) == "aécaéc");
    CHECK(UTF16() + UTF16() == UTF16());
    CHECK("x" + UTF16("y") == "xy");
}

TEST_CASE("a text may grow unit by unit past every shared plane") {
    UTF16 text;
    for (int i = 0; i < 1500; ++i)
        text += Unit('a');
    CHECK(text.LENGTH() == 1500);
    CHECK(text.HIGHBYTES.LENGTH() == 1500);
    CHECK(text.PLAIN());
    text += Unit(0x0100);
    CHECK(text.GETCHAR(1501) == Unit(0x0100));
    CHECK(text.GETCHAR(1500) == Unit('a'));
}

TEST_CASE("equality compares both planes") {
    CHECK(UTF16(Unit(0x0041)) == "A");
    CHECK(UTF16(Unit(0x0141)) != "A");
    CHECK(UTF16("a") != "ab");
}

TEST_CASE("texts compare unit by unit, high byte first, when ALIGN is set") {
    CHECK(UTF16("a") < UTF16("b"));
    CHECK(UTF16("ab") < UTF16("b"));
    CHECK(UTF16("a") < UTF16("ab"));
    CHECK(UTF16("b") > UTF16("ab"));
    CHECK(UTF16("z") < UTF16("ā")); // U+0101: high byte 1
    CHECK(UTF16("é") > UTF16("z"));
    CHECK(UTF16("a") <= UTF16("a"));
    CHECK(UTF16("a") >= UTF16("a"));
    CHECK(UTF16() < UTF16("a"));
}

TEST_CASE("a missing unit counts as 0 in the order") {
    const UTF16 zero = UTF16("a") + Unit(0);
    CHECK_FALSE(zero < UTF16("a"));
    CHECK_FALSE(zero > UTF16("a"));
    CHECK(zero != "a");
}

TEST_CASE("a shorter text is always lower when ALIGN is not set") {
    FORMAT.ALIGN = false;
    CHECK(UTF16("b") < UTF16("ab"));
    CHECK(UTF16("ab") > UTF16("b"));
    CHECK(UTF16("ab") < UTF16("ac"));
    CHECK_FALSE(UTF16("ab") < UTF16("ab"));
    FORMAT.ALIGN = true;
}
