#include "field3d/field/scalar_analysis.hpp"
#include "field3d/raster/values.hpp"

namespace morvane {
void T3D_SCALAR_ANALYSIS::WINDOW() {
    _DISPATCH([](auto &raster) { raster.WINDOW(); });
}

void T3D_SCALAR_ANALYSIS::WINDOW(NAT x1, NAT y1, NAT z1, NAT x2, NAT y2, NAT z2) {
    _DISPATCH([&](auto &raster) { raster.WINDOW(x1, y1, z1, x2, y2, z2); });
}

NAT T3D_SCALAR_ANALYSIS::MIN() const {
    return _DISPATCH([](const auto &raster) { return GETLIMITS(raster).min; });
}

NAT T3D_SCALAR_ANALYSIS::MIN0() const {
    if (!active) return 1;
    return _DISPATCH([](const auto &raster) { return GETLIMITS(raster).min0; });
}

NAT T3D_SCALAR_ANALYSIS::MAX() const {
    if (!active) return 65535;
    return _DISPATCH([](const auto &raster) { return GETLIMITS(raster).max; });
}

bool T3D_SCALAR_ANALYSIS::IFPLAIN() const {
    return _DISPATCH([](const auto &raster) { return morvane::IFPLAIN(raster); });
}

NAT T3D_SCALAR_ANALYSIS::OBJECT_COUNT(NAT low, NAT high) const {
    return _DISPATCH([&](const auto &raster) { return COUNT_RANGE(raster, low, high); });
}

NAT T3D_SCALAR_ANALYSIS::OBJECT_SUM(NAT low, NAT high) const {
    return _DISPATCH([&](const auto &raster) { return SUM_RANGE(raster, low, high); });
}

void T3D_SCALAR_ANALYSIS::SETRANGE(const TPOLYNAT &table) {
    _DISPATCH([&](auto &raster) { morvane::SETRANGE(raster, table); });
}

void T3D_SCALAR_ANALYSIS::SETLOWER(NAT limit, NAT value) { SETVALUE({NATMIN, limit}, value); }

void T3D_SCALAR_ANALYSIS::SETVALUE(const COMPLEXNAT &range, NAT value) {
    _DISPATCH([&](auto &raster) { REPLACE_RANGE(raster, range.x, range.y, value); });
}

void T3D_SCALAR_ANALYSIS::SETHIGHER(NAT limit, NAT value) { SETVALUE({limit, NATMAX}, value); }

void T3D_SCALAR_ANALYSIS::INVERT() {
    _DISPATCH([](auto &raster) { morvane::INVERT(raster); });
}

void T3D_SCALAR_ANALYSIS::HISTOGRAM(TPOLYNAT &bins) const {
    bins.DONE();
    _DISPATCH([&](const auto &raster) { morvane::HISTOGRAM(raster, bins); });
}

void T3D_SCALAR_ANALYSIS::HISTOGRAM_FAST(TPOLYNAT &bins) const {
    bins.DONE();
    RANDOM_STREAM random(NEXT_RANDOM_COMMAND(), 0);
    _DISPATCH([&](const auto &raster) { morvane::HISTOGRAM_FAST(raster, bins, random); });
}
} // namespace morvane
