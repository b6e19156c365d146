#pragma once

#include "foundation/container/poly_types.hpp"
#include "orientation/stream/stream_settings.hpp"

// Handlers of the vector commands, by the file that holds them. Each reads its parameters, calls
// one operation on the vector field in use and hands back a result.
namespace morvane {
class TMACRO;

// Settings of the streamlines and of copying, kept between commands.
extern STREAM_SETTINGS VECTOR_STREAM;
extern BYTE VECTOR_COPY_METHOD;

// state.cpp
void VECTOR_IFVECTOR_LAMD(TMACRO *engine);
void VECTOR_IFPLAIN_LAMD(TMACRO *engine);
void VECTOR_MIN_LAMD(TMACRO *engine);
void VECTOR_MAX_LAMD(TMACRO *engine);
void VECTOR_COUNT_REF(TMACRO *engine);
void VECTOR_COUNT_ALL_LAMD(TMACRO *engine);
void VECTOR_MAKE_REF(TMACRO *engine);
void VECTOR_MAKE_SCALAR(TMACRO *engine);
void VECTOR_MAKE_SCALAR_REF(TMACRO *engine);

// io.cpp
void VECTOR_LOAD(TMACRO *engine);
void VECTOR_LOAD_PROPERTIES(TMACRO *engine);
void VECTOR_LOAD_FRAMEWORK(TMACRO *engine);
void VECTOR_LOADNII(TMACRO *engine);
void VECTOR_LOADNII_GZ(TMACRO *engine);
void VECTOR_LOADTXT(TMACRO *engine);
void VECTOR_SAVE(TMACRO *engine);
void VECTOR_SAVE_PROPERTIES(TMACRO *engine);
void VECTOR_APPEND(TMACRO *engine);
void VECTOR_APPEND_ZERO(TMACRO *engine);
void VECTOR_APPEND_BEST(TMACRO *engine);

// shape.cpp
void VECTOR_CROP(TMACRO *engine);
void VECTOR_CROP_REF(TMACRO *engine);
void VECTOR_MOVE(TMACRO *engine);
void VECTOR_COPY_METHOD_SET(TMACRO *engine);
void VECTOR_COPY_REF(TMACRO *engine);
void VECTOR_RESIZE_REF(TMACRO *engine);
void VECTOR_SUBSTACK_REF(TMACRO *engine);

// values.cpp
void VECTOR_ADD(TMACRO *engine);
void VECTOR_ADD_REF(TMACRO *engine);
void VECTOR_SUB_REF(TMACRO *engine);
void VECTOR_MEAN_REF(TMACRO *engine);
void VECTOR_MASK_REF(TMACRO *engine);
void VECTOR_MUL(TMACRO *engine);
void VECTOR_SETLENGTH(TMACRO *engine);
void VECTOR_SETLENGTH_RELATIVE(TMACRO *engine);
void VECTOR_ERASE_MIN(TMACRO *engine);
void VECTOR_ERASE_MAX(TMACRO *engine);
void VECTOR_SOFTSMOOTH(TMACRO *engine);
void VECTOR_SMOOTH(TMACRO *engine);
void VECTOR_HARDSMOOTH(TMACRO *engine);
void VECTOR_REMOVE_OUTLIERS(TMACRO *engine);
void VECTOR_GET_X(TMACRO *engine);
void VECTOR_GET_Y(TMACRO *engine);
void VECTOR_GET_Z(TMACRO *engine);
void VECTOR_GET_LENGTH(TMACRO *engine);
void VECTOR_GET_ANGLE(TMACRO *engine);
void VECTOR_GET_FULLANGLE(TMACRO *engine);
void VECTOR_FACTOR_DISTANCE_LAMD(TMACRO *engine);
void VECTOR_LINE_MAKE(TMACRO *engine);

// charts.cpp
TPOLYNAT VECTOR_BINS(); // what histogram commands work on: vectors of rounded length v in bin v+1
void VECTOR_FUSE(TMACRO *engine);

// stream.cpp
void VECTOR_STREAM_SEEDS(TMACRO *engine);
void VECTOR_STREAM_SNAKES(TMACRO *engine);
void VECTOR_STREAM_STEPS(TMACRO *engine);
void VECTOR_STREAM_ANGLES(TMACRO *engine);
void VECTOR_STREAM_STOP_ANGLE(TMACRO *engine);
void VECTOR_STREAM_STOP_LENGTH(TMACRO *engine);
void VECTOR_STREAM_STOP_CONTRAST(TMACRO *engine);
void VECTOR_STREAM_NODES(TMACRO *engine);
void VECTOR_STREAM_UNIFORM(TMACRO *engine);
void VECTOR_STREAM_UNIFORM_RANDOM(TMACRO *engine);
void VECTOR_STREAM_MASK(TMACRO *engine);
void VECTOR_STREAM_MASK_RANDOM(TMACRO *engine);
void VECTOR_STREAM_MUSCLE(TMACRO *engine);
void VECTOR_STREAM_MUSCLE_RANDOM(TMACRO *engine);
void VECTOR_STREAM_MUSCLE_MASK(TMACRO *engine);
void VECTOR_STREAM_MUSCLE_MASK_RANDOM(TMACRO *engine);
void VECTOR_STREAM_SLICE(TMACRO *engine);
void VECTOR_STREAM_SLICEX(TMACRO *engine);
void VECTOR_STREAM_SLICEY(TMACRO *engine);
void VECTOR_STREAM_SLICEZ(TMACRO *engine);
void VECTOR_STREAM_SLICE_MASK(TMACRO *engine);
void VECTOR_STREAM_SLICEX_MASK(TMACRO *engine);
void VECTOR_STREAM_SLICEY_MASK(TMACRO *engine);
void VECTOR_STREAM_SLICEZ_MASK(TMACRO *engine);
} // namespace morvane
