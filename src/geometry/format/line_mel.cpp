#include "foundation/console/paths.hpp"
#include "geometry/format/backup.hpp"
#include "geometry/format/line_writer.hpp"
#include "geometry/model/cloud.hpp"

namespace morvane {
namespace {
// A curve of degree 1; a single point becomes a locator, as a curve needs two.
void WRITE_CURVE(LINE_WRITER &out, std::span<const HYPER> points, const std::string &curve) {
    out << (points.size() == 1 ? "spaceLocator" : "curve -d 1");
    for (const HYPER &point : points)
        out << " -p " << point.x << ' ' << point.y << ' ' << point.z;
    out << " -n \"" << curve << "\";\n";
}

bool WRITE_MEL(const TCLOUD &cloud, const UTF16 &name) {
    LINE_WRITER out(name, "  Write MEL-file");
    if (!out.OPEN()) return false;
    const std::string title = GETUTF8(GETFILE(name));
    const NAT objects = cloud.GETOBJECTLENGTH();
    out << "// Maya MEL\n// Name: " << title << '\n';
    for (NAT object = 1; object <= objects; ++object) {
        const NAT lines = cloud.GETOBJECTLINELENGTH(object);
        for (NAT line = 1; line <= lines; ++line)
            WRITE_CURVE(out, cloud.GETSPAN(cloud.GETOBJECTLINE(object, line)),
                        "O" + PADDED(object, DIGITS(objects)) + "_L" + PADDED(line, DIGITS(lines)));
        out.SHOW(object, objects);
    }
    out << "// End of " << title << '\n';
    return out.COMMIT();
}
} // namespace

bool TCLOUD::SAVE_MEL(const UTF16 &name) {
    if (LENGTH < 1) return false;
    REPAIR("repaired");
    BACKUP backup(name);
    return backup.READY() && backup.FINISH(WRITE_MEL(*this, name));
}
} // namespace morvane
