#include "field3d/format/nifti_header.hpp"
#include "generated_files.hpp"
#include "geometry/format/line_formats_table.hpp"
#include "image2d/format/formats_table.hpp"
#include "orientation/vector/vector_formats_table.hpp"
#include "text_forms.hpp"

#include <array>

// The file formats as a page: a table for images, volumes, vectors and lines.
namespace morvane {
namespace {
std::string EXTENSION_CELL(std::string_view extension, bool zipped) {
    const std::string point = "." + std::string(extension);
    return MARKDOWN_CODE(point) + (zipped ? ", " + MARKDOWN_CODE(point + ".gz") : "");
}

std::string YES(bool holds) { return holds ? "yes" : "no"; }

// The kinds of images, by bits, that a row reads or writes.
struct KIND_BITS {
    std::vector<std::string> read, written;
};
KIND_BITS BITS_OF(const RASTER_FORMAT &format) {
    KIND_BITS bits;
    const auto take = [&bits](const auto &codec, const char *kind) {
        if (codec.read) bits.read.emplace_back(kind);
        if (codec.write) bits.written.emplace_back(kind);
    };
    take(format.gray, "8");
    take(format.fullGray, "16");
    take(format.rgb, "24");
    take(format.rgba, "32");
    take(format.zrgb, "40");
    return bits;
}

std::string BITS_CELL(const std::vector<std::string> &bits) {
    return bits.empty() ? "no" : JOINED(bits, ", ");
}

std::string RASTER_ROW(const std::string &extensions, const RASTER_FORMAT &format) {
    const KIND_BITS bits = BITS_OF(format);
    return "| " + extensions + " | " + MARKDOWN_TEXT(format.legend) + " | " + BITS_CELL(bits.read) +
           " | " + BITS_CELL(bits.written) + " | " + MARKDOWN_TEXT(format.values) + " |\n";
}

// Neighbours that differ in the extension alone share a row.
std::string RASTER_TABLE() {
    std::string table = "| Extension | Format | Read into | Written from | Values |\n"
                        "|---|---|---|---|---|\n";
    const std::span<const RASTER_FORMAT> formats = RASTER_FORMATS();
    std::string extensions;
    for (std::size_t i = 0; i < formats.size(); ++i) {
        if (!extensions.empty()) extensions += ", ";
        extensions += EXTENSION_CELL(formats[i].extension, formats[i].zipped);
        if (i + 1 < formats.size() && formats[i + 1].legend == formats[i].legend) continue;
        table += RASTER_ROW(extensions, formats[i]);
        extensions.clear();
    }
    return table;
}

// What a sample code says: its bits modulo 1000, 1000 floats, 2000 colours, negative signed.
std::string SAMPLE_WORDS(NAT code) {
    if (code >= 2000) return code % 1000 == 32 ? "red, green, blue, alpha" : "red, green, blue";
    if (code >= 1000) return "floating point";
    return code < 0 ? "whole, with sign" : "whole, without sign";
}

std::string NIFTI_TABLE() {
    constexpr std::int16_t LAST_DATATYPE = 2304;
    constexpr std::array<std::int16_t, 7> BITS = {1, 8, 16, 24, 32, 64, 128};
    std::string table = "| `datatype` | `bitpix` | Samples |\n|---|---|---|\n";
    for (std::int16_t datatype = 1; datatype <= LAST_DATATYPE; ++datatype)
        for (const std::int16_t bits : BITS) {
            TNIFTI header;
            header.datatype = datatype;
            header.bitpix = bits;
            const NAT code = GETNIFTICODE(header);
            if (code != 0)
                table += "| " + std::to_string(datatype) + " | " + std::to_string(bits) + " | " +
                         SAMPLE_WORDS(code) + " |\n";
        }
    return table;
}

std::string VECTOR_TABLE() {
    std::string table = "| Extension | Format | Read | Written |\n|---|---|---|---|\n";
    for (const VECTOR_FORMAT &format : VECTOR_FORMATS)
        table += "| " + EXTENSION_CELL(format.extension, false) + " | " +
                 MARKDOWN_TEXT(format.legend) + " | " + YES(format.reader != nullptr) + " | " +
                 YES(format.writer != nullptr) + " |\n";
    return table;
}

std::string LINE_TABLE() {
    std::string table = "| Extension | Format |\n|---|---|\n";
    for (const LINE_FORMAT &format : LINE_FORMATS())
        table += "| " + EXTENSION_CELL(format.extension, false) + " | " +
                 MARKDOWN_TEXT(format.legend) + " |\n";
    return table;
}

constexpr std::string_view IMAGES =
    "\n## Images\n"
    "\n"
    "`image.load` and `image.save` choose by the extension, in upper or lower case. Numbers are "
    "the\n"
    "kinds of images by their bits: 8 and 16 grey, 24 colours, 32 with alpha, 40 with alpha and\n"
    "depth. These are the own readers and writers; with FreeImage or ImageMagick installed "
    "`.png`,\n"
    "`.tif` and `.tga` can be read, too, and many further formats be read and written. A name "
    "with\n"
    "an extension that the kind does not write gets another one behind it: `.pgm` for grey, "
    "`.ppm`\n"
    "for colours, `.pam` for the others.\n"
    "\n";
constexpr std::string_view VOLUMES =
    "\n## Volumes\n"
    "\n"
    "NIfTI-1. `scalar.load` reads `.nii`, header and data in one file, and the pair of `.hdr` and\n"
    "`.img`, whose header may be one of Analyze 7.5; all three also with `.gz` behind. "
    "`scalar.save`\n"
    "writes `.nii`, `.nii.gz` and the pair by its `.hdr`. These samples are read, in either byte\n"
    "order:\n"
    "\n";
constexpr std::string_view VECTORS =
    "\n## Vector fields\n"
    "\n"
    "`vector.load` and `vector.save`. Every other extension is saved as the last row.\n"
    "\n";
constexpr std::string_view LINES = "\n## Lines\n"
                                   "\n"
                                   "`line.save`. Every other extension is saved as the last row, "
                                   "which is the one that `line.load`\n"
                                   "reads.\n"
                                   "\n";
} // namespace

std::string FORMATS_PAGE(const REFERENCE &) {
    std::string page = "<!-- Made by tools/reference_writer; edit the rows, not this page. -->\n"
                       "# File formats\n"
                       "\n"
                       "Every format that the program reads and writes by itself, from the tables "
                       "it works with.\n";
    page += std::string(IMAGES) + RASTER_TABLE();
    page += std::string(VOLUMES) + NIFTI_TABLE();
    page += std::string(VECTORS) + VECTOR_TABLE();
    return page + std::string(LINES) + LINE_TABLE();
}
} // namespace morvane
