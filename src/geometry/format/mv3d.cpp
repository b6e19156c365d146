#include "geometry/format/line_formats.hpp"
#include "geometry/format/line_writer.hpp"
#include "geometry/model/cloud.hpp"

namespace morvane {
bool SAVE_MV3D(const TCLOUD &cloud, const UTF16 &name) {
    LINE_WRITER out(name, "  Write MicroVisu3D-file");
    if (!out.OPEN()) return false;
    out << "# MicroVisu3D file\n# Number of lines   " << cloud.GETLINELENGTH()
        << "\n# Number of points  " << cloud.LENGTH
        << "\n# Number of inter.  n.a.\n#\n# No\t\tx\t\ty\t\tz\t\td\n#\n";
    for (NAT i = 1; i <= cloud.LENGTH; ++i) { // points lie in line order
        const HYPER &point = cloud._GET(i);
        out << i << '\t' << point.x << '\t' << point.y << '\t' << point.z << '\t' << point.w
            << '\n';
        out.SHOW(i, cloud.LENGTH);
    }
    return out.COMMIT();
}
} // namespace morvane
