#include "orientation/scan/diagnostics.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "foundation/base/record_operators.hpp"
#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"
#include "foundation/container/poly_statistics.hpp"
#include "orientation/scan/hemisphere.hpp"
#include "orientation/scan/scan_line.hpp"
#include "orientation/scan/scan_method.hpp"

#include <algorithm>

namespace morvane {
namespace {
void GetLine(const T3D_SCALAR_ANALYSIS &scalar, const VECTORNAT &centre, const VECTORNAT &d,
             TPOLYNAT &line) {
    const VECTORNAT p1 = centre + d, p2 = centre - d;
    GETLINE_W0(scalar, p1.x, p1.y, p1.z, p2.x, p2.y, p2.z, line);
}

bool WriteLine(FILE_WRITE &file, const TPOLYNAT &line, const RING_POINT &point, const UTF16 &mark) {
    UTF16 text = mark + " u:" + GETSTRING(point.ring) + " v:" + GETSTRING(point.position) +
                 " x:" + GETSTRING(point.polar.x) + " y:" + GETSTRING(point.polar.y) +
                 " z:" + GETSTRING(point.polar.z) + " len:" + GETSTRING(line.LENGTH);
    if (line.LENGTH > 0) {
        text += " mean:" + GETSTRING(line.MEAN()) + " SD:" + GETSTRING(line.SD());
        for (const NAT sample : line.SPAN())
            text += " " + GETSTRING(sample);
    }
    return file.WRITELN(text);
}

// The three directions of the lowest SD; `ranked` holds (position in `scanned`, SD).
void WriteBest(FILE_WRITE &file, TPOLYCOMPLEX &ranked, const TPOLYVECTORNAT &scanned) {
    if (ranked.LENGTH <= 1) return;
    ranked.SORTY();
    const char *const titles[] = {" Min SD pos: ", " 2. SD pos: ", " 3. SD pos: "};
    NAT rank = 0;
    for (const char *title : titles) {
        if (++rank > ranked.LENGTH) return;
        const COMPLEX entry = ranked._GET(rank);
        file.WRITELN(title + GETSTRING(scanned._GET(ROUND(entry.x))) +
                     " (SD:" + GETSTRING(entry.y) + ")");
    }
}
} // namespace

VECTORNAT SCAN_POINT(const T3D_SCALAR_ANALYSIS &scalar, const UTF16 &title, const VECTORNAT *point,
                     const VECTORNAT *offset) {
    VECTORNAT centre = DIV(scalar.SIZE(), 2);
    if (point != nullptr && point->x >= 1 && point->y >= 1 && point->z >= 1) centre = *point;
    UTF16 text = title + GETSTRING(centre);
    if (offset != nullptr) text += " + " + GETSTRING(*offset);
    WRITELN(text);
    return offset != nullptr ? centre + *offset : centre;
}

NAT DIFFUSION(const T3D_SCALAR_ANALYSIS &scalar, NAT x, NAT y, NAT z, NAT r) {
    TPOLYREAL deviations;
    TPOLYNAT line;
    FOR_EACH_RING_POINT(
        r,
        [&](const RING_POINT &point) {
            GetLine(scalar, {x, y, z}, point.offset, line);
            if (r <= line.LENGTH) deviations.PUSH(line.SD());
        },
        [](NAT) {});
    if (deviations.LENGTH < 3) return 0;
    deviations.SORT();
    NAT count = 1;
    while (count < deviations.LENGTH && deviations._GET(count + 1) == deviations._GET(1))
        ++count;
    return count;
}

void DIFFUSION(const T3D_SCALAR_ANALYSIS &scalar, NAT x, NAT y, NAT z, NAT r, TPOLYHYPER &stats) {
    HYPER range{WORST_VALUE, -WORST_VALUE, WORST_VALUE, -WORST_VALUE};
    TPOLYNAT line;
    FOR_EACH_RING_POINT(
        r,
        [&](const RING_POINT &point) {
            const VECTORNAT d = point.offset;
            scalar.GETLINE(x + d.x, y + d.y, z + d.z, x - d.x, y - d.y, z - d.z, line);
            const REAL mean = line.MEAN(), deviation = line.SD();
            range.x = std::min(range.x, mean);
            range.y = std::max(range.y, mean);
            range.z = std::min(range.z, deviation);
            range.w = std::max(range.w, deviation);
        },
        [](NAT) {});
    stats.PUT(r, range);
}

bool DIFFUSION_DUMP(const T3D_SCALAR_ANALYSIS &scalar, NAT x, NAT y, NAT z, NAT r,
                    const UTF16 &file) {
    FILE_WRITE out;
    if (!ASSIGNWRITE(out, file)) return false;
    TPOLYNAT line;
    TPOLYCOMPLEX ranked;
    TPOLYVECTORNAT scanned;
    FOR_EACH_RING_POINT(
        r,
        [&](const RING_POINT &point) {
            GetLine(scalar, {x, y, z}, point.offset, line);
            const bool isLong = line.LENGTH >= r;
            const UTF16 mark = isLong ? GETSTRING(scanned.LENGTH + 1) : UTF16("<r");
            WriteLine(out, line, point, mark);
            if (!isLong) return;
            scanned.PUSH(point.offset);
            ranked.PUSH({static_cast<REAL>(scanned.LENGTH), line.SD()});
        },
        [&](NAT) { out.WRITELN(""); });
    WriteBest(out, ranked, scanned);
    return out.COMMIT();
}
} // namespace morvane
