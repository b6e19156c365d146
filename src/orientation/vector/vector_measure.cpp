#include "orientation/vector/vector_measure.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "foundation/base/geometry.hpp"
#include "foundation/console/console.hpp"
#include "geometry/model/cloud.hpp"
#include "orientation/vector/vector_box.hpp"

// What is read off a vector field: scalar fields, a number, lines.
namespace morvane {
namespace {
constexpr REAL DEGREES = 180 / PI;

bool Prepare(T3D_SCALAR_ANALYSIS &target, const T3D_VECTOR_ANALYSIS &field) {
    const VECTORNAT size = field.SIZE();
    if (!(target.SIZE() == size)) {
        target.NEW(size.x, size.y, size.z);
        WRITELN("  Assigned scalar field (" + GETSTRING(size.x) + "x" + GETSTRING(size.y) + "x" +
                GETSTRING(size.z) + ") updated.");
    }
    target.SETFRAME(field.GETFRAME());
    return target.ISNOTEMPTY();
}

template <class F>
bool Measure(const T3D_VECTOR_ANALYSIS &field, T3D_SCALAR_ANALYSIS &target, const UTF16 &label,
             F f) {
    if (!CHECK_SOURCE(field) || !Prepare(target, field)) return false;
    const VECTORNAT size = field.SIZE();
    PROGRESS(label, 0);
    for (NAT z = 1; z <= size.z; ++z) {
        for (NAT y = 1; y <= size.y; ++y)
            for (NAT x = 1; x <= size.x; ++x)
                target.PUT(x, y, z, f(field.GET(x, y, z)));
        PROGRESS(label, static_cast<REAL>(z) / static_cast<REAL>(size.z));
    }
    PROGRESS();
    return true;
}
} // namespace

bool GET_X(const T3D_VECTOR_ANALYSIS &field, T3D_SCALAR_ANALYSIS &target) {
    return Measure(field, target, "  Get x", [](const VECTOR &v) { return v.x; });
}
bool GET_Y(const T3D_VECTOR_ANALYSIS &field, T3D_SCALAR_ANALYSIS &target) {
    return Measure(field, target, "  Get y", [](const VECTOR &v) { return v.y; });
}
bool GET_Z(const T3D_VECTOR_ANALYSIS &field, T3D_SCALAR_ANALYSIS &target) {
    return Measure(field, target, "  Get z", [](const VECTOR &v) { return v.z; });
}
bool GET_LENGTH(const T3D_VECTOR_ANALYSIS &field, T3D_SCALAR_ANALYSIS &target) {
    return Measure(field, target, "  Get length", [](const VECTOR &v) { return GETLENGTH(v); });
}

bool GET_ANGLE(const T3D_VECTOR_ANALYSIS &field, const VECTOR &direction,
               T3D_SCALAR_ANALYSIS &target) {
    return Measure(field, target, "  Get angle",
                   [&](const VECTOR &v) { return GETANGLE(v, direction) * DEGREES; });
}

bool GET_FULLANGLE(const T3D_VECTOR_ANALYSIS &field, const VECTOR &direction, const VECTOR &normal,
                   T3D_SCALAR_ANALYSIS &target) {
    return Measure(field, target, "  Get fullangle",
                   [&](const VECTOR &v) { return FULLANGLE(v, direction, normal) * DEGREES; });
}

REAL FACTOR_DISTANCE(const T3D_VECTOR_ANALYSIS &field) {
    const VECTORNAT size = field.SIZE();
    REAL distances = 0, lengths = 0;
    const auto pair = [&](const VECTOR &v, const VECTOR &w) {
        if (v == VZERO || w == VZERO) return;
        distances += GETLENGTH(v - w);
        lengths += (GETLENGTH(v) + GETLENGTH(w)) / 2;
    };
    for (NAT z = 1; z <= size.z; ++z)
        for (NAT y = 1; y <= size.y; ++y)
            for (NAT x = 1; x <= size.x; ++x) {
                const VECTOR v = field.GET(x, y, z);
                pair(v, field.GET(x + 1, y, z)); // outside reads as zero and counts as no neighbour
                pair(v, field.GET(x, y + 1, z));
                pair(v, field.GET(x, y, z + 1));
            }
    return DIVIDE(distances, lengths);
}

bool VECTOR_LINE(const T3D_VECTOR_ANALYSIS &field, TCLOUD &cloud) {
    if (!CHECK_SOURCE(field)) return false;
    const VECTORNAT size = field.SIZE();
    const FRAME &frame = field.GETFRAME();
    const UTF16 label = "  Vectors to lines";
    NAT lines = 0;
    PROGRESS(label, 0);
    for (NAT z = 1; z <= size.z; ++z) {
        for (NAT y = 1; y <= size.y; ++y)
            for (NAT x = 1; x <= size.x; ++x) {
                const VECTOR v = field.GET(x, y, z);
                if (v == VZERO) continue;
                const VECTOR p = frame.L2G(TO_REAL(VECTORNAT{x, y, z})), tip = p + v;
                cloud.NEWPOINT({p.x, p.y, p.z, 0});
                cloud.NEWPOINT({tip.x, tip.y, tip.z, 0});
                cloud.NEWLINE(++lines);
            }
        PROGRESS(label, static_cast<REAL>(z) / static_cast<REAL>(size.z));
    }
    PROGRESS();
    if (lines < 1) return true;
    cloud.NEWOBJECT("Vectors");
    const VECTOR offset = frame.MOVE(), scale = frame.SCALE(), extent = TO_REAL(size);
    cloud.offset = {offset.x, offset.y, offset.z, 0};
    cloud.scale = {scale.x, scale.y, scale.z, 1};
    cloud.dimension = {extent.x, extent.y, extent.z, 1};
    return true;
}
} // namespace morvane
