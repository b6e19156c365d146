#include "text_forms.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("a table cell keeps signs that the page would take for its own") {
    CHECK(MARKDOWN_TEXT("<x,y> | a_b*c [1] & `d`") ==
          "&lt;x,y&gt; \\| a\\_b\\*c \\[1\\] &amp; \\`d\\`");
    CHECK(MARKDOWN_CODE("a |= b") == "`a \\|= b`");
    CHECK(MARKDOWN_CODE("a `b`") == "`` a `b` ``");
}

TEST_CASE("the manual page keeps minus signs, quotes and letters beyond ASCII") {
    CHECK(ROFF_TEXT("-seed=1") == "\\-seed=1");
    CHECK(ROFF_TEXT(".x 'a' \"b\" c\\d") == "\\&.x \\(aqa\\(aq \\(dqb\\(dq c\\ed");
    CHECK(ROFF_TEXT("5\xC2\xB0 \xE2\x89\xA4 \xF0\x9D\x84\x9E") ==
          "5\\[u00B0] \\[u2264] \\[u1D11E]");
}

TEST_CASE("quoted texts are what shells and JSON read back") {
    CHECK(SHELL_QUOTED("it's") == "'it'\\''s'");
    CHECK(JSON_QUOTED("a\"b\\c\n\xC2\xB0") == "\"a\\\"b\\\\c\\u000a\xC2\xB0\"");
    CHECK(REGEX_TEXT("a.b+c") == "a\\.b\\+c");
    CHECK(REGEX_ANY({"a.b", "c"}) == "a\\.b|c");
}

TEST_CASE("wrapped words keep within 100 columns and lose none") {
    const std::vector<std::string> words(40, "abcdefghi");
    std::size_t count = 0;
    const std::string text = WRAPPED(words, "  ");
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = text.find('\n', begin);
        CHECK(end - begin <= 100);
        begin = end + 1;
    }
    for (std::size_t place = text.find("abc"); place != std::string::npos;
         place = text.find("abc", place + 1))
        ++count;
    CHECK(count == 40);
    CHECK(WRAPPED({}, "  ") == "");
}
