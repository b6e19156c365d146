#pragma once

#include "foundation/container/poly_types.hpp"
#include "orientation/stream/stream_settings.hpp"

// The streamline commands, one routine each. Lines grow from seeds in both directions with steps of
// fixed length along the normalised, trilinearly interpolated vectors, and go to the cloud as one
// object "Streamlines". All prints, progress and results come from here; a field with a size below
// 2 gives no output at all. Single-threaded.
namespace morvane {
class T3D_SCALAR_ANALYSIS;
class T3D_VECTOR_ANALYSIS;
class TCLOUD;

// What every routine works on. `scalar` is read by the stop contrast only; null: no contrast.
struct STREAM_JOB {
    const T3D_VECTOR_ANALYSIS &field;
    TCLOUD &cloud;
    const T3D_SCALAR_ANALYSIS *scalar;
    const STREAM_SETTINGS &settings;
};
// Voxels whose value is found in the sorted list.
struct STREAM_MASK {
    const T3D_SCALAR_ANALYSIS &scalar;
    const TPOLYNAT &values;
};

void _VECTOR_STREAM_UNIFORM(const STREAM_JOB &job);
void _VECTOR_STREAM_UNIFORM_RANDOM(const STREAM_JOB &job, NAT rounds);
void _VECTOR_STREAM_MASK(const STREAM_JOB &job, const STREAM_MASK &mask);
void _VECTOR_STREAM_MASK_RANDOM(const STREAM_JOB &job, NAT rounds, const STREAM_MASK &mask);
void _VECTOR_STREAM_MUSCLE(const STREAM_JOB &job);
void _VECTOR_STREAM_MUSCLE_RANDOM(const STREAM_JOB &job, NAT rounds);
void _VECTOR_STREAM_MUSCLE_MASK(const STREAM_JOB &job, const STREAM_MASK &mask);
void _VECTOR_STREAM_MUSCLE_MASK_RANDOM(const STREAM_JOB &job, NAT rounds, const STREAM_MASK &mask);
// A plane through a point with a normal, both in voxels; the zero point is the middle.
void _VECTOR_STREAM_SLICE(const STREAM_JOB &job, const VECTOR &point, const VECTOR &normal);
void _VECTOR_STREAM_SLICE_MASK(const STREAM_JOB &job, const VECTOR &point, const VECTOR &normal,
                               const STREAM_MASK &mask);
// The lines are added to `target`, one grey value a pass, and no cloud points are made.
void _VECTOR_STREAM_NODES(const STREAM_JOB &job, T3D_SCALAR_ANALYSIS &target);
} // namespace morvane
