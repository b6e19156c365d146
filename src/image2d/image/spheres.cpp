#include "image2d/image/spheres.hpp"

#include "image2d/filter/distance.hpp"
#include "image2d/image/grey_view.hpp"

namespace morvane {
NAT GETSPHERE(const TIMAGE &image, const COMPLEXNAT &range, REAL largest, TCLOUD &cloud) {
    const std::vector<MASK_CIRCLE> circles = INNER_CIRCLES(MASK_OF_RANGE(image, range), largest);
    if (circles.empty()) return 0;
    const FRAME &frame = image.GETFRAME();
    const VECTOR scale = frame.SCALE();
    for (const MASK_CIRCLE &circle : circles) {
        const VECTOR centre =
            frame.L2G({static_cast<REAL>(circle.x), static_cast<REAL>(circle.y), 1});
        cloud.NEWPOINT({centre.x, centre.y, centre.z, circle.radius * (scale.x + scale.y) / 2});
    }
    cloud.NEWLINE(1);
    cloud.NEWOBJECT("Spheres");
    const VECTOR offset = frame.MOVE();
    cloud.offset = {offset.x, offset.y, offset.z, 0};
    cloud.scale = {scale.x, scale.y, scale.z, 1};
    cloud.dimension = {static_cast<REAL>(image.SIZEX()), static_cast<REAL>(image.SIZEY()), 1, 1};
    return static_cast<NAT>(circles.size());
}
} // namespace morvane
