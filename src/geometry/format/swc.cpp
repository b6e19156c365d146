#include "geometry/format/line_formats.hpp"
#include "geometry/format/line_writer.hpp"
#include "geometry/model/cloud.hpp"

namespace morvane {
bool SAVE_SWC(const TCLOUD &cloud, const UTF16 &name) {
    LINE_WRITER out(name, "  Write SWC-file");
    if (!out.OPEN()) return false;
    const NAT lines = cloud.GETLINELENGTH();
    NAT number = 0;
    for (NAT line = 1; line <= lines; ++line) {
        NAT parent = -1;
        for (const HYPER &point : cloud.GETSPAN(line)) {
            out << ++number << ' ' << cloud.GETALLMATERIAL(line) << ' ' << point.x << ' ' << point.y
                << ' ' << point.z << ' ' << point.w << ' ' << parent << '\n';
            parent = number;
        }
        out.SHOW(line, lines);
    }
    return out.COMMIT();
}
} // namespace morvane
