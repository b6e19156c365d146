#include "app/line/line_commands.hpp"

#include "app/line/line_handlers.hpp"
#include "app/workspaces.hpp"
#include "geometry/model/cloud_edit.hpp"
#include "script/engine/macro.hpp"
#include "script/workspace/setting_handlers.hpp"

// The contents page of the line commands: rows in the order of their registration. A synonym is a
// row of its own with the same handler.
namespace morvane {
namespace {
// Commands that are one operation on the cloud in use, without or with one number.
template <auto OPERATION> void EDIT(TMACRO *) { static_cast<void>(OPERATION(LINES.CURRENT())); }

template <auto OPERATION> void EDIT_BY(TMACRO *engine) {
    static_cast<void>(OPERATION(LINES.CURRENT(), GETREAL(engine->GETPARAMETER(1))));
}

constexpr COMMAND_ROW ROWS[] = {
    // Lists and state.
    // Deliberate: the three counts of a cloud repeat the namespace in their names.
    LAMBDA("line.objects", LINE_OBJECTS_LAMD, "a := line.line.objects", "number of objects"),
    LAMBDA("line.lines", LINE_LINES_LAMD, "a := line.line.lines", "number of lines"),
    LAMBDA("line.points", LINE_POINTS_LAMD, "a := line.line.points", "number of points"),
    PROCEDURE("use", USE_HANDLER<&LINES>, OWN_COUNT, "cloud: name", "line.use default",
              "make a cloud current, a new one when the name is new"),
    PROCEDURE("swap", SWAP_HANDLER<&LINES>, OWN_COUNT, "first: name, second: name",
              "line.swap default tracts", "exchange two names"),
    PROCEDURE("name", NAME_HANDLER<&LINES>, OWN_COUNT, "new: name", "line.name default",
              "rename the current cloud"),
    PROCEDURE("dump", DUMP_HANDLER<&LINES>, OWN_COUNT, "", "line.dump", "list the line clouds"),
    PROCEDURE("clear", LINE_CLEAR, EXACTLY(0), "", "line.clear", "an empty cloud"),
    PROCEDURE("clean", LINE_CLEAR, EXACTLY(0), "", "line.clean", "an empty cloud"),
    PROCEDURE("new", LINE_CLEAR, EXACTLY(0), "", "line.new", "an empty cloud"),

    // Files.
    PROCEDURE("load", LINE_LOAD, OWN_COUNT, "lines: file, [share: real percent]",
              "line.load lines.txt 50", "load a text file, or a random share of its lines"),
    PROCEDURE("save", LINE_SAVE, EXACTLY(1), "lines: file", "line.save lines.trk",
              "save by extension: dxf, obj, vtp, vtk, trk, mel, mv3d, swc, else text"),
    PROCEDURE("save.dxf", LINE_SAVE_DXF, EXACTLY(1), "lines: file", "line.save.dxf lines.dxf",
              "save polylines"),
    PROCEDURE("save.obj", LINE_SAVE_OBJ, EXACTLY(1), "lines: file", "line.save.obj lines.obj",
              "save points and lines"),
    PROCEDURE("save.vtp", LINE_SAVE_VTK, EXACTLY(1), "lines: file", "line.save.vtp lines.vtp",
              "save XML PolyData"),
    PROCEDURE("save.vtk", LINE_SAVE_VTK, EXACTLY(1), "lines: file", "line.save.vtk lines.vtk",
              "save XML PolyData"),
    PROCEDURE("save.trackvis", LINE_SAVE_TRACKVIS, EXACTLY(1), "lines: file",
              "line.save.trackvis lines.trk", "save tracts"),
    PROCEDURE("savetrackvis", LINE_SAVE_TRACKVIS, EXACTLY(1), "lines: file",
              "line.savetrackvis lines.trk", "save tracts"),
    PROCEDURE("save.maya", LINE_SAVE_MAYA, EXACTLY(1), "lines: file", "line.save.maya lines.mel",
              "save a script that makes curves"),
    PROCEDURE("savemaya", LINE_SAVE_MAYA, EXACTLY(1), "lines: file", "line.savemaya lines.mel",
              "save a script that makes curves"),
    PROCEDURE("save.mv3d", LINE_SAVE_MV3D, EXACTLY(1), "lines: file", "line.save.mv3d lines.mv3d",
              "save numbered points"),
    PROCEDURE("save.swc", LINE_SAVE_SWC, EXACTLY(1), "lines: file", "line.save.swc lines.swc",
              "save points with their parents"),
    PROCEDURE("save.txt", LINE_SAVE_TXT, EXACTLY(1), "lines: file", "line.save.txt lines.txt",
              "save text, which line.load reads"),
    PROCEDURE("savetxt", LINE_SAVE_TXT, EXACTLY(1), "lines: file", "line.savetxt lines.txt",
              "save text, which line.load reads"),

    // Values and shape.
    FUNCTION("copy", LINE_COPY_REF, AT_MOST(1), "[factor: real | factors: vector | factors: hyper]",
             "new := line.copy <2,2,2>",
             "copy of the cloud, scaled; t is kept or scaled by the fourth"),
    FUNCTION("copyscale", LINE_COPY_REF, AT_MOST(1),
             "[factor: real | factors: vector | factors: hyper]", "new := line.copyscale <2,2,2,1>",
             "copy of the cloud, scaled"),
    PROPERTY("object.name", LINE_OBJECT_NAME, LINE_OBJECT_NAME_REF, OWN_COUNT,
             "[object: number,] name: text", "line.object.name 1 tract",
             "name of an object, of the last one without a number"),
    PROCEDURE("center", EDIT<CENTER>, EXACTLY(0), "", "line.center",
              "the centre of all points to zero"),
    PROCEDURE("center.objects", EDIT<CENTER_OBJECTS>, EXACTLY(0), "", "line.center.objects",
              "the centre of each object to zero"),
    PROCEDURE("number", EDIT<NUMBER_T>, EXACTLY(0), "", "line.number",
              "running number of a point in t"),
    PROCEDURE("distance", EDIT<DISTANCE_T>, EXACTLY(0), "", "line.distance",
              "distance to the nearest neighbour in t"),
    PROCEDURE("length", EDIT<LENGTH_T>, EXACTLY(0), "", "line.length",
              "path length from the line's start in t"),
    PROCEDURE("mean.t", EDIT<MEAN_T>, EXACTLY(0), "", "line.mean.t",
              "mean of a line's t on the line"),
    PROCEDURE("sd.t", EDIT<SD_T>, EXACTLY(0), "", "line.sd.t", "standard deviation of a line's t"),
    PROCEDURE("min.t", EDIT<MIN_T>, EXACTLY(0), "", "line.min.t", "smallest t of a line"),
    PROCEDURE("median.t", EDIT<MEDIAN_T>, EXACTLY(0), "", "line.median.t", "median of a line's t"),
    PROCEDURE("max.t", EDIT<MAX_T>, EXACTLY(0), "", "line.max.t", "largest t of a line"),
    PROCEDURE("erase.t.min", EDIT_BY<ERASE_T_MIN>, EXACTLY(1), "limit: real", "line.erase.t.min 1",
              "erase lines with t below the limit"),
    PROCEDURE("erase.t.max", EDIT_BY<ERASE_T_MAX>, EXACTLY(1), "limit: real", "line.erase.t.max 9",
              "erase lines with t above the limit"),
    PROCEDURE("erase.length.min", EDIT_BY<ERASE_LENGTH_MIN>, EXACTLY(1), "limit: real mm",
              "line.erase.length.min 10", "erase shorter lines"),
    PROCEDURE("erase.length.max", EDIT_BY<ERASE_LENGTH_MAX>, EXACTLY(1), "limit: real mm",
              "line.erase.length.max 500", "erase longer lines"),
    PROCEDURE("erase.duplicates", EDIT<ERASE_DUPLICATES>, EXACTLY(0), "", "line.erase.duplicates",
              "erase lines that stand twice"),
    PROCEDURE("erase.duplicates.near", EDIT_BY<ERASE_DUPLICATES_NEAR>, EXACTLY(1),
              "distance: real mm", "line.erase.duplicates.near 0.5",
              "erase lines near an earlier one"),
    PROCEDURE("erase.duplicates.begin", EDIT_BY<ERASE_DUPLICATES_BEGIN>, EXACTLY(1),
              "distance: real mm", "line.erase.duplicates.begin 0.5",
              "erase lines that begin near an earlier one"),
    PROCEDURE("mean.duplicates.near", EDIT_BY<MEAN_DUPLICATES_NEAR>, EXACTLY(1),
              "distance: real mm", "line.mean.duplicates.near 0.5",
              "average points that are near each other"),
    PROCEDURE("discrete.3d", EDIT_BY<DISCRETE_3D>, EXACTLY(1), "step: real mm",
              "line.discrete.3d 0.5", "round x, y, z to multiples of the step"),
    PROCEDURE("discrete", EDIT_BY<DISCRETE>, EXACTLY(1), "step: real", "line.discrete 0.5",
              "round x, y, z, t to multiples of the step"),
    PROCEDURE("vector.norm", EDIT<VECTOR_NORM>, EXACTLY(0), "", "line.vector.norm",
              "lines of two points get length 1"),
    PROCEDURE("vector.normscale", EDIT_BY<VECTOR_NORMSCALE>, EXACTLY(1), "length: real mm",
              "line.vector.normscale 2", "lines of two points get that length"),
    PROCEDURE("vector.scale", EDIT_BY<VECTOR_SCALE>, EXACTLY(1), "factor: real",
              "line.vector.scale 2", "lines of two points times a factor"),
    PROCEDURE("vector.minscale", EDIT<VECTOR_MINSCALE>, EXACTLY(0), "", "line.vector.minscale",
              "scale lines of two points until the shortest has length 1"),
    PROCEDURE("vector.maxscale", EDIT<VECTOR_MAXSCALE>, EXACTLY(0), "", "line.vector.maxscale",
              "scale lines of two points until the longest has length 1"),
    PROCEDURE("vector.negate", EDIT<VECTOR_NEGATE>, EXACTLY(0), "", "line.vector.negate",
              "lines of two points point the other way"),
    PROCEDURE("vector.invert", EDIT<VECTOR_INVERT>, EXACTLY(0), "", "line.vector.invert",
              "lines of two points change their ends"),

    // Drawing into the scalar field in use.
    PROCEDURE("draw.value", LINE_DRAW_VALUE, EXACTLY(0), "", "line.draw.value",
              "draw with the value of the scalar field"),
    PROCEDURE("draw.value.t", LINE_DRAW_VALUE_T, EXACTLY(0), "", "line.draw.value.t",
              "draw with that value times t"),
    PROCEDURE("draw.t", LINE_DRAW_T, EXACTLY(0), "", "line.draw.t", "draw with t"),
    PROCEDURE("draw.point", LINE_DRAW_POINT, EXACTLY(0), "", "line.draw.point",
              "one voxel for each point"),
    PROCEDURE("draw.point.solid", LINE_DRAW_POINT_SOLID, EXACTLY(0), "", "line.draw.point.solid",
              "a block of 27 voxels for each point"),
    PROCEDURE("draw.sphere", LINE_DRAW_SPHERE, EXACTLY(1), "radius: real voxels",
              "line.draw.sphere 3", "a shell around each point"),
    PROCEDURE("draw.sphere.solid", LINE_DRAW_SPHERE_SOLID, EXACTLY(1), "radius: real voxels",
              "line.draw.sphere.solid 3", "a ball around each point"),
    PROCEDURE("draw.cube", LINE_DRAW_CUBE, EXACTLY(1), "radius: real voxels", "line.draw.cube 3",
              "the faces of a cube around each point"),
    PROCEDURE("draw.cube.solid", LINE_DRAW_CUBE_SOLID, EXACTLY(1), "radius: real voxels",
              "line.draw.cube.solid 3", "a cube around each point"),
    PROCEDURE("draw.line", LINE_DRAW_LINE, EXACTLY(0), "", "line.draw.line",
              "the segments of each line"),
    PROCEDURE("draw.line.solid", LINE_DRAW_LINE_SOLID, EXACTLY(0), "", "line.draw.line.solid",
              "the segments of each line, three voxels thick"),
    PROCEDURE("draw", LINE_DRAW, EXACTLY(0), "", "line.draw",
              "the segments of each line, and the point of a line of one"),
    PROCEDURE("draw.solid", LINE_DRAW_SOLID, EXACTLY(0), "", "line.draw.solid",
              "the segments of each line, and the point of a line of one, three voxels thick"),
};
static_assert(ROWS_ARE_SOUND(ROWS));
} // namespace

const COMMAND_SET LINE_SET{"line.", ROWS};
} // namespace morvane
