#include "app/image/targets.hpp"
#include "support/capture.hpp"

#include <new>

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("an image that memory does not suffice for is told and the script goes on") {
    CAPTURE console;
    WITH_MEMORY([] { throw std::bad_alloc(); });
    CHECK(console.TEXT() == "  Out of memory! Image not changed.\n");
}
