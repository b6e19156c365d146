#include "geometry/format/line_formats_table.hpp"

#include "foundation/console/paths.hpp"
#include "geometry/format/line_formats.hpp"
#include "geometry/model/cloud.hpp"

#include <array>

namespace morvane {
namespace {
template <bool (*SAVER)(const TCLOUD &, const UTF16 &)>
bool SAVED(TCLOUD &cloud, const UTF16 &name) {
    return SAVER(cloud, name);
}
bool SAVED_MEL(TCLOUD &cloud, const UTF16 &name) { return cloud.SAVE_MEL(name); }
bool SAVED_TEXT(TCLOUD &cloud, const UTF16 &name) { return cloud.SAVE(name); }

constexpr std::array FORMATS = {
    LINE_FORMAT{"dxf", SAVED<SAVE_DXF>, "DXF polylines"},
    LINE_FORMAT{"obj", SAVED<SAVE_OBJ>, "OBJ lines"},
    LINE_FORMAT{"vtp", SAVED<SAVE_VTK>, "VTK XML PolyData"},
    LINE_FORMAT{"vtk", SAVED<SAVE_VTK>, "VTK XML PolyData"},
    LINE_FORMAT{"trk", SAVED<SAVE_TRACKVIS>, "TrackVis"},
    LINE_FORMAT{"mel", SAVED_MEL, "Maya MEL curves"},
    LINE_FORMAT{"mv3d", SAVED<SAVE_MV3D>, "MicroVisu3D"},
    LINE_FORMAT{"swc", SAVED<SAVE_SWC>, "SWC"},
    LINE_FORMAT{"txt", SAVED_TEXT, "Skein2 text"},
};
} // namespace

std::span<const LINE_FORMAT> LINE_FORMATS() { return FORMATS; }

const LINE_FORMAT &LINE_FORMAT_OF(const UTF16 &name) {
    const std::string extension = GETUTF8(LOWERCASE(GETFILEEXTENSION(name)));
    for (const LINE_FORMAT &format : FORMATS)
        if (extension == format.extension) return format;
    return FORMATS.back();
}

bool SAVE_LINES(TCLOUD &cloud, const UTF16 &name) { return LINE_FORMAT_OF(name).save(cloud, name); }
} // namespace morvane
