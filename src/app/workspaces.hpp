#pragma once

#include "field3d/field/scalar_analysis.hpp"
#include "geometry/model/cloud.hpp"
#include "geometry/model/mesh.hpp"
#include "image2d/image/image.hpp"
#include "orientation/tensor/tensor_analysis.hpp"
#include "orientation/vector/vector_analysis.hpp"
#include "script/workspace/workspace.hpp"

// The six lists of named fields. They are empty until INIT and hold at least "DEFAULT" then.
namespace morvane {
extern TWORKSPACE<TIMAGE> IMAGES;
extern TWORKSPACE<T3D_SCALAR_ANALYSIS> SCALARS;
extern TWORKSPACE<T3D_VECTOR_ANALYSIS> VECTORS;
extern TWORKSPACE<T3D_TENSOR_ANALYSIS> TENSORS;
extern TWORKSPACE<TMESH> MESHES;
extern TWORKSPACE<TCLOUD> LINES;

inline void IMAGE_INIT() { IMAGES.INIT(); }
inline void SCALAR_INIT() { SCALARS.INIT(); }
inline void VECTOR_INIT() { VECTORS.INIT(); }
inline void TENSOR_INIT() { TENSORS.INIT(); }
inline void MESH_INIT() { MESHES.INIT(); }
inline void LINE_INIT() { LINES.INIT(); }
inline void IMAGE_DONE() { IMAGES.DONE(); }
inline void SCALAR_DONE() { SCALARS.DONE(); }
inline void VECTOR_DONE() { VECTORS.DONE(); }
inline void TENSOR_DONE() { TENSORS.DONE(); }
inline void MESH_DONE() { MESHES.DONE(); }
inline void LINE_DONE() { LINES.DONE(); }

void RESETKINDS(); // the kinds of new fields as at start
void NEW();        // the kinds as at start, and one empty field "DEFAULT" in each list
void DUMP();       // all six lists
} // namespace morvane
