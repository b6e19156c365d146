#include "app/scalar/scalar_handlers.hpp"
#include "app/workspaces.hpp"

// What the histogram commands count of the scalar field in use.
namespace morvane {
TPOLYNAT SCALAR_BINS() {
    TPOLYNAT bins;
    SCALARS.CURRENT().HISTOGRAM(bins);
    return bins;
}

TPOLYNAT SCALAR_BINS_FAST() {
    TPOLYNAT bins;
    SCALARS.CURRENT().HISTOGRAM_FAST(bins);
    return bins;
}
} // namespace morvane
