#include "foundation/console/paths.hpp"
#include "support/child_process.hpp"

#include <string>
#include <unistd.h>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
std::string U(const UTF16 &text) { return GETUTF8(text); }
} // namespace

TEST_CASE("GETDIR is the part before the last separator of either kind") {
    CHECK(U(GETDIR("a/b/c.nii")) == "a/b");
    CHECK(U(GETDIR("a\\b\\c.nii")) == "a\\b");
    CHECK(U(GETDIR("c.nii")) == "");
}

TEST_CASE("GETFILE is the part behind the last separator, all of it without one") {
    CHECK(U(GETFILE("a/b/c.nii")) == "c.nii");
    CHECK(U(GETFILE("a\\c.nii")) == "c.nii");
    CHECK(U(GETFILE("c.nii")) == "c.nii");
    CHECK(U(GETFILE("a/")) == "");
}

TEST_CASE("GETFILENAME loses the extension") {
    CHECK(U(GETFILENAME("a.d/c.x.nii")) == "c.x");
    CHECK(U(GETFILENAME("a.d/plain")) == "plain");
}

TEST_CASE("GETFILENAME of a file with the two endings b and gz gives the part before both") {
    CHECK(U(GETFILENAME("d/a.b.gz")) == "a");
    CHECK(U(GETFILENAME("d/a.x.nii.GZ")) == "a.x");
    CHECK(U(GETFILENAME("d/a.gz")) == "a");
}

TEST_CASE("the short name ends at the first point and the full extension begins behind it") {
    CHECK(U(GET_SHORTFILENAME("d.e/a.b.c")) == "a");
    CHECK(U(GET_SHORTFILENAME("d.e/a")) == "a");
    CHECK(U(GET_FULLFILEEXTENSION("d.e/a.b.c")) == "b.c");
    CHECK(U(GET_FULLFILEEXTENSION("d.e/a")) == "");
}

TEST_CASE("GETFILEEXTENSION of a name without a point is empty") {
    CHECK(U(GETFILEEXTENSION("a")) == "");
    CHECK(U(GETFILEEXTENSION("d.e/a")) == "");
}

TEST_CASE("GETFILEEXTENSION gives the two last parts for gz") {
    CHECK(U(GETFILEEXTENSION("a.b.nii.gz")) == "nii.gz");
    CHECK(U(GETFILEEXTENSION("a.b.nii")) == "nii");
    CHECK(U(GETFILEEXTENSION("a.gz")) == "gz");
}

TEST_CASE("GETDIRFILENAME is the path without the last extension") {
    CHECK(U(GETDIRFILENAME("d.e/a.b")) == "d.e/a");
    CHECK(U(GETDIRFILENAME("d.e/a")) == "d.e/a");
}

TEST_CASE("GETSHORTDIR leaves a short path alone but for its separators") {
    CHECK(U(GETSHORTDIR("a\\b/c", 60)) == "a/b/c");
}

TEST_CASE("GETSHORTDIR replaces the middle and cuts the left part at a separator") {
    CHECK(U(GETSHORTDIR("/home/someone/study/fibres.nii", 24)) == "/home/..\\fibres.nii");
    CHECK(U(GETSHORTDIR("/home/someone/study/a/b.nii", 24)) == "/home/..\\study/a/b.nii");
}

TEST_CASE("GETSHORTDIR never exceeds its length") {
    const UTF16 path("/one/two/three/a-very-long-file-name-without-any-separator.nii.gz");
    for (NAT length = 0; length <= path.LENGTH(); ++length)
        CHECK(GETSHORTDIR(path, length).LENGTH() <= length);
}

TEST_CASE("FILENAMESAVE turns a zero unit into a line and a backslash into a slash") {
    UTF16 name("a\\b?c");
    name.PUTCHAR(4, UTF16CHAR{0, 0});
    CHECK(U(FILENAMESAVE(name)) == "a/b_c");
    CHECK(U(FILENAMESAVE("../x")) == "../x");
}

TEST_CASE("a unit with a zero low byte is no zero unit") { CHECK(FILENAMESAVE("Ā") == UTF16("Ā")); }

TEST_CASE("FILENAMELOAD replaces one or two parent steps by the path they mean") {
    CHECK(IN_CHILD([] {
              if (::chdir("/usr/bin") != 0) return 1;
              if (U(FILENAMELOAD("../lib/x")) != "/usr/lib/x") return 2;
              if (U(FILENAMELOAD("..\\lib\\x")) != "/usr/lib/x") return 3;
              if (U(FILENAMELOAD("../../etc/x")) != "/etc/x") return 4;
              if (U(FILENAMELOAD("../../../etc/x")) != "/../etc/x") return 5;
              if (U(FILENAMELOAD("a/../b")) != "a/../b") return 6;
              return 7;
          }) == 7);
}

TEST_CASE("parent steps above the root stay at the root") {
    CHECK(IN_CHILD([] {
              if (::chdir("/") != 0) return 1;
              return U(FILENAMELOAD("../../etc/x")) == "/etc/x" ? 7 : 2;
          }) == 7);
}

TEST_CASE("GETCURRENTDIR is the working directory") {
    CHECK(IN_CHILD([] {
              if (::chdir("/usr") != 0) return 1;
              return U(GETCURRENTDIR()) == "/usr" ? 7 : 2;
          }) == 7);
}
