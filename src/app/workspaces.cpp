#include "app/workspaces.hpp"

namespace morvane {
namespace {
constexpr KIND_WORD IMAGE_KINDS[] = {
    {IMAGE_GRAY, "gray"}, {IMAGE_FULLGRAY, "fullgray"}, {IMAGE_RGB, "rgb"}, {IMAGE_RGBA, "rgba"}};
constexpr KIND_WORD SCALAR_KINDS[] = {
    {TAG_MONO, "mono"}, {TAG_GRAY, "gray"}, {TAG_FULLGRAY, "fullgray"}};
constexpr KIND_WORD VECTOR_KINDS[] = {
    {VECTOR_FLOAT, "float"}, {VECTOR_INTEGER, "nat"}, {VECTOR_24BIT, "rgb"}};
constexpr KIND_WORD TENSOR_KINDS[] = {{TENSOR_FLOAT, "float"}, {TENSOR_INTEGER, "nat"}};

template <class FIELD> void INIT_KIND(FIELD &field, BYTE kind) { field.INIT(kind); }
template <class FIELD> void INIT_PLAIN(FIELD &field, BYTE) { field.INIT(); }

UTF16 SIZE_2D(const TIMAGE &image) {
    return "(" + GETSTRING(image.SIZEX()) + "x" + GETSTRING(image.SIZEY()) + ")";
}
template <class FIELD> UTF16 SIZE_3D(const FIELD &field) {
    return "(" + GETSTRING(field.SIZEX()) + "x" + GETSTRING(field.SIZEY()) + "x" +
           GETSTRING(field.SIZEZ()) + ")";
}

UTF16 DESCRIBE_IMAGE(const TIMAGE &image) {
    return DESCRIBE_KIND(IMAGE_KINDS, image.ID(), SIZE_2D(image));
}
template <class FIELD, const auto &KINDS> UTF16 DESCRIBE_3D(const FIELD &field) {
    return DESCRIBE_KIND(KINDS, field.ID(), SIZE_3D(field));
}
UTF16 DESCRIBE_MESH(const TMESH &mesh) {
    return "mesh(points:" + GETSTRING(mesh.LENGTH) + " faces:" + GETSTRING(mesh.FACES.LENGTH) +
           " normales:" + GETSTRING(mesh.NORMALS.LENGTH) + ")";
}
UTF16 DESCRIBE_LINE(const TCLOUD &cloud) {
    return "cloud(points:" + GETSTRING(cloud.GETPOINTLENGTH()) +
           " lines:" + GETSTRING(cloud.GETLINELENGTH()) +
           " objects:" + GETSTRING(cloud.GETOBJECTLENGTH()) + ")";
}

bool NOTEMPTY_2D(const TIMAGE &image) { return image.SIZEX() > 0 && image.SIZEY() > 0; }
template <class FIELD> bool NOTEMPTY_3D(const FIELD &field) {
    return field.SIZEX() > 0 && field.SIZEY() > 0 && field.SIZEZ() > 0;
}
template <class FIELD> bool NOTEMPTY_POINTS(const FIELD &points) { return points.LENGTH > 0; }

bool SAME_FRAME(const FRAME &a, const FRAME &b) {
    return a.MOVE() == b.MOVE() && a.MATRIX() == b.MATRIX();
}
bool SAME_2D(const TIMAGE &a, const TIMAGE &b) {
    return a.SIZEX() == b.SIZEX() && a.SIZEY() == b.SIZEY() &&
           SAME_FRAME(a.GETFRAME(), b.GETFRAME());
}
template <class FIELD> bool SAME_3D(const FIELD &a, const FIELD &b) {
    return a.SIZEX() == b.SIZEX() && a.SIZEY() == b.SIZEY() && a.SIZEZ() == b.SIZEZ() &&
           SAME_FRAME(a.GETFRAME(), b.GETFRAME());
}

constexpr WORKSPACE_WORDS<TIMAGE> IMAGE_WORDS = {.name = "image",
                                                 .dump = "image",
                                                 .current = "Image",
                                                 .list = "Imagelist",
                                                 .field = "imagefield",
                                                 .kind = IMAGE_FULLGRAY,
                                                 .init = INIT_KIND<TIMAGE>,
                                                 .describe = DESCRIBE_IMAGE,
                                                 .size = SIZE_2D,
                                                 .notEmpty = NOTEMPTY_2D,
                                                 .same = SAME_2D};
constexpr WORKSPACE_WORDS<T3D_SCALAR_ANALYSIS> SCALAR_WORDS = {
    .name = "scalar",
    .dump = "scalar",
    .current = "Scalar",
    .list = "Scalarlist",
    .field = "scalarfield",
    .kind = TAG_FULLGRAY,
    .init = INIT_KIND<T3D_SCALAR_ANALYSIS>,
    .describe = DESCRIBE_3D<T3D_SCALAR_ANALYSIS, SCALAR_KINDS>,
    .size = SIZE_3D<T3D_SCALAR_ANALYSIS>,
    .notEmpty = NOTEMPTY_3D<T3D_SCALAR_ANALYSIS>,
    .same = SAME_3D<T3D_SCALAR_ANALYSIS>};
constexpr WORKSPACE_WORDS<T3D_VECTOR_ANALYSIS> VECTOR_WORDS = {
    .name = "vector",
    .dump = "vector",
    .current = "Vector field",
    .list = "Vector field list",
    .field = "vectorfield",
    .kind = VECTOR_FLOAT,
    .init = INIT_KIND<T3D_VECTOR_ANALYSIS>,
    .describe = DESCRIBE_3D<T3D_VECTOR_ANALYSIS, VECTOR_KINDS>,
    .size = SIZE_3D<T3D_VECTOR_ANALYSIS>,
    .notEmpty = NOTEMPTY_3D<T3D_VECTOR_ANALYSIS>,
    .same = SAME_3D<T3D_VECTOR_ANALYSIS>};
constexpr WORKSPACE_WORDS<T3D_TENSOR_ANALYSIS> TENSOR_WORDS = {
    .name = "tensor",
    .dump = "tensor",
    .current = "Tensor field",
    .list = "Tensor field list",
    .field = "tensorfield",
    .kind = TENSOR_FLOAT,
    .init = INIT_KIND<T3D_TENSOR_ANALYSIS>,
    .describe = DESCRIBE_3D<T3D_TENSOR_ANALYSIS, TENSOR_KINDS>,
    .size = SIZE_3D<T3D_TENSOR_ANALYSIS>,
    .notEmpty = NOTEMPTY_3D<T3D_TENSOR_ANALYSIS>,
    .same = SAME_3D<T3D_TENSOR_ANALYSIS>};
// Meshes and lines have no kinds, no sizes and no frame; their `use` prints nothing.
constexpr WORKSPACE_WORDS<TMESH> MESH_WORDS = {.name = "mesh",
                                               .dump = "mesh",
                                               .current = "Mesh",
                                               .list = "Meshlist",
                                               .field = "mesh",
                                               .kind = 0,
                                               .init = INIT_PLAIN<TMESH>,
                                               .describe = DESCRIBE_MESH,
                                               .size = nullptr,
                                               .notEmpty = NOTEMPTY_POINTS<TMESH>,
                                               .same = nullptr};
constexpr WORKSPACE_WORDS<TCLOUD> LINE_WORDS = {.name = "line",
                                                .dump = "cloud",
                                                .current = "cloud",
                                                .list = "Cloudlist",
                                                .field = "line",
                                                .kind = 0,
                                                .init = INIT_PLAIN<TCLOUD>,
                                                .describe = DESCRIBE_LINE,
                                                .size = nullptr,
                                                .notEmpty = NOTEMPTY_POINTS<TCLOUD>,
                                                .same = nullptr};
} // namespace

TWORKSPACE<TIMAGE> IMAGES(IMAGE_WORDS);
TWORKSPACE<T3D_SCALAR_ANALYSIS> SCALARS(SCALAR_WORDS);
TWORKSPACE<T3D_VECTOR_ANALYSIS> VECTORS(VECTOR_WORDS);
TWORKSPACE<T3D_TENSOR_ANALYSIS> TENSORS(TENSOR_WORDS);
TWORKSPACE<TMESH> MESHES(MESH_WORDS);
TWORKSPACE<TCLOUD> LINES(LINE_WORDS);

void RESETKINDS() {
    IMAGES.RESETKIND();
    SCALARS.RESETKIND();
    VECTORS.RESETKIND();
    TENSORS.RESETKIND();
}

void NEW() {
    RESETKINDS();
    IMAGES.INIT();
    SCALARS.INIT();
    VECTORS.INIT();
    TENSORS.INIT();
    MESHES.INIT();
    LINES.INIT();
}

void DUMP() {
    IMAGES.DUMP();
    SCALARS.DUMP();
    VECTORS.DUMP();
    TENSORS.DUMP();
    MESHES.DUMP();
    LINES.DUMP();
}
} // namespace morvane
