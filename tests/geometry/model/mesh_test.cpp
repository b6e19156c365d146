#include "geometry/model/mesh.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("a new mesh has no points, faces or normals and its pivot at zero") {
    const TMESH mesh;
    CHECK(mesh.LENGTH == 0);
    CHECK(mesh.FACES.LENGTH == 0);
    CHECK(mesh.NORMALS.LENGTH == 0);
    CHECK(mesh.PIVOT == VZERO);
}

TEST_CASE("a mesh keeps its faces as records of 104 bytes") {
    TMESH mesh;
    TOLDFACE face;
    face.corners = {1, 2, 3, 3};
    face.colour = {0.5, 0, 0, 1};
    mesh.FACES.PUSH(&face);
    TOLDFACE found;
    mesh.FACES.GET(1, &found);
    CHECK(found.corners[3] == 3);
    CHECK(found.isVisible);
    CHECK(found.colour.x == 0.5);
}

TEST_CASE("INIT empties a mesh and DONE may come twice") {
    TMESH mesh;
    mesh.PUSH(VECTOR{1, 2, 3});
    mesh.NORMALS.PUSH(VECTOR{1, 0, 0});
    mesh.PIVOT = VNORM;
    mesh.INIT();
    CHECK(mesh.LENGTH == 0);
    CHECK(mesh.NORMALS.LENGTH == 0);
    CHECK(mesh.PIVOT == VZERO);
    mesh.DONE();
    mesh.DONE();
    mesh.INIT();
    mesh.PUSH(VECTOR{4, 5, 6});
    CHECK(mesh.GET(1) == VECTOR{4, 5, 6});
}
