#include "geometry/format/line_formats.hpp"
#include "geometry/format/line_writer.hpp"
#include "geometry/model/cloud.hpp"

namespace morvane {
namespace {
void WRITE_POINTS(LINE_WRITER &out, const TCLOUD &cloud) {
    out << "\t\t\t<Points>\n"
           "\t\t\t\t<DataArray type=\"Float32\" NumberOfComponents=\"3\" format=\"ascii\">\n";
    for (NAT i = 1; i <= cloud.LENGTH; ++i) {
        const HYPER &point = cloud._GET(i);
        out << "\t\t\t\t\t" << point.x << ' ' << point.y << ' ' << point.z << '\n';
        out.SHOW(i, cloud.LENGTH);
    }
    out << "\t\t\t\t</DataArray>\n\t\t\t</Points>\n";
}

void WRITE_CONNECTIONS(LINE_WRITER &out, const TCLOUD &cloud) {
    const NAT lines = cloud.GETLINELENGTH();
    out << "\t\t\t<Lines>\n"
           "\t\t\t\t<DataArray type=\"Int32\" Name=\"connectivity\" format=\"ascii\">\n";
    NAT position = 0; // points count from 0
    for (NAT line = 1; line <= lines; ++line) {
        out << "\t\t\t\t\t";
        for (NAT i = cloud.GETALLLINEPOINTLENGTH(line); i > 0; --i)
            out << position++ << (i > 1 ? " " : "\n");
        out.SHOW(line, lines);
    }
    out << "\t\t\t\t</DataArray>\n"
           "\t\t\t\t<DataArray type=\"Int32\" Name=\"offsets\" format=\"ascii\">\n";
    position = 0;
    for (NAT line = 1; line <= lines; ++line)
        out << "\t\t\t\t\t" << (position += cloud.GETALLLINEPOINTLENGTH(line)) << '\n';
    // Deliberate: the Lines block of a VTK line file is closed as Polys.
    out << "\t\t\t\t</DataArray>\n\t\t\t</Polys>\n";
}
} // namespace

bool SAVE_VTK(const TCLOUD &cloud, const UTF16 &name) {
    LINE_WRITER out(name, "  Write VTK-file");
    if (!out.OPEN()) return false;
    out << "<?xml version=\"1.0\"?>\n"
           "<VTKFile type=\"PolyData\" version=\"0.1\" byte_order=\"LittleEndian\">\n"
           "\t<PolyData>\n"
           "\t\t<Piece NumberOfPoints=\""
        << cloud.LENGTH
        << "\" NumberOfVerts=\"0\" NumberOfLines=\"0\" NumberOfStrips=\"0\" NumberOfPolys=\""
        << cloud.GETLINELENGTH() << "\">\n";
    WRITE_POINTS(out, cloud);
    out.LABEL("  Write VTK(mesh)-file");
    WRITE_CONNECTIONS(out, cloud);
    out << "\t\t</Piece>\n\t</PolyData>\n</VTKFile>\n";
    return out.COMMIT();
}
} // namespace morvane
