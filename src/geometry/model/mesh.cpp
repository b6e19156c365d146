#include "geometry/model/mesh.hpp"

namespace morvane {
void TMESH::INIT() {
    TPOLYVECTOR::INIT();
    NORMALS.INIT();
    FACES.INIT(static_cast<NAT>(sizeof(TOLDFACE)));
    PIVOT = VZERO;
}

void TMESH::DONE() {
    TPOLYVECTOR::DONE();
    NORMALS.DONE();
    FACES.DONE();
    PIVOT = VZERO;
}
} // namespace morvane
