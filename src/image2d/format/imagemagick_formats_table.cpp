#include "image2d/format/imagemagick.hpp"

#include <algorithm>
#include <array>

namespace morvane {
namespace {
// In alphabetical order.
constexpr std::array<std::string_view, 93> FORMATS = {
    "art",  "avif",  "avs",  "bie",  "bmp",  "bmp2", "bmp3", "cals", "cin",  "cur",  "cut", "dcm",
    "dcx",  "dds",   "dib",  "djvu", "dpx",  "emf",  "exr",  "fax",  "fits", "fpx",  "fts", "g3",
    "gif",  "gif87", "hdr",  "heic", "heif", "hrz",  "ico",  "icon", "j2c",  "j2k",  "jbg", "jbig",
    "jng",  "jp2",   "jpc",  "jpe",  "jpeg", "jpg",  "jpm",  "jps",  "jpt",  "jxl",  "mac", "miff",
    "mng",  "mtv",   "otb",  "palm", "pam",  "pbm",  "pcd",  "pcds", "pct",  "pcx",  "pdb", "pfm",
    "pgm",  "pgx",   "pict", "pix",  "png",  "pnm",  "ppm",  "psb",  "psd",  "ptif", "ras", "rla",
    "rle",  "sct",   "sfw",  "sgi",  "sun",  "svg",  "svgz", "tga",  "tif",  "tiff", "tim", "vicar",
    "viff", "wbmp",  "webp", "wmf",  "wpg",  "xbm",  "xcf",  "xpm",  "xwd"};
static_assert(std::ranges::is_sorted(FORMATS));
} // namespace

bool IS_MAGICK_FORMAT(std::string_view extension) {
    return std::ranges::binary_search(FORMATS, extension);
}
} // namespace morvane
