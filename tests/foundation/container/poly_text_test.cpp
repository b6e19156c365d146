#include "foundation/container/poly_text.hpp"
#include "support/capture.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("GETPOLYREAL cuts all numbers of a text") {
    const auto list = GETPOLYREAL("1, 2.5 <-3, 50%>");
    REQUIRE(list->LENGTH == 4);
    CHECK(list->GET(1) == 1);
    CHECK(list->GET(2) == 2.5);
    CHECK(list->GET(3) == -3);
    CHECK(list->GET(4) == 0.5);
    CHECK(GETPOLYREAL("")->LENGTH == 0);
}

TEST_CASE("a histogram draws logarithmic bars in eighths of a row") {
    TPOLYNAT bins;
    for (const NAT value : {100, 1, 10, 0})
        bins.PUSH(value);
    CAPTURE console;
    WRITE_HISTOGRAM(4, 2, bins); // heights 16, 0, 8, 0 eighths
    CHECK(console.TEXT() == "  \u2588\u2001\u2001\u2001\n"
                            "0 \u2588\u2001\u2588\u2001 4\n");
}

TEST_CASE("a histogram shows the largest bin of each column's share") {
    TPOLYNAT bins;
    for (const NAT value : {5, 16, 2, 4})
        bins.PUSH(value);
    CAPTURE console;
    WRITE_HISTOGRAM(2, 1, bins); // 16: 8 eighths; 4: 8 * log 4 / log 16 = 4 eighths
    CHECK(console.TEXT() == "0 \u2588\u2584 4\n");
}

TEST_CASE("a histogram whose largest bin is not above 1 is empty") {
    TPOLYNAT bins;
    bins.PUSH(1);
    bins.PUSH(0);
    CAPTURE console;
    WRITE_HISTOGRAM(6, 2, bins);
    CHECK(console.TEXT() == "  \u2001\u2001\u2001\u2001\u2001\u2001\n"
                            "0 empty\u2001 2\n");
}
