#include "foundation/base/number_text.hpp"
#include "foundation/base/utf16chars7.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("a fixed text is two buffers of 256 bytes with their lengths") {
    CHECK(sizeof(UTF16CHARS7) == 512);
}

TEST_CASE("a fixed text holds what was put in") {
    const UTF16CHARS7 text("a€c");
    CHECK(text.LENGTH() == 3);
    CHECK(text.GET() == "a€c");
    CHECK(text.LOW()[3] == 0);
    CHECK(text.HIGH()[1] == 0x20);
    CHECK(text.HIGH()[0] == 0);
    CHECK(text.HIGH()[2] == 0);
    CHECK(UTF16CHARS7().EMPTY());
    CHECK(UTF16CHARS7().GET().EMPTY());
}

TEST_CASE("a longer text is cut to its first 254 units") {
    const UTF16 plain(std::string(300, 'x'));
    CHECK(UTF16CHARS7(plain).LENGTH() == 254);
    const UTF16 wide = plain + UTF16CHAR{0, 1};
    CHECK(UTF16CHARS7(wide).GET() == std::string(254, 'x'));
    const UTF16CHARS7 exact(std::string(254, 'y').c_str());
    CHECK(exact.GET() == std::string(254, 'y'));
}

TEST_CASE("copies of fixed texts are independent") {
    UTF16CHARS7 a("long text with Ł"), b = a;
    a = UTF16CHARS7("x");
    CHECK(b == "long text with Ł");
    b = a;
    CHECK(b == "x");
    const UTF16CHARS7 &self = b;
    b = self;
    CHECK(b == "x");
}

TEST_CASE("fixed texts compare as texts do") {
    CHECK(UTF16CHARS7("a") == UTF16CHARS7("a"));
    CHECK(UTF16CHARS7("A") != UTF16CHARS7("Ł"));
    CHECK(UTF16CHARS7("a") == UTF16("a"));
    CHECK(UTF16("a") == UTF16CHARS7("a"));
    CHECK(UTF16CHARS7("a") != UTF16("ab"));
    CHECK(UTF16CHARS7("a") < UTF16CHARS7("b"));
    CHECK(UTF16CHARS7("z") < UTF16CHARS7("Ł"));
    FORMAT.ALIGN = false;
    CHECK(UTF16CHARS7("b") < UTF16CHARS7("ab"));
    FORMAT.ALIGN = true;
}

TEST_CASE("REPLACE changes a fixed text and cuts the result") {
    UTF16CHARS7 text("a.b");
    REPLACE(text, ".", "::");
    CHECK(text == "a::b");
    UTF16CHARS7 full(std::string(254, 'a').c_str());
    REPLACE(full, "a", "bc");
    CHECK(full.LENGTH() == 254);
    CHECK(COPY(full.GET(), 1, 4) == "bcbc");
}
