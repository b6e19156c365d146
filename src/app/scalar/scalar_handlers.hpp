#pragma once

#include "foundation/container/poly_types.hpp"

// Handlers of the scalar commands, by the file that holds them. Each reads its parameters, calls
// one operation on the scalar field in use and hands back a result.
namespace morvane {
class TMACRO;

// state.cpp
void SCALAR_IFSCALAR_LAMD(TMACRO *engine);
void SCALAR_IFPLAIN_LAMD(TMACRO *engine);
void SCALAR_MAKE_REF(TMACRO *engine);
void SCALAR_MAKE_VECTOR(TMACRO *engine);
void SCALAR_MAKE_VECTOR_REF(TMACRO *engine);
void SCALAR_VALUE(TMACRO *engine);
void SCALAR_BACKGROUND(TMACRO *engine);
void SCALAR_MIN_LAMD(TMACRO *engine);
void SCALAR_MAX_LAMD(TMACRO *engine);
void SCALAR_COUNT_REF(TMACRO *engine);
void SCALAR_SUM_REF(TMACRO *engine);
void SCALAR_SETLOWER(TMACRO *engine);
void SCALAR_SETVALUE(TMACRO *engine);
void SCALAR_SETHIGHER(TMACRO *engine);

// io.cpp
void SCALAR_LOAD_FILTER(TMACRO *engine);
void SCALAR_LOAD(TMACRO *engine);
void SCALAR_LOAD_PROPERTIES(TMACRO *engine);
void SCALAR_LOAD_FRAMEWORK(TMACRO *engine);
void SCALAR_LOADNII(TMACRO *engine);
void SCALAR_LOADNII_GZ(TMACRO *engine);
void SCALAR_SAVE(TMACRO *engine);
void SCALAR_SAVE_PROPERTIES(TMACRO *engine);

// labels.cpp
void SCALAR_LABELS_CLEAR(TMACRO *engine);
void SCALAR_LABELS_LENGTH_LAMD(TMACRO *engine);
void SCALAR_LOAD_LABELS(TMACRO *engine);
void SCALAR_LABEL(TMACRO *engine);
void SCALAR_LABEL_REF(TMACRO *engine);
void SCALAR_LABELS_DUMP(TMACRO *engine);
void SCALAR_SAVE_LABELS(TMACRO *engine);

// charts.cpp: the counts that histogram commands work on, value v in bin v+1
TPOLYNAT SCALAR_BINS();
TPOLYNAT SCALAR_BINS_FAST(); // of three slices or more, drawn at random

// scan.cpp
void SCALAR_DIFFUSION(TMACRO *engine);
void SCALAR_DIFFUSION_X2(TMACRO *engine);
void SCALAR_DIFFUSION_X3(TMACRO *engine);
void SCALAR_DIFFUSION_X4(TMACRO *engine);
void SCALAR_DIFFUSION_X5(TMACRO *engine);
void SCALAR_DIFFUSION_ADAPTIVE_X2(TMACRO *engine);
void SCALAR_DIFFUSION_ADAPTIVE_X3(TMACRO *engine);
void SCALAR_DIFFUSION_ADAPTIVE_X4(TMACRO *engine);
void SCALAR_DIFFUSION_ADAPTIVE_X5(TMACRO *engine);
void SCALAR_DIFFUSION_DUMP(TMACRO *engine);
void SCALAR_DIFFUSION_MAP(TMACRO *engine);
void SCALAR_DIFFUSION_COLORMAP(TMACRO *engine);
void SCALAR_DIFFUSION_HISTOGRAM(TMACRO *engine);
void SCALAR_DIFFUSION_SD(TMACRO *engine);
void SCALAR_LINE_SKELETON(TMACRO *engine);
} // namespace morvane
