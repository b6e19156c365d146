#include "app/image/targets.hpp"
#include "app/vector/vector_handlers.hpp"
#include "app/workspaces.hpp"
#include "orientation/vector/vector_fuse.hpp"

// What the histogram commands count of the vector field in use, and the picture of its best slices.
namespace morvane {
TPOLYNAT VECTOR_BINS() {
    TPOLYNAT bins;
    VECTORS.CURRENT().HISTOGRAM(bins);
    return bins;
}

void VECTOR_FUSE(TMACRO *) {
    WITH_MEMORY([] { FUSE(VECTORS.CURRENT(), SCALARS.CURRENT(), IMAGES.CURRENT()); });
}
} // namespace morvane
