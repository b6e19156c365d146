#include "app/workspaces.hpp"

#include "script/engine/macro.hpp"
#include "support/capture.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// The six lists as at start.
struct LISTS {
    CAPTURE console;
    TMACRO engine;
    LISTS() {
        engine.INIT();
        NEW();
    }
    ~LISTS() {
        LINE_DONE();
        MESH_DONE();
        TENSOR_DONE();
        VECTOR_DONE();
        SCALAR_DONE();
        IMAGE_DONE();
    }
    template <class LIST> std::string DUMPED(const LIST &list) {
        console.CLEAR();
        list.DUMP();
        return console.TEXT();
    }
    template <class LIST> std::string REFUSED(LIST &list) {
        console.CLEAR();
        CHECK(list.ASSIGN_TO(&engine, "default") == nullptr);
        const std::string &text = console.TEXT();
        return text.substr(0, text.find("!)"));
    }
    template <class LIST> std::string MISSING(LIST &list) {
        console.CLEAR();
        CHECK(list.ASSIGN_WITH(&engine, "lost") == nullptr);
        const std::string &text = console.TEXT();
        return text.substr(0, text.find(") in line"));
    }
};
} // namespace

TEST_CASE("new leaves one field DEFAULT in each list and resets the kinds") {
    LISTS lists;
    IMAGES.DEFAULTKIND = IMAGE_GRAY;
    SCALARS.DEFAULTKIND = TAG_MONO;
    VECTORS.DEFAULTKIND = VECTOR_24BIT;
    TENSORS.DEFAULTKIND = TENSOR_INTEGER;
    IMAGES.ASSIGN("a");
    LINES.ASSIGN("b");
    NEW();
    CHECK(IMAGES.DEFAULTKIND == 146);
    CHECK(SCALARS.DEFAULTKIND == 151);
    CHECK(VECTORS.DEFAULTKIND == 88);
    CHECK(TENSORS.DEFAULTKIND == 88);
    CHECK(IMAGES.LENGTH() == 1);
    CHECK(LINES.LENGTH() == 1);
    CHECK(IMAGES.CURRENT().ID() == 146);
    CHECK(SCALARS.CURRENT().ID() == 151);
    CHECK(VECTORS.CURRENT().ID() == 88);
    CHECK(TENSORS.CURRENT().ID() == 88);
}

TEST_CASE("every kind of image has its dump word, a depth image is unknown") {
    LISTS lists;
    for (const BYTE kind : {IMAGE_GRAY, IMAGE_RGB, IMAGE_RGBA, IMAGE_ZRGB}) {
        IMAGES.DEFAULTKIND = kind;
        IMAGES.ASSIGN("k" + GETSTRING(kind));
    }
    CHECK(lists.DUMPED(IMAGES) ==
          "***** dump.image *****\n  Image (1) in use: DEFAULT\n  (1):fullgray(0x0):DEFAULT\n"
          "  (2):gray(0x0):K145\n  (3):rgb(0x0):K161\n  (4):rgba(0x0):K162\n  (5):unknown:K165\n"
          "***** dump.image end *****\n");
}

TEST_CASE("every kind of scalar field has its dump word and three sizes") {
    LISTS lists;
    SCALARS.ASSIGN("a")->INIT(TAG_MONO, 2, 3, 4);
    SCALARS.ASSIGN("b")->INIT(TAG_GRAY, 1, 1, 1);
    CHECK(lists.DUMPED(SCALARS) ==
          "***** dump.scalar *****\n  Scalar (1) in use: DEFAULT\n"
          "  (1):fullgray(0x0x0):DEFAULT\n  (2):mono(2x3x4):A\n  (3):gray(1x1x1):B\n"
          "***** dump.scalar end *****\n");
}

TEST_CASE("every kind of vector field has its dump word") {
    LISTS lists;
    VECTORS.ASSIGN("a")->INIT(VECTOR_INTEGER);
    VECTORS.ASSIGN("b")->INIT(VECTOR_24BIT);
    CHECK(lists.DUMPED(VECTORS) ==
          "***** dump.vector *****\n  Vector field (1) in use: DEFAULT\n"
          "  (1):float(0x0x0):DEFAULT\n  (2):nat(0x0x0):A\n  (3):rgb(0x0x0):B\n"
          "***** dump.vector end *****\n");
}

TEST_CASE("a tensor field dumps as float or nat") {
    LISTS lists;
    TENSORS.ASSIGN("a")->INIT(TENSOR_INTEGER);
    CHECK(lists.DUMPED(TENSORS) ==
          "***** dump.tensor *****\n  Tensor field (1) in use: DEFAULT\n"
          "  (1):float(0x0x0):DEFAULT\n  (2):nat(0x0x0):A\n***** dump.tensor end *****\n");
}

TEST_CASE("a mesh dumps its points, faces and normals") {
    LISTS lists;
    TMESH &mesh = MESHES.CURRENT();
    mesh.PUSH(VECTOR{1, 2, 3});
    mesh.PUSH(VECTOR{2, 2, 3});
    mesh.NORMALS.PUSH(VECTOR{0, 0, 1});
    const TOLDFACE face;
    mesh.FACES.PUSH(&face);
    CHECK(lists.DUMPED(MESHES) == "***** dump.mesh *****\n  Mesh (1) in use: DEFAULT\n"
                                  "  (1):mesh(points:2 faces:1 normales:1):DEFAULT\n"
                                  "***** dump.mesh end *****\n");
}

TEST_CASE("a line cloud dumps its points, lines and objects under the word cloud") {
    LISTS lists;
    TCLOUD &cloud = LINES.CURRENT();
    cloud.NEWPOINT({1, 2, 3, 0});
    cloud.NEWPOINT({2, 2, 3, 0});
    cloud.NEWLINE(1);
    cloud.NEWOBJECT("fibre");
    CHECK(lists.DUMPED(LINES) == "***** dump.cloud *****\n  cloud (1) in use: DEFAULT\n"
                                 "  (1):cloud(points:2 lines:1 objects:1):DEFAULT\n"
                                 "***** dump.cloud end *****\n");
}

TEST_CASE("empty lists dump their own word") {
    LISTS lists;
    IMAGES.DONE();
    VECTORS.DONE();
    LINES.DONE();
    CHECK(lists.DUMPED(IMAGES) ==
          "***** dump.image *****\n  Imagelist empty!\n***** dump.image end *****\n");
    CHECK(lists.DUMPED(VECTORS) ==
          "***** dump.vector *****\n  Vector field list empty!\n***** dump.vector end *****\n");
    CHECK(lists.DUMPED(LINES) ==
          "***** dump.cloud *****\n  Cloudlist empty!\n***** dump.cloud end *****\n");
}

TEST_CASE("each list refuses its current field with its own word") {
    LISTS lists;
    const auto text = [](const char *word) {
        return "Syntax error (Same illegal assigment (" + std::string(word) +
               "[DEFAULT] := function " + word + "[DEFAULT])";
    };
    CHECK(lists.REFUSED(IMAGES) == text("imagefield"));
    CHECK(lists.REFUSED(SCALARS) == text("scalarfield"));
    CHECK(lists.REFUSED(VECTORS) == text("vectorfield"));
    CHECK(lists.REFUSED(TENSORS) == text("tensorfield"));
    CHECK(lists.REFUSED(MESHES) == text("mesh"));
    CHECK(lists.REFUSED(LINES) == text("line"));
}

TEST_CASE("each list reports a missing operand with its own word") {
    LISTS lists;
    CHECK(lists.MISSING(IMAGES) == "Error (Empty imagefield[lost]");
    CHECK(lists.MISSING(SCALARS) == "Error (Empty scalarfield[lost]");
    CHECK(lists.MISSING(VECTORS) == "Error (Empty vectorfield[lost]");
    CHECK(lists.MISSING(TENSORS) == "Error (Empty tensorfield[lost]");
}

TEST_CASE("scalar fields are the same when all three sizes, offset and matrix are") {
    LISTS lists;
    T3D_SCALAR_ANALYSIS &a = *SCALARS.ASSIGN("a"), &b = *SCALARS.ASSIGN("b");
    a.INIT(TAG_GRAY, 2, 2, 2);
    b.INIT(TAG_FULLGRAY, 2, 2, 2);
    CHECK(SCALARS.IFSAME(a, b));
    b._SETMOVE({1, 0, 0});
    CHECK_FALSE(SCALARS.IFSAME(a, b));
    b.INIT(TAG_GRAY, 2, 2, 3);
    CHECK_FALSE(SCALARS.IFSAME(a, b));
    b.INIT(TAG_GRAY, 2, 2, 2);
    b._SETMATRIX({{{{2, 0, 0}, {0, 1, 0}, {0, 0, 1}}}});
    CHECK_FALSE(SCALARS.IFSAME(a, b));
}

TEST_CASE("a field counts as not empty when all its sizes are above 0") {
    LISTS lists;
    CHECK_FALSE(SCALARS.ISNOTEMPTY(&SCALARS.CURRENT()));
    SCALARS.CURRENT().INIT(TAG_GRAY, 1, 1, 1);
    CHECK(SCALARS.ISNOTEMPTY(&SCALARS.CURRENT()));
    CHECK_FALSE(IMAGES.ISNOTEMPTY(&IMAGES.CURRENT()));
    CHECK_FALSE(LINES.ISNOTEMPTY(&LINES.CURRENT()));
}
