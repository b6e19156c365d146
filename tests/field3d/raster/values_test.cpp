#include "field3d/raster/values.hpp"

#include "support/capture.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// 3 x 2 x 1 voxels: 0 5 9 / 200 5 7
void FILL(T3DGRAY &field) {
    constexpr BYTE values[] = {0, 5, 9, 200, 5, 7};
    field.INIT(3, 2, 1);
    for (NAT i = 0; i < 6; ++i)
        field._PUTINDEX(i + 1, values[i]);
}
} // namespace

TEST_CASE("smallest, smallest above 0 and largest are those of the window") {
    T3DGRAY field;
    FILL(field);
    CHECK(GETLIMITS(field).min == 0);
    CHECK(GETLIMITS(field).min0 == 5);
    CHECK(GETLIMITS(field).max == 200);
    field.WINDOW(2, 1, 1, 3, 2, 1);
    CHECK(GETLIMITS(field).min == 5);
    CHECK(GETLIMITS(field).max == 9);
}

TEST_CASE("without a voxel above 0 the smallest keeps its start value") {
    CHECK(GETLIMITS(T3DGRAY()).min0 == 255);
    CHECK(GETLIMITS(T3DFULLGRAY(2, 2, 2)).min0 == 65535);
    CHECK(GETLIMITS(T3DFULLGRAY(2, 2, 2)).max == 0);
}

TEST_CASE("1 bit answers 0, 1 and 1 without looking") {
    const T3DMONO field(2, 2, 2);
    CHECK(GETLIMITS(field).min == 0);
    CHECK(GETLIMITS(field).min0 == 1);
    CHECK(GETLIMITS(field).max == 1);
}

TEST_CASE("count and sum take the voxels in the range, both ends included") {
    T3DGRAY field;
    FILL(field);
    CHECK(COUNT_RANGE(field, 5, 9) == 4);
    CHECK(SUM_RANGE(field, 5, 9) == 26);
    CHECK(COUNT_RANGE(field, -7, 1000) == 6);
    CHECK(COUNT_RANGE(field, 300, 400) == 0);
    CHECK(COUNT_RANGE(field, 9, 5) == 0);
}

TEST_CASE("a 1-bit field has no grey values and answers 0, even when voxels are set") {
    T3DMONO field(2, 2, 2);
    field.PUT(1, 1, 1, true);
    CHECK(COUNT_RANGE(field, 0, 1) == 0);
    CHECK(SUM_RANGE(field, 0, 1) == 0);
}

TEST_CASE("a field is plain when all its voxels hold one value") {
    T3DGRAY field(2, 2, 2);
    CHECK(IFPLAIN(field));
    field.PUT(2, 2, 2, 1);
    CHECK_FALSE(IFPLAIN(field));
    CHECK_FALSE(IFPLAIN(T3DGRAY()));
}

TEST_CASE("replaced values and their new value are limited to the voxel range") {
    T3DGRAY field;
    FILL(field);
    REPLACE_RANGE(field, 9, 1000, 900);
    CHECK(field._GETINDEX(3) == 255);
    CHECK(field._GETINDEX(4) == 255);
    CHECK(field._GETINDEX(6) == 7);
    T3DMONO bits(2, 1, 1);
    REPLACE_RANGE(bits, 0, 0, 7);
    CHECK(bits.GET(2, 1, 1));
}

TEST_CASE("a table replaces each voxel v by its entry v+1, limited") {
    T3DGRAY field;
    FILL(field);
    TPOLYNAT table(256);
    for (NAT i = 1; i <= 256; ++i)
        table.PUT(i, i == 6 ? -4 : i == 10 ? 999 : i - 1);
    SETRANGE(field, table);
    CHECK(field._GETINDEX(2) == 0);
    CHECK(field._GETINDEX(3) == 255);
    CHECK(field._GETINDEX(6) == 7);
    SETRANGE(field, TPOLYNAT(10)); // another length: nothing
    CHECK(field._GETINDEX(6) == 7);
    T3DMONO bits(2, 1, 1);
    SETRANGE(bits, TPOLYNAT(256));
    CHECK_FALSE(bits.GET(1, 1, 1));
}

TEST_CASE("invert is the bitwise complement of every width") {
    T3DGRAY gray(1, 1, 1);
    T3DFULLGRAY full(1, 1, 1);
    T3DMONO mono(1, 1, 1);
    gray.PUT(1, 1, 1, 5);
    INVERT(gray);
    INVERT(full);
    INVERT(mono);
    CHECK(gray.GET(1, 1, 1) == 250);
    CHECK(full.GET(1, 1, 1) == 65535);
    CHECK(mono.GET(1, 1, 1));
}

TEST_CASE("a histogram counts value v in bin v+1, inside the window") {
    T3DGRAY field;
    FILL(field);
    TPOLYNAT bins;
    HISTOGRAM(field, bins);
    CHECK(bins.LENGTH == 256);
    CHECK(bins.GET(6) == 2);
    CHECK(bins.GET(201) == 1);
    field.WINDOW(1, 1, 1, 2, 1, 1);
    HISTOGRAM(field, bins);
    CHECK(bins.GET(6) == 1);
    CHECK(bins.GET(201) == 0);
}

TEST_CASE("1-bit and empty fields have no bins") {
    TPOLYNAT bins(5);
    HISTOGRAM(T3DMONO(2, 2, 2), bins);
    CHECK(bins.LENGTH == 0);
    HISTOGRAM(T3DGRAY(), bins);
    CHECK(bins.LENGTH == 0);
}

TEST_CASE("the fast histogram of a large field counts three slices drawn at random") {
    T3DFULLGRAY field(100, 100, 5);
    for (NAT z = 1; z <= 5; ++z)
        for (NAT i = 1; i <= 10000; ++i)
            field._PUTINDEX(i + (z - 1) * 10000, static_cast<WORD>(z));
    RANDOM_STREAM random(1, 0);
    TPOLYNAT bins;
    bool differs = false;
    for (NAT run = 0; run < 40; ++run) {
        HISTOGRAM_FAST(field, bins, random);
        CHECK(bins.SUM() == 30000);
        differs = differs || bins.GET(2) != 10000;
    }
    CHECK(differs);
}

TEST_CASE("the fast histogram of a small field counts all slices") {
    T3DGRAY field;
    FILL(field);
    RANDOM_STREAM random(1, 0);
    TPOLYNAT bins;
    HISTOGRAM_FAST(field, bins, random);
    CHECK(bins.SUM() == 6);
}
