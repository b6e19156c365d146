#include "orientation/scan/image_hemicircle.hpp"

#include "foundation/base/geometry.hpp"
#include "foundation/base/random.hpp"
#include "foundation/base/rounding.hpp"

namespace morvane {
void _GETHEMICIRCLE(TPOLYCOMPLEXNAT &points, TPOLYCOMPLEX &vectors, NAT radius) {
    const REAL r = static_cast<REAL>(radius);
    const NAT count = ROUND(PI * r) - 1;
    points.INIT();
    vectors.INIT();
    if (radius < 1) return;
    for (NAT i = 0; i < count; ++i)
        points.PUSH(ROUND(POLTOKART2(r, static_cast<REAL>(i + 1) / r)));
    points.UNIQUE_DIRECTION();
    points.SORTY();
    for (const COMPLEXNAT &point : points.SPAN())
        vectors.PUSH(NORM(point));
}

void _GETHEMICIRCLE(TPOLYCOMPLEXNAT &points, TPOLYCOMPLEX &vectors, NAT radius, NAT count,
                    RANDOM_STREAM &random) {
    _GETHEMICIRCLE(points, vectors, radius);
    const NAT length = points.LENGTH;
    if (count < 1 || count >= length) return;
    TPOLYCOMPLEXNAT rest;
    rest.INIT();
    for (const COMPLEXNAT &point : points.SPAN())
        rest.PUSH(point);
    points.INIT();
    vectors.INIT();
    while (points.LENGTH < count) {
        const NAT index = random.BELOW(length) + 1;
        const COMPLEXNAT point = rest.GET(index);
        if (point == CZERONAT) continue;
        points.PUSH(point);
        vectors.PUSH(NORM(point));
        rest.PUT(index, CZERONAT);
    }
}
} // namespace morvane
