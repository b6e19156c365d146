#include "orientation/scan/diagnostics_files.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "foundation/base/rounding.hpp"
#include "foundation/base/utf16chars7.hpp"
#include "foundation/console/console.hpp"
#include "foundation/console/paths.hpp"
#include "image2d/chart/histogram.hpp"
#include "image2d/format/formats.hpp"
#include "orientation/scan/diagnostics.hpp"
#include "orientation/scan/diagnostics_map.hpp"

#include <algorithm>

namespace morvane {
namespace {
constexpr std::string_view PICTURES[] = {"pgm", "tif", "png"};
constexpr std::string_view CHARTS[] = {"svg", "svgz", "png", "bmp", "tga",
                                       "tif", "pbm",  "pgm", "ppm", "pam"};
constexpr NAT CHART_WIDTH = 640, CHART_HEIGHT = 480;

UTF16 Extension(const UTF16 &file) { return LOWERCASE(GETFILEEXTENSION(file)); }

template <class CANVAS_KIND> bool SaveGray(const CANVAS_KIND &map, const UTF16 &file) {
    const UTF16 extension = Extension(file);
    if (extension == "tif") return SAVETIF(map, file);
    return extension == "png" ? SAVEPNG(map, file) : SAVEPGM(map, file);
}

bool SaveColour(const TRGB &map, const UTF16 &file) {
    const UTF16 extension = Extension(file);
    if (extension == "tif") return SAVETIF(map, file);
    if (extension == "png") return SAVEPNG(map, file);
    return SAVEPPM(map, GETDIRFILENAME(file) + ".ppm");
}

// Half of the smallest size: the longest line that stays inside.
NAT LongestScan(const T3D_SCALAR_ANALYSIS &scalar) {
    const VECTORNAT size = scalar.SIZE();
    return ROUND(static_cast<REAL>(std::min({size.x, size.y, size.z})) * 0.5);
}

// take(r) from the longest scan down to 1, with its progress.
template <class TAKE> void ForEachLength(const T3D_SCALAR_ANALYSIS &scalar, const TAKE &take) {
    const NAT longest = LongestScan(scalar);
    for (NAT r = longest; r >= 1; --r) {
        PROGRESS("  Calculate histogram",
                 static_cast<REAL>(longest - r) / static_cast<REAL>(longest));
        take(r);
    }
    PROGRESS();
}

bool SaveRange(const TPOLYREAL &least, const TPOLYREAL &most, const UTF16 &caption,
               const UTF16 &file) {
    THISTOGRAM chart(CHART_WIDTH, CHART_HEIGHT);
    chart.LEFT(caption);
    chart.BOTTOM("scansize");
    chart.LEGENDS("minimal", "maximal");
    chart.HISTOGRAM(least, most);
    return chart.SAVE(file);
}
} // namespace

UTF16 PART_NAME(const UTF16 &file, std::string_view part,
                std::span<const std::string_view> allowed) {
    const UTF16 extension = Extension(file);
    const bool isKnown = std::any_of(allowed.begin(), allowed.end(), [&](std::string_view kind) {
        return extension == UTF16(kind);
    });
    if (!isKnown) return file + UTF16(part) + "." + UTF16(allowed.front());
    return GETDIRFILENAME(file) + UTF16(part) + "." + GETFILEEXTENSION(file);
}

bool SAVE_DIFFUSION_MAP(const T3D_SCALAR_ANALYSIS &scalar, const VECTORNAT &voxel, NAT r,
                        const UTF16 &file) {
    TFULLGRAY map;
    TGRAY low;
    DIFFUSION_MAP(scalar, voxel.x, voxel.y, voxel.z, r, map);
    LOW_MAP(map, low);
    return SaveGray(map, PART_NAME(file, "", PICTURES)) &&
           SaveGray(low, PART_NAME(file, "-low", PICTURES));
}

bool SAVE_DIFFUSION_COLORMAP(const T3D_SCALAR_ANALYSIS &scalar, const VECTORNAT &voxel, NAT r,
                             const UTF16 &file) {
    TFULLGRAY mean, deviation;
    TRGB colours;
    DIFFUSION_MEAN(scalar, voxel.x, voxel.y, voxel.z, r, mean);
    DIFFUSION_SD(scalar, voxel.x, voxel.y, voxel.z, r, deviation);
    DIFFUSION_COLOURS(scalar, voxel.x, voxel.y, voxel.z, r, colours);
    return SaveGray(mean, PART_NAME(file, "-mean", PICTURES)) &&
           SaveGray(deviation, PART_NAME(file, "-sd", PICTURES)) &&
           SaveColour(colours, PART_NAME(file, "", PICTURES));
}

void DIFFUSION_COUNTS(const T3D_SCALAR_ANALYSIS &scalar, const VECTORNAT &voxel, TPOLYNAT &counts) {
    counts.INIT();
    ForEachLength(scalar,
                  [&](NAT r) { counts.PUT(r, DIFFUSION(scalar, voxel.x, voxel.y, voxel.z, r)); });
}

void DIFFUSION_RANGES(const T3D_SCALAR_ANALYSIS &scalar, const VECTORNAT &voxel,
                      TPOLYHYPER &ranges) {
    ranges.INIT();
    ForEachLength(scalar, [&](NAT r) { DIFFUSION(scalar, voxel.x, voxel.y, voxel.z, r, ranges); });
}

bool SAVE_DIFFUSION_HISTOGRAM(const T3D_SCALAR_ANALYSIS &scalar, const VECTORNAT &voxel,
                              const UTF16 &file) {
    TPOLYNAT counts;
    DIFFUSION_COUNTS(scalar, voxel, counts);
    THISTOGRAM chart(CHART_WIDTH, CHART_HEIGHT);
    chart.LEFT("number of maximas");
    chart.BOTTOM("scansize");
    chart.HISTOGRAM(counts, 1);
    return chart.SAVE(PART_NAME(file, "", CHARTS));
}

bool SAVE_DIFFUSION_SD(const T3D_SCALAR_ANALYSIS &scalar, const VECTORNAT &voxel,
                       const UTF16 &file) {
    TPOLYHYPER ranges;
    DIFFUSION_RANGES(scalar, voxel, ranges);
    TPOLYREAL lists[4];
    for (TPOLYREAL &list : lists)
        list.INIT();
    for (const HYPER &range : ranges.SPAN()) {
        lists[0].PUSH(range.x);
        lists[1].PUSH(range.y);
        lists[2].PUSH(range.z);
        lists[3].PUSH(range.w);
    }
    return SaveRange(lists[0], lists[1], "minimal & maximal Mean",
                     PART_NAME(file, "-mean", CHARTS)) &&
           SaveRange(lists[2], lists[3], "minimal & maximal SD", PART_NAME(file, "-sd", CHARTS));
}
} // namespace morvane
