#include "orientation/scan/image_angle.hpp"

#include "foundation/base/geometry.hpp"
#include "foundation/base/rounding.hpp"

namespace morvane {
namespace {
constexpr NAT LONGEST_REACH = 128;
}

NAT SCAN_ANGLE_VALUE(const COMPLEX &v, NAT maximum, bool axial) {
    const bool turned = axial && (v.x > 0 || (v.x == 0 && v.y < 0));
    // Deliberate: unless angles are axial, a direction to the right is stored as an end of the
    // range.
    const REAL angle = FULLANGLE(turned ? -v : v, COMPLEX{1, 0}, COMPLEX{0, -1});
    const REAL end = static_cast<REAL>(maximum);
    const bool isAxis = axial && v != CZERO;
    return ROUND(LIMIT((angle - PI / 2) / PI * end, isAxis ? 1.0 : 0.0, end));
}

REAL SCAN_ANGLE(NAT value, NAT maximum) {
    if (value >= maximum) return PI / 2;
    return PI / 2 - static_cast<REAL>(value) / static_cast<REAL>(maximum) * PI;
}

ANGLE_VALUES::ANGLE_VALUES(NAT pixelMaximum, bool axialValues, NAT r)
    : maximum(pixelMaximum), axial(axialValues) {
    const NAT wide = r + 1;
    if (wide > LONGEST_REACH || !table.INIT((2 * wide + 1) * (2 * wide + 1))) return;
    reach = wide;
    WORD *cell = table.DATA();
    for (NAT y = -reach; y <= reach; ++y)
        for (NAT x = -reach; x <= reach; ++x)
            *cell++ =
                static_cast<WORD>(SCAN_ANGLE_VALUE(TO_REAL(COMPLEXNAT{x, y}), maximum, axial));
}

NAT ANGLE_VALUES::VALUE(const COMPLEX &v) const {
    const COMPLEXNAT whole = TRUNC(v);
    const bool isShort =
        whole.x >= -reach && whole.x <= reach && whole.y >= -reach && whole.y <= reach;
    if (reach == 0 || !isShort || TO_REAL(whole) != v) return SCAN_ANGLE_VALUE(v, maximum, axial);
    return table[(whole.y + reach) * (2 * reach + 1) + whole.x + reach];
}
} // namespace morvane
