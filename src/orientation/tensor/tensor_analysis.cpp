#include "orientation/tensor/tensor_analysis.hpp"

namespace morvane {
void T3D_TENSOR_ANALYSIS::INIT(BYTE tag) {
    DONE();
    if (tag == TENSOR_FLOAT || tag == TENSOR_INTEGER) kind = tag;
}

void T3D_TENSOR_ANALYSIS::DONE() {
    kind = 0;
    size = VZERONAT;
    frame.RESET();
    NAME = UTF16CHARS7();
}
} // namespace morvane
