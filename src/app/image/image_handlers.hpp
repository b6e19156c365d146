#pragma once

#include "foundation/container/poly_types.hpp"

// Handlers of the image commands, by the file that holds them. Each reads its parameters, calls one
// operation on the image in use, or on images named in the line, and hands back a result.
namespace morvane {
class TMACRO;

// state.cpp
void IMAGE_IFIMAGE_LAMD(TMACRO *engine);
void IMAGE_IFPLAIN_LAMD(TMACRO *engine);
void IMAGE_SIZE_LAMD(TMACRO *engine);
void IMAGE_CENTER_LAMD(TMACRO *engine);
void IMAGE_VALUE(TMACRO *engine);
void IMAGE_VALUE_REF(TMACRO *engine);
void IMAGE_BACKGROUND(TMACRO *engine);
void IMAGE_BACKGROUND_REF(TMACRO *engine);
void IMAGE_NEW(TMACRO *engine);
void IMAGE_CLEAN(TMACRO *engine);
void IMAGE_OFFSET_CENTER(TMACRO *engine);

// files.cpp
void IMAGE_LOAD(TMACRO *engine);
void IMAGE_LOADPNM(TMACRO *engine);
void IMAGE_LOADBMP(TMACRO *engine);
void IMAGE_LOADIMGF(TMACRO *engine);
void IMAGE_LOADRGB(TMACRO *engine);
void IMAGE_LOADRAW(TMACRO *engine);
void IMAGE_SAVE(TMACRO *engine);

// copy.cpp
void IMAGE_CROP(TMACRO *engine);
void IMAGE_CROP_REF(TMACRO *engine);
void IMAGE_COPY_REF(TMACRO *engine);
void IMAGE_RESIZE_REF(TMACRO *engine);
void IMAGE_COPY_LABEL_REF(TMACRO *engine);
void IMAGE_SUBIMAGE_REF(TMACRO *engine);
void IMAGE_SUBIMAGE_REL_REF(TMACRO *engine);

// split.cpp
void IMAGE_SPLIT_RGB_REF(TMACRO *engine);
void IMAGE_SPLIT_RGBA_REF(TMACRO *engine);
void IMAGE_SPLIT_RAINBOW_REF(TMACRO *engine);
void IMAGE_SPLIT_RAINBOW_SHIFT_REF(TMACRO *engine);
void IMAGE_SPLIT_COLOR_REF(TMACRO *engine);
void IMAGE_SPLIT_COLORPOINT_REF(TMACRO *engine);
void IMAGE_COMBINE_REF(TMACRO *engine);

// combine.cpp
void IMAGE_SELECT_REF(TMACRO *engine);
void IMAGE_STACKING_REF(TMACRO *engine);
void IMAGE_OVER_REF(TMACRO *engine);
void IMAGE_SUB_REF(TMACRO *engine);
void IMAGE_SUB_ABS_REF(TMACRO *engine);
void IMAGE_SUB_RANGE_REF(TMACRO *engine);
void IMAGE_BETWEEN_REF(TMACRO *engine);
void IMAGE_ADD_REF(TMACRO *engine);
void IMAGE_ADD_MIN_REF(TMACRO *engine);
void IMAGE_ADD_MAX_REF(TMACRO *engine);
void IMAGE_MUL_REF(TMACRO *engine);
void IMAGE_DIV_REF(TMACRO *engine);
void IMAGE_MEAN_REF(TMACRO *engine);
void IMAGE_MEDIAN_REF(TMACRO *engine);
void IMAGE_INTENSITY_REF(TMACRO *engine);
void IMAGE_MASK_REF(TMACRO *engine);
void IMAGE_MASK_SAME_REF(TMACRO *engine);
void IMAGE_MASK_DIFFERENT_REF(TMACRO *engine);
void IMAGE_EXTRACT_COLOR_REF(TMACRO *engine);
void IMAGE_EXTRACT_COLORPOINT_REF(TMACRO *engine);

// values.cpp
void IMAGE_SETSIGN(TMACRO *engine);
void IMAGE_SETRANGE(TMACRO *engine);
void IMAGE_SETCROP(TMACRO *engine);
void IMAGE_SETLOWER(TMACRO *engine);
void IMAGE_SETHIGHER(TMACRO *engine);
void IMAGE_SETVALUE(TMACRO *engine);
void IMAGE_SETADJUST(TMACRO *engine);
void IMAGE_SETADJUST_ONE(TMACRO *engine);
void IMAGE_SETADJUST_PERCENTAGE(TMACRO *engine);
void IMAGE_SETADJUST_PERCENTAGE_WEAK(TMACRO *engine);
void IMAGE_SETADJUST_OUTLIERS(TMACRO *engine);
void IMAGE_SETEQUAL(TMACRO *engine);
void IMAGE_SETMONO(TMACRO *engine);
void IMAGE_SETGRAY(TMACRO *engine);
void IMAGE_SETHDRGRAY(TMACRO *engine);
void IMAGE_COLORIZE(TMACRO *engine);
void IMAGE_INVERT(TMACRO *engine);

// tones.cpp
void IMAGE_SETPEAKLOWER(TMACRO *engine);
void IMAGE_SETPEAKMIDDLE(TMACRO *engine);
void IMAGE_SETPEAKHIGHER(TMACRO *engine);
void IMAGE_SETPEAK_LOCAL(TMACRO *engine);
void IMAGE_SETPEAK_LOCALRED(TMACRO *engine);
void IMAGE_SETPEAK_LOCALGREEN(TMACRO *engine);
void IMAGE_SETPEAK_LOCALBLUE(TMACRO *engine);
void IMAGE_SETBALANCE(TMACRO *engine);
void IMAGE_SETBALANCE_SHADOWS(TMACRO *engine);
void IMAGE_SETBALANCE_MIDTONES(TMACRO *engine);
void IMAGE_SETBALANCE_HIGHLIGHTS(TMACRO *engine);
void IMAGE_SETMIN_RED(TMACRO *engine);
void IMAGE_SETMIN_GREEN(TMACRO *engine);
void IMAGE_SETMIN_BLUE(TMACRO *engine);
void IMAGE_SETMIN_YELLOW(TMACRO *engine);
void IMAGE_SETMIN_CYAN(TMACRO *engine);
void IMAGE_SETMIN_PURPLE(TMACRO *engine);
void IMAGE_SETMAX_RED(TMACRO *engine);
void IMAGE_SETMAX_GREEN(TMACRO *engine);
void IMAGE_SETMAX_BLUE(TMACRO *engine);
void IMAGE_SETMAX_YELLOW(TMACRO *engine);
void IMAGE_SETMAX_CYAN(TMACRO *engine);
void IMAGE_SETMAX_PURPLE(TMACRO *engine);

// Groups; rows in image_filter_rows.cpp
void IMAGE_GROUP_REF(TMACRO *engine);
void IMAGE_GROUP_ADD_REF(TMACRO *engine);
void IMAGE_GROUP_MIN_REF(TMACRO *engine);
void IMAGE_GROUP_MINMAX_REF(TMACRO *engine);
void IMAGE_GROUP_UNSORT(TMACRO *engine);
void IMAGE_GROUP_SORT_INVERSE(TMACRO *engine);
void IMAGE_GROUP_SORT_COUNT(TMACRO *engine);
void IMAGE_GROUP_SORT_BORDER(TMACRO *engine);
void IMAGE_GROUP_SORT_FRACTION(TMACRO *engine);
void IMAGE_GROUP_SORT_FRACTION_LOG(TMACRO *engine);
void IMAGE_GROUP_STAT(TMACRO *engine);

// Filters and morphology; rows in image_filter_rows.cpp
void IMAGE_SOFTSMOOTH(TMACRO *engine);
void IMAGE_SMOOTH(TMACRO *engine);
void IMAGE_HARDSMOOTH(TMACRO *engine);
void IMAGE_UNSHARPMASKING(TMACRO *engine);
void IMAGE_CLEANUP(TMACRO *engine);
void IMAGE_FILTER(TMACRO *engine);
void IMAGE_FILL(TMACRO *engine);
void IMAGE_FILL_RANDOM(TMACRO *engine);
void IMAGE_FILL_CUBE(TMACRO *engine);
void IMAGE_FILL_HOLE(TMACRO *engine);
void IMAGE_FILL_ZERO(TMACRO *engine);
void IMAGE_FILL_GAP(TMACRO *engine);
void IMAGE_SHRINK(TMACRO *engine);
void IMAGE_GROW(TMACRO *engine);
void IMAGE_FULLSHRINK(TMACRO *engine);
void IMAGE_FULLGROW(TMACRO *engine);
void IMAGE_OPEN(TMACRO *engine);
void IMAGE_CLOSE(TMACRO *engine);
void IMAGE_REMOVE_OUTLIERS(TMACRO *engine);

// Analysis; rows in image_filter_rows.cpp
TPOLYNAT IMAGE_BINS(); // the histogram of the image in use, value v in bin v+1
void IMAGE_ANALYSIS(TMACRO *engine);
void IMAGE_ANALYSIS_IMAGE(TMACRO *engine);
void IMAGE_ANALYSIS_RAW(TMACRO *engine);
void IMAGE_WINDOW_SIN(TMACRO *engine);
void IMAGE_WINDOW_COS(TMACRO *engine);
void IMAGE_RADIAL(TMACRO *engine);
void IMAGE_RADIAL_HALF(TMACRO *engine);
void IMAGE_RADIAL_QUATER(TMACRO *engine);
void IMAGE_DISTANCE(TMACRO *engine);
void IMAGE_FLIP_X(TMACRO *engine);
void IMAGE_FLIP_Y(TMACRO *engine);
void IMAGE_ROTATE_90(TMACRO *engine);
void IMAGE_ROTATE_180(TMACRO *engine);
void IMAGE_ROTATE_270(TMACRO *engine);
void IMAGE_ROTATE_360(TMACRO *engine);
void IMAGE_GETSPHERE(TMACRO *engine);
void IMAGE_OBJECT_CENTER_REF(TMACRO *engine);
void IMAGE_OBJECT_SIZE_REF(TMACRO *engine);
void IMAGE_GETBACKGROUND_LAMD(TMACRO *engine);
void IMAGE_MIN_LAMD(TMACRO *engine);
void IMAGE_MAX_LAMD(TMACRO *engine);
void IMAGE_COUNT_REF(TMACRO *engine);
void IMAGE_SUM_REF(TMACRO *engine);
void IMAGE_STATISTIC_REF(TMACRO *engine);
void IMAGE_QUANTILE_REF(TMACRO *engine);
void IMAGE_CENTROID_REF(TMACRO *engine);
void IMAGE_COG_REF(TMACRO *engine);
void IMAGE_VERTICAL_SUM(TMACRO *engine);
void IMAGE_VERTICAL_MEAN(TMACRO *engine);
void IMAGE_VERTICAL_SD(TMACRO *engine);
void IMAGE_HORIZONTAL_SUM(TMACRO *engine);
void IMAGE_HORIZONTAL_MEAN(TMACRO *engine);
void IMAGE_HORIZONTAL_SD(TMACRO *engine);

// Orientation scan; rows in image_filter_rows.cpp
void IMAGE_DIFFUSION(TMACRO *engine);
} // namespace morvane
