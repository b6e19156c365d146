#include "geometry/format/line_formats.hpp"
#include "geometry/format/line_writer.hpp"
#include "geometry/model/cloud.hpp"

namespace morvane {
namespace {
// One element of `count` points from position `first` on: a point, a closed line as a face, a line.
void WRITE_ELEMENT(LINE_WRITER &out, std::span<const HYPER> points, NAT first) {
    const NAT count = static_cast<NAT>(points.size());
    const bool isClosed = count > 1 && points.front() == points.back();
    out << (count == 1 ? "p" : isClosed ? "f" : "l");
    for (NAT i = 0; i < (isClosed ? count - 1 : count); ++i)
        out << ' ' << first + i;
    out << '\n';
}
} // namespace

bool SAVE_OBJ(const TCLOUD &cloud, const UTF16 &name) {
    LINE_WRITER out(name, "  Write OBJ-file");
    if (!out.OPEN()) return false;
    for (NAT i = 1; i <= cloud.LENGTH; ++i) {
        const HYPER &point = cloud._GET(i);
        out << "v " << point.x << ' ' << point.y << ' ' << point.z << '\n';
        out.SHOW(i, cloud.LENGTH);
    }
    out << "s 1\n";
    for (NAT line = 1; line <= cloud.GETLINELENGTH(); ++line)
        WRITE_ELEMENT(out, cloud.GETSPAN(line), cloud.GETPLINE(line, 1));
    return out.COMMIT();
}
} // namespace morvane
