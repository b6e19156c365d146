#include "orientation/scan/hemisphere.hpp"

#include "foundation/base/geometry.hpp"
#include "foundation/base/random.hpp"

namespace morvane {
namespace {
// One representative of each axis direction, sorted by z: the scanning order.
void Directions(NAT radius, TPOLYVECTORNAT &list) {
    list.INIT();
    FOR_EACH_RING_POINT(
        radius, [&](const RING_POINT &point) { list.PUSH(point.offset); }, [](NAT) {});
    if (list.LENGTH == 0) return;
    list.UNIQUE_DIRECTION();
    list.SORTZ();
}
} // namespace

void _GETHEMISPHERE(TPOLYVECTORNAT &points, TPOLYVECTOR &vectors, NAT radius) {
    Directions(radius, points);
    vectors.INIT();
    for (const VECTORNAT &point : points.SPAN())
        vectors.PUSH(NORM(point));
}

void _GETHEMISPHERE(TPOLYVECTORNAT &points, TPOLYVECTOR &vectors, NAT radius, NAT count,
                    RANDOM_STREAM &random) {
    _GETHEMISPHERE(points, vectors, radius);
    const NAT length = points.LENGTH;
    if (count < 1 || count >= length) return;
    TPOLYVECTORNAT rest;
    rest.INIT();
    for (const VECTORNAT &point : points.SPAN())
        rest.PUSH(point);
    points.INIT();
    vectors.INIT();
    while (points.LENGTH < count) {
        const NAT index = random.BELOW(length) + 1;
        const VECTORNAT point = rest.GET(index);
        if (point == VZERONAT) continue;
        points.PUSH(point);
        vectors.PUSH(NORM(point));
        rest.PUT(index, VZERONAT);
    }
}
} // namespace morvane
