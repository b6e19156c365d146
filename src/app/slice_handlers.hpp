#pragma once

#include "app/workspaces.hpp"
#include "field3d/shape/slice.hpp"
#include "orientation/vector/vector_slice.hpp"

// Slices of the field in use into the image in use, and back, for the sets of fields that have
// them.
namespace morvane {
template <auto *LIST, SLICE_PLANE PLANE> void SLICE_GET(TMACRO *engine) {
    GETSLICE(LIST->CURRENT(), PLANE, GETREAL(engine->GETPARAMETER(1)), IMAGES.CURRENT());
}
template <auto *LIST, SLICE_PLANE PLANE> void SLICE_PUT(TMACRO *engine) {
    PUTSLICE(LIST->CURRENT(), PLANE, GETREAL(engine->GETPARAMETER(1)), IMAGES.CURRENT());
}
} // namespace morvane
