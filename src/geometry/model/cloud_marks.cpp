#include "foundation/base/geometry.hpp"
#include "geometry/model/cloud.hpp"
#include "geometry/model/cloud_near.hpp"

#include <algorithm>

// Marking, erasing and searching of lines.
namespace morvane {
void TCLOUD::MARKALLLINE(NAT line) {
    if (line < 1 || line > GETLINELENGTH()) return;
    if (marks.BITS < GETLINELENGTH()) marks.NEWLENGTH(GETLINELENGTH());
    marks.PUT(line - 1, true);
}

void TCLOUD::MARKLINE(NAT object, NAT line) { MARKALLLINE(GETOBJECTLINE(object, line)); }

bool TCLOUD::MARKED(NAT line) const { return marks.GET(line - 1); }

// Compacts the lists in place; what is read of line i stands at i or behind all that was written.
NAT TCLOUD::ERASEMARKED() {
    const NAT lines = GETLINELENGTH(), closed = lineMaterials.LENGTH;
    NAT points = 0, kept = 0, keptClosed = 0, object = 1, keptObjects = 0, objectFirst = 1;
    for (NAT line = 1; line <= lines; ++line) {
        const NAT start = LINESTART(line), end = LINESTART(line + 1);
        if (!MARKED(line)) {
            if (start > points + 1) std::copy(_INDEX(start), _INDEX(end), _INDEX(points + 1));
            lineStarts._PUT(++kept, points + 1);
            if (line <= closed) lineMaterials._PUT(++keptClosed, lineMaterials._GET(line));
            points += end - start;
        }
        if (object >= objectStarts.LENGTH || objectStarts._GET(object + 1) != line + 1) continue;
        if (kept >= objectFirst) { // the object has lines left
            objectStarts._PUT(++keptObjects, objectFirst);
            objectNames._PUT(keptObjects, UTF16CHARS7(objectNames._GET(object)));
            objectFirst = kept + 1;
        }
        ++object;
    }
    marks.NEWLENGTH(0);
    if (kept == lines) return 0;
    NEWLENGTH(points);
    lineMaterials.NEWLENGTH(keptClosed);
    lineStarts.NEWLENGTH(kept);
    if (kept == keptClosed) lineStarts.PUSH(points + 1); // the open line is empty
    objectNames.NEWLENGTH(keptObjects);
    objectStarts.NEWLENGTH(keptObjects);
    if (keptObjects > 0) objectStarts.PUSH(objectFirst);
    return lines - kept;
}

NAT TCLOUD::SEARCHLINE(NAT line, REAL distance) const {
    for (NAT earlier = 1; earlier < line; ++earlier)
        if (NEAR_LINES(GETSPAN(earlier), GETSPAN(line), distance)) return earlier;
    return 0;
}

NAT TCLOUD::SEARCHBEGIN(NAT line, REAL distance) const {
    const std::span<const HYPER> own = GETSPAN(line);
    if (own.empty()) return 0;
    for (NAT earlier = 1; earlier < line; ++earlier)
        if (NEAR_POINTS(GETSPAN(earlier).front(), own.front(), distance)) return earlier;
    return 0;
}
} // namespace morvane
