#include "geometry/format/dxf_writer.hpp"
#include "geometry/format/line_formats.hpp"
#include "geometry/model/cloud.hpp"

namespace morvane {
bool SAVE_DXF(const TCLOUD &cloud, const UTF16 &name) {
    TWRITEDXF out(name, "  Write DXF-file");
    if (!out.OPEN()) return false;
    const NAT lines = cloud.GETLINELENGTH();
    for (NAT line = 1; line <= lines; ++line) {
        out.POLYLINE(cloud.GETSPAN(line));
        out.SHOW(line, lines);
    }
    return out.DONE();
}
} // namespace morvane
