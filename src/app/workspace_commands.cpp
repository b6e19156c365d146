#include "app/workspace_commands.hpp"

#include "app/image/codec_commands.hpp"
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
    PROCEDURE("imagemagick.enable", IMAGEMAGICK_ENABLE, EXACTLY(0), "", "imagemagick.enable",
              "read and write images with ImageMagick (default)"),
    PROCEDURE("imagemagick.disable", IMAGEMAGICK_DISABLE, EXACTLY(0), "", "imagemagick.disable",
              "read and write images without ImageMagick"),
    PROCEDURE("freeimage.enable", FREEIMAGE_ENABLE, EXACTLY(0), "", "freeimage.enable",
              "read and write images with FreeImage (default)"),
    PROCEDURE("freeimage.disable", FREEIMAGE_DISABLE, EXACTLY(0), "", "freeimage.disable",
              "read and write images without FreeImage"),
};
static_assert(ROWS_ARE_SOUND(PROGRAM_ROWS));

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
const COMMAND_SET TENSOR_SET{"tensor.", TENSOR_ROWS};
const COMMAND_SET MESH_SET{"mesh.", MESH_ROWS};
} // namespace morvane
