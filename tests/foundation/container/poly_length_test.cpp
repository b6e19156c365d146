#include "foundation/console/log.hpp"
#include "foundation/container/poly_types.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
void FILL_WITH(TPOLYREAL &list, std::initializer_list<REAL> values) {
    list.INIT();
    for (const REAL value : values)
        list.PUSH(value);
}
bool HOLDS(const TPOLYREAL &list, std::initializer_list<REAL> values) {
    if (list.LENGTH != static_cast<NAT>(values.size())) return false;
    NAT position = 0;
    for (const REAL value : values)
        if (list.GET(++position) != value) return false;
    return true;
}
} // namespace

TEST_CASE("NEWLENGTH of 0 keeps the capacity of a dynamic list and zeroes its block") {
    TPOLYREAL list;
    FILL_WITH(list, {1, 2, 3});
    list.NEWLENGTH(0);
    CHECK(list.LENGTH == 0);
    CHECK(list.MAXIMAL == 8192);
    CHECK(list.DYNAMIC == 8192);
    CHECK(list.SORTED);
    CHECK(*list._INDEX(1) == 0);
    CHECK(*list._INDEX(3) == 0);
}

TEST_CASE("NEWLENGTH of 0 frees a static list") {
    TPOLYREAL list(3);
    list.NEWLENGTH(0);
    CHECK(list.DATA == nullptr);
    CHECK(list.MAXIMAL == 0);
    CHECK(list.RANGE == RANGENAT{0, 0});
    CHECK(list.SORTED);
}

TEST_CASE("a negative length counts as 0") {
    TPOLYREAL list(3);
    list.NEWLENGTH(-5);
    CHECK(list.LENGTH == 0);
}

TEST_CASE("a static list keeps its elements when its length changes, and new ones are zero") {
    TPOLYREAL list(2);
    list.PUT(1, 5);
    list.PUT(2, 6);
    list.NEWLENGTH(3);
    CHECK(HOLDS(list, {5, 6, 0}));
    CHECK(list.MAXIMAL == 3);
    list.NEWLENGTH(1);
    CHECK(HOLDS(list, {5}));
    list.NEWLENGTH(2);
    CHECK(HOLDS(list, {5, 0}));
}

TEST_CASE("a dynamic list that shrinks clears its tail") {
    TPOLYREAL list;
    FILL_WITH(list, {1, 2, 3});
    list.NEWLENGTH(1);
    list.NEWLENGTH(3);
    CHECK(HOLDS(list, {1, 0, 0}));
    CHECK(list.DYNAMIC == list.MAXIMAL - 3);
}

TEST_CASE("the reserve of a growing list shrinks as a share of its size") {
    TPOLYBYTE list;
    list.INIT();
    const auto reserveAt = [&list](NAT count) {
        list.DONE();
        list.INIT();
        list.NEWLENGTH(count);
        return list.DYNAMIC;
    };
    CHECK(reserveAt(0x100000) == 0x100000);       // at most 1 MiB: count
    CHECK(reserveAt(0x100001) == 0x100001 / 2);   // at most 10 MiB: a half
    CHECK(reserveAt(0xA00001) == 0xA00001 / 4);   // at most 102 MiB: a quarter
    CHECK(reserveAt(0x6600001) == 0x6600001 / 8); // at most 1 GiB: an eighth
    // Behind 1 GiB there is no step of a sixteenth. The pages are never touched.
    CHECK(reserveAt(0x40000001) == 0x40000001 / 32);
}

TEST_CASE("a list never reserves less than it did before") {
    TPOLYBYTE list;
    list.INIT();
    list.NEWLENGTH(65536); // reserve 65536
    list.NEWLENGTH(10);    // free: 131062
    list.NEWLENGTH(131072);
    CHECK(list.DYNAMIC == 131072);
}

TEST_CASE("without memory a growing list becomes empty and says so") {
    CAPTURE console;
    TPOLYREAL list;
    FILL_WITH(list, {1, 2});
    list.NEWLENGTH(NATMAX / 4); // the byte count is out of range, with and without a reserve
    CHECK(console.TEXT() == "  Not enough Memory! Create empty field.\n");
    CHECK(list.LENGTH == 0);
    CHECK(list.MAXIMAL == 0);
}

TEST_CASE("a list that finds memory only without a reserve becomes static") {
    CAPTURE console;
    TPOLYBYTE list;
    list.INIT();
    list.PUSH(7);
    // A list of the largest reserve: count + reserve overflows, count alone does not.
    const NAT maximal = list.MAXIMAL;
    list.DYNAMIC = NATMAX - 10; // stands for a reserve that no machine has
    list.MAXIMAL = maximal;
    list.NEWLENGTH(maximal);
    CHECK(console.TEXT() == "  Not enough Memory! Disable dynamic memory.\n");
    CHECK(list.DYNAMIC == 0);
    CHECK(list.MAXIMAL == maximal);
    CHECK(list.GET(1) == 7);
}

TEST_CASE("without memory a static list becomes empty and says so") {
    CAPTURE console;
    TPOLYREAL list(2);
    list.NEWLENGTH(NATMAX / 4);
    CHECK(console.TEXT() == "  Not enough Memory! Create empty field.\n");
    CHECK(list.LENGTH == 0);
}

TEST_CASE("NEWLENGTH of an object without an element size is told") {
    CAPTURE console;
    TPOLY list;
    list.NEWLENGTH(4);
    CHECK(console.TEXT() == "  Corrupt memory packet (size=0)!\n");
    CHECK(list.FRESH());
}

TEST_CASE("a static list freed by a length of 0 is filled again by NEWLENGTH") {
    TPOLYREAL list(2);
    list.NEWLENGTH(0);
    list.NEWLENGTH(3);
    CHECK(HOLDS(list, {0, 0, 0}));
    CHECK(list.DYNAMIC == 0);
    CHECK(list.KIND == 1);
}

TEST_CASE("with a log file open each allocation and release writes a line into it") {
    const SCRATCH_FOLDER work;
    CAPTURE console;
    OPENLOGFILE();
    console.CLEAR();
    { TPOLYREAL list(3); }
    CLOSELOGFILE();
    const std::string log = work.READ("test_foundation_container.log");
    CHECK(log.find("  Allocate memory 24 bytes (3 x 8).\n") != std::string::npos);
    CHECK(log.find("  Free memory 24 bytes (3 x 8).\n") != std::string::npos);
    CHECK(console.TEXT().empty()); // the log alone
}
