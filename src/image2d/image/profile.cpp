#include "foundation/base/safe_arithmetic.hpp"
#include "image2d/image/grey_view.hpp"
#include "image2d/image/objects.hpp"

#include <algorithm>
#include <cmath>

namespace morvane {
TCANVAS MASK_OF_RANGE(const TIMAGE &image, const COMPLEXNAT &range) {
    return WITH_GREY(image, [&](const auto &canvas) {
        TCANVAS mask(canvas.WIDTH, canvas.HEIGHT);
        std::transform(canvas.DATA(), canvas.DATA() + mask.COUNT(), mask.DATA(), [&](NAT value) {
            return static_cast<BYTE>(value >= range.x && value <= range.y);
        });
        return mask;
    });
}

namespace {
// The statistic of `count` values, the i-th at values[i * step]. Sums are exact.
template <class PIXEL>
REAL Statistic(const PIXEL *values, NAT count, NAT step, PROFILE_VALUE value) {
    NAT whole = 0;
    for (NAT i = 0; i < count; ++i)
        whole += values[i * step];
    const REAL sum = static_cast<REAL>(whole), mean = sum / static_cast<REAL>(count);
    if (value == PROFILE_VALUE::SUM) return sum;
    if (value == PROFILE_VALUE::MEAN) return mean;
    REAL squares = 0;
    for (NAT i = 0; i < count; ++i)
        squares += SQR(static_cast<REAL>(values[i * step]) - mean);
    return std::sqrt(DIVIDE(squares, static_cast<REAL>(count - 1)));
}
} // namespace

TPOLYREAL PROFILE(const TIMAGE &image, PROFILE_AXIS axis, PROFILE_VALUE value, NAT first,
                  NAT last) {
    TPOLYREAL profile;
    profile.INIT();
    WITH_GREY(image, [&](const auto &canvas) {
        const bool isColumns = axis == PROFILE_AXIS::COLUMNS;
        const NAT length = isColumns ? canvas.WIDTH : canvas.HEIGHT;
        for (NAT i = std::max<NAT>(first, 1); i <= std::min(last, length); ++i)
            profile.PUSH(isColumns
                             ? Statistic(canvas.DATA() + i - 1, canvas.HEIGHT, canvas.WIDTH, value)
                             : Statistic(canvas.ROW(i), canvas.WIDTH, 1, value));
    });
    return profile;
}
} // namespace morvane
