#include "app/image/image_filter_rows.hpp"

#include "app/histogram_handlers.hpp"
#include "app/image/image_handlers.hpp"

// The contents page of groups, filters and analysis of images: rows in the order of their
// registration. A synonym is a row of its own with the same handler.
namespace morvane {
namespace {
constexpr COMMAND_ROW GROUP_ROWS[] = {
    FUNCTION("group", IMAGE_GROUP_REF, EXACTLY(2), "image: name, range: range",
             "new := image.group default <128,255>",
             "number the connected groups of pixels in the range (4 neighbours)"),
    FUNCTION("group.add", IMAGE_GROUP_ADD_REF, EXACTLY(2), "image: name, range: range",
             "new := image.group.add default <64,127>",
             "number the groups of pixels in the range behind those of the target"),
    FUNCTION("group.min", IMAGE_GROUP_MIN_REF, EXACTLY(3),
             "image: name, range: range, n: number pixels",
             "new := image.group.min default <128,255> 10", "only groups of more than n pixels"),
    FUNCTION("group.minmax", IMAGE_GROUP_MINMAX_REF, EXACTLY(3),
             "image: name, range: range, sizes: range pixels",
             "new := image.group.minmax default <128,255> <10,500>",
             "only groups of so many pixels"),
    PROCEDURE("group.unsort", IMAGE_GROUP_UNSORT, EXACTLY(0), "", "image.group.unsort",
              "exchange the group numbers at random"),
    PROCEDURE("group.sort.inverse", IMAGE_GROUP_SORT_INVERSE, EXACTLY(1), "inverse: flag",
              "image.group.sort.inverse true", "sort the smallest first; default false"),
    PROCEDURE("group.sort.count", IMAGE_GROUP_SORT_COUNT, AT_MOST(1), "[most: number groups]",
              "image.group.sort.count 100",
              "number groups by pixel count, the largest 1; those behind the most become 0"),
    PROCEDURE("group.sort.border", IMAGE_GROUP_SORT_BORDER, AT_MOST(1), "[most: number groups]",
              "image.group.sort.border 100",
              "number groups by length of border, the largest 1; those behind the most become 0"),
    PROCEDURE("group.sort.fraction", IMAGE_GROUP_SORT_FRACTION, AT_MOST(1), "[most: number groups]",
              "image.group.sort.fraction 100",
              "number groups by border/count, the largest 1; those behind the most become 0"),
    PROCEDURE("group.sort.fraction.log", IMAGE_GROUP_SORT_FRACTION_LOG, AT_MOST(2),
              "[most: number groups, base: real]", "image.group.sort.fraction.log 100 10",
              "number groups by log(border/count), the largest 1; a base below 1 turns the order"),
    PROCEDURE("group.stat", IMAGE_GROUP_STAT, EXACTLY(1), "table: file",
              "image.group.stat groups.txt",
              "save a line number, border, count, border/count each"),
};
static_assert(ROWS_ARE_SOUND(GROUP_ROWS));

constexpr std::string_view STEP_PARAMETERS = "range: range, n: number neighbours, [value: number]";
constexpr std::string_view STEPS_PARAMETERS =
    "range: range, n: number neighbours, [value: number] | range: range, n1: number, n2: number, "
    "value1: number, value2: number";

constexpr COMMAND_ROW FILTER_ROWS[] = {
    PROCEDURE("softsmooth", IMAGE_SOFTSMOOTH, AT_MOST(1), "[count: number passes]",
              "image.softsmooth 2", "(8 * pixel + mean of 3x3) / 9"),
    PROCEDURE("smooth", IMAGE_SMOOTH, AT_MOST(1), "[count: number passes]", "image.smooth 4",
              "(pixel + mean of 3x3) / 2"),
    PROCEDURE("hardsmooth", IMAGE_HARDSMOOTH, AT_MOST(1), "[count: number passes]",
              "image.hardsmooth 2", "mean of 3x3"),
    PROCEDURE("unsharpmasking", IMAGE_UNSHARPMASKING, AT_MOST(1), "[count: number passes]",
              "image.unsharpmasking", "2 * pixel - mean of 3x3"),
    PROCEDURE("cleanup", IMAGE_CLEANUP, EXACTLY(0), "", "image.cleanup",
              "setadjust, smooth, and unsharpmasking twice"),
    PROCEDURE(
        "filter", IMAGE_FILTER, EXACTLY(10),
        "w1: real, w2: real, w3: real, w4: real, w5: real, w6: real, w7: real, w8: real, w9: real, "
        "divisor: real",
        "image.filter 1 2 1 2 4 2 1 2 1 16",
        "3x3 convolution: nine weights row by row, and what their sum is divided by"),
    PROCEDURE("fill", IMAGE_FILL, EXACTLY(0), "", "image.fill", "the pen to all pixels"),
    PROCEDURE("fill.random", IMAGE_FILL_RANDOM, EXACTLY(0), "", "image.fill.random",
              "random values of the whole pixel range"),
    PROCEDURE("fill.cube", IMAGE_FILL_CUBE, EXACTLY(2), "corner: point, corner: point",
              "image.fill.cube <0.25,0.25> <0.75,0.75>", "the pen to a rectangle (% abs & rel)"),
    PROCEDURE("fill.hole", IMAGE_FILL_HOLE, EXACTLY(1), "sizes: range pixels",
              "image.fill.hole <1,100>",
              "the pen to holes of such a size: zero pixels that do not reach the border"),
    PROCEDURE("fill.zero", IMAGE_FILL_ZERO, EXACTLY(0), "", "image.fill.zero",
              "zero pixels by interpolation of those around"),
    PROCEDURE("fill.gap", IMAGE_FILL_GAP, OWN_COUNT, "[corner: point, corner: point]",
              "image.fill.gap <10,10> <-10,-10>",
              "zero holes by interpolation, if given those within the area (% abs & rel)"),
    PROCEDURE(
        "shrink", IMAGE_SHRINK, OWN_COUNT, STEP_PARAMETERS, "image.shrink <128,255> 4",
        "pixels in the range with more than n neighbours outside become their mean, or value"),
    PROCEDURE(
        "erode", IMAGE_SHRINK, OWN_COUNT, STEP_PARAMETERS, "image.erode <128,255> 4 0",
        "pixels in the range with more than n neighbours outside become their mean, or value"),
    PROCEDURE(
        "grow", IMAGE_GROW, OWN_COUNT, STEP_PARAMETERS, "image.grow <128,255> 4",
        "pixels outside the range with more than n neighbours in it become their mean, or value"),
    PROCEDURE(
        "dilate", IMAGE_GROW, OWN_COUNT, STEP_PARAMETERS, "image.dilate <128,255> 4 255",
        "pixels outside the range with more than n neighbours in it become their mean, or value"),
    PROCEDURE("fullshrink", IMAGE_FULLSHRINK, OWN_COUNT, STEP_PARAMETERS,
              "image.fullshrink <128,255> 4 0", "shrink until nothing changes, at most 9999 times"),
    PROCEDURE("fullerode", IMAGE_FULLSHRINK, OWN_COUNT, STEP_PARAMETERS,
              "image.fullerode <128,255> 4 0", "shrink until nothing changes, at most 9999 times"),
    PROCEDURE("fullgrow", IMAGE_FULLGROW, OWN_COUNT, STEP_PARAMETERS,
              "image.fullgrow <128,255> 4 255", "grow until nothing changes, at most 9999 times"),
    PROCEDURE("fulldilate", IMAGE_FULLGROW, OWN_COUNT, STEP_PARAMETERS,
              "image.fulldilate <128,255> 4 255", "grow until nothing changes, at most 9999 times"),
    PROCEDURE("open", IMAGE_OPEN, OWN_COUNT, STEPS_PARAMETERS, "image.open <128,255> 4 4 0 255",
              "shrink, then grow; n and value of each step, or the same for both"),
    PROCEDURE("close", IMAGE_CLOSE, OWN_COUNT, STEPS_PARAMETERS, "image.close <128,255> 4 4 255 0",
              "grow, then shrink; n and value of each step, or the same for both"),
    PROCEDURE("remove.outliers", IMAGE_REMOVE_OUTLIERS, AT_MOST(1), "[factor: real]",
              "image.remove.outliers 1.5",
              "pixels beyond median ± quartile distance * factor become the median; border 0"),
};
static_assert(ROWS_ARE_SOUND(FILTER_ROWS));

constexpr std::string_view RANGE_PARAMETERS = "low: number, high: number | range: range";
constexpr std::string_view SCALED_PARAMETERS =
    "low: number, [scale: real], high: number | range: range";
constexpr std::string_view COLUMN_PARAMETERS = "[column: number, half: number pixels]";
constexpr std::string_view ROW_PARAMETERS = "[row: number, half: number pixels]";

constexpr COMMAND_ROW ANALYSIS_ROWS[] = {
    PROCEDURE("histogram", HISTOGRAM_SHOW<IMAGE_BINS>, EXACTLY(0), "", "image.histogram",
              "print each value that occurs, and its count"),
    PROCEDURE("histogram.image", HISTOGRAM_IMAGE<IMAGE_BINS>, EXACTLY(1), "chart: file",
              "image.histogram.image histogram.svg", "save the histogram as a chart"),
    PROCEDURE("histogram.raw", HISTOGRAM_RAW<IMAGE_BINS>, EXACTLY(1), "table: file",
              "image.histogram.raw histogram.txt", "save a line value, count each"),
    PROCEDURE("analysis", IMAGE_ANALYSIS, EXACTLY(0), "", "image.analysis",
              "print peaks, valleys and inflections of the histogram"),
    PROCEDURE("analysis.image", IMAGE_ANALYSIS_IMAGE, EXACTLY(1), "chart: file",
              "image.analysis.image analysis.svg", "save the histogram with these points"),
    PROCEDURE("analysis.raw", IMAGE_ANALYSIS_RAW, EXACTLY(1), "table: file",
              "image.analysis.raw analysis.txt", "save these points as a text"),
    PROCEDURE("window.sin", IMAGE_WINDOW_SIN, EXACTLY(0), "", "image.window.sin",
              "fall to 0 at the border along a sine"),
    PROCEDURE("window.cos", IMAGE_WINDOW_COS, EXACTLY(0), "", "image.window.cos",
              "fall to 0 at the border along a raised cosine"),
    PROCEDURE("radial", IMAGE_RADIAL, EXACTLY(1), "center: pair pixels", "image.radial <32,32>",
              "paint the angle around the point: a turn is the pixel range"),
    PROCEDURE("radial.half", IMAGE_RADIAL_HALF, EXACTLY(1), "center: pair pixels",
              "image.radial.half <32,32>",
              "paint the angle around the point: half a turn is the pixel range"),
    PROCEDURE("radial.quater", IMAGE_RADIAL_QUATER, EXACTLY(1), "center: pair pixels",
              "image.radial.quater <32,32>",
              "paint the angle around the point: a quarter of a turn is the pixel range"),
    PROCEDURE("distance", IMAGE_DISTANCE, AT_LEAST(1), "points: pair pixels ...",
              "image.distance <1,1> <64,64>", "paint the distance to the nearest of the points"),
    PROCEDURE("flip.x", IMAGE_FLIP_X, EXACTLY(0), "", "image.flip.x", "mirror left and right"),
    PROCEDURE("flip.y", IMAGE_FLIP_Y, EXACTLY(0), "", "image.flip.y", "mirror top and bottom"),
    PROCEDURE("rotate.90", IMAGE_ROTATE_90, EXACTLY(0), "", "image.rotate.90",
              "turn clockwise by 90°"),
    PROCEDURE("rotate.180", IMAGE_ROTATE_180, EXACTLY(0), "", "image.rotate.180", "turn by 180°"),
    PROCEDURE("rotate.270", IMAGE_ROTATE_270, EXACTLY(0), "", "image.rotate.270",
              "turn clockwise by 270°"),
    PROCEDURE("rotate.360", IMAGE_ROTATE_360, EXACTLY(0), "", "image.rotate.360",
              "turn by 360°: nothing changes"),
    PROCEDURE("rotate.-90", IMAGE_ROTATE_270, EXACTLY(0), "", "image.rotate.-90",
              "turn anticlockwise by 90°"),
    PROCEDURE("rotate.-180", IMAGE_ROTATE_180, EXACTLY(0), "", "image.rotate.-180", "turn by 180°"),
    PROCEDURE("rotate.-270", IMAGE_ROTATE_90, EXACTLY(0), "", "image.rotate.-270",
              "turn anticlockwise by 270°"),
    PROCEDURE("rotate.-360", IMAGE_ROTATE_360, EXACTLY(0), "", "image.rotate.-360",
              "turn by 360°: nothing changes"),
    PROCEDURE("getsphere", IMAGE_GETSPHERE, EXACTLY(2), "range: range, radius: real pixels",
              "image.getsphere <128,255> 20",
              "largest circles in the range, none overlapping, as points (x,y,z,r) of a line"),
    FUNCTION("object.center", IMAGE_OBJECT_CENTER_REF, OWN_COUNT, SCALED_PARAMETERS,
             "a := image.object.center 1 255", "middle of the bounding box <x,y>, times scale"),
    FUNCTION("object.size", IMAGE_OBJECT_SIZE_REF, OWN_COUNT, RANGE_PARAMETERS,
             "a := image.object.size 1 255", "size of the bounding box <x,y>, both ends included"),
    LAMBDA("getbackground", IMAGE_GETBACKGROUND_LAMD, "a := image.getbackground",
           "most frequent value, of colours by plane"),
    LAMBDA("min", IMAGE_MIN_LAMD, "a := image.min", "smallest value, of colours by plane"),
    LAMBDA("max", IMAGE_MAX_LAMD, "a := image.max", "largest value, of colours by plane"),
    FUNCTION("count", IMAGE_COUNT_REF, OWN_COUNT, RANGE_PARAMETERS, "a := image.count 1 255",
             "pixels with a value in the range, of colours by plane"),
    FUNCTION("sum", IMAGE_SUM_REF, OWN_COUNT, RANGE_PARAMETERS, "a := image.sum 1 255",
             "sum of the values in the range, of colours by plane"),
    FUNCTION("statistic", IMAGE_STATISTIC_REF, OWN_COUNT, SCALED_PARAMETERS,
             "a := image.statistic 1 0.5 255",
             "<mean, sd> of the values in the range, times scale"),
    FUNCTION("quantile", IMAGE_QUANTILE_REF, OWN_COUNT, SCALED_PARAMETERS,
             "a := image.quantile 1 255", "list of min, q.25, median, q.75, max, times scale"),
    FUNCTION("centroid", IMAGE_CENTROID_REF, OWN_COUNT, RANGE_PARAMETERS,
             "a := image.centroid 1 255", "mean position <x,y> of the pixels in the range"),
    FUNCTION("cog", IMAGE_COG_REF, OWN_COUNT, RANGE_PARAMETERS, "a := image.cog 1 255",
             "centre of gravity <x,y>: positions weighted by value"),
    PROCEDURE("vertical.sum", IMAGE_VERTICAL_SUM, AT_MOST(2), COLUMN_PARAMETERS,
              "image.vertical.sum", "print the sum of each column, or of a column ± half"),
    PROCEDURE("vertical.mean", IMAGE_VERTICAL_MEAN, AT_MOST(2), COLUMN_PARAMETERS,
              "image.vertical.mean 128 50", "print the mean of each column"),
    PROCEDURE("vertical.sd", IMAGE_VERTICAL_SD, AT_MOST(2), COLUMN_PARAMETERS,
              "image.vertical.sd 128", "print the standard deviation of each column"),
    PROCEDURE("horizontal.sum", IMAGE_HORIZONTAL_SUM, AT_MOST(2), ROW_PARAMETERS,
              "image.horizontal.sum", "print the sum of each row, or of a row ± half"),
    PROCEDURE("horizontal.mean", IMAGE_HORIZONTAL_MEAN, AT_MOST(2), ROW_PARAMETERS,
              "image.horizontal.mean 128 50", "print the mean of each row"),
    PROCEDURE("horizontal.sd", IMAGE_HORIZONTAL_SD, AT_MOST(2), ROW_PARAMETERS,
              "image.horizontal.sd 128", "print the standard deviation of each row"),
};
static_assert(ROWS_ARE_SOUND(ANALYSIS_ROWS));
} // namespace

const COMMAND_SET IMAGE_GROUP_SET{"image.", GROUP_ROWS};
const COMMAND_SET IMAGE_FILTER_SET{"image.", FILTER_ROWS};
const COMMAND_SET IMAGE_ANALYSIS_SET{"image.", ANALYSIS_ROWS};
} // namespace morvane
