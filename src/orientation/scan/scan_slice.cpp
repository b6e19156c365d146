#include "orientation/scan/scan_slice.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "foundation/base/record_operators.hpp"
#include "foundation/console/console.hpp"
#include "orientation/scan/scan.hpp"
#include "orientation/scan/scan_block.hpp"
#include "orientation/vector/vector_analysis.hpp"

#include <algorithm>
#include <memory>
#include <new>
#include <optional>

namespace morvane {
namespace {
NAT Voxel(const SCAN_VOLUME &volume, NAT x, NAT y, NAT z) {
    const VECTORNAT &size = volume.size;
    if (x < 1 || y < 1 || z < 1 || x > size.x || y > size.y || z > size.z) return 0;
    const NAT offset = x - 1 + (y - 1 + (z - 1) * size.y) * size.x;
    if (volume.bits == 8) return static_cast<const BYTE *>(volume.voxels)[offset];
    if (volume.bits == 16) return static_cast<const WORD *>(volume.voxels)[offset];
    return 0;
}

// The lines of one voxel, read as described.
struct VOXEL_SOURCE {
    const SCAN_PLAN *plan;
    const SCAN_VOLUME *volume;
    VECTORNAT centre;
    static NAT READ(const void *self, NAT direction, NAT *samples) {
        const VOXEL_SOURCE *source = static_cast<const VOXEL_SOURCE *>(self);
        const VECTORNAT &d = source->plan->directions.points._GET(direction + 1);
        return plain::GETLINE_W0(*source->volume, source->centre + d, source->centre - d, samples);
    }
};

// Scans blocks of centres on either road.
class SCANNER {
public:
    SCANNER(const SCAN_PLAN &scanPlan, const SCAN_VOLUME &scanVolume, SCAN_ROAD road)
        : plan(scanPlan), volume(scanVolume) {
        if (road == SCAN_ROAD::FAST && plan.FAST()) {
            block.emplace(plan, volume, FASTEST_SCAN_KERNEL());
            if (!block->INIT()) block.reset();
        }
        ready = block || lists.INIT(plan.r);
    }
    bool READY() const { return ready; }
    NAT ROWS() const { return block ? block->ROWS() : 1; }
    void SCAN(const VECTORNAT &first, NAT columns, NAT rows, const BYTE *wanted, VECTOR *results) {
        if (block) return block->SCAN(first, columns, rows, wanted, results);
        for (NAT i = 0; i < columns * rows; ++i)
            if (wanted[i])
                results[i] = VECTOR_AT({first.x + i % columns * plan.factor,
                                        first.y + i / columns * plan.factor, first.z});
    }

private:
    VECTOR VECTOR_AT(const VECTORNAT &centre) {
        const VOXEL_SOURCE source{&plan, &volume, centre};
        return GETIMAGEVECTOR(
            {plan.settings, plan.directions, lists, {VOXEL_SOURCE::READ, &source}, plan.r});
    }
    const SCAN_PLAN &plan;
    const SCAN_VOLUME &volume;
    std::optional<SCAN_BLOCK> block;
    SCAN_LISTS lists;
    bool ready = false;
};

// Some rows of cells under way.
struct STRIP {
    SCAN_BUFFER<BYTE> wanted;
    SCAN_BUFFER<VECTOR> results;
    NAT columns = 0, rows = 0;
    [[nodiscard]] bool INIT(NAT width, NAT height) {
        columns = width;
        return wanted.INIT(width * height) && results.INIT(width * height);
    }
    bool ANY() const {
        const BYTE *flags = wanted.DATA();
        return std::any_of(flags, flags + columns * rows, [](BYTE flag) { return flag != 0; });
    }
};

// The tries of the adaptive form after the first one, at the point plus these offsets.
constexpr VECTORNAT RETRIES[] = {{1, 1, 1}, {0, 1, 1}, {1, 0, 0}, {1, 0, 1},
                                 {0, 1, 0}, {1, 1, 0}, {0, 0, 1}};

// Scans the wanted cells; those that stay zero are tried again.
void ScanAdaptive(SCANNER &scanner, STRIP &strip, const VECTORNAT &first) {
    scanner.SCAN(first, strip.columns, strip.rows, strip.wanted.DATA(), strip.results.DATA());
    for (const VECTORNAT &offset : RETRIES) {
        for (NAT i = 0; i < strip.columns * strip.rows; ++i)
            if (strip.results[i] != VZERO) strip.wanted[i] = 0;
        if (!strip.ANY()) return;
        scanner.SCAN(first + offset, strip.columns, strip.rows, strip.wanted.DATA(),
                     strip.results.DATA());
    }
}

void PutEight(T3D_VECTOR_ANALYSIS &field, const VECTORNAT &cell, const VECTOR &value) {
    for (NAT c = 0; c <= 1; ++c)
        for (NAT b = 0; b <= 1; ++b)
            for (NAT a = 0; a <= 1; ++a)
                field.PUT(cell.x + a, cell.y + b, cell.z + c, value);
}

// The sizes as the commands test them, but for z.
bool IsWideEnough(const T3D_SCALAR_ANALYSIS &scalar, NAT r) {
    return scalar.SIZEX() > 2 * r && scalar.SIZEY() > 2 * r;
}

template <class RUN>
void Slice(const T3D_SCALAR_ANALYSIS &scalar, T3D_VECTOR_ANALYSIS &field, NAT r, NAT factor,
           SCAN_ROAD road, const RUN &run) {
    if (!scalar.ISNOTEMPTY()) return WRITELN("Error! Empty vectorfield!");
    if (!IsWideEnough(scalar, r) || factor < 1) return;
    const SCAN_PLAN plan(GETSETTINGS(scalar), r, factor, scalar.SIZEX() / factor,
                         road == SCAN_ROAD::FAST);
    run(SCAN_SLICE{plan, GETVOLUME(scalar), field, road});
}
} // namespace

void SCAN_SLICE::RUN(NAT z) const {
    const NAT factor = plan.factor, columns = volume.size.x / factor;
    const NAT rows = volume.size.y / factor;
    SCANNER scanner(plan, volume, road);
    STRIP strip;
    if (!scanner.READY() || !strip.INIT(columns, scanner.ROWS())) return;
    for (NAT top = 1; top <= rows; top += strip.rows) {
        strip.rows = std::min(scanner.ROWS(), rows - top + 1);
        for (NAT i = 0; i < columns * strip.rows; ++i) {
            const NAT x = i % columns + 1, y = top + i / columns;
            strip.wanted[i] = Voxel(volume, factor * x, factor * y, z) >= 1;
            strip.results[i] = VZERO;
        }
        scanner.SCAN({factor, factor * top, z}, columns, strip.rows, strip.wanted.DATA(),
                     strip.results.DATA());
        for (NAT i = 0; i < columns * strip.rows; ++i)
            field.PUT(i % columns + 1, top + i / columns, z / factor, strip.results[i]);
    }
}

void SCAN_SLICE::RUN_ADAPTIVE(NAT z) const {
    // Deliberate: an adaptive scan writes at full-size coordinates into the reduced field, so cells
    // beyond it are dropped.
    const NAT factor = plan.factor;
    const NAT columns = std::min(volume.size.x, field.SIZEX()) / factor;
    const NAT rows = std::min(volume.size.y, field.SIZEY()) / factor;
    if (columns < 1 || rows < 1 || z > field.SIZEZ()) return;
    SCANNER scanner(plan, volume, road);
    STRIP strip;
    if (!scanner.READY() || !strip.INIT(columns, scanner.ROWS())) return;
    for (NAT top = 1; top <= rows; top += strip.rows) {
        strip.rows = std::min(scanner.ROWS(), rows - top + 1);
        for (NAT i = 0; i < columns * strip.rows; ++i) {
            // Deliberate: an adaptive scan looks for zero at the doubled coordinates, whatever the
            // factor is.
            const NAT x = i % columns + 1, y = top + i / columns;
            strip.wanted[i] = Voxel(volume, 2 * x, 2 * y, z) >= 1;
            strip.results[i] = VZERO;
        }
        ScanAdaptive(scanner, strip, {factor, factor * top, z});
        for (NAT i = 0; i < columns * strip.rows; ++i) {
            const NAT x = i % columns + 1, y = top + i / columns;
            PutEight(field, {factor * x, factor * y, z}, strip.results[i]);
        }
    }
}

void DIFFUSION(const T3D_SCALAR_ANALYSIS &scalar, T3D_VECTOR_ANALYSIS &field, NAT z, NAT r) {
    DIFFUSION(scalar, field, z, r, 1);
}

void DIFFUSION(const T3D_SCALAR_ANALYSIS &scalar, T3D_VECTOR_ANALYSIS &field, NAT z, NAT r,
               NAT factor) {
    Slice(scalar, field, r, factor, SCAN_ROAD::FAST,
          [z](const SCAN_SLICE &slice) { slice.RUN(z); });
}

void DIFFUSION_ADAPTIVE(const T3D_SCALAR_ANALYSIS &scalar, T3D_VECTOR_ANALYSIS &field, NAT z, NAT r,
                        NAT factor) {
    Slice(scalar, field, r, factor, SCAN_ROAD::FAST,
          [z](const SCAN_SLICE &slice) { slice.RUN_ADAPTIVE(z); });
}

void plain::DIFFUSION(const T3D_SCALAR_ANALYSIS &scalar, T3D_VECTOR_ANALYSIS &field, NAT z, NAT r,
                      NAT factor) {
    Slice(scalar, field, r, factor, SCAN_ROAD::PLAIN,
          [z](const SCAN_SLICE &slice) { slice.RUN(z); });
}

void plain::DIFFUSION_ADAPTIVE(const T3D_SCALAR_ANALYSIS &scalar, T3D_VECTOR_ANALYSIS &field, NAT z,
                               NAT r, NAT factor) {
    Slice(scalar, field, r, factor, SCAN_ROAD::PLAIN,
          [z](const SCAN_SLICE &slice) { slice.RUN_ADAPTIVE(z); });
}
} // namespace morvane
