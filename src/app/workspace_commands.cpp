#include "app/workspace_commands.hpp"

#include "app/workspaces.hpp"
#include "script/workspace/setting_handlers.hpp"

namespace morvane {
namespace {
void NEW_ALL(TMACRO *) { NEW(); }
void DUMP_ALL(TMACRO *) { DUMP(); }

void MESH_NEW(TMACRO *) {
    MESHES.CURRENT().DONE();
    MESHES.CURRENT().INIT();
}

constexpr COMMAND_ROW PROGRAM_ROWS[] = {
    PROCEDURE("clear", NEW_ALL, OWN_COUNT, "", "clear", "empty all lists of fields"),
    PROCEDURE("clean", NEW_ALL, OWN_COUNT, "", "clean", "empty all lists of fields"),
    PROCEDURE("new", NEW_ALL, OWN_COUNT, "", "new", "empty all lists of fields"),
    PROCEDURE("dump", DUMP_ALL, OWN_COUNT, "", "dump", "list all fields"),
};
static_assert(ROWS_ARE_SOUND(PROGRAM_ROWS));

constexpr COMMAND_ROW IMAGE_ROWS[] = {
    PROCEDURE("8bit", (KIND_HANDLER<&IMAGES, IMAGE_GRAY>), OWN_COUNT, "", "image.8bit",
              "new images have 8 bits"),
    PROCEDURE("16bit", (KIND_HANDLER<&IMAGES, IMAGE_FULLGRAY>), OWN_COUNT, "", "image.16bit",
              "new images have 16 bits (default)"),
    PROCEDURE("24bit", (KIND_HANDLER<&IMAGES, IMAGE_RGB>), OWN_COUNT, "", "image.24bit",
              "new images have colours"),
    PROCEDURE("32bit", (KIND_HANDLER<&IMAGES, IMAGE_RGBA>), OWN_COUNT, "", "image.32bit",
              "new images have colours and alpha"),
    PROCEDURE("40bit", (KIND_HANDLER<&IMAGES, IMAGE_ZRGB>), OWN_COUNT, "", "image.40bit",
              "new images have colours and depth"),
    PROCEDURE("use", USE_HANDLER<&IMAGES>, OWN_COUNT, "name: name", "image.use noise",
              "work on this image, a new one when there is none"),
    PROCEDURE("swap", SWAP_HANDLER<&IMAGES>, OWN_COUNT, "first: name, second: name",
              "image.swap noise default", "exchange two images"),
    PROCEDURE("name", NAME_HANDLER<&IMAGES>, OWN_COUNT, "name: name", "image.name clean",
              "rename the image"),
    PROCEDURE("dump", DUMP_HANDLER<&IMAGES>, OWN_COUNT, "", "image.dump", "list the images"),
};
static_assert(ROWS_ARE_SOUND(IMAGE_ROWS));

constexpr HANDLER TENSOR_SETINTEGER = KIND_HANDLER<&TENSORS, TENSOR_INTEGER>;

constexpr COMMAND_ROW TENSOR_ROWS[] = {
    PROCEDURE("integer", TENSOR_SETINTEGER, OWN_COUNT, "", "tensor.integer",
              "new tensor fields hold whole numbers"),
    PROCEDURE("int32", TENSOR_SETINTEGER, OWN_COUNT, "", "tensor.int32",
              "new tensor fields hold whole numbers"),
    PROCEDURE("int64", TENSOR_SETINTEGER, OWN_COUNT, "", "tensor.int64",
              "new tensor fields hold whole numbers"),
    PROCEDURE("nat", TENSOR_SETINTEGER, OWN_COUNT, "", "tensor.nat",
              "new tensor fields hold whole numbers"),
    PROCEDURE("float", (KIND_HANDLER<&TENSORS, TENSOR_FLOAT>), OWN_COUNT, "", "tensor.float",
              "new tensor fields hold reals (default)"),
    PROCEDURE("use", USE_HANDLER<&TENSORS>, OWN_COUNT, "name: name", "tensor.use fibres",
              "work on this tensor field, a new one when there is none"),
    PROCEDURE("swap", SWAP_HANDLER<&TENSORS>, OWN_COUNT, "first: name, second: name",
              "tensor.swap fibres default", "exchange two tensor fields"),
    PROCEDURE("name", NAME_HANDLER<&TENSORS>, OWN_COUNT, "name: name", "tensor.name clean",
              "rename the tensor field"),
    PROCEDURE("dump", DUMP_HANDLER<&TENSORS>, OWN_COUNT, "", "tensor.dump",
              "list the tensor fields"),
};
static_assert(ROWS_ARE_SOUND(TENSOR_ROWS));

constexpr COMMAND_ROW MESH_ROWS[] = {
    PROCEDURE("use", USE_HANDLER<&MESHES>, OWN_COUNT, "name: name", "mesh.use bone",
              "work on this mesh, a new one when there is none"),
    PROCEDURE("swap", SWAP_HANDLER<&MESHES>, OWN_COUNT, "first: name, second: name",
              "mesh.swap bone default", "exchange two meshes"),
    PROCEDURE("name", NAME_HANDLER<&MESHES>, OWN_COUNT, "name: name", "mesh.name clean",
              "rename the mesh"),
    PROCEDURE("dump", DUMP_HANDLER<&MESHES>, OWN_COUNT, "", "mesh.dump", "list the meshes"),
    PROCEDURE("clear", MESH_NEW, OWN_COUNT, "", "mesh.clear", "empty the mesh"),
    PROCEDURE("clean", MESH_NEW, OWN_COUNT, "", "mesh.clean", "empty the mesh"),
    PROCEDURE("new", MESH_NEW, OWN_COUNT, "", "mesh.new", "empty the mesh"),
};
static_assert(ROWS_ARE_SOUND(MESH_ROWS));
} // namespace

const COMMAND_SET PROGRAM_SET{"", PROGRAM_ROWS};
const COMMAND_SET IMAGE_SET{"image.", IMAGE_ROWS};
const COMMAND_SET TENSOR_SET{"tensor.", TENSOR_ROWS};
const COMMAND_SET MESH_SET{"mesh.", MESH_ROWS};
} // namespace morvane
