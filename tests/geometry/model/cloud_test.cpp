#include "geometry/model/cloud.hpp"

#include <utility>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// Lines of one or more points along x, each with its material.
void ADD_LINE(TCLOUD &cloud, std::initializer_list<REAL> xs, NAT material) {
    for (const REAL x : xs)
        cloud.NEWPOINT({x, 0, 0, 0});
    cloud.NEWLINE(material);
}
} // namespace

TEST_CASE("points without NEWLINE form one open line") {
    TCLOUD cloud;
    CHECK(cloud.GETLINELENGTH() == 0);
    cloud.NEWPOINT({1, 2, 3, 4});
    cloud.NEWPOINT({5, 6, 7, 8});
    CHECK(cloud.GETPOINTLENGTH() == 2);
    CHECK(cloud.GETLINELENGTH() == 1);
    CHECK(cloud.GETALLLINEPOINTLENGTH(1) == 2);
    CHECK(cloud.GETOBJECTLENGTH() == 0);
    CHECK(cloud.GETLINE(1, 2) == HYPER{5, 6, 7, 8});
}

TEST_CASE("NEWLINE closes a line and gives it its material") {
    TCLOUD cloud;
    ADD_LINE(cloud, {1, 2, 3}, 7);
    ADD_LINE(cloud, {4}, 8);
    CHECK(cloud.GETLINELENGTH() == 2);
    CHECK(cloud.GETALLLINEPOINTLENGTH(1) == 3);
    CHECK(cloud.GETALLLINEPOINTLENGTH(2) == 1);
    CHECK(cloud.GETALLMATERIAL(1) == 7);
    CHECK(cloud.GETALLMATERIAL(2) == 8);
    CHECK(cloud.GETPLINE(2, 1) == 4);
    cloud.NEWPOINT({5, 0, 0, 0});
    CHECK(cloud.GETLINELENGTH() == 3);
    CHECK(cloud.GETALLMATERIAL(3) == 0);
}

TEST_CASE("NEWLINE without points and NEWOBJECT without lines do nothing") {
    TCLOUD cloud;
    cloud.NEWLINE(3);
    cloud.NEWOBJECT("none");
    CHECK(cloud.GETLINELENGTH() == 0);
    CHECK(cloud.GETOBJECTLENGTH() == 0);
    ADD_LINE(cloud, {1}, 1);
    cloud.NEWLINE(2);
    CHECK(cloud.GETLINELENGTH() == 1);
    cloud.NEWOBJECT("a");
    cloud.NEWOBJECT("b");
    CHECK(cloud.GETOBJECTLENGTH() == 1);
    CHECK(cloud.GETALLMATERIAL(1) == 1);
}

TEST_CASE("NEWOBJECT closes the lines since the last object under a name") {
    TCLOUD cloud;
    ADD_LINE(cloud, {1, 2}, 1);
    ADD_LINE(cloud, {3}, 2);
    cloud.NEWOBJECT("first");
    cloud.NEWPOINT({4, 0, 0, 0}); // an open line is closed with its object
    cloud.NEWOBJECT("second");
    CHECK(cloud.GETOBJECTLENGTH() == 2);
    CHECK(cloud.GETOBJECTLINELENGTH(1) == 2);
    CHECK(cloud.GETOBJECTLINELENGTH(2) == 1);
    CHECK(GETUTF8(cloud.GETNAME(1)) == "first");
    CHECK(GETUTF8(cloud.GETNAME(2)) == "second");
    CHECK(cloud.GETLINEPOINTLENGTH(1, 1) == 2);
    CHECK(cloud.GETOBJECT(2, 1, 1) == HYPER{4, 0, 0, 0});
    CHECK(cloud.GETMATERIAL(1, 2) == 2);
    ADD_LINE(cloud, {9}, 0);
    CHECK(cloud.GETOBJECTLENGTH() == 3); // the open object counts once one was closed
    CHECK(cloud.GETNAME(3).EMPTY());
}

TEST_CASE("reads outside a cloud give zero and writes outside do nothing") {
    TCLOUD cloud;
    ADD_LINE(cloud, {1, 2}, 5);
    cloud.NEWOBJECT("a");
    CHECK(cloud.GETPOINT(0) == HZERO);
    CHECK(cloud.GETPOINT(3) == HZERO);
    CHECK(cloud.GETLINE(1, 3) == HZERO);
    CHECK(cloud.GETLINE(2, 1) == HZERO);
    CHECK(cloud.GETPLINE(0, 1) == 0);
    CHECK(cloud.GETOBJECT(1, 2, 1) == HZERO);
    CHECK(cloud.GETOBJECT(2, 1, 1) == HZERO);
    CHECK(cloud.GETALLMATERIAL(2) == 0);
    CHECK(cloud.GETNAME(2).EMPTY());
    CHECK(cloud.GETLINEPOINTLENGTH(1, -1) == 0);
    cloud.PUTPOINT(3, {9, 9, 9, 9});
    cloud.PUTLINE(1, 3, {9, 9, 9, 9});
    cloud.PUTOBJECT(1, 1, 0, {9, 9, 9, 9});
    cloud.PUTNAME(2, "x");
    cloud.PUTMATERIAL(2, 9);
    CHECK(cloud.LENGTH == 2);
    CHECK(cloud.MAX() == HYPER{2, 0, 0, 0});
}

TEST_CASE("points, names and materials are changed in place") {
    TCLOUD cloud;
    ADD_LINE(cloud, {1, 2}, 5);
    cloud.NEWOBJECT("a");
    cloud.PUTPOINT(1, {1, 1, 1, 1});
    cloud.PUTLINE(1, 2, {2, 2, 2, 2});
    cloud.PUTNAME(1, "b");
    cloud.PUTMATERIAL(1, 6);
    CHECK(cloud.GETPOINT(1) == HYPER{1, 1, 1, 1});
    CHECK(cloud.GETPOINT(2) == HYPER{2, 2, 2, 2});
    CHECK(GETUTF8(cloud.GETNAME(1)) == "b");
    CHECK(cloud.GETALLMATERIAL(1) == 6);
    cloud.PUTOBJECT(1, 1, 1, {3, 4, 5, 6});
    cloud.MUL({2, 1, 0, -1});
    CHECK(cloud.GETPOINT(1) == HYPER{6, 4, 0, -6});
}

TEST_CASE("REPLACE makes an equal cloud with its frame") {
    TCLOUD a, b;
    ADD_LINE(a, {1, 2}, 5);
    a.NEWOBJECT("a");
    a.scale = {1, 2, 3, 1};
    ADD_LINE(b, {9}, 1);
    b.REPLACE(a);
    CHECK(b.GETLINELENGTH() == 1);
    CHECK(b.GETPOINTLENGTH() == 2);
    CHECK(b.GETOBJECTLENGTH() == 1);
    CHECK(b.scale == HYPER{1, 2, 3, 1});
    b.NEWPOINT({7, 0, 0, 0});
    CHECK(b.GETLINELENGTH() == 2);
    CHECK(a.GETLINELENGTH() == 1);
}

TEST_CASE("APPEND puts the other's objects behind the own ones") {
    TCLOUD a, b;
    ADD_LINE(a, {1}, 1);
    ADD_LINE(b, {2, 3}, 2);
    b.NEWOBJECT("b");
    ADD_LINE(b, {4}, 3); // its open object
    a.APPEND(b);
    CHECK(a.GETLINELENGTH() == 3);
    CHECK(a.GETOBJECTLENGTH() == 3);
    CHECK(GETUTF8(a.GETNAME(1)) == "repaired"); // the own lines had none
    CHECK(GETUTF8(a.GETNAME(2)) == "b");
    CHECK(a.GETNAME(3).EMPTY());
    CHECK(a.GETALLMATERIAL(3) == 3);
    a.APPEND(a);
    CHECK(a.GETLINELENGTH() == 6);
    CHECK(a.GETPOINT(8) == HYPER{4, 0, 0, 0});
}

TEST_CASE("SOFTCLEAR and DONE leave a cloud that may be filled again") {
    TCLOUD cloud;
    for (int round = 0; round < 2; ++round) {
        ADD_LINE(cloud, {1, 2}, 5);
        cloud.NEWOBJECT("a");
        cloud.offset = {1, 1, 1, 0};
        if (round == 0)
            cloud.SOFTCLEAR();
        else
            cloud.DONE();
        CHECK(cloud.GETPOINTLENGTH() == 0);
        CHECK(cloud.GETLINELENGTH() == 0);
        CHECK(cloud.GETOBJECTLENGTH() == 0);
        CHECK(cloud.offset == HZERO);
        CHECK(cloud.scale == HNORM);
    }
    ADD_LINE(cloud, {3}, 1);
    CHECK(cloud.GETLINELENGTH() == 1);
}

TEST_CASE("SWAP exchanges two clouds of different sizes") {
    TCLOUD a, b;
    ADD_LINE(a, {1, 2}, 5);
    a.NEWOBJECT("a");
    CHECK(a.SWAP(b));
    CHECK(a.GETLINELENGTH() == 0);
    CHECK(b.GETLINELENGTH() == 1);
    CHECK(GETUTF8(b.GETNAME(1)) == "a");
    ADD_LINE(a, {3}, 1);
    CHECK(a.GETLINE(1, 1) == HYPER{3, 0, 0, 0});
}

TEST_CASE("ERASEMARKED erases lines and objects left without lines") {
    TCLOUD cloud;
    ADD_LINE(cloud, {1, 2}, 1);
    ADD_LINE(cloud, {3}, 2);
    cloud.NEWOBJECT("first");
    ADD_LINE(cloud, {4, 5}, 3);
    cloud.NEWOBJECT("second");
    ADD_LINE(cloud, {6}, 4);
    ADD_LINE(cloud, {7}, 5);
    cloud.NEWOBJECT("third");
    cloud.MARKALLLINE(1);
    cloud.MARKLINE(2, 1);
    cloud.MARKLINE(3, 2);
    CHECK(cloud.MARKED(3));
    CHECK_FALSE(cloud.MARKED(2));
    CHECK(cloud.ERASEMARKED() == 3);
    CHECK(cloud.GETLINELENGTH() == 2);
    CHECK(cloud.GETPOINTLENGTH() == 2);
    CHECK(cloud.GETOBJECTLENGTH() == 2);
    CHECK(GETUTF8(cloud.GETNAME(1)) == "first");
    CHECK(GETUTF8(cloud.GETNAME(2)) == "third");
    CHECK(cloud.GETOBJECT(1, 1, 1) == HYPER{3, 0, 0, 0});
    CHECK(cloud.GETOBJECT(2, 1, 1) == HYPER{6, 0, 0, 0});
    CHECK(cloud.GETALLMATERIAL(2) == 4);
    CHECK(cloud.ERASEMARKED() == 0); // the marks are gone
    ADD_LINE(cloud, {8}, 6);
    cloud.NEWOBJECT("fourth");
    CHECK(cloud.GETOBJECT(3, 1, 1) == HYPER{8, 0, 0, 0});
}

TEST_CASE("ERASEMARKED keeps or erases the open line") {
    for (const bool isErased : {false, true}) {
        TCLOUD cloud;
        ADD_LINE(cloud, {1}, 1);
        ADD_LINE(cloud, {2}, 2);
        cloud.NEWPOINT({3, 0, 0, 0});
        cloud.MARKALLLINE(1);
        if (isErased) cloud.MARKALLLINE(3);
        cloud.ERASEMARKED();
        CHECK(cloud.GETLINELENGTH() == (isErased ? 1 : 2));
        cloud.NEWPOINT({4, 0, 0, 0});
        cloud.NEWLINE(9);
        CHECK(cloud.GETLINELENGTH() == 2);
        CHECK(cloud.GETALLLINEPOINTLENGTH(2) == (isErased ? 1 : 2));
        CHECK(cloud.GETALLMATERIAL(2) == 9);
    }
}

TEST_CASE("erasing every line leaves an empty cloud that may be filled again") {
    TCLOUD cloud;
    ADD_LINE(cloud, {1}, 1);
    cloud.NEWOBJECT("a");
    cloud.MARKALLLINE(1);
    cloud.MARKALLLINE(2); // outside
    CHECK(cloud.ERASEMARKED() == 1);
    CHECK(cloud.GETLINELENGTH() == 0);
    CHECK(cloud.GETOBJECTLENGTH() == 0);
    ADD_LINE(cloud, {5}, 2);
    cloud.NEWOBJECT("b");
    CHECK(cloud.GETOBJECT(1, 1, 1) == HYPER{5, 0, 0, 0});
    CHECK(GETUTF8(cloud.GETNAME(1)) == "b");
}

TEST_CASE("SEARCHLINE finds the first earlier line with near points, SEARCHBEGIN a near start") {
    TCLOUD cloud;
    ADD_LINE(cloud, {1, 2, 3}, 0);
    ADD_LINE(cloud, {1, 2}, 0);
    ADD_LINE(cloud, {1.5, 2.5, 3.5}, 0);
    CHECK(cloud.SEARCHLINE(3, 0.5) == 1);
    CHECK(cloud.SEARCHLINE(3, 0.4) == 0);
    CHECK(cloud.SEARCHLINE(2, 9) == 0); // another count of points
    CHECK(cloud.SEARCHLINE(1, 9) == 0); // nothing is earlier
    CHECK(cloud.SEARCHBEGIN(2, 0) == 1);
    CHECK(cloud.SEARCHBEGIN(3, 0.5) == 1);
    CHECK(cloud.SEARCHBEGIN(3, 0.4) == 0);
    CHECK(cloud.SEARCHBEGIN(9, 5) == 0);
}
