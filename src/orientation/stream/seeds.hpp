#pragma once

#include "orientation/stream/stream_variants.hpp"
#include "orientation/stream/trace.hpp"
#include "orientation/stream/visited_mask.hpp"

namespace morvane {
// One run of a streamline command: its working state, and what happens to one candidate.
class STREAM_RUN {
public:
    // Which lines are kept, and where they go.
    enum class KIND { LINES, MUSCLE, NODES };
    // False: nothing is to be done. Otherwise a matrix with negative entries has been told.
    static bool PREPARE(const STREAM_JOB &job);

    STREAM_RUN(const STREAM_JOB &job, KIND kind, T3D_SCALAR_ANALYSIS *nodes = nullptr);
    // Traces the candidate, a voxel, when the visited mask allows it.
    void TRY(const VECTORNAT &candidate);
    // The object, the frame of the cloud, and the line about what was found.
    void FINISH();
    NAT REQUIRED() const { return required; }
    NAT FOUND() const { return found; }

private:
    bool Blocked(const VECTORNAT &candidate) const;
    bool IFEQUAL() const;
    void Push();

    const STREAM_JOB &job;
    KIND kind;
    T3D_SCALAR_ANALYSIS *nodes;
    STREAM_TRACER tracer;
    VISITED_MASK visited; // of the field's sizes, used or not
    NAT required = 0, found = 0;
};
} // namespace morvane
