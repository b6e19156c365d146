#include "foundation/console/console.hpp"
#include "orientation/vector/vector_box.hpp"
#include "orientation/vector/vector_copy.hpp"
#include "orientation/vector/vector_sampler.hpp"
#include "orientation/vector/vector_store.hpp"

#include <cmath>

// Copies of another resolution.
namespace morvane {
namespace {
// How one axis of the target reads the source. A reduced axis takes the whole positions
// base + first..last, any other one the position i * step + 1.
struct AXIS {
    REAL step = 1; // source voxels a target voxel
    bool reduced = false;
    NAT first = 0, last = 0;

    explicit AXIS(REAL factor) : step(1 / factor), reduced(factor < 1) {
        if (!reduced) return;
        const bool odd = ROUND(step) % 2 != 0;
        first = odd ? -TRUNC(step / 2) : 0;
        last = odd ? TRUNC(step / 2) : ROUND(step - 1);
    }
    // Position of target voxel i, from 0, in source voxels.
    REAL POSITION(NAT i) const {
        const REAL position = static_cast<REAL>(i) * step + 1;
        return reduced ? static_cast<REAL>(ROUND(position)) : position;
    }
    NAT COUNT() const { return last - first + 1; }
};

// One statistic of a block, component by component. The lists have the length of the block.
class BLOCK_STATISTIC {
public:
    BLOCK_STATISTIC(NAT method, NAT length) : selector(method), x(length), y(length), z(length) {}
    bool READY(NAT length) const {
        return x.LENGTH == length && y.LENGTH == length && z.LENGTH == length;
    }
    void PUT(NAT index, const VECTOR &v) {
        x._PUT(index, v.x);
        y._PUT(index, v.y);
        z._PUT(index, v.z);
    }
    VECTOR VALUE() const { return {Of(x), Of(y), Of(z)}; }

private:
    REAL Of(const TPOLYREAL &list) const {
        switch (selector) {
        case 0: return list.SUM();
        case 1: return list.MEAN();
        case 3: return list.MIN();
        case 4: return list.Q1();
        case 5: return list.MEDIAN();
        case 6: return list.Q3();
        case 7: return list.MAX();
        default: return list.SD();
        }
    }
    NAT selector;
    TPOLYREAL x, y, z;
};

class RESAMPLER {
public:
    RESAMPLER(const T3D_VECTOR_ANALYSIS &from, const VECTOR &factor, NAT statistic)
        : source(from), sampler(from), method(statistic), axisX(factor.x), axisY(factor.y),
          axisZ(factor.z) {}

    void RUN(T3D_VECTOR_ANALYSIS &target) const {
        const NAT count = axisX.COUNT() * axisY.COUNT() * axisZ.COUNT();
        const bool enlarged = !axisX.reduced && !axisY.reduced && !axisZ.reduced;
        BLOCK_STATISTIC block(method, count);
        if (!block.READY(count)) return;
        const VECTORNAT size = target.SIZE();
        const UTF16 label = "  Copy";
        PROGRESS(label, 0);
        for (NAT z = 0; z < size.z; ++z) {
            for (NAT y = 0; y < size.y; ++y)
                for (NAT x = 0; x < size.x; ++x) {
                    const VECTOR p{axisX.POSITION(x), axisY.POSITION(y), axisZ.POSITION(z)};
                    target.PUT(x + 1, y + 1, z + 1, enlarged ? Read(p) : BlockValue(p, block));
                }
            PROGRESS(label, static_cast<REAL>(z + 1) / static_cast<REAL>(size.z));
        }
        PROGRESS();
    }

private:
    VECTOR BlockValue(const VECTOR &p, BLOCK_STATISTIC &block) const {
        NAT index = 0;
        for (NAT z = axisZ.first; z <= axisZ.last; ++z)
            for (NAT y = axisY.first; y <= axisY.last; ++y)
                for (NAT x = axisX.first; x <= axisX.last; ++x)
                    block.PUT(++index, Read(p + VECTORNAT{x, y, z}));
        return block.VALUE();
    }

    VECTOR Read(const VECTOR &p) const {
        if (method == 0) return source.GET(Nearest(p.x), Nearest(p.y), Nearest(p.z));
        if (method == 2) return source._TRILANCZOS(p);
        return sampler.TRILINEAR_LOCAL(p);
    }
    // The nearest voxel; half way the lower one, so that a factor of 2 gives blocks of 2.
    static NAT Nearest(REAL position) { return -FLOOR(0.5 - position); }

    const T3D_VECTOR_ANALYSIS &source;
    VECTOR_SAMPLER sampler;
    NAT method;
    AXIS axisX, axisY, axisZ;
};

bool Resample(const T3D_VECTOR_ANALYSIS &source, T3D_VECTOR_ANALYSIS &target, const VECTOR &factor,
              NAT method) {
    const VECTORNAT oldSize = source.SIZE(), newSize = ROUND(oldSize * factor);
    WRITELN("  New size: " + GETSTRING(oldSize) + " -> " + GETSTRING(newSize));
    if (!PREPARE_TARGET(target, newSize)) return false;
    FRAME frame = source.GETFRAME();
    const MATRIX3 rows = frame.MATRIX();
    frame.SETMATRIX({{{rows[0] / factor.x, rows[1] / factor.y, rows[2] / factor.z}}});
    target.SETFRAME(frame);
    target.BACKGROUND = source.BACKGROUND;
    RESAMPLER(source, factor, method).RUN(target);
    return true;
}
} // namespace

bool COPY(const T3D_VECTOR_ANALYSIS &source, T3D_VECTOR_ANALYSIS &target, const VECTOR &factor,
          NAT method) {
    if (factor == VZERO) return COPY(source, target);
    return CHECK_SOURCE(source) && Resample(source, target, factor, method);
}

bool RESIZE(const T3D_VECTOR_ANALYSIS &source, T3D_VECTOR_ANALYSIS &target, const VECTORNAT &size,
            NAT method) {
    return CHECK_SOURCE(source) && Resample(source, target, size / source.SIZE(), method);
}
} // namespace morvane
