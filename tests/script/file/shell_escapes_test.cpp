#include "script/file/shell_escapes.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("the escapes of a shell are removed from a name") {
    CHECK(WITHOUT_SHELL_ESCAPES("a\\ b\\(1\\)\\?\\!.txt") == UTF16("a b(1)?!.txt"));
    CHECK(WITHOUT_SHELL_ESCAPES("a\\\\b") == UTF16("a\\b"));
    CHECK(WITHOUT_SHELL_ESCAPES("a\\\\\\ b") == UTF16("a\\ b"));
    CHECK(WITHOUT_SHELL_ESCAPES("\\[x\\]\\&\\'\\\"\\$\\#\\*\\;") == UTF16("[x]&'\"$#*;"));
}

TEST_CASE("a backslash that parts a path or ends a name stays") {
    CHECK(WITHOUT_SHELL_ESCAPES("data\\sub\\7.txt") == UTF16("data\\sub\\7.txt"));
    CHECK(WITHOUT_SHELL_ESCAPES("a\\") == UTF16("a\\"));
    CHECK(WITHOUT_SHELL_ESCAPES("a\\µ") == UTF16("a\\µ"));
    CHECK(WITHOUT_SHELL_ESCAPES("").EMPTY());
}
